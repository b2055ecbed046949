#pragma once
// The block of a prestressing steel in the command MATE, its situation blocks, and its report.

#include "Zof_Classe_Materiau_Precontrainte_EC.hpp"

/// Reads the block of a prestressing steel up to FIN_MATE, then makes the situations that it left out.
void zof_decoder_materiau_precontrainte_ec(zof_materiau_precontrainte_ec& materiau, bool& erco);

/// Reads a situation block up to FIN_SITU and makes its laws.
void zof_decoder_situation_precontrainte_ec(zof_situation_precontrainte_ec& situation, bool& erco);

/// Adds the situation of this kind with the values by default, and makes its laws.
void zof_creer_situation_precontrainte(zof_materiau_precontrainte_ec& materiau, int type_situation);

void zof_editer_materiau_precontrainte_ec(const zof_materiau_precontrainte_ec& materiau, bool& erco);
void zof_editer_situation_precontrainte_ec(const zof_situation_precontrainte_ec& situation, bool& erco);
