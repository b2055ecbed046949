// The laws of a prestressing steel, one for each limit state of its situation.
#include <array>

#include "QB7_Lois.hpp"
#include "Zof_Classe_Materiau_Precontrainte_EC.hpp"
#include "Zof_Classe_Situation_Precontrainte_EC.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Lois.hpp"

using socle::texte;

namespace {

/// A tendon is tensioned before it follows the section: it unloads as well as it loads, and takes the place
/// that its zone occupies out of the concrete.
loi_acier loc_nouvelle_loi(zof_situation_precontrainte_ec& s, const texte<32>& label_loi) {
  return {s.m_numero_materiau_qb7, s.ajouter_etat_limite(label_loi), true, qb7_trou_encombrement};
}

}  // namespace

void zof_situation_precontrainte_ec::creer_lois() {
  if (!est_situation_accidentelle(m_type_situation_projet)) creer_lois_precontrainte_els_ec();
  creer_lois_precontrainte_elu_ec();
}

// --- Serviceability
// --------------------------------------------------------------------------------------------

void zof_situation_precontrainte_ec::creer_lois_precontrainte_els_ec() {
  const std::array<int, 3> etats = zof_ajouter_etats_mecaniques(*this);
  zof_exiger(qb7_loi_actif_meca(m_numero_materiau_qb7, etats, rapport_homogeneisation));
  switch (m_type_loi_els) {
    case type_loi_lineaire:
      creer_lois_precontrainte_lineaires_ec_els();
      creer_lois_precontrainte_lineaires_ec_els_non_fissuree();
      break;
    case type_loi_bilineaire: creer_lois_precontrainte_bilineaires_ec_els(); break;
    default: zof_assert(false, " Zof_Creer_Lois_precontrainte_ELS_EC:  Cas impossible");
  }
}

void zof_situation_precontrainte_ec::creer_lois_precontrainte_lineaires_ec_els() {
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet)) {
    const limites_acier l = zof_limites_acier(*this, etat.actions);
    creer_loi_precontrainte_lineaire_ec_els(l.traction, l.compression, etat.label);
  }
}

void zof_situation_precontrainte_ec::creer_lois_precontrainte_lineaires_ec_els_non_fissuree() {
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet)) {
    const limites_acier l = zof_limites_acier(*this, etat.actions);
    creer_loi_precontrainte_lineaire_ec_els(l.traction, l.compression, etat.label_nf);
  }
}

void zof_situation_precontrainte_ec::creer_lois_precontrainte_bilineaires_ec_els() {
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet)) {
    const limites_acier l = zof_limites_acier(*this, etat.actions);
    creer_loi_precontrainte_plastique_parfaite_ec_els(l.traction, l.compression, etat.label);
  }
}

void zof_situation_precontrainte_ec::creer_loi_precontrainte_lineaire_ec_els(double sigma_lim_traction,
                                                                             double sigma_lim_compression,
                                                                             const texte<32>& label_loi) {
  zof_creer_loi_acier_lineaire(loc_nouvelle_loi(*this, label_loi), m_module_elasticite,
                               {sigma_lim_traction, sigma_lim_compression});
}

void zof_situation_precontrainte_ec::creer_loi_precontrainte_plastique_parfaite_ec_els(
    double sigma_lim_traction, double sigma_lim_compression, const texte<32>& label_loi) {
  zof_creer_loi_acier_palier(loc_nouvelle_loi(*this, label_loi), m_module_elasticite,
                             m_pt_materiau->m_fp0_1k / m_coefficient_partiel_elu,
                             {sigma_lim_traction, sigma_lim_compression});
}

// --- Ultimate limit states
// -------------------------------------------------------------------------------------

void zof_situation_precontrainte_ec::creer_lois_precontrainte_elu_ec() {
  switch (m_type_loi_elu) {
    case type_loi_bilineaire: creer_lois_precontrainte_bilineaires_ec_elu(); break;
    case type_loi_plastique_parfaite: creer_lois_precontrainte_plastique_parfait_ec_elu(); break;
    default: zof_assert(false, " Zof_Creer_Lois_precontrainte_ELU_EC:  Cas impossible");
  }
}

void zof_situation_precontrainte_ec::creer_lois_precontrainte_bilineaires_ec_elu() {
  creer_loi_precontrainte_bilineaire_ec_elu(m_pt_materiau->m_fp0_1k, m_module_elasticite,
                                            m_epsilon_rupture_bil_elu, m_coefficient_contrainte_ult_bil_elu,
                                            m_coefficient_deformation_adm_bil_elu, m_coefficient_partiel_elu,
                                            true, zof_label_etat_ultime(m_type_situation_projet));
}

void zof_situation_precontrainte_ec::creer_lois_precontrainte_plastique_parfait_ec_elu() {
  creer_loi_precontrainte_plastique_parfaite_ec_elu(zof_label_etat_ultime(m_type_situation_projet));
}

void zof_situation_precontrainte_ec::creer_loi_precontrainte_bilineaire_ec_elu(
    double limite_elasticite_garantie, double module_elasticite, double epsilon_rupture,
    double coefficient_contrainte_ultime, double coefficient_deformation_admissible,
    double coefficient_partiel, bool travail_en_compression, const texte<32>& label_loi) {
  loi_acier loi = loc_nouvelle_loi(*this, label_loi);
  loi.travail_en_compression = travail_en_compression;
  zof_creer_loi_acier_bilineaire_elu(loi, limite_elasticite_garantie, module_elasticite, epsilon_rupture,
                                     coefficient_contrainte_ultime, coefficient_deformation_admissible,
                                     coefficient_partiel);
}

/// The horizontal branch of EN 1992-1-1 figure 3.10 needs no strain limit: the law is told to have none, and
/// the two limits of stress stay without effect.
void zof_situation_precontrainte_ec::creer_loi_precontrainte_plastique_parfaite_ec_elu(
    const texte<32>& label_loi) {
  const double f_palier = m_pt_materiau->m_fp0_1k / m_coefficient_partiel_elu;
  const double epsilon_palier = f_palier / m_module_elasticite;
  constexpr bool limites = false;
  const loi_acier loi = loc_nouvelle_loi(*this, label_loi);
  zof_exiger(qb7_loi_elastoplastique_avec_bornes(loi.num_materiau, loi.num_etat_lim, epsilon_palier, f_palier,
                                                 2 * epsilon_palier, f_palier, limites,
                                                 m_sigma_lim_traction_pp_elu, m_sigma_lim_compression_pp_elu,
                                                 loi.travail_en_compression, loi.type_trou));
}
