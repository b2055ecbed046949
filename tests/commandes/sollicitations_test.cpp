// The SOLL command on whole data files: what is stored, what is refused and in which words, what EDIT SOLL
// writes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>
#include <ostream>

#include "Donnees_Sections.hpp"
#include "Executer.hpp"
#include "Modele.hpp"
#include "Simple.hpp"
#include "Zof_Gestion_Sollicitations.hpp"

using namespace socle;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

std::string soll(const std::string& corps) { return "SOLL T SECT POUTRE TITR 't' REPE GEOM\n" + corps; }

// ---- What is stored

class Stockage : public ::testing::Test {
 protected:
  /// Reads the file to its end without an error; the loadings stay until the end of the test.
  void lire(const std::string& donnees_section, const std::string& commandes) {
    lu.reset();
    lu =
        std::make_unique<modele>(donnees_section.substr(donnees::premiere_commande) + commandes + "\nFIN_\n");
    ASSERT_FALSE(lu->erco()) << lu->console();
  }
  static const zof_sollicitations& t(const texte<32>& section = "POUTRE") {
    return zof_get_pt_sollicitations(section, "T");
  }
  std::unique_ptr<modele> lu;
};

TEST_F(Stockage, UneSollicitationEntiere) {
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE
  REPE Y 0.5 Z -0.25 ANGL 30.
  TITR 'Travee courante'
  ETAT ELU DURABLE SITUATION EXPLOITATION SERVICE A_PO
    EFFO G N 1.5 MY 0.25 MZ -0.125 TITR 'poids propre' FIN_EFFO
    EFFO Q MY 0.5D0 FIN_EFFO
  FIN_ETAT
  ETAT ELS_ FREQ SITU INFI POND EFFO GQ N 1 FIN_EFFO FIN_ETAT
FIN_SOLL)");
  EXPECT_EQ(t().m_titre.utile(), "Travee courante");
  EXPECT_EQ(t().m_nom_section_sollicitations.utile(), "POUTRE_T");
  EXPECT_EQ(t().m_type_repere, type_repere_defini);
  EXPECT_EQ(t().m_y, 0.5);
  EXPECT_EQ(t().m_z, -0.25);
  EXPECT_EQ(t().m_alpha, 30);
  EXPECT_FALSE(t().m_est_phasee);
  const repere r = zof_get_repere_chargement_sollicitations("POUTRE", "T");
  EXPECT_DOUBLE_EQ(r.alpha, std::numbers::pi / 6);
  ASSERT_EQ(zof_get_nb_etats_limites_sollicitations("POUTRE", "T"), 2);
  const auto durable = zof_get_situation_sollicitations("POUTRE", "T", 1);
  EXPECT_EQ(durable.label_etat_limite.utile(), "ELU_DURABLE");
  EXPECT_EQ(durable.label_situation.utile(), "EXPLOITATION_SERVICE");
  EXPECT_EQ(durable.nb_phases, 1);
  EXPECT_EQ(zof_get_titre_phase_sollicitation("POUTRE", "T", 1, 1).utile(), "Phase initiale");
  EXPECT_TRUE(zof_get_zones_actives_phase_sollicitation("POUTRE", "T", 1, 1).empty());
  EXPECT_FALSE(zof_est_etat_limite_pondere("POUTRE", "T", 1));
  const auto frequent = zof_get_situation_sollicitations("POUTRE", "T", 2);
  EXPECT_EQ(frequent.label_etat_limite.utile(), "ELS_FRE_NF");
  EXPECT_EQ(frequent.label_situation.utile(), "EXPLOITATION_INFINIE");
  EXPECT_TRUE(zof_est_etat_limite_pondere("POUTRE", "T", 2));
  const auto g = zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G");
  ASSERT_EQ(g.size(), 1U);
  EXPECT_EQ(g[0].get_efforts(), (efforts{1.5, 0.25, -0.125}));
  EXPECT_EQ(g[0].m_titre.utile(), "poids propre");
  EXPECT_EQ(g[0].m_nom_section.utile(), "POUTRE");
  EXPECT_EQ(g[0].m_numero_phase, 1);
  // A component that is not given is zero, and an effort without title keeps the mark of what is not given.
  const auto q = zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "Q");
  EXPECT_EQ(q.at(0).get_efforts(), (efforts{0, 0.5, 0}));
  EXPECT_EQ(q.at(0).m_titre.utile(), "N_R");
}

TEST_F(Stockage, ChaqueEtatLimiteEtChaqueSituationASonLabel) {
  struct cas {
    const char *etat, *situation, *label_etat, *label_situation;
  };
  for (const cas& k : {cas{"ELS CARA", "EXPL SERV", "ELS_CAR", "EXPLOITATION_SERVICE"},
                       cas{"ELS FREQ", "SERV", "ELS_FRE", "EXPLOITATION_SERVICE"},
                       cas{"ELS QUAS", "INFI", "ELS_QP", "EXPLOITATION_INFINIE"},
                       cas{"ELS_ CARA", "CONS", "ELS_CAR_NF", "CONSTRUCTION"},
                       cas{"ELS_NF FREQ", "EXPL SERV", "ELS_FRE_NF", "EXPLOITATION_SERVICE"},
                       cas{"els_ quas", "infi", "ELS_QP_NF", "EXPLOITATION_INFINIE"},
                       cas{"ELU DURA", "EXPL CONS", "ELU_DURABLE", "CONSTRUCTION"},
                       cas{"ELU ACCI", "ACCI", "ELU_ACCIDENT", "ACCIDENT"},
                       cas{"ELU ACCI", "SEIS", "ELU_ACCIDENT", "SEISME"}}) {
    lire(donnees::beton_arme, soll(std::string("ETAT ") + k.etat + " SITU " + k.situation +
                                   " A_PO EFFO G N 1 FIN_EFFO FIN_ETAT FIN_SOLL"));
    const auto labels = zof_get_situation_sollicitations("POUTRE", "T", 1);
    EXPECT_EQ(labels.label_etat_limite.utile(), k.label_etat);
    EXPECT_EQ(labels.label_situation.utile(), k.label_situation);
  }
}

TEST_F(Stockage, LesFacteursDonnesRemplacentLesDefauts) {
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE TITR 't' REPE GEOM
  POND
    ETAT ELU DURA SITU EXPL SERV EFFO G FAVO 1 DEFA 1
    ETAT ELS_ CARA SITU INFI EFFO Q FAVO 0. DEFA 1.5D0
  FIN_POND
  ETAT ELU DURA SITU SERV A_PO EFFO G N 100 FIN_EFFO EFFO Q N 10 FIN_EFFO FIN_ETAT
FIN_SOLL)");
  EXPECT_TRUE(t().m_est_ponderation_surchargee);
  EXPECT_EQ(zof_get_ponderation_efforts(t(), "ELU_DURABLE", "EXPLOITATION_SERVICE", "G"),
            (zof_ponderation{1, 1}));
  EXPECT_EQ(zof_get_ponderation_efforts(t(), "ELS_CAR_NF", "EXPLOITATION_INFINIE", "Q"),
            (zof_ponderation{1.5, 0}));
  EXPECT_EQ(zof_get_ponderation_efforts(t(), "ELS_CAR", "EXPLOITATION_INFINIE", "Q"),
            (zof_ponderation{1, 0}));
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gq("POUTRE", "T", 1), 2);
}

TEST_F(Stockage, LesPhasesOntLeursZonesEtLeursEfforts) {
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE PHAS TITR 't' REPE GEOM
  ETAT ELU DURA SITU SERV A_PO
    PHAS 'Poutre seule' ZONE AME FIN_ZONE
    EFFO G MY 0.1 FIN_EFFO
    PHAS 'Avec la table' ZONE AME TABLE FIN_ZONE
    EFFO G MY 0.2 FIN_EFFO
    EFFO Q MY 0.3 FIN_EFFO
  FIN_ETAT
FIN_SOLL)");
  EXPECT_TRUE(t().m_est_phasee);
  EXPECT_EQ(zof_get_situation_sollicitations("POUTRE", "T", 1).nb_phases, 2);
  EXPECT_EQ(zof_get_titre_phase_sollicitation("POUTRE", "T", 1, 2).utile(), "Avec la table");
  EXPECT_EQ(zof_get_zones_actives_phase_sollicitation("POUTRE", "T", 1, 1).size(), 1U);
  EXPECT_EQ(zof_get_zones_actives_phase_sollicitation("POUTRE", "T", 1, 2).at(1).utile(), "TABLE");
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G", 2), 1);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "Q", 1), 0);
}

// Zones that are all new stand apart: allowed.
TEST_F(Stockage, UnePhasePeutNAvoirQueDesZonesNouvelles) {
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE PHAS TITR 't' REPE GEOM
  ETAT ELU DURA SITU SERV A_PO
    PHAS 'p1' ZONE AME FIN_ZONE EFFO G MY 0.1 FIN_EFFO
    PHAS 'p2' ZONE TABLE FIN_ZONE EFFO G MY 0.2 FIN_EFFO
    PHAS 'p3' ZONE TABLE AME FIN_ZONE EFFO G MY 0.2 FIN_EFFO
  FIN_ETAT
FIN_SOLL)");
}

TEST_F(Stockage, MemeReprendLesEffortsDUnAutreEtatLimite) {
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE TITR 't' REPE GEOM
  ETAT ELS CARA SITU SERV A_PO
    EFFO G N 1 TITR 'g1' FIN_EFFO EFFO G N 2 TITR 'g2' FIN_EFFO EFFO Q N 5 FIN_EFFO
  FIN_ETAT
  ETAT ELU DURA SITU SERV A_PO
    MEME G QUE ELS CARA EN EXPL SERV FIN_
    MEME Q QUE ELS CARA EN SERV FIN_MEME
  FIN_ETAT
FIN_SOLL)");
  const auto g = zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 2, "G");
  ASSERT_EQ(g.size(), 2U);
  EXPECT_EQ(g[1].m_n, 2);
  EXPECT_EQ(g[1].m_titre.utile(), "g2");
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gq("POUTRE", "T", 2), 2 * 1 * 2 * 2);
}

// All records of that limit state and situation are searched, weighted ones too: what they give is weighted
// here like the rest (1.4175 and 0.95), whatever it stood for there.
TEST_F(Stockage, MemeChercheDansTousLesEnregistrements) {
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE TITR 't' REPE GEOM
  ETAT ELS CARA SITU SERV POND EFFO G N 100 TITR 'g1' FIN_EFFO FIN_ETAT
  ETAT ELS CARA SITU CONS A_PO EFFO G N 300 TITR 'autre' FIN_EFFO FIN_ETAT
  ETAT ELS CARA SITU SERV A_PO EFFO Q N 5 FIN_EFFO EFFO G N 200 TITR 'g2' FIN_EFFO FIN_ETAT
  ETAT ELU DURA SITU SERV A_PO MEME G QUE ELS CARA EN EXPL SERV FIN_ FIN_ETAT
FIN_SOLL)");
  const auto g = zof_get_efforts_etat_limite_sollicitations_ponderes("POUTRE", "T", 4, "G");
  ASSERT_EQ(g.size(), 4U);
  EXPECT_EQ(g[0].m_n, simple(1.4175f) * 100);
  EXPECT_EQ(g[1].m_n, simple(0.95f) * 100);
  EXPECT_EQ(g[2].m_n, simple(1.4175f) * 200);
  EXPECT_EQ(g[3].m_titre.utile(), "g2_min - ELU_DURABLE-EXPLOITATION_SERVICE");
}

// The raw frame is that of the gross section in its own axes, whatever frame and activity a justification has
// left: centroid of the flanged beam at z = 0.16.
TEST_F(Stockage, LeRepereBrutNeDependPasDesJustificationsFaites) {
  lire(donnees::beton_arme, R"(
SOLL U SECT POUTRE TITR 'u' REPE Y 0.3D0 Z -0.2D0 ANGL 40.
  ETAT ELU DURA SITU SERV POND EFFO G N 1 FIN_EFFO FIN_ETAT
FIN_SOLL
JUST POUTRE SOLL U FIN_JUST
SOLL T SECT POUTRE TITR 't' REPE BRUT
  ETAT ELU DURA SITU SERV POND EFFO G N 2 MY 0.1D0 REPE TABLE FIN_EFFO FIN_ETAT
FIN_SOLL)");
  const repere r = zof_get_repere_chargement_sollicitations("POUTRE", "T");
  EXPECT_NEAR(r.y_rep, 0, 1e-12);
  EXPECT_NEAR(r.z_rep, 0.16, 1e-12);
  // The table has its centroid at z = 0.4: My = 0.1 + 2 (0.4 - 0.16).
  EXPECT_NEAR(zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G").at(0).m_my, 0.58, 1e-12);
}

// A record may take up its own efforts: they stand twice, and the search ends.
TEST_F(Stockage, MemeSurSonPropreEtatLimiteDoubleLesEfforts) {
  lire(donnees::beton_arme, soll(R"(
  ETAT ELU DURA SITU SERV A_PO
    EFFO G N 1 FIN_EFFO EFFO G N 2 FIN_EFFO
    MEME G QUE ELU DURA EN SERV FIN_
  FIN_ETAT
FIN_SOLL)"));
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G"), 4);
}

TEST_F(Stockage, UneSectionPrecontrainteASesTensions) {
  lire(donnees::precontraint, R"(
SOLL T SECT PONT TITR 't' REPE GEOM PREC HYPE PRET
  ETAT ELS CARA SITU SERV A_PO
    EFFO G MY 0.5 FIN_EFFO
    EFFO P N 0. TENS
      PREC C1 POIN 11 TENS 1200. INJE 0.8D0
      PREC C1 POIN 12 TENS 0.0 NON_INJECTE
    FIN_TENS FIN_EFFO
  FIN_ETAT
FIN_SOLL)");
  EXPECT_FALSE(t("PONT").m_est_precontrainte_iso_incluse);
  EXPECT_FALSE(t("PONT").m_est_precontrainte_postendue);
  EXPECT_FALSE(zof_est_precontrainte_iso_incluse("PONT", "T"));
  const auto p = zof_get_efforts_etat_limite_sollicitations("PONT", "T", 1, "P");
  ASSERT_EQ(p.size(), 1U);
  EXPECT_EQ(zof_get_tensions_effort_p(p[0]), (std::vector{1200.0, 0.0}));
  EXPECT_EQ(zof_get_rhos_effort_p(p[0]).at(0), 0.8);
  EXPECT_EQ(zof_get_noms_cables_effort_p(p[0]).at(1).utile(), "C1");
  const auto zones = zof_get_zones_cables_effort_p(p[0]);
  ASSERT_EQ(zones.size(), 2U);
  EXPECT_NE(zones[0], zones[1]);
}

// The tensions of a case follow their factor, rho does not.
TEST_F(Stockage, LesTensionsSuiventLeFacteurDeP) {
  lire(donnees::precontraint, R"(
SOLL T SECT PONT TITR 't' REPE GEOM PREC TOTA POST
  ETAT ELS CARA SITU SERV A_PO
    EFFO G MY 0.5 FIN_EFFO
    EFFO P N 1. TENS PREC C1 POIN 11 TENS 1000. INJE 1. FIN_TENS FIN_EFFO
  FIN_ETAT
FIN_SOLL)");
  const auto cas = zof_get_efforts_etat_limite_sollicitations_gp("PONT", "T", 1);
  ASSERT_EQ(cas.size(), 4U);
  EXPECT_EQ(zof_get_tensions_effort_p(cas[0]).at(0), 1000 * simple(1.1f));
  EXPECT_EQ(zof_get_tensions_effort_p(cas[1]).at(0), 1000 * simple(0.9f));
  EXPECT_EQ(zof_get_rhos_effort_p(cas[1]).at(0), 1.0);
}

TEST_F(Stockage, LesTensionsManquantesNeSontQuUnAvertissement) {
  const course c = executer(donnees::precontraint + R"(
SOLL T SECT PONT TITR 't' REPE GEOM PREC TOTA POST
  ETAT ELS CARA SITU SERV POND EFFO GP N 1. FIN_EFFO FIN_ETAT
FIN_SOLL
FIN_
)");
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.listing, HasSubstr("     - ATTENTION :Les tensions ne sont pas d\xEF\xBF\xBD"
                                   "finies avec GP ou P"));
}

// Centroid of the table: (0, 0.4), symmetric, so its raw frame is not turned. N = 2 there gives My = 0.8 +
// 0.1 about the origin of the section.
TEST_F(Stockage, LesEffortsDUneZonePassentAuRepereGeometrique) {
  lire(donnees::beton_arme, soll(R"(
  ETAT ELU DURA SITU SERV POND EFFO G N 2 MY 0.1D0 MZ 0.05D0 REPE TABLE FIN_EFFO FIN_ETAT
FIN_SOLL)"));
  const auto g = zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G");
  EXPECT_NEAR(g.at(0).m_n, 2, 1e-15);
  EXPECT_NEAR(g.at(0).m_my, 0.9, 1e-12);
  EXPECT_NEAR(g.at(0).m_mz, 0.05, 1e-12);
}

// A frame of the block before is forgotten once the block gives its own.
TEST_F(Stockage, LeRepereGeometriqueRemplaceCeluiDuBlocPrecedent) {
  lire(donnees::beton_arme, R"(
SOLL U SECT POUTRE TITR 'u' REPE Y 0.1D0 Z 0.15D0 ANGL 20.
  ETAT ELU DURA SITU SERV POND EFFO G N 2 FIN_EFFO FIN_ETAT
FIN_SOLL
SOLL T SECT POUTRE TITR 't' REPE GEOM
  ETAT ELU DURA SITU SERV POND EFFO G N 2 MY 0.1D0 REPE TABLE FIN_EFFO FIN_ETAT
FIN_SOLL)");
  const auto g = zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G");
  EXPECT_NEAR(g.at(0).m_my, 0.9, 1e-12);
  EXPECT_NEAR(g.at(0).m_mz, 0, 1e-12);
}

// To the user's frame at (0.1, 0.15): My = 0.1 + 2 (0.4 - 0.15), Mz = 0.05 + 2 x 0.1.
TEST_F(Stockage, LesEffortsDUneZonePassentAuRepereDefini) {
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE TITR 't' REPE Y 0.1D0 Z 0.15D0 ANGL 0.
  ETAT ELU DURA SITU SERV POND EFFO G N 2 MY 0.1D0 MZ 0.05D0 REPE TABLE FIN_EFFO FIN_ETAT
FIN_SOLL)");
  const auto g = zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G");
  EXPECT_NEAR(g.at(0).m_my, 0.6, 1e-12);
  EXPECT_NEAR(g.at(0).m_mz, 0.25, 1e-12);
}

// In the raw frame of the whole section, whose frame the loading has too, nothing changes; with phases the
// raw frame is that of the active zones: the web has its centroid at 0, the section at (0.18 x 0 + 0.12 x
// 0.4) / 0.30 = 0.16.
TEST_F(Stockage, LeRepereBrutEstCeluiDesZonesActives) {
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE TITR 't' REPE BRUT
  ETAT ELU DURA SITU SERV POND EFFO G N 2 MY 0.1D0 R_BR FIN_EFFO FIN_ETAT
FIN_SOLL)");
  EXPECT_NEAR(zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G").at(0).m_my, 0.1, 1e-12);
  lire(donnees::beton_arme, R"(
SOLL T SECT POUTRE PHAS TITR 't' REPE BRUT
  ETAT ELU DURA SITU SERV POND PHAS 'p' ZONE AME FIN_ZONE EFFO G N 2 MY 0.1D0 R_BR FIN_EFFO FIN_ETAT
FIN_SOLL)");
  EXPECT_NEAR(zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G").at(0).m_my, 0.1 - 2 * 0.16,
              1e-12);
}

// The frame of forces is the one in force where they stand: a REPE behind ETAT comes too late, and the block
// before still rules.
TEST_F(Stockage, UnRepereApresLEtatVientTropTard) {
  lire(donnees::beton_arme, R"(
SOLL AVANT SECT POUTRE TITR 'a' REPE Y 0. Z 0.4D0 ANGL 0.
  ETAT ELU DURA SITU SERV POND EFFO G N 2 FIN_EFFO FIN_ETAT
FIN_SOLL
SOLL T SECT POUTRE TITR 't'
  ETAT ELU DURA SITU SERV POND EFFO G N 2 MY 0.1D0 REPE TABLE FIN_EFFO FIN_ETAT
  REPE GEOM
FIN_SOLL)");
  EXPECT_NEAR(zof_get_efforts_etat_limite_sollicitations("POUTRE", "T", 1, "G").at(0).m_my, 0.1, 1e-12);
  EXPECT_EQ(t().m_type_repere, type_repere_geometrique);
}

// Without any frame so far there is nothing to convert to: an internal stop.
TEST_F(Stockage, SansAucunRepereLaConversionEstUnCasImpossible) {
  const course c = executer(donnees::beton_arme + R"(
SOLL T SECT POUTRE TITR 't'
  ETAT ELU DURA SITU SERV POND EFFO G N 2 REPE TABLE FIN_EFFO FIN_ETAT
FIN_SOLL
FIN_
)");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.listing, HasSubstr("\n Zof_Calcul_efforts_en_repere_sollicitations: cas impossible\n"));
}

// ---- What is refused

struct refus {
  std::string nom;
  std::string section;
  std::string commandes;
  std::string message;  // line of the listing behind its dash
};

void PrintTo(const refus& r, std::ostream* sortie) { *sortie << r.nom; }
std::string nom_du_refus(const ::testing::TestParamInfo<refus>& cas) { return cas.param.nom; }

class Refus : public ::testing::TestWithParam<refus> {};

TEST_P(Refus, EstDitDansCesMots) {
  const refus& r = GetParam();
  const course c = executer(r.section + r.commandes + "\nFIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.listing, HasSubstr("\nErreur de commande : \n" + r.message + "\n"));
  EXPECT_THAT(c.console, HasSubstr("\n" + r.message + "\n"));
}

std::string blancs(std::size_t n) { return std::string(n, ' '); }
std::string trente_deux(const std::string& nom) { return nom + blancs(32 - nom.size()); }

refus ba(const std::string& nom, const std::string& commandes, const std::string& message) {
  return {nom, donnees::beton_arme, commandes, "     - " + message};
}
refus bp(const std::string& nom, const std::string& commandes, const std::string& message) {
  return {nom, donnees::precontraint, commandes, "     - " + message};
}

const std::string tete = "SOLL T SECT POUTRE TITR 't' REPE GEOM ";
const std::string etat = tete + "ETAT ELU DURA SITU SERV A_PO ";
const std::string pondere = tete + "ETAT ELU DURA SITU SERV POND ";
const std::string phasee = "SOLL T SECT POUTRE PHAS TITR 't' REPE GEOM ETAT ELU DURA SITU SERV ";
const std::string post = "SOLL T SECT PONT TITR 't' REPE GEOM PREC TOTA POST ETAT ELS CARA SITU SERV ";
const std::string pre = "SOLL T SECT PONT TITR 't' REPE GEOM PREC TOTA PRET ETAT ELS CARA SITU SERV ";
const std::string post_phasee =
    "SOLL T SECT PONT PHAS TITR 't' REPE GEOM PREC TOTA POST ETAT ELS CARA SITU SERV ";
const std::string pre_phasee =
    "SOLL T SECT PONT PHAS TITR 't' REPE GEOM PREC TOTA PRET ETAT ELS CARA SITU SERV ";
const std::string g = "EFFO G N 1 FIN_EFFO ";
const std::string q = "EFFO Q N 1 FIN_EFFO ";
const std::string p = "EFFO P N 1 FIN_EFFO ";
const std::string gp = "EFFO GP N 1 FIN_EFFO ";
const std::string gq = "EFFO GQ N 1 FIN_EFFO ";
const std::string ame = "PHAS 'p' ZONE AME FIN_ZONE ";
const std::string tout = "PHAS 'p' ZONE AME TABLE FIN_ZONE ";
const std::string fin = "FIN_ETAT FIN_SOLL";
const std::string accent = "\xEF\xBF\xBD";

std::string incorrect(const std::string& mot) { return " Mot clef  " + mot + " incorrect dans ce contexte"; }

INSTANTIATE_TEST_SUITE_P(
    Tete, Refus,
    ::testing::Values(
        ba("SectionInconnue", "SOLL T SECT RIEN", "Section non definie :" + trente_deux("RIEN")),
        ba("MotSectAttendu", "SOLL T ZONE POUTRE", incorrect("ZONE")),
        ba("DejaDefinie", tete + "ETAT ELU DURA SITU SERV A_PO " + g + fin + "\nSOLL T SECT POUTRE",
           "Sollicitations : T deja definies pour : POUTRE"),
        ba("MotInconnu", tete + "QUOI", incorrect("QUOI")), ba("MotCourt", tete + "XY", incorrect("XY  ")),
        refus{"TitreRepete", donnees::beton_arme, tete + "TITR 'u'",
              "       - Repetition interdite du mot clef:TITR"},
        ba("RepereRepete", tete + "REPE BRUT", "Repere deja defini"),
        ba("RepereInconnu", "SOLL T SECT POUTRE REPE HAUT", incorrect("HAUT")),
        ba("RepereSansZ", "SOLL T SECT POUTRE REPE Y 0. X", incorrect("X   ")),
        ba("RepereSansAngle", "SOLL T SECT POUTRE REPE Y 0. Z 0. TITR", incorrect("TITR")),
        ba("PrecontrainteSurBetonArme", tete + "PREC TOTA POST",
           " option precontrainte incorrecte pour section non precontrainte"),
        bp("PrecontrainteRepetee", "SOLL T SECT PONT PREC TOTA POST PREC",
           "Precontrainte totale/hyper deja definie"),
        bp("PrecontrainteTotaOuHype", "SOLL T SECT PONT PREC POST", incorrect("POST")),
        bp("PrecontraintePretOuPost", "SOLL T SECT PONT PREC HYPE TOTA", incorrect("TOTA")),
        ba("SansTitre", "SOLL T SECT POUTRE REPE GEOM ETAT ELU DURA SITU SERV A_PO " + g + fin,
           "Titre: non renseigne(e)"),
        ba("SansRepere", "SOLL T SECT POUTRE TITR 't' ETAT ELU DURA SITU SERV A_PO " + g + fin,
           "REPERE: non renseigne(e)"),
        ba("SansEtatLimite", tete + "FIN_SOLL", "Aucun etat limite defini"),
        bp("SansPrecontrainte",
           "SOLL T SECT PONT TITR 't' REPE GEOM ETAT ELS CARA SITU SERV A_PO " + g + p + fin,
           "Precontrainte totale/hyper non definie"),
        ba("MotDeFin", tete + "ETAT ELU DURA SITU SERV A_PO " + g + "FIN_ETAT FIN_SECT",
           "FIN_SECTIncorrect dans ce contexte - Attendu : FIN_SOLL")),
    nom_du_refus);

const std::string facteurs = "SOLL T SECT POUTRE POND ";
const std::string ligne = facteurs + "ETAT ELU DURA SITU EXPL SERV EFFO G ";

INSTANTIATE_TEST_SUITE_P(
    Facteurs, Refus,
    ::testing::Values(
        ba("MotEtat", facteurs + "FIN_", "Dans Ponderation mot ETAT attendu"),
        ba("EtatLimiteInconnu", facteurs + "ETAT ELX CARA", incorrect("ELX ")),
        ba("EtatLimiteSansSuite", facteurs + "ETAT ELS DURA", incorrect("DURA")),
        ba("MotSitu", facteurs + "ETAT ELU DURA EFFO", "Dans Ponderation mot SITU attendu"),
        ba("SituationInconnue", facteurs + "ETAT ELU DURA SITU EXPL NULL", incorrect("NULL")),
        ba("MotEffo", facteurs + "ETAT ELU DURA SITU CONS TENS", "Dans Ponderation mot EFFO attendu"),
        ba("Lettre", facteurs + "ETAT ELU DURA SITU CONS EFFO X", "Type d effort incorrect: X"),
        ba("MotFavorable", ligne + "DEFA", "syntaxe incorrecte: mot clef FAVORABLE attendu"),
        ba("MotDefavorable", ligne + "FAVO 1. ETAT", "syntaxe incorrecte: mot clef DEFAVORABLE attendu"),
        ba("FavorableAuDessus", ligne + "FAVO 0.9 DEFA 0.8", "valeurs incorrectes: v_fav > v_defavorable"),
        ba("FavorableAuDessusDeUn", ligne + "FAVO 1.1 DEFA 1.35", "valeurs incorrectes: v_fav superieur a 1"),
        ba("DefavorableSousUn", ligne + "FAVO 0.8 DEFA 0.9", "valeurs incorrectes: v_defav inferieur a 1"),
        ba("MotDeFin", ligne + "FAVO 1. DEFA 1.35 FIN_SOLL",
           "FIN_SOLLIncorrect dans ce contexte - Attendu : FIN_POND")),
    nom_du_refus);

INSTANTIATE_TEST_SUITE_P(
    EtatLimite, Refus,
    ::testing::Values(
        ba("PremierMot", tete + "ETAT DURA", incorrect("DURA")),
        ba("SecondMot", tete + "ETAT ELU CARA", incorrect("CARA")),
        ba("MotSitu", tete + "ETAT ELU DURA EFFO", incorrect("EFFO")),
        ba("Situation", tete + "ETAT ELU DURA SITU EXPL EXPL", incorrect("EXPL")),
        ba("PondereOuNon", tete + "ETAT ELU DURA SITU SERV EFFO", incorrect("EFFO")),
        ba("EtatAbsentDeLaSituation", tete + "ETAT ELS QUAS SITU ACCI A_PO",
           "Etat limite non defini :ELS_QP pour la situation : ACCIDENT"),
        ba("MotInconnu", etat + "TITR", incorrect("TITR")),
        ba("PhasePrealable", phasee + "A_PO " + g,
           "PHASE Prealable Obligatoire si Sollicitation declaree PHASEE"),
        ba("PhaseInterdite", etat + ame, "Phase interdite si Sollicitation non declare PHASEE"),
        ba("MemeInterdit", phasee + "A_PO " + ame + "MEME", "Option MEME interdite en mode Phasage"),
        ba("MotDeFin", etat + g + "FIN_SOLL", "FIN_SOLLIncorrect dans ce contexte - Attendu : FIN_ETAT")),
    nom_du_refus);

const std::string melange = "Section pr" + accent + "contrainte";

INSTANTIATE_TEST_SUITE_P(
    Phases, Refus,
    ::testing::Values(
        ba("MotZone", phasee + "A_PO PHAS 'p' AME", incorrect("AME ")),
        ba("ZoneInconnue", phasee + "A_PO PHAS 'p' ZONE RIEN",
           "Zone RIEN : n existe pas ou n est pas du type contour ou parois"),
        ba("ZoneDAciers", phasee + "A_PO PHAS 'p' ZONE INF",
           "Zone INF : n existe pas ou n est pas du type contour ou parois"),
        ba("AucuneZone", phasee + "A_PO PHAS 'p' ZONE FIN_ZONE", "Aucun nom de zone n est defini"),
        ba("MotDeFin", phasee + "A_PO PHAS 'p' ZONE AME FIN_PHAS",
           "FIN_PHASIncorrect dans ce contexte - Attendu : FIN_ZONE"),
        ba("ZoneAbandonnee", phasee + "A_PO " + tout + g + ame,
           "TABLE non activee dans la phase CONTINUE courante alors qu elle est active dans une phase "
           "precedente"),
        // joined to one of two phases that stand apart, and not to the other
        ba("ZoneDUnePhaseSeparee",
           phasee + "A_PO " + ame + g + "PHAS 'p' ZONE TABLE FIN_ZONE " + g + "PHAS 'p' ZONE TABLE FIN_ZONE",
           "AME non activee dans la phase CONTINUE courante alors qu elle est active dans une phase "
           "precedente"),
        ba("PhaseSansEffort", phasee + "A_PO " + ame + tout, "Aucun effort defini dans phase"),
        ba("PhaseSansGNiP", phasee + "A_PO " + ame + q + tout, "Aucun Effort de type G ou P defini"),
        ba("PhaseGq", phasee + "POND " + ame + gq + tout, "Section BA : GQ interdit en mode phasage"),
        bp("PhasePostGq", post_phasee + "POND " + ame + gq + tout,
           "Effort de type GQ interdit en post-tension"),
        bp("PhasePostGpEtP", post_phasee + "POND " + ame + gp + p + tout,
           melange + " : melange GP et P interdit"),
        bp("PhasePostGpEtG", post_phasee + "POND " + ame + gp + g + tout,
           melange + " : melange GP et G interdit"),
        bp("PhasePostPSansG", post_phasee + "POND " + ame + p + tout,
           melange + " par postension phasee : P sans G interdit"),
        bp("PhasePreGp", pre_phasee + "POND " + ame + gp + tout, "Effort de type GP interdit en pretension"),
        bp("PhasePreGq", pre_phasee + "POND " + ame + gq + tout, "Effort de type GQ interdit en pretension"),
        bp("PhasePreGEtP", pre_phasee + "POND " + ame + g + p + tout,
           "Presence simultanee de G et P interdite en pretension phasee"),
        bp("CableHorsPhase",
           post_phasee + "POND " + ame + "EFFO GP N 1 TENS PREC C2 POIN 11 TENS 1000. NON_ FIN_TENS FIN_EFFO",
           trente_deux("C2") + " non presente dans zones actives de la phase")),
    nom_du_refus);

INSTANTIATE_TEST_SUITE_P(
    Cloture, Refus,
    ::testing::Values(
        ba("AucunEffort", etat + fin, "Aucun effort defini"),
        ba("DernierePhaseSansEffort", phasee + "A_PO " + ame + g + tout + fin, "Aucun effort defini"),
        ba("SansGNiP", etat + q + fin, "Aucun Effort de type G ou P d" + accent + "fini"),
        // the G of the phase before does not count
        ba("DernierePhaseSansGNiP", phasee + "A_PO " + ame + g + tout + q + fin,
           "Aucun Effort de type G ou P d" + accent + "fini"),
        ba("GqPhase", phasee + "POND " + ame + gq + fin, "Section BA : GQ interdit en mode phasage"),
        bp("PostGq", post + "POND " + gq + fin, "Effort de type GQ interdit en post-tension"),
        bp("PostGpEtP", post + "POND " + gp + p + fin, melange + "  : melange GP et P interdit"),
        bp("PostGpEtG", post + "POND " + gp + g + fin, melange + "  : melange GP et G interdit"),
        bp("PostPSansG", post_phasee + "POND " + ame + p + fin,
           melange + " par postension phasee : P sans G interdit"),
        bp("PreGp", pre + "POND " + gp + fin, "Effort de type GP interdit en pretension"),
        bp("PreGqPhase", pre_phasee + "POND " + ame + gq + fin,
           "Effort de type GQ interdit en pretension phasee"),
        bp("PreGEtPPhase", pre_phasee + "POND " + ame + g + p + fin,
           "Presence simultanee de G et P interdite en pretension phasee"),
        bp("PreGqEtQ", pre + "POND " + gq + q + fin, melange + " : melange GQ et Q interdit"),
        bp("PreGqEtG", pre + "POND " + gq + g + fin, melange + " : melange GQ et G interdit"),
        bp("SansG", post + "A_PO " + p + fin, melange + " non phasee : Aucun effort de type G defini"),
        bp("SansP", post + "A_PO " + g + fin, melange + " non phasee : Aucun effort de type P defini")),
    nom_du_refus);

INSTANTIATE_TEST_SUITE_P(
    Effort, Refus,
    ::testing::Values(ba("Type", etat + "EFFO Z", "Type d effort incorrect: " + trente_deux("Z")),
                      ba("PSansPrecontrainte", etat + "EFFO P",
                         "Effort P incorrect pour une section non precontrainte : " + trente_deux("P")),
                      ba("GpSansPrecontrainte", pondere + "EFFO GP",
                         "Effort P incorrect pour une section non precontrainte : " + trente_deux("GP")),
                      // broken twice, by the section and by the limit state
                      ba("GpNonPondereSansPrecontrainte", etat + "EFFO GP",
                         "Effort P incorrect pour une section non precontrainte : " + trente_deux("GP")),
                      ba("GqNonPondere", etat + "EFFO GQ",
                         "Type d effort incorrect pour Etat limite non pondere : " + trente_deux("GQ")),
                      bp("GpNonPondere", post + "A_PO EFFO GP",
                         "Type d effort incorrect pour Etat limite non pondere : " + trente_deux("GP")),
                      ba("NRepete", etat + "EFFO G N 1 N", "Repetition de l effort N"),
                      ba("MyRepete", etat + "EFFO G MY 1 MY", "Repetition de l effort My"),
                      ba("MzRepete", etat + "EFFO G MZ 1 MZ", "Repetition de l effort Mz"),
                      ba("TitreRepete", etat + "EFFO G TITR 'a' TITR", "Repetition de titre"),
                      ba("RepereRepete", etat + "EFFO G REPE AME REPE", "Repetition de repere"),
                      ba("RepereBrutRepete", etat + "EFFO G REPE AME R_BR", "Repetition de repere"),
                      ba("RepereApresBrut", etat + "EFFO G R_BR REPE", "Repetition de repere"),
                      ba("ZoneDuRepere", etat + "EFFO G REPE INF",
                         trente_deux("INF") + " n existe pas ou n est pas un contour ou un profil"),
                      ba("TensionsSansP", etat + "EFFO G TENS",
                         "Les tensions ne doivent etre d" + accent + "finies qu'avec GP ou P"),
                      ba("MotInconnu", etat + "EFFO G FX", incorrect("FX  ")),
                      ba("SansComposante", etat + "EFFO G TITR 'rien' FIN_EFFO", "Aucun effort defini"),
                      ba("MotDeFin", etat + "EFFO G N 1 FIN_ETAT",
                         "FIN_ETATIncorrect dans ce contexte - Attendu : FIN_EFFO")),
    nom_du_refus);

const std::string tensions = post + "POND EFFO GP N 1 TENS ";

INSTANTIATE_TEST_SUITE_P(
    Tensions, Refus,
    ::testing::Values(
        bp("GroupeInconnu", tensions + "PREC C9", " Precontrainte non definie : " + trente_deux("C9")),
        bp("MotPoin", tensions + "PREC C1 TENS", incorrect("TENS")),
        bp("PointInconnu", tensions + "PREC C1 POIN 13", " Point non defini 13" + blancs(13)),
        bp("MotTens", tensions + "PREC C1 POIN 11 INJE", incorrect("INJE")),
        bp("TensionNegative", tensions + "PREC C1 POIN 11 TENS -1.0",
           " Tension negative ou nulle du point :11" + blancs(13)),
        bp("MotInje", tensions + "PREC C1 POIN 11 TENS 1. PREC", incorrect("PREC")),
        bp("RhoNegatif", tensions + "PREC C1 POIN 11 TENS 1. INJE -0.1",
           " Coefficient rho incorrect:  <0 ou > 1 du point :11" + blancs(13)),
        bp("RhoAuDessusDeUn", tensions + "PREC C1 POIN 11 TENS 1. INJE 1.01",
           " Coefficient rho incorrect:  <0 ou > 1 du point :11" + blancs(13)),
        bp("PointRepete", tensions + "PREC C1 POIN 11 TENS 1. NON_ PREC C1 POIN 11 TENS 1. NON_",
           "Tension - Numero de point de passage deja defini :11" + blancs(13)),
        bp("PointRepeteDansUnAutreGroupe",
           tensions + "PREC C1 POIN 11 TENS 1. NON_ PREC C2 POIN 11 TENS 1. NON_",
           "Tension - Numero de point de passage deja defini :11" + blancs(13)),
        // min(0.8 x 1860, 0.9 x 1600) = 1440 MPa
        bp("TensionTropForte", tensions + "PREC C1 POIN 12 TENS 1440.1 NON_",
           " Tension superieure " + accent + " min (0.8fpk, 0.9fp0.1k)  du point :12" + blancs(13)),
        bp("MotInconnu", tensions + "POIN", incorrect("POIN")),
        bp("Aucune", tensions + "FIN_TENS", "Aucune tension definie"),
        bp("MotDeFin", tensions + "PREC C1 POIN 11 TENS 1. NON_ FIN_EFFO",
           "FIN_EFFOIncorrect dans ce contexte - Attendu : FIN_TENS")),
    nom_du_refus);

INSTANTIATE_TEST_SUITE_P(
    Meme, Refus,
    ::testing::Values(
        ba("Type", etat + "MEME Z", "Type d effort incorrect: " + trente_deux("Z")),
        bp("GqPrecontraint", post + "POND MEME GQ",
           "Effort GQ incorrect pour une section precontrainte : " + trente_deux("GQ")),
        ba("PSansPrecontrainte", etat + "MEME P",
           "Effort P incorrect pour une section non precontrainte : " + trente_deux("P")),
        ba("GqNonPondere", etat + "MEME GQ",
           "Type d effort incorrect pour Etat limite non pondere : " + trente_deux("GQ")),
        ba("PSansPrecontraintePondere", pondere + "MEME GP",
           "Effort P incorrect pour une section non precontrainte : " + trente_deux("GP")),
        ba("EtatPondere", pondere + "MEME G", "Option Meme_effort interdite pour un Etat limite pondere "),
        ba("MotQue", etat + "MEME G COMME", incorrect("COMM")),
        ba("MotEn", etat + "MEME G QUE ELU DURA DANS", incorrect("DANS")),
        ba("MotFin", etat + "MEME G QUE ELU DURA EN SERV EFFO", incorrect("EFFO")),
        ba("RienATrouver", etat + "MEME G QUE ELS CARA EN SERV FIN_",
           "Aucun effort de meme type d" + accent + "j" + accent + " defini dans l etat limite cible")),
    nom_du_refus);

// The words of a factor line, and A_PO, POND behind a situation, are names of four letters at most.
TEST(LectureSollicitations, LesMotsLongsSontRefusesParLeLecteur) {
  for (const std::string& commandes :
       {tete + "ETAT ELU DURA SITU SERV A_PONDERER", facteurs + "ETAT ELU DURABLE", ligne + "FAVORABLE",
        facteurs + "ETAT ELU DURA SITU CONS EFFO GP"}) {
    const course c = executer(donnees::beton_arme + commandes + "\nFIN_\n");
    EXPECT_EQ(c.statut, 1) << commandes;
    EXPECT_THAT(c.console, HasSubstr("     - TERME LU INCORRECT : NOM TROP LONG OU AUTRE TERME"))
        << commandes;
    EXPECT_THAT(c.listing, Not(HasSubstr("Erreur de commande"))) << commandes;
  }
}

// ---- EDIT SOLL

TEST(EditionSollicitations, ChaqueDonneeEstDansLaNote) {
  const course c = executer(donnees::precontraint + R"(
SOLL T SECT PONT TITR 'Travee' REPE Y 0.25 Z 0.5 ANGL 30. PREC TOTA POST
  ETAT ELS CARA SITU SERV A_PO
    EFFO G MY 0.5 TITR 'poids' FIN_EFFO
    EFFO P N 1.5 TENS PREC C1 POIN 11 TENS 1000. INJE 0.5 PREC C1 POIN 12 TENS 900. NON_ FIN_TENS FIN_EFFO
  FIN_ETAT
FIN_SOLL
SOLL U SECT PONT TITR 'u' REPE BRUT PREC TOTA POST
  ETAT ELS CARA SITU SERV POND EFFO GP N 1 FIN_EFFO FIN_ETAT
FIN_SOLL
SOLL V SECT PONT TITR 'v' REPE GEOM PREC TOTA POST
  ETAT ELS CARA SITU SERV POND EFFO GP N 1 FIN_EFFO FIN_ETAT
FIN_SOLL
EDIT SOLL
FIN_
)");
  EXPECT_EQ(c.statut, 0) << c.listing;
  EXPECT_THAT(c.txt, HasSubstr("Sollicitation : PONT_T - Travee"));
  // y stands behind z too
  EXPECT_THAT(c.txt, HasSubstr("- Repere  : y : 0.25000 z : 0.25000 Angle : 30.000"));
  EXPECT_THAT(c.txt, HasSubstr("- Repere  : Brut"));
  EXPECT_THAT(c.txt, HasSubstr("- Repere  : Geometrique"));
  EXPECT_THAT(c.txt, HasSubstr("Situation : EXPLOITATION_SERVICE - Etat_limite : ELS_CAR"));
  EXPECT_THAT(c.txt, HasSubstr("- Pondere  : Non"));
  EXPECT_THAT(c.txt, HasSubstr("- Pondere  : Oui"));
  EXPECT_THAT(c.txt, HasSubstr("- Effort   : G - poids"));
  EXPECT_THAT(c.txt, HasSubstr("> N  : 0.0000"));
  EXPECT_THAT(c.txt, HasSubstr("> My : 0.50000"));
  EXPECT_THAT(c.txt, HasSubstr("> Mz : 0.0000"));
  EXPECT_THAT(c.txt, HasSubstr("- Precontrainte : C1 - point : 11 - Tension  : 1000.0 - rho injec: 0.50000"));
  EXPECT_THAT(c.txt, HasSubstr("- Precontrainte : C1 - point : 12 - Tension  : 900.00  (non inject" + accent +
                               ")\n"));
  EXPECT_THAT(c.html, HasSubstr("(non inject&#239;&#191;&#189;)"));
  EXPECT_THAT(c.txt, Not(HasSubstr("ERREUR PROGRAMMATION")));
}

}  // namespace
