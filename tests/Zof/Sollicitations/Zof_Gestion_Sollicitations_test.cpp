#include "Zof_Gestion_Sollicitations.hpp"

#include <gtest/gtest.h>

#include <array>
#include <optional>

#include "Lecteur.hpp"
#include "Outils.hpp"
#include "QB7_Sections.hpp"
#include "Simple.hpp"
#include "Zof_Classe_Nom.hpp"
#include "Zof_Classe_Tension.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

const texte<32> section = "POUTRE";
const texte<32> nom = "TRAVEE";

/// A loading with one record, built as the decoders build it.
class Combinaisons : public ::testing::Test {
 protected:
  void SetUp() override {
    gestion_sollicitations_reinitialiser();
    s.m_nom_section_sollicitations = "POUTRE_TRAVEE";
    s.m_nom_section = section;
    e.m_nom_section = section;
    e.m_label_etat_limite = "ELU_DURABLE";
    e.m_label_situation = "EXPLOITATION_SERVICE";
    zof_phase phase;
    phase.m_le_titre_phase = "Phase initiale";
    phase.m_numero_phase = 1;
    e.m_les_phases.ajouter(phase);
  }
  void TearDown() override { gestion_sollicitations_reinitialiser(); }

  static zof_effort effort(vue_l1 label, vue_l1 titre, const efforts& f, int phase = 1) {
    zof_effort resultat;
    resultat.m_nom_section = section;
    resultat.m_label_effort = label;
    resultat.m_titre = titre;
    resultat.m_numero_phase = phase;
    resultat.set_efforts(f);
    return resultat;
  }
  void ajouter(vue_l1 label, vue_l1 titre, const efforts& f, int phase = 1) {
    e.m_les_efforts.ajouter(effort(label, titre, f, phase));
  }
  /// Stores the loading with its record.
  void deposer() {
    s.m_les_efforts_etat_limite.ajouter(e);
    gestion_sollicitations.zof_mod_les_sollicitations.ajouter(s);
  }
  static std::vector<zof_effort> gq() {
    return zof_get_efforts_etat_limite_sollicitations_gq(section, nom, 1);
  }
  static std::vector<zof_effort> gp() {
    return zof_get_efforts_etat_limite_sollicitations_gp(section, nom, 1);
  }

  zof_sollicitations s;
  zof_efforts_etat_limite e;
};

template <std::size_t N>
std::string utile(const texte<N>& t) {
  return std::string(t.utile());
}
std::string titre(const zof_effort& cas) { return utile(cas.m_titre); }

// Model factor 1.05 on nominal permanent actions (1.05 x 1.35 = 1.4175 and 0.95), traffic 1.35: EN 1990
// A2.4(B). By hand: 1.4175 x 100 + 1.35 x 10 = 155.25; 141.75; 0.95 x 100 + 13.5 = 108.5; 95.
TEST_F(Combinaisons, GEtQDonnentQuatreCasDansLOrdre) {
  ajouter("G", "poids", {100, 0, 0});
  ajouter("Q", "trafic", {10, 0, 0});
  deposer();
  const auto cas = gq();
  ASSERT_EQ(cas.size(), 4U);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gq(section, nom, 1), 4);
  EXPECT_NEAR(cas[0].m_n, 155.25, 155.25 * 1e-7);
  EXPECT_EQ(cas[0].m_n, simple(1.4175f) * 100 + simple(1.35f) * 10);
  EXPECT_EQ(cas[1].m_n, simple(1.4175f) * 100);  // the favourable Q is exactly 0
  EXPECT_EQ(cas[2].m_n, simple(0.95f) * 100 + simple(1.35f) * 10);
  EXPECT_EQ(cas[3].m_n, simple(0.95f) * 100);
  EXPECT_EQ(titre(cas[0]), "poids_max + trafic_max - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(titre(cas[1]), "poids_max + trafic_min - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(titre(cas[2]), "poids_min + trafic_max - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(titre(cas[3]), "poids_min + trafic_min - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(utile(cas[0].m_label_effort), "GQ");
  EXPECT_EQ(utile(cas[0].m_nom_section), "POUTRE");
}

// EN 1990 expression 6.10 with table A1.2(B), 1.35 Gsup, 1.00 Ginf, 1.50 Q, on a beam of 6 m: gk = 20 kN/m
// and qk = 15 kN/m at midspan give 90 and 67.5 kN.m. By hand 222.75, 121.50, 191.25, 90 kN.m.
TEST_F(Combinaisons, ExpressionFondamentaleSousFacteursDeLUtilisateur) {
  ajouter("G", "G", {0, 0.090, 0});
  ajouter("Q", "Q", {0, 0.0675, 0});
  s.m_est_ponderation_surchargee = true;
  s.m_ponderations_gpq12(1, 10, 1, 1) = 1.35;
  s.m_ponderations_gpq12(1, 10, 1, 2) = 1.0;
  s.m_ponderations_gpq12(1, 10, 3, 1) = 1.5;
  s.m_ponderations_gpq12(1, 10, 3, 2) = 0.0;
  deposer();
  const auto cas = gq();
  ASSERT_EQ(cas.size(), 4U);
  EXPECT_NEAR(cas[0].m_my, 0.22275, 1e-15);
  EXPECT_NEAR(cas[1].m_my, 0.12150, 1e-15);
  EXPECT_NEAR(cas[2].m_my, 0.19125, 1e-15);
  EXPECT_NEAR(cas[3].m_my, 0.09000, 1e-15);
}

// A factor given for one limit state, one situation and one action leaves the others alone.
TEST_F(Combinaisons, UnFacteurDeLUtilisateurNeVautQueLaOuIlEstDonne) {
  s.m_est_ponderation_surchargee = true;
  s.m_ponderations_gpq12(1, 10, 1, 1) = 1.0;
  s.m_ponderations_gpq12(1, 10, 1, 2) = 1.0;
  const texte<32> durable = "ELU_DURABLE";
  const texte<32> service = "EXPLOITATION_SERVICE";
  const texte<32> chantier = "CONSTRUCTION";
  EXPECT_EQ(zof_get_ponderation_efforts(s, durable, service, "G"), (zof_ponderation{1, 1}));
  EXPECT_EQ(zof_get_ponderation_efforts(s, durable, service, "Q"), (zof_ponderation{simple(1.35f), 0}));
  EXPECT_EQ(zof_get_ponderation_efforts(s, durable, chantier, "G"),
            (zof_ponderation{simple(1.4175f), simple(0.95f)}));
  ajouter("G", "poids", {100, 0, 0});
  ajouter("Q", "trafic", {10, 0, 0});
  deposer();
  const auto cas = gq();
  ASSERT_EQ(cas.size(), 2U);  // two factors of G that are equal make one case, without a suffix
  EXPECT_EQ(titre(cas[0]), "poids + trafic_max - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(cas[1].m_n, 100);
}

TEST_F(Combinaisons, UnEtatLimitePondereNePrendAucunFacteur) {
  e.m_etat_limite_pondere = true;
  ajouter("G", "poids", {100, 2, 3});
  ajouter("Q", "trafic", {10, 4, 5});
  deposer();
  const auto cas = gq();
  ASSERT_EQ(cas.size(), 1U);
  EXPECT_EQ(cas[0].get_efforts(), (efforts{110, 6, 8}));
  EXPECT_EQ(titre(cas[0]), "poids + trafic - ELU_DURABLE-EXPLOITATION_SERVICE");
}

// The case of Q runs even where there is none: each G case stands twice, with the same forces.
TEST_F(Combinaisons, GSeulSeRepeteParFacteurDeQ) {
  ajouter("G", "poids", {100, 0, 0});
  deposer();
  const auto cas = gq();
  ASSERT_EQ(cas.size(), 4U);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gq(section, nom, 1), 4);
  EXPECT_EQ(cas[0].get_efforts(), cas[1].get_efforts());
  EXPECT_EQ(cas[2].get_efforts(), cas[3].get_efforts());
  EXPECT_EQ(titre(cas[0]), "poids_max - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(titre(cas[3]), "poids_min - ELU_DURABLE-EXPLOITATION_SERVICE");
}

TEST_F(Combinaisons, GQVientEnTeteTelQuelPuisGAvecChaqueQ) {
  e.m_etat_limite_pondere = true;
  ajouter("G", "g1", {1, 0, 0});
  ajouter("G", "g2", {2, 0, 0});
  ajouter("Q", "q1", {10, 0, 0});
  ajouter("Q", "q2", {20, 0, 0});
  ajouter("GQ", "gq", {7, 8, 9});
  deposer();
  const auto cas = gq();
  ASSERT_EQ(cas.size(), 5U);
  EXPECT_EQ(cas[0].get_efforts(), (efforts{7, 8, 9}));
  EXPECT_EQ(titre(cas[0]), "gq");
  EXPECT_EQ(cas[1].m_n, 11);
  EXPECT_EQ(cas[2].m_n, 21);
  EXPECT_EQ(cas[3].m_n, 12);
  EXPECT_EQ(cas[4].m_n, 22);
}

TEST_F(Combinaisons, SansGNiGQLaListeEstUnCasImpossible) {
  ajouter("P", "p", {1, 0, 0});
  deposer();
  systeme_memoire machine;
  const systeme_en_place en_place(machine);
  EXPECT_EQ(statut_d_arret([] { (void)gq(); }), 1);
  EXPECT_NE(machine.texte_console.find("Zof_Get_efforts_etat_limite_sollicitations_GQ : Cas impossible"),
            std::string::npos);
}

// Service: 1.05 and 0.95 on G, 1.1 and 0.9 on P (EN 1992-1-1 5.10.9: rsup and rinf of post-tension).
TEST_F(Combinaisons, GEtPDonnentQuatreCasAvecLesTensionsPonderees) {
  e.m_label_etat_limite = "ELS_CAR";
  ajouter("G", "poids", {1, 0.4, 0});
  zof_effort p = effort("P", "cables", {2, -0.5, 0});
  zof_tension tension;
  tension.m_nom_precontrainte = "C1";
  tension.m_tension = 1200;
  tension.m_rho = 0.5;
  tension.m_numero_point = 7;
  p.m_les_tensions.ajouter(tension);
  e.m_les_efforts.ajouter(p);
  deposer();
  const auto cas = gp();
  ASSERT_EQ(cas.size(), 4U);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gp(section, nom, 1), 4);
  EXPECT_NEAR(cas[0].m_my, 1.05 * 0.4 - 1.1 * 0.5, 1e-7);  // -0.13
  EXPECT_NEAR(cas[1].m_my, 1.05 * 0.4 - 0.9 * 0.5, 1e-7);  // -0.03
  EXPECT_NEAR(cas[2].m_my, 0.95 * 0.4 - 1.1 * 0.5, 1e-7);  // -0.17
  EXPECT_NEAR(cas[3].m_my, 0.95 * 0.4 - 0.9 * 0.5, 1e-7);  // -0.07
  EXPECT_EQ(utile(cas[0].m_label_effort), "GP");
  EXPECT_EQ(titre(cas[1]), "poids_max + cables_min - ELS_CAR-EXPLOITATION_SERVICE");
  EXPECT_EQ(zof_get_tensions_effort_p(cas[0]), std::vector{1200 * simple(1.1f)});
  EXPECT_EQ(zof_get_tensions_effort_p(cas[1]), std::vector{1200 * simple(0.9f)});
  EXPECT_EQ(zof_get_rhos_effort_p(cas[1]), std::vector{0.5});
  EXPECT_EQ(utile(zof_get_noms_cables_effort_p(cas[1]).at(0)), "C1");
}

TEST_F(Combinaisons, PSeulEtGSeulGardentLeurNom) {
  e.m_label_etat_limite = "ELU_ACCIDENT";
  ajouter("P", "cables", {2, 0, 0}, 1);
  ajouter("G", "poids", {1, 0, 0}, 2);
  zof_phase phase2;
  e.m_les_phases.ajouter(phase2);
  deposer();
  const auto p = gp();
  ASSERT_EQ(p.size(), 1U);  // P1 = P2 = 1: one case, without a suffix
  EXPECT_EQ(utile(p[0].m_label_effort), "P");
  EXPECT_EQ(titre(p[0]), "cables - ELU_ACCIDENT-EXPLOITATION_SERVICE");
  const auto g = zof_get_efforts_etat_limite_sollicitations_gp(section, nom, 1, 2);
  ASSERT_EQ(g.size(), 1U);
  EXPECT_EQ(utile(g[0].m_label_effort), "G");
  EXPECT_EQ(g[0].m_n, 1);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gp(section, nom, 1, 2), 1);
}

// Service: P alone with 1.1 and 0.9, its tensions too; G alone with 1.05 and 0.95, each once.
TEST_F(Combinaisons, UneActionSeuleASesDeuxFacteurs) {
  e.m_label_etat_limite = "ELS_FRE_NF";
  zof_effort p = effort("P", "cables", {2, -0.5, 4});
  zof_tension tension;
  tension.m_tension = 1000;
  tension.m_rho = 1;
  p.m_les_tensions.ajouter(tension);
  e.m_les_efforts.ajouter(p);
  e.m_les_phases.ajouter(zof_phase());
  ajouter("G", "poids", {1, 0.4, -0.2}, 2);
  deposer();
  const auto cas_p = gp();
  ASSERT_EQ(cas_p.size(), 2U);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gp(section, nom, 1), 2);
  EXPECT_EQ(cas_p[0].get_efforts(), simple(1.1f) * (efforts{2, -0.5, 4}));
  EXPECT_EQ(cas_p[1].get_efforts(), simple(0.9f) * (efforts{2, -0.5, 4}));
  EXPECT_EQ(zof_get_tensions_effort_p(cas_p[1]), std::vector{1000 * simple(0.9f)});
  EXPECT_EQ(zof_get_rhos_effort_p(cas_p[1]), std::vector{1.0});
  EXPECT_EQ(utile(cas_p[1].m_label_effort), "P");
  EXPECT_EQ(titre(cas_p[1]), "cables_min - ELS_FRE_NF-EXPLOITATION_SERVICE");
  const auto cas_g = zof_get_efforts_etat_limite_sollicitations_gp(section, nom, 1, 2);
  ASSERT_EQ(cas_g.size(), 2U);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gp(section, nom, 1, 2), 2);
  EXPECT_EQ(cas_g[0].get_efforts(), simple(1.05f) * (efforts{1, 0.4, -0.2}));
  EXPECT_EQ(cas_g[1].get_efforts(), simple(0.95f) * (efforts{1, 0.4, -0.2}));
  EXPECT_EQ(utile(cas_g[0].m_label_effort), "G");
  EXPECT_EQ(titre(cas_g[0]), "poids_max - ELS_FRE_NF-EXPLOITATION_SERVICE");
}

TEST_F(Combinaisons, SansGNiPNiGPLaListeEstUnCasImpossible) {
  ajouter("Q", "q", {1, 0, 0});
  deposer();
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_gp(section, nom, 1), 0);
  systeme_memoire machine;
  const systeme_en_place en_place(machine);
  EXPECT_EQ(statut_d_arret([] { (void)gp(); }), 1);
  EXPECT_NE(machine.texte_console.find(" Zof_Get_efforts_etat_limite_sollicitations_GP : cas impossible 1"),
            std::string::npos);
}

TEST_F(Combinaisons, GPNeSeMelePasAGOuP) {
  ajouter("GP", "gp", {3, 0, 0});
  ajouter("G", "g", {1, 0, 0});
  deposer();
  systeme_memoire machine;
  const systeme_en_place en_place(machine);
  EXPECT_EQ(statut_d_arret([] { (void)gp(); }), 1);
  EXPECT_NE(machine.texte_console.find(" Zof_Get_efforts_etat_limite_sollicitations_GP : cas impossible 2"),
            std::string::npos);
}

TEST_F(Combinaisons, GPVientTelQuelAvecSesTensions) {
  zof_effort complet = effort("GP", "pose", {3, 4, 5});
  zof_tension tension;
  tension.m_tension = 1000;
  complet.m_les_tensions.ajouter(tension);
  e.m_les_efforts.ajouter(complet);
  deposer();
  const auto cas = gp();
  ASSERT_EQ(cas.size(), 1U);
  EXPECT_EQ(cas[0].get_efforts(), (efforts{3, 4, 5}));
  EXPECT_EQ(zof_get_tensions_effort_p(cas[0]), std::vector{1000.0});
  EXPECT_FALSE(est_renseigne_double(zof_get_rhos_effort_p(cas[0]).at(0)));
}

TEST_F(Combinaisons, LesCasPonderesDUneActionSuiventLOrdreDuFichier) {
  ajouter("Q", "q1", {1, 2, 3});
  ajouter("G", "g", {100, 0, 0});
  ajouter("Q", "q2", {10, 20, 30});
  deposer();
  const auto cas = zof_get_efforts_etat_limite_sollicitations_ponderes(section, nom, 1, "Q");
  ASSERT_EQ(cas.size(), 4U);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_ponderes(section, nom, 1, "Q"), 4);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_ponderes(section, nom, 1, "P"), 0);
  EXPECT_EQ(titre(cas[0]), "q1_max - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(titre(cas[1]), "q1_min - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(titre(cas[2]), "q2_max - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(cas[2].get_efforts(), simple(1.35f) * (efforts{10, 20, 30}));
  EXPECT_EQ(utile(cas[0].m_label_effort), "Q");
}

TEST_F(Combinaisons, UnFacteurUniqueNAPasDeSuffixe) {
  e.m_etat_limite_pondere = true;
  ajouter("Q", "q1", {1, 2, 3});
  deposer();
  const auto cas = zof_get_efforts_etat_limite_sollicitations_ponderes(section, nom, 1, "Q");
  ASSERT_EQ(cas.size(), 1U);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations_ponderes(section, nom, 1, "Q"), 1);
  EXPECT_EQ(titre(cas[0]), "q1 - ELU_DURABLE-EXPLOITATION_SERVICE");
  EXPECT_EQ(cas[0].get_efforts(), (efforts{1, 2, 3}));
}

TEST_F(Combinaisons, UnTitreTropLongEstCoupe) {
  ajouter("G", std::string(160, 'x'), {1, 0, 0});
  deposer();
  EXPECT_EQ(titre(gq().at(0)), std::string(160, 'x'));
}

TEST_F(Combinaisons, LaSelectionRegardeLaPhase) {
  ajouter("G", "g1", {1, 0, 0}, 1);
  ajouter("G", "g2", {2, 0, 0}, 2);
  e.m_les_phases.ajouter(zof_phase());
  deposer();
  const auto phase2 = zof_get_efforts_etat_limite_sollicitations(section, nom, 1, "G", 2);
  ASSERT_EQ(phase2.size(), 1U);
  EXPECT_EQ(phase2[0].m_n, 2);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations(section, nom, 1, "G"), 1);
  EXPECT_EQ(zof_get_nb_efforts_etat_limite_sollicitations(section, nom, 1, "GQ", 2), 0);
}

// The list is the caller's: weighting it, or its tensions, leaves the loading alone.
TEST_F(Combinaisons, LesCasSontDesCopiesProfondes) {
  zof_effort p = effort("P", "cables", {1, 0, 0});
  zof_tension tension;
  tension.m_tension = 1000;
  p.m_les_tensions.ajouter(tension);
  e.m_les_efforts.ajouter(p);
  deposer();
  auto cas = zof_get_efforts_etat_limite_sollicitations(section, nom, 1, "P");
  uef_pointage<zof_tension>(cas.at(0).m_les_tensions, 1)->m_tension = 5;
  EXPECT_EQ(zof_get_tensions_effort_p(zof_get_efforts_etat_limite_sollicitations(section, nom, 1, "P").at(0)),
            std::vector{1000.0});
}

TEST_F(Combinaisons, LesEnregistrementsSontTrouvesParNomEtParRang) {
  s.m_est_precontrainte_iso_incluse = false;
  e.m_les_phases.vider();
  zof_phase phase;
  phase.m_le_titre_phase = "Hourdis";
  phase.m_les_noms_zones_actives.ajouter(zof_nom("AME"));
  phase.m_les_noms_zones_actives.ajouter(zof_nom("HOURDIS"));
  e.m_les_phases.ajouter(phase);
  deposer();
  EXPECT_TRUE(zof_existe_sollicitations(section, nom));
  EXPECT_FALSE(zof_existe_sollicitations(section, "AUTRE"));
  EXPECT_FALSE(zof_est_precontrainte_iso_incluse(section, nom));
  EXPECT_FALSE(zof_est_etat_limite_pondere(section, nom, 1));
  EXPECT_EQ(zof_get_nb_etats_limites_sollicitations(section, nom), 1);
  const auto r = zof_get_situation_sollicitations(section, nom, 1);
  EXPECT_EQ(utile(r.label_situation), "EXPLOITATION_SERVICE");
  EXPECT_EQ(utile(r.label_etat_limite), "ELU_DURABLE");
  EXPECT_EQ(r.nb_phases, 1);
  EXPECT_EQ(utile(zof_get_titre_phase_sollicitation(section, nom, 1, 1)), "Hourdis");
  const auto zones = zof_get_zones_actives_phase_sollicitation(section, nom, 1, 1);
  ASSERT_EQ(zones.size(), 2U);
  EXPECT_EQ(utile(zones[1]), "HOURDIS");
}

// The keys of (A_B, C) and (A, B_C) are the same text.
TEST_F(Combinaisons, DeuxSollicitationsDeMemeClefRestentDistincts) {
  s.m_nom_section = "A_B";
  s.m_nom_section_sollicitations = "A_B_C";
  deposer();
  EXPECT_TRUE(zof_existe_sollicitations("A_B", "C"));
  EXPECT_FALSE(zof_existe_sollicitations("A", "B_C"));
}

TEST_F(Combinaisons, UnRangInconnuEstUnCasImpossible) {
  ajouter("G", "g", {1, 0, 0});
  deposer();
  systeme_memoire machine;
  const systeme_en_place en_place(machine);
  for (const int phase : {0, 2})
    EXPECT_EQ(statut_d_arret([phase] {
                (void)zof_get_nb_efforts_etat_limite_sollicitations(section, nom, 1, "G", phase);
              }),
              1);
  EXPECT_EQ(statut_d_arret([] { (void)zof_get_situation_sollicitations(section, nom, 2); }), 1);
  EXPECT_EQ(statut_d_arret([] { (void)zof_get_titre_phase_sollicitation(section, nom, 1, 2); }), 1);
  EXPECT_EQ(statut_d_arret([] { (void)zof_est_precontrainte_iso_incluse(section, "AUTRE"); }), 1);
}

// A later change of the original must not show in a copy: one test for each class that holds a list.
TEST_F(Combinaisons, LesCopiesOntLeursListes) {
  ajouter("G", "g", {1, 0, 0});
  deposer();
  zof_sollicitations copie(s);
  zof_efforts_etat_limite copie_etat(e);
  uef_pointage<zof_efforts_etat_limite> etat{s.m_les_efforts_etat_limite, 1};
  etat->m_label_situation = "SEISME";
  uef_pointage<zof_effort>(e.m_les_efforts, 1)->m_n = 99;
  const uef_pointage<zof_efforts_etat_limite> etat_copie{copie.m_les_efforts_etat_limite, 1};
  EXPECT_EQ(utile(etat_copie->m_label_situation), "EXPLOITATION_SERVICE");
  uef_pointage<zof_effort> effort_copie{copie_etat.m_les_efforts, 1};
  EXPECT_EQ(effort_copie->m_n, 1);
  // The effort of the copy belongs to the phase of the copy.
  EXPECT_EQ(effort_copie->m_pt_phase_courante, &*uef_pointage<zof_phase>(copie_etat.m_les_phases, 1));
}

// A material without any situation: none can be asked of its section.
struct materiau_nu : uef_element<materiau_nu, zof_materiau> {
  void editer_materiau(bool&) const override {}
  void decoder_materiau(bool&) override {}
};

/// Sections of such materials, read by the system's own reader.
class Lecture : public ::testing::Test {
 protected:
  void TearDown() override { vider(); }
  void lire(const std::string& donnees) {
    vider();
    materiau("BETON", type_materiau_beton_precontraint);
    materiau("TORON", type_materiau_precontrainte);
    lu.emplace(donnees);
    bool erco = false;
    zof_decoder_creer_section(erco);
    ASSERT_FALSE(erco) << lu->console();
  }
  std::optional<lecteur> lu;

 private:
  static void materiau(std::string_view nom_materiau, int type) {
    materiau_nu m;
    m.set_nom_materiau(nom_materiau);
    m.set_type_materiau(type);
    auto& materiaux = gestion_materiau.zof_mod_les_materiaux;
    if (!materiaux.est_cree()) materiaux.creer("materiaux", m, 10, true);
    m.set_numero_materiau_qb7(materiaux.nombre() + 1);
    materiaux.ajouter(m);
  }
  static void vider() {
    gestion_sollicitations_reinitialiser();
    gestion_section_reinitialiser();
    gestion_materiau_reinitialiser();
    qb7_quitter();
  }
};

const std::string section_nue = "S1 TITR 's' CONT FUT MATE BETON RECT HAUT 1. LARG 1. FIN_RECT\n";

TEST_F(Lecture, UneSituationQueLesMateriauxNOntPas) {
  lire(section_nue +
       "FIN_CONT FIN_SECT\nT SECT S1 TITR 't' REPE GEOM ETAT ELS CARA SITU EXPL SERV A_PO EFFO G N 1.\n");
  bool erco = false;
  zof_decoder_sollicitations(erco);
  EXPECT_TRUE(erco);
  EXPECT_NE(
      lu->console().find("     - Situation non definie : EXPLOITATION_SERVICE" + std::string(12, ' ') + "\n"),
      std::string::npos);
}

// The warning is for cables without tensions.
TEST_F(Lecture, DesTensionsDonneesNAvertissentPas) {
  lire(section_nue +
       "PREC C1 MATE TORON AIRE 150. POIN NUME 11 Y 0. Z -0.3D0 FIN_ NUME 12 Y 0. Z -0.2D0 FIN_ FIN_POIN "
       "FIN_PREC FIN_CONT FIN_SECT\n"
       "GP N 1.5 TENS PREC C1 POIN 11 TENS 0.0 INJE 1. PREC C1 POIN 12 TENS 900. NON_ FIN_TENS FIN_EFFO\n"
       "P MZ 0.5 FIN_EFFO\n");
  bool erco = false;
  zof_effort avec;
  avec.m_nom_section = "S1";
  zof_decoder_efforts(avec, "S1", true, erco);
  ASSERT_FALSE(erco) << lu->console();
  EXPECT_EQ(lu->console().find("ATTENTION"), std::string::npos);
  EXPECT_EQ(avec.get_efforts(), (efforts{1.5, 0, 0}));
  EXPECT_EQ(zof_get_tensions_effort_p(avec), (std::vector{0.0, 900.0}));
  EXPECT_EQ(zof_get_rhos_effort_p(avec).at(0), 1);
  EXPECT_FALSE(est_renseigne_double(zof_get_rhos_effort_p(avec).at(1)));
  zof_effort sans;
  sans.m_nom_section = "S1";
  zof_decoder_efforts(sans, "S1", true, erco);
  EXPECT_FALSE(erco);
  EXPECT_NE(lu->console().find("     - ATTENTION :Les tensions ne sont pas d\xEF\xBF\xBD"
                               "finies avec GP ou P\n"),
            std::string::npos);
}

TEST(Phase, UneCopieASesNomsDeZones) {
  zof_phase phase;
  phase.m_les_noms_zones_actives.ajouter(zof_nom("AME"));
  const zof_phase copie(phase);
  phase.m_les_noms_zones_actives.ajouter(zof_nom("HOURDIS"));
  EXPECT_EQ(copie.m_les_noms_zones_actives.nombre(), 1);
}

TEST(ZonesDePhase, SepareesOuReprisesEnEntier) {
  const std::vector<texte<32>> anciennes = {"A", "B"};
  const std::vector<texte<32>> separees = {"C", "D"};
  const std::vector<texte<32>> reprises = {"C", "B", "A"};
  const std::vector<texte<32>> partielles = {"C", "B"};
  EXPECT_TRUE(zof_intersection_vide_zones_phase(anciennes, separees));
  EXPECT_TRUE(zof_intersection_vide_zones_phase({}, separees));
  EXPECT_FALSE(zof_intersection_vide_zones_phase(anciennes, partielles));
  bool erco = false;
  zof_controle_completion_zones_phase(anciennes, reprises, erco);
  EXPECT_FALSE(erco);
  systeme_memoire machine;
  const systeme_en_place en_place(machine);
  zof_controle_completion_zones_phase(anciennes, partielles, erco);
  EXPECT_TRUE(erco);
  EXPECT_NE(machine.texte_console.find(
                "     - A non activee dans la phase CONTINUE courante alors qu elle est active "
                "dans une phase precedente"),
            std::string::npos);
}

// A force N at (y, z) has the moments My = N z and Mz = -N y about the origin.
TEST(Reperes, UneForceCentreeDonneSesMomentsALOrigine) {
  const efforts f = zof_efforts_ancien_repere(zof_repere(0.3, 0.5, 0), {2, 0, 0});
  EXPECT_DOUBLE_EQ(f.my, 1.0);
  EXPECT_DOUBLE_EQ(f.mz, -0.6);
}

// In a frame turned by 90 degrees y' is z and z' is -y: My' = ∫σ z' = -∫σ y = Mz, Mz' = -∫σ y' = -My.
TEST(Reperes, UnQuartDeTour) {
  const efforts f = zof_efforts_nouveau_repere(zof_repere_degres(0, 0, 90), {1, 0.2, 0.3});
  EXPECT_NEAR(f.my, 0.3, 1e-16);
  EXPECT_NEAR(f.mz, -0.2, 1e-16);
  EXPECT_EQ(f.n, 1);
}

TEST(Reperes, AllerEtRetourRendentLesEfforts) {
  const efforts f{1.3, -0.4, 0.7};
  for (const double angle_deg : {0.0, 17.0, 90.0, -135.0}) {
    const repere r = zof_repere_degres(-0.35, 1.2, angle_deg);
    const efforts retour = zof_efforts_nouveau_repere(r, zof_efforts_ancien_repere(r, f));
    EXPECT_NEAR(retour.n, f.n, 1e-15);
    EXPECT_NEAR(retour.my, f.my, 1e-14);
    EXPECT_NEAR(retour.mz, f.mz, 1e-14);
  }
}

// Second way: a few fibres, whose forces are summed in both frames.
TEST(Reperes, LesDeuxReperesVoientLesMemesFibres) {
  struct fibre {
    double y, z, force;
  };
  const std::array<fibre, 3> fibres = {{{0.1, 0.4, 2.0}, {-0.3, 0.2, -0.5}, {0.25, -0.6, 1.1}}};
  const repere r = zof_repere_degres(0.15, -0.2, 33);
  efforts base;
  efforts tourne;
  for (const fibre& b : fibres) {
    base += efforts{b.force, b.force * b.z, -b.force * b.y};
    const point_yz p = vers_repere(r, {b.y, b.z});
    tourne += efforts{b.force, b.force * p.z, -b.force * p.y};
  }
  const efforts vu = zof_efforts_nouveau_repere(r, base);
  EXPECT_NEAR(vu.my, tourne.my, 1e-15);
  EXPECT_NEAR(vu.mz, tourne.mz, 1e-15);
}

}  // namespace
