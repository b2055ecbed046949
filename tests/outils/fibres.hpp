// Forces of a section by strips, to hold against the closed forms of the engine: a second way to the same
// integrals.
//
// An outline is cut into strips of equal strain. Their ends stand at the strains of its vertices and at the
// knots of the law, so that stress and width are smooth inside a strip, where four Gauss points integrate
// them. The width at a strain is found by cutting the outline there: nothing is shared with the integration
// along the edges.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "QB7_Types.hpp"

struct fibres_materiau {
  std::function<double(double)> sigma;  ///< stress at a strain
  std::vector<double> noeuds;           ///< strains at which the stress is not smooth
};

namespace fibres_interne {

struct noeud_de_gauss {
  double t, poids;  // on [0, 1]
};
inline constexpr std::array<noeud_de_gauss, 4> gauss = {{{0.06943184420297371, 0.17392742256872693},
                                                         {0.33000947820757187, 0.32607257743127307},
                                                         {0.66999052179242813, 0.32607257743127307},
                                                         {0.93056815579702629, 0.17392742256872693}}};

/// Width and first moment, along u, of an outline cut at v: crossings count with the direction of their edge,
/// so that a counter-clockwise outline has a positive width and concave outlines need no care.
inline std::array<double, 2> coupe(std::span<const point_yz> uv, double v) {
  std::array<double, 2> m{};
  for (std::size_t i = 0; i < uv.size(); ++i) {
    const point_yz a = uv[i];
    const point_yz b = uv[(i + 1) % uv.size()];
    if ((a.z <= v) == (b.z <= v)) continue;
    const double u = a.y + (b.y - a.y) * (v - a.z) / (b.z - a.z);
    const double sens = b.z > a.z ? 1 : -1;
    m[0] += sens * u;
    m[1] += sens * u * u / 2;
  }
  return m;
}

/// Ends of the strips between the least and the greatest of the values.
inline std::vector<double> bornes(std::vector<double> valeurs, std::span<const double> coupures) {
  const auto [bas, haut] = std::ranges::minmax(valeurs);
  for (const double c : coupures)
    if (c > bas && c < haut) valeurs.push_back(c);
  std::ranges::sort(valeurs);
  return valeurs;
}

}  // namespace fibres_interne

/// Forces of a closed outline; a clockwise one gives them negative.
inline efforts fibres_contour(std::span<const point_yz> points, const deformation& plan,
                              const fibres_materiau& m) {
  // v along the gradient of the strain, u across it: e = e0 + g v.
  const double g = std::hypot(plan.ky, plan.kz);
  const double c = g > 0 ? plan.ky / g : 1;
  const double s = g > 0 ? plan.kz / g : 0;
  std::vector<point_yz> uv;
  std::vector<double> niveaux;
  for (const point_yz& p : points) {
    uv.push_back({p.y * c + p.z * s, p.z * c - p.y * s});
    niveaux.push_back(uv.back().z);
  }
  std::vector<double> coupures;
  if (g > 0)
    for (const double e : m.noeuds) coupures.push_back((e - plan.e0) / g);

  double n = 0;
  double mu = 0;  // ∫σ u
  double mv = 0;  // ∫σ v
  const std::vector<double> bandes = fibres_interne::bornes(niveaux, coupures);
  for (std::size_t i = 0; i + 1 < bandes.size(); ++i) {
    const double hauteur = bandes[i + 1] - bandes[i];
    if (hauteur <= 0) continue;
    for (const auto& [t, poids] : fibres_interne::gauss) {
      const double v = bandes[i] + t * hauteur;
      const double force = m.sigma(plan.e0 + g * v) * poids * hauteur;
      const std::array<double, 2> largeur = fibres_interne::coupe(uv, v);
      n += force * largeur[0];
      mu += force * largeur[1];
      mv += force * largeur[0] * v;
    }
  }
  // y = c u - s v, z = s u + c v
  return {.n = n, .my = s * mu + c * mv, .mz = -(c * mu - s * mv)};
}

/// Forces of an open polyline with a thickness.
inline efforts fibres_profil(std::span<const point_yz> points, double epaisseur, const deformation& plan,
                             const fibres_materiau& m) {
  efforts f;
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    const point_yz a = points[i];
    const point_yz b = points[i + 1];
    const double de = epsilon(plan, b) - epsilon(plan, a);
    std::vector<double> coupures;
    if (de != 0)
      for (const double e : m.noeuds) coupures.push_back((e - epsilon(plan, a)) / de);
    const std::vector<double> ts = fibres_interne::bornes({0, 1}, coupures);
    const double aire = epaisseur * std::hypot(b.y - a.y, b.z - a.z);
    for (std::size_t k = 0; k + 1 < ts.size(); ++k)
      for (const auto& [t, poids] : fibres_interne::gauss) {
        const double x = ts[k] + t * (ts[k + 1] - ts[k]);
        const point_yz p{a.y + x * (b.y - a.y), a.z + x * (b.z - a.z)};
        const double force = m.sigma(epsilon(plan, p)) * aire * poids * (ts[k + 1] - ts[k]);
        f += {force, force * p.z, -force * p.y};
      }
  }
  return f;
}

/// Forces of a set of bars with an area each.
inline efforts fibres_semis(std::span<const point_yz> points, double aire, const deformation& plan,
                            const fibres_materiau& m) {
  efforts f;
  for (const point_yz& p : points) {
    const double force = m.sigma(epsilon(plan, p)) * aire;
    f += {force, force * p.z, -force * p.y};
  }
  return f;
}
