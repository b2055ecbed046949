#include "QB7_GBD_SECT_ETAT.hpp"

#include <utility>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_PAR_Parametres.hpp"

ier_2 gbd_sect_etat_lst_ajouter(gbd_liste<gbd_sect_etat>& liste, gbd_sect_etat etat) {
  const int num_etat = etat.num_etat;
  if (liste.lst_inserer_elt(std::move(etat), qb7_par.qb7_par_ecraser_permis)) return {};
  return {ERR_ETAT_EXISTE, num_etat};
}

gbd_sect_etat* gbd_sect_etat_lst_chercher(gbd_liste<gbd_sect_etat>& liste, int num_etat, ier_2& ier) {
  gbd_sect_etat* etat = liste.lst_chercher_elt(num_etat);
  ier = etat != nullptr ? ier_2{} : ier_2{ERR_NON_ETAT, num_etat};
  return etat;
}
