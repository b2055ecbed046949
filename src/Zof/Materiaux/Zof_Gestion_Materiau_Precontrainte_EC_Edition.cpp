// The report of a prestressing steel.
#include <array>

#include "Arithmetique.hpp"
#include "Zof_Gestion_Materiau_Edition.hpp"
#include "Zof_Gestion_Materiau_Precontrainte_EC.hpp"

namespace {

constexpr std::array<std::string_view, 3> produits = {"TORO", "FIL", "BARR"};

}  // namespace

void zof_editer_materiau_precontrainte_ec(const zof_materiau_precontrainte_ec& m, bool& erco) {
  zof_editer_titre_materiau(m);
  zof_editer_puces({
      zof_ligne_double("Fp0.1k       : ", m.m_fp0_1k),
      zof_ligne_double("Fpk          : ", m.m_fpk),
      {"Type         : ", std::string(produits[socle::indice(m.m_type_precontrainte)])},
  });
  zof_editer_situations(m, erco);
}

void zof_editer_situation_precontrainte_ec(const zof_situation_precontrainte_ec& s, bool&) {
  zof_editer_titre_situation(s);
  zof_editer_puces({
      zof_ligne_type_loi("Type loi ELS                        : ", s.m_type_loi_els),
      zof_ligne_type_loi("Type loi ELU                        : ", s.m_type_loi_elu),
      zof_ligne_double("Module_elasticite                   : ", s.m_module_elasticite),
      zof_ligne_double("Sigma_lim_traction_ELS_CAR          : ", s.m_sigma_lim_traction_els_car),
      zof_ligne_double("Sigma_lim_compression_ELS_CAR       : ", s.m_sigma_lim_compression_els_car),
      zof_ligne_double("Sigma_lim_traction_ELS_QP           : ", s.m_sigma_lim_traction_els_qp),
      zof_ligne_double("Sigma_lim_compression_ELS_QP        : ", s.m_sigma_lim_compression_els_qp),
      zof_ligne_double("Sigma_lim_traction_ELS_FRE          : ", s.m_sigma_lim_traction_els_fre),
      zof_ligne_double("Sigma_lim_compression_ELS_FRE       : ", s.m_sigma_lim_compression_els_fre),
      zof_ligne_double("Coefficient_partiel_ELU             : ", s.m_coefficient_partiel_elu),
      zof_ligne_double("Coefficient_contrainte_ult_BIL_ELU  : ", s.m_coefficient_contrainte_ult_bil_elu),
      zof_ligne_double("Coefficient_deformation_adm_BIL_ELU : ", s.m_coefficient_deformation_adm_bil_elu),
      zof_ligne_double("Epsilon_rupture_BIL_ELU             : ", s.m_epsilon_rupture_bil_elu),
      zof_ligne_double("Sigma_lim_traction_PP_ELU           : ", s.m_sigma_lim_traction_pp_elu),
      zof_ligne_double("Sigma_lim_compression_PP_ELU        : ", s.m_sigma_lim_compression_pp_elu),
  });
  zof_editer_lois_situation(s);
}
