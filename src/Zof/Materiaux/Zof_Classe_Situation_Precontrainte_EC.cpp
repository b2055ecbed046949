#include "Zof_Classe_Situation_Precontrainte_EC.hpp"

#include <algorithm>

#include "Simple.hpp"
#include "Zof_Classe_Materiau_Precontrainte_EC.hpp"
#include "Zof_Gestion_Materiau_Precontrainte_EC.hpp"

using socle::non_renseigne;
using socle::simple;

namespace {

/// Tension limit of service: after transfer while the structure is built (EN 1992-1-1 5.10.3, with the
/// fractions of the French annex), then 0.8 fpk (7.2 (5)).
double loc_traction_admissible(const zof_materiau_precontrainte_ec& p, int type_situation) {
  if (type_situation == situation_construction)
    return std::min(simple(0.87f) * p.m_fp0_1k, simple(0.77f) * p.m_fpk);
  return simple(0.8f) * p.m_fpk;
}

}  // namespace

void zof_situation_precontrainte_ec::editer_situation(bool& erco) const {
  zof_editer_situation_precontrainte_ec(*this, erco);
}
void zof_situation_precontrainte_ec::decoder_situation(bool& erco) {
  zof_decoder_situation_precontrainte_ec(*this, erco);
}

void zof_situation_precontrainte_ec::affectation_coefficents_ec() {
  const zof_materiau_precontrainte_ec& p = *m_pt_materiau;
  const double traction = loc_traction_admissible(p, m_type_situation_projet);
  m_sigma_lim_traction_els_car = traction;
  m_sigma_lim_traction_els_fre = traction;
  m_sigma_lim_traction_els_qp = traction;
  m_sigma_lim_compression_els_car = non_renseigne;
  m_sigma_lim_compression_els_fre = non_renseigne;
  m_sigma_lim_compression_els_qp = non_renseigne;

  m_coefficient_partiel_elu = est_situation_accidentelle(m_type_situation_projet) ? 1.0 : simple(1.15f);
  m_coefficient_contrainte_ult_bil_elu = simple(1.1f);
  m_coefficient_deformation_adm_bil_elu = simple(0.9f);
  m_epsilon_rupture_bil_elu = simple(0.02222222276031971f);  // 0.02 / 0.9: eps_ud = 0.02, 3.3.6 (7)
  m_sigma_lim_traction_pp_elu = p.m_fp0_1k;
  m_sigma_lim_compression_pp_elu = -p.m_fp0_1k;
  m_module_elasticite = p.m_type_precontrainte == precontrainte_toron ? 195000 : 205000;
}
