// Numbers to cells, tables joined, texts made safe for HTML.
#include "UTL_03_Convertion_Resu.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace socle;

namespace {

std::string loc_escape(std::string_view v) {
  std::string s(v);
  utl_03_caractere_interdit_html(s);
  return s;
}

utl_01_type_tableau loc_tableau(int lignes, int colonnes, char lettre) {
  utl_01_type_tableau t(lignes, colonnes, utl_01_contour_complet);
  t.titre_tableau = std::string(1, lettre);
  for (int i = 1; i <= lignes; ++i)
    for (int j = 1; j <= colonnes; ++j)
      t.cellule(i, j) = std::string(1, lettre) + std::to_string(i) + std::to_string(j);
  return t;
}

/// Lines of the table, cells separated by "," and lines by "/".
std::string loc_cellules(const utl_01_type_tableau& t) {
  std::string s;
  for (int i = 1; i <= t.nb_lignes(); ++i) {
    for (int j = 1; j <= t.nb_colonnes(); ++j) (s += t.cellule(i, j).utile()) += ',';
    s += '/';
  }
  return s;
}

}  // namespace

TEST(CaracteresHtml, UnTexteAsciiNeChangePas) {
  std::string ascii;
  for (int c = 0; c < 128; ++c) ascii += static_cast<char>(c);
  EXPECT_EQ(loc_escape(ascii), ascii);
  EXPECT_EQ(loc_escape(""), "");
}

TEST(CaracteresHtml, UnCodeAuDelaDe127DevientSaReference) {
  EXPECT_EQ(loc_escape("Déformée"_l1), "D&#233;form&#233;e");
  EXPECT_EQ(loc_escape("\x80\xFF"), "&#128;&#255;");
  EXPECT_EQ(loc_escape("\xEF\xBF\xBD"), "&#239;&#191;&#189;");
}

TEST(CaracteresHtml, LesSignesDuBalisageRestent) { EXPECT_EQ(loc_escape("a<b>&c\xE9"), "a<b>&c&#233;"); }

TEST(ConversionEntiers, ChaqueEntierEstAGauche) {
  const std::array<int, 4> v = {0, -7, 2147483647, -2147483647 - 1};
  std::array<texte<80>, 4> t;
  utl_03_convertir_tableau_i_txt(v, t);
  EXPECT_EQ(t[0].utile(), "0");
  EXPECT_EQ(t[1].utile(), "-7");
  EXPECT_EQ(t[2].utile(), "2147483647");
  EXPECT_EQ(t[3].utile(), "-2147483648");
}

TEST(ConversionEntiers, UnEntierTropLongPourSaLongueurEstEnAsterisques) {
  const std::array<int, 2> v = {99, 1000};
  std::array<texte<80>, 2> t;
  utl_03_convertir_tableau_i_txt(v, t, 3);
  EXPECT_EQ(t[0].utile(), "99");
  EXPECT_EQ(t[1].utile(), "***");
}

TEST(ConversionReels, LaFormeEstCelleQuiEstDonnee) {
  const std::array<double, 2> v = {1.5, -0.00025};
  std::array<texte<80>, 2> t;
  utl_03_convertir_tableau_dp_txt(v, t, "(F8.3)");
  EXPECT_EQ(t[0].utile(), "1.500");
  EXPECT_EQ(t[1].utile(), "-0.000");
  utl_03_convertir_tableau_dp_txt(v, t, "e12.4");
  EXPECT_EQ(t[1].utile(), "-0.2500E-03");
  utl_03_convertir_tableau_dp_txt(v, t, "", 4);
  EXPECT_EQ(t[1].utile(), "-0.0003");
  utl_03_convertir_tableau_dp_txt(v, t);
  EXPECT_EQ(t[0].utile(), "1.5000");
  EXPECT_EQ(t[1].utile(), "-0.25000E-03");
}

TEST(Fusion, DeuxTableauxCoteACoteOntLaHauteurDuPlusHaut) {
  utl_01_type_tableau f;
  utl_03_fusion_laterale_tab(loc_tableau(1, 2, 'a'), loc_tableau(2, 1, 'b'), f);
  EXPECT_EQ(loc_cellules(f), "a11,a12,b11,/,,b21,/");
  EXPECT_EQ(f.contour_tableau, 1);
  EXPECT_EQ(f.titre_tableau.utile(), "a");
}

TEST(Fusion, DeuxTableauxLUnSousLAutreOntLaLargeurDuPlusLarge) {
  utl_01_type_tableau f;
  utl_03_fusion_horizontale_tab(loc_tableau(1, 2, 'a'), loc_tableau(2, 1, 'b'), f, 5, "Ensemble");
  EXPECT_EQ(loc_cellules(f), "a11,a12,/b11,,/b21,,/");
  EXPECT_EQ(f.contour_tableau, 5);
  EXPECT_EQ(f.titre_tableau.utile(), "Ensemble");
}

TEST(Fusion, UnTableauSeFusionneEnLuiMeme) {
  utl_01_type_tableau a = loc_tableau(1, 1, 'a');
  utl_03_fusion_horizontale_tab(a, loc_tableau(1, 1, 'b'), a);
  EXPECT_EQ(loc_cellules(a), "a11,/b11,/");
}

TEST(Fusion, UneListeSeFusionneDansLesDeuxSens) {
  const std::array tableaux = {loc_tableau(1, 1, 'a'), loc_tableau(2, 1, 'b'), loc_tableau(1, 2, 'c')};
  utl_01_type_tableau f;
  utl_03_fusion_multiple(tableaux, 1, f);
  EXPECT_EQ(loc_cellules(f), "a11,,/b11,,/b21,,/c11,c12,/");
  utl_03_fusion_multiple(tableaux, 2, f);
  EXPECT_EQ(loc_cellules(f), "a11,b11,c11,c12,/,b21,,,/");
  utl_03_fusion_multiple({}, 1, f);
  EXPECT_EQ(f.nb_lignes(), 0);
}
