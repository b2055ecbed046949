// A snapshot of a section: inert until it is recalled.
#pragma once

#include "QB7_GBD_LST.hpp"
#include "QB7_GBD_ZONE_ETAT.hpp"
#include "QB7_Types.hpp"

struct gbd_sect_etat {
  int num_etat = qb7_indefini;
  repere repere_sollicitation;
  deformation deform_section;
  gbd_liste<gbd_zone_etat> lst_etat_zones;

  int clef() const { return num_etat; }
};

/// ERR_ETAT_EXISTE (number) unless qb7_par_ecraser_permis is true: then the state is overwritten.
ier_2 gbd_sect_etat_lst_ajouter(gbd_liste<gbd_sect_etat>& liste, gbd_sect_etat etat);

/// Null and ERR_NON_ETAT (number) if there is no such state.
gbd_sect_etat* gbd_sect_etat_lst_chercher(gbd_liste<gbd_sect_etat>& liste, int num_etat, ier_2& ier);
