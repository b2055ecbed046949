// The HTML note, to the byte: tags, escapes, tables, drawings, head and end.
#include <gtest/gtest.h>

#include <string>

#include "Notes_en_memoire.hpp"

using namespace socle;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

class NoteHtml : public Notes {
 protected:
  NoteHtml() {
    utl_02_initialiser(
        {.opt_edition_txt = false, .opt_numeroter_titres = false, .opt_ecrire_sommaire_dynam = false});
  }
  std::string titre(vue_l1 t, int niveau, const utl_02_options& options = {}) {
    utl_02_ecrire_titre(t, niveau, options);
    return html();
  }
  std::string tableau(const utl_01_type_tableau& t, const utl_02_options_tableau& options = {}) {
    utl_02_ecrire_tableau(t, options);
    return html();
  }
};

utl_01_type_tableau loc_tableau(int contour) {
  utl_01_type_tableau t(2, 2, contour);
  t.remplir_ligne(1, {"N", "y"});
  t.remplir_ligne(2, {"12", "1.5"});
  return t;
}

std::string loc_entre_tables(const std::string& bordure, const std::string& contenu) {
  return "<center><TABLE class='table_donnees' BORDER=" + bordure + ">\n" + contenu + "</TABLE></center>\n";
}

std::string loc_ligne(const std::string& cellules) { return "<TR ALIGN=LEFT>" + cellules + "</TR>\n"; }

}  // namespace

TEST_F(NoteHtml, UnTitreAUneBaliseParNiveau) {
  EXPECT_EQ(titre("A", 0), "<h1>A</h1>\n");
  EXPECT_EQ(titre("A", 1), "<h2>A</h2>\n");
  EXPECT_EQ(titre("A", 2), "<h3>A</h3>\n");
  EXPECT_EQ(titre("A", 3), "<h4>A</h4>\n");
  EXPECT_EQ(titre("A", 4), "<h5>A</h5>\n");
  EXPECT_EQ(titre("A", 5), "<h6>A</h6>\n");
  EXPECT_EQ(titre("A", 6), "<p>A</p>\n");
  EXPECT_EQ(titre("A", 42), "<p>A</p>\n");
}

TEST_F(NoteHtml, UnTitreDuSommairePorteSonRang) {
  utl_02_initialiser({.opt_numeroter_titres = true});
  EXPECT_EQ(titre("Déformée"_l1, 1), "<h2 id='1'>1. D&#233;form&#233;e</h2>\n");
  EXPECT_EQ(titre("B", 3), "<h4 id='2'>1.0.1. B</h4>\n");
  EXPECT_EQ(titre("Hors", 11), "<p>Hors</p>\n");
}

TEST_F(NoteHtml, UnTitreADeuxCentsCaracteresDePlusQueDansLaNoteTexte) {
  utl_02_initialiser({.opt_numeroter_titres = true});
  EXPECT_EQ(titre(std::string(600, 'x'), 1), "<h2 id='1'>1. " + std::string(497, 'x') + "</h2>\n");
}

TEST_F(NoteHtml, UnTitrePeutEtreCibleOuLien) {
  EXPECT_EQ(titre("A", 1, {.opt_ancre = "ici"}), "<h2><a id='ici'>A</a></h2>\n");
  EXPECT_EQ(titre("A", 1, {.opt_lien_ancre = "la"}), "<h2><a href='#la'>A</a></h2>\n");
  EXPECT_EQ(titre("A", 1, {.opt_ancre = "ici", .opt_lien_ancre = "la", .opt_fic = "b\\c.html"}),
            "<h2><a id='ici' href='b/c.html#la'>A</a></h2>\n");
  EXPECT_EQ(titre("A", 1, {.opt_fic = "c.html"}), "<h2><a href='c.html'>A</a></h2>\n");
}

TEST_F(NoteHtml, ParagrapheRemarqueAvertissementEtPuceOntLeurBalise) {
  utl_02_ecrire_texte("    ===> Béton   "_l1);
  utl_02_ecrire_note(" (*) é"_l1);
  utl_02_ecrire_avertissement("à"_l1);
  utl_02_debut_puce();
  utl_02_ecrire_puce("un");
  utl_02_debut_puce();
  utl_02_ecrire_puce("deux");
  utl_02_fin_puce();
  utl_02_fin_puce();
  EXPECT_EQ(html(),
            "<p>    ===> B&#233;ton</p>\n"
            "<span class=\"surlign\"> (*) &#233;</span>\n"
            "<p class='avert'>&#224;</p>\n<br>\n"
            "<ul>\n<li>un</li>\n<ul>\n<li>deux</li>\n</ul>\n</ul>\n");
}

TEST_F(NoteHtml, LePrefixeEtLeSuffixeEntourentLeTexteDansLaSeuleNoteHtml) {
  utl_02_initialiser({.opt_edition_txt = true});
  const utl_02_options rouge = {.opt_prefixe_html = "<b style='color:red;'>", .opt_suffixe_html = "</b>"};
  utl_02_ecrire_puce("Résultat"_l1, rouge);
  utl_02_ecrire_texte("Non", rouge);
  EXPECT_EQ(html(),
            "<li><b style='color:red;'>R&#233;sultat</b></li>\n"
            "<p><b style='color:red;'>Non</b></p>\n");
  EXPECT_EQ(txt(), "  Résultat\nNon\n"_l1);
}

TEST_F(NoteHtml, UnParagraphePeutEtreCibleOuLien) {
  utl_02_ecrire_texte("A", {.opt_ancre = "l'un"});
  utl_02_ecrire_texte("B", {.opt_lien_ancre = "l'un"});
  EXPECT_EQ(html(), "<p><a id='l&#39;un'>A</a></p>\n<p><a href='#l&#39;un'>B</a></p>\n");
}

TEST_F(NoteHtml, LesSignesDuBalisageRestentCommeIlsSont) {
  utl_02_ecrire_texte("a < b & c > d");
  EXPECT_EQ(html(), "<p>a < b & c > d</p>\n");
}

TEST_F(NoteHtml, UnLienAUneAdresseQueLesNavigateursSuivent) {
  utl_02_ecrire_lien_hypertexte("Svg_e\\s_1_D.svg", "====> GRANDE LARGEUR é"_l1);
  EXPECT_EQ(html(), "<a href='Svg_e/s_1_D.svg'>====> GRANDE LARGEUR &#233;</a>\n");
  utl_02_ecrire_lien_hypertexte("#2", "ici");
  EXPECT_EQ(html(), "<a href='#2'>ici</a>\n");
  utl_02_ecrire_lien_hypertexte("a b'é?%.svg#z"_l1, "x");
  EXPECT_EQ(html(), "<a href='a%20b%27%E9%3F%25.svg#z'>x</a>\n");
  // As it stands, "&copy/" would be read as a sign of its own.
  utl_02_ecrire_lien_hypertexte("Svg_a&copy\\s.svg", "x");
  EXPECT_EQ(html(), "<a href='Svg_a%26copy/s.svg'>x</a>\n");
}

TEST_F(NoteHtml, UnDessinEstUnObjet) {
  utl_02_ecrire_inclusion_objet_html("Svg_e\\s 1.svg", 600, 400);
  EXPECT_EQ(html(),
            "<!--[if(!IE)|(gte IE 9)]><!-->\n"
            "<object data = 'Svg_e/s%201.svg' width  = '600'   height = '400' ></object>\n"
            "<!--<![endif]-->\n"
            "<!--[if lt IE 9]>\n"
            "<span class='ie' >Impossible d'afficher l'objet</span>\n"
            "<![endif]-->\n");
}

TEST_F(NoteHtml, LaMiseEnPageASesElements) {
  utl_02_ecrire_saut_page();
  utl_02_ecrire_saut_page_html();
  utl_02_ecrire_cleaner_html();
  utl_02_ecrire_passage_ligne_html();
  EXPECT_EQ(html(),
            "<div class=\"saut\"></div>\n<div class=\"saut\"></div>\n<div class=\"cleaner\"></div>\n<br>\n");
}

TEST_F(NoteHtml, LesCellulesDeTitreDependentDuContour) {
  const std::string td = loc_ligne("<TD>N</TD><TD>y</TD>");
  const std::string th = loc_ligne("<TH>N</TH><TH>y</TH>");
  const std::string td_th = loc_ligne("<TH>N</TH><TD>y</TD>");
  const std::string d = loc_ligne("<TD>12</TD><TD>1.5</TD>");
  const std::string dh = loc_ligne("<TH>12</TH><TD>1.5</TD>");
  EXPECT_EQ(tableau(loc_tableau(0)), loc_entre_tables("0", td + d));
  EXPECT_EQ(tableau(loc_tableau(1)), loc_entre_tables("1", td + d));
  EXPECT_EQ(tableau(loc_tableau(2)), loc_entre_tables("1", th + d));
  EXPECT_EQ(tableau(loc_tableau(3)), loc_entre_tables("1", th + d));
  EXPECT_EQ(tableau(loc_tableau(4)), loc_entre_tables("1", th + d));
  EXPECT_EQ(tableau(loc_tableau(5)), loc_entre_tables("1", th + dh));
  EXPECT_EQ(tableau(loc_tableau(6)), loc_entre_tables("1", td_th + dh));
}

TEST_F(NoteHtml, LaLegendeEstLeTitreDuTableau) {
  utl_01_type_tableau t(1, 1);
  t.titre_tableau = " Déformations "_l1;
  t.cellule(1, 1) = "é"_l1;
  EXPECT_EQ(tableau(t), loc_entre_tables(
                            "0", "<CAPTION>  D&#233;formations </CAPTION>\n" + loc_ligne("<TD>&#233;</TD>")));
}

TEST_F(NoteHtml, ChaquePartieALaLegendeEtSonNumero) {
  utl_01_type_tableau t(1, 5);
  t.titre_tableau = "T";
  for (int j = 2; j <= 5; ++j) t.cellule(1, j) = std::string(72, static_cast<char>('a' + j));
  t.cellule(1, 1) = "n";
  const auto cellule = [](char c) { return "<TD>" + std::string(72, c) + "</TD>"; };
  EXPECT_EQ(tableau(t, {.opt_colonnes_info = 1}),
            loc_entre_tables("0", "<CAPTION> T, Partie : 1 </CAPTION>\n" +
                                      loc_ligne("<TD>n</TD>" + cellule('c') + cellule('d') + cellule('e'))) +
                loc_entre_tables(
                    "0", "<CAPTION> T, Partie : 2 </CAPTION>\n" + loc_ligne("<TD>n</TD>" + cellule('f'))));
}

TEST_F(NoteHtml, LaPremiereColonneDUnePartieNEstTitreQueSiElleLEstDuTableau) {
  utl_02_initialiser({.opt_lg_ligne = 10});
  utl_01_type_tableau t(1, 2, utl_01_contour_titre_lignes);
  t.remplir_ligne(1, {"abcdef", "ghijkl"});
  EXPECT_EQ(tableau(t),
            loc_entre_tables("1", "<CAPTION> , Partie : 1 </CAPTION>\n" + loc_ligne("<TH>abcdef</TH>")) +
                loc_entre_tables("1", "<CAPTION> , Partie : 2 </CAPTION>\n" + loc_ligne("<TD>ghijkl</TD>")));
}

TEST_F(NoteHtml, DesCellulesVoisinesEgalesPeuventNEnFaireQuUne) {
  utl_01_type_tableau t(1, 6);
  t.remplir_ligne(1, {"a", "a", "a", "b", "", ""});
  EXPECT_EQ(tableau(t, {.opt_fusionner = true}),
            loc_entre_tables("0", loc_ligne("<TD COLSPAN=3>a</TD><TD>b</TD><TD></TD><TD></TD>")));
}

TEST_F(NoteHtml, DesCellulesQuiSontDesCiblesNeSontPasFusionnees) {
  utl_01_type_tableau t(1, 2);
  t.remplir_ligne(1, {"a", "a"});
  utl_01_type_tableau ancres(1, 2);
  ancres.remplir_ligne(1, {"", "ici"});
  EXPECT_EQ(tableau(t, {.opt_tab_ancres = &ancres, .opt_fusionner = true}),
            loc_entre_tables("0", loc_ligne("<TD>a</TD><TD><a id='ici'>a</a></TD>")));
}

TEST_F(NoteHtml, DesCellulesPeuventEtreCiblesOuLiens) {
  utl_01_type_tableau ancres(2, 2);
  ancres.cellule(1, 1) = "haut";
  utl_01_type_tableau liens(2, 2);
  liens.cellule(2, 2) = "haut";
  EXPECT_EQ(tableau(loc_tableau(0), {.opt_tab_ancres = &ancres, .opt_tab_liens = &liens}),
            loc_entre_tables("0", loc_ligne("<TD><a id='haut'>N</a></TD><TD>y</TD>") +
                                      loc_ligne("<TD>12</TD><TD><a href='#haut'>1.5</a></TD>")));
  EXPECT_EQ(machine.texte_console, "");
}

TEST_F(NoteHtml, UnTableauDAncresMalDimensionneEstDitEtNeComptePas) {
  const utl_01_type_tableau ancres(1, 2);
  EXPECT_EQ(tableau(loc_tableau(0), {.opt_tab_ancres = &ancres}), tableau(loc_tableau(0)));
  EXPECT_EQ(machine.texte_console, "Le tableau d'ancre est mal dimensionne\n");
}

TEST_F(NoteHtml, SansRessourceLaTeteADesElementsVides) {
  utl_02_initialiser({.opt_ecrire_sommaire_dynam = true});
  utl_02_ecrire_entete(1, {.opt_titre = "Calcul ZOF", .opt_sous_titre = "Note é"_l1});
  const std::string tete = html();
  EXPECT_TRUE(
      tete.starts_with("<html>\n"
                       "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=ISO-8859-1\">\n"
                       "<script type=\"text/javascript\">\n"
                       "</script>\n"
                       "<head>\n"
                       "<style type=\"text/css\" media=\"screen\">\n"
                       "</style>\n"
                       "<!--[if(!IE)|(gte IE 9)]><!-->\n"
                       "<style type=\"text/css\" media=\"screen\">\n"
                       "</style>\n"
                       "<!--<![endif]-->\n"
                       "<style type=\"text/css\" media=\"print\">\n"
                       "</style>\n"
                       "<title>Calcul ZOF</title>\n"
                       "</head>\n"
                       "<body>\n"
                       "<div class=\"header\">\n"
                       "<table class=\"tableau\">\n"))
      << tete;
  EXPECT_THAT(tete, HasSubstr("<td class=\"texte\"><h1>Calcul ZOF</h1><h3>Note &#233;</h3></td>\n"));
  EXPECT_THAT(tete, HasSubstr("</table>\n"
                              "</div>\n"
                              "<a name=\"up\"></a>\n"
                              "<div class='main'>\n"
                              "<div class='content1'>\n"
                              "<!--[if lt IE 9]>\n"));
  EXPECT_TRUE(tete.ends_with("<![endif]-->\n<div class='content'>\n")) << tete;
}

TEST_F(NoteHtml, SansSommaireDynamiqueLaTeteNAPasDeScript) {
  machine.fichiers["NDC.js"] = "script";
  machine.fichiers["ajout_dyn.css"] = "ajout";
  machine.fichiers["default.css"] = "ecran";
  machine.fichiers["print.css"] = "papier";
  utl_02_ecrire_entete(1, {.opt_titre = "T"});
  EXPECT_TRUE(
      html().starts_with("<html>\n"
                         "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=ISO-8859-1\">\n"
                         "<head>\n"
                         "<style type=\"text/css\" media=\"screen\">\n"
                         "ecran\n"
                         "</style>\n"
                         "<style type=\"text/css\" media=\"print\">\n"
                         "papier\n"
                         "</style>\n"
                         "<title>T</title>\n"));
}

TEST_F(NoteHtml, LaFinFermeTousLesElementsDansLOrdre) {
  utl_02_finaliser();
  EXPECT_EQ(html(),
            "</div> <!-- fin de content -->\n"
            "</div> <!-- fin de content1 -->\n"
            "</div> <!-- fin de main -->\n"
            "</body>\n"
            "<div class='footer'>\n"
            "<table class='table_footer'>\n"
            "<tr>\n"
            "<td></td>\n"
            "<td></td>\n"
            "<td><a href='#up'>Haut de page</a></td>\n"
            "</tr>\n"
            "</table>\n"
            "</div>\n"
            "</html>\n");
}

TEST_F(NoteHtml, LesListesOuvertesSontFermeesALaFin) {
  utl_02_debut_puce();
  utl_02_debut_puce();
  utl_02_fin_puce();
  html();
  utl_02_finaliser();
  EXPECT_TRUE(html().starts_with("</ul>\n</div> <!-- fin de content -->\n"));
}

// What a command may write, whole: the strict reader finds nothing to forgive and all that was said is there.
TEST_F(NoteHtml, UneNoteEntiereEstSaine) {
  utl_02_initialiser({.opt_numeroter_titres = true, .opt_ecrire_sommaire_dynam = true});
  utl_02_ecrire_entete(1, {.opt_titre = "Calcul", .opt_sous_titre = "Note"});
  utl_02_ecrire_titre("Matériaux"_l1, 1);
  utl_02_ecrire_titre("Béton"_l1, 2, {.opt_ancre = "beton"});
  utl_02_debut_puce();
  utl_02_ecrire_puce("fck : 30", {.opt_lien_ancre = "beton"});
  utl_02_fin_puce();
  utl_02_ecrire_tableau(loc_tableau(5));
  utl_02_ecrire_titre("Section", 1);
  utl_02_ecrire_inclusion_objet_html("Svg_n\\s.svg", 10, 10);
  utl_02_ecrire_lien_hypertexte("Svg_n\\s_D.svg", "Grand");
  utl_02_ecrire_avertissement("Attention");
  utl_02_ecrire_saut_page();
  utl_02_finaliser();
  const std::string note = html();
  EXPECT_THAT(fautes_html(note), IsEmpty());
  EXPECT_THAT(fichiers_lies(note), ElementsAre("Svg_n/s.svg", "Svg_n/s_D.svg"));
  const std::string visible = texte_visible(note);
  for (const std::string_view dit : {"1. Matériaux"_l1, "1.1. Béton"_l1, "fck : 30"_l1, "12"_l1,
                                     "2. Section"_l1, "Grand"_l1, "Attention"_l1})
    EXPECT_THAT(visible, HasSubstr(std::string(dit)));
}
