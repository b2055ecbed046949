// A zone of a section: a material, an outline, and what it is to its mother.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "QB7_GBD_LST.hpp"
#include "QB7_GBD_ZONE_ETAT.hpp"
#include "QB7_Types.hpp"

struct gbd_zone {
  int num_zone = qb7_indefini;
  int type_zone = qb7_zone_vide;
  int num_materiau = qb7_indefini;
  int num_zone_mere = qb7_sans_mere;
  double p_matiere = 0;                 ///< thickness of a 1003, area per point of a 1004
  double p_encombrement = 0;            ///< the same as its mother sees it: what the zone occupies
  double c_remplissage = 1;             ///< multiplies the forces of the zone; the unknown of design
  std::array<double, 2> d_yz_sur_dx{};  ///< slopes dy/dx, dz/dx of an inclined cable
  bool dimensionnable = false;
  bool fluante = false;  ///< creeps
  double c_fluage = 0;   ///< creep coefficient
  std::vector<int> liste_points;
  std::vector<bool> critiques;  ///< one per point: the strain limits are checked there
  gbd_zone_etat etat_zone;

  int clef() const { return num_zone; }
};

/// An inactive zone without mother, all its points critical. ERR_TYPE_ZONE (type) outside 1001 to 1004;
/// ERR_DIM_LISTE_PTS (zone) without points.
ier_2 gbd_zone_creer(int num_zone, int type_zone, int num_materiau, std::span<const int> liste_points,
                     gbd_zone& zone);

/// Stores the history of a cable. The law counts as modified when epsilon_a, epsilon_b or epsilon_p is not
/// zero: rho alone changes nothing.
void gbd_zone_fixer_modif_loi(gbd_zone& zone, const modif_lois& modif);
bool gbd_zone_loi_est_modifiee(const gbd_zone& zone);

/// ERR_ZONE_EXISTE (number) unless qb7_par_ecraser_permis is true: then the zone is overwritten.
ier_2 gbd_zone_lst_ajouter(gbd_liste<gbd_zone>& liste, gbd_zone zone);

/// Null and ERR_NON_ZONE (number) if there is no such zone.
gbd_zone* gbd_zone_lst_chercher(gbd_liste<gbd_zone>& liste, int num_zone, ier_2& ier);
