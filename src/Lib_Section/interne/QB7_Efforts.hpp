// Forces of a section under a plane of strain, and their tangent. What does not depend on the plane is
// prepared once a limit state, in a work table: points in the frame of loading, laws with the history of
// their zone, kinship.
//
// Ranks run from 1 in the order of the zones' numbers; 0 stands for none. Planes and forces are in the frame
// of loading that the section had when the table was built.
#pragma once

#include <span>
#include <vector>

#include "QB7_GBD_LOI.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_Integration.hpp"
#include "QB7_Types.hpp"

/// A zone as the integration needs it.
struct zone_loc_type {
  int num_zone = qb7_indefini;
  int type_zone = qb7_zone_vide;
  int num_zone_mere = qb7_sans_mere;
  int rang_zone_mere = 0;
  double p_matiere = 0;
  double p_encombrement = 0;
  double c_remplissage = 1;
  std::vector<point_yz> yz_points;
  bool active_non_vide = false;  ///< active, and with a material
  int type_deform = qb7_deform_cumulee;
  deformation deform_zone;
  gbd_loi loi;  ///< a copy of its own, with the history of the zone
  int degre_loi = 0;
  double epsilon_z = 0;
  double epsilon_m = 0;
  double epsilon_a = 0;
  std::vector<int> tab_rangs_filles;  ///< ascending
};

/// The work table. Its zones keep their memory from one table to the next; glob_nbre_zones of them count.
struct qb7_efforts_t {
  std::vector<zone_loc_type> glob_loc_zones;
  int glob_nbre_zones = 0;
};
extern qb7_efforts_t qb7_efforts;
void qb7_efforts_reinitialiser();

/// The zones of the present table, from index 0.
std::span<zone_loc_type> eff_zones();

/// Builds the table of a section for a limit state; qb7_etat_mecanique gives every zone the unit law.
/// ERR_NON_POINT, ERR_NON_MERE, ERR_NON_LOI, ERR_MERE_INACTIVE (number of the object); ERR_TYPE_MERE
/// (daughter): a mother that cannot have it. On failure the table is empty.
ier_2 eff_section_calcul(gbd_section& section, int num_etat_lim);

/// Empties the table.
void eff_vider();

/// Forces of the section, and the tangent if mat_section is given. If ier is given it becomes ERR_EPSILON_LIM
/// with the first zone, in order of ranks, whose points pass a strain limit; the forces are complete in any
/// case.
void eff_efforts_section(const deformation& deform_section, efforts& efforts_section,
                         rigidite* mat_section = nullptr, ier_2* ier = nullptr);

/// Area of an active zone with a material, less what its daughters take out; 0 for any other. Its own
/// c_remplissage does not count.
double eff_surface_zone(int num_zone);
double eff_surface_rang_zone(int rang_zone);

/// Tangent of a zone under the zero plane.
rigidite eff_mat_zone(int rang_zone);

/// Forces of a zone with a fill coefficient of 1, less those of the matter of its mother that it displaces.
efforts eff_mat_acier(int rang_zone, const deformation& deform_section);
