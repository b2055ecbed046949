#pragma once
// A design situation of a prestressing steel: stress limits of service, partial factor, and the laws that it
// hands to the section engine. A tendon works in both signs, from its tension.
//
// Stresses in MPa; a limit that is not given is no limit.

#include "Zof_Classe_Situation_Materiau.hpp"

struct zof_materiau_precontrainte_ec;

struct zof_situation_precontrainte_ec : uef_element<zof_situation_precontrainte_ec, zof_situation_materiau> {
  zof_materiau_precontrainte_ec* m_pt_materiau = nullptr;
  int m_type_loi_els = 1;  ///< linear or bilinear: type_loi_... of the material
  int m_type_loi_elu = 4;  ///< bilinear or perfectly plastic
  double m_sigma_lim_traction_els_car = socle::non_renseigne;
  double m_sigma_lim_compression_els_car = socle::non_renseigne;
  double m_sigma_lim_traction_els_qp = socle::non_renseigne;
  double m_sigma_lim_compression_els_qp = socle::non_renseigne;
  double m_sigma_lim_traction_els_fre = socle::non_renseigne;
  double m_sigma_lim_compression_els_fre = socle::non_renseigne;
  double m_coefficient_partiel_elu = socle::non_renseigne;              // gamma p
  double m_module_elasticite = socle::non_renseigne;                    // Ep, MPa
  double m_coefficient_contrainte_ult_bil_elu = socle::non_renseigne;   // ultimate stress / yield stress
  double m_coefficient_deformation_adm_bil_elu = socle::non_renseigne;  // admissible strain / ultimate strain
  double m_epsilon_rupture_bil_elu = socle::non_renseigne;              // ultimate strain, bilinear law
  double m_sigma_lim_traction_pp_elu = socle::non_renseigne;            // of the plastic ultimate law
  double m_sigma_lim_compression_pp_elu = socle::non_renseigne;         // the same, negative by default

  void editer_situation(bool& erco) const override;
  void decoder_situation(bool& erco) override;

  /// Stress limits of service, partial factor, modulus and ultimate strain (EN 1992-1-1 7.2, 5.10.3, 2.4.2.4,
  /// 3.3.6).
  virtual void affectation_coefficents_ec();
  virtual void creer_loi_precontrainte_bilineaire_ec_elu(
      double limite_elasticite_garantie, double module_elasticite, double epsilon_rupture,
      double coefficient_contrainte_ultime, double coefficient_deformation_admissible,
      double coefficient_partiel, bool travail_en_compression, const socle::texte<32>& label_loi);
  virtual void creer_loi_precontrainte_plastique_parfaite_ec_els(double sigma_lim_traction,
                                                                 double sigma_lim_compression,
                                                                 const socle::texte<32>& label_loi);
  virtual void creer_loi_precontrainte_plastique_parfaite_ec_elu(const socle::texte<32>& label_loi);
  virtual void creer_lois_precontrainte_els_ec();
  virtual void creer_lois_precontrainte_bilineaires_ec_elu();
  virtual void creer_lois_precontrainte_bilineaires_ec_els();
  virtual void creer_lois_precontrainte_lineaires_ec_els();
  virtual void creer_lois_precontrainte_elu_ec();
  virtual void creer_lois_precontrainte_plastique_parfait_ec_elu();
  virtual void creer_lois_precontrainte_lineaires_ec_els_non_fissuree();
  virtual void creer_loi_precontrainte_lineaire_ec_els(double sigma_lim_traction,
                                                       double sigma_lim_compression,
                                                       const socle::texte<32>& label_loi);

  /// All laws of the situation, those of service where there are some, then the ultimate one.
  void creer_lois();
};
