// The law of a material for one limit state: polynomials of the strain by intervals, limits, hole type.
#pragma once

#include <compare>
#include <span>
#include <vector>

#include "QB7_GBD_LST.hpp"
#include "QB7_Types.hpp"

struct gbd_clef_loi {
  int num_etat_lim = qb7_indefini;
  int num_materiau = qb7_indefini;
  // NOLINTNEXTLINE(modernize-use-nullptr): the check sees a 0 in what the compiler writes
  friend constexpr auto operator<=>(const gbd_clef_loi&, const gbd_clef_loi&) = default;
};

/// Interval i runs from epsilons[i] to epsilons[i + 1]; the first comes from minus infinity (epsilons[0] is
/// only stored), the last goes to plus infinity. A strain on a knot belongs to the interval on its right.
struct gbd_loi {
  int num_materiau = qb7_indefini;
  int num_etat_lim = qb7_indefini;
  std::vector<double> epsilons;      ///< left ends
  std::vector<qb7_polynome> coeffs;  ///< as many as left ends; zero above the degree
  int degre = 0;                     ///< 0 to 3: the degree that the law was given with
  int type_trou = qb7_trou_encombrement;
  double epsilon_min = qb7_sans_borne;  ///< limits of the verification of a plane, not of the evaluation
  double epsilon_max = qb7_sans_borne;

  gbd_clef_loi clef() const { return {.num_etat_lim = num_etat_lim, .num_materiau = num_materiau}; }
  int nbre_interv() const { return static_cast<int>(epsilons.size()); }
};

/// The table of a law without limits, hole type 2000. ERR_NBRE_INT_LOI, ERR_DEGRE_LOI (degree), ERR_DIM_TAB
/// (number of left ends), ERR_DEF_LOI (rank of the smallest step between left ends, the first one aside, that
/// is not positive).
ier_2 gbd_loi_creer(int num_materiau, int num_etat_lim, std::span<const double> epsilons, int degre,
                    std::span<const qb7_polynome> coeffs, gbd_loi& loi);

/// Stress = strain: what geometric results are read with.
gbd_loi gbd_loi_meca();

/// Rank, from 0, of the interval of a strain.
std::size_t gbd_loi_intervalle(std::span<const double> epsilons, double epsilon);

/// ERR_LOI_EXISTE (material) unless qb7_par_ecraser_permis is true: then the law is overwritten.
ier_2 gbd_loi_lst_ajouter(gbd_liste<gbd_loi>& liste, gbd_loi loi);

/// Null and ERR_NON_LOI (material) if there is no such law.
gbd_loi* gbd_loi_lst_chercher(gbd_liste<gbd_loi>& liste, gbd_clef_loi clef, ier_2& ier);
