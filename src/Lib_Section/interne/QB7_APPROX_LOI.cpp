#include "QB7_APPROX_LOI.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <vector>

#include "QB7_ERR_Erreurs.hpp"
#include "RAC_Racines.hpp"
#include "Simple.hpp"
#include "Systeme.hpp"

using socle::simple;

namespace {

/// Shortest interval that is cut, and greatest integral between a law and its chord.
constexpr double tolerance = simple(1e-5f);
constexpr std::size_t nbre_interv_max = 1000;

bool loc_est_affine(const qb7_polynome& p) { return p[2] == 0 && p[3] == 0; }

/// The left ends of the law, and the end of its last interval: its limits close the two extreme intervals.
/// Where it has none they must be affine, and of what is affine the length does not matter.
ier_2 loc_fermer_intervalles(const gbd_loi& loi, std::vector<double>& bornes) {
  const bool a_min = loi.epsilon_min != qb7_sans_borne;
  const bool a_max = loi.epsilon_max != qb7_sans_borne;
  if (!a_min && !loc_est_affine(loi.coeffs.front())) return {ERR_NON_AFF_BORNES, 1};
  if (!a_max && !loc_est_affine(loi.coeffs.back())) return {ERR_NON_AFF_BORNES, loi.nbre_interv()};
  bornes = loi.epsilons;
  bornes.push_back(a_max ? loi.epsilon_max : bornes.back() + 1);
  bornes[0] = a_min ? loi.epsilon_min : bornes[1] - 1;
  return {};
}

/// The line through (e0, p(e0)) and (e1, p(e1)).
qb7_polynome loc_corde(const qb7_polynome& p, double e0, double e1) {
  const double s0 = gen_valeur_poly(p, e0);
  const double a1 = (gen_valeur_poly(p, e1) - s0) / (e1 - e0);
  return {s0 - a1 * e0, a1};
}

/// ∫ (p - chord) from e0 to e1, by Simpson's rule, exact for a cubic: both ends are zero.
double loc_ecart(const qb7_polynome& p, double e0, double e1) {
  const double milieu = (e0 + e1) / 2;
  const double sur_la_corde = (gen_valeur_poly(p, e0) + gen_valeur_poly(p, e1)) / 2;
  return 4.0 / 6 * (gen_valeur_poly(p, milieu) - sur_la_corde) * (e1 - e0);
}

/// The end of the longest chord from e0, among fin, half way to it, a quarter...; e0 itself for a law so
/// steep that no chord fits it between neighbouring numbers.
double loc_fin_de_corde(const qb7_polynome& p, double e0, double fin) {
  double e1 = fin;
  while (!(std::abs(loc_ecart(p, e0, e1)) <= tolerance)) {
    const double milieu = (e1 + e0) / 2;
    if (milieu <= e0 || milieu >= e1) return e0;
    e1 = milieu;
  }
  return e1;
}

/// Pieces of the approximation: left ends and chords.
struct morceaux {
  std::vector<double> epsilons;
  std::vector<qb7_polynome> coeffs;

  bool complet() const { return epsilons.size() == nbre_interv_max; }
  void ajouter(double e0, const qb7_polynome& p) {
    epsilons.push_back(e0);
    coeffs.push_back(p);
  }
};

ier_2 loc_trop_de_morceaux(std::string_view message) {
  socle::le_systeme().console().ligne(message);
  return {ERR_INT_MAX_APPROX};
}

/// An affine interval as it is; a curved one by chords, or not at all if it is too short to matter.
ier_2 loc_approcher_intervalle(const qb7_polynome& p, double deb, double fin, morceaux& m) {
  if (loc_est_affine(p)) {
    if (m.complet()) return loc_trop_de_morceaux("erreur approx 1");
    m.ajouter(deb, p);
    return {};
  }
  for (double e0 = deb; fin - e0 > tolerance;) {
    const double e1 = loc_fin_de_corde(p, e0, fin);
    if (m.complet() || e1 <= e0) return loc_trop_de_morceaux("erreur approx 2");
    m.ajouter(e0, loc_corde(p, e0, e1));
    e0 = e1;
  }
  return {};
}

ier_2 loc_approcher(const gbd_loi& loi, const std::vector<double>& bornes, morceaux& m) {
  for (std::size_t i = 0; i < loi.coeffs.size(); ++i) {
    if (const ier_2 ier = loc_approcher_intervalle(loi.coeffs[i], bornes[i], bornes[i + 1], m)) return ier;
  }
  return {};
}

ier_2 loc_creer_approximation(const gbd_loi& loi_approximee, gbd_loi& loi_approximante) {
  std::vector<double> bornes;
  if (const ier_2 ier = loc_fermer_intervalles(loi_approximee, bornes)) return ier;
  morceaux m;
  if (err_traiter("LOC_Approcher", loc_approcher(loi_approximee, bornes, m))) return {ERR_CALC_APPROX};
  const ier_2 ier = gbd_loi_creer(loi_approximee.num_materiau, loi_approximee.num_etat_lim, m.epsilons, 1,
                                  m.coeffs, loi_approximante);
  return err_traiter("GBD_LOI_Creer", ier) ? ier_2{ERR_LOI_APPROX} : ier_2{};
}

}  // namespace

ier_2 creation_loi_approximation_aff_par_mor(const gbd_loi& loi_approximee, gbd_loi& loi_approximante) {
  if (std::ranges::all_of(loi_approximee.coeffs, loc_est_affine)) {
    loi_approximante = loi_approximee;
    return {};
  }
  return err_traiter("Creation_Loi_Approx_Aff_Par_Mor",
                     loc_creer_approximation(loi_approximee, loi_approximante));
}
