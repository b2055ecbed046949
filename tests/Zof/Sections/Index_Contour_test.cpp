// Points in outlines: the parity of crossings against a count over all sides, and what lies on the outline.
#include "Index_Contour.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "Grille_Points.hpp"

namespace {

double distance_au_cote(point_yz p, point_yz a, point_yz b) {
  const double l = std::hypot(b.y - a.y, b.z - a.z);
  if (l == 0) return std::hypot(p.y - a.y, p.z - a.z);
  const double t = ((p.y - a.y) * (b.y - a.y) + (p.z - a.z) * (b.z - a.z)) / (l * l);
  if (t < 0) return std::hypot(p.y - a.y, p.z - a.z);
  if (t > 1) return std::hypot(p.y - b.y, p.z - b.z);
  return std::abs((p.y - a.y) * (b.z - a.z) - (p.z - a.z) * (b.y - a.y)) / l;
}

double distance(point_yz p, const polygone& contour) {
  double d = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < contour.size(); ++i)
    d = std::min(d, distance_au_cote(p, contour[i], contour[(i + 1) % contour.size()]));
  return d;
}

/// Turns of the outline round the point; its parity is that of the crossings of any ray.
int tours(point_yz p, const polygone& contour) {
  double somme = 0;
  for (std::size_t i = 0; i < contour.size(); ++i) {
    const point_yz a{contour[i].y - p.y, contour[i].z - p.z};
    const point_yz& s = contour[(i + 1) % contour.size()];
    const point_yz b{s.y - p.y, s.z - p.z};
    somme += std::atan2(a.y * b.z - a.z * b.y, a.y * b.y + a.z * b.z);
  }
  return static_cast<int>(std::lround(somme / (2 * std::numbers::pi)));
}

void comparer(const polygone& contour, std::mt19937& hasard, double taille) {
  const index_contour index(contour);
  std::uniform_real_distribution<double> reel(-taille, taille);
  for (int essai = 0; essai < 200; ++essai) {
    const point_yz p{reel(hasard), reel(hasard)};
    const double d = distance(p, contour);
    if (std::abs(d - zof_tolerance_points_confondus) < 1e-9) continue;
    const bool attendu = d < zof_tolerance_points_confondus || tours(p, contour) % 2 != 0;
    ASSERT_EQ(index.contient(p), attendu) << p.y << "; " << p.z << ", at " << d << " of the outline";
  }
}

}  // namespace

TEST(IndexContour, CommeLeNombreDeTours) {
  std::mt19937 hasard(7);
  std::uniform_real_distribution<double> reel(-1, 1);
  std::uniform_int_distribution<int> entier(-3, 3);
  for (const int n : {3, 4, 7, 30, 300}) {
    for (int essai = 0; essai < 20; ++essai) {
      polygone quelconque;
      polygone sur_grille;  // sides on one another, vertices on rays
      polygone etoile;
      for (int i = 0; i < n; ++i) {
        quelconque.push_back({reel(hasard), reel(hasard)});
        sur_grille.push_back({entier(hasard) / 4.0, entier(hasard) / 4.0});
        const double angle = 2 * std::numbers::pi * i / n;
        const double rayon = 0.75 + reel(hasard) / 4;
        etoile.push_back({rayon * std::cos(angle), rayon * std::sin(angle)});
      }
      for (const polygone& contour : {quelconque, sur_grille, etoile}) comparer(contour, hasard, 1.2);
    }
  }
}

// Long teeth across either axis: bands across the teeth would hold all of them.
TEST(IndexContour, UnPeigneDansUnSensOuDansLAutre) {
  std::mt19937 hasard(8);
  polygone en_y{{-1, -1}};
  for (int i = 0; i < 500; ++i) en_y.push_back({i % 2 == 0 ? 0.9 : -0.9, -1 + i / 250.0});
  polygone en_z;
  for (const point_yz& p : en_y) en_z.push_back({p.z, p.y});
  comparer(en_y, hasard, 1.1);
  comparer(en_z, hasard, 1.1);
}

TEST(IndexContour, LeBordEstDedans) {
  const index_contour carre({{1, 1}, {-1, 1}, {-1, -1}, {1, -1}});
  for (const double ecart : {0.0, 0.0009, -0.0009}) {
    EXPECT_TRUE(carre.contient({1 + ecart, 0.3}));
    EXPECT_TRUE(carre.contient({-1 - ecart, 0.3}));
    EXPECT_TRUE(carre.contient({0.3, 1 + ecart}));
    EXPECT_TRUE(carre.contient({0.3, -1 - ecart}));
    EXPECT_TRUE(carre.contient({1 + ecart / 2, 1 + ecart / 2}));
  }
  constexpr double tolerance = zof_tolerance_points_confondus;
  EXPECT_FALSE(carre.contient({1 + tolerance * 1.0001, 0.3})) << "the tolerance is strict";
  EXPECT_TRUE(carre.contient({1 + tolerance * 0.9999, 0.3}));
  EXPECT_FALSE(carre.contient({1.0009, 1.0009})) << "1.27 mm of the corner";
}

TEST(IndexContour, DesContoursQuiNEnSontPas) {
  constexpr double infini = std::numeric_limits<double>::infinity();
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(index_contour().contient({0, 0}));
  EXPECT_FALSE(index_contour(polygone{}).contient({0, 0}));
  EXPECT_TRUE(index_contour({{1, 1}}).contient({1, 1}));
  EXPECT_TRUE(index_contour({{0, 0}, {1, 0}, {2, 0}}).contient({1.5, 0}));
  for (const double v : {infini, -infini, nan, 1e308, -1e308, 1e-320}) {
    const index_contour index({{0, 0}, {v, 0}, {v, v}, {-v, v}, {0, 1}});
    for (const point_yz p : {point_yz{0, 0}, {v, v}, {-v, 1}, {nan, nan}, {infini, 0}})
      static_cast<void>(index.contient(p));
  }
}

TEST(GrillePoints, LaPorteeEstStricte) {
  grille_points grille(0.5);
  grille.ajouter({0, 0}, 3);
  grille.ajouter({2, 0}, 4);
  EXPECT_EQ(grille.rang_proche({0.3, 0.4}), 0);
  EXPECT_EQ(grille.rang_proche({0.3, 0.39}), 3);
  EXPECT_EQ(grille.rang_proche({-0.49, 0}), 3);
  EXPECT_EQ(grille.rang_proche({2, -0.4}), 4);
  EXPECT_EQ(grille.rang_proche({1, 0}), 0);
}
