// A section of the engine's store, its zones in the frame of loading, their kinship and their activity; and
// the store itself: the sections and the laws of the run.
#pragma once

#include <vector>

#include "QB7_GBD_LOI.hpp"
#include "QB7_GBD_LST.hpp"
#include "QB7_GBD_POINT.hpp"
#include "QB7_GBD_SECT_ETAT.hpp"
#include "QB7_GBD_ZONE.hpp"
#include "QB7_Types.hpp"

/// A copy is deep: it has points, zones and states of its own.
struct gbd_section {
  int num_section = qb7_indefini;
  repere repere_sollicitation;
  gbd_liste<gbd_point> lst_points;
  gbd_liste<gbd_zone> lst_zones;
  gbd_liste<gbd_sect_etat> lst_etats;

  int clef() const { return num_section; }
};

/// The store: laws belong to the engine, not to a section.
struct gbd_glob_t {
  gbd_liste<gbd_section> glob_lst_sections;
  gbd_liste<gbd_loi> glob_lst_lois;
};
extern gbd_glob_t gbd_glob;
void gbd_glob_reinitialiser();

/// ERR_SECT_EXISTE (number) unless qb7_par_ecraser_permis is true: then the section is overwritten.
ier_2 gbd_sect_lst_ajouter(gbd_liste<gbd_section>& liste, gbd_section section);

/// Null and ERR_NON_SECTION (number) if there is no such section.
gbd_section* gbd_sect_lst_chercher(gbd_liste<gbd_section>& liste, int num_section, ier_2& ier);

/// Points of a zone in the frame of loading; yz_points is refilled and keeps its capacity.
/// ERR_NON_POINT (number) when the zone lists a point that the section has lost.
ier_2 gbd_sect_yz_zone_courant(gbd_section& section, const gbd_zone& zone, std::vector<point_yz>& yz_points);

/// Own plane of a zone, seen in the frame of loading, and a plane of that frame turned into the section's own
/// axes. The zero plane stays exactly zero.
deformation gbd_sect_deform_zone(const gbd_section& section, const gbd_zone& zone);
deformation gbd_sect_deform_propre(const repere& rep, const deformation& deform_courante);

/// The mother of a zone. A zone without mother: null and success, or ERR_MERE_INACTIVE (zone) if an active
/// mother is asked for. ERR_NON_MERE (mother) when there is no such zone; ERR_MERE_INACTIVE (mother) when an
/// active one is asked for and it is not.
ier_2 gbd_sect_pt_zone_mere(gbd_section& section, const gbd_zone& zone, bool active_exigee, gbd_zone*& mere);

/// Activity of a zone and of all its descendants. ERR_NON_ZONE (zone); ERR_NON_MERE (mother) when any zone of
/// the section has a mother that does not exist; ERR_HERITAGE (zone) when any zone descends from itself.
ier_2 gbd_sect_fixer_activ_totale(gbd_section& section, int num_zone, bool active);

/// A snapshot of the frame, of a plane, and of what a phase can change of each zone. ERR_ETAT_EXISTE (number)
/// unless qb7_par_ecraser_permis is true.
ier_2 gbd_sect_creer_etat(gbd_section& section, int num_etat, const deformation& deform_section = {});

/// Puts the section back as it was; a zone that the state does not hold becomes inactive, without plane nor
/// history. Completing does the same for the zones alone that the state holds active. ERR_NON_ETAT (number).
ier_2 gbd_sect_rappeller_etat(gbd_section& section, int num_etat, deformation* deform_section = nullptr);
ier_2 gbd_sect_completer_etat(gbd_section& section, int num_etat, deformation* deform_section = nullptr);
