// Stress-strain laws: the builders that turn the parameters of a material into the one form that the engine
// integrates, a table of polynomials of the strain, of degree 3 at most, with two limits and a hole type.
//
// Notation and units: compression is positive in strain and in stress; stresses are in the client's unit,
// which is also that of the moduli; a strain is a number without unit. A limit of 33554432.0 (qb7_sans_borne)
// is no limit. A law has no domain: past its points it follows its extreme polynomials; its limits only judge
// a strain plane. A strain that falls on a knot belongs to the interval on its right.
//
// A stress, a modulus or a strain that is infinite or not a number is refused like one that is out of range.
//
// Every builder creates the law (num_materiau, num_etat_lim), checks its arguments before it creates
// anything, and journals a failure under its own name. ERR_LOI_EXISTE, ERR_DEF_LOI and their like come from
// the store as they are.
#pragma once

#include <optional>
#include <span>

#include "QB7_Types.hpp"

// The four forms of qb7_loi_lin_bilin.
inline constexpr int qb7_loi_nulle = 10000;              ///< no stress at any strain
inline constexpr int qb7_loi_lineaire = 10010;           ///< elastic in tension and in compression
inline constexpr int qb7_loi_compression_seule = 10020;  ///< elastic in compression, nothing in tension
inline constexpr int qb7_loi_traction_seule = 10030;     ///< elastic in tension, nothing in compression

/// Piecewise linear law through the points (tab_epsilons, tab_sigmas), n + 1 points for n intervals; the
/// first and the last segment are prolonged without end. A law whose limits or hole type are refused is
/// removed again. ERR_NBRE_INT_LOI: fewer than two points; ERR_DIM_TAB (size of tab_sigmas): another number
/// of stresses; ERR_DEF_LOI (rank of the first smallest step): strains that do not increase.
ier_2 qb7_loi_multi_lin(int num_materiau, int num_etat_lim, std::span<const double> tab_epsilons,
                        std::span<const double> tab_sigmas, std::optional<double> epsilon_min = {},
                        std::optional<double> epsilon_max = {}, std::optional<int> type_trou = {});

/// Elastic law of modulus e in one of the four forms above; the limits on stress become limits on
/// strain. ERR_MODULE: e absent, zero or negative, or e positive for the null law; ERR_LIMITES_LOI: a limit
/// that the form excludes; ERR_TYPE_LOI (type_loi): unknown form.
ier_2 qb7_loi_lin_bilin(int num_materiau, int num_etat_lim, int type_loi, std::optional<double> e = {},
                        std::optional<double> sigma_min = {}, std::optional<double> sigma_max = {},
                        std::optional<int> type_trou = {});

/// Parabola-rectangle of concrete (EN 1992-1-1 3.1.7 (1), exponent 2): nothing in tension, parabola up to
/// f_cd at eps_c1, plateau. The limit is eps_cu, or with `limites` the strain at which the parabola reaches
/// f_lim < f_cd. ERR_CONTRAINTE: f_cd <= 0 or f_lim < 0; ERR_DEF_LOI: eps_c1 <= 0 or eps_c1 > eps_cu
/// (equality is accepted).
ier_2 qb7_loi_parabole_rectangle_avec_bornes(int num_materiau, int num_etat_lim, double f_cd, double eps_c1,
                                             double eps_cu, bool limites, double f_lim);

/// The same with the exponent n of high strength concrete (EN 1992-1-1 3.1.7 (1), table 3.1): the curve
/// f_cd (1 - (1 - x/eps_c1)^n) as a cubic spline through 0, 0.2, 0.9 and 1 times eps_c1, flat at eps_c1; the
/// spline lies within 0.6 % of f_cd of the curve. ERR_CONTRAINTE: f_cd <= 0; ERR_DEGRE_LOI: n outside 1.4 (in
/// single precision) to 2.0; ERR_DEF_LOI: as above, and the console is told.
ier_2 qb7_loi_parabole_degre_n_avec_bornes(int num_materiau, int num_etat_lim, double n, double f_cd,
                                           double eps_c1, double eps_cu, bool limites, double f_lim);

/// Bilinear law of concrete (EN 1992-1-1 3.1.7 (2)): nothing in tension, a line up to f_cd at eps_c1,
/// plateau; limit eps_cu. ERR_CONTRAINTE: f_cd <= 0; ERR_DEF_LOI (3): eps_c1 = eps_cu, for want of a plateau.
ier_2 qb7_loi_beton_bilin(int num_materiau, int num_etat_lim, double f_cd, double eps_c1, double eps_cu);

/// Steel, the same in tension and in compression: elastic up to (eps_palier, f_palier), then a line through
/// (eps_rupture, f_rupture). With `comprimes` false it carries nothing in compression; its limits stay.
/// With `limites` the strain is limited where the stress reaches f_min (negative) and f_max (positive); a
/// stress limit past f_rupture limits nothing. ERR_CONTRAINTE: f_palier <= 0 or f_palier > f_rupture.
ier_2 qb7_loi_elastoplastique_avec_bornes(int num_materiau, int num_etat_lim, double eps_palier,
                                          double f_palier, double eps_rupture, double f_rupture, bool limites,
                                          double f_min, double f_max, bool comprimes,
                                          std::optional<int> type_trou = {});

/// Reinforcing steel: elastic of modulus es up to f_sed, then a line to f_sud at eps_su, the same in
/// compression or, with `comprimes` false, nothing there. Limit -eps_su in tension, none in compression; hole
/// type 2002: bars do not take their place out of the concrete. f_sud absent: f_sed, a horizontal plateau;
/// eps_su absent: 0.01. ERR_CONTRAINTE: f_sed <= 0 or f_sed > f_sud; ERR_MODULE: es <= 0.
ier_2 qb7_loi_passif_palier(int num_materiau, int num_etat_lim, double es, double f_sed,
                            std::optional<double> f_sud = {}, std::optional<double> eps_su = {},
                            bool comprimes = true);

/// Ultimate law of reinforcing steel (EN 1992-1-1 3.2.7 (2)): qb7_loi_passif_palier; f_sud absent makes it
/// perfectly plastic.
ier_2 qb7_loi_passif_ec2_elu(int num_materiau, int num_etat_lim, double es, double f_sed,
                             std::optional<double> f_sud, double eps_su, bool comprimes);

/// Three unit laws, for the three geometric readings of a section: raw, net, homogenised, in the order of
/// tab_num_etat_lim. `n` is the ratio of the steel's modulus to the concrete's in the homogenised section.
/// ERR_DIM_TAB: not three numbers; another failure carries the rank (1 to 3) of the law that failed.
ier_2 qb7_loi_beton_meca(int num_materiau, std::span<const int> tab_num_etat_lim);
ier_2 qb7_loi_charpente_meca(int num_materiau, std::span<const int> tab_num_etat_lim);
ier_2 qb7_loi_passif_meca(int num_materiau, std::span<const int> tab_num_etat_lim, double n);
ier_2 qb7_loi_actif_meca(int num_materiau, std::span<const int> tab_num_etat_lim, double n);
