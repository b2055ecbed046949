// Constants of the command language.
#pragma once

#include <array>

#include "Texte.hpp"

/// Format of a point number in messages.
inline constexpr socle::texte<10> zof_par_format_numero_point{"(i5)"};

/// Kinds of a concrete's law, numbered from 1.
inline constexpr std::array<socle::texte<12>, 3> zof_par_type_loi_beton{"INSTANTANEE", "DIFFEREE",
                                                                        "PONDEREE"};
