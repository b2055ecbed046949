// Numbers as text, by edit descriptors: edite(F{12, 4}, aire). Exact: the binary value is rounded half to
// even. A text that does not fit its width is asterisks; a leading zero goes first; -0.0000 keeps its sign;
// an exponent of three digits pushes out its letter.
#pragma once

#include <optional>
#include <string>

#include "Texte.hpp"

namespace socle {

struct I {  // integer
  int largeur;
};
struct F {  // fixed point
  int largeur, decimales;
};
struct E {  // 0.ddddE+xx; the letter D marks doubles
  int largeur, decimales;
  char lettre = 'E';
};
struct G {  // fixed with four blanks behind between 0.1 and 10^d, else E
  int largeur, decimales;
};

std::string edite(I f, int v);
std::string edite(F f, double v);
std::string edite(E f, double v);
std::string edite(G f, double v);
/// A single chooses its form by thresholds in single precision.
std::string edite(G f, float v);

/// An edit descriptor that is known at run time: F, E, D or G, its width and its decimals.
struct format {
  char lettre;
  int largeur, decimales;
};
/// Reads "(F8.3)", with or without brackets, in either case. Nothing if it is none of the four forms, or if
/// its width isn't from 1 to 64 or its decimals from 0 to 40.
std::optional<format> lire_format(vue_l1 descripteur);
std::string edite(const format& f, double v);

/// The text with its leading blanks moved to the end.
std::string ajuste_gauche(std::string v);

}  // namespace socle
