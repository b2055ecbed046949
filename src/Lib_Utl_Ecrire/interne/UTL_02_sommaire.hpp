// The list of titles: their numbers while the notes are written, the summary at the end of the HTML note.
#pragma once

#include <string>
#include <string_view>

#include "UTL_02_composition.hpp"

/// Whether a title of this level enters the summary.
bool utl_02_est_dans_sommaire(int niveau);

/// Adds a title to the summary. The text that the notes show: its number, if titles are numbered, one blank,
/// the title.
std::string utl_02_memoriser_sommaire(std::string_view titre, int niveau);

/// Summary with levels that open and close, and its menu bar.
void utl_02_ecrire_sommaire_dynamique_html(composition& note);
/// Summary without script.
void utl_02_ecrire_sommaire_html(composition& note);
