#include "QB7_Jacobie.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "QB7_Equilibre.hpp"

namespace {

/// v diag(valeurs) v' with v the rotation of Euler angles a, b.
matrice_3 loc_symetrique(const std::array<double, 3>& valeurs, double a, double b) {
  const double ca = std::cos(a);
  const double sa = std::sin(a);
  const double cb = std::cos(b);
  const double sb = std::sin(b);
  const matrice_3 v = {{{ca, -sa * cb, sa * sb}, {sa, ca * cb, -ca * sb}, {0, sb, cb}}};
  matrice_3 m{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      for (std::size_t k = 0; k < 3; ++k) m[i][j] += v[i][k] * valeurs[k] * v[j][k];
    }
  }
  return m;
}

}  // namespace

TEST(Jacobi, RetrouveLesValeursPropresChoisies) {
  for (const auto& valeurs :
       {std::array{1.0, 2.0, 5.0}, std::array{-3.0, 0.5, 40.0}, std::array{1e-3, 200.0, 1e4}}) {
    for (const double a : {0.0, 0.4, 1.3}) {
      const matrice_3 m = loc_symetrique(valeurs, a, 0.9 - a);
      matrice_3 d = m;
      matrice_3 v{};
      ASSERT_EQ(uti_analyse_spectrale_matrice_symetrique_jacobie(d, &v, 1e-14, 200), 0);
      std::array trouvees = {d[0][0], d[1][1], d[2][2]};
      std::ranges::sort(trouvees);
      for (std::size_t k = 0; k < 3; ++k) EXPECT_NEAR(trouvees[k], valeurs[k], 1e-11 * valeurs[2]);
      // columns of v are eigenvectors
      for (std::size_t k = 0; k < 3; ++k) {
        for (std::size_t i = 0; i < 3; ++i) {
          const double mv = m[i][0] * v[0][k] + m[i][1] * v[1][k] + m[i][2] * v[2][k];
          EXPECT_NEAR(mv, d[k][k] * v[i][k], 1e-10 * valeurs[2]);
        }
      }
    }
  }
}

// Equal diagonal terms: theta is 0, and the rotation is by 45 degrees. Without a sign for zero nothing would
// turn.
TEST(Jacobi, TermesDiagonauxEgaux) {
  matrice_3 a = {{{10, 0, 0}, {0, 2, 1}, {0, 1, 2}}};
  EXPECT_DOUBLE_EQ(eff_valeur_propre_minimale_rigidite(a, 1e-5, 200), 1);
  ASSERT_EQ(uti_analyse_spectrale_matrice_symetrique_jacobie(a, nullptr, 1e-5, 0), 0);
  EXPECT_EQ(a[1][2], 0);
  EXPECT_EQ(a[2][1], 0);
}

TEST(Jacobi, UneMatriceDiagonaleNeTournePas) {
  matrice_3 a = {{{3, 0, 0}, {0, -1, 0}, {0, 0, 2}}};
  const matrice_3 avant = a;
  EXPECT_EQ(uti_analyse_spectrale_matrice_symetrique_jacobie(a, nullptr, 1e-5, 0), 0);
  EXPECT_EQ(a, avant);
  EXPECT_EQ(eff_valeur_propre_minimale_rigidite(a, 1e-5, 200), -1);
  EXPECT_EQ(eff_valeur_propre_minimale_rigidite({}, 1e-5, 200), 0);
}

// The sum of the entries is zero: only exact zeros outside the diagonal end the loop.
TEST(Jacobi, SommeNulleDesTermes) {
  const double minimale =
      eff_valeur_propre_minimale_rigidite({{{1, -1, 0}, {-1, 2, -1}, {0, -1, 1}}}, 1e-5, 200);
  EXPECT_NEAR(minimale, 0, 1e-14);
}

TEST(Jacobi, UnNombreDeRotationsInsuffisantEstUnEchec) {
  const matrice_3 m = loc_symetrique({1, 2, 5}, 0.4, 0.9);
  matrice_3 a = m;
  EXPECT_EQ(uti_analyse_spectrale_matrice_symetrique_jacobie(a, nullptr, 1e-14, 0), 1);
  EXPECT_EQ(eff_valeur_propre_minimale_rigidite(m, 1e-14, 0), std::numeric_limits<double>::lowest());
}

// Of equal terms the one in the corner goes first: one rotation is allowed, and it is that one that is zero.
TEST(Jacobi, DesTermesEgauxCommencentParLeCoin) {
  matrice_3 a = {{{1, 1, 1}, {1, 2, 1}, {1, 1, 3}}};
  EXPECT_EQ(uti_analyse_spectrale_matrice_symetrique_jacobie(a, nullptr, 1e-14, 0), 1);
  EXPECT_EQ(a[0][2], 0);
  EXPECT_NE(a[0][1], 0);
  EXPECT_NE(a[1][2], 0);
}

// The scale of the stop test is sqrt(|sum of the nine entries|) / 3: 57.7 for three terms of 1e4,
// hence 5.77e-4 with 1e-5; and next to nothing where the entries cancel, however large they are.
TEST(Jacobi, LArretSeMesureALaSommeDesTermes) {
  const auto tourne = [](std::array<double, 3> diagonale, double terme) {
    matrice_3 a = {{{diagonale[0], terme, 0}, {terme, diagonale[1], 0}, {0, 0, diagonale[2]}}};
    EXPECT_EQ(uti_analyse_spectrale_matrice_symetrique_jacobie(a, nullptr, 1e-5, 200), 0);
    return a[0][1] == 0;
  };
  EXPECT_FALSE(tourne({1e4, 1e4, 1e4}, 5.7e-4));
  EXPECT_TRUE(tourne({1e4, 1e4, 1e4}, 5.8e-4));
  EXPECT_FALSE(tourne({-1e4, -1e4, -1e4}, 5.7e-4));  // the magnitude of a negative sum
  EXPECT_TRUE(tourne({-1e4, -1e4, -1e4}, 5.8e-4));
  EXPECT_TRUE(tourne({4, 5, -9}, 1e-6));
}

TEST(Jacobi, UnNonNombreNEstPasUneValeurPropre) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(eff_valeur_propre_minimale_rigidite({{{nan, 0, 0}, {0, 2, 0}, {0, 0, 3}}}, 1e-5, 200), 2);
  EXPECT_TRUE(
      std::isnan(eff_valeur_propre_minimale_rigidite({{{nan, 0, 0}, {0, nan, 0}, {0, 0, nan}}}, 1e-5, 200)));
}

// Rotations by very small and very large angles: theta passes 1e19 on both sides.
TEST(Jacobi, TermesDOrdresTresDifferents) {
  const matrice_3 grand = {{{1, 1e-5, 0}, {1e-5, 1e16, 0}, {0, 0, 4}}};
  EXPECT_NEAR(eff_valeur_propre_minimale_rigidite(grand, 1e-30, 200), 1, 1e-12);
  const matrice_3 petit = {{{1e16, 1e-5, 0}, {1e-5, 1, 0}, {0, 0, 4}}};
  EXPECT_NEAR(eff_valeur_propre_minimale_rigidite(petit, 1e-30, 200), 1, 1e-12);
}
