// Exact integration of stress over an outline, a thin profile and a set of bars, under a law made of
// polynomials and a plane of strain: resultant forces and tangent, in closed form, without mesh or
// quadrature.
//
// An outline is integrated along its edges by Green's theorem. Each edge is cut where the strain passes a
// knot of the law: on a piece the stress is one polynomial of the strain, hence of the parameter t that runs
// from 0 to 1 along it, and its moments
//   s(q) = ∫ σ(t) t^q dt,  r(q) = ∫ σ'(t) t^q dt       (σ' is the derivative by the strain)
// are sums of its coefficients in t, which is all that the formulas below need.
//
// These are functions of values: no module state, no allocation.
#pragma once

#include <cstddef>
#include <span>

#include "QB7_Types.hpp"

/// A law as the integration sees it: left ends of the intervals, and a polynomial of the strain for each.
struct vue_loi {
  std::span<const double> epsilons;
  std::span<const qb7_polynome> coeffs;
  int degre = 0;  ///< highest degree with a coefficient that is not zero
};

/// Law and plane of strain under which a zone, or a hole in it, is integrated.
struct contexte_zone {
  vue_loi loi;
  deformation plan;
};

/// Forces and tangent; the tangent is zero where it was not asked for.
struct resultante {
  efforts eff;
  rigidite mat;

  constexpr resultante& operator+=(const resultante& r) {
    eff += r.eff;
    mat += r.mat;
    return *this;
  }
  constexpr resultante& operator-=(const resultante& r) {
    eff -= r.eff;
    mat -= r.mat;
    return *this;
  }
  constexpr resultante& operator*=(double k) {
    eff *= k;
    mat *= k;
    return *this;
  }
  friend constexpr resultante operator+(resultante a, const resultante& b) { return a += b; }
  friend constexpr resultante operator-(resultante a, const resultante& b) { return a -= b; }
  friend constexpr resultante operator*(double k, resultante r) { return r *= k; }
};

/// Highest degree with a coefficient that is not zero.
int int_degre_effectif(std::span<const qb7_polynome> coeffs);

/// Closed polygon, the last point joined to the first. Counter-clockwise in (y, z) counts as positive; a
/// clockwise one gives the opposite forces.
resultante int_efforts_contour(const contexte_zone& ctx, std::span<const point_yz> points,
                               bool avec_tangente);

/// Open polyline of constant thickness, its stress constant across it.
resultante int_efforts_profil(const contexte_zone& ctx, std::span<const point_yz> points, double epaisseur,
                              bool avec_tangente);

/// Points that carry the same area each.
resultante int_efforts_semis(const contexte_zone& ctx, std::span<const point_yz> points, double aire,
                             bool avec_tangente);

/// Area of the polygon (signed as above), length of the polyline.
double int_aire_contour(std::span<const point_yz> points);
double int_longueur_profil(std::span<const point_yz> points);
