#pragma once
// Bars in a contour, all of one material and one diameter. A point stands for one bar, or for a group of
// them. The data list the bars, or ask for them along the sides of the contour: in one layer of so many bars
// (LITS), or in layers laid by rule (OPTI).

#include "Zof_Classe_Zone.hpp"
#include "Zof_Utilit.hpp"

/// What m_type_ferraillage holds: bars that the data list one by one, in lines or in arcs; bars along a face,
/// on its outer sides alone (strict) or on all of its sides and on those of the voids (by walls).
inline constexpr int type_ferraillage_explicite = 1;
inline constexpr int type_ferraillage_sup_strict = 2;
inline constexpr int type_ferraillage_sup_parois = 3;
inline constexpr int type_ferraillage_inf_strict = 4;
inline constexpr int type_ferraillage_inf_parois = 5;
inline constexpr int type_ferraillage_lat_strict = 6;
inline constexpr int type_ferraillage_lat_parois = 7;
inline constexpr int type_ferraillage_peri_strict = 8;
inline constexpr int type_ferraillage_peri_parois = 9;

struct zof_contour;

struct zof_ferraillage : uef_element<zof_ferraillage, zof_zone> {
  int m_type_ferraillage = type_ferraillage_explicite;
  double m_enrobage = socle::non_renseigne;       // m
  double m_distance_lits = socle::non_renseigne;  // m
  int m_nb_points_par_lit = socle::non_renseigne;
  int m_nb_lits = socle::non_renseigne;
  int m_cardinalite_groupe = socle::non_renseigne;          // bars that a point stands for
  double m_ecartement_aciers_max = socle::non_renseigne;    // m
  double m_ecartement_aciers_min = socle::non_renseigne;    // m
  double m_angle_horizontal_max = socle::non_renseigne;     // rad
  double m_longueur_ferraillage = socle::non_renseigne;     // m
  double m_espacement_max_effectif = socle::non_renseigne;  // m
  double m_espacement_min_effectif = socle::non_renseigne;
  double m_espacement_moyen_effectif = socle::non_renseigne;
  bool m_dimensionnable = false;
  liste_propre m_liste_selection_aciers;  // of zof_selection_acier

  [[nodiscard]] nature_zone nature() const override { return nature_zone::ferraillage; }
  [[nodiscard]] std::string_view intitule() const override { return "Ferraillage"; }
  [[nodiscard]] std::string_view mot_fin() const override { return "FIN_FERR"; }
  void decoder_materiau(bool& erco) override;
  void decoder_diametre(bool& erco) override;
  void decoder_dimensionnable(bool& erco) override;
  void decoder_groupe(bool& erco) override;
  void decoder_points(bool& erco) override;
  void decoder_options_ferraillage(bool& erco) override;
  void decoder_lits(bool& erco) override;
  /// The bars among which the zone may choose: labels of the catalogue up to FI or FIN_.
  void decoder_selection_aciers(bool& erco);
  void decoder_fin_zone(bool& erco) override;
  /// The checks. Listed bars go to the engine; the others wait for the sides of their contour.
  void traiter_zone(bool& erco) override;
  /// Bars are compared with all the bars of their contour.
  void controle_duplication_point(bool& erco) override;
  [[nodiscard]] double rayon_points() const override;
  void declarer_aciers_passifs_dimensionnables() const override;

  /// The bars are laid along the sides of the contour.
  [[nodiscard]] bool est_automatique() const { return m_type_ferraillage != type_ferraillage_explicite; }
  /// They are so in one layer of a given number of bars (LITS).
  [[nodiscard]] bool est_en_lits() const {
    return est_automatique() && est_renseigne_integer(m_nb_points_par_lit);
  }
  /// The label of the catalogue for the diameter in whole millimetres: blank above 99.
  [[nodiscard]] socle::texte<4> label_diametre() const;
  /// The words of DISP that say where the bars are; empty for listed bars.
  [[nodiscard]] std::string intitule_disposition() const;
  /// Bars at these positions, numbered by the section, in the engine too, with the diameter as it stands.
  void placer_barres(const polygone& positions, bool& erco);
  /// The zone of the engine and its points are deleted; the zone is without bars.
  void retirer_barres();
  [[nodiscard]] zof_contour& contour_mere() const;
  void dessin_zone() const override;

 protected:
  [[nodiscard]] std::vector<std::string> donnees_editees() const override;

 private:
  void fixer_matiere();
};
