// A wall between two segments of a contour that face each other.
#pragma once

#include "Zof_Classe_Segment.hpp"

struct zof_paroi : uef_element<zof_paroi> {
  const zof_segment* m_le_pt_segment_1 = nullptr;  // null: no wall
  const zof_segment* m_le_pt_segment_2 = nullptr;
  zof_point m_le_point_origine_segment_1;
  zof_point m_le_point_origine_segment_2;
  zof_point m_le_point_extremite_segment_1;
  zof_point m_le_point_extremite_segment_2;
  zof_segment m_le_segment_moyen;
  double m_l_epaisseur_moyenne = socle::non_renseigne;  // m
  int m_la_position = socle::non_renseigne;
  int m_le_numero_paroi = socle::non_renseigne;
};

zof_paroi& zof_pt_paroi(uef_vector_element& element);
zof_paroi zof_cp_paroi(const uef_vector_element& element);

/// Whether two segments that run the same way have points across from each other at both ends: then they have
/// a wall in common.
bool zof_segments_face_a_face(const zof_segment& segment_1, const zof_segment& segment_2,
                              double epaisseur_paroi_max);

/// The wall that two segments which run the same way have in common: at each end, the point of one segment
/// and the point of the other across the mean segment, not farther than `epaisseur_paroi_max` (m). The wall
/// refers to both segments, which outlive it; without a wall its references are null. A wall at one end only
/// ends the run.
zof_paroi zof_paroi_commune_segments(const zof_segment& segment_1, const zof_segment& segment_2,
                                     double epaisseur_paroi_max, int le_numero_paroi);
