// The main line: names, files, heading, command loop, options, ways out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "Executer.hpp"
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

bool loc_note_fermee(const course& c) { return c.html.find("</html>") != std::string::npos; }

}  // namespace

TEST(Programme, UnFichierMinimalDonneDeuxNotesFermees) {
  const course c = executer("ZOF\nFIN_\n");
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.console, StartsWith("Version de ZOF : 7.06"));
  EXPECT_THAT(c.console, EndsWith("FIN DE L EXECUTION\n"));
  EXPECT_THAT(c.listing, EndsWith(" \n \nExecution de Zof terminee\n"));
  EXPECT_THAT(c.listing, StartsWith("ZOF "));
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

// Upper and lower case are one, and a command word counts by its first four letters.
TEST(Programme, LaCasseEtLaFinDesMotsNeComptentPas) {
  const course c = executer("zof\nTitre 'Un pont'\nfin_\nTITR 'pas lu'\n");
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.txt, HasSubstr("2. Un pont"));
  EXPECT_THAT(c.console, Not(HasSubstr("pas lu")));
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
