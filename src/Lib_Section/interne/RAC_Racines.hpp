// Real roots of a polynomial, by closed formulas up to degree 3 and between the extremums above it.
// A polynomial is the list of its coefficients from degree 0 up; zero coefficients at the end do not count.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// The degree that rac_chercher goes up to.
constexpr std::size_t rac_degre_max = 8;

/// n_racs of a polynomial that is zero everywhere: every x is a root.
constexpr int rac_toutes = -15000;

/// Status of a polynomial of a degree above rac_degre_max; no root is given then.
constexpr int rac_degre_trop_eleve = 15000;

/// Roots in ascending order, each once, with its multiplicity; what lies past n_racs is zero.
struct racines {
  int n_racs = 0;
  std::array<double, rac_degre_max> racs{};
  std::array<int, rac_degre_max> rangs_racs{};
  int ier = 0;
};

/// What the roots must satisfy to be kept: bounds are included; impaires keeps the roots where the sign
/// changes.
struct filtre_racines {
  std::optional<double> x_inf = {};
  std::optional<double> x_sup = {};
  bool impaires = false;
};

/// Real roots of the polynomial. An extremum within 1e-14 of zero counts as a multiple root there.
racines rac_chercher(std::span<const double> poly, const filtre_racines& filtre = {});

/// Value at x, by Horner's scheme; an empty polynomial is zero.
double gen_valeur_poly(std::span<const double> poly, double x);
/// The same at each x of xs, in their order.
std::vector<double> gen_valeurs_poly(std::span<const double> poly, std::span<const double> xs);

/// Derivative; as long as the polynomial, its last coefficient is zero.
std::array<double, rac_degre_max + 1> rac_poly_derivee(std::span<const double> poly);
