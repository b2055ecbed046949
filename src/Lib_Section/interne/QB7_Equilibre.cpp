#include "QB7_Equilibre.hpp"

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "Edition.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_Newton.hpp"
#include "QB7_PAR_Parametres.hpp"

namespace {

/// Restarts halve the steps as long as the factor is below this: 1, 2, 4, 8, 16.
constexpr double facteur_reduction_max = 10;

void loc_tracer_passe(const iteration_newton& it) {
  if (par_trace_equilibre() == nullptr) return;
  const deformation& inc = it.delta_deform;
  const deformation& cum = it.deform_section;
  const efforts& r = it.residu_efforts;
  newton_tracer("     Iteration       : " + socle::edite(socle::I{5}, it.nbre_iter) +
                " - Inc def : " + newton_nombre(std::sqrt(norme_2(inc))));
  newton_tracer_3("          Deformations Inc : ", inc.e0, inc.ky, inc.kz);
  newton_tracer_3("          Deformations Cum : ", cum.e0, cum.ky, cum.kz);
  newton_tracer_3("          Residu_Efforts   : ", r.n, r.my, r.mz);
  newton_tracer("          Val spectrale min: " + newton_nombre(it.rp_min) +
                " - Res cou : " + newton_nombre(std::sqrt(it.residu_efforts_2)) +
                " - res max : " + newton_nombre(std::sqrt(it.epsilon_efforts_2)));
}

/// Forces, tangent and residual of the present plane; keeps the best plane met.
void loc_integrer(iteration_newton& it) {
  efforts eff;
  eff_efforts_section(it.deform_section, eff, &it.mat_section, &it.ier);
  newton_evaluer(it, eff);
  if (it.nbre_iter >= 2 && it.residu_efforts_2 < it.residu_efforts_2_minimal) {
    it.residu_efforts_2_minimal = it.residu_efforts_2;
    it.deform_section_optimale = it.deform_section;
  }
}

/// One real pass is always made, so that a start which happens to fit is looked at twice.
bool loc_equilibre_atteint(const iteration_newton& it) {
  return it.nbre_iter != 1 && newton_residu_admis(it);
}

/// The first step is tiny on purpose: it leaves a plane that may lie on the knots of every law, of zero
/// stiffness, without a leap.
void loc_ralentir_le_depart(iteration_newton& it) {
  if (it.residu_efforts_2 <= it.epsilon_efforts_2) return;
  it.residu_efforts *= it.epsilon_efforts_2 / it.residu_efforts_2;
}

/// Back to the best plane, with steps half as long; false when that was done often enough. The count of bad
/// tangents goes on.
bool loc_redemarrer(iteration_newton& it) {
  if (it.facteur_reduction >= facteur_reduction_max) return false;
  it.deform_section = it.deform_section_optimale;
  it.delta_deform = {};
  it.facteur_reduction *= 2;
  it.deform_section_2 = norme_2(it.deform_section);
  newton_tracer("               ==> Nouveau facteur de reduction des increments  :", it.facteur_reduction);
  return true;
}

/// From the integrated plane to the next one.
issue loc_passer_au_plan_suivant(iteration_newton& it) {
  if (it.nbre_iter > qb7_par.qb7_par_max_iter) {
    newton_tracer("               ==> Echec_equilibre par nombre max iterations depasse");
    return issue::echec;
  }
  if (it.deform_section_2 > qb7_par.qb7_par_deform_max * qb7_par.qb7_par_deform_max) {
    newton_tracer("               ==> Echec_equilibre par deformee absolue depassee : ",
                  std::sqrt(it.deform_section_2));
    return loc_redemarrer(it) ? issue::pas : issue::echec;
  }
  const issue suite = newton_avancer(it);
  if (suite != issue::bloque) return suite;
  if (loc_redemarrer(it)) return issue::pas;
  newton_tracer_blocage(it);
  return issue::echec;
}

/// An equilibrium may pass the strain limits: with bornes that is none.
ier_2 loc_conclure(const iteration_newton& it, bool bornes) {
  std::string_view suite;
  if (it.ier) {
    suite = bornes ? " mais Bornes de deformations depassees et non acceptees (non equilibre)"
                   : " mais Bornes de deformations depassees et  acceptees";
  }
  newton_tracer_equilibre(it, suite);
  return it.ier && bornes ? ier_2{ERR_EQUILIBRE} : it.ier;
}

}  // namespace

ier_2 eff_solliciter_section(bool bornes, const efforts& efforts_section, deformation& deform_section) {
  iteration_newton it = newton_commencer(efforts_section, deform_section);
  newton_tracer_debut(it);
  ier_2 ier;
  for (;; ++it.nbre_iter) {
    loc_integrer(it);
    loc_tracer_passe(it);
    if (loc_equilibre_atteint(it)) {
      ier = loc_conclure(it, bornes);
      break;
    }
    if (it.nbre_iter == 1) loc_ralentir_le_depart(it);
    if (loc_passer_au_plan_suivant(it) == issue::echec) {
      ier = {ERR_EQUILIBRE};
      break;
    }
  }
  deform_section = it.deform_section;
  return ier;
}

double eff_valeur_propre_minimale_rigidite(const matrice_3& rigid, double eps, int nb_ite_max) {
  matrice_3 a = rigid;
  if (uti_analyse_spectrale_matrice_symetrique_jacobie(a, nullptr, eps, nb_ite_max) != 0) {
    return std::numeric_limits<double>::lowest();
  }
  return std::fmin(std::fmin(a[0][0], a[1][1]), a[2][2]);
}

ier_2 eff_effort_resistant_limite(bool bornes, const efforts& efforts_section, const efforts& delta_efforts,
                                  double k_min, double k_max, double& k) {
  constexpr double precision_k = 1e-5;
  double k_inf = k_min;
  double k_sup = k_max;
  k = k_min;
  for (;;) {
    deformation plan;
    if (eff_solliciter_section(bornes, efforts_section + k * delta_efforts, plan)) {
      k_sup = k;
      if (k == k_min) {
        k = 0;
        return {ERR_K_MIN};
      }
    } else {
      k_inf = k;
    }
    k = (k_inf + k_sup) / 2;
    // the second test: ends so large that no number lies between them
    if (!(std::abs(k_sup - k_inf) >= precision_k) || k == k_inf || k == k_sup) return {};
  }
}
