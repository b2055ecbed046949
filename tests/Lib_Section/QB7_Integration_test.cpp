#include "QB7_Integration.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

namespace {

struct loi_de_test {
  std::vector<double> epsilons;
  std::vector<qb7_polynome> coeffs;

  vue_loi vue() const { return {epsilons, coeffs, int_degre_effectif(coeffs)}; }
};

using points_t = std::vector<point_yz>;

const loi_de_test unite = {{0}, {{0, 1}}};
const loi_de_test constante = {{-1, 0}, {{-300}, {12}}};
const loi_de_test acier = {{-1, -0.002, 0.002}, {{-395, 2500}, {0, 200000}, {395, 2500}}};
/// Parabola-rectangle: f_cd = 20, eps_c1 = 0.002.
const loi_de_test beton = {{-1, 0, 0.002}, {{}, {0, 20000, -5e6}, {20}}};
/// Continuous with its slope, of degree 3: rises from 0 to 30 between 0 and 0.0025, then constant.
const loi_de_test cubique = {{-1, 0, 0.0025}, {{}, {0, 0, 3 * 30 / 6.25e-6, -2 * 30 / 1.5625e-8}, {30}}};

/// 0.60 x 0.90 in the shape of an L, about no axis of symmetry.
const points_t equerre = {{0, 0}, {0.6, 0}, {0.6, 0.2}, {0.25, 0.2}, {0.25, 0.9}, {0, 0.9}};
const points_t rectangle = {{0.15, 0.3}, {-0.15, 0.3}, {-0.15, -0.3}, {0.15, -0.3}};
const points_t ligne_brisee = {{-0.1, 0.2}, {0.1, 0.2}, {0, -0.1}, {0.15, -0.3}};

const std::vector<deformation> plans = {{0.001, 0, 0},           {0, 0.004, 0},
                                        {0.0005, 0.003, -0.002}, {0.001, -0.004, 0.003},
                                        {-0.0004, 0, 0.005},     {0.0012, 0.0031, 0.0017}};

enum class forme { contour, profil, semis };

resultante loc_integrer(forme f, const loi_de_test& loi, const deformation& plan, const points_t& points) {
  const contexte_zone ctx{loi.vue(), plan};
  switch (f) {
    case forme::contour: return int_efforts_contour(ctx, points, true);
    case forme::profil: return int_efforts_profil(ctx, points, 0.012, true);
    default: return int_efforts_semis(ctx, points, 3e-4, true);
  }
}

void loc_proches(const efforts& a, const efforts& b, double tolerance) {
  EXPECT_NEAR(a.n, b.n, tolerance);
  EXPECT_NEAR(a.my, b.my, tolerance);
  EXPECT_NEAR(a.mz, b.mz, tolerance);
}

void loc_proches(const rigidite& a, const rigidite& b, double tolerance) {
  EXPECT_NEAR(a.a1, b.a1, tolerance);
  EXPECT_NEAR(a.a2, b.a2, tolerance);
  EXPECT_NEAR(a.b2, b.b2, tolerance);
  EXPECT_NEAR(a.a3, b.a3, tolerance);
  EXPECT_NEAR(a.b3, b.b3, tolerance);
  EXPECT_NEAR(a.c3, b.c3, tolerance);
}

double loc_plus_grand(const rigidite& k) {
  return std::max(
      {std::abs(k.a1), std::abs(k.a2), std::abs(k.b2), std::abs(k.a3), std::abs(k.b3), std::abs(k.c3)});
}

points_t loc_tourner(const points_t& points, double angle) {
  points_t r;
  for (const point_yz& p : points) {
    r.push_back(
        {p.y * std::cos(angle) - p.z * std::sin(angle), p.y * std::sin(angle) + p.z * std::cos(angle)});
  }
  return r;
}

}  // namespace

// Stress = strain: N, My and Mz of the planes (1, 0, 0), (0, 1, 0), (0, 0, 1) are the area, the static
// moments and the inertias, here of a rectangle 0.25 x 0.9 and one 0.35 x 0.2.
TEST(IntegrationContour, LaLoiUniteDonneAireMomentsStatiquesEtInerties) {
  const double aire = 0.25 * 0.9 + 0.35 * 0.2;
  const double s_z = 0.25 * 0.9 * 0.45 + 0.35 * 0.2 * 0.1;
  const double s_y = 0.25 * 0.9 * 0.125 + 0.35 * 0.2 * 0.425;
  const double i_zz = 0.25 * std::pow(0.9, 3) / 3 + 0.35 * std::pow(0.2, 3) / 3;
  const double i_yy = 0.9 * std::pow(0.25, 3) / 3 + 0.2 * (std::pow(0.6, 3) - std::pow(0.25, 3)) / 3;
  const double i_yz = std::pow(0.25 * 0.9, 2) / 4 + (0.36 - 0.0625) / 2 * 0.04 / 2;
  const auto integrer = [](const deformation& d) { return loc_integrer(forme::contour, unite, d, equerre); };
  loc_proches(integrer({1, 0, 0}).eff, {aire, s_z, -s_y}, 1e-15);
  loc_proches(integrer({0, 1, 0}).eff, {s_z, i_zz, -i_yz}, 1e-15);
  loc_proches(integrer({0, 0, 1}).eff, {-s_y, -i_yz, i_yy}, 1e-15);
  loc_proches(integrer({0, 0, 0}).mat, {aire, s_z, i_zz, -s_y, -i_yz, i_yy}, 1e-15);
  loc_proches(integrer({0.3, -0.7, 0.9}).mat, {aire, s_z, i_zz, -s_y, -i_yz, i_yy}, 1e-15);
  EXPECT_NEAR(int_aire_contour(equerre), aire, 1e-15);
}

// sigma = f_cd (1 - (1 - 0.5)^2) at half of eps_c1.
TEST(IntegrationContour, CompressionUniformeAMiParabole) {
  const auto r = loc_integrer(forme::contour, beton, {0.001, 0, 0}, rectangle);
  loc_proches(r.eff, {0.75 * 20 * 0.3 * 0.6, 0, 0}, 1e-14);
  loc_proches(r.mat, {10000 * 0.18, 0, 10000 * 0.3 * 0.216 / 12, 0, 0, 10000 * 0.6 * 0.027 / 12}, 1e-11);
}

// Strain from 0 at the bottom to 0.0035 at the top: the block of the parabola-rectangle is 17/21 full and its
// centre lies 99/238 of the height under the top.
TEST(IntegrationContour, BlocParaboleRectangleEntier) {
  const auto r = loc_integrer(forme::contour, beton, {0.00175, 0.0035 / 0.6, 0}, rectangle);
  const double n = 17.0 / 21 * 20 * 0.3 * 0.6;
  loc_proches(r.eff, {n, n * (0.3 - 99.0 / 238 * 0.6), 0}, 1e-14);
}

// Neutral axis along the diagonal of a square: a triangle is compressed, from 0 on its base to eps_c1 at the
// corner.
TEST(IntegrationContour, TriangleComprimeSousFlexionDeviee) {
  const double h = std::sqrt(0.5) * 0.4;  // half diagonal of the square 0.4 x 0.4
  const points_t carre = {{0.2, 0.2}, {-0.2, 0.2}, {-0.2, -0.2}, {0.2, -0.2}};
  const double k = 0.002 / h / std::numbers::sqrt2;
  const auto r = loc_integrer(forme::contour, beton, {0, k, -k}, carre);
  // width 2 (h - s) at the distance s from the diagonal, stress 20 (2 s/h - s²/h²)
  const double n = 40 * h * h * (1.0 / 3 - 1.0 / 12);               // ∫ (1 - x)(2x - x²) dx = 1/4
  const double m = 40 * h * h * h * (2.0 / 3 - 3.0 / 4 + 1.0 / 5);  // ∫ x (1 - x)(2x - x²) dx = 7/60
  loc_proches(r.eff, {n, m / std::numbers::sqrt2, -m / std::numbers::sqrt2}, 1e-13);
}

// A segment from strain 0 to 0.004 under the parabola-rectangle: mean stress 20 (1 - 1/6), its moments by
// hand.
TEST(IntegrationProfil, SegmentTraversantUnNoeud) {
  const points_t segment = {{0.3, 0}, {0.3, 0.4}};
  const auto r = loc_integrer(forme::profil, beton, {0, 0.01, 0}, segment);
  const double aire = 0.012 * 0.4;
  const double n = aire * 20 * (1 - 1.0 / 6);
  const double my = aire * 0.4 * 20 * (0.25 * (2.0 / 3 - 1.0 / 4) + 0.375);
  loc_proches(r.eff, {n, my, -0.3 * n}, 1e-15);
  EXPECT_NEAR(int_longueur_profil(segment), 0.4, 1e-15);
}

TEST(IntegrationSemis, ChaquePointPorteSaContrainte) {
  const points_t points = {{0.1, -0.25}, {-0.2, 0.3}};
  const auto r = loc_integrer(forme::semis, acier, {-0.001, 0.012, 0}, points);
  const double f1 = 3e-4 * (-395 + 2500 * -0.004);  // strain -0.004, on the lower plateau
  const double f2 = 3e-4 * (395 + 2500 * 0.0026);
  loc_proches(r.eff, {f1 + f2, -0.25 * f1 + 0.3 * f2, -0.1 * f1 + 0.2 * f2}, 1e-15);
  const double k = 3e-4 * 2500;
  loc_proches(r.mat, {2 * k, 0.05 * k, (0.0625 + 0.09) * k, 0.1 * k, (0.025 + 0.06) * k, (0.01 + 0.04) * k},
              1e-14);
}

// A strain on a knot takes the law on its right.
TEST(IntegrationSemis, SurUnNoeudLaLoiDeDroiteVaut) {
  const auto r = loc_integrer(forme::semis, constante, {0, 0, 0}, {{0, 0}});
  EXPECT_DOUBLE_EQ(r.eff.n, 3e-4 * 12);
}

TEST(Integration, LaTangenteEstLaDeriveeDesEfforts) {
  for (const loi_de_test* loi : {&unite, &acier, &beton, &cubique}) {
    for (const forme f : {forme::contour, forme::profil, forme::semis}) {
      for (const deformation& d : plans) {
        const double pas = 1e-7;
        const auto derivee = [&](const deformation& direction) {
          return 0.5 / pas *
                 (loc_integrer(f, *loi, d + pas * direction, ligne_brisee).eff -
                  loc_integrer(f, *loi, d - pas * direction, ligne_brisee).eff);
        };
        const efforts e0 = derivee({1, 0, 0});
        const efforts ky = derivee({0, 1, 0});
        const efforts kz = derivee({0, 0, 1});
        const rigidite k = loc_integrer(f, *loi, d, ligne_brisee).mat;
        const double tolerance = 2e-4 * std::max(loc_plus_grand(k), 1e-3);
        loc_proches(k, {e0.n, ky.n, ky.my, kz.n, kz.my, kz.mz}, tolerance);
        loc_proches(k, {e0.n, e0.my, ky.my, e0.mz, ky.mz, kz.mz}, tolerance);
      }
    }
  }
}

// Turning the section and the plane together turns the moments and leaves N: whatever axes the outline is
// integrated in.
TEST(Integration, UneSectionTourneeDonneLesEffortsTournes) {
  for (const loi_de_test* loi : {&constante, &acier, &beton, &cubique}) {
    for (const forme f : {forme::contour, forme::profil, forme::semis}) {
      for (const deformation& d : plans) {
        const double angle = 0.7;
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        // strain e0 + ky z - kz y is the same at the turned point
        const deformation tourne = {d.e0, c * d.ky - s * d.kz, s * d.ky + c * d.kz};
        const auto r = loc_integrer(f, *loi, d, equerre);
        const auto t = loc_integrer(f, *loi, tourne, loc_tourner(equerre, angle));
        const double tolerance = 1e-12 * std::max(1.0, std::abs(r.eff.n));
        loc_proches(t.eff, {r.eff.n, c * r.eff.my - s * r.eff.mz, s * r.eff.my + c * r.eff.mz}, tolerance);
        const rigidite& k = r.mat;
        loc_proches(
            t.mat,
            {k.a1, c * k.a2 - s * k.a3, c * c * k.b2 - 2 * c * s * k.b3 + s * s * k.c3, s * k.a2 + c * k.a3,
             (c * c - s * s) * k.b3 + c * s * (k.b2 - k.c3), s * s * k.b2 + 2 * c * s * k.b3 + c * c * k.c3},
            1e-11 * std::max(1.0, loc_plus_grand(k)));
      }
    }
  }
}

TEST(IntegrationContour, UnContourCoupeEnDeuxDonneLaSomme) {
  const points_t bas = {{0, 0}, {0.6, 0}, {0.6, 0.2}, {0.25, 0.2}, {0.1, 0.33}};
  const points_t haut = {{0, 0}, {0.1, 0.33}, {0.25, 0.2}, {0.25, 0.9}, {0, 0.9}};
  for (const loi_de_test* loi : {&unite, &constante, &acier, &beton, &cubique}) {
    for (const deformation& d : plans) {
      const auto tout = loc_integrer(forme::contour, *loi, d, equerre);
      const auto somme =
          loc_integrer(forme::contour, *loi, d, bas) + loc_integrer(forme::contour, *loi, d, haut);
      loc_proches(somme.eff, tout.eff, 1e-13 * std::max(1.0, std::abs(tout.eff.n)));
      loc_proches(somme.mat, tout.mat, 1e-12 * std::max(1.0, loc_plus_grand(tout.mat)));
    }
  }
}

// More vertices on the same outline: each piece of an edge that crosses several knots counts once.
TEST(IntegrationContour, DesSommetsDePlusNeChangentRien) {
  points_t fin;
  for (std::size_t i = 0; i < equerre.size(); ++i) {
    const point_yz& a = equerre[i];
    const point_yz& b = equerre[(i + 1) % equerre.size()];
    for (int k = 0; k < 10; ++k) fin.push_back({a.y + (b.y - a.y) * k / 10, a.z + (b.z - a.z) * k / 10});
  }
  const deformation raide = {-0.004, 0.02, 0.003};
  for (const loi_de_test* loi : {&acier, &cubique}) {
    const auto r = loc_integrer(forme::contour, *loi, raide, equerre);
    const auto f = loc_integrer(forme::contour, *loi, raide, fin);
    loc_proches(f.eff, r.eff, 1e-12 * std::abs(r.eff.n));
    loc_proches(f.mat, r.mat, 1e-12 * loc_plus_grand(r.mat));
  }
}

TEST(IntegrationContour, LOrdreDesPointsDonneLeSigne) {
  const points_t inverse(equerre.rbegin(), equerre.rend());
  for (const deformation& d : plans) {
    const auto r = loc_integrer(forme::contour, beton, d, equerre);
    const auto i = loc_integrer(forme::contour, beton, d, inverse);
    loc_proches(i.eff, -1 * r.eff, 1e-14);
    loc_proches(i.mat, -1 * r.mat, 1e-10);
  }
  EXPECT_NEAR(int_aire_contour(inverse), -int_aire_contour(equerre), 1e-16);
}

TEST(IntegrationContour, LePointDeDepartNeChangeRien) {
  // knots on vertices and along edges: the first vertex may stand on a knot, above it or below it
  const deformation d = {0.001, 0.001 / 0.3, 0};
  const auto r = loc_integrer(forme::contour, beton, d, rectangle);
  EXPECT_NEAR(r.eff.n, 20 * 0.18 * 2.0 / 3, 1e-14);
  for (std::size_t debut = 1; debut < rectangle.size(); ++debut) {
    points_t tournes = rectangle;
    std::ranges::rotate(tournes, tournes.begin() + static_cast<std::ptrdiff_t>(debut));
    const auto t = loc_integrer(forme::contour, beton, d, tournes);
    loc_proches(t.eff, r.eff, 1e-14);
    loc_proches(t.mat, r.mat, 1e-10);
  }
}

// Under 1e-9 of curvature about z the axes are not turned: the strain at the vertices still comes from the
// whole plane, and the forces differ from the turned ones by less than 1e-7.
TEST(IntegrationContour, CourbureNegligeableSansChangementDAxes) {
  for (const deformation& d : {deformation{0.0012, 0, 0}, deformation{0.0012, 0.004, 0}}) {
    const auto sans = loc_integrer(forme::contour, beton, d + deformation{0, 0, 5e-10}, equerre);
    const auto avec = loc_integrer(forme::contour, beton, d + deformation{0, 0, 1.1e-9}, equerre);
    loc_proches(sans.eff, avec.eff, 1e-7 * std::abs(avec.eff.n));
    EXPECT_NE(sans.eff.n, loc_integrer(forme::contour, beton, d, equerre).eff.n);
  }
}

// The axes are turned from 1e-9 on: there the forces are exact, just under it the slope of the strain along y
// is left out between the edges. The exact ones come from the outline turned by a quarter of a radian, in
// which the plane is bent about both axes.
TEST(IntegrationContour, LesAxesTournentAPartirDUnMilliardieme) {
  const auto ecart = [](double kz) {
    const deformation d = {0.0012, 0.004, kz};
    const double c = std::cos(0.25);
    const double s = std::sin(0.25);
    const deformation tourne = {d.e0, c * d.ky - s * d.kz, s * d.ky + c * d.kz};
    const auto exact = loc_integrer(forme::contour, beton, tourne, loc_tourner(equerre, 0.25));
    const efforts f = {exact.eff.n, c * exact.eff.my + s * exact.eff.mz, c * exact.eff.mz - s * exact.eff.my};
    const efforts diff = loc_integrer(forme::contour, beton, d, equerre).eff - f;
    return std::sqrt(norme_2(diff) / norme_2(f));
  };
  EXPECT_LT(ecart(1e-9), 1e-14);
  EXPECT_LT(ecart(-1e-9), 1e-14);
  EXPECT_GT(ecart(0.999e-9), 1e-10);
  EXPECT_LT(ecart(0.999e-9), 1e-7);
}

TEST(Integration, SansTangenteLesEffortsSontLesMemes) {
  for (const deformation& d : plans) {
    const contexte_zone ctx{cubique.vue(), d};
    EXPECT_EQ(int_efforts_contour(ctx, equerre, false).eff, int_efforts_contour(ctx, equerre, true).eff);
    EXPECT_EQ(int_efforts_profil(ctx, equerre, 0.01, false).eff,
              int_efforts_profil(ctx, equerre, 0.01, true).eff);
    EXPECT_EQ(int_efforts_semis(ctx, equerre, 0.01, false).eff,
              int_efforts_semis(ctx, equerre, 0.01, true).eff);
    EXPECT_EQ(int_efforts_contour(ctx, equerre, false).mat, rigidite{});
  }
}

TEST(Integration, UneFormeSansPointNeDonneRien) {
  const contexte_zone ctx{beton.vue(), {0.001, 0, 0}};
  EXPECT_EQ(int_efforts_contour(ctx, {}, true).eff, efforts{});
  EXPECT_EQ(int_efforts_profil(ctx, {}, 1, true).eff, efforts{});
  EXPECT_EQ(int_efforts_semis(ctx, {}, 1, true).eff, efforts{});
  EXPECT_EQ(int_aire_contour({}), 0);
  EXPECT_EQ(int_longueur_profil({}), 0);
}

TEST(Integration, DegreEffectif) {
  EXPECT_EQ(int_degre_effectif(constante.coeffs), 0);
  EXPECT_EQ(int_degre_effectif(acier.coeffs), 1);
  EXPECT_EQ(int_degre_effectif(beton.coeffs), 2);
  EXPECT_EQ(int_degre_effectif(cubique.coeffs), 3);
}
