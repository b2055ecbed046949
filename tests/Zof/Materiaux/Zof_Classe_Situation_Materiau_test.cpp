#include "Zof_Classe_Situation_Materiau.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Outils.hpp"
#include "Systeme_memoire.hpp"
#include "Zof_Classe_Selection_Acier.hpp"

using socle::texte;

namespace {

/// A situation of no particular material.
struct situation_nue : uef_element<situation_nue, zof_situation_materiau> {
  void editer_situation(bool&) const override {}
  void decoder_situation(bool&) override {}
};

const std::vector<std::string> labels_etats = {"MECA_BRUT",  "MECA_NET",    "MECA_HOMOGENEISEE", "ELS_QP",
                                               "ELS_FRE",    "ELS_CAR",     "ELS_QP_NF",         "ELS_FRE_NF",
                                               "ELS_CAR_NF", "ELU_DURABLE", "ELU_ACCIDENT"};
const std::vector<std::string> labels_situations = {"EXPLOITATION_SERVICE", "EXPLOITATION_INFINIE",
                                                    "CONSTRUCTION", "ACCIDENT", "SEISME"};

/// The console after an operation that stopped the run with status 1.
template <class operation>
std::string console_d_un_arret(const operation& o) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  EXPECT_EQ(statut_d_arret(o), 1);
  return machine.texte_console;
}

const std::string fin_d_arret = "\n ARRET PREMATURE : PREVENIR LE GESTIONNAIRE\n";

}  // namespace

TEST(Conversions, LesEtatsLimitesPortentLesNumeros1A11) {
  for (std::size_t i = 0; i < labels_etats.size(); ++i)
    EXPECT_EQ(zof_conversion_en_type_etat_limite(labels_etats[i]), static_cast<int>(i) + 1);
  EXPECT_EQ(console_d_un_arret([] { zof_conversion_en_type_etat_limite("MECA_HOMOGENEISE"); }),
            " Zof_Conversion_en_type_etat_limite : Cas impossible" + fin_d_arret);
}

TEST(Conversions, LesSituationsPortentLesNumeros1A5) {
  for (std::size_t i = 0; i < labels_situations.size(); ++i) {
    EXPECT_EQ(zof_conversion_en_type_situation(labels_situations[i]), static_cast<int>(i) + 1);
    EXPECT_TRUE(zof_conversion_en_label_situation(static_cast<int>(i) + 1) ==
                socle::vue_l1(labels_situations[i]));
  }
  EXPECT_EQ(console_d_un_arret([] { zof_conversion_en_type_situation("VENT"); }),
            "label_situation: VENT\n Zof_Conversion_en_type_situation : Cas impossible" + fin_d_arret);
  for (const int numero : {0, 6})
    EXPECT_EQ(console_d_un_arret([numero] { zof_conversion_en_label_situation(numero); }),
              "Zof_Conversion_en_label_situation : Cas impossible" + fin_d_arret);
}

TEST(Situation, NumeroteLesLoisParSituationEtParEtatLimite) {
  situation_nue s;
  s.set_type_situation_projet(situation_exploitation_infinie);
  EXPECT_EQ(s.ajouter_etat_limite("ELS_QP"), 2004);
  EXPECT_EQ(s.get_numero_etat_limite_qb7("ELS_QP"), 2004);
  EXPECT_EQ(s.get_etat_limite_situation("ELS_QP").m_type_etat_limite, etat_limite_els_qp);
  situation_nue c;
  c.set_type_situation_projet(situation_construction);
  EXPECT_EQ(c.ajouter_etat_limite("ELU_DURABLE"), 3010);
}

TEST(Situation, UnEtatLimiteAbsentSeDitAvantDeSeDemander) {
  situation_nue s;
  s.set_type_situation_projet(situation_accident);
  s.ajouter_etat_limite("ELU_ACCIDENT");
  EXPECT_TRUE(s.existe_etat_limite("ELU_ACCIDENT"));
  EXPECT_FALSE(s.existe_etat_limite("ELS_QP"));
  EXPECT_EQ(s.get_etat_limite_situation("ELS_QP").m_numero_etat_limite_qb7, 0);
  EXPECT_TRUE(s.get_etat_limite_situation("ELS_QP").m_label_etat_limite == socle::vue_l1("N_R"));
  EXPECT_EQ(console_d_un_arret([&s] { static_cast<void>(s.get_numero_etat_limite_qb7("ELS_QP")); }),
            "Get_Numero_etat_limite_QB7 : Cas impossible" + fin_d_arret);
}

TEST(Situation, UneCopieNePartagePasSesEtatsLimites) {
  situation_nue s;
  s.set_type_situation_projet(situation_construction);
  s.ajouter_etat_limite("ELS_QP");
  const situation_nue copie(s);
  s.ajouter_etat_limite("ELS_CAR");
  zof_pt_etat_limite(s.m_les_etats_limites.pointer(1)).m_numero_etat_limite_qb7 = 77;
  EXPECT_EQ(copie.nb_etat_limite_situation(), 1);
  EXPECT_EQ(copie.get_numero_etat_limite_qb7("ELS_QP"), 3004);
}

TEST(Situation, LeTypeDesElementsEstVerifie) {
  zof_selection_acier autre;
  EXPECT_EQ(console_d_un_arret([&autre] { zof_pt_etat_limite(autre); }),
            "Zof_Pt_Etat_limite : Cas impossible" + fin_d_arret);
  zof_etat_limite etat;
  EXPECT_EQ(console_d_un_arret([&etat] { zof_pt_selection_acier(etat); }),
            "Zof_Pt_Selection_acier : Cas impossible" + fin_d_arret);
}

TEST(Remanence, LesDeformationsRestentATousLesEtatsLimites) {
  for (const std::string& label : labels_etats) EXPECT_TRUE(zof_remanence_deformations(label)) << label;
}

// 1.35 x 1.05 = 1.4175 on permanent loads at the ultimate limit state; the situation has no influence.
TEST(Ponderations, ParDefaut) {
  struct ligne {
    std::string etat;
    double g1, g2, p1, p2, q1, q2;
  };
  for (const ligne& l : std::vector<ligne>{
           {"ELS_CAR", 1.0499999523162842, 0.949999988079071, 1.100000023841858, 0.8999999761581421, 1, 0},
           {"ELS_CAR_NF", 1.0499999523162842, 0.949999988079071, 1.100000023841858, 0.8999999761581421, 1, 0},
           {"ELS_FRE", 1.0499999523162842, 0.949999988079071, 1.100000023841858, 0.8999999761581421, 1, 0},
           {"ELS_QP_NF", 1.0499999523162842, 0.949999988079071, 1.100000023841858, 0.8999999761581421, 1, 0},
           {"ELS_FRE_NF", 1.0499999523162842, 0.949999988079071, 1.100000023841858, 0.8999999761581421, 1, 0},
           {"ELS_QP", 1.0499999523162842, 0.949999988079071, 1.100000023841858, 0.8999999761581421, 1, 0},
           {"ELU_ACCIDENT", 1, 1, 1, 1, 1, 0},
           {"ELU_DURABLE", 1.4175000190734863, 0.949999988079071, 1, 1, 1.350000023841858, 0}})
    for (const std::string& situation : labels_situations) {
      EXPECT_EQ(zof_get_ponderation_efforts_defaut(l.etat, situation, "G1"), l.g1) << l.etat;
      EXPECT_EQ(zof_get_ponderation_efforts_defaut(l.etat, situation, "G2"), l.g2) << l.etat;
      EXPECT_EQ(zof_get_ponderation_efforts_defaut(l.etat, situation, "P1"), l.p1) << l.etat;
      EXPECT_EQ(zof_get_ponderation_efforts_defaut(l.etat, situation, "P2"), l.p2) << l.etat;
      EXPECT_EQ(zof_get_ponderation_efforts_defaut(l.etat, situation, "Q1"), l.q1) << l.etat;
      EXPECT_EQ(zof_get_ponderation_efforts_defaut(l.etat, situation, "Q2"), l.q2) << l.etat;
    }
}

TEST(Ponderations, ParDefautCasImpossibles) {
  EXPECT_EQ(console_d_un_arret([] { zof_get_ponderation_efforts_defaut("ELS_QP", "SEISME", "G"); }),
            "Zof_Get_ponderation_efforts_defaut : cas impossible 0" + fin_d_arret);
  for (const std::string etat : {"MECA_BRUT", "MECA_NET", "MECA_HOMOGENEISEE", "ELU"})
    EXPECT_EQ(console_d_un_arret([&etat] { zof_get_ponderation_efforts_defaut(etat, "SEISME", "G1"); }),
              "label_etat_limite: " + etat + "\n Zof_Get_ponderation_efforts_defaut : Cas impossible 2" +
                  fin_d_arret);
  EXPECT_EQ(console_d_un_arret([] { zof_get_ponderation_efforts_defaut("ELS_QP", "SEISME", "R1"); }),
            "label_effort: R1\n Zof_Get_ponderation_efforts_defaut : Cas impossible 3" + fin_d_arret);
}

// Every cell of the user's table is a place of its own.
TEST(Ponderations, DeLUtilisateur) {
  const std::vector<std::string> efforts = {"G1", "G2", "P1", "P2", "Q1", "Q2"};
  zof_ponderations_gpq12 table;
  double valeur = 0;
  for (int s = 1; s <= 5; ++s)
    for (int e = 1; e <= 11; ++e)
      for (int c = 1; c <= 3; ++c)
        for (int r = 1; r <= 2; ++r) table(s, e, c, r) = ++valeur;
  valeur = 0;
  for (const std::string& s : labels_situations)
    for (const std::string& e : labels_etats)
      for (const std::string& f : efforts)
        EXPECT_EQ(zof_get_ponderation_efforts_surcharges(table, e, s, f), ++valeur) << s << e << f;
  EXPECT_EQ(
      console_d_un_arret([&] { zof_get_ponderation_efforts_surcharges(table, "ELS_QP", "SEISME", "G12"); }),
      "Zof_Get_ponderation_efforts_surcharges : cas impossible 0" + fin_d_arret);
  EXPECT_EQ(
      console_d_un_arret([&] { zof_get_ponderation_efforts_surcharges(table, "ELS_QP", "SEISME", "G3"); }),
      " Zof_Get_ponderation_efforts_surcharges : Cas impossible 2" + fin_d_arret);
}

// Areas of the bars of EN 10080 in cm2, printed in every table of reinforcement.
TEST(SelectionAcier, LeCatalogueDesBarres) {
  struct barre {
    const char* label;
    int diametre;
    double aire_cm2;
  };
  uef_vector catalogue;
  int i = 0;
  for (const barre& b : std::vector<barre>{{"P_6 ", 6, 0.283},
                                           {"P_8 ", 8, 0.503},
                                           {"P_10", 10, 0.785},
                                           {"P_12", 12, 1.131},
                                           {"P_14", 14, 1.539},
                                           {"P_16", 16, 2.011},
                                           {"P_20", 20, 3.142},
                                           {"P_25", 25, 4.909},
                                           {"P_32", 32, 8.042}}) {
    zof_ajouter_selection(catalogue, std::string(b.label));
    const zof_selection_acier& s = zof_pt_selection_acier(catalogue.pointer(++i));
    EXPECT_EQ(s.m_diametre_mm, b.diametre);
    EXPECT_EQ(s.m_cardinalite, 1);
    EXPECT_EQ(s.m_label_phi.utile(), std::to_string(b.diametre));
    EXPECT_EQ(s.m_label_cardinalite.entier(), "P");
    EXPECT_EQ(s.m_label_selection.entier(), b.label);
    EXPECT_NEAR(s.m_aire_acier * 1e4, b.aire_cm2, 0.0006);
  }
  EXPECT_EQ(console_d_un_arret([&] { zof_ajouter_selection(catalogue, "Q_10"); }),
            " ZOF_Ajouter_selection : Cas impossible 1" + fin_d_arret);
  EXPECT_EQ(console_d_un_arret([&] { zof_ajouter_selection(catalogue, "P_40"); }),
            " ZOF_Ajouter_selection : Cas impossible 2" + fin_d_arret);
}
