// Segments of the section's plane, and the geometry of vectors and segments. Metres and radians.
#pragma once

#include "Zof_Classe_Point.hpp"

struct zof_segment : uef_element<zof_segment> {
  zof_point m_le_point_origine;
  zof_point m_le_point_extremite;
  zof_point m_le_centre;
  int m_la_position = socle::non_renseigne;
  int m_le_numero_zone = socle::non_renseigne;
  int m_le_numero_segment = socle::non_renseigne;

  zof_segment() = default;
  /// The centre is the middle of the two points.
  zof_segment(const zof_point& origine, const zof_point& extremite);
};

zof_segment& zof_pt_segment(uef_vector_element& element);
zof_segment zof_cp_segment(const uef_vector_element& element);

double zof_distance_centres_segments(const zof_segment& s1, const zof_segment& s2);

/// From the origin to the extremity; normalised, a segment without length ends the run.
vecteur_yz zof_vecteur_segment(const zof_segment& s);
vecteur_yz zof_vecteur_segment_normalise(const zof_segment& s);
/// Unit vector at 90 degrees to the left of the segment.
vecteur_yz zof_vecteur_perpendiculaire_segment(const zof_segment& s);

/// Angle from the segment to the vector, from s1 to s2, as zof_angle_vecteurs.
double zof_angle_segment_vecteur(const zof_segment& s, const vecteur_yz& v);
double zof_angle_segments(const zof_segment& s1, const zof_segment& s2);

/// Two segments meet; a touch at an end counts. Parallel ones never do, even where they overlap.
bool zof_existe_intersection_segments(const zof_segment& s1, const zof_segment& s2);
/// The point where they meet, its other fields unset; an unset point if they don't.
zof_point zof_point_intersection_segments(const zof_segment& s1, const zof_segment& s2);

/// The segment half way between two that run the same way; position and numbers are those of s1.
zof_segment zof_segment_moyen(const zof_segment& s1, const zof_segment& s2);
