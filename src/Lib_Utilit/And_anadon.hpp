// What the commands call to read their data: finished terms, one after the other.
//
// `erco` is set to false on entry, whatever it was, and left true on a bad term after its messages on the
// console. A handler tests it after each read and returns. On a refusal the output is 0 or blank.
#pragma once

#include <cstddef>
#include <string_view>

#include "And_global.hpp"
#include "Texte.hpp"

/// Any term: it becomes the current term of `and_global`.
void and_lire_terme(bool& erco);

void and_lire_entier(int& entier, bool& erco);

/// An integer, a single or a double, widened to double: 0.1 in the data is 0.100000001490116.
void and_lire_reel_d(double& reel, bool& erco);

/// The way to read a keyword: a name in upper case, cut to `lgmax` characters.
template <std::size_t N>
void and_lire_deb_nom(socle::texte<N>& mot, int lgmax, bool& erco);

/// A name of at most `lgmax` characters, in upper case.
template <std::size_t N>
void and_lire_nom(socle::texte<N>& nom, int lgmax, bool& erco);

/// A string of at most `lgmax` characters, without its quotes; `lg` is its length. An empty string is one
/// blank.
template <std::size_t N>
void and_lire_chaine(socle::texte<N>& chaine, int lgmax, int& lg, bool& erco);

/// A line end or ";": only where `and_mode_delimiteur` lets them through.
void and_lire_delimiteur(bool& erco);

/// The last term read will be served again; a second call before a read has no further effect.
void and_relire_donnee();

/// Tables and modes to their defaults, all queues empty but the one of the variables, the lexeme reader at
/// its start.
void and_initialiser_anadon();

/// Empties the queue of the variables.
void and_initialiser_variables();

/// After a wrong term: tells the end of the file apart, which stops the run with status 0; otherwise drops
/// all that was read and the rest of the line. Modes, channels and variables stay.
void and_erreur_donnee(and_operation operation);

/// Views of the term just read; what the templates above are made of.
std::string_view and_obtenir_deb_nom(std::size_t lgmax, bool& erco);
std::string_view and_obtenir_nom(std::size_t lgmax, bool& erco);
std::string_view and_obtenir_chaine(std::size_t lgmax, bool& erco);

template <std::size_t N>
void and_lire_deb_nom(socle::texte<N>& mot, int lgmax, bool& erco) {
  mot = and_obtenir_deb_nom(static_cast<std::size_t>(lgmax), erco);
}
template <std::size_t N>
void and_lire_nom(socle::texte<N>& nom, int lgmax, bool& erco) {
  nom = and_obtenir_nom(static_cast<std::size_t>(lgmax), erco);
}
template <std::size_t N>
void and_lire_chaine(socle::texte<N>& chaine, int lgmax, int& lg, bool& erco) {
  const std::string_view lue = and_obtenir_chaine(static_cast<std::size_t>(lgmax), erco);
  lg = static_cast<int>(lue.size());
  chaine = lue;
}
