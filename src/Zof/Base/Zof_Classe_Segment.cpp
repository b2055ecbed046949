#include "Zof_Classe_Segment.hpp"

#include <cmath>
#include <limits>
#include <optional>

#include "Zof_Classe_commun.hpp"

namespace {

zof_point loc_milieu(const zof_point& a, const zof_point& b) {
  return {b.m_y / 2 + a.m_y / 2, b.m_z / 2 + a.m_z / 2};
}

/// Parameter along s1 of the point where the segments meet.
std::optional<double> loc_parametre_intersection(const zof_segment& s1, const zof_segment& s2) {
  const vecteur_yz d1 = zof_vecteur_segment(s1);
  const vecteur_yz d2 = zof_vecteur_segment(s2);
  const double determinant = d1.y * d2.z - d1.z * d2.y;
  if (!(std::abs(determinant) > std::numeric_limits<double>::min())) return {};
  // origin 1 + t d1 = origin 2 + u d2
  const double y = s2.m_le_point_origine.m_y - s1.m_le_point_origine.m_y;
  const double z = s2.m_le_point_origine.m_z - s1.m_le_point_origine.m_z;
  const double t = (y * d2.z - z * d2.y) / determinant;
  const double u = (y * d1.z - z * d1.y) / determinant;
  if (t >= 0 && t <= 1 && u >= 0 && u <= 1) return t;
  return {};
}

}  // namespace

zof_segment::zof_segment(const zof_point& origine, const zof_point& extremite)
    : m_le_point_origine(origine),
      m_le_point_extremite(extremite),
      m_le_centre(loc_milieu(origine, extremite)) {}

zof_segment& zof_pt_segment(uef_vector_element& element) {
  return zof_element<zof_segment>(element, "Zof_Pt_Segment : Cas impossible");
}
zof_segment zof_cp_segment(const uef_vector_element& element) {
  return zof_element<zof_segment>(element, "Zof_Pt_Segment : Cas impossible");
}

double zof_distance_centres_segments(const zof_segment& s1, const zof_segment& s2) {
  return zof_distance_points(s1.m_le_centre, s2.m_le_centre);
}

vecteur_yz zof_vecteur_segment(const zof_segment& s) {
  return {s.m_le_point_extremite.m_y - s.m_le_point_origine.m_y,
          s.m_le_point_extremite.m_z - s.m_le_point_origine.m_z};
}

vecteur_yz zof_vecteur_segment_normalise(const zof_segment& s) {
  return zof_vecteur_norme(zof_vecteur_segment(s));
}

vecteur_yz zof_vecteur_perpendiculaire_segment(const zof_segment& s) {
  return zof_vecteur_perpendiculaire_vecteur(zof_vecteur_segment(s));
}

double zof_angle_segment_vecteur(const zof_segment& s, const vecteur_yz& v) {
  zof_assert(zof_norme_vecteur(v) > std::numeric_limits<double>::min(),
             "ZOF_Angle_segment_vecteur : cas impossible");
  return zof_angle_vecteurs(zof_vecteur_segment_normalise(s), v);
}

double zof_angle_segments(const zof_segment& s1, const zof_segment& s2) {
  return zof_angle_vecteurs(zof_vecteur_segment_normalise(s1), zof_vecteur_segment_normalise(s2));
}

bool zof_existe_intersection_segments(const zof_segment& s1, const zof_segment& s2) {
  return loc_parametre_intersection(s1, s2).has_value();
}

zof_point zof_point_intersection_segments(const zof_segment& s1, const zof_segment& s2) {
  const std::optional<double> t = loc_parametre_intersection(s1, s2);
  if (!t) return {};
  const vecteur_yz d1 = zof_vecteur_segment(s1);
  return {s1.m_le_point_origine.m_y + *t * d1.y, s1.m_le_point_origine.m_z + *t * d1.z};
}

zof_segment zof_segment_moyen(const zof_segment& s1, const zof_segment& s2) {
  zof_segment moyen;
  moyen.m_le_point_origine = loc_milieu(s1.m_le_point_origine, s2.m_le_point_origine);
  moyen.m_le_point_extremite = loc_milieu(s1.m_le_point_extremite, s2.m_le_point_extremite);
  moyen.m_le_centre = loc_milieu(s1.m_le_centre, s2.m_le_centre);
  moyen.m_la_position = s1.m_la_position;
  moyen.m_le_numero_zone = s1.m_le_numero_zone;
  moyen.m_le_numero_segment = s1.m_le_numero_segment;
  return moyen;
}
