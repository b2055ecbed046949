// The drawings of sections in whole runs: files, links, what each kind of zone becomes in pixels.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "Executer.hpp"
#include "Html_strict.hpp"
#include "Svg_strict.hpp"
#include "Systeme_memoire.hpp"
#include "Zof_Principal.hpp"

using namespace socle::litteraux;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

const std::string materiaux = R"(ZOF
MATE BETON C30 TITR 'Beton C30/37' FCK 30. PREC NON FIN_MATE
MATE BETON C40 TITR 'Beton C40/50' FCK 40. PREC OUI FIN_MATE
MATE ACIER B500 TITR 'Acier B500B' FYK 500. TYPE T_B FIN_MATE
MATE PREC T15 TITR 'Torons' FP01 1600. FPK 1860. FIN_MATE
MATE CHAR S355 TITR 'Acier' FY 355. FU 510. FIN_MATE
)";

// 0.5 by 1.0 m about the origin. Ordinary: margins of 0.1 m, 600 pixels for 1.2 m, that is 500 per metre, and
// 350 wide. Large: 1800 for 1.1 m, 600 / 0.55 x 1.5 = 1636.36 per metre, and 982 wide (0.6 x 1636.36 =
// 981.8).
const std::string poutre = R"(SECT P TITR 'Poutre'
  CONT AME MATE C40 POIN NUME 1 Y -0.25D0 Z -0.5D0 FIN_ NUME 2 Y 0.25D0 Z -0.5D0 FIN_
    NUME 3 Y 0.25D0 Z 0.5D0 FIN_ NUME 4 Y -0.25D0 Z 0.5D0 FIN_ FIN_POIN
    EVID TROU POIN NUME 1 Y -0.1D0 Z 0.1D0 FIN_ NUME 2 Y 0.1D0 Z 0.1D0 FIN_ NUME 3 Y 0. Z 0.3D0 FIN_ FIN_POIN FIN_EVID
    GAIN G1 DIAM 80. POIN NUME 1 Y 0. Z -0.3D0 FIN_ FIN_POIN
      PREC T1 MATE T15 AIRE 1256.63706D0 POIN NUME 1 Y 0. Z -0.3D0 FIN_ FIN_POIN FIN_PREC
    FIN_GAIN
    FERR F1 MATE B500 DIAM 20. POIN NUME 101 Y -0.2D0 Z -0.45D0 FIN_ FIN_POIN FIN_FERR
    FERR F2 MATE B500 DIAM 6. POIN NUME 102 Y 0.2D0 Z -0.45D0 FIN_ FIN_POIN FIN_FERR
  FIN_CONT
FIN_SECT
)";

course lancer(const std::string& commandes) { return executer(materiaux + commandes + "FIN_\n"); }

std::vector<std::string> noms(const course& c) {
  std::vector<std::string> resultat;
  for (const auto& [nom, contenu] : c.svg) resultat.push_back(nom);
  return resultat;
}

std::size_t nombre(const std::string& texte, const std::string& motif) {
  std::size_t n = 0;
  for (std::size_t i = texte.find(motif); i != std::string::npos; i = texte.find(motif, i + 1)) ++n;
  return n;
}

}  // namespace

TEST(DessinDeSection, DeuxFichiersParSectionEtLeursLiensDansLaNote) {
  const course c =
      lancer(poutre + "SECT DALLE TITR 'Dalle' CONT D1 MATE C30 RECT HAUT 0.2D0 LARG 1. FIN_ FIN_CONT " +
             "FIN_SECT\nEDIT SECT TOUT\nEDIT SECT P\n");
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(noms(c),
              ElementsAre("DALLE_2.svg", "DALLE_2_D.svg", "P_1.svg", "P_1_D.svg", "P_3.svg", "P_3_D.svg"));
  EXPECT_EQ(c.svg.at("P_1.svg"), c.svg.at("P_3.svg"));
  for (const auto& [nom, contenu] : c.svg) {
    EXPECT_THAT(fautes_svg(contenu), IsEmpty()) << nom;
    EXPECT_THAT(textes_genes(contenu), IsEmpty()) << nom;
  }
  EXPECT_THAT(c.html, HasSubstr("<object data = 'Svg_etude/P_1.svg' width  = '350'   height = '600' >"));
  EXPECT_THAT(c.html,
              HasSubstr("<a href='Svg_etude/P_1_D.svg'>==================================> DESSIN EN GRANDE "
                        "LARGEUR</a>\n"));
  // The slab: 600 pixels for 1.2 m and 0.4 m the other way.
  EXPECT_THAT(c.html, HasSubstr("<object data = 'Svg_etude/DALLE_2.svg' width  = '600'   height = '200' >"));
  EXPECT_THAT(fichiers_lies(c.html),
              ElementsAre("Svg_etude/P_1.svg", "Svg_etude/P_1_D.svg", "Svg_etude/DALLE_2.svg",
                          "Svg_etude/DALLE_2_D.svg", "Svg_etude/P_3.svg", "Svg_etude/P_3_D.svg"));
  // Title, drawing, link, properties.
  EXPECT_LT(c.html.find("Section : P"), c.html.find("Svg_etude/P_1.svg"));
  EXPECT_LT(c.html.find("Svg_etude/P_1_D.svg"), c.html.find("ristiques brutes"));
  EXPECT_THAT(c.txt, HasSubstr("==================================> DESSIN EN GRANDE LARGEUR\n"));
}

// (y, z) stands at ((y + 0.35) 500, (0.6 - z) 500) in the ordinary drawing.
TEST(DessinDeSection, ChaqueZoneASaForme) {
  const course c = lancer(poutre + "EDIT SECT P\n");
  const std::string& svg = c.svg.at("P_1.svg");
  EXPECT_THAT(svg, HasSubstr("<svg height='600' width='350' "));
  const std::vector<std::string> attendus = {
      "<path d='M50.000 550.000 L300.000 550.000 L300.000 50.000 L50.000 50.000 Z' fill=\"rgb(192,192,192)\" "
      "stroke=\"rgb(0,0,0)\" stroke-width='1.00' />\n",
      "<path d='M125.000 250.000 L225.000 250.000 L175.000 150.000 Z' fill=\"rgb(255,255,255)\" "
      "stroke=\"rgb(0,0,0)\" stroke-width='1.00' />\n",
      "<circle cx='175.000' cy='450.000' r='20.000' fill=\"none\" stroke=\"rgb(0,0,255)\" "
      "stroke-width='1.00' />\n",
      // Equivalent diameter of 1256.637 mm2: 40 mm.
      "<circle cx='175.000' cy='450.000' r='10.000' fill=\"rgb(0,128,0)\" stroke=\"rgb(0,128,0)\" "
      "stroke-width='0.00' />\n",
      "<circle cx='75.000' cy='525.000' r='5.000' fill=\"rgb(255,0,0)\" stroke=\"rgb(255,0,0)\" "
      "stroke-width='0.00' />\n",
      // A bar of 6 mm would have a radius of 1.5 pixels.
      "<circle cx='275.000' cy='525.000' r='2.000' fill=\"rgb(255,0,0)\" stroke=\"rgb(255,0,0)\" "
      "stroke-width='0.00' />\n"};
  std::string zones;
  for (const std::string& attendu : attendus) zones += attendu;
  // A mother before her children, in the order of their declaration, behind the background.
  EXPECT_THAT(svg, HasSubstr("height='600' fill=\"rgb(255,255,255)\" />\n" + zones));
}

// Steps of 0.1 m, the tenth of 1 m; axes through (0.35 x 500, 0.6 x 500).
TEST(DessinDeSection, LesAxesSontSurLeSeulDessinOrdinaire) {
  const course c = lancer(poutre + "EDIT SECT P\n");
  const std::string& ordinaire = c.svg.at("P_1.svg");
  EXPECT_THAT(ordinaire, HasSubstr("<line x1='0.000' y1='300.000' x2='350.000' y2='300.000' "));
  EXPECT_THAT(ordinaire, HasSubstr("<line x1='175.000' y1='600.000' x2='175.000' y2='0.000' "));
  for (const std::string v : {">y<", ">z<", ">-0.100<", ">-0.200<", ">0.500<"})
    EXPECT_THAT(ordinaire, HasSubstr(v));
  EXPECT_THAT(ordinaire, HasSubstr("<line x1='75.000' y1='296.000' x2='75.000' y2='304.000' "));
  EXPECT_THAT(ordinaire, HasSubstr("<line x1='171.000' y1='250.000' x2='179.000' y2='250.000' "));
  const std::string& grand = c.svg.at("P_1_D.svg");
  EXPECT_THAT(grand, HasSubstr("<svg height='1800' width='982' "));
  EXPECT_THAT(grand, Not(HasSubstr("<line")));
  EXPECT_THAT(grand, Not(HasSubstr(">z<")));
}

// A section that does not hold 0 in z has no y axis, and in y no z axis.
TEST(DessinDeSection, UnAxeQueLEtendueNeTientPasNEstPasTrace) {
  const std::string loin =
      "SECT P TITR 'x' CONT C MATE C30 POIN NUME 1 Y -1. Z 5. FIN_ NUME 2 Y 1. Z 5. FIN_ NUME 3 Y 1. Z 6. "
      "FIN_ FIN_POIN "
      "FIN_CONT FIN_SECT\nEDIT SECT P\n";
  const course c = lancer(loin);
  const std::string& svg = c.svg.at("P_1.svg");
  EXPECT_THAT(svg, HasSubstr(">z<"));
  EXPECT_THAT(svg, Not(HasSubstr(">y<")));
  EXPECT_THAT(textes_genes(svg), IsEmpty());
}

TEST(DessinDeSection, LesNumerosDesPointsSontSurLeSeulGrandDessin) {
  const course c = lancer(poutre + "EDIT SECT P\n");
  EXPECT_THAT(c.svg.at("P_1.svg"), Not(HasSubstr(">101<")));
  const std::string& grand = c.svg.at("P_1_D.svg");
  std::vector<std::string> numeros;
  for (const boite& b : boites_textes(grand)) numeros.push_back(b.texte);
  // Outline, void, duct, its tendon, bars.
  EXPECT_THAT(numeros, ElementsAre("1", "2", "3", "4", "1", "2", "3", "1", "1", "101", "102"));
  EXPECT_EQ(nombre(grand, "font-size='8'"), 2 * numeros.size());
}

// A profile is a line as wide as its thickness: 0.5 by 1 m, 500 pixels per metre.
TEST(DessinDeSection, UnProfilEstUneLigneDeSonEpaisseur) {
  const course c = lancer(
      "SECT H TITR 'x' CHAR P MATE S355 POIN NUME 1 Y -0.25D0 Z -0.5D0 FIN_ NUME 2 Y 0.25D0 Z 0.5D0 FIN_\n"
      "NUME 3 Y 0.25D0 Z -0.5D0 FIN_ FIN_POIN PROF NUME 1 ORIG 1 EXTR 2 EPAI 12. FIN_\n"
      "NUME 2 ORIG 3 EXTR 1 EPAI 1. FIN_ FIN_PROF FIN_CHAR FIN_SECT\nEDIT SECT H\n");
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.svg.at("H_1.svg"), HasSubstr("<line x1='50.000' y1='550.000' x2='300.000' y2='50.000' "
                                             "style='stroke:rgb(51,102,255);stroke-width:6.00' />\n"
                                             "<line x1='300.000' y1='550.000' x2='50.000' y2='550.000' "
                                             "style='stroke:rgb(51,102,255);stroke-width:1.00' />\n"));
}

TEST(DessinDeSection, UneDimensionNulleEstRefusee) {
  for (const std::string extremite : {"Y 0. Z 1.", "Y 1. Z 0."}) {
    const course c =
        lancer("SECT H TITR 'x' CHAR P MATE S355 POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 " + extremite +
               " FIN_ FIN_POIN PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ FIN_PROF FIN_CHAR FIN_SECT\n" +
               "EDIT SECT H\nTITR 'apres'\n");
    EXPECT_EQ(c.statut, 1);
    EXPECT_THAT(c.listing, HasSubstr("     -  Dessin section impossible : une dimension est nulle\n"));
    EXPECT_THAT(c.svg, IsEmpty());
    EXPECT_THAT(c.txt, HasSubstr("Section : H"));
    EXPECT_THAT(c.txt, Not(HasSubstr("apres")));
    EXPECT_THAT(c.html, HasSubstr("</html>"));
  }
  // In a list of all sections the first one that can't be drawn ends the run.
  const course c = lancer(
      "SECT H TITR 'x' CHAR P MATE S355 POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0. Z 1. FIN_ FIN_POIN\n"
      "PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ FIN_PROF FIN_CHAR FIN_SECT\n" +
      poutre + "EDIT SECT TOUT\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.txt, Not(HasSubstr("Section : P")));
}

// Sizes far apart, far from the origin, at the limits of the numbers: sound files, whatever they show.
TEST(DessinDeSection, DesDimensionsExtremesDonnentDesFichiersSains) {
  // Ends in y, height from 0.
  const std::vector<std::array<std::string, 3>> cas = {{"1000000000.D0", "1000000001.D0", "1.D0"},
                                                       {"0.D0", "1.D-2", "1.D-2"},
                                                       {"-1.D150", "1.D150", "1.D150"},
                                                       {"0.D0", "1.D6", "1.D-2"},
                                                       {"3.D3", "3000.01D0", "1.D6"},
                                                       {"1.D15", "1.001D15", "1.D3"}};
  for (const auto& [y1, y2, hauteur] : cas) {
    const course c = lancer("SECT P TITR 'x' CONT C MATE C30 POIN NUME 1 Y " + y1 + " Z 0. FIN_ NUME 2 Y " +
                            y2 + " Z 0. FIN_ NUME 3 Y " + y2 + " Z " + hauteur +
                            " FIN_ FIN_POIN FIN_CONT FIN_SECT\nEDIT SECT P\n");
    ASSERT_EQ(c.svg.size(), 2U) << y2 << " " << c.console;
    for (const auto& [nom, contenu] : c.svg) {
      EXPECT_THAT(fautes_svg(contenu), IsEmpty()) << y2;
      EXPECT_THAT(textes_genes(contenu), IsEmpty()) << y2;
    }
  }
}

// Rows of bars closer than their numbers are wide: no number covers another one or a bar.
TEST(DessinDeSection, LesNumerosDeBarresSerreesNeSeCouvrentPas) {
  std::string barres;
  for (int lit = 0; lit < 4; ++lit)
    barres += "DROI NUME " + std::to_string(10001 + 1000 * lit) + " NOMB 90 Y_OR -0.95D0 Z_OR " +
              std::to_string(0.05 + 0.05 * lit) + "D0\n Y_EX 0.95D0 Z_EX " +
              std::to_string(0.05 + 0.05 * lit) + "D0 FIN_DROI\n";
  const course c = lancer(
      "SECT D TITR 'x' CONT C MATE C30 POIN NUME 1 Y -1. Z 0. FIN_ NUME 2 Y 1. Z 0. FIN_\n"
      "NUME 3 Y 1. Z 0.25D0 FIN_ NUME 4 Y -1. Z 0.25D0 FIN_ FIN_POIN\n"
      "FERR F MATE B500 DIAM 10. POIN\n" +
      barres + "FIN_POIN FIN_FERR FIN_CONT FIN_SECT\nEDIT SECT D\n");
  ASSERT_EQ(c.statut, 0) << c.console;
  const std::string& grand = c.svg.at("D_1_D.svg");
  EXPECT_THAT(fautes_svg(grand), IsEmpty());
  EXPECT_THAT(textes_genes(grand), IsEmpty());
  const std::vector<boite> boites = boites_textes(grand);
  EXPECT_GT(boites.size(), 200U);
  for (const element_svg& e : elements_svg(grand)) {
    if (e.nom != "circle") continue;
    const double x = e.nombre("cx");
    const double y = e.nombre("cy");
    for (const boite& b : boites)
      EXPECT_FALSE(x > b.gauche && x < b.droite && y > b.haut && y < b.bas) << b.texte << " on a bar";
  }
}

// Files that can't be written: the run goes on, and tells it at its end.
TEST(DessinDeSection, UnDessinQuiNeSEcritPasNArretePasLaCourse) {
  for (const bool ouverture : {true, false}) {
    systeme_memoire machine;
    machine.fichiers["etude.zof"] = materiaux + poutre + "EDIT SECT P\nTITR 'apres'\nFIN_\n";
    (ouverture ? machine.ouvertures_refusees : machine.ecritures_refusees).insert("Svg_etude/P_1_D.svg");
    const std::array<std::string_view, 1> arguments = {"etude.zof"};
    EXPECT_EQ(zof_executer(arguments, machine), 0);
    EXPECT_THAT(machine.premier_echec(), HasSubstr("P_1_D.svg"));
    EXPECT_THAT(machine.fichiers["etude.txt"], HasSubstr("apres"));
    EXPECT_TRUE(machine.fichiers["Svg_etude/P_1.svg"].ends_with("</svg>\n"));
  }
}

// Numbers of drawings begin again with each run of a process.
TEST(DessinDeSection, UneSecondeCourseDonneLesMemesFichiers) {
  const course premiere = lancer(poutre + "EDIT SECT P\n");
  const course seconde = lancer(poutre + "EDIT SECT P\n");
  EXPECT_EQ(premiere.svg, seconde.svg);
  EXPECT_EQ(premiere.html, seconde.html);
}
