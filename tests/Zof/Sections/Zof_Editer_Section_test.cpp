// What the note says of each kind of zone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <regex>
#include <string>
#include <vector>

#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Dessin_Section.hpp"
#include "Zof_Options.hpp"
#include "modele.hpp"

using namespace socle;
using testing::HasSubstr;
using testing::Not;

namespace {

/// The text note on S1, every run of blanks as one.
std::string note(const std::string& donnees) {
  modele m(donnees);
  EXPECT_TRUE(m.lire()) << m.console();
  systeme_memoire machine;
  utl_02_reinitialiser();
  {
    const auto txt = machine.creer("n.txt", debut::efface);
    utl_02_initialiser({.opt_unit_txt = txt.get(),
                        .opt_edition_txt = true,
                        .opt_edition_html = false,
                        .opt_lg_separation = 3,
                        .opt_logiciel = 5,
                        .opt_lg_ligne = 300,
                        .opt_numeroter_titres = true});
    bool erco = false;
    zof_editer_dessiner_section(*zof_get_pt_section("S1"), erco);
    EXPECT_FALSE(erco);
    utl_02_reinitialiser();
  }
  return std::regex_replace(machine.fichiers["n.txt"], std::regex(" +"), " ");
}

const std::string poutre = section(R"(CONT C1 MATE BP TITR 'Ame' RECT HAUT 1.D0 LARG 0.5D0 FIN_
  EVID E1 DIAM 50. RECT HAUT 0.1D0 LARG 0.1D0 FIN_ FIN_
  GAIN G1 DIAM 80. POIN NUME 7 Y 0. Z -0.3D0 FIN_ FIN_POIN
    PREC P1 MATE TORON AIRE 1500. POIN NUME 5 Y 0. Z -0.3D0 FIN_ FIN_POIN FIN_PREC
  FIN_GAIN
  FERR F1 MATE HA DIAM 20. POIN
    DROI NUME 11 NOMB 2 GROU 2 Y_OR -0.2D0 Z_OR -0.45D0 Y_EX 0.2D0 Z_EX -0.45D0 FIN_ FIN_POIN FIN_FERR
  CHAR H1 MATE S355 POIN NUME 1 Y 0. Z 0.2D0 FIN_ NUME 2 Y 0. Z 0.4D0 FIN_ FIN_POIN
    PROF NUME 4 ORIG 2 EXTR 1 EPAI 12.5D0 MATE GENE FIN_ FIN_PROF FIN_CHAR
FIN_CONT)");

}  // namespace

TEST(Edition, ChaqueZoneDitSesDonnees) {
  const std::string n = note(poutre);
  EXPECT_THAT(n, HasSubstr("Section : S1 - Essai\n"));
  EXPECT_THAT(n, HasSubstr("Contour : C1 - Ame\n"));
  EXPECT_THAT(n, HasSubstr(" - Materiau : BP\nNum_Point y z \n"));
  EXPECT_THAT(n, HasSubstr(" - Diametre (mm) : 80.000\nNum_Point"));
  EXPECT_THAT(n, HasSubstr(" - Materiau : TORON\n - Aire (mm2) : 1500.0\nNum_Point"));
  EXPECT_THAT(
      n, HasSubstr(
             " - Materiau : HA\n - Diametre (mm) : 20.000\n - Nombre de barres par groupe : 2\nNum_Point"));
  EXPECT_THAT(n, HasSubstr("\n11 -0.2000 -0.4500 \n12 0.2000 -0.4500 \n"));
  EXPECT_THAT(n, HasSubstr(" - Materiau : S355\nNum_Point"));
  EXPECT_THAT(n, HasSubstr("Num_Profil Origine Extremite Epaisseur (mm) Materiau \n"));
  EXPECT_THAT(n, HasSubstr("\n4 2 1 12.500 GENE \n"));
  // A void has nothing to tell but its points; its diameter is of no use.
  EXPECT_THAT(n, Not(HasSubstr("50.000")));
}

// Depth first, in the order of declaration.
TEST(Edition, LesZonesSeSuiventDansLOrdreDeLeurDeclaration) {
  const std::string n = note(poutre);
  std::size_t place = 0;
  for (const char* const titre : {"Contour : C1 - Ame", "Evidement : E1\n", "Gaine : G1\n",
                                  "Precontrainte : P1\n", "Ferraillage : F1\n", "Charpente : H1\n"}) {
    place = n.find(titre, place);
    ASSERT_NE(place, std::string::npos) << titre;
  }
}

// Tendons alone have no stiffness: there is no property to give.
TEST(Edition, UneSectionDeCablesSeulsNAPasDeProprietes) {
  const std::string n =
      note(section("PREC P1 MATE TORON AIRE 1500. POIN NUME 5 Y 0. Z 0. FIN_ FIN_POIN FIN_PREC"));
  EXPECT_THAT(n, HasSubstr("Precontrainte : P1\n"));
  EXPECT_THAT(n, Not(HasSubstr("Aire (m2)")));
}

// A name may come from a computation, with any character in it: it is one file name all the same.
TEST(Edition, UnNomDeSectionNeSortPasDuRepertoireDesDessins) {
  modele m(poutre);
  ASSERT_TRUE(m.lire()) << m.console();
  zof_options.glo_racine_nom_fichier_svg = "ici\\Svg_e\\";
  zof_get_pt_section("S1")->set_nom_zone("../../a\\b");
  zof_section& section = *zof_get_pt_section("S1");
  systeme_memoire machine;
  {
    const systeme_en_place en_place(machine);
    bool erco = false;
    section.emprise_section();
    zof_dessiner_section(section, erco);
    EXPECT_FALSE(erco);
  }
  std::vector<std::string> fichiers;
  for (const auto& [nom, contenu] : machine.fichiers) fichiers.push_back(nom);
  EXPECT_THAT(fichiers, testing::ElementsAre("ici/Svg_e/.._.._a_b_1.svg", "ici/Svg_e/.._.._a_b_1_D.svg"));
  zof_options_reinitialiser();
}
