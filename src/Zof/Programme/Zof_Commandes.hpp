// The command loop, and the commands that need no module of their own: TITR, OPTI, EDIT.
#pragma once

#include "Texte.hpp"

/// Reads one command word at a time and hands over to its command, until FIN_ or the first error.
void zof_executer_commandes(bool& erco);

/// OPTI: sets one run-wide option; no end word closes it.
void zof_decoder_options(bool& erco);

/// EDIT: one word, what to describe in the notes.
void zof_editer(bool& erco);
