#pragma once
// The block of a concrete in the command MATE, its situation blocks, and its report.

#include "Zof_Classe_Materiau_Beton_EC.hpp"

/// Reads the block of a concrete up to FIN_MATE, then makes the situations that it left out.
void zof_decoder_materiau_beton_ec(zof_materiau_beton_ec& materiau, bool& erco);

/// Reads a situation block up to FIN_SITU and makes its laws.
void zof_decoder_situation_beton_ec(zof_situation_beton_ec& situation, bool& erco);

/// Adds the situation of this kind with the values by default, and makes its laws.
void zof_creer_situation_beton(zof_materiau_beton_ec& materiau, int type_situation);

void zof_editer_materiau_beton_ec(const zof_materiau_beton_ec& materiau, bool& erco);
void zof_editer_situation_beton_ec(const zof_situation_beton_ec& situation, bool& erco);
