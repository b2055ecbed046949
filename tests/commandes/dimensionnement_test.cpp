// The DIME command through whole data files: its grammar, the steel that it finds against hand calculations,
// the bars that the zones receive.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "Executer.hpp"
#include "Modele.hpp"
#include "QB7_Sections.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Gestion_Section.hpp"

using testing::HasSubstr;
using testing::Not;

namespace {

const std::string materiaux = R"(
MATE BETON C30 TITR 'Beton C30/37' FCK 30. PREC NON FIN_MATE
MATE ACIER B500 TITR 'Acier B500B' FYK 500. TYPE T_B CONF OUI FIN_MATE
)";

/// A beam 0.30 x 0.60 whose zone(s) of bars are given, bottom axis at z = -0.25: d = 0.55 m.
std::string poutre(const std::string& aciers) {
  return materiaux + R"(
SECT POUTRE
  TITR 'Poutre'
  CONT AME MATE C30 RECT HAUT 0.60 LARG 0.30 FIN_RECT
)" + aciers +
         "\n FIN_CONT\nFIN_SECT\n";
}

const std::string lit_bas = R"(
    FERR INF MATE B500 DIAM 20. DIME OUI
      POIN DROI NUME 101 NOMB 4 Y_OR -0.10 Z_OR -0.25 Y_EX 0.10 Z_EX -0.25 FIN_DROI FIN_POIN
    FIN_FERR)";
const std::string lit_haut = R"(
    FERR SUP MATE B500 DIAM 20. DIME OUI
      POIN DROI NUME 201 NOMB 4 Y_OR -0.10 Z_OR 0.25 Y_EX 0.10 Z_EX 0.25 FIN_DROI FIN_POIN
    FIN_FERR)";

std::string chargement(const std::string& nom, const std::string& cas) {
  return "SOLL " + nom + " SECT POUTRE TITR 'Charges' REPE GEOM ETAT ELU DURA SITU EXPL SERV POND\n" + cas +
         "\nFIN_ETAT FIN_SOLL\n";
}
std::string cas(const std::string& composantes) { return "EFFO G " + composantes + " TITR 'cas' FIN_EFFO\n"; }

std::string fichier(const std::string& commandes) { return "ZOF\n" + commandes + "FIN_\n"; }

/// Steel of a zone, m2, as the engine holds it.
double aire_acier(const std::string& zone, const std::string& section = "POUTRE") {
  const auto& z = dynamic_cast<const zof_ferraillage&>(
      *zof_get_pt_nom_zone_section(socle::texte<32>(section), socle::texte<32>(zone)));
  double c = 0;
  double matiere = 0;
  EXPECT_EQ(qb7_lire_c_remplissage(z.m_numero_section_qb7, z.get_numero_zone_qb7(), c).code, 0);
  EXPECT_EQ(qb7_lire_param_zone(z.m_numero_section_qb7, z.get_numero_zone_qb7(), &matiere).code, 0);
  return z.m_les_points_zone.nombre() * matiere * c;
}

// Simple bending with the parabola-rectangle diagram at the strain of pivot B (EN 1992-1-1 3.1.7, 6.1): the
// compressed zone b x carries 17/21 b x fcd at 99/238 x under the top; the steel yields.
constexpr double fcd = 20;
constexpr double fyd = 500 / 1.15;
double aire_flexion_simple(double moment, double b, double d) {
  constexpr double alpha = 17. / 21;
  constexpr double beta = 99. / 238;
  const double k = alpha * b * fcd;
  const double x = (d - std::sqrt(d * d - 4 * beta * moment / k)) / (2 * beta);
  return k * x / fyd;
}

std::string contenu(const std::string& chemin) {
  std::ifstream flux(chemin, std::ios::binary);
  return {std::istreambuf_iterator<char>(flux), {}};
}

int occurrences(const std::string& texte, const std::string& motif) {
  int n = 0;
  for (std::size_t p = texte.find(motif); p != std::string::npos; p = texte.find(motif, p + 1)) ++n;
  return n;
}

}  // namespace

// ---- The steel

TEST(Dimensionnement, DonneLAcierDeLaFlexionSimple) {
  for (const double moment : {0.05, 0.10, 0.1944, 0.25}) {
    const modele m(poutre(lit_bas) + chargement("M", cas("MY " + std::to_string(moment))) +
                   "DIME POUTRE SOLL M FIN_DIME FIN_\n");
    ASSERT_FALSE(m.erco()) << m.console();
    const double attendu = aire_flexion_simple(moment, 0.30, 0.55);
    EXPECT_NEAR(aire_acier("INF"), attendu, 0.005 * attendu) << moment;
  }
}

TEST(Dimensionnement, NeDonnePasDAcierOuLeBetonSuffit) {
  const modele m(poutre(lit_bas + lit_haut) + chargement("N", cas("N 2.0")) +
                 "DIME POUTRE SOLL N FIN_DIME FIN_\n");
  ASSERT_FALSE(m.erco()) << m.console();
  EXPECT_LT(aire_acier("INF"), 1e-7);
  EXPECT_LT(aire_acier("SUP"), 1e-7);
  EXPECT_EQ(zof_get_pt_nom_zone_section("POUTRE", "INF")->m_diametre_zone, 0);
}

TEST(Dimensionnement, EnTractionSimplePartageEntreDeuxLitsSymetriques) {
  const modele m(poutre(lit_bas + lit_haut) + chargement("T", cas("N -0.4")) +
                 "DIME POUTRE SOLL T FIN_DIME FIN_\n");
  ASSERT_FALSE(m.erco()) << m.console();
  EXPECT_NEAR(aire_acier("INF"), 0.2 / fyd, 0.01 * 0.2 / fyd);
  EXPECT_NEAR(aire_acier("SUP"), 0.2 / fyd, 0.01 * 0.2 / fyd);
}

TEST(Dimensionnement, GardeLeGrandCoefficientDeChaqueZoneSurDeuxChargements) {
  const std::string donnees = poutre(lit_bas + lit_haut) + chargement("BAS", cas("MY 0.15")) +
                              chargement("HAUT", cas("MY -0.10")) +
                              "DIME POUTRE SOLL BAS SOLL HAUT FIN_DIME FIN_\n";
  const modele m(donnees);
  ASSERT_FALSE(m.erco()) << m.console();
  // Each face in its own bending; the other face adds a little lever, so that the closed form is an upper
  // bound.
  EXPECT_NEAR(aire_acier("INF"), aire_flexion_simple(0.15, 0.30, 0.55),
              0.02 * aire_flexion_simple(0.15, 0.30, 0.55));
  EXPECT_NEAR(aire_acier("SUP"), aire_flexion_simple(0.10, 0.30, 0.55),
              0.02 * aire_flexion_simple(0.10, 0.30, 0.55));
}

TEST(Dimensionnement, JustifieTousLesCasDeLaPoutreEnTe) {
  const course c = executer(contenu(ZOF_EXEMPLES "/poutre_en_te/poutre_en_te.zof"));
  EXPECT_EQ(c.statut, 0) << c.console;
  // One G, two Q in the ultimate state: two factors each; one case in service.
  EXPECT_EQ(occurrences(c.console, "==> Equilibre sous :"), 9);
  EXPECT_THAT(c.console, Not(HasSubstr("Non Equilibre")));
  EXPECT_THAT(c.txt, HasSubstr("Dimensionnement de la section : TE sous ELU"));
  EXPECT_THAT(c.txt, HasSubstr("Dimensionnement enveloppe du ferraillage explicite"));
  EXPECT_THAT(c.tra, HasSubstr("                              DEBUT OPTIMISATION "));
}

TEST(Dimensionnement, TrouveEnServiceLAcierDeLaSectionFissuree) {
  std::string donnees = contenu(ZOF_EXEMPLES "/poutre_en_te/poutre_en_te.zof");
  donnees = donnees.substr(4, donnees.find("JUST TE") - 4) + "FIN_\n";  // behind the word ZOF
  const modele m(donnees);
  ASSERT_FALSE(m.erco()) << m.console();
  // Cracked elastic section, neutral axis in the flange (EN 1992-1-1 7.1): b x^2 / 2 = n As (d - x) and
  // M = As sigma (d - x / 3), the steel at its limit of 300 MPa. n = Es / Ecm, Ecm = 22000 (fcm / 10)^0.3.
  constexpr double b = 1.20;
  constexpr double d = 0.65;
  constexpr double sigma = 300;
  const double n = 200000 / (22000 * std::pow(4.3, 0.3));
  double x = 0.1;
  double acier = 0;
  for (int i = 0; i < 100; ++i) {
    acier = 0.400 / (sigma * (d - x / 3));
    x = (-n * acier + std::sqrt(n * acier * (n * acier + 2 * b * d))) / b;
  }
  ASSERT_LT(x, 0.15);
  EXPECT_NEAR(aire_acier("INF", "TE"), acier, 0.001 * acier);
}

// ---- The report

TEST(Dimensionnement, RappelleLesEffortsEtDitLAcierDUneZone) {
  const course c = executer(
      fichier(poutre(lit_bas) + chargement("M", cas("MY 0.1944")) + "DIME POUTRE SOLL M FIN_DIME\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  const std::vector<std::string> suite = {
      "Dimensionnement de la section : POUTRE sous M",
      "Type de dimensionnement : B\xE9ton arm\xE9",
      "Etape : Dimensionnement - Rappel des efforts appliques :",
      "Efforts     : cas",
      "Situation   : EXPLOITATION_SERVICE",
      "Etat_limite : ELU_DURABLE",
      "Nx: 0.0000          My: 0.19440         Mz: 0.0000",
      "Resultat dimensionnement sous :M",
      "Ferraillage : INF - Section d'acier totale necessaire: 9cm2",
      "Dimensionnement enveloppe du ferraillage explicite",
      "Ferraillage : INF - Section d'acier totale necessaire: 9cm2 - diametre minimal:17mm"};
  // The closed form gives 8.63 cm2: 9 in whole cm2; four bars of 16.6 mm, 17 in whole millimetres.
  const double acier = aire_flexion_simple(0.1944, 0.30, 0.55);
  EXPECT_EQ(std::ceil(acier * 1e4), 9);
  EXPECT_EQ(std::ceil(1000 * std::sqrt(acier / 4 / 0.785398163397448)), 17);
  std::size_t p = 0;
  for (const std::string& ligne : suite) {
    p = c.txt.find(ligne, p);
    ASSERT_NE(p, std::string::npos) << ligne << "\n" << c.txt;
  }
  EXPECT_THAT(c.txt, Not(HasSubstr("ERREUR PROGRAMMATION")));
}

TEST(Dimensionnement, DitZeroOuLeBetonSuffit) {
  const course c =
      executer(fichier(poutre(lit_bas) + chargement("N", cas("N 2.0")) + "DIME POUTRE SOLL N FIN_DIME\n"));
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.txt, HasSubstr("Section d'acier totale necessaire: 0cm2 - diametre minimal:0mm"));
}

// ---- Grammar and failures

struct refus {
  std::string commande;
  std::string message;
};
class DimensionnementRefuse : public testing::TestWithParam<refus> {};
TEST_P(DimensionnementRefuse, ParSonMessage) {
  const course c = executer(
      fichier(poutre(lit_bas) + chargement("M", cas("MY 0.1")) +
              "SECT NUE TITR 'Sans acier' CONT C MATE C30 RECT HAUT 1. LARG 1. FIN_RECT FIN_CONT FIN_SECT\n" +
              GetParam().commande + "\n"));
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.listing, HasSubstr(GetParam().message));
}
INSTANTIATE_TEST_SUITE_P(
    Commandes, DimensionnementRefuse,
    testing::Values(
        refus{"DIME ABSENTE SOLL M FIN_DIME", "     - Section non definie : ABSENTE"},
        refus{"DIME NUE SOLL M FIN_DIME",
              "     - Aucun ferraillage dimensionnable d\xE9"
              "fini pour la section : NUE"},
        refus{"DIME POUTRE ITER 0 SOLL M FIN_DIME", "     -  Nombre d it\xE9rations incorrect"},
        refus{"DIME POUTRE ITER 3 SOLL M FIN_DIME", "     -  ITERATION interdit en BA"},
        refus{"DIME POUTRE SOLL M ITER 3 FIN_DIME", " Mot clef  ITER incorrect dans ce contexte"},
        refus{"DIME POUTRE DEFO BORN SOLL M FIN_DIME", " Mot clef  DEFO incorrect dans ce contexte"},
        refus{"DIME POUTRE SOLL X FIN_DIME", "     - Sollicitation non definie : X pour la section : POUTRE"},
        refus{"DIME POUTRE FIN_DIME",
              "     - Aucune sollicitation  d\xE9"
              "finie pour la section : POUTRE"},
        refus{"DIME POUTRE SOLL M FIN_JUST", "FIN_DIME"}));

TEST(Dimensionnement, EchoueSousUnEffortQueRienNePorte) {
  const course c =
      executer(fichier(poutre(lit_bas) + chargement("M", cas("MY 0.1")) + chargement("FOU", cas("N 500.")) +
                       "DIME POUTRE SOLL M SOLL FOU FIN_DIME\nEDIT SOLL\n"));
  EXPECT_EQ(c.statut, 1);
  constexpr const char* motif =
      "Echec de l optimisation : beton insuffisant ou aciers mal places ou non confines";
  EXPECT_THAT(c.txt, HasSubstr(motif));
  EXPECT_THAT(c.console, HasSubstr(std::string(" ==> ") + motif));
  EXPECT_THAT(c.listing, Not(HasSubstr("Erreur de commande")));
  EXPECT_THAT(c.txt, Not(HasSubstr("Dimensionnement enveloppe")));
  EXPECT_THAT(c.txt, Not(HasSubstr("Sollicitation : ")));  // the run ended there
  EXPECT_THAT(c.txt, HasSubstr("XXX"));                    // and the note is closed
}

TEST(Dimensionnement, AllouerApresUnPremierEchecCeQueLeDernierChargementDemande) {
  const modele m(poutre(lit_bas) + chargement("FOU", cas("N 500.")) + chargement("M", cas("MY 0.1")) +
                 "DIME POUTRE SOLL FOU SOLL M FIN_DIME FIN_\n");
  ASSERT_FALSE(m.erco()) << m.console();
  const double attendu = aire_flexion_simple(0.1, 0.30, 0.55);
  EXPECT_NEAR(aire_acier("INF"), attendu, 0.005 * attendu);
}

TEST(Dimensionnement, RefuseUnePrecontrainteEtDesPhases) {
  const std::string precontrainte = R"(ZOF
MATE BETON C40 TITR 'Beton' FCK 40. PREC OUI FIN_MATE
MATE ACIER B500 TITR 'Acier' FYK 500. FIN_MATE
MATE PREC T15 TITR 'Torons' FP01 1600. FPK 1860. FIN_MATE
SECT P TITR 'P' CONT C MATE C40 RECT HAUT 1. LARG 0.5 FIN_RECT
  FERR F MATE B500 DIAM 20. DIME OUI POIN NUME 1 Y 0. Z -0.4 FIN_POIN FIN_POIN FIN_FERR
  PREC K MATE T15 AIRE 1500. POIN NUME 2 Y 0. Z -0.3 FIN_POIN FIN_POIN FIN_PREC FIN_CONT FIN_SECT
SOLL S SECT P TITR 'S' REPE GEOM PREC TOTA POST ETAT ELU DURA SITU EXPL SERV POND
  EFFO G MY 0.1 FIN_EFFO EFFO P N 1. TENS PREC K POIN 2 TENS 1000. NON_ FIN_TENS FIN_EFFO FIN_ETAT FIN_SOLL
DIME P ITER 4 SOLL S FIN_DIME
FIN_
)";
  const course c = executer(precontrainte);
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.listing, HasSubstr(" Mot clef  SOLL incorrect dans ce contexte"));
}

// ---- Bars laid automatically

std::string automatique(const std::string& options) {
  return "FERR AUTO MATE B500 DIME OUI OPTI " + options + " FIN_OPTI FIN_FERR";
}

TEST(Dimensionnement, ChoisitLaPremiereBarreDuCatalogueQuiSuffit) {
  const course c = executer(fichier(
      poutre(automatique("DISP INFE STRI ENRO 0.03 E_MA 0.15 SELE P_8 P_12 P_16 P_20 P_25 P_32 FIN_")) +
      chargement("M", cas("MY 0.15")) + "DIME POUTRE SOLL M FIN_DIME\nJUST POUTRE SOLL M FIN_JUST\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, HasSubstr("Dimensionnement enveloppe du ferraillage automatique"));
  EXPECT_THAT(c.txt, HasSubstr("Dimensionnement enveloppe\n"));
  EXPECT_THAT(c.txt, HasSubstr("Ferraillage: AUTO"));
  EXPECT_THAT(c.txt, HasSubstr("Ajustement du ferraillage : Effectue"));
  EXPECT_THAT(c.txt, HasSubstr("Resultat final dimensionnement automatique : Effectue\n"));
  EXPECT_THAT(c.txt, Not(HasSubstr("Ajustement des espacements :")));
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :cas"));
  // About 6.6 cm2 for d = 0.55: three bars (spacing at most 0.15 over 0.22 m): 2.2 cm2 each, so 20 mm (3.14).
  EXPECT_THAT(c.txt, HasSubstr("Label acier optimal          : P_20"));
  EXPECT_THAT(c.txt, HasSubstr("Nombre aciers places         : 3\n"));
  EXPECT_THAT(c.txt, HasSubstr("section acier placee         : 10 cm2"));
}

TEST(Dimensionnement, MultiplieLesBarresTropPetites) {
  const std::string debut =
      poutre(automatique("DISP INFE STRI ENRO 0.03 E_MA 0.20 E_MI MINI SELE P_12 FIN_"));
  const auto donnees = [&](const std::string& e_mi) {
    std::string d = debut;
    d.replace(d.find("MINI"), 4, e_mi);
    return fichier(d + chargement("M", cas("MY 0.15")) +
                   "DIME POUTRE SOLL M FIN_DIME\nJUST POUTRE SOLL M FIN_JUST\n");
  };
  // About 6.6 cm2 in bars of 12 (1.131 cm2): six of them, 0.228 / 5 = 46 mm apart.
  const course large = executer(donnees("0.02"));
  ASSERT_EQ(large.statut, 0) << large.console;
  EXPECT_THAT(large.txt, HasSubstr("Ajustement des espacements :"));
  EXPECT_THAT(large.txt, HasSubstr("Nombre aciers places         : 6\n"));
  EXPECT_THAT(large.txt, HasSubstr("Espacement max effectif      : 46 mm"));
  EXPECT_THAT(large.txt, HasSubstr("Ajustement Espacements       : reussi"));
  EXPECT_THAT(large.console, HasSubstr("==> Equilibre sous :cas"));
  const course serre = executer(donnees("0.10D0"));
  ASSERT_EQ(serre.statut, 0) << serre.console;
  EXPECT_THAT(serre.txt, HasSubstr("Espacement min prescrit      : 100 mm"));
  EXPECT_THAT(serre.txt, HasSubstr("Ajustement Espacements       : en echec"));
  EXPECT_THAT(serre.txt,
              HasSubstr("Ajustement du ferraillage  :  effectue mais sans respecter les espacements "
                        "specifies (modifiez vos parametres de ferraillage)"));
  EXPECT_THAT(serre.txt,
              HasSubstr("Resultat final dimensionnement automatique : Effectue avec non respect des "
                        "espacements specifies"));
}

TEST(Dimensionnement, CompteLesBarresDUnGroupe) {
  // Groups of two bars of 12 at each point: half as many points as single bars would take.
  const course c = executer(fichier(
      poutre(automatique("DISP INFE STRI ENRO 0.03 E_MA 0.20 E_MI 0.02 GROU 2 SELE P_12 FIN_")) +
      chargement("M", cas("MY 0.15")) + "DIME POUTRE SOLL M FIN_DIME\nJUST POUTRE SOLL M FIN_JUST\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, HasSubstr("Nombre aciers places         : 3\n"));
  EXPECT_THAT(c.txt, HasSubstr("section acier placee         : 7 cm2"));
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :cas"));
}
