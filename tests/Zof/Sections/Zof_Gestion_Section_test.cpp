#include "Zof_Gestion_Section.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <string>
#include <vector>

#include "modele.hpp"

using namespace socle;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

// A contour of listed points, in double precision.
std::string points(const polygone& p) {
  std::string texte = "POIN ";
  int numero = 0;
  for (const point_yz& q : p) {
    char tampon[128];
    std::snprintf(tampon, sizeof tampon, "NUME %d Y %.10fD0 Z %.10fD0 FIN_\n", ++numero, q.y, q.z);
    texte += tampon;
  }
  return texte + "FIN_POIN ";
}

const polygone corniere{{0, 0}, {0.6, 0}, {0.6, 0.2}, {0.25, 0.2}, {0.25, 0.8}, {0, 0.8}};
const polygone corniere_miroir{{0, 0.8}, {-0.25, 0.8}, {-0.25, 0.2}, {-0.6, 0.2}, {-0.6, 0}, {0, 0}};

std::string trois_evidements() {
  std::string texte = "RECT HAUT 0.8D0 LARG 2.4D0 FIN_ ";
  for (const char* const y : {"-0.75D0", "0.D0", "0.75D0"}) {
    texte += "EVID E" + std::to_string(texte.size());
    texte += " POIN CERC NUME 1 NOMB 25 Y_CE " + std::string(y) + " Z_CE 0. DIAM 0.5D0 FIN_ FIN_POIN FIN_\n";
  }
  return texte;
}

std::string section_composee(const std::string& cas) {
  static const std::map<std::string, std::string> corps{
      {"poteau_8_barres", contour("RECT HAUT 0.5D0 LARG 0.4D0 FIN_ FERR F MATE HA DIAM 16. " +
                                  points({{0.15, 0.2},
                                          {0, 0.2},
                                          {-0.15, 0.2},
                                          {-0.15, 0},
                                          {-0.15, -0.2},
                                          {0, -0.2},
                                          {0.15, -0.2},
                                          {0.15, 0}}) +
                                  "FIN_FERR")},
      {"poutre_te",
       contour("TE H_TO 0.8D0 L_TO 1.2D0 H_AM 0.62D0 L_AM 0.3D0 FIN_ FERR INF MATE HA DIAM 25. POIN DROI "
               "NUME 1 NOMB 4 Y_OR -0.09D0 Z_OR -0.75D0 Y_EX 0.09D0 Z_EX -0.75D0 FIN_ FIN_POIN FIN_FERR\n"
               "FERR SUP MATE HA DIAM 12. " +
               points({{-0.5, -0.04}, {0.5, -0.04}}) + "FIN_FERR")},
      {"corniere", contour(points(corniere))},
      {"corniere_miroir", contour(points(corniere_miroir))},
      {"corniere_armee", contour(points(corniere) + "FERR F MATE HA DIAM 20. " +
                                 points({{0.05, 0.05}, {0.55, 0.05}, {0.05, 0.75}}) + "FIN_FERR")},
      {"dalle_evidee", contour(trois_evidements())},
      {"poutre_precontrainte",
       section("CONT C1 MATE BP RECT HAUT 1.2D0 LARG 0.5D0 FIN_ PREC P MATE TORON AIRE 1050. " +
               points({{0, -0.5}, {0.12, -0.5}, {-0.12, -0.5}, {0, -0.4}}) + "FIN_PREC FIN_CONT")},
      {"groupe_de_deux",
       contour("RECT HAUT 0.6D0 LARG 0.3D0 FIN_ FERR F MATE HA DIAM 20. POIN DROI NUME 1 NOMB 2 GROU 2 "
               "Y_OR -0.1D0 Z_OR -0.25D0 Y_EX 0.1D0 Z_EX -0.25D0 FIN_ FIN_POIN FIN_FERR")},
      {"ilot", contour("RECT HAUT 2. LARG 2. FIN_ EVID E RECT HAUT 1.2D0 LARG 1.2D0 FIN_ CONT I MATE BA "
                       "RECT HAUT 0.4D0 LARG 0.4D0 FIN_ FIN_CONT FIN_")}};
  return corps.at(cas);
}

/// Nine digits, and residues of sums that vanish.
double tolerance(double attendu) { return 5.1e-9 * std::abs(attendu) + 1e-10; }

int numero_groupe(const std::string& groupe) {
  return 1000 + (groupe == "gross" ? 1 : groupe == "net" ? 2 : 3);
}

std::vector<int> numeros_points(const zof_zone& zone) {
  std::vector<int> numeros;
  for (const zof_point& p : uef_parcours<zof_point>(zone.m_les_points_zone))
    numeros.push_back(p.m_numero_point);
  return numeros;
}

testing::AssertionResult egaux(const polygone& a, const polygone& b) {
  if (a.size() != b.size()) return testing::AssertionFailure() << a.size() << " points for " << b.size();
  for (std::size_t i = 0; i < a.size(); ++i)
    if (std::hypot(a[i].y - b[i].y, a[i].z - b[i].z) > 1e-14)
      return testing::AssertionFailure() << "point " << i + 1 << ": " << a[i].y << "; " << a[i].z;
  return testing::AssertionSuccess();
}

}  // namespace

// ---- Properties against values from outside

TEST(Section, ProprietesDesSectionsComposees) {
  const table_csv t = lire_csv(ZOF_DONNEES "/sections/composed.csv");
  ASSERT_EQ(t.lignes.size(), 27U);
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE(t.texte(i, "case") + " " + t.texte(i, "group"));
    modele m(section_composee(t.texte(i, "case")));
    ASSERT_TRUE(m.lire()) << m.console();
    zof_activer_section("S1");
    caracteristiques_mecaniques c;
    ASSERT_EQ(qb7_caracteristiques_mecaniques(1, numero_groupe(t.texte(i, "group")), c), ier_2{});
    EXPECT_NEAR(c.e_sx, t.reel(i, "area"), tolerance(t.reel(i, "area")));
    EXPECT_NEAR(c.yg, t.reel(i, "y_cdg"), tolerance(t.reel(i, "y_cdg")));
    EXPECT_NEAR(c.zg, t.reel(i, "z_cdg"), tolerance(t.reel(i, "z_cdg")));
    EXPECT_NEAR(c.e_iy, t.reel(i, "inertia_y"), tolerance(t.reel(i, "inertia_y")));
    EXPECT_NEAR(c.e_iz, t.reel(i, "inertia_z"), tolerance(t.reel(i, "inertia_z")));
    if (std::abs(c.e_iy - c.e_iz) > 1e-6) {
      EXPECT_NEAR(c.alpha * 180 / std::numbers::pi, t.reel(i, "angle_deg"),
                  tolerance(t.reel(i, "angle_deg")) + 1e-8);
    }
  }
}

// ---- Points

TEST(Points, UneDroiteParCoordonneesComprendSesBouts) {
  modele m(barres("POIN DROI NUME 11 NOMB 3 Y_OR -0.1D0 Z_OR 0. Y_EX 0.1D0 Z_EX 0.2D0 FIN_ FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  const zof_zone& zone = *zof_get_pt_nom_zone_section("S1", "F1");
  EXPECT_THAT(numeros_points(zone), ElementsAre(11, 12, 13));
  EXPECT_TRUE(egaux(zone.positions_points(), {{-0.1, 0}, {0, 0.1}, {0.1, 0.2}}));
}

// A point that exists is an end, never made again: two inner points at thirds, then steps of a half and a
// quarter.
TEST(Points, UneDroiteEntrePointsExistantsLesLaisseEnPlace) {
  modele m(
      barres("POIN NUME 1 Y -0.12D0 Z -0.2D0 FIN_ NUME 2 Y 0.12D0 Z -0.2D0 FIN_\n"
             "DROI NUME 3 NOMB 2 ORIG 1 EXTR 2 FIN_\n"
             "DROI NUME 5 NOMB 2 ORIG 1 Y_EX -0.12D0 Z_EX 0.2D0 FIN_\n"
             "DROI NUME 7 NOMB 4 Y_OR 0.12D0 Z_OR 0.2D0 EXTR 2 FIN_\n FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  const zof_zone& zone = *zof_get_pt_nom_zone_section("S1", "F1");
  EXPECT_THAT(numeros_points(zone), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
  EXPECT_TRUE(egaux(zone.positions_points(), {{-0.12, -0.2},
                                              {0.12, -0.2},
                                              {-0.04, -0.2},
                                              {0.04, -0.2},
                                              {-0.12, 0},
                                              {-0.12, 0.2},
                                              {0.12, 0.2},
                                              {0.12, 0.1},
                                              {0.12, 0},
                                              {0.12, -0.1}}));
}

TEST(Points, UneDroiteDUnPointEstASonOrigine) {
  modele m(barres("POIN DROI NUME 1 NOMB 1 Y_OR 0. Z_OR 0.1D0 Y_EX 0.1D0 Z_EX 0.1D0 FIN_ FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(egaux(zof_get_pt_nom_zone_section("S1", "F1")->positions_points(), {{0, 0.1}}));
}

TEST(Points, ArcsEtCercles) {
  modele m(
      barres("POIN ARC NUME 1 NOMB 3 Y_CE 0. Z_CE 0. DIAM 0.2D0 ORIG 0. EXTR 90. FIN_\n"
             "CERC NUME 4 NOMB 4 Y_CE 0. Z_CE 0. DIAM 0.1D0 ORIG 45. FIN_\n"
             "ARC NUME 8 NOMB 2 Y_CE 0. Z_CE 0.15D0 DIAM 0.1D0 ORIG 0. EXTR -360. FIN_\n"
             "CERC NUME 10 NOMB 2 Y_CE 0. Z_CE -0.2D0 DIAM 0.02D0 EXTR 12. FIN_ FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  const double d = 0.1 * std::sqrt(0.5);
  const double e = 0.05 * std::sqrt(0.5);
  EXPECT_TRUE(egaux(zof_get_pt_nom_zone_section("S1", "F1")->positions_points(), {{0.1, 0},
                                                                                  {d, d},
                                                                                  {0, 0.1},
                                                                                  {e, e},
                                                                                  {-e, e},
                                                                                  {-e, -e},
                                                                                  {e, -e},
                                                                                  {0.05, 0.15},
                                                                                  {-0.05, 0.15},
                                                                                  {0.01, -0.2},
                                                                                  {-0.01, -0.2}}));
}

// Up to 359 degrees an arc has two ends; beyond, they would meet.
TEST(Points, UnArcSeFermeAuDelaDe359Degres) {
  modele m(
      barres("POIN ARC NUME 1 NOMB 3 Y_CE 0. Z_CE 0. DIAM 0.2D0 ORIG 0. EXTR 359. FIN_\n"
             "ARC NUME 4 NOMB 2 Y_CE 0. Z_CE 0.15D0 DIAM 0.1D0 ORIG 0. EXTR 359.5D0 FIN_ FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  const double demi_pas = 0.5 * std::numbers::pi / 180;
  EXPECT_TRUE(egaux(zof_get_pt_nom_zone_section("S1", "F1")->positions_points(),
                    {{0.1, 0},
                     {-0.1 * std::cos(demi_pas), 0.1 * std::sin(demi_pas)},
                     {0.1 * std::cos(2 * demi_pas), -0.1 * std::sin(2 * demi_pas)},
                     {0.05, 0.15},
                     {-0.05, 0.15}}));
}

// A line may run above the numbers of single points, up to the last number of all.
TEST(Points, UneDroiteVaJusquAuDernierNumero) {
  modele m(barres("POIN DROI NUME 99998 NOMB 2 Y_OR -0.1D0 Z_OR 0. Y_EX 0.1D0 Z_EX 0. FIN_ FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_THAT(numeros_points(*zof_get_pt_nom_zone_section("S1", "F1")), ElementsAre(99998, 99999));
}

TEST(Points, UnPointPeutDonnerSonNumeroDansSonBloc) {
  modele m(
      barres("POIN POIN Y 0.1D0 NUME 40000 Z 0. FIN_POIN NUME 7 Z 0. Y 0. FIN_POIN FIN_POIN\n"
             "POIN NUME 8 Y -0.1D0 Z 0. FIN_ FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_THAT(numeros_points(*zof_get_pt_nom_zone_section("S1", "F1")), ElementsAre(40000, 7, 8));
}

TEST(Points, Refus) {
  const std::string non_defini = " Point non defini 9";
  const std::string droite = "POIN DROI NUME 1 NOMB 2 Y_OR 0. Z_OR 0. Y_EX 0.1 Z_EX 0. ";
  const std::string arc = "POIN ARC Y_CE 0. Z_CE 0. DIAM 0.1 NOMB 3 NUME 1 ORIG 0. EXTR 90. ";
  verifier_refus(
      {{barres("POIN FIN_POIN"), " Aucun point n est defini"},
       {barres(""), " Aucun point n est defini"},
       {barres("POIN NUME 0"), " Numero de point incorrect : < 1 ou >40000"},
       {barres("POIN NUME 40001"), " Numero de point incorrect : < 1 ou >40000"},
       {barres("POIN NUME 1 Y 0. FIN_"), "Z: non renseigne(e)"},
       {barres("POIN POIN FIN_"),
        "NUME: non renseigne(e)\n     - Y: non renseigne(e)\n     - Z: non renseigne(e)"},
       {barres("POIN NUME 1 Y 0. Y"), "Repetition interdite du mot clef:Y"},
       {barres("POIN NUME 1 Y 0. Z 0. NUME"), "Repetition interdite du mot clef:NUME"},
       {barres("POIN NUME 1 X"), " Mot clef  X    incorrect dans ce contexte"},
       {barres("POIN RECT"), " Mot clef  RECT incorrect dans ce contexte"},
       {barres("POIN NUME 12 Y 0. Z 0. FIN_ NUME 12 Y 0.1 Z 0. FIN_"),
        " Duplication du numero de point :    12"},
       {barres(droite + "FIN_ DROI NUME 2 NOMB 1 Y_OR 0. Z_OR 0.1 Y_EX 0.1 Z_EX 0.1 FIN_"),
        " Duplication du numero de point :     2"},
       {barres("POIN DROI NUME 0"), "numero negatif ou nul"},
       {barres("POIN DROI NOMB 0"), "nombre points negatif ou nul"},
       {barres("POIN DROI GROU 0"), l1("cardinalité groupe negatif ou nul"_l1)},
       {barres("POIN DROI Y_OR 0. ORIG"), l1("répétition option origine"_l1)},
       {barres("POIN NUME 1 Y 0. Z 0. FIN_ DROI ORIG 1 Z_OR"), l1("répétition option origine"_l1)},
       {barres("POIN NUME 1 Y 0. Z 0. FIN_ DROI EXTR 1 Y_EX"), l1("répétition option origine"_l1)},
       {barres("POIN DROI Z_EX 0. EXTR"), l1("répétition option origine"_l1)},
       {barres("POIN DROI ORIG 9"), non_defini},
       {barres("POIN DROI FIN_"),
        "NUME: non renseigne(e)\n     - NOMB: non renseigne(e)\n     - Y_OR: non renseigne(e)\n"
        "     - Z_OR: non renseigne(e)\n     - Y_EX: non renseigne(e)\n     - Z_EX: non renseigne(e)"},
       {barres("POIN DROI NUME 1 NOMB 2 Y_OR 0. Z_OR 0. Y_EX 0.0005 Z_EX 0. FIN_"),
        " Origine et extremites de la droite confondus"},
       {barres(droite + "NOMB"), "Repetition interdite du mot clef:NOMB"},
       {barres(droite + "GROU 2 FIN_ DROI GROU"), "Repetition interdite du mot clef:GROU"},
       {barres(droite + "DIAM"), " Mot clef  DIAM incorrect dans ce contexte"},
       {rectangle("FERR F1 MATE HA POIN DROI"),
        l1(" Le diametre des aciers doit precéder la définition des points"_l1)},
       {contour("POIN DROI GROU"), " Mot clef  GROU incorrect dans ce contexte"},
       {barres("POIN ARC DIAM 0."), "diametre negatif ou nul"},
       {barres("POIN ARC NOMB -1"), "nombre negatif ou nul"},
       {barres("POIN ARC NUME 0"), "numero de point negatif ou nul"},
       {barres("POIN CERC GROU -2"), l1("cardinalité groupe negatif ou nul"_l1)},
       {barres(arc + "EXTR"), "Repetition interdite du mot clef:EXTR"},
       {barres(arc + "Y_OR"), " Mot clef  Y_OR incorrect dans ce contexte"},
       {barres("POIN CERC FIN_"),
        "Y_CE: non renseigne(e)\n     - Z_CE: non renseigne(e)\n     - DIAM: non renseigne(e)\n"
        "     - NOMB: non renseigne(e)\n     - NUME: non renseigne(e)"},
       {barres("POIN ARC Y_CE 0. Z_CE 0. DIAM 1. NOMB 2 NUME 1 FIN_"),
        "ORIG: non renseigne(e)\n     - EXTR: non renseigne(e)"},
       // A count that no list of points could hold: refused before it is made.
       {barres("POIN CERC Y_CE 0. Z_CE 0. DIAM 0.1 NOMB 2147483646 NUME 1 FIN_"),
        " Numero de point incorrect >99999"},
       {barres("POIN DROI NUME 99999 NOMB 2 Y_OR 0. Z_OR 0. Y_EX 0.1 Z_EX 0. FIN_"),
        " Numero de point incorrect >99999"}});
}

TEST(Points, UnPointDoubleEstRefuse) {
  verifier_refus({{contour("POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 1. Z 0. FIN_ NUME 3 Y 0. Z 1. FIN_ NUME 4 Y "
                           "0. Z 0. FIN_ FIN_POIN"),
                   " Duplication de point :     4 zone : C1"},
                  {barres("POIN NUME 1 Y 0.D0 Z 0. FIN_ NUME 25 Y 0.000999D0 Z 0. FIN_ FIN_POIN"),
                   " Duplication de point :    25 zone : F1"},
                  // Another zone of bars of the same contour.
                  {rectangle("FERR F1 MATE HA DIAM 20. POIN NUME 1 Y 0. Z 0. FIN_ FIN_POIN FIN_FERR\n"
                             "FERR F2 MATE HA DIAM 20. POIN NUME 9 Y 0. Z 0. FIN_ FIN_POIN FIN_FERR"),
                   " Duplication de point :     9 zone : F2"}});
}

// The tolerance of coincident points is strict.
TEST(Points, DeuxPointsAUnMillimetreSontDeuxPoints) {
  modele m(barres("POIN NUME 1 Y 0.D0 Z 0. FIN_ NUME 2 Y 0.00100000004749746D0 Z 0. FIN_ FIN_POIN"));
  EXPECT_TRUE(m.lire()) << m.console();
}

// ---- Zones

TEST(Zone, LesNumerosDuMoteurSontCeuxDeLaSection) {
  modele m(
      section("CONT C1 MATE BA RECT HAUT 1. LARG 1. FIN_ EVID E1 RECT HAUT 0.2 LARG 0.2 FIN_ FIN_ FIN_CONT\n"
              "CONT C2 MATE BA RECT HAUT 2. LARG 2. FIN_ FERR F2 MATE HA DIAM 10. POIN NUME 1 Y 0. Z 0. FIN_ "
              "FIN_POIN "
              "FIN_FERR FIN_CONT"));
  ASSERT_TRUE(m.lire()) << m.console();
  const std::array attendus{std::array{1, qb7_sans_mere}, std::array{2, 1}, std::array{3, qb7_sans_mere},
                            std::array{4, 3}};
  ASSERT_EQ(zof_get_nombre_zones_section("S1"), 4);
  for (int i = 1; i <= 4; ++i) {
    const auto& [zone, mere] = attendus[static_cast<std::size_t>(i) - 1];
    EXPECT_EQ(zof_get_pt_zone_section("S1", i)->get_numero_zone_qb7(), zone);
    int lue = 0;
    ASSERT_EQ(qb7_lire_num_zone_mere(1, zone, lue), ier_2{});
    EXPECT_EQ(lue, mere);
  }
  qb7_tailles_section tailles;
  ASSERT_EQ(qb7_lire_section(1, tailles), ier_2{});
  EXPECT_EQ(tailles.nbre_zones, 4);
  EXPECT_EQ(tailles.nbre_points, 13);
  // Children go to the engine before their mother: the void's points are the first.
  EXPECT_EQ(zof_cp_point(*zof_get_pt_zone_section("S1", 2)->m_les_points_zone.case_element(1).m_ptr_element)
                .m_numero_point_qb7,
            1);
}

// pi/4 d² with the single-precision half pi; GROU counts the bars of a point.
TEST(Zone, AireDesBarres) {
  modele m(barres("POIN DROI NUME 1 NOMB 2 GROU 3 Y_OR -0.1 Z_OR 0. Y_EX 0.1 Z_EX 0. FIN_ FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  double matiere = 0;
  double encombrement = -1;
  ASSERT_EQ(qb7_lire_param_zone(1, 2, &matiere, &encombrement), ier_2{});
  EXPECT_NEAR(matiere, 3 * 1.57079637050628662 * 2 * 0.02 * 0.02 / 4, 1e-17);
  EXPECT_EQ(encombrement, 0);
  double remplissage = 0;
  ASSERT_EQ(qb7_lire_c_remplissage(1, 2, remplissage), ier_2{});
  EXPECT_EQ(remplissage, 1);
}

TEST(Zone, UneZoneDeBarresEstDimensionnableSurDemande) {
  modele m(
      barres("DIME OUI POIN NUME 1 Y 0. Z 0. FIN_ FIN_POIN FIN_FERR FERR F2 MATE HA DIAM 8. DIME NON POIN "
             "NUME 1 Y 0.1 "
             "Z 0. FIN_ FIN_POIN"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(zof_est_section_ferraillage_dimensionnable("S1"));
  zof_declarer_aciers_passifs_dimensionnables_section("S1");
  bool dimensionnable = false;
  ASSERT_EQ(qb7_lire_dimensionnable(1, 2, dimensionnable), ier_2{});
  EXPECT_TRUE(dimensionnable);
  ASSERT_EQ(qb7_lire_dimensionnable(1, 3, dimensionnable), ier_2{});
  EXPECT_FALSE(dimensionnable);
}

TEST(Zone, LeDiametreDUnEvidementResteDansSonUnite) {
  modele m(rectangle("EVID E1 DIAM 50. RECT HAUT 0.1 LARG 0.1 FIN_ FIN_EVID"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_EQ(zof_get_pt_nom_zone_section("S1", "E1")->m_diametre_zone, 50);
}

// Nothing tells the strengths of a tendon whose material is none of prestressing steel.
TEST(Zone, UnCableDeMateriauGeneriqueNAPasDeContrainteLimite) {
  modele m(
      section("CONT C1 MATE GENE RECT HAUT 1.D0 LARG 0.5D0 FIN_ PREC P1 MATE GENE AIRE 1500. POIN NUME 5 Y "
              "0. Z 0. FIN_ FIN_POIN FIN_PREC FIN_CONT"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(zof_existe_cable_section("S1", "P1", 5));
  EXPECT_FALSE(zof_contrainte_limite_precontrainte_section("S1", "P1").has_value());
}

TEST(Zone, Gaine) {
  modele m(section(
      "CONT C1 MATE BP RECT HAUT 1.D0 LARG 0.5D0 FIN_ GAIN G1 DIAM 80. POIN NUME 1 Y 0. Z -0.3D0 FIN_ "
      "FIN_POIN\n"
      "PREC P1 MATE TORON AIRE 1500. POIN NUME 5 Y 0. Z -0.3D0 FIN_ FIN_POIN FIN_PREC FIN_GAIN FIN_CONT"));
  ASSERT_TRUE(m.lire()) << m.console();
  double matiere = -1;
  double encombrement = 0;
  ASSERT_EQ(qb7_lire_param_zone(1, 2, &matiere, &encombrement), ier_2{});
  EXPECT_EQ(matiere, 0);
  EXPECT_NEAR(encombrement, 3.1415927410125732 * 0.08 * 0.08 / 4, 1e-17);
  // The duct makes the hole; the engine's mother of the tendon is the contour.
  EXPECT_TRUE(zof_existe_cable_section("S1", "P1", 5));
  EXPECT_FALSE(zof_existe_cable_section("S1", "P1", 1));
  const int cable = zof_get_numero_qb7_cable_section("S1", "P1", 5);
  int mere = 0;
  ASSERT_EQ(qb7_lire_num_zone_mere(1, cable, mere), ier_2{});
  EXPECT_EQ(mere, 1);
  ASSERT_EQ(qb7_lire_param_zone(1, cable, &matiere, &encombrement), ier_2{});
  EXPECT_NEAR(matiere, 0.0015, 1e-18);
  EXPECT_EQ(encombrement, 0);
  EXPECT_TRUE(zof_est_section_precontrainte("S1"));
}

TEST(Zone, Charpente) {
  modele m(
      section("CHAR H1 MATE S355 POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0. Z 0.4D0 FIN_ NUME 3 Y 0.2D0 Z 0.4D0 "
              "FIN_ FIN_POIN\n"
              "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ NUME 2 ORIG 2 EXTR 3 EPAI 20. MATE GENE FIN_ FIN_PROF "
              "FIN_CHAR"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_EQ(zof_get_nom_materiau_principal_section("S1"), texte<32>("S355"));
  EXPECT_EQ(zof_get_nombre_materiau_section("S1"), 2);
  EXPECT_EQ(zof_get_nom_materiau_section("S1", 2), texte<32>("GENE"));
  // The zone of the frame has the number 1, its profiles follow.
  for (const auto& [zone, attendue] : {std::pair{2, 0.010}, std::pair{3, 0.020}}) {
    double matiere = 0;
    double encombrement = 0;
    ASSERT_EQ(qb7_lire_param_zone(1, zone, &matiere, &encombrement), ier_2{});
    EXPECT_NEAR(matiere, attendue, 1e-17);
    EXPECT_NEAR(encombrement, attendue, 1e-17);
  }
  zof_activer_section("S1");
  caracteristiques_mecaniques c;
  ASSERT_EQ(qb7_caracteristiques_mecaniques(1, 1001, c), ier_2{});
  // 0.4 x 0.010 and 0.2 x 0.020: equal areas, centroid halfway between their middles.
  EXPECT_NEAR(c.e_sx, 0.008, 1e-16);
  EXPECT_NEAR(c.yg, 0.05, 1e-15);
  EXPECT_NEAR(c.zg, 0.3, 1e-15);
  EXPECT_NE(zof_get_pt_charpente_externe("S1"), nullptr);
  EXPECT_EQ(zof_get_nombre_type_zone_section("S1", nature_zone::charpente_externe), 1);
}

// The material of a frame may follow its profiles; one of a profile's own holds.
TEST(Zone, UnProfilSansMateriauPrendCeluiDeSaCharpente) {
  modele m(
      section("CHAR H1 POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0. Z 1. FIN_ NUME 3 Y 1. Z 1. FIN_ FIN_POIN\n"
              "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ NUME 2 ORIG 2 EXTR 3 EPAI 0. MATE GENE FIN_ FIN_PROF\n"
              "MATE S355 FIN_CHAR"));
  ASSERT_TRUE(m.lire()) << m.console();
  const auto& zone = *zof_get_pt_charpente_externe("S1");
  const std::array<int, 2> attendus{zof_get_materiau_numero_qb7("S355"), zof_get_materiau_numero_qb7("GENE")};
  for (int i = 1; i <= 2; ++i) {
    const zof_profil p = zof_cp_profil(*zone.m_les_profils_charpente.case_element(i).m_ptr_element);
    int materiau = 0;
    ASSERT_EQ(qb7_lire_num_materiau(1, p.m_numero_zone_qb7, materiau), ier_2{});
    EXPECT_EQ(materiau, attendus[static_cast<std::size_t>(i) - 1]);
  }
}

// A void takes tendons, contours and frames: they stand in the open, and nothing of the void comes back.
// Transformed: 1 - 0.25 + 0.04 + 0.2 x 0.010 + 15 x 0.0015 = 0.8145.
TEST(Zone, CeQuiTientDansUnEvidement) {
  modele m(
      section("CONT C1 MATE GENE RECT HAUT 1.D0 LARG 1.D0 FIN_ EVID E1 RECT HAUT 0.5D0 LARG 0.5D0 FIN_\n"
              "CONT C2 MATE GENE RECT HAUT 0.2D0 LARG 0.2D0 FIN_ FIN_CONT\n"
              "CHAR H1 MATE S355 " +
              points({{0.2, -0.1}, {0.2, 0.1}}) +
              "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ FIN_PROF FIN_CHAR\n"
              "PREC P1 MATE TORON AIRE 1500. " +
              points({{-0.2, 0}}) + "FIN_PREC FIN_EVID FIN_CONT"));
  ASSERT_TRUE(m.lire()) << m.console();
  zof_activer_section("S1");
  caracteristiques_mecaniques c;
  ASSERT_EQ(qb7_caracteristiques_mecaniques(1, 1001, c), ier_2{});
  EXPECT_NEAR(c.e_sx, 0.792, 1e-15);
  ASSERT_EQ(qb7_caracteristiques_mecaniques(1, 1003, c), ier_2{});
  EXPECT_NEAR(c.e_sx, 0.8145, 1e-15);
}

// A generic material stands for any: concrete that bars and tendons reinforce, the bars, the tendons.
TEST(Zone, UnMateriauGeneriqueConvientPartout) {
  modele m(section("CONT C1 MATE GENE RECT HAUT 1. LARG 1. FIN_ FERR F1 MATE GENE DIAM 20. " +
                   points({{0, 0.2}}) + "FIN_FERR\nPREC P1 MATE GENE AIRE 100. " + points({{0, -0.2}}) +
                   "FIN_PREC\nCHAR H1 MATE GENE " + points({{0.2, 0}, {0.3, 0}}) +
                   "PROF NUME 1 ORIG 1 EXTR 2 EPAI 5. FIN_ FIN_PROF FIN_CHAR FIN_CONT"));
  EXPECT_TRUE(m.lire()) << m.console();
}

// A frame cast in concrete takes the place of the concrete that it displaces.
TEST(Zone, UneCharpenteDansUnContourCompteUneFois) {
  modele m(section("CONT C1 MATE BA RECT HAUT 0.6D0 LARG 0.3D0 FIN_ CHAR H1 MATE S355 " +
                   points({{0, -0.2}, {0, 0.2}}) +
                   "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ FIN_PROF FIN_CHAR FIN_CONT"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_EQ(zof_get_pt_charpente_externe("S1"), nullptr);
  EXPECT_EQ(zof_get_nombre_type_zone_section("S1", nature_zone::charpente_interieure), 1);
  zof_activer_section("S1");
  for (const int etat_limite : {1001, 1002, 1003}) {
    caracteristiques_mecaniques c;
    ASSERT_EQ(qb7_caracteristiques_mecaniques(1, etat_limite, c), ier_2{});
    EXPECT_NEAR(c.e_sx, 0.18, 1e-15);
    EXPECT_NEAR(c.e_iy, 0.0054, 1e-15);
  }
}

TEST(Zone, Refus) {
  const std::string prec = "CONT C1 MATE BP RECT HAUT 1. LARG 0.5 FIN_ PREC P1 ";
  const std::string point = "POIN NUME 1 Y 0. Z 0. FIN_ FIN_POIN ";
  const std::string gaine = "GAIN G1 ";
  verifier_refus(
      {{contour("CONT"
                " C1"),
        " Cette zone existe deja"},

       {section("CONT C1 MATE INCONNU"), l1(" Materiau non défini :INCONNU"_l1)},
       {section("CONT C1 MATE HA"), " Le materiau n est pas d un type autorise"},
       {section("CONT C1 MATE TORON"), " Le materiau n est pas d un type autorise"},

       {section("CONT C1 DIAM"), " Mot clef  Diametre incorrect dans ce contexte"},
       {section("CONT C1 DIME"), " Mot clef  DIME incorrect dans ce contexte"},
       {section("CONT C1 AIRE"), " Mot clef  AIRE incorrect dans ce contexte"},
       {section("CONT C1 PROF"), " Mot clef  PROF incorrect dans ce contexte"},
       {section("CONT C1 LITS"), " Mot clef  LITS incorrect dans ce contexte"},
       {section("CONT C1 RECT HAUT 1. LARG 1. FIN_ FIN_CONT"), " Contour : un materiau doit etre defini"},
       {contour("POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 1. Z 0. FIN_ FIN_POIN"),
        "  Un contour non partiel doit comporter au moins trois points"},
       {section("CONT C1 MATE S355 RECT HAUT 1. LARG 1. FIN_ FERR F1 MATE HA DIAM 8. " + point +
                "FIN_FERR FIN_CONT"),
        l1(" Présence de ferraillage alors que le materiau n'est pas du type béton armé"_l1)},
       {contour("RECT HAUT 1. LARG 1. FIN_ PREC P1 MATE TORON AIRE 100. " + point + "FIN_PREC"),
        l1(" Présence  de câbles alors que le materiau n'est pas du type béton precontraint"_l1)},
       {contour("POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0. Z 1. FIN_ NUME 3 Y 1. Z 0. FIN_ FIN_POIN"),
        l1(" l aire de la zone C1  est  négative :-0.50000"_l1)},
       {contour(points({{0, 0}, {1, 0}, {2, 0}})), l1(" l aire de la zone C1  est  négative :0.0000"_l1)},
       // Voids
       {rectangle("EVID E1 MATE"), " Mot clef  Materiau incorrect dans ce contexte"},
       {rectangle("EVID E1 EVID"), " Mot clef  EVID incorrect dans ce contexte"},
       {rectangle("EVID E1 FERR"), " Mot clef  FERR incorrect dans ce contexte"},
       {rectangle("EVID E1 GAIN"), " Mot clef  GAIN incorrect dans ce contexte"},
       {rectangle("EVID E1 DIAM 0."), " Attribut diametre incorrect : <=0"},
       {rectangle("EVID E1 FIN_"), "  Un evidement non partiel doit comporter au moins trois points"},
       // Bars
       {rectangle("FERR F1 MATE BA"), " Le materiau n est pas du type acier"},
       {rectangle("FERR F1 DIAM -1."), " Attribut diametre incorrect : <=0"},
       {rectangle("FERR F1 DIAM 8. DIAM"), "Repetition interdite du mot clef:DIAM"},
       {rectangle("FERR F1 DIME PEUT"), " Mot clef  PEUT incorrect dans ce contexte"},
       {rectangle("FERR F1 RECT"), " Mot clef  RECTANGLE incorrect dans ce contexte"},
       {rectangle("FERR F1 CONT"), " Mot clef  CONT incorrect dans ce contexte"},
       {rectangle("FERR F1 " + point + "FIN_FERR"),
        l1(" Acier : un materiau doit etre defini\n     -  Acier :  le diametre des aciers doit être defini"_l1)},
       // Ducts
       {rectangle(gaine + "DIAM 1."), "Diametre < 1mm"},
       {rectangle(gaine + "DIAM 0."), " Attribut diametre incorrect : <=0"},
       {rectangle(gaine + "MATE"), " Mot clef  Materiau incorrect dans ce contexte"},
       {rectangle(gaine + "CONT"), " Mot clef  CONT incorrect dans ce contexte"},
       {rectangle(gaine + "FIN_GAIN"), " Aucun point n est defini"},
       {rectangle(gaine + point + "FIN_GAIN"), l1(" Gaine :  le diametre doit être defini"_l1)},
       // Tendons
       {section(prec + "MATE HA"), " Le materiau n est pas du type precontrainte"},
       {section(prec + "AIRE 1."), " Attribut aire incorrect : <=1 mm2"},
       {section(prec + "AIRE 2. AIRE"), "Repetition interdite du mot clef:AIRE"},
       {section(prec + "FIN_PREC"), " Aucun point n est defini"},
       {section(prec + point + "FIN_PREC"),
        l1(" Cable : un materiau doit etre defini\n     -  Precontrainte :  l 'aire de la section doit être defini"_l1)}});
}

TEST(Zone, RefusDesDispositionsRepetees) {
  EXPECT_EQ(messages(rectangle("FERR F1 DIME OUI DIME")), "       - Repetition interdite du mot clef:DIME\n");
}

TEST(Zone, RefusDesCharpentes) {
  const std::string deux = "CHAR H1 POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0. Z 1. FIN_ FIN_POIN ";
  const std::string profil = "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. ";
  const std::string type_refuse = l1(" Le materiau doit être du type Charpente ou specifique"_l1);
  verifier_refus(
      {{section("CHAR H1 MATE BA"), type_refuse},
       {section(deux + "PROF FIN_PROF"), " Aucun profil n est defini"},
       {section(deux + "PROF ORIG"), " Mot clef  ORIG incorrect dans ce contexte"},
       {section(deux + "PROF NUME 1 EPAI -1."), "Epaisseur negative"},
       {section(deux + "PROF NUME 1 ORIG 9"), " Point non defini 9"},
       {section(deux + profil + "ORIG"), "Repetition interdite du mot clef:ORIG"},
       {section(deux + profil + "EPAI"), "Repetition interdite du mot clef:EPAI"},
       {section(deux + profil + "DIAM"), " Mot clef  DIAM incorrect dans ce contexte"},
       {section(deux + profil + "MATE HA"), type_refuse},
       {section(deux + profil + "MATE RIEN"), l1(" Materiau non défini :RIEN"_l1)},
       {section(deux + "PROF NUME 1 FIN_"),
        "ORIG: non renseigne(e)\n     - EXTR: non renseigne(e)\n     - EPAI: non renseigne(e)"},
       {section("CHAR H1 FIN_CHAR"), l1("Charpente : au moins deux points doivent être definis\n"
                                        "     - Charpente : au moins un profil doit être defini"_l1)},
       {section(deux + profil + "FIN_ FIN_PROF FIN_CHAR"),
        l1("Aucun materiau défini au niveau du profil et de la charpente"_l1)},
       {section(deux + profil +
                "MATE S355 FIN_ NUME 12 ORIG 2 EXTR 1 EPAI 5. MATE S355 FIN_ FIN_PROF FIN_CHAR"),
        " Duplication de profil :    12"}});
  EXPECT_EQ(messages(section(deux + profil + "MATE S355 MATE")),
            "       - Repetition interdite du mot clef:MATE\n");
}

// ---- Symmetry

namespace {

polygone points_de(const std::string& zone) {
  return zof_get_pt_nom_zone_section("S1", texte<32>(zone))->positions_points();
}

}  // namespace

// SYME Y: the axis Y is the axis of symmetry. The half is listed from axis to axis; its images close the
// outline.
TEST(Symetrie, UnDemiContourSeFerme) {
  modele m(contour("PART " + points({{-1, 0}, {-1, -0.5}, {1, -0.5}, {1, 0}}), "SYME Y"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(egaux(points_de("C1"), {{-1, 0}, {-1, -0.5}, {1, -0.5}, {1, 0}, {1, 0.5}, {-1, 0.5}}));
  const zof_zone& zone = *zof_get_pt_nom_zone_section("S1", "C1");
  EXPECT_THAT(numeros_points(zone), ElementsAre(1, 2, 3, 4, 40001, 40002));
  const zof_point image = zof_cp_point(*zone.m_les_points_zone.case_element(5).m_ptr_element);
  EXPECT_EQ(image.m_numero_point_sym_cible, 3);
  EXPECT_EQ(image.m_ix_point_sym_cible, 3);
  EXPECT_NEAR(zone.aire_zone(), 2, 1e-15);
}

TEST(Symetrie, SymeZChangeY) {
  modele m(contour("PART " + points({{0, -1}, {0.5, -1}, {0.3, 1}, {0, 1}}), "SYME Z"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(egaux(points_de("C1"), {{0, -1}, {0.5, -1}, {0.3, 1}, {0, 1}, {-0.3, 1}, {-0.5, -1}}));
}

// One point in double symmetry is a rectangle, in whichever quarter it stands.
TEST(Symetrie, UnQuartDUnPointEstUnRectangle) {
  for (const point_yz coin : {point_yz{0.3, 0.2}, {-0.3, 0.2}, {-0.3, -0.2}, {0.3, -0.2}}) {
    modele m(contour("PART " + points({coin}), "SYME YZ"));
    ASSERT_TRUE(m.lire()) << m.console();
    EXPECT_EQ(points_de("C1").size(), 4U);
    EXPECT_NEAR(zof_get_pt_nom_zone_section("S1", "C1")->aire_zone(), 0.24, 1e-15);
  }
}

// A quarter of a cross, from axis to axis counter-clockwise, in each of the four quarters.
TEST(Symetrie, UnQuartDeCroix) {
  const std::vector<polygone> quarts{{{0.5, 0}, {0.5, 0.1}, {0.1, 0.1}, {0.1, 0.4}, {0, 0.4}},
                                     {{0, 0.4}, {-0.1, 0.4}, {-0.1, 0.1}, {-0.5, 0.1}, {-0.5, 0}},
                                     {{-0.5, 0}, {-0.5, -0.1}, {-0.1, -0.1}, {-0.1, -0.4}, {0, -0.4}},
                                     {{0, -0.4}, {0.1, -0.4}, {0.1, -0.1}, {0.5, -0.1}, {0.5, 0}}};
  for (const polygone& quart : quarts) {
    modele m(contour("PART " + points(quart), "SYME YZ"));
    ASSERT_TRUE(m.lire()) << m.console();
    EXPECT_EQ(points_de("C1").size(), 16U);
    EXPECT_NEAR(zof_get_pt_nom_zone_section("S1", "C1")->aire_zone(), 1.0 * 0.2 + 2 * 0.2 * 0.3, 1e-15);
    caracteristiques_mecaniques c;
    zof_activer_section("S1");
    ASSERT_EQ(qb7_caracteristiques_mecaniques(1, 1001, c), ier_2{});
    // Horizontal bar 1 x 0.2, vertical bar 0.2 x 0.8, less the square that they share.
    EXPECT_NEAR(c.e_iy, (std::pow(0.2, 3) + 0.2 * std::pow(0.8, 3) - std::pow(0.2, 4)) / 12, 1e-15);
    EXPECT_NEAR(c.e_iz, (0.2 + 0.8 * std::pow(0.2, 3) - std::pow(0.2, 4)) / 12, 1e-15);
  }
}

TEST(Symetrie, UneImageNePrendPasLeNumeroDUnPointDeSaZone) {
  modele m(
      section("CONT C1 MATE BA RECT HAUT 0.5 LARG 0.5 FIN_ FERR F1 MATE HA DIAM 20. PART POIN DROI NUME "
              "40002 NOMB 2 Y_OR 0.1D0 Z_OR 0.2D0 Y_EX 0.2D0 Z_EX 0.2D0 FIN_ FIN_POIN FIN_FERR FIN_CONT",
              "SYME Z"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_THAT(numeros_points(*zof_get_pt_nom_zone_section("S1", "F1")),
              ElementsAre(40002, 40003, 40001, 40004));
}

TEST(Symetrie, UnPointSurLAxeNAPasDImage) {
  const std::string corps =
      "POIN NUME 1 Y 0. Z 0.001D0 FIN_ NUME 2 Y 0.1D0 Z 0.2D0 FIN_ NUME 3 Y 0.1D0 Z 0.0011D0 FIN_ FIN_POIN";
  modele m(section("CONT C1 MATE BA RECT HAUT 0.5 LARG 0.3 FIN_ FERR F1 MATE HA DIAM 20. PART " + corps +
                       " FIN_FERR FIN_CONT",
                   "SYME Y"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(egaux(points_de("F1"), {{0, 0.001}, {0.1, 0.2}, {0.1, 0.0011}, {0.1, -0.2}, {0.1, -0.0011}}));
}

// Bars: the listed points, then their images in the same order, by Z and then by Y of all so far.
TEST(Symetrie, BarresEnDoubleSymetrie) {
  modele m(section("CONT C1 MATE BA RECT HAUT 0.5 LARG 0.5 FIN_ FERR F1 MATE HA DIAM 20. PART " +
                       points({{0.1, 0.2}, {0.2, 0.1}}) + " FIN_FERR FIN_CONT",
                   "SYME YZ"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(egaux(points_de("F1"), {{0.1, 0.2},
                                      {0.2, 0.1},
                                      {-0.1, 0.2},
                                      {-0.2, 0.1},
                                      {0.1, -0.2},
                                      {0.2, -0.1},
                                      {-0.1, -0.2},
                                      {-0.2, -0.1}}));
}

// A profile from the axis outwards gets its image, one across the axis between images, one on the axis none.
TEST(Symetrie, ProfilsDUneCharpente) {
  modele m(section(
      "CHAR H1 MATE S355 PART " + points({{0, 0}, {0, 0.4}, {0.2, 0.4}}) +
          "PROF NUME 4 ORIG 1 EXTR 2 EPAI 10. FIN_ NUME 7 ORIG 2 EXTR 3 EPAI 20. FIN_ FIN_PROF FIN_CHAR",
      "SYME Z"));
  ASSERT_TRUE(m.lire()) << m.console();
  const auto& zone = *zof_get_pt_charpente_externe("S1");
  ASSERT_EQ(zone.m_les_profils_charpente.nombre(), 3);
  const zof_profil image = zof_cp_profil(*zone.m_les_profils_charpente.case_element(3).m_ptr_element);
  EXPECT_EQ(image.m_numero_profil, 8);
  EXPECT_EQ(image.m_no_point_origine, 2);
  EXPECT_EQ(image.m_no_point_extremite, 40001);
  EXPECT_EQ(image.m_epaisseur_profil, 0.02);
  EXPECT_EQ(zone.numeros_zones_qb7().size(), 3U);
}

TEST(Symetrie, Refus) {
  verifier_refus(
      {{contour("PART"),
        l1(" l option PARTIELLE ne doit etre définie que si l option SYMETRIE est activee"_l1)},
       {contour("RECT HAUT 1. LARG 1. FIN_ FERR F1 MATE HA DIAM 8. POIN NUME 1 Y 0. Z 0. FIN_ "
                "FIN_POIN FIN_FERR PART",
                "SYME Y"),
        "Il est interdit de redefinir une forme typee"},
       {contour("EVID E1 RECT HAUT 1. LARG 1. FIN_ FIN_ PART", "SYME Z"),
        " l option PARTIELLE doit preceder les sous zones"},
       {contour("PART " + points({{0, 1}}), "SYME Y"),
        "  Symetrie : Y ou Z : Un contour partiel doit comporter au moins deux points"},
       {contour("RECT HAUT 2. LARG 2. FIN_ EVID E1 PART " + points({{0, 0.5}}) + "FIN_", "SYME Z"),
        "  Symetrie : Y ou Z : Un evidement partiel doit comporter au moins deux points"},
       {contour("EVID E1 POIN " + std::string("NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 1. Z 0. FIN_ NUME 3 Y 0. "
                                              "Z 1. FIN_ FIN_POIN FIN_ PART")),
        l1(" l option PARTIELLE ne doit etre définie que si l option SYMETRIE est activee\n"
           "     -  l option PARTIELLE doit preceder les sous zones"_l1)},
       {contour("SYME"), " Mot clef  SYME incorrect dans ce contexte"}});
  EXPECT_EQ(messages(contour("PART PART", "SYME Y")), "       - Repetition interdite du mot clef:PART\n");
}

// ---- Points inside their mother

TEST(Interieur, UnContourQuiToucheSonContourPasse) {
  // Flush on two sides, and a point half a millimetre outside.
  modele m(contour("RECT HAUT 1.D0 LARG 1.D0 FIN_ EVID E1 " +
                   points({{0.5, 0.5}, {-0.5005, 0.5}, {-0.5, 0}, {0.5, 0}}) + "FIN_"));
  EXPECT_TRUE(m.lire()) << m.console();
}

TEST(Interieur, Refus) {
  verifier_refus(
      {{barres("POIN NUME 12 Y 0.2 Z 0. FIN_ FIN_POIN"), " Point    12 de la zone F1 exterieur a la zone C1"},
       {barres("POIN DROI NUME 1 NOMB 3 Y_OR 0. Z_OR 0. Y_EX 0.8 Z_EX 0. FIN_ FIN_POIN"),
        " Point     2 de la zone F1 exterieur a la zone C1\n"
        "     -  Point     3 de la zone F1 exterieur a la zone C1"},
       // In the notch of an L, level with one of its corners.
       {contour(points(corniere) +
                "FERR F1 MATE HA DIAM 8. POIN NUME 1 Y 0.4D0 Z 0.2D0 FIN_ NUME 2 Y 0.4D0 Z 0.8D0 FIN_ "
                "FIN_POIN FIN_FERR"),
        " Point     2 de la zone F1 exterieur a la zone C1"},
       {rectangle("GAIN G1 DIAM 100. POIN NUME 1 Y 0. Z 0. FIN_ FIN_POIN PREC P1 MATE TORON AIRE 10. POIN "
                  "NUME 3 Y 0. Z 0.06D0 "
                  "FIN_ FIN_POIN FIN_PREC FIN_GAIN"),
        l1(" Présence  de câbles alors que le materiau n'est pas du type béton precontraint"_l1)},
       {section("CONT C1 MATE BP RECT HAUT 1. LARG 1. FIN_ GAIN G1 DIAM 100. POIN NUME 1 Y 0. Z 0. FIN_ "
                "FIN_POIN PREC P1 "
                "MATE TORON AIRE 10. POIN NUME 3 Y 0. Z 0.06D0 FIN_ FIN_POIN FIN_PREC FIN_GAIN FIN_CONT"),
        " Point     3 de la zone P1 exterieur a la zone G1"}});
}

// ---- The section

TEST(Section, Refus) {
  const std::string titre_absent = "Titre: non renseigne(e)";
  const std::string carre = "CONT C1 MATE BA RECT HAUT 1. LARG 1. FIN_ FIN_CONT ";
  verifier_refus({{section(""), "Aucune entite definie dans section"},
                  {"SECT S1 FIN_SECT\n", titre_absent + "\n     - Aucune entite definie dans section"},
                  {"SECT S1 " + carre + "FIN_SECT\n", titre_absent},
                  {section(carre + "MORP"), " Mot clef  MORP incorrect dans ce contexte"}});
}

TEST(Section, LaSymetriePrecedeLesZones) {
  const std::string carre = "CONT C1 MATE BA RECT HAUT 1. LARG 1. FIN_ FIN_CONT ";
  verifier_refus({{section(carre + "SYME"), "Cette option doit preceder la definition des zones"},
                  {section("SYME Y SYME"), "Repetition interdite du mot clef:SYME"},
                  {section("SYME X"), " Mot clef  X    incorrect dans ce contexte"},
                  {section("EVID"), " Mot clef  EVID incorrect dans ce contexte"},
                  {section(carre + "CONT C1"), " Cette zone existe deja"}});
  EXPECT_EQ(messages(section("TITR")), "       - Repetition interdite du mot clef:TITR\n");
}

TEST(Section, UnNomSeLitEnEntier) {
  const std::string corps = " TITR 'x' CONT C1 MATE BA RECT HAUT 1. LARG 1. FIN_ FIN_CONT FIN_SECT\n";
  modele m("SECT POTEAU_1" + corps + "SECT POTEAU_2" + corps + "SECT POTEAU_1" + corps);
  EXPECT_FALSE(m.lire());
  EXPECT_THAT(m.listing(), HasSubstr("     -  La section POTEAU_1 existe deja\n"));
  EXPECT_EQ(zof_get_numero_qb7_section("POTEAU_2"), 2);
}

// The last concrete is the main material; structural steel after concrete does not take its place.
TEST(Section, MateriauPrincipal) {
  const auto zone = [](const std::string& nom, const std::string& materiau) {
    return "CONT " + nom + " MATE " + materiau + " RECT HAUT 1. LARG 1. FIN_ FIN_CONT ";
  };
  const std::vector<std::pair<std::string, std::string>> cas{
      {zone("ZA", "BA") + zone("ZB", "BP"), "BP"},
      {zone("ZA", "BA") + zone("ZB", "S355"), "BA"},
      {zone("ZA", "S355") + zone("ZB", "BA"), "BA"},
      {zone("ZA", "GENE") + zone("ZB", "S355"), "GENE"}};
  for (const auto& [corps, attendu] : cas) {
    modele m(section(corps));
    ASSERT_TRUE(m.lire()) << m.console();
    EXPECT_EQ(zof_get_nom_materiau_principal_section("S1"), texte<32>(attendu));
  }
}

TEST(Section, Questions) {
  modele m(
      section("CONT C1 MATE BA RECT HAUT 1. LARG 1. FIN_ FERR F1 MATE HA DIAM 20. POIN NUME 1 Y 0. Z 0. FIN_ "
              "FIN_POIN FIN_FERR\n"
              "EVID E1 RECT HAUT 0.2 LARG 0.2 FIN_ FIN_ FIN_CONT CONT C2 MATE BA RECT HAUT 2. LARG 2. FIN_ "
              "FIN_CONT"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(zof_existe_section("S1"));
  EXPECT_FALSE(zof_existe_section("S2"));
  EXPECT_EQ(zof_get_pt_section("S2"), nullptr);
  EXPECT_EQ(zof_get_nombre_zones_section("S1"), 4);
  EXPECT_EQ(zof_get_pt_zone_section("S1", 2)->get_nom_zone(), texte<32>("F1"));
  EXPECT_EQ(zof_get_nom_materiau_zone_section("S1", "F1"), texte<32>("HA"));
  EXPECT_EQ(zof_get_nombre_materiau_section("S1"), 2);
  EXPECT_EQ(zof_get_nombre_type_zone_section("S1", nature_zone::contour), 2);
  EXPECT_EQ(zof_get_pt_contour_externe("S1")->get_nom_zone(), texte<32>("C1"));
  EXPECT_EQ(zof_get_pt_charpente_externe("S1"), nullptr);
  EXPECT_TRUE(zof_est_section_ferraillee("S1"));
  EXPECT_FALSE(zof_est_section_ferraillage_dimensionnable("S1"));
  EXPECT_FALSE(zof_est_section_precontrainte("S1"));
  EXPECT_FALSE(zof_existe_precontrainte_section("S1", "F1"));
  EXPECT_FALSE(zof_existe_cable_section("S1", "F1", 1));
  EXPECT_TRUE(zof_existe_situation_section("S1", "EXPLOITATION_SERVICE"));
  EXPECT_FALSE(zof_existe_situation_section("S1", "CONSTRUCTION"));
  EXPECT_TRUE(zof_existe_etat_limite_situation_section("S1", "EXPLOITATION_SERVICE", "MECA_NET"));
  EXPECT_FALSE(zof_existe_etat_limite_situation_section("S1", "EXPLOITATION_SERVICE", "ELU_DURABLE"));
}

TEST(Section, UneSectionInconnueArreteLaCourse) {
  modele m("STOP\n");
  EXPECT_EQ(statut_d_arret([] { static_cast<void>(zof_get_numero_qb7_section("S1")); }), 1);
  EXPECT_THAT(m.console(), HasSubstr("Zof_Get_Pt_Section : Cas impossible"));
}

// Bars and ducts count with half their diameter, outlines do not.
TEST(Section, Emprise) {
  modele m(
      contour("RECT HAUT 0.5D0 LARG 0.3D0 FIN_ FERR F1 MATE HA DIAM 40. POIN NUME 1 Y 0.14D0 Z 0. FIN_ "
              "FIN_POIN FIN_FERR"));
  ASSERT_TRUE(m.lire()) << m.console();
  zof_section& s = *zof_get_pt_section("S1");
  zof_emprise_section(s);
  EXPECT_NEAR(s.m_y_min_max[0], -0.15, 1e-15);
  EXPECT_NEAR(s.m_y_min_max[1], 0.16, 1e-15);
  EXPECT_NEAR(s.m_z_min_max[0], -0.25, 1e-15);
  EXPECT_NEAR(s.m_z_min_max[1], 0.25, 1e-15);
}

namespace {

std::vector<bool> activites() {
  std::vector<bool> resultat;
  for (const zof_zone* const zone : zof_lister_zones_section("S1"))
    for (const int numero : zone->numeros_zones_qb7()) {
      bool active = false;
      EXPECT_EQ(qb7_activite_zone(1, numero, active), ier_2{});
      resultat.push_back(active);
    }
  return resultat;
}

}  // namespace

// A later command inherits neither planes nor histories of tendons.
TEST(Section, ActiverRepartDeZero) {
  modele m(
      section("CONT C1 MATE BP RECT HAUT 1. LARG 0.5 FIN_ PREC P1 MATE TORON AIRE 1500. POIN NUME 5 Y 0. Z "
              "0. FIN_ FIN_POIN "
              "FIN_PREC FIN_CONT"));
  ASSERT_TRUE(m.lire()) << m.console();
  const int cable = zof_get_numero_qb7_cable_section("S1", "P1", 5);
  EXPECT_THAT(activites(), ElementsAre(false, false));
  ASSERT_EQ(qb7_fixer_deform_zone(1, 1, false, qb7_deform_cumulee, {1e-3, 0, 0}), ier_2{});
  ASSERT_EQ(qb7_fixer_modif_lois_zone(1, cable, {0, 1e-3, 0, 1e-3, 1e-3, 0}), ier_2{});
  zof_activer_section("S1", true);
  EXPECT_THAT(activites(), ElementsAre(true, false));
  int type = 0;
  deformation plan;
  ASSERT_EQ(qb7_lire_deform_zone(1, 1, type, plan), ier_2{});
  EXPECT_EQ(plan, deformation{});
  modif_lois histoire;
  ASSERT_EQ(qb7_lire_modif_lois_zone(1, cable, histoire), ier_2{});
  EXPECT_EQ(histoire, modif_lois{});
  zof_activer_section("S1");
  EXPECT_THAT(activites(), ElementsAre(true, true));
  zof_desactiver_cables_section("S1");
  EXPECT_THAT(activites(), ElementsAre(true, false));
  zof_desactiver_section("S1");
  EXPECT_THAT(activites(), ElementsAre(false, false));
}

// Two rectangles side by side, the second with bars: the frame of each, and of both; the activity stays.
TEST(Section, RepereBrutDeZonesNommees) {
  modele m(section("CONT ZA MATE BA " + points({{0, 0}, {1, 0}, {1, 1}, {0, 1}}) +
                   "FIN_CONT CONT ZB MATE BA " + points({{1, 0}, {3, 0}, {3, 1}, {1, 1}}) +
                   "FERR F1 MATE HA DIAM 20. " + points({{2.5, 0.5}}) + "FIN_FERR FIN_CONT"));
  ASSERT_TRUE(m.lire()) << m.console();
  ASSERT_EQ(qb7_activer_zone(1, 2, true, false), ier_2{});
  const std::array<texte<32>, 1> a{"ZA"};
  EXPECT_NEAR(zof_get_repere_brut_section("S1", a).y, 0.5, 1e-14);
  EXPECT_NEAR(zof_get_repere_brut_section("S1", a).z, 0.5, 1e-14);
  EXPECT_GT(zof_get_repere_brut_section("S1", std::array<texte<32>, 1>{"ZB"}).y, 1.99);
  EXPECT_NEAR(zof_get_repere_brut_section("S1").z, 0.5, 1e-14);
  EXPECT_THAT(activites(), ElementsAre(false, true, false));
}

// Thousands of zones nested in one another are read without a stack of calls.
TEST(Section, ZonesEmboiteesSansLimite) {
  std::string debut;
  for (int i = 0; i < 4000; ++i)
    debut += "CONT C" + std::to_string(i) + " MATE BA EVID E" + std::to_string(i) + "\n";
  modele m(section(debut + "POIN FIN_POIN\n"));
  EXPECT_FALSE(m.lire());
  EXPECT_NE(m.listing().find(" Aucun point n est defini"), std::string::npos);
}

// A mother's copy has points of its own.
TEST(Zone, UneCopieASesPropresPoints) {
  modele m(rectangle(""));
  ASSERT_TRUE(m.lire()) << m.console();
  const zof_contour& original = *zof_get_pt_contour_externe("S1");
  const auto copie = original.cloner();
  uef_pointage<zof_point> { static_cast<zof_contour&>(*copie).m_les_points_zone, 1 } -> m_y = 5;
  EXPECT_NEAR(original.positions_points()[0].y, 0.15, 1e-15);
}
