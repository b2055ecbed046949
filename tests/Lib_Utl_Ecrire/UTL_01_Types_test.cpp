// Records of a report: cells, copies, summary.
#include "UTL_01_Types.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

using namespace socle;
using ::testing::ElementsAre;

TEST(EnregistrementTableau, LesCellulesSontBlanchesEtRangeesParLignes) {
  utl_01_type_tableau t(2, 3, utl_01_contour_premiere_ligne);
  EXPECT_EQ(t.nb_lignes(), 2);
  EXPECT_EQ(t.nb_colonnes(), 3);
  EXPECT_EQ(t.contour_tableau, 2);
  EXPECT_TRUE(t.titre_tableau.vide());
  for (const texte<80>& c : t.tableau) EXPECT_TRUE(c.vide());
  t.cellule(2, 1) = "x";
  EXPECT_EQ(t.tableau[3].utile(), "x");
  t.remplir_ligne(1, {"a", "b"});
  EXPECT_EQ(t.cellule(1, 2).utile(), "b");
  EXPECT_TRUE(t.cellule(1, 3).vide());
}

TEST(EnregistrementTableau, UneCelluleEstCoupeeAQuatreVingtsCaracteres) {
  utl_01_type_tableau t(1, 1);
  t.cellule(1, 1) = std::string(100, 'x');
  EXPECT_EQ(t.cellule(1, 1).utile(), std::string(80, 'x'));
}

TEST(EnregistrementTableau, UnNombreNegatifNeDonneAucuneCellule) {
  const utl_01_type_tableau t(-1, 4);
  EXPECT_EQ(t.nb_lignes(), 0);
  EXPECT_TRUE(t.tableau.empty());
}

TEST(EnregistrementTableau, SetNeRangeQueCeQuiEstDonne) {
  utl_01_type_tableau t;
  utl_01_set_tableau(t,
                     {.opt_titre_tableau = "Titre"_l1, .opt_contour_tableau = 4, .opt_dim_alloc = {{2, 2}}});
  const std::array<texte<80>, 5> cellules = {"a", "b", "c", "d", "de trop"};
  utl_01_set_tableau(t, {.opt_tableau = cellules});
  EXPECT_EQ(t.titre_tableau.utile(), "Titre");
  EXPECT_EQ(t.contour_tableau, 4);
  EXPECT_EQ(t.cellule(2, 2).utile(), "d");
  EXPECT_EQ(t.tableau.size(), 4U);
  utl_01_set_tableau(t, {.opt_dim_alloc = {{1, 2}}});
  EXPECT_TRUE(t.cellule(1, 1).vide());
  EXPECT_EQ(t.titre_tableau.utile(), "Titre");
}

TEST(EnregistrementTableau, GetRendCeQuiEstDemande) {
  utl_01_type_tableau t(1, 2, 3);
  t.titre_tableau = "T";
  t.remplir_ligne(1, {"a", "b"});
  std::vector<texte<80>> cellules;
  texte<300> titre;
  int contour = 0;
  std::array<int, 2> dimensions{};
  utl_01_get_tableau(t, {.opt_tableau = &cellules});
  EXPECT_EQ(contour, 0);
  utl_01_get_tableau(
      t, {.opt_titre_tableau = &titre, .opt_contour_tableau = &contour, .opt_dim_alloc = &dimensions});
  EXPECT_EQ(cellules.size(), 2U);
  EXPECT_EQ(cellules[1].utile(), "b");
  EXPECT_EQ(titre.utile(), "T");
  EXPECT_EQ(contour, 3);
  EXPECT_THAT(dimensions, ElementsAre(1, 2));
}

TEST(EnregistrementTableau, LaCopieEstIndependante) {
  utl_01_type_tableau a(1, 1);
  a.cellule(1, 1) = "avant";
  utl_01_type_tableau b;
  utl_01_recopier_tableau(a, b);
  a.cellule(1, 1) = "apres";
  EXPECT_EQ(b.cellule(1, 1).utile(), "avant");
}

TEST(EnregistrementSommaire, SetPuisGetRendLesMemesValeurs) {
  utl_01_type_sommaire s;
  EXPECT_FALSE(s.tab_sommaire_initialise);
  utl_01_ini_sommaire(s);
  EXPECT_TRUE(s.tab_sommaire_initialise);
  const std::vector<signed char> niveaux = {1, 2};
  const std::vector<std::string> titres = {"A", "B"};
  const std::vector<std::string> numeros = {"1.", "1.1."};
  utl_01_set_sommaire(s, {.opt_taille_sommaire = 2,
                          .opt_tab_hierarchie_sommaire = niveaux,
                          .opt_tab_lib_sommaire = titres,
                          .opt_profondeur_sommaire = 2,
                          .opt_tab_numero_sommaire = numeros});
  EXPECT_TRUE(s.hierarchie(2, 2));
  EXPECT_FALSE(s.hierarchie(2, 1));
  int taille = 0;
  int profondeur = 0;
  bool initialise = false;
  std::vector<signed char> niveaux_lus;
  std::vector<std::string> titres_lus;
  std::vector<std::string> numeros_lus;
  utl_01_get_sommaire(s, {.opt_taille_sommaire = &taille,
                          .opt_tab_hierarchie_sommaire = &niveaux_lus,
                          .opt_tab_lib_sommaire = &titres_lus,
                          .opt_profondeur_sommaire = &profondeur,
                          .opt_tab_sommaire_initialise = &initialise,
                          .opt_tab_numero_sommaire = &numeros_lus});
  EXPECT_EQ(taille, 2);
  EXPECT_EQ(profondeur, 2);
  EXPECT_TRUE(initialise);
  EXPECT_EQ(niveaux_lus, niveaux);
  EXPECT_EQ(titres_lus, titres);
  EXPECT_EQ(numeros_lus, numeros);
}
