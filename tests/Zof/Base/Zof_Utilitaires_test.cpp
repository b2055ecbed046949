#include "Zof_Utilitaires.hpp"

#include <gtest/gtest.h>

#include <string>

#include "Lecteur.hpp"
#include "Outils.hpp"

namespace {

void loc_lire_mot() {
  bool erco = false;
  socle::texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
}

}  // namespace

TEST(ControleMotFin, LeMotAttenduEstConsomme) {
  for (const std::string mot : {"FIN_MATE", "fin_mate", "FIN_MATERIAU"}) {
    const lecteur l(mot + " SUITE");
    loc_lire_mot();
    EXPECT_EQ(statut_d_arret([] { zof_controle_mot_fin("FIN_MATE"); }), std::nullopt);
    socle::texte<8> suite;
    bool erco = false;
    and_lire_deb_nom(suite, 8, erco);
    EXPECT_TRUE(suite == "SUITE");
    EXPECT_EQ(l.console(), "");
  }
}

TEST(ControleMotFin, UnAutreMotArreteLaCourse) {
  const lecteur l("FIN_SECT");
  loc_lire_mot();
  EXPECT_EQ(statut_d_arret([] { zof_controle_mot_fin("FIN_MATE"); }), 1);
  const std::string messages =
      "Erreur de commande : \n"
      "     - FIN_SECTIncorrect dans ce contexte - Attendu : FIN_MATE\n"
      "ARRET PREMATURE DE ZOF\n";
  EXPECT_EQ(l.console(), messages);
  EXPECT_TRUE(l.listing_brut().ends_with("\n" + messages));
}

TEST(ControleMotFin, UnMotCourtEstMontreSur8Colonnes) {
  const lecteur l("FIN_");
  loc_lire_mot();
  EXPECT_EQ(statut_d_arret([] { zof_controle_mot_fin("FIN_MATE"); }), 1);
  EXPECT_NE(l.console().find("     - FIN_    Incorrect dans ce contexte - Attendu : FIN_MATE\n"),
            std::string::npos);
}
