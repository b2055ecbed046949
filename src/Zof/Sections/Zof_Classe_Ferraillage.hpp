#pragma once
// Bars in a contour, all of one material and one diameter. A point stands for one bar, or for a group of
// them.

#include "Zof_Classe_Zone.hpp"

/// The value of m_type_ferraillage for bars that the data list one by one, in lines or in arcs.
inline constexpr int type_ferraillage_explicite = 1;

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
  void decoder_fin_zone(bool& erco) override;
  void traiter_zone(bool& erco) override;
  /// Bars are compared with all the bars of their contour.
  void controle_duplication_point(bool& erco) override;
  [[nodiscard]] double rayon_points() const override;
  void declarer_aciers_passifs_dimensionnables() const override;

 protected:
  [[nodiscard]] std::vector<std::string> donnees_editees() const override;
};
