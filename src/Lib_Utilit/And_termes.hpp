// Terms as the data language makes and reads them: numbers without text, the text of a string.
#pragma once

#include <cstddef>
#include <string_view>

#include "And_global.hpp"

/// A number that was worked out; its text comes when it is listed.
and_terme_t and_entier(int valeur);
and_terme_t and_simple(float valeur);
and_terme_t and_double(double valeur);
/// The value in one of the three types; an integer is truncated, a single narrowed.
and_terme_t and_de_type(type_terme type, double valeur);
/// A string with its quotes, of at most and_lg_chaine characters.
and_terme_t and_chaine(std::string_view avec_quotes);

/// The number, widened.
double and_valeur(const and_terme_t& nombre);

/// The current term, to be assigned as a whole.
inline and_terme_t& and_terme_courant() { return and_global; }
/// Its text.
inline std::string_view and_texte(const and_terme_t& t) {
  return t.and_var_chaine.entier().substr(0, static_cast<std::size_t>(t.and_lg_terme));
}
/// The name that is the current term, in upper case.
void and_mettre_nom_en_majuscules();

/// What a string holds, and its length: without the quotes around it, one for two in a row inside; one blank
/// for an empty one.
std::size_t and_sans_quotes(std::string_view avec_quotes, lex_ligne& contenu);
/// The string that is the current term, without its quotes.
void and_dequoter_chaine_donnee();
