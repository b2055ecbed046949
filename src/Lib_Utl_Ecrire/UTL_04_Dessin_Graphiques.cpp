// Axes, grid, legend, and the graphs that are made of them.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Edition.hpp"
#include "UTL_04_Dessin.hpp"
#include "UTL_04_fenetre.hpp"

using namespace socle;

void utl_04_couleurs_graphe_svg(std::array<utl_04_couleur, utl_04_nb_series_max>& couleurs) {
  couleurs = {
      utl_04_bleu,         utl_04_rouge,       utl_04_bleu_clair,   utl_04_rouge_clair,  utl_04_vert,
      utl_04_citron_vert,  utl_04_lavande,     utl_04_violet,       utl_04_gris_0_50,    utl_04_noir,
      utl_04_bleu,         utl_04_bleu_moyen,  utl_04_orange_clair, utl_04_orange_fonce, utl_04_citron_vert,
      utl_04_marron_clair, utl_04_rose,        utl_04_rose,         utl_04_gris_0_25,    utl_04_gris_0_40,
      utl_04_vert_fonce,   utl_04_rouge_fonce, utl_04_bleu_fonce,   utl_04_violet_fonce, utl_04_ocre,
      utl_04_marron,       utl_04_vert_moyen,  utl_04_rouge_moyen,  utl_04_orange,       utl_04_ocre_fonce};
}

namespace {

constexpr double demi_trait = 4;     // pixels of a tick on either side of its axis
constexpr double place_fleche = 20;  // pixels at the end of an axis without a tick
constexpr double ecart_texte = 4;    // pixels between a line and a text
constexpr double bord = 1;           // pixels that a text keeps from the edge of the window
constexpr double largeur_axe = 1;
// From this part of the window on, an axis counts as off the middle: about the middle, rounding must not
// choose.
constexpr double part_excentree = 0.6;
constexpr double largeur_grille = 0.5;

double loc_borner(double v, double maximum) { return std::isfinite(v) ? std::clamp(v, 0.0, maximum) : 0; }

// Multiples of the step within a range, from 0 both ways. A step that would give more than can be told apart
// is replaced by that of the range.
std::vector<double> loc_graduations(double pas, const std::array<double, 2>& etendue) {
  constexpr double nombre_max = 200;
  const double longueur = etendue[1] - etendue[0];
  if (!(pas > 0) || !std::isfinite(pas) || !(longueur / pas <= nombre_max)) pas = utl_04_pas_grille(longueur);
  const double premier = std::ceil(etendue[0] / pas);
  const double nombre = std::floor(etendue[1] / pas) - premier;
  std::vector<double> valeurs;
  for (int i = 0; i <= std::min(nombre, nombre_max); ++i) {
    const double v = (premier + i) * pas;
    // Far from 0 a step may be less than the last digit.
    if (valeurs.empty() || v > valeurs.back()) valeurs.push_back(v);
  }
  return valeurs;
}

// A value by an edit descriptor; nothing where it has no room, or rounds neighbouring values to one.
std::optional<std::string> loc_valeur_formatee(double v, double pas, const format& f) {
  const std::string cadre = edite(f, v);
  const std::string_view lu = sans_blancs_initiaux(sans_blancs_finals(cadre));
  double relu = 0;
  const auto fin = std::from_chars(lu.data(), lu.data() + lu.size(), relu);
  if (fin.ec != std::errc{} || fin.ptr != lu.data() + lu.size() || !(std::abs(relu - v) <= pas / 100))
    return std::nullopt;
  return std::string(lu);
}

std::string loc_valeur_courte(double v) {
  constexpr int chiffres = 6;
  std::array<char, 32> tampon{};
  const auto fin =
      std::to_chars(tampon.data(), tampon.data() + tampon.size(), v, std::chars_format::general, chiffres);
  return {tampon.data(), fin.ptr};
}

struct graduation {
  double v;
  std::string valeur;
};

// The ticks with their values: all by the format of the axis, or all in their shortest form.
std::vector<graduation> loc_graduations_editees(double pas, const std::array<double, 2>& etendue,
                                                const texte<20>& fmt) {
  const std::vector<double> valeurs = loc_graduations(pas, etendue);
  const double ecart = valeurs.size() > 1 ? valeurs[1] - valeurs[0] : etendue[1] - etendue[0];
  const std::optional<format> f = lire_format(fmt.utile());
  std::vector<graduation> graduations;
  for (const double v : valeurs) {
    const std::optional<std::string> valeur = f ? loc_valeur_formatee(v, ecart, *f) : std::nullopt;
    if (!valeur) {
      graduations.clear();
      break;
    }
    graduations.push_back({v, *valeur});
  }
  if (graduations.empty())
    for (const double v : valeurs) graduations.push_back({v, loc_valeur_courte(v)});
  return graduations;
}

struct police {
  int taille;
  vue_l1 epaisseur;
};

void loc_ecrire_texte(vue_l1 texte, const utl_04_point& place, utl_04_ancrage ancrage, const police& p) {
  utl_04_ecrire_texte_svg(texte, place, {},
                          {.opt_coordonnes_globales = true,
                           .opt_taille_police = p.taille,
                           .opt_epaisseur_police = p.epaisseur,
                           .opt_ancrage = ancrage,
                           .opt_halo = true});
}

void loc_ligne(const utl_04_point& a, const utl_04_point& b, const utl_04_couleur& couleur, double largeur) {
  utl_04_creer_ligne_svg(a, b, {couleur, largeur, true});
}

}  // namespace

// Values stand below, or above an axis that runs clearly nearer to the upper edge, where a drawing has the
// least to cover; the label on the other side if it has room.
void utl_04_afficher_axex_svg(vue_l1 opt_label, int opt_taille_police, vue_l1 opt_epaisseur_police) {
  if (!utl_04.glb_afficher_axex) return;
  const police p{opt_taille_police, opt_epaisseur_police};
  const double nx = utl_04.glb_taille_fenetre[0];
  const double ny = utl_04.glb_taille_fenetre[1];
  const double y = loc_borner(utl_04_globales({0, 0}).y, ny);
  const double dessous = y + demi_trait + p.taille;
  const double dessus = y - demi_trait - ecart_texte / 2;
  const bool place_dessous = dessous + ecart_texte <= ny;
  const bool place_dessus = dessus >= p.taille;
  const bool valeurs_dessous = place_dessous && (y >= ny * (1 - part_excentree) || !place_dessus);
  const bool label_dessous = valeurs_dessous ? !place_dessus : place_dessous;
  const double pied_valeurs = valeurs_dessous ? dessous : dessus;
  double pied_label = label_dessous ? dessous : dessus;
  double fin_precedente = 0;
  double fin_valeurs = nx - bord;
  utl_04_ecrire_fleche_svg({0, y}, {nx, y}, {utl_04_noir, largeur_axe, true});
  const texte<5> label = opt_label.octets().empty() ? utl_04.glb_label_axe_x : texte<5>(opt_label);
  if (label_dessous == valeurs_dessous)
    fin_valeurs = nx - 2 * ecart_texte - utl_04_largeur_texte(label.utile().size(), p.taille);
  // In the upper right corner stands the label of the other axis, if that one runs along the edge.
  const bool coin_occupe = utl_04.glb_afficher_axey && utl_04_globales({0, 0}).x > nx - 3 * place_fleche &&
                           pied_label < place_fleche;
  if (coin_occupe) pied_label += p.taille + ecart_texte;
  loc_ecrire_texte(label.utile(), {nx - ecart_texte, pied_label}, utl_04_ancrage::fin, p);
  for (const auto& [v, valeur] :
       loc_graduations_editees(utl_04.glb_dx_grille, utl_04.glb_x_min_max, utl_04.glb_fmt_valeurs_x)) {
    const double x = utl_04_globales({v, 0}).x;
    if (x > nx - place_fleche) continue;
    loc_ligne({x, y - demi_trait}, {x, y + demi_trait}, utl_04_noir, largeur_axe);
    const double largeur = utl_04_largeur_texte(valeur.size(), p.taille);
    // The value of the origin makes room for the other axis.
    const bool a_cote = v == 0 && utl_04.glb_afficher_axey;
    const double gauche = a_cote ? x - ecart_texte - largeur : x - largeur / 2;
    if (gauche < fin_precedente + bord || gauche + largeur > fin_valeurs) continue;
    fin_precedente = gauche + largeur;
    loc_ecrire_texte(valeur, {gauche + largeur / 2, pied_valeurs}, utl_04_ancrage::milieu, p);
  }
}

// As for the other axis: values on the left, or on the right of an axis that runs clearly nearer to that
// edge.
void utl_04_afficher_axey_svg(vue_l1 opt_label, int opt_taille_police, vue_l1 opt_epaisseur_police) {
  if (!utl_04.glb_afficher_axey) return;
  const police p{opt_taille_police, opt_epaisseur_police};
  const double nx = utl_04.glb_taille_fenetre[0];
  const double ny = utl_04.glb_taille_fenetre[1];
  const double x = loc_borner(utl_04_globales({0, 0}).x, nx);
  const std::vector<graduation> graduations =
      loc_graduations_editees(utl_04.glb_dy_grille, utl_04.glb_y_min_max, utl_04.glb_fmt_valeurs_y);
  double largeur_max = 0;
  for (const graduation& g : graduations)
    largeur_max = std::max(largeur_max, utl_04_largeur_texte(g.valeur.size(), p.taille));
  const double recul = demi_trait + ecart_texte;
  const bool place_a_gauche = x - recul - largeur_max >= bord;
  const bool place_a_droite = x + recul + largeur_max <= nx - bord;
  const bool valeurs_a_gauche =
      place_a_gauche ? x <= nx * part_excentree || !place_a_droite : x > nx * part_excentree;
  const double x_valeurs = valeurs_a_gauche ? x - recul : x + recul;
  const double x_label = valeurs_a_gauche ? x + recul : x - recul;
  const auto ancrage = [](bool a_gauche) { return a_gauche ? utl_04_ancrage::fin : utl_04_ancrage::debut; };
  utl_04_ecrire_fleche_svg({x, ny}, {x, 0}, {utl_04_noir, largeur_axe, true});
  const texte<5> label = opt_label.octets().empty() ? utl_04.glb_label_axe_y : texte<5>(opt_label);
  const double largeur_label = utl_04_largeur_texte(label.utile().size(), p.taille);
  const bool label_a_gauche = valeurs_a_gauche ? x_label + largeur_label > nx : x_label >= largeur_label;
  loc_ecrire_texte(label.utile(), {label_a_gauche ? x - recul : x + recul, static_cast<double>(p.taille)},
                   ancrage(label_a_gauche), p);
  for (const auto& [v, valeur] : graduations) {
    const double y = utl_04_globales({0, v}).y;
    if (y < place_fleche) continue;
    loc_ligne({x - demi_trait, y}, {x + demi_trait, y}, utl_04_noir, largeur_axe);
    if (v == 0 && utl_04.glb_afficher_axex) continue;
    const double largeur = utl_04_largeur_texte(valeur.size(), p.taille);
    if (valeurs_a_gauche ? x_valeurs - largeur < 0 : x_valeurs + largeur > nx) continue;
    // A letter's middle stands a third of its size above its foot.
    const double pied = y + p.taille / 3.0;
    if (pied > ny - bord) continue;
    loc_ecrire_texte(valeur, {x_valeurs, pied}, ancrage(valeurs_a_gauche), p);
  }
}

void utl_04_afficher_grille_svg() {
  if (!utl_04.glb_afficher_grille) return;
  const double nx = utl_04.glb_taille_fenetre[0];
  const double ny = utl_04.glb_taille_fenetre[1];
  for (const double v : loc_graduations(utl_04.glb_dx_grille, utl_04.glb_x_min_max)) {
    const double x = utl_04_globales({v, 0}).x;
    loc_ligne({x, 0}, {x, ny}, utl_04_gris_0_25, largeur_grille);
  }
  for (const double v : loc_graduations(utl_04.glb_dy_grille, utl_04.glb_y_min_max)) {
    const double y = utl_04_globales({0, v}).y;
    loc_ligne({0, y}, {nx, y}, utl_04_gris_0_25, largeur_grille);
  }
}

namespace {

constexpr int hauteur_ligne_legende = 18;  // pixels
constexpr int marge_legende = 16;

}  // namespace

void utl_04_afficher_legende_svg() {
  if (!utl_04.glb_afficher_legende) return;
  constexpr double x_trait = 20;
  constexpr double x_texte = 58;
  constexpr int police_max = 11;
  constexpr int police_min = 6;
  double y = utl_04.glb_taille_fenetre[1] + marge_legende;
  for (int i = 0; i < utl_04.glb_nb_series; ++i, y += hauteur_ligne_legende) {
    const auto serie = static_cast<std::size_t>(i);
    const std::string_view legende = utl_04.glb_tab_legende[serie].utile();
    loc_ligne({x_trait, y}, {x_texte - 2 * ecart_texte, y}, utl_04.glb_tab_couleur_legende[serie], 2);
    // A long legend takes smaller letters in a narrow window.
    int taille = police_max;
    while (taille > police_min &&
           x_texte + utl_04_largeur_texte(legende.size(), taille) > utl_04.glb_taille_fenetre[0])
      --taille;
    utl_04_ecrire_texte_svg(legende, {x_texte, y + taille / 3.0}, {},
                            {.opt_coordonnes_globales = true, .opt_taille_police = taille});
  }
}

// ---- Graphs

namespace {

struct etendue_graphique {
  std::array<double, 2> x{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
  std::array<double, 2> y = x;

  void etendre(std::span<const utl_04_point> points) {
    for (const utl_04_point& p : points) {
      if (!std::isfinite(p.x) || !std::isfinite(p.y)) continue;
      x = {std::min(x[0], p.x), std::max(x[1], p.x)};
      y = {std::min(y[0], p.y), std::max(y[1], p.y)};
    }
  }
};

// Room for the curve to stand clear of the edges, and for the values of an axis that runs along one.
std::array<double, 2> loc_avec_marge(std::array<double, 2> v) {
  constexpr double part = 0.08;
  if (!(v[0] <= v[1])) return {0, 1};
  if (v[0] == v[1]) {
    const double demi = v[0] == 0 ? 0.5 : std::abs(v[0]) / 2;
    v = {v[0] - demi, v[1] + demi};
  }
  return utl_04_elargir(v, part);
}

// The direction with fewer units per pixel is widened about its middle.
void loc_egaliser(etendue_graphique& e, const std::array<int, 2>& fenetre) {
  const double unites_x = (e.x[1] - e.x[0]) / fenetre[0];
  const double unites_y = (e.y[1] - e.y[0]) / fenetre[1];
  if (unites_x < unites_y)
    e.x = utl_04_elargir(e.x, (unites_y / unites_x - 1) / 2);
  else
    e.y = utl_04_elargir(e.y, (unites_x / unites_y - 1) / 2);
}

}  // namespace

void utl_04_editer_graphique_svg(std::span<const utl_04_serie> series,
                                 const utl_04_options_graphique& options) {
  etendue_graphique etendue;
  for (const utl_04_serie& s : series) etendue.etendre(s.points);
  etendue.etendre(options.opt_points_visibles);
  etendue.x = loc_avec_marge(etendue.x);
  etendue.y = loc_avec_marge(etendue.y);
  if (options.opt_proportionnel) loc_egaliser(etendue, options.opt_taille_fenetre);

  const int nombre = static_cast<int>(std::min<std::size_t>(series.size(), utl_04_nb_series_max));
  const int taille_legende =
      std::max(utl_04_taille_y_legende_defaut, 2 * marge_legende + hauteur_ligne_legende * (nombre - 1));
  utl_04_initialise_svg(options.opt_taille_fenetre, etendue.x, etendue.y,
                        {.opt_afficher_grille = true,
                         .opt_afficher_legende = true,
                         .opt_taille_y_legende = taille_legende,
                         .opt_afficher_axex = true,
                         .opt_afficher_axey = true,
                         .opt_fmt_valeurs_x = options.opt_fmt_valeurs_x,
                         .opt_fmt_valeurs_y = options.opt_fmt_valeurs_y,
                         .opt_label_axe_x = options.opt_label_axe_x,
                         .opt_label_axe_y = options.opt_label_axe_y});
  utl_04.glb_nb_series = nombre;
  utl_04_couleurs_graphe_svg(utl_04.glb_tab_couleur_legende);
  for (std::size_t i = 0; i < static_cast<std::size_t>(nombre); ++i)
    utl_04.glb_tab_legende[i] = series[i].legende;

  utl_04_entete_svg();
  utl_04_afficher_grille_svg();
  for (std::size_t i = 0; i < series.size(); ++i)
    utl_04_creer_chemin_svg(
        series[i].points,
        {.opt_couleur_trait = utl_04.glb_tab_couleur_legende[i % utl_04_nb_series_max], .opt_largeur = 1.5});
  // Over the curves, which would strike out the values.
  utl_04_afficher_axex_svg();
  utl_04_afficher_axey_svg();
  utl_04_afficher_legende_svg();
}

void utl_04_ecrire_graphique_svg(std::span<const utl_04_serie> series,
                                 const utl_04_options_graphique& options) {
  utl_04_editer_graphique_svg(series, options);
  utl_04_inclure_dessin_html();
  utl_04_finaliser_svg();
}
