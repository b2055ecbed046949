// Title of a module: list beside the program, built-in title.
#include "UTL_00_Parametres.hpp"

#include <gtest/gtest.h>

#include "Outils.hpp"

using namespace socle;

namespace {

class ListeModules : public ::testing::Test {
 protected:
  static std::string titre(int module) {
    texte<300> t("ancien");
    utl_00_lire_titre_module(module, t);
    return std::string(t.utile());
  }
  systeme_memoire machine;
  systeme_en_place en_place{machine};
};

}  // namespace

TEST_F(ListeModules, SansListeLaConsoleLeDitEtLeTitreEstCeluiDuProgramme) {
  EXPECT_EQ(titre(1), "Calcul ZOF");
  EXPECT_EQ(machine.texte_console, "==> Liste des modules introuvable.\n");
  EXPECT_EQ(titre(2), "");
}

TEST_F(ListeModules, LaLigneDuNumeroDonneLeTitre) {
  machine.fichiers["../EXE/UTL_Liste_Module.txt"] =
      "  12 Autre module\n   1 Etude de sections  zof html\r\n   1 Second\n";
  EXPECT_EQ(titre(1), "Etude de sections  zof html");
  EXPECT_EQ(titre(12), "Autre module");
  EXPECT_EQ(titre(7), "");
  EXPECT_EQ(machine.texte_console, "");
}

TEST_F(ListeModules, UneLigneSansNumeroEstPassee) {
  machine.fichiers["../EXE/UTL_Liste_Module.txt"] = "\nabcd Titre\n   1\n   1x Rate\n   1 Bon\n";
  EXPECT_EQ(titre(1), "x Rate");
}

TEST_F(ListeModules, CentLignesSontLues) {
  std::string liste;
  for (int i = 0; i < 100; ++i) liste += "   2 Deux\n";
  machine.fichiers["../EXE/UTL_Liste_Module.txt"] = liste + "   3 Trois\n";
  EXPECT_EQ(titre(2), "Deux");
  EXPECT_EQ(titre(3), "");
}
