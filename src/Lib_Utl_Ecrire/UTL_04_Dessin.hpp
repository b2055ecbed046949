// SVG drawings: one file each, in the directory of the run's drawings, one open at a time.
//
// A drawing is opened (utl_04_initialiser_fichier_dessin), given its window and its extent
// (utl_04_initialise_svg), headed (utl_04_entete_svg), filled by primitives in the order in which they cover
// one another, and closed (utl_04_finaliser_svg). A graph does the steps between opening and closing by
// itself.
//
// User coordinates: x to the right, y upwards, in the caller's unit. Window coordinates, "globales": pixels
// from the upper left corner, y downwards. A primitive with a number that is not finite is left out, and what
// lies beyond a million pixels is brought back there: the file holds sound numbers whatever the data.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "Systeme.hpp"
#include "Texte.hpp"
#include "UTL_04_Couleurs.hpp"

/// A point, or two lengths along x and y.
struct utl_04_point {
  double x = 0, y = 0;
};

inline constexpr int utl_04_taille_y_legende_defaut = 50;  // pixels

/// State of the open drawing.
struct utl_04_t {
  std::unique_ptr<socle::sortie> glb_unit_html_svg;  // null: no drawing is open, or its file can't be written
  bool dessin_ouvert = false;
  std::string lien;                         // of the file, relative to the note
  std::array<int, 2> glb_taille_fenetre{};  // pixels in x and y, the legend aside
  std::array<double, 2> glb_x_min_max{};    // extent in user coordinates
  std::array<double, 2> glb_y_min_max{};
  double glb_dx_grille = 0;  // steps of ticks and of the grid
  double glb_dy_grille = 0;
  bool glb_afficher_grille = false;
  bool glb_afficher_legende = false;
  bool glb_afficher_axex = false;
  bool glb_afficher_axey = false;
  int glb_taille_y_legende = utl_04_taille_y_legende_defaut;  // pixels under the window
  socle::texte<20> glb_fmt_valeurs_x = "(F8.3)";
  socle::texte<20> glb_fmt_valeurs_y = "(F8.3)";
  socle::texte<5> glb_label_axe_x;
  socle::texte<5> glb_label_axe_y;
  int glb_nb_series = 0;
  std::array<socle::texte<80>, utl_04_nb_series_max> glb_tab_legende;
  std::array<utl_04_couleur, utl_04_nb_series_max> glb_tab_couleur_legende{};
};
extern utl_04_t utl_04;
void utl_04_reinitialiser();

// ---- The file

/// Name of a drawing as one file name: a separator of directories or a control code becomes "_", and a name
/// that file systems refuse for its length loses its middle. The ending, which makes names differ, stays.
std::string utl_04_nom_fichier_dessin(socle::vue_l1 nom);

/// Opens the drawing's file, in place of an older one. `repertoire` is the path of the drawings' directory
/// with its final separator, `repertoire_lien` the same relative to the note. A file that can't be opened
/// counts as a failed write, and the drawing goes nowhere. A drawing that is still open is an internal fault.
void utl_04_initialiser_fichier_dessin(socle::vue_l1 repertoire, socle::vue_l1 repertoire_lien,
                                       socle::vue_l1 nom);

/// Includes the open drawing in the HTML note, at the size of its window and legend.
void utl_04_inclure_dessin_html();

struct utl_04_options_svg {
  std::optional<double> opt_dx_grille = {};  // not given: utl_04_pas_grille of the extent
  std::optional<double> opt_dy_grille = {};
  bool opt_afficher_grille = false;
  bool opt_afficher_legende = false;
  int opt_taille_y_legende = utl_04_taille_y_legende_defaut;  // without legend no pixel is kept for it
  bool opt_afficher_axex = false;
  bool opt_afficher_axey = false;
  socle::vue_l1 opt_fmt_valeurs_x = "(F8.3)";
  socle::vue_l1 opt_fmt_valeurs_y = "(F8.3)";
  socle::vue_l1 opt_label_axe_x = "";
  socle::vue_l1 opt_label_axe_y = "";
};
/// Window and extent of the drawing. An extent without length becomes one unit about its place.
void utl_04_initialise_svg(const std::array<int, 2>& taille_fenetre, const std::array<double, 2>& x_min_max,
                           const std::array<double, 2>& y_min_max, const utl_04_options_svg& options = {});

/// Head of the file, and the background.
void utl_04_entete_svg(const utl_04_couleur& opt_couleur_fond = utl_04_svg_couleur_fond);

/// End of the file, which is closed.
void utl_04_finaliser_svg();

// ---- Scale

/// Pixels per unit of x and of y.
void utl_04_echelle_svg(utl_04_point& echelle);

/// Window of an extent at one scale for both directions: the greater length takes `cote` pixels, the other
/// its proportion, rounded, 50 at least; the extent of this other one becomes that of its pixels, about its
/// middle.
std::array<int, 2> utl_04_fenetre_proportionnee(int cote, std::array<double, 2>& x_min_max,
                                                std::array<double, 2>& y_min_max);

/// The smallest of 1, 2, 5 times a power of ten that is not below a tenth of the length; 1 for a length that
/// is not above 0.
double utl_04_pas_grille(double longueur);

// ---- Primitives. A part of a colour outside of 0 to 255 is an internal fault: message on the console, end
// of the run.

struct utl_04_options_ligne {
  utl_04_couleur opt_couleur = utl_04_noir;
  double opt_largeur = 1;  // pixels
  bool opt_coordonnes_globales = false;
};
void utl_04_creer_ligne_svg(const utl_04_point& xa, const utl_04_point& xb,
                            const utl_04_options_ligne& options = {});

enum class utl_04_ancrage { debut, milieu, fin };

struct utl_04_options_texte {
  bool opt_coordonnes_globales = false;
  utl_04_couleur opt_couleur_trait = utl_04_noir;
  int opt_taille_police = 10;                     // pixels
  socle::vue_l1 opt_epaisseur_police = "normal";  // "normal" or "bold"
  double opt_angle_degree = 0;                    // clockwise, about the point
  utl_04_ancrage opt_ancrage = utl_04_ancrage::debut;
  bool opt_halo = false;  // on a white rim, so that lines under the text don't hide it
};
/// A text at a point, moved by delta (pixels, y downwards): Latin-1, without its blanks at the end.
void utl_04_ecrire_texte_svg(socle::vue_l1 texte, const utl_04_point& x, const utl_04_point& delta,
                             const utl_04_options_texte& options = {});

struct utl_04_options_chemin {
  std::optional<utl_04_couleur> opt_couleur_fond = {};  // not given: no fill
  utl_04_couleur opt_couleur_trait = utl_04_noir;
  double opt_largeur = 1;                  // pixels
  bool opt_ferme = false;                  // a last side back to the first point
  socle::vue_l1 opt_pointilles = "";       // lengths of dashes and gaps in pixels: "4,2"
  std::optional<double> opt_opacite = {};  // of the outline, from 0 to 1
  bool opt_coordonnes_globales = false;
};
/// A line through the points. Fewer than two give nothing.
void utl_04_creer_chemin_svg(std::span<const utl_04_point> points, const utl_04_options_chemin& options = {});

struct utl_04_options_cercle {
  std::optional<utl_04_couleur> opt_couleur_fond = {};  // not given: no fill
  utl_04_couleur opt_couleur_trait = utl_04_noir;
  double opt_largeur = 1;    // pixels
  double opt_rayon_min = 0;  // pixels
  bool opt_coordonnes_globales = false;
};
/// A circle; its radius is a length of x.
void utl_04_creer_cercle_svg(const utl_04_point& centre, double rayon,
                             const utl_04_options_cercle& options = {});

/// A line with a filled head of 10 by 6 pixels at its end.
void utl_04_ecrire_fleche_svg(const utl_04_point& origine, const utl_04_point& extremite,
                              const utl_04_options_ligne& options = {});

// ---- Axes, grid, legend: each is drawn only if the drawing shows it (utl_04_options_svg).

/// The axis y = 0, or the edge of the window that is nearest to it: arrow, label, ticks and their values.
void utl_04_afficher_axex_svg(socle::vue_l1 opt_label = "", int opt_taille_police = 10,
                              socle::vue_l1 opt_epaisseur_police = "normal");
/// The axis x = 0. The value at the origin is the other axis's if both are shown.
void utl_04_afficher_axey_svg(socle::vue_l1 opt_label = "", int opt_taille_police = 10,
                              socle::vue_l1 opt_epaisseur_police = "normal");
void utl_04_afficher_grille_svg();
/// One line for each series, under the window.
void utl_04_afficher_legende_svg();

// ---- Graphs, in a drawing whose file is open

struct utl_04_serie {
  std::span<const utl_04_point> points;  // joined in their order
  socle::vue_l1 legende = "";
};

struct utl_04_options_graphique {
  std::array<int, 2> opt_taille_fenetre{800, 600};
  bool opt_proportionnel = false;  // one scale for both directions
  socle::vue_l1 opt_label_axe_x = "x";
  socle::vue_l1 opt_label_axe_y = "y";
  socle::vue_l1 opt_fmt_valeurs_x = "(F8.3)";
  socle::vue_l1 opt_fmt_valeurs_y = "(F8.3)";
  std::span<const utl_04_point> opt_points_visibles = {};  // the extent holds them as well
};
/// Draws the series with axes, grid and legend; the drawing stays open for what the caller adds. Series
/// beyond the thirtieth are drawn without a line in the legend.
void utl_04_editer_graphique_svg(std::span<const utl_04_serie> series,
                                 const utl_04_options_graphique& options = {});
/// The same, includes the drawing in the HTML note, and closes it.
void utl_04_ecrire_graphique_svg(std::span<const utl_04_serie> series,
                                 const utl_04_options_graphique& options = {});
