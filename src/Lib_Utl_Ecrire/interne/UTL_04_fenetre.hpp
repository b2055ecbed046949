// From user to window coordinates, for all that draws; estimates of the room that a text takes.
#pragma once

#include <array>
#include <cstddef>

#include "UTL_04_Dessin.hpp"

/// A user point in the window: y grows upwards in the data and downwards in the file.
utl_04_point utl_04_globales(const utl_04_point& p);

/// Pixels that a text of so many characters takes in width: digits of a common sans serif have 0.56 to 0.64
/// of the size.
inline double utl_04_largeur_texte(std::size_t nombre, int taille_police) {
  return 0.62 * taille_police * static_cast<double>(nombre);
}

/// The range widened on both sides by a part of its length.
constexpr std::array<double, 2> utl_04_elargir(const std::array<double, 2>& v, double part) {
  const double marge = part * (v[1] - v[0]);
  return {v[0] - marge, v[1] + marge};
}
