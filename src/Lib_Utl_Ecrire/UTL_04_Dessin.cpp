#include "UTL_04_Dessin.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "Arithmetique.hpp"
#include "Edition.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "UTL_04_fenetre.hpp"
#include "Uef_Utilit.hpp"

using namespace socle;

utl_04_t utl_04;

void utl_04_reinitialiser() { utl_04 = {}; }

namespace {

// A piece of the file; without a file it goes nowhere.
void loc_ecrire(vue_l1 morceau) {
  if (utl_04.glb_unit_html_svg) utl_04.glb_unit_html_svg->ecrire(morceau);
}

// What a viewer can still place: far beyond any window.
constexpr double pixels_max = 1e6;

bool loc_fini(const utl_04_point& p) { return std::isfinite(p.x) && std::isfinite(p.y); }

// A number of the file: F8.3 or F7.2 without its blanks, wider where the number is.
std::string loc_nombre(double v, int decimales) {
  constexpr int largeur = 12;
  const std::string cadre = edite(F{largeur, decimales}, std::clamp(v, -pixels_max, pixels_max));
  const std::string_view nombre = sans_blancs_initiaux(cadre);
  // What rounds to zero has no sign.
  const bool nul = nombre.find_first_not_of("-0.") == std::string_view::npos;
  return std::string(nul && nombre.front() == '-' ? nombre.substr(1) : nombre);
}
std::string loc_coordonnee(double v) { return loc_nombre(v, 3); }
std::string loc_largeur(double v) { return loc_nombre(std::max(v, 0.0), 2); }

std::string loc_rgb(const utl_04_couleur& c) {
  return concat(
      {"rgb(", std::to_string(c.rouge), ",", std::to_string(c.vert), ",", std::to_string(c.bleu), ")"});
}

void loc_controler(const utl_04_couleur& c, vue_l1 operation) {
  const auto correct = [](int part) { return part >= 0 && part <= 255; };
  if (!correct(c.rouge) || !correct(c.vert) || !correct(c.bleu))
    uef_assert(false, concat({operation, " : couleur incorrecte"}));
}

void loc_controler(const std::optional<utl_04_couleur>& c, vue_l1 operation) {
  if (c) loc_controler(*c, operation);
}

std::string loc_fond(const std::optional<utl_04_couleur>& c) { return c ? loc_rgb(*c) : "none"; }

utl_04_point loc_dans_la_fenetre(const utl_04_point& p, bool globales) {
  return globales ? p : utl_04_globales(p);
}

bool loc_est_commande(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

// Text of an element: the head names no encoding, so characters beyond ASCII are references; XML knows no
// control codes.
std::string loc_texte_xml(std::string_view texte) {
  std::string xml;
  for (const char c : texte) {
    const auto code = static_cast<unsigned char>(c);
    if (loc_est_commande(c)) {
      xml += ' ';
    } else if (code >= 0x80 || c == '<' || c == '>' || c == '&') {
      xml += concat({"&#", std::to_string(code), ";"});
    } else {
      xml += c;
    }
  }
  return xml;
}

double loc_distx_glob(double longueur) {
  utl_04_point echelle;
  utl_04_echelle_svg(echelle);
  return longueur * echelle.x;
}

// An extent that no scale can be made of: without length, reversed or not a number.
std::array<double, 2> loc_etendue(const std::array<double, 2>& v) {
  if (std::isfinite(v[0]) && std::isfinite(v[1]) && v[1] > v[0]) return v;
  const double milieu = std::isfinite(v[0]) ? v[0] : 0;
  return {milieu - 0.5, milieu + 0.5};
}

}  // namespace

// ---- The file

std::string utl_04_nom_fichier_dessin(vue_l1 nom) {
  // Names of files have 255 bytes at most.
  constexpr std::size_t longueur_max = 240;
  constexpr std::size_t fin_gardee = 40;
  std::string fichier(sans_blancs_finals(nom.octets()));
  for (char& c : fichier)
    if (c == '/' || c == '\\' || loc_est_commande(c)) c = '_';
  if (fichier.size() > longueur_max) fichier.erase(longueur_max - fin_gardee, fichier.size() - longueur_max);
  return fichier;
}

void utl_04_initialiser_fichier_dessin(vue_l1 repertoire, vue_l1 repertoire_lien, vue_l1 nom) {
  uef_assert(!utl_04.dessin_ouvert, "UTL_04_Initialiser_Fichier_Dessin : un dessin est deja ouvert");
  utl_04 = {};
  const std::string fichier = utl_04_nom_fichier_dessin(nom);
  const std::string chemin = concat({repertoire, fichier});
  utl_04.dessin_ouvert = true;
  utl_04.lien = concat({repertoire_lien, fichier});
  utl_04.glb_unit_html_svg = le_systeme().creer(chemin, debut::efface);
  if (!utl_04.glb_unit_html_svg) le_systeme().noter_echec(chemin);
}

void utl_04_inclure_dessin_html() {
  utl_02_ecrire_inclusion_objet_html(utl_04.lien, utl_04.glb_taille_fenetre[0],
                                     utl_04.glb_taille_fenetre[1] + utl_04.glb_taille_y_legende);
}

void utl_04_initialise_svg(const std::array<int, 2>& taille_fenetre, const std::array<double, 2>& x_min_max,
                           const std::array<double, 2>& y_min_max, const utl_04_options_svg& options) {
  utl_04.glb_taille_fenetre = {std::max(taille_fenetre[0], 1), std::max(taille_fenetre[1], 1)};
  utl_04.glb_x_min_max = loc_etendue(x_min_max);
  utl_04.glb_y_min_max = loc_etendue(y_min_max);
  const auto pas = [](const std::optional<double>& donne, const std::array<double, 2>& etendue) {
    return donne.value_or(utl_04_pas_grille(etendue[1] - etendue[0]));
  };
  utl_04.glb_dx_grille = pas(options.opt_dx_grille, utl_04.glb_x_min_max);
  utl_04.glb_dy_grille = pas(options.opt_dy_grille, utl_04.glb_y_min_max);
  utl_04.glb_afficher_grille = options.opt_afficher_grille;
  utl_04.glb_afficher_legende = options.opt_afficher_legende;
  utl_04.glb_afficher_axex = options.opt_afficher_axex;
  utl_04.glb_afficher_axey = options.opt_afficher_axey;
  utl_04.glb_taille_y_legende = options.opt_afficher_legende ? std::max(options.opt_taille_y_legende, 0) : 0;
  utl_04.glb_fmt_valeurs_x = options.opt_fmt_valeurs_x;
  utl_04.glb_fmt_valeurs_y = options.opt_fmt_valeurs_y;
  utl_04.glb_label_axe_x = options.opt_label_axe_x;
  utl_04.glb_label_axe_y = options.opt_label_axe_y;
  utl_04.glb_nb_series = 0;
}

void utl_04_entete_svg(const utl_04_couleur& opt_couleur_fond) {
  loc_controler(opt_couleur_fond, "UTL_04_Entete_SVG");
  const std::string largeur = std::to_string(utl_04.glb_taille_fenetre[0]);
  const std::string hauteur = std::to_string(utl_04.glb_taille_fenetre[1] + utl_04.glb_taille_y_legende);
  constexpr std::string_view type_document =
      "<?xml version='1.0' standalone='no'?>\n"
      "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' 'http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd'>\n";
  constexpr std::string_view espaces_de_noms =
      "xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'";
  loc_ecrire(type_document);
  // The view box lets a note that is narrower than the drawing, or a printed sheet, show it entire.
  loc_ecrire(concat({"<svg height='", hauteur, "' width='", largeur,
                     "' preserveAspectRatio='xMidYMid meet' viewBox='0 0 ", largeur, " ", hauteur, "' ",
                     espaces_de_noms, " version='1.1'>\n"}));
  loc_ecrire(concat({"<rect x='0' y='0' width='", largeur, "' height='", hauteur, "' fill=\"",
                     loc_rgb(opt_couleur_fond), "\" />\n"}));
}

void utl_04_finaliser_svg() {
  loc_ecrire("</svg>\n");
  utl_04.glb_unit_html_svg.reset();
  utl_04.dessin_ouvert = false;
}

// ---- Scale

void utl_04_echelle_svg(utl_04_point& echelle) {
  echelle.x = utl_04.glb_taille_fenetre[0] / (utl_04.glb_x_min_max[1] - utl_04.glb_x_min_max[0]);
  echelle.y = utl_04.glb_taille_fenetre[1] / (utl_04.glb_y_min_max[1] - utl_04.glb_y_min_max[0]);
}

utl_04_point utl_04_globales(const utl_04_point& p) {
  utl_04_point echelle;
  utl_04_echelle_svg(echelle);
  return {(p.x - utl_04.glb_x_min_max[0]) * echelle.x, -(p.y - utl_04.glb_y_min_max[1]) * echelle.y};
}

std::array<int, 2> utl_04_fenetre_proportionnee(int cote, std::array<double, 2>& x_min_max,
                                                std::array<double, 2>& y_min_max) {
  constexpr double pixels_min = 50;
  const double longueur_x = x_min_max[1] - x_min_max[0];
  const double longueur_y = y_min_max[1] - y_min_max[0];
  const double unite_par_pixel = std::max(longueur_x, longueur_y) / cote;
  const bool x_est_la_grande = longueur_x >= longueur_y;
  std::array<double, 2>& petite = x_est_la_grande ? y_min_max : x_min_max;
  const double pixels = std::max(std::round((petite[1] - petite[0]) / unite_par_pixel), pixels_min);
  const double milieu = petite[0] + (petite[1] - petite[0]) / 2;
  const double demi_longueur = pixels * unite_par_pixel / 2;
  petite = {milieu - demi_longueur, milieu + demi_longueur};
  const int petit_cote = tronquer(pixels);
  return x_est_la_grande ? std::array{cote, petit_cote} : std::array{petit_cote, cote};
}

double utl_04_pas_grille(double longueur) {
  const double dixieme = longueur / 10;
  if (!(dixieme > 0) || !std::isnormal(dixieme)) return 1;
  // The logarithm may fall on either side of a power of ten: begin one below.
  for (int k = tronquer(std::floor(std::log10(dixieme))) - 1;; ++k) {
    for (const double facteur : {1.0, 2.0, 5.0}) {
      // As a quotient for small steps: 1/10^3 is the nearest number to 0.001.
      const double pas = k < 0 ? facteur / puissance_dix(-k) : facteur * puissance_dix(k);
      // A length of ten steps may have lost a last digit.
      if (pas >= dixieme * (1 - 1e-9)) return pas;
    }
  }
}

// ---- Primitives

void utl_04_creer_ligne_svg(const utl_04_point& xa, const utl_04_point& xb,
                            const utl_04_options_ligne& options) {
  loc_controler(options.opt_couleur, "UTL_04_Creer_Ligne_SVG");
  const utl_04_point a = loc_dans_la_fenetre(xa, options.opt_coordonnes_globales);
  const utl_04_point b = loc_dans_la_fenetre(xb, options.opt_coordonnes_globales);
  if (!loc_fini(a) || !loc_fini(b) || !std::isfinite(options.opt_largeur)) return;
  loc_ecrire(
      concat({"<line x1='", loc_coordonnee(a.x), "' y1='", loc_coordonnee(a.y), "' x2='", loc_coordonnee(b.x),
              "' y2='", loc_coordonnee(b.y), "' style='stroke:", loc_rgb(options.opt_couleur),
              ";stroke-width:", loc_largeur(options.opt_largeur), "' />\n"}));
}

void utl_04_ecrire_texte_svg(vue_l1 texte, const utl_04_point& x, const utl_04_point& delta,
                             const utl_04_options_texte& options) {
  loc_controler(options.opt_couleur_trait, "UTL_04_Ecrire_Texte_SVG");
  const utl_04_point p = loc_dans_la_fenetre(x, options.opt_coordonnes_globales);
  if (!loc_fini(p) || !loc_fini(delta) || !std::isfinite(options.opt_angle_degree)) return;
  const std::string contenu = loc_texte_xml(sans_blancs_finals(texte.octets()));
  if (contenu.empty()) return;
  std::string place = concat({"<text x='", loc_coordonnee(p.x), "' y='", loc_coordonnee(p.y), "' dx='",
                              loc_coordonnee(delta.x), "' dy='", loc_coordonnee(delta.y), "'"});
  if (options.opt_angle_degree != 0)
    place += concat({" transform='rotate(", loc_coordonnee(options.opt_angle_degree), " ",
                     loc_coordonnee(p.x), " ", loc_coordonnee(p.y), ")'"});
  if (options.opt_ancrage == utl_04_ancrage::milieu) place += " text-anchor='middle'";
  if (options.opt_ancrage == utl_04_ancrage::fin) place += " text-anchor='end'";
  place += concat({" font-family='sans-serif' font-size='", std::to_string(options.opt_taille_police),
                   "' font-weight='", options.opt_epaisseur_police, "'"});
  if (options.opt_halo) {
    const std::string fond = loc_rgb(utl_04_svg_couleur_fond);
    loc_ecrire(concat({place, " stroke=\"", fond, "\" stroke-width='3' stroke-linejoin='round' fill=\"", fond,
                       "\">", contenu, "</text>\n"}));
  }
  // Letters are filled: an outline of the usual width would close the small ones.
  const std::string couleur = loc_rgb(options.opt_couleur_trait);
  loc_ecrire(concat(
      {place, " stroke=\"", couleur, "\" stroke-width='0.1' fill=\"", couleur, "\">", contenu, "</text>\n"}));
}

void utl_04_creer_chemin_svg(std::span<const utl_04_point> points, const utl_04_options_chemin& options) {
  loc_controler(options.opt_couleur_trait, "UTL_04_Creer_Chemin_SVG");
  loc_controler(options.opt_couleur_fond, "UTL_04_Creer_Chemin_SVG");
  std::string d;
  std::size_t nombre = 0;
  for (const utl_04_point& point : points) {
    const utl_04_point p = loc_dans_la_fenetre(point, options.opt_coordonnes_globales);
    if (!loc_fini(p)) continue;
    d += concat({nombre++ == 0 ? vue_l1("M") : vue_l1(" L"), loc_coordonnee(p.x), " ", loc_coordonnee(p.y)});
  }
  if (nombre < 2 || !std::isfinite(options.opt_largeur)) return;
  if (options.opt_ferme) d += " Z";
  std::string chemin = concat({"<path d='", d, "' fill=\"", loc_fond(options.opt_couleur_fond),
                               "\" stroke=\"", loc_rgb(options.opt_couleur_trait), "\" stroke-width='",
                               loc_largeur(options.opt_largeur), "'"});
  if (!options.opt_pointilles.octets().empty())
    chemin += concat({" stroke-dasharray='", options.opt_pointilles, "'"});
  if (options.opt_opacite)
    chemin += concat({" stroke-opacity='", loc_largeur(std::min(*options.opt_opacite, 1.0)), "'"});
  loc_ecrire(chemin + " />\n");
}

void utl_04_creer_cercle_svg(const utl_04_point& centre, double rayon, const utl_04_options_cercle& options) {
  loc_controler(options.opt_couleur_trait, "UTL_04_Creer_Cercle_SVG");
  loc_controler(options.opt_couleur_fond, "UTL_04_Creer_Cercle_SVG");
  const utl_04_point c = loc_dans_la_fenetre(centre, options.opt_coordonnes_globales);
  const double r =
      std::max(options.opt_coordonnes_globales ? rayon : loc_distx_glob(rayon), options.opt_rayon_min);
  if (!loc_fini(c) || !(rayon >= 0) || !std::isfinite(r) || !std::isfinite(options.opt_largeur)) return;
  loc_ecrire(concat({"<circle cx='", loc_coordonnee(c.x), "' cy='", loc_coordonnee(c.y), "' r='",
                     loc_coordonnee(r), "' fill=\"", loc_fond(options.opt_couleur_fond), "\" stroke=\"",
                     loc_rgb(options.opt_couleur_trait), "\" stroke-width='",
                     loc_largeur(options.opt_largeur), "' />\n"}));
}

void utl_04_ecrire_fleche_svg(const utl_04_point& origine, const utl_04_point& extremite,
                              const utl_04_options_ligne& options) {
  constexpr double longueur_pointe = 10;  // pixels
  constexpr double demi_largeur_pointe = 3;
  const utl_04_point a = loc_dans_la_fenetre(origine, options.opt_coordonnes_globales);
  const utl_04_point b = loc_dans_la_fenetre(extremite, options.opt_coordonnes_globales);
  const double longueur = std::hypot(b.x - a.x, b.y - a.y);
  utl_04_creer_ligne_svg(a, b, {options.opt_couleur, options.opt_largeur, true});
  if (!(longueur > 0)) return;
  const utl_04_point u{(b.x - a.x) / longueur, (b.y - a.y) / longueur};
  const utl_04_point pied{b.x - longueur_pointe * u.x, b.y - longueur_pointe * u.y};
  const std::array<utl_04_point, 3> pointe{
      {b,
       {pied.x - demi_largeur_pointe * u.y, pied.y + demi_largeur_pointe * u.x},
       {pied.x + demi_largeur_pointe * u.y, pied.y - demi_largeur_pointe * u.x}}};
  utl_04_creer_chemin_svg(pointe, {.opt_couleur_fond = options.opt_couleur,
                                   .opt_couleur_trait = options.opt_couleur,
                                   .opt_largeur = 0,
                                   .opt_ferme = true,
                                   .opt_coordonnes_globales = true});
}
