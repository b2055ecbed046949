#include "QB7_RDM.hpp"

#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>
#include <span>

#include "QB7_ERR_Erreurs.hpp"
#include "RAC_Racines.hpp"
#include "Simple.hpp"

using socle::simple;

namespace {

const qb7_polynome& loc_polynome(const gbd_loi& loi, double epsilon) {
  return loi.coeffs[gbd_loi_intervalle(loi.epsilons, epsilon)];
}

/// The one of smaller magnitude, the first in a tie.
double loc_plus_petit(double a, double b) { return std::abs(b) < std::abs(a) ? b : a; }

// ---- Inverse of a law ----

/// Where an interval without end stops for the search of a strain, 2^78: no strain is so large.
constexpr double deformation_infinie = 0x1p78;

/// The strain of smallest magnitude of an interval [inf, sup] on which the law is constant at the stress
/// asked for.
double loc_sur_palier(double inf, double sup) {
  if (inf == -deformation_infinie) return sup;
  if (sup == deformation_infinie) return inf;
  return loc_plus_petit(inf, sup);
}

/// The strain of smallest magnitude in interval i that gives the stress.
std::optional<double> loc_deformation_intervalle(const gbd_loi& loi, std::size_t i, double sigma) {
  const double inf = i == 0 ? -deformation_infinie : loi.epsilons[i];
  const double sup = i + 1 == loi.epsilons.size() ? deformation_infinie : loi.epsilons[i + 1];
  qb7_polynome ecart = loi.coeffs[i];
  ecart[0] -= sigma;
  const racines r = rac_chercher(ecart, {.x_inf = inf, .x_sup = sup});
  if (r.n_racs == rac_toutes) return loi.epsilons.size() == 1 ? 0 : loc_sur_palier(inf, sup);
  if (r.n_racs <= 0) return {};
  double epsilon = r.racs[0];
  for (std::size_t k = 1; k < static_cast<std::size_t>(r.n_racs); ++k)
    epsilon = loc_plus_petit(epsilon, r.racs[k]);
  return epsilon;
}

/// The knot at which the law gives the stress to within the rounding of its terms. A root on a knot may come
/// out a hair past it in both pieces, and then belongs to neither.
std::optional<double> loc_deformation_noeud(const gbd_loi& loi, double sigma) {
  std::optional<double> trouve;
  for (std::size_t i = 1; i < loi.epsilons.size(); ++i) {
    const double x = loi.epsilons[i];
    double termes = std::abs(sigma);
    double puissance = 1;
    for (const double a : loi.coeffs[i]) {
      termes += std::abs(a * puissance);
      puissance *= x;
    }
    if (std::abs(gen_valeur_poly(loi.coeffs[i], x) - sigma) > 1e-14 * termes) continue;
    trouve = trouve ? loc_plus_petit(*trouve, x) : x;
  }
  return trouve;
}

// ---- Principal axes ----

/// A product of inertia that counts as zero.
constexpr double produit_negligeable = 1e-12;

/// Turns the stiffnesses about the axes of the centroid into the principal ones.
void loc_axes_principaux(double e_iyz, caracteristiques_mecaniques& c) {
  if (std::abs(e_iyz) <= produit_negligeable) {
    c.alpha = 0;
    return;
  }
  if (c.e_iy == c.e_iz) {
    c.alpha = std::numbers::pi / 4;
    c.e_iy -= e_iyz;
    c.e_iz += e_iyz;
    return;
  }
  const bool iz_plus_grand = c.e_iz > c.e_iy;
  const double ecart = c.e_iy - c.e_iz;
  const double centre = (c.e_iy + c.e_iz) / 2;
  const double rayon = std::sqrt(ecart * ecart + 4 * e_iyz * e_iyz) / 2;
  c.alpha = std::atan(2 * e_iyz / (c.e_iz - c.e_iy)) / 2;
  c.e_iy = iz_plus_grand ? centre - rayon : centre + rayon;
  c.e_iz = iz_plus_grand ? centre + rayon : centre - rayon;
}

}  // namespace

double rdm_contrainte_materiau(const gbd_loi& loi, double epsilon) {
  const qb7_polynome& a = loc_polynome(loi, epsilon);
  // leading zeros are skipped: zero times a strain that is not finite is not zero
  std::size_t n = a.size();
  while (n > 1 && a[n - 1] == 0) --n;
  return gen_valeur_poly(std::span(a).first(n), epsilon);
}

double rdm_young_materiau(const gbd_loi& loi, double epsilon) { return loc_polynome(loi, epsilon)[1]; }

ier_2 rdm_deformation_materiau(const gbd_loi& loi, double sigma, double& epsilon) {
  epsilon = 0;
  std::optional<double> trouve;
  for (std::size_t i = 0; i < loi.epsilons.size(); ++i) {
    const auto e = loc_deformation_intervalle(loi, i, sigma);
    if (e) trouve = trouve ? loc_plus_petit(*trouve, *e) : *e;
  }
  if (!trouve) trouve = loc_deformation_noeud(loi, sigma);
  if (!trouve) return err_traiter("RDM_Deformation_Materiau", {ERR_NON_EPSILON});
  epsilon = *trouve;
  return {};
}

ier_2 rdm_contrainte_point_zone(const gbd_zone& zone, const gbd_loi& loi, double epsilon, double& sigma,
                                double& delta_sigma, bool controle_bornes) {
  const modif_lois& modif = zone.etat_zone.modif;
  const double e = epsilon + modif.epsilon_z;
  sigma = rdm_contrainte_materiau(loi, epsilon);
  delta_sigma = rdm_contrainte_materiau(loi, e) - rdm_contrainte_materiau(loi, modif.epsilon_a);
  ier_2 ier;
  if (loi.epsilon_min != qb7_sans_borne && loi.epsilon_min > e) ier = {ERR_EPSILON_MIN, zone.num_zone};
  if (controle_bornes && ier) return err_traiter("RDM_Contrainte_Point_Zone", ier);
  if (loi.epsilon_max != qb7_sans_borne && loi.epsilon_max < e) ier = {ERR_EPSILON_MAX, zone.num_zone};
  return controle_bornes ? err_traiter("RDM_Contrainte_Point_Zone", ier) : ier;
}

qb7_deformation_point rdm_deformation_point_zone(const gbd_section& section, const gbd_zone& zone,
                                                 point_yz yz_point, const deformation& deform_section) {
  const modif_lois& modif = zone.etat_zone.modif;
  const double epsilon_section = epsilon(deform_section, yz_point);
  double epsilon_zone = epsilon(gbd_sect_deform_zone(section, zone), yz_point);
  if (zone.etat_zone.type_deform == qb7_deform_cumulee) epsilon_zone += epsilon_section;
  return {.epsilon_0 = modif.rho != 0 ? epsilon_section : 0,
          .epsilon = epsilon_zone + modif.epsilon_a,
          .delta_epsilon = epsilon_zone + modif.epsilon_z};
}

rdm_etat_fluage rdm_etat_point_zone_fluage(const gbd_loi& loi, point_yz yz_point, double coefficient_fluage,
                                           const deformation& deform_permanent_section,
                                           const deformation& deform_final_section) {
  const double tolerance = simple(1e-6f);
  rdm_etat_fluage e;
  e.epsilon_perm = epsilon(deform_permanent_section, yz_point);
  e.epsilon_final = epsilon(deform_final_section, yz_point);
  double inf = 0;
  double sup = rdm_contrainte_materiau(loi, e.epsilon_perm);
  if (sup > tolerance) {
    do {
      e.sigma_perm = (inf + sup) / 2;
      e.epsilon_fluage = e.sigma_perm * coefficient_fluage;
      if (e.sigma_perm <= inf || e.sigma_perm >= sup)
        break;  // the tolerance lies under the rounding of the stress
      const double ecart = e.sigma_perm - rdm_contrainte_materiau(loi, e.epsilon_perm - e.epsilon_fluage);
      (ecart > 0 ? sup : inf) = e.sigma_perm;
    } while (sup - inf > tolerance);
  }
  e.sigma_final = rdm_contrainte_materiau(loi, e.epsilon_final - e.epsilon_fluage);
  return e;
}

void rdm_modifier_loi(const gbd_zone& zone, gbd_loi& loi) {
  const auto& [rho, epsilon_a, epsilon_b, epsilon_p, epsilon_m, epsilon_z] = zone.etat_zone.modif;
  const double sigma_p = rdm_contrainte_materiau(loi, epsilon_p);
  const double sigma_b = rdm_contrainte_materiau(loi, epsilon_b);
  const double constante = sigma_p - rho * sigma_p - sigma_b;
  const double x = epsilon_a;
  for (double& e : loi.epsilons) e -= x;
  for (qb7_polynome& a : loi.coeffs) {
    for (double& coeff : a) coeff *= rho;
    a = {((a[3] * x + a[2]) * x + a[1]) * x + a[0] + constante, a[1] + (2 * a[2] + 3 * a[3] * x) * x,
         a[2] + 3 * a[3] * x, a[3]};
  }
}

caracteristiques_mecaniques rdm_caracteristiques(const rigidite& mat) {
  const double s_y = -mat.a3;  // ∫σ' y
  // A centroid on an axis stands at 0, not at the -0 that sums of moments may leave: a reader of -0.0000 sees
  // a fault in it.
  caracteristiques_mecaniques c{.yg = s_y / mat.a1 + 0.0, .zg = mat.a2 / mat.a1 + 0.0, .e_sx = mat.a1};
  c.e_iy = mat.b2 - mat.a2 * mat.a2 / mat.a1;
  c.e_iz = mat.c3 - mat.a3 * mat.a3 / mat.a1;
  loc_axes_principaux(-mat.b3 - mat.a2 * s_y / mat.a1, c);
  return c;
}
