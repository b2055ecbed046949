// Spectral analysis of a symmetric matrix by Jacobi rotations.
#pragma once

#include "QB7_Types.hpp"

/// Rotates the symmetric matrix a until its terms outside the diagonal are small: the diagonal then holds the
/// eigenvalues. In v, if given, the columns are the eigenvectors.
/// Stops when the largest of these terms is at most epsilon sqrt(|sum of all entries of a|) / 3; where that
/// sum is zero, when they are all exactly zero. Gives 0, or 1 if countr + 1 rotations did not suffice.
int uti_analyse_spectrale_matrice_symetrique_jacobie(matrice_3& a, matrice_3* v, double epsilon, int countr);
