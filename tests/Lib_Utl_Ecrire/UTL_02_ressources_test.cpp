// Where the styles and the script of the HTML note are searched.
#include "UTL_02_ressources.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <string>

#include "Outils.hpp"

using namespace socle;
using ::testing::ElementsAre;
using ::testing::Optional;

namespace {

class Ressources : public ::testing::Test {
 protected:
  systeme_memoire machine;
  systeme_en_place en_place{machine};
};

/// A file that is installed beside the program.
std::string loc_installe(const std::string& nom) {
  std::ifstream fichier(std::string(ZOF_RACINE "/ressources/") + nom, std::ios::binary);
  return {std::istreambuf_iterator<char>(fichier), {}};
}

}  // namespace

TEST_F(Ressources, LesRepertoiresSontEssayesDansLeurOrdre) {
  machine.fichiers["Chemin_appli.txt"] = "/appli\nautre\n";
  machine.fichiers["/appli/a.css"] = "appli";
  EXPECT_THAT(utl_02_lire_ressource("a.css"), Optional(ElementsAre("appli")));
  machine.fichiers["/programme/a.css"] = "programme";
  EXPECT_THAT(utl_02_lire_ressource("a.css"), Optional(ElementsAre("programme")));
  machine.fichiers["a.css"] = "courant";
  EXPECT_THAT(utl_02_lire_ressource("a.css"), Optional(ElementsAre("courant")));
  machine.fichiers["../exe/a.css"] = "exe";
  EXPECT_THAT(utl_02_lire_ressource("a.css"), Optional(ElementsAre("exe")));
}

TEST_F(Ressources, UnFichierAbsentEstAbsent) {
  EXPECT_EQ(utl_02_lire_ressource("a.css"), std::nullopt);
  machine.fichiers["Chemin_appli.txt"] = "";
  EXPECT_EQ(utl_02_lire_ressource("a.css"), std::nullopt);
  machine.fichiers["Chemin_appli.txt"] = "   \n";
  EXPECT_EQ(utl_02_lire_ressource("a.css"), std::nullopt);
  machine.fichiers["Chemin_appli.txt"] = "nulle_part\n";
  EXPECT_EQ(utl_02_lire_ressource("a.css"), std::nullopt);
  EXPECT_EQ(machine.texte_console, "");
}

TEST_F(Ressources, LeCheminDeLApplicationPeutFinirParUnSeparateur) {
  machine.fichiers["d/e/a.css"] = "x";
  for (const char* const chemin : {"d/e", "d/e/", "d\\e\\  ", "d\\e\r"}) {
    machine.fichiers["/programme/Chemin_appli.txt"] = chemin;
    EXPECT_THAT(utl_02_lire_ressource("a.css"), Optional(ElementsAre("x"))) << chemin;
  }
}

TEST_F(Ressources, LesLignesSontCopieesSansRetourChariot) {
  machine.fichiers["a.css"] = "a {\r\n\r\n}";
  EXPECT_THAT(utl_02_lire_ressource("a.css"), Optional(ElementsAre("a {", "", "}")));
}

TEST_F(Ressources, UneLectureFautiveGardeCeQuiAEteLu) {
  machine.fichiers["a.css"] = "un\ndeux\n";
  machine.lectures_fautives["a.css"] = 1;
  EXPECT_THAT(utl_02_lire_ressource("a.css"), Optional(ElementsAre("un")));
}

TEST(RessourcesInstallees, LeStyleDeLEcranConnaitToutesLesClassesDesNotes) {
  const std::string style = loc_installe("default.css");
  std::istringstream classes(
      "header tableau texte main content1 content conteneur menu_bar bouton Tab_sommaire_dynam Tab_sommaire "
      "switchcontent showstate surlign avert table_donnees saut cleaner footer table_footer ie avant_propos "
      "avant_propos_titre");
  for (std::string classe; classes >> classe;)
    EXPECT_TRUE(std::regex_search(style, std::regex("\\." + classe + "(?![A-Za-z0-9_-])"))) << classe;
}

// They are copied as they are into a Latin-1 note: nothing in them may be read otherwise there, or end their
// element.
TEST(RessourcesInstallees, EllesEntrentTellesQuellesDansUneNote) {
  for (const char* const nom : {"default.css", "ajout_dyn.css", "print.css", "NDC.js"}) {
    const std::string contenu = loc_installe(nom);
    EXPECT_FALSE(contenu.empty()) << nom;
    EXPECT_TRUE(std::all_of(contenu.begin(), contenu.end(), [](char c) {
      return c == '\n' || (c >= ' ' && c <= '~');
    })) << nom;
    for (const char* const fin : {"</style", "</script", "<!--"})
      EXPECT_EQ(contenu.find(fin), std::string::npos) << nom;
  }
}
