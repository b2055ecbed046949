// The machine of the program, on real files in a fresh directory.
#include "Systeme_reel.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

using namespace socle;
namespace fs = std::filesystem;

namespace {

class SystemeReel : public testing::Test {
 protected:
  void SetUp() override {
    std::string modele = fs::temp_directory_path() / "zof_systeme_XXXXXX";
    ASSERT_NE(mkdtemp(modele.data()), nullptr);
    repertoire = modele;
  }
  void TearDown() override { fs::remove_all(repertoire); }
  [[nodiscard]] std::string chemin(const std::string& nom) const { return repertoire + "/" + nom; }
  static std::string contenu(const std::string& nom) {
    std::ostringstream s;
    s << std::ifstream(nom, std::ios::binary).rdbuf();
    return s.str();
  }

  std::string repertoire;
  systeme_reel machine;
};

}  // namespace

TEST_F(SystemeReel, EcritPuisReprendEnFinDeFichier) {
  machine.creer(chemin("a"), debut::efface)->ligne("un");
  machine.creer(chemin("a"), debut::suite)->ligne("deux");
  EXPECT_EQ(contenu(chemin("a")), "un\ndeux\n");
  machine.creer(chemin("a"), debut::efface)->ecrire("trois");
  EXPECT_EQ(contenu(chemin("a")), "trois");
}

TEST_F(SystemeReel, LitParLignesEtLaFinReste) {
  std::ofstream(chemin("a"), std::ios::binary) << "un\r\n\ndeux";
  auto e = machine.ouvrir(chemin("a"));
  std::string l;
  EXPECT_EQ(e->ligne(l), etat_lecture::lue);
  EXPECT_EQ(l, "un\r");
  EXPECT_EQ(e->ligne(l), etat_lecture::lue);
  EXPECT_EQ(l, "");
  EXPECT_EQ(e->ligne(l), etat_lecture::lue);
  EXPECT_EQ(l, "deux");
  EXPECT_EQ(e->ligne(l), etat_lecture::fin);
  EXPECT_EQ(e->ligne(l), etat_lecture::fin);
}

TEST_F(SystemeReel, UneLigneDeDixMegaoctetsArriveEntiere) {
  std::ofstream(chemin("a"), std::ios::binary) << std::string(10'000'000, 'x') << "\nfin\n";
  auto e = machine.ouvrir(chemin("a"));
  std::string l;
  EXPECT_EQ(e->ligne(l), etat_lecture::lue);
  EXPECT_EQ(l.size(), 10'000'000U);
  EXPECT_EQ(e->ligne(l), etat_lecture::lue);
  EXPECT_EQ(l, "fin");
}

// A directory opens, and a pipe without writer would be waited for.
TEST_F(SystemeReel, NiRepertoireNiTubeNEstUneDonnee) {
  EXPECT_EQ(machine.ouvrir(repertoire), nullptr);
  EXPECT_EQ(machine.ouvrir(chemin("absent")), nullptr);
  ASSERT_EQ(mkfifo(chemin("tube").c_str(), 0600), 0);
  EXPECT_EQ(machine.ouvrir(chemin("tube")), nullptr);
  EXPECT_EQ(machine.creer(chemin("tube"), debut::efface), nullptr);
  EXPECT_EQ(machine.creer(repertoire, debut::efface), nullptr);
}

// Files are opened so that none is waited for: a slow reader must not make the rest of a file be lost.
TEST_F(SystemeReel, UnTubePleinEstAttendu) {
  ASSERT_EQ(mkfifo(chemin("tube").c_str(), 0600), 0);
  const int lecture = open(chemin("tube").c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(lecture, 0);
  auto s = machine.creer(chemin("tube"), debut::efface);
  ASSERT_NE(s, nullptr);
  fcntl(lecture, F_SETFL, 0);
  std::size_t lus = 0;
  std::thread lecteur([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));  // time for the pipe to fill
    std::array<char, 4096> tampon{};
    for (ssize_t n = 0; (n = read(lecture, tampon.data(), tampon.size())) > 0;)
      lus += static_cast<std::size_t>(n);
  });
  s->ecrire(std::string(1'000'000, 'x'));
  s.reset();
  lecteur.join();
  close(lecture);
  EXPECT_EQ(lus, 1'000'000U);
  EXPECT_EQ(machine.premier_echec(), "");
}

TEST_F(SystemeReel, UneBarreInverseSepareLesRepertoires) {
  fs::create_directory(chemin("d"));
  machine.creer(repertoire + "\\d\\x", debut::efface)->ecrire("v");
  EXPECT_EQ(contenu(chemin("d/x")), "v");
}

TEST_F(SystemeReel, UneEcritureManqueeEstNoteeUneFois) {
  machine.creer("/dev/full", debut::efface)->ecrire("perdu");
  EXPECT_EQ(machine.premier_echec(), "/dev/full");
  machine.noter_echec("autre");
  EXPECT_EQ(machine.premier_echec(), "/dev/full");
}

TEST_F(SystemeReel, RefaitUnRepertoireAvecSonContenu) {
  fs::create_directories(chemin("Svg_a/b"));
  std::ofstream(chemin("Svg_a/b/c")) << "x";
  machine.refaire_repertoire(repertoire + "/Svg_a\\");
  EXPECT_TRUE(fs::is_directory(chemin("Svg_a")));
  EXPECT_TRUE(fs::is_empty(chemin("Svg_a")));
}

// Removing through a link would empty somebody else's directory.
TEST_F(SystemeReel, UnLienEstRetireSansEtreSuivi) {
  fs::create_directory(chemin("ailleurs"));
  std::ofstream(chemin("ailleurs/precieux")) << "x";
  fs::create_directory_symlink(chemin("ailleurs"), chemin("Svg_a"));
  machine.refaire_repertoire(repertoire + "/Svg_a\\");
  EXPECT_TRUE(fs::exists(chemin("ailleurs/precieux")));
  EXPECT_FALSE(fs::is_symlink(chemin("Svg_a")));

  fs::create_directory_symlink(chemin("ailleurs"), chemin("Svg_a/lien"));
  machine.refaire_repertoire(repertoire + "/Svg_a\\");
  EXPECT_TRUE(fs::exists(chemin("ailleurs/precieux")));
  EXPECT_TRUE(fs::is_empty(chemin("Svg_a")));
}

TEST_F(SystemeReel, UnFichierDeCeNomReste) {
  std::ofstream(chemin("Svg_a")) << "x";
  machine.refaire_repertoire(repertoire + "/Svg_a\\");
  EXPECT_TRUE(fs::is_regular_file(chemin("Svg_a")));
}
