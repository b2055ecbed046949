// Cubic splines with imposed or free slopes. Where a slope is free the second derivative is continuous, and
// zero at a free end; where it is imposed the curve is cut in two stretches that share a point and a slope.
#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

/// Abscissas 0 to n, and for each interval 1 to n the cubic in the local variable x - tab_x(k - 1), from
/// degree 0 up.
struct spline_type {
  std::vector<double> tab_x;
  std::vector<std::array<double, 4>> tab_coeffs;
};

/// In a table of slopes: the slope at this knot is free (2^28).
constexpr double spline_pente_libre = 268435456.0;

// Status of the operations below; 0 is success.
constexpr int spline_err_dimensions = 4110010;
constexpr int spline_err_abscisses = 4110020;
constexpr int spline_err_alignement = 4110030;
constexpr int spline_err_allocation = 4110040;
constexpr int spline_err_non_inversible = 4110050;
constexpr int spline_err_non_initialisee = 4110060;
constexpr int spline_err_intervalle = 4110070;
constexpr int spline_err_ordonnee_esclave = 4110080;
constexpr int spline_err_ordonnee_incorrecte = 4110090;

/// The sentence of a status; empty for a number that is none.
std::string_view spline_err_message(int ier);

/// Spline through (tab_x, tab_y) with the slopes tab_yp. On failure the spline is left empty.
/// 4110010: sizes differ, or fewer than two points; 4110020: abscissas that do not increase; 4110050: zero
/// pivot.
[[nodiscard]] int spline_definir(spline_type& spline, std::span<const double> tab_x,
                                 std::span<const double> tab_y, std::span<const double> tab_yp);

void spline_vider(spline_type& spline);

/// Number of intervals; 0 for an empty spline.
int spline_n_valeurs(const spline_type& spline);

/// Abscissas and ordinates of the knots.
std::vector<double> spline_tab_x(const spline_type& spline);
std::vector<double> spline_tab_y(const spline_type& spline);

/// Coefficients of interval k (from 1), in the local variable, or in the variable x itself.
/// 4110060: empty spline; 4110070: no such interval; the coefficients are then zero.
[[nodiscard]] int spline_coefficients(const spline_type& spline, int k, std::array<double, 4>& coeffs);
[[nodiscard]] int spline_coefficients_abs(const spline_type& spline, int k, std::array<double, 4>& coeffs);

struct spline_valeur {
  double y = 0, yp = 0, ys = 0;  ///< value, slope, second derivative
};

/// Value at x; the first and the last cubic are prolonged. 4110060: empty spline.
[[nodiscard]] int spline_valeurs(const spline_type& spline, double x, spline_valeur& valeur);
