// No analysis of the ways in which a section fails: forces are inside the diagram if the equilibrium is found
// from the zero plane, and the curve is met by halving along rays. The first rays find the frame of the curve
// and its four points on the axes; each of the others starts from the middle of the longest chord.
#include "QB7_Diagramme.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_Equilibre.hpp"
#include "QB7_PAR_Parametres.hpp"

namespace {

constexpr std::size_t nbre_pts_min = 4;
/// Of the width and height of the curve: how near a point comes to it.
constexpr double precision_relative = 0.001;
/// A chord is longer than another only by more than this (scaled and squared): chords that are equal but for
/// rounding are split in their order along the curve.
constexpr double ecart_des_cordes = 1e-8;

/// The plane: the point (x, y) stands for the forces col_0 + x col_x + y col_y.
struct plan_du_diagramme {
  bool bornes = true;  ///< of the equilibria
  efforts ligne_x, ligne_y;
  efforts col_0, col_x, col_y;
};

/// Two points of a ray with the curve between them.
struct encadrement {
  point_xy interieur, exterieur;
};

double loc_produit_scalaire(const efforts& a, const efforts& b) {
  return a.n * b.n + a.my * b.my + a.mz * b.mz;
}

efforts loc_produit_vectoriel(const efforts& a, const efforts& b) {
  return {a.my * b.mz - a.mz * b.my, a.mz * b.n - a.n * b.mz, a.n * b.my - a.my * b.n};
}

/// The columns of an inverse by cofactors are the vector products of the rows, over the determinant.
ier_2 loc_inverser_mat_plan(const matrice_3& mat_plan, double c, plan_du_diagramme& plan) {
  const auto ligne = [&](std::size_t i) { return efforts{mat_plan[i][0], mat_plan[i][1], mat_plan[i][2]}; };
  plan.ligne_x = ligne(0);
  plan.ligne_y = ligne(1);
  const efforts normale = ligne(2);
  const efforts cofacteurs_x = loc_produit_vectoriel(plan.ligne_y, normale);
  const double det = loc_produit_scalaire(plan.ligne_x, cofacteurs_x);
  if (det == 0) return err_traiter("LOC_Inverser_Mat_Plan", {ERR_MAT_PLAN});
  plan.col_x = 1 / det * cofacteurs_x;
  plan.col_y = 1 / det * loc_produit_vectoriel(normale, plan.ligne_x);
  plan.col_0 = c / det * loc_produit_vectoriel(plan.ligne_x, plan.ligne_y);
  return {};
}

/// Each search begins at the zero plane: one that failed has no influence on the next.
bool loc_est_interieur(const plan_du_diagramme& plan, point_xy p) {
  deformation deform;
  const ier_2 ier =
      eff_solliciter_section(plan.bornes, plan.col_0 + p.x * plan.col_x + p.y * plan.col_y, deform);
  return !ier || (!plan.bornes && ier.code == ERR_EPSILON_LIM);
}

// ---- A point of the curve on a ray ----

/// Outward by leaps that double, from a start that is inside.
ier_2 loc_sortir(const plan_du_diagramme& plan, point_xy depart, point_xy delta, encadrement& trouve) {
  trouve.interieur = depart;
  for (int a = 2; a <= 1024; a *= 2) {
    trouve.exterieur = trouve.interieur + a * delta;
    if (!loc_est_interieur(plan, trouve.exterieur)) return {};
    trouve.interieur = trouve.exterieur;
  }
  return {ERR_NON_POINT_EXT};
}

/// Backward from a start that is outside, by steps that shorten and leaps that grow in turn: to look near and
/// far.
ier_2 loc_rentrer(const plan_du_diagramme& plan, point_xy depart, point_xy delta, encadrement& trouve) {
  constexpr std::array pas = {0.5,        1.3,         0.25,         1.69,         0.125,
                              2.197,      0.0625,      2.8561,       0.03125,      3.71293,
                              0.015625,   4.826809,    0.0078125,    6.2748517,    0.00390625,
                              8.15730721, 0.001953125, 10.604499373, 0.0009765625, 13.7858491849};
  trouve.exterieur = depart;
  for (const double a : pas) {
    trouve.interieur = trouve.exterieur - a * delta;
    if (loc_est_interieur(plan, trouve.interieur)) return {};
    trouve.exterieur = trouve.interieur;
  }
  return {ERR_NON_POINT_INT};
}

/// By halving; the last point tried, which may lie outside by less than the tolerance.
point_xy loc_serrer(const plan_du_diagramme& plan, const encadrement& limites, point_xy epsilon_xy) {
  const point_xy corde = limites.exterieur - limites.interieur;
  double dedans = 0;
  double dehors = 1;
  for (;;) {
    const double t = (dedans + dehors) / 2;
    const point_xy p = limites.interieur + t * corde;
    const bool au_bout = t == dedans || t == dehors;  // no number between them: a tolerance of zero
    (loc_est_interieur(plan, p) ? dedans : dehors) = t;
    const double reste = dehors - dedans;
    const bool assez_pres =
        std::abs(corde.x) * reste <= epsilon_xy.x && std::abs(corde.y) * reste <= epsilon_xy.y;
    if (assez_pres || au_bout) return p;
  }
}

/// The curve on the ray from depart along delta. ERR_NON_POINT_EXT, ERR_NON_POINT_INT: not met.
ier_2 loc_chercher_point(const plan_du_diagramme& plan, point_xy depart, point_xy delta, point_xy epsilon_xy,
                         point_xy& point) {
  encadrement limites;
  const ier_2 ier = loc_est_interieur(plan, depart) ? loc_sortir(plan, depart, delta, limites)
                                                    : loc_rentrer(plan, depart, delta, limites);
  if (!ier) point = loc_serrer(plan, limites, epsilon_xy);
  return err_traiter("LOC_Chercher_Point", ier);
}

// ---- Frame of the curve ----

/// A tenth of the largest forces of ten planes around the zero plane, strains within 1/100 of the largest.
point_xy loc_estimer_cadre_xy(const plan_du_diagramme& plan) {
  constexpr int nbre_plans = 10;
  const double dx = qb7_par.qb7_par_deform_max / 100;
  const double pas = 2 * dx / nbre_plans;
  point_xy plus_grand;
  // a law without a finite stress at such strains tells nothing of the size
  const auto retenir = [](double& maximum, double x) {
    if (std::isfinite(x)) maximum = std::max(maximum, std::abs(x));
  };
  for (int k = 0; k < nbre_plans; ++k) {
    const double e0 = k * pas - dx;
    const double courbure = (pas + e0) / 5;
    efforts f;
    eff_efforts_section({e0, courbure, courbure}, f);
    retenir(plus_grand.x, loc_produit_scalaire(plan.ligne_x, f));
    retenir(plus_grand.y, loc_produit_scalaire(plan.ligne_y, f));
  }
  return {plus_grand.x / 10, plus_grand.y / 10};
}

ier_2 loc_chercher_pt_interieur(const plan_du_diagramme& plan, point_xy cadre, point_xy& depart) {
  constexpr std::array<point_xy, 8> dir = {
      {{1, 0}, {0.5, 0.5}, {0.5, -0.5}, {0, 1}, {0, -1}, {-0.5, 0.5}, {-0.5, -0.5}, {-1, 0}}};
  depart = {};
  if (loc_est_interieur(plan, depart)) return {};
  for (const point_xy& d : dir) {
    for (int k = 1; k <= 10; ++k) {
      depart = {k * d.x * cadre.x, k * d.y * cadre.y};
      if (loc_est_interieur(plan, depart)) return {};
    }
  }
  return err_traiter("LOC_Chercher_Pt_Interieur", {ERR_NON_POINT_INT});
}

/// Moves the start towards the middle of the curve and grows the frame to its real width and height: by
/// diameters of the curve in turn along the axes, until two have passed the test, then along the diagonals.
ier_2 loc_ameliorer_pt_et_cadre(const plan_du_diagramme& plan, point_xy& cadre, point_xy& depart) {
  const auto [cx, cy] = cadre;
  const point_xy epsilon_xy = precision_relative * cadre;
  const std::array<point_xy, 8> tab_delta_xy = {
      {{cx, 0}, {-cx, 0}, {0, cy}, {0, -cy}, {cx, cy}, {-cx, -cy}, {-cx, cy}, {cx, -cy}}};
  bool on_a_un_premier_cadre = false;
  for (std::size_t i = 0; i < tab_delta_xy.size(); i += 2) {
    std::array<point_xy, 2> diametre;
    for (std::size_t bout = 0; bout < 2; ++bout) {
      const ier_2 ier = loc_chercher_point(plan, depart, tab_delta_xy[i + bout], epsilon_xy, diametre[bout]);
      if (ier) return err_traiter("LOC_Ameliorer_Pt_Et_Cadre", ier);
    }
    const point_xy etendue = diametre[1] - diametre[0];
    cadre = {std::max(cadre.x, std::abs(etendue.x)), std::max(cadre.y, std::abs(etendue.y))};
    depart = 0.5 * (diametre[0] + diametre[1]);
    if (on_a_un_premier_cadre) return {};
    on_a_un_premier_cadre = cadre.x > epsilon_xy.x && cadre.y > epsilon_xy.y;
  }
  return {};
}

// ---- Points of the curve ----

ier_2 loc_chercher_4_premiers_points(const plan_du_diagramme& plan, point_xy cadre, point_xy depart,
                                     std::span<point_xy> xy_points) {
  const point_xy d = 0.1 * cadre;
  const std::array<point_xy, nbre_pts_min> axes = {{{d.x, 0}, {0, d.y}, {-d.x, 0}, {0, -d.y}}};
  for (std::size_t i = 0; i < axes.size(); ++i) {
    const ier_2 ier = loc_chercher_point(plan, depart, axes[i], precision_relative * cadre, xy_points[i]);
    if (ier) return err_traiter("LOC_Chercher_4_Premiers_Points", ier);
  }
  return {};
}

point_xy loc_etendue(std::span<const point_xy> points) {
  const auto [gauche, droite] = std::ranges::minmax(points, {}, &point_xy::x);
  const auto [bas, haut] = std::ranges::minmax(points, {}, &point_xy::y);
  return {droite.x - gauche.x, haut.y - bas.y};
}

/// Rank of the point where the longest chord begins; its coordinates are scaled to count alike.
std::size_t loc_plus_longue_corde(std::span<const point_xy> points, point_xy cadre) {
  const auto longueur_2 = [&](std::size_t i) {
    const point_xy corde = points[(i + 1) % points.size()] - points[i];
    const double dx = corde.x * cadre.y;
    const double dy = corde.y * cadre.x;
    return dx * dx + dy * dy;
  };
  std::size_t rang = 0;
  double d2_max = longueur_2(0);
  for (std::size_t i = 1; i < points.size(); ++i) {
    const double d2 = longueur_2(i);
    if (!(d2 > d2_max + ecart_des_cordes)) continue;
    rang = i;
    d2_max = d2;
  }
  return rang;
}

/// A twentieth of the normal to a chord, outward; a frame without width or height has none.
point_xy loc_normale(point_xy corde, point_xy cadre) {
  if (cadre.x == 0 || cadre.y == 0) return {};
  return {0.05 * corde.y * cadre.x / cadre.y, -0.05 * corde.x * cadre.y / cadre.x};
}

/// Splits the longest chord, again and again. Where its ray does not meet the curve the new point is its
/// middle.
void loc_chercher_pts_suivants(const plan_du_diagramme& plan, std::span<point_xy> xy_points) {
  for (std::size_t n = nbre_pts_min; n < xy_points.size(); ++n) {
    const std::span<const point_xy> points = xy_points.first(n);
    const point_xy cadre = loc_etendue(points);
    const std::size_t rang = loc_plus_longue_corde(points, cadre);
    const point_xy a = points[rang];
    const point_xy b = points[(rang + 1) % n];
    const point_xy milieu = 0.5 * (a + b);
    point_xy nouveau;
    if (loc_chercher_point(plan, milieu, loc_normale(b - a, cadre), precision_relative * cadre, nouveau))
      nouveau = milieu;
    std::ranges::copy_backward(points.subspan(rang + 1),
                               xy_points.begin() + static_cast<std::ptrdiff_t>(n) + 1);
    xy_points[rang + 1] = nouveau;
  }
}

ier_2 loc_interaction(bool bornes, gbd_section& section, int num_etat_lim, const matrice_3& mat_plan,
                      double c, std::span<point_xy> xy_points) {
  if (xy_points.size() < nbre_pts_min) return {ERR_NBRE_PTS_DGI, static_cast<int>(xy_points.size())};
  plan_du_diagramme plan;
  plan.bornes = bornes;
  if (const ier_2 ier = loc_inverser_mat_plan(mat_plan, c, plan)) return ier;
  if (const ier_2 ier = eff_section_calcul(section, num_etat_lim)) return ier;
  point_xy cadre = loc_estimer_cadre_xy(plan);
  point_xy depart;
  if (const ier_2 ier = loc_chercher_pt_interieur(plan, cadre, depart)) return ier;
  if (const ier_2 ier = loc_ameliorer_pt_et_cadre(plan, cadre, depart)) return ier;
  if (const ier_2 ier = loc_chercher_4_premiers_points(plan, cadre, depart, xy_points)) return ier;
  loc_chercher_pts_suivants(plan, xy_points);
  return {};
}

}  // namespace

ier_2 dgi_interaction(bool bornes, gbd_section& section, int num_etat_lim, const matrice_3& mat_plan,
                      double c, std::span<point_xy> xy_points) {
  return err_traiter("DGI_Interaction",
                     loc_interaction(bornes, section, num_etat_lim, mat_plan, c, xy_points));
}
