// The list forms: numbers as they were read become a compressed series.
#pragma once

#include <span>

#include "And_global.hpp"

enum class and_serie : int {
  une_valeur,
  plusieurs,
  refusee,     // the message is in and_message
  file_pleine  // no room for the series
};

/// Appends to FILE `file` what the form that the operator names makes of its numbers, in the order in which
/// they were read:
///   debut    x               the value
///   *        n * x           n copies
///   A        a A b           a, a + 1 or a - 1, ... and b itself; b alone when they are less than one apart
///   INC      a A b INC s     a, a + s, ... and b itself
///   DIV      a A b DIV n     n equal intervals: a, ... and b itself
///   rep_inc  a REP n INC s   a, a + s, ... a + n s: n + 1 values
/// a, b and s are of one type, n is an integer. At most 100000 steps. A value reached to within 1E-4 of a
/// step before the end is left out, for the end stands there itself.
and_serie and_developper_liste(int operateur, std::span<const and_terme_t> nombres, int file);
