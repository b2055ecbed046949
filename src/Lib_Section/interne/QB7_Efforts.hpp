// Forces of a section under a plane of strain, and their tangent. What does not depend on the plane is
// prepared once a limit state, in a work table: points in the frame of loading, laws with the history of
// their zone, kinship.
//
// Ranks run from 1 in the order of the zones' numbers; 0 stands for none. Planes and forces are in the frame
// of loading that the section had when the table was built.
#pragma once

#include <span>
#include <vector>

#include "QB7_GBD_LOI.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_Integration.hpp"
#include "QB7_Types.hpp"

/// A zone as the integration needs it.
struct zone_loc_type {
  int num_zone = qb7_indefini;
  int type_zone = qb7_zone_vide;
  int num_zone_mere = qb7_sans_mere;
  int rang_zone_mere = 0;
  double p_matiere = 0;
  double p_encombrement = 0;
  double c_remplissage = 1;
  std::vector<point_yz> yz_points;
  bool active_non_vide = false;  ///< active, and with a material
  int type_deform = qb7_deform_cumulee;
  deformation deform_zone;
  gbd_loi loi;  ///< a copy of its own, with the history of the zone
  int degre_loi = 0;
  double epsilon_z = 0;
  double epsilon_m = 0;
  double epsilon_a = 0;
  std::vector<int> tab_rangs_filles;  ///< ascending
};

/// The work table. Its zones keep their memory from one table to the next; glob_nbre_zones of them count.
struct qb7_efforts_t {
  std::vector<zone_loc_type> glob_loc_zones;
  int glob_nbre_zones = 0;
};
extern qb7_efforts_t qb7_efforts;
void qb7_efforts_reinitialiser();

/// The zones of the present table, from index 0.
std::span<zone_loc_type> eff_zones();

/// Builds the table of a section for a limit state; qb7_etat_mecanique gives every zone the unit law.
/// ERR_NON_POINT, ERR_NON_MERE, ERR_NON_LOI, ERR_MERE_INACTIVE (number of the object); ERR_TYPE_MERE
/// (daughter): a mother that cannot have it. On failure the table is empty.
ier_2 eff_section_calcul(gbd_section& section, int num_etat_lim);

/// Empties the table.
void eff_vider();

/// Forces of the section, and the tangent if mat_section is given. If ier is given it becomes ERR_EPSILON_LIM
/// with the first zone, in order of ranks, whose points pass a strain limit; the forces are complete in any
/// case.
void eff_efforts_section(const deformation& deform_section, efforts& efforts_section,
                         rigidite* mat_section = nullptr, ier_2* ier = nullptr);

/// Area of an active zone with a material, less what its daughters take out; 0 for any other. Its own
/// c_remplissage does not count.
double eff_surface_zone(int num_zone);
double eff_surface_rang_zone(int rang_zone);

/// Tangent of a zone under the zero plane.
rigidite eff_mat_zone(int rang_zone);

/// Forces of a zone with a fill coefficient of 1, less those of the matter of its mother that it displaces.
efforts eff_mat_acier(int rang_zone, const deformation& deform_section);

// ---- What an integration with the creep of the zones shares with this one ----

zone_loc_type& eff_zone_de_rang(int rang_zone);

/// The law and the plane under which a zone is integrated, and the holes in it with it.
contexte_zone eff_contexte(const zone_loc_type& zone_loc, const deformation& deform_section);

/// What multiplies the forces of a zone's points: 1 for an outline, else p_matiere, or p_encombrement where
/// it stands for a hole.
double eff_param_surface(const zone_loc_type& zone_loc, bool matiere);

/// Forces of the zone's outline, profile or bars, or of the piece of them that `points` are, under a law and
/// a plane that may be those of its mother.
resultante eff_efforts_forme(const zone_loc_type& zone_loc, std::span<const point_yz> points,
                             const contexte_zone& ctx, bool matiere, bool avec_tangente);

/// Least and greatest strain of a plane at these points, of which there is at least one.
struct etendue_epsilon {
  double min = 0, max = 0;
};
etendue_epsilon eff_etendue_epsilon(std::span<const point_yz> points, const deformation& plan);

/// Whether one of the points passes a strain limit of the zone's law.
bool eff_limite_depassee(const zone_loc_type& zone_loc, std::span<const point_yz> points,
                         const deformation& plan);

/// What a daughter with a fill coefficient takes out of its mother: it and its own daughters are measured by
/// `mesurer`, as forces or as an area.
template <class mesure>
auto eff_part_de_fille(const zone_loc_type& fille, double c_remplissage, const mesure& mesurer)
    -> decltype(mesurer(fille)) {
  const auto f = mesurer(fille);
  if (fille.type_zone == qb7_zone_contour) return f;
  if (fille.type_zone != qb7_zone_sous_contour) return c_remplissage * f;
  decltype(mesurer(fille)) g{};
  for (const int rang : fille.tab_rangs_filles) g += mesurer(eff_zone_de_rang(rang));
  return g + c_remplissage * (f - g);
}

/// Forces of a zone with a fill coefficient, less what its daughters take out; mesurer(zone, matiere) gives
/// those of a form under the zone's law and plane.
template <class mesure>
resultante eff_efforts_nets(const zone_loc_type& zone_loc, double c_remplissage, const mesure& mesurer) {
  resultante r = mesurer(zone_loc, true);
  for (const int rang : zone_loc.tab_rangs_filles) {
    const zone_loc_type& fille = eff_zone_de_rang(rang);
    r -= eff_part_de_fille(fille, fille.c_remplissage,
                           [&](const zone_loc_type& forme) { return mesurer(forme, false); });
  }
  if (c_remplissage != 1) r *= c_remplissage;
  return r;
}

/// Forces of a zone under a plane of the section; *ier, if ier is given and still 0, tells a passed limit.
resultante eff_efforts_zone(const zone_loc_type& zone_loc, double c_remplissage,
                            const deformation& deform_section, bool avec_tangente, ier_2* ier);

/// Sum over the zones that carry something, in order of ranks: efforts_zone(zone) gives those of one.
template <class fonction>
resultante eff_somme_des_zones(const fonction& efforts_zone) {
  resultante somme;
  for (const zone_loc_type& zone_loc : eff_zones()) {
    if (zone_loc.active_non_vide && zone_loc.c_remplissage != 0) somme += efforts_zone(zone_loc);
  }
  return somme;
}
