// Plane of strain of a section under given forces: a damped Newton iteration on the forces and the tangent of
// the work table, with a memory of its best plane, from which it starts again with shorter steps.
#pragma once

#include "QB7_Jacobie.hpp"
#include "QB7_Types.hpp"

/// Uses the table of eff_section_calcul, and leaves it valid. deform_section is where the search begins, and
/// its result: the plane in equilibrium, or the last one tried. Journals nothing: its callers try again.
/// ERR_EQUILIBRE: no equilibrium found, or with bornes one that passes a strain limit; ERR_EPSILON_LIM
/// (zone), only without bornes: an equilibrium that passes the limits of that zone.
ier_2 eff_solliciter_section(bool bornes, const efforts& efforts_section, deformation& deform_section);

/// Lowest eigenvalue of a tangent; the lowest double where Jacobi does not end within nb_ite_max rotations,
/// NaN where every eigenvalue is.
double eff_valeur_propre_minimale_rigidite(const matrice_3& rigid, double eps, int nb_ite_max);

/// Largest k of [k_min, k_max] such that efforts_section + k delta_efforts is in equilibrium, by halving down
/// to 1e-5: the last middle tried, which may lie just past the equilibrium. k_max itself is not tried.
/// ERR_K_MIN: k_min is not in equilibrium, and k is 0.
ier_2 eff_effort_resistant_limite(bool bornes, const efforts& efforts_section, const efforts& delta_efforts,
                                  double k_min, double k_max, double& k);
