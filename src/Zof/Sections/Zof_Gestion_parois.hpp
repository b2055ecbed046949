#pragma once
// Walls of a contour: its sides, and those of its voids, that face each other through the matter between
// them; what is left of the sides; segments put end to end.
//
// A side runs with the matter on its left: those of a contour counter-clockwise, those of its voids
// clockwise. A wall keeps its first segment in that sense, the other one turned round, so that both run the
// same way. Lists are of zof_segment or of zof_paroi. Metres, radians.

#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Paroi.hpp"
#include "Zof_Classe_Segment.hpp"

/// Appends the walls of a contour to a list.
///   (1) the two sides of a wall make an angle of at most angle_parois_max; perpendicular sides make none
///   (2) at neither of its ends it is thicker than epaisseur_paroi_max
///   (3) no other side stands in it, and it takes no matter of another wall
///   (4) the thinnest wall comes first: a part of a side that stands in a wall is free for no other
///   (5) walls are numbered behind those that the list holds, in the order of their first sides, from the
///   origin
///       of the side on; their mean lines take the number of the contour as that of their zone
/// The walls refer to the sides in les_segments, which outlives them. A side shorter than the tolerance of
/// coincident points stands in no wall. Nothing is done when erco is true.
void zof_construire_parois(int le_numero_contour, double angle_parois_max, double epaisseur_paroi_max,
                           const uef_vector& les_segments, uef_vector& les_parois, bool& erco);

/// The parts of a side that no wall takes, from its origin on, in place of what the list held. The side is
/// the one that the walls refer to.
void zof_liste_segments_libres(const zof_segment& le_segment, const uef_vector& les_parois,
                               uef_vector& liste_segments_libres);

/// Takes a part away from the free parts of a side; le_point_origine_segment is the origin of that side. What
/// is shorter than the tolerance goes with it.
void zof_modifier_segments_libres(const zof_segment& le_segment_occupe,
                                  const zof_point& le_point_origine_segment, uef_vector& les_segments_libres);

/// The mean segments of the walls that have this position.
uef_vector zof_segments_moyens_parois(const uef_vector& les_parois, int position_segments);

/// True if the point is, within the tolerance, the origin of one of the segments.
bool zof_est_origine_segment(const zof_point& le_pt_point, const uef_vector& les_segments);
/// Position of the segment at which a chain begins: no other ends where it does. A ring, which has none, and
/// several chains end the run.
int zof_numero_segment_origine(const uef_vector& les_segments);
/// The segments of a chain, each behind the one at whose extremity it begins.
uef_vector zof_segments_ordonnes(const uef_vector& les_segments);
