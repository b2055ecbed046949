// Where bars along the sides of a contour stand. Positions come from closed forms; cover is checked by the
// distance of every bar to every side, which shares nothing with the laying.

#include "Zof_Gestion_Ferraillage_Automatique.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "Edition.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "modele.hpp"

using namespace socle;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr double pi = std::numbers::pi;

zof_ferraillage& zone(const std::string& nom = "F1") {
  return dynamic_cast<zof_ferraillage&>(*zof_get_pt_nom_zone_section("S1", nom));
}
polygone positions(const std::string& nom = "F1") {
  return zof_get_pt_nom_zone_section("S1", nom)->positions_points();
}

void verifier(const polygone& points, const polygone& attendus, double tolerance = 1e-12) {
  ASSERT_EQ(points.size(), attendus.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    EXPECT_NEAR(points[i].y, attendus[i].y, tolerance) << i;
    EXPECT_NEAR(points[i].z, attendus[i].z, tolerance) << i;
  }
}

std::string automatique(const std::string& options, const std::string& nom = "F1") {
  return "FERR " + nom + " MATE HA OPTI SELE P_20 FI " + options + " FIN_OPTI FIN_FERR\n";
}
std::string lit(const std::string& face, int nombre, const std::string& nom = "F1") {
  return "FERR " + nom + " MATE HA DIAM 20.D0 LITS " + face + " ENRO 0.03D0 NOMB " + std::to_string(nombre) +
         " FIN_LITS FIN_FERR\n";
}
// 0.6 high, 0.3 wide; with bars of 20 and a cover of 30 mm their axes stand 40 mm inside.
std::string poutre(const std::string& barres) {
  return contour("RECT HAUT 0.6D0 LARG 0.3D0 FIN_RECT\n" + barres);
}
const std::string r40 = "ENRO 0.03D0 ";

double distance_au_cote(point_yz p, point_yz a, point_yz b) {
  const double y = b.y - a.y;
  const double z = b.z - a.z;
  const double t = std::clamp(((p.y - a.y) * y + (p.z - a.z) * z) / (y * y + z * z), 0.0, 1.0);
  return std::hypot(a.y + t * y - p.y, a.z + t * z - p.z);
}
double distance_au_contour(point_yz p, const polygone& contour) {
  double d = 1e30;
  for (std::size_t i = 0; i < contour.size(); ++i)
    d = std::min(d, distance_au_cote(p, contour[i], contour[(i + 1) % contour.size()]));
  return d;
}
// Sum of the angles under which the sides are seen: 2 pi from within, 0 from without.
bool dedans(point_yz p, const polygone& contour) {
  double angle = 0;
  for (std::size_t i = 0; i < contour.size(); ++i) {
    const point_yz a{contour[i].y - p.y, contour[i].z - p.z};
    const point_yz q = contour[(i + 1) % contour.size()];
    const point_yz b{q.y - p.y, q.z - p.z};
    angle += std::atan2(a.y * b.z - a.z * b.y, a.y * b.y + a.z * b.z);
  }
  return angle > pi;
}
polygone contour_de(const std::string& nom) {
  return zof_get_pt_nom_zone_section("S1", nom)->positions_points();
}

// Distance to the line of a side is r, for one side at least.
bool a_distance_d_un_cote(point_yz p, const polygone& contour, double r) {
  for (std::size_t i = 0; i < contour.size(); ++i) {
    const point_yz a = contour[i];
    const point_yz b = contour[(i + 1) % contour.size()];
    const double d =
        ((b.y - a.y) * (p.z - a.z) - (b.z - a.z) * (p.y - a.y)) / std::hypot(b.y - a.y, b.z - a.z);
    if (std::abs(std::abs(d) - r) < 1e-12) return true;
  }
  return false;
}

// Every bar stands in the concrete, at no less than r from any side of contour and void, and at r from the
// line of one of them.
void verifier_enrobage(const polygone& barres, double r, const std::vector<std::string>& vides = {}) {
  ASSERT_FALSE(barres.empty());
  const polygone contour = contour_de("C1");
  for (const point_yz& p : barres) {
    bool au_droit = a_distance_d_un_cote(p, contour, r);
    EXPECT_TRUE(dedans(p, contour)) << p.y << " " << p.z;
    EXPECT_GE(distance_au_contour(p, contour), r - 1e-12) << p.y << " " << p.z;
    for (const std::string& nom : vides) {
      const polygone vide = contour_de(nom);
      au_droit = au_droit || a_distance_d_un_cote(p, vide, r);
      EXPECT_FALSE(dedans(p, vide)) << p.y << " " << p.z;
      EXPECT_GE(distance_au_contour(p, vide), r - 1e-12) << p.y << " " << p.z;
    }
    EXPECT_TRUE(au_droit) << p.y << " " << p.z;
  }
}

bool existe(const polygone& barres, point_yz q) {
  return std::any_of(barres.begin(), barres.end(),
                     [q](point_yz p) { return std::hypot(p.y - q.y, p.z - q.z) < 1e-9; });
}
void verifier_symetrie(const polygone& barres, bool haut_bas = false) {
  for (const point_yz& p : barres) {
    EXPECT_TRUE(existe(barres, {-p.y, p.z})) << p.y << " " << p.z;
    if (haut_bas) {
      EXPECT_TRUE(existe(barres, {p.y, -p.z})) << p.y << " " << p.z;
    }
  }
}

}  // namespace

// ---- A rectangle, mode by mode

TEST(Pose, FaceSuperieure) {
  modele m(poutre(automatique("DISP SUPE STRI LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier(positions(), {{0.11, 0.26}, {0, 0.26}, {-0.11, 0.26}});
  EXPECT_THAT(m.console(), Not(HasSubstr("ATTENTION")));
  const zof_ferraillage& f = zone();
  EXPECT_NEAR(f.m_longueur_ferraillage, 0.22, 1e-15);
  EXPECT_NEAR(f.m_espacement_max_effectif, 0.11, 1e-15);
  EXPECT_NEAR(f.m_espacement_min_effectif, 0.11, 1e-15);
  EXPECT_NEAR(f.m_espacement_moyen_effectif, 0.11, 1e-15);
  int numero = 40000;
  for (const zof_point& p : uef_parcours<zof_point>(f.m_les_points_zone))
    EXPECT_EQ(p.m_numero_point, ++numero);
}

// The second layer stands straight above the first.
TEST(Pose, DeuxLitsEnFaceInferieure) {
  modele m(poutre(automatique("DISP INFE STRI LITS 2 DIST 0.06D0 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier(positions(),
           {{-0.11, -0.26}, {0, -0.26}, {0.11, -0.26}, {-0.11, -0.20}, {0, -0.20}, {0.11, -0.20}});
  EXPECT_NEAR(zone().m_longueur_ferraillage, 0.22, 1e-15);  // of one layer
  EXPECT_NEAR(zone().m_espacement_min_effectif, 0.11, 1e-15);
}

// 0.52 m between the corner bars: two inner bars. The step from one face to the other is no spacing.
TEST(Pose, FacesLaterales) {
  modele m(poutre(automatique("DISP LATE STRI LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  const double e = 0.52 / 3;
  verifier(positions(), {{0.11, -0.26},
                         {0.11, -0.26 + e},
                         {0.11, 0.26 - e},
                         {0.11, 0.26},
                         {-0.11, 0.26},
                         {-0.11, 0.26 - e},
                         {-0.11, -0.26 + e},
                         {-0.11, -0.26}});
  EXPECT_NEAR(zone().m_espacement_max_effectif, e, 1e-15);
  EXPECT_NEAR(zone().m_espacement_moyen_effectif, e, 1e-15);
  EXPECT_NEAR(zone().m_longueur_ferraillage, 1.04, 1e-15);
}

// A further layer stands beside the first, of the same height: the corners belong to the top and the bottom.
TEST(Pose, FacesLateralesEnDeuxLits) {
  modele m(poutre(automatique("DISP LATE STRI LITS 2 DIST 0.05D0 E_MA 1. " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier(positions(), {{0.11, -0.26},
                         {0.11, 0.26},
                         {-0.11, 0.26},
                         {-0.11, -0.26},
                         {0.06, -0.26},
                         {0.06, 0.26},
                         {-0.06, 0.26},
                         {-0.06, -0.26}});
}

// Further layers all round close at their own corners.
TEST(Pose, ToutAutourEnDeuxLits) {
  modele m(poutre(automatique("DISP PERI STRI LITS 2 DIST 0.05D0 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  polygone attendus;
  for (const double a : {0.0, 0.05}) {
    const double y = 0.11 - a;
    const double z = 0.26 - a;
    const double e = 2 * z / 3;
    for (const point_yz p : polygone{{y, z},
                                     {0, z},
                                     {-y, z},
                                     {-y, z - e},
                                     {-y, e - z},
                                     {-y, -z},
                                     {0, -z},
                                     {y, -z},
                                     {y, e - z},
                                     {y, z - e}})
      attendus.push_back(p);
  }
  verifier(positions(), attendus);
  verifier_symetrie(positions(), true);
  polygone lit_1 = positions();
  lit_1.resize(10);
  verifier_enrobage(lit_1, 0.04);
  // From bar to bar of layer 1: 2 of 0.11, 3 of 0.1733, 2 of 0.11, 2 of 0.1733; where a corner has spacings
  // of two kinds the smaller one of the two that meet counts for the bar before it.
  EXPECT_NEAR(zone().m_espacement_max_effectif, 0.52 / 3, 1e-15);
  EXPECT_NEAR(zone().m_espacement_min_effectif, 0.11, 1e-15);
}

// The default cover of 30 mm and the default bar of 25.
TEST(Pose, ValeursParDefaut) {
  modele m(poutre("FERR F1 MATE HA DIME OUI OPTI DISP SUPE STRI FIN_OPTI FIN_FERR"));
  ASSERT_TRUE(m.lire()) << m.console();
  const double r = simple(0.03F) + 0.0125;
  verifier(positions(), {{0.15 - r, 0.3 - r}, {0, 0.3 - r}, {r - 0.15, 0.3 - r}});
}

// ---- Numbers of bars

// The greatest spacing rules, then the least takes one bar away where both allow it.
TEST(Pose, NombreDeBarres) {
  struct cas {
    std::string bornes;
    int nombre;
  };
  // 0.52 m on each of the two sides.
  for (const cas& c :
       {cas{"E_MA 0.52D0", 2}, cas{"E_MA 0.13", 5}, cas{"E_MA 0.13D0", 5}, cas{"E_MA 0.1299D0", 6},
        cas{"E_MA 0.6D0", 2}, cas{"E_MA 0.5D0", 3}, cas{"E_MA 0.27D0", 3}, cas{"E_MA 0.25D0", 4},
        cas{"E_MA 0.1D0", 7}, cas{"E_MA 0.055D0 E_MI 0.04D0", 11},
        // 0.52/3 = 0.1733 < 0.18, but 0.26 > 0.2: the bar stays
        cas{"E_MA 0.2D0 E_MI 0.18D0", 4},
        // 0.52/2 = 0.26 < 0.3: one fewer would be 0.52 > 0.5: it stays
        cas{"E_MA 0.5D0 E_MI 0.3D0", 3}}) {
    modele m(poutre(automatique("DISP LATE STRI LITS 1 " + r40 + c.bornes)));
    ASSERT_TRUE(m.lire()) << m.console();
    const polygone points = positions();
    EXPECT_EQ(points.size(), 2U * static_cast<std::size_t>(c.nombre)) << c.bornes;
  }
}

// A side shorter than the greatest spacing has its two ends only.
TEST(Pose, CoteCourt) {
  modele m(poutre(automatique("DISP SUPE STRI LITS 1 E_MA 0.25D0 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier(positions(), {{0.11, 0.26}, {-0.11, 0.26}});
}

// A spacing at its limit, as far as doubles go, is within it; one beyond warns on the console alone.
TEST(Pose, AvertissementDEspacement) {
  for (const char* const bornes : {"E_MA 0.11D0", "E_MI 0.11D0"}) {
    modele m(poutre(automatique("DISP SUPE STRI LITS 1 " + r40 + bornes)));
    ASSERT_TRUE(m.lire()) << m.console();
    EXPECT_THAT(m.console(), Not(HasSubstr("ATTENTION"))) << bornes;
  }
  modele m(poutre(automatique("DISP SUPE STRI LITS 1 E_MA 0.2D0 E_MI 0.12D0 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_THAT(m.console(), HasSubstr(" ATTENTION  - Espacements max ou min non verifies :"));
  EXPECT_THAT(m.console(), HasSubstr("\n  - Espacement max effectif : 0.11000"));
  EXPECT_THAT(m.console(), HasSubstr("\n  - Espacement min effectif : 0.11000"));
  EXPECT_THAT(m.console(), HasSubstr("\n  - Ecartement_aciers_max   : 0.20000"));
  EXPECT_THAT(m.console(), HasSubstr("\n  - Ecartement_aciers_min   : 0.12000"));
  EXPECT_THAT(m.listing(), Not(HasSubstr("ATTENTION")));
}

TEST(Pose, Lit) {
  modele m(poutre(lit("INFE", 5)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier(positions(), {{-0.11, -0.26}, {-0.055, -0.26}, {0, -0.26}, {0.055, -0.26}, {0.11, -0.26}});
  EXPECT_EQ(zone().m_diametre_zone, 0.02);
}

// A face of several sides: the ends count first, then each bar goes where the spacing is the greatest, the
// first of equals. Moved sides 0.16, 0.4 and 0.16 long: 0.4; 0.2 twice beats 0.16; 0.16, 0.16, 0.133...
TEST(Pose, LitSurPlusieursCotes) {
  const std::string points =
      "POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0.2D0 Z 0. FIN_ NUME 3 Y 0.6D0 Z 0. FIN_ NUME 4 Y 0.8D0 Z 0. FIN_ "
      "NUME 5 Y 0.8D0 Z 0.5D0 FIN_ NUME 6 Y 0. Z 0.5D0 FIN_ FIN_POIN\n";
  const std::vector<std::pair<int, std::vector<double>>> attendus{
      {2, {0.04, 0.2, 0.6, 0.76}},
      {4, {0.04, 0.2, 0.6, 0.76}},
      {5, {0.04, 0.2, 0.4, 0.6, 0.76}},
      {6, {0.04, 0.2, 0.2 + 0.4 / 3, 0.2 + 0.8 / 3, 0.6, 0.76}},
      {7, {0.04, 0.12, 0.2, 0.2 + 0.4 / 3, 0.2 + 0.8 / 3, 0.6, 0.76}},
      {8, {0.04, 0.12, 0.2, 0.2 + 0.4 / 3, 0.2 + 0.8 / 3, 0.6, 0.68, 0.76}},
      {9, {0.04, 0.12, 0.2, 0.3, 0.4, 0.5, 0.6, 0.68, 0.76}}};
  for (const auto& [nombre, y] : attendus) {
    modele m(contour(points + lit("INFE", nombre)));
    ASSERT_TRUE(m.lire()) << m.console();
    polygone p;
    for (const double v : y) p.push_back({v, 0.04});
    verifier(positions(), p);
  }
}

// Against a plain search for the greatest spacing, on a face of forty sides of all lengths.
TEST(Pose, RepartitionParRechercheDirecte) {
  std::vector<double> y{0};
  for (int i = 1; i <= 40; ++i) y.push_back(y.back() + 0.1 + 0.01 * ((i * 7) % 13));
  polygone sommets;
  for (const double v : y) sommets.push_back({v, 0});
  sommets.push_back({y.back(), 1});
  sommets.push_back({0, 1});
  std::string points = "POIN\n";
  for (std::size_t i = 0; i < sommets.size(); ++i)
    points += concat({"NUME ", std::to_string(i + 1), " Y ", edite(F{20, 15}, sommets[i].y), "D0 Z ",
                      edite(F{20, 15}, sommets[i].z), "D0 FIN_\n"});
  points += "FIN_POIN\n";
  y.front() += 0.04;
  y.back() -= 0.04;
  for (const int nombre : {41, 42, 57, 100, 333}) {
    std::vector<int> interieurs(40, 0);
    for (int k = 41; k < nombre; ++k) {
      double plus_grand = 0;
      for (std::size_t i = 0; i < 40; ++i)
        plus_grand = std::max(plus_grand, (y[i + 1] - y[i]) / (interieurs[i] + 1));
      std::size_t i = 0;
      while ((y[i + 1] - y[i]) / (interieurs[i] + 1) < plus_grand - 1e-9) ++i;
      ++interieurs[i];
    }
    polygone attendus{{y.front(), 0.04}};
    for (std::size_t i = 0; i < 40; ++i)
      for (int k = 1; k <= interieurs[i] + 1; ++k)
        attendus.push_back({y[i] + (y[i + 1] - y[i]) * k / (interieurs[i] + 1), 0.04});
    modele m(contour(points + lit("INFE", nombre)));
    ASSERT_TRUE(m.lire()) << m.console();
    verifier(positions(), attendus, 1e-9);
  }
}

// ---- Other forms

// The flange of a tee by walls: its underside and its tips too; the re-entrant corner keeps the cover.
TEST(Pose, Te) {
  const std::string te = "TE H_TO 1.D0 L_TO 1.2D0 H_AM 0.8D0 L_AM 0.3D0 FIN_TE\n";
  for (const char* const mode : {"SUPE STRI", "SUPE PARO", "INFE STRI", "INFE PARO", "LATE STRI", "LATE PARO",
                                 "PERI STRI", "PERI PARO"}) {
    modele m(contour(te + automatique(std::string("LITS 1 DISP ") + mode + " " + r40)));
    ASSERT_TRUE(m.lire()) << m.console();
    verifier_enrobage(positions(), 0.04);
    verifier_symetrie(positions());
    EXPECT_LE(zone().m_espacement_max_effectif, 0.2 + 1e-7) << mode;
  }
  modele m(contour(te + automatique("LITS 1 E_MA 2.D0 DISP SUPE PARO " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  // Tip, underside up to the web on the left; the same on the right; the top.
  verifier(positions(),
           {{-0.56, -0.04}, {-0.56, -0.16}, {-0.11, -0.16}, {0.11, -0.16}, {0.56, -0.16}, {0.56, -0.04}});
}

TEST(Pose, SectionsSymetriquesBarresSymetriques) {
  struct cas {
    std::string forme;
    bool haut_bas;
  };
  for (const cas& c :
       {cas{"RECT HAUT 0.6D0 LARG 0.4D0 FIN_", true}, cas{"CIRC DIAM 0.8D0 NOMB 24 FIN_", true},
        cas{"I_SY H_TO 1.D0 L_TO 0.6D0 H_TA 0.2D0 H_JO 0.1D0 L_JO 0.1D0 L_AM 0.2D0 FIN_", false},
        cas{"TE_E H_TO 1.D0 L_TO 2.D0 H_EX 0.2D0 H_OR 0.3D0 L_EN 0.7D0 L_JO 0.1D0 H_JO 0.1D0 FIN_", false}}) {
    for (const char* const mode : {"PERI STRI", "SUPE PARO", "INFE PARO", "LATE PARO"}) {
      // The sides of a polygon with a corner at mid-height all stand above or below it.
      if (c.forme.starts_with("CIRC") && mode == std::string("LATE PARO")) continue;
      modele m(contour(c.forme + " " + automatique(std::string("LITS 1 DISP ") + mode + " " + r40)));
      ASSERT_TRUE(m.lire()) << c.forme << mode << m.console();
      verifier_enrobage(positions(), 0.04);
      verifier_symetrie(positions(), c.haut_bas && mode == std::string("PERI STRI"));
    }
  }
}

// A regular polygon of n sides: its corners move in by r / cos(pi/n).
TEST(Pose, PieuCirculaire) {
  constexpr int n = 20;
  modele m(contour("CIRC DIAM 1.D0 NOMB 20 FIN_\n" + automatique("DISP PERI STRI LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  const double rayon = 0.5 - 0.04 / std::cos(pi / n);
  polygone attendus;
  for (int k = 0; k < n; ++k)
    attendus.push_back({rayon * std::cos(2 * pi * k / n), rayon * std::sin(2 * pi * k / n)});
  verifier(positions(), attendus);
  EXPECT_NEAR(zone().m_espacement_min_effectif, 2 * rayon * std::sin(pi / n), 1e-12);
  EXPECT_NEAR(zone().m_espacement_max_effectif, 2 * rayon * std::sin(pi / n), 1e-12);
  EXPECT_NEAR(zone().m_longueur_ferraillage, n * 2 * rayon * std::sin(pi / n), 1e-12);
}

// Haunches: corners of more and of less than a right angle, around the contour and around its void.
TEST(Pose, CaissonAGoussetsParParois) {
  modele m(
      contour("REC_ HAUT 2.D0 LARG 3.D0 E_SU 0.25D0 E_IN 0.3D0 EP_L 0.35D0 L_GO 0.3D0 H_GO 0.2D0 FIN_\n" +
              automatique("DISP PERI PARO LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier_enrobage(positions(), 0.04, {"C1_EVID"});
  verifier_symetrie(positions());
  EXPECT_LE(zone().m_espacement_max_effectif, 0.2 + 1e-7);
  EXPECT_GE(zone().m_espacement_min_effectif, 0.05);
}

// The void of a box: outwards from its sides. Strict modes leave it alone, and so does its other half.
TEST(Pose, Evidement) {
  const std::string caisson = "REC_ HAUT 1.D0 LARG 1.2D0 E_SU 0.2D0 E_IN 0.2D0 EP_L 0.2D0 FIN_\n";
  const std::string bornes = "E_MA 2.D0 LITS 1 " + r40;
  modele paro(contour(caisson + automatique("DISP INFE PARO " + bornes)));
  ASSERT_TRUE(paro.lire()) << paro.console();
  verifier(positions(), {{-0.56, -0.96}, {0.56, -0.96}, {-0.44, -0.84}, {0.44, -0.84}});
  EXPECT_NEAR(zone().m_longueur_ferraillage, 1.12 + 0.88, 1e-12);
  EXPECT_NEAR(zone().m_espacement_max_effectif, 1.12, 1e-12);
  EXPECT_NEAR(zone().m_espacement_min_effectif, 0.88, 1e-12);
  EXPECT_NEAR(zone().m_espacement_moyen_effectif, 1.00, 1e-12);
  modele stri(contour(caisson + automatique("DISP INFE STRI " + bornes)));
  ASSERT_TRUE(stri.lire()) << stri.console();
  verifier(positions(), {{-0.56, -0.96}, {0.56, -0.96}});
  modele late(contour(caisson + automatique("DISP LATE PARO " + bornes)));
  ASSERT_TRUE(late.lire()) << late.console();
  verifier(positions(), {{0.56, -0.96},
                         {0.56, -0.04},
                         {-0.56, -0.04},
                         {-0.56, -0.96},
                         {0.44, -0.84},
                         {0.44, -0.16},
                         {-0.44, -0.16},
                         {-0.44, -0.84}});
}

// Layers of the contour, then those of the void; both run into the concrete, towards one another.
TEST(Pose, LitsDUnEvidement) {
  modele m(contour("REC_ HAUT 1.D0 LARG 1.2D0 E_SU 0.2D0 E_IN 0.2D0 EP_L 0.2D0 FIN_\n" +
                   automatique("DISP INFE PARO E_MA 2.D0 LITS 2 DIST 0.05D0 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier(positions(), {{-0.56, -0.96},
                         {0.56, -0.96},
                         {-0.56, -0.91},
                         {0.56, -0.91},
                         {-0.44, -0.84},
                         {0.44, -0.84},
                         {-0.44, -0.89},
                         {0.44, -0.89}});
}

// A wall of twice 40 mm has one row of bars.
TEST(Pose, ParoiMince) {
  const std::string tube = "REC_ HAUT 1.D0 LARG 1.D0 E_SU 0.08D0 E_IN 0.08D0 EP_L 0.08D0 FIN_\n";
  modele m(contour(tube + automatique("DISP PERI PARO LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier_enrobage(positions(), 0.04, {"C1_EVID"});
  EXPECT_EQ(positions().size(), 4U * 5U);  // 0.92 m: five spacings a side
  EXPECT_NEAR(zone().m_longueur_ferraillage, 8 * 0.92, 1e-12);
}

// A void that has no side on the face is passed over.
TEST(Pose, EvidementSansCoteSurLaFace) {
  const std::string triangle =
      "EVID E1 POIN NUME 1 Y 0.D0 Z -0.1D0 FIN_ NUME 2 Y 0.1D0 Z 0.1D0 FIN_ NUME 3 Y -0.1D0 Z 0.1D0 FIN_ "
      "FIN_POIN FIN_\n";
  modele m(contour("RECT HAUT 1.D0 LARG 1.D0 FIN_RECT\n" + triangle +
                   automatique("DISP INFE PARO E_MA 2.D0 LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier(positions(), {{-0.46, -0.46}, {0.46, -0.46}});
}

// The half that is listed is completed first; PART in the zone of bars changes nothing.
TEST(Pose, ContourPartiel) {
  const std::string demi =
      "PART POIN NUME 1 Y 0. Z -0.3D0 FIN_ NUME 2 Y 0.15D0 Z -0.3D0 FIN_ NUME 3 Y 0.15D0 Z 0.3D0 FIN_ NUME 4 "
      "Y 0. "
      "Z 0.3D0 FIN_ FIN_POIN\n";
  for (const char* const part : {"", "PART "}) {
    modele m(contour(demi + "FERR F1 MATE HA " + part + "OPTI SELE P_20 FI DISP INFE STRI LITS 1 E_MA 1.D0 " +
                         r40 + "FIN_OPTI FIN_FERR",
                     "SYME Z"));
    ASSERT_TRUE(m.lire()) << m.console();
    // The two points of the half on the axis stay points of the whole: sides end there.
    verifier(positions(), {{0, -0.26}, {0.11, -0.26}, {-0.11, -0.26}});
  }
}

// ---- Zones side by side

TEST(Pose, LesFacesPartagentLeursBarresDAngle) {
  modele m(poutre(automatique("DISP SUPE STRI LITS 1 " + r40, "F1") +
                  automatique("DISP INFE STRI LITS 1 " + r40, "F2") +
                  automatique("DISP LATE STRI LITS 1 " + r40, "F3")));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_EQ(positions("F1").size(), 3U);
  EXPECT_EQ(positions("F2").size(), 3U);
  const double e = 0.52 / 3;
  verifier(positions("F3"), {{0.11, e - 0.26}, {0.11, 0.26 - e}, {-0.11, 0.26 - e}, {-0.11, e - 0.26}});
}

TEST(Pose, ModesRepetes) {
  const std::vector<std::array<std::string, 3>> cas{
      {"SUPE STRI", "SUPE PARO", "repetiton du mode de ferraillage: Superieur"},
      {"INFE PARO", "INFE STRI", "repetiton du mode de ferraillage: Inferieur"},
      {"LATE STRI", "LATE STRI", "repetiton du mode de ferraillage: Lateral"},
      {"PERI STRI", "PERI STRI", "repetiton du mode de ferraillage: Peripherique strict"},
      {"PERI PARO", "PERI PARO", "repetiton du mode de ferraillage: peripherique parois"}};
  for (const auto& [a, b, message] : cas)
    verifier_refus(
        {{poutre(automatique("LITS 1 DISP " + a, "F1") + automatique("LITS 1 DISP " + b, "F2")), message}});
  verifier_refus({{poutre(lit("INFE", 3, "F1") + automatique("LITS 1 DISP INFE PARO", "F2")),
                   "repetiton du mode de ferraillage: Inferieur"}});
}

TEST(Pose, ModesIncompatibles) {
  const std::string message = " Les dispositions de ferraillage automatique sont incompatibles";
  for (const char* const peri : {"PERI STRI", "PERI PARO"})
    for (const char* const autre : {"SUPE STRI", "INFE PARO", "LATE STRI"})
      verifier_refus({{poutre(automatique(std::string("LITS 1 DISP ") + peri, "F1") +
                              automatique(std::string("LITS 1 DISP ") + autre, "F2")),
                       message}});
  verifier_refus(
      {{poutre(automatique("LITS 1 DISP PERI STRI", "F1") + automatique("LITS 1 DISP PERI PARO", "F2")),
        message}});
}

TEST(Pose, LitDUneSeuleBarre) {
  verifier_refus({{poutre(lit("INFE", 1)), "definition du lit explicite avec une seule armature interdite"}});
}

TEST(Pose, FacesSansCote) {
  // A spike: its sides are steeper than 45 degrees and cross mid-height; only its top is flat.
  const std::string pointe =
      "POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0.5D0 Z 2. FIN_ NUME 3 Y -0.5D0 Z 2. FIN_ FIN_POIN\n";
  const std::string debut = " Aucun cote du contour detecte en face ";
  verifier_refus({{contour(pointe + lit("INFE", 2)), debut + l1("inférieure"_l1)}});
  const std::string dressee =
      "POIN NUME 1 Y 0.5D0 Z 0. FIN_ NUME 2 Y 0. Z 2. FIN_ NUME 3 Y -0.5D0 Z 0. FIN_ FIN_POIN\n";
  verifier_refus({{contour(dressee + lit("SUPE", 2)), debut + l1("supérieure"_l1)}});
  // A square on its corner has no lateral side; the right face is looked for first.
  const std::string losange =
      "POIN NUME 1 Y 0. Z -1. FIN_ NUME 2 Y 1. Z 0. FIN_ NUME 3 Y 0. Z 1. FIN_ NUME 4 Y -1. Z 0. FIN_ "
      "FIN_POIN\n";
  verifier_refus({{contour(losange + automatique("LITS 1 DISP LATE PARO")), debut + "laterale droite"}});
  // On the left two sides that meet at mid-height: none crosses it.
  const std::string pentagone =
      "POIN NUME 1 Y 0. Z -1. FIN_ NUME 2 Y 1. Z -1. FIN_ NUME 3 Y 1. Z 1. FIN_ NUME 4 Y 0. Z 1. FIN_ NUME 5 "
      "Y -1. "
      "Z 0. FIN_ FIN_POIN\n";
  verifier_refus({{contour(pentagone + automatique("LITS 1 DISP LATE STRI")), debut + "laterale gauche"}});
}

// ---- What cannot be laid

TEST(Pose, EnrobagePlusGrandQueLaSection) {
  for (const char* const enrobage : {"0.3D0", "10.D0", "1.D20"})
    for (const char* const mode : {"SUPE STRI", "INFE PARO", "LATE STRI", "PERI PARO"})
      verifier_refus({{poutre(automatique(std::string("LITS 1 DISP ") + mode + " ENRO " + enrobage)),
                       " Aucun point n est defini"}});
  verifier_refus(
      {{poutre(automatique("DISP SUPE STRI LITS 1 ENRO 0.15D0")), " Aucun point n est defini"},
       // The last layer decides for all of them.
       {poutre(automatique("DISP PERI STRI LITS 7 DIST 0.06D0 " + r40)), " Aucun point n est defini"}});
}

// A section of exactly twice the distance has one row of bars in its middle.
TEST(Pose, SectionDeDeuxEnrobages) {
  modele m(contour("RECT HAUT 0.6D0 LARG 0.08D0 FIN_RECT\n" +
                   automatique("DISP PERI STRI LITS 1 E_MA 1. " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  verifier(positions(), {{0, 0.26}, {0, -0.26}});
}

TEST(Pose, NombresEnormes) {
  const std::string message = " Numero de point incorrect >99999";
  verifier_refus({{poutre(automatique("DISP SUPE STRI LITS 1 E_MA 1.D-9 " + r40)), message},
                  {poutre(automatique("DISP SUPE STRI LITS 1 E_MA 1.D-30 " + r40)), message},
                  {poutre(automatique("DISP SUPE STRI LITS 1 E_MA 1.D-6 E_MI 1.D-7 " + r40)), message},
                  {poutre(lit("SUPE", 2000000000)), message},
                  {poutre(lit("SUPE", 100000)), message},
                  {poutre(automatique("DISP SUPE STRI LITS 2000000000 DIST 1.D-12 " + r40)), message}});
  // More bars than there are numbers left from 40001 on.
  verifier_refus({{contour("RECT HAUT 1.D0 LARG 70.D0 FIN_RECT\n" +
                           automatique("DISP SUPE STRI LITS 1 E_MA 0.00115D0 E_MI 0.001D0 " + r40)),
                   message}});
}

// Sides whose squares overflow still have a direction: the run ends with a message on the data.
TEST(Pose, ContourDemesure) {
  const std::string message = " Numero de point incorrect >99999";
  for (const char* const cote : {"1.D100", "1.D160", "1.D200"})
    verifier_refus({{contour(std::string("RECT HAUT ") + cote + " LARG " + cote + " FIN_RECT\n" +
                             automatique("DISP PERI STRI LITS 1 " + r40)),
                     message}});
}

TEST(Pose, BarresConfondues) {
  const std::string automatiques = " Duplication de point : prevenir le gestionnaire";
  // Layers less than a millimetre apart.
  verifier_refus({{poutre(automatique("DISP SUPE STRI LITS 2 DIST 0.0005D0 " + r40)), automatiques}});
  // The second layer of the contour meets that of the void half way, in the middle of both.
  verifier_refus({{contour("REC_ HAUT 1.D0 LARG 1.2D0 E_SU 0.2D0 E_IN 0.2D0 EP_L 0.2D0 FIN_\n" +
                           automatique("DISP INFE PARO E_MA 0.6D0 LITS 2 DIST 0.06D0 " + r40)),
                   automatiques}});
  // The second layer at the top meets the bars at the bottom.
  verifier_refus({{poutre(automatique("DISP INFE STRI LITS 1 " + r40, "F1") +
                          automatique("DISP SUPE STRI LITS 2 DIST 0.52D0 " + r40, "F2")),
                   automatiques}});
  // The second layer at the bottom stands where the bars of the sides would, 0.13 m above the corner: these
  // are not laid again.
  modele m(poutre(automatique("DISP INFE STRI LITS 2 DIST 0.13D0 " + r40, "F1") +
                  automatique("DISP LATE STRI LITS 1 E_MA 0.14D0 " + r40, "F2")));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_EQ(positions("F2").size(), 2U * (5U - 2U));
  // The other way round the sides have the corner bars, and the bottom goes without them on all layers.
  modele n(poutre(automatique("DISP LATE STRI LITS 1 E_MA 0.14D0 " + r40, "F1") +
                  automatique("DISP INFE STRI LITS 2 DIST 0.13D0 " + r40, "F2")));
  ASSERT_TRUE(n.lire()) << n.console();
  verifier(positions("F2"), {{0, -0.26}, {0, -0.13}});
  // A listed bar is another zone's: told with number and zone.
  const std::string listee =
      "FERR F2 MATE HA DIAM 20. POIN NUME 1 Y 0.D0 Z 0.2605D0 FIN_ FIN_POIN FIN_FERR\n";
  verifier_refus({{poutre(listee + automatique("DISP SUPE STRI LITS 1 " + r40)),
                   " Duplication de point : 40002 zone : F1"},
                  {poutre(automatique("DISP SUPE STRI LITS 1 " + r40) + listee),
                   " Duplication de point : 40002 zone : F1"}});
}

// A flange thinner than the distance: the top bars would stand under it.
TEST(Pose, BarresHorsDuContour) {
  verifier_refus(
      {{contour("TE H_TO 1.D0 L_TO 1.2D0 H_AM 0.97D0 L_AM 0.3D0 FIN_TE\n" +
                automatique("DISP SUPE STRI LITS 1 E_MA 2.D0 " + r40)),
        " Point 40001 de la zone F1 exterieur a la zone C1\n     -  Point 40002 de la zone F1 exterieur a la "
        "zone C1"}});
}

// A point on a side that the data cut in two is one bar, whichever way rounding bends the side.
TEST(Pose, CoteCoupeEnDeux) {
  for (const char* const z : {"0.", "1.D-15", "-1.D-15", "1.D-9", "-1.D-9", "1.D-8", "-1.D-8"}) {
    modele m(contour(
        std::string("POIN NUME 1 Y -0.5D0 Z 0. FIN_ NUME 2 Y 0.D0 Z ") + z +
        " FIN_ NUME 3 Y 0.5D0 Z 0. FIN_ NUME 4 Y 0.5D0 Z 1. FIN_ NUME 5 Y -0.5D0 Z 1. FIN_ FIN_POIN\n" +
        automatique("DISP INFE STRI LITS 1 E_MA 1. " + r40)));
    ASSERT_TRUE(m.lire()) << m.console();
    verifier(positions(), {{-0.46, 0.04}, {0, 0.04}, {0.46, 0.04}}, 1e-7);
  }
}

// ---- In the engine, and laid again

TEST(Pose, DansLeMoteur) {
  modele m(poutre(automatique("DISP INFE STRI LITS 1 GROU 2 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  const int section = zone().get_numero_section_qb7();
  const int numero = zone().get_numero_zone_qb7();
  int type = 0;
  int materiau = 0;
  int nombre = 0;
  int mere = 0;
  double matiere = 0;
  double encombrement = 1;
  double remplissage = 0;
  EXPECT_FALSE(qb7_lire_type_zone(section, numero, type));
  EXPECT_EQ(type, 1004);
  EXPECT_FALSE(qb7_lire_num_materiau(section, numero, materiau));
  EXPECT_EQ(materiau, zof_get_materiau_numero_qb7("HA"));
  EXPECT_FALSE(qb7_lire_nbre_pts_zone(section, numero, nombre));
  EXPECT_EQ(nombre, 3);
  EXPECT_FALSE(qb7_lire_num_zone_mere(section, numero, mere));
  EXPECT_EQ(mere, zof_get_pt_nom_zone_section("S1", "C1")->get_numero_zone_qb7());
  EXPECT_FALSE(qb7_lire_param_zone(section, numero, &matiere, &encombrement));
  EXPECT_NEAR(matiere, 2 * pi * 0.02 * 0.02 / 4, 1e-10);
  EXPECT_EQ(encombrement, 0);
  EXPECT_FALSE(qb7_lire_c_remplissage(section, numero, remplissage));
  EXPECT_EQ(remplissage, 1);
}

TEST(Modification, NouveauNombreParLit) {
  modele m(poutre(automatique("DISP INFE STRI LITS 2 DIST 0.06D0 " + r40) +
                  automatique("DISP SUPE STRI LITS 1 " + r40, "F2")));
  ASSERT_TRUE(m.lire()) << m.console();
  zof_ferraillage& f = zone();
  const int section = f.get_numero_section_qb7();
  const int numero = f.get_numero_zone_qb7();
  const int ancien_point =
      zof_cp_point(*f.m_les_points_zone.case_element(1).m_ptr_element).m_numero_point_qb7;
  ASSERT_FALSE(qb7_activer_zone(section, numero, true, false));
  ASSERT_FALSE(qb7_fixer_dimensionnable(section, numero, true));
  ASSERT_FALSE(qb7_fixer_c_remplissage(section, numero, 0.3));

  bool erco = false;
  EXPECT_TRUE(zof_modifier_ferraillage_automatique(f, 5, erco));
  EXPECT_FALSE(erco);
  verifier(positions(), {{-0.11, -0.26},
                         {-0.055, -0.26},
                         {0, -0.26},
                         {0.055, -0.26},
                         {0.11, -0.26},
                         {-0.11, -0.20},
                         {-0.055, -0.20},
                         {0, -0.20},
                         {0.055, -0.20},
                         {0.11, -0.20}});
  EXPECT_NEAR(f.m_espacement_max_effectif, 0.055, 1e-15);
  EXPECT_NEAR(f.m_espacement_moyen_effectif, 0.055, 1e-15);
  // 6 bars of F1 and 3 of F2 came before.
  EXPECT_EQ(zof_cp_point(*f.m_les_points_zone.case_element(1).m_ptr_element).m_numero_point, 40010);
  EXPECT_EQ(f.get_numero_zone_qb7(), numero);
  double y = 0;
  double z = 0;
  EXPECT_TRUE(qb7_lire_point(section, ancien_point, y, z));  // gone
  qb7_err_reinitialiser();
  int nombre = 0;
  EXPECT_FALSE(qb7_lire_nbre_pts_zone(section, numero, nombre));
  EXPECT_EQ(nombre, 10);
  bool active = false;
  bool dimensionnable = false;
  double remplissage = 0;
  EXPECT_FALSE(qb7_activite_zone(section, numero, active));
  EXPECT_TRUE(active);
  EXPECT_FALSE(qb7_lire_dimensionnable(section, numero, dimensionnable));
  EXPECT_TRUE(dimensionnable);
  EXPECT_FALSE(qb7_lire_c_remplissage(section, numero, remplissage));
  EXPECT_EQ(remplissage, 1);
}

// The least spacing of 0.05 m holds within a millimetre; the console says nothing the second time.
TEST(Modification, EspacementsVerifies) {
  modele m(poutre(automatique("DISP INFE STRI LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  bool erco = false;
  EXPECT_TRUE(zof_modifier_ferraillage_automatique(zone(), 5, erco));   // 55 mm
  EXPECT_FALSE(zof_modifier_ferraillage_automatique(zone(), 6, erco));  // 44 mm
  EXPECT_FALSE(zof_modifier_ferraillage_automatique(zone(), 2, erco));  // 220 mm
  verifier(positions(), {{-0.11, -0.26}, {0.11, -0.26}});
  EXPECT_FALSE(zof_modifier_ferraillage_automatique(zone(), 1, erco));  // raised to the corners
  EXPECT_EQ(positions().size(), 2U);
  EXPECT_FALSE(erco);
  EXPECT_THAT(m.console(), Not(HasSubstr("ATTENTION")));
  modele limite(poutre(automatique("DISP INFE STRI LITS 1 E_MI 0.0559D0 " + r40)));
  ASSERT_TRUE(limite.lire()) << limite.console();
  EXPECT_TRUE(zof_modifier_ferraillage_automatique(zone(), 5, erco));
  modele dessous(poutre(automatique("DISP INFE STRI LITS 1 E_MI 0.0561D0 " + r40)));
  ASSERT_TRUE(dessous.lire()) << dessous.console();
  EXPECT_FALSE(zof_modifier_ferraillage_automatique(zone(), 5, erco));
}

// Over contour and void together: two ends each, then the longer side first.
TEST(Modification, ContourEtEvidement) {
  modele m(contour("REC_ HAUT 1.D0 LARG 1.2D0 E_SU 0.2D0 E_IN 0.2D0 EP_L 0.2D0 FIN_\n" +
                   automatique("DISP INFE PARO E_MA 2.D0 LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  bool erco = false;
  EXPECT_TRUE(zof_modifier_ferraillage_automatique(zone(), 5, erco));
  verifier(positions(), {{-0.56, -0.96}, {0, -0.96}, {0.56, -0.96}, {-0.44, -0.84}, {0.44, -0.84}});
  EXPECT_TRUE(zof_modifier_ferraillage_automatique(zone(), 6, erco));
  verifier(positions(),
           {{-0.56, -0.96}, {0, -0.96}, {0.56, -0.96}, {-0.44, -0.84}, {0, -0.84}, {0.44, -0.84}});
}

// Its own old bars are no obstacle, and those of its neighbours still are.
TEST(Modification, VoisinsEtAnciennesBarres) {
  modele m(poutre(automatique("DISP INFE STRI LITS 1 " + r40) +
                  automatique("DISP LATE STRI LITS 1 " + r40, "F2")));
  ASSERT_TRUE(m.lire()) << m.console();
  bool erco = false;
  // The corner bars, once laid by F1, are F1's still; laid again, F2 sees them.
  zof_modifier_ferraillage_automatique(zone("F1"), 3, erco);
  EXPECT_EQ(positions("F1").size(), 3U);
  zof_modifier_ferraillage_automatique(zone("F2"), 8, erco);
  EXPECT_FALSE(erco);
  EXPECT_EQ(positions("F2").size(), 8U);  // the two top corners of each side, and six between
  for (const point_yz& p : positions("F2")) EXPECT_FALSE(existe(positions("F1"), p));
}

TEST(Modification, NombreEnorme) {
  modele m(poutre(automatique("DISP INFE STRI LITS 1 " + r40)));
  ASSERT_TRUE(m.lire()) << m.console();
  bool erco = false;
  EXPECT_FALSE(zof_modifier_ferraillage_automatique(zone(), 2000000000, erco));
  EXPECT_TRUE(erco);
  EXPECT_THAT(m.listing(), HasSubstr(" Numero de point incorrect >99999"));
}
