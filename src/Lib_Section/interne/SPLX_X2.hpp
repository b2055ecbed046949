// Linear programming by a simplex on the constraints: minimise c.x under A x <= b, with x free in sign, few
// unknowns and many rows.
//
// A base is n independent rows taken as equalities; u is the inverse of their matrix, w = -c u their
// multipliers. With w >= 0 the vertex x = u b of the base is the minimum under these rows alone. The row that
// it violates most then enters, and of the base the row leaves whose multiplier falls to zero first, so that
// w stays positive: the dual simplex of Lemke. The end is a vertex that violates none.
//
// Matrix and inverse hold what is not zero: a row of a design touches the steel and the plane of one loading
// only, and the columns of u that belong to a plane stay as narrow until a row of another loading comes in.
// Work and memory then grow with the number of loadings, not with its square.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

inline constexpr int splx_err_dimensions = 3110010;  ///< sizes that do not fit, or fewer rows than unknowns
inline constexpr int splx_err_alloc = 3110020;
inline constexpr int splx_err_rang = 3110030;    ///< fewer than n independent rows
inline constexpr int splx_err_vide = 3110040;    ///< no x satisfies all rows, or data that are not finite
inline constexpr int splx_err_infini = 3110050;  ///< no minimum, or no x satisfies all rows
inline constexpr int splx_err_boucle = 3110060;  ///< too many exchanges

/// A run of columns in a row of a matrix.
struct splx_tranche {
  std::size_t colonne = 0;   ///< first column, from 0
  std::size_t longueur = 0;  ///< columns
  std::size_t valeurs = 0;   ///< where its values begin
};

/// A matrix by rows, each a few runs of columns in ascending order; what no run covers is zero.
struct splx_matrice {
  std::size_t nbre_colonnes = 0;
  std::vector<splx_tranche> tranches;
  std::vector<std::size_t> premieres_tranches{0};  ///< of each row, and past the last one
  std::vector<double> valeurs;                     ///< run after run

  std::size_t nbre_lignes() const { return premieres_tranches.size() - 1; }
  std::span<const splx_tranche> ligne(std::size_t i) const {
    return std::span(tranches).subspan(premieres_tranches[i],
                                       premieres_tranches[i + 1] - premieres_tranches[i]);
  }
  std::span<double> valeurs_de(const splx_tranche& t) {
    return std::span(valeurs).subspan(t.valeurs, t.longueur);
  }
  std::span<const double> valeurs_de(const splx_tranche& t) const {
    return std::span(valeurs).subspan(t.valeurs, t.longueur);
  }
};

/// Adds a row of one or two runs of zeros, to be filled through valeurs_de. A span that was taken before is
/// no longer good.
void splx_ajouter_ligne(splx_matrice& matrice, std::span<const splx_tranche> tranches);

/// A column of u: zero above `debut` and below the last value.
struct splx_colonne {
  std::size_t debut = 0;
  std::vector<double> valeurs;

  std::size_t fin() const { return debut + valeurs.size(); }
};

/// What a solution works with. Kept from one call to the next it keeps its memory, and calls of one size take
/// no more.
struct splx_travail {
  splx_matrice a;                                             ///< rows of length 1, and b scaled with them
  std::vector<double> b;                                      ///< 0 where the row is zero
  std::vector<std::size_t> debuts_colonnes, lignes_colonnes;  ///< a by columns
  std::vector<double> valeurs_colonnes;
  std::vector<splx_colonne> u;        ///< inverse of the base
  std::vector<std::size_t> lgn_base;  ///< the row at each place of the base
  std::vector<double> w;              ///< multipliers
  std::vector<double> v;              ///< a row seen in the base: a(ip, :) u
  std::vector<double> ecart;          ///< a u(:, q), or a x - b
  std::vector<std::size_t> touchees;  ///< the rows where a u(:, q) may not be zero
};

/// Minimum f of c.x under aa x <= bb. i_ligne: on entry 1 marks a row preferred in the first base, 0 the
/// others; on return 1 marks the rows of the last base. Gives 0, or one of the statuses above with x and f
/// zero.
///
///   (1) as many rows as unknowns: the vertex of the rows, if the multipliers allow it to be the minimum
///   (2) a row of zeros is satisfied, whatever its right-hand side
///   (3) c = 0: the first vertex that violates no row
///   (4) it ends on any data: 300 exchanges to a base with w >= 0, 100 passes from there
[[nodiscard]] int splx_solve(const splx_matrice& aa, std::span<const double> bb, std::span<const double> c,
                             std::span<double> x, double& f, std::span<int> i_ligne, splx_travail& travail);

/// What a status says, with " (SPLX_)" behind it.
std::string splx_err_message(int ier);
