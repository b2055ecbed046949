// Design of reinforcement: the least steel with which a section carries a list of loadings.
//
// The unknowns are areas of steel, one for each zone that may be designed, and one strain plane for each
// loading. Equilibrium makes the problem non-linear; it is solved by linear programmes in sequence. Around
// the present steel and planes the forces of a loading are
//   forces(plane) + tangent d(plane) + sum of (forces of a unit of steel v) d(v) = target,
// three equations each; the strain at a critical point is linear in the plane, its limits are inequalities.
// The programme finds the increments of steel and of all planes together, at least cost; the last word on a
// design is the equilibrium under every loading, within all limits, with the steel that was found.
#pragma once

#include <optional>
#include <span>

#include "QB7_GBD_SECT.hpp"
#include "QB7_Types.hpp"

/// As qb7_dimensionner, whose tables have one size.
ier_2 dim_dimensionner(gbd_section& section, std::span<const int> tab_num_etat_lim,
                       std::span<const int> tab_num_etat, std::span<const efforts> tab_efforts,
                       std::optional<int> choix_base_pref);
