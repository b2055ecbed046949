// Planes of strain of a section that creeps: under the permanent forces, where the plane and the creep that
// it causes are sought together, and then under all of them, the creep being what it was.
#pragma once

#include <array>
#include <span>

#include "QB7_Sections.hpp"
#include "QB7_Types.hpp"

/// Uses the tables of eff_g_section_calcul, and leaves them valid. tab_deform holds the planes of the past
/// and room for the present one, which is sought from deform_section on; both hold it at the end, or the last
/// one tried. ERR_EQUILIBRE: none found; ERR_EPSILON_LIM (zone), only with bornes: an equilibrium that passes
/// the limits of that zone. Journals nothing.
ier_2 eff_g_solliciter_section(bool bornes, const efforts& efforts_section, deformation& deform_section,
                               std::span<deformation> tab_deform);

/// Equilibrium with its own creep, by a fixed point of at most ten planes, each under the creep of those
/// before; histoire holds them. A step whose search fails begins anew from longer planes
/// (qb7_par_coeff_homothetie). The codes of eff_g_solliciter_section, of the step that failed;
/// ERR_EQUILIBRE_FLUAGE: ten planes and still moving by more than 1e-3.
ier_2 eff_solliciter_permanent_section(bool bornes, const efforts& efforts_permanents_section,
                                       deformation& deform_permanent_section, qb7_histoire_fluage& histoire);

/// Equilibrium under all forces, with the creep of a history. The codes of eff_g_solliciter_section.
ier_2 eff_solliciter_final_section(bool bornes, const qb7_histoire_fluage& histoire,
                                   const efforts& efforts_totaux_section, deformation& deform_final_section);
