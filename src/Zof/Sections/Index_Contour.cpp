#include "Index_Contour.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Arithmetique.hpp"
#include "Zof_Classe_Point.hpp"

namespace {

constexpr double tolerance = zof_tolerance_points_confondus;

point_yz loc_echange(point_yz p) { return {p.z, p.y}; }

double loc_distance_au_cote(point_yz p, point_yz a, point_yz b) {
  const point_yz ab{b.y - a.y, b.z - a.z};
  const double longueur_2 = ab.y * ab.y + ab.z * ab.z;
  const double t = longueur_2 > 0 ? ((p.y - a.y) * ab.y + (p.z - a.z) * ab.z) / longueur_2 : 0;
  const double borne = std::clamp(t, 0.0, 1.0);
  return std::hypot(p.y - a.y - borne * ab.y, p.z - a.z - borne * ab.z);
}

// What bands across one direction would hold: the lowest point, the height, and the sum of the heights of the
// sides.
struct etendue {
  double debut = std::numeric_limits<double>::infinity();
  double fin = -std::numeric_limits<double>::infinity();
  double cumul = 0;

  void ajouter(double a, double b) {
    debut = std::min({debut, a, b});
    fin = std::max({fin, a, b});
    cumul += std::abs(b - a);
  }
  [[nodiscard]] double hauteur() const { return fin - debut; }
  /// Mean number of sides across a line; at least 2 for a closed outline.
  [[nodiscard]] double cotes_par_ligne() const { return cumul / hauteur(); }
};

}  // namespace

index_contour::index_contour(const polygone& contour) {
  etendue en_y;
  etendue en_z;
  const std::size_t nombre = contour.size();
  for (std::size_t i = 0; i < nombre; ++i) {
    const point_yz suivant = contour[i + 1 == nombre ? 0 : i + 1];
    en_y.ajouter(contour[i].y, suivant.y);
    en_z.ajouter(contour[i].z, suivant.z);
  }
  transpose_ = en_y.cotes_par_ligne() < en_z.cotes_par_ligne();
  const etendue& e = transpose_ ? en_y : en_z;
  debut_ = e.debut;
  // No more bands than sides, nor so many that the high sides stand in too many of them.
  const double voulu = std::min(1.0, 4 / e.cotes_par_ligne()) * static_cast<double>(nombre);
  const int nombre_bandes = std::max(1, socle::tronquer(voulu));
  pas_ = e.hauteur() / nombre_bandes;
  bandes_.resize(static_cast<std::size_t>(nombre_bandes));
  for (std::size_t i = 0; i < nombre; ++i) {
    cote c{contour[i], contour[i + 1 == nombre ? 0 : i + 1]};
    if (transpose_) c = {loc_echange(c.bas), loc_echange(c.haut)};
    if (c.bas.z > c.haut.z) std::swap(c.bas, c.haut);
    for (std::size_t k = bande(c.bas.z - tolerance); k <= bande(c.haut.z + tolerance); ++k)
      bandes_[k].push_back(c);
  }
}

// The first and the last band go on without end, and a height that is no number is in the first.
std::size_t index_contour::bande(double z) const {
  return static_cast<std::size_t>(
      std::clamp(socle::tronquer((z - debut_) / pas_), 0, static_cast<int>(bandes_.size()) - 1));
}

// Crossings of the ray towards +y; a side's lower end counts, its upper end does not.
bool index_contour::contient(point_yz p) const {
  if (bandes_.empty()) return false;
  if (transpose_) p = loc_echange(p);
  bool dedans = false;
  for (const auto& [bas, haut] : bandes_[bande(p.z)]) {
    if (p.z <= bas.z - tolerance || p.z >= haut.z + tolerance) continue;
    if (loc_distance_au_cote(p, bas, haut) < tolerance) return true;
    if (bas.z <= p.z && p.z < haut.z && p.y < bas.y + (haut.y - bas.y) * (p.z - bas.z) / (haut.z - bas.z))
      dedans = !dedans;
  }
  return dedans;
}
