// A point of a section.
#pragma once

#include "QB7_GBD_LST.hpp"
#include "QB7_Types.hpp"

struct gbd_point {
  int num_point = qb7_indefini;
  point_yz yz_point;  ///< in the section's own axes, never in the frame of loading

  int clef() const { return num_point; }
};

/// ERR_POINT_EXISTE (number) unless qb7_par_ecraser_permis is true: then the point is overwritten.
ier_2 gbd_point_lst_ajouter(gbd_liste<gbd_point>& liste, const gbd_point& point);

/// Null and ERR_NON_POINT (number) if there is no such point.
gbd_point* gbd_point_lst_chercher(gbd_liste<gbd_point>& liste, int num_point, ier_2& ier);
