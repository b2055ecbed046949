// The computing side of the facade: the work tables are built afresh at each call, then asked.
#include <algorithm>
#include <cstddef>

#include "QB7_Acces.hpp"
#include "QB7_Diagramme.hpp"
#include "QB7_Dim.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_Efforts_Generalises.hpp"
#include "QB7_Equilibre.hpp"
#include "QB7_Equilibre_Generalise.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_PAR_Parametres.hpp"
#include "QB7_RDM.hpp"
#include "QB7_Sections.hpp"

namespace {

/// The law of a zone's material.
gbd_loi* loc_loi_de_zone(const gbd_zone& zone, int num_etat_lim, ier_2& ier) {
  return gbd_loi_lst_chercher(gbd_glob.glob_lst_lois,
                              {.num_etat_lim = num_etat_lim, .num_materiau = zone.num_materiau}, ier);
}

ier_2 loc_aire_de_zone(gbd_section& section, int num_zone, int num_etat_lim, double& aire) {
  const ier_2 ier = eff_section_calcul(section, num_etat_lim);
  if (!ier) aire = eff_surface_zone(num_zone);
  return ier;
}

/// Work table in the section's own axes, whatever the frame of loading.
ier_2 loc_section_calcul_propre(gbd_section& section, int num_etat_lim) {
  const repere mise_de_cote = section.repere_sollicitation;
  section.repere_sollicitation = {};
  const ier_2 ier = eff_section_calcul(section, num_etat_lim);
  section.repere_sollicitation = mise_de_cote;
  return ier;
}

}  // namespace

ier_2 qb7_deformation_point_zone(int num_section, int num_zone, double y, double z,
                                 const deformation& deform_section, qb7_deformation_point& resultat) {
  resultat = {};
  return qb7_sur_zone_de_section(
      "QB7_Deformation_Point_Zone", num_section, num_zone,
      [&](const gbd_section& section, const gbd_zone& zone) {
        const point_yz yz_point = vers_repere(section.repere_sollicitation, {y, z});
        resultat = rdm_deformation_point_zone(section, zone, yz_point, deform_section);
        return ier_2{};
      });
}

ier_2 qb7_contrainte_point_zone(int num_section, int num_zone, int num_etat_lim, double epsilon,
                                double& sigma, double& delta_sigma, bool controle_bornes) {
  sigma = 0;
  delta_sigma = 0;
  ier_2 limite_tue;
  const ier_2 ier =
      qb7_sur_zone("QB7_Contrainte_Point_Zone", num_section, num_zone, [&](const gbd_zone& zone) {
        ier_2 ier_zone;
        const gbd_loi* loi = loc_loi_de_zone(zone, num_etat_lim, ier_zone);
        if (ier_zone) return ier_zone;
        ier_zone = rdm_contrainte_point_zone(zone, *loi, epsilon, sigma, delta_sigma, controle_bornes);
        if (controle_bornes) return ier_zone;
        limite_tue = ier_zone;
        return ier_2{};
      });
  if (!ier) return limite_tue;
  sigma = 0;
  delta_sigma = 0;
  return ier;
}

ier_2 qb7_etat_point_zone_fluage(int num_section, int num_zone, int num_etat_lim, double coefficient_fluage,
                                 double y, double z, const deformation& deform_permanent_section,
                                 const deformation& deform_final_section, qb7_etat_fluage& resultat) {
  resultat = {};
  return qb7_sur_zone_de_section("QB7_Etat_Point_Zone_Fluage", num_section, num_zone,
                                 [&](const gbd_section& section, const gbd_zone& zone) {
                                   if (!zone.fluante) return ier_2{};
                                   ier_2 ier;
                                   const gbd_loi* loi = loc_loi_de_zone(zone, num_etat_lim, ier);
                                   if (ier) return ier;
                                   const rdm_etat_fluage etat = rdm_etat_point_zone_fluage(
                                       *loi, vers_repere(section.repere_sollicitation, {y, z}),
                                       coefficient_fluage, deform_permanent_section, deform_final_section);
                                   resultat = {.epsilon_permanent = etat.epsilon_perm,
                                               .epsilon_final = etat.epsilon_final,
                                               .epsilon_fluage = etat.epsilon_fluage,
                                               .sigma_permanent = etat.sigma_perm,
                                               .sigma_final = etat.sigma_final};
                                   return ier;
                                 });
}

// ---- Geometry and mechanics ----

ier_2 qb7_section_brute_zone(int num_section, int num_zone, double& section_brute) {
  section_brute = 0;
  return qb7_sur_zone_de_section(
      "QB7_Section_Brute_Zone", num_section, num_zone, [&](gbd_section& section, const gbd_zone&) {
        return loc_aire_de_zone(section, num_zone, qb7_etat_mecanique, section_brute);
      });
}

ier_2 qb7_section_nette_zone(int num_section, int num_zone, int num_etat_lim, double& section_nette) {
  section_nette = 0;
  return qb7_sur_zone_de_section("QB7_Section_Nette_Zone", num_section, num_zone,
                                 [&](gbd_section& section, const gbd_zone&) {
                                   return loc_aire_de_zone(section, num_zone, num_etat_lim, section_nette);
                                 });
}

ier_2 qb7_caracteristiques_mecaniques(int num_section, int num_etat_lim,
                                      caracteristiques_mecaniques& resultat,
                                      const deformation& deform_section) {
  resultat = {};
  return qb7_sur_section("QB7_Caracteristiques_Mecaniques", num_section, [&](gbd_section& section) {
    if (const ier_2 ier = loc_section_calcul_propre(section, num_etat_lim)) return ier;
    efforts efforts_section;
    rigidite mat_section;
    eff_efforts_section(deform_section, efforts_section, &mat_section);
    if (mat_section.a1 == 0) return ier_2{ERR_E_SX_NUL, num_section};
    resultat = rdm_caracteristiques(mat_section);
    return ier_2{};
  });
}

ier_2 qb7_deformer_section(int num_section, int num_etat_lim, const deformation& deform_section,
                           efforts& efforts_section) {
  efforts_section = {};
  return qb7_sur_section("QB7_Deformer_Section", num_section, [&](gbd_section& section) {
    ier_2 ier = eff_section_calcul(section, num_etat_lim);
    if (ier) return ier;
    eff_efforts_section(deform_section, efforts_section, nullptr, &ier);
    if (ier) efforts_section = {};
    return ier;
  });
}

ier_2 qb7_solliciter_section(bool bornes, int num_section, int num_etat_lim, const efforts& efforts_section,
                             deformation& deform_section) {
  return qb7_sur_section("QB7_Solliciter_Section", num_section, [&](gbd_section& section) {
    if (const ier_2 ier = eff_section_calcul(section, num_etat_lim)) return ier;
    if (socle::sortie* trace = par_trace_optimisation()) {
      trace->ligne("   Solliciter section");
      trace->ligne("");
    }
    return eff_solliciter_section(bornes, efforts_section, deform_section);
  });
}

ier_2 qb7_solliciter_permanent_section(bool bornes, int num_section, int num_etat_lim,
                                       const efforts& efforts_permanents_section,
                                       deformation& deform_permanent_section, qb7_histoire_fluage& histoire) {
  histoire = {};
  return qb7_sur_section("QB7_Solliciter_Permanent_Section", num_section, [&](gbd_section& section) {
    const ier_2 ier = eff_g_section_calcul(section, num_etat_lim);
    return ier ? ier
               : eff_solliciter_permanent_section(bornes, efforts_permanents_section,
                                                  deform_permanent_section, histoire);
  });
}

ier_2 qb7_solliciter_final_section(bool bornes, int num_section, int num_etat_lim,
                                   const qb7_histoire_fluage& histoire, const efforts& efforts_totaux_section,
                                   deformation& deform_final_section) {
  return qb7_sur_section("QB7_Solliciter_Final_Section", num_section, [&](gbd_section& section) {
    const int nb_deform = histoire.nb_tab_deform_section;
    if (nb_deform < 0 || nb_deform > static_cast<int>(histoire.tab_deform_section.size()))
      return ier_2{ERR_DIM_TAB, nb_deform};
    ier_2 ier = eff_g_section_calcul(section, num_etat_lim);
    if (!ier)
      ier = eff_solliciter_final_section(bornes, histoire, efforts_totaux_section, deform_final_section);
    eff_g_vider();
    return ier;
  });
}

ier_2 qb7_effort_resistant_limite(bool bornes, int num_section, int num_etat_lim,
                                  const efforts& efforts_section, const efforts& delta_efforts, double k_min,
                                  double k_max, double& k) {
  k = 0;
  return qb7_sur_section("QB7_Effort_Resistant_Limite", num_section, [&](gbd_section& section) {
    const ier_2 ier = eff_section_calcul(section, num_etat_lim);
    return ier ? ier : eff_effort_resistant_limite(bornes, efforts_section, delta_efforts, k_min, k_max, k);
  });
}

ier_2 qb7_diagramme_interaction(bool bornes, int num_section, int num_etat_lim, const matrice_3& mat_plan,
                                double c, std::span<point_xy> xy_points) {
  std::ranges::fill(xy_points, point_xy{});
  return qb7_sur_section("QB7_Diagramme_Interaction", num_section, [&](gbd_section& section) {
    const ier_2 ier = dgi_interaction(bornes, section, num_etat_lim, mat_plan, c, xy_points);
    if (ier) std::ranges::fill(xy_points, point_xy{});
    return ier;
  });
}

// ---- Design ----

ier_2 qb7_dimensionner(int num_section, std::span<const int> tab_num_etat_lim,
                       std::span<const int> tab_num_etat, std::span<const efforts> tab_efforts,
                       std::optional<int> opt_choix_base_pref) {
  return qb7_sur_section("QB7_Dimensionner", num_section, [&](gbd_section& section) {
    const std::size_t ns = tab_efforts.size();
    if (tab_num_etat_lim.size() != ns || tab_num_etat.size() != ns)
      return ier_2{ERR_DIM_TAB, static_cast<int>(ns)};
    return dim_dimensionner(section, tab_num_etat_lim, tab_num_etat, tab_efforts, opt_choix_base_pref);
  });
}
