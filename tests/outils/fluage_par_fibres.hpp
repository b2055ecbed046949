// Creep of a section by fibres, to hold against the closed forms of the engine: points with an area, each
// with the history of its own strain. Nothing is shared with the regions and planes of the engine.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "QB7_Types.hpp"

struct fibre {
  point_yz p;
  double aire = 0;
  double c_fluage = 0;  ///< creep strain per unit of stress; 0: does not creep
  std::function<double(double)> sigma;
};

/// Stress of a fibre at the last of its strains. The creep at step m is c times the mean of the past stresses
/// with the weights 1/2^(m-2) for the first and 1/2^(m-i) for the i-th.
inline double contrainte_apres_fluage(const fibre& f, std::span<const double> deformations) {
  std::vector<double> passees;
  for (std::size_t m = 1;; ++m) {
    double fluage = 0;
    for (std::size_t i = 1; i < m; ++i) {
      const double poids = std::pow(0.5, static_cast<double>(i == 1 ? m - 2 : m - i));
      fluage += f.c_fluage * poids * passees[i - 1];
    }
    passees.push_back(f.sigma(deformations[m - 1] - fluage));
    if (m == deformations.size()) return passees.back();
  }
}

/// Stress of a fibre at rest under a strain: σ = law(e - c σ), by halving; the law does not fall.
inline double contrainte_au_repos(const fibre& f, double e) {
  if (f.c_fluage == 0) return f.sigma(e);
  double bas = -1e5;
  double haut = 1e5;
  for (int i = 0; i < 100; ++i) {
    const double milieu = (bas + haut) / 2;
    (milieu > f.sigma(e - f.c_fluage * milieu) ? haut : bas) = milieu;
  }
  return (bas + haut) / 2;
}

using contrainte_de_fibre = std::function<double(const fibre&, const deformation&)>;

inline efforts somme_des_fibres(std::span<const fibre> fibres, const deformation& d,
                                const contrainte_de_fibre& contrainte) {
  efforts somme;
  for (const fibre& f : fibres) {
    const double n = contrainte(f, d) * f.aire;
    somme += {n, n * f.p.z, -n * f.p.y};
  }
  return somme;
}

/// Forces under the last of the planes, the others being the past.
inline efforts efforts_apres_fluage(std::span<const fibre> fibres, std::span<const deformation> planes) {
  return somme_des_fibres(fibres, planes.back(), [&](const fibre& f, const deformation&) {
    std::vector<double> e;
    for (const deformation& d : planes) e.push_back(epsilon(d, f.p));
    return contrainte_apres_fluage(f, e);
  });
}

/// The plane under which the fibres have the forces `cible`: Newton with divided differences, Cramer's rule.
inline deformation plan_des_fibres(std::span<const fibre> fibres, const efforts& cible,
                                   const contrainte_de_fibre& contrainte, deformation d = {}) {
  using colonne = std::array<double, 3>;
  const auto det = [](const colonne& a, const colonne& b, const colonne& c) {
    return a[0] * (b[1] * c[2] - b[2] * c[1]) - b[0] * (a[1] * c[2] - a[2] * c[1]) +
           c[0] * (a[1] * b[2] - a[2] * b[1]);
  };
  constexpr double pas = 1e-8;
  for (int iteration = 0; iteration < 60; ++iteration) {
    const efforts f = somme_des_fibres(fibres, d, contrainte);
    const auto derivee = [&](const deformation& dd) -> colonne {
      const efforts df = somme_des_fibres(fibres, d + dd, contrainte) - f;
      return {df.n / pas, df.my / pas, df.mz / pas};
    };
    const colonne k1 = derivee({pas, 0, 0});
    const colonne k2 = derivee({0, pas, 0});
    const colonne k3 = derivee({0, 0, pas});
    const efforts r = cible - f;
    const colonne b = {r.n, r.my, r.mz};
    const double delta = det(k1, k2, k3);
    const deformation dd = {det(b, k2, k3) / delta, det(k1, b, k3) / delta, det(k1, k2, b) / delta};
    d += dd;
    if (norme_2(dd) < 1e-24) break;
  }
  return d;
}

/// A rectangle about (y, z) in ny x nz fibres; a negative area is a hole.
inline void ajouter_rectangle(std::vector<fibre>& fibres, point_yz centre, double largeur, double hauteur,
                              int ny, int nz, const fibre& modele, double signe = 1) {
  for (int i = 0; i < ny; ++i)
    for (int j = 0; j < nz; ++j) {
      fibre f = modele;
      f.p = {centre.y + largeur * ((i + 0.5) / ny - 0.5), centre.z + hauteur * ((j + 0.5) / nz - 0.5)};
      f.aire = signe * largeur * hauteur / ny / nz;
      fibres.push_back(f);
    }
}
