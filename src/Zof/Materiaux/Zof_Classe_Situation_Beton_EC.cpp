#include "Zof_Classe_Situation_Beton_EC.hpp"

#include <algorithm>

#include "Simple.hpp"
#include "Zof_Classe_Materiau_Beton_EC.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Beton_EC.hpp"
#include "Zof_Options.hpp"
#include "Zof_Utilit.hpp"

using socle::non_renseigne;
using socle::simple;

namespace {

constexpr double age_28_jours = 28;

/// XD and XS: chlorides.
bool loc_chlorures(int classe) { return (classe >= 2 && classe <= 4) || (classe >= 9 && classe <= 11); }
/// XC2 to XC4: carbonation of a concrete that gets wet.
bool loc_carbonatation_humide(int classe) { return classe >= 6 && classe <= 8; }
/// XF: frost.
bool loc_gel(int classe) { return classe >= 12 && classe <= 15; }

/// Compression of the characteristic combination, in parts of fck.
double loc_compression_caracteristique(const zof_materiau_beton_ec& b) {
  if (b.m_categorie_zone_section == categorie_pieu) return simple(0.3f);
  const bool limitee = b.m_is_critere_fatigue_simplifie_comp || loc_chlorures(b.m_classe_exposition) ||
                       loc_gel(b.m_classe_exposition);
  return limitee ? simple(0.6f) : 1.0;
}

/// Tension of prestressed concrete in the cover, in parts of fctm: none where water could reach the tendons.
double loc_traction_enrobage(const zof_materiau_beton_ec& b, double hors_enrobage, bool seuls_chlorures) {
  const bool nulle = loc_chlorures(b.m_classe_exposition) ||
                     (!seuls_chlorures && loc_carbonatation_humide(b.m_classe_exposition));
  return nulle ? 0.0 : hors_enrobage;
}

void loc_affecter_exploitation(zof_situation_beton_ec& s, const zof_materiau_beton_ec& b) {
  s.m_coeff_sigma_max_els_qp = simple(0.45f);  // creep stays linear, EN 1992-1-1 7.2 (3)
  s.m_coefficient_partiel_elu = 1.5;
  s.m_coefficient_equivalence_els = s.m_type_situation_projet == situation_exploitation_infinie ? 15.0 : 5.0;
  if (!b.m_is_beton_precontraint) return;
  const double kct = b.m_is_critere_fatigue_simplifie_trac ? 0.0 : 1.0;
  s.m_coeff_sigma_min_els_fre = kct;
  s.m_coeff_sigma_min_els_qp = kct;
  s.m_coeff_sigma_min_enrobage_els_fre = loc_traction_enrobage(b, kct, true);
  s.m_coeff_sigma_min_enrobage_els_qp = loc_traction_enrobage(b, kct, false);
}

void loc_affecter_construction(zof_situation_beton_ec& s, const zof_materiau_beton_ec& b) {
  s.m_coefficient_partiel_elu = 1.5;
  s.m_coefficient_equivalence_els = 5.0;
  if (!b.m_is_beton_precontraint) return;
  s.m_coeff_sigma_min_els_qp = simple(0.7f);
  s.m_coeff_sigma_min_enrobage_els_qp = loc_traction_enrobage(b, simple(0.7f), false);
}

/// Failure of a parabola. EN 1992-1-1 table 3.1 prints one value, 2.6 per mille, for both strains of C90; its
/// formulas without rounding put the peak at 2.6005 and the failure at 2.6. No concrete fails before its
/// peak.
double loc_rupture_parabole(const zof_beton_ec& b) {
  return std::max(b.deformation_rupture_2(), b.deformation_pic_2());
}

void loc_remplacer_si_absent(double& champ, double valeur) {
  if (!est_renseigne_double(champ)) champ = valeur;
}

}  // namespace

void zof_situation_beton_ec::editer_situation(bool& erco) const {
  zof_editer_situation_beton_ec(*this, erco);
}
void zof_situation_beton_ec::decoder_situation(bool& erco) { zof_decoder_situation_beton_ec(*this, erco); }

void zof_situation_beton_ec::fixer_ages() {
  m_age_chargement_g = age_28_jours;
  m_age_fin_cure = 0;
  // With a return to state 0 an accidental action is short and meets a concrete that has not crept.
  const bool courte = m_type_situation_projet == situation_exploitation_service ||
                      m_type_situation_projet == situation_construction ||
                      (est_situation_accidentelle(m_type_situation_projet) &&
                       zof_options.zof_option_retour_etat_0 && !zof_options.zof_option_loi_ponderee);
  m_age_chargement_q = courte ? age_28_jours : static_cast<double>(non_renseigne);
}

void zof_situation_beton_ec::creer_beton_situation_ec() {
  m_le_beton_ec.set_resistance_caracteristique_28j(m_pt_materiau->get_fck());
  m_le_beton_ec.set_type_ciment(m_pt_materiau->m_type_ciment);
  m_le_beton_ec.set_type_beton(m_pt_materiau->m_type_beton);
  m_le_beton_ec.set_humidite_relative(m_pt_materiau->m_humidite_relative);
  m_le_beton_ec.set_rayon_moyen(m_pt_materiau->m_rayon_moyen);
  m_le_beton_ec.set_age_chargement(m_age_chargement_g);
  m_le_beton_ec.set_age_etude(m_age_chargement_q);
  m_le_beton_ec.set_age_fin_cure(m_age_fin_cure);
  m_le_beton_ec.set_ponderation_lois_ct_lt(m_ponderation_lois_ct_lt);
}

void zof_situation_beton_ec::affectation_coefficents_ec() {
  const zof_materiau_beton_ec& b = *m_pt_materiau;
  zof_assert(est_renseigne_double(m_le_beton_ec.resistance_caracteristique_28j()),
             "Zof_Affectation_coefficents_EC : Beton situation non cree");
  for (double* const coefficient : {&m_coeff_sigma_min_els_car, &m_coeff_sigma_min_els_fre,
                                    &m_coeff_sigma_min_els_qp, &m_coeff_sigma_min_enrobage_els_car,
                                    &m_coeff_sigma_min_enrobage_els_fre, &m_coeff_sigma_min_enrobage_els_qp})
    *coefficient = non_renseigne;
  m_alpha_compression = 1.0;
  m_degre_parabole_elu = m_le_beton_ec.degre_parabole();
  m_degre_parabole_els = m_degre_parabole_elu;

  const double kcc = loc_compression_caracteristique(b);
  m_coeff_sigma_max_els_car = kcc;
  m_coeff_sigma_max_els_fre = kcc;
  m_coeff_sigma_max_els_qp = kcc;
  if (b.m_is_beton_precontraint) m_coeff_sigma_min_els_car = 1.0;

  switch (m_type_situation_projet) {
    case situation_exploitation_service:
    case situation_exploitation_infinie: loc_affecter_exploitation(*this, b); break;
    case situation_construction: loc_affecter_construction(*this, b); break;
    case situation_accident: m_coefficient_partiel_elu = simple(1.2f); break;
    case situation_seisme: m_coefficient_partiel_elu = simple(1.3f); break;
    default: zof_assert(false, "Zof_Affectation_coefficents_EC : Cas impossible");
  }
}

void zof_situation_beton_ec::assigner_deformations() {
  const zof_beton_ec& b = m_le_beton_ec;
  m_ecm_t = b.module_elastique_age_etude();
  m_phi_t = b.coefficient_fluage() * simple(1.05f) * b.module_elastique_28j();

  // The flange of a box is compressed all over: its strain is limited near that of the peak, EN 1992-1-1 6.1
  // (5).
  const bool caisson = m_pt_materiau->m_categorie_zone_section == categorie_caisson;
  const bool bilineaire = m_type_loi_elu == type_loi_bilineaire;
  const double pic = bilineaire ? b.deformation_pic_3() : b.deformation_pic_2();
  const double rupture = bilineaire ? b.deformation_rupture_3() : loc_rupture_parabole(b);
  loc_remplacer_si_absent(m_deformation_elu_pic, pic);
  loc_remplacer_si_absent(m_deformation_elu_rupture, caisson ? simple(1.1f) * pic : rupture);

  if (m_type_loi_els == type_loi_parabole) {
    loc_remplacer_si_absent(m_deformation_els_pic, b.deformation_pic_2());
    loc_remplacer_si_absent(m_deformation_els_rupture, loc_rupture_parabole(b));
  } else {
    m_deformation_els_pic = non_renseigne;
    m_deformation_els_rupture = non_renseigne;
  }
}

double zof_situation_beton_ec::facteur_fluage() const {
  const double phi_et = m_le_beton_ec.coefficient_fluage() * m_le_beton_ec.module_elastique_age_etude();
  return (1 + phi_et) / (1 + m_ponderation_lois_ct_lt * phi_et);
}

double zof_situation_beton_ec::resistance_calcul(double coefficient_partiel) const {
  return m_alpha_compression * m_le_beton_ec.resistance_caracteristique_age_etude() / coefficient_partiel;
}
