#include "Zof_Classe_Beton_EC.hpp"

#include <cmath>

#include "Simple.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using socle::simple;

namespace {

constexpr double deux_tiers = simple(2.0f / 3.0f);

/// Growth of strength by class of cement, EN 1992-1-1 3.1.2 (6).
double loc_coefficient_s(int type_ciment) {
  switch (type_ciment) {
    case ciment_n: return 0.25;
    case ciment_r: return simple(0.2f);
    case ciment_s: return simple(0.38f);
    default: zof_assert(false, "Calcul_beta_cc : Type de ciment non valide"); return 0;
  }
}

/// ((90 - fck)/100)^4, common to the ultimate strain and to the exponent of table 3.1.
double loc_ecart_a_90(double fck) { return std::pow((90 - fck) / 100, 4.0); }

}  // namespace

bool zof_beton_ec::age_etude_admis() const { return !est_renseigne_double(m_age_etude) || m_age_etude > 2.0; }

// --- Strengths
// -------------------------------------------------------------------------------------------------

double zof_beton_ec::resistance_caracteristique_28j() const { return m_resistance_caracteristique_28j; }

double zof_beton_ec::resistance_moyenne_compression_28j() const {
  zof_assert(est_renseigne_double(m_resistance_caracteristique_28j),
             "Resistance_moyenne_compression_28j :Resistance caracteristique e 28j non renseignee");
  return m_resistance_caracteristique_28j + 8;
}

double zof_beton_ec::calcul_beta_cc(double t) const {
  zof_assert(est_renseigne_integer(m_type_ciment), "Calcul_beta_cc :Type de ciment non renseigne");
  const double s = loc_coefficient_s(m_type_ciment);
  if (!est_renseigne_double(t)) return std::exp(s);
  return std::exp(s * (1 - std::sqrt(28 / t)));
}

double zof_beton_ec::resistance_moyenne_compression_age(double t) const {
  return resistance_moyenne_compression_28j() * calcul_beta_cc(t);
}

double zof_beton_ec::resistance_moyenne_compression_age_etude() const {
  zof_assert(age_etude_admis(), "Resistance_moyenne_compression_Age_etude : Date etude materiau incorrecte");
  return resistance_moyenne_compression_age(m_age_etude);
}

double zof_beton_ec::resistance_caracteristique_age_etude() const {
  zof_assert(est_renseigne_double(m_resistance_caracteristique_28j),
             "Resistance_caracteristique_Age_etude : Resistance caracteristique e 28j");
  zof_assert(age_etude_admis(), "Resistance_caracteristique_Age_etude : Date etude materiau incorrecte");
  const double fcm_t = resistance_moyenne_compression_age(m_age_etude);
  if (!est_renseigne_double(m_age_etude) || m_age_etude > 28) return m_resistance_caracteristique_28j;
  return fcm_t - 8;
}

double zof_beton_ec::resistance_moyenne_traction_28j() const {
  const double fck = m_resistance_caracteristique_28j;
  zof_assert(est_renseigne_double(fck),
             "Resistance_moyenne_traction_28j : Resistance caracteristique e 28j non renseignee");
  if (fck <= 50) return simple(0.3f) * std::pow(fck, deux_tiers);
  return simple(2.12f) * std::log(1 + resistance_moyenne_compression_28j() / 10);
}

double zof_beton_ec::resistance_moyenne_traction_age_etude() const {
  zof_assert(age_etude_admis(), "Resistance_moyenne_traction_Age_etude :Date etude materiau incorrecte");
  const double alpha = !est_renseigne_double(m_age_etude) || m_age_etude >= 28 ? deux_tiers : 1.0;
  return resistance_moyenne_traction_28j() * std::pow(calcul_beta_cc(m_age_etude), alpha);
}

// --- Moduli
// ----------------------------------------------------------------------------------------------------

double zof_beton_ec::module_elastique_28j() const {
  return 22000 * std::pow(resistance_moyenne_compression_28j() / 10, simple(0.3f));
}

double zof_beton_ec::module_elastique_age_etude() const {
  zof_assert(age_etude_admis(), "Module_elastique_Age_etude : Date etude materiau incorrecte");
  return module_elastique_28j() * std::pow(calcul_beta_cc(m_age_etude), simple(0.3f));
}

double zof_beton_ec::module_elastique_differe_age_etude() const {
  zof_assert(age_etude_admis(), "Module_elastique_differe_Age_etude :Date etude materiau incorrecte");
  zof_assert(est_renseigne_double(m_age_chargement),
             "Module_elastique_differe_Age_etude : Date de chargement");
  zof_assert(m_age_chargement > 2.0, "Module_elastique_differe_Age_etude : Date de chargement incorrecte");
  // The concrete deforms with the modulus that it had when it was loaded.
  const double e0 = module_elastique_28j() * std::pow(calcul_beta_cc(m_age_chargement), simple(0.3f));
  return e0 / (1 + coefficient_fluage() * e0);
}

double zof_beton_ec::module_pondere_age_etude() const {
  zof_assert(est_renseigne_double(m_resistance_caracteristique_28j),
             "Module_pondere_Age_etude :Resistance caracteristique e 28j non renseignee");
  const double w = m_ponderation_lois_ct_lt;
  zof_assert(est_renseigne_double(w), "Module_pondere_Age_etude : Facteur de ponderation non renseignee");
  const double et = module_elastique_age_etude();
  // The long-term modulus checks the age at loading; its value is that of the other age and takes no part.
  static_cast<void>(module_elastique_differe_age_etude());
  const double c = coefficient_fluage();
  return et * (1 + w * c * et) / (1 + c * et);
}

// --- Diagrams, EN 1992-1-1 table 3.1
// ---------------------------------------------------------------------------

double zof_beton_ec::deformation_pic_2() const {
  const double fck = m_resistance_caracteristique_28j;
  zof_assert(est_renseigne_double(fck), "Deformation_pic_2Resistance caracteristique e 28j non renseignee");
  if (fck < 50) return simple(0.002f);
  return (2.0 + simple(0.085f) * std::pow(fck - 50, simple(0.53f))) / 1000;
}

double zof_beton_ec::deformation_rupture_2() const {
  const double fck = m_resistance_caracteristique_28j;
  zof_assert(est_renseigne_double(fck),
             "Deformation_rupture_2: Resistance caracteristique e 28j non renseignee");
  if (fck < 50) return simple(0.0035f);
  return (simple(2.6f) + 35 * loc_ecart_a_90(fck)) / 1000;
}

double zof_beton_ec::degre_parabole() const {
  const double fck = m_resistance_caracteristique_28j;
  zof_assert(est_renseigne_double(fck), "Degre_parabole : Resistance caracteristique e 28j non renseignee");
  if (fck < 50) return 2.0;
  return simple(1.4f) + simple(23.4f) * loc_ecart_a_90(fck);
}

double zof_beton_ec::deformation_pic_3() const {
  const double fck = m_resistance_caracteristique_28j;
  zof_assert(est_renseigne_double(fck), "Deformation_pic_3: Resistance caracteristique e 28j non renseignee");
  if (fck < 50) return simple(0.00175f);
  return (1.75 + simple(0.55f) * (fck - 50) / 40) / 1000;
}

double zof_beton_ec::deformation_rupture_3() const { return deformation_rupture_2(); }

// --- Inputs
// ----------------------------------------------------------------------------------------------------

void zof_beton_ec::set_age_chargement(double age_chargement) { m_age_chargement = age_chargement; }
void zof_beton_ec::set_age_etude(double age_etude) { m_age_etude = age_etude; }
void zof_beton_ec::set_rayon_moyen(double rayon_moyen) { m_rayon_moyen = rayon_moyen; }
void zof_beton_ec::set_type_beton(int type_beton) { m_type_beton = type_beton; }
void zof_beton_ec::set_resistance_caracteristique_28j(double fck) { m_resistance_caracteristique_28j = fck; }
void zof_beton_ec::set_ponderation_lois_ct_lt(double ponderation) { m_ponderation_lois_ct_lt = ponderation; }
void zof_beton_ec::set_humidite_relative(double humidite_relative) {
  m_humidite_relative = humidite_relative;
}
void zof_beton_ec::set_age_fin_cure(double age_fin_cure) { m_age_fin_cure = age_fin_cure; }
void zof_beton_ec::set_type_ciment(int type_ciment) { m_type_ciment = type_ciment; }
