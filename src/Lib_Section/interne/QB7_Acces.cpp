#include "QB7_Acces.hpp"

ier_2 qb7_chercher_zone(int num_section, int num_zone, qb7_zone_trouvee& trouvee) {
  ier_2 ier;
  trouvee = {};
  gbd_section* section = gbd_sect_lst_chercher(gbd_glob.glob_lst_sections, num_section, ier);
  gbd_zone* zone = ier ? nullptr : gbd_zone_lst_chercher(section->lst_zones, num_zone, ier);
  if (!ier) trouvee = {.section = section, .zone = zone};
  return err_traiter("LOC_Chercher_Zone", ier);
}
