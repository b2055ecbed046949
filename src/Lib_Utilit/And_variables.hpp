// Variables of the data language: the global ones, which keep their values to the end of the run, and those
// of the levels of a directed list. Values stand in LISTE VARIABLE, each assignment in a place of its own.
#pragma once

#include "And_global.hpp"

/// < NAME = value >, from the name on, which is the current term. It leaves no term; a fault is an error term
/// in FILE 1.
void and_analyse_affectation();

/// The value of the variable whose name is the current term becomes the current term, with the text that was
/// typed. Seen from FILE `niveau` of a directed list: the variables of that level and up, then the global
/// ones. false, with and_message, if there is none.
bool and_action_variable(int niveau);

/// How many values the variable of the directed list in progress, named by a string, has taken so far; false
/// if there is none of that name.
bool and_nb_valeurs_prises(const and_terme_t& chaine, int& compte);

/// The value that the variable in this slot, from 1, points to becomes the current term.
void and_valeur_de_variable(int position);
