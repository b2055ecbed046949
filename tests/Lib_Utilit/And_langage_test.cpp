// The data language: from the data to the terms that come out.
#include "And_langage.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "And_files.hpp"
#include "And_fonctions.hpp"
#include "And_termes.hpp"
#include "Lecteur.hpp"
#include "Outils.hpp"

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// A term with its type: 3, 0.5s, 0.5d, NAME, 'string', #12 for an operator.
std::string loc_terme() {
  const and_global_t& g = and_global;
  char nombre[40];
  switch (g.and_type_terme) {
    case type_terme::entier: return std::to_string(g.and_var_entier_ou_operateur);
    case type_terme::reel_s:
      std::snprintf(nombre, sizeof nombre, "%.9gs", static_cast<double>(g.and_var_reel));
      return nombre;
    case type_terme::reel_d: std::snprintf(nombre, sizeof nombre, "%.15gd", g.and_var_reel_d); return nombre;
    case type_terme::nom: return std::string(and_texte(g));
    case type_terme::chaine: return "'" + std::string(and_texte(g)) + "'";
    default: return "#" + std::to_string(g.and_var_entier_ou_operateur);
  }
}

/// All terms of the data, and behind them the message of the first fault, if there is one.
std::vector<std::string> loc_termes(const lecteur& l) {
  std::vector<std::string> termes;
  bool erco = false;
  for (and_lire_terme(erco); !erco && and_global.and_type_terme != type_terme::fin_fichier;
       and_lire_terme(erco))
    termes.push_back(loc_terme());
  if (erco) {
    const std::string& console = l.console();
    const std::size_t debut = console.find(" MESSAGE> ") + 10;
    termes.push_back("!" + console.substr(debut, console.find('\n', debut) - debut));
  }
  return termes;
}
std::vector<std::string> loc_termes(const std::string& donnees) {
  const lecteur l(donnees);
  return loc_termes(l);
}

std::string loc_joindre(const std::vector<std::string>& termes) {
  std::string resultat;
  for (const std::string& t : termes) resultat += (resultat.empty() ? "" : " ") + t;
  return resultat;
}
std::string lu(const std::string& donnees) { return loc_joindre(loc_termes(donnees)); }

/// The listing of the data, without its last line end.
std::string liste(const std::string& donnees) {
  const lecteur l(donnees);
  loc_termes(l);
  const std::string texte = l.listing();
  return texte.substr(0, texte.empty() ? 0 : texte.size() - 1);
}

std::string fois(int nombre, const std::string& texte) {
  std::string resultat;
  for (int i = 0; i < nombre; ++i) resultat += texte;
  return resultat;
}

/// The data on lines of at most 190 columns, cut at blanks.
std::string en_lignes(const std::string& donnees) {
  std::string resultat;
  std::size_t debut = 0;
  while (donnees.size() - debut > 190) {
    const std::size_t coupe = donnees.rfind(' ', debut + 190);
    resultat += donnees.substr(debut, coupe - debut) + "\n";
    debut = coupe + 1;
  }
  return resultat + donnees.substr(debut) + "\n";
}

const std::string precedence_liste = "! ERREUR DE PRECEDENCE DANS REPETITEUR OU INCREMENTATEUR";
const std::string precedence = "! SYNTAXE EXPRESSION INCORRECTE : ERREUR PRECEDENCE";
const std::string sans_resultat = "! SYNTAXE EXPRESSION INCORRECTE";
const std::string repetiteur = "! PARAMETRES REPETITEUR INCORRECTS";
const std::string intervalle = "! EXTREMITES INTERVALLE INCREMENTATION INCORRECTE";
const std::string increment = "! PARAMETRES INCREMENTATION INCORRECTS";
const std::string affectation = "! ERREUR SYNTAXIQUE DANS AFFECTATION";
const std::string dirigee = "! LISTE DIRIGEE : DERNIER TERME LU INCORRECT";
const std::string concatenation = "! OPERANDES DE CONCATENATION INCORRECTS DANS EXPRESSION";
const std::string operateurs = "! ERREUR TRAITEMENT EXPRESSION : DEPASSEMENT CAPACITE OPERATEURS";
const std::string operandes = "! ERREUR TRAITEMENT EXPRESSION : DEPASSEMENT CAPACITE OPERANDES";
std::string arguments(const std::string& nom) {
  return "! ARGUMENT(S) DE " + nom + " INCORRECT(S) (TYPE ,NOMBRE OU VALEUR)";
}

}  // namespace

// ---- list terms

TEST(Termes, CeQuiNEstPasUneListePasseTelQuel) {
  EXPECT_EQ(lu("TITR 'x' 12 1.5 2.5D0 ! : = , / ."), "TITR 'x' 12 1.5s 2.5d #22 #10 #13 #8 #7 #9");
}

TEST(Termes, UnSigneEtSonNombre) {
  EXPECT_EQ(lu("-1 +2 -1.5 -2.5D0"), "-1 2 -1.5s -2.5d");
  EXPECT_EQ(lu("5 -3 - 2"), "5 -3 -2") << "a list of three, no subtraction";
  const std::string faute = "! OPERATEUR UNAIRE SUIVI D UN OPERANDE NON NUMERIQUE";
  for (const std::string donnees : {"-(3)", "- - 3", "+X", "- 'x'", "-\n1", "+"})
    EXPECT_EQ(lu(donnees), faute) << donnees;
}

TEST(Repetition, NCopies) {
  EXPECT_EQ(lu("3 * 1.5"), "1.5s 1.5s 1.5s");
  EXPECT_EQ(lu("1 * 7 2 * 2.5D0 2 * -3"), "7 2.5d 2.5d -3 -3");
  EXPECT_EQ(lu("(1 + 2) * 3"), "3 3 3") << "a count in brackets; a product stands inside them";
  EXPECT_EQ(lu("((1 + 2) * 3)"), "9");
  EXPECT_EQ(lu("2 * (1 / 2.)"), "0.5s 0.5s");
  EXPECT_EQ(loc_termes("100000 * 1").size(), 1U) << "the line end is a term too many for the phrase";
  EXPECT_EQ(loc_termes("99999 * 1").size(), 99999U);
}

TEST(Repetition, Refus) {
  for (const std::string donnees : {"3.0 * 1.5", "0 * 1", "-1 * 1", "100001 * 1", "3.D0 * 1", "(1 - 1) * 2"})
    EXPECT_EQ(lu(donnees), repetiteur) << donnees;
  for (const std::string donnees : {"3 * 'a'", "3 * X", "3 * ('a')", "3 *\n4", "* 3", "3 * 4 * 5",
                                    "3 * 4 A 5", "3 * 4 REP 5", "3 * 4 INC 5", "3 * 4 DIV 5", "3 * )"})
    EXPECT_EQ(lu(donnees), precedence_liste) << donnees;
}

TEST(SerieA, PasDeUn) {
  EXPECT_EQ(lu("1 A 4"), "1 2 3 4");
  EXPECT_EQ(lu("4 A 1"), "4 3 2 1");
  EXPECT_EQ(lu("1 A 1"), "1");
  EXPECT_EQ(lu("1 A 2"), "1 2");
  EXPECT_EQ(lu("-1 A -3"), "-1 -2 -3");
  EXPECT_EQ(lu("1.0 A 3.5"), "1s 2s 3s 3.5s");
  EXPECT_EQ(lu("3.5 A 1."), "3.5s 2.5s 1.5s 1s");
  EXPECT_EQ(lu("1.0 A 1.5"), "1.5s") << "the end alone";
  EXPECT_EQ(lu("1.0 A 2.5"), "1s 2s 2.5s");
  EXPECT_EQ(lu("1.D0 A 3.D0"), "1d 2d 3d");
  EXPECT_EQ(lu("(1) A (2 + 1)"), "1 2 3");
}

// A value nearer than 1E-4 to the end leaves its place to the end.
TEST(SerieA, EcartALaFin) {
  EXPECT_EQ(lu("0.D0 A 2.00009D0"), "0d 1d 2.00009d");
  EXPECT_EQ(lu("0.D0 A 2.00011D0"), "0d 1d 2d 2.00011d");
  EXPECT_EQ(lu("0.D0 A -2.00009D0"), "0d -1d -2.00009d");
  EXPECT_EQ(lu("0.D0 A 1.99995D0"), "0d 1d 1.99995d") << "truncated to one step";
}

TEST(SerieA, Refus) {
  for (const std::string donnees : {"1 A 2.", "1. A 2", "1. A 2.D0", "0 A 100002", "100002 A 0",
                                    "-2147483647 A 2147483647", "0. A 1E20", "-1.D286 A 1.D286"})
    EXPECT_EQ(lu(donnees), intervalle) << donnees;
  for (const std::string donnees : {"A", "rep", "Inc", "DIV", ")", "1 A", "1 A A", "1 A 2 A 3", "1 A 2 * 3",
                                    "1 A\n2", "1 A x", "1 A 'x'", "1 A 2 REP 3"})
    EXPECT_EQ(lu(donnees), precedence_liste) << donnees;
}

// The count of steps goes to 100000; a phrase holds 100000 terms and 400000 characters.
TEST(SerieA, Bornes) {
  const lecteur l("0 A 100001");
  and_analyse_unite_syntaxique();
  EXPECT_EQ(and_nb_termes(3, 1), 4);
  int nombre = 0;
  for (and_lecture(3, 1, 1); and_global.and_type_terme == type_terme::entier; and_lecture(3, 1, 1))
    ASSERT_EQ(and_global.and_var_entier_ou_operateur, nombre++);
  EXPECT_EQ(nombre, 100002);
  EXPECT_EQ(lu("1 A 100000"), "! DEPASSEMENT CAPACITE  DANS LISTE SORTIE");
}

TEST(SerieInc, PasDonne) {
  EXPECT_EQ(lu("0. A 1. INC .25"), "0s 0.25s 0.5s 0.75s 1s");
  EXPECT_EQ(lu("0 A 10 INC 3"), "0 3 6 9 10");
  EXPECT_EQ(lu("0 A 10 INC 5"), "0 5 10");
  EXPECT_EQ(lu("0 A 10 INC 10"), "0 10");
  EXPECT_EQ(lu("10 A 0 INC -4"), "10 6 2 0");
  EXPECT_EQ(lu("0.D0 A 1.D0 INC .5D0"), "0d 0.5d 1d");
  const auto onze = loc_termes("0. A 1. INC .1");
  ASSERT_EQ(onze.size(), 11U) << "one tenth as a single is above a tenth: nine whole steps";
  EXPECT_EQ(onze[9], "0.900000036s");
  EXPECT_EQ(onze[10], "1s");
}

// The remainder counts to 1E-4 of the step, with the sign of the interval.
TEST(SerieInc, EcartALaFin) {
  EXPECT_EQ(lu("0.D0 A 1.00004D0 INC .5D0"), "0d 0.5d 1.00004d");
  EXPECT_EQ(lu("0.D0 A 1.00006D0 INC .5D0"), "0d 0.5d 1d 1.00006d");
  EXPECT_EQ(lu("0.D0 A -1.00004D0 INC -.5D0"), "0d -0.5d -1.00004d");
  EXPECT_EQ(lu("0.D0 A -1.00006D0 INC -.5D0"), "0d -0.5d -1d -1.00006d");
}

// A step counts as one above 1E-6, and 100000 of them are the most.
TEST(SerieInc, Bornes) {
  EXPECT_EQ(lu("0.D0 A 3.D-6 INC 1.02D-6"), "0d 1.02e-06d 2.04e-06d 3e-06d");
  EXPECT_EQ(lu("0.D0 A 3.D-6 INC .98D-6"), increment);
  EXPECT_EQ(lu("0.D0 A 3.D-6 INC 1.D-6"), increment);
  EXPECT_EQ(lu("0.D0 A -3.D-6 INC -1.02D-6"), "0d -1.02e-06d -2.04e-06d -3e-06d");
  const lecteur l("0 A 200001 INC 2");
  and_analyse_unite_syntaxique();
  EXPECT_EQ(and_nb_termes(3, 1), 4);
  and_lecture(3, 1, -1);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 200001);
  int nombre = 0;
  for (and_lecture(3, 1, 1); and_global.and_type_terme == type_terme::entier && nombre <= 100000;
       and_lecture(3, 1, 1))
    ASSERT_EQ(and_global.and_var_entier_ou_operateur, 2 * nombre++);
  EXPECT_EQ(nombre, 100001) << "100000 steps, and the end behind them";
}

TEST(SerieInc, Refus) {
  for (const std::string donnees :
       {"0 A 1 INC .5", "0. A 1 INC .5", "0. A 1. INC 1", "0 A 10 INC 0", "0. A 1. INC 1E-6", "0 A 10 INC -1",
        "0 A 1 INC 2", "1 A 1 INC 1", "0 A 200002 INC 2", "0.D0 A 1.D286 INC 1.D-5",
        "-1.D286 A 1.D286 INC 1.D0"})
    EXPECT_EQ(lu(donnees), increment) << donnees;
  EXPECT_EQ(lu("3 INC 2"), "3 " + precedence_liste) << "the 3 is whole";
  EXPECT_EQ(lu("0 A 10 INC 2 INC 3"), precedence_liste);
  EXPECT_EQ(lu("0 A 10 INC"), precedence_liste);
  EXPECT_EQ(loc_termes("0 A 100000 INC 2").size(), 50001U);
}

TEST(SerieDiv, PartsEgales) {
  EXPECT_EQ(lu("0 A 10 DIV 5"), "0 2 4 6 8 10");
  EXPECT_EQ(lu("0 A 10 DIV 3"), "0 3 6 10") << "the step of integers is truncated";
  EXPECT_EQ(lu("10 A 0 DIV 2"), "10 5 0");
  EXPECT_EQ(lu("0. A 1. DIV 4"), "0s 0.25s 0.5s 0.75s 1s");
  EXPECT_EQ(lu("0. A 1. DIV 1"), "0s 1s");
  EXPECT_EQ(lu("1.D0 A 0.D0 DIV 2"), "1d 0.5d 0d");
  EXPECT_EQ(lu("-2147483647 A 2147483647 DIV 2"), "-2147483647 0 2147483647");
  // From -2^127 to 2^127: the whole is more than a single can hold, its half is not.
  EXPECT_EQ(lu("(-2. ** 127) A (2. ** 127) DIV 2"), "-1.70141183e+38s 0s 1.70141183e+38s");
  EXPECT_EQ(lu("(-2. ** 127) A (2. ** 127) DIV 1"), "-1.70141183e+38s 1.70141183e+38s");
}

TEST(SerieDiv, CentMilleUneParts) {
  const lecteur l("0. A 1. DIV 100001");
  and_analyse_unite_syntaxique();
  EXPECT_EQ(and_nb_termes(3, 1), 4);
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::reel_s);
}

TEST(SerieDiv, Refus) {
  for (const std::string donnees :
       {"0 A 10 DIV 0", "0 A 10 DIV -1", "0 A 10 DIV 2.", "0 A 10. DIV 2", "0 A 5 DIV 10", "1 A 1 DIV 2",
        "1. A 1. DIV 2", "0. A 1. DIV 100002", "(-1.D286 * 1.D22) A (1.D286 * 1.D22) DIV 2"})
    EXPECT_EQ(lu(donnees), increment) << donnees;
  EXPECT_EQ(lu("3 DIV 2"), "3 " + precedence_liste);
  EXPECT_EQ(lu("0 A 10 DIV 2 DIV 3"), precedence_liste);
}

TEST(SerieRep, ValeursSuccessives) {
  EXPECT_EQ(lu("0 REP 3 INC 2"), "0 2 4 6");
  EXPECT_EQ(lu("5 REP 1 INC -1"), "5 4");
  EXPECT_EQ(lu("1. REP 2 INC .5"), "1s 1.5s 2s");
  EXPECT_EQ(lu("1.D0 REP 2 INC .5D0"), "1d 1.5d 2d");
  EXPECT_EQ(lu("7 REP 2 INC 0"), "7 7 7");
  EXPECT_EQ(lu("(2 - 1) REP (1 + 1) INC (3)"), "1 4 7");
  // In single precision, product and sum are rounded each: 9 * 0.1f gives 0.900000036, and 1 more 1.90000010;
  // worked out in double and narrowed once it would be 1.89999998.
  EXPECT_EQ(loc_termes("1. REP 9 INC .1").back(), "1.9000001s");
  EXPECT_EQ(lu("2147483645 REP 2 INC 1"), "2147483645 2147483646 2147483647");
}

TEST(SerieRep, Refus) {
  for (const std::string donnees :
       {"0 REP 0 INC 1", "0 REP 100001 INC 1", "0 REP -1 INC 1", "0 REP 2. INC 1", "0 REP 2 INC 1.",
        "0. REP 2 INC 1", "2147483646 REP 2 INC 1", "-2147483647 REP 2 INC -1",
        "2147483647 REP 100000 INC 2147483647", "0. REP 100000 INC (1E25 * 1E13)",
        "0.D0 REP 100000 INC (1.D286 * 1.D20)"})
    EXPECT_EQ(lu(donnees), increment) << donnees;
  for (const std::string donnees :
       {"0 REP 3", "0 REP 3 A 5", "0 REP 3 DIV 2", "0 REP 3 * 2", "0 REP 3 4", "0 REP 3 -1", "0 REP 3 (1)",
        "0 REP 3 X", "0 REP 3 REP 4", "0 REP 3 )", "0 REP 3 INC 1 INC 2"})
    EXPECT_EQ(lu(donnees), precedence_liste) << donnees;
}

TEST(Listes, UnTermeFauxDansUneListeEstAnnonceLePremier) {
  const std::string lexical = "!12.5                 : TERME INCORRECT OU AMBIGU";
  EXPECT_EQ(lu("1 A 12.5."), lexical);
  EXPECT_EQ(lu("3 * 12.5."), lexical);
  EXPECT_EQ(lu("X 7 12.5."), "X 7 " + lexical);
  EXPECT_EQ(lu("(1 + 12.5.)"), lexical);
  EXPECT_EQ(lu("< X = 12.5."), lexical);
  EXPECT_EQ(lu("< 12.5."), lexical);
  EXPECT_EQ(lu("< < 12.5."), lexical);
}

TEST(Listes, LErreurDeListeSuitLeTermeFaux) {
  const lecteur l("3 A 12.5.");
  and_analyse_unite_syntaxique();
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::erreur_lexicale);
  and_lecture(3, 1, 1);
  EXPECT_EQ(and_global.and_type_terme, type_terme::erreur_syntaxe);
  EXPECT_EQ(and_global.and_var_entier_ou_operateur, 1);
  EXPECT_EQ(and_texte(and_global).substr(0, 75),
            " ERREUR DANS ANALYSE LISTE TERMES ( TERME , INCREMENTATEUR OU  REPETITEUR) ");
  EXPECT_EQ(and_nb_termes(3, 1), 0);
}

// A list that is whole ends before what can't go on with it; an operator out of order is a fault.
TEST(Listes, DerriereUnNombre) {
  struct forme {
    std::string donnees, valeurs;
  };
  const std::vector<forme> formes = {{"1 A 2", "1 2"},
                                     {"0 A 4 INC 2", "0 2 4"},
                                     {"0 A 4 DIV 2", "0 2 4"},
                                     {"0 REP 2 INC 2", "0 2 4"},
                                     {"2 * 3", "3 3"}};
  for (const forme& f : formes) {
    for (const std::string operateur : {"A", "REP", "*", ")"})
      EXPECT_EQ(lu(f.donnees + " " + operateur + " 2"), precedence_liste) << f.donnees << operateur;
    EXPECT_EQ(lu(f.donnees + " -3"), f.valeurs + " -3");
    EXPECT_EQ(lu(f.donnees + " +3"), f.valeurs + " 3");
    EXPECT_EQ(lu(f.donnees + " (3)"), f.valeurs + " 3");
    EXPECT_EQ(lu(f.donnees + " 7"), f.valeurs + " 7");
    EXPECT_EQ(lu(f.donnees + " X"), f.valeurs + " X");
    EXPECT_EQ(lu(f.donnees + " 'x'"), f.valeurs + " 'x'");
    EXPECT_EQ(lu(f.donnees + " ="), f.valeurs + " #13");
    EXPECT_EQ(lu(f.donnees + "\nX"), f.valeurs + " X");
    if (f.donnees == "1 A 2") continue;
    for (const std::string operateur : {"INC", "DIV"})
      EXPECT_EQ(lu(f.donnees + " " + operateur + " 2"), precedence_liste) << f.donnees << operateur;
  }
  for (const std::string terme :
       {"+ 1", "- 1", "A 1", "REP 1", "DIV 1", "* 1", "(1)", ")", "1", "X", "'x'", "=", "\n"})
    EXPECT_EQ(lu("0 REP 2 " + terme), precedence_liste) << terme;
  EXPECT_EQ(lu("5 -3 +2 (1) 7 X"), "5 -3 2 1 7 X");
  for (const std::string terme : {"INC 2", "DIV 2", ")"})
    EXPECT_EQ(lu("5 " + terme), "5 " + precedence_liste) << terme;
}

TEST(Listes, DerriereUnOperateur) {
  for (const std::string debut : {"1 A ", "0 A 4 INC ", "0 A 4 DIV ", "0 REP ", "0 REP 2 INC ", "2 * "})
    for (const std::string terme : {"A", "REP", "DIV", "INC", "*", ")", "X", "'x'", "=", "\n", "('x')"})
      EXPECT_EQ(lu(debut + terme), precedence_liste) << debut << terme;
  EXPECT_EQ(lu("-1 A +1"), "-1 0 1");
  EXPECT_EQ(lu("4 A 0 INC -2"), "4 2 0");
  EXPECT_EQ(lu("4 A 0 INC (0 - 2)"), "4 2 0");
  EXPECT_EQ(lu("0 A 4 DIV +2"), "0 2 4");
  EXPECT_EQ(lu("0 A 4 DIV (2)"), "0 2 4");
  EXPECT_EQ(lu("0 REP +2 INC -2"), "0 -2 -4");
  EXPECT_EQ(lu("0 REP (2) INC (3)"), "0 3 6");
  EXPECT_EQ(lu("2 * -3"), "-3 -3");
  EXPECT_EQ(lu("2 * (3)"), "3 3");
}

TEST(Listes, PlusieursValeursNeSontPasUnOperande) {
  EXPECT_EQ(lu("3 * (1, 2)"), "! ERREUR DANS ANALYSE LISTE TERMES ( TERME , INCREMENTATEUR OU  REPETITEUR)");
  EXPECT_EQ(lu("1 A (1, 2)"), "! ERREUR DANS ANALYSE LISTE TERMES ( TERME , INCREMENTATEUR OU  REPETITEUR)");
  EXPECT_EQ(lu("(1, 2) A 3"), "1 2 " + precedence_liste);
}

// ---- expressions

TEST(Expression, OperationsEtPriorites) {
  EXPECT_EQ(lu("(1, 2, 3)"), "1 2 3");
  EXPECT_EQ(lu("(-1) (+1)"), "-1 1");
  EXPECT_EQ(lu("(2 + 3 * 4)"), "14");
  EXPECT_EQ(lu("((2 + 3) * 4)"), "20");
  EXPECT_EQ(lu("(20 - 5 - 3)"), "12");
  EXPECT_EQ(lu("(20 / 5 / 2)"), "2");
  EXPECT_EQ(lu("(2 * 3 ** 2)"), "18");
  EXPECT_EQ(lu("(-2 ** 2)"), "-4");
  EXPECT_EQ(lu("(1 - 2 ** 3 * 2 + 4)"), "-11");
  EXPECT_EQ(lu("(((7)))"), "7");
  EXPECT_EQ(lu("(1,-2,3*4)"), "1 -2 12");
  EXPECT_EQ(lu("(MAX(-1, -2))"), "-1");
  EXPECT_EQ(lu("(1 + 2) (3 + 4)"), "3 7");
}

TEST(Expression, SurPlusieursLignes) {
  EXPECT_EQ(lu("(1 +\n 2 ;\n $ rien\n * 3\n) X"), "7 X");
  EXPECT_EQ(liste("(1 +\n 2 ) X\nY"), "3 X\nY") << "one phrase";
}

TEST(Expression, FautesDePrecedence) {
  for (const std::string donnees :
       {"(2 ** 3 ** 2)", "(2 * -3)",  "(2 - -3)",   "(2 ** -1)", "()",        "(,)",
        "(1,)",          "(,1)",      "(1 2)",      "(1 (2))",   "((1) (2))", "(*2)",
        "(1 +)",         "(1 + * 2)", "(1",         "(1 + 2",    "(X 1)",     "(X Y)",
        "(A + 1)",       "(1 A 2)",   "(1 REP 2)",  "(= 1)",     "(1 < 2)",   "(1 : 2)",
        "('a' 'b')",     "(SIN())",   "(SIN(,1.))", "(1 !)",     "((1)"})
    EXPECT_EQ(lu(donnees), precedence) << donnees;
}

// What may stand behind an operand, whatever operator is before it; and what may not.
TEST(Expression, DerriereUnOperande) {
  for (const std::string debut : {"(1 ", "(1 + 2 ", "(1 * 2 ", "(2 ** 3 ", "(1, 2 ", "(ABS(1 "})
    for (const std::string terme :
         {"(3)", "X", "SIN(1.)", "3", "1.5", "'a'", "=", "A", "!", "**", "** 2 **"}) {
      if (terme == "**" && debut != "(2 ** 3 ") continue;  // elsewhere a power may follow
      EXPECT_EQ(lu("< X = 1 >\n" + debut + terme + "))"), precedence) << debut << terme;
    }
  EXPECT_EQ(lu("(2 ** 3 + 1) (2 ** 3 - 1) (2 ** 3 * 2) (17 / 2 ** 3)"), "9 7 16 2");
  EXPECT_EQ(lu("(7 - 2 + 1) (7 - 2 * 3) (2 * 3 + 1) (7 - 2 ** 2) (12 / 2 * 3) (2 * 3 - 1)"), "6 1 7 3 18 5");
  EXPECT_EQ(lu("(1, 2 + 3) (1, 2 * 3) (1, 2 ** 3) (1, 2, 3)"), "1 5 1 6 1 8 1 2 3");
  EXPECT_EQ(lu("(2 + 3, 1) (2 * 3, 1) (2 ** 3, 1) (ABS(2), 1)"), "5 1 6 1 8 1 2 1");
  EXPECT_EQ(lu("(ABS(2 + 3)) (ABS(2 - 3)) (ABS(2 * 3)) (ABS(7 / 2)) (ABS(2 ** 3)) (MAX(1, 2 ** 3))"),
            "5 1 6 3 8 8");
}

// The same behind an operator.
TEST(Expression, DerriereUnOperateur) {
  for (const std::string debut : {"(", "(1 + ", "(1 * ", "(2 ** ", "(1, ", "(ABS("})
    for (const std::string terme : {")", "* 2", "/ 2", "** 2", ", 2", "=", "A", "!"})
      EXPECT_EQ(lu(debut + terme + "))"), precedence) << debut << terme;
  for (const std::string debut : {"(1 + ", "(1 - ", "(1 * ", "(1 / ", "(2 ** "})
    for (const std::string signe : {"+ 2)", "- 2)"})
      EXPECT_EQ(lu(debut + signe), precedence) << debut << signe;
  for (const std::string terme : {"1", "Y", "'a'", "=", "A", "!"})
    EXPECT_EQ(lu("< X = 1 >\n(X " + terme + ")"), precedence) << terme;
  EXPECT_EQ(lu("(+2) (1, +2) (ABS(-2)) (1, -2) (MAX(-1, +2))"), "2 1 2 2 1 -2 2");
  EXPECT_EQ(lu("((3)) (1 + (3)) (2 * (3)) (2 ** (3)) (1, (3)) (ABS((3)))"), "3 4 6 8 1 3 3");
  EXPECT_EQ(lu("< X = 3 >\n(X) (1 + X) (2 * X) (2 ** X) (1, X) (ABS(X)) (-X)"), "3 4 6 8 1 3 3 -3");
  EXPECT_EQ(lu("< X = 3 >\n(X + 1) (X - 1) (X * 2) (X / 2) (X ** 2) (X, 2) (MAX(X, 2))"), "4 2 6 1 9 3 2 3");
  EXPECT_EQ(lu("(1 + ABS(2)) (2 * ABS(3)) (2 ** ABS(3)) (1, ABS(2)) (ABS(ABS(2))) (-ABS(2))"),
            "3 6 8 1 2 2 -2");
}

// Each fault leaves nothing behind for the next expression.
TEST(Expression, UnEchecVideLesOperandes) {
  for (const std::string donnees : {"(1, 2 X)", "(1, 2 / 0)", "(1, K + 2)", "(1, SIN(2))", "(1, (2, 3))"}) {
    const lecteur l(donnees);
    and_analyse_unite_syntaxique();
    EXPECT_EQ(and_nb_termes(1, 3), 0) << donnees;
  }
}

TEST(Expression, UneParentheseInterieureTientUneValeur) {
  EXPECT_EQ(lu("((1, 2))"), sans_resultat);
  EXPECT_EQ(lu("(1 + (2, 3))"), sans_resultat);
  EXPECT_EQ(lu("(MAX((1, 2)))"), sans_resultat);
}

TEST(Operations, Entiers) {
  EXPECT_EQ(lu("(1 / 2) (7 / 2) (-7 / 2)"), "0 3 -3");
  EXPECT_EQ(lu("(16777217 / 1)"), "16777216") << "the quotient is worked out in single precision";
  EXPECT_EQ(lu("(2147483647 + 1)"), "-2147483648");
  EXPECT_EQ(lu("(-2147483647 - 2)"), "2147483647");
  EXPECT_EQ(lu("(65536 * 65536) (65536 * 32768)"), "0 -2147483648");
  EXPECT_EQ(lu("(2 ** 10) (2 ** 31) (3 ** 40) (7 ** 0) (0 ** 0) (0 ** 5)"),
            "1024 -2147483648 689956897 1 1 0");
  EXPECT_EQ(lu("(2 ** 2147483647) (3 ** 2147483647)"), "0 -1431655765") << "modulo 2^32: 3^-1 there";
  EXPECT_EQ(lu("< N = (-3) >\n(1 ** N) (2 ** N) (0 - 2 ** N)"), "1 0 0");
  EXPECT_EQ(lu("< N = (-3) > < P = (-2) > < U = (-1) >\n(U ** N) (U ** P) (5 ** N)"), "-1 1 0");
  EXPECT_EQ(lu("< N = (-2147483647 - 1) > < U = (-1) > (U ** N) (2 ** N) (N * U) (N + N)"),
            "1 0 -2147483648 0");
}

// 3^-1 modulo 2^32, by hand: 3 * 2863311531 = 2 * 2^32 + 1, and 3^(2^31 - 1) is its value since 3 has an
// order that divides 2^30.
TEST(Operations, SansResultat) {
  for (const std::string donnees :
       {"(1 / 0)", "(1. / 0.)", "(0. / 0.)", "(1.D0 / 0.D0)", "(1. / 0)", "(0 / 0)", "(2147483647 / 1)",
        "(1E25 * 1E25)", "(1.D286 * 1.D286)", "(10. ** 39)", "(10.D0 ** 400)", "(0 ** (0 - 1))",
        "(0. ** (0. - 1.))", "((0. - 8.) ** (1. / 3.))", "(0.D0 ** (0 - 1))"})
    EXPECT_EQ(lu(donnees), sans_resultat) << donnees;
  EXPECT_EQ(lu("< N = (-2147483647 - 1) > (N / (0 - 1))"), sans_resultat);
}

TEST(Operations, ReelsEtTypesMeles) {
  EXPECT_EQ(lu("(1. / 2) (1 / 2.) (1 + 1.D0) (1. + 1.D0)"), "0.5s 0.5s 2d 2d");
  EXPECT_EQ(lu("(16777217 + 0.D0)"), "16777216d") << "an integer widens through a single";
  EXPECT_EQ(lu("(1.0E8 + 1.0 - 1.0E8)"), "0s") << "a calculation in single precision";
  EXPECT_EQ(lu("(1.D8 + 1.D0 - 1.D8)"), "1d");
  EXPECT_EQ(lu("(0.1 + 0.D0)"), "0.100000001490116d");
  EXPECT_EQ(lu("(2. ** 3) (2 ** .5) (2.D0 ** .5D0)"), "8s 1.41421354s 1.4142135623731d");
  EXPECT_EQ(lu("(3 - 5.5)"), "-2.5s");
  EXPECT_EQ(lu("((2.D0 ** 1023) * (2.D0 - 1 / 2.D0 ** 52))"), "1.79769313486232e+308d")
      << "the greatest double";
}

TEST(Chaines, UneChaineDevientUnNom) {
  EXPECT_EQ(lu("('abc')"), "ABC");
  EXPECT_EQ(lu("('B' + 12)"), "B12");
  EXPECT_EQ(lu("('B' + 12 + 'x' + 3)"), "B12X3");
  EXPECT_EQ(lu("('B' + (-3))"), "B-3");
  EXPECT_EQ(lu("('a' + \"b'c\")"), "AB'C");
  EXPECT_EQ(lu("('a''' + \"b\"\"c\")"), "A'B\"C") << "a doubled quote stays one";
  EXPECT_EQ(lu("('' + 'a' + '')"), "A");
  EXPECT_EQ(lu("('a', 1, 'b')"), "A 1 B");
  EXPECT_EQ(lu("('B' + 2147483647)"), "B2147483647");
}

TEST(Chaines, Refus) {
  for (const std::string donnees :
       {"('a' + 1.5)", "('a' + 1.D0)", "(1 + 'a')", "('a' - 'b')", "('a' * 2)", "('a' / 'b')", "('a' ** 2)",
        "(+'a')", "(-'a')", "(1. + 'a')", "('a' + (-2147483647))"})
    EXPECT_EQ(lu(donnees), concatenation) << donnees;
  const std::string longue = "'" + std::string(100, 'x') + "'";
  const std::string moins_longue = "'" + std::string(99, 'x') + "'";
  EXPECT_EQ(lu(en_lignes("(" + longue + " + " + moins_longue + " )")), std::string(199, 'X'));
  EXPECT_EQ(lu(en_lignes("(" + longue + " + " + longue + " )")), concatenation)
      << "no term has 202 characters";
}

// ---- functions

TEST(Fonctions, ReellesDansLesDeuxPrecisions) {
  const auto simple = [](float v) {
    char t[40];
    std::snprintf(t, sizeof t, "%.9gs", static_cast<double>(v));
    return std::string(t);
  };
  const auto reel = [](double v) {
    char t[40];
    std::snprintf(t, sizeof t, "%.15gd", v);
    return std::string(t);
  };
  EXPECT_EQ(
      lu("(SIN(1.)) (COS(1.)) (ATAN(1.)) (EXP(1.)) (TAN(1.)) (ASIN(.5)) (ACOS(.5)) (LOG(2.)) (ABS(-2.))"),
      loc_joindre({simple(std::sin(1.F)), simple(std::cos(1.F)), simple(std::atan(1.F)),
                   simple(std::exp(1.F)), simple(std::tan(1.F)), simple(std::asin(.5F)),
                   simple(std::acos(.5F)), simple(std::log(2.F)), "2s"}));
  EXPECT_EQ(
      lu("(SIN(1.D0)) (COS(1.D0)) (ATAN(1.D0)) (EXP(1.D0)) (TAN(1.D0)) (ASIN(.5D0)) (ACOS(.5D0)) (LOG(2.D0))"
         " (ABS(-2.D0))"),
      loc_joindre({reel(std::sin(1.)), reel(std::cos(1.)), reel(std::atan(1.)), reel(std::exp(1.)),
                   reel(std::tan(1.)), reel(std::asin(.5)), reel(std::acos(.5)), reel(std::log(2.)), "2d"}));
  EXPECT_EQ(lu("(sin(0.)) (Cos(0.D0)) (EXP(0.)) (ASIN(1.D0) * 2.D0)"), "0s 1d 1s 3.14159265358979d");
}

TEST(Fonctions, Conversions) {
  EXPECT_EQ(lu("(ENT(2.9)) (ENT(-2.9)) (ENT(7)) (ENT(2.9D0)) (ENT(2147483647.9D0)) (ENT(-2147483648.9D0))"),
            "2 -2 7 2 2147483647 -2147483648");
  EXPECT_EQ(lu("(REEL(7)) (REEL(.1D0)) (REEL(.5)) (DBLE(7)) (DBLE(.1)) (DBLE(.1D0))"),
            "7s 0.100000001s 0.5s 7d 0.100000001490116d 0.1d");
  EXPECT_EQ(lu("(ABS(-3)) (ABS(3)) (ABS(0))"), "3 3 0");
  EXPECT_EQ(lu("(REEL(1) / 2)"), "0.5s");
}

TEST(Fonctions, MaxEtMin) {
  EXPECT_EQ(lu("(MAX(1, 2)) (MIN(1, 2)) (MAX(1., 2)) (MIN(1, 2.D0)) (MAX(1, MIN(5, 3)))"), "2 1 2s 1d 3");
  EXPECT_EQ(liste("(MAX(1, 007))"), "7") << "a result, with no typed text";
}

TEST(Fonctions, Refus) {
  const auto refus = [](const std::string& appel, const std::string& nom) {
    EXPECT_EQ(lu("(" + appel + ")"), arguments(nom)) << appel;
  };
  for (const std::string nom : {"SIN", "COS", "ATAN", "EXP", "TAN", "ASIN", "ACOS", "LOG"}) {
    refus(nom + "(1)", nom);
    refus(nom + "(1., 2.)", nom);
    refus(nom + "('x')", nom);
  }
  refus("TAN(1.5707963)", "TAN");
  refus("TAN(1.570797)", "TAN");
  refus("TAN(1.57079630001D0)", "TAN");
  refus("ASIN(1.01)", "ASIN");
  refus("ACOS(-1.01D0)", "ACOS");
  refus("LOG(0.)", "LOG");
  refus("LOG(9E-7)", "LOG");
  refus("LOG(-9E-7)", "LOG");
  refus("LOG(1.D-10)", "LOG");
  refus("MAX(1)", "MAX");
  refus("MIN(1, 2, 3)", "MIN");
  refus("MAX(1, 'a')", "MAX");
  refus("ABS('a')", "ABS");
  refus("XCLOT(1., 2.)", "XCLOT");
  refus("XCLOT(1, 2, 3)", "XCLOT");
  refus("YCLOT(1., 2., 3., 4.)", "YCLOT");
  refus("XCLOT(0., 2., 3.)", "XCLOT");
  refus("YCLOT(-1., 2., 3.)", "YCLOT");
  refus("XCLOT(1., 0., 3.)", "XCLOT");
  refus("XCLOT(1., 2., 1000.)", "XCLOT");
  refus("CPTR('I')", "CPTR");
  refus("CPTR(1)", "CPTR");
  refus("CPTR(1.)", "CPTR");
  refus("CPTR(1.D0)", "CPTR");
  refus("YCLOT(1, 2, 3)", "YCLOT");
  for (const std::string nom : {"ENT", "REEL", "DBLE"}) {
    refus(nom + "('a')", nom);
    refus(nom + "(1, 2)", nom);
  }
  refus("MIN('a', 'b')", "MIN");
  refus("MAX('a', 'b')", "MAX");
  // 1 / (π/2 - 1.5707000494), the single nearest to 1.5707
  EXPECT_EQ(lu("(TAN(1.5707))").substr(0, 6), "10386.") << "beside the pole it has a value";
  EXPECT_EQ(lu("(TAN(1.570798))").back(), 's');
  EXPECT_EQ(lu("(TAN(1.5707963005D0))").back(), 'd');
  EXPECT_EQ(lu("(LOG(1.1E-6))").back(), 's');
  EXPECT_EQ(lu("(ASIN(-1.) + ACOS(-1.) - ACOS(0.))"), "0s") << "-π/2 + π - π/2: the ends belong to them";
  EXPECT_EQ(lu("(LOG(1.D-9))").back(), 'd');
}

TEST(Fonctions, SansResultat) {
  for (const std::string donnees :
       {"(LOG(-2.))", "(LOG(-2.D0))", "(EXP(100.))", "(EXP(1000.D0))", "(ENT(3.D9))", "(ENT(2147483648.D0))",
        "(ENT(1E20))", "(REEL(1.D40))", "(ABS(-2147483647 - 1))"})
    EXPECT_EQ(lu(donnees), sans_resultat) << donnees;
}

TEST(Fonctions, Inconnue) {
  EXPECT_EQ(lu("(racine(2.))"), "! FONCTION RACINE NON DEFINIE");
  EXPECT_EQ(lu("(SINUS(2.))"), "! FONCTION SINUS NON DEFINIE");
  EXPECT_EQ(lu("(f(1, 2, 3, 4, 5))"), "! FONCTION F NON DEFINIE");
}

namespace {

struct point {
  double x, y;
};

/// The clothoid by Simpson's rule on its tangent: turned by u²/2a² at the abscissa u from its inflection,
/// seen from the tangent at the abscissa a²/r; within a millimetre of the inflection that is the inflection.
point loc_clothoide_par_integration(double a, double r, double s) {
  const double so = std::abs(a * a / r) > 0.001 ? a * a / r : 0;
  const auto angle = [&](double u) { return (u * u - so * so) / (2 * a * a); };
  constexpr int n = 20000;
  const double h = s / n;
  point p{0, 0};
  for (int i = 0; i <= n; ++i) {
    const double poids = (i == 0 || i == n) ? 1 : (i % 2 != 0 ? 4 : 2);
    const double u = so + i * h;
    p.x += poids * std::cos(angle(u)) * h / 3;
    p.y += poids * std::sin(angle(u)) * h / 3;
  }
  return p;
}

}  // namespace

TEST(Clothoide, ContreUneIntegration) {
  const lecteur l("");
  for (const double a : {50.0, 120.0, 300.0})
    for (const double r : {200.0, -350.0, 1000.0, 2.4e6, 2.6e6, 1e9})
      for (const double s : {-80.0, 0.0, 1.0, 37.5, 100.0}) {
        if (std::abs(s + a * a / r) > 2.5 * a || std::abs(a * a / r) > 2.5 * a) continue;
        double x = 99;
        double y = 99;
        bool erreur = true;
        clotho(a, r, s, x, y, erreur);
        const point p = loc_clothoide_par_integration(a, r, s);
        EXPECT_FALSE(erreur) << a << ' ' << r << ' ' << s;
        EXPECT_NEAR(x, p.x, 2e-6) << a << ' ' << r << ' ' << s;
        EXPECT_NEAR(y, p.y, 2e-6) << a << ' ' << r << ' ' << s;
      }
}

TEST(Clothoide, LesMemesDonneesDonnentLesMemesPoints) {
  const lecteur l("");
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  bool erreur = false;
  clotho(50, 200, 30, x1, y1, erreur);
  clotho(50, 200, 30, x2, y2, erreur);
  EXPECT_EQ(x1, x2);
  EXPECT_EQ(y1, y2);
  clotho(50, 200, 31, x2, y2, erreur);
  EXPECT_NE(x1, x2);
  clotho(50, 201, 31, x1, y1, erreur);
  EXPECT_NE(y1, y2) << "another radius";
  clotho(51, 201, 31, x2, y2, erreur);
  EXPECT_NE(y1, y2) << "another parameter";
  clotho(1, 1, 1000, x2, y2, erreur);
  EXPECT_TRUE(erreur) << "more turns than ten terms can follow";
  clotho(1, 1, 1000, x2, y2, erreur);
  EXPECT_TRUE(erreur) << "and so when it is asked again";
  clotho(1e-6, 1, 1, x2, y2, erreur);
  EXPECT_TRUE(erreur);
  clotho(1, -1e-6, 1, x2, y2, erreur);
  EXPECT_TRUE(erreur);
}

// Of a clothoid of 100 m almost straight at its origin the tenth term falls under a micrometre up to 275 m,
// not beyond: the lengths of the terms were summed beside this program.
TEST(Clothoide, DixTermes) {
  const lecteur l("");
  double x = 0;
  double y = 0;
  bool erreur = true;
  clotho(100, 1e9, 275, x, y, erreur);
  EXPECT_FALSE(erreur);
  const point p = loc_clothoide_par_integration(100, 1e9, 275);
  EXPECT_NEAR(x, p.x, 2e-6);
  EXPECT_NEAR(y, p.y, 2e-6);
  clotho(100, 1e9, 276, x, y, erreur);
  EXPECT_TRUE(erreur);
  clotho(2e-6, 1, 1e-6, x, y, erreur);
  EXPECT_FALSE(erreur) << "small, but above a millionth";
  clotho(1.1e-6, -1.1e-6, 1e-6, x, y, erreur);
  EXPECT_FALSE(erreur);
}

TEST(Clothoide, ParLesFonctions) {
  const point p = loc_clothoide_par_integration(50, 200, 30);
  const auto termes =
      loc_termes("(XCLOT(50.D0, 200.D0, 30.D0), YCLOT(50.D0, 200.D0, 30.D0)) (YCLOT(50., 200, 30))");
  ASSERT_EQ(termes.size(), 3U);
  EXPECT_NEAR(std::stod(termes[0]), p.x, 2e-6);
  EXPECT_NEAR(std::stod(termes[1]), p.y, 2e-6);
  EXPECT_NEAR(std::stod(termes[2]), p.y, 1e-5);
  EXPECT_EQ(termes[2].back(), 's');
}

// ---- variables

TEST(Affectation, UneVariableSertDansLesExpressions) {
  EXPECT_EQ(lu("< X = 2.5 >"), "");
  EXPECT_EQ(lu("< X = 2.5 >\n(X * 2) (x)"), "5s 2.5s");
  EXPECT_EQ(lu("< X = 1 > < x = (X + 1) > (X, -X)"), "2 -2") << "a new value replaces the old one";
  EXPECT_EQ(lu("< X = -1.D0 > (X)"), "-1d");
  EXPECT_EQ(lu("< X = 1 * 5 > (X)"), "5");
  EXPECT_EQ(lu("< SEIZE_CARACTERES = 1 > (SEIZE_CARACTERES)"), "1");
  EXPECT_EQ(lu("N < X = 1 > (X)"), "N 1") << "it leaves no term";
  EXPECT_EQ(lu("< X = (1 +\n1) > (X)"), "2");
}

TEST(Affectation, LesVariablesRestentJusquALaFin) {
  const lecteur l("< X = 7 >\n12.5.\n(X)\n");
  EXPECT_THAT(loc_termes(l), ElementsAre("!12.5                 : TERME INCORRECT OU AMBIGU"));
  EXPECT_THAT(loc_termes(l)[0], "7");
}

TEST(Affectation, Refus) {
  EXPECT_EQ(lu("< DIX_SEPT_LETTRES_ = 1 >"), "!DIX_SEPT_LETTRES_    : TERME INCORRECT OU AMBIGU");
  EXPECT_EQ(lu("< DIX_SEPT_LETTRESX = 1 >"), "! ERREUR AFFECTATION : LONGUEUR DE VARIABLE INCORRECTE");
  for (const std::string donnees : {"< X 1 >", "< X >", "< X", "< X\n= 1 >", "< X = 1", "< X = 1 2 >",
                                    "< X = 1\n>", "< X = 1 <", "< X : 1 >"})
    EXPECT_EQ(lu(donnees), affectation) << donnees;
  for (const std::string donnees :
       {"< X = 1 A 3 >", "< X = (1, 2) >", "< X = 'a' >", "< X = Y >", "< X = ('a') >", "< X = >",
        "< X =\n1 >", "< X = < 1 >", "< X = ", "< X = 3 * 2 >"})
    EXPECT_EQ(lu(donnees), "! ERREUR AFFECTATION : TERME AFFECTE NON NUMERIQUE") << donnees;
  EXPECT_EQ(lu("< X = (1 / 0) >"), sans_resultat);
  EXPECT_EQ(lu("< X = 1 A A >"), precedence_liste);
}

TEST(Affectation, VariableInconnue) {
  EXPECT_EQ(lu("(x)"), "!X : VARIABLE INCORRECTE DANS EXPRESSION");
  EXPECT_EQ(lu("< X = 1 > (XX + 1)"), "!XX : VARIABLE INCORRECTE DANS EXPRESSION");
  EXPECT_EQ(lu("(DIX_SEPT_LETTRESX)"), "!DIX_SEPT_LETTRESX : VARIABLE INCORRECTE DANS EXPRESSION");
  EXPECT_EQ(lu("(SIN)"), "!SIN : VARIABLE INCORRECTE DANS EXPRESSION");
  EXPECT_EQ(lu("< SEIZE_CARACTERES = 1 > (SEIZE_CARACTERESX)"),
            "!SEIZE_CARACTERESX : VARIABLE INCORRECTE DANS EXPRESSION")
      << "a name that is too long is no other one cut short";
}

TEST(Affectation, MilleNeufCentQuatreVingtDixNeufValeurs) {
  EXPECT_EQ(lu(fois(1999, "< X = 1 >\n") + "(X)"), "1");
  EXPECT_EQ(lu(fois(2000, "< X = 1 >\n") + "(X)"),
            "! ERREUR AFFECTATION : NOMBRE AFFECTATIONS >  NB_MAXI_VARIABLES_GLOBALES");
  std::string noms;
  for (int i = 1; i <= 1999; ++i) noms += "< V" + std::to_string(i) + " = " + std::to_string(i % 10) + " >\n";
  EXPECT_EQ(lu(noms + "(V1, V1000, V1999)"), "1 0 9");
  EXPECT_EQ(lu(noms + "< < < (I + J + V1999) > I = 1 A 2 > J = 10 A 11 >"), "20 21 21 22")
      << "a directed list has places of its own";
}

// The values keep their text: long texts fill the characters first.
TEST(Affectation, CaracteresDesValeurs) {
  EXPECT_EQ(lu(fois(1400, "< X = 1.2345 >\n")), "! DEPASSEMENT CAPACITE  DANS LISTE VARIABLE");
}

// More names than values can't be given by data alone.
TEST(Affectation, DeuxMilleNoms) {
  {
    const lecteur l("< X = 1 > < x = 2 > < Y = 3 > < X = 4 > (X, Y)");
    EXPECT_THAT(loc_termes(l), ElementsAre("4", "3"));
    EXPECT_EQ(and_global.and_nb_variables, 2) << "a new value is no new name";
  }
  {
    const lecteur l("< NOUVEAU = 1 > (NOUVEAU)");
    and_global.and_nb_variables = 1999;
    EXPECT_THAT(loc_termes(l), ElementsAre("1"));
    EXPECT_EQ(and_global.and_nb_variables, 2000);
  }
  const lecteur l("< NOUVEAU = 1 >");
  and_global.and_nb_variables = 2000;
  EXPECT_THAT(loc_termes(l),
              ElementsAre("! ERREUR AFFECTATION : NOMBRE VARIABLES >  NB_MAXI_VARIABLES_GLOBALES"));
}

// ---- directed lists

TEST(ListeDirigee, LaDerniereVariableEstLaPlusLente) {
  EXPECT_EQ(lu("< < (I) > I = 1 A 3 >"), "1 2 3");
  EXPECT_EQ(lu("< < < (10 * I + J) > I = 1 A 3 > J = 1 A 2 >"), "11 21 31 12 22 32");
  EXPECT_EQ(lu("< < X (I) 'a' > I = 1 2 5 A 6 > FIN"), "X 1 'a' X 2 'a' X 5 'a' X 6 'a' FIN");
  EXPECT_EQ(lu("< < (2 * I) A (3 * I) > I = 1 A 2 >"), "2 3 4 5 6");
  EXPECT_EQ(lu("< < 2 * (I) > I = 1 2 >"), "1 1 2 2");
  EXPECT_EQ(lu("< < (I, -I) > I = 1. (2., 3.) >"), "1s -1s 2s -2s 3s -3s");
  EXPECT_EQ(lu("< < < (I) > I = (J) A (J + 1) > J = 1 5 >"), "1 2 5 6")
      << "an inner list may hang on an outer variable";
  EXPECT_EQ(lu("< < -1 +2 > I = 1 2 >"), "-1 2 -1 2");
  EXPECT_EQ(lu("< < ('P' + I) > I = 1 A 2 >"), "P1 P2") << "computed names";
  EXPECT_EQ(lu("< I = 99 >\n< < (I) > I = 1 A 2 > (I)"), "1 2 99")
      << "the list's variable hides the global one";
  EXPECT_EQ(lu("< K = 5 >\n< < (I + K) > I = 1 A 2 >"), "6 7");
  EXPECT_EQ(lu("< < < (I) > I = 1 > I = 2 >"), "1") << "of two that have one name the inner one";
}

TEST(ListeDirigee, LesFinsDePhraseDuMotifSortent) {
  EXPECT_EQ(liste("< < EFFO (I)\n> I = 1 A 3 >\nFIN"), "EFFO 1\nEFFO 2\nEFFO 3\nFIN");
  EXPECT_EQ(liste("< < EFFO (I) ; > I = 1 A 2\n\n>\nFIN"), "EFFO 1 ;\nEFFO 2 ;\nFIN");
  EXPECT_EQ(liste("< <\nEFFO (I +\n1) FIN\n>\nI =\n1\nA 3 >\nFIN"), "EFFO 2 FIN\nEFFO 3 FIN\nEFFO 4 FIN\nFIN")
      << "above the pattern line ends don't count";
  EXPECT_EQ(lu("< <\n> I = 1 2 > X"), "X") << "a pattern of line ends alone";
  EXPECT_EQ(lu("< < ; > I = 1 > X"), "X");
}

TEST(ListeDirigee, Compteurs) {
  EXPECT_EQ(lu("< < (CPTR('I')) > I = 10 20 30 >"), "1 2 3");
  EXPECT_EQ(lu("< < < (CPTR('i'), CPTR(\"J\")) > I = 5 6 > J = 7 8 >"), "1 1 2 1 3 2 4 2")
      << "an outer turn doesn't clear them";
  EXPECT_EQ(lu("< < (CPTR('I')) > I = 10 20 >\n< < (CPTR('I')) > I = 10 20 >"), "1 2 1 2")
      << "a new list does";
  EXPECT_EQ(lu("< < (CPTR('K')) > I = 10 20 >"), arguments("CPTR"));
  EXPECT_EQ(lu("< < (CPTR('DIX_SEPT_LETTRESX')) > I = 10 20 >"), arguments("CPTR"));
  EXPECT_EQ(lu("< < (SEIZE_CARACTERES, CPTR('seize_caracteres')) > SEIZE_CARACTERES = 7 8 >"), "7 1 8 2");
  EXPECT_EQ(lu("< < (CPTR('SEIZE_CARACTERESX')) > SEIZE_CARACTERES = 7 8 >"), arguments("CPTR"))
      << "a name that is too long is no other one cut short";
}

namespace {

/// n levels of one value each; the pattern gives the sum of all variables.
std::string loc_imbriquee(int n, const std::string& valeurs) {
  std::string donnees = fois(n + 1, "< ") + "(";
  for (int i = 1; i <= n; ++i) donnees += (i > 1 ? " + V" : "V") + std::to_string(i);
  donnees += ")\n";
  for (int i = 1; i <= n; ++i) donnees += "> V" + std::to_string(i) + " = " + valeurs + "\n";
  return donnees + ">\n";
}

}  // namespace

TEST(ListeDirigee, NeufNiveaux) {
  const auto neuf = loc_termes(loc_imbriquee(9, "0 1"));
  ASSERT_EQ(neuf.size(), 512U);
  int somme = 0;
  for (const std::string& t : neuf) somme += std::stoi(t);
  EXPECT_EQ(somme, 9 * 256);
  EXPECT_EQ(neuf.back(), "9");
  EXPECT_EQ(lu(loc_imbriquee(10, "0 1")), "! LISTE_DIRIGEE : NOMBRE MAXI NIVEAUX DEPASSE");
  EXPECT_EQ(lu(fois(90, "<") + "\n"), "! LISTE_DIRIGEE : NOMBRE MAXI NIVEAUX DEPASSE");
}

TEST(ListeDirigee, FautesDAcquisition) {
  for (const std::string donnees : {"< A = 3 >",
                                    "< (I) > I = 1 A 3 >",
                                    "< 5 >",
                                    "< > I = 1 >",
                                    "<",
                                    "< <",
                                    "< < > I = 1 >",
                                    "< < 1 > = 1 >",
                                    "< < 1 > 2 = 1 >",
                                    "< < 1 > I 1 >",
                                    "< < 1 > I = >",
                                    "< < 1 > I = = 1 >",
                                    "< < 1 > DIX_SEPT_LETTRESX = 1 >",
                                    "< < 1 > I = 1",
                                    "< < 1 > I =",
                                    "< < 1 > I",
                                    "< < 1 >",
                                    "< < 1",
                                    "< < 1 = 2 > I = 1 >",
                                    "< < 1 < 2 > I = 1 >",
                                    "< < 1 > I = 1 < >",
                                    "< 'x' >",
                                    "< ;",
                                    "< < 1 > + = 1 >",
                                    "< < 1 > 7 >",
                                    "< < 1 > 'I' >",
                                    "< < 1 > I >",
                                    "< < 1 > I 7 >",
                                    "< < 1 > I I = 1 >",
                                    "< < 1 > I = 1 = 2 >",
                                    "< < 1 > > I = 1 >",
                                    "< < 1 < 2 > I = 1 > J = 2 >",
                                    "< < 1 > I = 1 < > J = 2 >",
                                    "< < 1 > < I = 1 > J = 2 >"})
    EXPECT_EQ(lu(donnees), dirigee) << donnees;
}

TEST(ListeDirigee, FautesDEvaluation) {
  EXPECT_EQ(lu("< < (I) > I = 1 X >"), "1 ! TERME INCORRECT DANS LISTE NUMERIQUE");
  EXPECT_EQ(lu("< < (I) > I = 'x' >"), "! TERME INCORRECT DANS LISTE NUMERIQUE");
  EXPECT_EQ(lu("< < (I / 0) > I = 1 >"), sans_resultat);
  EXPECT_EQ(lu("< < (K) > I = 1 >"), "!K : VARIABLE INCORRECTE DANS EXPRESSION");
  EXPECT_EQ(lu("< < (I) > I = (I) >"), "!I : VARIABLE INCORRECTE DANS EXPRESSION") << "it has no value yet";
  EXPECT_EQ(lu("< < < (I) > I = 1 > J = (I) >"), "!I : VARIABLE INCORRECTE DANS EXPRESSION")
      << "nor has an inner one";
  EXPECT_EQ(lu("< < (I) > I = 1 REP 2 >"), precedence_liste);
  EXPECT_EQ(lu("< < 3 * 'x' > I = 1 >"), precedence_liste);
}

// All that a fault tells: itself, the level, the variables that were running above.
TEST(ListeDirigee, LeNiveauEtLesVariablesSuiventLaFaute) {
  const auto messages = [](const std::string& donnees) {
    const lecteur l(donnees);
    and_analyse_unite_syntaxique();
    std::vector<std::string> resultat;
    for (and_lecture(3, 1, 1); and_global.and_type_terme != type_terme::fin_file; and_lecture(3, 1, 1))
      if (and_classe(and_global.and_type_terme) == 4)
        resultat.emplace_back(socle::sans_blancs_finals(and_texte(and_global)));
    EXPECT_EQ(and_nb_termes(1, 2), 0) << "the values of the variables are gone";
    EXPECT_EQ(and_global.and_nb_niveaux, 1);
    return resultat;
  };
  EXPECT_THAT(messages("< < < (I / 0) > I = 1 A 3 > J = -2.5 >"),
              ElementsAre(" SYNTAXE EXPRESSION INCORRECTE",
                          " ERREUR DURANT EVALUATION LISTE DIRIGEE - NIVEAU :     1",
                          "VARIABLE I                = 1", "VARIABLE J                = -2.5000"));
  EXPECT_THAT(messages("< < < (I) > I = 1 X > J = 7 >"),
              ElementsAre(" TERME INCORRECT DANS LISTE NUMERIQUE",
                          " ERREUR DURANT EVALUATION LISTE DIRIGEE - NIVEAU :     2",
                          "VARIABLE J                = 7"));
  EXPECT_THAT(messages("< < < (I) > I = 1 > J = 7 (1 / 0) >"),
              ElementsAre(" SYNTAXE EXPRESSION INCORRECTE",
                          " ERREUR DURANT EVALUATION LISTE DIRIGEE - NIVEAU :     3"));
}

TEST(ListeDirigee, LaPositionDeLaFauteEstGardee) {
  const lecteur l("< < < (I) > I = 1 X > J = 7 >");
  and_analyse_unite_syntaxique();
  EXPECT_EQ(and_global.and_niveau_erreur, 2);
  EXPECT_EQ(and_global.and_position_erreur, 3);
}

// ---- capacities

TEST(Capacites, OperateursEtOperandes) {
  EXPECT_EQ(loc_termes(en_lignes("(" + fois(99, "1, ") + "1 )")).size(), 100U);
  EXPECT_EQ(lu(en_lignes("(" + fois(100, "1, ") + "1 )")), operateurs) << "the commas wait on the stack";
  EXPECT_EQ(lu(en_lignes(fois(100, "( ") + "7" + fois(100, " )"))), "7");
  EXPECT_EQ(lu(en_lignes(fois(101, "( ") + "7" + fois(101, " )"))), operateurs);
  EXPECT_EQ(lu(en_lignes("(" + fois(99, "ABS( ") + "7" + fois(100, " )"))), "7");
  EXPECT_EQ(lu(en_lignes("(" + fois(99, "DBLE( ") + "7" + fois(100, " )"))), operandes)
      << "the names wait among the operands, five characters each";
  EXPECT_EQ(lu(en_lignes("( 0" + fois(60, " + ABS( 1.25 ") + fois(61, " )"))), operandes);
  EXPECT_EQ(lu(en_lignes("(" + fois(60, "123456, ") + "1 )")), operandes) << "400 characters";
  EXPECT_EQ(lu(en_lignes("( 1" + fois(2000, " + 1") + " )")), "2001") << "what is done takes no place";
  EXPECT_EQ(lu("(MAX(1" + fois(30, ", 1") + "))"), arguments("MAX"));
}

TEST(Capacites, UneExpressionSansFin) {
  const std::string faute = "! DEPASSEMENT CAPACITE  DANS PREFILE SORTIE";
  EXPECT_EQ(lu(en_lignes("( 1" + fois(2600, " + 1") + " )")), faute) << "5000 terms";
  EXPECT_EQ(lu(en_lignes("( 1" + fois(2400, " + 12345.6789") + " )")), faute) << "20000 characters";
  EXPECT_EQ(lu("(" + fois(6000, "\n")), faute);
}

TEST(Capacites, FilesDUneListeDirigee) {
  EXPECT_EQ(lu(en_lignes("< < " + fois(5001, "X ") + "> I = 1 >")),
            "! DEPASSEMENT CAPACITE  DANS PREFILE SORTIE");
  EXPECT_EQ(lu(en_lignes("< < (I) > I = " + fois(501, "1 ") + ">")),
            "! DEPASSEMENT CAPACITE  DANS PREFILE      2");
  EXPECT_EQ(lu(en_lignes("< < < (I) > I = 1 > J = " + fois(501, "1 ") + ">")),
            "! DEPASSEMENT CAPACITE  DANS PREFILE      3");
  EXPECT_EQ(loc_termes(en_lignes("< < (I) > I = " + fois(499, "1 ") + ">")).size(), 499U);
}

// FILE 1 holds 50000 terms and 200000 characters; the fault takes the place of the last ones.
TEST(Capacites, UneListeDirigeeQuiEcritTrop) {
  const std::string faute = "! ERREUR DANS ANALYSE LISTE TERMES ( TERME ,  INCREMENTATEUR OU  REPETITEUR)";
  EXPECT_EQ(loc_termes("< < (I)\n> I = 1 A 25000 >").size(), 25000U);
  for (const std::string donnees :
       {"< < (I)\n> I = 1 A 25001 >", "< < (I)\n> I = 1 A 100000 >",
        "< < < (I)\n> I = 1 A 100000 > J = 1 A 100000 >",
        "< < UN_NOM_DE_TRENTE_CARACTERES_OK\n> I = 1 A 50000 >", "< < (1, 2, 3)\n> I = 1 A 50000 >",
        "< < 1 A 3\n> I = 1 A 50000 >", "< < 2 * 3\n> I = 1 A 50000 >", "< < X ;> I = 1 A 50000 >"}) {
    const auto termes = loc_termes(donnees);
    EXPECT_EQ(termes.back(), faute) << donnees;
    EXPECT_GT(termes.size(), 6000U) << "what stood in front is served: " << donnees;
  }
}

TEST(Capacites, CentMilleTermesDUnePhrase) {
  const std::string faute = "! DEPASSEMENT CAPACITE  DANS LISTE SORTIE";
  EXPECT_EQ(loc_termes("99998 * 1 X").size(), 99999U);
  EXPECT_EQ(lu("99999 * 1 X"), faute);
  EXPECT_EQ(lu("60000 * 1 60000 * 2"), faute);
  EXPECT_EQ(lu("99999 * 12.5"), faute) << "400000 characters";
}

// ---- listing and messages

TEST(ListingDuLangage, TexteDesValeurs) {
  EXPECT_EQ(liste("2 * 007 1E3 A 1002. (.5) (0.5 + 0)"), "007 007 1E3 1001.000 1002. .5 0.5000");
  EXPECT_EQ(liste("< X = 1E3 >\n(X) (X * 1)"), "1E3 1000.000") << "a variable keeps what was typed";
  EXPECT_EQ(liste("0. A 1. INC .5 ; 00 REP 2 INC 05"), "0. 0.5000 1. ;\n00 5 10");
  EXPECT_EQ(liste("0.D0 A 1.D0 DIV 2"), "0.D0 0.5000D+00 1.D0");
  EXPECT_EQ(liste("(1.D0 / 3.D0) (2 ** 31) (1. / 3.)"), "0.33333333333333D+00 -2147483648 0.3333333");
}

TEST(MessagesDuLangage, LaSourceDeLUniteJusquALaFaute) {
  const lecteur l("EFFO 1. (2 +\n X * 3) N\nAPRES\n");
  EXPECT_EQ(loc_joindre(loc_termes(l)), "EFFO 1s !X : VARIABLE INCORRECTE DANS EXPRESSION");
  EXPECT_EQ(l.console(),
            "\n ===> ERREUR DANS  UNITE SYNTAXIQUE COURANTE : \n\n"
            " ANALYSE> EFFO 1.\n"
            " ANALYSE> ( 2 +\n"
            " ANALYSE> X *\n"
            " MESSAGE> X : VARIABLE INCORRECTE DANS EXPRESSION\n");
  EXPECT_EQ(l.listing(), "EFFO 1.\n");
}

// A bracket too many: the pattern that was read so far is shown.
TEST(MessagesDuLangage, LeMotifDUneListeDirigeeFautive) {
  const lecteur l("< < X 1 < 2 > I = 1 > J = 2 >");
  EXPECT_EQ(loc_joindre(loc_termes(l)), dirigee);
  EXPECT_EQ(l.console(),
            "\n ===> ERREUR DANS  UNITE SYNTAXIQUE COURANTE : \n\n"
            " ANALYSE> X 1 <\n"
            " MESSAGE>  LISTE DIRIGEE : DERNIER TERME LU INCORRECT\n");
}

TEST(MessagesDuLangage, LeMotDEnSuiteNAppartientPasALUnite) {
  const lecteur l("3.0 * 1.5 SUITE");
  EXPECT_EQ(loc_joindre(loc_termes(l)), repetiteur);
  EXPECT_THAT(l.console(), HasSubstr(" ANALYSE> 3.0 * 1.5\n MESSAGE>"));
}

// ---- abuse

// Cut anywhere, the data come to an end: by an error or by the end of the file.
TEST(Abus, CoupeAChaqueOctet) {
  const std::string donnees =
      "ZOF < X = (2.5 + 1) >\n1 A 4 ; 0. A 1. INC .25 ; 0 A 10 DIV 5 ; 0 REP 3 INC 2 ; 3 * -1.5\n"
      "(1, SIN(1.), MAX(X, 2.D0) ** 2, ('a' + 12 + \"b\"))\n(XCLOT(50., 200., 30.))\n"
      "< < < < EFFO (10 * I + J) ('P' + K)\n1 A (I)\n> I = 1 A 3 > J = (K) (K + 1)\n > K = 1 2 REP 1 INC 2 "
      ">\nFIN_\n";
  ASSERT_THAT(lu(donnees), EndsWith("FIN_"));
  for (std::size_t n = 0; n <= donnees.size(); ++n) {
    const lecteur l(donnees.substr(0, n));
    const auto termes = loc_termes(l);
    EXPECT_LE(termes.size(), 400U) << n;
    EXPECT_TRUE(l.console().empty() || termes.back()[0] == '!') << n;
  }
}

// Any sequence of the language's own words.
TEST(Abus, SuitesQuelconquesDeMots) {
  const std::vector<std::string> mots = {
      "<",    ">",      "=",    "(",  ")", "A",     "REP", "INC",  "DIV",           "*",      "+",
      "-",    "/",      "**",   ",",  "1", "2",     "1.5", "2.D0", "'a'",           "X",      "SIN",
      "MAX",  "I",      "CPTR", "\n", ";", "12.5.", "(I)", "< <",  "> I = 1 A 3 >", "100000", "-2147483647",
      "1E25", "1.D286", "XCLOT"};
  unsigned etat = 4711;
  const auto hasard = [&etat](std::size_t n) {
    etat = etat * 1664525U + 1013904223U;
    return static_cast<std::size_t>(etat >> 8U) % n;
  };
  for (int essai = 0; essai < 20000; ++essai) {
    std::string donnees;
    for (std::size_t i = hasard(30); i > 0; --i) donnees += mots[hasard(mots.size())] + " ";
    const lecteur l(donnees);
    int lus = 0;
    while (and_global.and_type_terme != type_terme::fin_fichier && lus < 200000) {
      bool erco = false;
      and_lire_terme(erco);
      ++lus;
    }
    EXPECT_LT(lus, 200000) << donnees;
  }
}
