// Small numerical routines: linear systems, sorted lists, vectors of space, angles.
#pragma once

#include <array>
#include <span>

#include "Matrice.hpp"
#include "Texte.hpp"

using vecteur_3 = std::array<double, 3>;
using vecteur_3_s = std::array<float, 3>;
using matrice_3 = std::array<std::array<double, 3>, 3>;

/// Solves a x = b by elimination with the greatest pivot of each column; a and b are overwritten, b becomes
/// x. False if the matrix is singular to the precision of its numbers.
bool uti_resolve_gauss_d(socle::matrice& a, std::span<double> b);
/// The same in single precision; a by rows.
bool uti_resolve_gauss_s(std::span<float> a, std::span<float> b);
/// Inverts a square matrix in place; false, and the matrix is lost, if it is singular.
bool uti_inversion_matrice_non_symetrique_d(socle::matrice& a);

/// Sorts in rising order.
void uti_tri_croissant_e(std::span<int> liste);
/// Rank of a value, from 1; 0 if it is absent.
int uti_rang_valeur_v_e(std::span<const int> liste, int valeur);
/// Rank of the greatest value, the first one if there are several; 0 for an empty list.
int uti_rang_valeur_maxi_s(std::span<const float> liste);
int uti_rang_valeur_maxi_e(std::span<const int> liste);

/// Direction of the line where two planes meet that are given by their normals; null for parallel planes.
vecteur_3 uti_vecteur_2_plans(const vecteur_3& normale_1, const vecteur_3& normale_2);
vecteur_3 uti_produit_v_spatial_d(const vecteur_3& a, const vecteur_3& b);
float uti_produit_scalaire_s(std::span<const float> a, std::span<const float> b);
double uti_produit_scalaire_d(std::span<const double> a, std::span<const double> b);
float uti_norme_euclidienne_s(std::span<const float> v);
double uti_norme_euclidienne_d(std::span<const double> v);

/// a by transposed b; the two have as many columns.
socle::matrice uti_produit_matrice_a_bt_d(const socle::matrice& a, const socle::matrice& b);
/// Matrix of the rotation by an angle (rad) about an axis through the origin, positive counter-clockwise seen
/// from the axis' end. A null axis gives the identity.
matrice_3 uti_op_rotation_spatiale_d(const vecteur_3& axe, double angle);

/// Angles in radians; the argument is brought to -1 to 1.
double uti_arc_sinus_d(double sinus);
double uti_arc_cosinus_d(double cosinus);
/// Angle in -pi to pi of which these are sine and cosine.
double uti_arc_sinus_cosinus_d(double sinus, double cosinus);

/// Internal fault: tells the routine on the console, and stops the run with status 1.
[[noreturn]] void uti_arret_premature(socle::vue_l1 procedure);
