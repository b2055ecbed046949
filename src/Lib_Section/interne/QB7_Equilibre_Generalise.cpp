#include "QB7_Equilibre_Generalise.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

#include "Edition.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts_Generalises.hpp"
#include "QB7_Newton.hpp"
#include "QB7_PAR_Parametres.hpp"
#include "Simple.hpp"

using socle::simple;

namespace {

void loc_tracer_passe(const iteration_newton& it) {
  if (par_trace_equilibre() == nullptr) return;
  const deformation& d = it.deform_section;
  const efforts& r = it.residu_efforts;
  newton_tracer("     Iteration       : " + socle::edite(socle::I{5}, it.nbre_iter) +
                " - vp min : " + newton_nombre(it.rp_min) +
                " - ite neg/nul : " + socle::edite(socle::I{5}, it.nb_ite_negatives_successives) +
                " - Residu : " + newton_nombre(std::sqrt(it.residu_efforts_2)) +
                " - Inc def : " + newton_nombre(std::sqrt(norme_2(it.delta_deform))));
  newton_tracer_3("          Deformations     : ", d.e0, d.ky, d.kz);
  newton_tracer_3("          Delta_Efforts    :", r.n, r.my, r.mz);
}

void loc_integrer(iteration_newton& it, std::span<deformation> tab_deform) {
  tab_deform.back() = it.deform_section;
  efforts eff;
  eff_g_efforts_section(tab_deform, eff, &it.mat_section, &it.ier);
  newton_evaluer(it, eff);
}

/// No best plane is kept and no restart made: the fixed point tries other planes to begin with.
issue loc_passer_au_plan_suivant(iteration_newton& it) {
  if (it.nbre_iter > qb7_par.qb7_par_max_iter) {
    newton_tracer("               ==> Echec_equilibre par nombre iterations max depasses");
    return issue::echec;
  }
  // the squared norm against the limit itself: a limit of 1 is that of the plain search
  if (it.deform_section_2 > qb7_par.qb7_par_deform_max) {
    newton_tracer("               ==> Echec_equilibre par deformee max depassee");
    return issue::echec;
  }
  const issue suite = newton_avancer(it);
  if (suite == issue::bloque) newton_tracer_blocage(it);
  return suite;
}

/// With limits judged an equilibrium past them keeps the code of its limit, and without them it is one.
ier_2 loc_conclure(const iteration_newton& it, bool bornes) {
  std::string_view suite;
  if (it.ier) {
    suite = bornes ? " mais Bornes de deformations depassees et non acceptees"
                   : " mais Bornes de deformations depassees et  acceptees";
  }
  newton_tracer_equilibre(it, suite);
  return bornes ? it.ier : ier_2{};
}

// ---- Fixed point of creep ----

/// The plane of a step, from d on, then from longer and longer ones: a creep that softens the section asks
/// for a plane further out.
ier_2 loc_resoudre_etape(bool bornes, const efforts& efforts_permanents, deformation& d,
                         std::span<deformation> tab_deform) {
  const deformation depart = d;
  double facteur = 1;
  ier_2 ier;
  for (int j = 0; j == 0 || (ier && j <= qb7_par.qb7_par_max_nb_homothetie); ++j) {
    d = facteur * depart;
    ier = eff_g_solliciter_section(bornes, efforts_permanents, d, tab_deform);
    facteur *= qb7_par.qb7_par_coeff_homothetie;
  }
  return ier;
}

/// Whether a step has moved the plane by at most 1e-3 of it.
bool loc_est_stable(const deformation& avant, const deformation& apres) {
  constexpr double tolerance = simple(0.001f);
  return norme_2(apres - avant) <= tolerance * tolerance * norme_2(apres);
}

}  // namespace

ier_2 eff_g_solliciter_section(bool bornes, const efforts& efforts_section, deformation& deform_section,
                               std::span<deformation> tab_deform) {
  iteration_newton it = newton_commencer(efforts_section, deform_section);
  newton_tracer_debut(it);
  ier_2 ier;
  // counted from 2: what the plain search does on its first pass alone is not done here
  for (it.nbre_iter = 2;; ++it.nbre_iter) {
    loc_integrer(it, tab_deform);
    loc_tracer_passe(it);
    if (newton_residu_admis(it)) {
      ier = loc_conclure(it, bornes);
      break;
    }
    if (loc_passer_au_plan_suivant(it) != issue::pas) {
      ier = {ERR_EQUILIBRE};
      break;
    }
  }
  deform_section = it.deform_section;
  return ier;
}

ier_2 eff_solliciter_permanent_section(bool bornes, const efforts& efforts_permanents_section,
                                       deformation& deform_permanent_section, qb7_histoire_fluage& histoire) {
  deformation& d = deform_permanent_section;
  histoire = {};
  int& k = histoire.nb_tab_deform_section;
  const auto k_max = static_cast<int>(histoire.tab_deform_section.size());
  for (k = 1;; ++k) {
    const deformation avant = d;
    const auto planes = std::span(histoire.tab_deform_section).first(static_cast<std::size_t>(k));
    if (const ier_2 ier = loc_resoudre_etape(bornes, efforts_permanents_section, d, planes)) return ier;
    // the first plane is without creep: that the search began there says nothing of a fixed point
    if (k > 1 && loc_est_stable(avant, d)) return {};
    if (k == k_max) return {ERR_EQUILIBRE_FLUAGE};
  }
}

ier_2 eff_solliciter_final_section(bool bornes, const qb7_histoire_fluage& histoire,
                                   const efforts& efforts_totaux_section, deformation& deform_final_section) {
  std::array<deformation, eff_g_nb_deform_max> tab_deform;
  static_assert(std::tuple_size_v<decltype(tab_deform)> ==
                std::tuple_size_v<decltype(histoire.tab_deform_section)> + 1);
  std::ranges::copy(histoire.tab_deform_section, tab_deform.begin());
  const auto nb_deform = static_cast<std::size_t>(histoire.nb_tab_deform_section) + 1;
  return eff_g_solliciter_section(bornes, efforts_totaux_section, deform_final_section,
                                  std::span(tab_deform).first(nb_deform));
}
