#include "Grille_Points.hpp"

#include <cmath>
#include <functional>

std::size_t grille_points::hachage::operator()(const carre& c) const {
  const std::hash<double> h;
  return h(c.y) * 31 + h(c.z);
}

// In double: a coordinate of any size has a square.
grille_points::carre grille_points::carre_de(point_yz p) const {
  return {std::floor(p.y / portee_), std::floor(p.z / portee_)};
}

int grille_points::rang_proche(point_yz p) const {
  const carre centre = carre_de(p);
  for (int i = -1; i <= 1; ++i) {
    for (int j = -1; j <= 1; ++j) {
      const auto [debut, fin] = points_.equal_range({centre.y + i, centre.z + j});
      for (auto q = debut; q != fin; ++q) {
        const auto& [position, rang] = q->second;
        if (std::hypot(position.y - p.y, position.z - p.z) < portee_) return rang;
      }
    }
  }
  return 0;
}

void grille_points::ajouter(point_yz p, int rang) { points_.emplace(carre_de(p), point_range{p, rang}); }

void grille_points::retirer(point_yz p) {
  const auto [debut, fin] = points_.equal_range(carre_de(p));
  for (auto q = debut; q != fin; ++q) {
    const point_yz position = q->second.position;
    if (position.y != p.y || position.z != p.z) continue;
    points_.erase(q);
    return;
  }
}
