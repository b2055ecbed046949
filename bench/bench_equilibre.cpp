// One equilibrium of a section, through the facade: work tables built, plane found. Reach: 10 us for the beam
// of six bars; aim: 2 us. The others show the growth with points and with zones, which is linear, also when
// the outline lists its points out of order; the same beam with creep; and what entering points costs,
// numbered upwards and, at its dearest, downwards.
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

void loc_creer_zone(int num_zone, int type_zone, int num_materiau, const std::vector<point_yz>& points,
                    int premier_point, int pas) {
  std::vector<int> numeros;
  int numero = premier_point;
  for (const point_yz& p : points) {
    loc_exiger(qb7_creer_point(section_1, numero, p.y, p.z));
    numeros.push_back(numero);
    numero += pas;
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

std::vector<point_yz> loc_rectangle() { return {{0.15, 0.3}, {-0.15, 0.3}, {-0.15, -0.3}, {0.15, -0.3}}; }

std::vector<point_yz> loc_cercle(int nbre_points, double rayon) {
  std::vector<point_yz> points;
  for (int i = 0; i < nbre_points; ++i) {
    const double angle = 2 * std::numbers::pi * i / nbre_points;
    points.push_back({rayon * std::cos(angle), rayon * std::sin(angle)});
  }
  return points;
}

void loc_solliciter(benchmark::State& state, const efforts& efforts_section) {
  for (auto _ : state) {
    deformation plan;
    loc_exiger(qb7_solliciter_section(true, section_1, etat_lim, efforts_section, plan));
    benchmark::DoNotOptimize(plan);
  }
}

/// 0.30 x 0.60, 20 mm bars: six of them in three layers, in one zone.
void loc_poutre_de_six_barres() {
  loc_creer_zone(1, qb7_zone_contour, beton, loc_rectangle(), 1, 1);
  loc_creer_zone(2, qb7_zone_semis, acier,
                 {{-0.1, -0.25}, {0.1, -0.25}, {-0.1, 0}, {0.1, 0}, {-0.1, 0.25}, {0.1, 0.25}}, 11, 1);
  loc_exiger(qb7_fixer_param_zone(section_1, 2, 3.14e-4, 0));
}

void poutre_de_six_barres(benchmark::State& state) {
  loc_preparer();
  loc_poutre_de_six_barres();
  loc_solliciter(state, {0.8, 0.12, -0.03});
}
BENCHMARK(poutre_de_six_barres)->Unit(benchmark::kMicrosecond);

/// The same beam, its concrete with a creep coefficient of 2 (EN 1992-1-1 3.1.4) under the permanent half of
/// its forces: the plane at rest, then that under all of them.
void poutre_qui_flue(benchmark::State& state) {
  loc_preparer();
  loc_poutre_de_six_barres();
  loc_exiger(qb7_fixer_fluante(section_1, 1, true));
  loc_exiger(qb7_fixer_c_fluage(section_1, 1, 2.0 / 20000));
  for (auto _ : state) {
    deformation plan;
    qb7_histoire_fluage histoire;
    loc_exiger(
        qb7_solliciter_permanent_section(true, section_1, etat_lim, {0.4, 0.06, -0.015}, plan, histoire));
    loc_exiger(qb7_solliciter_final_section(true, section_1, etat_lim, histoire, {0.8, 0.12, -0.03}, plan));
    benchmark::DoNotOptimize(plan);
    state.counters["planes"] = histoire.nb_tab_deform_section;
  }
}
BENCHMARK(poutre_qui_flue)->Unit(benchmark::kMicrosecond);

void pieu_de_n_points(benchmark::State& state) {
  loc_preparer();
  loc_creer_zone(1, qb7_zone_contour, beton, loc_cercle(static_cast<int>(state.range(0)), 0.5), 1, 1);
  loc_creer_zone(2, qb7_zone_semis, acier, loc_cercle(16, 0.42), 100001, 1);
  loc_exiger(qb7_fixer_param_zone(section_1, 2, 4.9e-4, 0));
  loc_solliciter(state, {2.5, 0.5, 0.2});
  state.SetComplexityN(state.range(0));
}
BENCHMARK(pieu_de_n_points)->RangeMultiplier(4)->Range(16, 4096)->Unit(benchmark::kMicrosecond)->Complexity();

/// The points of the outline numbered by leaps: each look-up is far from the one before.
void pieu_mal_numerote(benchmark::State& state) {
  loc_preparer();
  const int n = static_cast<int>(state.range(0));
  std::vector<int> numeros;
  const std::vector<point_yz> points = loc_cercle(n, 0.5);
  for (int i = 0; i < n; ++i) {
    // an odd number and a power of two have no common factor: every rank comes once
    numeros.push_back(1 + i * 7 % n);
    loc_exiger(qb7_creer_point(section_1, numeros.back(), points[static_cast<std::size_t>(i)].y,
                               points[static_cast<std::size_t>(i)].z));
  }
  loc_exiger(qb7_creer_zone(section_1, 1, qb7_zone_contour, beton, numeros));
  loc_exiger(qb7_activer_zone(section_1, 1, true, false));
  loc_creer_zone(2, qb7_zone_semis, acier, loc_cercle(16, 0.42), 100001, 1);
  loc_exiger(qb7_fixer_param_zone(section_1, 2, 4.9e-4, 0));
  loc_solliciter(state, {2.5, 0.5, 0.2});
  state.SetComplexityN(state.range(0));
}
BENCHMARK(pieu_mal_numerote)
    ->RangeMultiplier(4)
    ->Range(16, 4096)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity();

/// One bar a zone, each a daughter of the outline.
void poutre_de_n_zones(benchmark::State& state) {
  loc_preparer();
  loc_creer_zone(1, qb7_zone_contour, beton, loc_rectangle(), 1, 1);
  const int n = static_cast<int>(state.range(0));
  for (int i = 0; i < n; ++i) {
    const double y = -0.1 + 0.2 * i / n;
    loc_creer_zone(i + 2, qb7_zone_semis, acier, {{y, i % 2 == 0 ? -0.25 : 0.25}}, 11 + i, 1);
    loc_exiger(qb7_fixer_param_zone(section_1, i + 2, 20e-4 / n, 0));
    loc_exiger(qb7_fixer_num_zone_mere(section_1, i + 2, 1));
  }
  loc_solliciter(state, {0.8, 0.12, -0.03});
  state.SetComplexityN(n);
}
BENCHMARK(poutre_de_n_zones)->RangeMultiplier(4)->Range(4, 1024)->Unit(benchmark::kMicrosecond)->Complexity();

/// What entering the points costs, numbered as `pas` says.
void creer_des_points(benchmark::State& state, int pas) {
  const int n = static_cast<int>(state.range(0));
  for (auto _ : state) {
    loc_exiger(qb7_creer_section(section_1 + 1));
    for (int i = 0; i < n; ++i) loc_exiger(qb7_creer_point(section_1 + 1, pas * i, 0, 0));
    loc_exiger(qb7_supprimer_section(section_1 + 1));
  }
  state.SetComplexityN(n);
}
BENCHMARK_CAPTURE(creer_des_points, montants, 1)->RangeMultiplier(4)->Range(64, 4096)->Complexity();
BENCHMARK_CAPTURE(creer_des_points, descendants, -1)->RangeMultiplier(4)->Range(64, 4096)->Complexity();

}  // namespace
