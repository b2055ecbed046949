// The sides of an outline: what they know of their corners, and the face of the section that each belongs to.
#pragma once

#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Segment.hpp"

/// Sorts the sides of a closed outline, which runs counter-clockwise, into faces.
///
/// A side runs from a point to its successor, the last one back to the first; it knows its middle, its zone
/// and its number from 1. Its two ends keep what its corners are:
///   m_vec_bissectrice     unit bisector of the corner, to the left of the outline: into a solid
///   m_vec_orthogonal      unit perpendicular of the side, to the left
///   m_angle_bissectrice   half the angle between the two sides, 0 to pi/2; pi/2 where they are aligned
///   m_est_entrant         the outline turns to the right: the corner is re-entrant
///
/// A side that crosses mid-height is on the right or on the left, any other one at the top or at the bottom.
/// With option_stricte a face keeps only its sides that look outwards: those of the top and the bottom within
/// angle_horizontal_max (rad) of the horizontal, those on the right and the left beyond it. Without it every
/// side is in a face. The complete list holds all of them, in the order of the outline.
///
/// The lists are made anew; with erco true on entry they are left as they are. A side without length ends the
/// run.
void zof_selectionner_segments_contour(const uef_vector& les_points_zone, int le_numero_zone,
                                       double angle_horizontal_max, bool option_stricte,
                                       uef_vector& les_segments_sup, uef_vector& les_segments_inf,
                                       uef_vector& les_segments_droite, uef_vector& les_segments_gauche,
                                       uef_vector& liste_complete_segments, const bool& erco);
