#include "Zof_Zones_Sollicitations.hpp"

#include "Zof_Gestion_Section.hpp"

using namespace socle;

bool zof_est_contour_ou_profil(const texte<32>& nom_section, const texte<32>& nom_zone) {
  const zof_zone* const zone = zof_get_pt_nom_zone_section(nom_section, nom_zone);
  if (zone == nullptr) return false;
  switch (zone->nature()) {
    case nature_zone::contour:
    case nature_zone::evidement:  // a contour without material
    case nature_zone::charpente_externe:
    case nature_zone::charpente_interieure: return true;
    default: return false;
  }
}

bool zof_existe_precontrainte_zone(const texte<32>& nom_section, const texte<32>& nom_zone,
                                   const texte<32>& nom_precontrainte) {
  const zof_zone* const racine = zof_get_pt_nom_zone_section(nom_section, nom_zone);
  const zof_zone* zone = zof_get_pt_nom_zone_section(nom_section, nom_precontrainte);
  while (zone != nullptr && zone != racine) zone = zone->zone_mere();
  return zone != nullptr;
}
