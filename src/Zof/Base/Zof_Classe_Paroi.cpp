#include "Zof_Classe_Paroi.hpp"

#include <optional>

#include "Zof_Classe_commun.hpp"

namespace {

/// Two points of a wall that face each other, one on each segment.
struct vis_a_vis {
  zof_point sur_segment_1, sur_segment_2;
};

/// Across an end of the wall: through this point along the normal n, to `e` on either side.
zof_segment loc_normale(const zof_point& bout, const vecteur_yz& n, double e) {
  return {zof_point(bout.m_y - e * n.y, bout.m_z - e * n.z),
          zof_point(bout.m_y + e * n.y, bout.m_z + e * n.z)};
}

std::optional<vis_a_vis> loc_vis_a_vis(const zof_point& bout_1, const zof_segment& segment_1,
                                       const zof_point& bout_2, const zof_segment& segment_2,
                                       const vecteur_yz& n, double e) {
  const zof_segment normale_1 = loc_normale(bout_1, n, e);
  if (zof_existe_intersection_segments(normale_1, segment_2))
    return vis_a_vis{bout_1, zof_point_intersection_segments(normale_1, segment_2)};
  const zof_segment normale_2 = loc_normale(bout_2, n, e);
  if (zof_existe_intersection_segments(normale_2, segment_1))
    return vis_a_vis{zof_point_intersection_segments(normale_2, segment_1), bout_2};
  return {};
}

/// What faces each other at the two ends of the wall of two segments.
struct bouts_de_paroi {
  std::optional<vis_a_vis> origine, extremite;
};

bouts_de_paroi loc_bouts(const zof_segment& segment_1, const zof_segment& segment_2, double e) {
  const vecteur_yz n = zof_vecteur_perpendiculaire_segment(zof_segment_moyen(segment_1, segment_2));
  return {
      loc_vis_a_vis(segment_1.m_le_point_origine, segment_1, segment_2.m_le_point_origine, segment_2, n, e),
      loc_vis_a_vis(segment_1.m_le_point_extremite, segment_1, segment_2.m_le_point_extremite, segment_2, n,
                    e)};
}

}  // namespace

zof_paroi& zof_pt_paroi(uef_vector_element& element) {
  return zof_element<zof_paroi>(element, "Zof_Pt_Paroi : Cas impossible");
}
zof_paroi zof_cp_paroi(const uef_vector_element& element) {
  return zof_element<zof_paroi>(element, "Zof_Pt_Paroi : Cas impossible");
}

bool zof_segments_face_a_face(const zof_segment& segment_1, const zof_segment& segment_2,
                              double epaisseur_paroi_max) {
  const auto [origine, extremite] = loc_bouts(segment_1, segment_2, epaisseur_paroi_max);
  return origine && extremite;
}

zof_paroi zof_paroi_commune_segments(const zof_segment& segment_1, const zof_segment& segment_2,
                                     double epaisseur_paroi_max, int le_numero_paroi) {
  const auto [origine, extremite] = loc_bouts(segment_1, segment_2, epaisseur_paroi_max);
  zof_assert(origine.has_value() == extremite.has_value(), "Zof_Paroi_commune_segments: Cas impossible ");
  zof_paroi paroi;
  if (!origine || !extremite) return paroi;

  paroi.m_le_pt_segment_1 = &segment_1;
  paroi.m_le_pt_segment_2 = &segment_2;
  paroi.m_le_point_origine_segment_1 = origine->sur_segment_1;
  paroi.m_le_point_origine_segment_2 = origine->sur_segment_2;
  paroi.m_le_point_extremite_segment_1 = extremite->sur_segment_1;
  paroi.m_le_point_extremite_segment_2 = extremite->sur_segment_2;
  if (segment_1.m_la_position == segment_2.m_la_position) paroi.m_la_position = segment_1.m_la_position;

  zof_segment bord_1(origine->sur_segment_1, extremite->sur_segment_1);
  const zof_segment bord_2(origine->sur_segment_2, extremite->sur_segment_2);
  bord_1.m_la_position = paroi.m_la_position;
  bord_1.m_le_numero_zone = segment_1.m_le_numero_zone;
  bord_1.m_le_numero_segment = segment_1.m_le_numero_segment;
  paroi.m_le_segment_moyen = zof_segment_moyen(bord_1, bord_2);

  const double epaisseur_origine = zof_distance_points(origine->sur_segment_1, origine->sur_segment_2);
  const double epaisseur_extremite = zof_distance_points(extremite->sur_segment_1, extremite->sur_segment_2);
  paroi.m_l_epaisseur_moyenne = (epaisseur_origine + epaisseur_extremite) / 2;
  paroi.m_le_numero_paroi = le_numero_paroi;
  return paroi;
}
