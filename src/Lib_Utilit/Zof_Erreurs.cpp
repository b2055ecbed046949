#include "Zof_Erreurs.hpp"

#include "Arret.hpp"

using socle::concat;
using socle::vue_l1;

zof_erreurs_t zof_erreurs;
void zof_erreurs_reinitialiser() { zof_erreurs = {}; }

namespace {

/// The message behind the heading, which only the first error has.
void loc_erreur(vue_l1 ligne, bool& erco) {
  if (!erco) zof_ecrire_message("Erreur de commande : ");
  zof_ecrire_message(ligne);
  erco = true;
}

}  // namespace

void zof_ecrire_message(vue_l1 ligne) {
  socle::le_systeme().console().ligne(ligne);
  if (zof_erreurs.zof_unite_erreurs != nullptr) zof_erreurs.zof_unite_erreurs->ligne(ligne);
}

void zof_erreur_commande(vue_l1 message, bool& erco) {
  loc_erreur(concat({"     - ", socle::sans_blancs_finals(message.octets())}), erco);
}

void zof_attribut_incorrect(vue_l1 attribut, bool& erco) {
  zof_erreur_commande(concat({" Mot clef  ", attribut, " incorrect dans ce contexte"}), erco);
}

void zof_assert_commande(bool assertion, vue_l1 message, bool& erco) {
  if (!assertion) loc_erreur(concat({"     - ", message}), erco);
}

void zof_assert_renseigne(bool renseigne, vue_l1 nom_valeur, bool& erco) {
  if (!renseigne) loc_erreur(concat({"     - ", nom_valeur, ": non renseigne(e)"}), erco);
}

void zof_non_repetition_mot_clef(bool repetition, vue_l1 mot, bool& erco) {
  if (repetition) loc_erreur(concat({"       - Repetition interdite du mot clef:", mot}), erco);
}

void zof_non_repetition_double(vue_l1 mot, double v, bool& erco) {
  if (est_renseigne_double(v)) loc_erreur(concat({"     - Repetition interdite du mot clef:", mot}), erco);
}

void zof_non_repetition_integer(vue_l1 mot, int v, bool& erco) {
  if (est_renseigne_integer(v)) loc_erreur(concat({"     - Repetition interdite du mot clef:", mot}), erco);
}

void zof_message_avertissement(vue_l1 message) {
  zof_ecrire_message(concat({"     - ATTENTION :", socle::sans_blancs_finals(message.octets())}));
}

void zof_assert(bool assertion, vue_l1 message) {
  if (assertion) return;
  zof_ecrire_message(message);
  zof_ecrire_message(" ARRET PREMATURE : PREVENIR LE GESTIONNAIRE");
  socle::arreter(1);
}

void zof_arret() {
  zof_ecrire_message("ARRET PREMATURE DE ZOF");
  socle::arreter(1);
}
