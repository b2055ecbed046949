#include "QB7_GBD_SECT.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_PAR_Parametres.hpp"

gbd_glob_t gbd_glob;

void gbd_glob_reinitialiser() { gbd_glob = {}; }

ier_2 gbd_sect_lst_ajouter(gbd_liste<gbd_section>& liste, gbd_section section) {
  const int num_section = section.num_section;
  if (liste.lst_inserer_elt(std::move(section), qb7_par.qb7_par_ecraser_permis)) return {};
  return {ERR_SECT_EXISTE, num_section};
}

gbd_section* gbd_sect_lst_chercher(gbd_liste<gbd_section>& liste, int num_section, ier_2& ier) {
  gbd_section* section = liste.lst_chercher_elt(num_section);
  ier = section != nullptr ? ier_2{} : ier_2{ERR_NON_SECTION, num_section};
  return section;
}

ier_2 gbd_sect_yz_zone_courant(gbd_section& section, const gbd_zone& zone, std::vector<point_yz>& yz_points) {
  yz_points.clear();
  yz_points.reserve(zone.liste_points.size());
  for (const int num_point : zone.liste_points) {
    ier_2 ier;
    const gbd_point* point = gbd_point_lst_chercher(section.lst_points, num_point, ier);
    if (ier) return ier;
    yz_points.push_back(vers_repere(section.repere_sollicitation, point->yz_point));
  }
  return {};
}

deformation gbd_sect_deform_zone(const gbd_section& section, const gbd_zone& zone) {
  const deformation& d = zone.etat_zone.deform_zone;
  if (d == deformation{}) return d;
  const repere& r = section.repere_sollicitation;
  return {.e0 = d.e0 + r.z_rep * d.ky - r.y_rep * d.kz,
          .ky = r.cosal * d.ky + r.sinal * d.kz,
          .kz = r.cosal * d.kz - r.sinal * d.ky};
}

deformation gbd_sect_deform_propre(const repere& rep, const deformation& deform_courante) {
  const deformation& d = deform_courante;
  if (d == deformation{}) return d;
  const double ky = rep.cosal * d.ky - rep.sinal * d.kz;
  const double kz = rep.sinal * d.ky + rep.cosal * d.kz;
  return {.e0 = d.e0 - rep.z_rep * ky + rep.y_rep * kz, .ky = ky, .kz = kz};
}

ier_2 gbd_sect_pt_zone_mere(gbd_section& section, const gbd_zone& zone, bool active_exigee, gbd_zone*& mere) {
  mere = nullptr;
  if (zone.num_zone_mere == qb7_sans_mere)
    return active_exigee ? ier_2{ERR_MERE_INACTIVE, zone.num_zone} : ier_2{};
  mere = section.lst_zones.lst_consulter_elt(zone.num_zone_mere);
  if (mere == nullptr) return {ERR_NON_MERE, zone.num_zone_mere};
  if (!active_exigee || mere->etat_zone.active) return {};
  mere = nullptr;
  return {ERR_MERE_INACTIVE, zone.num_zone_mere};
}

namespace {

/// What is known of a zone while the descendants of one are looked for.
enum class marque { inconnue, en_cours, descendante, etrangere };

struct rang_et_marque {
  gbd_zone* zone;
  std::size_t rang_mere;
  marque m;
};

/// The zones in ascending order, each with the rank of its mother, behind a rank 0 for those at the top.
ier_2 loc_parente(gbd_section& section, std::vector<rang_et_marque>& rangs) {
  rangs.push_back({.zone = nullptr, .rang_mere = 0, .m = marque::etrangere});
  for (gbd_zone& zone : section.lst_zones)
    rangs.push_back({.zone = &zone, .rang_mere = 0, .m = marque::inconnue});
  const auto numero = [](const rang_et_marque& r) { return r.zone->num_zone; };
  for (auto r = rangs.begin() + 1; r != rangs.end(); ++r) {
    const int num_mere = r->zone->num_zone_mere;
    if (num_mere == qb7_sans_mere) continue;
    const auto mere = std::ranges::lower_bound(rangs.begin() + 1, rangs.end(), num_mere, {}, numero);
    if (mere == rangs.end() || mere->zone->num_zone != num_mere) return {ERR_NON_MERE, num_mere};
    r->rang_mere = static_cast<std::size_t>(mere - rangs.begin());
  }
  return {};
}

/// Marks a zone as the first of its forebears that is marked, and these with it. A walk that meets itself is
/// a cycle.
ier_2 loc_marquer(std::vector<rang_et_marque>& rangs, std::size_t depart) {
  std::size_t rang = depart;
  for (; rangs[rang].m == marque::inconnue; rang = rangs[rang].rang_mere) rangs[rang].m = marque::en_cours;
  if (rangs[rang].m == marque::en_cours) return {ERR_HERITAGE, rangs[rang].zone->num_zone};
  const marque trouvee = rangs[rang].m;
  for (rang = depart; rangs[rang].m == marque::en_cours; rang = rangs[rang].rang_mere)
    rangs[rang].m = trouvee;
  return {};
}

}  // namespace

ier_2 gbd_sect_fixer_activ_totale(gbd_section& section, int num_zone, bool active) {
  if (section.lst_zones.lst_consulter_elt(num_zone) == nullptr) return {ERR_NON_ZONE, num_zone};
  std::vector<rang_et_marque> rangs;
  rangs.reserve(static_cast<std::size_t>(section.lst_zones.lst_longueur()) + 1);
  if (const ier_2 ier = loc_parente(section, rangs)) return ier;
  for (rang_et_marque& r : rangs)
    if (r.zone != nullptr && r.zone->num_zone == num_zone) r.m = marque::descendante;
  for (std::size_t rang = 1; rang < rangs.size(); ++rang)
    if (const ier_2 ier = loc_marquer(rangs, rang)) return ier;
  for (const rang_et_marque& r : rangs)
    if (r.m == marque::descendante) r.zone->etat_zone.active = active;
  return {};
}

// ---- States ----

ier_2 gbd_sect_creer_etat(gbd_section& section, int num_etat, const deformation& deform_section) {
  gbd_sect_etat etat;
  etat.num_etat = num_etat;
  etat.repere_sollicitation = section.repere_sollicitation;
  etat.deform_section = deform_section;
  for (const gbd_zone& zone : section.lst_zones) etat.lst_etat_zones.lst_inserer_elt(zone.etat_zone, true);
  return gbd_sect_etat_lst_ajouter(section.lst_etats, std::move(etat));
}

namespace {

/// Puts back the frame and gives the plane of a state; des_zones is called for each zone with what the state
/// holds of it, null if nothing.
template <class action_t>
ier_2 loc_reprendre_etat(gbd_section& section, int num_etat, deformation* deform_section,
                         action_t&& des_zones) {
  ier_2 ier;
  gbd_sect_etat* etat = gbd_sect_etat_lst_chercher(section.lst_etats, num_etat, ier);
  if (ier) return ier;
  section.repere_sollicitation = etat->repere_sollicitation;
  if (deform_section != nullptr) *deform_section = etat->deform_section;
  for (gbd_zone& zone : section.lst_zones)
    des_zones(zone, etat->lst_etat_zones.lst_chercher_elt(zone.num_zone));
  return {};
}

}  // namespace

ier_2 gbd_sect_rappeller_etat(gbd_section& section, int num_etat, deformation* deform_section) {
  return loc_reprendre_etat(section, num_etat, deform_section, [](gbd_zone& zone, const gbd_zone_etat* tenu) {
    zone.etat_zone = tenu != nullptr ? *tenu : gbd_zone_etat{};
    zone.etat_zone.num_zone = zone.num_zone;
  });
}

ier_2 gbd_sect_completer_etat(gbd_section& section, int num_etat, deformation* deform_section) {
  return loc_reprendre_etat(section, num_etat, deform_section, [](gbd_zone& zone, const gbd_zone_etat* tenu) {
    if (tenu != nullptr && tenu->active) zone.etat_zone = *tenu;
  });
}
