#pragma once
// A design situation of a reinforcing steel: stress limits from the fatigue and crack criteria, partial
// factor, and the laws that it hands to the section engine.
//
// Stresses in MPa, all limits as positive numbers; a limit that is not given is no limit.

#include "Zof_Classe_Situation_Materiau.hpp"

struct zof_materiau_acier_ec;

struct zof_situation_acier_ec : uef_element<zof_situation_acier_ec, zof_situation_materiau> {
  zof_materiau_acier_ec* m_pt_materiau = nullptr;
  int m_type_loi_els = 1;  ///< linear or bilinear: type_loi_... of the material
  int m_type_loi_elu = 4;  ///< bilinear or perfectly plastic
  double m_ouverture_fissure_max_els_freq = socle::non_renseigne;  // m
  double m_ouverture_fissure_max_els_quas = socle::non_renseigne;  // m
  double m_sigma_lim_traction_els_car = socle::non_renseigne;
  double m_sigma_lim_compression_els_car = socle::non_renseigne;
  double m_sigma_lim_traction_els_qp = socle::non_renseigne;
  double m_sigma_lim_compression_els_qp = socle::non_renseigne;
  double m_sigma_lim_traction_els_fre = socle::non_renseigne;
  double m_sigma_lim_compression_els_fre = socle::non_renseigne;
  double m_coefficient_partiel_elu = socle::non_renseigne;              // gamma s
  double m_module_elasticite = socle::non_renseigne;                    // Es, MPa
  double m_coefficient_contrainte_ult_bil_elu = socle::non_renseigne;   // ultimate stress / yield stress
  double m_coefficient_deformation_adm_bil_elu = socle::non_renseigne;  // admissible strain / ultimate strain
  double m_epsilon_rupture_bil_elu = socle::non_renseigne;              // ultimate strain, bilinear law
  double m_epsilon_rupture_pp_elu = socle::non_renseigne;  // ultimate strain, perfectly plastic law

  void editer_situation(bool& erco) const override;
  void decoder_situation(bool& erco) override;

  /// Stress limits of service, partial factor and ductility of the class (EN 1992-1-1 7.2, 2.4.2.4, annex C).
  virtual void affectation_coefficents_ec();
  virtual void creer_loi_acier_lineaire_ec_els(double sigma_lim_traction, double sigma_lim_compression,
                                               const socle::texte<32>& label_loi);
  virtual void creer_lois_acier_bilineaires_ec_els();
  virtual void creer_loi_acier_plastique_parfaite_ec_elu(const socle::texte<32>& label_loi);
  virtual void creer_loi_acier_plastique_parfaite_ec_els(double sigma_lim_traction,
                                                         double sigma_lim_compression,
                                                         const socle::texte<32>& label_loi);
  virtual void creer_lois_acier_els_ec();
  virtual void creer_lois_acier_elu_ec();
  virtual void creer_lois_acier_lineaires_ec_els_non_fissuree();
  virtual void creer_lois_acier_plastique_parfait_ec_elu();
  virtual void creer_lois_acier_lineaires_ec_els();
  virtual void creer_lois_acier_bilineaires_ec_elu();
  /// Crack widths by default, from the exposure class (EN 1992-1-1 table 7.1N); none in ACCIDENT and SEISME.
  virtual void fixer_parametres_defaut_situation();
  virtual void creer_loi_acier_bilineaire_ec_elu(double limite_elasticite_garantie, double module_elasticite,
                                                 double epsilon_rupture, double coefficient_contrainte_ultime,
                                                 double coefficient_deformation_admissible,
                                                 double coefficient_partiel, bool travail_en_compression,
                                                 const socle::texte<32>& label_loi);

  /// All laws of the situation, those of service where there are some, then the ultimate one.
  void creer_lois();
};
