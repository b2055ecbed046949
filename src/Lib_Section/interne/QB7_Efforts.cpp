#include "QB7_Efforts.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "Edition.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_PAR_Parametres.hpp"
#include "QB7_RDM.hpp"

qb7_efforts_t qb7_efforts;

void qb7_efforts_reinitialiser() { qb7_efforts = {}; }

namespace {

// ---- Building the table ----

/// Room for one more zone, as a new record would be but for the memory that it keeps.
zone_loc_type& loc_nouvelle_zone() {
  auto& zones = qb7_efforts.glob_loc_zones;
  const auto rang = static_cast<std::size_t>(qb7_efforts.glob_nbre_zones++);
  if (rang == zones.size()) zones.emplace_back();
  zone_loc_type& zone_loc = zones[rang];
  zone_loc_type vierge;
  vierge.yz_points.swap(zone_loc.yz_points);
  vierge.tab_rangs_filles.swap(zone_loc.tab_rangs_filles);
  std::swap(vierge.loi, zone_loc.loi);
  vierge.tab_rangs_filles.clear();
  zone_loc = std::move(vierge);
  return zone_loc;
}

/// What a profile or a set of bars takes out of its mother, by the hole type of its law.
double loc_encombrement(const gbd_zone& zone, int type_trou) {
  switch (type_trou) {
    case qb7_trou_encombrement: return zone.p_encombrement;
    case qb7_trou_matiere: return zone.p_matiere;
    case qb7_trou_selon_zone: return zone.type_zone == qb7_zone_profil ? zone.p_matiere : 0;
    default: return 0;
  }
}

/// What a zone with a material weighs, by its type and by the hole type of its law.
ier_2 loc_fixer_parametres(const gbd_zone& zone, const gbd_zone* mere, int type_trou,
                           zone_loc_type& zone_loc) {
  if (type_trou < qb7_trou_encombrement || type_trou > qb7_trou_selon_zone)
    return {ERR_INTERNE, zone.num_zone};
  const bool selon_zone = type_trou == qb7_trou_selon_zone;
  const bool dans_matiere = mere != nullptr && mere->num_materiau != qb7_sans_materiau;
  switch (zone.type_zone) {
    case qb7_zone_contour: return {};
    case qb7_zone_sous_contour:
      zone_loc.c_remplissage = selon_zone && dans_matiere ? 0 : zone.c_remplissage;
      return {};
    case qb7_zone_profil:
    case qb7_zone_semis:
      zone_loc.p_matiere = zone.p_matiere;
      zone_loc.p_encombrement = loc_encombrement(zone, type_trou);
      zone_loc.c_remplissage = selon_zone && zone.type_zone == qb7_zone_semis ? 0 : zone.c_remplissage;
      return {};
    default: return {ERR_INTERNE, zone.num_zone};
  }
}

/// The plane and the law of an active zone; `loi` is null at the mechanical limit state.
ier_2 loc_fixer_loi(const gbd_section& section, const gbd_zone& zone, const gbd_zone* mere,
                    const gbd_loi* loi, zone_loc_type& zone_loc) {
  if (mere != nullptr && !mere->etat_zone.active) return {ERR_MERE_INACTIVE, mere->num_zone};
  zone_loc.active_non_vide = true;
  zone_loc.type_deform = zone.etat_zone.type_deform;
  zone_loc.deform_zone = gbd_sect_deform_zone(section, zone);
  if (loi == nullptr) {
    zone_loc.loi = gbd_loi_meca();
  } else {
    zone_loc.loi = *loi;
    if (gbd_zone_loi_est_modifiee(zone)) rdm_modifier_loi(zone, zone_loc.loi);
    zone_loc.epsilon_m = zone.etat_zone.modif.epsilon_m;
    zone_loc.epsilon_z = zone.etat_zone.modif.epsilon_z;
    zone_loc.epsilon_a = zone.etat_zone.modif.epsilon_a;
  }
  zone_loc.degre_loi = int_degre_effectif(zone_loc.loi.coeffs);
  return {};
}

ier_2 loc_zone_calcul(gbd_section& section, const gbd_zone& zone, int num_etat_lim) {
  zone_loc_type& zone_loc = loc_nouvelle_zone();
  zone_loc.num_zone = zone.num_zone;
  zone_loc.type_zone = zone.type_zone;
  zone_loc.num_zone_mere = zone.num_zone_mere;
  if (const ier_2 ier = gbd_sect_yz_zone_courant(section, zone, zone_loc.yz_points)) return ier;
  gbd_zone* mere = nullptr;
  if (const ier_2 ier = gbd_sect_pt_zone_mere(section, zone, false, mere)) return ier;
  const bool mecanique = num_etat_lim == qb7_etat_mecanique;
  if (zone.num_materiau == qb7_sans_materiau) {
    if (zone.type_zone == qb7_zone_semis && !mecanique) zone_loc.p_encombrement = zone.p_encombrement;
    return {};
  }
  ier_2 ier;
  const gbd_loi* loi = nullptr;
  if (!mecanique) {
    loi = gbd_loi_lst_chercher(gbd_glob.glob_lst_lois, {num_etat_lim, zone.num_materiau}, ier);
    if (ier) return ier;
  }
  ier = loc_fixer_parametres(zone, mere, loi == nullptr ? qb7_trou_selon_zone : loi->type_trou, zone_loc);
  if (ier || !zone.etat_zone.active) return ier;
  return loc_fixer_loi(section, zone, mere, loi, zone_loc);
}

/// Whether a mother can have this daughter.
bool loc_paire_permise(const zone_loc_type& mere, const zone_loc_type& fille) {
  switch (mere.type_zone) {
    case qb7_zone_contour: return true;
    case qb7_zone_sous_contour:
      if (fille.type_zone == qb7_zone_contour) return true;
      return fille.type_zone != qb7_zone_sous_contour &&
             (mere.c_remplissage == 0 || fille.c_remplissage == 1);
    default: return false;
  }
}

/// Mothers and daughters by ranks; the zones stand in ascending order of their numbers.
ier_2 loc_liste_filles() {
  const auto zones = eff_zones();
  for (std::size_t i = 0; i < zones.size(); ++i) {
    if (zones[i].num_zone_mere == qb7_sans_mere) continue;
    const auto mere = std::ranges::lower_bound(zones, zones[i].num_zone_mere, {}, &zone_loc_type::num_zone);
    if (mere == zones.end() || mere->num_zone != zones[i].num_zone_mere) continue;
    zones[i].rang_zone_mere = static_cast<int>(mere - zones.begin()) + 1;
    mere->tab_rangs_filles.push_back(static_cast<int>(i) + 1);
  }
  for (const zone_loc_type& mere : zones) {
    for (const int rang : mere.tab_rangs_filles) {
      if (!loc_paire_permise(mere, eff_zone_de_rang(rang)))
        return {ERR_TYPE_MERE, eff_zone_de_rang(rang).num_zone};
    }
  }
  return {};
}

ier_2 loc_zones_calcul(gbd_section& section, int num_etat_lim) {
  for (const gbd_zone& zone : section.lst_zones) {
    if (const ier_2 ier = loc_zone_calcul(section, zone, num_etat_lim)) return ier;
  }
  return {};
}

bool loc_est_contour(const zone_loc_type& zone_loc) {
  return zone_loc.type_zone == qb7_zone_contour || zone_loc.type_zone == qb7_zone_sous_contour;
}

void loc_tracer_matrice(socle::sortie& trace, std::string_view forme, const rigidite& k) {
  std::string ligne = socle::concat({"          Matrice ", forme});
  for (const double x : {k.a1, k.a2, k.b2, k.a3, k.b3, k.c3}) ligne += socle::edite(socle::E{16, 8}, x);
  trace.ligne(ligne);
}

void loc_tracer_zone(const zone_loc_type& zone_loc, const rigidite& mat) {
  socle::sortie* trace = par_trace_equilibre();
  if (trace == nullptr) return;
  switch (zone_loc.type_zone) {
    case qb7_zone_profil: return loc_tracer_matrice(*trace, "profil   :", mat);
    case qb7_zone_semis: return loc_tracer_matrice(*trace, "semis    :", mat);
    default: return loc_tracer_matrice(*trace, "contour  : ", mat);
  }
}

double loc_surface_zone(const zone_loc_type& zone_loc, bool matiere) {
  const double param_surface = eff_param_surface(zone_loc, matiere);
  switch (zone_loc.type_zone) {
    case qb7_zone_profil: return param_surface * int_longueur_profil(zone_loc.yz_points);
    case qb7_zone_semis: return param_surface * static_cast<double>(zone_loc.yz_points.size());
    default: return int_aire_contour(zone_loc.yz_points);
  }
}

}  // namespace

std::span<zone_loc_type> eff_zones() {
  return std::span(qb7_efforts.glob_loc_zones).first(static_cast<std::size_t>(qb7_efforts.glob_nbre_zones));
}

ier_2 eff_section_calcul(gbd_section& section, int num_etat_lim) {
  eff_vider();
  ier_2 ier = err_traiter("LOC_Zone_Calcul", loc_zones_calcul(section, num_etat_lim));
  if (!ier) ier = err_traiter("LOC_Liste_Filles", loc_liste_filles());
  if (ier) eff_vider();
  return err_traiter("EFF_Section_Calcul", ier);
}

void eff_vider() { qb7_efforts.glob_nbre_zones = 0; }

zone_loc_type& eff_zone_de_rang(int rang_zone) {
  return eff_zones()[static_cast<std::size_t>(rang_zone - 1)];
}

// ---- Forces of a zone ----

contexte_zone eff_contexte(const zone_loc_type& zone_loc, const deformation& deform_section) {
  deformation plan = zone_loc.deform_zone;
  if (zone_loc.type_deform == qb7_deform_cumulee) plan += deform_section;
  return {{zone_loc.loi.epsilons, zone_loc.loi.coeffs, zone_loc.degre_loi}, plan};
}

double eff_param_surface(const zone_loc_type& zone_loc, bool matiere) {
  if (loc_est_contour(zone_loc)) return 1;
  return matiere ? zone_loc.p_matiere : zone_loc.p_encombrement;
}

resultante eff_efforts_forme(const zone_loc_type& zone_loc, std::span<const point_yz> points,
                             const contexte_zone& ctx, bool matiere, bool avec_tangente) {
  const double param_surface = eff_param_surface(zone_loc, matiere);
  if (param_surface == 0) return {};
  switch (zone_loc.type_zone) {
    case qb7_zone_profil: return int_efforts_profil(ctx, points, param_surface, avec_tangente);
    case qb7_zone_semis: return int_efforts_semis(ctx, points, param_surface, avec_tangente);
    default: return int_efforts_contour(ctx, points, avec_tangente);
  }
}

etendue_epsilon eff_etendue_epsilon(std::span<const point_yz> points, const deformation& plan) {
  const double premier = epsilon(plan, points.front());
  etendue_epsilon etendue{premier, premier};
  for (const point_yz& p : points.subspan(1)) {
    const double e = epsilon(plan, p);
    etendue.min = std::min(etendue.min, e);
    etendue.max = std::max(etendue.max, e);
  }
  return etendue;
}

bool eff_limite_depassee(const zone_loc_type& zone_loc, std::span<const point_yz> points,
                         const deformation& plan) {
  const gbd_loi& loi = zone_loc.loi;
  const bool a_min = loi.epsilon_min != qb7_sans_borne;
  const bool a_max = loi.epsilon_max != qb7_sans_borne;
  if (points.empty() || (!a_min && !a_max)) return false;
  const auto [min, max] = eff_etendue_epsilon(points, plan);
  return (a_min && min + zone_loc.epsilon_a < loi.epsilon_min - zone_loc.epsilon_z) ||
         (a_max && max + zone_loc.epsilon_a > loi.epsilon_max - zone_loc.epsilon_z);
}

resultante eff_efforts_zone(const zone_loc_type& zone_loc, double c_remplissage,
                            const deformation& deform_section, bool avec_tangente, ier_2* ier) {
  const contexte_zone ctx = eff_contexte(zone_loc, deform_section);
  if (ier != nullptr && !*ier && eff_limite_depassee(zone_loc, zone_loc.yz_points, ctx.plan))
    *ier = {ERR_EPSILON_LIM, zone_loc.num_zone};
  return eff_efforts_nets(zone_loc, c_remplissage, [&](const zone_loc_type& forme, bool matiere) {
    return eff_efforts_forme(forme, forme.yz_points, ctx, matiere, avec_tangente);
  });
}

void eff_efforts_section(const deformation& deform_section, efforts& efforts_section, rigidite* mat_section,
                         ier_2* ier) {
  const bool avec_tangente = mat_section != nullptr;
  if (ier != nullptr) *ier = {};
  const resultante somme = eff_somme_des_zones([&](const zone_loc_type& zone_loc) {
    const resultante r =
        eff_efforts_zone(zone_loc, zone_loc.c_remplissage, deform_section, avec_tangente, ier);
    if (avec_tangente) loc_tracer_zone(zone_loc, r.mat);
    return r;
  });
  efforts_section = somme.eff;
  if (mat_section != nullptr) *mat_section = somme.mat;
}

double eff_surface_rang_zone(int rang_zone) {
  const zone_loc_type& zone_loc = eff_zone_de_rang(rang_zone);
  if (!zone_loc.active_non_vide) return 0;
  double aire = loc_surface_zone(zone_loc, true);
  for (const int rang : zone_loc.tab_rangs_filles) {
    const zone_loc_type& fille = eff_zone_de_rang(rang);
    aire -= eff_part_de_fille(fille, fille.c_remplissage,
                              [](const zone_loc_type& z) { return loc_surface_zone(z, false); });
  }
  return aire;
}

double eff_surface_zone(int num_zone) {
  const auto zones = eff_zones();
  const auto zone_loc = std::ranges::lower_bound(zones, num_zone, {}, &zone_loc_type::num_zone);
  if (zone_loc == zones.end() || zone_loc->num_zone != num_zone) return 0;
  return eff_surface_rang_zone(static_cast<int>(zone_loc - zones.begin()) + 1);
}

rigidite eff_mat_zone(int rang_zone) {
  const zone_loc_type& zone_loc = eff_zone_de_rang(rang_zone);
  if (!zone_loc.active_non_vide) return {};
  return eff_efforts_zone(zone_loc, zone_loc.c_remplissage, {}, true, nullptr).mat;
}

efforts eff_mat_acier(int rang_zone, const deformation& deform_section) {
  const zone_loc_type& zone_loc = eff_zone_de_rang(rang_zone);
  if (!zone_loc.active_non_vide) return {};
  resultante r = eff_efforts_zone(zone_loc, 1, deform_section, false, nullptr);
  if (zone_loc.p_encombrement != 0 && zone_loc.rang_zone_mere != 0) {
    const zone_loc_type& mere = eff_zone_de_rang(zone_loc.rang_zone_mere);
    if (mere.active_non_vide) {
      const contexte_zone ctx = eff_contexte(mere, deform_section);
      r -= eff_part_de_fille(zone_loc, 1, [&](const zone_loc_type& forme) {
        return eff_efforts_forme(forme, forme.yz_points, ctx, false, false);
      });
    }
  }
  return r.eff;
}
