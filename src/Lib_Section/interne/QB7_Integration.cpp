#include "QB7_Integration.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// ---- Along a piece of edge ----

/// A piece of edge inside one interval of the law: its start, its extent, the strain there and its change.
/// (x, v) is (y, z), or the axes that the plane of strain turns them into.
struct troncon {
  double x1, v1, dx, dv, e1, de;
};

/// 1/k for the integrals of t^(k-1); the first one is never used.
constexpr std::array<double, 8> inverses = {0, 1, 1.0 / 2, 1.0 / 3, 1.0 / 4, 1.0 / 5, 1.0 / 6, 1.0 / 7};

/// Coefficients of the polynomial a in t, for a strain e1 + t de: Taylor's, by repeated synthetic division.
template <std::size_t degre>
constexpr std::array<double, degre + 1> loc_contrainte_en_t(const qb7_polynome& a, double e1, double de) {
  std::array<double, degre + 1> c{};
  std::copy_n(a.begin(), degre + 1, c.begin());
  for (std::size_t debut = 0; debut < degre; ++debut) {
    for (std::size_t k = degre; k > debut; --k) c[k - 1] += e1 * c[k];
  }
  double puissance = 1;
  for (std::size_t k = 1; k <= degre; ++k) {
    puissance *= de;
    c[k] *= puissance;
  }
  return c;
}

/// The same of the derivative of a by the strain.
template <std::size_t degre>
constexpr std::array<double, degre> loc_pente_en_t(const qb7_polynome& a, double e1, double de) {
  qb7_polynome derivee{};
  for (std::size_t k = 1; k <= degre; ++k) derivee[k - 1] = static_cast<double>(k) * a[k];
  return loc_contrainte_en_t<degre - 1>(derivee, e1, de);
}

/// ∫₀¹ c(t) t^q dt for q = 0, 1 ... nombre - 1.
template <std::size_t nombre, std::size_t taille>
constexpr std::array<double, nombre> loc_moments(const std::array<double, taille>& c) {
  std::array<double, nombre> m{};
  for (std::size_t q = 0; q < nombre; ++q) {
    for (std::size_t k = 0; k < taille; ++k) m[q] += c[k] * inverses[k + q + 1];
  }
  return m;
}

/// A law of tension or of compression alone has an interval without stress: nothing is to be summed there.
template <std::size_t degre>
bool loc_sans_contrainte(const qb7_polynome& a) {
  return std::all_of(a.begin(), a.begin() + degre + 1, [](double c) { return c == 0; });
}

// ---- Cutting edges at the knots of the law ----

/// The interval of a strain, from 0: a strain on a knot belongs to the interval above it.
std::size_t loc_intervalle(std::span<const double> epsilons, double epsilon) {
  std::size_t k = 1;
  while (k < epsilons.size() && !(epsilons[k] > epsilon)) ++k;
  return k - 1;
}

/// A point of an outline with the strain there.
struct sommet {
  double x, v, e;
};

/// Goes from `depart`, in the interval `intervalle`, to `arrivee`, cut where the strain passes a knot, and
/// calls ajouter(troncon, polynome) for each piece. The interval is carried and never looked up again: a
/// start on a knot going down makes a piece without length, and an edge along a knot belongs to the interval
/// it was reached in.
template <class fonction>
void loc_parcourir_arete(const vue_loi& loi, sommet depart, const sommet& arrivee, std::size_t& intervalle,
                         const fonction& ajouter) {
  for (;;) {
    const double de = arrivee.e - depart.e;
    const double dx = arrivee.x - depart.x;
    const double dv = arrivee.v - depart.v;
    std::size_t niveau = 0;
    if (de > 0 && intervalle + 1 < loi.epsilons.size() && arrivee.e > loi.epsilons[intervalle + 1]) {
      niveau = intervalle + 1;
    } else if (de < 0 && intervalle >= 1 && arrivee.e < loi.epsilons[intervalle]) {
      niveau = intervalle;
    }
    const qb7_polynome& a = loi.coeffs[intervalle];
    if (niveau == 0) {
      ajouter(troncon{depart.x, depart.v, dx, dv, depart.e, de}, a);
      return;
    }
    const double alpha = (loi.epsilons[niveau] - depart.e) / de;
    ajouter(troncon{depart.x, depart.v, alpha * dx, alpha * dv, depart.e, alpha * de}, a);
    depart = {depart.x + alpha * dx, depart.v + alpha * dv, loi.epsilons[niveau]};
    intervalle = de > 0 ? niveau : niveau - 1;
  }
}

// ---- Outline ----

/// Below this curvature an outline stays in (y, z): the direction of the strain's gradient is taken for that
/// of z.
constexpr double courbure_negligee = 1e-9;

/// Axes (u, v) in which the strain depends on v alone: u = y cosal + z sinal, v = z cosal - y sinal.
struct axes_deformation {
  double cosal = 1, sinal = 0;
};

axes_deformation loc_axes(const deformation& plan) {
  if (!(std::abs(plan.kz) >= courbure_negligee)) return {};
  const double h = std::sqrt(plan.ky * plan.ky + plan.kz * plan.kz);
  return {plan.ky / h, plan.kz / h};
}

/// From (u, v) back to (y, z).
resultante loc_depuis_axes(const axes_deformation& axes, const resultante& r) {
  if (axes.sinal == 0) return r;
  const auto [c, s] = axes;
  const auto& [f, k] = r;
  return {{f.n, c * f.my - s * f.mz, c * f.mz + s * f.my},
          {k.a1, c * k.a2 - s * k.a3, c * c * k.b2 + s * s * k.c3 - 2 * c * s * k.b3, c * k.a3 + s * k.a2,
           (c * c - s * s) * k.b3 + (k.b2 - k.c3) * c * s, c * c * k.c3 + s * s * k.b2 + 2 * c * s * k.b3}};
}

/// Forces of the area between the piece and the axis x = 0, by Green: every term holds ∫ f dx dv as ∮ F dv.
template <std::size_t degre>
void loc_ajouter_efforts_contour(const troncon& t, const qb7_polynome& a, efforts& eff) {
  const auto s = loc_moments<3>(loc_contrainte_en_t<degre>(a, t.e1, t.de));
  const double n = (s[0] * t.x1 + s[1] * t.dx) * t.dv;
  const double n_t = (s[1] * t.x1 + s[2] * t.dx) * t.dv;
  eff.n += n;
  eff.my += n * t.v1 + n_t * t.dv;
  eff.mz -= (n * t.x1 + n_t * t.dx) / 2;
}

template <std::size_t degre>
void loc_ajouter_tangente_contour(const troncon& t, const qb7_polynome& a, rigidite& mat) {
  if constexpr (degre > 0) {
    const auto r = loc_moments<4>(loc_pente_en_t<degre>(a, t.e1, t.de));
    const auto [x1, v1, dx, dv, e1, de] = t;
    const double l0 = (r[0] * x1 + r[1] * dx) * dv;
    const double l1 = (r[1] * x1 + r[2] * dx) * dv;
    const double k0 = ((r[0] * x1 + 2 * r[1] * dx) * x1 + r[2] * dx * dx) * dv;
    const double k1 = ((r[1] * x1 + 2 * r[2] * dx) * x1 + r[3] * dx * dx) * dv;
    const double v0 = (r[0] * v1 + 2 * r[1] * dv) * v1 + r[2] * dv * dv;
    const double v_t = (r[1] * v1 + 2 * r[2] * dv) * v1 + r[3] * dv * dv;
    mat.a1 += l0;
    mat.a2 += l0 * v1 + l1 * dv;
    mat.b2 += (x1 * v0 + dx * v_t) * dv;
    mat.a3 -= (x1 * l0 + dx * l1) / 2;
    mat.b3 -= (v1 * k0 + dv * k1) / 2;
    mat.c3 += (x1 * k0 + dx * k1) / 3;
  }
}

template <std::size_t degre, bool avec_tangente>
resultante loc_contour(const contexte_zone& ctx, std::span<const point_yz> points) {
  const axes_deformation axes = loc_axes(ctx.plan);
  const auto vers_sommet = [&ctx, &axes](const point_yz& p) -> sommet {
    return {p.y * axes.cosal + p.z * axes.sinal, p.z * axes.cosal - p.y * axes.sinal, epsilon(ctx.plan, p)};
  };
  resultante r;
  const auto ajouter = [&r](const troncon& t, const qb7_polynome& a) {
    if (t.dv == 0 || loc_sans_contrainte<degre>(a)) return;  // every term holds the factor dv
    loc_ajouter_efforts_contour<degre>(t, a, r.eff);
    if constexpr (avec_tangente) loc_ajouter_tangente_contour<degre>(t, a, r.mat);
  };
  sommet depart = vers_sommet(points.back());
  std::size_t intervalle = loc_intervalle(ctx.loi.epsilons, depart.e);
  for (const point_yz& p : points) {
    const sommet arrivee = vers_sommet(p);
    loc_parcourir_arete(ctx.loi, depart, arrivee, intervalle, ajouter);
    depart = arrivee;
  }
  return loc_depuis_axes(axes, r);
}

// ---- Profile ----

template <std::size_t degre>
void loc_ajouter_efforts_profil(const troncon& t, const qb7_polynome& a, double aire, efforts& eff) {
  const auto s = loc_moments<2>(loc_contrainte_en_t<degre>(a, t.e1, t.de));
  eff.n += s[0] * aire;
  eff.my += (t.v1 * s[0] + t.dv * s[1]) * aire;
  eff.mz -= (t.x1 * s[0] + t.dx * s[1]) * aire;
}

template <std::size_t degre>
void loc_ajouter_tangente_profil(const troncon& t, const qb7_polynome& a, double aire, rigidite& mat) {
  if constexpr (degre > 0) {
    const auto r = loc_moments<3>(loc_pente_en_t<degre>(a, t.e1, t.de));
    const double y0 = t.x1 * r[0] + t.dx * r[1];
    const double y_t = t.x1 * r[1] + t.dx * r[2];
    const double z0 = t.v1 * r[0] + t.dv * r[1];
    const double z_t = t.v1 * r[1] + t.dv * r[2];
    mat.a1 += r[0] * aire;
    mat.a2 += z0 * aire;
    mat.b2 += (t.v1 * z0 + t.dv * z_t) * aire;
    mat.a3 -= y0 * aire;
    mat.b3 -= (t.v1 * y0 + t.dv * y_t) * aire;
    mat.c3 += (t.x1 * y0 + t.dx * y_t) * aire;
  }
}

template <std::size_t degre, bool avec_tangente>
resultante loc_profil(const contexte_zone& ctx, std::span<const point_yz> points, double epaisseur) {
  const auto vers_sommet = [&](const point_yz& p) -> sommet { return {p.y, p.z, epsilon(ctx.plan, p)}; };
  resultante r;
  const auto ajouter = [&r, epaisseur](const troncon& t, const qb7_polynome& a) {
    if (loc_sans_contrainte<degre>(a)) return;
    const double aire = epaisseur * std::sqrt(t.dx * t.dx + t.dv * t.dv);
    loc_ajouter_efforts_profil<degre>(t, a, aire, r.eff);
    if constexpr (avec_tangente) loc_ajouter_tangente_profil<degre>(t, a, aire, r.mat);
  };
  sommet depart = vers_sommet(points.front());
  std::size_t intervalle = loc_intervalle(ctx.loi.epsilons, depart.e);
  for (const point_yz& p : points.subspan(1)) {
    const sommet arrivee = vers_sommet(p);
    loc_parcourir_arete(ctx.loi, depart, arrivee, intervalle, ajouter);
    depart = arrivee;
  }
  return r;
}

// ---- Bars ----

template <std::size_t degre, bool avec_tangente>
resultante loc_semis(const contexte_zone& ctx, std::span<const point_yz> points, double aire) {
  resultante r;
  for (const point_yz& p : points) {
    const double e = epsilon(ctx.plan, p);
    const qb7_polynome& a = ctx.loi.coeffs[loc_intervalle(ctx.loi.epsilons, e)];
    double sigma = a[degre];
    double dsigma = 0;
    for (std::size_t k = degre; k > 0; --k) {
      dsigma = dsigma * e + sigma;
      sigma = sigma * e + a[k - 1];
    }
    const double n = sigma * aire;
    r.eff += {n, n * p.z, -n * p.y};
    if constexpr (avec_tangente) {
      const double dn = dsigma * aire;
      r.mat += {dn, dn * p.z, dn * p.z * p.z, -dn * p.y, -dn * p.y * p.z, dn * p.y * p.y};
    }
  }
  return r;
}

/// Calls the routine that is compiled for the degree of the law, with or without the tangent.
template <class fonction>
resultante loc_selon_degre(int degre, bool avec_tangente, const fonction& f) {
  const auto appeler = [&]<std::size_t d>() {
    return avec_tangente ? f.template operator()<d, true>() : f.template operator()<d, false>();
  };
  switch (degre) {
    case 0: return appeler.template operator()<0>();
    case 1: return appeler.template operator()<1>();
    case 2: return appeler.template operator()<2>();
    default: return appeler.template operator()<3>();
  }
}

}  // namespace

int int_degre_effectif(std::span<const qb7_polynome> coeffs) {
  std::size_t degre = 0;
  for (const qb7_polynome& a : coeffs) {
    for (std::size_t k = degre + 1; k < a.size(); ++k) {
      if (a[k] != 0) degre = k;
    }
  }
  return static_cast<int>(degre);
}

resultante int_efforts_contour(const contexte_zone& ctx, std::span<const point_yz> points,
                               bool avec_tangente) {
  if (points.empty()) return {};
  return loc_selon_degre(ctx.loi.degre, avec_tangente, [&]<std::size_t degre, bool tangente>() {
    return loc_contour<degre, tangente>(ctx, points);
  });
}

resultante int_efforts_profil(const contexte_zone& ctx, std::span<const point_yz> points, double epaisseur,
                              bool avec_tangente) {
  if (points.empty()) return {};
  return loc_selon_degre(ctx.loi.degre, avec_tangente, [&]<std::size_t degre, bool tangente>() {
    return loc_profil<degre, tangente>(ctx, points, epaisseur);
  });
}

resultante int_efforts_semis(const contexte_zone& ctx, std::span<const point_yz> points, double aire,
                             bool avec_tangente) {
  return loc_selon_degre(ctx.loi.degre, avec_tangente, [&]<std::size_t degre, bool tangente>() {
    return loc_semis<degre, tangente>(ctx, points, aire);
  });
}

double int_aire_contour(std::span<const point_yz> points) {
  if (points.empty()) return 0;
  double double_aire = 0;
  point_yz depart = points.back();
  for (const point_yz& p : points) {
    double_aire += (depart.y + p.y) * (p.z - depart.z);
    depart = p;
  }
  return double_aire / 2;
}

double int_longueur_profil(std::span<const point_yz> points) {
  double longueur = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const double dy = points[i].y - points[i - 1].y;
    const double dz = points[i].z - points[i - 1].z;
    longueur += std::sqrt(dy * dy + dz * dz);
  }
  return longueur;
}
