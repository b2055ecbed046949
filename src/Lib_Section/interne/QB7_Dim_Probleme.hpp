// A design as a problem: its loadings, the zones that may take steel, the unknown areas of steel, and the
// linear programme laid out in its memory.
//
// Unknowns of the programme: increments of the nv areas of steel, then three of the plane of each loading.
// Rows, by blocks: the areas that may not become negative; the strain limits of loading 1, 2, ...; the three
// equations of equilibrium of loading 1, 2, ... as sums that may not exceed the target; the same with all
// signs changed.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "QB7_GBD_SECT.hpp"
#include "QB7_Types.hpp"
#include "SPLX_X2.hpp"

enum class symetrie {
  aucune = 1,  ///< the steel of one zone
  axe_oy = 2,  ///< of two zones that mirror each other about the y axis, half in each
  axe_oz = 3,  ///< about the z axis
};

/// An unknown area of steel. A pair stands beside the variables of its two zones: it lets them grow together,
/// at a lower cost.
struct variable_acier {
  symetrie sym = symetrie::aucune;
  std::array<std::size_t, 2> rangs{};  ///< indices of its zones; the second counts for a pair alone

  std::span<const std::size_t> zones() const {
    return std::span(rangs).first(sym == symetrie::aucune ? 1 : 2);
  }
};

/// The three equations of a loading, with one of the two signs.
struct equations_equilibre {
  std::array<std::span<double>, 3> a_var;  ///< on the steel
  std::array<std::span<double>, 3> a_mat;  ///< on the plane
  std::span<double> b_mat;
};

/// A loading, and its part of the linear programme.
struct pointeur_soll {
  int num_etat_lim = 0;
  int num_etat = 0;
  efforts cible;
  deformation deforms;  ///< the present plane

  std::size_t premiere_borne = 0;  ///< its strain rows in the matrix
  std::size_t nbre_bornes = 0;
  std::span<double> x_deforms;        ///< increment of the plane
  std::span<const double> a_pts;      ///< its strain rows, three values each
  std::span<const double> b_eps_lim;  ///< their right-hand side at the zero plane
  std::span<double> b_d_eps;          ///< the same at the present plane
  equations_equilibre pos, neg;
};

struct qb7_dim_t {
  gbd_section* glob_pt_section = nullptr;
  std::vector<pointeur_soll> glob_pointeurs;
  std::optional<int> choix_base_pref;
  std::vector<gbd_zone*> glob_pt_zones;  ///< in the order of their numbers
  std::vector<double> glob_surfaces;     ///< area of a zone of fill 1; 0 if it is not designed
  std::vector<variable_acier> glob_vars;
  double glob_sect_acier_max = 0;  ///< area of steel of each zone at the start

  splx_matrice glob_a;
  std::vector<double> glob_b, glob_c, glob_x;
  std::vector<double> glob_b_eps_lim;
  std::vector<int> i_ligne;  ///< preferred rows, then those of the last base
  splx_travail travail;
  std::vector<efforts> aciers_zones;  ///< forces of a unit area of steel of each zone

  std::size_t nbre_vars() const { return glob_vars.size(); }
};

/// A line of the trace of design.
void dim_tracer(std::string_view ligne);

/// The section in the state of a loading, and the work tables for its limit state.
ier_2 dim_placer(qb7_dim_t& dim, const pointeur_soll& soll);

/// Areas of the zones that may be designed, at the first loading that has them active; their fill becomes 0.
/// A profile or bars without matter get 10 qb7_par_precis_acier. ERR_SURFACE_ZONE (zone): no area.
ier_2 dim_surface_zones(qb7_dim_t& dim);

/// The least area of steel, the same in each zone, with which every loading is in equilibrium within the
/// limits of strain: where the iteration starts. ERR_DIM_ACIERS (rank of the loading): none in the table.
ier_2 dim_init_c_remplissage(qb7_dim_t& dim);

/// The variables, found on the section with all zones active.
ier_2 dim_init_vars(qb7_dim_t& dim);

/// The linear programme: its shape, its costs, and its strain rows.
ier_2 dim_inegalites(qb7_dim_t& dim);
