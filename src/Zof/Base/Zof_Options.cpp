#include "Zof_Options.hpp"

zof_options_t zof_options;

void zof_options_reinitialiser() { zof_options = {}; }
