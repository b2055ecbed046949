// How a routine of the facade begins and ends: it empties the journal, finds what it works on, does one
// thing, and journals a failure under its own name.
#pragma once

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_Types.hpp"
#include "Texte.hpp"

/// A zone and its section; null with a status that is journalled under the look-up's own name.
struct qb7_zone_trouvee {
  gbd_section* section = nullptr;
  gbd_zone* zone = nullptr;
};
ier_2 qb7_chercher_zone(int num_section, int num_zone, qb7_zone_trouvee& trouvee);

/// action: gbd_section& -> ier_2
template <class action_t>
ier_2 qb7_sur_section(socle::vue_l1 nom, int num_section, action_t&& action) {
  qb7_err_effacer();
  ier_2 ier;
  gbd_section* section = gbd_sect_lst_chercher(gbd_glob.glob_lst_sections, num_section, ier);
  if (!ier) ier = action(*section);
  return err_traiter(nom, ier);
}

/// action: gbd_section&, gbd_zone& -> ier_2
template <class action_t>
ier_2 qb7_sur_zone_de_section(socle::vue_l1 nom, int num_section, int num_zone, action_t&& action) {
  qb7_err_effacer();
  qb7_zone_trouvee trouvee;
  ier_2 ier = qb7_chercher_zone(num_section, num_zone, trouvee);
  if (!ier) ier = action(*trouvee.section, *trouvee.zone);
  return err_traiter(nom, ier);
}

/// action: gbd_zone& -> ier_2
template <class action_t>
ier_2 qb7_sur_zone(socle::vue_l1 nom, int num_section, int num_zone, action_t&& action) {
  return qb7_sur_zone_de_section(nom, num_section, num_zone,
                                 [&action](gbd_section&, gbd_zone& zone) { return action(zone); });
}

/// The same where the action cannot fail. action: gbd_zone& -> void
template <class action_t>
ier_2 qb7_pour_zone(socle::vue_l1 nom, int num_section, int num_zone, action_t&& action) {
  return qb7_sur_zone(nom, num_section, num_zone, [&action](gbd_zone& zone) {
    action(zone);
    return ier_2{};
  });
}

/// action: gbd_loi& -> ier_2
template <class action_t>
ier_2 qb7_sur_loi(socle::vue_l1 nom, int num_materiau, int num_etat_lim, action_t&& action) {
  qb7_err_effacer();
  ier_2 ier;
  const gbd_clef_loi clef{.num_etat_lim = num_etat_lim, .num_materiau = num_materiau};
  gbd_loi* loi = gbd_loi_lst_chercher(gbd_glob.glob_lst_lois, clef, ier);
  if (!ier) ier = action(*loi);
  return err_traiter(nom, ier);
}
