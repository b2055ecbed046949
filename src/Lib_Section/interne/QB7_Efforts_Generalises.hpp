// Forces of a section some of whose zones creep, under the planes that it has gone through and the present
// one.
//
//   creep of a zone            ε_c = c_fluage s, c_fluage the creep strain per unit of stress, φ / E_c
//   mechanical plane of step m d'_m = d_m - c_fluage S_m: what is left for the stress
//   stress that creeps         S_1 = 0, S_2 = s_1, S_m = (S_(m-1) + s_(m-1)) / 2
//
// s_m is the stress of step m under d'_m, read on the affine approximation of the law: over a region of the
// zone where it lies on one chord it is affine in y and z, a plane as the strain is. Step by step the zone
// falls into such regions; over each of them the present plane less the creep is again a plane, and the exact
// integration holds. S_m is the mean of the past stresses with the weights 1/2, 1/4, ..., the latest counting
// most: repeated under constant loads, it leads to the stress under which creep is at rest.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "QB7_Efforts.hpp"

/// Planes that a section may have gone through, the present one included.
inline constexpr int eff_g_nb_deform_max = 11;

/// What the creep of a zone needs besides its line of the work table of QB7_Efforts.
struct zone_fluante_type {
  bool fluante = false;
  double c_fluage = 0;
  gbd_loi loi_aff_par_mor;  ///< with the history of the zone; only where the zone creeps

  bool flue() const { return fluante && c_fluage > 0; }
};

/// The outline of a region while it is cut: what is below a strain, what is left above, and room to change.
struct decoupe_en_cours {
  std::vector<point_yz> dessous, reste, dessus;
};

/// One line per zone of the work table, by rank; and, for each step, memory that is kept.
struct qb7_efforts_generalises_t {
  std::vector<zone_fluante_type> glob_zones_fluantes;
  std::array<decoupe_en_cours, eff_g_nb_deform_max> glob_decoupes;
};
extern qb7_efforts_generalises_t qb7_efforts_generalises;
void qb7_efforts_generalises_reinitialiser();

/// eff_section_calcul, and the creep of the zones. Strain limits are read without the shift epsilon_a of a
/// cable's bond. The codes of eff_section_calcul and of creation_loi_approximation_aff_par_mor.
ier_2 eff_g_section_calcul(gbd_section& section, int num_etat_lim);

/// Empties both tables.
void eff_g_vider();

/// Forces of the section under the last of the planes, the others being its past, and the tangent by that
/// last one if mat_section is given; at most eff_g_nb_deform_max planes. A zone that does not creep feels the
/// last alone. ier as in eff_efforts_section, a creeping zone being judged on its mechanical strain.
void eff_g_efforts_section(std::span<const deformation> tab_deform, efforts& efforts_section,
                           rigidite* mat_section = nullptr, ier_2* ier = nullptr);
