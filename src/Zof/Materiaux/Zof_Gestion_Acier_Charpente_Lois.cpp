// The laws of a structural steel, one for each limit state of its situation. A profile works in both signs
// and takes its own matter out of what surrounds it.
#include <array>
#include <span>

#include "QB7_Lois.hpp"
#include "Simple.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Acier_Charpente.hpp"
#include "Zof_Gestion_Materiau_Lois.hpp"

using socle::simple;
using socle::texte;

namespace {

loi_acier loc_nouvelle_loi(zof_situation_acier_charpente& s, const texte<32>& label_loi) {
  return {s.m_numero_materiau_qb7, s.ajouter_etat_limite(label_loi), true, qb7_trou_matiere};
}

void loc_creer_loi_lineaire(zof_situation_acier_charpente& s, combinaison actions,
                            const texte<32>& label_loi) {
  zof_creer_loi_acier_lineaire(loc_nouvelle_loi(s, label_loi), s.m_module_elasticite,
                               zof_limites_acier(s, actions));
}

}  // namespace

void zof_affectation_coefficients_charpente_ec(zof_situation_acier_charpente& s) {
  const double fy = s.m_pt_materiau->m_fy;
  s.m_sigma_lim_traction_els_car = fy;
  s.m_sigma_lim_compression_els_car = fy;
  s.m_sigma_lim_traction_els_qp = fy;
  s.m_sigma_lim_compression_els_qp = fy;
  s.m_sigma_lim_traction_els_fre = fy;
  s.m_sigma_lim_compression_els_fre = fy;
  s.m_coefficient_partiel_elu = 1.0;
  s.m_module_elasticite = 210000.0;
  s.m_coefficient_contrainte_ult_bil_elu = s.m_pt_materiau->m_fu / fy;
  s.m_coefficient_deformation_adm_bil_elu = 1.0;
  // The least ultimate strain that EN 1993-1-1 3.2.2 (1) asks of a ductile steel.
  const double epsilon_rupture = 15 * fy / s.m_module_elasticite;
  s.m_epsilon_rupture_bil_elu = epsilon_rupture;
  s.m_epsilon_rupture_pp_elu = epsilon_rupture;
}

void zof_creer_lois_acier_charpente(zof_situation_acier_charpente& s) {
  if (!est_situation_accidentelle(s.m_type_situation_projet)) zof_creer_lois_acier_charpente_els_ec(s);
  zof_creer_lois_acier_charpente_elu_ec(s);
}

void zof_creer_lois_acier_charpente_els_ec(zof_situation_acier_charpente& s) {
  zof_exiger(qb7_loi_charpente_meca(s.m_numero_materiau_qb7, zof_ajouter_etats_mecaniques(s)));
  const std::span<const etat_service> etats = zof_etats_service(s.m_type_situation_projet);
  for (const etat_service& etat : etats) loc_creer_loi_lineaire(s, etat.actions, etat.label);
  for (const etat_service& etat : etats) loc_creer_loi_lineaire(s, etat.actions, etat.label_nf);
}

void zof_creer_lois_acier_charpente_elu_ec(zof_situation_acier_charpente& s) {
  switch (s.m_type_loi_elu) {
    case type_loi_bilineaire: zof_creer_lois_acier_charpente_bilineaires_ec_elu(s); break;
    case type_loi_plastique_parfaite: zof_creer_lois_acier_charpente_plastique_parfait_ec_elu(s); break;
    default: zof_assert(false, " Zof_Creer_Lois_acier_charpente_ELU_EC:  Cas impossible");
  }
}

void zof_creer_lois_acier_charpente_bilineaires_ec_elu(zof_situation_acier_charpente& s) {
  zof_creer_loi_acier_charpente_bilineaire_ec_elu(s, zof_label_etat_ultime(s.m_type_situation_projet));
}

void zof_creer_lois_acier_charpente_plastique_parfait_ec_elu(zof_situation_acier_charpente& s) {
  zof_creer_loi_acier_charpente_plastique_parfaite_ec_elu(s,
                                                          zof_label_etat_ultime(s.m_type_situation_projet));
}

void zof_creer_loi_acier_charpente_bilineaire_ec_elu(zof_situation_acier_charpente& s,
                                                     const texte<32>& label_loi) {
  zof_creer_loi_acier_bilineaire_elu(loc_nouvelle_loi(s, label_loi), s.m_pt_materiau->m_fy,
                                     s.m_module_elasticite, s.m_epsilon_rupture_bil_elu,
                                     s.m_coefficient_contrainte_ult_bil_elu,
                                     s.m_coefficient_deformation_adm_bil_elu, s.m_coefficient_partiel_elu);
}

/// The plateau has a nominal slope (EN 1993-1-5 figure C.2 b), so that an equilibrium near the plastic moment
/// is one: 1 % from yield to failure.
void zof_creer_loi_acier_charpente_plastique_parfaite_ec_elu(zof_situation_acier_charpente& s,
                                                             const texte<32>& label_loi) {
  const double fe = s.m_pt_materiau->m_fy / s.m_coefficient_partiel_elu;
  const double f_rupture = simple(1.01f) * fe;
  zof_creer_loi_acier_bilineaire(
      loc_nouvelle_loi(s, label_loi),
      {fe / s.m_module_elasticite, fe, s.m_epsilon_rupture_pp_elu, f_rupture, f_rupture});
}
