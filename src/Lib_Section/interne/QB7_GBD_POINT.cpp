#include "QB7_GBD_POINT.hpp"

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_PAR_Parametres.hpp"

ier_2 gbd_point_lst_ajouter(gbd_liste<gbd_point>& liste, const gbd_point& point) {
  if (liste.lst_inserer_elt(point, qb7_par.qb7_par_ecraser_permis)) return {};
  return {ERR_POINT_EXISTE, point.num_point};
}

gbd_point* gbd_point_lst_chercher(gbd_liste<gbd_point>& liste, int num_point, ier_2& ier) {
  gbd_point* point = liste.lst_chercher_elt(num_point);
  ier = point != nullptr ? ier_2{} : ier_2{ERR_NON_POINT, num_point};
  return point;
}
