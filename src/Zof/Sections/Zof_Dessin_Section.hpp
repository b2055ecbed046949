#pragma once
// The drawings of a section: an ordinary one, with axes, for the note; a large one with the numbers of the
// points.

#include "Zof_Classe_Section.hpp"

/// Draws a section whose extent is known (zof_emprise_section), in both sizes, and puts into the HTML note
/// the ordinary drawing and a link to the large one. A section without height or width is refused.
void zof_dessiner_section(const zof_section& section, bool& erco);
