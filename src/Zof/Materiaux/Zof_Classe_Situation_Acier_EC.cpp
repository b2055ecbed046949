#include "Zof_Classe_Situation_Acier_EC.hpp"

#include <algorithm>

#include "Simple.hpp"
#include "Zof_Classe_Materiau_Acier_EC.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Acier_EC.hpp"
#include "Zof_Utilit.hpp"

using socle::non_renseigne;
using socle::simple;

namespace {

/// X0 and XC1 to XC4.
bool loc_sans_chlorures(int classe) { return classe == 1 || (classe >= 5 && classe <= 8); }
/// XD and XS.
bool loc_chlorures(int classe) { return (classe >= 2 && classe <= 4) || (classe >= 9 && classe <= 11); }

/// Crack width, EN 1992-1-1 table 7.1N, in metres; not given where no limit is set.
double loc_ouverture_fissures(const zof_materiau_acier_ec& a) {
  const int classe = a.m_classe_exposition;
  if (a.m_is_section_ba && loc_sans_chlorures(classe)) return simple(0.0003f);
  if (a.m_is_section_ba && loc_chlorures(classe)) return simple(0.0002f);
  if (!a.m_is_section_ba && loc_sans_chlorures(classe)) return simple(0.0002f);
  return non_renseigne;
}

/// The simplified crack criterion: 200 MPa for 0.2 mm, in proportion.
void loc_limiter_par_fissuration(double& sigma, double ouverture) {
  if (est_renseigne_double(ouverture)) sigma = std::min(sigma, 1e6 * ouverture);
}

/// Ratio of ultimate to yield stress and ultimate strain, EN 1992-1-1 table C.1.
struct ductilite {
  double rapport_contraintes, epsilon_rupture;
};
ductilite loc_ductilite(int type_acier) {
  switch (type_acier) {
    case ductilite_a: return {simple(1.05f), simple(0.025f)};
    case ductilite_b: return {simple(1.08f), simple(0.05f)};
    case ductilite_c: return {simple(1.15f), simple(0.075f)};
    default: zof_assert(false, " Zof_Affectation_coefficents_EC:  Cas impossible"); return {};
  }
}

}  // namespace

void zof_situation_acier_ec::editer_situation(bool& erco) const {
  zof_editer_situation_acier_ec(*this, erco);
}
void zof_situation_acier_ec::decoder_situation(bool& erco) { zof_decoder_situation_acier_ec(*this, erco); }

void zof_situation_acier_ec::fixer_parametres_defaut_situation() {
  if (est_situation_accidentelle(m_type_situation_projet)) return;
  const double ouverture = loc_ouverture_fissures(*m_pt_materiau);
  m_ouverture_fissure_max_els_freq = ouverture;
  m_ouverture_fissure_max_els_quas = ouverture;
}

void zof_situation_acier_ec::affectation_coefficents_ec() {
  const zof_materiau_acier_ec& a = *m_pt_materiau;
  const bool accidentelle = est_situation_accidentelle(m_type_situation_projet);

  const double k = a.m_categorie_zone_section == categorie_pieu ? simple(2.0f / 3.0f) : simple(0.8f);
  const double fatigue = a.m_is_critere_fatigue_simplifie ? 300.0 : 1e10;
  const double sigma = std::min(k * a.m_fyk, fatigue);
  m_sigma_lim_traction_els_car = sigma;
  m_sigma_lim_compression_els_car = sigma;
  m_sigma_lim_traction_els_qp = sigma;
  m_sigma_lim_traction_els_fre = sigma;
  m_sigma_lim_compression_els_qp = non_renseigne;
  m_sigma_lim_compression_els_fre = non_renseigne;
  if (!accidentelle && a.m_is_critere_fissuration_simplifie) {
    loc_limiter_par_fissuration(m_sigma_lim_traction_els_qp, m_ouverture_fissure_max_els_quas);
    loc_limiter_par_fissuration(m_sigma_lim_traction_els_fre, m_ouverture_fissure_max_els_freq);
  }

  m_coefficient_partiel_elu = accidentelle ? 1.0 : simple(1.15f);
  m_module_elasticite = 200000;
  const ductilite d = loc_ductilite(a.m_type_acier);
  m_coefficient_contrainte_ult_bil_elu = d.rapport_contraintes;
  m_coefficient_deformation_adm_bil_elu = simple(0.9f);
  m_epsilon_rupture_bil_elu = d.epsilon_rupture;
  m_epsilon_rupture_pp_elu = d.epsilon_rupture;
}
