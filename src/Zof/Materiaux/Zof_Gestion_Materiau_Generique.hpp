#pragma once
// The block of a generic material in the command MATE: its situations, and in each the laws as polynomials of
// the strain, piece by piece. Compression positive, stresses in MPa.

#include <vector>

#include "Texte.hpp"
#include "Zof_Classe_Intervalle.hpp"
#include "Zof_Classe_Materiau_Generique.hpp"

/// A law as it is written: pieces in the order of their strains, and limits of the strain, each of which may
/// be left out.
struct loi_generique {
  std::vector<zof_intervalle> intervalles;
  double epsilon_min = socle::non_renseigne;
  double epsilon_max = socle::non_renseigne;
};

/// Reads the block of a generic material up to FIN_MATE. Situations that it leaves out do not exist.
void zof_decoder_materiau_generique(zof_materiau_generique& materiau, bool& erco);

/// Reads a situation block up to FIN_SITU; the elastic properties come behind its laws.
void zof_decoder_situation_materiau_generique(zof_situation_materiau_generique& situation, bool& erco);

/// Reads a law up to the next word in FIN_ and makes it the law of this limit state.
void zof_decoder_creer_loi(zof_situation_materiau_generique& situation,
                           const socle::texte<32>& label_etat_limite, bool& erco);

/// Reads a piece up to FIN_INTE.
void zof_decoder_intervalle_loi(zof_intervalle& intervalle, bool& erco);

/// Hands the law over to the section engine, which stops the run if its pieces do not follow one another
/// (ERR_DEF_LOI) or its limits enclose nothing (ERR_BORNES_LOI). A coefficient that is not given is zero.
void zof_creer_loi_materiau_generique(zof_situation_materiau_generique& situation,
                                      const socle::texte<32>& label_etat_limite, const loi_generique& loi);
