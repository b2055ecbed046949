// The data language in whole runs: computed data against typed ones, faults on the console, in the listing
// and in the status, values that mean "not given", data cut anywhere.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Executer.hpp"

using namespace socle::litteraux;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

const std::string materiaux =
    "MATE BETON C30 TITR 'Beton' FCK 30. PREC NON FIN_MATE\n"
    "MATE ACIER B500 TITR 'Acier' FYK 500. TYPE T_B CONF OUI FIN_MATE\n";
const std::string section =
    "SECT P TITR 'Poteau'\n CONT FUT TITR 'Fut' MATE C30 RECT HAUT 0.5 LARG 0.25 FIN_RECT\n"
    "  FERR F TITR 'Lit' MATE B500 DIAM 20. POIN NUME 1 Y 0. Z -0.125 FIN_POIN FIN_POIN FIN_FERR\n"
    " FIN_CONT\nFIN_SECT\n";

std::string loc_chargement(const std::string& efforts) {
  return "SOLL G SECT P TITR 'Grille' REPE GEOM\n ETAT ELU DURA SITU EXPL SERV POND\n" + efforts +
         " FIN_ETAT\nFIN_SOLL\nJUST P SOLL G FIN_JUST\nFIN_\n";
}

/// A file with that phrase inside: what a fault of the language leaves behind.
course loc_avec(const std::string& phrase) { return executer("ZOF\n" + materiaux + phrase + "\nFIN_\n"); }

std::string loc_lire_fichier(const std::string& chemin) {
  std::ifstream flux(chemin, std::ios::binary);
  return {std::istreambuf_iterator<char>(flux), {}};
}

}  // namespace

// Binary fractions, so that calculation and typing give the same bits.
TEST(Langage, LesDonneesCalculeesDonnentLaNoteDesDonneesTapees) {
  std::string tapes;
  for (const char* mz : {"0.", "0.03125"})
    for (const char* my : {"0.015625", "0.0078125"})
      for (const char* n : {"0.25", "0.5", "0.75", "1."})
        tapes += std::string("EFFO G N ") + n + " MY " + my + " MZ " + mz + " FIN_EFFO\n";
  const course tapee = executer("ZOF\n" + materiaux + section + loc_chargement(tapes));
  const course calculee = executer(
      "ZOF\n< COTE = (1. / 2) > < NIVEAU = -0.125 >\n"
      "MATE BETON ('C' + 30) TITR 'Beton' FCK (3 * 10.) PREC NON FIN_MATE\n"
      "MATE ACIER B500 TITR 'Acier' FYK (MAX(400., 500)) TYPE T_B CONF OUI FIN_MATE\n"
      "SECT P TITR 'Poteau'\n CONT FUT TITR 'Fut' MATE C30 RECT HAUT (COTE) LARG (COTE *\n COTE) FIN_RECT\n"
      "  FERR F TITR 'Lit' MATE B500 DIAM 20. POIN NUME (ENT(1.5)) Y 0. Z (NIVEAU) FIN_POIN FIN_POIN "
      "FIN_FERR\n"
      " FIN_CONT\nFIN_SECT\n" +
      loc_chargement("< < < < EFFO G N (I) MY (J) MZ (K / 32) FIN_EFFO\n"
                     "> I = 0.25 A 1. INC 0.25 > J = (2. ** (0. - 6), 1 / 128.)\n> K = 0. A 1. >\n"));
  EXPECT_EQ(tapee.statut, 0);
  EXPECT_EQ(calculee.statut, 0);
  EXPECT_THAT(tapee.txt, HasSubstr("Mz: 0.31250E-01"));
  EXPECT_EQ(calculee.txt, tapee.txt);
  EXPECT_EQ(calculee.html, tapee.html);
  EXPECT_THAT(calculee.listing, HasSubstr("EFFO G N 0.75000 MY 0.7812500E-02 MZ 0.3125000E-01 FIN_EFFO"));
}

TEST(Langage, LaConsoleMontreLesLignesTapees) {
  const course c = executer("ZOF\n< X = 2 > TITR 'a'\nTITR ('b' + X)\nFIN_\n");
  EXPECT_THAT(c.console, HasSubstr("< X = 2 > TITR 'a'"));
  EXPECT_THAT(c.listing, HasSubstr("TITR a"));
  EXPECT_THAT(
      c.console,
      HasSubstr("     - TERME LU : B2\n     - TERME LU INCORRECT : CHAINE TROP LONGUE OU AUTRE TERME\n"))
      << "a computed text is a name, not a title";
  EXPECT_EQ(c.statut, 1);
}

struct faute {
  const char* phrase;
  const char* message;
};

class FauteDuLangage : public testing::TestWithParam<faute> {};

// The message on the console alone, behind the source of the unit; the notes are closed and the status is 1.
TEST_P(FauteDuLangage, MessageListingEtStatut) {
  const course c = loc_avec(std::string("TITR 'avant'\n") + GetParam().phrase);
  const std::string attendu = std::string(" MESSAGE> ") + GetParam().message + "\n";
  EXPECT_THAT(c.console, HasSubstr("\n\n ===> ERREUR DANS  UNITE SYNTAXIQUE COURANTE : \n\n"));
  EXPECT_THAT(c.console, HasSubstr(attendu));
  EXPECT_THAT(c.listing, HasSubstr("TITR avant"));
  EXPECT_THAT(c.listing, Not(HasSubstr(GetParam().message)));
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.html, HasSubstr("</html>"));
}

INSTANTIATE_TEST_SUITE_P(
    Messages, FauteDuLangage,
    testing::Values(
        faute{"A", " ERREUR DE PRECEDENCE DANS REPETITEUR OU INCREMENTATEUR"},
        faute{"0 REP 3", " ERREUR DE PRECEDENCE DANS REPETITEUR OU INCREMENTATEUR"},
        faute{"- X", " OPERATEUR UNAIRE SUIVI D UN OPERANDE NON NUMERIQUE"},
        faute{"3.0 * 1.5", " PARAMETRES REPETITEUR INCORRECTS"},
        faute{"1 A 2.", " EXTREMITES INTERVALLE INCREMENTATION INCORRECTE"},
        faute{"0 A 5 DIV 10", " PARAMETRES INCREMENTATION INCORRECTS"},
        faute{"2 * (1, 2)", " ERREUR DANS ANALYSE LISTE TERMES ( TERME , INCREMENTATEUR OU  REPETITEUR)"},
        faute{"(2 ** 3 ** 2)", " SYNTAXE EXPRESSION INCORRECTE : ERREUR PRECEDENCE"},
        faute{"(1 / 0)", " SYNTAXE EXPRESSION INCORRECTE"},
        faute{"('a' - 1)", " OPERANDES DE CONCATENATION INCORRECTS DANS EXPRESSION"},
        faute{"(inconnu)", "INCONNU : VARIABLE INCORRECTE DANS EXPRESSION"},
        faute{"(f(1))", " FONCTION F NON DEFINIE"},
        faute{"(SIN(1))", " ARGUMENT(S) DE SIN INCORRECT(S) (TYPE ,NOMBRE OU VALEUR)"},
        faute{"< X 1 >", " ERREUR SYNTAXIQUE DANS AFFECTATION"},
        faute{"< X = 'a' >", " ERREUR AFFECTATION : TERME AFFECTE NON NUMERIQUE"},
        faute{"< UN_NOM_BIEN_TROP_LONG = 1 >", " ERREUR AFFECTATION : LONGUEUR DE VARIABLE INCORRECTE"},
        faute{"< < (I) > I = 1", " LISTE DIRIGEE : DERNIER TERME LU INCORRECT"},
        faute{"< < < < < < < < < < < 1", " LISTE_DIRIGEE : NOMBRE MAXI NIVEAUX DEPASSE"},
        faute{"< < (I) > I = X >", " TERME INCORRECT DANS LISTE NUMERIQUE"},
        faute{"100000 * 1", " DEPASSEMENT CAPACITE  DANS LISTE SORTIE"},
        faute{"(((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((((("
              "((((((((1",
              " ERREUR TRAITEMENT EXPRESSION : DEPASSEMENT CAPACITE OPERATEURS"}));

TEST(Langage, LaSourceDeLaFauteEstMontree) {
  const course c = loc_avec("TITR 'x'\nSECT P (1 + Y * 2) SUITE");
  EXPECT_THAT(c.console, HasSubstr("\n ===> ERREUR DANS  UNITE SYNTAXIQUE COURANTE : \n\n"
                                   " ANALYSE> SECT P\n ANALYSE> ( 1 + Y *\n"
                                   " MESSAGE> Y : VARIABLE INCORRECTE DANS EXPRESSION\n"));
}

// 2147483647 and the greatest double mean "not given", wherever they come from.
TEST(Langage, UneValeurNonRenseigneeParLeCalculEstNonRenseignee) {
  const std::string plus_grand = "((2.D0 ** 1023) * (2.D0 - 1 / 2.D0 ** 52))";
  const course sans = loc_avec("MATE BETON C40 TITR 'x' PREC NON FIN_MATE");
  const course avec = loc_avec("MATE BETON C40 TITR 'x' FCK " + plus_grand + " PREC NON FIN_MATE");
  EXPECT_EQ(sans.statut, 1);
  EXPECT_EQ(avec.statut, sans.statut);
  EXPECT_THAT(avec.console, HasSubstr("non renseigne"));
  // A field that still reads as not given may be given again.
  const course deux_fois =
      loc_avec("MATE BETON C40 TITR 'x' FCK " + plus_grand + " FCK 40. PREC NON FIN_MATE");
  EXPECT_EQ(deux_fois.statut, 0);
}

// Every number of a whole study, in turn, as a value that means "not given": the run ends by itself.
TEST(Langage, UneValeurNonRenseigneePartout) {
  const std::string etude =
      "ZOF\n" + materiaux + section + loc_chargement("EFFO G N 0.5 MY 0.01 MZ 0. FIN_EFFO\n");
  ASSERT_EQ(executer(etude).statut, 0);
  int essais = 0;
  for (std::size_t i = 1; i < etude.size(); ++i) {
    const bool debut = std::isdigit(static_cast<unsigned char>(etude[i])) != 0 &&
                       (etude[i - 1] == ' ' || etude[i - 1] == '-');
    if (!debut) continue;
    const std::size_t fin = etude.find(' ', i);
    for (const std::string valeur :
         {"(2 ** 31 - 1)", "((2.D0 ** 1023) * (2.D0 - 1 / 2.D0 ** 52))", "(-2 ** 31)"}) {
      const std::size_t depuis = etude[i - 1] == '-' ? i - 1 : i;
      const course c = executer(etude.substr(0, depuis) + valeur + etude.substr(fin));
      EXPECT_TRUE(c.statut == 0 || c.statut == 1) << i << ' ' << valeur;
      ++essais;
    }
  }
  EXPECT_GT(essais, 30);
}

// A file that uses every construct, cut at each of its bytes.
TEST(Langage, CoupeAChaqueOctetLaCourseFinit) {
  const std::string etude = loc_lire_fichier(ZOF_RACINE "/fuzz/corpus/langage.zof");
  ASSERT_EQ(executer(etude).statut, 0);
  for (std::size_t n = 0; n < etude.size(); ++n) {
    const course c = executer(etude.substr(0, n));
    EXPECT_TRUE(c.statut == 0 || c.statut == 1) << n;
    EXPECT_THAT(c.console, StartsWith("Version de ZOF")) << n;
  }
}

TEST(Langage, MilleCasEcritsParUneListeDirigee) {
  const course c = executer(loc_lire_fichier(ZOF_RACINE "/examples/poteau_mille_cas/poteau_mille_cas.zof"));
  EXPECT_EQ(c.statut, 0);
  int cas = 0;
  for (std::size_t p = c.listing.find("\nEFFO G N "); p != std::string::npos;
       p = c.listing.find("\nEFFO G N ", p + 1))
    ++cas;
  EXPECT_EQ(cas, 1000);
  EXPECT_THAT(c.listing, HasSubstr("EFFO G N 0.1000 MY 0.12000E-01 MZ 0.12000E-01 FIN_EFFO"));
  EXPECT_THAT(c.listing, HasSubstr("EFFO G N 1.000 MY 0.12000 MZ 0.12000 FIN_EFFO"));
}
