// Command errors and internal faults: every message goes to the console and to the error listing, in this
// order.
//
// `erco` says that a command error was met; the first message of a run is preceded by "Erreur de commande :
// ", which is left out while `erco` is already true. The first command error ends the run: a handler returns
// at once with `erco` true.
#pragma once

#include <cstddef>

#include "Systeme.hpp"
#include "Texte.hpp"
#include "Zof_Utilit.hpp"

struct zof_erreurs_t {
  socle::sortie* zof_unite_erreurs =
      nullptr;  // the error listing; null: not open yet, what goes there is dropped
};
extern zof_erreurs_t zof_erreurs;
void zof_erreurs_reinitialiser();

/// One line on the console and in the error listing.
void zof_ecrire_message(socle::vue_l1 ligne);

/// "     - " and the message, trimmed on the right.
void zof_erreur_commande(socle::vue_l1 message, bool& erco);

/// A word that the context doesn't allow; a keyword is shown in its full length.
void zof_attribut_incorrect(socle::vue_l1 attribut, bool& erco);
template <std::size_t N>
void zof_attribut_incorrect(const socle::texte<N>& attribut, bool& erco) {
  zof_attribut_incorrect(socle::vue_l1(attribut.entier()), erco);
}

/// A command error with this message if the assertion is false; the message as it stands.
void zof_assert_commande(bool assertion, socle::vue_l1 message, bool& erco);

/// At the end of a block: an obligatory value that isn't given is an error.
void zof_assert_renseigne(bool renseigne, socle::vue_l1 nom_valeur, bool& erco);
inline void zof_assert_renseigne_integer(int valeur, socle::vue_l1 nom_valeur, bool& erco) {
  zof_assert_renseigne(est_renseigne_integer(valeur), nom_valeur, erco);
}
inline void zof_assert_renseigne_double(double valeur, socle::vue_l1 nom_valeur, bool& erco) {
  zof_assert_renseigne(est_renseigne_double(valeur), nom_valeur, erco);
}
template <std::size_t N>
void zof_assert_renseigne_chaine(const socle::texte<N>& valeur, socle::vue_l1 nom_valeur, bool& erco) {
  zof_assert_renseigne(est_renseigne_chaine(valeur), nom_valeur, erco);
}

/// A keyword given twice in a block, told before its value is stored: by a flag, or by a field that is given
/// already. The dash stands two columns further to the right for the flag and for texts.
void zof_non_repetition_mot_clef(bool repetition, socle::vue_l1 mot, bool& erco);
template <std::size_t N>
void zof_non_repetition_chaine(socle::vue_l1 mot, const socle::texte<N>& v, bool& erco) {
  zof_non_repetition_mot_clef(est_renseigne_chaine(v), mot, erco);
}
void zof_non_repetition_double(socle::vue_l1 mot, double v, bool& erco);
void zof_non_repetition_integer(socle::vue_l1 mot, int v, bool& erco);

/// A warning: the run goes on.
void zof_message_avertissement(socle::vue_l1 message);

/// A state that no data can lead to: the message as it stands; the run stops with status 1, the notes left
/// open.
void zof_assert(bool assertion, socle::vue_l1 message);

/// Stops the run with status 1, the notes left open.
[[noreturn]] void zof_arret();
