// What the blocks of all commands share: their title, their end.
#pragma once

#include "Texte.hpp"

/// After a handler's loop has ended on a word: reads that word again in up to 8 letters and wants it to be
/// this one. Any other word ends the run with status 1, the notes left open. Resets the error flag of the
/// reader: a handler that met an error returns before it.
void zof_controle_mot_fin(const socle::texte<8>& mot_attendu);

/// A title: one string of at most 80 characters.
void zof_decoder_titre(socle::texte<80>& titre, bool& erco);
