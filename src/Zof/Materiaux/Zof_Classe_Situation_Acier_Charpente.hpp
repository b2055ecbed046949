#pragma once
// A design situation of a structural steel: stress limits of service, partial factor and ultimate strains
// from which the laws of its limit states are made.
//
// Stresses in MPa, all limits as positive numbers.

#include "Zof_Classe_Situation_Materiau.hpp"

struct zof_materiau_acier_charpente;

struct zof_situation_acier_charpente : uef_element<zof_situation_acier_charpente, zof_situation_materiau> {
  zof_materiau_acier_charpente* m_pt_materiau = nullptr;
  int m_type_loi_elu = 4;  ///< bilinear or perfectly plastic: type_loi_... of the material
  int m_type_loi_els = 1;  ///< linear
  double m_sigma_lim_traction_els_car = socle::non_renseigne;
  double m_sigma_lim_compression_els_car = socle::non_renseigne;
  double m_sigma_lim_traction_els_qp = socle::non_renseigne;
  double m_sigma_lim_compression_els_qp = socle::non_renseigne;
  double m_sigma_lim_traction_els_fre = socle::non_renseigne;
  double m_sigma_lim_compression_els_fre = socle::non_renseigne;
  double m_coefficient_partiel_elu = socle::non_renseigne;              // gamma M0
  double m_module_elasticite = socle::non_renseigne;                    // E, MPa
  double m_coefficient_contrainte_ult_bil_elu = socle::non_renseigne;   // ultimate stress / yield stress
  double m_coefficient_deformation_adm_bil_elu = socle::non_renseigne;  // admissible strain / ultimate strain
  double m_epsilon_rupture_bil_elu = socle::non_renseigne;              // ultimate strain, bilinear law
  double m_epsilon_rupture_pp_elu = socle::non_renseigne;  // ultimate strain, perfectly plastic law

  void editer_situation(bool& erco) const override;
  void decoder_situation(bool& erco) override;
};
