// The user's manual is held to the program: every example of docs/langage.md is run as it is printed.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "Executer.hpp"

namespace {

/// A fenced example: the word behind "zof" in its fence, the line where it stands, its text.
struct exemple {
  std::string genre;
  int ligne = 0;
  std::string texte;
};

std::vector<exemple> lire_exemples() {
  std::ifstream manuel(ZOF_RACINE "/docs/langage.md");
  std::vector<exemple> lus;
  std::string ligne;
  bool dedans = false;
  for (int numero = 1; std::getline(manuel, ligne); ++numero) {
    if (ligne.starts_with("```")) {
      if (!dedans && ligne.starts_with("```zof")) {
        lus.push_back({ligne.size() > 7 ? ligne.substr(7) : "entier", numero, {}});
        dedans = true;
      } else {
        dedans = false;
      }
    } else if (dedans) {
      lus.back().texte += ligne + '\n';
    }
  }
  return lus;
}

std::string socle() {
  for (const exemple& e : lire_exemples())
    if (e.genre == "socle") return e.texte;
  return {};
}

/// The exact words that the comment at the head of a refused example announces.
std::string message_annonce(const std::string& texte) {
  constexpr std::string_view debut = "# message: ";
  EXPECT_TRUE(texte.starts_with(debut));
  return texte.substr(debut.size(), texte.find('\n') - debut.size());
}

class Manuel : public testing::TestWithParam<exemple> {};

TEST_P(Manuel, TourneCommeIlEstImprime) {
  const exemple& e = GetParam();
  if (e.genre == "entier") {
    EXPECT_EQ(executer(e.texte).statut, 0) << executer(e.texte).console;
  } else if (e.genre == "socle") {
    EXPECT_EQ(executer(e.texte + "FIN_\n").statut, 0) << executer(e.texte + "FIN_\n").console;
  } else if (e.genre == "bloc") {
    const course c = executer(socle() + e.texte + "FIN_\n");
    EXPECT_EQ(c.statut, 0) << c.console;
    EXPECT_NE(c.listing.find("Execution de Zof terminee"), std::string::npos);
  } else {
    ASSERT_EQ(e.genre, "refus");
    const course c = executer(socle() + e.texte + "FIN_\n");
    EXPECT_EQ(c.statut, 1) << c.console;
    EXPECT_NE(c.console.find(message_annonce(e.texte)), std::string::npos) << c.console;
  }
}

INSTANTIATE_TEST_SUITE_P(Exemples, Manuel, testing::ValuesIn(lire_exemples()), [](const auto& cas) {
  return cas.param.genre + "_ligne_" + std::to_string(cas.param.ligne);
});

}  // namespace
