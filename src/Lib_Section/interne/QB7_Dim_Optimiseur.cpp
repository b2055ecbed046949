#include "QB7_Dim_Optimiseur.hpp"

#include <algorithm>
#include <cmath>
#include <string>

#include "Edition.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_Equilibre.hpp"
#include "QB7_PAR_Parametres.hpp"

namespace {

using std::size_t;

/// No step removes more than this share of the steel that the start had in a zone.
constexpr double part_retirable = 0.25;
/// A direction of symmetry is chosen when its pairs have so many times the steel of the others; they then
/// cost less, so that of two equal solutions one stays.
constexpr double predominance = 10;
constexpr double faveur = 0.9;

/// How a pass of the iteration leaves it.
struct etat_iteration {
  bool premiere = true;
  bool fini = true;  ///< equilibrium, steel and planes have settled
};

constexpr ier_2 echec() { return {ERR_ECHEC_OPTIM}; }

// ---- Steel ----

double loc_section(const qb7_dim_t& dim, size_t zone) {
  return dim.glob_pt_zones[zone]->c_remplissage * dim.glob_surfaces[zone];
}

/// Areas of the variables, as the right-hand side of their rows: all steel stands with the single zones at
/// first, none with the pairs.
void loc_init_sections(qb7_dim_t& dim) {
  for (size_t v = 0; v < dim.nbre_vars(); ++v) {
    const variable_acier& variable = dim.glob_vars[v];
    dim.glob_b[v] = variable.sym == symetrie::aucune ? loc_section(dim, variable.rangs[0]) : 0;
  }
}

/// Adds an area to the zones of a variable, shared equally.
void loc_modif_c_remplissage(qb7_dim_t& dim, size_t v, double ds_var) {
  const auto zones = dim.glob_vars[v].zones();
  for (const size_t i : zones) {
    double& c = dim.glob_pt_zones[i]->c_remplissage;
    c = std::max(c + ds_var / static_cast<double>(zones.size()) / dim.glob_surfaces[i], 0.0);
  }
}

/// Moves all steel by `coeff` times the solution of the linear programme.
void loc_modifier_aciers(qb7_dim_t& dim, double coeff) {
  for (size_t v = 0; v < dim.nbre_vars(); ++v) loc_modif_c_remplissage(dim, v, coeff * dim.glob_x[v]);
}

void loc_modifier_sections(qb7_dim_t& dim, double coeff) {
  for (size_t v = 0; v < dim.nbre_vars(); ++v) dim.glob_b[v] += coeff * dim.glob_x[v];
}

double loc_norme_2_aciers(const qb7_dim_t& dim) {
  double somme = 0;
  for (size_t v = 0; v < dim.nbre_vars(); ++v) somme += dim.glob_x[v] * dim.glob_x[v];
  return somme;
}

// ---- Planes ----

/// Strain rows around the present plane.
void loc_maj_bornes(pointeur_soll& soll) {
  const auto& [e0, ky, kz] = soll.deforms;
  for (size_t r = 0; r < soll.nbre_bornes; ++r) {
    const auto a = soll.a_pts.subspan(3 * r, 3);
    soll.b_d_eps[r] = soll.b_eps_lim[r] - (a[0] * e0 + a[1] * ky + a[2] * kz);
  }
}

/// Planes of the start. One past a limit will do: the strain rows bring it back.
ier_2 loc_init_deformations(qb7_dim_t& dim) {
  for (pointeur_soll& soll : dim.glob_pointeurs) {
    if (const ier_2 ier = dim_placer(dim, soll)) return ier;
    soll.deforms = {};
    const ier_2 ier = eff_solliciter_section(false, soll.cible, soll.deforms);
    if (ier && ier.code != ERR_EPSILON_LIM) return echec();
    loc_maj_bornes(soll);
  }
  return {};
}

/// Equilibrium of every loading within its limits, from the zero plane: what a design is accepted by. The
/// planes become those that were found.
ier_2 loc_controle_resultat_dimensionnement(qb7_dim_t& dim) {
  for (pointeur_soll& soll : dim.glob_pointeurs) {
    if (const ier_2 ier = dim_placer(dim, soll)) return ier;
    soll.deforms = {};
    if (const ier_2 ier = eff_solliciter_section(true, soll.cible, soll.deforms)) return ier;
  }
  return {};
}

// ---- Linearisation ----

/// Forces of a unit area of steel of each zone at the plane of a loading.
void loc_mat_acier_zones(qb7_dim_t& dim, const deformation& plan) {
  for (size_t i = 0; i < dim.glob_surfaces.size(); ++i) {
    if (dim.glob_surfaces[i] == 0) continue;
    dim.aciers_zones[i] = (1 / dim.glob_surfaces[i]) * eff_mat_acier(static_cast<int>(i) + 1, plan);
  }
}

/// The same for a variable: the mean of its zones.
efforts loc_mat_acier(const qb7_dim_t& dim, const variable_acier& variable) {
  const auto zones = variable.zones();
  efforts somme;
  for (const size_t i : zones) somme += dim.aciers_zones[i];
  return (1 / static_cast<double>(zones.size())) * somme;
}

using triplet = std::array<double, 3>;

void loc_poser_colonne(pointeur_soll& soll, size_t v, const efforts& f) {
  const triplet colonne = {f.n, f.my, f.mz};
  for (size_t e = 0; e < 3; ++e) {
    soll.pos.a_var[e][v] = colonne[e];
    soll.neg.a_var[e][v] = -colonne[e];
  }
}

void loc_poser_tangente(pointeur_soll& soll, const matrice_3& raideur) {
  for (size_t e = 0; e < 3; ++e) {
    for (size_t k = 0; k < 3; ++k) {
      soll.pos.a_mat[e][k] = raideur[e][k];
      soll.neg.a_mat[e][k] = -raideur[e][k];
    }
  }
}

void loc_poser_ecart(pointeur_soll& soll, const efforts& delta_efforts) {
  const triplet ecart = {delta_efforts.n, delta_efforts.my, delta_efforts.mz};
  for (size_t e = 0; e < 3; ++e) {
    soll.pos.b_mat[e] = ecart[e];
    soll.neg.b_mat[e] = -ecart[e];
  }
}

ier_2 loc_lineariser_sollicitation(qb7_dim_t& dim, pointeur_soll& soll, etat_iteration& it) {
  if (const ier_2 ier = dim_placer(dim, soll)) return ier;
  efforts forces;
  rigidite r;
  eff_efforts_section(soll.deforms, forces, &r);
  loc_mat_acier_zones(dim, soll.deforms);
  for (size_t v = 0; v < dim.nbre_vars(); ++v)
    loc_poser_colonne(soll, v, loc_mat_acier(dim, dim.glob_vars[v]));

  const double precision = qb7_par.qb7_par_precis_efforts;
  const matrice_3 raideur = {{{r.a1, r.a2, r.a3}, {r.a2, r.b2, r.b3}, {r.a3, r.b3, r.c3}}};
  const double rp_min = eff_valeur_propre_minimale_rigidite(raideur, precision, qb7_par.qb7_par_max_iter);
  if (rp_min >= precision) {
    loc_poser_tangente(soll, raideur);
  } else if (it.premiere) {
    return echec();  // there is no older tangent to go on with
  }

  const efforts delta_efforts = soll.cible - forces;
  loc_poser_ecart(soll, delta_efforts);
  it.fini = it.fini && norme_2(delta_efforts) <= precision * precision * norme_2(soll.cible);
  return {};
}

/// Rows of equilibrium at the present planes; it.fini: they are met by the present steel.
ier_2 loc_lineariser(qb7_dim_t& dim, etat_iteration& it) {
  it.fini = true;
  for (pointeur_soll& soll : dim.glob_pointeurs)
    if (const ier_2 ier = loc_lineariser_sollicitation(dim, soll, it)) return ier;
  it.premiere = false;
  return {};
}

ier_2 loc_resoudre_programme(qb7_dim_t& dim, std::span<const double> couts, std::string_view methode) {
  double cout_total = 0;
  const int ier = splx_solve(dim.glob_a, dim.glob_b, couts, dim.glob_x, cout_total, dim.i_ligne, dim.travail);
  if (ier == 0) return {};
  if (par_trace_optimisation() != nullptr) {
    dim_tracer(std::string(methode) + " : simplex en echec");
    dim_tracer(splx_err_message(ier));
  }
  switch (ier) {
    case splx_err_dimensions: return {ERR_SIMPLEXE};
    case splx_err_alloc: return {ERR_ALLOC};
    default: return echec();
  }
}

/// With qb7_par_sym_auto the pairs of a direction that carries most of the steel become cheaper, for good.
void loc_favoriser_symetrie(const qb7_dim_t& dim, std::span<double> couts) {
  if (!qb7_par.qb7_par_sym_auto) return;
  const auto total = [&dim](symetrie sym) {
    double somme = 0;
    for (size_t v = 0; v < dim.nbre_vars(); ++v)
      if (dim.glob_vars[v].sym == sym) somme += dim.glob_b[v];
    return somme;
  };
  const auto favoriser = [&](symetrie sym) {
    for (size_t v = 0; v < dim.nbre_vars(); ++v)
      if (dim.glob_vars[v].sym == sym) couts[v] = faveur * dim.glob_c[v];
  };
  const double oy = total(symetrie::axe_oy);
  const double oz = total(symetrie::axe_oz);
  if (oy > predominance * oz) favoriser(symetrie::axe_oy);
  if (oz > predominance * oy) favoriser(symetrie::axe_oz);
}

/// Marks the rows where the first linear programme starts: all steel at its lower bound, and one of the two
/// signs of the equations. Its multipliers are then the costs and zeros.
void loc_choisir_une_base_preferencielle(qb7_dim_t& dim) {
  const auto lignes = std::span(dim.i_ligne);
  const size_t bloc = 3 * dim.glob_pointeurs.size();
  std::ranges::fill(lignes, 0);
  const int choix = dim.choix_base_pref.value_or(0);
  if (choix < 1 || choix > 2) return;
  std::ranges::fill(lignes.first(dim.nbre_vars()), 1);
  const size_t depuis_la_fin = choix == 1 ? 2 * bloc : bloc;
  std::ranges::fill(lignes.subspan(lignes.size() - depuis_la_fin, bloc), 1);
}

/// Steel, planes and base from which a method starts.
ier_2 loc_commencer(qb7_dim_t& dim) {
  loc_init_sections(dim);
  loc_choisir_une_base_preferencielle(dim);
  dim_tracer("  ==> Initialisation Deformations");
  const ier_2 ier = loc_init_deformations(dim);
  dim_tracer("  ==> Fin Initialisation Deformations");
  return ier;
}

// ---- Method 1 ----

/// Share of the step that may be taken.
double loc_coeff_moderateur(const qb7_dim_t& dim) {
  double p = 0;
  for (size_t v = 0; v < dim.nbre_vars(); ++v)
    if (dim.glob_vars[v].sym == symetrie::aucune) p = std::max(p, -dim.glob_x[v]);
  const double retirable = part_retirable * dim.glob_sect_acier_max;
  return p > retirable ? retirable / p : 1;
}

/// Steps all planes; false if one has run away.
bool loc_avancer_plans(qb7_dim_t& dim, double coeff, etat_iteration& it) {
  const double precision = qb7_par.qb7_par_precis_deforms;
  for (pointeur_soll& soll : dim.glob_pointeurs) {
    const deformation pas =
        coeff * deformation{.e0 = soll.x_deforms[0], .ky = soll.x_deforms[1], .kz = soll.x_deforms[2]};
    soll.deforms += pas;
    loc_maj_bornes(soll);
    if (!(norme_2(soll.deforms) <= qb7_par.qb7_par_deform_max)) return false;
    it.fini = it.fini && norme_2(pas) <= precision * precision * norme_2(soll.deforms);
  }
  return true;
}

ier_2 loc_optimiser_1(qb7_dim_t& dim) {
  const double precision = qb7_par.qb7_par_precis_acier;
  if (const ier_2 ier = loc_commencer(dim)) return ier;
  std::vector<double> couts = dim.glob_c;
  etat_iteration it;
  for (int nbre_iter = 1;; ++nbre_iter) {
    if (const ier_2 ier = loc_lineariser(dim, it)) return ier;
    if (const ier_2 ier = loc_resoudre_programme(dim, couts, "LOC_Optimiser_1")) return ier;
    const double coeff = loc_coeff_moderateur(dim);
    loc_modifier_aciers(dim, coeff);
    loc_modifier_sections(dim, coeff);
    it.fini = it.fini && loc_norme_2_aciers(dim) <= precision * precision;
    if (!loc_avancer_plans(dim, coeff, it)) return echec();
    if (it.fini) break;
    if (nbre_iter > qb7_par.qb7_par_max_iter) return echec();
    loc_favoriser_symetrie(dim, couts);
  }
  return loc_controle_resultat_dimensionnement(dim) ? echec() : ier_2{};
}

// ---- Method 2 ----

void loc_tracer_essai(int essai, double coeff) {
  if (par_trace_optimisation() == nullptr) return;
  dim_tracer("          Recherche du coefficient moderateur - Iteration : " +
             socle::edite(socle::I{5}, essai) + " Coefficient  :" + socle::edite(socle::E{16, 8}, coeff));
}

/// The largest of 1, 1/2, 1/4, ... of the step with which all loadings hold; steel and planes are then there.
ier_2 loc_rechercher_coeff(qb7_dim_t& dim, double& coeff) {
  double precedent = 0;
  coeff = 1;
  for (int essai = 1; essai <= qb7_par.qb7_par_max_iter; ++essai) {
    loc_tracer_essai(essai, coeff);
    loc_modifier_aciers(dim, coeff - precedent);
    if (!loc_controle_resultat_dimensionnement(dim)) {
      dim_tracer("          Fin Recherche du coefficient moderateur");
      return {};
    }
    precedent = coeff;
    coeff /= 2;
  }
  dim_tracer("LOC_Optimiser_2 : Nombre d iterations maximal depasse pour moderateur");
  return echec();
}

ier_2 loc_optimiser_2(qb7_dim_t& dim) {
  if (const ier_2 ier = loc_commencer(dim)) return ier;
  std::vector<double> couts = dim.glob_c;
  etat_iteration it;
  for (int nbre_iter = 1;; ++nbre_iter) {
    double coeff = 1;
    if (const ier_2 ier = loc_lineariser(dim, it)) return ier;
    if (const ier_2 ier = loc_resoudre_programme(dim, couts, "LOC_Optimiser_2")) return ier;
    if (const ier_2 ier = loc_rechercher_coeff(dim, coeff)) return ier;
    loc_modifier_sections(dim, coeff);
    for (pointeur_soll& soll : dim.glob_pointeurs) loc_maj_bornes(soll);
    if (qb7_par.qb7_par_precis_acier > std::sqrt(loc_norme_2_aciers(dim)) * coeff) return {};
    if (nbre_iter > qb7_par.qb7_par_max_iter) {
      dim_tracer("LOC_Optimiser_2 : Nombre d iterations maximal depasse pour optimiseur");
      return echec();
    }
    loc_favoriser_symetrie(dim, couts);
  }
}

}  // namespace

ier_2 dim_optimiser_1(qb7_dim_t& dim) { return err_traiter("LOC_Optimiser_1", loc_optimiser_1(dim)); }

ier_2 dim_optimiser_2(qb7_dim_t& dim) { return err_traiter("LOC_Optimiser_2", loc_optimiser_2(dim)); }
