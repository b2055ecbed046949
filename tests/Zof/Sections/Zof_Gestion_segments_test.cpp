#include "Zof_Gestion_segments.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "QB7_Types.hpp"
#include "Zof_Formes_typees.hpp"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr double pi = std::numbers::pi;

struct faces {
  std::vector<int> sup, inf, droite, gauche;  // numbers of the sides
  std::vector<zof_segment> tous;
};

std::vector<int> numeros(const uef_vector& segments) {
  std::vector<int> n;
  for (const zof_segment& s : uef_parcours<zof_segment>(segments)) n.push_back(s.m_le_numero_segment);
  return n;
}

faces trier(const polygone& points, bool stricte, double angle = pi / 4) {
  uef_vector contour;
  for (const point_yz& p : points) contour.ajouter(zof_point(p.y, p.z));
  uef_vector sup;
  uef_vector inf;
  uef_vector droite;
  uef_vector gauche;
  uef_vector tous;
  const bool erco = false;
  zof_selectionner_segments_contour(contour, 7, angle, stricte, sup, inf, droite, gauche, tous, erco);
  faces f{numeros(sup), numeros(inf), numeros(droite), numeros(gauche), {}};
  for (const zof_segment& s : uef_parcours<zof_segment>(tous)) f.tous.push_back(s);
  return f;
}

const polygone carre{{0, 0}, {1, 0}, {1, 1}, {0, 1}};
// Flange 2 wide and 0.2 thick, web 0.4 wide, 1 high. Sides from 1: left tip, underside left, web left,
// bottom, web right, underside right, right tip, top.
const polygone te{{-1, 0}, {-1, -0.2}, {-0.2, -0.2}, {-0.2, -1}, {0.2, -1}, {0.2, -0.2}, {1, -0.2}, {1, 0}};

void verifier_vecteur(const vecteur_yz& v, double y, double z) {
  EXPECT_NEAR(v.y, y, 1e-15);
  EXPECT_NEAR(v.z, z, 1e-15);
}

}  // namespace

TEST(Segments, CotesDUnCarre) {
  const faces f = trier(carre, true);
  EXPECT_THAT(f.inf, ElementsAre(1));
  EXPECT_THAT(f.droite, ElementsAre(2));
  EXPECT_THAT(f.sup, ElementsAre(3));
  EXPECT_THAT(f.gauche, ElementsAre(4));
  ASSERT_EQ(f.tous.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    const zof_segment& s = f.tous[i];
    EXPECT_EQ(s.m_le_numero_segment, static_cast<int>(i) + 1);
    EXPECT_EQ(s.m_le_numero_zone, 7);
    const point_yz a = carre[i];
    const point_yz b = carre[(i + 1) % 4];
    EXPECT_EQ(s.m_le_point_origine.m_y, a.y);
    EXPECT_EQ(s.m_le_point_extremite.m_z, b.z);
    EXPECT_EQ(s.m_le_centre.m_y, (a.y + b.y) / 2);
    EXPECT_EQ(s.m_le_centre.m_z, (a.z + b.z) / 2);
  }
}

// A right angle: the bisector points to the centre, the half angle is 45 degrees; both sides of the corner
// know the same bisector, each its own perpendicular.
TEST(Segments, CoinsDUnCarre) {
  const faces f = trier(carre, true);
  const double r = std::sqrt(0.5);
  const zof_point& bas = f.tous[0].m_le_point_extremite;
  const zof_point& droit = f.tous[1].m_le_point_origine;
  verifier_vecteur(bas.m_vec_bissectrice, -r, r);
  verifier_vecteur(droit.m_vec_bissectrice, -r, r);
  verifier_vecteur(bas.m_vec_orthogonal, 0, 1);
  verifier_vecteur(droit.m_vec_orthogonal, -1, 0);
  EXPECT_NEAR(bas.m_angle_bissectrice, pi / 4, 1e-15);
  EXPECT_FALSE(bas.m_est_entrant);
  verifier_vecteur(f.tous[0].m_le_point_origine.m_vec_bissectrice, r, r);  // the last side closes the outline
}

TEST(Segments, CoinsRentrants) {
  const faces f = trier(te, true);
  const double r = std::sqrt(0.5);
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(f.tous[i].m_le_point_extremite.m_est_entrant, i == 1 || i == 4) << i;
    EXPECT_NEAR(f.tous[i].m_le_point_extremite.m_angle_bissectrice, pi / 4, 1e-15) << i;
  }
  // Where the underside meets the web: into the concrete is up and towards the web.
  verifier_vecteur(f.tous[1].m_le_point_extremite.m_vec_bissectrice, r, r);
  verifier_vecteur(f.tous[5].m_le_point_origine.m_vec_bissectrice, -r, r);
}

TEST(Segments, FacesStrictesEtFacesParParois) {
  const faces strictes = trier(te, true);
  EXPECT_THAT(strictes.sup, ElementsAre(8));
  EXPECT_THAT(strictes.inf, ElementsAre(4));
  EXPECT_THAT(strictes.gauche, ElementsAre(3));
  EXPECT_THAT(strictes.droite, ElementsAre(5));
  const faces parois = trier(te, false);
  EXPECT_THAT(parois.sup, ElementsAre(1, 2, 6, 7, 8));
  EXPECT_THAT(parois.inf, ElementsAre(4));
  EXPECT_THAT(parois.gauche, ElementsAre(3));
  EXPECT_THAT(parois.droite, ElementsAre(5));
}

// The limit holds on both sides: a slope below it makes a top or a bottom, a slope above it a right or a
// left.
TEST(Segments, AngleAvecLHorizontale) {
  const polygone losange{{0, -1}, {2, -0.5}, {2, 0.5}, {0, 1}, {-2, 0.5}, {-2, -0.5}};
  const double pente = std::atan(0.25);
  EXPECT_THAT(trier(losange, true, pente + 2e-6).sup, ElementsAre(3, 4));
  EXPECT_THAT(trier(losange, true, pente - 2e-6).sup, IsEmpty());
  EXPECT_THAT(trier(losange, true, pente + 2e-6).inf, ElementsAre(1, 6));
  const polygone biseau{{0, -1}, {2, 1}, {-2, 1}};  // sides at 45 degrees across mid-height
  EXPECT_THAT(trier(biseau, true, pi / 4 - 2e-6).droite, ElementsAre(1));
  EXPECT_THAT(trier(biseau, true, pi / 4 - 2e-6).gauche, ElementsAre(3));
  EXPECT_THAT(trier(biseau, true, pi / 4 + 2e-6).droite, IsEmpty());
  EXPECT_THAT(trier(biseau, false, pi / 4 + 2e-6).droite, ElementsAre(1));
}

// Chamfers at 45 degrees, up to the single precision of their coordinates, are on no strict face.
TEST(Segments, AngleEgalALaLimite) {
  constexpr double c = 0.02;
  constexpr double e = 1e-9;
  const polygone chanfreine{{c, 0},         {1 - c, 0}, {1, c + e},     {1, 1 - c},
                            {1 - c - e, 1}, {c, 1},     {0, 1 - c + e}, {0, c}};
  const faces f = trier(chanfreine, true);
  EXPECT_THAT(f.inf, ElementsAre(1));
  EXPECT_THAT(f.droite, ElementsAre(3));
  EXPECT_THAT(f.sup, ElementsAre(5));
  EXPECT_THAT(f.gauche, ElementsAre(7));
}

// An end at mid-height does not cross it: the sides of a diamond are at the top and at the bottom.
TEST(Segments, BoutAMiHauteur) {
  const faces f = trier({{0, -1}, {1, 0}, {0, 1}, {-1, 0}}, false);
  EXPECT_THAT(f.droite, IsEmpty());
  EXPECT_THAT(f.gauche, IsEmpty());
  EXPECT_THAT(f.inf, ElementsAre(1, 4));
  EXPECT_THAT(f.sup, ElementsAre(2, 3));
  const faces arrondi = trier({{0, -1}, {1, 1e-8}, {0, 1}, {-1, -1e-8}}, false);
  EXPECT_THAT(arrondi.droite, IsEmpty());
  EXPECT_THAT(arrondi.inf, ElementsAre(1, 4));
  // A horizontal side at mid-height is at the top.
  const faces escalier = trier({{0, -1}, {1, -1}, {1, -1e-8}, {2, -1e-8}, {2, 1}, {0, 1}}, false);
  EXPECT_THAT(escalier.sup, ElementsAre(3, 4, 5));
  EXPECT_THAT(escalier.gauche, ElementsAre(6));
}

// The mouth of a slot in the right side: the part of the outline that looks inwards is not on a strict face.
TEST(Segments, CotesTournesVersLInterieur) {
  // A frame open to the left: its inner vertical side at y = 1 runs downwards, on the right of the middle.
  const polygone cadre{{0, 0}, {1.5, 0}, {1.5, 1}, {0, 1}, {0, 0.8}, {1, 0.8}, {1, 0.2}, {0, 0.2}};
  EXPECT_THAT(trier(cadre, true).droite, ElementsAre(2));
  EXPECT_THAT(trier(cadre, false).droite, ElementsAre(2, 6));
  EXPECT_THAT(trier(cadre, true).sup, ElementsAre(3));
  EXPECT_THAT(trier(cadre, false).sup, ElementsAre(3, 4, 5));
  EXPECT_THAT(trier(cadre, true).inf, ElementsAre(1));
  EXPECT_THAT(trier(cadre, false).inf, ElementsAre(1, 7, 8));
}

// Aligned sides have the perpendicular for a bisector, and a half angle of 90 degrees; whichever way rounding
// turns them, the bisector stays on the left.
TEST(Segments, CotesAlignesOuPresque) {
  for (const double ecart : {0.0, 1e-17, -1e-17, 1e-14, -1e-14, 1e-11, -1e-11, 1e-9, -1e-9, 1e-8, -1e-8}) {
    const faces f = trier({{0, 0}, {0.5, ecart}, {1, 0}, {1, 1}, {0, 1}}, true);
    const zof_point& milieu = f.tous[0].m_le_point_extremite;
    EXPECT_NEAR(milieu.m_vec_bissectrice.y, 0, 1e-3) << ecart;
    EXPECT_NEAR(milieu.m_vec_bissectrice.z, 1, 1e-6) << ecart;
    EXPECT_NEAR(std::sin(milieu.m_angle_bissectrice), 1, 1e-12) << ecart;
    EXPECT_EQ(milieu.m_est_entrant, ecart > 1e-12) << ecart;
  }
}

// An outline that goes out along a line and comes back on it: no angle, whatever the direction of the line.
TEST(Segments, PointeSansAngle) {
  for (int k = 1; k < 90; ++k) {
    const double y = std::cos(k * pi / 180);
    const double z = std::sin(k * pi / 180);
    const faces f = trier({{0, 0}, {1, 0}, {1, 1}, {1 + 2 * y, 1 + 2 * z}, {1 + y, 1 + z}, {0, 1}}, true);
    EXPECT_LT(std::sin(f.tous[2].m_le_point_extremite.m_angle_bissectrice), 1e-15) << k;
  }
}

TEST(Segments, EnErreurLesListesRestent) {
  uef_vector contour;
  uef_vector liste;
  liste.ajouter(zof_segment());
  const bool erco = true;
  zof_selectionner_segments_contour(contour, 1, 0.5, true, liste, liste, liste, liste, liste, erco);
  EXPECT_EQ(liste.nombre(), 1);
}

// The extents of a section far from the origin of its axes start from 1000 m: it lies to the right and above
// of the middle so found.
TEST(Segments, SectionLoinDeLOrigine) {
  const faces f = trier({{2000, 2000}, {2001, 2000}, {2001, 2001}, {2000, 2001}}, false);
  EXPECT_THAT(f.sup, ElementsAre(1, 2, 3, 4));
}
