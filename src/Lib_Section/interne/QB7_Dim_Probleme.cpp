#include "QB7_Dim_Probleme.hpp"

#include <cmath>
#include <string>

#include "Edition.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_Equilibre.hpp"
#include "QB7_PAR_Parametres.hpp"

namespace {

using std::size_t;

constexpr double surface_inconnue = -1;

// Areas of steel tried at the start: nothing, so to say, then from 1.5 mm² on, each half as much again.
constexpr double acier_nul = 1e-20;
constexpr double premier_acier = 1.5e-6;
constexpr double progression_acier = 1.5;
constexpr int nbre_aciers = 47;

int loc_rang(size_t i) { return static_cast<int>(i) + 1; }

// ---- Areas ----

double loc_surface(size_t i) { return eff_surface_rang_zone(loc_rang(i)); }

/// Bars or a profile that were given no matter: any will do, the fill coefficient is what is sought.
bool loc_donner_matiere(gbd_zone& zone) {
  if (zone.type_zone != qb7_zone_profil && zone.type_zone != qb7_zone_semis) return false;
  if (zone.p_matiere != 0) return false;
  zone.p_matiere = 10 * qb7_par.qb7_par_precis_acier;
  return true;
}

ier_2 loc_surfaces_d_une_sollicitation(qb7_dim_t& dim, const pointeur_soll& soll) {
  if (const ier_2 ier = dim_placer(dim, soll)) return ier;
  for (size_t i = 0; i < dim.glob_surfaces.size(); ++i) {
    gbd_zone& zone = *dim.glob_pt_zones[i];
    if (dim.glob_surfaces[i] != surface_inconnue || !zone.etat_zone.active) continue;
    double surface = loc_surface(i);
    if (surface == 0 && loc_donner_matiere(zone)) {
      if (const ier_2 ier = eff_section_calcul(*dim.glob_pt_section, soll.num_etat_lim)) return ier;
      surface = loc_surface(i);
    }
    if (!(surface > 0)) return {ERR_SURFACE_ZONE, zone.num_zone};
    dim.glob_surfaces[i] = surface;
  }
  return {};
}

ier_2 loc_surface_zones(qb7_dim_t& dim) {
  for (const pointeur_soll& soll : dim.glob_pointeurs)
    if (const ier_2 ier = loc_surfaces_d_une_sollicitation(dim, soll)) return ier;
  // steel that no loading sees active carries nothing
  for (double& surface : dim.glob_surfaces)
    if (surface == surface_inconnue) surface = 0;
  return {};
}

// ---- Steel of the start ----

void loc_remplir(qb7_dim_t& dim) {
  for (size_t i = 0; i < dim.glob_surfaces.size(); ++i) {
    gbd_zone& zone = *dim.glob_pt_zones[i];
    if (dim.glob_surfaces[i] != 0 && zone.etat_zone.active)
      zone.c_remplissage = dim.glob_sect_acier_max / dim.glob_surfaces[i];
  }
}

void loc_tracer_augmentation(int k, double section) {
  if (par_trace_optimisation() == nullptr) return;
  dim_tracer(" Augmentation:" + socle::edite(socle::I{5}, k) + "    Section " +
             socle::edite(socle::E{16, 8}, section));
}

/// Each loading starts from the steel of the one before: what carries one is seldom too much for all.
ier_2 loc_init_c_remplissage(qb7_dim_t& dim) {
  int k = 1;
  dim.glob_sect_acier_max = acier_nul;
  for (size_t s = 0; s < dim.glob_pointeurs.size(); ++s) {
    const pointeur_soll& soll = dim.glob_pointeurs[s];
    for (;;) {
      if (const ier_2 ier = gbd_sect_rappeller_etat(*dim.glob_pt_section, soll.num_etat)) return ier;
      loc_remplir(dim);
      if (const ier_2 ier = eff_section_calcul(*dim.glob_pt_section, soll.num_etat_lim)) return ier;
      loc_tracer_augmentation(k, dim.glob_sect_acier_max);
      deformation plan;
      if (!eff_solliciter_section(true, soll.cible, plan)) break;
      if (k == nbre_aciers) return {ERR_DIM_ACIERS, loc_rang(s)};
      dim.glob_sect_acier_max = k == 1 ? premier_acier : dim.glob_sect_acier_max * progression_acier;
      ++k;
    }
  }
  return {};
}

// ---- Variables ----

bool loc_proches(const rigidite& a, const rigidite& b, double t) {
  const auto proche = [t](double x, double y) { return std::abs(x - y) < t; };
  return proche(a.a1, b.a1) && proche(a.a2, b.a2) && proche(a.b2, b.b2) && proche(a.a3, b.a3) &&
         proche(a.b3, b.b3) && proche(a.c3, b.c3);
}

rigidite loc_image_oy(const rigidite& r) { return {r.a1, -r.a2, r.b2, r.a3, -r.b3, r.c3}; }
rigidite loc_image_oz(const rigidite& r) { return {r.a1, r.a2, r.b2, -r.a3, -r.b3, r.c3}; }

/// The zones that mirror an earlier one: their tangents are each other's image.
void loc_ajouter_paires(qb7_dim_t& dim, const std::vector<rigidite>& raideurs, size_t i) {
  const double t = raideurs[i].a1 * qb7_par.qb7_par_precis_symetrie;
  for (size_t j = 0; j < i; ++j) {
    if (dim.glob_surfaces[j] == 0) continue;
    const bool sym_y = loc_proches(raideurs[i], loc_image_oy(raideurs[j]), t);
    const bool sym_z = loc_proches(raideurs[i], loc_image_oz(raideurs[j]), t);
    if (sym_y || sym_z)
      dim.glob_vars.push_back({.sym = sym_y ? symetrie::axe_oy : symetrie::axe_oz, .rangs = {i, j}});
  }
}

ier_2 loc_init_vars(qb7_dim_t& dim) {
  const pointeur_soll& premiere = dim.glob_pointeurs.front();
  if (const ier_2 ier = gbd_sect_rappeller_etat(*dim.glob_pt_section, premiere.num_etat)) return ier;
  for (gbd_zone* zone : dim.glob_pt_zones) zone->etat_zone.active = true;
  if (const ier_2 ier = eff_section_calcul(*dim.glob_pt_section, premiere.num_etat_lim)) return ier;
  std::vector<rigidite> raideurs(dim.glob_surfaces.size());
  for (size_t i = 0; i < dim.glob_surfaces.size(); ++i) {
    if (dim.glob_surfaces[i] == 0) continue;
    dim.glob_vars.push_back({.sym = symetrie::aucune, .rangs = {i, i}});
    raideurs[i] = eff_mat_zone(loc_rang(i));
    loc_ajouter_paires(dim, raideurs, i);
  }
  return {};
}

// ---- The linear programme ----

/// signe times the strain of the section at a point, at most `second_membre`.
void loc_ajouter_borne(qb7_dim_t& dim, pointeur_soll& soll, double signe, point_yz p, double second_membre) {
  const size_t s = static_cast<size_t>(&soll - dim.glob_pointeurs.data());
  const std::array tranche{splx_tranche{.colonne = dim.nbre_vars() + 3 * s, .longueur = 3}};
  splx_ajouter_ligne(dim.glob_a, tranche);
  const auto ligne = dim.glob_a.valeurs_de(dim.glob_a.tranches.back());
  ligne[0] = signe;
  ligne[1] = signe * p.z;
  ligne[2] = -signe * p.y;
  dim.glob_b_eps_lim.push_back(second_membre);
  ++soll.nbre_bornes;
}

/// Limits of a zone that follows the section, at its critical points. They are those that the equilibrium
/// judges, less a hair, so that a strain on its limit is not past it.
void loc_inegalites_zone(qb7_dim_t& dim, pointeur_soll& soll, const gbd_zone& zone,
                         const zone_loc_type& zone_loc) {
  const double marge = qb7_par.qb7_par_precis_deforms * qb7_par.qb7_par_precis_deforms;
  const gbd_loi& loi = zone_loc.loi;
  for (size_t k = 0; k < zone_loc.yz_points.size(); ++k) {
    if (!zone.critiques[k]) continue;
    const point_yz p = zone_loc.yz_points[k];
    const double epsilon_point_ini = epsilon(zone_loc.deform_zone, p) + zone_loc.epsilon_a;
    const double min = loi.epsilon_min - zone_loc.epsilon_z;
    const double max = loi.epsilon_max - zone_loc.epsilon_z;
    if (loi.epsilon_min != qb7_sans_borne)
      loc_ajouter_borne(dim, soll, -1, p, epsilon_point_ini - min - marge);
    if (loi.epsilon_max != qb7_sans_borne)
      loc_ajouter_borne(dim, soll, 1, p, max - epsilon_point_ini - marge);
  }
}

ier_2 loc_bornes_d_une_sollicitation(qb7_dim_t& dim, pointeur_soll& soll) {
  if (const ier_2 ier = dim_placer(dim, soll)) return ier;
  soll.premiere_borne = dim.glob_a.nbre_lignes();
  const auto zones_loc = eff_zones();
  for (size_t i = 0; i < zones_loc.size(); ++i) {
    const zone_loc_type& zone_loc = zones_loc[i];
    if (zone_loc.active_non_vide && zone_loc.c_remplissage != 0 && zone_loc.type_deform == qb7_deform_cumulee)
      loc_inegalites_zone(dim, soll, *dim.glob_pt_zones[i], zone_loc);
  }
  return {};
}

void loc_ajouter_lignes_des_aciers(qb7_dim_t& dim) {
  for (size_t v = 0; v < dim.nbre_vars(); ++v) {
    const std::array tranche{splx_tranche{.colonne = v, .longueur = 1}};
    splx_ajouter_ligne(dim.glob_a, tranche);
    dim.glob_a.valeurs.back() = -1;
  }
}

/// One block of equations: three rows for each loading.
void loc_ajouter_equations(qb7_dim_t& dim) {
  const size_t nv = dim.nbre_vars();
  for (size_t s = 0; s < dim.glob_pointeurs.size(); ++s) {
    const std::array tranches{splx_tranche{.colonne = 0, .longueur = nv},
                              splx_tranche{.colonne = nv + 3 * s, .longueur = 3}};
    for (int e = 0; e < 3; ++e) splx_ajouter_ligne(dim.glob_a, tranches);
  }
}

equations_equilibre loc_vues_des_equations(qb7_dim_t& dim, size_t premiere_ligne) {
  equations_equilibre eq;
  for (size_t e = 0; e < 3; ++e) {
    const auto tranches = dim.glob_a.ligne(premiere_ligne + e);
    eq.a_var[e] = dim.glob_a.valeurs_de(tranches[0]);
    eq.a_mat[e] = dim.glob_a.valeurs_de(tranches[1]);
  }
  eq.b_mat = std::span(dim.glob_b).subspan(premiere_ligne, 3);
  return eq;
}

/// The views of each loading, once nothing moves any more.
void loc_fixer_les_vues(qb7_dim_t& dim) {
  const size_t nv = dim.nbre_vars();
  const size_t ns = dim.glob_pointeurs.size();
  const size_t m = dim.glob_a.nbre_lignes();
  for (size_t s = 0; s < ns; ++s) {
    pointeur_soll& soll = dim.glob_pointeurs[s];
    soll.x_deforms = std::span(dim.glob_x).subspan(nv + 3 * s, 3);
    soll.b_d_eps = std::span(dim.glob_b).subspan(soll.premiere_borne, soll.nbre_bornes);
    soll.b_eps_lim = std::span(dim.glob_b_eps_lim).subspan(soll.premiere_borne - nv, soll.nbre_bornes);
    // a row of steel holds one value, a strain row three
    soll.a_pts =
        std::span(dim.glob_a.valeurs).subspan(nv + 3 * (soll.premiere_borne - nv), 3 * soll.nbre_bornes);
    soll.pos = loc_vues_des_equations(dim, m - 6 * ns + 3 * s);
    soll.neg = loc_vues_des_equations(dim, m - 3 * ns + 3 * s);
  }
}

double loc_cout(const variable_acier& variable) {
  switch (variable.sym) {
    case symetrie::axe_oy: return qb7_par.qb7_par_cout_oy;
    case symetrie::axe_oz: return qb7_par.qb7_par_cout_oz;
    default: return 1;
  }
}

void loc_dimensionner_programme(qb7_dim_t& dim) {
  const size_t n = dim.glob_a.nbre_colonnes;
  const size_t m = dim.glob_a.nbre_lignes();
  dim.glob_x.assign(n, 0.0);
  dim.glob_b.assign(m, 0.0);
  dim.i_ligne.assign(m, 0);
  dim.glob_c.assign(n, 0.0);
  for (size_t v = 0; v < dim.nbre_vars(); ++v) dim.glob_c[v] = loc_cout(dim.glob_vars[v]);
  dim.aciers_zones.resize(dim.glob_pt_zones.size());
}

ier_2 loc_inegalites(qb7_dim_t& dim) {
  dim.glob_a.nbre_colonnes = dim.nbre_vars() + 3 * dim.glob_pointeurs.size();
  loc_ajouter_lignes_des_aciers(dim);
  for (pointeur_soll& soll : dim.glob_pointeurs)
    if (const ier_2 ier = loc_bornes_d_une_sollicitation(dim, soll)) return ier;
  loc_ajouter_equations(dim);
  loc_ajouter_equations(dim);
  loc_dimensionner_programme(dim);
  loc_fixer_les_vues(dim);
  return {};
}

}  // namespace

void dim_tracer(std::string_view ligne) {
  if (socle::sortie* trace = par_trace_optimisation()) trace->ligne(ligne);
}

ier_2 dim_placer(qb7_dim_t& dim, const pointeur_soll& soll) {
  const ier_2 ier = gbd_sect_rappeller_etat(*dim.glob_pt_section, soll.num_etat);
  return ier ? ier : eff_section_calcul(*dim.glob_pt_section, soll.num_etat_lim);
}

ier_2 dim_surface_zones(qb7_dim_t& dim) {
  for (gbd_zone& zone : dim.glob_pt_section->lst_zones) {
    dim.glob_pt_zones.push_back(&zone);
    dim.glob_surfaces.push_back(zone.dimensionnable ? surface_inconnue : 0);
    if (zone.dimensionnable) zone.c_remplissage = 0;
  }
  return err_traiter("LOC_Surface_Zones", loc_surface_zones(dim));
}

ier_2 dim_init_c_remplissage(qb7_dim_t& dim) {
  dim_tracer("DEBUT_LOC_Init_C_Remplissage");
  const ier_2 ier = loc_init_c_remplissage(dim);
  dim_tracer(" FIN LOC_Init_C_Remplissage");
  return err_traiter("LOC_Init_C_Remplissage", ier);
}

ier_2 dim_init_vars(qb7_dim_t& dim) { return err_traiter("LOC_Init_Vars", loc_init_vars(dim)); }

ier_2 dim_inegalites(qb7_dim_t& dim) { return err_traiter("LOC_Inegalites", loc_inegalites(dim)); }
