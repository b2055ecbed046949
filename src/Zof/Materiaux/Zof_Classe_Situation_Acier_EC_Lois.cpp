// The laws of a reinforcing steel, one for each limit state of its situation.
#include <array>

#include "QB7_Lois.hpp"
#include "Zof_Classe_Materiau_Acier_EC.hpp"
#include "Zof_Classe_Situation_Acier_EC.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Lois.hpp"

using socle::texte;

namespace {

/// Bars take nothing out of the concrete around them.
loi_acier loc_nouvelle_loi(zof_situation_acier_ec& s, const texte<32>& label_loi) {
  return {s.m_numero_materiau_qb7, s.ajouter_etat_limite(label_loi), s.m_pt_materiau->m_is_acier_confine,
          qb7_trou_rien};
}

}  // namespace

void zof_situation_acier_ec::creer_lois() {
  if (!est_situation_accidentelle(m_type_situation_projet)) creer_lois_acier_els_ec();
  creer_lois_acier_elu_ec();
}

// --- Serviceability
// --------------------------------------------------------------------------------------------

void zof_situation_acier_ec::creer_lois_acier_els_ec() {
  const std::array<int, 3> etats = zof_ajouter_etats_mecaniques(*this);
  zof_exiger(qb7_loi_passif_meca(m_numero_materiau_qb7, etats, rapport_homogeneisation));
  switch (m_type_loi_els) {
    case type_loi_lineaire:
      creer_lois_acier_lineaires_ec_els();
      creer_lois_acier_lineaires_ec_els_non_fissuree();
      break;
    case type_loi_bilineaire: creer_lois_acier_bilineaires_ec_els(); break;
    default: zof_assert(false, " Zof_Creer_Lois_acier_ELS_EC:  Cas impossible");
  }
}

void zof_situation_acier_ec::creer_lois_acier_lineaires_ec_els() {
  zof_assert(!est_situation_accidentelle(m_type_situation_projet),
             " Zof_Creer_Lois_acier_lineaires_EC_ELS:  Cas impossible");
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet)) {
    const limites_acier l = zof_limites_acier(*this, etat.actions);
    creer_loi_acier_lineaire_ec_els(l.traction, l.compression, etat.label);
  }
}

void zof_situation_acier_ec::creer_lois_acier_lineaires_ec_els_non_fissuree() {
  zof_assert(!est_situation_accidentelle(m_type_situation_projet),
             " Creer_Lois_acier_lineaires_EC_ELS_non_fissuree:  Cas impossible");
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet)) {
    const limites_acier l = zof_limites_acier(*this, etat.actions);
    creer_loi_acier_lineaire_ec_els(l.traction, l.compression, etat.label_nf);
  }
}

void zof_situation_acier_ec::creer_lois_acier_bilineaires_ec_els() {
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet)) {
    const limites_acier l = zof_limites_acier(*this, etat.actions);
    creer_loi_acier_plastique_parfaite_ec_els(l.traction, l.compression, etat.label);
  }
}

void zof_situation_acier_ec::creer_loi_acier_lineaire_ec_els(double sigma_lim_traction,
                                                             double sigma_lim_compression,
                                                             const texte<32>& label_loi) {
  zof_creer_loi_acier_lineaire(loc_nouvelle_loi(*this, label_loi), m_module_elasticite,
                               {sigma_lim_traction, sigma_lim_compression});
}

void zof_situation_acier_ec::creer_loi_acier_plastique_parfaite_ec_els(double sigma_lim_traction,
                                                                       double sigma_lim_compression,
                                                                       const texte<32>& label_loi) {
  zof_creer_loi_acier_palier(loc_nouvelle_loi(*this, label_loi), m_module_elasticite,
                             m_pt_materiau->m_fyk / m_coefficient_partiel_elu,
                             {sigma_lim_traction, sigma_lim_compression});
}

// --- Ultimate limit states
// -------------------------------------------------------------------------------------

void zof_situation_acier_ec::creer_lois_acier_elu_ec() {
  switch (m_type_loi_elu) {
    case type_loi_bilineaire: creer_lois_acier_bilineaires_ec_elu(); break;
    case type_loi_plastique_parfaite: creer_lois_acier_plastique_parfait_ec_elu(); break;
    default: zof_assert(false, " Zof_Creer_Lois_acier_ELU_EC:  Cas impossible");
  }
}

void zof_situation_acier_ec::creer_lois_acier_plastique_parfait_ec_elu() {
  creer_loi_acier_plastique_parfaite_ec_elu(zof_label_etat_ultime(m_type_situation_projet));
}

void zof_situation_acier_ec::creer_lois_acier_bilineaires_ec_elu() {
  zof_assert(m_type_situation_projet >= 1 && m_type_situation_projet <= nombre_situations_projet,
             " Zof_Creer_Lois_acier_bilineaires_EC_ELU:  Cas impossible");
  creer_loi_acier_bilineaire_ec_elu(
      m_pt_materiau->m_fyk, m_module_elasticite, m_epsilon_rupture_bil_elu,
      m_coefficient_contrainte_ult_bil_elu, m_coefficient_deformation_adm_bil_elu, m_coefficient_partiel_elu,
      m_pt_materiau->m_is_acier_confine, zof_label_etat_ultime(m_type_situation_projet));
}

void zof_situation_acier_ec::creer_loi_acier_plastique_parfaite_ec_elu(const texte<32>& label_loi) {
  const double f_palier = m_pt_materiau->m_fyk / m_coefficient_partiel_elu;
  zof_exiger(qb7_loi_passif_ec2_elu(m_numero_materiau_qb7, ajouter_etat_limite(label_loi),
                                    m_module_elasticite, f_palier, {}, m_epsilon_rupture_pp_elu,
                                    m_pt_materiau->m_is_acier_confine));
}

void zof_situation_acier_ec::creer_loi_acier_bilineaire_ec_elu(
    double limite_elasticite_garantie, double module_elasticite, double epsilon_rupture,
    double coefficient_contrainte_ultime, double coefficient_deformation_admissible,
    double coefficient_partiel, bool travail_en_compression, const texte<32>& label_loi) {
  loi_acier loi = loc_nouvelle_loi(*this, label_loi);
  loi.travail_en_compression = travail_en_compression;
  zof_creer_loi_acier_bilineaire_elu(loi, limite_elasticite_garantie, module_elasticite, epsilon_rupture,
                                     coefficient_contrainte_ultime, coefficient_deformation_admissible,
                                     coefficient_partiel);
}
