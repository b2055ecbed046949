#include "And_anadon.hpp"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "And_files.hpp"
#include "Lecteur.hpp"
#include "Outils.hpp"

using socle::texte;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string loc_mot(int lgmax = 4) {
  bool erco = true;
  texte<32> mot;
  and_lire_deb_nom(mot, lgmax, erco);
  EXPECT_FALSE(erco);
  return std::string(mot.utile());
}

double loc_reel() {
  bool erco = true;
  double reel = -1;
  and_lire_reel_d(reel, erco);
  EXPECT_FALSE(erco);
  return reel;
}

int loc_entier() {
  bool erco = true;
  int entier = -1;
  and_lire_entier(entier, erco);
  EXPECT_FALSE(erco);
  return entier;
}

struct lecture {
  std::string texte;
  int lg;
  bool operator==(const lecture&) const = default;
};

lecture loc_chaine(int lgmax = 80) {
  bool erco = true;
  texte<80> chaine;
  int lg = -1;
  and_lire_chaine(chaine, lgmax, lg, erco);
  EXPECT_FALSE(erco);
  return {std::string(chaine.utile()), lg};
}

bool loc_terme() {
  bool erco = false;
  and_lire_terme(erco);
  return !erco;
}

const std::string loc_titre_commande = "\n  ===> ERREUR(S) DANS LA DERNIERE COMMANDE TRAITEE :\n";
const std::string loc_titre_unite = "\n ===> ERREUR DANS  UNITE SYNTAXIQUE COURANTE : \n\n";

}  // namespace

TEST(LireDebNom, LesPremieresLettresEnMajuscules) {
  const lecteur l("materiau Mate FIN_MATE te");
  EXPECT_EQ(loc_mot(), "MATE");
  EXPECT_EQ(loc_mot(), "MATE");
  EXPECT_EQ(loc_mot(8), "FIN_MATE");
  EXPECT_EQ(loc_mot(), "TE");
}

// FIN_, ELS_, NON_ and REC_ are printed so in the grammar of the commands, and are names.
TEST(LireDebNom, LesQuatreMotsSoulignes) {
  const lecteur l("FIN_ els_ Non_ rec_ FIN__X FIN_'y'");
  EXPECT_EQ(loc_mot(), "FIN_");
  EXPECT_EQ(loc_mot(), "ELS_");
  EXPECT_EQ(loc_mot(), "NON_");
  EXPECT_EQ(loc_mot(), "REC_");
  EXPECT_EQ(loc_mot(), "FIN_");
  EXPECT_EQ(loc_mot(), "X");
  EXPECT_EQ(loc_mot(), "FIN_");
  EXPECT_EQ(loc_chaine().texte, "y");
}

TEST(LireDebNom, LesAutresNomsSoulignesRestentFaux) {
  for (const std::string faux : {"A_", "A__B", "A_'x'", "FIN'x'", "ELU_"}) {
    const lecteur l(faux);
    bool erco = false;
    texte<4> mot("gard");
    and_lire_deb_nom(mot, 4, erco);
    EXPECT_TRUE(erco) << faux;
    EXPECT_THAT(l.console(), HasSubstr(" : TERME INCORRECT OU AMBIGU")) << faux;
    EXPECT_TRUE(mot.vide());
  }
}

TEST(LireReel, EntierSimpleEtDouble) {
  const lecteur l("12 0.1 0.1D0 1E3 -2 +.5 -0.25 -1.5D0");
  EXPECT_EQ(loc_reel(), 12.0);
  EXPECT_EQ(loc_reel(), 0.10000000149011612) << "a single, widened";
  EXPECT_EQ(loc_reel(), 0.1);
  EXPECT_EQ(loc_reel(), 1000.0);
  EXPECT_EQ(loc_reel(), -2.0);
  EXPECT_EQ(loc_reel(), 0.5);
  EXPECT_EQ(loc_reel(), -0.25);
  EXPECT_EQ(loc_reel(), -1.5);
}

TEST(LireEntier, AvecSigne) {
  const lecteur l("007 -3 +4 2147483647 -2147483647");
  EXPECT_EQ(loc_entier(), 7);
  EXPECT_EQ(loc_entier(), -3);
  EXPECT_EQ(loc_entier(), 4);
  EXPECT_EQ(loc_entier(), 2147483647);
  EXPECT_EQ(loc_entier(), -2147483647);
}

TEST(LireNom, EntierJusquaLaLongueur) {
  const lecteur l("poteau_12 ABCD");
  bool erco = true;
  texte<32> nom;
  and_lire_nom(nom, 32, erco);
  EXPECT_FALSE(erco);
  EXPECT_TRUE(nom == "POTEAU_12");
  and_lire_nom(nom, 4, erco);
  EXPECT_FALSE(erco);
  EXPECT_TRUE(nom == "ABCD");
}

TEST(LireChaine, SansLesQuotes) {
  const lecteur l("'L''eau' \"L'eau\" \"\"\"\" '' ' ' 'Minuscules et MAJUSCULES  '");
  EXPECT_EQ(loc_chaine(), (lecture{"L'eau", 5}));
  EXPECT_EQ(loc_chaine(), (lecture{"L'eau", 5}));
  EXPECT_EQ(loc_chaine(), (lecture{"\"", 1}));
  EXPECT_EQ(loc_chaine(), (lecture{"", 1})) << "an empty string is one blank";
  EXPECT_EQ(loc_chaine(), (lecture{"", 1}));
  EXPECT_EQ(loc_chaine(), (lecture{"Minuscules et MAJUSCULES", 26}));
}

TEST(LireChaine, AvecLesQuotesSurDemande) {
  const lecteur l("'L''eau'");
  and_global.and_mode_dequoter = false;
  EXPECT_EQ(loc_chaine(), (lecture{"'L''eau'", 8}));
}

TEST(LireTerme, LesFinsDeLigneEtPointsVirgulesNeSontPasServis) {
  const lecteur l("\n\n : ; ; $ vide\n;B\n");
  ASSERT_TRUE(loc_terme());
  EXPECT_EQ(and_global.and_type_terme, type_terme::operateur);
  EXPECT_EQ(loc_mot(), "B");
  ASSERT_TRUE(loc_terme());
  EXPECT_EQ(and_global.and_type_terme, type_terme::fin_fichier);
}

TEST(LireTerme, LesDelimiteursSurDemande) {
  const lecteur l("x;\n");
  and_global.and_mode_delimiteur = true;
  bool erco = true;
  EXPECT_EQ(loc_mot(), "X");
  and_lire_delimiteur(erco);
  EXPECT_FALSE(erco);
  EXPECT_TRUE(and_global.and_var_chaine == ";");
  and_lire_delimiteur(erco);
  EXPECT_FALSE(erco);
  EXPECT_EQ(statut_d_arret([&] { and_lire_delimiteur(erco); }), 0) << "the end of the file is none";
}

// Those of a list or an expression without one are faults of the language; the others reach the handler.
TEST(LireTerme, LesOperateurs) {
  const lecteur l("** / , . : > = ! +1");
  for (const int numero : {6, 7, 8, 9, 10, 12, 13, 22}) {
    ASSERT_TRUE(loc_terme());
    EXPECT_EQ(and_global.and_type_terme, type_terme::operateur);
    EXPECT_EQ(and_global.and_var_entier_ou_operateur, numero);
  }
}

TEST(LireTerme, UneChaineNEstPasUnOperateur) {
  const lecteur l("'A' AB");
  EXPECT_EQ(loc_chaine().texte, "A");
  EXPECT_EQ(loc_mot(), "AB");
}

TEST(Relire, LeMemeTermeUneFoisDePlus) {
  const lecteur l("TITR 1.5 'x'\nSUITE");
  EXPECT_EQ(loc_mot(), "TITR");
  and_relire_donnee();
  and_relire_donnee();
  EXPECT_EQ(loc_mot(), "TITR");
  EXPECT_EQ(loc_reel(), 1.5);
  and_relire_donnee();
  EXPECT_EQ(loc_reel(), 1.5);
  EXPECT_EQ(loc_chaine().texte, "x");
  and_relire_donnee();
  EXPECT_EQ(loc_chaine().texte, "x") << "the last one of a phrase too";
  EXPECT_EQ(l.listing(), "TITR 1.5 x\n") << "the echo is not repeated";
  EXPECT_EQ(loc_mot(), "SUIT");
  EXPECT_EQ(l.listing(), "TITR 1.5 x\nSUITE\n");
}

TEST(Relire, AvantTouteLectureRien) {
  const lecteur l("x");
  and_relire_donnee();
  EXPECT_EQ(loc_mot(), "X");
}

// A handler looks ahead at a term, and gives it back.
TEST(Relire, RegarderEnAvant) {
  const lecteur l("RETO\n\nMATE C1");
  EXPECT_EQ(loc_mot(), "RETO");
  ASSERT_TRUE(loc_terme());
  EXPECT_EQ(and_global.and_type_terme, type_terme::nom);
  and_relire_donnee();
  EXPECT_EQ(loc_mot(), "MATE");
  EXPECT_EQ(loc_mot(), "C1");
}

TEST(Erreurs, UnNombreOuUnNomEstAttendu) {
  const lecteur l("12 SUITE\nAPRES\n");
  bool erco = false;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  EXPECT_TRUE(erco);
  EXPECT_EQ(l.console(),
            loc_titre_commande + "     - TERME LU : 12\n     - TERME LU INCORRECT : AUTRE QUE NOM \n");
  EXPECT_EQ(l.listing(), "12 SUITE\n") << "the reader's messages are on the console only";
  EXPECT_EQ(loc_mot(), "APRE") << "the rest of the line is dropped";
}

namespace {

/// What the console gets when an operation meets other data than its own.
std::string loc_refus(const std::string& donnees, int operation) {
  const lecteur l(donnees);
  bool erco = false;
  int entier = 99;
  double reel = 99;
  int lg = 99;
  texte<10> t("garde");
  switch (operation) {
    case 2: and_lire_entier(entier, erco); break;
    case 4: and_lire_reel_d(reel, erco); break;
    case 5: and_lire_nom(t, 4, erco); break;
    case 6: and_lire_chaine(t, 4, lg, erco); break;
    default: and_lire_delimiteur(erco); break;
  }
  EXPECT_TRUE(erco);
  EXPECT_TRUE(operation != 2 || entier == 0);
  EXPECT_TRUE(operation != 4 || reel == 0);
  EXPECT_TRUE(operation < 5 || operation > 6 || t.vide());
  EXPECT_TRUE(operation != 6 || lg == 0);
  EXPECT_EQ(l.console().substr(0, loc_titre_commande.size()), loc_titre_commande);
  return l.console().substr(loc_titre_commande.size());
}

}  // namespace

TEST(Erreurs, MessageDeChaqueOperation) {
  EXPECT_EQ(loc_refus("12.", 2), "     - TERME LU : 12.\n     - TERME LU INCORRECT : NON  ENTIER \n");
  EXPECT_EQ(loc_refus("12.D0", 2), "     - TERME LU : 12.D0\n     - TERME LU INCORRECT : NON  ENTIER \n");
  EXPECT_EQ(loc_refus("abc", 4),
            "     - TERME LU : ABC\n     - TERME LU INCORRECT : NON ENTIER REEL OU REEL DOUBLE \n");
  EXPECT_EQ(loc_refus("'abc'", 5),
            "     - TERME LU : abc\n     - TERME LU INCORRECT : NOM TROP LONG OU AUTRE TERME\n");
  EXPECT_EQ(loc_refus("abcde", 5),
            "     - TERME LU : ABCDE\n     - TERME LU INCORRECT : NOM TROP LONG OU AUTRE TERME\n");
  EXPECT_EQ(loc_refus("'abcde'", 6),
            "     - TERME LU : abcde\n     - TERME LU INCORRECT : CHAINE TROP LONGUE OU AUTRE TERME\n");
  EXPECT_EQ(loc_refus("abcd", 6),
            "     - TERME LU : ABCD\n     - TERME LU INCORRECT : CHAINE TROP LONGUE OU AUTRE TERME\n");
  EXPECT_EQ(loc_refus("1", 7), "     - TERME LU : 1\n     - TERME LU INCORRECT : NON  DELIMITEUR \n");
  EXPECT_EQ(loc_refus("=", 5),
            "     - TERME LU : =\n     - TERME LU INCORRECT : NOM TROP LONG OU AUTRE TERME\n");
  EXPECT_EQ(loc_refus("-1.5", 2), "     - TERME LU : -1.5000\n     - TERME LU INCORRECT : NON  ENTIER \n");
}

TEST(Erreurs, LeTermeLuEstMontreSur69Caracteres) {
  EXPECT_EQ(loc_refus("'" + std::string(100, 'x') + "'", 2),
            "     - TERME LU : " + std::string(69, 'x') + "\n     - TERME LU INCORRECT : NON  ENTIER \n");
}

TEST(Erreurs, UneSecondeErreurAAussiSonTitre) {
  const lecteur l("1\n2\n");
  bool erco = false;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  and_lire_deb_nom(mot, 4, erco);
  EXPECT_TRUE(erco);
  EXPECT_THAT(l.console(), EndsWith(loc_titre_commande +
                                    "     - TERME LU : 2\n     - TERME LU INCORRECT : AUTRE QUE NOM \n"));
}

TEST(Erreurs, UnTermeFauxMontreCeQuiPrecede) {
  const lecteur l("TITR 'x' 12.5. SUITE\nAPRES\n");
  EXPECT_EQ(loc_mot(), "TITR") << "the terms in front of the error are served first";
  EXPECT_EQ(loc_chaine().texte, "x");
  bool erco = false;
  and_lire_terme(erco);
  EXPECT_TRUE(erco);
  EXPECT_EQ(l.console(), loc_titre_unite +
                             " ANALYSE> TITR x\n"
                             " MESSAGE> 12.5                 : TERME INCORRECT OU AMBIGU\n");
  EXPECT_EQ(l.listing(), "TITR x\n");
  EXPECT_EQ(loc_mot(), "APRE");
}

TEST(Erreurs, LeTitreEstLaMemeSiRienNePrecede) {
  const lecteur l("1D3\n");
  EXPECT_FALSE(loc_terme());
  EXPECT_EQ(l.console(), loc_titre_unite + " MESSAGE> 1                    : TERME INCORRECT OU AMBIGU\n");
  EXPECT_EQ(l.listing(), "");
}

TEST(Erreurs, CeQuiPrecedeEstCoupeA69Caracteres) {
  const std::string mots = "AAAAAAAAAAAAAAAAAAAAAAAAAAAAA BBBBBBBBBBBBBBBBBBBBBBBBBBBBB CCCCCCCCCC";  // 70
  const lecteur l(mots + " DDDD 1D3\n");
  for (int i = 0; i < 4; ++i) loc_mot();
  EXPECT_FALSE(loc_terme());
  EXPECT_THAT(l.console(), HasSubstr(" ANALYSE> AAAAAAAAAAAAAAAAAAAAAAAAAAAAA BBBBBBBBBBBBBBBBBBBBBBBBBBBBB\n"
                                     " ANALYSE> CCCCCCCCCC DDDD\n MESSAGE> "));
}

TEST(Erreurs, MessagesLexicaux) {
  const auto message = [](const std::string& donnees) {
    const lecteur l(donnees);
    EXPECT_FALSE(loc_terme());
    const std::string& console = l.console();
    return console.substr(console.find(" MESSAGE> "));
  };
  EXPECT_EQ(message("'caf\xE9'"),
            " MESSAGE> 'caf                 : TERME TROP LONG OU CARACTERE INCORRECT\n");
  EXPECT_EQ(message("_A"), " MESSAGE> _                    : TERME TROP LONG OU CARACTERE INCORRECT\n");
  EXPECT_EQ(message("9999999999"),
            " MESSAGE> 9999999999           : NUMERIQUE INCORRECT (LONGUEUR OU VALEUR EXCESSIVE)\n");
  EXPECT_EQ(message("1.0E26"),
            " MESSAGE> 1.0E26               : NUMERIQUE INCORRECT (LONGUEUR OU VALEUR EXCESSIVE)\n");
  EXPECT_EQ(message("99999999999999E25"),
            " MESSAGE> 99999999999999E25    : NUMERIQUE INCORRECT (LONGUEUR OU VALEUR EXCESSIVE)\n");
  EXPECT_EQ(message("1.D300"),
            " MESSAGE> 1.D300               : NUMERIQUE INCORRECT (LONGUEUR OU VALEUR EXCESSIVE)\n");
  EXPECT_EQ(message("'abcdefghijklmnopqrstuvwxyz'x"),
            " MESSAGE> 'abcdefghijklmnopqrs : TERME INCORRECT OU AMBIGU\n");
  for (const std::string faux : {"12A", "1.5x", "1E", ".E3", "1.D", "'x", "\"x'"})
    EXPECT_THAT(message(faux), HasSubstr(" : TERME INCORRECT OU AMBIGU\n")) << faux;
}

TEST(Erreurs, SigneSansNombre) {
  for (const std::string faux : {"- X", "+ 'x'", "- ;", "-\n1", "- - 3", "+*", "-"}) {
    const lecteur l("N " + faux);
    EXPECT_EQ(loc_mot(), "N");
    EXPECT_FALSE(loc_terme()) << faux;
    EXPECT_THAT(l.console(), EndsWith(" MESSAGE>  OPERATEUR UNAIRE SUIVI D UN OPERANDE NON NUMERIQUE\n"))
        << faux;
    EXPECT_THAT(l.console(), HasSubstr(" ANALYSE> N\n ANALYSE> ")) << faux;
  }
}

TEST(Erreurs, SigneDevantUnTermeFaux) {
  const lecteur l("- 12.5.");
  EXPECT_FALSE(loc_terme());
  EXPECT_THAT(l.console(), EndsWith(" MESSAGE> 12.5                 : TERME INCORRECT OU AMBIGU\n"))
      << "the lexical error comes first";
}

TEST(Erreurs, ErreurDeLecture) {
  const lecteur l("x\ny\n", 1);
  EXPECT_EQ(loc_mot(), "X");
  EXPECT_FALSE(loc_terme());
  EXPECT_EQ(l.console(), loc_titre_unite + " MESSAGE>                      ERREUR SUR UNITE DE LECTURE\n");
}

TEST(FinDuFichier, UneLectureTypeeArreteLaCourse) {
  const lecteur l("ZOF\nTITR 'x'");
  EXPECT_EQ(loc_mot(), "ZOF");
  EXPECT_EQ(loc_mot(), "TITR");
  EXPECT_EQ(loc_chaine().texte, "x");
  EXPECT_EQ(statut_d_arret([] { loc_mot(); }), 0);
  EXPECT_EQ(l.console(), loc_titre_commande +
                             "     - TERME LU : \n"
                             "     - TERME LU INCORRECT : AUTRE QUE NOM \n"
                             "    ERREUR : FIN PREMATUREE  DU FICHIER DE DONNEES\n"
                             "     \n"
                             "     ***  ARRET DE L EXECUTION  *** \n");
}

TEST(FinDuFichier, RegarderEnAvantNEcritRien) {
  const lecteur l("x");
  loc_mot();
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(loc_terme());
    EXPECT_EQ(and_global.and_type_terme, type_terme::fin_fichier);
  }
  EXPECT_EQ(l.console(), "");
  and_relire_donnee();
  EXPECT_EQ(statut_d_arret([] { loc_reel(); }), 0);
}

TEST(FinDuFichier, NImporteOu) {
  const std::string donnees = "ZOF\nTITR 'L''eau' ; MATE 1.5 -2.D0 # x\nFIN_";
  for (std::size_t n = 0; n <= donnees.size(); ++n) {
    const lecteur l(donnees.substr(0, n));
    bool erco = false;
    int lus = 0;
    for (; !erco && and_global.and_type_terme != type_terme::fin_fichier; ++lus) and_lire_terme(erco);
    EXPECT_LE(lus, 8) << n;
  }
}

TEST(Listing, UnePhraseParLigneTermesSeparesParUnBlanc) {
  const lecteur l("zof\n\n  $ rien\n;\nEFFO  g   N -1.5  my 1E3 ; 'L''eau' -2.5D0 007\n");
  while (loc_terme() && and_global.and_type_terme != type_terme::fin_fichier) {
  }
  EXPECT_EQ(l.listing(), "ZOF\n;\nEFFO G N -1.5000 MY 1E3 ;\nL'eau -0.25000D+01 007\n");
}

TEST(Listing, UneLigneA200Caracteres) {
  const lecteur l("zof\n");
  loc_mot();
  EXPECT_EQ(l.listing_brut(), "ZOF" + std::string(197, ' ') + "\n");
}

TEST(Listing, LesLignesSontCoupeesAuDernierBlancDes80Colonnes) {
  const std::string a(39, 'A');
  const std::string b(40, 'B');
  const std::string c(81, 'C');
  const std::string d(90, 'D');
  {
    const lecteur l(a + " " + b + " x");  // 80 columns to the end of the second word
    loc_mot();
    EXPECT_EQ(l.listing(), a + "\n" + b + " X\n");
  }
  {
    const lecteur l(a + " " + b);
    loc_mot();
    EXPECT_EQ(l.listing(), a + " " + b + "\n");
  }
  {
    const lecteur l("x " + c);
    loc_mot();
    EXPECT_EQ(l.listing(), "X\n" + c.substr(0, 80) + "\nC\n");
  }
  {
    const lecteur l(d + " " + d);
    loc_mot();
    EXPECT_EQ(l.listing(), d.substr(0, 80) + "\n" + d.substr(0, 10) + "\n" + d.substr(0, 80) + "\n" +
                               d.substr(0, 10) + "\n");
  }
}

TEST(Listing, AvecUnBlancDevantEtSansPointVirguleSurDemande) {
  lecteur l("x ;\n ; y ;\n");
  and_global.and_mode_echo_donnees_analysees = 1;
  and_global.and_unite_echo_donnees_analysees_bis = and_global.and_unite_echo_messages;
  lex_analex.lex_mode_garder_point_virgule_dans_echo = false;
  while (loc_terme() && and_global.and_type_terme != type_terme::fin_fichier) {
  }
  EXPECT_EQ(l.listing(), " X\n Y\n") << "nothing for the lone one";
  EXPECT_EQ(lecteur::sans_blancs(l.console()), " X\n Y\n");
}

TEST(Listing, PasDEchoSansLongueur) {
  const lecteur l("zof\n");
  and_global.and_lg_envoi_echo = 0;
  EXPECT_EQ(loc_mot(), "ZOF");
  EXPECT_EQ(l.listing(), "");
}

TEST(Listing, TexteDesNombresCalcules) {
  const lecteur l("-5. -0.5 -0.25 -400. -1000000. -12345678.\n-1E-3 -0. -3\n-1.5D0 -0.D0 -1.D-200");
  while (loc_terme() && and_global.and_type_terme != type_terme::fin_fichier) {
  }
  EXPECT_EQ(l.listing(),
            "-5.000 -0.5000 -0.25000 -400.000 -1000000. -0.1234568E+08\n"
            "-0.1000E-02 -0.000 -3\n"
            "-0.15000D+01 -0.000D+00 -0.1000-199\n");
}

// 100000 terms are what a phrase holds: what came before is dropped for the message.
TEST(Capacite, LaPhraseQuiDebordeDonneLeMessage) {
  std::string ligne;
  for (int i = 0; i < 66; ++i) ligne += "12 ";
  std::string donnees;
  for (int i = 0; i < 1516; ++i) donnees += ligne + "\n";  // 100056 terms
  const lecteur l(donnees);
  lex_analex.lex_mode_mettre_code_fin_ligne = false;
  EXPECT_FALSE(loc_terme());
  EXPECT_EQ(l.console(),
            loc_titre_unite + " ANALYSE> 12\n MESSAGE>  DEPASSEMENT CAPACITE  DANS LISTE SORTIE\n");
  EXPECT_EQ(l.listing(), "");
}

TEST(Capacite, LesCaracteresDUnePhraseAussi) {
  std::string donnees;
  for (int i = 0; i < 2500; ++i) donnees += std::string(199, 'x') + "\n";
  const lecteur l(donnees);
  lex_analex.lex_mode_mettre_code_fin_ligne = false;
  EXPECT_FALSE(loc_terme());
  EXPECT_THAT(l.console(), EndsWith(" MESSAGE>  DEPASSEMENT CAPACITE  DANS LISTE SORTIE\n"));
}

TEST(Capacite, HorsPhraseLUniteEstServieParMorceaux) {
  std::string ligne;
  for (int i = 0; i < 66; ++i) ligne += "12 ";
  std::string donnees;
  for (int i = 0; i < 1516; ++i) donnees += ligne + "\n";
  const lecteur l(donnees);
  lex_analex.lex_mode_mettre_code_fin_ligne = false;
  and_global.and_mode_phrase = false;
  int lus = 0;
  while (loc_terme() && and_global.and_type_terme == type_terme::entier) ++lus;
  EXPECT_EQ(lus, 100056);
  EXPECT_EQ(l.console(), "");
}

TEST(Capacite, HorsPhraseLesCaracteresNeDebordentPas) {
  std::string donnees;
  for (int i = 0; i < 2500; ++i) donnees += std::string(199, 'x') + "\n";
  const lecteur l(donnees);
  lex_analex.lex_mode_mettre_code_fin_ligne = false;
  and_global.and_mode_phrase = false;
  int lus = 0;
  while (loc_terme() && and_global.and_type_terme == type_terme::nom) ++lus;
  EXPECT_EQ(lus, 2500);
  EXPECT_EQ(l.console(), "");
}

TEST(ErreurDonnee, LesModesEtLesVariablesRestent) {
  const lecteur l("1 2\n");
  and_global.and_type_terme = type_terme::entier;
  and_global.and_lg_terme = 0;
  and_ecriture(1, 2);
  and_global.and_nb_variables = 1;
  bool erco = false;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  EXPECT_TRUE(erco);
  EXPECT_EQ(and_nb_termes(1, 2), 1);
  EXPECT_EQ(and_global.and_nb_variables, 1);
  EXPECT_EQ(and_global.and_mode_echo_donnees_analysees, 3);
  EXPECT_NE(and_global.and_unite_echo_messages, nullptr);
  EXPECT_EQ(and_nb_termes(1, 1), 0);
  and_initialiser_variables();
  EXPECT_EQ(and_nb_termes(1, 2), 0);
}

TEST(Lecteur, LeDrapeauEstRemisAFauxParUneLecture) {
  const lecteur l("b c");
  bool erco = true;
  and_lire_terme(erco);
  EXPECT_FALSE(erco);
}

namespace {

/// Reads to the end of the data with whatever operation comes; gives the number of reads.
int loc_lire_tout(int choix) {
  texte<32> mot;
  int lus = 0;
  and_global.and_type_terme = type_terme::aucun;
  while (and_global.and_type_terme != type_terme::fin_fichier) {
    bool erco = false;
    int entier = 0;
    double reel = 0;
    switch ((choix + ++lus) % 7) {
      case 0: and_lire_entier(entier, erco); break;
      case 1: and_lire_reel_d(reel, erco); break;
      case 2: and_lire_deb_nom(mot, 4, erco); break;
      case 3: and_lire_nom(mot, 32, erco); break;
      case 4: and_lire_chaine(mot, 32, entier, erco); break;
      case 5: and_relire_donnee(); [[fallthrough]];
      default: and_lire_terme(erco); break;
    }
  }
  return lus;
}

}  // namespace

// Whatever the bytes are, reading comes to the end of the data, by the end of the file at the latest.
TEST(Robustesse, DesOctetsQuelconques) {
  const std::string alphabet = "aAeEdD19._'\"$#+-*(;,<>= \t\n\r\x03\x18\xE9\x7F" + std::string(1, '\0');
  unsigned etat = 12345;
  const auto hasard = [&etat](std::size_t n) {
    etat = etat * 1664525U + 1013904223U;
    return static_cast<std::size_t>(etat >> 8U) % n;
  };
  for (int essai = 0; essai < 3000; ++essai) {
    std::string donnees;
    for (std::size_t i = hasard(120); i > 0; --i) donnees += alphabet[hasard(alphabet.size())];
    const lecteur l(donnees);
    int lus = 0;
    const auto statut = statut_d_arret([&] { lus = loc_lire_tout(essai); });
    EXPECT_EQ(statut.value_or(0), 0) << donnees;
    EXPECT_LE(lus, 500) << donnees;
  }
}
