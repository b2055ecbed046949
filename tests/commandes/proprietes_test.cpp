// What holds for every run, whatever it computes: its notes are sound, and it depends on its data alone, not
// on what ran before in the process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "Executer.hpp"
#include "Html_strict.hpp"
#include "Svg_strict.hpp"

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

/// Names of the examples, each of which is a directory with a data file of its own name.
std::vector<std::string> loc_exemples() {
  std::vector<std::string> noms;
  for (const fs::directory_entry& e : fs::directory_iterator(ZOF_EXEMPLES))
    if (e.is_directory()) noms.push_back(e.path().filename().string());
  std::sort(noms.begin(), noms.end());
  return noms;
}

std::string loc_donnees(const std::string& exemple) {
  std::ifstream fichier(fs::path(ZOF_EXEMPLES) / exemple / (exemple + ".zof"), std::ios::binary);
  if (!fichier) throw std::runtime_error("no data file of the example " + exemple);
  return {std::istreambuf_iterator<char>(fichier), {}};
}

/// Lists all that was declared.
constexpr std::string_view editions = "EDIT MATE\nEDIT SECT TOUT\nEDIT SOLL\n";

/// The example with these lists before its first analysis.
std::string loc_edite_avant(std::string donnees) {
  std::size_t analyse = std::string::npos;
  for (const char* const commande : {"\nJUST ", "\nDIME ", "\nINTE "})
    analyse = std::min(analyse, donnees.find(commande));
  if (analyse == std::string::npos) throw std::runtime_error("an example without an analysis");
  return donnees.insert(analyse + 1, editions);
}

/// The example with these lists at its end: of what the analyses left behind.
std::string loc_edite_apres(std::string donnees) {
  const std::size_t fin = donnees.rfind("\nFIN_");
  if (fin == std::string::npos) throw std::runtime_error("an example without an end");
  return donnees.insert(fin + 1, editions);
}

/// The heads of the axes, alone, are filled in black.
bool loc_est_contour_ou_courbe(const element_svg& e) {
  return e.nom == "path" && e.attributs.at("fill") != "rgb(0,0,0)";
}

std::size_t loc_nombre(std::string_view texte, std::string_view motif) {
  std::size_t n = 0;
  for (std::size_t i = texte.find(motif); i != std::string_view::npos; i = texte.find(motif, i + 1)) ++n;
  return n;
}

/// Lines of a text note from its first justification on, but its titles, whose numbers follow what stands
/// before, their underlines, and the banner of the end.
std::vector<std::string> loc_lignes_de_justification(const std::string& note) {
  std::vector<std::string> lignes;
  std::istringstream flux(note.substr(note.find("Justification de la section")));
  for (std::string ligne, mot; std::getline(flux, ligne);) {
    if (!(std::istringstream(ligne) >> mot) || ligne.find_first_not_of(" .*=-_+X") == std::string::npos)
      continue;
    if (ligne.find("Justification de la section") != std::string::npos) continue;
    const bool titre = mot.front() >= '0' && mot.front() <= '9' && mot.back() == '.';
    if (!titre) lignes.push_back(ligne);
  }
  return lignes;
}

/// Runs that leave something behind: data that end too soon, data that are refused, an option.
std::vector<std::string> loc_courses_interrompues() {
  std::vector<std::string> donnees;
  for (const std::string& exemple : loc_exemples()) {
    const std::string entier = loc_donnees(exemple);
    for (const char* const bloc : {"\nFIN_MATE", "\nFIN_SECT", "\nFIN_SOLL", "\nFIN_JUST"}) {
      const std::string debut = entier.substr(0, entier.find(bloc));
      donnees.push_back(debut);
      donnees.push_back(debut + "\nINCONNU\n");
    }
  }
  donnees.emplace_back("ZOF\nOPTI RETO INST\nFIN_\n");
  return donnees;
}

/// The first file in which two runs differ, "status" or "console"; empty if they are alike to the byte.
std::string loc_difference(const course& a, const course& b) {
  if (a.statut != b.statut) return "status";
  if (a.console != b.console) return "console";
  for (const auto& [nom, contenu] : a.fichiers)
    if (const auto f = b.fichiers.find(nom); f == b.fichiers.end() || f->second != contenu) return nom;
  for (const auto& [nom, contenu] : b.fichiers)
    if (!a.fichiers.contains(nom)) return nom;
  return "";
}

/// What stands in place of a number that is not finite, or that is wider than its field.
bool loc_est_sans_valeur(std::string_view mot) {
  if (mot.starts_with('-') || mot.starts_with('+')) mot.remove_prefix(1);
  if (mot == "NaN" || mot == "nan" || mot == "inf" || mot == "Inf" || mot == "Infinity") return true;
  return !mot.empty() && mot.find_first_not_of('*') == std::string_view::npos;
}

std::string loc_nom(const testing::TestParamInfo<std::string>& exemple) { return exemple.param; }

class ChaqueExemple : public testing::TestWithParam<std::string> {};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Exemples, ChaqueExemple, testing::ValuesIn(loc_exemples()), loc_nom);

TEST_P(ChaqueExemple, SeTermineEtFermeSesNotes) {
  const course c = executer(loc_donnees(GetParam()));
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.console, EndsWith("FIN DE L EXECUTION\n"));
  EXPECT_THAT(c.listing, EndsWith("\nExecution de Zof terminee\n"));
  EXPECT_THAT(c.html, EndsWith("</html>\n"));
  EXPECT_EQ(c.premier_echec, "");
}

TEST_P(ChaqueExemple, AUneNoteHtmlSaine) {
  const course c = executer(loc_donnees(GetParam()));
  EXPECT_THAT(fautes_html(c.html), IsEmpty());
  for (const std::string& fichier : fichiers_lies(c.html))
    EXPECT_TRUE(c.fichiers.contains(fichier)) << "the note refers to " << fichier;
}

TEST_P(ChaqueExemple, EditeEtDessineCeQuIlDeclareAvantEtApresSesAnalyses) {
  const std::string donnees = loc_donnees(GetParam());
  const course nue = executer(donnees);
  const std::vector<std::string> resultats = loc_lignes_de_justification(nue.txt);
  ASSERT_GT(resultats.size(), 100U);
  for (const std::string& edite : {loc_edite_avant(donnees), loc_edite_apres(donnees)}) {
    SCOPED_TRACE(edite.substr(edite.size() - std::min<std::size_t>(edite.size(), 120)));
    const course c = executer(edite);
    ASSERT_EQ(c.statut, 0) << c.console;
    for (const auto& [nom, contenu] : c.fichiers)
      EXPECT_THAT(contenu, Not(HasSubstr("ERREUR PROGRAMMATION"))) << nom;
    EXPECT_THAT(c.console, Not(HasSubstr("ERREUR PROGRAMMATION")));
    // One section to each example, in two sizes; the diagrams of the analyses stay.
    const std::size_t sections = loc_nombre(donnees, "\nSECT ");
    EXPECT_EQ(c.svg.size(), nue.svg.size() + 2 * sections);
    for (const auto& [nom, contenu] : c.svg) {
      EXPECT_THAT(fautes_svg(contenu), IsEmpty()) << nom;
      EXPECT_THAT(textes_genes(contenu), IsEmpty()) << nom;
      EXPECT_TRUE(std::ranges::any_of(elements_svg(contenu), loc_est_contour_ou_courbe)) << nom;
    }
    EXPECT_THAT(fautes_html(c.html), IsEmpty());
    for (const std::string& fichier : fichiers_lies(c.html))
      EXPECT_TRUE(c.fichiers.contains(fichier)) << "the note refers to " << fichier;
    for (const char* const titre : {"Materiau : ", "Section : ", "Sollicitation : "})
      EXPECT_GT(loc_nombre(c.txt, titre), loc_nombre(nue.txt, titre)) << titre;
    // The lists change nothing of what is computed.
    const std::vector<std::string> lignes = loc_lignes_de_justification(c.txt);
    EXPECT_FALSE(std::ranges::search(lignes, resultats).empty());
  }
}

TEST_P(ChaqueExemple, NEcritAucunNombreSansValeur) {
  std::istringstream mots(texte_visible(executer(loc_donnees(GetParam())).html));
  for (std::string mot; mots >> mot;) EXPECT_FALSE(loc_est_sans_valeur(mot)) << mot;
}

TEST_P(ChaqueExemple, NeDependPasDesCoursesQuiPrecedent) {
  const std::string donnees = loc_donnees(GetParam());
  const course premiere = executer(donnees);
  EXPECT_EQ(loc_difference(premiere, executer(donnees)), "") << "after itself";
  for (const std::string& exemple : loc_exemples()) {
    executer(loc_donnees(exemple));
    EXPECT_EQ(loc_difference(premiere, executer(donnees)), "") << "after " << exemple;
  }
}

TEST_P(ChaqueExemple, NeDependPasDesCoursesInterrompues) {
  const std::string donnees = loc_donnees(GetParam());
  const course premiere = executer(donnees);
  for (const std::string& interrompue : loc_courses_interrompues()) {
    const course avant = executer(interrompue);
    EXPECT_EQ(loc_difference(premiere, executer(donnees)), "")
        << "after:\n"
        << interrompue.substr(interrompue.size() - std::min<std::size_t>(interrompue.size(), 200))
        << "\nwhich ended so:\n"
        << avant.console.substr(avant.console.size() - std::min<std::size_t>(avant.console.size(), 200));
  }
}

TEST(Proprietes, IlYEnATrois) { EXPECT_THAT(loc_exemples(), SizeIs(testing::Ge(3U))); }

TEST(Proprietes, UnNombreSansValeurEstVu) {
  for (const char* const mot : {"NaN", "-nan", "Infinity", "+Infinity", "-inf", "*", "*****"})
    EXPECT_TRUE(loc_est_sans_valeur(mot)) << mot;
  for (const char* const mot : {"-", "1.5", "inferieur", "(*)", "nanti"})
    EXPECT_FALSE(loc_est_sans_valeur(mot)) << mot;
}

TEST(Proprietes, UneDifferenceEstVue) {
  course a;
  a.fichiers = {{"e.txt", "x"}};
  course b = a;
  EXPECT_EQ(loc_difference(a, b), "");
  b.fichiers["e.txt"] = "y";
  EXPECT_EQ(loc_difference(a, b), "e.txt");
  b = a;
  b.fichiers["e.svg"] = "";
  EXPECT_EQ(loc_difference(a, b), "e.svg");
  b = a;
  b.statut = 1;
  EXPECT_EQ(loc_difference(a, b), "status");
}
