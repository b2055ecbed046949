#include "QB7_Equilibre.hpp"

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "Edition.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_PAR_Parametres.hpp"

namespace {

/// Restarts halve the steps as long as the factor is below this: 1, 2, 4, 8, 16.
constexpr double facteur_reduction_max = 10;
/// Passes in a row that may step on an old tangent.
constexpr int ite_negatives_max = 6;
/// A target of zero forces is met within this share of the tolerance, as if its norm were 1e-3.
constexpr double norme_2_cible_nulle = 1e-6;

/// Cofactors of a tangent, and its determinant: the step is cofactors * residual / det.
struct cofacteurs {
  double s11 = 1e40, s12 = 1e40, s13 = 1e40, s22 = 1e40, s23 = 1e40, s33 = 1e40;
  double det = 0;
};

/// The state of a search.
struct iteration_newton {
  efforts cible;
  deformation deform_section;  ///< the present plane

  int nbre_iter = 1;             ///< passes, restarts included
  double epsilon_efforts_2 = 0;  ///< squared tolerance on the residual
  efforts residu_efforts;        ///< target less forces of the present plane
  double residu_efforts_2 = 0;
  double residu_efforts_2_minimal = 0;  ///< best residual from pass 2 on, and its plane
  deformation deform_section_optimale;
  double deform_section_2 = 0;  ///< squared norm of the plane after the last step
  deformation delta_deform;     ///< the last step
  double facteur_reduction = 1;
  int nb_ite_negatives_successives = 0;  ///< passes in a row without a usable tangent
  rigidite mat_section;
  cofacteurs s_mat;   ///< of the last usable tangent
  double rp_min = 0;  ///< lowest eigenvalue of the tangent
  ier_2 ier;          ///< what the present plane says of the strain limits
};

// ---- Trace ----

void loc_tracer(std::string_view texte) {
  if (socle::sortie* trace = par_trace_equilibre()) trace->ligne(texte);
}

std::string loc_nombre(double x) { return socle::edite(socle::E{16, 8}, x); }

void loc_tracer(std::string_view texte, double x) {
  if (par_trace_equilibre() != nullptr) loc_tracer(std::string(texte) + loc_nombre(x));
}

void loc_tracer(std::string_view avant, int n, std::string_view apres) {
  if (par_trace_equilibre() != nullptr)
    loc_tracer(std::string(avant) + std::to_string(n) + std::string(apres));
}

void loc_tracer_3(std::string_view texte, double a, double b, double c) {
  loc_tracer(std::string(texte) + loc_nombre(a) + loc_nombre(b) + loc_nombre(c));
}

void loc_tracer_debut(const iteration_newton& it) {
  if (par_trace_equilibre() == nullptr) return;
  const auto& [e0, ky, kz] = it.deform_section;
  loc_tracer("");
  loc_tracer("     Recherche equilibre   :");
  loc_tracer_3("          Deformations ini : ", e0, ky, kz);
  loc_tracer_3("          Efforts_Section  : ", it.cible.n, it.cible.my, it.cible.mz);
}

void loc_tracer_passe(const iteration_newton& it) {
  if (par_trace_equilibre() == nullptr) return;
  const deformation& inc = it.delta_deform;
  const deformation& cum = it.deform_section;
  const efforts& r = it.residu_efforts;
  loc_tracer("     Iteration       : " + socle::edite(socle::I{5}, it.nbre_iter) +
             " - Inc def : " + loc_nombre(std::sqrt(norme_2(inc))));
  loc_tracer_3("          Deformations Inc : ", inc.e0, inc.ky, inc.kz);
  loc_tracer_3("          Deformations Cum : ", cum.e0, cum.ky, cum.kz);
  loc_tracer_3("          Residu_Efforts   : ", r.n, r.my, r.mz);
  loc_tracer("          Val spectrale min: " + loc_nombre(it.rp_min) +
             " - Res cou : " + loc_nombre(std::sqrt(it.residu_efforts_2)) +
             " - res max : " + loc_nombre(std::sqrt(it.epsilon_efforts_2)));
}

// ---- Steps of an iteration ----

iteration_newton loc_commencer(const efforts& cible, const deformation& depart) {
  const double precision_2 = qb7_par.qb7_par_precis_efforts * qb7_par.qb7_par_precis_efforts;
  const double cible_2 = norme_2(cible);
  iteration_newton it;
  it.cible = cible;
  it.deform_section = depart;
  it.epsilon_efforts_2 = precision_2 * cible_2;
  if (it.epsilon_efforts_2 == 0) it.epsilon_efforts_2 = precision_2 * norme_2_cible_nulle;
  it.residu_efforts_2_minimal = 10000 * cible_2;
  return it;
}

/// Forces, tangent and residual of the present plane; keeps the best plane met.
void loc_integrer(iteration_newton& it) {
  efforts eff;
  eff_efforts_section(it.deform_section, eff, &it.mat_section, &it.ier);
  it.residu_efforts = it.cible - eff;
  it.residu_efforts_2 = norme_2(it.residu_efforts);
  if (it.nbre_iter >= 2 && it.residu_efforts_2 < it.residu_efforts_2_minimal) {
    it.residu_efforts_2_minimal = it.residu_efforts_2;
    it.deform_section_optimale = it.deform_section;
  }
  const auto& [a1, a2, b2, a3, b3, c3] = it.mat_section;
  it.rp_min = eff_valeur_propre_minimale_rigidite({{{a1, a2, a3}, {a2, b2, b3}, {a3, b3, c3}}},
                                                  qb7_par.qb7_par_precis_efforts, qb7_par.qb7_par_max_iter);
}

/// One real pass is always made, so that a start which happens to fit is looked at twice. Forces whose
/// squares overflow are met by no plane, though both sides are then infinite.
bool loc_equilibre_atteint(const iteration_newton& it) {
  return it.nbre_iter != 1 && std::isfinite(it.residu_efforts_2) &&
         it.residu_efforts_2 <= it.epsilon_efforts_2;
}

/// The first step is tiny on purpose: it leaves a plane that may lie on the knots of every law, of zero
/// stiffness, without a leap.
void loc_ralentir_le_depart(iteration_newton& it) {
  if (it.residu_efforts_2 <= it.epsilon_efforts_2) return;
  it.residu_efforts *= it.epsilon_efforts_2 / it.residu_efforts_2;
}

/// Cofactors of the present tangent; false if its determinant is zero.
bool loc_retenir_raideur(iteration_newton& it) {
  const auto& [a1, a2, b2, a3, b3, c3] = it.mat_section;
  cofacteurs& s = it.s_mat;
  s = {.s11 = b2 * c3 - b3 * b3,
       .s12 = a3 * b3 - a2 * c3,
       .s13 = a2 * b3 - a3 * b2,
       .s22 = a1 * c3 - a3 * a3,
       .s23 = a2 * a3 - a1 * b3,
       .s33 = a1 * b2 - a2 * a2};
  s.det = a1 * s.s11 + a2 * s.s12 + a3 * s.s13;
  return s.det != 0;
}

void loc_avancer(iteration_newton& it) {
  const efforts& r = it.residu_efforts;
  const cofacteurs& s = it.s_mat;
  const auto composante = [&](double x) { return x / s.det / it.facteur_reduction; };
  it.delta_deform = {composante(s.s11 * r.n + s.s12 * r.my + s.s13 * r.mz),
                     composante(s.s12 * r.n + s.s22 * r.my + s.s23 * r.mz),
                     composante(s.s13 * r.n + s.s23 * r.my + s.s33 * r.mz)};
  it.deform_section += it.delta_deform;
  it.deform_section_2 = norme_2(it.deform_section);
}

/// Back to the best plane, with steps half as long; false when that was done often enough. The count of bad
/// tangents goes on.
bool loc_redemarrer(iteration_newton& it) {
  if (it.facteur_reduction >= facteur_reduction_max) return false;
  it.deform_section = it.deform_section_optimale;
  it.delta_deform = {};
  it.facteur_reduction *= 2;
  it.deform_section_2 = norme_2(it.deform_section);
  loc_tracer("               ==> Nouveau facteur de reduction des increments  :", it.facteur_reduction);
  return true;
}

/// What a pass leads to.
enum class issue { pas, echec };

/// Without a usable tangent: a step on the last good one, then a restart; a failure on the first pass, which
/// has none.
issue loc_sans_raideur(iteration_newton& it) {
  if (it.nbre_iter == 1) {
    loc_tracer(
        "               ==> Echec_equilibre par valeur spectrale minimale trop faible a la premiere "
        "iteration:",
        it.rp_min);
    return issue::echec;
  }
  ++it.nb_ite_negatives_successives;
  loc_tracer("          ==> ", it.nb_ite_negatives_successives, "eme iteration sans changement de raideur");
  if (it.nb_ite_negatives_successives < ite_negatives_max) {
    loc_avancer(it);
    return issue::pas;
  }
  if (loc_redemarrer(it)) return issue::pas;
  loc_tracer("               ==> Echec_equilibre par Iterations negatives successives max depassees : ",
             it.nb_ite_negatives_successives, "");
  return issue::echec;
}

/// From the integrated plane to the next one.
issue loc_passer_au_plan_suivant(iteration_newton& it) {
  if (it.nbre_iter > qb7_par.qb7_par_max_iter) {
    loc_tracer("               ==> Echec_equilibre par nombre max iterations depasse");
    return issue::echec;
  }
  if (it.deform_section_2 > qb7_par.qb7_par_deform_max * qb7_par.qb7_par_deform_max) {
    loc_tracer("               ==> Echec_equilibre par deformee absolue depassee : ",
               std::sqrt(it.deform_section_2));
    return loc_redemarrer(it) ? issue::pas : issue::echec;
  }
  if (!(it.rp_min >= qb7_par.qb7_par_precis_efforts)) return loc_sans_raideur(it);
  it.nb_ite_negatives_successives = 0;
  if (!loc_retenir_raideur(it)) {
    loc_tracer("               ==> Echec_equilibre par determinant nul");
    return issue::echec;
  }
  loc_avancer(it);
  return issue::pas;
}

/// An equilibrium may pass the strain limits: with bornes that is none.
ier_2 loc_conclure(const iteration_newton& it, bool bornes) {
  std::string_view suite;
  if (it.ier) {
    suite = bornes ? " mais Bornes de deformations depassees et non acceptees (non equilibre)"
                   : " mais Bornes de deformations depassees et  acceptees";
  }
  if (par_trace_equilibre() != nullptr) {
    loc_tracer("               ==> Equilibre atteint  -  Residu    :" +
               loc_nombre(std::sqrt(it.residu_efforts_2)) + std::string(suite));
  }
  return it.ier && bornes ? ier_2{ERR_EQUILIBRE} : it.ier;
}

}  // namespace

ier_2 eff_solliciter_section(bool bornes, const efforts& efforts_section, deformation& deform_section) {
  iteration_newton it = loc_commencer(efforts_section, deform_section);
  loc_tracer_debut(it);
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
