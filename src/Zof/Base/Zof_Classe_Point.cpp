#include "Zof_Classe_Point.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>

#include "Zof_Classe_commun.hpp"
#include "Zof_Erreurs.hpp"

zof_point& zof_pt_point(uef_vector_element& element) {
  return zof_element<zof_point>(element, "Zof_Pt_Point : Cas impossible");
}
zof_point zof_cp_point(const uef_vector_element& element) {
  return zof_element<zof_point>(element, "Zof_Pt_Point : Cas impossible");
}

zof_point get_point(const uef_vector& vecteur_points, int numero_point) {
  return zof_chercher<zof_point>(vecteur_points, &zof_point::m_numero_point, numero_point);
}

int get_position_point(const uef_vector& vecteur_points, int numero_point) {
  return zof_position<zof_point>(vecteur_points, &zof_point::m_numero_point, numero_point);
}

bool existe_point_geometrique(const uef_vector& vecteur_points, const zof_point& point) {
  const uef_parcours<zof_point> points(vecteur_points);
  return std::any_of(points.begin(), points.end(), [&](const zof_point& p) {
    return zof_distance_points(p, point) < zof_tolerance_points_confondus;
  });
}

void zof_supprimer_point(uef_vector& vecteur_points, int numero_point) {
  zof_supprimer<zof_point>(vecteur_points, &zof_point::m_numero_point, numero_point,
                           " Zof_Supprimer_point : point incorrect :");
}

double zof_distance_points(const zof_point& a, const zof_point& b) {
  const double dy = b.m_y - a.m_y;
  const double dz = b.m_z - a.m_z;
  return std::sqrt(dy * dy + dz * dz);
}

double zof_norme_vecteur(const vecteur_yz& v) { return std::hypot(v.y, v.z); }

vecteur_yz zof_vecteur_norme(const vecteur_yz& v) {
  const double norme = zof_norme_vecteur(v);
  zof_assert(norme > std::numeric_limits<double>::min(), " ZOF_vecteur_segment_normalise : Cas impossible");
  return {v.y / norme, v.z / norme};
}

vecteur_yz zof_vecteur_points_normalise(const zof_point& a, const zof_point& b) {
  return zof_vecteur_norme({b.m_y - a.m_y, b.m_z - a.m_z});
}

vecteur_yz zof_vecteur_perpendiculaire_vecteur(const vecteur_yz& v) { return zof_vecteur_norme({-v.z, v.y}); }

double zof_angle_vecteurs(const vecteur_yz& a, const vecteur_yz& b) {
  const vecteur_yz ua = zof_vecteur_norme(a);
  const vecteur_yz ub = zof_vecteur_norme(b);
  const double angle = std::acos(ua.y * ub.y + ua.z * ub.z);
  return std::copysign(angle, ua.y * ub.z - ua.z * ub.y);
}

double zof_angle_reduit_vecteurs(double angle) {
  const double a = std::abs(angle);
  return a <= std::numbers::pi / 2 ? a : std::numbers::pi - a;
}

vecteur_yz zof_vecteur_bissecteur_vecteurs(const vecteur_yz& a, const vecteur_yz& b) {
  const vecteur_yz ua = zof_vecteur_norme(a);
  const vecteur_yz ub = zof_vecteur_norme(b);
  const vecteur_yz somme{ua.y + ub.y, ua.z + ub.z};
  if (zof_norme_vecteur(somme) > std::numeric_limits<double>::min()) return zof_vecteur_norme(somme);
  return zof_vecteur_perpendiculaire_vecteur(b);
}
