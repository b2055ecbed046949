// What the searches of an equilibrium share, with creep and without: the state of a Newton iteration on the
// forces and the tangent of a section, a pass of it, and its trace.
#pragma once

#include <string>
#include <string_view>

#include "QB7_Types.hpp"

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
  cofacteurs s_mat;             ///< of the last usable tangent
  bool raideur_connue = false;  ///< there was a usable tangent
  double rp_min = 0;            ///< lowest eigenvalue of the tangent
  ier_2 ier;                    ///< what the present plane says of the strain limits
};

/// What a pass leads to: a step; no step, since too many passes in a row had no usable tangent; a failure.
enum class issue { pas, bloque, echec };

/// A search of the plane under which the section has the forces `cible`, from the plane `depart`.
iteration_newton newton_commencer(const efforts& cible, const deformation& depart);

/// Residual and lowest eigenvalue, once the forces of the present plane are known and its mat_section is set.
void newton_evaluer(iteration_newton& it, const efforts& efforts_section);

/// Whether the residual is within tolerance. Forces whose squares overflow are met by no plane, though both
/// sides are then infinite.
bool newton_residu_admis(const iteration_newton& it);

/// From the evaluated plane to the next, on its tangent or, where that is not usable, on the last good one.
issue newton_avancer(iteration_newton& it);

// ---- Trace: lines of the equilibrium's trace, if there is one ----

std::string newton_nombre(double x);
void newton_tracer(std::string_view texte);
void newton_tracer(std::string_view texte, double x);
void newton_tracer_3(std::string_view texte, double a, double b, double c);

/// The plane and the forces that a search begins with.
void newton_tracer_debut(const iteration_newton& it);

/// An equilibrium, and what is to be said of the strain limits that it passes.
void newton_tracer_equilibre(const iteration_newton& it, std::string_view suite);

/// The end of a search that has met too many passes without a usable tangent.
void newton_tracer_blocage(const iteration_newton& it);
