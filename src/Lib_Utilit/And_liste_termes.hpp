// List terms of the data language: a value, n * x, a A b, a A b INC s, a A b DIV n, a REP n INC s, where each
// number may be an expression in brackets.
#pragma once

#include "And_langage.hpp"

/// Analyses one list term and appends its values to FILE `file`, series compressed. The terms come from the
/// data file (classe 0, file 1) or from PREFILE `file` (classe 2), whose reading goes on where it stands; the
/// term behind the list is given back.
and_resultat and_analyse_liste_termes(int classe, int file);
