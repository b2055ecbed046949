// The command SECT in whole runs: the section in the notes, the errors that end the run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "Executer.hpp"

using namespace socle::litteraux;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string materiaux = R"(ZOF
MATE BETON C30
  TITR 'Beton C30/37'
  FCK 30.
  PREC NON
FIN_MATE
MATE ACIER B500
  TITR 'Acier B500B'
  FYK 500.
  TYPE T_B
FIN_MATE
)";

// Rectangle 0.60 x 0.30, and three bars of 20 mm with their centres 0.05 above the bottom.
const std::string poutre = R"(SECT POUTRE
  TITR 'Poutre 30 x 60'
  CONT AME
    TITR 'Ame'
    MATE C30
    RECT HAUT 0.60D0 LARG 0.30D0 FIN_RECT
    FERR BAS
      MATE B500
      DIAM 20.
      POIN
        DROI NUME 101 NOMB 3 Y_OR -0.10D0 Z_OR -0.25D0 Y_EX 0.10D0 Z_EX -0.25D0 FIN_DROI
      FIN_POIN
    FIN_FERR
  FIN_CONT
FIN_SECT
)";

course lancer(const std::string& commandes) { return executer(materiaux + commandes + "FIN_\n"); }

void refuser(const std::string& commandes, const std::string& message) {
  const course c = lancer(commandes);
  EXPECT_EQ(c.statut, 1) << commandes;
  EXPECT_THAT(c.listing, HasSubstr("Erreur de commande : \n     - " + message)) << commandes;
  EXPECT_THAT(c.console, HasSubstr("Erreur de commande : \n     - " + message)) << commandes;
  EXPECT_THAT(c.html, HasSubstr("</html>"));
}

}  // namespace

TEST(CommandeSect, UneSectionSeLitSansRienEcrireDansLaNote) {
  const course c = lancer(poutre);
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, Not(HasSubstr("POUTRE")));
}

// Closed forms. Gross: A = 0.18, Iy = 0.3 x 0.6^3 / 12 = 0.0054, Iz = 0.6 x 0.3^3 / 12 = 0.00135.
// Transformed: 15 x 3 x 3.14159 cm2 = 0.0141372 m2 at z = -0.25: A = 0.194137, z = -0.0141372 x 0.25 /
// 0.194137 = -0.018205, Iy = 0.0054 + 0.0141372 x 0.0625 - 0.194137 x 0.018205^2 = 0.0062192, Iz = 0.00135 +
// 0.0141372 x 2/3 x 0.01 = 0.00144425.
TEST(CommandeSect, LaNoteDonneProprietesEtZones) {
  const course c = lancer(poutre + "EDIT SECT POUTRE\n");
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, HasSubstr("Section : POUTRE - Poutre 30 x 60"));
  const std::string brutes = std::string("Caractéristiques brutes :\n"_l1);
  const std::string nettes = std::string("Caractéristiques nettes :\n"_l1);
  const std::string homogenes = std::string("Caractéristiques homogeneisees (n=15) :\n"_l1);
  const auto debut_brutes = c.txt.find(brutes);
  const auto debut_nettes = c.txt.find(nettes);
  const auto debut_homogenes = c.txt.find(homogenes);
  ASSERT_LT(debut_brutes, debut_nettes);
  ASSERT_LT(debut_nettes, debut_homogenes);
  ASSERT_NE(debut_homogenes, std::string::npos);
  const std::string groupe_brut = c.txt.substr(debut_brutes, debut_nettes - debut_brutes);
  const std::string groupe_net = c.txt.substr(debut_nettes, debut_homogenes - debut_nettes);
  const std::string groupe_homogene = c.txt.substr(debut_homogenes);
  for (const std::string& groupe : {groupe_brut, groupe_net}) {
    EXPECT_THAT(groupe, HasSubstr("Aire      (m2) : 0.18000"));
    EXPECT_THAT(groupe, HasSubstr("y cdg      (m) : 0.0000"));
    EXPECT_THAT(groupe, HasSubstr("Inertie y (m4) : 0.54000E-02"));
    EXPECT_THAT(groupe, HasSubstr("Inertie z (m4) : 0.13500E-02"));
  }
  EXPECT_THAT(groupe_homogene, HasSubstr("z cdg      (m) : -0.18205E-01"));
  EXPECT_THAT(groupe_homogene, HasSubstr("Aire      (m2) : 0.19414"));
  EXPECT_THAT(groupe_homogene, HasSubstr("Inertie y (m4) : 0.62192E-02"));
  EXPECT_THAT(groupe_homogene, HasSubstr("Inertie z (m4) : 0.14442E-02"));
  EXPECT_THAT(c.txt, HasSubstr("Contour : AME - Ame"));
  EXPECT_THAT(c.txt, HasSubstr("Ferraillage : BAS\n"));
  EXPECT_THAT(c.txt, HasSubstr("Materiau : B500"));
  EXPECT_THAT(c.txt, HasSubstr("Diametre (mm) : 20.000"));
  EXPECT_THAT(c.txt, Not(HasSubstr("Nombre de barres par groupe")));
  EXPECT_THAT(c.txt, HasSubstr("Num_Point"));
  EXPECT_THAT(c.txt, HasSubstr("103"));
}

TEST(CommandeSect, ToutEditerOuUneSeule) {
  const std::string autre =
      "SECT DALLE TITR 'Dalle' CONT D1 MATE C30 RECT HAUT 0.2 LARG 1. FIN_ FIN_CONT FIN_SECT\n";
  const course toutes = lancer(poutre + autre + "EDIT SECT TOUT\n");
  EXPECT_THAT(toutes.txt, HasSubstr("Section : POUTRE - "));
  EXPECT_THAT(toutes.txt, HasSubstr("Section : DALLE - Dalle"));
  const course une = lancer(poutre + autre + "EDIT SECT DALLE\n");
  EXPECT_THAT(une.txt, Not(HasSubstr("Section : POUTRE - ")));
  EXPECT_THAT(une.txt, HasSubstr("Section : DALLE - Dalle"));
  refuser(poutre + "EDIT SECT DALLE\n", "la section DALLE n existe pas");
}

TEST(CommandeSect, LesErreursTerminentLaCourse) {
  refuser(poutre + poutre, " La section POUTRE existe deja");
  refuser("SECT S1 TITR 'x' FIN_SECT\n", "Aucune entite definie dans section");
  refuser("SECT S1 TITR 'x' CONT C1 MATE C31 ", std::string(" Materiau non défini :C31"_l1));
  refuser("SECT S1 TITR 'x' CONT C1 MATE B500 ", " Le materiau n est pas d un type autorise");
  refuser("SECT S1 TITR 'x' CONT C1 MATE C30 RECT HAUT 0. ", "Attribut hauteur incorrect : <=0");
}

// What the thin-wall model needs is refused by its keyword.
TEST(CommandeSect, MotsRefuses) {
  refuser("SECT S1 TITR 'x' MORP ", " Mot clef  MORP incorrect dans ce contexte");
}

// A block that ends with another word stops the run at once: the notes stay open.
TEST(CommandeSect, UnBlocFermeParUnAutreMotArreteTout) {
  for (const char* const fin : {"FIN_FERR", "FIN_"}) {
    const course c =
        lancer("SECT S1 TITR 'x' CONT C1 MATE C30 RECT HAUT 1. LARG 1. FIN_ " + std::string(fin) + "\n");
    EXPECT_EQ(c.statut, 1);
    EXPECT_THAT(c.console, HasSubstr("Incorrect dans ce contexte - Attendu : FIN_CONT"));
    EXPECT_THAT(c.html, Not(HasSubstr("</html>")));
  }
}

// Two runs in one process: nothing of the first section is left.
TEST(CommandeSect, DeuxCoursesDansUnProcessus) {
  const course premiere = lancer(poutre + "EDIT SECT POUTRE\n");
  const course seconde = lancer(poutre + "EDIT SECT POUTRE\n");
  EXPECT_EQ(premiere.txt, seconde.txt);
  EXPECT_EQ(premiere.listing, seconde.listing);
}
