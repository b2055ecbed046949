#include "QB7_Types.hpp"

#include <gmock/gmock.h>

#include <cmath>

// Stored by clients beside real numbers: a changed marker would silently become a number, or the other way
// round.
static_assert(qb7_indefini == -33554432 && qb7_sans_mere == -33554430 && qb7_sans_materiau == -33554428);
static_assert(qb7_etat_mecanique == -33554416 && qb7_sans_borne == 33554432.0);
static_assert(qb7_etat_du_dimensionnement == -33554424);
static_assert(qb7_zone_vide == 1000 && qb7_zone_contour == 1001 && qb7_zone_sous_contour == 1002);
static_assert(qb7_zone_profil == 1003 && qb7_zone_semis == 1004);
static_assert(qb7_trou_encombrement == 2000 && qb7_trou_matiere == 2001 && qb7_trou_rien == 2002);
static_assert(qb7_trou_selon_zone == 2003 && qb7_deform_cumulee == -1328 && qb7_deform_imposee == 1328);

// Strain at (y, z) = (2, 3): 1 + 10 * 3 - 100 * 2.
static_assert(epsilon({1, 10, 100}, {2, 3}) == -169);

TEST(Types, UnStatutEstVraiQuandIlYAEchec) {
  EXPECT_FALSE(ier_2{});
  EXPECT_TRUE((ier_2{43060, 0}));
}

TEST(Types, SommesEtMultiples) {
  EXPECT_EQ((deformation{1, 2, 3} + deformation{10, 20, 30}), (deformation{11, 22, 33}));
  EXPECT_EQ((deformation{1, 2, 3} - deformation{10, 20, 30}), (deformation{-9, -18, -27}));
  EXPECT_EQ((2 * deformation{1, 2, 3}), (deformation{2, 4, 6}));
  EXPECT_EQ((efforts{1, 2, 3} + efforts{10, 20, 30}), (efforts{11, 22, 33}));
  EXPECT_EQ((efforts{1, 2, 3} - efforts{10, 20, 30}), (efforts{-9, -18, -27}));
  EXPECT_EQ((2 * efforts{1, 2, 3}), (efforts{2, 4, 6}));
  rigidite r{1, 2, 3, 4, 5, 6};
  r += rigidite{1, 1, 1, 1, 1, 1};
  EXPECT_EQ(r, (rigidite{2, 3, 4, 5, 6, 7}));
  r -= rigidite{2, 2, 2, 2, 2, 2};
  EXPECT_EQ((3 * r), (rigidite{0, 3, 6, 9, 12, 15}));
  EXPECT_EQ(norme_2(deformation{1, 2, 3}), 14);
  EXPECT_EQ(norme_2(efforts{1, 2, 3}), 14);
}

// A quarter turn: the frame's y axis is the section's z axis.
TEST(Types, UnPointVuDUnRepere) {
  const repere r{.y_rep = 1, .z_rep = 2, .alpha = 0, .cosal = 0, .sinal = 1};
  EXPECT_EQ(vers_repere(r, {4, 7}), (point_yz{5, -3}));
  EXPECT_EQ(depuis_repere(r, {5, -3}), (point_yz{4, 7}));
  const double a = 0.3;
  const repere oblique{.y_rep = -0.2, .z_rep = 0.7, .alpha = a, .cosal = std::cos(a), .sinal = std::sin(a)};
  const point_yz retour = depuis_repere(oblique, vers_repere(oblique, {4, 7}));
  EXPECT_NEAR(retour.y, 4, 1e-14);
  EXPECT_NEAR(retour.z, 7, 1e-14);
}
