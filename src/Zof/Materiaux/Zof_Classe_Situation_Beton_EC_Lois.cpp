// The laws of a concrete, one for each limit state of its situation.
#include <array>

#include "QB7_Lois.hpp"
#include "Zof_Classe_Materiau_Beton_EC.hpp"
#include "Zof_Classe_Situation_Beton_EC.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Lois.hpp"
#include "Zof_Utilit.hpp"

using socle::texte;

namespace {

constexpr double module_acier_equivalence = 200000;  // MPa, steel of the modular ratio

/// Coefficients of one state of serviceability.
struct coefficients_service {
  double sigma_max, sigma_min;
};

coefficients_service loc_coefficients(const zof_situation_beton_ec& s, combinaison actions) {
  switch (actions) {
    case combinaison::quasi_permanente: return {s.m_coeff_sigma_max_els_qp, s.m_coeff_sigma_min_els_qp};
    case combinaison::frequente: return {s.m_coeff_sigma_max_els_fre, s.m_coeff_sigma_min_els_fre};
    case combinaison::caracteristique: return {s.m_coeff_sigma_max_els_car, s.m_coeff_sigma_min_els_car};
  }
  return {};
}

/// The laws are made for weighted behaviour, or for a modular ratio; the other two kinds are not in use.
void loc_exiger_pondere(type_comportement_beton comportement) {
  zof_assert(comportement == type_comportement_beton::pondere, "Type de comportement du beton non prevu");
}

/// A stress limit that a law has or has not.
struct limite {
  double sigma = qb7_sans_borne;
  bool existe = false;
};

limite loc_compression(const zof_situation_beton_ec& s, double coefficient) {
  if (!est_renseigne_double(coefficient)) return {};
  return {coefficient * s.m_le_beton_ec.resistance_caracteristique_age_etude(), true};
}

/// A parabola of this exponent, then a plateau.
void loc_creer_parabole(int num_materiau, int num_etat_lim, double degre, double f_cd, double eps_c1,
                        double eps_cu, const limite& l) {
  if (degre == 2.0)
    zof_exiger(qb7_loi_parabole_rectangle_avec_bornes(num_materiau, num_etat_lim, f_cd, eps_c1, eps_cu,
                                                      l.existe, l.sigma));
  else
    zof_exiger(qb7_loi_parabole_degre_n_avec_bornes(num_materiau, num_etat_lim, degre, f_cd, eps_c1, eps_cu,
                                                    l.existe, l.sigma));
}

}  // namespace

void zof_situation_beton_ec::creer_lois() {
  if (!est_situation_accidentelle(m_type_situation_projet)) creer_lois_beton_els_ec();
  creer_lois_beton_elu_ec();
}

// --- Serviceability
// --------------------------------------------------------------------------------------------

void zof_situation_beton_ec::creer_lois_beton_els_ec() {
  const std::array<int, 3> etats = zof_ajouter_etats_mecaniques(*this);
  zof_exiger(qb7_loi_beton_meca(m_numero_materiau_qb7, etats));
  switch (m_type_loi_els) {
    case type_loi_lineaire:
      creer_lois_beton_lineaires_ec_els_fissuree(type_comportement_beton::pondere);
      creer_lois_beton_lineaires_ec_els_non_fissuree(type_comportement_beton::pondere);
      break;
    case type_loi_lineaire_equivalente:
      creer_lois_beton_lineaires_ec_els_fissuree(type_comportement_beton::equivalent);
      creer_lois_beton_lineaires_ec_els_non_fissuree(type_comportement_beton::equivalent);
      break;
    case type_loi_parabole: creer_lois_beton_paraboles_ec_els(type_comportement_beton::pondere); break;
    default: zof_assert(false, " Zof_Creer_Lois_beton_ELS_EC:  Cas impossible");
  }
}

void zof_situation_beton_ec::creer_lois_beton_lineaires_ec_els_fissuree(
    type_comportement_beton comportement) {
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet)) {
    const coefficients_service c = loc_coefficients(*this, etat.actions);
    creer_loi_beton_lineaire_ec_els(comportement, c.sigma_max, c.sigma_min, true, etat.label);
  }
}

void zof_situation_beton_ec::creer_lois_beton_lineaires_ec_els_non_fissuree(
    type_comportement_beton comportement) {
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet)) {
    const coefficients_service c = loc_coefficients(*this, etat.actions);
    // A section is not cracked up to the mean tensile strength.
    const double sigma_min = est_renseigne_double(c.sigma_min) ? c.sigma_min : 1.0;
    creer_loi_beton_lineaire_ec_els(comportement, c.sigma_max, sigma_min, false, etat.label_nf);
  }
}

void zof_situation_beton_ec::creer_lois_beton_paraboles_ec_els(type_comportement_beton comportement) {
  for (const etat_service& etat : zof_etats_service(m_type_situation_projet))
    creer_loi_beton_parabole_ec_els(comportement, loc_coefficients(*this, etat.actions).sigma_max,
                                    etat.label);
}

void zof_situation_beton_ec::creer_loi_beton_lineaire_ec_els(type_comportement_beton comportement,
                                                             double coeff_sigma_max, double coeff_sigma_min,
                                                             bool is_section_fissuree,
                                                             const texte<32>& label_loi) {
  double module = 0;
  if (comportement == type_comportement_beton::equivalent) {
    module = module_acier_equivalence / m_coefficient_equivalence_els;
  } else {
    loc_exiger_pondere(comportement);
    module = m_le_beton_ec.module_pondere_age_etude();
    m_coefficient_equivalence_els = module_acier_equivalence / module;
  }
  const double sigma_max = loc_compression(*this, coeff_sigma_max).sigma;
  double sigma_min = qb7_sans_borne;
  if (!is_section_fissuree && est_renseigne_double(coeff_sigma_min))
    sigma_min = -coeff_sigma_min * m_le_beton_ec.resistance_moyenne_traction_age_etude();
  zof_exiger(qb7_loi_lin_bilin(m_numero_materiau_qb7, ajouter_etat_limite(label_loi),
                               is_section_fissuree ? qb7_loi_compression_seule : qb7_loi_lineaire, module,
                               sigma_min, sigma_max, qb7_trou_encombrement));
}

void zof_situation_beton_ec::creer_loi_beton_parabole_ec_els(type_comportement_beton comportement,
                                                             double coeff_sigma_max,
                                                             const texte<32>& label_loi) {
  loc_exiger_pondere(comportement);
  // The strain has no limit of its own here: m_deformation_els_rupture is shown in the report only.
  loc_creer_parabole(m_numero_materiau_qb7, ajouter_etat_limite(label_loi), m_degre_parabole_els,
                     resistance_calcul(1.0), facteur_fluage() * m_deformation_els_pic, qb7_sans_borne,
                     loc_compression(*this, coeff_sigma_max));
}

// --- Ultimate limit states
// -------------------------------------------------------------------------------------

void zof_situation_beton_ec::creer_lois_beton_elu_ec() {
  switch (m_type_loi_elu) {
    case type_loi_bilineaire: creer_lois_beton_bilineaires_ec_elu(type_comportement_beton::pondere); break;
    case type_loi_parabole: creer_lois_beton_paraboles_ec_elu(type_comportement_beton::pondere); break;
    default: zof_assert(false, " Zof_Creer_Lois_beton_ELU_EC:  Cas impossible");
  }
}

void zof_situation_beton_ec::creer_lois_beton_paraboles_ec_elu(type_comportement_beton comportement) {
  creer_loi_beton_parabole_ec_elu(comportement, m_coefficient_partiel_elu,
                                  zof_label_etat_ultime(m_type_situation_projet));
}

void zof_situation_beton_ec::creer_lois_beton_bilineaires_ec_elu(type_comportement_beton comportement) {
  creer_loi_beton_bilineaire_ec_elu(comportement, m_coefficient_partiel_elu,
                                    zof_label_etat_ultime(m_type_situation_projet));
}

void zof_situation_beton_ec::creer_loi_beton_parabole_ec_elu(type_comportement_beton comportement,
                                                             double coefficient_partiel,
                                                             const texte<32>& label_loi) {
  loc_exiger_pondere(comportement);
  const double f = facteur_fluage();
  m_eps_c2_t = f * m_deformation_elu_pic;
  loc_creer_parabole(m_numero_materiau_qb7, ajouter_etat_limite(label_loi), m_degre_parabole_elu,
                     resistance_calcul(coefficient_partiel), m_eps_c2_t, f * m_deformation_elu_rupture, {});
}

void zof_situation_beton_ec::creer_loi_beton_bilineaire_ec_elu(type_comportement_beton comportement,
                                                               double coefficient_partiel,
                                                               const texte<32>& label_loi) {
  loc_exiger_pondere(comportement);
  zof_assert(m_deformation_elu_rupture >= m_deformation_elu_pic,
             "Zof_Creer_Loi_beton_bilineaire_EC_ELU :La deformation de rupture doit etre superieure e la "
             "deformation de pic");
  const double f = facteur_fluage();
  m_eps_c2_t = f * m_deformation_elu_pic;
  zof_exiger(qb7_loi_beton_bilin(m_numero_materiau_qb7, ajouter_etat_limite(label_loi),
                                 resistance_calcul(coefficient_partiel), m_eps_c2_t,
                                 f * m_deformation_elu_rupture));
}
