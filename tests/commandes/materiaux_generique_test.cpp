// The command MATE on whole data files: generic materials, up to the sections that are made of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "Blocs_Materiaux.hpp"
#include "Zof_Classe_Materiau_Generique.hpp"
#include "Zof_Gestion_Materiau.hpp"

using namespace blocs_mate;
using namespace socle;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string generique(const std::string& mots) {
  return "MATE SPEC LOI TITR 'Loi libre'\n" + mots + "\nFIN_MATE";
}
std::string situation_generique(const std::string& mots, const std::string& situation = "EXPL SERV") {
  return generique("SITU " + situation + " TITR 'Situation'\n" + mots + "\nFIN_SITU");
}
/// A law of one state of service.
std::string loi(const std::string& mots) { return situation_generique("CARA " + mots + "\nFIN_"); }

std::string piece(double epsilon, double a0, double a1, double a2 = 0, double a3 = 0) {
  return "INTE EPSI " + reel(epsilon) + " A0 " + reel(a0) + " A1 " + reel(a1) + "\nA2 " + reel(a2) + " A3 " +
         reel(a3) + " FIN_INTE\n";
}

zof_situation_materiau_generique& la_situation(const char* label = "EXPLOITATION_SERVICE") {
  return dynamic_cast<zof_situation_materiau_generique&>(
      *zof_get_pt_situation_materiau("LOI", std::string(label)));
}

using MateGenerique = commande;
using SituationGenerique = commande;
using LoiGenerique = commande;

}  // namespace

// --- The material and its situations
// ------------------------------------------------------------------------------------

// No situation is added to those that are written.
TEST_F(MateGenerique, SeulesLesSituationsEcritesExistent) {
  lire(
      generique("SITU SEIS TITR 'Seisme' ELU ACCI INTE EPSI -1. A1 2. FIN_INTE FIN_ FIN_SITU\n"
                "SITU EXPL INFI TITR 'Longue' QUAS INTE EPSI -1. A1 3. FIN_INTE FIN_ FIN_SITU"));
  EXPECT_EQ(zof_type_materiau("LOI"), type_materiau_generique);
  const zof_materiau& m = *zof_get_pt_materiau("LOI");
  EXPECT_EQ(m.get_titre_materiau().utile(), "Loi libre");
  EXPECT_EQ(situations_de(m), (std::vector<std::string>{"SEISME", "EXPLOITATION_INFINIE"}));
  int rang = 0;
  for (const auto& s : uef_parcours<zof_situation_materiau_generique>(m.m_les_situations)) {
    EXPECT_EQ(s.get_numero_ordre_situation(), ++rang);
    EXPECT_EQ(s.get_nom_materiau().utile(), "LOI");
    EXPECT_EQ(s.get_titre_materiau().utile(), "Loi libre");
    EXPECT_EQ(s.m_pt_materiau, &m);
    EXPECT_FALSE(s.m_element_pointe);
  }
  EXPECT_EQ(la_situation("SEISME").get_titre_situation().utile(), "Seisme");
  EXPECT_EQ(contrainte(1, 5011, 0.5), 1.0);
  EXPECT_EQ(contrainte(1, 2004, 0.5), 1.5);
}

// The elastic properties come behind the laws, of modulus 1 and 2001 in holes, except in accidental
// situations.
TEST_F(MateGenerique, EtatsLimitesDansLOrdreDesLois) {
  lire(situation_generique(
      "FREQ INTE EPSI -1. A1 1. FIN_INTE FIN_ ELU ACCI INTE EPSI -1. A1 2. FIN_INTE FIN_\n"
      "CARA INTE EPSI -1. A1 3. FIN_INTE FIN_ QUAS INTE EPSI -1. A1 4. FIN_INTE FIN_"));
  EXPECT_EQ(etats_de(la_situation()),
            (std::vector<std::string>{"ELS_FRE", "ELU_ACCIDENT", "ELS_CAR", "ELS_QP", "MECA_BRUT", "MECA_NET",
                                      "MECA_HOMOGENEISEE"}));
  const std::vector<int> numeros = {1005, 1011, 1006, 1004};
  for (std::size_t i = 0; i < numeros.size(); ++i)
    EXPECT_EQ(contrainte(1, numeros[i], -1.0), -1.0 - static_cast<double>(i));
  for (const int etat : {1001, 1002, 1003}) {
    int type_trou = 0;
    EXPECT_EQ(contrainte(1, etat, -2.0), -2.0);
    EXPECT_FALSE(qb7_lire_type_trou(1, etat, type_trou));
    EXPECT_EQ(type_trou, qb7_trou_matiere);
  }
  for (const std::string situation : {"ACCI", "SEIS"}) {
    lire(situation_generique("CARA INTE EPSI -1. A1 1. FIN_INTE FIN_ ELU DURA INTE EPSI -1. FIN_INTE FIN_",
                             situation));
    EXPECT_EQ(etats_de(la_situation(situation == "ACCI" ? "ACCIDENT" : "SEISME")),
              (std::vector<std::string>{"ELS_CAR", "ELU_DURABLE"}));
  }
}

TEST_F(MateGenerique, Refus) {
  verifier_refus(generique("FYK 500."), mot_incorrect("FYK "));
  verifier_refus(generique("TITR 'encore'"), repetition_titre());
  verifier_refus(generique("SITU VENT"), mot_incorrect("VENT"));
  verifier_refus("MATE SPEC X FIN_MATE", "     - Titre: non renseigne(e)\n     -  Situation non renseignee ");
  verifier_refus("MATE SPEC X TITR 't' FIN_MATE", message(" Situation non renseignee "));
  verifier_refus("MATE SPEC X SITU SEIS TITR 's' CARA INTE EPSI 0. FIN_INTE FIN_ FIN_SITU FIN_MATE",
                 message("Titre: non renseigne(e)"));
  verifier_refus(loi("INTE EPSI 0. FIN_INTE") + "\nMATE BETO LOI",
                 message(" Materiau deja defini : LOI                             "));
  verifier_refus("MATE BETO LOI TITR 'b' FCK 30. PREC NON FIN_MATE\nMATE SPEC LOI",
                 message(" Materiau deja defini : LOI                             "));
  verifier_arret(generique("FIN_SITU"),
                 "Erreur de commande : \n     - FIN_SITUIncorrect dans ce contexte - Attendu : FIN_MATE\n"
                 "ARRET PREMATURE DE ZOF");
}

// The title may stand before the kind; a second kind may not.
TEST_F(SituationGenerique, LaSituationPrecedeLesLois) {
  lire(generique("SITU TITR 's' EXPL SERV CARA INTE EPSI -1. A1 1. FIN_INTE FIN_ FIN_SITU"));
  EXPECT_EQ(la_situation().get_titre_situation().utile(), "s");
  const std::string avant = message("La Situation de projet doit etre choisie avant la definition des lois");
  for (const std::string mot : {"ELU DURA", "CARA", "FREQ", "QUAS"}) {
    verifier_refus(generique("SITU " + mot), avant);
    verifier_refus(generique("SITU TITR 's' " + mot), avant);
  }
  for (const std::string mot : {"EXPL SERV", "EXPL INFI", "CONS", "ACCI", "SEIS"})
    verifier_refus(generique("SITU CONS " + mot), message("situation incorrectement definie"));
  verifier_refus(generique("SITU EXPL LONG"), mot_incorrect("LONG"));
}

TEST_F(SituationGenerique, Refus) {
  const std::string une_loi = "INTE EPSI -1. A1 1. FIN_INTE FIN_";
  for (const cas& r : std::vector<cas>{{"TITR 'encore'", repetition_titre()},
                                       {"PARA MODU 1.", mot_incorrect("PARA")},
                                       {"ELS CARA", mot_incorrect("ELS ")},
                                       {"ELU PARF", mot_incorrect("PARF")},
                                       {"FIN_SITU", message("Aucune loi n est definie")}})
    verifier_refus(situation_generique(r.mots), r.lignes);
  for (const std::string mot : {"CARA", "FREQ", "QUAS"})
    verifier_refus(situation_generique(mot + " " + une_loi + " " + mot),
                   "       - Repetition interdite du mot clef:" + mot);
  for (const std::string mot : {"DURA", "ACCI"})
    verifier_refus(situation_generique("ELU DURA " + une_loi + " ELU " + mot),
                   "       - Repetition interdite du mot clef:ELU");
  verifier_refus(generique("SITU FIN_SITU"),
                 "     - La Situation de projet doit etre definie\n     - Aucune loi n est definie\n"
                 "     - Titre: non renseigne(e)");
  verifier_refus(generique("SITU SEIS CARA " + une_loi + " FIN_SITU"), message("Titre: non renseigne(e)"));
  for (const std::string mots : {"EXPL SERV", "EXPL INFI", "CONS", "ACCI", "SEIS"}) {
    const std::string bloc = "SITU " + mots + " TITR 's' CARA " + une_loi + " FIN_SITU\n";
    verifier_refus(generique(bloc + bloc), message("Situation deja definie"));
  }
  verifier_arret(situation_generique("CARA " + une_loi + " FIN_MATE"),
                 "Erreur de commande : \n     - FIN_MATEIncorrect dans ce contexte - Attendu : FIN_SITU\n"
                 "ARRET PREMATURE DE ZOF");
}

// --- Laws
// ------------------------------------------------------------------------------------

// Each piece from its strain on, the first from minus infinity; a knot belongs to the piece on its right.
TEST_F(LoiGenerique, ChaquePieceASonPolynome) {
  lire(loi("MIN -0.5D0 MAX 4. " + piece(-1, 1, 2) + piece(0, 10, -3, 5, 7) + piece(2, -1, 0, 0.5) +
           piece(3, 0, 0, 0, 0.25)));
  EXPECT_EQ(contrainte(1, 1006, -9.0), -17);
  EXPECT_EQ(contrainte(1, 1006, -0.5), 0);
  EXPECT_EQ(contrainte(1, 1006, 0.0), 10);
  EXPECT_EQ(contrainte(1, 1006, 1.0), 19);
  EXPECT_EQ(contrainte(1, 1006, 2.0), 1);
  EXPECT_EQ(contrainte(1, 1006, 3.0), 6.75);
  EXPECT_EQ(contrainte(1, 1006, 10.0), 250);
  EXPECT_EQ(borne_min(1, 1006), -0.5);
  EXPECT_EQ(borne_max(1, 1006), 4);
  int nombre = 0;
  int degre = 0;
  EXPECT_FALSE(qb7_lire_dims_loi(1, 1006, nombre, degre));
  EXPECT_EQ(nombre, 4);
  EXPECT_EQ(degre, 3);
  int type_trou = 0;
  EXPECT_FALSE(qb7_lire_type_trou(1, 1006, type_trou));
  EXPECT_EQ(type_trou, qb7_trou_encombrement);
}

// Only the strain of a piece is obligatory, and a law may be without limits, or with one.
TEST_F(LoiGenerique, CeQuiNEstPasDitEstNul) {
  lire(
      situation_generique("CARA INTE EPSI 0. FIN_INTE FIN_ FREQ MIN -1. INTE EPSI 0. A2 2. FIN_INTE FIN_\n"
                          "QUAS MAX 1. INTE A3 2. EPSI 0. FIN_INTE FIN_ELS"));
  EXPECT_EQ(contrainte(1, 1006, 3.0), 0);
  EXPECT_EQ(contrainte(1, 1005, 3.0), 18);
  EXPECT_EQ(contrainte(1, 1004, 3.0), 54);
  EXPECT_EQ(borne_min(1, 1006), qb7_sans_borne);
  EXPECT_EQ(borne_max(1, 1006), qb7_sans_borne);
  EXPECT_EQ(borne_min(1, 1005), -1);
  EXPECT_EQ(borne_max(1, 1005), qb7_sans_borne);
  EXPECT_EQ(borne_min(1, 1004), qb7_sans_borne);
  EXPECT_EQ(borne_max(1, 1004), 1);
}

// The limits may stand behind the pieces; zero is on both sides.
TEST_F(LoiGenerique, BornesNulles) {
  lire(loi("INTE EPSI 0. A1 1. FIN_INTE MIN 0. MAX 0.001D0"));
  EXPECT_EQ(borne_min(1, 1006), 0);
  lire(loi("MAX 0. MIN -0.001D0 INTE EPSI 0. A1 1. FIN_INTE"));
  EXPECT_EQ(borne_max(1, 1006), 0);
}

TEST_F(LoiGenerique, Refus) {
  for (const cas& r :
       std::vector<cas>{{"MIN 0.001D0", message("Valeur attribut MIN  incorrecte >0")},
                        {"MAX -1.", message("Valeur attribut MAX  incorrecte <0")},
                        {"MIN -1. MIN -1.", repetition("MIN")},
                        {"MAX 1. MAX 1.", repetition("MAX")},
                        {"FIN_", message("Aucun intervalle n est defini")},
                        {"MIN -1. MAX 1. FIN_", message("Aucun intervalle n est defini")},
                        {"EPSI 0.", mot_incorrect("EPSI")},
                        {"INTE FIN_INTE", message("EPSI: non renseigne(e)")},
                        {"INTE A0 1. A1 1. A2 1. A3 1. FIN_INTE", message("EPSI: non renseigne(e)")},
                        {"INTE A4 1.", mot_incorrect("A4  ")},
                        {"INTE MIN -1.", mot_incorrect("MIN ")},
                        {"INTE EPSI 0. EPSI 0.", repetition("EPSI")},
                        {"INTE A0 0. A0 0.", repetition("A0")},
                        {"INTE A1 0. A1 0.", repetition("A1")},
                        {"INTE A2 0. A2 0.", repetition("A2")},
                        {"INTE A3 0. A3 0.", repetition("A3")}}) {
    SCOPED_TRACE(r.mots);
    verifier_refus(loi(r.mots), r.lignes);
    verifier_refus(situation_generique("ELU DURA " + r.mots), r.lignes);
  }
  for (const std::string fin : {"FIN_", "FIN_LOI"})
    verifier_arret(loi("INTE EPSI 0. " + fin),
                   "Erreur de commande : \n     - " + fin + std::string(8 - fin.size(), ' ') +
                       "Incorrect dans ce contexte - Attendu : FIN_INTE\nARRET PREMATURE DE ZOF");
  const course c = executer_bloc(loi("INTE EPSI 'un'"));
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, HasSubstr("TERME LU INCORRECT : NON ENTIER REEL OU REEL DOUBLE"));
}

// A law ends on any word in FIN_: the end of its situation, if its own is left out, and the material's end is
// then met inside the situation.
TEST_F(LoiGenerique, FinsOubliees) {
  verifier_arret(generique("SITU EXPL SERV TITR 's' CARA INTE EPSI 0. FIN_INTE FIN_SITU"),
                 "Erreur de commande : \n     - FIN_MATEIncorrect dans ce contexte - Attendu : FIN_SITU\n"
                 "ARRET PREMATURE DE ZOF");
  verifier_arret(generique("SITU EXPL SERV TITR 's' CARA INTE EPSI 0. FIN_ FIN_SITU"),
                 "Erreur de commande : \n     - FIN_    Incorrect dans ce contexte - Attendu : FIN_INTE\n"
                 "ARRET PREMATURE DE ZOF");
  verifier_refus(loi("INTE EPSI 0. FIN_INTE FREQ"), mot_incorrect("FREQ"));
  verifier_refus(loi("INTE EPSI 0. INTE"), mot_incorrect("INTE"));
  for (const std::string mots : {"MATE SPEC", "MATE SPEC X SITU", "MATE SPEC X SITU EXPL SERV CARA",
                                 "MATE SPEC X SITU EXPL SERV CARA INTE EPSI 0.", "MATE CHAR X FY 355. FU"}) {
    const course c = executer("ZOF\n" + mots + "\n");
    EXPECT_THAT(c.console, HasSubstr("    ERREUR : FIN PREMATUREE  DU FICHIER DE DONNEES\n")) << mots;
  }
}

// A strain that stands twice is a vertical branch, which no strain plane could follow; the strain of the
// first piece takes no part.
TEST_F(LoiGenerique, LOrdreDesPieces) {
  verifier_arret_du_moteur(loi(piece(-1, 0, 1) + piece(0, 0, 1) + piece(0, 1, 1)), "ERR_DEF_LOI");
  verifier_arret_du_moteur(loi(piece(-1, 0, 1) + piece(1, 0, 1) + piece(0, 0, 1)), "ERR_DEF_LOI");
  verifier_arret_du_moteur(loi(piece(-1, 0, 1) + piece(0, 0, 1) + piece(1, 0, 1) + piece(1, 0, 1)),
                           "ERR_DEF_LOI");
  verifier_arret_du_moteur(loi("MIN 0. MAX 0. " + piece(0, 0, 1)), "ERR_BORNES_LOI");
  lire(loi(piece(5, 0, 1) + piece(0, 0, 2)));
  EXPECT_EQ(contrainte(1, 1006, -3.0), -3);
  EXPECT_EQ(contrainte(1, 1006, 3.0), 6);
}

// Pieces of one line: as many as one likes give the line, to the rounding of their sums.
TEST_F(LoiGenerique, UnGrandNombreDePieces) {
  std::string mots;
  for (int i = 0; i < 3000; ++i) mots += piece((i - 1500) * 1e-6, 0, 30000);
  lire(loi(mots));
  int nombre = 0;
  int degre = 0;
  EXPECT_FALSE(qb7_lire_dims_loi(1, 1006, nombre, degre));
  EXPECT_EQ(nombre, 3000);
  for (const double epsilon : {-0.01, -0.0012345, 0.0, 0.0001, 0.0014995, 0.1})
    EXPECT_EQ(contrainte(1, 1006, epsilon), 30000 * epsilon);
}

// --- The report
// ------------------------------------------------------------------------------------------------

// The whole report in both notes. By hand: 20 (1 - (1 - x/0.002)^2) = 20000 x - 5e6 x^2 is 0 at 0, 15 at
// 0.001, 20 at 0.002 and on to the limit 0.0035; -1 is where the first piece is said to begin; in the
// earthquake 1 + 2 x + 4 x^2 + 8 x^3 is 0 at -0.5 and 15 at 1.
TEST(EditMate, Generique) {
  const course c = executer_bloc(
      generique(
          "SITU EXPL SERV TITR 'Service' ELU DURA MAX 0.0035D0 INTE EPSI -1. FIN_INTE\n"
          "INTE EPSI 0. A1 20000. A2 -5000000. FIN_INTE INTE EPSI 0.002D0 A0 20. FIN_INTE FIN_\n"
          "CARA MAX 0.001D0 INTE EPSI 0. A1 20000. A2 -5000000. FIN_INTE FIN_ FIN_SITU\n"
          "SITU SEIS TITR 'Seisme' ELU ACCI MIN -0.5D0 MAX 1. INTE EPSI -0.5D0 A0 1. A1 2. A2 4. A3 8.\n"
          "FIN_INTE FIN_ FIN_SITU") +
      "\nEDIT MATE");
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_TRUE(fautes_html(c.html).empty());
  const std::string unite = table({"0.00000E+00 0.0000"});
  verifier_les_deux_notes(
      c, "1.1. Materiau : LOI",
      "1.1. Materiau : LOI - Loi libre\n1.1.1. Situation : EXPLOITATION_SERVICE\n"
      "1.1.1.1. Etat limite : ELU_DURABLE\n" +
          table({"-0.10000E+01 0.0000", "0.00000E+00 0.0000", "0.20000E-02 20.000", "0.35000E-02 20.000"}) +
          "1.1.1.2. Etat limite : ELS_CAR\n" + table({"0.00000E+00 0.0000", "0.10000E-02 15.000"}) +
          "1.1.1.3. Etat limite : MECA_BRUT\n" + unite + "1.1.1.4. Etat limite : MECA_NET\n" + unite +
          "1.1.1.5. Etat limite : MECA_HOMOGENEISEE\n" + unite +
          "1.1.2. Situation : SEISME\n1.1.2.1. Etat limite : ELU_ACCIDENT\n" +
          table({"-0.50000E+00 0.0000", "0.10000E+01 15.000"}));
}

// --- Sections of generic materials
// ---------------------------------------------------------------------------------

namespace {

constexpr double b = 0.3;
constexpr double h = 0.6;
constexpr double module_lineaire = 30000;
const std::string rectangle =
    "\nSECT R TITR 'Rectangle' CONT AME TITR 'Ame' MATE LOI RECT HAUT 0.6D0 LARG 0.3D0 FIN_RECT FIN_CONT "
    "FIN_SECT\n";

std::string justifier(double n, double my, double mz, const std::string& etat = "ELS CARA",
                      const std::string& situation = "EXPL SERV") {
  return "SOLL T SECT R TITR 't' REPE GEOM ETAT " + etat + " SITU " + situation + " POND EFFO GQ N " +
         reel(n) + "\nMY " + reel(my) + " MZ " + reel(mz) + " TITR 'cas' FIN_EFFO FIN_ETAT FIN_SOLL\n" +
         "JUST R SOLL T FIN_JUST";
}
bool en_equilibre(const course& c) {
  EXPECT_EQ(c.statut, 0) << c.console;
  return c.console.find("==> Equilibre sous :cas\n") != std::string::npos;
}
const std::string loi_lineaire = loi("MIN -0.0005D0 MAX 0.001D0 INTE EPSI -1. A1 30000. FIN_INTE");

}  // namespace

// sigma = N / A + My z / Iy - Mz y / Iz at the four corners.
TEST(SectionGenerique, LoiLineaire) {
  const course c = executer_bloc(loi_lineaire + rectangle + justifier(1.8, 0.09, 0.045));
  EXPECT_TRUE(en_equilibre(c));
  const double sigma_n = 1.8 / (b * h);
  const double sigma_y = 0.09 / (b * h * h / 6);
  const double sigma_z = 0.045 / (h * b * b / 6);
  EXPECT_NEAR(nombre_apres(c.txt, "- Ex: "), sigma_n / module_lineaire, 1e-8);
  EXPECT_NEAR(nombre_apres(c.txt, "- Ry: "), sigma_y / module_lineaire / (h / 2), 1e-8);
  EXPECT_NEAR(nombre_apres(c.txt, "- Rz: "), sigma_z / module_lineaire / (b / 2), 1e-7);
  struct coin {
    std::string point;
    double signe_y, signe_z;
  };
  for (const coin& k : std::vector<coin>{{"\n1           0.1500    0.3000", 1, 1},
                                         {"\n2           -0.1500   0.3000", -1, 1},
                                         {"\n3           -0.1500   -0.3000", -1, -1},
                                         {"\n4           0.1500    -0.3000", 1, -1}}) {
    const double sigma = sigma_n + k.signe_z * sigma_y - k.signe_y * sigma_z;
    const auto ici = c.txt.find(k.point);
    ASSERT_NE(ici, std::string::npos) << k.point;
    EXPECT_NEAR(std::stod(c.txt.substr(ici + k.point.size() + 3, 14)), sigma / module_lineaire, 1e-8);
    EXPECT_NEAR(std::stod(c.txt.substr(ici + k.point.size() + 17, 14)), sigma, 1e-3);
  }
}

// The limits of the strain judge: 15 MPa in tension, 30 in compression.
TEST(SectionGenerique, BornesDeLaLoi) {
  const double w = b * h * h / 6;
  EXPECT_TRUE(en_equilibre(executer_bloc(loi_lineaire + rectangle + justifier(0, 0.9999 * 15 * w, 0))));
  EXPECT_FALSE(en_equilibre(executer_bloc(loi_lineaire + rectangle + justifier(0, 1.0001 * 15 * w, 0))));
  EXPECT_TRUE(en_equilibre(executer_bloc(loi_lineaire + rectangle + justifier(0.9999 * 30 * b * h, 0, 0))));
  EXPECT_FALSE(en_equilibre(executer_bloc(loi_lineaire + rectangle + justifier(1.0001 * 30 * b * h, 0, 0))));
}

// sigma = a1 x + a3 x^3 under a curvature k: M = a1 k b h^3/12 + a3 k^3 b h^5/80.
TEST(SectionGenerique, LoiCubique) {
  const double a1 = 30000;
  const double a3 = -2e9;
  const double k = 0.004;
  const double m = a1 * k * b * std::pow(h, 3) / 12 + a3 * std::pow(k, 3) * b * std::pow(h, 5) / 80;
  const course c = executer_bloc(loi(piece(-1, 0, a1, 0, a3)) + rectangle + justifier(0, m, 0));
  EXPECT_TRUE(en_equilibre(c));
  EXPECT_NEAR(nombre_apres(c.txt, "- Ry: "), k, 2e-5 * k);
  const double sigma = a1 * 0.0012 + a3 * std::pow(0.0012, 3);
  EXPECT_THAT(c.txt, HasSubstr(concat({" ", std::to_string(sigma).substr(0, 6), " "})));
}

// Many pieces of one line are the line.
TEST(SectionGenerique, BeaucoupDePiecesPourUneDroite) {
  std::string pieces;
  for (int i = 0; i < 1000; ++i) pieces += piece((i - 500) * 2e-6, 0, 30000);
  const course c = executer_bloc(loi(pieces) + rectangle + justifier(1.8, 0.09, 0.045));
  EXPECT_TRUE(en_equilibre(c));
  EXPECT_NEAR(nombre_apres(c.txt, "- Ex: "), 10 / module_lineaire, 1e-8);
  EXPECT_NEAR(nombre_apres(c.txt, "- Ry: "), 5 / module_lineaire / 0.3, 1e-8);
}

// Laws that no matter has: each case is answered, and the run goes on to its end.
TEST(SectionGenerique, LoisSansMatiere) {
  for (const std::string& pieces :
       {piece(-1, 0, 0),                                  // no stress at all
        piece(-1, 10, 0),                                 // the same stress at every strain
        piece(-1, 0, -30000),                             // a negative modulus
        piece(-1, 0, 30000) + piece(0.0001, -50, 30000),  // a fall
        piece(-1, 0, 30000) + piece(0.0001, 50, 30000),   // a leap
        piece(-1, 0, 30000) + piece(0.0001, 6, -30000),   // softening
        piece(-1, 0, 1e75), piece(-1, 0, 1e-75), piece(-1, 0, 0, 1e75, 1e75),  // out of all measure
        piece(-1, 1e75, 1e75, -1e75, 1e75) + piece(1e-75, -1e75, 0, 0, -1e75)}) {
    for (const double n : {0.0, 1.8, -1.8}) {
      const course c = executer_bloc(loi(pieces) + rectangle + justifier(n, 0.09, 0.045) + "\nEDIT MATE");
      EXPECT_EQ(c.statut, 0) << c.console;
      EXPECT_THAT(c.listing, HasSubstr("Execution de Zof terminee"));
    }
  }
}

// Zones of every kind take a generic material: contour, bars, tendons, profiles.
TEST(SectionGenerique, ToutesLesZones) {
  const course c = executer_bloc(
      loi_lineaire +
      "\nSECT R TITR 'Tout' CONT AME TITR 'Ame' MATE LOI RECT HAUT 0.6D0 LARG 0.3D0 FIN_RECT\n"
      "FERR LIT TITR 'Lit' MATE LOI DIAM 20. POIN NUME 11 Y -0.1D0 Z -0.2D0 FIN_ FIN_POIN FIN_FERR\n"
      "PREC CABLE TITR 'Cable' MATE LOI AIRE 1500. POIN NUME 12 Y 0.1D0 Z -0.2D0 FIN_ FIN_POIN FIN_PREC\n"
      "CHAR PROFIL TITR 'Profil' MATE LOI POIN NUME 13 Y 0. Z -0.1D0 FIN_ NUME 14 Y 0. Z 0.1D0 FIN_ "
      "FIN_POIN\n"
      "PROF NUME 1 ORIG 13 EXTR 14 EPAI 10. FIN_ FIN_PROF FIN_CHAR FIN_CONT FIN_SECT\nEDIT SECT TOUT\nEDIT "
      "MATE");
  EXPECT_EQ(c.statut, 0) << c.console;
  // Bars and tendons put back what they take out; a profile counts once.
  EXPECT_THAT(c.txt, HasSubstr("> Aire      (m2) : 0.18000"));
}

// A loading asks for a state or a situation that the material does not have.
TEST(SectionGenerique, EtatAbsent) {
  verifier_refus(loi_lineaire + rectangle + justifier(1, 0, 0, "ELS FREQ"),
                 message("Etat limite non defini :ELS_FRE pour la situation : EXPLOITATION_SERVICE"));
  verifier_refus(loi_lineaire + rectangle + justifier(1, 0, 0, "ELS_NF CARA"),
                 message("Etat limite non defini :ELS_CAR_NF pour la situation : EXPLOITATION_SERVICE"));
  verifier_refus(loi_lineaire + rectangle + justifier(1, 0, 0, "ELS CARA", "CONS"),
                 message("Situation non definie : CONSTRUCTION                    "));
}

// The properties of a section are those of the first situation in which all its materials have them: none
// where only an earthquake is written.
TEST(SectionGenerique, ProprietesDeLaSection) {
  const course c = executer_bloc(loi_lineaire + rectangle + "EDIT SECT TOUT");
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.txt, HasSubstr("> Aire      (m2) : 0.18000"));
  EXPECT_THAT(c.txt, HasSubstr("> Inertie y (m4) : 0.54000E-02"));
  const course seisme =
      executer_bloc(situation_generique("ELU ACCI INTE EPSI -1. A1 30000. FIN_INTE FIN_", "SEIS") +
                    rectangle + "EDIT SECT TOUT");
  EXPECT_EQ(seisme.statut, 0);
  EXPECT_THAT(seisme.txt, Not(HasSubstr("Aire")));
  EXPECT_THAT(seisme.txt, HasSubstr("Contour : AME - Ame"));
}

// A steel profile inside: its matter replaces the other. EI = E b h^3/12 + (Es - E) t L^3/12.
TEST(SectionMixte, ProfilDansUneMatiereLineaire) {
  const double t = 0.02;
  const double l = 0.4;
  const double ei = 30000 * b * h * h * h / 12 + (210000 - 30000) * t * l * l * l / 12;
  const double ea = 30000 * b * h + (210000 - 30000) * t * l;
  const std::string section =
      "\nMATE CHAR S355 TITR 'Acier' FY 355. FU 490. FIN_MATE\nSECT R TITR 'Mixte' CONT AME TITR 'Ame' MATE "
      "LOI "
      "RECT HAUT 0.6D0 LARG 0.3D0 FIN_RECT\nCHAR PROFIL TITR 'Profil' MATE S355 POIN NUME 11 Y 0. Z -0.2D0 "
      "FIN_ "
      "NUME 12 Y 0. Z 0.2D0 FIN_ FIN_POIN\nPROF NUME 1 ORIG 11 EXTR 12 EPAI 20. FIN_ FIN_PROF FIN_CHAR "
      "FIN_CONT "
      "FIN_SECT\n";
  const course c = executer_bloc(loi_lineaire + section + justifier(1.8, 0.09, 0) + "\nEDIT SECT TOUT");
  EXPECT_TRUE(en_equilibre(c));
  EXPECT_NEAR(nombre_apres(c.txt, "- Ex: "), 1.8 / ea, 2e-5 * 1.8 / ea);
  EXPECT_NEAR(nombre_apres(c.txt, "- Ry: "), 0.09 / ei, 2e-5 * 0.09 / ei);
  // Laws of modulus 1: the profile in the place of what it takes out.
  EXPECT_THAT(c.txt, HasSubstr("> Aire      (m2) : 0.18000"));
}

// Concrete C30 at half of its peak strain bears 0.75 x 20 MPa, the steel 210000 x 0.001: N = 15 (A - Ap) +
// 210 Ap.
TEST(SectionMixte, ProfilDansDuBeton) {
  const double ap = 0.02 * 0.4;
  const double n = 15 * (b * h - ap) + 210 * ap;
  const std::string section =
      "MATE BETO LOI TITR 'C30' FCK 30. PREC NON FIN_MATE\nMATE CHAR S355 TITR 'Acier' FY 355. FU 490. "
      "FIN_MATE\n"
      "SECT R TITR 'Mixte' CONT AME TITR 'Ame' MATE LOI RECT HAUT 0.6D0 LARG 0.3D0 FIN_RECT\n"
      "CHAR PROFIL TITR 'Profil' MATE S355 POIN NUME 11 Y 0. Z -0.2D0 FIN_ NUME 12 Y 0. Z 0.2D0 FIN_ "
      "FIN_POIN\n"
      "PROF NUME 1 ORIG 11 EXTR 12 EPAI 20. FIN_ FIN_PROF FIN_CHAR FIN_CONT FIN_SECT\n";
  const course c = executer_bloc(section + justifier(n, 0, 0, "ELU DURA"));
  EXPECT_TRUE(en_equilibre(c));
  EXPECT_NEAR(nombre_apres(c.txt, "- Ex: "), 0.001, 2e-8);
  EXPECT_THAT(c.txt, HasSubstr(" 15.000 "));
  EXPECT_THAT(c.txt, HasSubstr(" 210.00 "));
}

// Bars of a generic material take nothing out of the concrete around them: N = (E A + Eb Ab) e.
TEST(SectionMixte, BarresDeMatiereGenerique) {
  const double aire = 4 * 3.14159265358979 * 0.02 * 0.02 / 4;
  const double ea = 30000 * b * h + 200000 * aire;
  const course c = executer_bloc(
      loi_lineaire +
      "\nMATE SPEC BARRE TITR 'Barres' SITU EXPL SERV TITR 's' CARA INTE EPSI -1. A1 200000. FIN_INTE FIN_ "
      "FIN_SITU FIN_MATE\nSECT R TITR 'Armee' CONT AME TITR 'Ame' MATE LOI RECT HAUT 0.6D0 LARG 0.3D0 "
      "FIN_RECT\n"
      "FERR LIT TITR 'Lit' MATE BARRE DIAM 20. POIN NUME 11 Y -0.1D0 Z -0.2D0 FIN_ NUME 12 Y 0.1D0 Z -0.2D0 "
      "FIN_\n"
      "NUME 13 Y -0.1D0 Z 0.2D0 FIN_ NUME 14 Y 0.1D0 Z 0.2D0 FIN_ FIN_POIN FIN_FERR FIN_CONT FIN_SECT\n" +
      justifier(1.8, 0, 0));
  EXPECT_TRUE(en_equilibre(c));
  EXPECT_NEAR(nombre_apres(c.txt, "- Ex: "), 1.8 / ea, 2e-5 * 1.8 / ea);
}
