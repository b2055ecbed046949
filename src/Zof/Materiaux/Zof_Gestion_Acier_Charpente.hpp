#pragma once
// The block of a structural steel in the command MATE, its situation blocks, its laws, and its report.

#include "Texte.hpp"
#include "Zof_Classe_Materiau_Acier_Charpente.hpp"

/// Reads the block of a structural steel up to FIN_MATE, then makes the situations that it left out.
void zof_decoder_materiau_acier_charpente(zof_materiau_acier_charpente& materiau, bool& erco);

/// Reads a situation block up to FIN_SITU and makes its laws.
void zof_decoder_situation_acier_charpente(zof_situation_acier_charpente& situation, bool& erco);

/// Adds the situation of this kind with the values by default, and makes its laws.
void zof_creer_situation_acier_charpente(zof_materiau_acier_charpente& materiau, int type_situation);

/// Strengths, modulus, partial factor and ultimate strains by default (EN 1993-1-1 3.2.2, 3.2.6, 6.1).
void zof_affectation_coefficients_charpente_ec(zof_situation_acier_charpente& situation);

/// All laws of the situation, those of service where there are some, then the ultimate one.
void zof_creer_lois_acier_charpente(zof_situation_acier_charpente& situation);

/// Elastic properties, then elastic laws up to the stress limits, cracked and not cracked alike: none in
/// ACCIDENT and SEISME.
void zof_creer_lois_acier_charpente_els_ec(zof_situation_acier_charpente& situation);

/// The ultimate law of the kind that the situation names; another kind ends the run.
void zof_creer_lois_acier_charpente_elu_ec(zof_situation_acier_charpente& situation);
void zof_creer_lois_acier_charpente_bilineaires_ec_elu(zof_situation_acier_charpente& situation);
void zof_creer_lois_acier_charpente_plastique_parfait_ec_elu(zof_situation_acier_charpente& situation);
void zof_creer_loi_acier_charpente_bilineaire_ec_elu(zof_situation_acier_charpente& situation,
                                                     const socle::texte<32>& label_loi);
void zof_creer_loi_acier_charpente_plastique_parfaite_ec_elu(zof_situation_acier_charpente& situation,
                                                             const socle::texte<32>& label_loi);

void zof_editer_materiau_acier_charpente(const zof_materiau_acier_charpente& materiau, bool& erco);
void zof_editer_situation_acier_charpente(const zof_situation_acier_charpente& situation, bool& erco);
