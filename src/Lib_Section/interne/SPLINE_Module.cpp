#include "SPLINE_Module.hpp"

#include <algorithm>

namespace {

/// Knots and slopes of a spline in the making; dx(k) and pente(k) belong to the interval that ends at knot k.
struct donnees_spline {
  std::span<const double> x;
  std::span<const double> y;
  std::vector<double> yp;

  double dx(std::size_t k) const { return x[k] - x[k - 1]; }
  double corde(std::size_t k) const { return (y[k] - y[k - 1]) / dx(k); }
  bool libre(std::size_t k) const { return yp[k] == spline_pente_libre; }
  std::size_t dernier() const { return x.size() - 1; }
};

/// One row of the tridiagonal system of slopes: inf yp(k-1) + diag yp(k) + sup yp(k+1) = second_membre.
struct ligne_pentes {
  double inf = 0, diag = 1, sup = 0, second_membre = 0;
};

/// Continuity of the second derivative at a free knot, zero second derivative at a free end, imposed slope
/// elsewhere.
ligne_pentes loc_ligne(const donnees_spline& s, std::size_t k) {
  if (!s.libre(k)) return {.second_membre = s.yp[k]};
  if (k == 0) return {.diag = 2, .sup = 1, .second_membre = 3 * s.corde(1)};
  if (k == s.dernier()) return {.inf = 1, .diag = 2, .second_membre = 3 * s.corde(k)};
  const double g = 1 / s.dx(k);
  const double d = 1 / s.dx(k + 1);
  return {
      .inf = g, .diag = 2 * (g + d), .sup = d, .second_membre = 3 * (s.corde(k) * g + s.corde(k + 1) * d)};
}

/// Slopes of the stretch [deb, fin]: forward elimination yp(k) = alpha(k) yp(k+1) + beta(k), back
/// substitution.
int loc_resoudre(donnees_spline& s, std::size_t deb, std::size_t fin) {
  std::vector<double> alpha(fin - deb + 1);
  std::vector<double> beta(fin - deb + 1);
  for (std::size_t k = deb; k <= fin; ++k) {
    const ligne_pentes l = loc_ligne(s, k);
    const std::size_t i = k - deb;
    const double pivot = i == 0 ? l.diag : l.diag + l.inf * alpha[i - 1];
    if (pivot == 0) return spline_err_non_inversible;
    alpha[i] = -l.sup / pivot;
    beta[i] = (l.second_membre - (i == 0 ? 0 : l.inf * beta[i - 1])) / pivot;
  }
  double suivant = 0;
  for (std::size_t k = fin + 1; k-- > deb;) suivant = s.yp[k] = alpha[k - deb] * suivant + beta[k - deb];
  return 0;
}

/// The imposed knots cut the curve in stretches, which are solved one by one.
int loc_resoudre_les_troncons(donnees_spline& s) {
  std::size_t deb = 0;
  for (std::size_t extremite = 1; extremite <= s.dernier(); ++extremite) {
    if (extremite < s.dernier() && s.libre(extremite)) continue;
    if (const int ier = loc_resoudre(s, deb, extremite)) return ier;
    deb = extremite;
  }
  return 0;
}

/// Cubic of an interval from its end values and slopes, in the local variable.
std::array<double, 4> loc_coefficients(double dx, double y0, double y1, double yp0, double yp1) {
  const double p = (y1 - y0) / dx;
  return {y0, yp0, (3 * p - 2 * yp0 - yp1) / dx, (yp0 + yp1 - 2 * p) / (dx * dx)};
}

/// The interval of x, from 0; the first or the last one for x outside.
std::size_t loc_intervalle(const spline_type& s, double x) {
  const auto interieurs = std::span(s.tab_x).subspan(1, s.tab_coeffs.size() - 1);
  return static_cast<std::size_t>(std::upper_bound(interieurs.begin(), interieurs.end(), x) -
                                  interieurs.begin());
}

}  // namespace

std::string_view spline_err_message(int ier) {
  switch (ier) {
    case 0: return "Aucune erreur detectee";
    case spline_err_dimensions: return "Dimensions des tableaux d'appel incorrectes";
    case spline_err_abscisses: return "Abscisses non ordonnees";
    case spline_err_alignement: return "Une condition d'alignement droit ne peut etre satisfaite";
    case spline_err_allocation: return "Echec d'allocation dynamique";
    case spline_err_non_inversible: return "Systeme non inversible";
    case spline_err_non_initialisee: return "SPLINE non initialisee";
    case spline_err_intervalle: return "Numero d'intervalle incorrect";
    case spline_err_ordonnee_esclave: return "Ordonnee de point esclave > 1 pour un intervalle ";
    case spline_err_ordonnee_incorrecte: return "Ordonnee de point esclave incorrecte";
    default: return {};
  }
}

int spline_definir(spline_type& spline, std::span<const double> tab_x, std::span<const double> tab_y,
                   std::span<const double> tab_yp) {
  spline_vider(spline);
  if (tab_x.size() < 2 || tab_y.size() != tab_x.size() || tab_yp.size() != tab_x.size())
    return spline_err_dimensions;
  if (std::adjacent_find(tab_x.begin(), tab_x.end(), [](double a, double b) { return !(a < b); }) !=
      tab_x.end()) {
    return spline_err_abscisses;
  }
  donnees_spline s{tab_x, tab_y, {tab_yp.begin(), tab_yp.end()}};
  if (const int ier = loc_resoudre_les_troncons(s)) return ier;
  spline.tab_x.assign(tab_x.begin(), tab_x.end());
  for (std::size_t k = 1; k <= s.dernier(); ++k) {
    spline.tab_coeffs.push_back(loc_coefficients(s.dx(k), s.y[k - 1], s.y[k], s.yp[k - 1], s.yp[k]));
  }
  return 0;
}

void spline_vider(spline_type& spline) { spline = {}; }

int spline_n_valeurs(const spline_type& spline) { return static_cast<int>(spline.tab_coeffs.size()); }

std::vector<double> spline_tab_x(const spline_type& spline) { return spline.tab_x; }

std::vector<double> spline_tab_y(const spline_type& spline) {
  std::vector<double> tab_y;
  for (const double x : spline.tab_x) {
    spline_valeur v;
    if (spline_valeurs(spline, x, v) == 0) tab_y.push_back(v.y);
  }
  return tab_y;
}

int spline_coefficients(const spline_type& spline, int k, std::array<double, 4>& coeffs) {
  coeffs = {};
  if (spline.tab_coeffs.empty()) return spline_err_non_initialisee;
  if (k < 1 || k > spline_n_valeurs(spline)) return spline_err_intervalle;
  coeffs = spline.tab_coeffs[static_cast<std::size_t>(k - 1)];
  return 0;
}

int spline_coefficients_abs(const spline_type& spline, int k, std::array<double, 4>& coeffs) {
  if (const int ier = spline_coefficients(spline, k, coeffs)) return ier;
  const auto [a, b, c, d] = coeffs;
  const double x0 = spline.tab_x[static_cast<std::size_t>(k - 1)];
  coeffs = {a + ((c - d * x0) * x0 - b) * x0, (3 * d * x0 - 2 * c) * x0 + b, c - 3 * d * x0, d};
  return 0;
}

int spline_valeurs(const spline_type& spline, double x, spline_valeur& valeur) {
  valeur = {};
  if (spline.tab_coeffs.empty()) return spline_err_non_initialisee;
  const std::size_t i = loc_intervalle(spline, x);
  const auto [a, b, c, d] = spline.tab_coeffs[i];
  const double t = x - spline.tab_x[i];
  valeur = {((d * t + c) * t + b) * t + a, (3 * d * t + 2 * c) * t + b, 6 * d * t + 2 * c};
  return 0;
}
