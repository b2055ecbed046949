// The command MATE on whole data files: structural steel, up to the sections that are made of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "Blocs_Materiaux.hpp"
#include "Outils.hpp"
#include "Zof_Classe_Materiau_Acier_Charpente.hpp"
#include "Zof_Gestion_Acier_Charpente.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Utilit.hpp"

using namespace blocs_mate;
using namespace socle;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string charpente(const std::string& mots) {
  return "MATE CHAR S355 TITR 'Acier S355' FY 355. FU 490.\n" + mots + "\nFIN_MATE";
}
std::string situation_charpente(const std::string& mots, const std::string& situation = "EXPL SERV") {
  return charpente("SITU " + situation + " TITR 'Situation'\n" + mots + "\nFIN_SITU");
}

zof_materiau_acier_charpente& le_materiau() {
  return dynamic_cast<zof_materiau_acier_charpente&>(*zof_get_pt_materiau("S355"));
}
zof_situation_acier_charpente& la_situation(const char* label = "EXPLOITATION_SERVICE") {
  return dynamic_cast<zof_situation_acier_charpente&>(
      *zof_get_pt_situation_materiau("S355", std::string(label)));
}
int type_trou(int etat) {
  int type = 0;
  EXPECT_FALSE(qb7_lire_type_trou(1, etat, type));
  return type;
}

constexpr double fy = 355;
constexpr double module_acier = 210000;
constexpr double epsilon_y = fy / module_acier;

using MateCharpente = commande;
using SituationCharpente = commande;

}  // namespace

// --- The material
// ------------------------------------------------------------------------------------

TEST_F(MateCharpente, SansSituationLesCinqSontCreees) {
  lire(charpente(""));
  EXPECT_EQ(zof_type_materiau("S355"), type_materiau_charpente);
  EXPECT_EQ(zof_get_materiau_numero_qb7("S355"), 1);
  EXPECT_EQ(le_materiau().get_titre_materiau().utile(), "Acier S355");
  EXPECT_EQ(le_materiau().m_fy, 355);
  EXPECT_EQ(le_materiau().m_fu, 490);
  EXPECT_EQ(situations_de(le_materiau()),
            (std::vector<std::string>{"EXPLOITATION_SERVICE", "EXPLOITATION_INFINIE", "CONSTRUCTION",
                                      "SEISME", "ACCIDENT"}));
  int rang = 0;
  for (const auto& s : uef_parcours<zof_situation_acier_charpente>(le_materiau().m_les_situations)) {
    EXPECT_EQ(s.get_numero_ordre_situation(), ++rang);
    EXPECT_EQ(s.get_titre_situation().utile(), s.get_label_situation().utile());
    EXPECT_EQ(s.get_nom_materiau().utile(), "S355");
    EXPECT_EQ(s.get_titre_materiau().utile(), "Acier S355");
    EXPECT_EQ(s.get_numero_materiau_qb7(), 1);
    EXPECT_EQ(s.m_pt_materiau, &le_materiau());
    EXPECT_EQ(s.m_type_loi_els, type_loi_lineaire);
    EXPECT_EQ(s.m_type_loi_elu, type_loi_plastique_parfaite);
    EXPECT_FALSE(s.m_element_pointe);
  }
}

TEST_F(MateCharpente, LesSituationsDonneesPrecedentLesAutres) {
  lire(charpente("SITU SEIS TITR 'Seisme' FIN_SITU SITU EXPL INFI TITR 'Longue' FIN_SITU"));
  EXPECT_EQ(situations_de(le_materiau()),
            (std::vector<std::string>{"SEISME", "EXPLOITATION_INFINIE", "EXPLOITATION_SERVICE",
                                      "CONSTRUCTION", "ACCIDENT"}));
  EXPECT_EQ(la_situation("SEISME").get_titre_situation().utile(), "Seisme");
  EXPECT_EQ(la_situation("EXPLOITATION_INFINIE").get_titre_situation().utile(), "Longue");
}

TEST_F(MateCharpente, Refus) {
  for (const cas& r : std::vector<cas>{{"FYK 500.", mot_incorrect("FYK ")},
                                       {"TYPE TORO", mot_incorrect("TYPE")},
                                       {"TITR 'encore'", repetition_titre()},
                                       {"FY 355.", repetition("FY")},
                                       {"FU 490.", repetition("FU")},
                                       {"SITU VENT", mot_incorrect("VENT")}}) {
    SCOPED_TRACE(r.mots);
    verifier_refus(charpente(r.mots), r.lignes);
  }
  for (const std::string valeur : {"0.", "-355."}) {
    verifier_refus("MATE CHAR S FY " + valeur, message(" Attribut FY incorrect : <=0 "));
    verifier_refus("MATE CHAR S FU " + valeur, message(" Attribut FU incorrect : <=0 "));
  }
  verifier_refus("MATE CHAR S FY 355. SITU SEIS", message("FU doit etre renseigne avant l option Situation"));
  verifier_refus("MATE CHAR S FU 490. SITU SEIS", message("FY doit etre renseigne avant l option Situation"));
  verifier_refus("MATE CHAR S SITU SEIS",
                 "     - FY doit etre renseigne avant l option Situation\n"
                 "     - FU doit etre renseigne avant l option Situation");
  verifier_refus("MATE CHAR S FIN_MATE",
                 "     - Titre: non renseigne(e)\n     - Fy: non renseigne(e)\n     - Fu: non renseigne(e)");
  verifier_refus("MATE CHAR S FY 355. FU 490. FIN_MATE", message("Titre: non renseigne(e)"));
  verifier_refus("MATE CHAR S TITR 't' FU 490. FIN_MATE", message("Fy: non renseigne(e)"));
  verifier_refus("MATE CHAR S TITR 't' FY 355. FIN_MATE", message("Fu: non renseigne(e)"));
  for (const std::string famille : {"ACIE", "BETO", "PREC", "CHAR"})
    verifier_refus(charpente("") + "\nMATE " + famille + " S355",
                   message(" Materiau deja defini : S355                            "));
  verifier_arret(charpente("FIN_SITU"),
                 "Erreur de commande : \n     - FIN_SITUIncorrect dans ce contexte - Attendu : FIN_MATE\n"
                 "ARRET PREMATURE DE ZOF");
  verifier_arret(charpente("FIN_"),
                 "Erreur de commande : \n     - FIN_    Incorrect dans ce contexte - Attendu : FIN_MATE\n"
                 "ARRET PREMATURE DE ZOF");
}

// Whichever comes second is told; equal strengths are a steel without hardening.
TEST_F(MateCharpente, LaLimiteElastiqueNePassePasLaResistance) {
  verifier_refus("MATE CHAR S FY 355. FU 275.", message(" Fy > Fu "));
  verifier_refus("MATE CHAR S FU 275. FY 355.", message(" Fy > Fu "));
  for (const std::string mots : {"FY 355. FU 355.", "FU 355. FY 355."}) {
    lire("MATE CHAR S355 TITR 't' " + mots + " FIN_MATE");
    EXPECT_EQ(la_situation().m_coefficient_contrainte_ult_bil_elu, 1.0);
  }
}

// --- Situations and laws
// ------------------------------------------------------------------------------------

TEST_F(SituationCharpente, CoefficientsParDefaut) {
  lire(charpente(""));
  for (const char* label :
       {"EXPLOITATION_SERVICE", "EXPLOITATION_INFINIE", "CONSTRUCTION", "SEISME", "ACCIDENT"}) {
    const zof_situation_acier_charpente& s = la_situation(label);
    for (const double sigma : {s.m_sigma_lim_traction_els_car, s.m_sigma_lim_compression_els_car,
                               s.m_sigma_lim_traction_els_qp, s.m_sigma_lim_compression_els_qp,
                               s.m_sigma_lim_traction_els_fre, s.m_sigma_lim_compression_els_fre})
      EXPECT_EQ(sigma, 355);
    EXPECT_EQ(s.m_coefficient_partiel_elu, 1.0);
    EXPECT_EQ(s.m_module_elasticite, 210000);
    EXPECT_EQ(s.m_coefficient_contrainte_ult_bil_elu, 490.0 / 355);
    EXPECT_EQ(s.m_coefficient_deformation_adm_bil_elu, 1.0);
    EXPECT_EQ(s.m_epsilon_rupture_bil_elu, 5325.0 / 210000);
    EXPECT_EQ(s.m_epsilon_rupture_pp_elu, 5325.0 / 210000);
  }
}

TEST_F(SituationCharpente, EtatsLimitesParSituation) {
  lire(charpente(""));
  const std::vector<std::string> exploitation = {
      "MECA_BRUT", "MECA_NET",  "MECA_HOMOGENEISEE", "ELS_QP",     "ELS_FRE",
      "ELS_CAR",   "ELS_QP_NF", "ELS_FRE_NF",        "ELS_CAR_NF", "ELU_DURABLE"};
  EXPECT_EQ(etats_de(la_situation("EXPLOITATION_SERVICE")), exploitation);
  EXPECT_EQ(etats_de(la_situation("EXPLOITATION_INFINIE")), exploitation);
  EXPECT_EQ(etats_de(la_situation("CONSTRUCTION")),
            (std::vector<std::string>{"MECA_BRUT", "MECA_NET", "MECA_HOMOGENEISEE", "ELS_QP", "ELS_CAR",
                                      "ELS_QP_NF", "ELS_CAR_NF", "ELU_DURABLE"}));
  EXPECT_EQ(etats_de(la_situation("SEISME")), std::vector<std::string>{"ELU_ACCIDENT"});
  EXPECT_EQ(etats_de(la_situation("ACCIDENT")), std::vector<std::string>{"ELU_ACCIDENT"});
  EXPECT_EQ(la_situation("CONSTRUCTION").get_numero_etat_limite_qb7("ELU_DURABLE"), 3010);
}

// The same line in both signs, cracked or not, up to the yield strength; the three mechanical states are of
// modulus 1, the transformed one too: a profile is counted as it is.
TEST_F(SituationCharpente, LoisDeService) {
  lire(charpente(""));
  for (const int etat : {1004, 1005, 1006, 1007, 1008, 1009, 2005, 3004, 3009}) {
    EXPECT_NEAR(contrainte(1, etat, 1e-3), 210, 1e-10);
    EXPECT_NEAR(contrainte(1, etat, -1e-3), -210, 1e-10);
    EXPECT_EQ(borne_min(1, etat), -fy / module_acier);
    EXPECT_EQ(borne_max(1, etat), fy / module_acier);
    EXPECT_EQ(type_trou(etat), qb7_trou_matiere);
  }
  for (const int etat : {1001, 1002, 1003, 3003}) {
    EXPECT_EQ(contrainte(1, etat, 2.0), 2.0);
    EXPECT_EQ(contrainte(1, etat, -2.0), -2.0);
    EXPECT_EQ(borne_min(1, etat), qb7_sans_borne);
    EXPECT_EQ(type_trou(etat), qb7_trou_matiere);
  }
}

// From (eps_y, fy) to (15 eps_y, 1.01 fy), where the limit stands, 1.01 as a single.
TEST_F(SituationCharpente, LePalierUltimeMonteDUnPourCent) {
  lire(charpente(""));
  for (const int etat : {1010, 2010, 3010, 4011, 5011}) {
    EXPECT_NEAR(contrainte(1, etat, -0.5 * epsilon_y), -0.5 * fy, 1e-9);
    EXPECT_NEAR(contrainte(1, etat, epsilon_y), fy, 1e-9);
    EXPECT_NEAR(contrainte(1, etat, 8 * epsilon_y), fy * (1 + 0.0099999904632568 / 2), 1e-9);
    EXPECT_NEAR(contrainte(1, etat, -15 * epsilon_y), -fy * 1.0099999904632568, 1e-9);
    EXPECT_EQ(borne_max(1, etat), 5325.0 / 210000);
    EXPECT_EQ(borne_min(1, etat), -5325.0 / 210000);
    EXPECT_EQ(type_trou(etat), qb7_trou_matiere);
  }
}

// From (eps_y, fy) to (15 eps_y, fu): every strain of the branch is admissible.
TEST_F(SituationCharpente, LoiBilineaireUltime) {
  lire(situation_charpente("ELU BILI"));
  EXPECT_EQ(la_situation().m_type_loi_elu, type_loi_bilineaire);
  EXPECT_NEAR(contrainte(1, 1010, epsilon_y), 355, 1e-9);
  EXPECT_NEAR(contrainte(1, 1010, 8 * epsilon_y), (355 + 490) / 2.0, 1e-9);
  EXPECT_NEAR(contrainte(1, 1010, -15 * epsilon_y), -490, 1e-9);
  EXPECT_NEAR(borne_max(1, 1010), 15 * epsilon_y, 1e-16);
  EXPECT_NEAR(borne_min(1, 1010), -15 * epsilon_y, 1e-16);
  EXPECT_EQ(type_trou(1010), qb7_trou_matiere);
  // The kind is that of the situation alone.
  EXPECT_NEAR(contrainte(1, 2010, 15 * epsilon_y), 355 * 1.0099999904632568, 1e-9);
}

// fy = fu: no hardening, and the limit is still the ultimate strain.
TEST_F(SituationCharpente, SansEcrouissageLaLimiteDemeure) {
  lire("MATE CHAR S355 TITR 't' FY 355. FU 355. SITU EXPL SERV TITR 's' ELU BILI FIN_SITU FIN_MATE");
  EXPECT_NEAR(contrainte(1, 1010, 10 * epsilon_y), 355, 1e-9);
  EXPECT_EQ(borne_max(1, 1010), 5325.0 / 210000);
}

TEST_F(SituationCharpente, ParametresDesLois) {
  lire(situation_charpente(
      "ELU BILI PARA COEF ELS CARA TRAC 0.5 COEF ELS CARA COMP 0.25 COEF ELS QUAS TRAC 0.125\n"
      "COEF ELS QUAS COMP 0.75 COEF ELS FREQ TRAC 1. COEF ELS FREQ COMP 0.875 FIN_\n"
      "PARA COEF ELU BILI PART 1.25 DEFO ELU BILI RUPT 0.0625 DEFO ELU PARF RUPT 0.03125 MODU 200000.\n"
      "FIN_PARA"));
  const zof_situation_acier_charpente& s = la_situation();
  EXPECT_EQ(s.m_sigma_lim_traction_els_car, 355 * 0.5);
  EXPECT_EQ(s.m_sigma_lim_compression_els_car, 355 * 0.25);
  EXPECT_EQ(s.m_sigma_lim_traction_els_qp, 355 * 0.125);
  EXPECT_EQ(s.m_sigma_lim_compression_els_qp, 355 * 0.75);
  EXPECT_EQ(s.m_sigma_lim_traction_els_fre, 355);
  EXPECT_EQ(s.m_sigma_lim_compression_els_fre, 355 * 0.875);
  EXPECT_EQ(s.m_coefficient_partiel_elu, 1.25);
  EXPECT_EQ(s.m_epsilon_rupture_bil_elu, 0.0625);
  EXPECT_EQ(s.m_epsilon_rupture_pp_elu, 0.03125);
  EXPECT_EQ(s.m_module_elasticite, 200000);
  for (const int decalage : {0, 3}) {
    EXPECT_NEAR(borne_min(1, 1004 + decalage), -355 * 0.125 / 200000, 1e-16);
    EXPECT_NEAR(borne_max(1, 1004 + decalage), 355 * 0.75 / 200000, 1e-16);
    EXPECT_NEAR(borne_min(1, 1005 + decalage), -355.0 / 200000, 1e-16);
    EXPECT_NEAR(borne_max(1, 1005 + decalage), 355 * 0.875 / 200000, 1e-16);
    EXPECT_NEAR(borne_min(1, 1006 + decalage), -355 * 0.5 / 200000, 1e-16);
    EXPECT_NEAR(borne_max(1, 1006 + decalage), 355 * 0.25 / 200000, 1e-16);
  }
  // Yield at 284 MPa, 1.42 per mille; failure at 392 MPa, 62.5 per mille.
  EXPECT_NEAR(contrainte(1, 1010, 0.00142), 284, 1e-9);
  EXPECT_NEAR(contrainte(1, 1010, 0.0625), 392, 1e-9);
  EXPECT_NEAR(borne_max(1, 1010), 0.0625, 1e-16);

  lire(situation_charpente("PARA DEFO ELU PARF RUPT 0.03125 COEF ELU PARF PART 1.25 FIN_"));
  EXPECT_NEAR(contrainte(1, 1010, 0.03125), 284 * 1.0099999904632568, 1e-9);
  EXPECT_NEAR(borne_min(1, 1010), -0.03125, 1e-16);
}

// Ultimate strains stay those of 210000 MPa, whatever the modulus.
TEST_F(SituationCharpente, LeModuleLaisseLesDeformationsUltimes) {
  lire(situation_charpente("PARA MODU 105000. FIN_"));
  EXPECT_EQ(la_situation().m_epsilon_rupture_pp_elu, 5325.0 / 210000);
  EXPECT_NEAR(contrainte(1, 1010, 2 * epsilon_y), 355, 1e-9);
  EXPECT_NEAR(borne_max(1, 1010), 15 * epsilon_y, 1e-16);
  EXPECT_NEAR(contrainte(1, 1006, 1e-3), 105, 1e-10);
}

// The situation has one partial factor: both words set it, and that of the law in use stands.
TEST_F(SituationCharpente, LeCoefficientPartielEstCeluiDeLaLoi) {
  for (const std::string mots :
       {"COEF ELU BILI PART 1.25 COEF ELU PARF PART 2.", "COEF ELU PARF PART 2. COEF ELU BILI PART 1.25"}) {
    lire(situation_charpente("ELU BILI PARA " + mots + " FIN_"));
    EXPECT_EQ(la_situation().m_coefficient_partiel_elu, 1.25);
    EXPECT_NEAR(contrainte(1, 1010, 284.0 / 210000), 284, 1e-9);
    lire(situation_charpente("PARA " + mots + " FIN_ ELU PARF"));
    EXPECT_EQ(la_situation().m_coefficient_partiel_elu, 2);
    EXPECT_NEAR(contrainte(1, 1010, 177.5 / 210000), 177.5, 1e-9);
  }
  lire(situation_charpente("PARA COEF ELU BILI PART 1.25 FIN_"));
  EXPECT_EQ(la_situation().m_coefficient_partiel_elu, 1.25);
}

TEST_F(SituationCharpente, Refus) {
  for (const cas& r :
       std::vector<cas>{{"CONS", message("situation incorrectement definie")},
                        {"EXPL SERV", message("situation incorrectement definie")},
                        {"TITR 'encore'", repetition_titre()},
                        {"ELS LINE", mot_incorrect("ELS ")},
                        {"FISS QUAS 0.2", mot_incorrect("FISS")},
                        {"ELU PARA", mot_incorrect("PARA")},
                        {"ELU BILI ELU BILI", repetition("ELU")},
                        {"PARA MODU -1.", message("Valeur attribut MODU incorrecte:  <0")},
                        {"PARA COEF ELS CARA TRAC -1.", message("Valeur attribut COEF incorrecte:  <0")},
                        {"PARA DEFO ELU PARF RUPT -1.", message("Valeur attribut DEFO incorrecte:  <0")},
                        {"PARA COEF ELU BILI CONT 1.", mot_incorrect("COEF_ELU _BILI_CONT")},
                        {"PARA COEF ELU BILI DEFO 1.", mot_incorrect("COEF_ELU _BILI_DEFO")},
                        {"PARA CONT ELU PARF TRAC 1.", mot_incorrect("CONT_ELU _PARF_TRAC")},
                        {"PARA COEF ELS CARA ENRO 1.", mot_incorrect("COEF_ELS _CARA_ENRO")}}) {
    SCOPED_TRACE(r.mots);
    verifier_refus(situation_charpente(r.mots), r.lignes);
  }
  verifier_situation_d_abord(charpente);
  verifier_refus(charpente("SITU FIN_SITU"),
                 "     - La Situation de projet doit etre renseignee\n     - Titre: non renseigne(e)");
  verifier_refus(charpente("SITU SEIS FIN_SITU"), message("Titre: non renseigne(e)"));
  verifier_situations_uniques(charpente);
  verifier_arret(charpente("SITU SEIS TITR 's' FIN_MATE"),
                 "Erreur de commande : \n     - FIN_MATEIncorrect dans ce contexte - Attendu : FIN_SITU\n"
                 "ARRET PREMATURE DE ZOF");
}

TEST_F(SituationCharpente, RepetitionsDesParametres) {
  for (const cas& r : std::vector<cas>{{"COEF ELS CARA TRAC", "COEF_ELS_CARA_TRAC"},
                                       {"COEF ELS CARA COMP", "COEF_ELS_CARA_COMP"},
                                       {"COEF ELS QUAS TRAC", "COEF_ELS _QUAS_TRAC"},
                                       {"COEF ELS QUAS COMP", "COEF_ELS _QUAS_COMP"},
                                       {"COEF ELS FREQ TRAC", "COEF_ELS_FREQ_TRAC"},
                                       {"COEF ELS FREQ COMP", "COEF_ELS_FREQ_COMP"},
                                       {"COEF ELU BILI PART", "COEF_ELU_BILI_PART"},
                                       {"COEF ELU PARF PART", "COEF_ELU_PARF_PART"},
                                       {"DEFO ELU BILI RUPT", "DEFO_ELU_BILI_RUPT"},
                                       {"DEFO ELU PARF RUPT", "DEFO_ELU_PARF_RUPT"},
                                       {"MODU", "MODU"}})
    verifier_refus(situation_charpente(concat({"PARA ", r.mots, " 1. FIN_ PARA ", r.mots, " 1."})),
                   repetition(r.lignes));
}

// A modulus under fy / eps_u has no plateau; a partial factor of 0 makes an infinite stress, a huge one no
// stress at all. The engine refuses them without a crash.
TEST_F(SituationCharpente, LeMoteurRefuseUneLoiImpossible) {
  verifier_arret_du_moteur(situation_charpente("PARA MODU 0. FIN_"), "ERR_MODULE");
  verifier_arret_du_moteur(situation_charpente("PARA MODU 10000. FIN_"), "ERR_DEF_LOI");
  verifier_arret_du_moteur(situation_charpente("PARA MODU 0. FIN_", "SEIS"), "ERR_DEF_LOI");
  verifier_arret_du_moteur(situation_charpente("PARA DEFO ELU PARF RUPT 0. FIN_"), "ERR_DEF_LOI");
  verifier_arret_du_moteur(situation_charpente("ELU BILI PARA DEFO ELU BILI RUPT 0.001 FIN_"), "ERR_DEF_LOI");
  verifier_arret_du_moteur(situation_charpente("PARA COEF ELU PARF PART 0. FIN_"), "ERR_CONTRAINTE");
  verifier_arret_du_moteur(situation_charpente("ELU BILI PARA COEF ELU BILI PART 0. FIN_"), "ERR_CONTRAINTE");
  verifier_arret_du_moteur(situation_charpente("PARA COEF ELS CARA TRAC 0. COEF ELS CARA COMP 0. FIN_"),
                           "ERR_BORNES_LOI");
}

// The greatest and the least numbers that the reader takes: a law, or a refusal of the engine.
TEST_F(SituationCharpente, NombresExtremes) {
  for (const std::string resistances : {"FY 1.D75 FU 1.D75", "FY 1.D-75 FU 1.D75", "FY 1.D-75 FU 1.D-75"}) {
    for (const std::string mots :
         {"ELU BILI", "ELU PARF", "PARA MODU 1.D75 FIN_", "PARA MODU 1.D-75 FIN_",
          "PARA COEF ELU PARF PART 1.D75 FIN_", "PARA COEF ELU PARF PART 1.D-75 FIN_",
          "ELU BILI PARA DEFO ELU BILI RUPT 1.D75 FIN_"}) {
      const course c = executer_bloc("MATE CHAR S TITR 't' " + resistances + " SITU EXPL SERV TITR 's' " +
                                     mots + " FIN_SITU FIN_MATE EDIT MATE");
      EXPECT_TRUE(c.statut == 0 || c.console.find(" Erreur : ERR_") != std::string::npos) << c.console;
    }
  }
}

TEST_F(SituationCharpente, UnTypeDeLoiInconnuArreteLaCourse) {
  lire(charpente(""));
  zof_situation_acier_charpente& s = la_situation("ACCIDENT");
  s.m_type_loi_elu = 0;
  EXPECT_EQ(statut_d_arret([&] { zof_creer_lois_acier_charpente_elu_ec(s); }), 1);
  EXPECT_THAT(console(), HasSubstr(" Zof_Creer_Lois_acier_charpente_ELU_EC:  Cas impossible\n"));
}

// --- The report
// ------------------------------------------------------------------------------------------------

namespace {

/// A situation that nothing was said of; its rank is the second number of its title.
std::string situation_par_defaut(int rang, const std::string& label,
                                 const std::vector<std::string>& etats_elastiques) {
  const std::string numero = "1.1." + std::to_string(rang) + ".";
  std::string resultat = numero + " Situation : " + label + R"(
- Type loi ELS : LINEAIRE
- Type loi ELU : PLASTIQUE PARFAITE
- Module_elasticite : 0.21000E+06
- Sigma_lim_traction_ELS_CAR : 355.00
- Sigma_lim_compression_ELS_CAR : 355.00
- Sigma_lim_traction_ELS_QP : 355.00
- Sigma_lim_compression_ELS_QP : 355.00
- Sigma_lim_traction_ELS_FRE : 355.00
- Sigma_lim_compression_ELS_FRE : 355.00
- Coefficient_partiel_ELU : 1.0000
- Coefficient_contrainte_ult_BIL_ELU : 1.3803
- Coefficient_deformation_adm_BIL_ELU : 1.0000
- Epsilon_rupture_BIL_ELU : 0.25357E-01
- Epsilon_rupture_PP_ELU : 0.25357E-01
)";
  int etat = 0;
  const auto titre = [&](const std::string& nom) {
    return numero + std::to_string(++etat) + ". Etat limite : " + nom + "\n";
  };
  if (!etats_elastiques.empty()) {
    for (const char* meca : {"MECA_BRUT", "MECA_NET", "MECA_HOMOGENEISEE"})
      resultat += titre(meca) + table({"0.00000E+00 0.0000"});
  }
  for (const std::string& nom : etats_elastiques)
    resultat += titre(nom) + table({"-0.16905E-02 -355.00", "0.00000E+00 0.0000", "0.16905E-02 355.00"});
  resultat +=
      titre(etats_elastiques.empty() ? "ELU_ACCIDENT" : "ELU_DURABLE") +
      table({"-0.25357E-01 -358.55", "-0.16905E-02 -355.00", "0.16905E-02 355.00", "0.25357E-01 358.55"});
  return resultat;
}

}  // namespace

// The whole report in both notes. By hand: 355/210000 = 1.690476e-3, 15 times it 2.535714e-2, 1.01 x 355 =
// 358.55, 490/355 = 1.380282. In construction: 0.8 x 355 = 284 in tension, 284/200000 = 1.42e-3,
// 355/200000 = 1.775e-3; yield 355/1.1 = 322.727 at 1.613636e-3, failure 490/1.1 = 445.4545 at 0.05.
TEST(EditMate, Charpente) {
  const course c = executer_bloc(
      charpente("SITU CONS TITR 'Montage' ELU BILI PARA COEF ELS CARA TRAC 0.8D0 MODU 200000. COEF ELU BILI "
                "PART 1.1D0 DEFO ELU BILI RUPT 0.05D0 FIN_ FIN_SITU") +
      "\nEDIT MATE");
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_TRUE(fautes_html(c.html).empty()) << c.console;
  const std::string entier = table({"-0.17750E-02 -355.00", "0.00000E+00 0.0000", "0.17750E-02 355.00"});
  const std::string limitee = table({"-0.14200E-02 -284.00", "0.00000E+00 0.0000", "0.17750E-02 355.00"});
  const std::string unite = table({"0.00000E+00 0.0000"});
  const std::string montage =
      R"(1.1.1. Situation : CONSTRUCTION
- Type loi ELS : LINEAIRE
- Type loi ELU : BILINEAIRE
- Module_elasticite : 0.20000E+06
- Sigma_lim_traction_ELS_CAR : 284.00
- Sigma_lim_compression_ELS_CAR : 355.00
- Sigma_lim_traction_ELS_QP : 355.00
- Sigma_lim_compression_ELS_QP : 355.00
- Sigma_lim_traction_ELS_FRE : 355.00
- Sigma_lim_compression_ELS_FRE : 355.00
- Coefficient_partiel_ELU : 1.1000
- Coefficient_contrainte_ult_BIL_ELU : 1.3803
- Coefficient_deformation_adm_BIL_ELU : 1.0000
- Epsilon_rupture_BIL_ELU : 0.50000E-01
- Epsilon_rupture_PP_ELU : 0.25357E-01
1.1.1.1. Etat limite : MECA_BRUT
)" + unite +
      "1.1.1.2. Etat limite : MECA_NET\n" + unite + "1.1.1.3. Etat limite : MECA_HOMOGENEISEE\n" + unite +
      "1.1.1.4. Etat limite : ELS_QP\n" + entier + "1.1.1.5. Etat limite : ELS_CAR\n" + limitee +
      "1.1.1.6. Etat limite : ELS_QP_NF\n" + entier + "1.1.1.7. Etat limite : ELS_CAR_NF\n" + limitee +
      "1.1.1.8. Etat limite : ELU_DURABLE\n" +
      table({"-0.50000E-01 -445.45", "-0.16136E-02 -322.73", "0.16136E-02 322.73", "0.50000E-01 445.45"});
  const std::vector<std::string> exploitation = {"ELS_QP",    "ELS_FRE",    "ELS_CAR",
                                                 "ELS_QP_NF", "ELS_FRE_NF", "ELS_CAR_NF"};
  verifier_les_deux_notes(c, "1.1. Materiau : S355",
                          "1.1. Materiau : S355 - Acier S355\n- Fy : 355.00\n- Fu : 490.00\n" + montage +
                              situation_par_defaut(2, "EXPLOITATION_SERVICE", exploitation) +
                              situation_par_defaut(3, "EXPLOITATION_INFINIE", exploitation) +
                              situation_par_defaut(4, "SEISME", {}) +
                              situation_par_defaut(5, "ACCIDENT", {}));
  // The two first lines to the byte: names in columns.
  EXPECT_THAT(c.txt, HasSubstr("- Fy           : 355.00"));
  EXPECT_THAT(c.txt, HasSubstr("- Fu           : 490.00"));
}

// --- Sections of structural steel
// ---------------------------------------------------------------------------------

namespace {

/// Plate 100 x 200 mm of the steel: b h^2 / 6 and b h^2 / 4 are its moduli.
constexpr double b = 0.1;
constexpr double h = 0.2;
const std::string plat =
    "\nSECT PLAT TITR 'Plat' CONT AME TITR 'Ame' MATE S355 RECT HAUT 0.2D0 LARG 0.1D0 FIN_RECT FIN_CONT "
    "FIN_SECT\n";

course justifier_plat(const std::string& materiau, const std::string& etat, double n, double my,
                      const std::string& options = "") {
  return executer_bloc(materiau + plat + "SOLL T SECT PLAT TITR 't' REPE GEOM ETAT " + etat +
                       " SITU EXPL SERV POND EFFO GQ N " + reel(n) + " MY " + reel(my) +
                       " TITR 'cas' FIN_EFFO FIN_ETAT FIN_SOLL\nJUST PLAT SOLL T " + options + " FIN_JUST");
}
bool en_equilibre(const course& c) {
  EXPECT_EQ(c.statut, 0) << c.listing;
  return c.console.find("==> Equilibre sous :cas\n") != std::string::npos;
}

/// Moment of the plate at the curvature where its edges reach the strain e >= eps_y, from stress blocks: the
/// elastic core, then a branch of slope k.
double moment_plastique(double e, double k) {
  const double c = h / 2;
  const double y = c * epsilon_y / e;
  const double noyau = fy * y * y / 3;
  const double palier = fy * (c * c - y * y) / 2;
  const double pente = k * e / c * ((c * c * c - y * y * y) / 3 - y * (c * c - y * y) / 2);
  return 2 * b * (noyau + palier + pente);
}

}  // namespace

TEST(SectionDAcier, MomentElastique) {
  const double m_el = b * h * h / 6 * fy;
  EXPECT_TRUE(en_equilibre(justifier_plat(charpente(""), "ELS CARA", 0, 0.9999 * m_el)));
  const course c = justifier_plat(charpente(""), "ELS CARA", 0, 1.0001 * m_el);
  EXPECT_FALSE(en_equilibre(c));
  const course sous_moitie = justifier_plat(charpente(""), "ELS CARA", 0, 0.5 * m_el);
  EXPECT_NEAR(nombre_apres(sous_moitie.txt, "- Ry: "), 0.5 * epsilon_y / (h / 2), 1e-7);
  EXPECT_THAT(sous_moitie.txt, HasSubstr("177.50"));
  EXPECT_THAT(sous_moitie.txt, HasSubstr("-177.50"));
}

// The plastic moment b h^2 / 4 fy is reached before the ultimate strain: the plateau's slope of 1 % makes up
// for the elastic core.
TEST(SectionDAcier, MomentPlastique) {
  const double m_pl = b * h * h / 4 * fy;
  const double m_max = moment_plastique(15 * epsilon_y, 0.0099999904632568 * fy / (14 * epsilon_y));
  EXPECT_NEAR(m_max / m_pl, 1, 0.01);
  EXPECT_TRUE(en_equilibre(justifier_plat(charpente(""), "ELU DURA", 0, m_pl)));
  EXPECT_TRUE(en_equilibre(justifier_plat(charpente(""), "ELU DURA", 0, 0.9999 * m_max)));
  EXPECT_FALSE(en_equilibre(justifier_plat(charpente(""), "ELU DURA", 0, 1.0001 * m_max)));
  // Moment at three times the yield strain: the plane found is that curvature.
  const double m3 = moment_plastique(3 * epsilon_y, 0.0099999904632568 * fy / (14 * epsilon_y));
  const course c = justifier_plat(charpente(""), "ELU DURA", 0, m3);
  EXPECT_TRUE(en_equilibre(c));
  EXPECT_NEAR(nombre_apres(c.txt, "- Ry: "), 3 * epsilon_y / (h / 2), 2e-4 * 3 * epsilon_y / (h / 2));
}

TEST(SectionDAcier, MomentUltimeDeLaLoiBilineaire) {
  const std::string materiau = situation_charpente("ELU BILI");
  const double m_max = moment_plastique(15 * epsilon_y, (490 - 355) / (14 * epsilon_y));
  EXPECT_TRUE(en_equilibre(justifier_plat(materiau, "ELU DURA", 0, 0.9999 * m_max)));
  EXPECT_FALSE(en_equilibre(justifier_plat(materiau, "ELU DURA", 0, 1.0001 * m_max)));
}

// N = A f, in both signs: the same capacity.
TEST(SectionDAcier, EffortNormal) {
  const double n_max = b * h * 355 * 1.0099999904632568;
  for (const double signe : {1.0, -1.0}) {
    EXPECT_TRUE(en_equilibre(justifier_plat(charpente(""), "ELU DURA", 0.9999 * signe * n_max, 0)));
    EXPECT_FALSE(en_equilibre(justifier_plat(charpente(""), "ELU DURA", 1.0001 * signe * n_max, 0)));
    EXPECT_FALSE(en_equilibre(justifier_plat(charpente(""), "ELS FREQ", 1.0001 * signe * b * h * fy, 0)));
    EXPECT_TRUE(en_equilibre(justifier_plat(charpente(""), "ELS QUAS", 0.9999 * signe * b * h * fy, 0)));
  }
}
