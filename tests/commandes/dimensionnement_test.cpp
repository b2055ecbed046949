// The DIME command through whole data files: its grammar, the steel that it finds against hand calculations,
// the bars that the zones receive.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Executer.hpp"
#include "Modele.hpp"
#include "QB7_Sections.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_dimensionnement.hpp"

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

TEST(Dimensionnement, NAlloueRienPourMoinsDUnDixiemeDeMillimetreCarre) {
  const modele m(poutre(lit_bas) + "FIN_\n");
  zof_ferraillage& zone =
      dynamic_cast<zof_ferraillage&>(*zof_get_pt_nom_zone_section("POUTRE", socle::texte<32>("INF")));
  zof_declarer_aciers_passifs_dimensionnables_section("POUTRE");
  const double aire_pleine = 4 * zone.m_matiere_zone_qb7;
  const auto diametre_pour = [&](double aire) {
    gestion_dimensionnement_reinitialiser();
    EXPECT_EQ(
        qb7_fixer_c_remplissage(zone.m_numero_section_qb7, zone.get_numero_zone_qb7(), aire / aire_pleine)
            .code,
        0);
    zof_envelopper_aciers_dimensionnes_toutes_sollicitations("POUTRE");
    zof_affecter_aciers_dimensionnes("POUTRE", zone.m_numero_section_qb7);
    return zone.m_diametre_zone;
  };
  EXPECT_EQ(diametre_pour(5e-8), 0);
  EXPECT_EQ(diametre_pour(2e-7), 0.001);  // four bars of 0.25 mm: 1 in whole millimetres
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
  const std::string phases = fichier(poutre(lit_bas) + R"(
SOLL T SECT POUTRE PHAS TITR 't' REPE GEOM ETAT ELU DURA SITU EXPL SERV POND
  PHAS 'tout' ZONE AME FIN_ZONE EFFO G MY 0.1 TITR 'g' FIN_EFFO
FIN_ETAT FIN_SOLL
DIME POUTRE SOLL T FIN_DIME
)");
  for (const std::string& donnees : {precontrainte, phases}) {
    const course c = executer(donnees);
    EXPECT_EQ(c.statut, 1);
    EXPECT_THAT(c.listing, HasSubstr(" Mot clef  SOLL incorrect dans ce contexte"));
    EXPECT_THAT(c.txt, Not(HasSubstr("Dimensionnement de la section")));
  }
}

// ---- Designs one after the other

TEST(Dimensionnement, RecommenceAuDebutAChaqueCommande) {
  // A second design knows nothing of the first: neither of its envelope nor of its filling.
  const std::string debut =
      poutre(lit_bas + lit_haut) + chargement("FORT", cas("MY 0.25")) + chargement("FAIBLE", cas("MY 0.10"));
  const auto aire = [&debut](const std::string& commandes) {
    const modele m(debut + commandes + "FIN_\n");
    EXPECT_FALSE(m.erco()) << m.console();
    return aire_acier("INF");
  };
  const std::string faible = "DIME POUTRE SOLL FAIBLE FIN_DIME\n";
  const double seul = aire(faible);
  EXPECT_EQ(aire("DIME POUTRE SOLL FORT FIN_DIME\n" + faible), seul);
  EXPECT_EQ(aire(faible + faible), seul);
  EXPECT_NEAR(seul, aire_flexion_simple(0.10, 0.30, 0.55), 0.02 * seul);
}

/// A column 0.50 x 0.50 with bars in its four faces, all of them to be designed.
std::string poteau() {
  const auto face = [](const std::string& nom, const std::string& numero, const std::string& droite) {
    return "FERR " + nom + " MATE B500 DIAM 16. DIME OUI\n POIN DROI NUME " + numero + " NOMB " + droite +
           " FIN_DROI FIN_POIN FIN_FERR\n";
  };
  return materiaux + "SECT POUTRE TITR 'Poteau' CONT AME MATE C30 RECT HAUT 0.50 LARG 0.50 FIN_RECT\n" +
         face("BAS", "101", "3 Y_OR -0.20 Z_OR -0.20 Y_EX 0.20 Z_EX -0.20") +
         face("HAUT", "201", "3 Y_OR -0.20 Z_OR 0.20 Y_EX 0.20 Z_EX 0.20") +
         face("GAU", "301", "2 Y_OR -0.20 Z_OR -0.07 Y_EX -0.20 Z_EX 0.07") +
         face("DRO", "401", "2 Y_OR 0.20 Z_OR -0.07 Y_EX 0.20 Z_EX 0.07") + "FIN_CONT FIN_SECT\n";
}

TEST(Dimensionnement, JustifieUnPoteauEnFlexionDevieeAuxDeuxEtatsLimites) {
  const std::string etats =
      "SOLL M SECT POUTRE TITR 'Charges' REPE GEOM\n"
      "ETAT ELU DURA SITU EXPL SERV POND\n" +
      cas("N 0.5 MY 0.25 MZ 0.15") + "FIN_ETAT ETAT ELS CARA SITU EXPL SERV POND\n" +
      cas("N 0.35 MY 0.15 MZ 0.08") + "FIN_ETAT FIN_SOLL\n";
  const course c = executer(fichier(poteau() + etats + "JUST POUTRE SOLL M FIN_JUST\n" +
                                    "DIME POUTRE SOLL M FIN_DIME\n" + "JUST POUTRE SOLL M FIN_JUST\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.console, Not(HasSubstr("non optimale")));
  const std::size_t dime = c.console.find("FIN_DIME");
  const std::string avant = c.console.substr(0, dime);
  const std::string apres = c.console.substr(dime);
  // The ten bars of 16 that were typed do not carry the ultimate state.
  EXPECT_THAT(avant, HasSubstr("==> Non Equilibre sous :cas - ELU_DURABLE"));
  EXPECT_THAT(apres, HasSubstr("==> Equilibre sous :cas - ELU_DURABLE-EXPLOITATION_SERVICE"));
  EXPECT_THAT(apres, HasSubstr("==> Equilibre sous :cas - ELS_CAR-EXPLOITATION_SERVICE"));
  EXPECT_THAT(apres, Not(HasSubstr("Non Equilibre")));
}

TEST(Dimensionnement, PlaceLEffortSurLeDiagrammeDInteraction) {
  // The curve of the designed section passes through the moment that it was designed for.
  const double moment = 0.15;
  const course c =
      executer(fichier(poutre(lit_bas) + chargement("M", cas("MY 0.15")) + "DIME POUTRE SOLL M FIN_DIME\n" +
                       "INTE D SECT POUTRE SITU EXPL SERV ETAT ELU DURA FIN_INTE\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  const std::string entete = "My             N              \n------------------------------\n";
  std::size_t p = c.txt.find(entete);
  ASSERT_NE(p, std::string::npos) << c.txt;
  std::istringstream valeurs(c.txt.substr(p + entete.size()));
  std::vector<std::pair<double, double>> points;
  for (double my = 0, n = 0; valeurs >> my >> n;) points.emplace_back(my, n);
  ASSERT_GE(points.size(), 20U);
  double resistant = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const auto [my_1, n_1] = points[i];
    const auto [my_2, n_2] = points[(i + 1) % points.size()];
    if ((n_1 > 0) == (n_2 > 0)) continue;
    resistant = std::max(resistant, my_1 + (my_2 - my_1) * n_1 / (n_1 - n_2));
  }
  EXPECT_NEAR(resistant, moment, 0.02 * moment);  // a chord between two points of the curve
}

// ---- A programme without a solution

TEST(Dimensionnement, DitUneSolutionNonOptimaleQuUneJustificationDement) {
  // The T beam under its ultimate cases alone. A second calculation of the same steps by fibres, its linear
  // programmes solved by another simplex, finds 22.17 cm2 at the start, 16.63 and 14.508 after two steps, and
  // no solution to the third programme: two of its cases want at least 5.38 cm2 more and at most 3.09 cm2
  // more. What stands is that of the second step, and not enough.
  std::string donnees = contenu(ZOF_EXEMPLES "/poutre_en_te/poutre_en_te.zof");
  const std::string deux = "  SOLL ELU\n  SOLL ELS\n";
  for (std::size_t p = donnees.find(deux); p != std::string::npos; p = donnees.find(deux))
    donnees.replace(p, deux.size(), "  SOLL ELU\n");
  const course c = executer(donnees);
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.txt, HasSubstr("  - Echec de l optimisation : solution obtenue non optimale\n"));
  EXPECT_THAT(c.console, HasSubstr("==> Echec de l optimisation : solution obtenue non optimale \n"));
  EXPECT_THAT(c.txt, HasSubstr("Section d'acier totale necessaire: 15cm2 - diametre minimal:20mm"));
  EXPECT_THAT(c.console, HasSubstr("==> Non Equilibre sous :G_max + Q1_max"));
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :G_min + Q1_min"));
  const modele m(donnees.substr(4, donnees.find("JUST TE") - 4) + "FIN_\n");
  EXPECT_NEAR(aire_acier("INF", "TE"), 14.508e-4, 0.001e-4);
}

// ---- Bars laid automatically

std::string automatique(const std::string& options, const std::string& nom = "AUTO") {
  return "FERR " + nom + " MATE B500 DIME OUI\n OPTI " + options + " FIN_OPTI FIN_FERR\n";
}

std::vector<point_yz> barres(const std::string& zone) {
  const auto& z =
      dynamic_cast<const zof_ferraillage&>(*zof_get_pt_nom_zone_section("POUTRE", socle::texte<32>(zone)));
  std::vector<point_yz> points;
  for (const zof_point& p : uef_parcours<zof_point>(z.m_les_points_zone)) points.push_back({p.m_y, p.m_z});
  return points;
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

TEST(Dimensionnement, GardeUnLitTypeQuiSuffit) {
  // Four bars of 20 at d = 0.56 m have 12.57 cm2, more than the 4.2 cm2 that are wanted: the layer stays.
  const course c = executer(
      fichier(poutre("FERR LIT MATE B500 DIAM 20. DIME OUI LITS INFE NOMB 4 ENRO 0.03 FIN_LITS FIN_FERR") +
              chargement("M", cas("MY 0.1")) + "DIME POUTRE SOLL M FIN_DIME\nJUST POUTRE SOLL M FIN_JUST\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_LT(aire_flexion_simple(0.1, 0.30, 0.56), 5e-4);
  EXPECT_THAT(c.txt, HasSubstr("Section acier necessaire     : 5 cm2"));
  EXPECT_THAT(c.txt, HasSubstr("Label acier optimal          : P_20"));
  EXPECT_THAT(c.txt, HasSubstr("Nombre aciers places         : 4\n"));
  EXPECT_THAT(c.txt, HasSubstr("section acier placee         : 13 cm2"));
  EXPECT_THAT(c.txt, HasSubstr("Espacement max effectif      : 74 mm"));   // 0.22 / 3
  EXPECT_THAT(c.txt, HasSubstr("Pourcentage de Ferraillage total : 1%"));  // 0.7 of 0.18 m2
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :cas"));
}

TEST(Dimensionnement, MontreApresCoupLesNouvellesBarres) {
  // Two bars of 20 are not enough for 12 cm2: the same layer with four, in the note, in the drawing and in
  // the engine.
  const std::string debut = poutre(
                                "FERR LIT MATE B500 DIAM 20. DIME OUI\nLITS INFE NOMB 2 ENRO 0.03 E_MA 0.25 "
                                "E_MI 0.02 FIN_LITS FIN_FERR") +
                            chargement("M", cas("MY 0.25"));
  const std::string dime = "DIME POUTRE SOLL M FIN_DIME\n";
  const course c = executer(
      fichier(debut + "EDIT SECT POUTRE\n" + dime + "EDIT SECT POUTRE\nJUST POUTRE SOLL M FIN_JUST\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_EQ(std::ceil(1e4 * aire_flexion_simple(0.25, 0.30, 0.56)), 12);
  EXPECT_THAT(c.txt, HasSubstr("Ajustement Espacements       : reussi"));
  const std::size_t apres = c.txt.find("Resultat final dimensionnement");
  EXPECT_EQ(c.txt.substr(0, apres).find("0.0367    -0.2600"), std::string::npos);
  EXPECT_THAT(c.txt.substr(apres), HasSubstr("0.0367    -0.2600"));
  EXPECT_THAT(c.txt.substr(apres), HasSubstr("Espacement max effectif (m) : 0.73333E-01"));
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :cas"));
  ASSERT_TRUE(c.svg.contains("POUTRE_1.svg"));
  ASSERT_TRUE(c.svg.contains("POUTRE_2.svg"));
  EXPECT_EQ(occurrences(c.svg.at("POUTRE_1.svg"), "<circle"), 2);
  EXPECT_EQ(occurrences(c.svg.at("POUTRE_2.svg"), "<circle"), 4);
  const modele m(debut + dime + "FIN_\n");
  EXPECT_NEAR(aire_acier("LIT"), 4 * 3.14159265e-4, 1e-9);
}

TEST(Dimensionnement, MontreLeDiametreDesBarresExplicites) {
  const course c = executer(fichier(poutre(lit_bas) + chargement("M", cas("MY 0.1944")) +
                                    "DIME POUTRE SOLL M FIN_DIME\nEDIT SECT POUTRE\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  const std::size_t edition = c.txt.find("Caract");
  ASSERT_NE(edition, std::string::npos);
  EXPECT_THAT(c.txt.substr(edition), HasSubstr("  - Diametre (mm) : 17.000\n"));
}

TEST(Dimensionnement, NePoseQuUneBarreDansUnCoinDeDeuxFaces) {
  // Sides first: both corners belong to them. The bottom then has inner bars alone, and their number too.
  const modele m(poutre(automatique("DISP LATE STRI ENRO 0.03 E_MA 0.15 SELE P_25 FIN_", "LAT") +
                        automatique("DISP INFE STRI ENRO 0.03 E_MA 0.15 E_MI 0.02 SELE P_25 FIN_", "BAS")) +
                 chargement("M", cas("MY 0.2")) + "DIME POUTRE SOLL M FIN_DIME FIN_\n");
  ASSERT_FALSE(m.erco()) << m.console();
  EXPECT_EQ(barres("LAT").size(), 10U);
  std::vector<point_yz> toutes = barres("BAS");
  ASSERT_EQ(toutes.size(), 2U);  // 9 cm2 in bars of 4.91 cm2
  for (const point_yz& p : toutes) {
    EXPECT_NEAR(std::abs(p.y), 0.215 / 6, 1e-6);
    EXPECT_NEAR(p.z, -0.2575, 1e-6);
  }
  const std::vector<point_yz> laterales = barres("LAT");
  toutes.insert(toutes.end(), laterales.begin(), laterales.end());
  for (std::size_t i = 0; i < toutes.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_GT(std::hypot(toutes[i].y - toutes[j].y, toutes[i].z - toutes[j].z), 0.02);
  EXPECT_NEAR(aire_acier("BAS"), 2 * 4.90873852e-4, 1e-9);
  EXPECT_NEAR(aire_acier("LAT"), 10 * 4.90873852e-4, 1e-9);
}

TEST(Dimensionnement, PoseAussiLeLongDUnVide) {
  // A box 1.00 x 0.80 with a void of 0.60 x 0.40: the bottom of the contour and that of the void bear bars.
  const auto donnees = [](const std::string& selection) {
    return materiaux +
           "SECT POUTRE TITR 'Caisson' CONT AME MATE C30 RECT HAUT 1.00 LARG 0.80 FIN_RECT\n"
           "EVID VIDE RECT HAUT 0.60 LARG 0.40 FIN_RECT FIN_EVID\n" +
           automatique("DISP INFE PARO ENRO 0.03 E_MA 0.15 E_MI 0.02 SELE " + selection + " FIN_") +
           "FIN_CONT FIN_SECT\n" + chargement("M", cas("MY 0.6")) + "DIME POUTRE SOLL M FIN_DIME\n";
  };
  {
    // Bars of 20: 0.72 m in five spacings, 0.48 m in four.
    const modele m(donnees("P_20") + "FIN_\n");
    ASSERT_FALSE(m.erco()) << m.console();
    EXPECT_EQ(barres("AUTO").size(), 11U);
    EXPECT_NEAR(aire_acier("AUTO"), 11 * 3.14159265e-4, 1e-9);
  }
  {
    // Bars of 8: as many as the steel takes, shared over both sides by their lengths of 0.732 m and 0.468 m.
    const modele m(donnees("P_8") + "FIN_\n");
    ASSERT_FALSE(m.erco()) << m.console();
    int au_contour = 0;
    int au_vide = 0;
    for (const point_yz& p : barres("AUTO")) ++(std::abs(p.z + 0.466) < 1e-6 ? au_contour : au_vide);
    EXPECT_EQ(au_contour, 19);
    EXPECT_EQ(au_vide, 13);
    EXPECT_NEAR(0.732 / (au_contour - 1), 0.468 / (au_vide - 1), 0.003);
    EXPECT_NEAR(aire_acier("AUTO"), 32 * 0.502654825e-4, 1e-9);
  }
  const course c = executer(fichier(donnees("P_8") + "JUST POUTRE SOLL M FIN_JUST\n"));
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :cas"));
}

TEST(Dimensionnement, ChoisitLaBarreDUnGroupeParSonAire) {
  // 11.9 cm2 at three points, three bars each: 12 mm gives 10.2 cm2, 16 mm 18.1 cm2.
  const course c = executer(fichier(
      poutre(automatique("DISP INFE STRI ENRO 0.03 E_MA 0.20 E_MI 0.02 GROU 3 SELE P_12 P_16 P_20 FIN_")) +
      chargement("M", cas("MY 0.25")) + "DIME POUTRE SOLL M FIN_DIME\nJUST POUTRE SOLL M FIN_JUST\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, HasSubstr("Section acier necessaire     : 12 cm2"));
  EXPECT_THAT(c.txt, HasSubstr("Label acier optimal          : P_16"));
  EXPECT_THAT(c.txt, HasSubstr("Nombre aciers places         : 3\n"));
  EXPECT_THAT(c.txt, HasSubstr("section acier placee         : 19 cm2"));
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :cas"));
}

TEST(Dimensionnement, ArreteQuandLesBarresNeTiennentPlusCoteACote) {
  // 600 cm2 in bars of 6 along 0.234 m: they would stand less than a millimetre apart, and count as one.
  const course c = executer(fichier(poutre(automatique("DISP PERI STRI ENRO 0.03 SELE P_6 FIN_")) +
                                    chargement("T", cas("N -26.")) + "DIME POUTRE SOLL T FIN_DIME\n"));
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, HasSubstr("Zof_Ajuster_ferraillage_automatique : Cas impossible"));
}

TEST(Dimensionnement, PartageLesBarresEntreLesLits) {
  // Two layers at 0.264 and 0.204 m under the axis: 12.6 cm2 for their mean of d = 0.534 m, six bars of 12 in
  // each.
  const course c = executer(fichier(
      poutre(automatique("DISP INFE STRI ENRO 0.03 LITS 2 DIST 0.06 E_MA 0.20 E_MI 0.02 SELE P_12 FIN_")) +
      chargement("M", cas("MY 0.25")) + "DIME POUTRE SOLL M FIN_DIME\nJUST POUTRE SOLL M FIN_JUST\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_EQ(std::ceil(aire_flexion_simple(0.25, 0.30, 0.534) / 2 / 1.130973e-4), 6);
  EXPECT_THAT(c.txt, HasSubstr("Nombre aciers places         : 12\n"));
  EXPECT_THAT(c.txt, HasSubstr("section acier placee         : 14 cm2"));
  EXPECT_THAT(c.console, HasSubstr("==> Equilibre sous :cas"));
}

TEST(Dimensionnement, EditeLaBarreChoisie) {
  const course c =
      executer(fichier(poutre(automatique("DISP INFE STRI ENRO 0.03 E_MA 0.15 SELE P_12 P_20 P_32 FIN_")) +
                       chargement("M", cas("MY 0.15")) + "DIME POUTRE SOLL M FIN_DIME\nEDIT SECT POUTRE\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, HasSubstr("Label acier optimal          : P_20"));
  EXPECT_THAT(c.txt, HasSubstr("  - Diametre (mm) : 20.000\n"));
}

TEST(Dimensionnement, FaitLeBilanDeToutesLesZones) {
  // The bottom fails to keep its spacings, the sides behind it do not: the whole has failed. All steel
  // counts.
  const std::string bas = automatique("DISP INFE STRI ENRO 0.03 E_MA 0.15 E_MI 0.02 SELE P_8 FIN_", "BAS");
  const std::string cotes = automatique("DISP LATE STRI ENRO 0.03 E_MA 0.15 SELE P_12 FIN_", "LAT");
  const course c = executer(
      fichier(poutre(bas + cotes) + chargement("M", cas("MY 0.2")) + "DIME POUTRE SOLL M FIN_DIME\n"));
  ASSERT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, HasSubstr("Ajustement Espacements       : en echec"));
  EXPECT_THAT(c.txt, HasSubstr("Ajustement du ferraillage : Effectue\n"));
  EXPECT_THAT(c.txt, HasSubstr("Resultat final dimensionnement automatique : Effectue avec non respect des "
                               "espacements specifies\n"));
  // Some 9 cm2 of the bottom and ten bars of 12 in the sides: 1.1 % of 0.18 m2; the sides alone have 0.6 %.
  EXPECT_THAT(c.txt, HasSubstr("Pourcentage de Ferraillage total : 2%"));
}

TEST(Dimensionnement, DimensionneDansLeRepereDuChargement) {
  // N = 0.4 at 0.25 m under the axis takes 0.10 off the moment. The loading that is read last has another
  // frame than the one that is designed.
  const auto donnees = [](const std::string& repere, const std::string& moment) {
    return poutre(lit_bas) + "SOLL M SECT POUTRE TITR 'Charges' REPE " + repere +
           " ETAT ELU DURA SITU EXPL SERV POND\n" + cas("N 0.4 MY " + moment) + "FIN_ETAT FIN_SOLL\n" +
           chargement("AUTRE", cas("MY 0.1")) + "DIME POUTRE SOLL AUTRE SOLL M FIN_DIME FIN_\n";
  };
  double attendu = 0;
  {
    const modele m(donnees("GEOM", "0.25"));
    ASSERT_FALSE(m.erco()) << m.console();
    attendu = aire_acier("INF");
  }
  const modele m(donnees("Y 0. Z -0.25 ANGL 0.", "0.35"));
  ASSERT_FALSE(m.erco()) << m.console();
  EXPECT_GT(attendu, aire_flexion_simple(0.1, 0.30, 0.55));
  EXPECT_NEAR(aire_acier("INF"), attendu, 1e-3 * attendu);
}
