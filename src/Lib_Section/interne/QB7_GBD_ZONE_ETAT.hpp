// All that a construction phase can change of a zone.
#pragma once

#include "QB7_GBD_LST.hpp"
#include "QB7_Types.hpp"

struct gbd_zone_etat {
  int num_zone = qb7_indefini;
  bool active = false;
  int type_deform = qb7_deform_cumulee;
  deformation deform_zone;    ///< plane imposed on the zone, in the section's own axes and origin
  bool loi_modifiee = false;  ///< follows from modif: see gbd_zone_fixer_modif_loi
  modif_lois modif;

  int clef() const { return num_zone; }
};
