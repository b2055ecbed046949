// Points of the section's plane (y, z), in metres, with what a contour knows of its vertices; vectors of that
// plane.
#pragma once

#include "Non_renseigne.hpp"
#include "Simple.hpp"
#include "Uef_Classe_Vector.hpp"

/// A vector of the plane, in the unit of what it joins.
struct vecteur_yz {
  double y = socle::non_renseigne;
  double z = socle::non_renseigne;
  friend bool operator==(const vecteur_yz&, const vecteur_yz&) = default;
};

struct zof_point : uef_element<zof_point> {
  double m_y = socle::non_renseigne;              // m
  double m_z = socle::non_renseigne;              // m
  int m_numero_point_qb7 = socle::non_renseigne;  // in the engine
  int m_numero_point = socle::non_renseigne;      // the user's, in the zone
  vecteur_yz m_vec_bissectrice;                   // unit bisector at a contour vertex
  vecteur_yz m_vec_orthogonal;
  double m_angle_bissectrice = socle::non_renseigne;  // rad
  int m_numero_point_sym_cible =
      socle::non_renseigne;                         // number of the point of which this is the mirror image
  int m_ix_point_sym_cible = socle::non_renseigne;  // its position
  bool m_est_entrant = false;                       // a re-entrant contour vertex

  zof_point() = default;
  zof_point(double y, double z) : m_y(y), m_z(z) {}
};

/// The one tolerance for coincident points. Written in single precision: data that were accepted stay
/// accepted.
inline constexpr double zof_tolerance_points_confondus = socle::simple(0.001F);  // m

/// The element as a point, itself or a copy; anything else ends the run.
zof_point& zof_pt_point(uef_vector_element& element);
zof_point zof_cp_point(const uef_vector_element& element);

/// The first point of that number; an unset point if there is none.
zof_point get_point(const uef_vector& vecteur_points, int numero_point);
/// Position of the first point of that number; 0 if there is none.
int get_position_point(const uef_vector& vecteur_points, int numero_point);
/// True if some point lies nearer than the tolerance; exactly at the tolerance is not near.
bool existe_point_geometrique(const uef_vector& vecteur_points, const zof_point& point);
/// Removes the first point of that number; a missing one ends the run.
void zof_supprimer_point(uef_vector& vecteur_points, int numero_point);

double zof_distance_points(const zof_point& a, const zof_point& b);

/// Length of a vector; its squares may overflow or vanish.
double zof_norme_vecteur(const vecteur_yz& v);
/// The unit vector of the same direction; a vector without length ends the run.
vecteur_yz zof_vecteur_norme(const vecteur_yz& v);
/// Unit vector from a to b; coincident points end the run.
vecteur_yz zof_vecteur_points_normalise(const zof_point& a, const zof_point& b);
/// Unit vector at 90 degrees to the left: (-z, y) normalised.
vecteur_yz zof_vecteur_perpendiculaire_vecteur(const vecteur_yz& v);

/// Angle from a to b, in -pi to pi, positive counter-clockwise in (y, z). A vector without length ends the
/// run.
double zof_angle_vecteurs(const vecteur_yz& a, const vecteur_yz& b);
/// The angle brought to 0 to pi/2, whatever the sense of the two vectors: |angle|, or pi - |angle| beyond
/// pi/2.
double zof_angle_reduit_vecteurs(double angle);
/// Unit bisector of two vectors; that of opposite vectors is the perpendicular of the second.
vecteur_yz zof_vecteur_bissecteur_vecteurs(const vecteur_yz& a, const vecteur_yz& b);
