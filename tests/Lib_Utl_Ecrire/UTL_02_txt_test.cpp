// The text note, to the byte: titles, paragraphs, bullets, tables, head and end.
#include <gtest/gtest.h>

#include <string>

#include "Notes_en_memoire.hpp"

using namespace socle;

namespace {

class NoteTexte : public Notes {
 protected:
  NoteTexte() { utl_02_initialiser({.opt_edition_html = false, .opt_numeroter_titres = false}); }

  std::string titre(vue_l1 t, int niveau) {
    utl_02_ecrire_titre(t, niveau);
    return txt();
  }
  std::string paragraphe(vue_l1 t) {
    utl_02_ecrire_texte(t);
    return txt();
  }
  std::string tableau(const utl_01_type_tableau& t, const utl_02_options_tableau& options = {}) {
    utl_02_ecrire_tableau(t, options);
    return txt();
  }
  /// What the console gets from an operation that ends the run with status 0.
  template <class operation>
  std::string faute(operation o) {
    EXPECT_EQ(statut_d_arret(o), 0);
    return std::exchange(machine.texte_console, {});
  }
};

utl_01_type_tableau loc_tableau(int contour) {
  utl_01_type_tableau t(3, 2, contour);
  t.remplir_ligne(1, {"N", "y (m)"});
  t.remplir_ligne(2, {"12", "1.5"});
  t.remplir_ligne(3, {"3", ""});
  return t;
}

/// A line of n cells of that width: "aaa...", "bbb...", and so on.
utl_01_type_tableau loc_ligne_large(int n, std::size_t largeur) {
  utl_01_type_tableau t(1, n);
  for (int j = 1; j <= n; ++j) t.cellule(1, j) = std::string(largeur, static_cast<char>('a' + (j - 1) % 26));
  return t;
}

std::string loc_cellule_large(char c, std::size_t largeur) { return std::string(largeur, c) + "   "; }

}  // namespace

TEST(Reglages, ValeursDeDepart) {
  const utl_02_t depart;
  EXPECT_EQ(depart.glb_unit_txt, nullptr);
  EXPECT_EQ(depart.glb_unit_html, nullptr);
  EXPECT_TRUE(depart.glb_edition_txt);
  EXPECT_TRUE(depart.glb_edition_html);
  EXPECT_EQ(depart.glb_lg_separation, 3);
  EXPECT_EQ(depart.glb_logiciel, 0);
  EXPECT_EQ(depart.glb_lg_ligne, 300);
  EXPECT_FALSE(depart.glb_numeroter_titres);
  EXPECT_FALSE(depart.glb_ecrire_sommaire);
  EXPECT_FALSE(depart.glb_ecrire_sommaire_dynam);
  EXPECT_FALSE(depart.glb_renseigner_sommaire);
  EXPECT_EQ(depart.glb_profondeur_sommaire_voulue, 0);
  EXPECT_EQ(depart.glb_langue_entete.entier(), "fr");
  EXPECT_EQ(depart.glb_tiret.entier(), "  ");
  EXPECT_EQ(depart.glb_espace_puce, 0);
}

// Any of the three is enough for the titles to be kept.
TEST_F(NoteTexte, LeSommaireEstRenseigneDesQuIlSert) {
  utl_02_initialiser({.opt_ecrire_sommaire = false, .opt_ecrire_sommaire_dynam = false});
  EXPECT_FALSE(utl_02.glb_renseigner_sommaire);
  utl_02_initialiser({.opt_ecrire_sommaire = true});
  EXPECT_TRUE(utl_02.glb_renseigner_sommaire);
  utl_02_initialiser({.opt_ecrire_sommaire = false, .opt_ecrire_sommaire_dynam = true});
  EXPECT_TRUE(utl_02.glb_renseigner_sommaire);
  utl_02_initialiser({.opt_numeroter_titres = true, .opt_ecrire_sommaire_dynam = false});
  EXPECT_TRUE(utl_02.glb_renseigner_sommaire);
}

TEST_F(NoteTexte, UnTitreAUneFormeParNiveau) {
  EXPECT_EQ(titre("ABC", 0), "***\nABC   \n***\n\n");
  EXPECT_EQ(titre("ABC", 1), "  ---\n  ABC\n  ---\n\n");
  EXPECT_EQ(titre("ABC", 2), "    ...\n    ABC\n    ...\n\n");
  EXPECT_EQ(titre("ABC", 3), "      ABC\n      ***\n\n");
  EXPECT_EQ(titre("ABC", 4), "        ABC\n        ---\n\n");
  EXPECT_EQ(titre("ABC", 5), "          ABC : \n\n");
  EXPECT_EQ(titre("ABC", 6), "            ABC : \n");
  EXPECT_EQ(titre("ABC", 7), "              ABC :\n");
  EXPECT_EQ(titre("ABC", 8), "                ABC : \n");
}

TEST_F(NoteTexte, LesFiletsOntLaLongueurDuTexteEcritNumeroCompris) {
  utl_02_initialiser({.opt_numeroter_titres = true});
  EXPECT_EQ(titre("Durée   "_l1, 1),
            "  --------\n  1. Dur\xE9"
            "e\n  --------\n\n");
  EXPECT_EQ(titre("B", 2), "    ......\n    1.1. B\n    ......\n\n");
}

TEST_F(NoteTexte, UnTitreEstCoupeATroisCentsCaracteres) {
  EXPECT_EQ(titre(std::string(301, 'x'), 3),
            "      " + std::string(300, 'x') + "\n      " + std::string(300, '*') + "\n\n");
}

TEST_F(NoteTexte, UnParagrapheQuiTientEstUneLigne) {
  EXPECT_EQ(paragraphe("    ===> Type  de  calcul   "), "    ===> Type  de  calcul\n");
  EXPECT_EQ(paragraphe(std::string(298, 'x')), std::string(298, 'x') + "\n");
  EXPECT_EQ(paragraphe(""), "\n");
}

TEST_F(NoteTexte, UnParagrapheEstCoupeAuDernierBlancAvantLaLimite) {
  const std::string mot(150, 'a');
  EXPECT_EQ(paragraphe(mot + " " + mot + " " + mot), mot + "\n" + mot + "\n" + mot + "\n");
  EXPECT_EQ(paragraphe(std::string(297, 'a') + " b"), std::string(297, 'a') + "\nb\n");
}

TEST_F(NoteTexte, UnParagrapheSansBlancEstCoupeALaLimite) {
  EXPECT_EQ(paragraphe(std::string(600, 'x')),
            std::string(298, 'x') + "\n" + std::string(298, 'x') + "\n" + std::string(4, 'x') + "\n");
  EXPECT_EQ(paragraphe("  " + std::string(298, 'x')), "  " + std::string(296, 'x') + "\nxx\n");
}

TEST_F(NoteTexte, RemarqueAvertissementEtLienSontDesParagraphes) {
  utl_02_ecrire_note(" (*) Attention");
  utl_02_ecrire_avertissement("Averti");
  utl_02_ecrire_lien_hypertexte("Svg_e\\s.svg", "DESSIN");
  EXPECT_EQ(txt(), " (*) Attention\nAverti\nDESSIN\n");
}

TEST_F(NoteTexte, LesPucesOntLaMarqueEtLeRetraitDeLeurRang) {
  utl_02_ecrire_puce("hors liste");
  utl_02_debut_puce();
  utl_02_ecrire_puce("un");
  utl_02_debut_puce();
  utl_02_ecrire_puce("deux");
  utl_02_ecrire_texte("paragraphe");
  utl_02_debut_puce();
  utl_02_ecrire_puce("trois");
  utl_02_debut_puce();
  utl_02_ecrire_puce("quatre   ");
  utl_02_fin_puce();
  utl_02_ecrire_puce("trois");
  utl_02_fin_puce();
  utl_02_fin_puce();
  utl_02_ecrire_puce("un");
  utl_02_fin_puce();
  utl_02_ecrire_texte("fin");
  EXPECT_EQ(txt(),
            "  hors liste\n"
            "  - un\n"
            "    > deux\n"
            "    paragraphe\n"
            "      * trois\n"
            "        . quatre\n"
            "      * trois\n"
            "  - un\n"
            "fin\n");
}

TEST_F(NoteTexte, LesLignesSuivantesDUnePuceOntDeuxBlancsPourMarque) {
  utl_02_debut_puce();
  utl_02_ecrire_puce(std::string(297, 'a') + " " + std::string(298, 'b') + "c");
  EXPECT_EQ(txt(), "  - " + std::string(297, 'a') + "\n    " + std::string(298, 'b') + "\n    c\n");
}

TEST_F(NoteTexte, UneCinquiemeListeArreteLaCourse) {
  for (int i = 0; i < 4; ++i) utl_02_debut_puce();
  EXPECT_EQ(faute([] { utl_02_debut_puce(); }),
            "ERREUR PROGRAMMATION UTL_ECRIRE_02 GLB_Tiret : rang de puce desire = 5 : NON GERE !\n");
}

TEST_F(NoteTexte, UneListeFermeeUneFoisDeTropArreteLaCourse) {
  utl_02_debut_puce();
  utl_02_fin_puce();
  EXPECT_EQ(faute([] { utl_02_fin_puce(); }),
            "ERREUR PROGRAMMATION UTL_ECRIRE_02 GLB_Tiret : rang de puce desire = -1 : NON GERE !\n");
}

TEST_F(NoteTexte, UneMarqueInconnueArreteLaCourse) {
  utl_02.glb_tiret = "+ ";
  const std::string message = "ERREUR PROGRAMMATION UTL_ECRIRE_02 GLB_Tiret\n";
  EXPECT_EQ(faute([] { utl_02_ecrire_puce("x"); }), message);
  EXPECT_EQ(faute([] { utl_02_debut_puce(); }), message);
  EXPECT_EQ(faute([] { utl_02_fin_puce(); }), message);
}

TEST_F(NoteTexte, UnRetraitHorsBornesArreteLaCourse) {
  const std::string message = "ERREUR PROGRAMMATION UTL_ECRIRE_02 GLB_Espace_Puce\n";
  utl_02.glb_espace_puce = 10;
  EXPECT_EQ(faute([] { utl_02_ecrire_puce("x"); }), message);
  utl_02.glb_espace_puce = 8;
  EXPECT_EQ(faute([] { utl_02_debut_puce(); }), message);
  utl_02.glb_espace_puce = 0;
  EXPECT_EQ(faute([] { utl_02_fin_puce(); }), message);
}

TEST_F(NoteTexte, UnTableauAUneFormeParContour) {
  const std::string n = "N    y (m)   \n", d = "12   1.5     \n", t = "3            \n";
  const std::string nb = "N  | y (m) | \n", db = "12 | 1.5   | \n", tb = "3  |       | \n";
  const std::string filet = "-------------\n";
  EXPECT_EQ(tableau(loc_tableau(0)), n + d + t + "\n");
  EXPECT_EQ(tableau(loc_tableau(1)), nb + filet + db + filet + tb + filet + "\n");
  EXPECT_EQ(tableau(loc_tableau(2)), n + filet + d + t + "\n");
  EXPECT_EQ(tableau(loc_tableau(3)), nb + filet + db + tb + filet + "\n");
  for (const int contour : {4, 5, 6})
    EXPECT_EQ(tableau(loc_tableau(contour)), nb + filet + db + filet + tb + filet + "\n");
}

TEST_F(NoteTexte, UneLigneSurDeuxFinitToujoursParUnFilet) {
  utl_01_type_tableau t(4, 1, utl_01_contour_une_ligne_sur_deux);
  for (int i = 1; i <= 4; ++i) t.cellule(i, 1) = std::to_string(i);
  EXPECT_EQ(tableau(t), "1 | \n----\n2 | \n3 | \n----\n4 | \n----\n\n");
}

TEST_F(NoteTexte, LaBarreEstAuMilieuDeLaSeparationArrondieVersLeHaut) {
  utl_01_type_tableau t(1, 2, utl_01_contour_complet);
  t.remplir_ligne(1, {"a", "b"});
  const auto avec = [&](int separation) {
    utl_02_initialiser({.opt_lg_separation = separation});
    return tableau(t);
  };
  EXPECT_EQ(avec(1), "a|b|\n----\n\n");
  EXPECT_EQ(avec(2), "a| b| \n------\n\n");
  EXPECT_EQ(avec(4), "a |  b |  \n----------\n\n");
  EXPECT_EQ(avec(5), "a  |  b  |  \n------------\n\n");
  EXPECT_EQ(avec(0), "ab\n--\n\n");
}

TEST_F(NoteTexte, LeTitreDUnTableauEstSuiviDUneLigneVide) {
  utl_01_type_tableau t(1, 1);
  t.cellule(1, 1) = "  x";  // the width counts the blanks in front, the cell stands at its start
  t.titre_tableau = " Contraintes  ";
  EXPECT_EQ(tableau(t), " Contraintes\n\nx     \n\n");
  utl_02_debut_puce();
  EXPECT_EQ(tableau(t), "   Contraintes\n\nx     \n\n");
}

TEST_F(NoteTexte, UnTableauSansCelluleNEstQueSonTitre) {
  utl_01_type_tableau t(0, 3, utl_01_contour_complet);
  t.titre_tableau = "Vide";
  EXPECT_EQ(tableau(t), "Vide\n\n\n");
  EXPECT_EQ(tableau({}), "\n");
}

TEST_F(NoteTexte, UnTableauQuiTientDansLaLimiteNEstPasCoupe) {
  // 4 x (71 + 3) = 296 = 300 - 4
  EXPECT_EQ(tableau(loc_ligne_large(4, 71)), loc_cellule_large('a', 71) + loc_cellule_large('b', 71) +
                                                 loc_cellule_large('c', 71) + loc_cellule_large('d', 71) +
                                                 "\n\n");
  // 4 x (72 + 3) = 300
  EXPECT_EQ(tableau(loc_ligne_large(4, 72)), loc_cellule_large('a', 72) + loc_cellule_large('b', 72) +
                                                 loc_cellule_large('c', 72) + "\n\n" +
                                                 loc_cellule_large('d', 72) + "\n\n");
}

TEST_F(NoteTexte, LesColonnesDInformationSeRepetentEtComptentDansChaquePartie) {
  utl_01_type_tableau t = loc_ligne_large(6, 72);
  t.cellule(1, 1) = "n";
  const std::string info = loc_cellule_large('n', 1);
  // 1 + 3 + 3 x 75 = 229; a fourth would make 304
  EXPECT_EQ(tableau(t, {.opt_colonnes_info = 1}),
            info + loc_cellule_large('b', 72) + loc_cellule_large('c', 72) + loc_cellule_large('d', 72) +
                "\n\n" + info + loc_cellule_large('e', 72) + loc_cellule_large('f', 72) + "\n\n");
}

TEST_F(NoteTexte, UneColonnePlusLargeQueLaLigneEstSeuleDansSaPartie) {
  utl_02_initialiser({.opt_lg_ligne = 20});
  EXPECT_EQ(tableau(loc_ligne_large(2, 30)),
            loc_cellule_large('a', 30) + "\n\n" + loc_cellule_large('b', 30) + "\n\n");
}

TEST_F(NoteTexte, LaDixiemePartiePrendToutesLesColonnesQuiRestent) {
  utl_02_initialiser({.opt_lg_ligne = 20});
  std::string attendu;
  for (char c = 'a'; c <= 'i'; ++c) attendu += loc_cellule_large(c, 10) + "\n\n";
  attendu += loc_cellule_large('j', 10) + loc_cellule_large('k', 10) + loc_cellule_large('l', 10) + "\n\n";
  EXPECT_EQ(tableau(loc_ligne_large(12, 10)), attendu);
}

TEST_F(NoteTexte, UnTableauLongSortEnEntier) {
  constexpr int nb = 20000;
  utl_01_type_tableau t(nb, 1);
  std::string attendu;
  for (int i = 1; i <= nb; ++i) {
    t.cellule(i, 1) = std::to_string(100000 + i);
    attendu += std::to_string(100000 + i) + "   \n";
  }
  EXPECT_EQ(tableau(t), attendu + "\n");
  EXPECT_LT(utl_02.tampon.capacity(), 100000U) << "a note must not be gathered in memory";
}

TEST_F(NoteTexte, UnSautDePageEstUnCaractereDePage) {
  utl_02_ecrire_saut_page();
  utl_02_ecrire_saut_page_html();
  EXPECT_EQ(txt(), "\f\n");
}

TEST_F(NoteTexte, LaTeteEstLeTitreEtLeSousTitre) {
  utl_02_ecrire_entete(1, {.opt_titre = "Calcul ZOF version 7.06", .opt_sous_titre = "Note de calcul"});
  EXPECT_EQ(txt(), "Calcul ZOF version 7.06\nNote de calcul\n\n");
}

TEST_F(NoteTexte, SansTitreDonneLaTeteALeTitreDuModule) {
  machine.fichiers["../EXE/UTL_Liste_Module.txt"] = "   1 Sections\n";
  utl_02_ecrire_entete(1);
  EXPECT_EQ(txt(), "Sections\n\n");
}

TEST_F(NoteTexte, LesPagesDeGardeSontCopieesAvecUnSautDePage) {
  machine.fichiers["Page_garde_fr.txt"] = "Garde\r\nligne 2\n";
  machine.fichiers["../exe/Page_chapitre_fr.txt"] = "Chapitre\n";
  machine.fichiers["Page_garde_en.txt"] = "Cover\n";
  utl_02_ecrire_entete(1, {.opt_titre = "T", .opt_sous_titre = "S"});
  EXPECT_EQ(txt(), "Garde\nligne 2\n\f\nChapitre\n\f\nT\nS\n\n");
}

TEST_F(NoteTexte, LaFinEstUneBanniereDeHuitLignes) {
  utl_02_finaliser();
  EXPECT_EQ(txt(),
            "XXXXXX  XXX  X    X       XXXXX   XXXXXX       X         XX         X    X  XXXXX    XXXX\n"
            "X        X   XX   X       X    X  X            X        X  X        XX   X  X    X  X    X\n"
            "X        X   XX   X       X    X  X            X       X    X       XX   X  X    X  X\n"
            "XXXXX    X   X X  X       X    X  XXXXX        X       X    X       X X  X  X    X  X\n"
            "X        X   X  X X       X    X  X            X       XXXXXX       X  X X  X    X  X\n"
            "X        X   X   XX       X    X  X            X       X    X       X   XX  X    X  X\n"
            "X        X   X   XX       X    X  X            X       X    X       X   XX  X    X  X    X\n"
            "X       XXX  X    X       XXXXX   XXXXXX       XXXXXX  X    X       X    X  XXXXX    XXXX\n");
}

TEST_F(NoteTexte, LaBanniereAnglaiseAHuitLignesDeXEtDeBlancs) {
  utl_02_initialiser({.opt_langue_entete = std::string_view("en")});
  utl_02_finaliser();
  const std::string banniere = txt();
  EXPECT_EQ(std::count(banniere.begin(), banniere.end(), '\n'), 8);
  EXPECT_EQ(banniere.find_first_not_of(" X\n"), std::string::npos);
  EXPECT_TRUE(banniere.starts_with("XXXXXX  X    X  XXXXX         XXXX   XXXXXX"));  // END OF
}

TEST_F(NoteTexte, UneListeOuverteALaFinEstDite) {
  utl_02_debut_puce();
  utl_02_finaliser();
  EXPECT_EQ(txt(),
            "ERREUR PROGRAMMATION : Nombre d'ouverture d'enumeration different du nombre de fermeture\n");
}

TEST_F(NoteTexte, ApresLaFinPlusRienNEstEcrit) {
  utl_02_finaliser();
  txt();
  utl_02_ecrire_texte("x");
  utl_02_ecrire_titre("x", 1);
  utl_02_fin_puce();
  EXPECT_EQ(txt(), "");
}

TEST_F(NoteTexte, UnAutreCanalRecoitUnSeulElement) {
  const auto autre = machine.creer("autre.txt", debut::efface);
  utl_02_ecrire_texte("ailleurs", {.opt_unit_txt = autre.get()});
  utl_02_ecrire_texte("ici");
  EXPECT_EQ(machine.fichiers["autre.txt"], "ailleurs\n");
  EXPECT_EQ(txt(), "ici\n");
}

TEST_F(NoteTexte, LesDeuxNotesEteintesRienNEstFait) {
  utl_02_initialiser({.opt_edition_txt = false, .opt_numeroter_titres = true});
  utl_02_ecrire_entete(1);
  utl_02_ecrire_titre("x", 1);
  utl_02_ecrire_texte("x");
  utl_02_ecrire_note("x");
  utl_02_ecrire_avertissement("x");
  for (int i = 0; i < 9; ++i) utl_02_debut_puce();
  utl_02_ecrire_puce("x");
  utl_02_fin_puce();
  utl_02_ecrire_tableau(loc_tableau(1));
  utl_02_ecrire_saut_page();
  utl_02_ecrire_lien_hypertexte("x", "x");
  utl_02_ecrire_inclusion_objet_html("x", 1, 1);
  utl_02_ecrire_cleaner_html();
  utl_02_ecrire_passage_ligne_html();
  EXPECT_EQ(utl_02.utl_str_sommaire.taille_sommaire, 0);
  utl_02_finaliser();
  EXPECT_EQ(txt() + html() + machine.texte_console, "");
}
