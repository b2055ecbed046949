// Zones in whole data files with the materials of the codes: steel frames, halves and quarters completed by
// symmetry, what lies inside what, points and profiles that stand twice, every refusal of a zone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "Executer.hpp"
#include "Modele.hpp"
#include "QB7_Sections.hpp"
#include "Zof_Gestion_Section.hpp"

using namespace socle::litteraux;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string materiaux = R"(MATE BETON C30 TITR 'Beton arme' FCK 30. PREC NON FIN_MATE
MATE BETON C40 TITR 'Beton precontraint' FCK 40. PREC OUI FIN_MATE
MATE ACIER B500 TITR 'Armatures' FYK 500. TYPE T_B FIN_MATE
MATE PREC T15 TITR 'Torons' FP01 1600. FPK 1860. FIN_MATE
MATE CHAR S355 TITR 'Profiles' FY 355. FU 490. FIN_MATE
)";

std::string section(const std::string& zones, const std::string& tete = "") {
  return "SECT S1 TITR 'Essai' " + tete + "\n" + zones + "\nFIN_SECT\n";
}
std::string dans_un_contour(const std::string& corps, const std::string& tete = "") {
  return section("CONT C1 MATE C40 " + corps + "\nFIN_CONT", tete);
}
/// A rectangle 1.0 high and 0.5 wide about the origin.
std::string dans_un_rectangle(const std::string& corps, const std::string& tete = "") {
  return dans_un_contour("RECT HAUT 1.D0 LARG 0.5D0 FIN_\n" + corps, tete);
}
std::string points(const std::vector<point_yz>& liste) {
  std::string texte = "POIN ";
  int numero = 0;
  for (const point_yz& p : liste) {
    char tampon[96];
    std::snprintf(tampon, sizeof tampon, "NUME %d Y %.12fD0 Z %.12fD0 FIN_\n", ++numero, p.y, p.z);
    texte += tampon;
  }
  return texte + "FIN_POIN ";
}

course lancer(const std::string& commandes) { return executer("ZOF\n" + materiaux + commandes + " FIN_\n"); }

std::unique_ptr<modele> lire(const std::string& commandes) {
  auto m = std::make_unique<modele>(materiaux + commandes + "FIN_\n");
  EXPECT_FALSE(m->erco()) << commandes << m->console();
  return m;
}

constexpr int brutes = 1001;
constexpr int nettes = 1002;
constexpr int homogenes = 1003;

caracteristiques_mecaniques proprietes(int etat_limite) {
  zof_activer_section("S1");
  caracteristiques_mecaniques c;
  EXPECT_EQ(qb7_caracteristiques_mecaniques(1, etat_limite, c), ier_2{});
  return c;
}

void verifier_proprietes(int etat_limite, double aire, double zg, double inertie_y, double inertie_z) {
  const caracteristiques_mecaniques c = proprietes(etat_limite);
  EXPECT_NEAR(c.e_sx, aire, 1e-14);
  EXPECT_NEAR(c.yg, 0, 1e-14);
  EXPECT_NEAR(c.zg, zg, 1e-13);
  EXPECT_NEAR(c.e_iy, inertie_y, 1e-14);
  EXPECT_NEAR(c.e_iz, inertie_z, 1e-14);
}

/// The refusal in a whole run: the message behind the heading, nothing else, the notes closed, status 1.
void refuser(const std::string& commandes, const std::string& message, const std::string& marge = "     - ") {
  const course c = lancer(commandes);
  EXPECT_EQ(c.statut, 1) << commandes;
  const auto debut = c.listing.find("Erreur de commande : \n");
  ASSERT_NE(debut, std::string::npos) << commandes << "\n" << c.listing;
  EXPECT_EQ(c.listing.substr(debut + 22), marge + message + "\n") << commandes;
  EXPECT_THAT(c.html, HasSubstr("</html>")) << commandes;
}

// A welded I 0.40 high: flanges 200 x 20, web 400 x 10 between their middles.
constexpr double aire_i = 2 * 0.2 * 0.02 + 0.4 * 0.01;
const double inertie_y_i = 2 * 0.2 * 0.02 * 0.2 * 0.2 + 0.01 * std::pow(0.4, 3) / 12;
const double inertie_z_i = 2 * 0.02 * std::pow(0.2, 3) / 12;

const std::string i_soude =
    "CHAR H1 TITR 'Profil' MATE S355 " +
    points({{-0.1, 0.2}, {0, 0.2}, {0.1, 0.2}, {0, -0.2}, {-0.1, -0.2}, {0.1, -0.2}}) +
    "PROF NUME 1 ORIG 1 EXTR 2 EPAI 20. FIN_ NUME 2 ORIG 2 EXTR 3 EPAI 20. FIN_ NUME 3 ORIG 2 EXTR 4 EPAI "
    "10. "
    "FIN_\nNUME 4 ORIG 5 EXTR 4 EPAI 20. FIN_ NUME 5 ORIG 4 EXTR 6 EPAI 20. FIN_ FIN_PROF FIN_CHAR\n";

}  // namespace

// ---- Steel frames

// Thin plates: t L (dz²/12 + z²), the plate's own thickness counts for nothing in its bending.
TEST(Charpente, UnISoude) {
  const auto m = lire(section(i_soude));
  for (const int etat_limite : {brutes, nettes, homogenes})
    verifier_proprietes(etat_limite, aire_i, 0, inertie_y_i, inertie_z_i);
  EXPECT_EQ(zof_get_nom_materiau_principal_section("S1"), socle::texte<32>("S355"));
}

TEST(Charpente, LaNoteDonneProprietesPointsEtProfils) {
  const course c = lancer(section(i_soude) + "EDIT SECT S1\n");
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, HasSubstr("Aire      (m2) : 0.12000E-01"));
  EXPECT_THAT(c.txt, HasSubstr("Inertie y (m4) : 0.37333E-03"));
  EXPECT_THAT(c.txt, HasSubstr("Inertie z (m4) : 0.26667E-04"));
  EXPECT_THAT(c.txt, HasSubstr("Charpente : H1 - Profil"));
  EXPECT_THAT(c.txt, HasSubstr("Materiau : S355"));
  EXPECT_THAT(c.txt, HasSubstr("Num_Profil"));
  EXPECT_THAT(c.txt, HasSubstr("Epaisseur (mm)"));
}

// A concrete slab 1.0 x 0.15 upon the steel: in the gross properties both count with their areas.
TEST(Charpente, UnePoutreMixte) {
  const auto m =
      lire(section("CONT DALLE MATE C30 " + points({{0.5, 0.36}, {-0.5, 0.36}, {-0.5, 0.21}, {0.5, 0.21}}) +
                   "FIN_CONT\n" + i_soude));
  const double aire = 0.15 + aire_i;
  const double zg = 0.15 * 0.285 / aire;
  const double inertie_y = std::pow(0.15, 3) / 12 + 0.15 * 0.285 * 0.285 + inertie_y_i - aire * zg * zg;
  verifier_proprietes(brutes, aire, zg, inertie_y, 0.15 / 12 + inertie_z_i);
  EXPECT_EQ(zof_get_nom_materiau_principal_section("S1"), socle::texte<32>("C30"));
}

// Cast in concrete, the frame takes the place of the concrete: the gross section is the rectangle's.
TEST(Charpente, UnIEnrobe) {
  const auto m = lire(dans_un_rectangle(i_soude));
  verifier_proprietes(brutes, 0.5, 0, 0.5 / 12, 0.125 / 12);
  EXPECT_EQ(zof_get_nombre_type_zone_section("S1", nature_zone::charpente_interieure), 1);
}

// Half of the I, upper or right, and a quarter of it: the same section, the web on its axis once.
TEST(Charpente, MoitiesEtQuartParSymetrie) {
  const std::string moitie_haute =
      "CHAR H1 MATE S355 PART " + points({{-0.1, 0.2}, {0, 0.2}, {0.1, 0.2}, {0, 0}}) +
      "PROF NUME 1 ORIG 1 EXTR 2 EPAI 20. FIN_ NUME 2 ORIG 2 EXTR 3 EPAI 20. FIN_ NUME 3 ORIG 2 EXTR 4 EPAI "
      "10. FIN_ FIN_PROF FIN_CHAR";
  const std::string moitie_droite =
      "CHAR H1 MATE S355 PART " + points({{0, 0.2}, {0.1, 0.2}, {0, -0.2}, {0.1, -0.2}}) +
      "PROF NUME 1 ORIG 1 EXTR 2 EPAI 20. FIN_ NUME 2 ORIG 1 EXTR 3 EPAI 10. FIN_ NUME 3 ORIG 3 EXTR 4 EPAI "
      "20. FIN_ FIN_PROF FIN_CHAR";
  const std::string quart =
      "CHAR H1 MATE S355 PART " + points({{0, 0}, {0, 0.2}, {0.1, 0.2}}) +
      "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ NUME 2 ORIG 2 EXTR 3 EPAI 20. FIN_ FIN_PROF FIN_CHAR";
  struct cas {
    std::string zone, symetrie;
    int profils;
  };
  for (const auto& [zone, symetrie, profils] :
       {cas{moitie_haute, "SYME Y", 6}, cas{moitie_droite, "SYME Z", 5}, cas{quart, "SYME YZ", 6}}) {
    SCOPED_TRACE(symetrie);
    const auto m = lire(section(zone, symetrie));
    EXPECT_EQ(zof_get_pt_charpente_externe("S1")->m_les_profils_charpente.nombre(), profils);
    verifier_proprietes(brutes, aire_i, 0, inertie_y_i, inertie_z_i);
  }
}

// A plate across the axis stands twice with its image, end for end: it is described whole or not at all.
TEST(Charpente, UneImageQuiSeConfondEstRefusee) {
  const std::string plat = "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ FIN_PROF FIN_CHAR";
  refuser(section("CHAR H1 MATE S355 PART " + points({{-0.1, 0.2}, {0.1, 0.2}}) + plat, "SYME Z"),
          " Duplication de point : 40001 zone : H1");
  const auto m = lire(section("CHAR H1 MATE S355 " + points({{-0.1, 0.2}, {0.1, 0.2}}) + plat, "SYME Z"));
  EXPECT_EQ(zof_get_pt_charpente_externe("S1")->m_les_profils_charpente.nombre(), 1);
}

TEST(Charpente, PointsEtProfilsDoubles) {
  const std::string trois = "CHAR H1 MATE S355 " + points({{0, 0}, {0, 0.4}, {0.2, 0.4}});
  const auto profils = [](const std::string& bouts) { return "PROF " + bouts + "FIN_PROF FIN_CHAR"; };
  const std::string a = "NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ ";
  refuser(
      section(trois + profils(a + "NUME 2 ORIG 2 EXTR 3 EPAI 5. FIN_ NUME 7 ORIG 2 EXTR 1 EPAI 5. FIN_ ")),
      " Duplication de profil :     7");
  refuser(section(trois + profils(a + "NUME 123456 ORIG 1 EXTR 2 EPAI 5. FIN_ ")),
          " Duplication de profil : *****");
  refuser(section("CHAR H1 MATE S355 " + points({{0, 0}, {0, 0.4}, {0.0009, 0}}) + profils(a)),
          " Duplication de point :     3 zone : H1");
  // The number of a profile may be any integer, and its images go on from it.
  const auto m = lire(section("CHAR H1 MATE S355 PART " + points({{0.1, 0}, {0.1, 0.4}}) +
                                  profils("NUME 2147483646 ORIG 1 EXTR 2 EPAI 10. FIN_ "),
                              "SYME Z"));
  EXPECT_EQ(zof_get_pt_charpente_externe("S1")->m_les_profils_charpente.nombre(), 2);
}

TEST(Charpente, DansCeQuiLaTient) {
  const auto barre = [](double z) {
    return "CHAR H1 MATE S355 " + points({{0, 0}, {0, z}}) +
           "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ FIN_PROF FIN_CHAR\n";
  };
  refuser(dans_un_rectangle(barre(0.6)), " Point     2 de la zone H1 exterieur a la zone C1");
  const std::string vide = "EVID E1 RECT HAUT 0.4D0 LARG 0.2D0 FIN_ ";
  refuser(dans_un_rectangle(vide + barre(0.3) + "FIN_"), " Point     2 de la zone H1 exterieur a la zone E1");
  // In the open of a void it displaces nothing and adds its area.
  const auto m = lire(dans_un_rectangle(vide + barre(0.15) + "FIN_"));
  EXPECT_NEAR(proprietes(brutes).e_sx, 0.5 - 0.08 + 0.15 * 0.01, 1e-14);
}

// Plates without thickness or without length are accepted; alone they have no properties to tell.
TEST(Charpente, SansEpaisseurOuSansLongueur) {
  const std::string deux = "CHAR H1 MATE S355 " + points({{0, 0}, {0, 0.4}});
  const auto m =
      lire(section(deux + "PROF NUME 1 ORIG 1 EXTR 2 EPAI 0. FIN_ NUME 2 ORIG 1 EXTR 1 EPAI 5. FIN_ NUME 3 "
                          "ORIG 2 EXTR 2 EPAI 5. FIN_ FIN_PROF FIN_CHAR"));
  EXPECT_EQ(zof_get_pt_charpente_externe("S1")->m_les_profils_charpente.nombre(), 3);
}

// Nothing has an area: the engine tells it of the properties, and the run stops there with the notes open.
TEST(Zones, SansAireIlNYAPasDeProprietes) {
  const std::string deux = "CHAR H1 MATE S355 " + points({{0, 0}, {0.1, 0.4}});
  for (const std::string& texte : {section(deux + "PROF NUME 1 ORIG 1 EXTR 2 EPAI 0. FIN_ FIN_PROF FIN_CHAR"),
                                   section(deux + "PROF NUME 1 ORIG 1 EXTR 1 EPAI 5. FIN_ FIN_PROF FIN_CHAR"),
                                   dans_un_rectangle("EVID E1 RECT HAUT 1.D0 LARG 0.5D0 FIN_ FIN_")}) {
    EXPECT_EQ(lancer(texte).statut, 0) << texte;
    const course c = lancer(texte + "EDIT SECT S1\n");
    EXPECT_EQ(c.statut, 1) << texte;
    EXPECT_THAT(c.console, HasSubstr("ERR_E_SX_NUL"));
  }
}

// ---- Halves and quarters of what stands in concrete

// Rectangle, void, duct, tendon and bars, each by a half or a quarter, against the same section in full.
TEST(Symetrie, UneSectionPartielleVautLaSectionEntiere) {
  const std::string entiere = dans_un_contour(
      points({{0.3, 0.5}, {-0.3, 0.5}, {-0.2, -0.5}, {0.2, -0.5}}) + "EVID E1 " +
      points({{0.1, 0.2}, {-0.1, 0.2}, {-0.1, -0.2}, {0.1, -0.2}}) + "FIN_\nGAIN G1 DIAM 60. " +
      points({{0.1, -0.4}, {-0.1, -0.4}}) + "PREC P1 MATE T15 AIRE 900. " +
      points({{0.1, -0.4}, {-0.1, -0.4}}) + "FIN_PREC FIN_GAIN\nPREC P2 MATE T15 AIRE 150. " +
      points({{0.2, 0.4}, {-0.2, 0.4}}) + "FIN_PREC\nFERR F1 MATE B500 DIAM 20. " +
      points({{0.1, -0.45}, {-0.1, -0.45}, {0, -0.45}}) + "FIN_FERR");
  const std::string moitie = dans_un_contour(
      "PART " + points({{0, -0.5}, {0.2, -0.5}, {0.3, 0.5}, {0, 0.5}}) + "EVID E1 PART " +
          points({{0, -0.2}, {0.1, -0.2}, {0.1, 0.2}, {0, 0.2}}) + "FIN_\nGAIN G1 DIAM 60. PART " +
          points({{0.1, -0.4}}) + "PREC P1 MATE T15 AIRE 900. PART " + points({{0.1, -0.4}}) +
          "FIN_PREC FIN_GAIN\nPREC P2 MATE T15 AIRE 150. PART " + points({{0.2, 0.4}}) +
          "FIN_PREC\nFERR F1 MATE B500 DIAM 20. PART " + points({{0.1, -0.45}, {0, -0.45}}) + "FIN_FERR",
      "SYME Z");
  std::vector<caracteristiques_mecaniques> attendues;
  for (const std::string& texte : {entiere, moitie}) {
    const auto m = lire(texte);
    // Trapezium less the void and the two ducts; less the tendons in the concrete; more 15 times all steel.
    const double brute = 0.5 - 0.08 - 2 * 3.1415927410125732 * 0.06 * 0.06 / 4;
    const double nette = brute - 2 * 150e-6;
    const double barre = 1.57079637050628662 * 2 * 0.02 * 0.02 / 4;
    EXPECT_NEAR(proprietes(brutes).e_sx, brute, 1e-14);
    EXPECT_NEAR(proprietes(nettes).e_sx, nette, 1e-14);
    EXPECT_NEAR(proprietes(homogenes).e_sx, nette + 15 * (2 * 900e-6 + 2 * 150e-6 + 3 * barre), 1e-14);
    for (const int etat_limite : {brutes, nettes, homogenes}) attendues.push_back(proprietes(etat_limite));
  }
  ASSERT_EQ(attendues.size(), 6U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(attendues[i].e_sx, attendues[i + 3].e_sx, 1e-14);
    EXPECT_NEAR(attendues[i].yg, attendues[i + 3].yg, 1e-14);
    EXPECT_NEAR(attendues[i].zg, attendues[i + 3].zg, 1e-14);
    EXPECT_NEAR(attendues[i].e_iy, attendues[i + 3].e_iy, 1e-14);
    EXPECT_NEAR(attendues[i].e_iz, attendues[i + 3].e_iz, 1e-14);
  }
}

// A single is read as it is: 0.001 is the tolerance itself, on the axis; the next one above has an image.
TEST(Symetrie, AUnMillimetreDeLAxe) {
  const auto nombre = [](const std::string& z) {
    const auto m = lire(dans_un_rectangle(
        "FERR F1 MATE B500 DIAM 8. PART POIN NUME 1 Y 0.1 Z " + z + " FIN_ FIN_POIN FIN_FERR", "SYME Y"));
    return zof_get_pt_nom_zone_section("S1", "F1")->m_les_points_zone.nombre();
  };
  for (const char* const z : {"0.", "0.001", "-0.001", "0.001D0", "0.0010000000474974513D0", "0.0005"})
    EXPECT_EQ(nombre(z), 1) << z;
  for (const char* const z : {"0.0010001", "-0.0010001", "0.0010000000474974516D0"})
    EXPECT_EQ(nombre(z), 2) << z;
}

// The ends of a half are on the axis within the tolerance: they close the outline as they are written.
TEST(Symetrie, LesBoutsDUneMoitieSontSurLAxe) {
  const auto m = lire(
      dans_un_contour("PART " + points({{0.0009, -0.5}, {0.2, -0.5}, {0.2, 0.5}, {-0.0009, 0.5}}), "SYME Z"));
  const zof_zone& zone = *zof_get_pt_nom_zone_section("S1", "C1");
  EXPECT_EQ(zone.m_les_points_zone.nombre(), 6);
  EXPECT_NEAR(zone.aire_zone(), 0.4, 1e-14) << "a point between two others of one side changes nothing";
}

TEST(Symetrie, UneMoitieDesDeuxCotesDeLAxeSeRecouvre) {
  // Listed whole, and completed all the same: each point falls upon the image of another.
  refuser(dans_un_contour("PART " + points({{0.2, 0.5}, {-0.2, 0.5}, {-0.2, -0.5}, {0.2, -0.5}}), "SYME Z"),
          " Duplication de point : 40001 zone : C1");
  // Run clockwise: refused by its area, with the whole of it.
  refuser(dans_un_contour("PART " + points({{0, 0.5}, {0.2, 0.5}, {0.2, -0.5}, {0, -0.5}}), "SYME Z"),
          std::string(" l aire de la zone C1  est  négative :-0.40000       "_l1));
}

// 50 000 points and their images, numbered behind them, would need a number beyond the last.
TEST(Symetrie, LesNumerosDesImagesOntUneFin) {
  const auto ligne = [](int nombre) {
    return dans_un_contour(
        "RECT HAUT 200. LARG 200. FIN_ FERR F1 MATE B500 DIAM 8. PART POIN DROI NUME 1 NOMB " +
            std::to_string(nombre) + "\nY_OR -99. Z_OR 1. Y_EX 99. Z_EX 1. FIN_ FIN_POIN FIN_FERR",
        "SYME Y");
  };
  refuser(ligne(50000), " Numero de point incorrect >99999");
  const auto m = lire(ligne(49999));
  EXPECT_EQ(zof_get_pt_section("S1")->numero_point_max_section(), 99998);
}

// ---- What lies in what

TEST(Interieur, CeQuiToucheOuDepasseSansEnSortir) {
  // A void along a side of its contour, its corner on a corner; a duct and a bar with their centres on the
  // border; a tendon just inside its duct.
  const auto m = lire(dans_un_rectangle(
      "EVID E1 " + points({{0.25, 0.5}, {0, 0.5}, {0, 0.2}, {0.25, 0.2}}) + "FIN_\nGAIN G1 DIAM 100. " +
      points({{0.25, -0.3}}) + "PREC P1 MATE T15 AIRE 10. " + points({{0.201, -0.3}}) +
      "FIN_PREC FIN_GAIN\nFERR F1 MATE B500 DIAM 20. " + points({{-0.2505, 0}, {0, -0.5}}) + "FIN_FERR"));
  EXPECT_NEAR(zof_get_pt_nom_zone_section("S1", "E1")->aire_zone(), 0.075, 1e-14);
}

TEST(Interieur, UnContourQuiSeCroiseEstPrisParSonAire) {
  // Two loops of unlike sense: the greater one decides; what lies in either is inside.
  const std::string noeud = points({{0, 0}, {2, 0}, {2, 1}, {1, -0.5}, {0, 1}});
  const auto m = lire(
      dans_un_contour(noeud + "FERR F1 MATE B500 DIAM 8. " + points({{1.8, 0.3}, {0.2, 0.3}}) + "FIN_FERR"));
  EXPECT_GT(zof_get_pt_nom_zone_section("S1", "C1")->aire_zone(), 0);
}

TEST(Interieur, TousLesPointsDehorsSontDits) {
  refuser(
      dans_un_rectangle("GAIN G1 DIAM 20. " + points({{0, 0}, {0, 0.51}}) +
                        "FIN_GAIN\nFERR F1 MATE B500 "
                        "DIAM 8. " +
                        points({{0, -0.6}}) + "FIN_FERR"),
      " Point     2 de la zone G1 exterieur a la zone C1\n     -  Point     1 de la zone F1 exterieur a la "
      "zone C1");
  // Farther than half the diameter of the duct, a tendon is outside.
  refuser(dans_un_rectangle("GAIN G1 DIAM 100. " + points({{0, 0}}) + "PREC P1 MATE T15 AIRE 10. " +
                            points({{0, 0.050001}}) + "FIN_PREC FIN_GAIN"),
          " Point     1 de la zone P1 exterieur a la zone G1");
}

// Tens of thousands of points, each in a contour of as many sides.
TEST(Interieur, DesZonesDeTresNombreuxPoints) {
  const auto cercle = [](double diametre) {
    return "\nPOIN CERC NUME 1 NOMB 30000 Y_CE 0. Z_CE 0. DIAM " + std::to_string(diametre) +
           " FIN_ FIN_POIN ";
  };
  const std::string contour = "CONT C1 MATE C40 " + cercle(1000);
  const std::string gaines =
      "GAIN G1 DIAM 4. " + cercle(800) + "PREC P1 MATE T15 AIRE 2. " + cercle(800) + "FIN_PREC FIN_GAIN\n";
  const auto m = lire(section(contour + "EVID E1 " + cercle(900) + "FIN_ FERR F1 MATE B500 DIAM 8. " +
                              cercle(950) + "FIN_FERR\n" + gaines + "FIN_CONT"));
  EXPECT_EQ(zof_get_pt_section("S1")->numero_point_max_section(), 30000);
  const course c = lancer(section(contour + "EVID E1 " + cercle(1001) + "FIN_ FIN_CONT"));
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.listing, HasSubstr(" Point     1 de la zone E1 exterieur a la zone C1\n"));
  EXPECT_THAT(c.listing, HasSubstr(" Point 30000 de la zone E1 exterieur a la zone C1\n"));
}

// ---- The tree

TEST(Arbre, DUneZoneEtDeCeQuElleTient) {
  const auto m =
      lire(section("CONT C1 MATE C40 RECT HAUT 2. LARG 2. FIN_ EVID E1 RECT HAUT 1. LARG 1. FIN_\n"
                   "CONT C2 MATE C30 RECT HAUT 0.5D0 LARG 0.5D0 FIN_ FERR F2 MATE B500 DIAM 8. POIN "
                   "NUME 77 Y 0. Z 0. FIN_ FIN_POIN FIN_FERR FIN_CONT FIN_EVID\nFERR F1 MATE B500 "
                   "DIAM 8. POIN NUME 12 Y 0.8D0 Z 0. FIN_ FIN_POIN FIN_FERR FIN_CONT\nCONT C3 MATE "
                   "C30 RECT HAUT 1. LARG 1. FIN_ FIN_CONT"));
  const auto noms = [](const char* zone) {
    std::vector<const zof_zone*> zones;
    zof_get_pt_nom_zone_section("S1", std::string(zone))->ajout_zone_recursif(zones);
    std::string texte;
    for (const zof_zone* const z : zones) texte += std::string(z->get_nom_zone().utile()) + " ";
    return texte;
  };
  EXPECT_EQ(noms("C1"), "C1 E1 C2 F2 F1 ");
  EXPECT_EQ(noms("E1"), "E1 C2 F2 ");
  EXPECT_EQ(noms("F1"), "F1 ");
  EXPECT_EQ(zof_get_pt_nom_zone_section("S1", "E1")->numero_point_max_recursif(), 77);
  EXPECT_EQ(zof_get_pt_nom_zone_section("S1", "C3")->numero_point_max_recursif(), 4);
  EXPECT_EQ(zof_get_pt_section("S1")->numero_point_max_section(), 77);
}

// ---- Refusals

TEST(Zones, ChaqueRefusDansUneCourseEntiere) {
  const std::string contour = "SECT S1 TITR 'x' CONT C1 ";
  const std::string c40 = contour + "MATE C40 ";
  const std::string rect = c40 + "RECT HAUT 1. LARG 0.5 FIN_ ";
  const std::string point = "\nPOIN NUME 1 Y 0. Z 0. FIN_ FIN_POIN ";
  const std::string barres = rect + "FERR F1 MATE B500 ";
  const std::string frame = "SECT S1 TITR 'x' CHAR H1 ";
  const std::string deux = "POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0. Z 1. FIN_ FIN_POIN ";
  const std::string type_charpente = std::string(" Le materiau doit être du type Charpente ou specifique"_l1);
  const std::vector<std::pair<std::string, std::string>> cas{
      // Materials by kind of zone
      {contour + "MATE X", std::string(" Materiau non défini :X"_l1) + std::string(31, ' ')},
      {contour + "MATE B500", " Le materiau n est pas d un type autorise"},
      {contour + "MATE T15", " Le materiau n est pas d un type autorise"},
      {rect + "FERR F1 MATE T15", " Le materiau n est pas du type acier"},
      {rect + "FERR F1 MATE S355", " Le materiau n est pas du type acier"},
      {rect + "PREC P1 MATE B500", " Le materiau n est pas du type precontrainte"},
      {frame + "MATE C30", type_charpente},
      {frame + "MATE B500", type_charpente},
      {frame + deux + "PROF NUME 1 MATE T15", type_charpente},
      {frame + deux + "PROF NUME 1 ORIG 1 EXTR 2 EPAI 5. FIN_ FIN_PROF FIN_CHAR ",
       std::string("Aucun materiau défini au niveau du profil et de la charpente"_l1)},
      {rect + "EVID E1 MATE ", " Mot clef  Materiau incorrect dans ce contexte"},
      {rect + "GAIN G1 MATE ", " Mot clef  Materiau incorrect dans ce contexte"},
      {contour + "RECT HAUT 1. LARG 1. FIN_ FIN_CONT ", " Contour : un materiau doit etre defini "},
      {rect + "PREC P1 AIRE 100. " + point + "FIN_PREC ", " Cable : un materiau doit etre defini "},
      {rect + "FERR F1 DIAM 8. " + point + "FIN_FERR ", " Acier : un materiau doit etre defini "},
      {contour + "MATE S355 RECT HAUT 1. LARG 1. FIN_ FERR F1 MATE B500 DIAM 8. " + point +
           "FIN_FERR FIN_CONT ",
       std::string(" Présence de ferraillage alors que le materiau n'est pas du type béton armé"_l1)},
      {contour + "MATE C30 RECT HAUT 1. LARG 1. FIN_ PREC P1 MATE T15 AIRE 100. " + point +
           "FIN_PREC FIN_CONT ",
       std::string(" Présence  de câbles alors que le materiau n'est pas du type béton precontraint"_l1)},
      // Diameters and areas
      {contour + "DIAM ", " Mot clef  Diametre incorrect dans ce contexte"},
      {rect + "PREC P1 DIAM ", " Mot clef  Diametre incorrect dans ce contexte"},
      {barres + "DIAM 0. ", " Attribut diametre incorrect : <=0 "},
      {rect + "EVID E1 DIAM -1. ", " Attribut diametre incorrect : <=0 "},
      {rect + "GAIN G1 DIAM 0. ", " Attribut diametre incorrect : <=0 "},
      {rect + "GAIN G1 DIAM 1. ", "Diametre < 1mm"},
      {rect + "GAIN G1 " + point + "FIN_GAIN ", std::string(" Gaine :  le diametre doit être defini "_l1)},
      {barres + point + "FIN_FERR ", std::string(" Acier :  le diametre des aciers doit être defini "_l1)},
      {rect + "PREC P1 MATE T15 AIRE 1. ", " Attribut aire incorrect : <=1 mm2 "},
      {rect + "PREC P1 MATE T15 " + point + "FIN_PREC ",
       std::string(" Precontrainte :  l 'aire de la section doit être defini "_l1)},
      {rect + "FERR F1 AIRE ", " Mot clef  AIRE incorrect dans ce contexte"},
      {rect + "FERR F1 PROF ", " Mot clef  PROF incorrect dans ce contexte"},
      // Points, lines, arcs
      {c40 + "POIN NUME 0 ", " Numero de point incorrect : < 1 ou >40000"},
      {c40 + "POIN NUME 40001 ", " Numero de point incorrect : < 1 ou >40000"},
      {c40 + "POIN FIN_POIN ", " Aucun point n est defini"},
      {barres + "DIAM 8. FIN_FERR ", " Aucun point n est defini"},
      {barres + "POIN DROI ",
       std::string(" Le diametre des aciers doit precéder la définition des points"_l1)},
      {c40 + "POIN DROI NUME 0 ", "numero negatif ou nul"},
      {c40 + "POIN DROI NOMB -3 ", "nombre points negatif ou nul"},
      {barres + "DIAM 8. POIN DROI GROU 0 ", std::string("cardinalité groupe negatif ou nul"_l1)},
      {c40 + "POIN DROI Y_OR 0. ORIG ", std::string("répétition option origine"_l1)},
      {c40 + "POIN DROI NUME 1 NOMB 2 Y_OR 0. Z_OR 0. Y_EX 0. Z_EX 0. FIN_ ",
       " Origine et extremites de la droite confondus"},
      {c40 + "POIN ARC DIAM 0. ", "diametre negatif ou nul"},
      {c40 + "POIN ARC NOMB 0 ", "nombre negatif ou nul"},
      {c40 + "POIN ARC NUME -1 ", "numero de point negatif ou nul"},
      {barres + "DIAM 8. POIN ARC GROU -1 ", std::string("cardinalité groupe negatif ou nul"_l1)},
      {c40 + "POIN CERC NUME 99999 NOMB 2 Y_CE 0. Z_CE 0. DIAM 1. FIN_ ",
       " Numero de point incorrect >99999"},
      {c40 + "POIN NUME 5 Y 0. Z 0. FIN_ NUME 5 Y 1. Z 0. FIN_ ", " Duplication du numero de point :     5"},
      {c40 + "POIN DROI ORIG 9 ", " Point non defini 9              "},
      // Profiles
      {frame + deux + "PROF FIN_PROF ", " Aucun profil n est defini"},
      {frame + deux + "PROF NUME 1 EPAI -1. ", "Epaisseur negative"},
      {frame + deux + "PROF NUME 1 EXTR 3 ", " Point non defini 3              "},
      {frame + "MATE S355 " + point + "FIN_CHAR ",
       std::string(
           "Charpente : au moins deux points doivent être definis\n     - Charpente : au moins un profil doit être defini"_l1)},
      // Outlines
      {c40 + deux + "FIN_CONT ", "  Un contour non partiel doit comporter au moins trois points "},
      {rect + "EVID E1 " + deux + "FIN_ ",
       "  Un evidement non partiel doit comporter au moins trois points "},
      {"SECT S1 TITR 'x' SYME Z CONT C1 MATE C40 PART " + point + "FIN_CONT ",
       "  Symetrie : Y ou Z : Un contour partiel doit comporter au moins deux points "},
      {"SECT S1 TITR 'x' SYME Y CONT C1 MATE C40 RECT HAUT 1. LARG 1. FIN_ EVID E1 PART " + point + "FIN_ ",
       "  Symetrie : Y ou Z : Un evidement partiel doit comporter au moins deux points "},
      {c40 + "PART ",
       std::string(" l option PARTIELLE ne doit etre définie que si l option SYMETRIE est activee"_l1)},
      {"SECT S1 TITR 'x' SYME Y CONT C1 MATE C40 EVID E1 RECT HAUT 1. LARG 1. FIN_ FIN_ PART ",
       " l option PARTIELLE doit preceder les sous zones"},
      {"SECT S1 TITR 'x' SYME Y CONT C1 MATE C40 RECT HAUT 1. LARG 1. FIN_ PART ",
       "Il est interdit de redefinir une forme typee"},
      {"SECT S1 TITR 'x' SYME Y CONT C1 MATE C40 PART RECT ", "Il est interdit de redefinir une forme typee"},
      {rect + "RECT ", "Il est interdit de redefinir une forme typee"},
      {rect + "POIN ", "Il est interdit de definir des points avec une forme typee"},
      {c40 + point + "RECT ", "Il est interdit de definir des points avec une forme typee"},
      {rect + "EVID C1 ", " Cette zone existe deja "},
      {c40 + points({{0, 0}, {0, 1}, {1, 0}}) + "FIN_CONT ",
       std::string(" l aire de la zone C1  est  négative :-0.50000       "_l1)},
      {c40 + points({{0, 0}, {1, 0}, {0, 1}, {0.0005, 0.0005}}) + "FIN_CONT ",
       " Duplication de point :     4 zone : C1"},
      {barres + "DIAM 8. " + point + "FIN_FERR FERR F2 MATE B500 DIAM 8. " + point + "FIN_FERR ",
       " Duplication de point :     1 zone : F2"},
      // Children by their mother
      {rect + "EVID E1 FERR ", " Mot clef  FERR incorrect dans ce contexte"},
      {rect + "EVID E1 GAIN ", " Mot clef  GAIN incorrect dans ce contexte"},
      {rect + "GAIN G1 FERR ", " Mot clef  FERR incorrect dans ce contexte"},
      {rect + "FERR F1 PREC ", " Mot clef  PREC incorrect dans ce contexte"},
      {frame + "CONT ", " Mot clef  CONT incorrect dans ce contexte"},
      {"SECT S1 TITR 'x' PREC P1 GAIN ", " Mot clef  GAIN incorrect dans ce contexte"}};
  for (const auto& [donnees, message] : cas) refuser(donnees, message);
}

TEST(Zones, LesRepetitionsDansUneCourseEntiere) {
  const std::string c40 = "SECT S1 TITR 'x' SYME Y CONT C1 MATE C40 ";
  const std::string barres = c40 + "RECT HAUT 1. LARG 1. FIN_ FERR F1 MATE B500 ";
  const std::string texte = "       - ";
  refuser(c40 + "MATE ", "Repetition interdite du mot clef:MATE", texte);
  refuser(c40 + "TITR 'a' TITR ", "Repetition interdite du mot clef:TITR", texte);
  refuser(c40 + "PART PART ", "Repetition interdite du mot clef:PART", texte);
  refuser(barres + "DIME OUI DIME ", "Repetition interdite du mot clef:DIME", texte);
  refuser(barres + "DIAM 8. DIAM ", "Repetition interdite du mot clef:DIAM");
  refuser(barres + "DIAM 8. POIN DROI GROU 2 GROU ", "Repetition interdite du mot clef:GROU");
}
