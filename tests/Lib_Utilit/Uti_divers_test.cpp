#include "Uti_divers.hpp"

#include <gmock/gmock.h>

#include <numbers>
#include <vector>

#include "Lecteur.hpp"
#include "Outils.hpp"

using testing::ElementsAre;

namespace {

constexpr double pi = std::numbers::pi;

}  // namespace

// The right-hand side is made from the solution; the first pivot is null, so that rows must change places.
TEST(Gauss, RetrouveLaSolutionChoisie) {
  const std::vector<double> x{2, -1, 0.5};
  socle::matrice a(3, 3);
  const std::vector<std::vector<double>> lignes{{0, 2, 4}, {3, -1, 1}, {1, 1, -2}};
  std::vector<double> b(3);
  for (std::size_t i = 0; i < 3; ++i)
    for (std::size_t j = 0; j < 3; ++j) {
      a(i, j) = lignes[i][j];
      b[i] += lignes[i][j] * x[j];
    }
  ASSERT_TRUE(uti_resolve_gauss_d(a, b));
  for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(b[i], x[i], 1e-14);
}

TEST(Gauss, EnSimplePrecision) {
  std::vector<float> a{0, 2, 3, -1};
  std::vector<float> b{-2, 7};
  ASSERT_TRUE(uti_resolve_gauss_s(a, b));
  EXPECT_FLOAT_EQ(b[0], 2);
  EXPECT_FLOAT_EQ(b[1], -1);
}

TEST(Gauss, UneMatriceSinguliereEstRefusee) {
  socle::matrice a(2, 2);
  a(0, 0) = 1;
  a(0, 1) = 3;
  a(1, 0) = 1.0 / 3;
  a(1, 1) = 1;
  std::vector<double> b{1, 1};
  EXPECT_FALSE(uti_resolve_gauss_d(a, b));
  socle::matrice nulle(2, 2);
  EXPECT_FALSE(uti_inversion_matrice_non_symetrique_d(nulle));
}

// By hand: the inverse of (2 1; 5 3) is (3 -1; -5 2).
TEST(Inversion, DeuxParDeux) {
  socle::matrice a(2, 2);
  a(0, 0) = 2;
  a(0, 1) = 1;
  a(1, 0) = 5;
  a(1, 1) = 3;
  ASSERT_TRUE(uti_inversion_matrice_non_symetrique_d(a));
  EXPECT_NEAR(a(0, 0), 3, 1e-13);
  EXPECT_NEAR(a(0, 1), -1, 1e-13);
  EXPECT_NEAR(a(1, 0), -5, 1e-13);
  EXPECT_NEAR(a(1, 1), 2, 1e-13);
}

TEST(Listes, TriEtRangs) {
  std::vector<int> liste{3, -1, 3, 2};
  EXPECT_EQ(uti_rang_valeur_maxi_e(liste), 1) << "the first of the greatest";
  EXPECT_EQ(uti_rang_valeur_v_e(liste, 2), 4);
  EXPECT_EQ(uti_rang_valeur_v_e(liste, 9), 0);
  uti_tri_croissant_e(liste);
  EXPECT_THAT(liste, ElementsAre(-1, 2, 3, 3));
  EXPECT_EQ(uti_rang_valeur_maxi_s(std::vector<float>{-3, -1, -2}), 2);
  EXPECT_EQ(uti_rang_valeur_maxi_e(std::vector<int>{}), 0);
}

TEST(Espace, Produits) {
  EXPECT_THAT(uti_produit_v_spatial_d({1, 2, 3}, {4, 5, 6}), ElementsAre(-3, 6, -3));
  EXPECT_THAT(uti_vecteur_2_plans({1, 0, 0}, {0, 1, 0}), ElementsAre(0, 0, 1));
  const std::vector<double> a{3, 4, 12};
  EXPECT_DOUBLE_EQ(uti_produit_scalaire_d(a, a), 169);
  EXPECT_DOUBLE_EQ(uti_norme_euclidienne_d(a), 13);
  const std::vector<float> b{3, 4};
  EXPECT_FLOAT_EQ(uti_produit_scalaire_s(b, b), 25);
  EXPECT_FLOAT_EQ(uti_norme_euclidienne_s(b), 5);
}

TEST(Espace, ProduitParLaTransposee) {
  socle::matrice a(1, 2);
  a(0, 0) = 1;
  a(0, 1) = 2;
  socle::matrice b(2, 2);
  b(0, 0) = 3;
  b(0, 1) = 4;
  b(1, 0) = 5;
  b(1, 1) = 6;
  const socle::matrice p = uti_produit_matrice_a_bt_d(a, b);
  EXPECT_DOUBLE_EQ(p(0, 0), 11);
  EXPECT_DOUBLE_EQ(p(0, 1), 17);
}

TEST(Espace, RotationAutourDUnAxe) {
  const matrice_3 quart = uti_op_rotation_spatiale_d({0, 0, 2}, pi / 2);  // x goes to y
  EXPECT_NEAR(quart[0][0], 0, 1e-15);
  EXPECT_NEAR(quart[1][0], 1, 1e-15);
  EXPECT_NEAR(quart[0][1], -1, 1e-15);
  EXPECT_NEAR(quart[2][2], 1, 1e-15);
  const matrice_3 tiers = uti_op_rotation_spatiale_d({1, 1, 1}, 2 * pi / 3);  // x to y, y to z, z to x
  EXPECT_NEAR(tiers[1][0], 1, 1e-15);
  EXPECT_NEAR(tiers[2][1], 1, 1e-15);
  EXPECT_NEAR(tiers[0][2], 1, 1e-15);
  EXPECT_EQ(uti_op_rotation_spatiale_d({0, 0, 0}, 1)[1][1], 1);
}

TEST(Angles, LArgumentEstRameneA1) {
  EXPECT_DOUBLE_EQ(uti_arc_sinus_d(1.0000001), pi / 2);
  EXPECT_DOUBLE_EQ(uti_arc_sinus_d(0.5), pi / 6);
  EXPECT_DOUBLE_EQ(uti_arc_cosinus_d(-1.0000001), pi);
  EXPECT_DOUBLE_EQ(uti_arc_cosinus_d(0.5), pi / 3);
  EXPECT_DOUBLE_EQ(uti_arc_sinus_cosinus_d(-1, 0), -pi / 2);
  EXPECT_NEAR(uti_arc_sinus_cosinus_d(0.5, -0.8660254037844386), 5 * pi / 6, 1e-15);
}

TEST(Arret, NommeLaProcedure) {
  const lecteur l("");
  EXPECT_EQ(statut_d_arret([] { uti_arret_premature("uti_essai"); }), 1);
  EXPECT_EQ(l.console(), "' ATTENTION - ARRET PREMATURE : PROCEDURE 'uti_essai PREVENIR LE GESTIONNAIRE\n");
}
