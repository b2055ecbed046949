// One design through the facade: bars of a zone each around a beam, and loadings around its axis. Reach: 20
// zones under 100 loadings in 5 s; aim: 1 s. Growth with the loadings is meant to be linear, for the linear
// programme keeps only what is not zero.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <numbers>
#include <vector>

#include "QB7_Lois.hpp"
#include "QB7_Sections.hpp"

namespace {

constexpr int section_1 = 1;
constexpr int etat_lim = 1001;
constexpr int beton = 1;
constexpr int acier = 2;

/// A benchmark of something that failed would measure nothing.
void loc_exiger(ier_2 ier) {
  if (ier) std::abort();
}

/// 0.30 x 0.60, C30/37 and B500B at the ultimate limit state, bars 5 cm from the faces.
void loc_preparer(int nbre_zones) {
  qb7_quitter();
  loc_exiger(qb7_loi_parabole_rectangle_avec_bornes(beton, etat_lim, 20, 0.002, 0.0035, false, 0));
  loc_exiger(qb7_loi_passif_palier(acier, etat_lim, 200000, 500 / 1.15, {}, 0.05, false));
  loc_exiger(qb7_creer_section(section_1));
  const std::vector<point_yz> coins = {{0.15, 0.3}, {-0.15, 0.3}, {-0.15, -0.3}, {0.15, -0.3}};
  for (int i = 0; i < 4; ++i)
    loc_exiger(qb7_creer_point(section_1, i + 1, coins[static_cast<std::size_t>(i)].y,
                               coins[static_cast<std::size_t>(i)].z));
  loc_exiger(qb7_creer_zone(section_1, 1, qb7_zone_contour, beton, std::vector{1, 2, 3, 4}));
  loc_exiger(qb7_activer_zone(section_1, 1, true, false));
  for (int i = 0; i < nbre_zones; ++i) {
    const double angle = 2 * std::numbers::pi * (i + 0.5) / nbre_zones;
    const double k = std::max(std::abs(std::cos(angle)), std::abs(std::sin(angle)));
    const int zone = i + 2;
    loc_exiger(qb7_creer_point(section_1, 11 + i, 0.1 * std::cos(angle) / k, 0.25 * std::sin(angle) / k));
    loc_exiger(qb7_creer_zone(section_1, zone, qb7_zone_semis, acier, std::vector{11 + i}));
    loc_exiger(qb7_activer_zone(section_1, zone, true, false));
    loc_exiger(qb7_fixer_param_zone(section_1, zone, 3e-4, 0));
    loc_exiger(qb7_fixer_num_zone_mere(section_1, zone, 1));
    loc_exiger(qb7_fixer_dimensionnable(section_1, zone, true));
  }
}

std::vector<efforts> loc_charges(int nbre, double n) {
  std::vector<efforts> charges;
  for (int i = 0; i < nbre; ++i) {
    const double angle = 2 * std::numbers::pi * i / nbre + 0.3;
    charges.push_back(
        {n + 0.005 * (i % 7), (0.18 + 0.0015 * (i % 5)) * std::cos(angle), 0.075 * std::sin(angle)});
  }
  return charges;
}

void dimensionner(benchmark::State& state, double n) {
  loc_preparer(static_cast<int>(state.range(0)));
  const std::vector<efforts> charges = loc_charges(static_cast<int>(state.range(1)), n);
  const std::vector etats_lim(charges.size(), etat_lim);
  const std::vector etats(charges.size(), qb7_etat_du_dimensionnement);
  for (auto _ : state) {
    const ier_2 ier = qb7_dimensionner(section_1, etats_lim, etats, charges, 1);
    if (ier != ier_2{0, 1}) std::abort();  // the first method finds the steel, or there is nothing to measure
  }
}

/// Little N: many loadings near the worst, 4 to 53 exchanges in a linear programme.
BENCHMARK_CAPTURE(dimensionner, beaucoup_d_echanges, 0.5)
    ->ArgNames({"zones", "charges"})
    ->ArgsProduct({{4, 8, 12}, {100}})
    ->ArgsProduct({{20}, {10, 30, 100, 300}})
    ->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(dimensionner, peu_d_echanges, 0.8)
    ->ArgNames({"zones", "charges"})
    ->ArgsProduct({{4, 8, 12}, {100}})
    ->ArgsProduct({{20}, {10, 30, 100, 300, 1000}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
