// The main line: names, files, heading, command loop, options, ways out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "Executer.hpp"
#include "Modele.hpp"
#include "Systeme_memoire.hpp"
#include "Zof_Options.hpp"
#include "Zof_Principal.hpp"

using namespace socle::litteraux;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

int loc_lancer(systeme_memoire& machine, std::vector<std::string_view> arguments) {
  return zof_executer(arguments, machine);
}

/// What notes the names of the run when these have just been given, and does nothing else.
class machine_temoin final : public socle::systeme {
 public:
  socle::sortie& console() override { return memoire_.console(); }
  std::unique_ptr<socle::entree> ouvrir(socle::vue_l1) override { return nullptr; }
  std::unique_ptr<socle::sortie> creer(socle::vue_l1, socle::debut) override { return nullptr; }
  void refaire_repertoire(socle::vue_l1) override { noms = zof_options; }
  std::string repertoire_programme() override { return {}; }

  zof_options_t noms;

 private:
  systeme_memoire memoire_;
};

/// The line in that many columns.
std::string loc_ligne(std::string texte, std::size_t colonnes) {
  texte.resize(colonnes, ' ');
  return texte + "\n";
}

bool loc_note_fermee(const course& c) { return c.html.find("</html>") != std::string::npos; }

}  // namespace

TEST(Programme, UnFichierMinimalDonneDeuxNotesFermees) {
  const course c = executer("ZOF\nFIN_\n");
  EXPECT_EQ(c.statut, 0);
  EXPECT_EQ(c.console, "Version de ZOF : 7.06  \n" + loc_ligne("ZOF", 199) + loc_ligne("FIN_", 199) +
                           "FIN DE L EXECUTION\n");
  EXPECT_EQ(c.listing, loc_ligne("ZOF", 200) + loc_ligne("FIN_", 200) + " \n \nExecution de Zof terminee\n");
  EXPECT_THAT(c.txt, HasSubstr("1. ZOF - Note de calcul"));
  EXPECT_THAT(c.html, HasSubstr("Calcul ZOF version 7.06"));
  EXPECT_TRUE(loc_note_fermee(c));
}

TEST(Programme, VersionSeule) {
  systeme_memoire machine;
  EXPECT_EQ(loc_lancer(machine, {"-v"}), 0);
  EXPECT_EQ(machine.texte_console, "7.06\n");
  EXPECT_TRUE(machine.fichiers.empty());
}

TEST(Programme, VersionPuisFichier) {
  systeme_memoire machine;
  machine.fichiers["a.zof"] = "ZOF\nFIN_\n";
  EXPECT_EQ(loc_lancer(machine, {"-v", "a.zof"}), 0);
  EXPECT_THAT(machine.texte_console, StartsWith("7.06\nVersion de ZOF : 7.06"));
  EXPECT_TRUE(machine.fichiers.contains("a.html"));
}

TEST(Programme, LesDeuxSeparateursComptentDansLeNom) {
  systeme_memoire machine;
  machine.fichiers["a.b/c.d/e.zof"] = "ZOF\nFIN_\n";
  EXPECT_EQ(loc_lancer(machine, {"a.b/c.d\\e.zof"}), 0);
  EXPECT_THAT(machine.repertoires_refaits, ElementsAre("a.b/c.d/Svg_e"));
  EXPECT_TRUE(machine.fichiers.contains("a.b/c.d/e.err"));
  EXPECT_TRUE(machine.fichiers.contains("a.b/c.d/e.txt"));
  EXPECT_TRUE(machine.fichiers.contains("a.b/c.d/e.html"));
}

TEST(Programme, LesNomsDeLaCourse) {
  machine_temoin machine;
  const std::array<std::string_view, 1> arguments = {"a.b/c.d\\e.zof"};
  EXPECT_EQ(zof_executer(arguments, machine), 1);
  EXPECT_EQ(machine.noms.glo_racine_nom_fichier.utile(), "a.b/c.d\\e");
  EXPECT_EQ(machine.noms.glo_racine_nette_nom_fichier.utile(), "e");
  EXPECT_EQ(machine.noms.glo_racine_nom_fichier_svg.utile(), "a.b/c.d\\Svg_e\\");
  EXPECT_EQ(machine.noms.glo_repertoire_svg.utile(), "Svg_e\\");
}

TEST(Programme, QuatreCaracteresSontRetiresQuelsQuIlsSoient) {
  systeme_memoire machine;
  machine.fichiers["etude.zof"] = "ZOF\nFIN_\n";
  EXPECT_EQ(loc_lancer(machine, {"etude.dat"}), 0);
}

TEST(Programme, SansArgumentLeFichierEstPointZof) {
  systeme_memoire machine;
  EXPECT_EQ(loc_lancer(machine, {}), 1);
  EXPECT_EQ(machine.texte_console,
            std::string(" ERREUR : ouverture du fichier de données impossible:.zof\n"_l1));
  machine.fichiers[".zof"] = "ZOF\nFIN_\n";
  EXPECT_EQ(loc_lancer(machine, {"abc"}), 0);
}

TEST(Programme, UnNomTropLongNeLitAucuneCommande) {
  systeme_memoire machine;
  const std::string nom = std::string(252, 'a') + ".zof";
  machine.fichiers[nom] = "ZOF\nTITR 'x'\nFIN_\n";
  EXPECT_EQ(loc_lancer(machine, {nom}), 1);
  EXPECT_THAT(machine.texte_console,
              StartsWith("Erreur de commande : \n     - Nom de fichier ou de repertoire trop long\n"));
  EXPECT_THAT(machine.texte_console, EndsWith("FIN DE L EXECUTION\n"));
  EXPECT_THAT(machine.texte_console, Not(HasSubstr("TITR")));
  EXPECT_THAT(machine.fichiers[std::string(252, 'a') + ".err"], Not(HasSubstr("terminee")));
}

// The directory that is removed is the one of the drawings, never what a cut name happens to be.
TEST(Programme, UnNomTropLongNEnleveQueSesDessins) {
  const std::string repertoire = std::string(249, 'd') + "/etude";  // 255 characters
  systeme_memoire machine;
  machine.fichiers[repertoire + "/autre.txt"] = "precieux";
  machine.fichiers[repertoire + "/Svg_e/x.svg"] = "ancien";
  EXPECT_EQ(loc_lancer(machine, {repertoire + "/e.zof"}), 1);
  EXPECT_THAT(machine.repertoires_refaits, ElementsAre(repertoire + "/Svg_e"));
  EXPECT_TRUE(machine.fichiers.contains(repertoire + "/autre.txt"));
  EXPECT_FALSE(machine.fichiers.contains(repertoire + "/Svg_e/x.svg"));
}

TEST(Programme, ChaqueOuvertureManqueeASonMessage) {
  const std::vector<std::pair<std::string, std::string>> cas = {
      {"a.zof", std::string(" ERREUR : ouverture du fichier de données impossible:a.zof\n"_l1)},
      {"a.err", " ERREUR : ouverture du fichier des Erreurs impossible\n"},
      {"a.txt", " ERREUR : ouverture du fichier NDC texte impossible\n"},
      {"a.html", " ERREUR : ouverture du fichier NDC html impossible\n"}};
  for (const auto& [fichier, message] : cas) {
    systeme_memoire machine;
    machine.fichiers["a.zof"] = "ZOF\nFIN_\n";
    machine.ouvertures_refusees = {fichier};
    EXPECT_EQ(loc_lancer(machine, {"a.zof"}), 1) << fichier;
    EXPECT_EQ(machine.texte_console, message);
    EXPECT_TRUE(machine.fichiers["a.txt"].empty());
    // The listing holds the messages from the moment when it is open.
    const bool listing_ouvert = fichier == "a.txt" || fichier == "a.html";
    EXPECT_EQ(machine.fichiers["a.err"], listing_ouvert ? message : std::string());
  }
}

TEST(Programme, LePremierMotEstZof) {
  for (const char* debut : {"TITR 'x'\n", "ZOFX\n", "ZO\n"}) {
    const course c = executer(std::string(debut) + "FIN_\n");
    EXPECT_EQ(c.statut, 0);
    EXPECT_THAT(c.console, HasSubstr(" ERREUR : Le fichier doit commencer par ZOF\nFIN DE L EXECUTION\n"));
    EXPECT_THAT(c.listing, HasSubstr("Execution de Zof terminee"));
    EXPECT_TRUE(loc_note_fermee(c));
  }
}

// The reader has told its error already: nothing is said of the first word, and the run fails.
TEST(Programme, UnPremierTermeQuiNEstPasUnNom) {
  const course c = executer("12 ZOF\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, EndsWith("     - TERME LU : 12\n     - TERME LU INCORRECT : AUTRE QUE NOM \n"
                                  "FIN DE L EXECUTION\n"));
  EXPECT_THAT(c.listing, Not(HasSubstr("terminee")));
  EXPECT_TRUE(loc_note_fermee(c));
}

// Upper and lower case are one, and a command word counts by its first four letters.
TEST(Programme, LaCasseEtLaFinDesMotsNeComptentPas) {
  const course c = executer("zof\nTitre 'Un pont'\nfin_\nTITR 'pas lu'\n");
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.txt, HasSubstr("2. Un pont"));
  EXPECT_THAT(c.console, Not(HasSubstr("pas lu")));
}

// What stands in front of a wrong term is served first.
TEST(Programme, LaFinDevantUnTermeFaux) {
  EXPECT_EQ(executer("ZOF\nFIN_ZOF 12.5.\n").statut, 0);
  const course c = executer("ZOF\nTITR 'x' 12.5.\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.txt, HasSubstr("2. x"));
}

TEST(Programme, UnBlocSansSonMotDeFinLaisseLesNotesOuvertes) {
  const course c =
      executer("ZOF\nTITR 'x'\nMATERIAUX ACIER S500 TITR 'a' FYK 500. TYPE T_B FIN_SECT\nFIN_\n");
  const std::string messages =
      "Erreur de commande : \n"
      "     - FIN_SECTIncorrect dans ce contexte - Attendu : FIN_MATE\n"
      "ARRET PREMATURE DE ZOF\n";
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, EndsWith(messages));
  EXPECT_THAT(c.listing, EndsWith(messages));
  EXPECT_THAT(c.txt, HasSubstr("2. x"));
  EXPECT_FALSE(loc_note_fermee(c));
}

TEST(Programme, UnMotInconnuTermineLaCourse) {
  const course c = executer("ZOF\nFOOB\nTITR 'apres'\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console,
              HasSubstr("Erreur de commande : \n     -  Mot clef  FOOB incorrect dans ce contexte\n"));
  EXPECT_THAT(c.listing,
              HasSubstr("Erreur de commande : \n     -  Mot clef  FOOB incorrect dans ce contexte\n"));
  EXPECT_THAT(c.console, Not(HasSubstr("apres")));
  EXPECT_THAT(c.listing, Not(HasSubstr("terminee")));
  EXPECT_TRUE(loc_note_fermee(c));
}

TEST(Programme, UnMotCourtEstMontreSurQuatreCaracteres) {
  EXPECT_THAT(executer("ZOF\nABC\n").console,
              HasSubstr("     -  Mot clef  ABC  incorrect dans ce contexte\n"));
}

TEST(Programme, LaFinPrematureeDuFichierLaisseLesNotesOuvertes) {
  const course c = executer("ZOF\nTITR 'x'\n");
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.console, HasSubstr("     - TERME LU INCORRECT : AUTRE QUE NOM"));
  EXPECT_THAT(c.console, EndsWith("    ERREUR : FIN PREMATUREE  DU FICHIER DE DONNEES\n     \n"
                                  "     ***  ARRET DE L EXECUTION  *** \n"));
  EXPECT_FALSE(loc_note_fermee(c));
  EXPECT_THAT(c.txt, HasSubstr("2. x"));
}

TEST(Programme, OptionsAvantLePremierMateriau) {
  const course c = executer("ZOF\nMATE ACIER S500 TITR 'a' FYK 500. TYPE T_B FIN_MATE\nOPTI POND\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, HasSubstr(" Mot clef  OPTI incorrect dans ce contexte"));
}

TEST(Programme, OptionInconnue) {
  const course c = executer("ZOF\nOPTI AUTR\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, HasSubstr(" Mot clef  AUTR incorrect dans ce contexte"));
}

// The word behind RETO is looked at: another one than INST and IDEN is the next command.
TEST(Programme, OptionRetoRegardeLeMotSuivant) {
  EXPECT_EQ(executer("ZOF\nOPTI RETO INST\nFIN_\n").statut, 0);
  EXPECT_EQ(executer("ZOF\nOPTI RETO IDEN\nFIN_\n").statut, 0);
  const course c = executer("ZOF\nOPTI RETO\nTITR 'lu'\nFIN_\n");
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.txt, HasSubstr("2. lu"));
  const course d = executer("ZOF\nOPTI RETO 12\nFIN_\n");
  EXPECT_EQ(d.statut, 1);
  EXPECT_THAT(d.console, HasSubstr("     - TERME LU : 12\n"));
}

TEST(Programme, OptionsParDefaut) {
  const zof_options_t o;
  EXPECT_TRUE(o.zof_edition_txt);
  EXPECT_TRUE(o.zof_edition_html);
  EXPECT_FALSE(o.zof_option_retour_etat_0);
  EXPECT_EQ(o.zof_type_option_retour_etat_0, retour_etat_0::identique);
  EXPECT_TRUE(o.zof_option_loi_ponderee);
  EXPECT_EQ(o.zof_option_ponderation_lois_ct_lt, 0.25);
}

TEST(Programme, CeQueLesOptionsReglent) {
  const auto reglees = [](const std::string& donnees) {
    const modele m(donnees);
    EXPECT_FALSE(m.erco()) << donnees;
    return zof_options;
  };
  const auto retour = [&](const std::string& donnees) {
    const zof_options_t o = reglees(donnees);
    EXPECT_TRUE(o.zof_option_retour_etat_0) << donnees;
    EXPECT_FALSE(o.zof_option_loi_ponderee) << donnees;
    EXPECT_EQ(o.zof_option_ponderation_lois_ct_lt, 0) << donnees;
    return static_cast<int>(o.zof_type_option_retour_etat_0);
  };
  EXPECT_EQ(retour("OPTI RETO INST\nFIN_\n"), 1);
  EXPECT_EQ(retour("opti retour instantane\nFIN_\n"), 1);
  EXPECT_EQ(retour("OPTI RETO IDEN\nFIN_\n"), 2);
  EXPECT_EQ(retour("OPTI RETO INST OPTI RETO\nMATE ACIER S500 TITR 'a' FYK 500. TYPE T_B FIN_MATE\nFIN_\n"),
            2);
  const zof_options_t o = reglees("OPTI RETO INST\nOPTI POND\nFIN_\n");
  EXPECT_FALSE(o.zof_option_retour_etat_0);
  EXPECT_TRUE(o.zof_option_loi_ponderee);
  EXPECT_EQ(o.zof_option_ponderation_lois_ct_lt, 0.25);
}

TEST(Programme, EditerVeutUnMotConnu) {
  EXPECT_THAT(executer("ZOF\nEDIT AUTR\nFIN_\n").console,
              HasSubstr(" Mot clef  AUTR incorrect dans ce contexte"));
}

TEST(Programme, LeTitreAQuatreVingtsCaracteresAuPlus) {
  EXPECT_EQ(executer("ZOF\nTITR '" + std::string(80, 'x') + "'\nFIN_\n").statut, 0);
  const course c = executer("ZOF\nTITR '" + std::string(81, 'x') + "'\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, HasSubstr("     - TERME LU INCORRECT : CHAINE TROP LONGUE OU AUTRE TERME"));
}

TEST(Programme, UneEcritureManqueeEstNoteeSansArreterLaCourse) {
  systeme_memoire machine;
  machine.fichiers["a.zof"] = "ZOF\nFIN_\n";
  machine.ecritures_refusees = {"a.txt"};
  EXPECT_EQ(loc_lancer(machine, {"a.zof"}), 0);
  EXPECT_EQ(machine.premier_echec(), "a.txt");
  EXPECT_THAT(machine.fichiers["a.html"], HasSubstr("</html>"));
}

TEST(Programme, UneErreurDeLectureEstDite) {
  systeme_memoire machine;
  machine.fichiers["a.zof"] = "ZOF\nTITR 'x'\nFIN_\n";
  machine.lectures_fautives["a.zof"] = 2;
  EXPECT_EQ(loc_lancer(machine, {"a.zof"}), 1);
  EXPECT_THAT(machine.texte_console, HasSubstr(" ERREUR SUR UNITE DE LECTURE"));
}
