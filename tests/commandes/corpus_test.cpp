// The fuzzer's corpus as a plain test: files that once broke a rule, and files that reach far into the
// commands.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "Executer.hpp"

TEST(Corpus, ChaqueFichierFinitParUnStatutDuProgrammeEtNeToucheQueLesSiens) {
  const std::set<std::string> permis = {"etude.zof", "etude.err", "etude.txt", "etude.html", "etude.tra"};
  int nombre = 0;
  for (const auto& fichier : std::filesystem::directory_iterator(ZOF_RACINE "/fuzz/corpus")) {
    std::ifstream flux(fichier.path(), std::ios::binary);
    const std::string donnees{std::istreambuf_iterator<char>(flux), {}};
    const course c = executer(donnees);
    EXPECT_TRUE(c.statut == 0 || c.statut == 1) << fichier.path() << " : " << c.statut;
    for (const auto& [nom, contenu] : c.fichiers)
      EXPECT_TRUE(permis.contains(nom) || nom.starts_with("Svg_etude/")) << fichier.path() << " : " << nom;
    ++nombre;
  }
  EXPECT_GE(nombre, 6);
}
