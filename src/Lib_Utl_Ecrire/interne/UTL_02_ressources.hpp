// Files that stand beside the program and whose lines are copied into the notes: styles, script, cover pages.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Texte.hpp"

/// Lines of the file, from the first of these directories that has it: ../exe/, the current one, the
/// program's own, the one named in Chemin_appli.txt. Nothing if none has it.
std::optional<std::vector<std::string>> utl_02_lire_ressource(socle::vue_l1 nom);
