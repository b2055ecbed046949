#pragma once
// Pieces of the data that several analyses read alike.

#include "Texte.hpp"

/// A word: YES is `oui`, no is NON_; any other is refused.
void zof_lire_choix(socle::mot_clef oui, bool& choix, bool& erco);
