// An interaction diagram, through the facade. 100 points: reach 20 ms for the beam of six bars, aim 5 ms;
// reach 60 ms for a pile of 48 sides and 16 bars, aim 20 ms. The others show the growth with the points of
// the curve, the points of the outline and the zones, which is linear.
#include <benchmark/benchmark.h>

#include <cmath>
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

void loc_creer_zone(int num_zone, int type_zone, int num_materiau, const std::vector<point_yz>& points) {
  std::vector<int> numeros;
  for (const point_yz& p : points) {
    numeros.push_back(10000 * num_zone + static_cast<int>(numeros.size()));
    loc_exiger(qb7_creer_point(section_1, numeros.back(), p.y, p.z));
  }
  loc_exiger(qb7_creer_zone(section_1, num_zone, type_zone, num_materiau, numeros));
  loc_exiger(qb7_activer_zone(section_1, num_zone, true, false));
}

/// C30/37 and B500B at the ultimate limit state.
void loc_preparer() {
  qb7_quitter();
  loc_exiger(qb7_loi_parabole_rectangle_avec_bornes(beton, etat_lim, 20, 0.002, 0.0035, false, 0));
  loc_exiger(qb7_loi_passif_palier(acier, etat_lim, 200000, 500 / 1.15, {}, 0.05));
  loc_exiger(qb7_creer_section(section_1));
}

std::vector<point_yz> loc_cercle(int nbre_points, double rayon) {
  std::vector<point_yz> points;
  for (int i = 0; i < nbre_points; ++i) {
    const double angle = 2 * std::numbers::pi * i / nbre_points;
    points.push_back({rayon * std::cos(angle), rayon * std::sin(angle)});
  }
  return points;
}

void loc_preparer_poutre() {
  loc_preparer();
  loc_creer_zone(1, qb7_zone_contour, beton, {{0.15, 0.3}, {-0.15, 0.3}, {-0.15, -0.3}, {0.15, -0.3}});
  loc_creer_zone(2, qb7_zone_semis, acier,
                 {{-0.1, -0.25}, {0.1, -0.25}, {-0.1, 0}, {0.1, 0}, {-0.1, 0.25}, {0.1, 0.25}});
  loc_exiger(qb7_fixer_param_zone(section_1, 2, 3.14e-4, 0));
}

void loc_preparer_pieu(int nbre_points) {
  loc_preparer();
  loc_creer_zone(1, qb7_zone_contour, beton, loc_cercle(nbre_points, 0.5));
  loc_creer_zone(2, qb7_zone_semis, acier, loc_cercle(16, 0.42));
  loc_exiger(qb7_fixer_param_zone(section_1, 2, 4.9e-4, 0));
}

/// My against N under a fixed Mz; with a Mz of 0 a section that is symmetric bends about one axis alone.
void loc_diagramme(benchmark::State& state, int nbre_points, double mz = 0) {
  const matrice_3 mat_plan = {{{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}};
  std::vector<point_xy> points(static_cast<std::size_t>(nbre_points));
  for (auto _ : state) {
    loc_exiger(qb7_diagramme_interaction(true, section_1, etat_lim, mat_plan, mz, points));
    benchmark::DoNotOptimize(points.data());
  }
}

void poutre_de_six_barres(benchmark::State& state) {
  loc_preparer_poutre();
  loc_diagramme(state, static_cast<int>(state.range(0)));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(poutre_de_six_barres)
    ->Arg(25)
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Arg(400)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void poutre_deviee(benchmark::State& state) {
  loc_preparer_poutre();
  loc_diagramme(state, 100, 0.03);
}
BENCHMARK(poutre_deviee)->Unit(benchmark::kMillisecond);

void pieu_de_n_points(benchmark::State& state) {
  loc_preparer_pieu(static_cast<int>(state.range(0)));
  loc_diagramme(state, 100);
  state.SetComplexityN(state.range(0));
}
BENCHMARK(pieu_de_n_points)
    ->Arg(12)
    ->Arg(48)
    ->Arg(192)
    ->Arg(768)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

/// One bar a zone, each a daughter of the outline.
void poutre_de_n_zones(benchmark::State& state) {
  loc_preparer();
  loc_creer_zone(1, qb7_zone_contour, beton, {{0.15, 0.3}, {-0.15, 0.3}, {-0.15, -0.3}, {0.15, -0.3}});
  const int n = static_cast<int>(state.range(0));
  for (int i = 0; i < n; ++i) {
    const double y = -0.1 + 0.2 * i / n;
    loc_creer_zone(i + 2, qb7_zone_semis, acier, {{y, i % 2 == 0 ? -0.25 : 0.25}});
    loc_exiger(qb7_fixer_param_zone(section_1, i + 2, 20e-4 / n, 0));
    loc_exiger(qb7_fixer_num_zone_mere(section_1, i + 2, 1));
  }
  loc_diagramme(state, 100);
  state.SetComplexityN(n);
}
BENCHMARK(poutre_de_n_zones)->RangeMultiplier(4)->Range(4, 256)->Unit(benchmark::kMillisecond)->Complexity();

}  // namespace
