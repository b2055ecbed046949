// Small operations of the object vocabulary: internal faults, warnings, counters.
#pragma once

#include "Texte.hpp"

/// An internal fault when the assertion is false: the message on the console, and the run ends with status 0.
void uef_assert(bool assertion, socle::vue_l1 message);

/// "Avertissement:" and the message on the console; the run goes on.
void uef_avertissement(socle::vue_l1 message);

/// Adds 1 to v and gives the new value.
constexpr int uef_pp(int& v) { return ++v; }
