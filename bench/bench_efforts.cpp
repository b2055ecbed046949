// The engine's inner loops: forces and tangent of a section, one equilibrium.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <span>
#include <vector>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_Integration.hpp"
#include "QB7_Lois.hpp"
#include "QB7_Sections.hpp"

namespace {

constexpr int etat_lim = 1001;
constexpr int parabole = 1;
constexpr int degre_n = 2;
constexpr int acier = 3;

constexpr std::array rectangle = {point_yz{0.15, 0.3}, point_yz{-0.15, 0.3}, point_yz{-0.15, -0.3},
                                  point_yz{0.15, -0.3}};
constexpr std::array barres = {point_yz{-0.1, -0.25}, point_yz{0, -0.25}, point_yz{0.1, -0.25},
                               point_yz{-0.1, 0.25},  point_yz{0, 0.25},  point_yz{0.1, 0.25}};

/// A plane with the neutral axis across two edges and both knots of the concrete's law inside the section.
constexpr deformation plan = {0.0006, 0.006, -0.003};
constexpr efforts sollicitation = {0.5, 0.12, 0.03};

/// A failure of the set-up would make every figure worthless.
void loc_exiger(const ier_2& ier) {
  if (ier) std::abort();
}

void loc_creer_zone(int section, int zone, int type, int materiau, std::span<const point_yz> points) {
  std::vector<int> numeros;
  for (const point_yz& p : points) {
    numeros.push_back(100 * zone + static_cast<int>(numeros.size()));
    loc_exiger(qb7_creer_point(section, numeros.back(), p.y, p.z));
  }
  loc_exiger(qb7_creer_zone(section, zone, type, materiau, numeros));
  loc_exiger(qb7_activer_zone(section, zone, true, false));
}

/// A rectangle with six bars, of a concrete with a parabola (section 1) or of exponent n (section 2); a
/// circle of 64 vertices with 24 bars (section 3).
void loc_preparer() {
  gbd_glob_reinitialiser();
  loc_exiger(qb7_loi_parabole_rectangle_avec_bornes(parabole, etat_lim, 20, 0.002, 0.0035, false, 0));
  loc_exiger(qb7_loi_parabole_degre_n_avec_bornes(degre_n, etat_lim, 1.6, 40, 0.0023, 0.0029, false, 0));
  loc_exiger(qb7_loi_passif_palier(acier, etat_lim, 200000, 434.8, {}, 0.025, true));
  std::vector<point_yz> cercle;
  std::vector<point_yz> couronne;
  for (int i = 0; i < 64; ++i) {
    const double a = 2 * std::numbers::pi * i / 64;
    cercle.push_back({0.5 * std::cos(a), 0.5 * std::sin(a)});
    if (i % 8 < 3) couronne.push_back({0.44 * std::cos(a), 0.44 * std::sin(a)});
  }
  for (const int section : {1, 2, 3}) {
    loc_exiger(qb7_creer_section(section));
    loc_creer_zone(section, 1, qb7_zone_contour, section == 2 ? degre_n : parabole,
                   section == 3 ? std::span<const point_yz>(cercle) : rectangle);
    loc_creer_zone(section, 2, qb7_zone_semis, acier,
                   section == 3 ? std::span<const point_yz>(couronne) : barres);
    loc_exiger(qb7_fixer_param_zone(section, 2, 3.14e-4));
  }
}

void loc_calculer(int section) {
  loc_preparer();
  ier_2 ier;
  loc_exiger(eff_section_calcul(*gbd_sect_lst_chercher(gbd_glob.glob_lst_sections, section, ier), etat_lim));
}

void efforts_et_tangente(benchmark::State& state) {
  loc_calculer(static_cast<int>(state.range(0)));
  efforts f;
  rigidite k;
  ier_2 ier;
  for (auto _ : state) {
    eff_efforts_section(plan, f, &k, &ier);
    benchmark::DoNotOptimize(f);
    benchmark::DoNotOptimize(k);
  }
}

void efforts_seuls(benchmark::State& state) {
  loc_calculer(static_cast<int>(state.range(0)));
  efforts f;
  for (auto _ : state) {
    eff_efforts_section(plan, f);
    benchmark::DoNotOptimize(f);
  }
}

void preparation_des_tables(benchmark::State& state) {
  loc_preparer();
  ier_2 ier;
  gbd_section& section =
      *gbd_sect_lst_chercher(gbd_glob.glob_lst_sections, static_cast<int>(state.range(0)), ier);
  for (auto _ : state) loc_exiger(eff_section_calcul(section, etat_lim));
}

/// The facade's call, as the analyses make it: tables, search from the zero plane, limits judged.
void equilibre(benchmark::State& state) {
  loc_preparer();
  for (auto _ : state) {
    deformation d;
    loc_exiger(qb7_solliciter_section(true, static_cast<int>(state.range(0)), etat_lim, sollicitation, d));
    benchmark::DoNotOptimize(d);
  }
}

}  // namespace

BENCHMARK(efforts_et_tangente)->Arg(1)->Arg(2)->Arg(3);
BENCHMARK(efforts_seuls)->Arg(1)->Arg(2)->Arg(3);
BENCHMARK(preparation_des_tables)->Arg(1)->Arg(3);
BENCHMARK(equilibre)->Arg(1)->Arg(2)->Arg(3);
