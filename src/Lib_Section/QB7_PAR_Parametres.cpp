#include "QB7_PAR_Parametres.hpp"

#include <utility>

qb7_par_t qb7_par;

void qb7_par_reinitialiser() { qb7_par = {}; }

void par_renitialiser() {
  qb7_par_t neuf;
  neuf.qb7_par_coeff_homothetie = qb7_par.qb7_par_coeff_homothetie;
  neuf.qb7_par_max_nb_homothetie = qb7_par.qb7_par_max_nb_homothetie;
  neuf.qb7_par_trace_equilibre = qb7_par.qb7_par_trace_equilibre;
  qb7_par = std::move(neuf);
}

socle::sortie* par_trace_optimisation() {
  return qb7_par.qb7_par_unite_trace_optimisation > 0 ? qb7_par.qb7_par_trace.get() : nullptr;
}

socle::sortie* par_trace_equilibre() {
  return qb7_par.qb7_par_trace_equilibre ? par_trace_optimisation() : nullptr;
}
