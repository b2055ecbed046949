// Numbers of the titles, and the summary that closes the HTML note.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Notes_en_memoire.hpp"

using namespace socle;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

class Sommaire : public Notes {
 protected:
  /// Numbers of titles of these levels, one after the other.
  static std::vector<std::string> numeros(std::initializer_list<int> niveaux) {
    for (const int niveau : niveaux) utl_02_ecrire_titre("T", niveau);
    return utl_02.utl_str_sommaire.tab_numero_sommaire;
  }
  /// The nested lists of the note's end.
  std::string listes() {
    html();
    utl_02_finaliser();
    const std::string fin = html();
    const std::size_t debut = fin.find("<h2>Sommaire</h2>\n") + 18;
    return fin.substr(debut, fin.find("</div>", debut) - debut);
  }
};

constexpr const char* ouverture = "<ol style=\"list-style-type:none;\">\n";

std::string loc_imbriquee(int n) {
  return "<ol class=\"switchcontent\" id=\"sc" + std::to_string(n) + "\" style=\"list-style-type:none;\">\n";
}
std::string loc_bouton(int n) {
  return "<span onClick=\"expandcontent(this, 'sc" + std::to_string(n) +
         "')\"><span class=\"showstate\"></span></span>";
}

}  // namespace

TEST_F(Sommaire, LesNumerosComptentLesTitresParNiveau) {
  EXPECT_THAT(numeros({1, 2, 2, 1, 2, 2, 2}),
              ElementsAre("1.", "1.1.", "1.2.", "2.", "2.1.", "2.2.", "2.3."));
}

TEST_F(Sommaire, UnTitreDeNiveauUnRecommenceTousLesNiveauxEnDessous) {
  EXPECT_THAT(numeros({1, 2, 3, 1, 3, 2, 3}),
              ElementsAre("1.", "1.1.", "1.1.1.", "2.", "2.0.1.", "2.1.", "2.1.1."));
}

TEST_F(Sommaire, LeNiveauZeroNAPasDeNumeroEtRecommenceLeCompte) {
  EXPECT_THAT(numeros({1, 0, 1, 2}), ElementsAre("1.", "", "1.", "1.1."));
  html();
  utl_02_ecrire_titre("Nu", 0);
  EXPECT_EQ(html(), "<h1 id='5'>Nu</h1>\n");
}

TEST_F(Sommaire, UnNiveauAuDelaDeLaProfondeurNeComptePas) {
  utl_02_initialiser({.opt_profondeur_sommaire_voulue = 2});
  EXPECT_THAT(numeros({1, 2, 3, 2}), ElementsAre("1.", "1.1.", "1.2."));
  txt();
  utl_02_ecrire_titre("Nu", 3);
  EXPECT_EQ(txt(), "      Nu\n      **\n\n");
}

TEST_F(Sommaire, LaProfondeurVoulueEstBornee) {
  utl_02_initialiser({.opt_profondeur_sommaire_voulue = 100});
  EXPECT_EQ(utl_02.glb_profondeur_sommaire_voulue, 10);
  EXPECT_THAT(numeros({10, 11}), ElementsAre("0.0.0.0.0.0.0.0.0.1."));
  EXPECT_EQ(utl_02.utl_str_sommaire.profondeur_sommaire, 10);
}

TEST_F(Sommaire, LeSommaireRetientLesTitresSansLeurNumero) {
  utl_02_ecrire_titre("Un   ", 1);
  utl_02_ecrire_titre(std::string(400, 'x'), 2);
  const utl_01_type_sommaire& s = utl_02.utl_str_sommaire;
  EXPECT_EQ(s.taille_sommaire, 2);
  EXPECT_EQ(s.profondeur_sommaire, 2);
  EXPECT_THAT(s.tab_lib_sommaire, ElementsAre("Un", std::string(300, 'x')));
  EXPECT_TRUE(s.hierarchie(2, 2));
}

TEST_F(Sommaire, SansNumerotationNiSommaireRienNEstRetenu) {
  utl_02_initialiser({.opt_numeroter_titres = false, .opt_ecrire_sommaire_dynam = false});
  EXPECT_FALSE(utl_02.glb_renseigner_sommaire);
  EXPECT_THAT(numeros({1}), IsEmpty());
}

TEST_F(Sommaire, LeSommaireDynamiqueASaBarreDeQuatreBoutons) {
  utl_02_finaliser();
  EXPECT_THAT(html(),
              HasSubstr("</div> <!-- fin de content -->\n"
                        " <!--[if(!IE)|(gte IE 9)]><!--> \n"
                        "<div class=\"conteneur\">\n"
                        "<div class=\"menu_bar\">\n"
                        "<ul>\n"
                        "<li><div class=\"bouton\"><a href=\"#up\">Retour Accueil</a></div></li>\n"
                        "<li><div class=\"bouton\"><a href=\"#up\"> Retour haut de page</a></div></li>\n"
                        "<li><div class=\"bouton\"><a href=\"#Tab_sommaire_dynam\" "
                        "id=\"reduire_sommaire\"> R&#233;duire le sommaire</a></div></li>\n"
                        "<li><div class=\"bouton\"><a href=\"#up\" onclick=\"window.print(); "
                        "return false;\">Imprimer</a></div></li>\n"
                        "</ul>\n"
                        "</div>\n"
                        "<div class = \"Tab_sommaire_dynam\" id= \"Tab_sommaire_dynam\">\n"
                        "<h2>Sommaire</h2>\n"
                        "</div> <!-- fin du sommaire dynamique-->\n"
                        "</div> \n"
                        "<!--<![endif]-->\n"
                        "</div> <!-- fin de content1 -->\n"));
}

TEST_F(Sommaire, LesTitresSontDesListesImbriqueesQuiSOuvrentEtSeFerment) {
  utl_02_ecrire_titre("Béton"_l1, 1);
  utl_02_ecrire_titre("B", 2);
  utl_02_ecrire_titre("C", 3);
  utl_02_ecrire_titre("D", 2);
  utl_02_ecrire_titre("E", 1);
  EXPECT_EQ(listes(), std::string(ouverture) + "<li>" + loc_bouton(1) + "<a href='#1'>1. B&#233;ton</a>\n" +
                          loc_imbriquee(1) + "<li>" + loc_bouton(2) + "<a href='#2'>1.1. B</a>\n" +
                          loc_imbriquee(2) +
                          "<li><a href='#3'>1.1.1. C</a></li>\n"
                          "</ol>\n</li>\n"
                          "<li><a href='#4'>1.2. D</a></li>\n"
                          "</ol>\n</li>\n"
                          "<li><a href='#5'>2. E</a></li>\n"
                          "</ol>\n");
}

// Levels that are left out, either way, leave the lists balanced.
TEST_F(Sommaire, DesNiveauxSautesLaissentUnSommaireSain) {
  utl_02_ecrire_entete(1, {.opt_titre = "T"});
  numeros({3, 1, 4, 2, 5, 3, 1, 0, 2, 7, 6, 1});
  utl_02_finaliser();
  const std::string note = html();
  EXPECT_THAT(fautes_html(note), IsEmpty());
  for (int i = 1; i <= 12; ++i) EXPECT_THAT(note, HasSubstr("href='#" + std::to_string(i) + "'"));
}

TEST_F(Sommaire, UnTitreSauteEstSousLeDernierDUnNiveauPlusPetit) {
  numeros({1, 3, 2});
  EXPECT_EQ(listes(), std::string(ouverture) + "<li>" + loc_bouton(1) + "<a href='#1'>1. T</a>\n" +
                          loc_imbriquee(1) +
                          "<li><a href='#2'>1.0.1. T</a></li>\n"
                          "<li><a href='#3'>1.1. T</a></li>\n"
                          "</ol>\n</li>\n</ol>\n");
}

TEST_F(Sommaire, LeSommaireStatiqueNAPasDeScript) {
  utl_02_initialiser({.opt_ecrire_sommaire = true, .opt_ecrire_sommaire_dynam = false});
  numeros({1, 2});
  html();
  utl_02_finaliser();
  const std::string fin = html();
  EXPECT_THAT(fin, HasSubstr("</div> <!-- fin de content -->\n"
                             "<div class=\"Tab_sommaire\">\n"
                             "<h2>Sommaire</h2>\n" +
                             std::string(ouverture) + "<li><a href='#1'>1. T</a>\n" + ouverture +
                             "<li><a href='#2'>1.1. T</a></li>\n</ol>\n</li>\n</ol>\n"
                             "</div> <!-- fin du sommaire-->\n"
                             "</div> <!-- fin de content1 -->\n"));
  EXPECT_THAT(fin, Not(HasSubstr("onClick")));
}

TEST_F(Sommaire, InitialiserRecommenceLeSommaire) {
  numeros({1, 1});
  utl_02_initialiser({});
  EXPECT_THAT(numeros({1}), ElementsAre("1."));
}
