#pragma once
// The zones of bars that design may change, and the coefficients that it keeps of them.

#include <string>
#include <vector>

#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_ferraillage;

/// The zones of bars that the engine may fill, in the order of the section.
std::vector<zof_ferraillage*> zof_zones_dimensionnables(const socle::texte<32>& nom_section);

/// Steel of one point with a coefficient of 1, m2, as the engine has it.
double zof_matiere_par_point(const zof_ferraillage& zone);

/// Steel of a zone, m2, with this fill coefficient; less than a tenth of a square millimetre is none.
double zof_aire_aciers(const zof_ferraillage& zone, double c_remplissage);

/// The coefficient of the k-th zone, k from 1.
double zof_lire_remplissage(const uef_vector& coefficients, int k);
/// Stores it; a list that ends just before k grows.
void zof_noter_remplissage(uef_vector& coefficients, int k, double c_remplissage);

/// A quantity in the next whole unit, as the notes print it.
std::string zof_chaine_entier_superieur(double quantite);
