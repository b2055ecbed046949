// The command MATE on whole data files: prestressing steel.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "Blocs_Materiaux.hpp"
#include "Outils.hpp"
#include "Zof_Classe_Materiau_Precontrainte_EC.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Gestion_Materiau_Lois.hpp"
#include "Zof_Gestion_Materiau_Precontrainte_EC.hpp"
#include "Zof_Utilit.hpp"

using namespace blocs_mate;
using namespace socle;
using testing::HasSubstr;

namespace {

std::string precontrainte(const std::string& mots) {
  return "MATE PREC T15 TITR 'Torons' FP01 1600. FPK 1860.\n" + mots + "\nFIN_MATE";
}
std::string situation_precontrainte(const std::string& mots, const std::string& situation = "EXPL SERV") {
  return precontrainte("SITU " + situation + " TITR 'Situation'\n" + mots + "\nFIN_SITU");
}

zof_materiau_precontrainte_ec& le_materiau() {
  return dynamic_cast<zof_materiau_precontrainte_ec&>(*zof_get_pt_materiau("T15"));
}
zof_situation_precontrainte_ec& la_situation(const char* label = "EXPLOITATION_SERVICE") {
  return dynamic_cast<zof_situation_precontrainte_ec&>(
      *zof_get_pt_situation_materiau("T15", std::string(label)));
}
int type_trou(int etat) {
  int type = 0;
  EXPECT_FALSE(qb7_lire_type_trou(1, etat, type));
  return type;
}

constexpr double gamma_p = 1.149999976158142;

using MatePrecontrainte = commande;
using SituationPrecontrainte = commande;

}  // namespace

// --- The material
// ------------------------------------------------------------------------------------

TEST_F(MatePrecontrainte, SansSituationLesCinqSontCreees) {
  lire(precontrainte(""));
  EXPECT_EQ(zof_type_materiau("T15"), type_materiau_precontrainte);
  EXPECT_EQ(le_materiau().get_titre_materiau().utile(), "Torons");
  EXPECT_EQ(zof_get_fp0_1k(le_materiau()), 1600);
  EXPECT_EQ(zof_get_fpk(le_materiau()), 1860);
  EXPECT_EQ(le_materiau().m_type_precontrainte, precontrainte_toron);
  EXPECT_EQ(situations_de(le_materiau()),
            (std::vector<std::string>{"EXPLOITATION_SERVICE", "EXPLOITATION_INFINIE", "CONSTRUCTION",
                                      "SEISME", "ACCIDENT"}));
  int rang = 0;
  for (const auto& s : uef_parcours<zof_situation_precontrainte_ec>(le_materiau().m_les_situations)) {
    EXPECT_EQ(s.get_numero_ordre_situation(), ++rang);
    EXPECT_EQ(s.get_titre_situation().utile(), s.get_label_situation().utile());
    EXPECT_EQ(s.get_nom_materiau().utile(), "T15");
    EXPECT_EQ(s.get_titre_materiau().utile(), "Torons");
    EXPECT_EQ(s.m_pt_materiau, &le_materiau());
    EXPECT_FALSE(s.m_element_pointe);
  }
}

TEST_F(MatePrecontrainte, LesSituationsDonneesPrecedentLesAutres) {
  lire(precontrainte("SITU SEIS TITR 'Seisme' FIN_SITU SITU EXPL INFI TITR 'Longue' FIN_SITU"));
  EXPECT_EQ(situations_de(le_materiau()),
            (std::vector<std::string>{"SEISME", "EXPLOITATION_INFINIE", "EXPLOITATION_SERVICE",
                                      "CONSTRUCTION", "ACCIDENT"}));
  EXPECT_EQ(la_situation("SEISME").get_titre_situation().utile(), "Seisme");
  EXPECT_EQ(la_situation("EXPLOITATION_INFINIE").get_titre_situation().utile(), "Longue");
}

TEST_F(MatePrecontrainte, LeProduitDonneLeModule) {
  struct ligne {
    std::string mot;
    int type;
    double module;
  };
  for (const ligne& l : std::vector<ligne>{{"TORO", precontrainte_toron, 195000},
                                           {"FIL", precontrainte_fil, 205000},
                                           {"BARR", precontrainte_barre, 205000}}) {
    lire(precontrainte("TYPE " + l.mot));
    EXPECT_EQ(le_materiau().m_type_precontrainte, l.type);
    EXPECT_EQ(la_situation("SEISME").m_module_elasticite, l.module);
    EXPECT_NEAR(contrainte(1, 1004, 1e-3), l.module * 1e-3, 1e-10);
  }
  // The situations that stand before the word keep the strand's modulus.
  lire(precontrainte("SITU ACCI TITR 's' FIN_SITU TYPE BARR"));
  EXPECT_EQ(la_situation("ACCIDENT").m_module_elasticite, 195000);
  EXPECT_EQ(la_situation("SEISME").m_module_elasticite, 205000);
}

TEST_F(MatePrecontrainte, Refus) {
  for (const cas& r : std::vector<cas>{{"FYK 500.", mot_incorrect("FYK ")},
                                       {"TYPE CABL", mot_incorrect("CABL")},
                                       {"TYPE TORO TYPE TORO", repetition("TYPE")},
                                       {"TITR 'encore'", repetition_titre()},
                                       {"FP01 1600.", repetition("FP01")},
                                       {"FPK 1860.", repetition("FPK")},
                                       {"EXPO X0", mot_incorrect("EXPO")},
                                       {"SITU VENT", mot_incorrect("VENT")}}) {
    SCOPED_TRACE(r.mots);
    verifier_refus(precontrainte(r.mots), r.lignes);
  }
  for (const std::string valeur : {"0.", "-1600."}) {
    verifier_refus("MATE PREC T FP01 " + valeur, message(" Attribut Fp0_1K incorrect : <=0 "));
    verifier_refus("MATE PREC T FPK " + valeur, message(" Attribut FpK incorrect : <=0 "));
  }
  verifier_refus("MATE PREC T FPK 1860. SITU SEIS",
                 message("FP0.1K doit etre renseigne avant l option Situation"));
  verifier_refus("MATE PREC T FP01 1600. SITU SEIS",
                 message("FPK doit etre renseigne avant l option Situation"));
  verifier_refus("MATE PREC T SITU SEIS",
                 "     - FP0.1K doit etre renseigne avant l option Situation\n"
                 "     - FPK doit etre renseigne avant l option Situation");
  verifier_refus(
      "MATE PREC T FIN_MATE",
      "     - Titre: non renseigne(e)\n     - FP0_: non renseigne(e)\n     - FPK: non renseigne(e)");
  verifier_arret(precontrainte("FIN_SITU"),
                 "Erreur de commande : \n     - FIN_SITUIncorrect dans ce contexte - Attendu : FIN_MATE\n"
                 "ARRET PREMATURE DE ZOF");
}

TEST_F(MatePrecontrainte, LaLimiteElastiqueEstSousLaResistance) {
  verifier_refus("MATE PREC T TITR 't' FP01 1860. FPK 1860. FIN_MATE", message("fp0_1k >= Fpk "));
  verifier_refus("MATE PREC T TITR 't' FP01 1861. FPK 1860. FIN_MATE", message("fp0_1k >= Fpk "));
  lire("MATE PREC T15 TITR 't' FP01 1859. FPK 1860. FIN_MATE");
  EXPECT_EQ(zof_get_fp0_1k(le_materiau()), 1859);
}

// --- Situations and laws
// ------------------------------------------------------------------------------------

// One situation after another, the ultimate law bilinear, against an independent calculator.
TEST_F(SituationPrecontrainte, ContreLesValeursIndependantes) {
  const table_csv t = lire_csv(ZOF_DONNEES "/materiaux/aciers_precontrainte.csv");
  ASSERT_GE(t.lignes.size(), 7U);
  const auto mot_situation = [](const std::string& label) {
    if (label == "EXPLOITATION_SERVICE") return "EXPL SERV";
    if (label == "EXPLOITATION_INFINIE") return "EXPL INFI";
    return label == "CONSTRUCTION" ? "CONS" : "SEIS";
  };
  const std::vector<std::string> produits = {"", "TORO", "FIL", "BARR"};
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE("row " + t.texte(i, "row"));
    const std::string& label = t.texte(i, "situation");
    lire("MATE PREC T15 TITR 't' FP01 " + t.texte(i, "fp01k") + ".D0 FPK " + t.texte(i, "fpk") + ".D0 TYPE " +
         produits.at(static_cast<std::size_t>(std::stoi(t.texte(i, "type")))) + "\nSITU " +
         mot_situation(label) + " TITR 's' ELU BILI FIN_SITU FIN_MATE");
    const zof_situation_precontrainte_ec& s = la_situation(label.c_str());
    const auto verifier = [&](const char* colonne, double obtenu) {
      const double attendu = t.reel(i, colonne);
      EXPECT_NEAR(obtenu, attendu, 1e-12 * std::abs(attendu)) << colonne;
    };
    verifier("traction_els", s.m_sigma_lim_traction_els_car);
    verifier("traction_els", s.m_sigma_lim_traction_els_fre);
    verifier("traction_els", s.m_sigma_lim_traction_els_qp);
    EXPECT_FALSE(est_renseigne_double(s.m_sigma_lim_compression_els_car));
    EXPECT_FALSE(est_renseigne_double(s.m_sigma_lim_compression_els_fre));
    EXPECT_FALSE(est_renseigne_double(s.m_sigma_lim_compression_els_qp));
    verifier("gamma_p", s.m_coefficient_partiel_elu);
    verifier("module", s.m_module_elasticite);
    verifier("contrainte_ult", s.m_coefficient_contrainte_ult_bil_elu);
    verifier("deformation_adm", s.m_coefficient_deformation_adm_bil_elu);
    verifier("epsilon_rupture", s.m_epsilon_rupture_bil_elu);
    verifier("traction_pp", s.m_sigma_lim_traction_pp_elu);
    verifier("compression_pp", s.m_sigma_lim_compression_pp_elu);

    const int elu = s.get_numero_etat_limite_qb7(zof_label_etat_ultime(s.get_type_situation_projet()));
    verifier("bil_f_palier", contrainte(1, elu, t.reel(i, "bil_eps_palier")));
    verifier("bil_f_rupture", contrainte(1, elu, t.reel(i, "epsilon_rupture")));
    verifier("bil_epsilon_min", borne_min(1, elu));
    verifier("bil_epsilon_max", borne_max(1, elu));
    verifier("bil_f_lim", -contrainte(1, elu, borne_min(1, elu)));
    EXPECT_EQ(type_trou(elu), qb7_trou_encombrement);
  }
}

// 0.87 x 1600 = 1392 rules against 0.77 x 1860 = 1432.2 while the structure is built.
TEST_F(SituationPrecontrainte, EnConstructionLaPlusPetiteDesDeuxLimites) {
  lire(precontrainte(""));
  EXPECT_NEAR(la_situation("CONSTRUCTION").m_sigma_lim_traction_els_car, 1392, 1e-4);
  EXPECT_NEAR(borne_min(1, 3006), -1392.0 / 195000, 1e-9);
  EXPECT_NEAR(la_situation().m_sigma_lim_traction_els_car, 1488, 1e-4);
  lire("MATE PREC T15 TITR 't' FP01 1800. FPK 1860. FIN_MATE");
  EXPECT_NEAR(la_situation("CONSTRUCTION").m_sigma_lim_traction_els_car, 0.77 * 1860, 1e-4);
}

TEST_F(SituationPrecontrainte, EtatsLimitesParSituation) {
  lire(precontrainte(""));
  const std::vector<std::string> exploitation = {
      "MECA_BRUT", "MECA_NET",  "MECA_HOMOGENEISEE", "ELS_QP",     "ELS_FRE",
      "ELS_CAR",   "ELS_QP_NF", "ELS_FRE_NF",        "ELS_CAR_NF", "ELU_DURABLE"};
  EXPECT_EQ(etats_de(la_situation("EXPLOITATION_SERVICE")), exploitation);
  EXPECT_EQ(etats_de(la_situation("EXPLOITATION_INFINIE")), exploitation);
  EXPECT_EQ(etats_de(la_situation("CONSTRUCTION")),
            (std::vector<std::string>{"MECA_BRUT", "MECA_NET", "MECA_HOMOGENEISEE", "ELS_QP", "ELS_CAR",
                                      "ELS_QP_NF", "ELS_CAR_NF", "ELU_DURABLE"}));
  // A strand in an earthquake: partial factor of 1, and no serviceability.
  EXPECT_EQ(etats_de(la_situation("SEISME")), std::vector<std::string>{"ELU_ACCIDENT"});
  EXPECT_EQ(la_situation("SEISME").m_coefficient_partiel_elu, 1.0);
  EXPECT_EQ(etats_de(la_situation("ACCIDENT")), std::vector<std::string>{"ELU_ACCIDENT"});
  EXPECT_NEAR(contrainte(1, 5011, -0.05), -1600, 1e-9);
}

// Both signs carry, tension up to its limit and compression without one; the transformed section counts 15
// times the tendon, the net one nothing.
TEST_F(SituationPrecontrainte, LoisDeService) {
  lire(precontrainte(""));
  for (const int etat : {1004, 1005, 1006, 1007, 1008, 1009}) {
    EXPECT_NEAR(contrainte(1, etat, 1e-3), 195, 1e-10);
    EXPECT_NEAR(contrainte(1, etat, -1e-3), -195, 1e-10);
    EXPECT_NEAR(borne_min(1, etat), -0.800000011920929 * 1860 / 195000, 1e-16);
    EXPECT_EQ(borne_max(1, etat), qb7_sans_borne);
    EXPECT_EQ(type_trou(etat), qb7_trou_encombrement);
  }
  EXPECT_EQ(contrainte(1, 1001, 2.0), 2.0);
  EXPECT_EQ(type_trou(1001), qb7_trou_selon_zone);
  EXPECT_EQ(contrainte(1, 1002, 2.0), 0.0);
  EXPECT_EQ(contrainte(1, 1003, 2.0), 30.0);
}

// ELS BILI: plateau at fp0.1k / gamma p on both sides, limits inside it, no state that is not cracked.
TEST_F(SituationPrecontrainte, LoiBilineaireDeService) {
  lire(situation_precontrainte("ELS BILI PARA COEF ELS CARA COMP 0.5 COEF ELS CARA TRAC 0.5 FIN_"));
  EXPECT_EQ(etats_de(la_situation()),
            (std::vector<std::string>{"MECA_BRUT", "MECA_NET", "MECA_HOMOGENEISEE", "ELS_QP", "ELS_FRE",
                                      "ELS_CAR", "ELU_DURABLE"}));
  EXPECT_NEAR(contrainte(1, 1006, -0.05), -1600 / gamma_p, 1e-9);
  EXPECT_NEAR(contrainte(1, 1006, 0.05), 1600 / gamma_p, 1e-9);
  EXPECT_NEAR(borne_min(1, 1006), -800.0 / 195000, 1e-15);
  EXPECT_NEAR(borne_max(1, 1006), 800.0 / 195000, 1e-15);
  // 0.8 fpk lies above the plateau: no limit there.
  EXPECT_EQ(borne_min(1, 1004), qb7_sans_borne);
  EXPECT_EQ(borne_max(1, 1004), qb7_sans_borne);
}

// The ultimate plateau has no strain limit, whatever stresses CONT names.
TEST_F(SituationPrecontrainte, LePalierUltimeEstSansLimite) {
  for (const std::string mots : {"", "PARA CONT ELU PARF TRAC 100. CONT ELU PARF COMP 50. FIN_"}) {
    lire(situation_precontrainte(mots));
    const double fpd = 1600 / gamma_p;
    EXPECT_NEAR(contrainte(1, 1010, -1e-3), -195, 1e-10);
    EXPECT_NEAR(contrainte(1, 1010, -0.5 * fpd / 195000), -0.5 * fpd, 1e-9);
    EXPECT_NEAR(contrainte(1, 1010, -1.0), -fpd, 1e-9);
    EXPECT_NEAR(contrainte(1, 1010, 1.0), fpd, 1e-9);
    EXPECT_EQ(borne_min(1, 1010), qb7_sans_borne);
    EXPECT_EQ(borne_max(1, 1010), qb7_sans_borne);
    EXPECT_EQ(type_trou(1010), qb7_trou_encombrement);
  }
  EXPECT_EQ(la_situation().m_sigma_lim_traction_pp_elu, 100);
  EXPECT_EQ(la_situation().m_sigma_lim_compression_pp_elu, 50);
}

TEST_F(SituationPrecontrainte, ParametresDesLois) {
  lire(situation_precontrainte(
      "ELU BILI ELS LINE PARA COEF ELS CARA COMP 0.5 COEF ELS CARA TRAC 0.25 COEF ELS FREQ COMP 0.75\n"
      "COEF ELS FREQ TRAC 0.125 COEF ELS QUAS COMP 1. COEF ELS QUAS TRAC 0.875 FIN_\n"
      "PARA COEF ELU BILI CONT 1.25 COEF ELU BILI DEFO 0.5 COEF ELU BILI PART 1.25\n"
      "DEFO ELU BILI RUPT 0.0625 MODU 200000. FIN_PARA"));
  const zof_situation_precontrainte_ec& s = la_situation();
  EXPECT_EQ(s.m_sigma_lim_compression_els_car, 800);
  EXPECT_EQ(s.m_sigma_lim_traction_els_car, 400);
  EXPECT_EQ(s.m_sigma_lim_compression_els_fre, 1200);
  EXPECT_EQ(s.m_sigma_lim_traction_els_fre, 200);
  EXPECT_EQ(s.m_sigma_lim_compression_els_qp, 1600);
  EXPECT_EQ(s.m_sigma_lim_traction_els_qp, 1400);
  EXPECT_EQ(s.m_coefficient_contrainte_ult_bil_elu, 1.25);
  EXPECT_EQ(s.m_coefficient_deformation_adm_bil_elu, 0.5);
  EXPECT_EQ(s.m_coefficient_partiel_elu, 1.25);
  EXPECT_EQ(s.m_epsilon_rupture_bil_elu, 0.0625);
  EXPECT_EQ(s.m_module_elasticite, 200000);
  // Yield at 1280 MPa, 6.4 per mille; failure at 1600 MPa, 62.5 per mille; admissible 31.25 per mille.
  EXPECT_NEAR(contrainte(1, 1010, -0.0064), -1280, 1e-9);
  EXPECT_NEAR(contrainte(1, 1010, -0.0625), -1600, 1e-9);
  EXPECT_NEAR(borne_min(1, 1010), -0.03125, 1e-15);
  EXPECT_NEAR(borne_max(1, 1010), 0.03125, 1e-15);
  EXPECT_NEAR(borne_min(1, 1006), -400.0 / 200000, 1e-15);
  EXPECT_NEAR(borne_max(1, 1006), 800.0 / 200000, 1e-15);

  lire(situation_precontrainte("ELU PARF PARA COEF ELU PARF PART 1.25 FIN_"));
  EXPECT_NEAR(contrainte(1, 1010, -0.05), -1280, 1e-9);
}

// An admissible strain under the yield strain limits the elastic branch.
TEST_F(SituationPrecontrainte, LimiteSurLaBrancheElastique) {
  lire(situation_precontrainte("ELU BILI PARA COEF ELU BILI DEFO 0.25 DEFO ELU BILI RUPT 0.02D0 FIN_"));
  EXPECT_NEAR(borne_min(1, 1010), -0.005, 1e-15);
  EXPECT_NEAR(contrainte(1, 1010, -0.005), -975, 1e-9);
}

TEST_F(SituationPrecontrainte, Refus) {
  const std::string bilineaire = message(" incompatibilite avec le type de loi ELU  :  BILINEAIRE");
  const std::string parfaite = message("incompatibilite avec le type de loi ELU  : PARFAITE");
  for (const cas& r :
       std::vector<cas>{{"CONS", message("situation incorrectement definie")},
                        {"TITR 'encore'", repetition_titre()},
                        {"FISS QUAS 0.2", mot_incorrect("FISS")},
                        {"ELU PARA", mot_incorrect("PARA")},
                        {"ELU BILI ELU BILI", repetition("ELU")},
                        {"ELS PARF", mot_incorrect("PARF")},
                        {"ELS LINE ELS LINE", repetition("ELS")},
                        {"PARA MODU -1.", message("Valeur attribut MODU incorrecte:  <0")},
                        {"PARA CONT ELU PARF COMP -1.", message("Valeur attribut CONT incorrecte:  <0")},
                        {"PARA DEFO ELU PARF RUPT 1.", mot_incorrect("DEFO_ELU _PARF_RUPT")},
                        {"PARA COEF ELS CARA ENRO 1.", mot_incorrect("COEF_ELS _CARA_ENRO")},
                        {"ELU BILI PARA COEF ELU PARF PART 1. FIN_ FIN_SITU", bilineaire},
                        {"ELU BILI PARA CONT ELU PARF TRAC 1. FIN_ FIN_SITU", bilineaire},
                        {"ELU BILI PARA CONT ELU PARF COMP 1. FIN_ FIN_SITU", bilineaire},
                        {"PARA DEFO ELU BILI RUPT 1. FIN_ FIN_SITU", parfaite},
                        {"PARA COEF ELU BILI DEFO 1. FIN_ FIN_SITU", parfaite},
                        {"PARA COEF ELU BILI CONT 1. FIN_ FIN_SITU", parfaite},
                        {"PARA COEF ELU BILI PART 1. FIN_ FIN_SITU", parfaite}}) {
    SCOPED_TRACE(r.mots);
    verifier_refus(situation_precontrainte(r.mots), r.lignes);
  }
  verifier_situation_d_abord(precontrainte);
  verifier_refus(precontrainte("SITU FIN_SITU"),
                 "     - La Situation de projet doit etre renseignee \n     - Titre: non renseigne(e)");
  verifier_situations_uniques(precontrainte);
  verifier_arret(precontrainte("SITU SEIS TITR 's' FIN_MATE"),
                 "Erreur de commande : \n     - FIN_MATEIncorrect dans ce contexte - Attendu : FIN_SITU\n"
                 "ARRET PREMATURE DE ZOF");
}

// The names of the keys QUAS keep a blank, in steels as in concrete.
TEST_F(SituationPrecontrainte, RepetitionsDesParametres) {
  for (const cas& r : std::vector<cas>{{"COEF ELS CARA COMP", "COEF_ELS_CARA_COMP"},
                                       {"COEF ELS CARA TRAC", "COEF_ELS_CARA_TRAC"},
                                       {"COEF ELS FREQ COMP", "COEF_ELS_FREQ_COMP"},
                                       {"COEF ELS FREQ TRAC", "COEF_ELS_FREQ_TRAC"},
                                       {"COEF ELS QUAS COMP", "COEF_ELS _QUAS_COMP"},
                                       {"COEF ELS QUAS TRAC", "COEF_ELS _QUAS_TRAC"},
                                       {"COEF ELU BILI CONT", "COEF_ELU_BILI_CONT"},
                                       {"COEF ELU BILI DEFO", "COEF_ELU_BILI_DEFO"},
                                       {"COEF ELU BILI PART", "COEF_ELU_BILI_PART"},
                                       {"COEF ELU PARF PART", "COEF_ELU_PARF_PART"},
                                       {"CONT ELU PARF COMP", "CONT_ELU_PARF_COMP"},
                                       {"CONT ELU PARF TRAC", "CONT_ELU_PARF_TRAC"},
                                       {"DEFO ELU BILI RUPT", "DEFO_ELU_BILI_RUPT"},
                                       {"MODU", "MODU"}})
    verifier_refus(situation_precontrainte(concat({"PARA ", r.mots, " 1. FIN_ PARA ", r.mots, " 1."})),
                   repetition(r.lignes));
}

TEST_F(SituationPrecontrainte, LeMoteurRefuseUneLoiImpossible) {
  verifier_arret_du_moteur(situation_precontrainte("ELU BILI PARA COEF ELU BILI CONT 0.5 FIN_"),
                           "ERR_CONTRAINTE");
  verifier_arret_du_moteur(situation_precontrainte("PARA MODU 0. FIN_"), "ERR_MODULE");
  // A partial factor of 0 makes an infinite yield stress: refused by the engine, without a crash.
  for (const std::string mots :
       {"PARA COEF ELU PARF PART 0. FIN_", "ELU BILI PARA COEF ELU BILI PART 0. FIN_"})
    EXPECT_EQ(executer_bloc(situation_precontrainte(mots)).statut, 1);
}

// The greatest and the least numbers that the reader takes: a law, or a refusal of the engine.
TEST_F(SituationPrecontrainte, NombresExtremes) {
  for (const std::string resistances : {"FP01 1.D74 FPK 1.D75", "FP01 1.D-75 FPK 1.D75"}) {
    for (const std::string mots :
         {"ELU BILI", "ELS BILI", "PARA MODU 1.D75 FIN_", "ELS BILI PARA MODU 1.D-75 FIN_",
          "ELS BILI PARA COEF ELU PARF PART 1.D75 FIN_", "PARA COEF ELU PARF PART 1.D-75 FIN_",
          "ELU BILI PARA COEF ELU BILI CONT 1.D75 COEF ELU BILI DEFO 1.D75 DEFO ELU BILI RUPT 1.D75 FIN_",
          "ELS BILI PARA COEF ELS CARA COMP 1.D75 COEF ELS CARA TRAC 0. FIN_"}) {
      const course c = executer_bloc("MATE PREC T TITR 't' " + resistances + " SITU EXPL SERV TITR 's'\n" +
                                     mots + "\nFIN_SITU FIN_MATE EDIT MATE");
      EXPECT_TRUE(c.statut == 0 || c.console.find(" Erreur : ERR_") != std::string::npos) << c.console;
    }
  }
}

TEST_F(SituationPrecontrainte, UnTypeDeLoiInconnuArreteLaCourse) {
  lire(precontrainte(""));
  zof_situation_precontrainte_ec& s = la_situation("ACCIDENT");
  s.m_type_loi_els = 0;
  s.m_type_loi_elu = 0;
  EXPECT_EQ(statut_d_arret([&] { s.creer_lois_precontrainte_els_ec(); }), 1);
  EXPECT_THAT(console(), HasSubstr(" Zof_Creer_Lois_precontrainte_ELS_EC:  Cas impossible\n"));
  EXPECT_EQ(statut_d_arret([&] { s.creer_lois_precontrainte_elu_ec(); }), 1);
  EXPECT_THAT(console(), HasSubstr(" Zof_Creer_Lois_precontrainte_ELU_EC:  Cas impossible\n"));
}

// --- The report
// ------------------------------------------------------------------------------------------------

TEST(EditMate, Precontrainte) {
  for (const std::string mot : {"TORO", "FIL", "BARR"}) {
    const course c = executer_bloc(precontrainte("TYPE " + mot) + "\nEDIT MATE");
    EXPECT_EQ(c.statut, 0);
    EXPECT_EQ(extrait(c.txt, "Materiau : ", "1.1.1. Situation"),
              "Materiau : T15 - Torons\n"
              "............................\n"
              "- Fp0.1k       : 1600.0\n"
              "- Fpk          : 1860.0\n"
              "- Type         : " +
                  mot + "\n");
  }
}

// The plateau 1600 / 1.15 = 1391.3 MPa begins at 7.1349 per mille of a strand.
TEST(EditMate, SituationEtLoisDUnePrecontrainte) {
  const course c = executer_bloc(precontrainte("") + "\nEDIT MATE");
  EXPECT_EQ(c.statut, 0);
  EXPECT_EQ(extrait(c.txt, "Situation : EXPLOITATION_SERVICE", "1.1.1.1. Etat limite"),
            "Situation : EXPLOITATION_SERVICE\n"
            "***************************************\n"
            "- Type loi ELS                        : LINEAIRE\n"
            "- Type loi ELU                        : PLASTIQUE PARFAITE\n"
            "- Module_elasticite                   : 0.19500E+06\n"
            "- Sigma_lim_traction_ELS_CAR          : 1488.0\n"
            "- Sigma_lim_compression_ELS_CAR       : Non renseigne\n"
            "- Sigma_lim_traction_ELS_QP           : 1488.0\n"
            "- Sigma_lim_compression_ELS_QP        : Non renseigne\n"
            "- Sigma_lim_traction_ELS_FRE          : 1488.0\n"
            "- Sigma_lim_compression_ELS_FRE       : Non renseigne\n"
            "- Coefficient_partiel_ELU             : 1.1500\n"
            "- Coefficient_contrainte_ult_BIL_ELU  : 1.1000\n"
            "- Coefficient_deformation_adm_BIL_ELU : 0.90000\n"
            "- Epsilon_rupture_BIL_ELU             : 0.22222E-01\n"
            "- Sigma_lim_traction_PP_ELU           : 1600.0\n"
            "- Sigma_lim_compression_PP_ELU        : -1600.0\n");
  EXPECT_EQ(extrait(c.txt, "Etat limite : ELU_DURABLE", "1.1.2. Situation"),
            "Etat limite : ELU_DURABLE\n"
            "-----------------------------------\n"
            "Epsilon        Sigma (Mpa)\n"
            "-----------------------------\n"
            "-0.14270E-01   -1391.3\n"
            "-0.71349E-02   -1391.3\n"
            "0.71349E-02    1391.3\n");
  EXPECT_THAT(c.html, HasSubstr("Etat limite : MECA_HOMOGENEISEE"));
}
