#include "Zof_Erreurs.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

#include "Lecteur.hpp"
#include "Outils.hpp"
#include "Zof_Constantes.hpp"

using socle::non_renseigne;
using socle::texte;

namespace {

/// What an operation writes; console and listing must say the same.
std::string loc_messages(const std::function<void(bool&)>& operation, bool attendu = true,
                         bool avant = false) {
  const lecteur l("");
  bool erco = avant;
  operation(erco);
  EXPECT_EQ(erco, attendu);
  EXPECT_EQ(l.console(), l.listing_brut());
  return l.console();
}

const std::string loc_titre = "Erreur de commande : \n";

}  // namespace

TEST(ErreurCommande, UnMessageSansSesBlancsFinals) {
  EXPECT_EQ(loc_messages([](bool& erco) { zof_erreur_commande(" Message  ", erco); }),
            loc_titre + "     -  Message\n");
}

TEST(ErreurCommande, LeTitreNEstEcritQuUneFois) {
  EXPECT_EQ(loc_messages([](bool& erco) {
              zof_erreur_commande("un", erco);
              zof_assert_commande(false, "deux ", erco);
            }),
            loc_titre + "     - un\n     - deux \n");
  EXPECT_EQ(loc_messages([](bool& erco) { zof_erreur_commande("un", erco); }, true, true), "     - un\n");
}

TEST(AttributIncorrect, LeMotDansSaLongueur) {
  EXPECT_EQ(loc_messages([](bool& erco) { zof_attribut_incorrect(texte<4>("FOOB"), erco); }),
            loc_titre + "     -  Mot clef  FOOB incorrect dans ce contexte\n");
  EXPECT_EQ(loc_messages([](bool& erco) { zof_attribut_incorrect(texte<4>("ABC"), erco); }),
            loc_titre + "     -  Mot clef  ABC  incorrect dans ce contexte\n");
  EXPECT_EQ(loc_messages([](bool& erco) { zof_attribut_incorrect("POND", erco); }),
            loc_titre + "     -  Mot clef  POND incorrect dans ce contexte\n");
}

TEST(AssertCommande, SeulementSiFaux) {
  EXPECT_EQ(loc_messages([](bool& erco) { zof_assert_commande(true, "non", erco); }, false), "");
  EXPECT_EQ(loc_messages([](bool& erco) { zof_assert_commande(true, "non", erco); }, true, true), "");
  EXPECT_EQ(loc_messages([](bool& erco) { zof_assert_commande(false, " oui", erco); }),
            loc_titre + "     -  oui\n");
}

TEST(AssertRenseigne, ChaqueType) {
  const std::string message = loc_titre + "     - FCK: non renseigne(e)\n";
  EXPECT_EQ(loc_messages([](bool& e) { zof_assert_renseigne_integer(non_renseigne, "FCK", e); }), message);
  EXPECT_EQ(loc_messages([](bool& e) { zof_assert_renseigne_double(non_renseigne, "FCK", e); }), message);
  EXPECT_EQ(loc_messages([](bool& e) { zof_assert_renseigne_chaine(texte<32>(non_renseigne), "FCK", e); }),
            message);
  EXPECT_EQ(loc_messages([](bool& e) { zof_assert_renseigne_integer(0, "FCK", e); }, false), "");
  EXPECT_EQ(loc_messages([](bool& e) { zof_assert_renseigne_double(0, "FCK", e); }, false), "");
  EXPECT_EQ(loc_messages([](bool& e) { zof_assert_renseigne_chaine(texte<32>(""), "FCK", e); }, false), "");
}

// The dash stands two columns further to the right for the flag and for texts than for numbers.
TEST(NonRepetition, ChaqueType) {
  EXPECT_EQ(loc_messages([](bool& e) { zof_non_repetition_mot_clef(true, "TITR", e); }),
            loc_titre + "       - Repetition interdite du mot clef:TITR\n");
  EXPECT_EQ(loc_messages([](bool& e) { zof_non_repetition_chaine("TITR", texte<80>("x"), e); }),
            loc_titre + "       - Repetition interdite du mot clef:TITR\n");
  EXPECT_EQ(loc_messages([](bool& e) { zof_non_repetition_double("FCK ", 30., e); }),
            loc_titre + "     - Repetition interdite du mot clef:FCK \n");
  EXPECT_EQ(loc_messages([](bool& e) { zof_non_repetition_integer("NUME", 1, e); }),
            loc_titre + "     - Repetition interdite du mot clef:NUME\n");
  EXPECT_EQ(loc_messages([](bool& e) { zof_non_repetition_mot_clef(false, "TITR", e); }, false), "");
  EXPECT_EQ(
      loc_messages([](bool& e) { zof_non_repetition_chaine("TITR", texte<80>(non_renseigne), e); }, false),
      "");
  EXPECT_EQ(loc_messages([](bool& e) { zof_non_repetition_double("FCK", non_renseigne, e); }, false), "");
  EXPECT_EQ(loc_messages([](bool& e) { zof_non_repetition_integer("NUME", non_renseigne, e); }, false), "");
}

TEST(Avertissement, LaCourseContinue) {
  EXPECT_EQ(loc_messages([](bool&) { zof_message_avertissement(" prudence  "); }, false),
            "     - ATTENTION : prudence\n");
}

TEST(FauteInterne, ArreteAvecLeStatut1) {
  EXPECT_EQ(loc_messages(
                [](bool&) {
                  zof_assert(true, "non");
                  EXPECT_EQ(statut_d_arret([] { zof_assert(false, " Essai : Cas impossible 3"); }), 1);
                },
                false),
            " Essai : Cas impossible 3\n ARRET PREMATURE : PREVENIR LE GESTIONNAIRE\n");
}

TEST(Arret, ArreteAvecLeStatut1) {
  EXPECT_EQ(loc_messages([](bool&) { EXPECT_EQ(statut_d_arret([] { zof_arret(); }), 1); }, false),
            "ARRET PREMATURE DE ZOF\n");
}

TEST(Messages, LeListingQuiNEstPasOuvertNeRecoitRien) {
  const lecteur l("");
  zof_erreurs.zof_unite_erreurs = nullptr;
  bool erco = false;
  zof_erreur_commande("x", erco);
  EXPECT_EQ(l.listing_brut(), "");
  EXPECT_EQ(l.console(), loc_titre + "     - x\n");
}

TEST(EstRenseigne, LaValeurDeChaqueType) {
  EXPECT_FALSE(est_renseigne_integer(2147483647));
  EXPECT_TRUE(est_renseigne_integer(2147483646));
  EXPECT_FALSE(est_renseigne_real(3.4028235E38F));
  EXPECT_TRUE(est_renseigne_real(0));
  EXPECT_FALSE(est_renseigne_double(1.7976931348623157E308));
  EXPECT_TRUE(est_renseigne_double(1.7976931348623155E308));
  EXPECT_TRUE(est_renseigne_double(std::numeric_limits<double>::quiet_NaN())) << "a NaN is a value";
  EXPECT_TRUE(est_renseigne_double(std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(est_renseigne_chaine(texte<32>("N_R")));
  EXPECT_TRUE(est_renseigne_chaine(texte<32>("N_RX")));
  EXPECT_TRUE(est_renseigne_chaine(texte<32>("n_r")));
  EXPECT_TRUE(est_renseigne_chaine(texte<32>()));
}

// A file may hold the values that mean not given, and then they read so.
TEST(EstRenseigne, LesValeursDesDonnees) {
  const lecteur l("N_R 2147483647");
  bool erco = false;
  texte<32> nom;
  and_lire_nom(nom, 32, erco);
  EXPECT_FALSE(est_renseigne_chaine(nom));
  int entier = 0;
  and_lire_entier(entier, erco);
  EXPECT_FALSE(est_renseigne_integer(entier));
}

TEST(ChaineNumerique, Formats) {
  EXPECT_EQ(zof_chaine_numerique_double(12.5).entier(), "12.500         ");
  EXPECT_EQ(zof_chaine_numerique_double(0).entier(), "0.0000         ");
  EXPECT_EQ(zof_chaine_numerique_double(-1.5e-7).entier(), "-0.15000E-06   ");
  EXPECT_EQ(zof_chaine_numerique_geometrique(1.23456).entier(), "1.2346         ");
  EXPECT_EQ(zof_chaine_numerique_geometrique(1e9).entier(), "************   ");
  EXPECT_EQ(zof_chaine_numerique_entier(-42).entier(), "-42            ");
  EXPECT_EQ(zof_chaine_numerique_entier(-999999999).entier(), "-999999999     ");
  EXPECT_EQ(zof_chaine_numerique_entier(-1000000000).entier(), "**********     ") << "eleven characters";
  EXPECT_EQ(zof_chaine_numerique_entier_ajuste(42, 4), "42  ");
  EXPECT_EQ(zof_chaine_numerique_entier_ajuste(12345, 3), "123");
  EXPECT_EQ(zof_chaine_numerique_entier_ajuste(1, 20), "1                   ");
  EXPECT_EQ(zof_chaine_deformation(0.0035).entier(), "0.35000E-02    ");
  EXPECT_EQ(zof_chaine_flux(-0.00004).entier(), "-0.0000       ");
  EXPECT_EQ(zof_chaine_flux(1.5).entier(), "1.5000        ");
  EXPECT_EQ(zof_chaine_flux(-1e6).entier(), "************  ") << "thirteen characters";
}

TEST(ChaineNumerique, NonRenseigne) {
  EXPECT_EQ(zof_chaine_numerique_double(non_renseigne).entier(), "Non renseigne  ");
  EXPECT_EQ(zof_chaine_numerique_geometrique(non_renseigne).entier(), "Non renseigne  ");
  EXPECT_EQ(zof_chaine_numerique_entier(non_renseigne).entier(), "Non renseigne  ");
  EXPECT_EQ(zof_chaine_numerique_entier_ajuste(non_renseigne, 5), "Non r");
  EXPECT_EQ(zof_chaine_deformation(non_renseigne).entier(), "Non renseigne  ");
  EXPECT_EQ(zof_chaine_flux(non_renseigne).entier(), "Non renseigne ");
}

TEST(Constantes, Textes) {
  EXPECT_EQ(zof_par_format_numero_point.entier(), "(i5)      ");
  EXPECT_EQ(zof_par_type_loi_beton[0].entier(), "INSTANTANEE ");
  EXPECT_EQ(zof_par_type_loi_beton[1].entier(), "DIFFEREE    ");
  EXPECT_EQ(zof_par_type_loi_beton[2].entier(), "PONDEREE    ");
}
