#pragma once
// What the blocks of all kinds of zones share.

#include "Texte.hpp"
#include "Zof_Classe_Zone.hpp"

/// What the block of a zone has met so far, for the keywords that stand once and leave no trace in the zone.
struct bloc_zone {
  zof_zone* zone = nullptr;
  bool dimensionnable_lu = false;
};

/// Reads the name of a new zone of the section; one that exists is refused.
void zof_decoder_nom_zone(const zof_section& section, socle::texte<32>& nom, bool& erco);
