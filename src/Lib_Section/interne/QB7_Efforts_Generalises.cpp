#include "QB7_Efforts_Generalises.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "QB7_APPROX_LOI.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_RDM.hpp"
#include "Simple.hpp"

using socle::simple;

qb7_efforts_generalises_t qb7_efforts_generalises;

void qb7_efforts_generalises_reinitialiser() { qb7_efforts_generalises = {}; }

namespace {

// ---- Building the table ----

/// The creep of a zone of the work table. The law is approximated as the store holds it, and the history of
/// the zone applied to the approximation as it was to the law.
ier_2 loc_zone_fluante(const gbd_zone& zone, zone_loc_type& zone_loc, int num_etat_lim,
                       zone_fluante_type& fluage) {
  zone_loc.epsilon_a = 0;
  fluage = {.fluante = zone.fluante, .c_fluage = zone.c_fluage, .loi_aff_par_mor = {}};
  if (!fluage.flue() || !zone_loc.active_non_vide) return {};
  if (num_etat_lim == qb7_etat_mecanique) {
    fluage.loi_aff_par_mor = zone_loc.loi;
    return {};
  }
  ier_2 ier;
  const gbd_loi* loi = gbd_loi_lst_chercher(gbd_glob.glob_lst_lois, {num_etat_lim, zone.num_materiau}, ier);
  if (!ier) ier = creation_loi_approximation_aff_par_mor(*loi, fluage.loi_aff_par_mor);
  if (!ier && gbd_zone_loi_est_modifiee(zone)) rdm_modifier_loi(zone, fluage.loi_aff_par_mor);
  return ier;
}

ier_2 loc_zones_fluantes(gbd_section& section, int num_etat_lim) {
  auto& fluages = qb7_efforts_generalises.glob_zones_fluantes;
  fluages.resize(eff_zones().size());
  std::size_t rang = 0;
  for (const gbd_zone& zone : section.lst_zones) {
    const ier_2 ier = loc_zone_fluante(zone, eff_zones()[rang], num_etat_lim, fluages[rang]);
    if (ier) return ier;
    ++rang;
  }
  return {};
}

// ---- Regions of one affine stress ----

/// A creeping zone under the planes that it has gone through.
struct contexte_fluage {
  const zone_loc_type* zone_loc;  ///< whose law, limits and creep these are; its holes are measured so too
  const zone_fluante_type* fluage;
  vue_loi loi;
  std::array<deformation, eff_g_nb_deform_max> tab_deform;  ///< from 0; the zone's own plane is counted
  std::size_t nb_deform;
  bool avec_tangente;
  ier_2* ier;
};

contexte_fluage loc_g_prepare_global_mere(const zone_loc_type& zone_loc, const zone_fluante_type& fluage,
                                          std::span<const deformation> tab_deform, bool avec_tangente,
                                          ier_2* ier) {
  contexte_fluage ctx{.zone_loc = &zone_loc,
                      .fluage = &fluage,
                      .loi = eff_contexte(zone_loc, {}).loi,
                      .tab_deform = {},
                      .nb_deform = tab_deform.size(),
                      .avec_tangente = avec_tangente,
                      .ier = ier};
  std::ranges::transform(tab_deform, ctx.tab_deform.begin(),
                         [&](const deformation& d) { return eff_contexte(zone_loc, d).plan; });
  return ctx;
}

/// A form that is measured: the zone of the context, or a hole in it.
struct forme_mesuree {
  const zone_loc_type* zone_loc;
  bool matiere;
};

/// A region over which all stresses before step `niveau` (from 0) were affine, and S of that step as a plane.
struct zone_iso_expression_fluage {
  std::span<const point_yz> pt_yz_points;
  std::size_t niveau;
  deformation contrainte;
};

/// Intervals of the law that the strains of a region lie in, from 0. What is less than 1e-10 beyond a knot
/// does not count: a region that was cut at this very knot has its edge there, up to a rounding.
struct intervalles_de_region {
  std::size_t premier, dernier;
};

intervalles_de_region loc_intervalles(std::span<const double> epsilons, std::span<const point_yz> points,
                                      const deformation& plan) {
  constexpr double tolerance = simple(1e-10f);
  const auto [min, max] = eff_etendue_epsilon(points, plan);
  if (!(max - min > 2 * tolerance)) {
    const std::size_t k = gbd_loi_intervalle(epsilons, (min + max) / 2);
    return {k, k};
  }
  return {gbd_loi_intervalle(epsilons, min + tolerance), gbd_loi_intervalle(epsilons, max - tolerance)};
}

/// Cuts an outline, or the segment between two points, where the strain is `niveau`. The two parts of a
/// concave outline may run along the cut there and back: what they enclose counts all the same.
void loc_couper(std::span<const point_yz> points, bool ferme, const deformation& plan, double niveau,
                std::vector<point_yz>& dessous, std::vector<point_yz>& dessus) {
  dessous.clear();
  dessus.clear();
  point_yz depart = ferme ? points.back() : points.front();
  double e_depart = epsilon(plan, depart) - niveau;
  for (const point_yz& p : points) {
    const double e = epsilon(plan, p) - niveau;
    if ((e_depart < 0 && e > 0) || (e_depart > 0 && e < 0)) {
      const double t = e_depart / (e_depart - e);
      const point_yz coupure{depart.y + t * (p.y - depart.y), depart.z + t * (p.z - depart.z)};
      dessous.push_back(coupure);
      dessus.push_back(coupure);
    }
    if (e <= 0) dessous.push_back(p);
    if (e >= 0) dessus.push_back(p);
    depart = p;
    e_depart = e;
  }
}

/// The last step: the region under the mechanical plane and the law itself.
resultante loc_integrer_region(const contexte_fluage& ctx, const forme_mesuree& forme,
                               std::span<const point_yz> points, const deformation& plan) {
  // the limits are those of the zone's own matter
  if (forme.matiere && ctx.ier != nullptr && !*ctx.ier && eff_limite_depassee(*ctx.zone_loc, points, plan))
    *ctx.ier = {ERR_EPSILON_LIM, ctx.zone_loc->num_zone};
  return eff_efforts_forme(*forme.zone_loc, points, {ctx.loi, plan}, forme.matiere, ctx.avec_tangente);
}

resultante loc_efforts_region(const contexte_fluage& ctx, const forme_mesuree& forme,
                              const zone_iso_expression_fluage& region);

/// The next step of a region that lies in one interval of the approximation, where the stress is a plane.
resultante loc_etape_suivante(const contexte_fluage& ctx, const forme_mesuree& forme,
                              std::span<const point_yz> points, const zone_iso_expression_fluage& region,
                              const deformation& plan, std::size_t intervalle_epsilon) {
  const qb7_polynome& a = ctx.fluage->loi_aff_par_mor.coeffs[intervalle_epsilon];
  deformation contrainte = a[1] * plan;
  contrainte.e0 += a[0];
  if (region.niveau > 0) contrainte = 0.5 * (region.contrainte + contrainte);
  return loc_efforts_region(ctx, forme, {points, region.niveau + 1, contrainte});
}

/// A region at its step: integrated at the last, else cut by the intervals of the approximation.
resultante loc_efforts_region(const contexte_fluage& ctx, const forme_mesuree& forme,
                              const zone_iso_expression_fluage& region) {
  const deformation plan = ctx.tab_deform[region.niveau] - ctx.fluage->c_fluage * region.contrainte;
  if (region.niveau + 1 == ctx.nb_deform) return loc_integrer_region(ctx, forme, region.pt_yz_points, plan);
  const std::span<const double> epsilons = ctx.fluage->loi_aff_par_mor.epsilons;
  const auto [premier, dernier] = loc_intervalles(epsilons, region.pt_yz_points, plan);
  if (premier == dernier) return loc_etape_suivante(ctx, forme, region.pt_yz_points, region, plan, premier);
  const bool ferme = forme.zone_loc->type_zone != qb7_zone_profil;
  auto& [dessous, reste, dessus] = qb7_efforts_generalises.glob_decoupes[region.niveau];
  reste.assign(region.pt_yz_points.begin(), region.pt_yz_points.end());
  resultante somme;
  for (std::size_t k = premier; k < dernier; ++k) {
    loc_couper(reste, ferme, plan, epsilons[k + 1], dessous, dessus);
    std::swap(reste, dessus);
    if (!dessous.empty()) somme += loc_etape_suivante(ctx, forme, dessous, region, plan, k);
  }
  if (!reste.empty()) somme += loc_etape_suivante(ctx, forme, reste, region, plan, dernier);
  return somme;
}

// ---- Forces of a zone ----

resultante int_efforts_fluage_contour(const contexte_fluage& ctx, const forme_mesuree& forme) {
  return loc_efforts_region(ctx, forme, {forme.zone_loc->yz_points, 0, {}});
}

/// Edge by edge: the parts of a polyline on one side of a strain need not hang together.
resultante int_efforts_fluage_profil(const contexte_fluage& ctx, const forme_mesuree& forme) {
  const std::span<const point_yz> points = forme.zone_loc->yz_points;
  resultante somme;
  for (std::size_t i = 1; i < points.size(); ++i)
    somme += loc_efforts_region(ctx, forme, {points.subspan(i - 1, 2), 0, {}});
  return somme;
}

/// Point by point: a point has one strain at each step, and is never cut.
resultante int_efforts_fluage_semis(const contexte_fluage& ctx, const forme_mesuree& forme) {
  const std::span<const point_yz> points = forme.zone_loc->yz_points;
  resultante somme;
  for (std::size_t i = 0; i < points.size(); ++i)
    somme += loc_efforts_region(ctx, forme, {points.subspan(i, 1), 0, {}});
  return somme;
}

resultante loc_efforts_forme(const contexte_fluage& ctx, const forme_mesuree& forme) {
  // a hole of no extent takes nothing; a zone without matter is still judged on its limits
  if (!forme.matiere && eff_param_surface(*forme.zone_loc, false) == 0) return {};
  switch (forme.zone_loc->type_zone) {
    case qb7_zone_profil: return int_efforts_fluage_profil(ctx, forme);
    case qb7_zone_semis: return int_efforts_fluage_semis(ctx, forme);
    default: return int_efforts_fluage_contour(ctx, forme);
  }
}

}  // namespace

ier_2 eff_g_section_calcul(gbd_section& section, int num_etat_lim) {
  ier_2 ier = eff_section_calcul(section, num_etat_lim);
  if (!ier) ier = loc_zones_fluantes(section, num_etat_lim);
  if (ier) eff_g_vider();
  return err_traiter("EFF_G_Section_Calcul", ier);
}

void eff_g_vider() {
  eff_vider();
  qb7_efforts_generalises.glob_zones_fluantes.clear();
}

void eff_g_efforts_section(std::span<const deformation> tab_deform, efforts& efforts_section,
                           rigidite* mat_section, ier_2* ier) {
  const bool avec_tangente = mat_section != nullptr;
  if (ier != nullptr) *ier = {};
  const resultante somme = eff_somme_des_zones([&](const zone_loc_type& zone_loc) {
    const auto rang = static_cast<std::size_t>(&zone_loc - eff_zones().data());
    const zone_fluante_type& fluage = qb7_efforts_generalises.glob_zones_fluantes[rang];
    if (!fluage.flue() || tab_deform.size() == 1)
      return eff_efforts_zone(zone_loc, zone_loc.c_remplissage, tab_deform.back(), avec_tangente, ier);
    const contexte_fluage ctx = loc_g_prepare_global_mere(zone_loc, fluage, tab_deform, avec_tangente, ier);
    return eff_efforts_nets(zone_loc, zone_loc.c_remplissage, [&](const zone_loc_type& forme, bool matiere) {
      return loc_efforts_forme(ctx, {&forme, matiere});
    });
  });
  efforts_section = somme.eff;
  if (mat_section != nullptr) *mat_section = somme.mat;
}
