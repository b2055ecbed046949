#include "QB7_Newton.hpp"

#include <cmath>
#include <string>

#include "Edition.hpp"
#include "QB7_Equilibre.hpp"
#include "QB7_PAR_Parametres.hpp"

namespace {

/// Passes in a row that may step on an old tangent.
constexpr int ite_negatives_max = 6;
/// A target of zero forces is met within this share of the tolerance, as if its norm were 1e-3.
constexpr double norme_2_cible_nulle = 1e-6;

void loc_tracer(std::string_view avant, int n, std::string_view apres) {
  if (par_trace_equilibre() != nullptr)
    newton_tracer(std::string(avant) + std::to_string(n) + std::string(apres));
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
  it.raideur_connue = true;
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

/// Without a usable tangent: a step on the last good one; a failure where there was none yet.
issue loc_sans_raideur(iteration_newton& it) {
  if (!it.raideur_connue) {
    newton_tracer(
        "               ==> Echec_equilibre par valeur spectrale minimale trop faible a la premiere "
        "iteration:",
        it.rp_min);
    return issue::echec;
  }
  ++it.nb_ite_negatives_successives;
  loc_tracer("          ==> ", it.nb_ite_negatives_successives, "eme iteration sans changement de raideur");
  if (it.nb_ite_negatives_successives >= ite_negatives_max) return issue::bloque;
  loc_avancer(it);
  return issue::pas;
}

}  // namespace

iteration_newton newton_commencer(const efforts& cible, const deformation& depart) {
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

void newton_evaluer(iteration_newton& it, const efforts& efforts_section) {
  it.residu_efforts = it.cible - efforts_section;
  it.residu_efforts_2 = norme_2(it.residu_efforts);
  const auto& [a1, a2, b2, a3, b3, c3] = it.mat_section;
  it.rp_min = eff_valeur_propre_minimale_rigidite({{{a1, a2, a3}, {a2, b2, b3}, {a3, b3, c3}}},
                                                  qb7_par.qb7_par_precis_efforts, qb7_par.qb7_par_max_iter);
}

bool newton_residu_admis(const iteration_newton& it) {
  return std::isfinite(it.residu_efforts_2) && it.residu_efforts_2 <= it.epsilon_efforts_2;
}

issue newton_avancer(iteration_newton& it) {
  if (!(it.rp_min >= qb7_par.qb7_par_precis_efforts)) return loc_sans_raideur(it);
  it.nb_ite_negatives_successives = 0;
  if (!loc_retenir_raideur(it)) {
    newton_tracer("               ==> Echec_equilibre par determinant nul");
    return issue::echec;
  }
  loc_avancer(it);
  return issue::pas;
}

void newton_tracer(std::string_view texte) {
  if (socle::sortie* trace = par_trace_equilibre()) trace->ligne(texte);
}

std::string newton_nombre(double x) { return socle::edite(socle::E{16, 8}, x); }

void newton_tracer(std::string_view texte, double x) {
  if (par_trace_equilibre() != nullptr) newton_tracer(std::string(texte) + newton_nombre(x));
}

void newton_tracer_3(std::string_view texte, double a, double b, double c) {
  newton_tracer(std::string(texte) + newton_nombre(a) + newton_nombre(b) + newton_nombre(c));
}

void newton_tracer_debut(const iteration_newton& it) {
  if (par_trace_equilibre() == nullptr) return;
  const auto& [e0, ky, kz] = it.deform_section;
  newton_tracer("");
  newton_tracer("     Recherche equilibre   :");
  newton_tracer_3("          Deformations ini : ", e0, ky, kz);
  newton_tracer_3("          Efforts_Section  : ", it.cible.n, it.cible.my, it.cible.mz);
}

void newton_tracer_equilibre(const iteration_newton& it, std::string_view suite) {
  if (par_trace_equilibre() == nullptr) return;
  newton_tracer("               ==> Equilibre atteint  -  Residu    :" +
                newton_nombre(std::sqrt(it.residu_efforts_2)) + std::string(suite));
}

void newton_tracer_blocage(const iteration_newton& it) {
  loc_tracer("               ==> Echec_equilibre par Iterations negatives successives max depassees : ",
             it.nb_ite_negatives_successives, "");
}
