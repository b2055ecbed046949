#include "QB7_GBD_ZONE.hpp"

#include <utility>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_PAR_Parametres.hpp"

ier_2 gbd_zone_creer(int num_zone, int type_zone, int num_materiau, std::span<const int> liste_points,
                     gbd_zone& zone) {
  if (type_zone < qb7_zone_contour || type_zone > qb7_zone_semis) return {ERR_TYPE_ZONE, type_zone};
  if (liste_points.empty()) return {ERR_DIM_LISTE_PTS, num_zone};
  zone = {};
  zone.num_zone = num_zone;
  zone.type_zone = type_zone;
  zone.num_materiau = num_materiau;
  zone.liste_points.assign(liste_points.begin(), liste_points.end());
  zone.critiques.assign(liste_points.size(), true);
  zone.etat_zone.num_zone = num_zone;
  return {};
}

void gbd_zone_fixer_modif_loi(gbd_zone& zone, const modif_lois& modif) {
  zone.etat_zone.modif = modif;
  zone.etat_zone.loi_modifiee = modif.epsilon_a != 0 || modif.epsilon_b != 0 || modif.epsilon_p != 0;
}

bool gbd_zone_loi_est_modifiee(const gbd_zone& zone) { return zone.etat_zone.loi_modifiee; }

ier_2 gbd_zone_lst_ajouter(gbd_liste<gbd_zone>& liste, gbd_zone zone) {
  const int num_zone = zone.num_zone;
  if (liste.lst_inserer_elt(std::move(zone), qb7_par.qb7_par_ecraser_permis)) return {};
  return {ERR_ZONE_EXISTE, num_zone};
}

gbd_zone* gbd_zone_lst_chercher(gbd_liste<gbd_zone>& liste, int num_zone, ier_2& ier) {
  gbd_zone* zone = liste.lst_chercher_elt(num_zone);
  ier = zone != nullptr ? ier_2{} : ier_2{ERR_NON_ZONE, num_zone};
  return zone;
}
