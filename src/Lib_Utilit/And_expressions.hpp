// Expressions in brackets: + - * / **, functions, variables, strings; several values separated by commas.
#pragma once

#include "And_langage.hpp"

/// Analyses an expression whose "(" has just been read, up to its ")", and appends its values to FILE
/// `niveau`. The terms come from the data file (source 0) or from PREFILE `niveau` (source 2); it may run
/// over several lines. A string that results becomes a name.
and_resultat and_analyse_liste_expressions(int source, int niveau);
