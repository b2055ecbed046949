#include "RAC_Racines.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace {

/// A value of the polynomial that counts as zero, in the unit of its values.
constexpr double tolerance_valeur = 1e-14;
/// A slope under which a Newton step would leap away.
constexpr double pente_minimale = 1e-8;

void loc_ajouter(racines& r, double x, int rang) {
  const auto i = static_cast<std::size_t>(r.n_racs);
  r.racs[i] = x;
  r.rangs_racs[i] = rang;
  ++r.n_racs;
}

std::span<const double> loc_degre_effectif(std::span<const double> poly) {
  std::size_t n = poly.size();
  while (n > 0 && poly[n - 1] == 0) --n;
  return poly.first(n);
}

racines loc_degre_1(std::span<const double> poly) {
  racines r;
  loc_ajouter(r, -poly[0] / poly[1], 1);
  return r;
}

racines loc_degre_2(std::span<const double> poly) {
  const double a = poly[2];
  const double b = poly[1];
  const double c = poly[0];
  const double x0 = -b / (2 * a);
  const double y0 = gen_valeur_poly(poly, x0);
  racines r;
  if (std::abs(y0) <= tolerance_valeur) {
    loc_ajouter(r, x0, 2);
  } else if ((y0 > 0) != (a > 0) && b == 0) {
    const double x = std::sqrt(-c / a);
    loc_ajouter(r, -x, 1);
    loc_ajouter(r, x, 1);
  } else if ((y0 > 0) != (a > 0)) {
    // b and the square root are added with one sign, so that nothing cancels; the other root follows from x1
    // x2 = c/a.
    const double d = b + std::copysign(std::sqrt(b * b - 4 * a * c), b);
    const double x1 = -d / (2 * a);
    const double x2 = -2 * c / d;
    loc_ajouter(r, std::min(x1, x2), 1);
    loc_ajouter(r, std::max(x1, x2), 1);
  }
  return r;
}

/// x^3 + b x^2 + c x + d, by the depressed form in x + b/3.
struct cubique_unitaire {
  double b, c, d;
};

cubique_unitaire loc_poly_normal(std::span<const double> poly) {
  return {poly[2] / poly[3], poly[1] / poly[3], poly[0] / poly[3]};
}

/// The one real root of t^3 + p t + q where (q/2)^2 + (p/3)^3 = delta > 0: cube roots, of the larger term
/// first.
double int_rac_3(double p, double q, double delta) {
  const double u = -std::copysign(std::cbrt(std::abs(q) / 2 + std::sqrt(delta)), q);
  return u - p / (3 * u);
}

/// The double or triple root of a cubic, where an extremum touches the axis; none in most cubics.
std::optional<racines> loc_racine_multiple(std::span<const double> poly, const cubique_unitaire& m) {
  const auto derivee = rac_poly_derivee(poly);
  const racines extremums = loc_degre_2(std::span(derivee).first(3));
  racines r;
  for (std::size_t i = 0; i < static_cast<std::size_t>(extremums.n_racs); ++i) {
    const double x = extremums.racs[i];
    if (std::abs(gen_valeur_poly(poly, x)) > tolerance_valeur) continue;
    const double simple = -m.b - 2 * x;
    if (extremums.rangs_racs[i] == 2 || simple == x) {
      loc_ajouter(r, x, 3);
    } else {
      loc_ajouter(r, std::min(x, simple), simple < x ? 1 : 2);
      loc_ajouter(r, std::max(x, simple), simple < x ? 2 : 1);
    }
    return r;
  }
  return {};
}

racines loc_degre_3(std::span<const double> poly) {
  const cubique_unitaire m = loc_poly_normal(poly);
  if (const auto multiple = loc_racine_multiple(poly, m)) return *multiple;
  const double x0 = -m.b / 3;
  const double p = m.c - m.b * m.b / 3;
  const double q = m.b * (2 * m.b * m.b - 9 * m.c) / 27 + m.d;
  const double delta = q * q / 4 + p * p * p / 27;
  racines r;
  if (delta >= 0) {
    loc_ajouter(r, x0 + (q == 0 && delta == 0 ? 0 : int_rac_3(p, q, delta)), 1);
    return r;
  }
  const double rayon = 2 * std::sqrt(-p / 3);
  const double phi_sur_3 = std::acos(std::clamp(-4 * q / (rayon * rayon * rayon), -1.0, 1.0)) / 3;
  for (const double k : {1.0, -1.0, 0.0}) {
    loc_ajouter(r, x0 + rayon * std::cos(phi_sur_3 + k * 2 * std::numbers::pi / 3), 1);
  }
  std::sort(r.racs.begin(), r.racs.begin() + 3);
  return r;
}

/// The root between a and b, where the polynomial is monotonic and its values have opposite signs.
double loc_dichotomie(std::span<const double> poly, double a, double b) {
  const bool croissant = gen_valeur_poly(poly, b) > 0;
  for (double x = std::midpoint(a, b); x > a && x < b; x = std::midpoint(a, b)) {
    ((gen_valeur_poly(poly, x) > 0) == croissant ? b : a) = x;
  }
  return std::midpoint(a, b);
}

/// No root is larger in absolute value (Cauchy).
double loc_borne_des_racines(std::span<const double> poly) {
  double plus_grand = 0;
  for (const double c : poly.first(poly.size() - 1))
    plus_grand = std::max(plus_grand, std::abs(c / poly.back()));
  return 1 + plus_grand;
}

racines loc_racines_reelles(std::span<const double> poly);

/// Degree 4 and more: between two extremums the polynomial is monotonic and has one root or none.
racines loc_degre_4(std::span<const double> poly) {
  const auto derivee = rac_poly_derivee(poly);
  const racines extremums = loc_racines_reelles(std::span(derivee).first(poly.size() - 1));
  const double borne = loc_borne_des_racines(poly);
  racines r;
  double gauche = -borne;
  bool gauche_nulle = false;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(extremums.n_racs); ++i) {
    const bool dernier = i == static_cast<std::size_t>(extremums.n_racs);
    const double droite = dernier ? borne : extremums.racs[i];
    const bool droite_nulle = !dernier && std::abs(gen_valeur_poly(poly, droite)) <= tolerance_valeur;
    const bool change = (gen_valeur_poly(poly, gauche) > 0) != (gen_valeur_poly(poly, droite) > 0);
    if (!gauche_nulle && !droite_nulle && change) loc_ajouter(r, loc_dichotomie(poly, gauche, droite), 1);
    if (droite_nulle) loc_ajouter(r, droite, extremums.rangs_racs[i] + 1);
    gauche = droite;
    gauche_nulle = droite_nulle;
  }
  return r;
}

racines loc_racines_reelles(std::span<const double> poly) {
  switch (const auto p = loc_degre_effectif(poly); p.size()) {
    case 0:
    case 1: return {};
    case 2: return loc_degre_1(p);
    case 3: return loc_degre_2(p);
    case 4: return loc_degre_3(p);
    default: return loc_degre_4(p);
  }
}

/// One Newton step from x, halved until the value falls; false when nothing more is to be gained.
bool loc_ameliorer(std::span<const double> poly, std::span<const double> derivee, double& x) {
  const double v = gen_valeur_poly(poly, x);
  if (std::abs(v) <= tolerance_valeur) return false;
  const double d = gen_valeur_poly(derivee, x);
  if (std::abs(d) < pente_minimale) return false;
  double candidat = x - v / d;
  for (int essai = 1; essai <= 4; ++essai) {
    const double w = gen_valeur_poly(poly, candidat);
    if (std::abs(w) < std::abs(v)) {
      x = candidat;
      return true;
    }
    if ((w > 0) == (v > 0)) return false;
    candidat = std::midpoint(candidat, x);
  }
  return false;
}

void loc_ameliorer_racs(std::span<const double> poly, racines& r) {
  const auto derivee = rac_poly_derivee(poly);
  for (std::size_t i = 0; i < static_cast<std::size_t>(r.n_racs); ++i) {
    if (r.rangs_racs[i] != 1) continue;
    for (int passe = 1; passe <= 4 && loc_ameliorer(poly, derivee, r.racs[i]); ++passe) {
    }
  }
}

racines loc_filtrer(const racines& toutes, const filtre_racines& filtre) {
  racines r;
  for (std::size_t i = 0; i < static_cast<std::size_t>(toutes.n_racs); ++i) {
    const double x = toutes.racs[i];
    if (filtre.impaires && toutes.rangs_racs[i] % 2 == 0) continue;
    if ((filtre.x_inf && x < *filtre.x_inf) || (filtre.x_sup && x > *filtre.x_sup)) continue;
    loc_ajouter(r, x, toutes.rangs_racs[i]);
  }
  return r;
}

}  // namespace

racines rac_chercher(std::span<const double> poly, const filtre_racines& filtre) {
  const auto p = loc_degre_effectif(poly);
  if (p.empty()) return {.n_racs = rac_toutes};
  if (p.size() > rac_degre_max + 1) return {.ier = rac_degre_trop_eleve};
  racines r = loc_racines_reelles(p);
  loc_ameliorer_racs(p, r);
  return loc_filtrer(r, filtre);
}

double gen_valeur_poly(std::span<const double> poly, double x) {
  double y = 0;
  for (std::size_t i = poly.size(); i > 0; --i) y = y * x + poly[i - 1];
  return y;
}

std::vector<double> gen_valeurs_poly(std::span<const double> poly, std::span<const double> xs) {
  std::vector<double> valeurs(xs.size());
  std::ranges::transform(xs, valeurs.begin(), [poly](double x) { return gen_valeur_poly(poly, x); });
  return valeurs;
}

std::array<double, rac_degre_max + 1> rac_poly_derivee(std::span<const double> poly) {
  std::array<double, rac_degre_max + 1> d{};
  for (std::size_t i = 1; i < poly.size(); ++i) d[i - 1] = static_cast<double>(i) * poly[i];
  return d;
}
