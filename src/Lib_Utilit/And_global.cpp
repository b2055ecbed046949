#include "And_global.hpp"

and_global_t and_global;
void and_global_reinitialiser() { and_global = {}; }
