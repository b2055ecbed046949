// Interaction diagram: boundary of the forces that a section can carry, cut by a plane of the space
// (N, My, Mz).
#pragma once

#include <span>

#include "QB7_GBD_SECT.hpp"
#include "QB7_Types.hpp"

/// Builds the work table of the section, and finds the curve as qb7_diagramme_interaction tells. On failure
/// the points found so far stand.
ier_2 dgi_interaction(bool bornes, gbd_section& section, int num_etat_lim, const matrice_3& mat_plan,
                      double c, std::span<point_xy> xy_points);
