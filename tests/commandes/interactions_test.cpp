// The INTE command and the INTE option of JUST on whole data files: curves against closed forms, titles,
// names of files, tables, drawings, refusals.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "Donnees_Sections.hpp"
#include "Executer.hpp"
#include "Litteral.hpp"
#include "QB7_Types.hpp"

using namespace socle;
using donnees::prisme;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

std::string soll_prisme(const std::string& repere = "GEOM") {
  return "SOLL T SECT PRISME TITR 't' REPE " + repere +
         " ETAT ELS CARA SITU EXPL SERV POND EFFO GQ N 1. FIN_EFFO FIN_ETAT\n"
         "ETAT ELU DURA SITU CONS POND EFFO GQ N 1. FIN_EFFO FIN_ETAT FIN_SOLL\n";
}

struct tableau_de_valeurs {
  std::string legende;
  std::vector<std::string> entete;
  std::vector<point_xy> points;
};

/// The tables of values of a text note, in their order.
std::vector<tableau_de_valeurs> tableaux(const std::string& txt) {
  std::vector<tableau_de_valeurs> lus;
  for (std::size_t ici = txt.find("Tableau des valeurs\n"); ici != std::string::npos;
       ici = txt.find("Tableau des valeurs\n", ici + 1)) {
    std::istringstream flux(txt.substr(ici));
    std::string ligne;
    for (int i = 0; i < 3; ++i) std::getline(flux, ligne);  // title, its rule, an empty line
    tableau_de_valeurs t;
    std::getline(flux, t.legende);
    std::getline(flux, ligne);
    std::getline(flux, ligne);
    std::istringstream entete(ligne);
    for (std::string mot; entete >> mot;) t.entete.push_back(mot);
    std::getline(flux, ligne);
    while (std::getline(flux, ligne)) {
      std::istringstream cellules(ligne);
      point_xy p;
      if (!(cellules >> p.x >> p.y)) break;
      t.points.push_back(p);
    }
    lus.push_back(t);
  }
  return lus;
}

course tracer(const std::string& mots) { return executer(prisme + mots + "\nFIN_\n"); }

/// The only table of a command that draws.
tableau_de_valeurs valeurs(const std::string& mots) {
  const course c = tracer(mots);
  EXPECT_EQ(c.statut, 0) << c.listing;
  const auto lus = tableaux(c.txt);
  EXPECT_EQ(lus.size(), 1U);
  return lus.empty() ? tableau_de_valeurs{} : lus.front();
}

double plus_grand_x(const tableau_de_valeurs& t) { return std::ranges::max(t.points, {}, &point_xy::x).x; }
double plus_grand_y(const tableau_de_valeurs& t) { return std::ranges::max(t.points, {}, &point_xy::y).y; }

}  // namespace

// ---- The command

// N over My under Mz = 0, persistent ultimate state, in service. Parabola-rectangle over a depth x: a block
// of 17/21 x with its resultant at 99/238 x; the moment is largest at x = 0.3 * 238 / 198.
TEST(Interaction, SansMotClefLesDefauts) {
  const course c = tracer("INTE D SECT PRISME FIN_INTE");
  EXPECT_EQ(c.statut, 0) << c.listing;
  const std::string titre = "PRISME:N/My-EXPLOITATION_SERVICE-ELU_DURABLE-Mz=0.0000";
  EXPECT_THAT(c.txt, HasSubstr("1.0.1. " + titre + "\n"));
  EXPECT_THAT(c.txt, HasSubstr("1.0.1.1. Diagramme d'interaction\n"));
  EXPECT_THAT(
      c.txt,
      HasSubstr("  - Attention : Si beton precontraint, les cables de precontrainte ne sont pas pris en "
                "compte ni du point de vue de leur tension ni du point de vue de leur resistance.\n"
                "  - Pour que celles-ci soient prises en compte il faut que le diagramme soit demande dans "
                "la cadre d une JUSTIFICATION.\n"));
  EXPECT_THAT(c.txt, HasSubstr("1.0.1.2. Tableau des valeurs\n"));
  EXPECT_THAT(c.txt, Not(HasSubstr("ERREUR PROGRAMMATION")));

  const auto lus = tableaux(c.txt);
  ASSERT_EQ(lus.size(), 1U);
  EXPECT_EQ(lus[0].legende, titre);
  EXPECT_EQ(lus[0].entete, (std::vector<std::string>{"My", "N"}));
  ASSERT_EQ(lus[0].points.size(), 100U);
  const double x = 0.3 * 238 / 198;
  const double m = 17.0 / 21 * 0.3 * x * 20 * (0.3 - 99.0 / 238 * x);
  EXPECT_NEAR(plus_grand_x(lus[0]), m, 0.003 * m);
  EXPECT_NEAR(plus_grand_y(lus[0]), 3.6, 0.003 * 3.6);

  const std::string nom = "PRISME_Interaction_D_N_My_EXPLOITATION_SERVICE_ELU_DURABLE_Mz_0_1.svg";
  ASSERT_EQ(c.svg.size(), 1U);
  EXPECT_EQ(c.svg.begin()->first, nom);
  EXPECT_THAT(c.html, HasSubstr("Svg_etude/" + nom));
  EXPECT_EQ(c.premier_echec, "");
}

// The drawing: the curve of the table, closed, under axes of these names and with the title as its legend.
TEST(Interaction, LeDessinEstFerme) {
  const course c = tracer("INTE D SECT PRISME FIXE MY 0. TITR 'Prisme <seul>' FIN_INTE");
  ASSERT_EQ(c.svg.size(), 1U) << c.listing;
  const std::string& svg = c.svg.begin()->second;
  EXPECT_THAT(svg, HasSubstr(">N</text>"));
  EXPECT_THAT(svg, HasSubstr(">Mz</text>"));
  EXPECT_THAT(svg, HasSubstr(">Prisme &#60;seul&#62;</text>"));
  const std::size_t debut = svg.find(" d='M");
  const std::size_t debut_2 = svg.find(" d=\"M");
  const std::size_t chemin = std::min(debut, debut_2) + 5;
  ASSERT_LT(chemin, svg.size());
  std::string points = svg.substr(chemin, svg.find_first_of("'\"", chemin) - chemin);
  EXPECT_EQ(std::ranges::count(points, 'L'), 100);
  std::ranges::replace(points, 'L', ' ');
  std::ranges::replace(points, ',', ' ');
  std::istringstream flux(points);
  std::vector<double> lus;
  for (double v = 0; flux >> v;) lus.push_back(v);
  ASSERT_EQ(lus.size(), 202U);
  EXPECT_EQ(lus[0], lus[200]);
  EXPECT_EQ(lus[1], lus[201]);
}

// At the characteristic state concrete is linear up to 18 MPa: a triangle of depth 0.45 gives the largest
// moment, 1.215 x 0.15.
TEST(Interaction, EtatLimiteEtSituation) {
  const tableau_de_valeurs t = valeurs("INTE D SECT PRISME SITU EXPL SERV ETAT ELS CARA FIN_INTE");
  EXPECT_EQ(t.legende, "PRISME:N/My-EXPLOITATION_SERVICE-ELS_CAR-Mz=0.0000");
  EXPECT_NEAR(plus_grand_x(t), 0.18225, 0.003 * 0.18225);
  EXPECT_NEAR(plus_grand_y(t), 3.24, 0.003 * 3.24);
}

// The width and the height change places.
TEST(Interaction, LaComposanteFixeeDonneLesAxes) {
  const double x = 0.15 * 238 / 198;
  const double mz = 17.0 / 21 * 0.6 * x * 20 * (0.15 - 99.0 / 238 * x);
  const tableau_de_valeurs my = valeurs("INTE D SECT PRISME FIXE MY 0. FIN_INTE");
  EXPECT_EQ(my.legende, "PRISME:N/Mz-EXPLOITATION_SERVICE-ELU_DURABLE-My=0.0000");
  EXPECT_EQ(my.entete, (std::vector<std::string>{"Mz", "N"}));
  EXPECT_NEAR(plus_grand_x(my), mz, 0.004 * mz);
  EXPECT_NEAR(plus_grand_y(my), 3.6, 0.003 * 3.6);

  // N = 1.2: a block over x = 1.2 / (17/21 * 0.3 * 20) bends about y; over twice as wide a one about z.
  const tableau_de_valeurs n = valeurs("INTE D SECT PRISME FIXE N 1.2D0 FIN_INTE");
  EXPECT_EQ(n.legende, "PRISME:Mz/My-EXPLOITATION_SERVICE-ELU_DURABLE-N=1.2000");
  EXPECT_EQ(n.entete, (std::vector<std::string>{"My", "Mz"}));
  const double x_n = 1.2 / (17.0 / 21 * 6);
  const double my_n = 1.2 * (0.3 - 99.0 / 238 * x_n);
  EXPECT_NEAR(plus_grand_x(n), my_n, 0.004 * my_n);
  EXPECT_NEAR(plus_grand_y(n), my_n / 2, 0.004 * my_n / 2);
}

TEST(Interaction, LeNomDuFichierALaValeurArrondie) {
  for (const auto& [valeur, arrondie] :
       std::vector<std::pair<std::string, std::string>>{{"1.5D0", "2"}, {"1.2D0", "1"}, {"0.4D0", "0"}}) {
    const course c = tracer("INTE D SECT PRISME FIXE N " + valeur + " FIN_INTE");
    ASSERT_EQ(c.svg.size(), 1U) << c.listing;
    EXPECT_EQ(c.svg.begin()->first,
              "PRISME_Interaction_D_Mz_My_EXPLOITATION_SERVICE_ELU_DURABLE_N_" + arrondie + "_1.svg");
  }
}

// A name fills its line, and a file system takes 255 characters: the file loses the middle of its name.
TEST(Interaction, UnNomTresLong) {
  const std::string nom(190, 'D');
  const course c = tracer("INTE\n" + nom + "\nSECT PRISME FIN_INTE");
  EXPECT_EQ(c.statut, 0) << c.listing;
  ASSERT_EQ(c.svg.size(), 1U);
  const std::string fichier = c.svg.begin()->first;
  EXPECT_EQ(fichier.size(), 240U);
  EXPECT_TRUE(fichier.starts_with("PRISME_Interaction_DDD"));
  EXPECT_TRUE(fichier.ends_with("_ELU_DURABLE_Mz_0_1.svg"));
  EXPECT_THAT(c.html, HasSubstr("Svg_etude/" + fichier));
}

// A name that is a computed text may hold anything: what separates directories does not reach the file
// system.
TEST(Interaction, UnNomQuiVeutSortirDuRepertoire) {
  for (const auto& [nom, attendu] :
       std::vector<std::pair<std::string, std::string>>{{"('../../' + 'etc/x')", ".._.._ETC_X"},
                                                        {"('/tmp/' + 'a b')", "_TMP_A B"},
                                                        {"('..' + '\\n')", ".._N"}}) {
    const course c = tracer("INTE " + nom + " SECT PRISME FIN_INTE");
    EXPECT_EQ(c.statut, 0) << nom;
    ASSERT_EQ(c.svg.size(), 1U) << nom;
    EXPECT_TRUE(c.svg.begin()->first.starts_with("PRISME_Interaction_")) << c.svg.begin()->first;
    EXPECT_EQ(c.svg.begin()->first.find('/'), std::string::npos);
    EXPECT_THAT(c.svg.begin()->first, HasSubstr(attendu));
    for (const auto& [fichier, contenu] : c.fichiers)
      EXPECT_TRUE(fichier.starts_with("etude.") || fichier.starts_with("Svg_etude/")) << fichier;
  }
}

TEST(Interaction, UnTitreDuFichierDeDonnees) {
  const course c = tracer("INTE D SECT PRISME TITR 'Courbe du prisme' FIN_INTE");
  EXPECT_THAT(c.txt, HasSubstr("1.0.1. Courbe du prisme\n"));
  ASSERT_EQ(tableaux(c.txt).size(), 1U);
  EXPECT_EQ(tableaux(c.txt)[0].legende, "Courbe du prisme");
}

// A built title is cut at 80 characters.
TEST(Interaction, UnTitreTropLongEstCoupe) {
  std::string donnees = prisme;
  const std::string nom = "PRISME_DE_TRENTE_PAR_SOIXANTE";
  donnees.replace(donnees.find("SECT PRISME"), 11, "SECT " + nom);
  const course c = executer(donnees + "INTE D SECT " + nom + " SITU INFI FIN_INTE\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.txt, HasSubstr("1.0.1. " + nom + ":N/My-EXPLOITATION_INFINIE-ELU_DURABLE-Mz=0.0000\n"));
  const course d =
      executer(donnees + "INTE D SECT " + nom + " SITU INFI FIXE MY -0.1234567D-2 FIN_INTE\nFIN_\n");
  EXPECT_THAT(
      d.txt,
      HasSubstr("1.0.1. " + (nom + ":N/Mz-EXPLOITATION_INFINIE-ELU_DURABLE-My=-0.12346E-02").substr(0, 80) +
                "\n"));
}

// The frame is that of the gross centroid, wherever the section was drawn: the prism 10 m aside has the same
// curve.
TEST(Interaction, LeRepereEstAuCentreDeGravite) {
  std::string loin = prisme;
  for (const auto& [ici, la] : std::vector<std::pair<std::string, std::string>>{{"Z -0.3D0", "Z 9.7D0"},
                                                                                {"Z 0.3D0", "Z 10.3D0"},
                                                                                {"Z -0.3D0", "Z 9.7D0"},
                                                                                {"Z 0.3D0", "Z 10.3D0"}})
    loin.replace(loin.find(ici), ici.size(), la);
  const course c = executer(loin + "INTE D SECT PRISME FIN_INTE\nFIN_\n");
  const auto lus = tableaux(c.txt);
  ASSERT_EQ(lus.size(), 1U) << c.listing;
  const tableau_de_valeurs ici = valeurs("INTE D SECT PRISME FIN_INTE");
  for (std::size_t i = 0; i < 100; ++i) {
    EXPECT_NEAR(lus[0].points[i].x, ici.points[i].x, 0.002 * 0.5);
    EXPECT_NEAR(lus[0].points[i].y, ici.points[i].y, 0.002 * 3.6);
  }
}

// Without its limit linear concrete carries any compression: the curve has no end. The notes are closed.
TEST(Interaction, UnDiagrammeVideEstUneErreur) {
  for (const std::string mots : {"DEFO NON_ ETAT ELS CARA", "FIXE N 4.", "FIXE N -1.", "FIXE MZ 1."}) {
    const course c = tracer("INTE D SECT PRISME " + mots + " FIN_INTE");
    EXPECT_EQ(c.statut, 1) << mots;
    EXPECT_THAT(c.console, HasSubstr("Erreur de commande : \n     - Diagramme d'interactions vide\n"));
    EXPECT_THAT(c.listing, HasSubstr("     - Diagramme d'interactions vide\n"));
    EXPECT_THAT(c.html, HasSubstr("</html>"));
    EXPECT_TRUE(c.svg.empty());
    EXPECT_THAT(c.txt, Not(HasSubstr("Tableau des valeurs")));
  }
}

// What no section carries: an empty diagram, up to the end of the numbers. (A literal has an exponent of two
// digits at most, a larger number is a computed one.)
TEST(Interaction, DesValeursDemesurees) {
  for (const std::string valeur : {"1.D99", "-1.D99", "( 1.D30 ** 10 )", "( 1.1D77 ** 4 )"}) {
    for (const std::string composante : {"N", "MY", "MZ"}) {
      const std::string fixe = "FIXE " + composante + " " + valeur;
      const course c = tracer("INTE D SECT PRISME " + fixe + " FIN_INTE");
      EXPECT_EQ(c.statut, 1) << fixe;
      EXPECT_THAT(c.listing, HasSubstr("     - Diagramme d'interactions vide\n")) << fixe;
    }
  }
  EXPECT_EQ(tracer("INTE D SECT PRISME FIXE MZ 1.D-30 FIN_INTE").statut, 0);
  const course c =
      executer(prisme + soll_prisme() + "JUST PRISME INTE FIXE N ( 1.D30 ** 10 ) SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.txt, HasSubstr("  - - Diagramme d'interactions vide : aucun affichage\n"));
}

// With the limits the persistent curve ends at 3.5 per mille; without, the concrete yields on, in a
// rectangle: at N = 1.2 it is 1.2 / 6 m deep.
TEST(Interaction, SansBornes) {
  const tableau_de_valeurs avec = valeurs("INTE D SECT PRISME DEFO BORNEES FIXE N 1.2D0 FIN_INTE");
  const tableau_de_valeurs sans = valeurs("INTE D SECT PRISME DEFO NON_BORNEES FIXE N 1.2D0 FIN_INTE");
  EXPECT_NEAR(plus_grand_x(sans), 1.2 * (0.3 - 0.1), 0.004 * 0.24);
  EXPECT_LT(plus_grand_x(avec), 0.237);
}

// Tendons bear nothing, in tension or by their strength: what is left is concrete, 0.70 m2 less their 45 cm2.
TEST(Interaction, LesCablesNeComptentPas) {
  const auto lus = tableaux(executer(donnees::precontraint + "INTE D SECT PONT FIN_INTE\nFIN_\n").txt);
  ASSERT_EQ(lus.size(), 1U);
  const double fcd = 40 / 1.5;
  EXPECT_NEAR(plus_grand_y(lus[0]), (0.7 - 45e-4) * fcd, 0.005 * 0.7 * fcd);
  EXPECT_GT(std::ranges::min(lus[0].points, {}, &point_xy::y).y, -0.002 * 0.7 * fcd);
}

// A frame alone, of flanges 300 x 20 and a web 12 mm thick, 0.60 m between the flanges: the plastic moment
// and the yield force, to which hardening up to the limit adds one per cent. Without the limit it hardens on
// and on.
TEST(Interaction, UnProfileSeul) {
  const std::string profile =
      "ZOF\nMATE CHAR S355 TITR 'Acier' FY 355. FU 510. FIN_MATE\nSECT H TITR 'Profile' CHAR P MATE S355\n"
      "POIN NUME 1 Y -0.15D0 Z -0.3D0 FIN_ NUME 2 Y 0.15D0 Z -0.3D0 FIN_ NUME 3 Y 0. Z -0.3D0 FIN_\n"
      "NUME 4 Y 0. Z 0.3D0 FIN_ NUME 5 Y -0.15D0 Z 0.3D0 FIN_ NUME 6 Y 0.15D0 Z 0.3D0 FIN_ FIN_POIN\n"
      "PROF NUME 1 ORIG 1 EXTR 2 EPAI 20. FIN_ NUME 2 ORIG 3 EXTR 4 EPAI 12. FIN_\n"
      "NUME 3 ORIG 5 EXTR 6 EPAI 20. FIN_ FIN_PROF FIN_CHAR FIN_SECT\n";
  const course c = executer(profile + "INTE D SECT H FIN_INTE\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  const auto lus = tableaux(c.txt);
  ASSERT_EQ(lus.size(), 1U);
  const double n = 355 * (2 * 0.3 * 0.02 + 0.6 * 0.012);
  const double m = 355 * (0.3 * 0.02 * 0.6 + 0.012 * 0.6 * 0.6 / 4);
  EXPECT_NEAR(plus_grand_x(lus[0]), 1.005 * m, 0.008 * m);
  EXPECT_NEAR(plus_grand_y(lus[0]), 1.005 * n, 0.008 * n);
  EXPECT_NEAR(std::ranges::min(lus[0].points, {}, &point_xy::y).y, -1.005 * n, 0.008 * n);

  const course sans = executer(profile + "INTE D SECT H DEFO NON_ FIN_INTE\nFIN_\n");
  EXPECT_EQ(sans.statut, 1);
  EXPECT_THAT(sans.listing, HasSubstr("     - Diagramme d'interactions vide\n"));
}

// Without bars nor concrete there is no gross section whose axes could be the frame.
TEST(Interaction, DesCablesSeulsNOntPasDeRepere) {
  const course c = executer(
      "ZOF\nMATE PREC T15 TITR 'Torons' FP01 1600. FPK 1860. FIN_MATE\nSECT S TITR 'Cables' PREC C1 TITR "
      "'c'\n"
      "MATE T15 AIRE 1500. POIN NUME 1 Y -0.1D0 Z -0.4D0 FIN_POIN NUME 2 Y 0.1D0 Z 0.4D0 FIN_POIN FIN_POIN\n"
      "FIN_PREC FIN_SECT\nINTE D SECT S FIN_INTE\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, HasSubstr(" Erreur dans Procedure :QB7_Caracteristiques_Mecaniques\n"
                                   " Erreur : ERR_E_SX_NUL\n"));
  EXPECT_TRUE(c.svg.empty());
}

// A limit state that the situation does not hold is an internal fault: the notes stay open.
TEST(Interaction, EtatLimiteAbsentDeLaSituation) {
  const course c = tracer("INTE D SECT PRISME SITU ACCI FIN_INTE");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console,
              HasSubstr("Interaction impossible - ACCIDENT-ELU_DURABLE: Non defini pour un des materiaux\n"));
  EXPECT_THAT(c.html, Not(HasSubstr("</html>")));
  EXPECT_EQ(tracer("INTE D SECT PRISME SITU ACCI ETAT ELU ACCI FIN_INTE").statut, 0);
}

// A free material has the situations that it was given, and no others: a situation that is asked for is
// refused where it is read, the situation by default where the limit state is missed.
TEST(Interaction, SituationAbsenteDeLaSection) {
  const std::string libre =
      "ZOF\nMATE SPEC LOI TITR 'Loi libre' SITU SEIS TITR 's' ELU DURA MAX 0.0015D0\n"
      "INTE EPSI -1. FIN_INTE INTE EPSI 0. A1 20000. FIN_INTE INTE EPSI 0.001D0 A0 20. FIN_INTE FIN_ "
      "FIN_SITU\n"
      "FIN_MATE SECT S TITR 's' CONT FUT TITR 'f' MATE LOI RECT HAUT 0.6D0 LARG 0.3D0 FIN_RECT FIN_CONT "
      "FIN_SECT\n";
  const course absente = executer(libre + "INTE D SECT S SITU EXPL SERV FIN_INTE\nFIN_\n");
  EXPECT_EQ(absente.statut, 1);
  EXPECT_THAT(absente.listing, HasSubstr("\nErreur de commande : \n     - Situation non definie : "
                                         "EXPLOITATION_SERVICE            \n"));
  EXPECT_THAT(absente.html, HasSubstr("</html>"));
  const course par_defaut = executer(libre + "INTE D SECT S FIN_INTE\nFIN_\n");
  EXPECT_EQ(par_defaut.statut, 1);
  EXPECT_THAT(par_defaut.console, HasSubstr("Interaction impossible - EXPLOITATION_SERVICE-ELU_DURABLE: Non "
                                            "defini pour un des materiaux\n"));

  const course c = executer(libre + "INTE D SECT S SITU SEIS FIN_INTE\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  const auto lus = tableaux(c.txt);
  ASSERT_EQ(lus.size(), 1U);
  EXPECT_EQ(lus[0].legende, "S:N/My-SEISME-ELU_DURABLE-Mz=0.0000");
  EXPECT_NEAR(plus_grand_y(lus[0]), 3.6, 0.003 * 3.6);
}

// ---- The option of JUST

TEST(InteractionDeJust, UnDiagrammeParEtatLimiteApresSesCas) {
  const course c = executer(prisme + soll_prisme() + "JUST PRISME SOLL T INTE SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  const auto lus = tableaux(c.txt);
  ASSERT_EQ(lus.size(), 2U);  // the first SOLL stands before the option
  EXPECT_EQ(lus[0].legende, "PRISME- Diagramme:N/My-EXPLOITATION_SERVICE-ELS_CAR-MZ=0.0000");
  EXPECT_EQ(lus[1].legende, "PRISME- Diagramme:N/My-CONSTRUCTION-ELU_DURABLE-MZ=0.0000");
  EXPECT_NEAR(plus_grand_y(lus[0]), 3.24, 0.003 * 3.24);
  EXPECT_NEAR(plus_grand_y(lus[1]), 3.6, 0.003 * 3.6);
  std::size_t ici = 0;
  for (const char* const titre :
       {"1.2. Justification de la section : PRISME sous T\n", "1.2.1.  Etat limite : ELS_CAR",
        "1.2.2. Efforts", "1.2.3. PRISME- Diagramme:N/My-EXPLOITATION_SERVICE-ELS_CAR-MZ=0.0000\n",
        "  - Attention : en repere non brut le diagramme est atypique.\n", "1.2.3.1. Tableau des valeurs\n",
        "1.2.4.  Etat limite : ELU_DURABLE", "1.2.5. Efforts",
        "1.2.6. PRISME- Diagramme:N/My-CONSTRUCTION-ELU_DURABLE-MZ=0.0000\n",
        "1.2.6.1. Tableau des valeurs\n"}) {
    ici = c.txt.find(titre, ici);
    ASSERT_NE(ici, std::string::npos) << titre;
  }
  ASSERT_EQ(c.svg.size(), 2U);
  EXPECT_TRUE(c.svg.contains("PRISME_Diagramme_N_My_EXPLOITATION_SERVICE_ELS_CAR_MZ_0_1.svg"));
  EXPECT_TRUE(c.svg.contains("PRISME_Diagramme_N_My_CONSTRUCTION_ELU_DURABLE_MZ_0_2.svg"));
  EXPECT_THAT(c.txt, Not(HasSubstr("gende diagramme")));
  EXPECT_THAT(c.txt, Not(HasSubstr("precontrainte isostatique")));
}

// Without FIXE the word behind the option is the next one; the plane of a command is not that of the next.
TEST(InteractionDeJust, Fixe) {
  const course c = executer(prisme + soll_prisme("BRUT") +
                            "JUST PRISME INTE FIXE N 1.2D0 SOLL T FIN_JUST\n"
                            "JUST PRISME INTE DEFO NON_ SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  const auto lus = tableaux(c.txt);
  ASSERT_EQ(lus.size(), 4U);
  EXPECT_EQ(lus[1].legende, "PRISME- Diagramme:Mz/My-CONSTRUCTION-ELU_DURABLE-N=1.2000");
  EXPECT_EQ(lus[1].entete, (std::vector<std::string>{"My", "Mz"}));
  EXPECT_EQ(lus[3].legende, "PRISME- Diagramme:N/My-CONSTRUCTION-ELU_DURABLE-MZ=0.0000");
  // the curve keeps its limits whatever DEFO says of the cases
  EXPECT_NEAR(plus_grand_y(lus[2]), 3.24, 0.003 * 3.24);
  EXPECT_THAT(c.txt, Not(HasSubstr("en repere non brut")));
  EXPECT_TRUE(c.svg.contains("PRISME_Diagramme_Mz_My_CONSTRUCTION_ELU_DURABLE_N_1_2.svg"));
  EXPECT_TRUE(c.svg.contains("PRISME_Diagramme_N_My_CONSTRUCTION_ELU_DURABLE_MZ_0_4.svg"));
}

// An empty diagram is told, and the justification goes on.
TEST(InteractionDeJust, UnDiagrammeVideEstUnResultat) {
  const course c = executer(prisme + soll_prisme() + "JUST PRISME INTE FIXE N 3.4D0 SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  const std::size_t vide = c.txt.find("  - - Diagramme d'interactions vide : aucun affichage\n");
  ASSERT_NE(vide, std::string::npos);
  EXPECT_LT(vide, c.txt.find(" Etat limite : ELU_DURABLE"));
  ASSERT_EQ(tableaux(c.txt).size(), 1U);  // 3.4 is above 3.24, and below 3.6
  ASSERT_EQ(c.svg.size(), 1U);
  EXPECT_EQ(c.svg.begin()->first, "PRISME_Diagramme_Mz_My_CONSTRUCTION_ELU_DURABLE_N_3_1.svg");
}

// The two commands share their numbers.
TEST(InteractionDeJust, LaNumerotationEstCelleDeLaCourse) {
  const course c = executer(prisme + soll_prisme() +
                            "INTE D SECT PRISME FIN_INTE\nJUST PRISME INTE SOLL T FIN_JUST\n"
                            "INTE D SECT PRISME FIN_INTE\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  ASSERT_EQ(c.svg.size(), 4U);
  EXPECT_TRUE(c.svg.contains("PRISME_Interaction_D_N_My_EXPLOITATION_SERVICE_ELU_DURABLE_Mz_0_1.svg"));
  EXPECT_TRUE(c.svg.contains("PRISME_Interaction_D_N_My_EXPLOITATION_SERVICE_ELU_DURABLE_Mz_0_4.svg"));
}

// ---- Refusals

namespace {

struct refus {
  std::string nom;
  std::string commandes;
  std::string message;
};

void PrintTo(const refus& r, std::ostream* sortie) { *sortie << r.nom; }
std::string nom_du_refus(const ::testing::TestParamInfo<refus>& cas) { return cas.param.nom; }

class RefusInteraction : public ::testing::TestWithParam<refus> {};

TEST_P(RefusInteraction, EstDitDansCesMots) {
  const refus& r = GetParam();
  const course c = executer(prisme + soll_prisme() + r.commandes + "\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.listing, HasSubstr("\nErreur de commande : \n" + r.message + "\n"));
  EXPECT_THAT(c.console, HasSubstr(r.message + "\n"));
  EXPECT_TRUE(c.svg.empty());
}

std::string repetition(const std::string& mot) { return "       - Repetition interdite du mot clef:" + mot; }
std::string incorrect(const std::string& mot) {
  return "     -  Mot clef  " + mot + " incorrect dans ce contexte";
}

INSTANTIATE_TEST_SUITE_P(
    Inte, RefusInteraction,
    ::testing::Values(
        refus{"SansSect", "INTE D PRISME", incorrect("PRIS")},
        refus{"SectionInconnue", "INTE D SECT RIEN",
              "     - Section non definie : RIEN" + std::string(28, ' ')},
        refus{"Defo", "INTE D SECT PRISME DEFO OUI", incorrect("OUI ")},
        refus{"Etat", "INTE D SECT PRISME ETAT ELU CARA", incorrect("CARA")},
        refus{"Situ", "INTE D SECT PRISME SITU EXPL DURA", incorrect("DURA")},
        refus{"Fixe", "INTE D SECT PRISME FIXE MX 0.", incorrect("MX  ")},
        refus{"MotInconnu", "INTE D SECT PRISME PIVO", incorrect("PIVO")},
        refus{"DeuxDefo", "INTE D SECT PRISME DEFO BORN DEFO NON_ FIN_INTE", repetition("DEFO")},
        refus{"DeuxEtat", "INTE D SECT PRISME ETAT ELU DURA ETAT ELU DURA FIN_INTE", repetition("ETAT")},
        refus{"DeuxSitu", "INTE D SECT PRISME SITU SERV SITU SERV FIN_INTE", repetition("SITU")},
        refus{"DeuxFixe", "INTE D SECT PRISME FIXE N 1. FIXE N 1. FIN_INTE", repetition("FIXE")},
        refus{"DeuxTitr", "INTE D SECT PRISME TITR 'a' TITR 'b' FIN_INTE", repetition("TITR")},
        refus{"OptionRepetee", "JUST PRISME INTE INTE SOLL T FIN_JUST", "     - OPTION INTERACTION repetee"},
        refus{"Composante", "JUST PRISME INTE FIXE MX 0. SOLL T FIN_JUST",
              "     - Composante fixee incorrecte /= N/My/MZ"}),
    nom_du_refus);

}  // namespace

TEST(Interaction, LeMotDeFin) {
  const course c = tracer("INTE D SECT PRISME FIN_SECT");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, HasSubstr("FIN_SECTIncorrect dans ce contexte - Attendu : FIN_INTE\n"));
  EXPECT_TRUE(c.svg.empty());
}

// A value that can't be read is told alone, though the word before it is wrong too.
TEST(Interaction, LaValeurEstLueAvantQueLeMotSoitJuge) {
  for (const std::string commandes :
       {"INTE D SECT PRISME FIXE MX ABC", "JUST PRISME INTE FIXE MX ABC SOLL T FIN_JUST"}) {
    const course c = executer(prisme + soll_prisme() + commandes + "\nFIN_\n");
    EXPECT_EQ(c.statut, 1);
    EXPECT_THAT(c.console, Not(HasSubstr("Mot clef")));
    EXPECT_THAT(c.console, Not(HasSubstr("Composante fixee")));
  }
}
