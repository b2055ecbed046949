// The cables' side of the facade: tensioning, bond, and the losses between two limit states. All that a cable
// keeps from one construction phase to the next stands in the six values of modif_lois.
#include <vector>

#include "QB7_Acces.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_RDM.hpp"
#include "QB7_Sections.hpp"

namespace {

bool loc_a_plus_d_un_point(const gbd_zone& zone) { return zone.liste_points.size() > 1; }

ier_2 loc_chercher_cable(int num_section, int num_zone_cable, qb7_zone_trouvee& cable) {
  if (const ier_2 ier = qb7_chercher_zone(num_section, num_zone_cable, cable)) return ier;
  return loc_a_plus_d_un_point(*cable.zone) ? ier_2{ERR_PTS_CABLE, num_zone_cable} : ier_2{};
}

gbd_loi* loc_loi(int num_materiau, int num_etat_lim) {
  return gbd_glob.glob_lst_lois.lst_chercher_elt(
      {.num_etat_lim = num_etat_lim, .num_materiau = num_materiau});
}

ier_2 loc_tendre(int num_section, int num_etat_lim, bool prec_iso_incluse, int num_zone_cable, double sigma) {
  qb7_zone_trouvee cable;
  if (const ier_2 ier = loc_chercher_cable(num_section, num_zone_cable, cable)) return ier;
  const gbd_loi* loi = loc_loi(cable.zone->num_materiau, num_etat_lim);
  if (loi == nullptr) return {ERR_NON_LOI_CABLE, num_zone_cable};
  double e = 0;
  if (const ier_2 ier = rdm_deformation_materiau(*loi, sigma, e)) return ier;
  gbd_zone_fixer_modif_loi(*cable.zone, {.rho = 0,
                                         .epsilon_a = e,
                                         .epsilon_b = prec_iso_incluse ? e : 0,
                                         .epsilon_p = e,
                                         .epsilon_m = e,
                                         .epsilon_z = 0});
  cable.zone->etat_zone.active = true;
  return {};
}

/// Strain, on the law of the mother, of the matter that a cable is bonded to.
ier_2 loc_deformation_de_la_mere(const qb7_zone_trouvee& cable, const deformation& deform_section,
                                 double& e0) {
  const gbd_zone& zone = *cable.zone;
  if (!zone.etat_zone.active) return {ERR_CABLE_INACTIF, zone.num_zone};
  gbd_zone* mere = nullptr;
  if (const ier_2 ier = gbd_sect_pt_zone_mere(*cable.section, zone, true, mere)) return ier;
  std::vector<point_yz> yz_points;
  if (const ier_2 ier = gbd_sect_yz_zone_courant(*cable.section, zone, yz_points)) return ier;
  e0 = rdm_deformation_point_zone(*cable.section, *mere, yz_points.front(), deform_section).epsilon;
  return {};
}

/// change: modif_lois&, double e0 -> void, with e0 the strain of the mother at the cable
template <class action_t>
ier_2 loc_injecter(socle::vue_l1 nom, int num_section, int num_zone_cable, const deformation& deform_section,
                   action_t&& change) {
  qb7_err_effacer();
  qb7_zone_trouvee cable;
  double e0 = 0;
  ier_2 ier = loc_chercher_cable(num_section, num_zone_cable, cable);
  if (!ier) ier = loc_deformation_de_la_mere(cable, deform_section, e0);
  if (ier) return err_traiter(nom, ier);
  modif_lois modif = cable.zone->etat_zone.modif;
  change(modif, e0);
  gbd_zone_fixer_modif_loi(*cable.zone, modif);
  return {};
}

}  // namespace

ier_2 qb7_tendre_cable(int num_section, int num_etat_lim, bool prec_iso_incluse,
                       std::span<const int> num_zones_cables, std::span<const double> tab_sigma) {
  qb7_err_effacer();
  constexpr socle::vue_l1 nom = "QB7_Tendre_Cable";
  if (num_zones_cables.size() != tab_sigma.size())
    return err_traiter(nom, {ERR_DIM_TAB, static_cast<int>(tab_sigma.size())});
  for (std::size_t i = 0; i < tab_sigma.size(); ++i)
    if (const ier_2 ier =
            loc_tendre(num_section, num_etat_lim, prec_iso_incluse, num_zones_cables[i], tab_sigma[i]))
      return err_traiter(nom, ier);
  return {};
}

ier_2 qb7_reinitialiser_cable(int num_section, std::span<const int> num_zones_cables) {
  qb7_err_effacer();
  for (const int num_zone_cable : num_zones_cables) {
    qb7_zone_trouvee cable;
    if (const ier_2 ier = loc_chercher_cable(num_section, num_zone_cable, cable))
      return err_traiter("QB7_Reinitialiser_Cable", ier);
    gbd_zone_fixer_modif_loi(*cable.zone, {.rho = 0});
  }
  return {};
}

ier_2 qb7_injecter_cable_methode_bp_ec(int num_section, int num_zone_cable, double rho_cable,
                                       const deformation& deform_section) {
  return loc_injecter("QB7_Injecter_Cable_Methode_BP_EC", num_section, num_zone_cable, deform_section,
                      [&](modif_lois& modif, double e0) {
                        modif.rho = rho_cable;
                        modif.epsilon_a = modif.epsilon_m - e0;
                      });
}

ier_2 qb7_injecter_cable_methode_retour_etat_zero(int num_section, int num_zone_cable,
                                                  const deformation& deform_section) {
  return loc_injecter("QB7_Injecter_Cable_Methode_Retour_Etat_Zero", num_section, num_zone_cable,
                      deform_section, [&](modif_lois& modif, double e0) {
                        modif.rho = 1;
                        modif.epsilon_a = modif.epsilon_m - e0;
                        modif.epsilon_p = modif.epsilon_a;
                        modif.epsilon_z = 0;
                      });
}

namespace {

/// What the passage from the permanent to the final limit state needs besides the cable itself.
struct loc_passage {
  gbd_section& section;
  const gbd_loi& loi_perm;
  const gbd_loi& loi_final;
  int num_el_perm;
  double n;
  double e_cable;  ///< modulus of the final law
  double rho_non_injecte;
  double rho_injecte;
};

/// Stress of the mother, under its permanent law, at the strain that it had at the cable when the cable was
/// bonded.
ier_2 loc_contrainte_de_la_mere(const loc_passage& p, const gbd_zone& cable, double& sigma_bpm) {
  gbd_zone* mere = nullptr;
  if (const ier_2 ier = gbd_sect_pt_zone_mere(p.section, cable, true, mere)) return ier;
  ier_2 ier;
  const gbd_loi* loi = gbd_loi_lst_chercher(
      gbd_glob.glob_lst_lois, {.num_etat_lim = p.num_el_perm, .num_materiau = mere->num_materiau}, ier);
  if (ier) return ier;
  const modif_lois& modif = cable.etat_zone.modif;
  double delta_sigma = 0;
  return rdm_contrainte_point_zone(*mere, *loi, modif.epsilon_m - modif.epsilon_a, sigma_bpm, delta_sigma);
}

ier_2 loc_passer_a_l_etat_final(const loc_passage& p, gbd_zone& cable) {
  double sigma_bpm = 0;
  if (const ier_2 ier = loc_contrainte_de_la_mere(p, cable, sigma_bpm)) return ier;
  modif_lois modif = cable.etat_zone.modif;
  const double sigma_b = rdm_contrainte_materiau(p.loi_perm, modif.epsilon_b);
  if (const ier_2 ier = rdm_deformation_materiau(p.loi_final, sigma_b, modif.epsilon_b))
    return {ier.code, cable.num_zone};
  const double sigma_pm = rdm_contrainte_materiau(p.loi_perm, modif.epsilon_m);
  modif.rho = modif.rho != 0 ? p.rho_injecte : p.rho_non_injecte;
  modif.epsilon_a = (sigma_pm - p.n * sigma_bpm) / p.e_cable;
  modif.epsilon_p = modif.epsilon_a;
  modif.epsilon_z = 0;
  gbd_zone_fixer_modif_loi(cable, modif);
  return {};
}

ier_2 loc_passer_les_cables(const loc_passage& p, int num_materiau) {
  int rang = 0;
  for (gbd_zone& zone : p.section.lst_zones) {
    if (zone.num_materiau != num_materiau || !zone.etat_zone.active) continue;
    ++rang;
    if (loc_a_plus_d_un_point(zone)) return {ERR_PTS_CABLE, rang};
    if (const ier_2 ier = loc_passer_a_l_etat_final(p, zone)) return ier;
  }
  return rang != 0 ? ier_2{} : ier_2{ERR_NON_CABLE, num_materiau};
}

}  // namespace

ier_2 qb7_etat_permanent(int num_section, int num_materiau, int num_el_perm, int num_el_final, double n,
                         double rho_non_injecte, double rho_injecte) {
  return qb7_sur_section("QB7_Etat_Permanent", num_section, [&](gbd_section& section) {
    const gbd_loi* loi_perm = loc_loi(num_materiau, num_el_perm);
    const gbd_loi* loi_final = loc_loi(num_materiau, num_el_final);
    if (loi_perm == nullptr || loi_final == nullptr) return ier_2{ERR_NON_LOI_CABLE, num_materiau};
    const double e_cable = rdm_young_materiau(*loi_final, 0);
    if (e_cable == 0) return ier_2{ERR_MODULE_CABLE, num_materiau};
    return loc_passer_les_cables({.section = section,
                                  .loi_perm = *loi_perm,
                                  .loi_final = *loi_final,
                                  .num_el_perm = num_el_perm,
                                  .n = n,
                                  .e_cable = e_cable,
                                  .rho_non_injecte = rho_non_injecte,
                                  .rho_injecte = rho_injecte},
                                 num_materiau);
  });
}
