#include "Etiquettes.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "Arithmetique.hpp"

using socle::tronquer;

namespace {

constexpr double cote_cellule = 32;  // pixels
// A cell this crowded takes no more text, and its content is not gone through any longer.
constexpr std::size_t contenu_max = 64;
constexpr double ecart = 2;  // pixels between a circle and its number
constexpr std::array<double, 4> reculs{0, 7, 14, 24};
constexpr double recul_sans_trait = 7;
constexpr int nombre_directions = 8;
constexpr int pas_max = 1000;  // of a line that leaves any window

std::size_t loc_nombre_cellules(double longueur) {
  return static_cast<std::size_t>(std::max(1.0, std::ceil(longueur / cote_cellule)));
}

double loc_largeur(std::size_t nombre_caracteres, int taille_police) {
  constexpr double chasse = 0.64;  // of a digit, in sizes of the font
  return chasse * taille_police * static_cast<double>(nombre_caracteres);
}

// Of the cell that holds a coordinate; what lies outside of the window belongs to the cells at its edge.
std::size_t loc_rang(double v, std::size_t nombre) {
  const auto dernier = static_cast<double>(nombre - 1);
  return static_cast<std::size_t>(std::clamp(std::floor(v / cote_cellule), 0.0, dernier));
}

}  // namespace

etiquettes::etiquettes(double largeur, double hauteur, int taille_police)
    : largeur_(largeur),
      hauteur_(hauteur),
      taille_police_(taille_police),
      colonnes_(loc_nombre_cellules(largeur)),
      lignes_(loc_nombre_cellules(hauteur)),
      cellules_(colonnes_ * lignes_) {}

bool etiquettes::cellule::pleine() const {
  return textes.size() + cercles.size() + segments.size() >= contenu_max;
}

// The cells under a box, until the operation gives false for one of them.
template <class operation>
bool etiquettes::pour_chaque_cellule(const boite& b, operation&& o) {
  for (std::size_t j = loc_rang(b.haut, lignes_); j <= loc_rang(b.bas, lignes_); ++j)
    for (std::size_t i = loc_rang(b.gauche, colonnes_); i <= loc_rang(b.droite, colonnes_); ++i)
      if (!o(cellules_[j * colonnes_ + i])) return false;
  return true;
}

void etiquettes::ajouter_cercle(point centre, double rayon) {
  if (!std::isfinite(centre.x) || !std::isfinite(centre.y) || !std::isfinite(rayon)) return;
  const boite b{centre.x - rayon, centre.y - rayon, centre.x + rayon, centre.y + rayon};
  pour_chaque_cellule(b, [&](cellule& c) {
    if (!c.pleine()) c.cercles.push_back({centre, rayon});
    return true;
  });
}

// Half a cell at a time: no cell is passed over but for a corner.
void etiquettes::ajouter_segment(point a, point b) {
  const double longueur = std::hypot(b.x - a.x, b.y - a.y);
  if (!std::isfinite(longueur)) return;
  const int pas = std::min(tronquer(2 * longueur / cote_cellule), pas_max) + 1;
  const cellule* precedente = nullptr;
  for (int k = 0; k <= pas; ++k) {
    const double t = static_cast<double>(k) / pas;
    const double x = a.x + t * (b.x - a.x);
    const double y = a.y + t * (b.y - a.y);
    cellule& c = cellules_[loc_rang(y, lignes_) * colonnes_ + loc_rang(x, colonnes_)];
    if (&c != precedente && !c.pleine()) c.segments.push_back({a, b});
    precedente = &c;
  }
}

// The part of the segment within the box, found by cutting it with each pair of sides.
bool etiquettes::coupe(const segment& s, const boite& b) {
  double debut = 0;
  double fin = 1;
  const auto couper = [&](double origine, double longueur, double min, double max) {
    if (longueur == 0) return origine > min && origine < max;
    const double t1 = (min - origine) / longueur;
    const double t2 = (max - origine) / longueur;
    debut = std::max(debut, std::min(t1, t2));
    fin = std::min(fin, std::max(t1, t2));
    return debut < fin;
  };
  return couper(s.a.x, s.b.x - s.a.x, b.gauche, b.droite) && couper(s.a.y, s.b.y - s.a.y, b.haut, b.bas);
}

bool etiquettes::libre(const boite& b, bool hors_des_segments) {
  if (b.gauche < 0 || b.haut < 0 || b.droite > largeur_ || b.bas > hauteur_) return false;
  return pour_chaque_cellule(b, [&](const cellule& c) {
    if (c.pleine()) return false;
    const bool texte = std::any_of(c.textes.begin(), c.textes.end(), [&](const boite& t) {
      return b.gauche < t.droite && t.gauche < b.droite && b.haut < t.bas && t.haut < b.bas;
    });
    const bool cercle_couvert = std::any_of(c.cercles.begin(), c.cercles.end(), [&](const cercle& k) {
      const double x = std::clamp(k.centre.x, b.gauche, b.droite);
      const double y = std::clamp(k.centre.y, b.haut, b.bas);
      return std::hypot(x - k.centre.x, y - k.centre.y) < k.rayon;
    });
    const bool segment_coupe =
        hors_des_segments &&
        std::any_of(c.segments.begin(), c.segments.end(), [&](const segment& s) { return coupe(s, b); });
    return !texte && !cercle_couvert && !segment_coupe;
  });
}

std::optional<etiquettes::place> etiquettes::placer(point p, double rayon, std::size_t nombre_caracteres,
                                                    point direction) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(rayon)) return std::nullopt;
  const double longueur = loc_largeur(nombre_caracteres, taille_police_);
  const double angle = std::atan2(direction.y, direction.x);
  std::optional<place> trouvee = essayer(p, rayon, longueur, angle, true);
  if (!trouvee) trouvee = essayer(p, rayon, longueur, angle, false);
  return trouvee;
}

std::optional<etiquettes::place> etiquettes::essayer(point p, double rayon, double longueur, double angle,
                                                     bool hors_des_segments) {
  const double hauteur = taille_police_;
  for (const double recul : reculs) {
    for (const bool debout : {false, true}) {
      const double demi_x = (debout ? hauteur : longueur) / 2;
      const double demi_y = (debout ? longueur : hauteur) / 2;
      for (int k = 0; k < nombre_directions; ++k) {
        // 0, 1, -1, 2, -2, ... eighths of a turn off the wanted direction.
        const int huitiemes = k % 2 == 1 ? (k + 1) / 2 : -k / 2;
        const double a = angle + huitiemes * std::numbers::pi / 4;
        const double c = std::cos(a);
        const double s = std::sin(a);
        // The middle of the text: as far out as makes its box touch the circle.
        const double distance = rayon + ecart + recul;
        const point milieu{p.x + distance * c + demi_x * std::clamp(2 * c, -1.0, 1.0),
                           p.y + distance * s + demi_y * std::clamp(2 * s, -1.0, 1.0)};
        const boite b{milieu.x - demi_x, milieu.y - demi_y, milieu.x + demi_x, milieu.y + demi_y};
        if (!libre(b, hors_des_segments)) continue;
        pour_chaque_cellule(b, [&](cellule& cell) {
          cell.textes.push_back(b);
          return true;
        });
        // Digits have no part below their foot and stand three quarters of the size high.
        const double jeu = hauteur / 8;
        const point pied = debout ? point{b.droite - jeu, b.bas} : point{b.gauche, b.bas - jeu};
        return place{pied, debout, recul > recul_sans_trait, milieu};
      }
    }
  }
  return std::nullopt;
}
