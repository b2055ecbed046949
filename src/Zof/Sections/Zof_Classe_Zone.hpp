#pragma once
// A zone of a section: a piece of concrete, a void, a duct, steel. Zones form a tree whose root is the
// section.
//
// Coordinates in metres, y to the right, z upwards; outlines run counter-clockwise and are open. A point has
// two numbers: m_numero_point, the user's, in its zone, and m_numero_point_qb7, the engine's, in the section.

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Grille_Points.hpp"
#include "Index_Contour.hpp"
#include "QB7_Types.hpp"
#include "Texte.hpp"
#include "UTL_04_Dessin.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Point.hpp"
#include "Zof_Classe_Zone_Generalisee.hpp"
#include "Zof_Formes_typees.hpp"

struct zof_section;

/// What m_symetrie holds: the axes of symmetry of the section.
inline constexpr int symetrie_y = 1;
inline constexpr int symetrie_z = 2;
inline constexpr int symetrie_yz = 3;

/// The kinds of zones. A steel frame is outer when it stands at the first level of its section.
enum class nature_zone : int {
  contour,
  evidement,
  gaines,
  charpente_externe,
  charpente_interieure,
  precontrainte,
  ferraillage
};

/// The greatest number that a user may give to a point; numbers of generated points start above it.
inline constexpr int numero_point_utilisateur_max = 40000;
/// The greatest number that a point may have.
inline constexpr int numero_point_max = 99999;

/// A list whose copy has elements of its own.
struct liste_propre : uef_vector {
  liste_propre() = default;
  liste_propre(const liste_propre& autre) : uef_vector(autre) { transferer(autre); }
  liste_propre& operator=(const liste_propre& autre) {
    if (this != &autre) transferer(autre);
    return *this;
  }
  ~liste_propre() override = default;
};

struct zof_zone : zof_zone_generalisee {
  zof_section* m_p_section_mere = nullptr;
  zof_zone_generalisee* m_p_zone_mere = nullptr;
  double m_diametre_zone = socle::non_renseigne;  // m; of a void: in the unit of the data file
  socle::texte<32> m_nom_materiau_zone = socle::non_renseigne;
  liste_propre m_les_points_zone;  // of zof_point, in the order in which they go to the engine
  bool m_zone_partielle = false;   // only a part of a symmetric zone is described
  int m_type_zone_qb7 = qb7_zone_vide;
  int m_numero_mere_zone_qb7 = qb7_sans_mere;
  int m_numero_materiau_qb7 = qb7_sans_materiau;
  double m_matiere_zone_qb7 = 0;       // per point, m2
  double m_encombrement_zone_qb7 = 0;  // per point, m2

  [[nodiscard]] virtual nature_zone nature() const = 0;
  /// The kind as the notes name it: "Contour", "Ferraillage", ...
  [[nodiscard]] virtual std::string_view intitule() const = 0;
  /// The zone that holds this one; null at the first level of the section.
  [[nodiscard]] zof_zone* zone_mere() const;

  // ---- Running numbers are the section's.
  [[nodiscard]] int get_numero_courant_point_section_qb7() const override;
  [[nodiscard]] int get_numero_courant_qb7_zone_generalisee() const override;
  [[nodiscard]] int get_numero_courant_point_zone_type() const override;
  void inc_numero_courant_point_section_qb7() override;
  void inc_numero_courant_point_zone_type(int& numero) override;
  void inc_numero_courant_qb7_zone_generalisee() override;

  // ---- The block in the data file. Every operation returns as soon as erco is true.
  /// The block of this zone and of all that stand in it, up to the word that ends it.
  void decoder_zone(bool& erco) override;
  virtual void decoder_materiau(bool& erco);
  virtual void decoder_diametre(bool& erco);
  virtual void decoder_dimensionnable(bool& erco);
  virtual void decoder_aire(bool& erco);
  virtual void decoder_profils(bool& erco);
  /// Bars that one point stands for, given with a line or an arc of bars.
  virtual void decoder_groupe(bool& erco);
  virtual void decoder_points(bool& erco);
  /// Bars laid along the sides of a contour: OPTI, and one layer of them: LITS.
  virtual void decoder_options_ferraillage(bool& erco);
  virtual void decoder_lits(bool& erco);
  /// A point whose number has been announced by NUME, or is still to be given in its block.
  void decoder_point(bool numero_annonce, bool& erco);
  void decoder_droite(bool& erco);
  void decoder_arc(bool cercle, bool& erco);
  /// A child whose name is read; its block is still to come. Null in error.
  zof_zone* decoder_sous_zone(nature_zone nature_fille, bool& erco);
  /// A child without a block, such as the void of a hollow form.
  zof_zone& creer_sous_zone(nature_zone nature_fille, const socle::texte<32>& nom);
  /// Whether a zone of this kind takes such a child.
  [[nodiscard]] virtual bool admet(nature_zone nature_fille) const;
  /// Whether the outline of a zone of this kind can be a typed form.
  [[nodiscard]] virtual bool admet_forme() const { return false; }
  /// The whole word that ends the block; empty where any word in FIN_ does.
  [[nodiscard]] virtual std::string_view mot_fin() const = 0;

  // ---- Typed forms: the dimensions up to FIN_, the outline, the void of a hollow form.
  void decoder_zone_rectangle(bool& erco);
  void decoder_zone_rectangle_evide(bool& erco);
  void decoder_zone_circulaire(bool& erco);
  void decoder_zone_tube(bool& erco);
  void decoder_zone_en_te(bool& erco);
  void decoder_zone_te_encorbellement(bool& erco);
  void decoder_zone_en_i(bool& erco);
  void decoder_zone_en_i_non_symetrique(bool& erco);
  void decoder_zone_caisson(bool& erco);

  // ---- Points
  /// Appends a point; a number that the zone holds already is refused.
  void ajouter_point(int numero, point_yz position, bool& erco);
  /// Appends points numbered from premier_numero on.
  void ajouter_points(int premier_numero, const polygone& positions, bool& erco);
  /// The zone is without points; what the engine holds of them stays.
  void retirer_points();
  /// Position of the point of that number, from 1; 0 if there is none.
  [[nodiscard]] int position_point(int numero) const;
  [[nodiscard]] polygone positions_points() const;

  // ---- End of the block: the checks, then the engine.
  virtual void decoder_fin_zone(bool& erco);
  virtual void traiter_zone(bool& erco) = 0;
  void finaliser_zone(bool& erco);
  /// Two points of the zone that are one are refused.
  virtual void controle_duplication_point(bool& erco);
  /// m2, positive for an outline that runs counter-clockwise.
  [[nodiscard]] double aire_zone() const;
  /// Every point must lie in the zone that holds this one.
  void controle_points_interieurs_zone(bool& erco) const;
  /// Always true but for outlines and ducts: nothing else bounds what stands in it.
  [[nodiscard]] virtual bool point_interieur_zone(point_yz p) const;

  // ---- What stands in the tree under this zone
  [[nodiscard]] bool contient_ferraillage() const { return contient_ferraillage_; }
  [[nodiscard]] bool contient_cable() const { return contient_cable_; }
  /// Tells this zone and those that hold it of a new zone in them.
  void noter_contenu(nature_zone nature_fille);

  /// Appends this zone and all that stand in it, a mother before her children, brothers in the order of their
  /// declaration.
  void ajout_zone_recursif(std::vector<const zof_zone*>& zones) const;
  /// The greatest number that a user or the section gave to a point of these zones; 0 without points.
  [[nodiscard]] int numero_point_max_recursif() const;

  // ---- What a kind of zone tells the engine; the others have nothing to tell
  /// The engine zones of tendons go out of action.
  virtual void desactiver_precontrainte() const {}
  /// Design may change bars that have been described so.
  virtual void declarer_aciers_passifs_dimensionnables() const {}

  // ---- Results
  /// The engine zones that this zone is made of: itself, or one for each profile or tendon.
  [[nodiscard]] virtual std::vector<int> numeros_zones_qb7() const;
  /// The materials of the zone: its own, those of its profiles; none for a hole.
  [[nodiscard]] virtual std::vector<socle::texte<32>> noms_materiaux() const;
  /// Widens the ranges of y and z over the points of this zone.
  void etendre_emprise(std::array<double, 2>& y_min_max, std::array<double, 2>& z_min_max) const;
  /// Half the diameter of what stands at a point, m; 0 for outlines.
  [[nodiscard]] virtual double rayon_points() const { return 0; }
  /// Title, data and table of points in the notes.
  virtual void edition_zone() const;
  /// The zone alone in the drawing that is open.
  virtual void dessin_zone() const = 0;
  /// Whether the numbers of its points stand rather outside of it, in a drawing.
  [[nodiscard]] virtual bool numeros_au_dehors() const { return false; }

 protected:
  /// The outline of a contour or a void that is in the engine: what stands in it is tested against it.
  index_contour contour_;

  /// Name of the material after MATE: takes it and gives its kind. An unknown one is refused.
  int lire_materiau(bool& erco);
  /// Value after DIAM, above 0, in the unit of the data file.
  void lire_diametre(bool& erco);
  /// First half of the finalisation: symmetry, checks of the points, then the points in the engine.
  void preparer_points(std::vector<int>& liste_points, bool& erco);
  /// A zone of the engine, of the type of this one; a profile or a set of points with its parameters.
  struct parametres_zone_qb7 {
    double matiere = 0, encombrement = 0;
  };
  void creer_zone_qb7(int numero_zone, int numero_materiau, std::span<const int> points,
                      const parametres_zone_qb7& parametres, int numero_mere) const;
  /// Completes a zone of which a part is described by the images of its points.
  void symetriser_zone_partielle();
  /// What stands between the points gets its image too. images: of each point, by position, the position of
  /// its image.
  virtual void symetriser_contenu(const std::vector<int>& images);
  /// Adds the points of the zone to a grid; one that lies on a point of the grid is refused.
  void refuser_points_doubles(grille_points& grille, bool& erco) const;
  /// The checks on the number of points of an outline.
  void controle_nombre_points(socle::vue_l1 message, socle::vue_l1 message_partiel, bool& erco) const;
  /// True if the point lies in the outline or nearer than the tolerance to one of its sides.
  [[nodiscard]] bool point_dans_contour(point_yz p) const;
  /// What zones are drawn as: a closed outline on its fill; a circle about each point.
  void dessiner_contour(const utl_04_couleur& fond) const;
  void dessiner_cercles(const utl_04_options_cercle& options) const;
  /// The bullets of this kind of zone, behind its material: one text each.
  [[nodiscard]] virtual std::vector<std::string> donnees_editees() const;

 private:
  void creer_points_qb7(std::vector<int>& liste_points);
  void symetriser(int axe);

  bool contient_ferraillage_ = false;
  bool contient_cable_ = false;
  std::unordered_map<int, int> positions_points_;  // number: position in m_les_points_zone
};
