// The store's side of the facade: sections, points, zones and states. Laws, cables and computations are in
// the files beside this one.
#include "QB7_Sections.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "QB7_Acces.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_Efforts_Generalises.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_PAR_Parametres.hpp"
#include "Systeme.hpp"

// ---- Life of the engine ----

void qb7_quitter() {
  qb7_err_effacer();
  eff_vider();
  gbd_glob_reinitialiser();
  par_renitialiser();
}

void qb7_g_quitter() {
  eff_g_vider();
  qb7_quitter();
}

void qb7_reinit_loi() {
  qb7_err_effacer();
  gbd_glob.glob_lst_lois.lst_vider();
}

ier_2 qb7_fixer_trace_dimensionnement(int unite_trace_optimisation, socle::vue_l1 fichier_trace_optimisation,
                                      bool effacer, bool trace_equilibre) {
  qb7_clore_trace_dimensionnement();
  qb7_par.qb7_par_unite_trace_optimisation = unite_trace_optimisation;
  qb7_par.qb7_par_fichier_trace_optimisation = fichier_trace_optimisation;
  qb7_par.qb7_par_trace_equilibre = trace_equilibre;
  if (unite_trace_optimisation <= 0) return {};
  qb7_par.qb7_par_trace = socle::le_systeme().creer(qb7_par.qb7_par_fichier_trace_optimisation.utile(),
                                                    effacer ? socle::debut::efface : socle::debut::suite);
  const bool ouverte = qb7_par.qb7_par_trace != nullptr;
  return err_traiter("QB7_Fixer_Trace_Dimensionnement",
                     ouverte ? ier_2{} : ier_2{ERR_FICHIER_TRACE, unite_trace_optimisation});
}

void qb7_clore_trace_dimensionnement() {
  qb7_err_effacer();
  qb7_par.qb7_par_trace.reset();
}

// ---- Sections ----

ier_2 qb7_creer_section(int num_section) {
  qb7_err_effacer();
  gbd_section section;
  section.num_section = num_section;
  return err_traiter("QB7_Creer_Section",
                     gbd_sect_lst_ajouter(gbd_glob.glob_lst_sections, std::move(section)));
}

ier_2 qb7_lire_section(int num_section, qb7_tailles_section& tailles) {
  tailles = {};
  return qb7_sur_section("QB7_Lire_Section", num_section, [&](const gbd_section& section) {
    tailles = {.nbre_zones = section.lst_zones.lst_longueur(),
               .nbre_points = section.lst_points.lst_longueur(),
               .nbre_etats = section.lst_etats.lst_longueur()};
    return ier_2{};
  });
}

ier_2 qb7_supprimer_section(int num_section) {
  return qb7_sur_section("QB7_Supprimer_Section", num_section, [&](const gbd_section&) {
    gbd_glob.glob_lst_sections.lst_supprimer_elt(num_section);
    return ier_2{};
  });
}

ier_2 qb7_copier_section(int num_section, int num_section_c) {
  return qb7_sur_section("QB7_Copier_Section", num_section, [&](const gbd_section& section) {
    gbd_section copie = section;
    copie.num_section = num_section_c;
    return gbd_sect_lst_ajouter(gbd_glob.glob_lst_sections, std::move(copie));
  });
}

ier_2 qb7_fixer_repere_sollicitation(int num_section, double y_rep, double z_rep, double alpha) {
  return qb7_sur_section("QB7_Fixer_Repere_Sollicitation", num_section, [&](gbd_section& section) {
    section.repere_sollicitation = {
        .y_rep = y_rep, .z_rep = z_rep, .alpha = alpha, .cosal = std::cos(alpha), .sinal = std::sin(alpha)};
    return ier_2{};
  });
}

ier_2 qb7_lire_repere_sollicitation(int num_section, repere& rep) {
  rep = {};
  return qb7_sur_section("QB7_Lire_Repere_Sollicitation", num_section, [&](const gbd_section& section) {
    rep = section.repere_sollicitation;
    return ier_2{};
  });
}

// ---- Points ----

ier_2 qb7_creer_point(int num_section, int num_point, double y, double z) {
  return qb7_sur_section("QB7_Creer_Point", num_section, [&](gbd_section& section) {
    return gbd_point_lst_ajouter(section.lst_points, {.num_point = num_point, .yz_point = {y, z}});
  });
}

ier_2 qb7_modifier_point(int num_section, int num_point, double y, double z) {
  return qb7_sur_section("QB7_Modifier_Point", num_section, [&](gbd_section& section) {
    ier_2 ier;
    gbd_point* point = gbd_point_lst_chercher(section.lst_points, num_point, ier);
    if (!ier) point->yz_point = {y, z};
    return ier;
  });
}

ier_2 qb7_lire_point(int num_section, int num_point, double& y, double& z) {
  y = 0;
  z = 0;
  return qb7_sur_section("QB7_Lire_Point", num_section, [&](gbd_section& section) {
    ier_2 ier;
    const gbd_point* point = gbd_point_lst_chercher(section.lst_points, num_point, ier);
    if (ier) return ier;
    y = point->yz_point.y;
    z = point->yz_point.z;
    return ier;
  });
}

namespace {

ier_2 loc_supprimer_point(gbd_section& section, int num_point) {
  return section.lst_points.lst_supprimer_elt(num_point) ? ier_2{} : ier_2{ERR_NON_POINT, num_point};
}

ier_2 loc_oter_de_la_zone(gbd_zone& zone, int num_point) {
  if (zone.liste_points.size() == 1) return {ERR_DIM_LISTE_PTS, zone.num_zone};
  const auto place = std::ranges::find(zone.liste_points, num_point);
  if (place == zone.liste_points.end()) return {ERR_NON_POINT, num_point};
  zone.critiques.erase(zone.critiques.begin() + (place - zone.liste_points.begin()));
  zone.liste_points.erase(place);
  return {};
}

}  // namespace

ier_2 qb7_supprimer_point(int num_section, int num_point) {
  return qb7_sur_section("QB7_Supprimer_Point", num_section,
                         [&](gbd_section& section) { return loc_supprimer_point(section, num_point); });
}

ier_2 qb7_supprimer_point_zone(int num_section, int num_zone, int num_point) {
  return qb7_sur_zone_de_section("QB7_Supprimer_Point_Zone", num_section, num_zone,
                                 [&](gbd_section& section, gbd_zone& zone) {
                                   const ier_2 ier = loc_supprimer_point(section, num_point);
                                   return ier ? ier : loc_oter_de_la_zone(zone, num_point);
                                 });
}

// ---- Zones ----

ier_2 qb7_creer_zone(int num_section, int num_zone, int type_zone, int num_materiau,
                     std::span<const int> liste_points) {
  return qb7_sur_section("QB7_Creer_Zone", num_section, [&](gbd_section& section) {
    gbd_zone zone;
    const ier_2 ier = gbd_zone_creer(num_zone, type_zone, num_materiau, liste_points, zone);
    return ier ? ier : gbd_zone_lst_ajouter(section.lst_zones, std::move(zone));
  });
}

ier_2 qb7_supprimer_zone(int num_section, int num_zone) {
  return qb7_sur_zone_de_section("QB7_Supprimer_Zone", num_section, num_zone,
                                 [&](gbd_section& section, const gbd_zone&) {
                                   section.lst_zones.lst_supprimer_elt(num_zone);
                                   for (gbd_sect_etat& etat : section.lst_etats)
                                     etat.lst_etat_zones.lst_supprimer_elt(num_zone);
                                   return ier_2{};
                                 });
}

ier_2 qb7_lire_type_zone(int num_section, int num_zone, int& type_zone) {
  type_zone = 0;
  return qb7_pour_zone("QB7_Lire_Type_Zone", num_section, num_zone,
                       [&](const gbd_zone& zone) { type_zone = zone.type_zone; });
}

ier_2 qb7_lire_num_materiau(int num_section, int num_zone, int& num_materiau) {
  num_materiau = 0;
  return qb7_pour_zone("QB7_Lire_Num_Materiau", num_section, num_zone,
                       [&](const gbd_zone& zone) { num_materiau = zone.num_materiau; });
}

ier_2 qb7_lire_nbre_pts_zone(int num_section, int num_zone, int& nbre_points) {
  nbre_points = 0;
  return qb7_pour_zone("QB7_Lire_Nbre_Pts_Zone", num_section, num_zone, [&](const gbd_zone& zone) {
    nbre_points = static_cast<int>(zone.liste_points.size());
  });
}

ier_2 qb7_lire_liste_pts_zone(int num_section, int num_zone, std::span<int> liste_points) {
  std::ranges::fill(liste_points, 0);
  return qb7_sur_zone("QB7_Lire_Liste_Pts_Zone", num_section, num_zone, [&](const gbd_zone& zone) {
    if (liste_points.size() != zone.liste_points.size())
      return ier_2{ERR_DIM_LISTE_PTS, static_cast<int>(liste_points.size())};
    std::ranges::copy(zone.liste_points, liste_points.begin());
    return ier_2{};
  });
}

ier_2 qb7_lire_nbre_zones(int num_section, int& nbre_zones) {
  nbre_zones = 0;
  return qb7_sur_section("QB7_Lire_Nbre_Zones", num_section, [&](const gbd_section& section) {
    nbre_zones = section.lst_zones.lst_longueur();
    return ier_2{};
  });
}

ier_2 qb7_lire_liste_zones(int num_section, std::span<int> liste_numero_zones) {
  std::ranges::fill(liste_numero_zones, 0);
  return qb7_sur_section("QB7_Lire_Liste_Zones", num_section, [&](const gbd_section& section) {
    const int taille = static_cast<int>(liste_numero_zones.size());
    if (taille != section.lst_zones.lst_longueur()) return ier_2{ERR_DIM_LISTE_ZONES, taille};
    auto place = liste_numero_zones.begin();
    for (const gbd_zone& zone : section.lst_zones) *place++ = zone.num_zone;
    return ier_2{};
  });
}

ier_2 qb7_fixer_num_zone_mere(int num_section, int num_zone, int num_zone_mere) {
  return qb7_sur_zone("QB7_Fixer_Num_Zone_Mere", num_section, num_zone, [&](gbd_zone& zone) {
    if (num_zone_mere == num_zone) return ier_2{ERR_NUM_MERE, num_zone};
    zone.num_zone_mere = num_zone_mere;
    return ier_2{};
  });
}

ier_2 qb7_lire_num_zone_mere(int num_section, int num_zone, int& num_zone_mere) {
  num_zone_mere = 0;
  return qb7_pour_zone("QB7_Lire_Num_Zone_Mere", num_section, num_zone,
                       [&](const gbd_zone& zone) { num_zone_mere = zone.num_zone_mere; });
}

ier_2 qb7_fixer_param_zone(int num_section, int num_zone, double p_matiere,
                           std::optional<double> p_encombrement) {
  return qb7_sur_zone("QB7_Fixer_Param_Zone", num_section, num_zone, [&](gbd_zone& zone) {
    if (zone.type_zone != qb7_zone_profil && zone.type_zone != qb7_zone_semis)
      return ier_2{ERR_TYPE_ZONE, zone.type_zone};
    if (p_matiere < 0) return ier_2{ERR_MATIERE, num_zone};
    const double encombrement = p_encombrement.value_or(p_matiere);
    if (encombrement < 0) return ier_2{ERR_ENCOMBREMENT, num_zone};
    zone.p_matiere = p_matiere;
    zone.p_encombrement = encombrement;
    return ier_2{};
  });
}

ier_2 qb7_lire_param_zone(int num_section, int num_zone, double* p_matiere, double* p_encombrement) {
  if (p_matiere != nullptr) *p_matiere = 0;
  if (p_encombrement != nullptr) *p_encombrement = 0;
  return qb7_pour_zone("QB7_Lire_Param_Zone", num_section, num_zone, [&](const gbd_zone& zone) {
    if (p_matiere != nullptr) *p_matiere = zone.p_matiere;
    if (p_encombrement != nullptr) *p_encombrement = zone.p_encombrement;
  });
}

ier_2 qb7_fixer_c_remplissage(int num_section, int num_zone, double c_remplissage) {
  return qb7_sur_zone("QB7_Fixer_C_Remplissage", num_section, num_zone, [&](gbd_zone& zone) {
    if (zone.type_zone == qb7_zone_contour) return ier_2{ERR_TYPE_ZONE, qb7_zone_contour};
    if (c_remplissage < 0) return ier_2{ERR_REMPLISSAGE, num_zone};
    zone.c_remplissage = c_remplissage;
    return ier_2{};
  });
}

ier_2 qb7_lire_c_remplissage(int num_section, int num_zone, double& c_remplissage) {
  c_remplissage = 0;
  return qb7_pour_zone("QB7_Lire_C_Remplissage", num_section, num_zone,
                       [&](const gbd_zone& zone) { c_remplissage = zone.c_remplissage; });
}

namespace {

/// Number and position of each point of a zone, ascending, so that a list of points is not looked for one by
/// one.
std::vector<std::pair<int, std::size_t>> loc_positions(const gbd_zone& zone) {
  std::vector<std::pair<int, std::size_t>> positions;
  positions.reserve(zone.liste_points.size());
  for (std::size_t i = 0; i < zone.liste_points.size(); ++i) positions.emplace_back(zone.liste_points[i], i);
  std::ranges::sort(positions);
  return positions;
}

}  // namespace

ier_2 qb7_fixer_critiques(int num_section, int num_zone, std::span<const int> liste_critiques,
                          bool critique) {
  return qb7_sur_zone("QB7_Fixer_Critiques", num_section, num_zone, [&](gbd_zone& zone) {
    const auto positions = loc_positions(zone);
    for (const int num_point : liste_critiques) {
      auto place = std::lower_bound(positions.begin(), positions.end(), std::pair{num_point, std::size_t{0}});
      if (place == positions.end() || place->first != num_point) return ier_2{ERR_NON_POINT, num_point};
      // a zone may list a point twice
      for (; place != positions.end() && place->first == num_point; ++place)
        zone.critiques[place->second] = critique;
    }
    return ier_2{};
  });
}

ier_2 qb7_activer_zone(int num_section, int num_zone, bool active, bool filles) {
  if (!filles)
    return qb7_pour_zone("QB7_Activer_Zone", num_section, num_zone,
                         [&](gbd_zone& zone) { zone.etat_zone.active = active; });
  return qb7_sur_zone_de_section("QB7_Activer_Zone", num_section, num_zone,
                                 [&](gbd_section& section, const gbd_zone&) {
                                   return gbd_sect_fixer_activ_totale(section, num_zone, active);
                                 });
}

ier_2 qb7_activite_zone(int num_section, int num_zone, bool& active) {
  active = false;
  return qb7_pour_zone("QB7_Activite_Zone", num_section, num_zone,
                       [&](const gbd_zone& zone) { active = zone.etat_zone.active; });
}

ier_2 qb7_fixer_deform_zone(int num_section, int num_zone, bool cumul, int type_deform,
                            const deformation& deform_zone) {
  return qb7_sur_zone_de_section(
      "QB7_Fixer_Deform_Zone", num_section, num_zone, [&](const gbd_section& section, gbd_zone& zone) {
        if (type_deform != qb7_deform_cumulee && type_deform != qb7_deform_imposee)
          return ier_2{ERR_TYPE_DEFORM, type_deform};
        const deformation propre = gbd_sect_deform_propre(section.repere_sollicitation, deform_zone);
        zone.etat_zone.deform_zone = cumul ? zone.etat_zone.deform_zone + propre : propre;
        zone.etat_zone.type_deform = type_deform;
        return ier_2{};
      });
}

ier_2 qb7_lire_deform_zone(int num_section, int num_zone, int& type_deform, deformation& deform_zone) {
  type_deform = 0;
  deform_zone = {};
  return qb7_sur_zone_de_section("QB7_Lire_Deform_Zone", num_section, num_zone,
                                 [&](const gbd_section& section, const gbd_zone& zone) {
                                   type_deform = zone.etat_zone.type_deform;
                                   deform_zone = gbd_sect_deform_zone(section, zone);
                                   return ier_2{};
                                 });
}

ier_2 qb7_fixer_modif_lois_zone(int num_section, int num_zone, const modif_lois& modif) {
  return qb7_pour_zone("QB7_Fixer_Modif_Lois_Zone", num_section, num_zone,
                       [&](gbd_zone& zone) { gbd_zone_fixer_modif_loi(zone, modif); });
}

ier_2 qb7_lire_modif_lois_zone(int num_section, int num_zone, modif_lois& modif) {
  modif = {};
  return qb7_pour_zone("QB7_Lire_Modif_Lois_Zone", num_section, num_zone,
                       [&](const gbd_zone& zone) { modif = zone.etat_zone.modif; });
}

ier_2 qb7_fixer_inclinaisons_zone(int num_section, int num_zone, double dy_sur_dx, double dz_sur_dx) {
  return qb7_pour_zone("QB7_Fixer_Inclinaisons_Zone", num_section, num_zone, [&](gbd_zone& zone) {
    zone.d_yz_sur_dx = {dy_sur_dx, dz_sur_dx};
  });
}

ier_2 qb7_lire_inclinaisons_zone(int num_section, int num_zone, double& dy_sur_dx, double& dz_sur_dx) {
  dy_sur_dx = 0;
  dz_sur_dx = 0;
  return qb7_pour_zone("QB7_Lire_Inclinaisons_Zone", num_section, num_zone, [&](const gbd_zone& zone) {
    dy_sur_dx = zone.d_yz_sur_dx[0];
    dz_sur_dx = zone.d_yz_sur_dx[1];
  });
}

ier_2 qb7_fixer_dimensionnable(int num_section, int num_zone, bool dimensionnable) {
  return qb7_sur_zone("QB7_Fixer_Dimensionnable", num_section, num_zone, [&](gbd_zone& zone) {
    if (dimensionnable && zone.type_zone == qb7_zone_contour) return ier_2{ERR_TYPE_ZONE, qb7_zone_contour};
    zone.dimensionnable = dimensionnable;
    return ier_2{};
  });
}

ier_2 qb7_lire_dimensionnable(int num_section, int num_zone, bool& dimensionnable) {
  dimensionnable = false;
  return qb7_pour_zone("QB7_Lire_Dimensionnable", num_section, num_zone,
                       [&](const gbd_zone& zone) { dimensionnable = zone.dimensionnable; });
}

ier_2 qb7_fixer_fluante(int num_section, int num_zone, bool fluante) {
  return qb7_pour_zone("QB7_Fixer_Fluante", num_section, num_zone,
                       [&](gbd_zone& zone) { zone.fluante = zone.fluante || fluante; });
}

ier_2 qb7_lire_fluante(int num_section, int num_zone, bool& fluante) {
  fluante = false;
  return qb7_pour_zone("QB7_Lire_Fluante", num_section, num_zone,
                       [&](const gbd_zone& zone) { fluante = zone.fluante; });
}

ier_2 qb7_fixer_c_fluage(int num_section, int num_zone, double c_fluage) {
  return qb7_sur_zone("QB7_Fixer_C_Fluage", num_section, num_zone, [&](gbd_zone& zone) {
    if (!std::isfinite(c_fluage) || c_fluage < 0) return ier_2{ERR_FLUAGE, num_zone};
    zone.c_fluage = c_fluage;
    return ier_2{};
  });
}

ier_2 qb7_lire_c_fluage(int num_section, int num_zone, double& c_fluage) {
  c_fluage = 0;
  return qb7_pour_zone("QB7_Lire_C_Fluage", num_section, num_zone,
                       [&](const gbd_zone& zone) { c_fluage = zone.c_fluage; });
}

// ---- States ----

ier_2 qb7_creer_etat(int num_section, int num_etat, const deformation& deform_section) {
  return qb7_sur_section("QB7_Creer_Etat", num_section, [&](gbd_section& section) {
    return gbd_sect_creer_etat(section, num_etat, deform_section);
  });
}

ier_2 qb7_supprimer_etat(int num_section, int num_etat) {
  return qb7_sur_section("QB7_Supprimer_Etat", num_section, [&](gbd_section& section) {
    return section.lst_etats.lst_supprimer_elt(num_etat) ? ier_2{} : ier_2{ERR_NON_ETAT, num_etat};
  });
}

ier_2 qb7_rappeller_etat(int num_section, int num_etat, deformation* deform_section) {
  if (deform_section != nullptr) *deform_section = {};
  return qb7_sur_section("QB7_Rappeller_Etat", num_section, [&](gbd_section& section) {
    return gbd_sect_rappeller_etat(section, num_etat, deform_section);
  });
}

ier_2 qb7_completer_etat(int num_section, int num_etat, deformation* deform_section) {
  if (deform_section != nullptr) *deform_section = {};
  return qb7_sur_section("QB7_Completer_Etat", num_section, [&](gbd_section& section) {
    return gbd_sect_completer_etat(section, num_etat, deform_section);
  });
}
