// Parameters of the engine: tolerances and limits of its iterations, and its trace.
#pragma once

#include <memory>

#include "Systeme.hpp"
#include "Texte.hpp"

struct qb7_par_t {
  bool qb7_par_ecraser_permis = false;  ///< creating may overwrite
  int qb7_par_max_iter = 200;           ///< of the equilibrium, and of Jacobi's rotations
  double qb7_par_deform_max = 1.0;      ///< norm of a strain plane that has run away
  double qb7_par_precis_efforts =
      1e-5;  ///< relative, on forces; also the lowest eigenvalue of a usable tangent
  double qb7_par_precis_deforms = 1e-5;      ///< on strains
  double qb7_par_precis_acier = 1e-5;        ///< on steel, in design
  double qb7_par_precis_symetrie = 0.01;     ///< of the symmetry of two zones, in design
  bool qb7_par_sym_auto = false;             ///< design looks for symmetric zones by itself
  double qb7_par_cout_oy = 0.9;              ///< cost weight of design about y
  double qb7_par_cout_oz = 0.9;              ///< cost weight of design about z
  double qb7_par_coeff_homothetie = 1.25;    ///< scaling of a start plane in the fixed point of creep
  int qb7_par_max_nb_homothetie = 6;         ///< number of such scalings
  bool qb7_par_trace_equilibre = false;      ///< the equilibrium writes its passes to the trace
  int qb7_par_unite_trace_optimisation = 0;  ///< channel of the trace; 0: none
  socle::texte<200> qb7_par_fichier_trace_optimisation;
  std::unique_ptr<socle::sortie> qb7_par_trace;  ///< the trace while it is open
};
extern qb7_par_t qb7_par;

/// As at the start of the program.
void qb7_par_reinitialiser();

/// What the engine itself resets when it is left: all but the two scalings of creep and the trace of the
/// equilibrium.
void par_renitialiser();

/// Where the design writes its trace; null when there is none.
socle::sortie* par_trace_optimisation();

/// Where the equilibrium writes its trace; null when there is none or when its passes are not wanted.
socle::sortie* par_trace_equilibre();
