#pragma once
// The block of a reinforcing steel in the command MATE, its situation blocks, and its report.

#include "Zof_Classe_Materiau_Acier_EC.hpp"

/// Reads the block of a reinforcing steel up to FIN_MATE, then makes the situations that it left out.
void zof_decoder_materiau_acier_ec(zof_materiau_acier_ec& materiau, bool& erco);

/// Reads a situation block up to FIN_SITU and makes its laws.
void zof_decoder_situation_acier_ec(zof_situation_acier_ec& situation, bool& erco);

/// Adds the situation of this kind with the values by default, and makes its laws.
void zof_creer_situation_acier(zof_materiau_acier_ec& materiau, int type_situation);

void zof_editer_materiau_acier_ec(const zof_materiau_acier_ec& materiau, bool& erco);
void zof_editer_situation_acier_ec(const zof_situation_acier_ec& situation, bool& erco);
