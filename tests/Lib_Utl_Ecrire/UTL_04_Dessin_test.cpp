// Drawings: the file, each primitive to the byte from coordinates worked out by hand, faults, graphs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "Notes_en_memoire.hpp"
#include "Svg_strict.hpp"
#include "UTL_04_Dessin.hpp"

using namespace socle;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr double infini = std::numeric_limits<double>::infinity();
const double pas_un_nombre = std::nan("");

// A window of 200 by 100 pixels on x from -1 to 3 and y from 0 to 10: 50 pixels per unit of x, 10 of y.
class Dessin : public Notes {
 public:
  Dessin(const Dessin&) = delete;
  Dessin& operator=(const Dessin&) = delete;
  ~Dessin() override { utl_04_reinitialiser(); }

 protected:
  Dessin() {
    utl_04_reinitialiser();
    utl_04_initialiser_fichier_dessin("Svg_e\\", "Svg_e\\", "d.svg");
    utl_04_initialise_svg({200, 100}, {-1, 3}, {0, 10});
  }
  /// What the drawing received since the last look.
  std::string svg() { return std::exchange(machine.fichiers["Svg_e/d.svg"], {}); }
  /// What an operation writes when axes, grid and legend are shown.
  template <class operation>
  std::string svg_de(const utl_04_options_svg& options, operation&& o) {
    utl_04_initialise_svg({200, 100}, {-1, 3}, {0, 10}, options);
    svg();
    o();
    return svg();
  }
};

std::string entier(const std::string& corps) {
  return "<?xml version='1.0' standalone='no'?>\n"
         "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' "
         "'http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd'>\n"
         "<svg height='100' width='200' preserveAspectRatio='xMidYMid meet' viewBox='0 0 200 100' "
         "xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' version='1.1'>\n" +
         corps + "</svg>\n";
}

}  // namespace

// ---- The file

TEST_F(Dessin, UnDessinVideALaTeteEtLaFin) {
  utl_04_entete_svg();
  utl_04_finaliser_svg();
  const std::string fichier = svg();
  EXPECT_EQ(fichier, entier("<rect x='0' y='0' width='200' height='100' fill=\"rgb(255,255,255)\" />\n"));
  EXPECT_THAT(fautes_svg(fichier), IsEmpty());
}

TEST_F(Dessin, LeFondPrendSaCouleurEtLaLegendeSaPlace) {
  utl_04_initialise_svg({200, 100}, {0, 1}, {0, 1},
                        {.opt_afficher_legende = true, .opt_taille_y_legende = 50});
  utl_04_entete_svg(utl_04_bleu_clair);
  EXPECT_THAT(svg(), HasSubstr("<svg height='150' width='200' preserveAspectRatio='xMidYMid meet' "
                               "viewBox='0 0 200 150' "));
  // Without legend nothing is kept for it.
  utl_04_initialise_svg({200, 100}, {0, 1}, {0, 1}, {.opt_taille_y_legende = 50});
  utl_04_entete_svg(utl_04_bleu_clair);
  EXPECT_THAT(svg(), HasSubstr("height='100' fill=\"rgb(153,204,255)\" />\n"));
}

TEST_F(Dessin, UnNomDeDessinEstUnSeulNomDeFichier) {
  EXPECT_EQ(utl_04_nom_fichier_dessin("POUTRE_1.svg"), "POUTRE_1.svg");
  EXPECT_EQ(utl_04_nom_fichier_dessin("../a\\b\tc_1.svg  "), ".._a_b_c_1.svg");
  EXPECT_EQ(utl_04_nom_fichier_dessin("Pile é_1.svg"_l1), std::string("Pile é_1.svg"_l1));
  const std::string long_nom = utl_04_nom_fichier_dessin(std::string(300, 'x') + "_12.svg");
  EXPECT_EQ(long_nom, std::string(233, 'x') + "_12.svg");
}

TEST_F(Dessin, LeFichierEstOuvertSousCeNomEtInclusDansLaNote) {
  utl_04_finaliser_svg();
  utl_04_initialiser_fichier_dessin("ici\\Svg_e\\", "Svg_e\\", "a/b 1.svg");
  utl_04_initialise_svg({200, 100}, {0, 1}, {0, 1},
                        {.opt_afficher_legende = true, .opt_taille_y_legende = 30});
  utl_04_finaliser_svg();
  EXPECT_EQ(machine.fichiers["ici/Svg_e/a_b 1.svg"], "</svg>\n");
  html();
  utl_04_inclure_dessin_html();
  EXPECT_THAT(html(), HasSubstr("<object data = 'Svg_e/a_b%201.svg' width  = '200'   height = '130' >"));
}

TEST_F(Dessin, UnFichierQuiNeSOuvrePasCompteCommeEcritureRefusee) {
  utl_04_finaliser_svg();
  machine.ouvertures_refusees.insert("Svg_e/x.svg");
  utl_04_initialiser_fichier_dessin("Svg_e\\", "Svg_e\\", "x.svg");
  utl_04_initialise_svg({200, 100}, {0, 1}, {0, 1});
  utl_04_entete_svg();
  utl_04_creer_ligne_svg({0, 0}, {1, 1});
  utl_04_finaliser_svg();
  EXPECT_EQ(machine.premier_echec(), "Svg_e\\x.svg");
  EXPECT_FALSE(machine.fichiers.contains("Svg_e/x.svg"));
  EXPECT_FALSE(utl_04.dessin_ouvert);
}

TEST_F(Dessin, UnSeulDessinEstOuvertALaFois) {
  EXPECT_EQ(statut_d_arret([] { utl_04_initialiser_fichier_dessin("", "", "e.svg"); }), 0);
  EXPECT_THAT(machine.texte_console,
              HasSubstr("UTL_04_Initialiser_Fichier_Dessin : un dessin est deja ouvert"));
}

// ---- Primitives. (0, 5) stands at (1 * 50, 5 * 10) = (50, 50), (2.5, 7.5) at (175, 25).

TEST_F(Dessin, UneLigne) {
  utl_04_creer_ligne_svg({0, 5}, {2.5, 7.5});
  EXPECT_EQ(svg(),
            "<line x1='50.000' y1='50.000' x2='175.000' y2='25.000' "
            "style='stroke:rgb(0,0,0);stroke-width:1.00' />\n");
  utl_04_creer_ligne_svg(
      {0.25, 5}, {1234.5678, -2},
      {.opt_couleur = utl_04_orange_fonce, .opt_largeur = 0.456, .opt_coordonnes_globales = true});
  EXPECT_EQ(svg(),
            "<line x1='0.250' y1='5.000' x2='1234.568' y2='-2.000' "
            "style='stroke:rgb(255,74,0);stroke-width:0.46' />\n");
}

TEST_F(Dessin, UnTexte) {
  utl_04_ecrire_texte_svg("E1  ", {0, 5}, {3, -4.5});
  EXPECT_EQ(svg(),
            "<text x='50.000' y='50.000' dx='3.000' dy='-4.500' font-family='sans-serif' font-size='10' "
            "font-weight='normal' stroke=\"rgb(0,0,0)\" stroke-width='0.1' fill=\"rgb(0,0,0)\">E1</text>\n");
  utl_04_ecrire_texte_svg("a", {12, 34}, {},
                          {.opt_coordonnes_globales = true,
                           .opt_couleur_trait = utl_04_rouge,
                           .opt_taille_police = 8,
                           .opt_epaisseur_police = "bold",
                           .opt_angle_degree = -90,
                           .opt_ancrage = utl_04_ancrage::milieu});
  EXPECT_EQ(svg(),
            "<text x='12.000' y='34.000' dx='0.000' dy='0.000' transform='rotate(-90.000 12.000 34.000)' "
            "text-anchor='middle' font-family='sans-serif' font-size='8' font-weight='bold' "
            "stroke=\"rgb(255,0,0)\" stroke-width='0.1' fill=\"rgb(255,0,0)\">a</text>\n");
  utl_04_ecrire_texte_svg("a", {0, 5}, {}, {.opt_ancrage = utl_04_ancrage::fin});
  EXPECT_THAT(svg(), HasSubstr(" text-anchor='end' "));
  utl_04_ecrire_texte_svg("   ", {0, 5}, {});
  EXPECT_EQ(svg(), "");
}

// A halo is the text itself under it, in white and wider.
TEST_F(Dessin, UnTexteAHalo) {
  utl_04_ecrire_texte_svg("1", {0, 5}, {}, {.opt_halo = true});
  const std::string place =
      "<text x='50.000' y='50.000' dx='0.000' dy='0.000' font-family='sans-serif' "
      "font-size='10' font-weight='normal' ";
  EXPECT_EQ(svg(), place +
                       "stroke=\"rgb(255,255,255)\" stroke-width='3' stroke-linejoin='round' "
                       "fill=\"rgb(255,255,255)\">1</text>\n" +
                       place + "stroke=\"rgb(0,0,0)\" stroke-width='0.1' fill=\"rgb(0,0,0)\">1</text>\n");
}

TEST_F(Dessin, UnTexteEstDuXmlQuelsQueSoientSesCaracteres) {
  utl_04_entete_svg();
  utl_04_ecrire_texte_svg("a<b>&'\" \x01\x7F é"_l1, {0, 5}, {});
  utl_04_finaliser_svg();
  const std::string fichier = svg();
  EXPECT_THAT(fichier, HasSubstr(">a&#60;b&#62;&#38;'\"    &#233;</text>"));
  EXPECT_THAT(fautes_svg(fichier), IsEmpty());
}

TEST_F(Dessin, UnChemin) {
  const std::array<utl_04_point, 3> points{{{-1, 0}, {3, 0}, {1, 10}}};
  utl_04_creer_chemin_svg(points);
  EXPECT_EQ(svg(),
            "<path d='M0.000 100.000 L200.000 100.000 L100.000 0.000' fill=\"none\" "
            "stroke=\"rgb(0,0,0)\" stroke-width='1.00' />\n");
  utl_04_creer_chemin_svg(points, {.opt_couleur_fond = utl_04_gris_0_25,
                                   .opt_couleur_trait = utl_04_bleu,
                                   .opt_largeur = 2,
                                   .opt_ferme = true,
                                   .opt_pointilles = "4,2",
                                   .opt_opacite = 0.5,
                                   .opt_coordonnes_globales = true});
  EXPECT_EQ(svg(),
            "<path d='M-1.000 0.000 L3.000 0.000 L1.000 10.000 Z' fill=\"rgb(192,192,192)\" "
            "stroke=\"rgb(0,0,255)\" stroke-width='2.00' stroke-dasharray='4,2' stroke-opacity='0.50' />\n");
  utl_04_creer_chemin_svg(std::span(points).first(1));
  utl_04_creer_chemin_svg({});
  EXPECT_EQ(svg(), "");
}

TEST_F(Dessin, UnCercle) {
  utl_04_creer_cercle_svg({0, 5}, 0.5);
  EXPECT_EQ(svg(),
            "<circle cx='50.000' cy='50.000' r='25.000' fill=\"none\" stroke=\"rgb(0,0,0)\" "
            "stroke-width='1.00' />\n");
  utl_04_creer_cercle_svg(
      {0, 5}, 0.001,
      {.opt_couleur_fond = utl_04_rouge, .opt_couleur_trait = utl_04_rouge, .opt_rayon_min = 2});
  EXPECT_EQ(svg(),
            "<circle cx='50.000' cy='50.000' r='2.000' fill=\"rgb(255,0,0)\" stroke=\"rgb(255,0,0)\" "
            "stroke-width='1.00' />\n");
  utl_04_creer_cercle_svg({7, 8}, 3, {.opt_coordonnes_globales = true});
  EXPECT_THAT(svg(), HasSubstr("<circle cx='7.000' cy='8.000' r='3.000' "));
}

// From (50, 50) to (50, 20) in the window: the head has its foot at y = 30 and is 6 wide.
TEST_F(Dessin, UneFleche) {
  utl_04_ecrire_fleche_svg({0, 5}, {0, 8}, {.opt_couleur = utl_04_bleu});
  EXPECT_EQ(svg(),
            "<line x1='50.000' y1='50.000' x2='50.000' y2='20.000' "
            "style='stroke:rgb(0,0,255);stroke-width:1.00' />\n"
            "<path d='M50.000 20.000 L53.000 30.000 L47.000 30.000 Z' fill=\"rgb(0,0,255)\" "
            "stroke=\"rgb(0,0,255)\" stroke-width='0.00' />\n");
  utl_04_ecrire_fleche_svg({0, 5}, {0, 5});
  EXPECT_THAT(svg(), Not(HasSubstr("<path")));
}

// ---- Numbers

TEST_F(Dessin, UnNombreQuiNEnEstPasUnNeSEcritPas) {
  for (const double v : {pas_un_nombre, infini, -infini}) {
    utl_04_creer_ligne_svg({v, 0}, {1, 1});
    utl_04_creer_ligne_svg({0, 0}, {1, v});
    utl_04_creer_ligne_svg({0, 0}, {1, 1}, {.opt_largeur = v});
    utl_04_ecrire_texte_svg("a", {v, 1}, {});
    utl_04_ecrire_texte_svg("a", {1, 1}, {0, v});
    utl_04_ecrire_texte_svg("a", {1, 1}, {}, {.opt_angle_degree = v});
    utl_04_creer_cercle_svg({0, v}, 1);
    utl_04_creer_cercle_svg({0, 0}, v, {.opt_coordonnes_globales = true});
    utl_04_ecrire_fleche_svg({0, 0}, {v, 0});
    utl_04_creer_chemin_svg(std::array<utl_04_point, 2>{{{0, 0}, {v, 1}}});
  }
  utl_04_creer_cercle_svg({0, 0}, -1);
  EXPECT_EQ(svg(), "");
  utl_04_creer_chemin_svg(std::array<utl_04_point, 3>{{{0, 0}, {infini, 1}, {0, 5}}});
  EXPECT_THAT(svg(), HasSubstr("d='M50.000 100.000 L50.000 50.000'"));
}

TEST_F(Dessin, CeQuiEstTropLoinResteANombreLisible) {
  utl_04_creer_ligne_svg({-1e300, 1e9}, {1e300, -1e30}, {.opt_largeur = 1e9});
  EXPECT_EQ(svg(),
            "<line x1='-1000000.000' y1='-1000000.000' x2='1000000.000' y2='1000000.000' "
            "style='stroke:rgb(0,0,0);stroke-width:1000000.00' />\n");
  utl_04_creer_ligne_svg({-1.0000001, 10}, {-1, 10.00001}, {.opt_largeur = -3});
  EXPECT_EQ(svg(),
            "<line x1='0.000' y1='0.000' x2='0.000' y2='0.000' "
            "style='stroke:rgb(0,0,0);stroke-width:0.00' />\n");
}

TEST_F(Dessin, UneEtendueSansLongueurDevientUneUnite) {
  const std::vector<std::pair<std::array<double, 2>, std::array<double, 2>>> cas = {
      {{2, 2}, {1.5, 2.5}},
      {{5, 1}, {4.5, 5.5}},
      {{infini, -infini}, {-0.5, 0.5}},
      {{pas_un_nombre, 1}, {-0.5, 0.5}}};
  for (const auto& [donnee, attendue] : cas) {
    utl_04_initialise_svg({100, 100}, donnee, donnee);
    EXPECT_EQ(utl_04.glb_x_min_max, attendue);
    EXPECT_EQ(utl_04.glb_y_min_max, attendue);
  }
  // Beyond the doubles: nothing is drawn, nothing is wrong.
  utl_04_initialise_svg({100, 100}, {-1.7e308, 1.7e308}, {0, 5e-324});
  utl_04_creer_ligne_svg({0, 0}, {1, 1});
  EXPECT_THAT(fautes_svg(entier(svg())), IsEmpty());
}

// ---- Colours

TEST_F(Dessin, UneCouleurHorsDe0A255EstUneFaute) {
  const utl_04_couleur trop{0, 256, 0};
  const utl_04_couleur peu{0, 0, -1};
  const std::array<utl_04_point, 2> points{{{0, 0}, {1, 1}}};
  const auto faute = [&](auto&& operation) {
    machine.texte_console.clear();
    EXPECT_EQ(statut_d_arret(operation), 0);
    return machine.texte_console;
  };
  EXPECT_THAT(faute([&] {
                utl_04_creer_ligne_svg({0, 0}, {1, 1}, {.opt_couleur = trop});
              }),
              HasSubstr("UTL_04_Creer_Ligne_SVG : couleur incorrecte\n"));
  EXPECT_THAT(faute([&] {
                utl_04_ecrire_texte_svg("a", {0, 0}, {}, {.opt_couleur_trait = peu});
              }),
              HasSubstr("UTL_04_Ecrire_Texte_SVG : couleur incorrecte\n"));
  EXPECT_THAT(faute([&] {
                utl_04_creer_chemin_svg(points, {.opt_couleur_trait = {300, 0, 0}});
              }),
              HasSubstr("UTL_04_Creer_Chemin_SVG : couleur incorrecte\n"));
  EXPECT_THAT(faute([&] { utl_04_creer_chemin_svg(points, {.opt_couleur_fond = peu}); }),
              HasSubstr("UTL_04_Creer_Chemin_SVG : couleur incorrecte\n"));
  EXPECT_THAT(faute([&] {
                utl_04_creer_cercle_svg({0, 0}, 1, {.opt_couleur_fond = trop});
              }),
              HasSubstr("UTL_04_Creer_Cercle_SVG : couleur incorrecte\n"));
  EXPECT_EQ(svg(), "");
  EXPECT_EQ(statut_d_arret([&] {
              utl_04_creer_ligne_svg({0, 0}, {1, 1}, {.opt_couleur = {255, 0, 255}});
            }),
            std::nullopt);
}

TEST_F(Dessin, OrdreDesCouleursDUnGraphe) {
  std::array<utl_04_couleur, utl_04_nb_series_max> c{};
  utl_04_couleurs_graphe_svg(c);
  const std::vector<utl_04_couleur> debut = {
      {0, 0, 255},   {255, 0, 0},     {153, 204, 255}, {255, 105, 105}, {0, 255, 0},
      {153, 204, 0}, {204, 153, 255}, {128, 0, 128},   {128, 128, 128}, {0, 0, 0},
      {0, 0, 255},   {0, 204, 255},   {255, 153, 0},   {255, 74, 0},    {153, 204, 0},
      {168, 78, 20}, {255, 153, 204}, {255, 153, 204}, {192, 192, 192}};
  EXPECT_THAT(std::vector<utl_04_couleur>(c.begin(), c.begin() + 19), debut);
  for (const utl_04_couleur& couleur : c) EXPECT_NE(couleur, utl_04_svg_couleur_fond);
}

// ---- Scale, axes, grid, legend

TEST_F(Dessin, EchellePasEtFenetre) {
  utl_04_point echelle;
  utl_04_echelle_svg(echelle);
  EXPECT_EQ(echelle.x, 50);
  EXPECT_EQ(echelle.y, 10);
  const std::vector<std::pair<double, double>> pas = {
      {10, 1},       {10.1, 2},     {20, 2},      {20.01, 5}, {50, 5}, {50.1, 10},  {0.72, 0.1},
      {0.01, 0.001}, {1e-9, 1e-10}, {3e20, 5e19}, {0, 1},     {-1, 1}, {infini, 1}, {pas_un_nombre, 1}};
  for (const auto& [longueur, attendu] : pas)
    EXPECT_DOUBLE_EQ(utl_04_pas_grille(longueur), attendu) << longueur;

  // 0.36 by 0.72: 300 by 600 pixels; 1.0 by 0.333: 600 by 200 and not 199.8; 1 by 0.01: 50 at least.
  std::array<double, 2> x{-0.18, 0.18};
  std::array<double, 2> y{-0.36, 0.36};
  EXPECT_EQ(utl_04_fenetre_proportionnee(600, x, y), (std::array{300, 600}));
  x = {0, 1};
  y = {0, 0.333};
  EXPECT_EQ(utl_04_fenetre_proportionnee(600, x, y), (std::array{600, 200}));
  EXPECT_NEAR(y[0], 0.1665 - 1.0 / 6, 1e-15);
  EXPECT_NEAR(y[1], 0.1665 + 1.0 / 6, 1e-15);
  y = {2, 2.01};
  EXPECT_EQ(utl_04_fenetre_proportionnee(600, x, y), (std::array{600, 50}));
  EXPECT_NEAR(y[1] - y[0], 50.0 / 600, 1e-15);
  EXPECT_NEAR(y[0] + y[1], 4.01, 1e-15);
}

// Steps of 1 and 2: lines at x = -1, 0, 1, 2, 3 and y = 0, 2, 4, 6, 8, 10.
TEST_F(Dessin, LaGrille) {
  const auto grille = svg_de({.opt_dx_grille = 1, .opt_dy_grille = 2, .opt_afficher_grille = true},
                             [] { utl_04_afficher_grille_svg(); });
  std::string attendue;
  for (const std::string x : {"0.000", "50.000", "100.000", "150.000", "200.000"})
    attendue += "<line x1='" + x + "' y1='0.000' x2='" + x +
                "' y2='100.000' style='stroke:rgb(192,192,192);stroke-width:0.50' />\n";
  for (const std::string y : {"100.000", "80.000", "60.000", "40.000", "20.000", "0.000"})
    attendue += "<line x1='0.000' y1='" + y + "' x2='200.000' y2='" + y +
                "' style='stroke:rgb(192,192,192);stroke-width:0.50' />\n";
  EXPECT_EQ(grille, attendue);
  EXPECT_EQ(svg_de({.opt_dx_grille = 1}, [] { utl_04_afficher_grille_svg(); }), "");
}

// A step that is not above 0, or far too small, gives a sound grid all the same.
TEST_F(Dessin, UnPasImpossibleEstRemplace) {
  for (const double pas : {0.0, -1.0, 1e-9, infini, -infini, pas_un_nombre, 5e-324}) {
    const auto grille = svg_de({.opt_dx_grille = pas, .opt_dy_grille = pas, .opt_afficher_grille = true},
                               [] { utl_04_afficher_grille_svg(); });
    EXPECT_LT(grille.size(), 4000U) << pas;
    EXPECT_THAT(grille, HasSubstr("<line")) << pas;
  }
  utl_04_initialise_svg({100, 100}, {1e20, 1e20 + 1e5}, {1e9, 1e9 + 1}, {.opt_afficher_grille = true});
  utl_04_afficher_grille_svg();
  EXPECT_LT(svg().size(), 4000U);
}

// On y from -10 to 10 the axis stands at 50.
TEST_F(Dessin, LAxeX) {
  utl_04_initialise_svg({200, 100}, {-1, 3}, {-10, 10},
                        {.opt_dx_grille = 1, .opt_afficher_axex = true, .opt_label_axe_x = "y"});
  utl_04_afficher_axex_svg();
  const std::string axe = svg();
  EXPECT_THAT(axe, HasSubstr("<line x1='0.000' y1='50.000' x2='200.000' y2='50.000' "));
  EXPECT_THAT(axe, HasSubstr("<path d='M200.000 50.000 L190.000 53.000 L190.000 47.000 Z' "));
  // Ticks 4 pixels on either side; none under the arrow's head at x = 3.
  for (const std::string x : {"0.000", "50.000", "100.000", "150.000"})
    EXPECT_THAT(axe, HasSubstr("<line x1='" + x + "' y1='46.000' x2='" + x + "' y2='54.000' "));
  EXPECT_THAT(axe, Not(HasSubstr("x1='200.000' y1='46.000'")));
  // Values 4 + 10 pixels below; that of -1 would leave the window.
  for (const std::string v : {"50.000' y='64.000'", "100.000' y='64.000'", "150.000' y='64.000'"})
    EXPECT_THAT(axe, HasSubstr("<text x='" + v));
  for (const std::string v : {">0.000<", ">1.000<", ">2.000<"}) EXPECT_THAT(axe, HasSubstr(v));
  EXPECT_THAT(axe, Not(HasSubstr(">-1.000<")));
  EXPECT_THAT(axe, Not(HasSubstr(">3.000<")));
  EXPECT_THAT(axe, HasSubstr("<text x='196.000' y='44.000' dx='0.000' dy='0.000' text-anchor='end' "));
  EXPECT_THAT(axe, HasSubstr(">y</text>"));
}

TEST_F(Dessin, LAxeY) {
  utl_04_initialise_svg({200, 100}, {-2, 2}, {-10, 10},
                        {.opt_dy_grille = 5, .opt_afficher_axey = true, .opt_label_axe_y = "z"});
  utl_04_afficher_axey_svg();
  const std::string axe = svg();
  EXPECT_THAT(axe, HasSubstr("<line x1='100.000' y1='100.000' x2='100.000' y2='0.000' "));
  for (const std::string y : {"100.000", "75.000", "50.000", "25.000"})
    EXPECT_THAT(axe, HasSubstr("<line x1='96.000' y1='" + y + "' x2='104.000' y2='" + y + "' "));
  EXPECT_THAT(axe, HasSubstr("<text x='92.000' y='78.333' dx='0.000' dy='0.000' text-anchor='end' "));
  EXPECT_THAT(axe, HasSubstr(">-5.000<"));
  EXPECT_THAT(axe, HasSubstr(">0.000<"));
  EXPECT_THAT(axe, HasSubstr(">5.000<"));
  EXPECT_THAT(axe, Not(HasSubstr("10.000<")));
  EXPECT_THAT(axe, HasSubstr("<text x='108.000' y='10.000' "));
}

// An axis along the upper edge, as that of a tee: y = 40 of 400. Values above it, the label below. About the
// middle they stay below, on whichever side of it rounding puts the axis.
TEST_F(Dessin, LesValeursDUnAxeExcentreSontDuCoteDuBord) {
  const auto axe = [&](double z_max) {
    utl_04_initialise_svg({200, 400}, {-1, 3}, {z_max - 10, z_max},
                          {.opt_dx_grille = 1, .opt_afficher_axex = true, .opt_label_axe_x = "y"});
    svg();
    utl_04_afficher_axex_svg();
    return svg();
  };
  EXPECT_THAT(axe(1), HasSubstr("<text x='100.000' y='34.000' "));
  EXPECT_THAT(axe(1), HasSubstr("<text x='196.000' y='54.000' "));
  EXPECT_THAT(axe(4.999999), HasSubstr("<text x='100.000' y='214.000' "));
  EXPECT_THAT(axe(5.000001), HasSubstr("<text x='100.000' y='214.000' "));
}

TEST_F(Dessin, LesAxesNeSontTracesQueSIlsSontDemandes) {
  const auto axes = [] {
    utl_04_afficher_axex_svg("u");
    utl_04_afficher_axey_svg("v");
    utl_04_afficher_legende_svg();
  };
  EXPECT_EQ(svg_de({}, axes), "");
  const std::string deux = svg_de({.opt_afficher_axex = true, .opt_afficher_axey = true}, axes);
  EXPECT_THAT(deux, HasSubstr(">u</text>"));
  EXPECT_THAT(deux, HasSubstr(">v</text>"));
}

// Both axes: one value at the origin, no text on another, whatever the place of the origin.
TEST_F(Dessin, LesValeursDesAxesNeSeCouvrentPas) {
  using etendue = std::array<double, 2>;
  for (const etendue& x :
       {etendue{-1, 3}, etendue{0, 4}, etendue{-4, 0}, etendue{5, 9}, etendue{-9, -5}, etendue{-0.01, 4}}) {
    for (const etendue& y :
         {etendue{-1, 3}, etendue{0, 4}, etendue{-4, 0}, etendue{5, 9}, etendue{-9, -5}, etendue{-4, 0.01}}) {
      utl_04_initialise_svg({600, 400}, x, y,
                            {.opt_afficher_axex = true,
                             .opt_afficher_axey = true,
                             .opt_label_axe_x = "My",
                             .opt_label_axe_y = "N"});
      svg();
      utl_04_entete_svg();
      utl_04_afficher_axex_svg();
      utl_04_afficher_axey_svg();
      const std::string dessin = svg() + "</svg>\n";
      EXPECT_THAT(fautes_svg(dessin), IsEmpty());
      EXPECT_THAT(textes_genes(dessin), IsEmpty()) << x[0] << " " << y[0];
      EXPECT_THAT(dessin, HasSubstr(">My<"));
      EXPECT_THAT(dessin, HasSubstr(">N<"));
    }
  }
}

// A value that the format can't hold, or that it rounds to its neighbour, takes its shortest form.
TEST_F(Dessin, UneValeurQueLeFormatNeTientPasSEcritAutrement) {
  const auto valeurs = [&](double pas, const std::array<double, 2>& x, vue_l1 fmt) {
    utl_04_initialise_svg({2000, 100}, x, {-1, 1},
                          {.opt_dx_grille = pas, .opt_afficher_axex = true, .opt_fmt_valeurs_x = fmt});
    svg();
    utl_04_afficher_axex_svg();
    return svg();
  };
  EXPECT_THAT(valeurs(5000, {0, 20000}, "(F8.3)"), AllOf(HasSubstr(">5000<"), Not(HasSubstr(">5000.000<"))));
  EXPECT_THAT(valeurs(500, {0, 2000}, "(F8.3)"), HasSubstr(">1500.000<"));
  EXPECT_THAT(valeurs(5000, {0, 20000}, "(F8.3)"), HasSubstr(">10000<"));
  EXPECT_THAT(valeurs(1e7, {0, 5e7}, "(F8.3)"), HasSubstr(">1e+07<"));
  EXPECT_THAT(valeurs(0.0005, {0, 0.002}, "(F8.3)"), HasSubstr(">0.0005<"));
  EXPECT_THAT(valeurs(0.5, {0, 2}, "(F8.1)"), HasSubstr(">0.5<"));
  EXPECT_THAT(valeurs(0.5, {0, 2}, "n'importe quoi"), HasSubstr(">1.5<"));
}

// ---- Graphs

class Graphe : public Dessin {
 protected:
  /// The same closed curve as an interaction diagram: an ellipse about (0.2, 3), 0.5 by 6, 101 points.
  static std::vector<utl_04_point> courbe() {
    std::vector<utl_04_point> points;
    for (int i = 0; i <= 100; ++i) {
      const double t = 2 * std::acos(-1.0) * (i % 100) / 100;
      points.push_back({0.2 + 0.5 * std::cos(t), 3 + 6 * std::sin(t)});
    }
    return points;
  }
};

// Extent of the curve -0.3 to 0.7 and -3 to 9, with a margin of 8 %: -0.38 to 0.78, -3.96 to 9.96. In 800 by
// 600 pixels (0.7, 3) stands at x = 800 x 1.08 / 1.16 = 744.828, y = 600 x 6.96 / 13.92 = 300.
TEST_F(Graphe, UneCourbeFermeeAvecAxesGrilleEtLegende) {
  const std::vector<utl_04_point> points = courbe();
  const utl_04_serie serie{points, "Poutre : N/My é"_l1};
  html();
  utl_04_ecrire_graphique_svg({&serie, 1}, {.opt_label_axe_x = "My", .opt_label_axe_y = "N"});
  const std::string dessin = svg();
  EXPECT_THAT(fautes_svg(dessin), IsEmpty());
  EXPECT_THAT(textes_genes(dessin), IsEmpty());
  EXPECT_THAT(dessin, HasSubstr("<svg height='650' width='800' "));
  const std::vector<element_svg> elements = elements_svg(dessin);
  std::vector<element_svg> courbes;
  for (const element_svg& e : elements)
    if (e.nom == "path" && e.attributs.at("stroke") == "rgb(0,0,255)") courbes.push_back(e);
  ASSERT_EQ(courbes.size(), 1U);
  const std::string d = courbes[0].attributs.at("d");
  EXPECT_TRUE(d.starts_with("M744.828 300.000 L")) << d;
  EXPECT_TRUE(d.ends_with(" L744.828 300.000")) << d;
  EXPECT_EQ(std::count(d.begin(), d.end(), 'L'), 100);
  EXPECT_THAT(dessin, HasSubstr(">Poutre : N/My &#233;</text>"));
  EXPECT_THAT(html(), HasSubstr("<object data = 'Svg_e/d.svg' width  = '800'   height = '650' >"));
  EXPECT_FALSE(utl_04.dessin_ouvert);
}

TEST_F(Graphe, LeGrapheEditeResteOuvertPourDesCroix) {
  const std::vector<utl_04_point> points = courbe();
  const utl_04_serie serie{points, "Diagramme"};
  utl_04_editer_graphique_svg({&serie, 1}, {.opt_label_axe_x = "My", .opt_label_axe_y = "N"});
  EXPECT_TRUE(utl_04.dessin_ouvert);
  EXPECT_THAT(svg(), Not(HasSubstr("</svg>")));
  // (0.2, 3) is the middle of the window.
  utl_04_creer_ligne_svg({0.2, 3}, {0.2, 9.96}, {.opt_couleur = utl_04_rouge});
  EXPECT_EQ(svg(),
            "<line x1='400.000' y1='300.000' x2='400.000' y2='0.000' "
            "style='stroke:rgb(255,0,0);stroke-width:1.00' />\n");
  utl_04_finaliser_svg();
  EXPECT_EQ(svg(), "</svg>\n");
}

TEST_F(Graphe, LEtendueTientAussiLesPointsVisibles) {
  const std::vector<utl_04_point> points = courbe();
  const utl_04_serie serie{points, "Diagramme"};
  const utl_04_point loin{2.7, -15};
  utl_04_editer_graphique_svg({&serie, 1}, {.opt_points_visibles = {&loin, 1}});
  EXPECT_NEAR(utl_04.glb_x_min_max[1], 2.7 + 0.08 * 3, 1e-12);
  EXPECT_NEAR(utl_04.glb_y_min_max[0], -15 - 0.08 * 24, 1e-12);
}

TEST_F(Graphe, UneEchellePourLesDeuxDirections) {
  const std::array<utl_04_point, 2> points{{{0, 0}, {1, 10}}};
  const utl_04_serie serie{points, "s"};
  utl_04_editer_graphique_svg({&serie, 1}, {.opt_proportionnel = true});
  utl_04_point echelle;
  utl_04_echelle_svg(echelle);
  EXPECT_NEAR(echelle.x, echelle.y, 1e-9);
  EXPECT_NEAR(utl_04.glb_x_min_max[0] + utl_04.glb_x_min_max[1], 1, 1e-9);
  EXPECT_NEAR(utl_04.glb_y_min_max[1], 10.8, 1e-9);
}

TEST_F(Graphe, LaLegendeATrenteLignes) {
  const std::array<utl_04_point, 2> points{{{0, 0}, {1, 1}}};
  const std::string longue(100, 'm');
  const std::vector<utl_04_serie> series(33, {points, longue});
  utl_04_editer_graphique_svg(series, {.opt_taille_fenetre = {600, 400}});
  EXPECT_EQ(utl_04.glb_nb_series, 30);
  utl_04_finaliser_svg();
  const std::string dessin = svg();
  EXPECT_THAT(fautes_svg(dessin), IsEmpty());
  EXPECT_THAT(textes_genes(dessin), IsEmpty());
  std::size_t lignes = 0;
  for (const boite& b : boites_textes(dessin)) lignes += b.texte == std::string(80, 'm') ? 1U : 0U;
  EXPECT_EQ(lignes, 30U);
  std::size_t courbes = 0;
  for (const element_svg& e : elements_svg(dessin)) courbes += e.nom == "path" ? 1U : 0U;
  EXPECT_EQ(courbes, 33U + 2U);  // and the heads of two axes
}

TEST_F(Graphe, SansPointOuAvecUnSeulLeGrapheEstSain) {
  const std::array<utl_04_point, 1> seul{{{5, -3}}};
  const std::array<utl_04_point, 2> faux{{{pas_un_nombre, 0}, {infini, 1}}};
  const std::array<utl_04_point, 2> immense{{{-1e308, 0}, {1e308, 1e-300}}};
  const std::vector<std::vector<utl_04_serie>> cas = {
      {}, {{{}, "vide"}}, {{seul, "seul"}}, {{faux, "faux"}}, {{immense, "immense"}}};
  for (const auto& series : cas) {
    utl_04_editer_graphique_svg(series);
    utl_04_finaliser_svg();
    const std::string dessin = svg();
    EXPECT_THAT(fautes_svg(dessin), IsEmpty());
    EXPECT_THAT(textes_genes(dessin), IsEmpty());
    utl_04_initialiser_fichier_dessin("Svg_e\\", "Svg_e\\", "d.svg");
  }
}
