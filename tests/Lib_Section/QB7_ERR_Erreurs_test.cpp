#include "QB7_ERR_Erreurs.hpp"

#include <gmock/gmock.h>

#include <array>
#include <string>

#include "Outils.hpp"

namespace {

class Journal : public testing::Test {
 protected:
  Journal() { qb7_err_reinitialiser(); }
  ~Journal() override { qb7_err_reinitialiser(); }
};

struct ligne_du_journal {
  std::string procedure, erreur;
  int ier = -1;
};

ligne_du_journal loc_ligne(int rang) {
  socle::texte<31> procedure = "reste";
  socle::texte<31> erreur = "reste";
  ligne_du_journal l;
  qb7_err_consulter(rang, procedure, erreur, &l.ier);
  l.procedure = procedure.utile();
  l.erreur = erreur.utile();
  return l;
}

}  // namespace

TEST_F(Journal, UneReussiteNeLaissePasDeLigne) {
  EXPECT_EQ(err_traiter("QB7_Lire_Point", {}), ier_2{});
  EXPECT_EQ(qb7_err_nbre_messages(), 0);
}

TEST_F(Journal, GardeLesEchecsDuPlusInterieurAuPlusExterieur) {
  EXPECT_EQ(err_traiter("LOC_Chercher_Zone", {ERR_NON_ZONE, 7}), (ier_2{ERR_NON_ZONE, 7}));
  EXPECT_TRUE(err_traiter("QB7_Lire_C_Fluage", {ERR_NON_ZONE, 7}));
  ASSERT_EQ(qb7_err_nbre_messages(), 2);
  EXPECT_EQ(loc_ligne(1).procedure, "LOC_Chercher_Zone");
  EXPECT_EQ(loc_ligne(2).procedure, "QB7_Lire_C_Fluage");
  EXPECT_EQ(loc_ligne(2).erreur, "ERR_NON_ZONE");
  EXPECT_EQ(loc_ligne(2).ier, 45080);
  qb7_err_effacer();
  EXPECT_EQ(qb7_err_nbre_messages(), 0);
  EXPECT_EQ(loc_ligne(1).procedure, "");
}

TEST_F(Journal, LeNomEstCoupeATrenteEtUnCaracteres) {
  EXPECT_TRUE(err_traiter("QB7_Injecter_Cable_Methode_Retour_Etat_Zero", {ERR_CABLE_INACTIF, 3}));
  EXPECT_EQ(loc_ligne(1).procedure, "QB7_Injecter_Cable_Methode_Reto");
}

TEST_F(Journal, LeCinquanteEtUniemeEchecEstRenduMaisPasEcrit) {
  for (int i = 1; i <= 50; ++i) EXPECT_TRUE(err_traiter("LOC_Chercher_Zone", {ERR_NON_ZONE, i}));
  EXPECT_EQ(err_traiter("QB7_Lire_Point", {ERR_NON_POINT, 51}), (ier_2{ERR_NON_POINT, 51}));
  EXPECT_EQ(qb7_err_nbre_messages(), 50);
  EXPECT_EQ(loc_ligne(50).erreur, "ERR_NON_ZONE");
}

TEST_F(Journal, HorsDuJournalDesBlancsEtZero) {
  EXPECT_TRUE(err_traiter("QB7_Lire_Point", {ERR_NON_POINT, 1}));
  for (const int rang : {-1, 0, 2, 50, 51}) {
    const ligne_du_journal l = loc_ligne(rang);
    EXPECT_EQ(l.procedure, "");
    EXPECT_EQ(l.erreur, "");
    EXPECT_EQ(l.ier, 0);
  }
  socle::texte<31> procedure;
  socle::texte<31> erreur;
  qb7_err_consulter(1, procedure, erreur);
  EXPECT_EQ(procedure.utile(), "QB7_Lire_Point");
}

// The journal keeps the cause of a failed allocation; the callers above only see that something inside went
// wrong.
TEST_F(Journal, UneAllocationManqueeDevientUneErreurInterne) {
  EXPECT_EQ(err_traiter("EFF_Section_Calcul", {ERR_ALLOC, 5}), (ier_2{ERR_INTERNE, 5}));
  EXPECT_EQ(err_traiter("LOC_Optimiser_1", {40020, 6}), (ier_2{ERR_INTERNE, 6}));
  EXPECT_EQ(loc_ligne(1).erreur, "ERR_ALLOC");
  EXPECT_EQ(loc_ligne(1).ier, 40010);
  EXPECT_EQ(loc_ligne(2).ier, 40020);
  EXPECT_EQ(loc_ligne(2).erreur, "ERR_NON_CONNUE");
}

TEST_F(Journal, NomsDesCodes) {
  struct nomme {
    int code;
    const char* nom;
  };
  // clang-format off
  const std::array codes = {
      nomme{40000, "ERR_INTERNE"},        nomme{40010, "ERR_ALLOC"},           nomme{40030, "ERR_FICHIER_TRACE"},
      nomme{42000, "ERR_DIM_TAB"},        nomme{42010, "ERR_DIM_DEFORM"},      nomme{42020, "ERR_DIM_EFFORT"},
      nomme{43000, "ERR_NBRE_INT_LOI"},   nomme{43010, "ERR_DEGRE_LOI"},       nomme{43020, "ERR_DEF_LOI"},
      nomme{43030, "ERR_TYPE_TROU"},      nomme{43040, "ERR_BORNES_LOI"},      nomme{43050, "ERR_LOI_EXISTE"},
      nomme{43060, "ERR_NON_LOI"},        nomme{44000, "ERR_POINT_EXISTE"},    nomme{44010, "ERR_NON_POINT"},
      nomme{45000, "ERR_TYPE_ZONE"},      nomme{45010, "ERR_DIM_LISTE_PTS"},   nomme{45020, "ERR_NUM_MERE"},
      nomme{45030, "ERR_MATIERE"},        nomme{45040, "ERR_ENCOMBREMENT"},    nomme{45050, "ERR_REMPLISSAGE"},
      nomme{45060, "ERR_TYPE_DEFORM"},    nomme{45070, "ERR_ZONE_EXISTE"},     nomme{45080, "ERR_NON_ZONE"},
      nomme{45090, "ERR_FLUAGE"},         nomme{46000, "ERR_ETAT_EXISTE"},     nomme{46010, "ERR_NON_ETAT"},
      nomme{47000, "ERR_NON_MERE"},       nomme{47010, "ERR_MERE_INACTIVE"},   nomme{47020, "ERR_HERITAGE"},
      nomme{47030, "ERR_SECT_EXISTE"},    nomme{47040, "ERR_NON_SECTION"},     nomme{47050, "ERR_DIM_LISTE_ZONES"},
      nomme{48000, "ERR_NON_EPSILON"},    nomme{48010, "ERR_EPSILON_MIN"},     nomme{48020, "ERR_EPSILON_MAX"},
      nomme{49000, "ERR_TYPE_MERE"},      nomme{49010, "ERR_EPSILON_LIM"},     nomme{49020, "ERR_EQUILIBRE"},
      nomme{49030, "ERR_EQUILIBRE_FLUAGE"}, nomme{50000, "ERR_NBRE_PTS_DGI"},  nomme{50010, "ERR_MAT_PLAN"},
      nomme{50020, "ERR_NON_POINT_INT"},  nomme{50030, "ERR_NON_POINT_EXT"},   nomme{53000, "ERR_SURFACE_ZONE"},
      nomme{53010, "ERR_DIM_ACIERS"},     nomme{53020, "ERR_ECHEC_OPTIM"},     nomme{54000, "ERR_E_SX_NUL"},
      nomme{54010, "ERR_K_MIN"},          nomme{54020, "ERR_PTS_CABLE"},       nomme{54030, "ERR_NON_LOI_CABLE"},
      nomme{54040, "ERR_MODULE_CABLE"},   nomme{54050, "ERR_NON_CABLE"},       nomme{54060, "ERR_CABLE_INACTIF"},
      nomme{55000, "ERR_MODULE"},         nomme{55010, "ERR_TYPE_LOI"},        nomme{55020, "ERR_LIMITES_LOI"},
      nomme{55030, "ERR_CONTRAINTE"},     nomme{56000, "ERR_NON_AFF_BORNES"},  nomme{56010, "ERR_CALC_APPROX"},
      nomme{56020, "ERR_LOI_APPROX"},     nomme{56030, "ERR_INT_MAX_APPROX"},
      nomme{0, "ERR_NON_CONNUE"},         nomme{40020, "ERR_NON_CONNUE"},      nomme{99999, "ERR_NON_CONNUE"}};
  // clang-format on
  for (const nomme& n : codes) EXPECT_EQ(qb7_err_nom_erreur(n.code), n.nom);
}

namespace {

class ArretSurErreur : public Journal {
 protected:
  systeme_memoire m_machine;
  socle::systeme_en_place m_en_place{m_machine};
  std::unique_ptr<socle::sortie> m_listing = m_machine.creer("poutre.err", socle::debut::efface);

  /// Exit status of a failure journalled under this name; nothing if the run goes on.
  static std::optional<int> loc_statut(const std::string& procedure, int code) {
    return statut_d_arret([&] { (void)err_traiter(std::string_view(procedure), {code, 1}); });
  }
};

}  // namespace

TEST_F(ArretSurErreur, SansLaDemandeDuClientLaCourseContinue) {
  EXPECT_EQ(loc_statut("QB7_Lire_Point", ERR_NON_POINT), std::nullopt);
  EXPECT_EQ(m_machine.texte_console, "");
}

TEST_F(ArretSurErreur, DeuxLignesSurLaConsoleEtDansLeListing) {
  qb7_err_afficher_erreur_et_arreter(m_listing.get());
  EXPECT_EQ(loc_statut("QB7_Loi_Passif_Palier", ERR_CONTRAINTE), 1);
  const std::string attendu = " Erreur dans Procedure :QB7_Loi_Passif_Palier\n Erreur : ERR_CONTRAINTE\n";
  EXPECT_EQ(m_machine.texte_console, attendu);
  m_listing.reset();
  EXPECT_EQ(m_machine.fichiers["poutre.err"], attendu);
  EXPECT_EQ(qb7_err_nbre_messages(), 1);
}

TEST_F(ArretSurErreur, SansListingLaConsoleSuffit) {
  qb7_err_afficher_erreur_et_arreter();
  EXPECT_EQ(loc_statut("EFF_Section_Calcul", ERR_ALLOC), 1);
  EXPECT_EQ(m_machine.texte_console, " Erreur dans Procedure :EFF_Section_Calcul\n Erreur : ERR_INTERNE\n");
}

TEST_F(ArretSurErreur, LesIssuesAttenduesNArretentPas) {
  qb7_err_afficher_erreur_et_arreter(m_listing.get());
  for (const int code : {ERR_EPSILON_LIM, ERR_EQUILIBRE})
    EXPECT_EQ(loc_statut("QB7_Solliciter_Section", code), std::nullopt);
  for (const char* nom : {"LOC_Optimiser_1", "LOC_Optimiser_2", "DIM_Dimensionner", "QB7_Dimensionner"})
    EXPECT_EQ(loc_statut(nom, ERR_ECHEC_OPTIM), std::nullopt) << nom;
  for (const char* nom : {"DIM_Dimensionner", "QB7_Dimensionner", "LOC_Init_C_Remplissage"})
    EXPECT_EQ(loc_statut(nom, ERR_DIM_ACIERS), std::nullopt) << nom;
  for (const char* nom : {"DGI_Interaction", "QB7_Diagramme_Interaction", "LOC_Chercher_Pt_Interieur",
                          "LOC_Ameliorer_Pt_Et_Cadre", "LOC_Chercher_4_Premiers_Points",
                          "LOC_Chercher_Pts_Suivants", "LOC_Chercher_Point"})
    for (const int code : {ERR_NON_POINT_INT, ERR_NON_POINT_EXT})
      EXPECT_EQ(loc_statut(nom, code), std::nullopt) << nom;
  EXPECT_EQ(m_machine.texte_console, "");
}

// The same codes under another name, and other codes under these names, end the run.
TEST_F(ArretSurErreur, ToutLeResteArrete) {
  qb7_err_afficher_erreur_et_arreter(m_listing.get());
  EXPECT_EQ(loc_statut("QB7_Deformer_Section", ERR_EPSILON_LIM), 1);
  EXPECT_EQ(loc_statut("QB7_Solliciter_Section", ERR_NON_LOI), 1);
  EXPECT_EQ(loc_statut("LOC_Optimiser_1", ERR_DIM_ACIERS), 1);
  EXPECT_EQ(loc_statut("LOC_Init_C_Remplissage", ERR_ECHEC_OPTIM), 1);
  EXPECT_EQ(loc_statut("DGI_Interaction", ERR_NBRE_PTS_DGI), 1);
  EXPECT_EQ(loc_statut("LOC_Est_Interieur", ERR_NON_POINT_INT), 1);
}
