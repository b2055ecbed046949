#include "QB7_Lois.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Sections.hpp"
#include "RAC_Racines.hpp"
#include "SPLINE_Module.hpp"
#include "Simple.hpp"
#include "Systeme.hpp"

using socle::simple;

namespace {

/// The arithmetic of a client that divides by zero gives an infinite number or none: neither makes a law.
bool loc_positif(double x) { return std::isfinite(x) && x > 0; }

/// A limit that is given and limits something.
bool loc_existe(const std::optional<double>& borne) { return borne && *borne != qb7_sans_borne; }

/// A limit on stress as a limit on strain of an elastic law.
std::optional<double> loc_en_deformation(const std::optional<double>& sigma, double e) {
  if (!loc_existe(sigma)) return {};
  return *sigma / e;
}

/// Rank, from 1, of the first smallest step between successive strains, if it is not positive, or of a step
/// that has no finite length; else 0.
int loc_rang_mal_ordonne(std::span<const double> tab_epsilons) {
  for (std::size_t i = 1; i < tab_epsilons.size(); ++i) {
    if (!std::isfinite(tab_epsilons[i] - tab_epsilons[i - 1])) return static_cast<int>(i);
  }
  std::size_t rang = 1;
  for (std::size_t i = 2; i < tab_epsilons.size(); ++i) {
    if (tab_epsilons[i] - tab_epsilons[i - 1] < tab_epsilons[rang] - tab_epsilons[rang - 1]) rang = i;
  }
  return tab_epsilons[rang] - tab_epsilons[rang - 1] > 0 ? 0 : static_cast<int>(rang);
}

ier_2 loc_creer_loi_lineaire_par_morceaux(int num_materiau, int num_etat_lim,
                                          std::span<const double> tab_epsilons,
                                          std::span<const double> tab_sigmas) {
  std::vector<qb7_polynome> coeffs;
  for (std::size_t i = 1; i < tab_epsilons.size(); ++i) {
    const double a = (tab_sigmas[i] - tab_sigmas[i - 1]) / (tab_epsilons[i] - tab_epsilons[i - 1]);
    coeffs.push_back({tab_sigmas[i - 1] - tab_epsilons[i - 1] * a, a});
  }
  return qb7_creer_loi(num_materiau, num_etat_lim, tab_epsilons.first(coeffs.size()), 1, coeffs);
}

ier_2 loc_fixer_trou_et_bornes(int num_materiau, int num_etat_lim, std::optional<double> epsilon_min,
                               std::optional<double> epsilon_max, std::optional<int> type_trou) {
  if (type_trou) {
    if (const ier_2 ier = qb7_fixer_type_trou(num_materiau, num_etat_lim, *type_trou)) return ier;
  }
  return qb7_fixer_bornes_loi(num_materiau, num_etat_lim, epsilon_min, epsilon_max);
}

ier_2 loc_multi_lin(int num_materiau, int num_etat_lim, std::span<const double> tab_epsilons,
                    std::span<const double> tab_sigmas, std::optional<double> epsilon_min,
                    std::optional<double> epsilon_max, std::optional<int> type_trou) {
  if (tab_epsilons.size() < 2) return {ERR_NBRE_INT_LOI};
  if (tab_sigmas.size() != tab_epsilons.size()) return {ERR_DIM_TAB, static_cast<int>(tab_sigmas.size())};
  if (const int rang = loc_rang_mal_ordonne(tab_epsilons)) return {ERR_DEF_LOI, rang};
  if (const ier_2 ier =
          loc_creer_loi_lineaire_par_morceaux(num_materiau, num_etat_lim, tab_epsilons, tab_sigmas)) {
    return ier;
  }
  const ier_2 ier = loc_fixer_trou_et_bornes(num_materiau, num_etat_lim, epsilon_min, epsilon_max, type_trou);
  if (ier) static_cast<void>(qb7_supprimer_loi(num_materiau, num_etat_lim));
  return ier;
}

ier_2 loc_lin_bilin(int num_materiau, int num_etat_lim, int type_loi, std::optional<double> e,
                    std::optional<double> sigma_min, std::optional<double> sigma_max,
                    std::optional<int> type_trou) {
  const double module = e.value_or(0);
  if (type_loi == qb7_loi_nulle ? module != 0 : !loc_positif(module)) return {ERR_MODULE};
  const auto une_borne = [&](auto interdite) {
    return (loc_existe(sigma_min) && interdite(*sigma_min)) ||
           (loc_existe(sigma_max) && interdite(*sigma_max));
  };
  if (une_borne([](double sigma) { return !std::isfinite(sigma); })) return {ERR_LIMITES_LOI};
  const auto creer = [&](std::span<const double> tab_epsilons, std::span<const double> tab_sigmas) {
    return qb7_loi_multi_lin(num_materiau, num_etat_lim, tab_epsilons, tab_sigmas,
                             loc_en_deformation(sigma_min, module), loc_en_deformation(sigma_max, module),
                             type_trou);
  };
  switch (type_loi) {
    case qb7_loi_nulle:
      if (une_borne([](double) { return true; })) return {ERR_LIMITES_LOI};
      return creer(std::array{0.0, 1.0}, std::array{0.0, 0.0});
    case qb7_loi_lineaire: return creer(std::array{0.0, 1.0}, std::array{0.0, module});
    case qb7_loi_compression_seule:
      if (une_borne([](double sigma) { return sigma < 0; })) return {ERR_LIMITES_LOI};
      return creer(std::array{-1.0, 0.0, 1.0}, std::array{0.0, 0.0, module});
    case qb7_loi_traction_seule:
      if (une_borne([](double sigma) { return sigma > 0; })) return {ERR_LIMITES_LOI};
      return creer(std::array{-1.0, 0.0, 1.0}, std::array{-module, 0.0, 0.0});
    default: return {ERR_TYPE_LOI, type_loi};
  }
}

// ---- Concrete ----

ier_2 loc_parabole_rectangle_avec_bornes(int num_materiau, int num_etat_lim, double f_cd, double eps_c1,
                                         double eps_cu, bool limites, double f_lim) {
  if (!loc_positif(f_cd) || !std::isfinite(f_lim) || f_lim < 0) return {ERR_CONTRAINTE};
  if (!loc_positif(eps_c1) || !std::isfinite(eps_cu) || eps_c1 > eps_cu) return {ERR_DEF_LOI};
  const double a1 = 2 * f_cd / eps_c1;
  const double a2 = -f_cd / (eps_c1 * eps_c1);
  const std::array<qb7_polynome, 3> coeffs = {{{}, {0, a1, a2}, {f_cd}}};
  if (const ier_2 ier = qb7_creer_loi(num_materiau, num_etat_lim, std::array{-1.0, 0.0, eps_c1}, 2, coeffs)) {
    return ier;
  }
  const bool limitee = limites && f_cd > f_lim;
  const double epsilon_max = limitee ? (std::sqrt(4 * a2 * f_lim + a1 * a1) - a1) / (2 * a2) : eps_cu;
  return qb7_fixer_bornes_loi(num_materiau, num_etat_lim, {}, epsilon_max);
}

/// Law of exponent n: intervals and polynomials, in the strain itself.
struct table_degre_n {
  std::array<double, 5> epsilons;
  std::array<qb7_polynome, 5> coeffs;
};

ier_2 loc_table_degre_n(double n, double f_cd, double eps_c1, table_degre_n& table) {
  const std::array noeuds = {0.0, 0.2 * eps_c1, 0.9 * eps_c1, eps_c1};
  std::array<double, 4> sigmas{};
  std::ranges::transform(noeuds, sigmas.begin(),
                         [&](double x) { return (1 - std::pow(1 - x / eps_c1, n)) * f_cd; });
  spline_type spline;
  const std::array pentes = {spline_pente_libre, spline_pente_libre, spline_pente_libre, 0.0};
  if (spline_definir(spline, noeuds, sigmas, pentes) != 0) return {ERR_DEF_LOI};
  table = {{-1, noeuds[0], noeuds[1], noeuds[2], noeuds[3]}, {}};
  for (int k = 1; k <= 3; ++k) {
    if (spline_coefficients_abs(spline, k, table.coeffs[static_cast<std::size_t>(k)]) != 0)
      return {ERR_DEF_LOI};
  }
  table.coeffs[4] = {f_cd};
  return {};
}

/// The strain at which the curve reaches f_lim, by halving the first piece that ends at or above it.
double loc_deformation_limite(const table_degre_n& table, double f_lim) {
  const double tolerance = simple(1e-10f);
  std::size_t k = 1;
  while (k < 3 && gen_valeur_poly(table.coeffs[k], table.epsilons[k + 1]) < f_lim) ++k;
  double bas = table.epsilons[k];
  double haut = table.epsilons[k + 1];
  for (;;) {
    const double milieu = (bas + haut) / 2;
    const double ecart = gen_valeur_poly(table.coeffs[k], milieu) - f_lim;
    // in a unit where 1e-10 lies under the rounding of a stress, the halving ends on neighbouring numbers
    if (std::abs(ecart) <= tolerance || milieu <= bas || milieu >= haut) return milieu;
    (ecart < 0 ? bas : haut) = milieu;
  }
}

ier_2 loc_parabole_degre_n_avec_bornes(int num_materiau, int num_etat_lim, double n, double f_cd,
                                       double eps_c1, double eps_cu, bool limites, double f_lim) {
  if (!loc_positif(f_cd) || !std::isfinite(f_lim)) return {ERR_CONTRAINTE};
  if (!(n >= simple(1.4f) && n <= 2.0)) return {ERR_DEGRE_LOI};
  if (!loc_positif(eps_c1) || !std::isfinite(eps_cu) || eps_c1 > eps_cu) {
    socle::le_systeme().console().ligne("erreur def loi ");
    return {ERR_DEF_LOI};
  }
  table_degre_n table{};
  if (const ier_2 ier = loc_table_degre_n(n, f_cd, eps_c1, table)) return ier;
  if (const ier_2 ier = qb7_creer_loi(num_materiau, num_etat_lim, table.epsilons, 3, table.coeffs))
    return ier;
  const double epsilon_max = limites && f_cd > f_lim ? loc_deformation_limite(table, f_lim) : eps_cu;
  return qb7_fixer_bornes_loi(num_materiau, num_etat_lim, {}, epsilon_max);
}

ier_2 loc_beton_bilin(int num_materiau, int num_etat_lim, double f_cd, double eps_c1, double eps_cu) {
  if (!loc_positif(f_cd)) return {ERR_CONTRAINTE};
  return qb7_loi_multi_lin(num_materiau, num_etat_lim, std::array{-1.0, 0.0, eps_c1, eps_cu},
                           std::array{0.0, 0.0, f_cd, f_cd}, {}, eps_cu);
}

// ---- Steel ----

/// An elastic line up to (eps_1, f_1), a second one through (eps_2, f_2), the same in tension; with comprimes
/// false nothing in compression.
ier_2 loc_deux_branches(int num_materiau, int num_etat_lim, point_yz coude, point_yz fin, bool comprimes,
                        std::optional<double> epsilon_min, std::optional<double> epsilon_max,
                        std::optional<int> type_trou) {
  const auto [eps_1, f_1] = coude;
  const auto [eps_2, f_2] = fin;
  return qb7_loi_multi_lin(
      num_materiau, num_etat_lim, std::array{-eps_2, -eps_1, comprimes ? eps_1 : 0, eps_2},
      std::array{-f_2, -f_1, comprimes ? f_1 : 0, comprimes ? f_2 : 0}, epsilon_min, epsilon_max, type_trou);
}

/// Strain at which the law of two branches reaches the stress f >= 0; none past the end of the second one.
std::optional<double> loc_deformation_deux_branches(double f, double eps_palier, double f_palier,
                                                    double eps_rupture, double f_rupture) {
  if (f < f_palier) return f / f_palier * eps_palier;
  if (f < f_rupture)
    return eps_palier + (f - f_palier) * ((eps_rupture - eps_palier) / (f_rupture - f_palier));
  if (f == f_rupture) return eps_rupture;
  return {};
}

ier_2 loc_elastoplastique_avec_bornes(int num_materiau, int num_etat_lim, double eps_palier, double f_palier,
                                      double eps_rupture, double f_rupture, bool limites, double f_min,
                                      double f_max, bool comprimes, std::optional<int> type_trou) {
  if (!loc_positif(f_palier) || !std::isfinite(f_rupture) || f_palier > f_rupture) return {ERR_CONTRAINTE};
  if (limites && !(std::isfinite(f_min) && std::isfinite(f_max))) return {ERR_CONTRAINTE};
  std::optional<double> epsilon_min;
  std::optional<double> epsilon_max;
  if (limites) {
    epsilon_max = loc_deformation_deux_branches(f_max, eps_palier, f_palier, eps_rupture, f_rupture);
    epsilon_min = loc_deformation_deux_branches(-f_min, eps_palier, f_palier, eps_rupture, f_rupture);
    if (epsilon_min) epsilon_min = -*epsilon_min;
  }
  return loc_deux_branches(num_materiau, num_etat_lim, {eps_palier, f_palier}, {eps_rupture, f_rupture},
                           comprimes, epsilon_min, epsilon_max, type_trou);
}

ier_2 loc_passif_palier(int num_materiau, int num_etat_lim, double es, double f_sed, double f_sud,
                        double eps_su, bool comprimes) {
  if (!loc_positif(f_sed) || !std::isfinite(f_sud) || f_sed > f_sud) return {ERR_CONTRAINTE};
  if (!loc_positif(es)) return {ERR_MODULE};
  return loc_deux_branches(num_materiau, num_etat_lim, {f_sed / es, f_sed}, {eps_su, f_sud}, comprimes,
                           -eps_su, {}, qb7_trou_rien);
}

// ---- Unit laws ----

/// What one of the three geometric readings of a section asks of a material.
struct loi_geometrique {
  int type_loi;
  double e;
  int type_trou;
};

ier_2 loc_3_etats_lim(int num_materiau, std::span<const int> tab_num_etat_lim,
                      const std::array<loi_geometrique, 3>& lois) {
  if (tab_num_etat_lim.size() != lois.size()) {
    return err_traiter("LOC_3_Etats_Lim", {ERR_DIM_TAB, static_cast<int>(tab_num_etat_lim.size())});
  }
  for (std::size_t i = 0; i < lois.size(); ++i) {
    const auto& [type_loi, e, type_trou] = lois[i];
    const ier_2 ier = qb7_loi_lin_bilin(num_materiau, tab_num_etat_lim[i], type_loi, e, {}, {}, type_trou);
    if (ier) return err_traiter("LOC_3_Etats_Lim", {ier.code, static_cast<int>(i) + 1});
  }
  return {};
}

}  // namespace

ier_2 qb7_loi_multi_lin(int num_materiau, int num_etat_lim, std::span<const double> tab_epsilons,
                        std::span<const double> tab_sigmas, std::optional<double> epsilon_min,
                        std::optional<double> epsilon_max, std::optional<int> type_trou) {
  qb7_err_effacer();
  return err_traiter("QB7_LOI_Multi_Lin", loc_multi_lin(num_materiau, num_etat_lim, tab_epsilons, tab_sigmas,
                                                        epsilon_min, epsilon_max, type_trou));
}

ier_2 qb7_loi_lin_bilin(int num_materiau, int num_etat_lim, int type_loi, std::optional<double> e,
                        std::optional<double> sigma_min, std::optional<double> sigma_max,
                        std::optional<int> type_trou) {
  qb7_err_effacer();
  return err_traiter("QB7_LOI_Lin_Bilin",
                     loc_lin_bilin(num_materiau, num_etat_lim, type_loi, e, sigma_min, sigma_max, type_trou));
}

ier_2 qb7_loi_parabole_rectangle_avec_bornes(int num_materiau, int num_etat_lim, double f_cd, double eps_c1,
                                             double eps_cu, bool limites, double f_lim) {
  qb7_err_effacer();
  return err_traiter(
      "QB7_LOI_Parabole_Rectangle_avec_bornes",
      loc_parabole_rectangle_avec_bornes(num_materiau, num_etat_lim, f_cd, eps_c1, eps_cu, limites, f_lim));
}

ier_2 qb7_loi_parabole_degre_n_avec_bornes(int num_materiau, int num_etat_lim, double n, double f_cd,
                                           double eps_c1, double eps_cu, bool limites, double f_lim) {
  qb7_err_effacer();
  return err_traiter(
      "QB7_LOI_Parabole_Degre_n_avec_bornes",
      loc_parabole_degre_n_avec_bornes(num_materiau, num_etat_lim, n, f_cd, eps_c1, eps_cu, limites, f_lim));
}

ier_2 qb7_loi_beton_bilin(int num_materiau, int num_etat_lim, double f_cd, double eps_c1, double eps_cu) {
  qb7_err_effacer();
  return err_traiter("QB7_LOI_Beton_Bilin",
                     loc_beton_bilin(num_materiau, num_etat_lim, f_cd, eps_c1, eps_cu));
}

ier_2 qb7_loi_elastoplastique_avec_bornes(int num_materiau, int num_etat_lim, double eps_palier,
                                          double f_palier, double eps_rupture, double f_rupture, bool limites,
                                          double f_min, double f_max, bool comprimes,
                                          std::optional<int> type_trou) {
  qb7_err_effacer();
  return err_traiter(
      "QB7_LOI_Elastoplastique_avec_bornes",
      loc_elastoplastique_avec_bornes(num_materiau, num_etat_lim, eps_palier, f_palier, eps_rupture,
                                      f_rupture, limites, f_min, f_max, comprimes, type_trou));
}

ier_2 qb7_loi_passif_palier(int num_materiau, int num_etat_lim, double es, double f_sed,
                            std::optional<double> f_sud, std::optional<double> eps_su, bool comprimes) {
  qb7_err_effacer();
  return err_traiter("QB7_LOI_Passif_Palier",
                     loc_passif_palier(num_materiau, num_etat_lim, es, f_sed, f_sud.value_or(f_sed),
                                       eps_su.value_or(0.01), comprimes));
}

ier_2 qb7_loi_passif_ec2_elu(int num_materiau, int num_etat_lim, double es, double f_sed,
                             std::optional<double> f_sud, double eps_su, bool comprimes) {
  return err_traiter("QB7_LOI_Passif_EC2_ELU",
                     qb7_loi_passif_palier(num_materiau, num_etat_lim, es, f_sed, f_sud, eps_su, comprimes));
}

ier_2 qb7_loi_beton_meca(int num_materiau, std::span<const int> tab_num_etat_lim) {
  qb7_err_effacer();
  return err_traiter("QB7_LOI_Beton_Meca", loc_3_etats_lim(num_materiau, tab_num_etat_lim,
                                                           {{{qb7_loi_lineaire, 1, qb7_trou_selon_zone},
                                                             {qb7_loi_lineaire, 1, qb7_trou_encombrement},
                                                             {qb7_loi_lineaire, 1, qb7_trou_encombrement}}}));
}

ier_2 qb7_loi_charpente_meca(int num_materiau, std::span<const int> tab_num_etat_lim) {
  qb7_err_effacer();
  return err_traiter("QB7_LOI_Charpente_Meca", loc_3_etats_lim(num_materiau, tab_num_etat_lim,
                                                               {{{qb7_loi_lineaire, 1, qb7_trou_matiere},
                                                                 {qb7_loi_lineaire, 1, qb7_trou_matiere},
                                                                 {qb7_loi_lineaire, 1, qb7_trou_matiere}}}));
}

ier_2 qb7_loi_passif_meca(int num_materiau, std::span<const int> tab_num_etat_lim, double n) {
  qb7_err_effacer();
  return err_traiter("QB7_LOI_Passif_Meca", loc_3_etats_lim(num_materiau, tab_num_etat_lim,
                                                            {{{qb7_loi_lineaire, 1, qb7_trou_selon_zone},
                                                              {qb7_loi_nulle, 0, qb7_trou_rien},
                                                              {qb7_loi_lineaire, n, qb7_trou_rien}}}));
}

ier_2 qb7_loi_actif_meca(int num_materiau, std::span<const int> tab_num_etat_lim, double n) {
  qb7_err_effacer();
  return err_traiter("QB7_LOI_Actif_Meca", loc_3_etats_lim(num_materiau, tab_num_etat_lim,
                                                           {{{qb7_loi_lineaire, 1, qb7_trou_selon_zone},
                                                             {qb7_loi_nulle, 0, qb7_trou_encombrement},
                                                             {qb7_loi_lineaire, n, qb7_trou_encombrement}}}));
}
