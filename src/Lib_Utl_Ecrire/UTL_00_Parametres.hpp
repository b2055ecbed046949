// Title of a module of the program, as a list beside the program may give it.
#pragma once

#include "Texte.hpp"

/// The one module of this program.
inline constexpr int utl_00_module_zof = 1;

/// Title of the module in the list "..\EXE\UTL_Liste_Module.txt": one line per module, its number in the
/// first four columns, the title behind it; 100 lines at most count. Without the list the console gets "==>
/// Liste des modules introuvable."; a module that no line names has the title of the program if it is the
/// program's own one, and no title otherwise.
void utl_00_lire_titre_module(int numero_module, socle::texte<300>& titre_module);
