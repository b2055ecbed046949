// Creep and shrinkage: EN 1992-1-1 annex B and 3.1.4 for normal concrete, annex B of the French national
// annex for high-performance concrete.
#include <algorithm>
#include <cmath>

#include "Simple.hpp"
#include "Zof_Classe_Beton_EC.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using socle::simple;

namespace {

constexpr double un_millionieme = simple(1e-6f);

/// phi RH of EN 1992-1-1 (B.3). rh in percent, h0 in millimetres, fcm in MPa.
double loc_phi_rh(double fcm, double rh, double h0) {
  const double sechage = (1 - rh / 100) / (simple(0.1f) * std::pow(h0, simple(1.0f / 3.0f)));
  if (fcm <= 35) return 1 + sechage;
  const double alpha_1 = std::pow(35 / fcm, simple(0.7f));
  const double alpha_2 = std::pow(35 / fcm, simple(0.2f));
  return alpha_2 * (1 + alpha_1 * sechage);
}

/// beta H of EN 1992-1-1 (B.8), in days.
double loc_beta_h(double fcm, double rh, double h0) {
  const double base = 1.5 * h0 * (1 + std::pow(simple(0.012f) * rh, 18.0));
  if (fcm <= 35) return std::min(base + 250, 1500.0);
  const double alpha_3 = std::sqrt(35 / fcm);
  return std::min(250 * alpha_3 + base, 1500 * alpha_3);
}

/// kh of EN 1992-1-1 table 3.3, linear between its points. h0 in millimetres.
double loc_kh(double h0) {
  if (h0 <= 100) return 1;
  if (h0 <= 200) return (200 - h0) / 100 + simple(0.85f) * (h0 - 100) / 100;
  if (h0 <= 300) return simple(0.85f) * (300 - h0) / 100 + 0.75 * (h0 - 200) / 100;
  if (h0 <= 500) return 0.75 * (500 - h0) / 200 + simple(0.7f) * (h0 - 300) / 200;
  return simple(0.7f);
}

/// alpha ds1 and alpha ds2 of EN 1992-1-1 annex B.2.
struct coefficients_ciment {
  double ds1, ds2;
};
coefficients_ciment loc_coefficients_ciment(int type_ciment) {
  switch (type_ciment) {
    case ciment_n: return {4, simple(0.12f)};
    case ciment_r: return {6, simple(0.11f)};
    case ciment_s: return {3, simple(0.13f)};
    default: zof_assert(false, "Deformation_retrait_beton_normal : Type de ciment non valide"); return {};
  }
}

}  // namespace

// --- Creep
// -----------------------------------------------------------------------------------------------------

double zof_beton_ec::coefficient_fluage() const {
  zof_assert(age_etude_admis(), "Coefficient_fluage : Date etude materiau incorrecte");
  zof_assert(est_renseigne_integer(m_type_beton), "Coefficient_fluage :Type de beton");
  switch (m_type_beton) {
    case beton_normal: return coefficient_fluage_beton_normal();
    case beton_bhp_sans_silice: return coefficient_fluage_bhp(false);
    case beton_bhp_avec_silice: return coefficient_fluage_bhp(true);
    default: zof_assert(false, "Coefficient_fluage :Type de beton non valide"); return 0;
  }
}

double zof_beton_ec::coefficient_fluage_beton_normal() const {
  const double t = m_age_etude;
  const double t0 = m_age_chargement;
  const double rh = m_humidite_relative;
  zof_assert(est_renseigne_double(t0), "Coefficient_fluage_beton_normal : Date de chargement non renseignee");
  zof_assert(t0 > 2.0, "Coefficient_fluage_beton_normal :Date de chargement incorrecte");
  zof_assert(est_renseigne_double(m_rayon_moyen) && m_rayon_moyen > 0,
             "Coefficient_fluage_beton_normal :Rayon moyen non renseigne");
  zof_assert(est_renseigne_double(rh), "Coefficient_fluage_beton_normal : Humidite relative non renseigne");
  zof_assert(est_renseigne_integer(m_type_ciment), "Coefficient_fluage_beton_normal : Type ciment");

  const double h0 = 1000 * m_rayon_moyen;
  const double fcm = resistance_moyenne_compression_28j();
  const double beta_fcm = simple(16.8f) / std::sqrt(fcm);
  const double beta_t0 = 1 / (simple(0.1f) + std::pow(t0, simple(0.2f)));
  const double phi_0 = loc_phi_rh(fcm, rh, h0) * beta_fcm * beta_t0;
  const double beta_c =
      est_renseigne_double(t) ? std::pow((t - t0) / (t + loc_beta_h(fcm, rh, h0) - t0), simple(0.3f)) : 1.0;
  return phi_0 * beta_c / (simple(1.05f) * module_elastique_28j());
}

double zof_beton_ec::coefficient_fluage_bhp(bool avec_silice) const {
  const double t = m_age_etude;
  const double t0 = m_age_chargement;
  const double fck = m_resistance_caracteristique_28j;
  const double rh = m_humidite_relative;
  zof_assert(est_renseigne_double(t0), "Coefficient_fluage_BHP : Date de chargement non renseignee");
  zof_assert(t0 > 2.0, "Coefficient_fluage_BHP: Date de chargement incorrecte");
  zof_assert(est_renseigne_double(fck), "Coefficient_fluage_BHP : Resistance caracteristique non renseigne");
  zof_assert(est_renseigne_double(m_rayon_moyen) && m_rayon_moyen > 0,
             "Coefficient_fluage_BHP: Rayon moyen non renseigne");
  zof_assert(est_renseigne_double(rh), "Coefficient_fluage_BHP : Humidite relative non renseigne");
  zof_assert(rh <= 80,
             "Coefficient_fluage_BHP :La valeur d'humidite relative max pour le cas des BHP est 80");
  zof_assert(est_renseigne_integer(m_type_ciment), "Coefficient_fluage_BHP :Type ciment");
  zof_assert(m_type_ciment == ciment_r,
             "Coefficient_fluage_BHP :Le type de ciment recommande pour les BHP est la classe R");

  const double fcm_t0 = resistance_moyenne_compression_age(t0);
  const double k = avec_silice ? simple(3.6f) / std::pow(fcm_t0, simple(0.37f)) : simple(1.4f);
  const double b = avec_silice ? simple(0.37f) * std::exp(simple(2.8f) * fcm_t0 / fck)
                               : simple(0.4f) * std::exp(simple(3.1f) * fcm_t0 / fck);
  double phi_b = k;  // basic creep
  if (est_renseigne_double(t)) phi_b = k * std::sqrt(t - t0) / (std::sqrt(t - t0) + b);
  const double d = avec_silice ? 1000 : 3200;
  const double phi_d =  // drying creep
      d * (retrait_dessication_bhp(t, avec_silice) - retrait_dessication_bhp(t0, avec_silice));
  return (phi_b + phi_d) / (simple(1.05f) * module_elastique_28j());
}

// --- Shrinkage
// -------------------------------------------------------------------------------------------------

double zof_beton_ec::deformation_retrait() const {
  zof_assert(age_etude_admis(), "Deformation_retrait : Date etude materiau incorrecte");
  zof_assert(est_renseigne_integer(m_type_beton), "Deformation_retrait : Type de beton non renseigne");
  switch (m_type_beton) {
    case beton_normal: return deformation_retrait_beton_normal();
    case beton_bhp_sans_silice: return deformation_retrait_bhp(false);
    case beton_bhp_avec_silice: return deformation_retrait_bhp(true);
    default: zof_assert(false, "Deformation_retrait : Type de beton non valide"); return 0;
  }
}

double zof_beton_ec::deformation_retrait_beton_normal() const {
  const double t = m_age_etude;
  const double ts = m_age_fin_cure;
  const double fck = m_resistance_caracteristique_28j;
  const double rh = m_humidite_relative;
  zof_assert(est_renseigne_double(ts),
             "Deformation_retrait_beton_normal : Date de fin de cure non renseignee");
  zof_assert(est_renseigne_double(fck),
             "Deformation_retrait_beton_normal: Resistance caracteristique non renseigne");
  zof_assert(est_renseigne_double(m_rayon_moyen),
             "Deformation_retrait_beton_normal : Rayon moyen non renseigne");
  zof_assert(est_renseigne_double(rh), "Deformation_retrait_beton_normal : Humidite relative non renseigne");
  zof_assert(est_renseigne_integer(m_type_ciment), "Deformation_retrait_beton_normal : Type ciment ");
  const coefficients_ciment alpha = loc_coefficients_ciment(m_type_ciment);

  // Autogenous shrinkage, (3.11) to (3.13).
  const double beta_as = est_renseigne_double(t) ? 1 - std::exp(-simple(0.2f) * std::sqrt(t)) : 1.0;
  const double epsilon_ca = beta_as * un_millionieme * 2.5 * (fck - 10);

  // Drying shrinkage, (3.9), (3.10) and (B.11), (B.12).
  const double h0 = 1000 * m_rayon_moyen;
  const double beta_ds =
      est_renseigne_double(t) ? (t - ts) / (simple(0.04f) * std::sqrt(h0 * h0 * h0) + (t - ts)) : 1.0;
  const double hr = rh / 100;
  const double beta_rh = simple(1.55f) * (1 - hr * hr * hr);
  const double fcm = resistance_moyenne_compression_28j();
  const double epsilon_cd0 =
      un_millionieme * simple(0.85f) * (220 + 110 * alpha.ds1) * std::exp(-alpha.ds2 * fcm / 10) * beta_rh;
  return epsilon_ca + beta_ds * loc_kh(h0) * epsilon_cd0;
}

double zof_beton_ec::deformation_retrait_bhp(bool avec_silice) const {
  zof_assert(est_renseigne_double(m_age_fin_cure),
             "Deformation_retrait_BHP: Date de fin de cure non renseignee");
  zof_assert(est_renseigne_double(m_resistance_caracteristique_28j),
             "Deformation_retrait_BHP: Resistance caracteristique non renseigne");
  zof_assert(est_renseigne_double(m_rayon_moyen) && m_rayon_moyen > 0,
             "Deformation_retrait_BHP: Rayon moyen non renseigne");
  zof_assert(est_renseigne_double(m_humidite_relative),
             "Deformation_retrait_BHP: Humidite relative non renseigne");
  zof_assert(m_humidite_relative <= 80,
             "Deformation_retrait_BHP: La valeur d'humidite relative max pour le cas des BHP est 80");
  zof_assert(est_renseigne_integer(m_type_ciment), "Deformation_retrait_BHP:  Type ciment");
  zof_assert(m_type_ciment == ciment_r,
             "Deformation_retrait_BHP: Le type de ciment recommande pour les BHP est la classe R");
  return retrait_endogene_bhp(m_age_etude) + retrait_dessication_bhp(m_age_etude, avec_silice);
}

double zof_beton_ec::retrait_endogene_bhp(double t) const {
  const double fck = m_resistance_caracteristique_28j;
  const double fcm_t = resistance_moyenne_compression_age_etude();
  const double echelle = un_millionieme * (fck - 20);
  if (!est_renseigne_double(t)) return echelle * simple(2.8f);
  if (t > 28) return echelle * (simple(2.8f) - simple(1.1f) * std::exp(-t / 96));
  if (fcm_t / fck < simple(0.1f)) return 0;
  return echelle * (simple(2.2f) * fcm_t / fck - simple(0.2f));
}

double zof_beton_ec::retrait_dessication_bhp(double t, bool avec_silice) const {
  const double ts = m_age_fin_cure;
  zof_assert(est_renseigne_double(ts),
             "Retrait_dessication_BHP : Erreur materiau : Date de fin de cure non renseignee");
  const double fck = m_resistance_caracteristique_28j;
  const double h0 = 1000 * m_rayon_moyen;
  const double k = fck <= 55 ? 18 : 30 - simple(0.21f) * fck;
  const double e = 72 * std::exp(-simple(0.046f) * fck) + 75 - m_humidite_relative;
  const double limite = un_millionieme * k * e;
  if (!est_renseigne_double(t)) return limite;
  const double beta = avec_silice ? simple(0.007f) : simple(0.021f);
  return limite * (t - ts) / (beta * h0 * h0 + (t - ts));
}
