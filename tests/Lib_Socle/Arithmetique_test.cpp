// Arithmetic that has a result for every argument.
#include "Arithmetique.hpp"

#include <gtest/gtest.h>

#include <climits>

using namespace socle;

TEST(Arithmetique, TronquerSatureEtIgnoreNaN) {
  EXPECT_EQ(tronquer(2.9), 2);
  EXPECT_EQ(tronquer(-2.9), -2);
  EXPECT_EQ(tronquer(1e300), INT_MAX);
  EXPECT_EQ(tronquer(-1e300), INT_MIN);
  EXPECT_EQ(tronquer(NAN), 0);
}

TEST(Arithmetique, LesEntiersTournentModulo2Puissance32) {
  EXPECT_EQ(somme_32(INT_MAX, 1), INT_MIN);
  EXPECT_EQ(difference_32(INT_MIN, 1), INT_MAX);
  EXPECT_EQ(produit_32(65536, 65536), 0);
  EXPECT_EQ(produit_32(INT_MIN, -1), INT_MIN);
}

TEST(Arithmetique, PuissanceDix) {
  EXPECT_EQ(puissance_dix(0), 1.0);
  EXPECT_EQ(puissance_dix(22), 1e22);
  EXPECT_EQ(puissance_dix(-3), 1.0 / 1000.0);
  EXPECT_EQ(puissance_dix(-22), 1e-22);
  EXPECT_EQ(puissance_dix(23), 1e23) << "the first that is not exact";
  EXPECT_EQ(puissance_dix(270), 1e270);
  EXPECT_NEAR(puissance_dix(286) / 1e286, 1.0, 1e-15);
  EXPECT_NEAR(puissance_dix(-286) / 1e-286, 1.0, 1e-15);
  EXPECT_EQ(puissance_dix(400), INFINITY);
  EXPECT_EQ(puissance_dix(-400), 0.0);
}

TEST(Arithmetique, IndicePartDeUn) { EXPECT_EQ(indice(1), 0U); }
