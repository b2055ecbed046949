#include "Grille_Points.hpp"

#include <cmath>
#include <functional>

std::size_t grille_points::hachage::operator()(const carre& c) const {
  const std::hash<double> h;
  return h(c.y) * 31 + h(c.z);
}

// In double: a coordinate of any size has a square.
grille_points::carre grille_points::carre_de(point_yz p) {
  return {std::floor(p.y / zof_tolerance_points_confondus), std::floor(p.z / zof_tolerance_points_confondus)};
}

bool grille_points::existe_proche(point_yz p) const {
  const carre centre = carre_de(p);
  for (int i = -1; i <= 1; ++i) {
    for (int j = -1; j <= 1; ++j) {
      const auto [debut, fin] = points_.equal_range({centre.y + i, centre.z + j});
      for (auto q = debut; q != fin; ++q)
        if (std::hypot(q->second.y - p.y, q->second.z - p.z) < zof_tolerance_points_confondus) return true;
    }
  }
  return false;
}

void grille_points::ajouter(point_yz p) { points_.emplace(carre_de(p), p); }
