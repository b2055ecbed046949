#include "Lex_analex.hpp"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "Lecteur.hpp"

using testing::ElementsAre;

namespace {

struct lu {
  int code;
  std::string texte;
  bool operator==(const lu&) const = default;
};
void PrintTo(const lu& l, std::ostream* flux) { *flux << l.code << " \"" << l.texte << '"'; }

lu loc_lexeme(int maxcar = lex_lg_ligne) {
  lex_ligne chaine{};
  int nbcar = 0;
  const auto code = static_cast<int>(lexeme(chaine, maxcar, nbcar));
  return {code, std::string(chaine.data(), static_cast<std::size_t>(nbcar))};
}

bool loc_fin(const lu& l) { return l.code == 14 && l.texte == "\x03"; }

/// All lexemes of a text but the ends of line and of file.
std::vector<lu> loc_lexemes(const std::string& donnees) {
  const lecteur l(donnees);
  std::vector<lu> resultat;
  for (lu terme = loc_lexeme(); !loc_fin(terme); terme = loc_lexeme())
    if (terme != lu{14, "\n"}) resultat.push_back(terme);
  return resultat;
}

}  // namespace

TEST(Lexeme, Noms) {
  EXPECT_THAT(loc_lexemes("A_B"), ElementsAre(lu{2, "A_B"}));
  EXPECT_THAT(loc_lexemes("Poutre12 E3 d4 x"),
              ElementsAre(lu{2, "Poutre12"}, lu{2, "E3"}, lu{2, "d4"}, lu{2, "x"}));
  EXPECT_THAT(loc_lexemes("a_1_b"), ElementsAre(lu{2, "a_1_b"}));
}

TEST(Lexeme, NomsAmbigus) {
  EXPECT_THAT(loc_lexemes("A__B"), ElementsAre(lu{3, "A_"}, lu{2, "B"}));
  EXPECT_THAT(loc_lexemes("A_"), ElementsAre(lu{3, "A_"}));
  EXPECT_THAT(loc_lexemes("A_;"), ElementsAre(lu{3, "A_"}, lu{10, ";"}));
  EXPECT_THAT(loc_lexemes("TITR'x'"), ElementsAre(lu{3, "TITR"}, lu{8, "'x'"}));
  EXPECT_THAT(loc_lexemes("TITR\"x\""), ElementsAre(lu{3, "TITR"}, lu{8, "\"x\""}));
  EXPECT_THAT(loc_lexemes("_A"), ElementsAre(lu{1, "_"}, lu{2, "A"}));
}

TEST(Lexeme, Entiers) {
  EXPECT_THAT(loc_lexemes("12 007"), ElementsAre(lu{4, "12"}, lu{4, "007"}));
  EXPECT_THAT(loc_lexemes("12A"), ElementsAre(lu{5, "12"}, lu{2, "A"}));
  EXPECT_THAT(loc_lexemes("12_"), ElementsAre(lu{5, "12"}, lu{1, "_"}));
  EXPECT_THAT(loc_lexemes("1D3"), ElementsAre(lu{5, "1"}, lu{2, "D3"}));
  EXPECT_THAT(loc_lexemes("1'a'"), ElementsAre(lu{5, "1"}, lu{8, "'a'"}));
  EXPECT_THAT(loc_lexemes("-5+3"), ElementsAre(lu{10, "-"}, lu{4, "5"}, lu{10, "+"}, lu{4, "3"}));
}

TEST(Lexeme, ReelsSimples) {
  EXPECT_THAT(loc_lexemes("12.5"), ElementsAre(lu{6, "12.5"}));
  EXPECT_THAT(loc_lexemes("12. .5"), ElementsAre(lu{6, "12."}, lu{6, ".5"}));
  EXPECT_THAT(loc_lexemes("1E3 1e-3 1.E+3 1.5e3"),
              ElementsAre(lu{6, "1E3"}, lu{6, "1e-3"}, lu{6, "1.E+3"}, lu{6, "1.5e3"}));
  EXPECT_THAT(loc_lexemes("1.5;"), ElementsAre(lu{6, "1.5"}, lu{10, ";"}));
}

TEST(Lexeme, ReelsSimplesErrones) {
  EXPECT_THAT(loc_lexemes("12.5."), ElementsAre(lu{7, "12.5"}, lu{10, "."}));
  EXPECT_THAT(loc_lexemes(".E3"), ElementsAre(lu{7, "."}, lu{2, "E3"}));
  EXPECT_THAT(loc_lexemes(".D3"), ElementsAre(lu{7, "."}, lu{2, "D3"}));
  EXPECT_THAT(loc_lexemes("1.5x"), ElementsAre(lu{7, "1.5"}, lu{2, "x"}));
  EXPECT_THAT(loc_lexemes("1E 2"), ElementsAre(lu{7, "1E"}, lu{4, "2"}));
  EXPECT_THAT(loc_lexemes("1E+ 2"), ElementsAre(lu{7, "1E+"}, lu{4, "2"}));
  EXPECT_THAT(loc_lexemes("1E3."), ElementsAre(lu{7, "1E3"}, lu{10, "."}));
  EXPECT_THAT(loc_lexemes("1E3E"), ElementsAre(lu{7, "1E3"}, lu{2, "E"}));
}

TEST(Lexeme, ReelsDoubles) {
  EXPECT_THAT(loc_lexemes("1.D3 .5D0 1.5d-10 2.D+4"),
              ElementsAre(lu{12, "1.D3"}, lu{12, ".5D0"}, lu{12, "1.5d-10"}, lu{12, "2.D+4"}));
  EXPECT_THAT(loc_lexemes("1.D x"), ElementsAre(lu{13, "1.D"}, lu{2, "x"}));
  EXPECT_THAT(loc_lexemes("1.D+x"), ElementsAre(lu{13, "1.D+"}, lu{2, "x"}));
  EXPECT_THAT(loc_lexemes("1.D3x"), ElementsAre(lu{13, "1.D3"}, lu{2, "x"}));
}

TEST(Lexeme, Chaines) {
  EXPECT_THAT(loc_lexemes("'L''eau'"), ElementsAre(lu{8, "'L''eau'"}));
  EXPECT_THAT(loc_lexemes("'dit \"oui\"' \"l'eau\""),
              ElementsAre(lu{8, "'dit \"oui\"'"}, lu{8, "\"l'eau\""}));
  EXPECT_THAT(loc_lexemes("\"a\"\"b\""), ElementsAre(lu{8, "\"a\"\"b\""}));
  EXPECT_THAT(loc_lexemes("''"), ElementsAre(lu{8, "''"}));
  EXPECT_THAT(loc_lexemes("'x'* 'y'+"), ElementsAre(lu{8, "'x'"}, lu{10, "*"}, lu{8, "'y'"}, lu{10, "+"}));
  EXPECT_THAT(loc_lexemes("'a\tb'"), ElementsAre(lu{8, "'a\tb'"}));
}

TEST(Lexeme, ChainesErronees) {
  EXPECT_THAT(loc_lexemes("'abc'x"), ElementsAre(lu{9, "'abc'"}, lu{2, "x"}));
  EXPECT_THAT(loc_lexemes("'x'."), ElementsAre(lu{9, "'x'"}, lu{10, "."}));
  EXPECT_THAT(loc_lexemes("'x'1"), ElementsAre(lu{9, "'x'"}, lu{4, "1"}));
  EXPECT_THAT(loc_lexemes("'x'\"y\""), ElementsAre(lu{9, "'x'"}, lu{8, "\"y\""}));
  EXPECT_THAT(loc_lexemes("\"x\"'y'"), ElementsAre(lu{9, "\"x\""}, lu{8, "'y'"}));
}

// A string can't run on over a line end, and is not closed by the next line.
TEST(Lexeme, UneChaineCoupeeParUneFinDeLigneEstFausse) {
  const std::vector<lu> lus = loc_lexemes("'abc\nd");
  ASSERT_EQ(lus.size(), 2U);
  EXPECT_EQ(lus[0].code, 9);
  EXPECT_EQ(lus[0].texte.substr(0, 4), "'abc");
  EXPECT_EQ(lus[1], (lu{2, "d"}));
}

TEST(Lexeme, CaracteresSpeciaux) {
  EXPECT_THAT(loc_lexemes("2**3"), ElementsAre(lu{4, "2"}, lu{10, "**"}, lu{4, "3"}));
  EXPECT_THAT(loc_lexemes("2*3"), ElementsAre(lu{4, "2"}, lu{10, "*"}, lu{4, "3"}));
  EXPECT_THAT(loc_lexemes("***"), ElementsAre(lu{10, "**"}, lu{10, "*"}));
  EXPECT_THAT(loc_lexemes(". ,"), ElementsAre(lu{10, "."}, lu{10, ","}));
  for (const char c : std::string("!%&(),/:;<=>?@[\\]^`{}~|\x7F"))
    EXPECT_THAT(loc_lexemes(std::string(1, c)), ElementsAre(lu{10, std::string(1, c)})) << c;
}

TEST(Lexeme, LesBlancsEtCodesDeControleSeparent) {
  EXPECT_THAT(loc_lexemes("a\tb\rc\vd"), ElementsAre(lu{2, "a"}, lu{2, "b"}, lu{2, "c"}, lu{2, "d"}));
}

TEST(Lexeme, FinDeLigneEtFinDeFichier) {
  const lecteur l("a\n\nb");
  EXPECT_EQ(loc_lexeme(), (lu{2, "a"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\n"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\n"}));
  EXPECT_EQ(loc_lexeme(), (lu{2, "b"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\n"})) << "a last line without its end has one all the same";
  EXPECT_EQ(loc_lexeme(), (lu{14, "\x03"}));
}

// An end that is given once only would let a caller that skips it read for ever.
TEST(Lexeme, LaFinDuFichierReste) {
  const lecteur l("a");
  loc_lexeme();
  loc_lexeme();
  for (int i = 0; i < 5; ++i) EXPECT_EQ(loc_lexeme(), (lu{14, "\x03"}));
  lex_init();
  EXPECT_EQ(loc_lexeme(), (lu{14, "\x03"}));
}

TEST(Lexeme, LeCode3DansLesDonneesEstLaFin) {
  const lecteur l("a\x03 b\nc");
  EXPECT_EQ(loc_lexeme(), (lu{2, "a"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\x03"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\x03"}));
}

TEST(Lexeme, UneErreurDeLectureDonneLeCode24) {
  const lecteur l("a\nb\n", 1);
  EXPECT_EQ(loc_lexeme(), (lu{2, "a"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\n"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\x18"}));
}

TEST(Lexeme, LesCommentairesSontCoupesAvantToutLeReste) {
  EXPECT_THAT(loc_lexemes("a $ b # c\nd # e $ f\n# g"), ElementsAre(lu{2, "a"}, lu{2, "d"}));
  EXPECT_THAT(loc_lexemes("a # b $ 'c"), ElementsAre(lu{2, "a"}));
  EXPECT_EQ(loc_lexemes("'prix en $' x").front().code, 9) << "in a string too";
  EXPECT_THAT(loc_lexemes("a $ d\xE9j\xE0 vu"), ElementsAre(lu{2, "a"})) << "accents are free there";
}

TEST(Lexeme, UnOctetAuDelaDe127EstUneFaute) {
  const lecteur l("'caf\xE9' x");
  EXPECT_EQ(loc_lexeme(), (lu{1, "'caf"}));
  EXPECT_EQ(lex_ercode(), 2);
  EXPECT_EQ(loc_lexeme(), (lu{8, "'"})) << "the automaton goes on in the string, which this quote closes";
}

TEST(Lexeme, UnLexemeTropLongEstUneFauteEtSaSuiteLeMemeLexeme) {
  const lecteur l("ABCDEFGH I");
  EXPECT_EQ(loc_lexeme(5), (lu{1, "ABCDE"}));
  EXPECT_EQ(lex_ercode(), 1);
  EXPECT_EQ(loc_lexeme(5), (lu{2, "GH"}));
  EXPECT_EQ(loc_lexeme(5), (lu{2, "I"}));
}

TEST(Lexeme, SeulesLesColonnesJusqua200Comptent) {
  const std::string ligne = std::string(199, ' ') + "ab";
  EXPECT_THAT(loc_lexemes(ligne + "\nc"), ElementsAre(lu{2, "a"}, lu{2, "c"}));
  EXPECT_THAT(loc_lexemes(std::string(200, 'x') + "yz"), ElementsAre(lu{2, std::string(200, 'x')}));
}

TEST(Lexeme, LaLongueurFixeeDesLignesEstRespectee) {
  const lecteur l("ABCDEFGH\nI");
  lex_analex.lex_lg_fixee_ligne_fichier_donnees = 4;
  EXPECT_EQ(loc_lexeme(), (lu{2, "ABCD"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\n"}));
  EXPECT_EQ(loc_lexeme(), (lu{2, "I"}));
}

TEST(Lexeme, DixMegaoctetsSurUneLigne) {
  EXPECT_THAT(loc_lexemes("a " + std::string(10'000'000, 'x') + "\nb"),
              ElementsAre(lu{2, "a"}, lu{2, std::string(198, 'x')}, lu{2, "b"}));
}

TEST(Lexeme, LesFinsDeLigneDesAutresSystemes) {
  EXPECT_THAT(loc_lexemes("a 'b'\r\nc\r\n"), ElementsAre(lu{2, "a"}, lu{8, "'b'"}, lu{2, "c"}));
}

TEST(Lexeme, SansCodeDeFinDeLigneLUniteContinue) {
  const lecteur l("a\nb");
  lex_analex.lex_mode_mettre_code_fin_ligne = false;
  EXPECT_EQ(loc_lexeme(), (lu{2, "a"}));
  EXPECT_EQ(loc_lexeme(), (lu{2, "b"}));
  EXPECT_EQ(loc_lexeme(), (lu{14, "\x03"}));
}

TEST(Lexeme, LInitialisationAbandonneLeResteDeLaLigne) {
  const lecteur l("a b c\nd");
  EXPECT_EQ(loc_lexeme(), (lu{2, "a"}));
  lex_init();
  EXPECT_EQ(loc_lexeme(), (lu{2, "d"}));
}

TEST(LectureLigne, LEchoMontre199ColonnesAvecLeCommentaire) {
  lecteur l("TITR 'x' $ note\n" + std::string(205, 'y') + "\n");
  l.avec_echo_des_lignes();
  lex_ligne zone{};
  int lglue = 0;
  EXPECT_TRUE(lex_lecture_ligne_donnees(zone, lglue));
  EXPECT_EQ(lglue, 10) << "up to the comment";
  EXPECT_EQ(zone[9], '\n');
  EXPECT_EQ(l.console(), "TITR 'x' $ note" + std::string(184, ' ') + "\n");
  EXPECT_TRUE(lex_lecture_ligne_donnees(zone, lglue));
  EXPECT_EQ(lglue, 201);
  EXPECT_EQ(l.console().substr(200), std::string(199, 'y') + "\n");
  EXPECT_EQ(lex_analex.lex_numero_ligne_lue_courante, 2);
}

TEST(LectureLigne, LEchoSuitLaLongueurFixee) {
  lecteur l("ABCDEFGH\n");
  l.avec_echo_des_lignes();
  lex_analex.lex_lg_fixee_ligne_fichier_donnees = 4;
  lex_ligne zone{};
  int lglue = 0;
  lex_lecture_ligne_donnees(zone, lglue);
  EXPECT_EQ(l.console(), "ABCD\n");
}

TEST(LectureLigne, LeSecondEchoEstLeMeme) {
  lecteur l("ABC $ d\n");
  l.avec_echo_des_lignes();
  lex_analex.lex_unite_echo_donnees_lues_bis = lex_analex.lex_unite_echo_donnees_lues;
  lex_analex.lex_lg_fixee_ligne_fichier_donnees = 7;
  lex_ligne zone{};
  int lglue = 0;
  lex_lecture_ligne_donnees(zone, lglue);
  EXPECT_EQ(l.console(), "ABC $ d\nABC $ d\n");
}

TEST(LectureLigne, LEchoSuspenduGardeLaLigne) {
  lecteur l("ABC $ d\n");
  l.avec_echo_des_lignes();
  lex_analex.lex_mode_suspend_echo_donnees_lues = true;
  lex_ligne zone{};
  int lglue = 0;
  lex_lecture_ligne_donnees(zone, lglue);
  EXPECT_EQ(l.console(), "");
  EXPECT_EQ(std::string(lex_analex.lex_zone_stockage_echo_donnees_lues.data(), 8), "ABC $ d ");
}

TEST(LectureLigne, LaFinEtLErreurNeSontPasDesLignes) {
  lecteur l("");
  l.avec_echo_des_lignes();
  lex_ligne zone{};
  int lglue = 0;
  EXPECT_TRUE(lex_lecture_ligne_donnees(zone, lglue));
  EXPECT_EQ(lglue, 1);
  EXPECT_EQ(zone[0], '\x03');
  EXPECT_EQ(l.console(), "");
}
