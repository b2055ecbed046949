#pragma once
// What the loadings ask of the zones of a section.

#include "Texte.hpp"

/// A zone of that name is there, and the engine knows it as a contour or as a profile.
bool zof_est_contour_ou_profil(const socle::texte<32>& nom_section, const socle::texte<32>& nom_zone);
/// The prestressing group lies in the zone, at any depth.
bool zof_existe_precontrainte_zone(const socle::texte<32>& nom_section, const socle::texte<32>& nom_zone,
                                   const socle::texte<32>& nom_precontrainte);
