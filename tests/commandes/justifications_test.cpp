// The JUST command on whole data files: strain planes against values from outside, the words of the three
// results, the tables, the options, the refusals.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <fstream>
#include <iomanip>
#include <ostream>
#include <sstream>

#include "Donnees_Sections.hpp"
#include "Executer.hpp"
#include "Litteral.hpp"
#include "Modele.hpp"
#include "QB7_Types.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Gestion_justifications.hpp"

using namespace socle;
using donnees::prisme;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

std::string l1(std::string_view texte) { return std::string(texte); }

/// The number that follows a label in the text, from a position on.
double nombre_apres(const std::string& texte, const std::string& label, std::size_t depuis = 0) {
  const std::size_t ici = texte.find(label, depuis);
  if (ici == std::string::npos) {
    ADD_FAILURE() << "no " << label;
    return NAN;
  }
  return std::stod(texte.substr(ici + label.size(), 20));
}

/// The strain plane of each load case of a note, in its order.
std::vector<deformation> plans(const std::string& txt) {
  std::vector<deformation> resultat;
  for (std::size_t ici = txt.find(" Efforts : "); ici != std::string::npos;
       ici = txt.find(" Efforts : ", ici + 1))
    resultat.push_back({nombre_apres(txt, "- Ex: ", ici), nombre_apres(txt, "- Ry: ", ici),
                        nombre_apres(txt, "- Rz: ", ici)});
  return resultat;
}

/// An example without its interaction diagrams.
std::string exemple(const std::string& nom) {
  std::ifstream fichier(std::string(ZOF_EXEMPLES) + "/" + nom + "/" + nom + ".zof");
  EXPECT_TRUE(fichier.good()) << nom;
  std::ostringstream donnees;
  bool dans_diagramme = false;
  for (std::string ligne; std::getline(fichier, ligne);) {
    if (ligne.starts_with("INTE ")) dans_diagramme = true;
    if (!dans_diagramme && ligne.find("INTE ") == std::string::npos && !ligne.starts_with("EDIT"))
      donnees << ligne << '\n';
    if (ligne.starts_with("FIN_INTE")) dans_diagramme = false;
  }
  return donnees.str();
}

/// 1e-4 of the value; a component that symmetry makes zero is a residue of rounding.
void attendre_plan(const deformation& lu, const deformation& attendu) {
  const double residu = 1e-9;
  EXPECT_NEAR(lu.e0, attendu.e0, 1e-4 * std::abs(attendu.e0) + (attendu.e0 == 0 ? residu : 0));
  EXPECT_NEAR(lu.ky, attendu.ky, 1e-4 * std::abs(attendu.ky) + (attendu.ky == 0 ? residu : 0));
  EXPECT_NEAR(lu.kz, attendu.kz, 1e-4 * std::abs(attendu.kz) + (attendu.kz == 0 ? residu : 0));
}

// ---- Values from an independent strip integration and minimisation

TEST(Exemples, PoutreRectangulaire) {
  const course c = executer(exemple("poutre_rectangulaire"));
  EXPECT_EQ(c.statut, 0) << c.listing;
  const auto lus = plans(c.txt);
  const std::array<deformation, 6> attendus = {{{-5.080593e-04, 4.309815e-03, 0},
                                                {-3.023466e-04, 2.472110e-03, 0},
                                                {-4.143462e-04, 3.452340e-03, 0},
                                                {-2.042380e-04, 1.645562e-03, 0},
                                                {-4.300071e-04, 2.712053e-03, 0},
                                                {-3.010050e-04, 1.898437e-03, 0}}};
  ASSERT_EQ(lus.size(), attendus.size());
  for (std::size_t i = 0; i < lus.size(); ++i) attendre_plan(lus[i], attendus[i]);
  // Concrete at the top and steel at the bottom, characteristic and quasi-permanent; modular ratio 6.0907704.
  const std::size_t cara = c.txt.find(" Efforts : caracteristique");
  const std::size_t quas = c.txt.find(" Efforts : quasi permanent");
  ASSERT_NE(cara, std::string::npos);
  ASSERT_NE(quas, std::string::npos);
  EXPECT_THAT(c.txt.substr(cara), HasSubstr(" 12.596 "));
  EXPECT_THAT(c.txt.substr(cara), HasSubstr(" -221.60 "));
  EXPECT_THAT(c.txt.substr(quas), HasSubstr(" 8.8175 "));
  EXPECT_THAT(c.txt.substr(quas), HasSubstr(" -155.12 "));
  // The neutral axis of the first case: 5.080593e-04 / 4.309815e-03.
  EXPECT_NEAR(nombre_apres(c.txt, l1("Ordonnée de l'axe neutre (repère géométrique) : z="_l1)), 0.117884,
              1e-5);
}

TEST(Exemples, PoteauDevie) {
  const course c = executer(exemple("poteau_devie"));
  EXPECT_EQ(c.statut, 0) << c.listing;
  const auto lus = plans(c.txt);
  const std::array<deformation, 3> attendus = {{{3.914166e-05, 2.358750e-03, 1.632106e-03},
                                                {-1.155845e-04, 4.284811e-03, 4.151390e-03},
                                                {4.281983e-04, 2.246352e-03, 3.791757e-03}}};
  ASSERT_EQ(lus.size(), attendus.size());
  for (std::size_t i = 0; i < lus.size(); ++i) attendre_plan(lus[i], attendus[i]);
}

TEST(Exemples, PieuCirculaire) {
  const course c = executer(exemple("pieu_circulaire"));
  EXPECT_EQ(c.statut, 0) << c.listing;
  const auto lus = plans(c.txt);
  ASSERT_GE(lus.size(), 2U);
  attendre_plan(lus[0], {9.630427e-05, 1.388439e-03, 4.628129e-04});
  attendre_plan(lus[1], {-5.405650e-04, 1.852743e-03, 0});
}

// ---- The three results

std::string soll_prisme(const std::string& nom, const std::string& etat, const std::string& efforts_lus) {
  return "SOLL " + nom + " SECT PRISME TITR 't' REPE GEOM ETAT " + etat + " SITU EXPL SERV POND\n" +
         efforts_lus + "\nFIN_ETAT FIN_SOLL\n";
}

// N = 1.8 on 0.18 m2 is 10 MPa everywhere.
TEST(Justification, EquilibreSousUneCompressionCentree) {
  const course c = executer(prisme + soll_prisme("T", "ELS CARA", "EFFO GQ N 1.8D0 TITR 'centre' FIN_EFFO") +
                            "JUST PRISME SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr("\n  \n Etat limite : ELS_CAR - situation: EXPLOITATION_SERVICE\n"
                                   "==> Equilibre sous :centre\n"));
  EXPECT_THAT(c.txt, HasSubstr("Justification de la section : PRISME sous T\n"));
  EXPECT_THAT(c.txt, HasSubstr(l1("    ===> Type  de  justification : Béton armé"_l1)));
  EXPECT_THAT(c.txt, HasSubstr(" Etat limite : ELS_CAR - situation: EXPLOITATION_SERVICE\n"));
  EXPECT_THAT(c.txt, HasSubstr(" Efforts : centre\n"));
  EXPECT_THAT(c.txt, HasSubstr("- Situation    : EXPLOITATION_SERVICE\n"));
  EXPECT_THAT(c.txt, HasSubstr("- Etat_limite  : ELS_CAR\n"));
  EXPECT_THAT(c.txt, HasSubstr("- Repere       :  y : 0.0000 - z : 0.0000 - angle : 0.0000\n"));
  EXPECT_THAT(c.txt, HasSubstr("- Nx: 1.8000"));
  EXPECT_THAT(c.txt, HasSubstr("- My: 0.0000"));
  EXPECT_THAT(c.txt, HasSubstr("- Mz: 0.0000"));
  EXPECT_THAT(c.txt, HasSubstr(l1("- Résultat : Equilibre sous : centre\n"_l1)));
  EXPECT_THAT(c.txt, HasSubstr(l1("Déformations et contraintes dans :FUT\n"_l1)));
  EXPECT_THAT(c.txt, HasSubstr("- Limites du materiau :"));
  EXPECT_THAT(c.txt, HasSubstr("> Lim min  : aucune\n"));
  EXPECT_THAT(c.txt, HasSubstr("> Sig max :18.000 Mpa\n"));  // 0.6 fck
  EXPECT_THAT(c.txt, HasSubstr("Num_Point"));
  EXPECT_THAT(c.txt, HasSubstr(" Deformations et contraintes positives en compression\n"));
  EXPECT_THAT(c.txt, HasSubstr(" 10.000 "));
  EXPECT_THAT(
      c.txt, HasSubstr(l1(" (*) Attention : En mode phasage, il s agit de l incrément courant de déformation "
                          "de la section\n"_l1)));
  EXPECT_THAT(c.html, HasSubstr("<b style='color:red;'>R&#233;sultat : Equilibre sous : centre</b>"));
  EXPECT_THAT(c.txt, Not(HasSubstr("ERREUR PROGRAMMATION")));
}

// 3.6 / 0.18 = 20 MPa, above the limit of 0.6 fck = 18: with bounds there is no equilibrium, and the run goes
// on.
TEST(Justification, BornesDepasseesAvecControle) {
  const course c =
      executer(prisme +
               soll_prisme("T", "ELS CARA",
                           "EFFO GQ N 3.6D0 TITR 'trop' FIN_EFFO EFFO GQ N 1.8D0 TITR 'bon' FIN_EFFO") +
               "JUST PRISME DEFO BORNEES SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr("==> Non Equilibre sous :trop\n==> Equilibre sous :bon\n"));
  const std::size_t trop = c.txt.find(" Efforts : trop");
  const std::size_t bon = c.txt.find(" Efforts : bon");
  ASSERT_LT(trop, bon);
  const std::string note = c.txt.substr(trop, bon - trop);
  EXPECT_THAT(note, HasSubstr(l1("Résultat : Non Equilibre sous : trop(*)\n"_l1)));
  EXPECT_THAT(note,
              HasSubstr(l1(" (*) Basculer en mode deformations non bornées pour identifier les zones de "
                           "depassement\n"_l1)));
  EXPECT_THAT(note, Not(HasSubstr("Ex: ")));
  EXPECT_THAT(note, Not(HasSubstr("Num_Point")));
  EXPECT_THAT(c.html, HasSubstr("<b style='color:red;'>R&#233;sultat : Non Equilibre sous : trop(*)</b>"));
}

TEST(Justification, BornesDepasseesSansControle) {
  const course c = executer(prisme + soll_prisme("T", "ELS CARA", "EFFO GQ N 3.6D0 TITR 'trop' FIN_EFFO") +
                            "JUST PRISME DEFO NON_BORNEES SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr(l1("==> Equilibre mais déformée limite dépassée sous :trop\n"_l1)));
  EXPECT_THAT(c.txt, HasSubstr(l1("- Résultat : Equilibre mais déformée limite dépassée sous : trop\n"_l1)));
  EXPECT_THAT(c.txt, HasSubstr("- Ex: "));
  EXPECT_THAT(c.txt, HasSubstr(" H Bornes (20.000) "));
  EXPECT_THAT(c.html,
              HasSubstr("<b style='color:red;'>R&#233;sultat : Equilibre mais d&#233;form&#233;e limite "
                        "d&#233;pass&#233;e sous : trop</b>"));
}

// What rounding leaves of the balance of these forces overflows when it is squared: no plane carries them,
// with bounds or without. (One force in two of that size is met to the last bit without bounds, and is then
// in equilibrium: not these.)
TEST(Justification, DesEffortsDemesuresNeSontPasEnEquilibre) {
  const course c =
      executer(prisme +
               soll_prisme("T", "ELS CARA",
                           "EFFO GQ N 1.3D200 TITR 'n' FIN_EFFO EFFO GQ MY -1.D250 TITR 'my' FIN_EFFO") +
               "JUST PRISME SOLL T DEFO NON_ SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, Not(HasSubstr("==> Equilibre")));
  EXPECT_THAT(c.console, HasSubstr("==> Non Equilibre sous :n\n==> Non Equilibre sous :my\n"));
}

// Each record has its heading, each case its own, side by side; the tables of a case stand under it.
TEST(Justification, UnTitreParEtatLimiteEtParCas) {
  const course c = executer(prisme + R"(
SOLL T SECT PRISME TITR 't' REPE GEOM
  ETAT ELS CARA SITU SERV A_PO EFFO G N 1. TITR 'g' FIN_EFFO EFFO Q N 0.1 TITR 'q' FIN_EFFO FIN_ETAT
  ETAT ELU DURA SITU CONS POND EFFO GQ N 1. TITR 'u' FIN_EFFO FIN_ETAT
FIN_SOLL
JUST PRISME SOLL T FIN_JUST
FIN_
)");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console,
              HasSubstr("  \n Etat limite : ELS_CAR - situation: EXPLOITATION_SERVICE\n"
                        "==> Equilibre sous :g_max + q_max - ELS_CAR-EXPLOITATION_SERVICE\n"
                        "==> Equilibre sous :g_max + q_min - ELS_CAR-EXPLOITATION_SERVICE\n"
                        "==> Equilibre sous :g_min + q_max - ELS_CAR-EXPLOITATION_SERVICE\n"
                        "==> Equilibre sous :g_min + q_min - ELS_CAR-EXPLOITATION_SERVICE\n"
                        "  \n Etat limite : ELU_DURABLE - situation: CONSTRUCTION\n==> Equilibre sous :u\n"));
  std::size_t ici = 0;
  for (const std::string& titre :
       {l1("1.1. Justification de la section : PRISME sous T\n"),
        l1("1.1.1.  Etat limite : ELS_CAR - situation: EXPLOITATION_SERVICE\n"),
        l1("1.1.2. Efforts : g_max + q_max - ELS_CAR-EXPLOITATION_SERVICE\n"),
        l1("1.1.2.1. Déformations et contraintes dans :FUT\n"_l1),
        l1("1.1.3. Efforts : g_max + q_min - ELS_CAR-EXPLOITATION_SERVICE\n"),
        l1("1.1.5. Efforts : g_min + q_min - ELS_CAR-EXPLOITATION_SERVICE\n"),
        l1("1.1.6.  Etat limite : ELU_DURABLE - situation: CONSTRUCTION\n"), l1("1.1.7. Efforts : u\n")}) {
    ici = c.txt.find(titre, ici);
    ASSERT_NE(ici, std::string::npos) << titre;
  }
}

// Options act on the SOLL that follow them: the first has the defaults, the second is unbounded, the third
// again not.
TEST(Justification, LesOptionsValentPourCeQuiSuit) {
  const course c = executer(prisme + soll_prisme("T", "ELS CARA", "EFFO GQ N 3.6D0 TITR 'trop' FIN_EFFO") +
                            "JUST PRISME SOLL T DEFO NON_ SOLL T DEFO BORN SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  const std::size_t non = c.console.find("==> Non Equilibre");
  const std::size_t mais = c.console.find("==> Equilibre mais");
  const std::size_t encore = c.console.find("==> Non Equilibre", non + 1);
  EXPECT_LT(non, mais);
  EXPECT_LT(mais, encore);
  EXPECT_NE(encore, std::string::npos);
}

// Without editer only the failures reach the console, and nothing the notes.
TEST(Justification, SansEditionSeulsLesEchecsSontDits) {
  const modele lu(prisme.substr(donnees::premiere_commande) +
                  soll_prisme("T", "ELS CARA", "EFFO GQ N 1. FIN_EFFO") + "FIN_\n");
  ASSERT_FALSE(lu.erco()) << lu.console();
  zof_activer_section("PRISME");
  zof_cadre_justification cadre{
      "PRISME", "EXPLOITATION_SERVICE", "ELS_CAR", true, zof_get_numero_qb7_section("PRISME"), 1006};
  deformation plan;
  EXPECT_TRUE(zof_solliciter_section(cadre, "bon", {1.8, 0, 0}, false, plan));
  EXPECT_THAT(lu.console(), Not(HasSubstr("bon")));
  EXPECT_FALSE(zof_solliciter_section(cadre, "trop", {3.6, 0, 0}, false, plan));
  EXPECT_THAT(lu.console(), HasSubstr("==> Non Equilibre sous :trop\n"));
  cadre.controle_bornes = false;
  EXPECT_FALSE(zof_solliciter_section(cadre, "passe", {3.6, 0, 0}, false, plan));
  EXPECT_THAT(lu.console(), HasSubstr(l1("==> Equilibre mais déformée limite dépassée sous :passe\n"_l1)));
}

// ---- Pivot C

/// 0.40 x 0.40 with 8 HA20: As = 25.133 cm2. Under N alone fcd Ac = 3.2 MN from a strain of 2 per mille on,
/// and the steel carries the rest.
const std::string poteau = R"(ZOF
MATE BETON C30 TITR 'Beton C30/37' FCK 30. PREC NON FIN_MATE
MATE ACIER B500 TITR 'Acier B500B' FYK 500. TYPE T_B CONF OUI FIN_MATE
SECT POTEAU
  TITR 'Poteau 40 x 40'
  CONT FUT
    TITR 'Fut'
    MATE C30
    POIN
      NUME 1 Y -0.2D0 Z -0.2D0 FIN_POIN NUME 2 Y 0.2D0 Z -0.2D0 FIN_POIN
      NUME 3 Y 0.2D0 Z 0.2D0 FIN_POIN NUME 4 Y -0.2D0 Z 0.2D0 FIN_POIN
    FIN_POIN
    FERR CAGE
      TITR '8 HA20'
      MATE B500
      DIAM 20.
      POIN
        NUME 101 Y -0.15D0 Z -0.15D0 FIN_POIN NUME 102 Y 0. Z -0.15D0 FIN_POIN
        NUME 103 Y 0.15D0 Z -0.15D0 FIN_POIN NUME 104 Y 0.15D0 Z 0. FIN_POIN
        NUME 105 Y 0.15D0 Z 0.15D0 FIN_POIN NUME 106 Y 0. Z 0.15D0 FIN_POIN
        NUME 107 Y -0.15D0 Z 0.15D0 FIN_POIN NUME 108 Y -0.15D0 Z 0. FIN_POIN
      FIN_POIN
    FIN_FERR
  FIN_CONT
FIN_SECT
)";
std::string soll_poteau(const std::string& repere, const std::string& etat, const std::string& efforts_lus) {
  return "SOLL T SECT POTEAU TITR 't' REPE " + repere + " ETAT " + etat + " SITU EXPL SERV POND\n" +
         efforts_lus + "\nFIN_ETAT FIN_SOLL\n";
}

// (4.22 - 3.2) / 25.133e-4 = 405.84 MPa, hence 2.0292 per mille, past the peak of 2 per mille; 3.5 is the
// limit.
TEST(PivotC, DepasseEnCompressionCentree) {
  const course c =
      executer(poteau + soll_poteau("GEOM", "ELU DURA", "EFFO GQ N 4.22D0 TITR 'fort' FIN_EFFO") +
               "JUST POTEAU PIVO JUST SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :fort\n==> Pivot C -FUT : Non justifie\n"));
  EXPECT_THAT(c.txt, HasSubstr("Justification du pivot C : FUT\n"));
  EXPECT_THAT(c.txt, HasSubstr(l1("- Résultat : Pivot C Depasse\n"_l1)));
  EXPECT_NEAR(nombre_apres(c.txt, "Valeur deformation au cdg :"), 2.0292e-3, 2e-7);
  EXPECT_NEAR(nombre_apres(c.txt, "Valeur deformation limite :"), 2.0e-3, 1e-7);
}

TEST(PivotC, RespecteEtSurDemandeSeulement) {
  const std::string donnees = poteau + soll_poteau("GEOM", "ELU DURA", "EFFO GQ N 1. TITR 'faible' FIN_EFFO");
  const course avec = executer(donnees + "JUST POTEAU PIVO JUST SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(avec.statut, 0) << avec.listing;
  EXPECT_THAT(avec.console, HasSubstr("==> Pivot C - FUT : justifie\n"));
  EXPECT_THAT(avec.txt, HasSubstr(l1("- Résultat : Pivot C Respecte\n"_l1)));
  const course sans = executer(donnees + "JUST POTEAU PIVO JUST PIVO NON_ SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(sans.statut, 0) << sans.listing;
  EXPECT_THAT(sans.console, Not(HasSubstr("Pivot C")));
}

TEST(PivotC, NAjouteRienEnService) {
  const course c = executer(poteau + soll_poteau("GEOM", "ELS CARA", "EFFO GQ N 1. FIN_EFFO") +
                            "JUST POTEAU PIVO JUST SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, Not(HasSubstr("Pivot C")));
}

// Concrete that is meant for prestress has it too.
TEST(PivotC, UnBetonPrecontraintALeSien) {
  std::string donnees = poteau + soll_poteau("GEOM", "ELU DURA", "EFFO GQ N 1. FIN_EFFO") +
                        "JUST POTEAU PIVO JUST SOLL T FIN_JUST\nFIN_\n";
  donnees.replace(donnees.find("PREC NON"), 8, "PREC OUI");
  const course c = executer(donnees);
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr("==> Pivot C - FUT : justifie\n"));
}

TEST(PivotC, EnSituationAccidentelleAussi) {
  const course c = executer(poteau +
                            "SOLL T SECT POTEAU TITR 't' REPE GEOM ETAT ELU ACCI SITU ACCI POND "
                            "EFFO GQ N 1. FIN_EFFO FIN_ETAT FIN_SOLL\n"
                            "JUST POTEAU PIVO JUST SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr("==> Pivot C - FUT : justifie\n"));
}

// A frame beyond all measure gives strains that are no numbers: the pivot is not declared sound.
TEST(PivotC, UneDeformationQuiNEnEstPasUneNEstPasJustifiee) {
  const course c = executer(
      poteau + soll_poteau("Y 1.D250 Z -1.D250 ANGL 0.", "ELU DURA", "EFFO GQ N 1. TITR 'e' FIN_EFFO") +
      "JUST POTEAU PIVO JUST SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr("==> Non Equilibre sous :e\n==> Pivot C -FUT : Non justifie\n"));
}

// The strain at the centroid does not depend on the frame of the forces.
TEST(PivotC, AuCentreDeGraviteQuelQueSoitLeRepere) {
  const efforts vus = zof_efforts_nouveau_repere(zof_repere_degres(0.05, -0.1, 30), {4.22, 0, 0});
  std::ostringstream effort;
  effort << std::fixed << std::setprecision(12) << "EFFO GQ N " << vus.n << "D0 MY " << vus.my << "D0 MZ "
         << vus.mz << "D0 TITR 'fort' FIN_EFFO";
  const course c = executer(poteau + soll_poteau("Y 0.05D0 Z -0.1D0 ANGL 30.", "ELU DURA", effort.str()) +
                            "JUST POTEAU PIVO JUST SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :fort\n==> Pivot C -FUT : Non justifie\n"));
  EXPECT_NEAR(nombre_apres(c.txt, "Valeur deformation au cdg :"), 2.0292e-3, 4e-7);
}

// Every contour of concrete has its check, in the order of the section; bars have none.
TEST(PivotC, ChaqueContourALeSien) {
  const course c = executer(donnees::beton_arme +
                            "SOLL T SECT POUTRE TITR 't' REPE BRUT ETAT ELU DURA SITU SERV POND "
                            "EFFO GQ N 1. FIN_EFFO FIN_ETAT FIN_SOLL\n"
                            "JUST POUTRE PIVO JUST SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.console, HasSubstr("==> Pivot C - AME : justifie\n==> Pivot C - TABLE : justifie\n"));
  EXPECT_THAT(c.console, Not(HasSubstr("INF : justifie")));
}

// ---- Frames

/// Column "Epsilon" of every table of a note, as text.
std::vector<std::string> epsilons(const std::string& txt) {
  std::vector<std::string> resultat;
  std::istringstream lignes(txt);
  bool dans_tableau = false;
  for (std::string ligne; std::getline(lignes, ligne);) {
    if (ligne.find("Num_Point") != std::string::npos) {
      dans_tableau = true;
      std::getline(lignes, ligne);  // the rule
      continue;
    }
    std::istringstream cellules(ligne);
    std::string numero, y, z, epsilon;
    if (dans_tableau && cellules >> numero >> y >> z >> epsilon)
      resultat.push_back(epsilon);
    else
      dans_tableau = false;
  }
  return resultat;
}

// The same forces in the axes of the section and in a frame of the user: the strains of the points are the
// same.
TEST(Reperes, LesDeformationsNeDependentPasDuRepere) {
  const repere r = zof_repere_degres(0.05, -0.1, 30);
  const efforts base{1.0, 0.12, 0.05};
  const efforts vus = zof_efforts_nouveau_repere(r, base);
  const auto effort = [](const efforts& f) {
    std::ostringstream texte;
    texte.precision(10);
    texte << "EFFO GQ N " << f.n << ".D0 MY " << f.my << "D0 MZ " << f.mz << "D0 TITR 'e' FIN_EFFO";
    return texte.str();
  };
  const std::string just = "JUST POTEAU SOLL T FIN_JUST\nFIN_\n";
  const course geom = executer(poteau + soll_poteau("GEOM", "ELU DURA", effort(base)) + just);
  const course defini =
      executer(poteau + soll_poteau("Y 0.05D0 Z -0.1D0 ANGL 30.", "ELU DURA", effort(vus)) + just);
  ASSERT_EQ(geom.statut, 0) << geom.listing;
  ASSERT_EQ(defini.statut, 0) << defini.listing;
  EXPECT_THAT(defini.txt, HasSubstr("- Repere       :  y : 0.50000E-01 - z : -0.10000 - angle : 30.000\n"));
  const auto a = epsilons(geom.txt);
  const auto b = epsilons(defini.txt);
  ASSERT_EQ(a.size(), 12U);
  ASSERT_EQ(a.size(), b.size());
  // Forces are met within 1e-5 of their norm from either side: strains of some 2 per mille agree within 1e-4.
  for (std::size_t i = 0; i < a.size(); ++i) EXPECT_NEAR(std::stod(a[i]), std::stod(b[i]), 2e-7) << i;
  // The neutral axis is written in the axes of the section in both.
  const std::string axe = l1("Equation axe neutre (repère géométrique) : 0="_l1);
  const double constante_a = nombre_apres(geom.txt, axe);
  const double constante_b = nombre_apres(defini.txt, axe);
  EXPECT_NEAR(constante_a, constante_b, 1e-4 * std::abs(constante_a));
  const double pente_a = nombre_apres(geom.txt, " + ", geom.txt.find(axe));
  const double pente_b = nombre_apres(defini.txt, " + ", defini.txt.find(axe));
  EXPECT_NEAR(pente_a, pente_b, 1e-4 * std::abs(pente_a));
}

// The centroid of the flanged beam is at z = 0.16, its axes are not turned: N = 1 in the raw frame is an
// axial force there, and strains are the same at top and bottom.
TEST(Reperes, LeRepereBrutEstAuCentreDeGravite) {
  const course c = executer(donnees::beton_arme +
                            "SOLL T SECT POUTRE TITR 't' REPE BRUT ETAT ELU DURA SITU SERV POND "
                            "EFFO GQ N 1. FIN_EFFO FIN_ETAT FIN_SOLL\nJUST POUTRE SOLL T FIN_JUST\nFIN_\n");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.txt, HasSubstr("- z : 0.16000 "));
}

// Whether the loading is in the raw frame is known to what draws its diagrams; the next loading changes it.
TEST(Reperes, LaCommandeSaitSiLaSollicitationEstEnRepereBrut) {
  const std::string lues = poteau.substr(donnees::premiere_commande) +
                           "SOLL B SECT POTEAU TITR 'b' REPE BRUT ETAT ELS CARA SITU SERV POND EFFO GQ N 1. "
                           "FIN_EFFO FIN_ETAT FIN_SOLL\n" +
                           soll_poteau("GEOM", "ELS CARA", "EFFO GQ N 1. FIN_EFFO");
  {
    const modele brut(lues + "JUST POTEAU SOLL T SOLL B FIN_JUST\nFIN_\n");
    EXPECT_FALSE(brut.erco()) << brut.console();
    EXPECT_TRUE(gestion_justifications.mod_glo_sollicitation_en_repere_brut);
  }
  const modele geometrique(lues + "JUST POTEAU SOLL B SOLL T FIN_JUST\nFIN_\n");
  EXPECT_FALSE(geometrique.erco()) << geometrique.console();
  EXPECT_FALSE(gestion_justifications.mod_glo_sollicitation_en_repere_brut);
}

// ---- Zones

TEST(Tableaux, UnVideNEnAPas) {
  const course c = executer(R"(ZOF
MATE BETON C30 TITR 'Beton' FCK 30. PREC NON FIN_MATE
SECT CREUX
  TITR 'Caisson'
  CONT FUT
    TITR 'Fut'
    MATE C30
    POIN
      NUME 1 Y -0.3D0 Z -0.3D0 FIN_POIN NUME 2 Y 0.3D0 Z -0.3D0 FIN_POIN
      NUME 3 Y 0.3D0 Z 0.3D0 FIN_POIN NUME 4 Y -0.3D0 Z 0.3D0 FIN_POIN
    FIN_POIN
    EVID TROU
      TITR 'Trou'
      POIN
        NUME 1 Y -0.1D0 Z -0.1D0 FIN_POIN NUME 2 Y 0.1D0 Z -0.1D0 FIN_POIN
        NUME 3 Y 0.1D0 Z 0.1D0 FIN_POIN NUME 4 Y -0.1D0 Z 0.1D0 FIN_POIN
      FIN_POIN
    FIN_EVID
  FIN_CONT
FIN_SECT
SOLL T SECT CREUX TITR 't' REPE GEOM ETAT ELS CARA SITU SERV POND EFFO GQ N 1.6D0 FIN_EFFO FIN_ETAT FIN_SOLL
JUST CREUX SOLL T FIN_JUST
FIN_
)");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.txt, HasSubstr(l1("Déformations et contraintes dans :FUT\n"_l1)));
  EXPECT_THAT(c.txt, Not(HasSubstr("dans :TROU")));
  EXPECT_THAT(c.txt, HasSubstr(" 5.0000 "));  // 1.6 / (0.36 - 0.04)
}

// ---- Refusals

struct refus {
  std::string nom;
  std::string commandes;
  std::string message;
};

void PrintTo(const refus& r, std::ostream* sortie) { *sortie << r.nom; }
std::string nom_du_refus(const ::testing::TestParamInfo<refus>& cas) { return cas.param.nom; }

class RefusJust : public ::testing::TestWithParam<refus> {};

TEST_P(RefusJust, EstDitDansCesMots) {
  const refus& r = GetParam();
  const course c =
      executer(prisme + soll_prisme("T", "ELS CARA", "EFFO GQ N 1. FIN_EFFO") + r.commandes + "\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.listing, HasSubstr("\nErreur de commande : \n     - " + r.message + "\n"));
  EXPECT_THAT(c.console, HasSubstr("     - " + r.message + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Just, RefusJust,
    ::testing::Values(
        refus{"SectionInconnue", "JUST RIEN", "Section non definie : RIEN" + std::string(28, ' ')},
        refus{"SollicitationInconnue", "JUST PRISME SOLL U",
              "Sollicitation non definie : U pour la section : PRISME"},
        refus{"Defo", "JUST PRISME DEFO OUI", " Mot clef  OUI  incorrect dans ce contexte"},
        refus{"Pivo", "JUST PRISME PIVO OUI", " Mot clef  OUI  incorrect dans ce contexte"},
        refus{"MotInconnu", "JUST PRISME TITR", " Mot clef  TITR incorrect dans ce contexte"},
        refus{"MotDeFin", "JUST PRISME FIN_SOLL", "FIN_SOLLIncorrect dans ce contexte - Attendu : FIN_JUST"}),
    nom_du_refus);

}  // namespace
