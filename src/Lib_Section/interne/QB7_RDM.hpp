// Mechanics of a point: stress of a law and its inverse, strain and stress of a zone once its history is
// counted, the law of a cable after its history, creep; and the mechanical characteristics that a tangent
// holds.
#pragma once

#include "QB7_GBD_LOI.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_GBD_ZONE.hpp"
#include "QB7_Sections.hpp"
#include "QB7_Types.hpp"

/// Stress of the law at a strain.
double rdm_contrainte_materiau(const gbd_loi& loi, double epsilon);

/// Coefficient of degree 1 of the strain's interval: the modulus at strain 0, and not the slope elsewhere.
double rdm_young_materiau(const gbd_loi& loi, double epsilon);

/// The strain of smallest magnitude at which the law gives this stress. ERR_NON_EPSILON: there is none.
ier_2 rdm_deformation_materiau(const gbd_loi& loi, double sigma, double& epsilon);

/// Stress at the strain on the law that rdm_deformation_point_zone gives, and its change since the bond.
/// ERR_EPSILON_MIN, ERR_EPSILON_MAX (zone): a limit is passed; the stresses stand all the same, and with
/// controle_bornes false nothing is journalled.
ier_2 rdm_contrainte_point_zone(const gbd_zone& zone, const gbd_loi& loi, double epsilon, double& sigma,
                                double& delta_sigma, bool controle_bornes = true);

/// Strains at a point; point and plane in the frame of loading.
qb7_deformation_point rdm_deformation_point_zone(const gbd_section& section, const gbd_zone& zone,
                                                 point_yz yz_point, const deformation& deform_section);

/// A point of a creeping zone in its permanent and its final state.
struct rdm_etat_fluage {
  double epsilon_perm = 0, epsilon_fluage = 0, epsilon_final = 0, sigma_perm = 0, sigma_final = 0;
};

/// The permanent stress s solves s = law(epsilon_perm - coefficient_fluage s) in compression, within 1e-6; a
/// point that the permanent plane does not compress does not creep: sigma_perm and epsilon_fluage are then 0.
rdm_etat_fluage rdm_etat_point_zone_fluage(const gbd_loi& loi, point_yz yz_point, double coefficient_fluage,
                                           const deformation& deform_permanent_section,
                                           const deformation& deform_final_section);

/// Turns the law of the zone's material into the one that the zone follows after its history:
///   rho law(e + epsilon_a) + (1 - rho) law(epsilon_p) - law(epsilon_b)
/// Its limits stay as they are: where they are checked the shift is counted.
void rdm_modifier_loi(const gbd_zone& zone, gbd_loi& loi);

/// Centroid, principal axes and stiffnesses about them; mat.a1 is not 0.
caracteristiques_mecaniques rdm_caracteristiques(const rigidite& mat);
