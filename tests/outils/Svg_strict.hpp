// A strict reader of the drawings: what a viewer forgives is a fault here.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

struct element_svg {
  std::string nom;
  std::map<std::string, std::string> attributs;
  std::string texte;  // references decoded, Latin-1

  /// Number of an attribute; NaN if it is missing or is no number.
  [[nodiscard]] double nombre(const std::string& attribut) const;
};

/// Elements in their order, the first one is svg. Empty if the file is not well-formed.
std::vector<element_svg> elements_svg(std::string_view svg);

/// Faults of a drawing, none if it is sound:
///   (1) the declaration, the document type of SVG 1.1 and the head, one line each; the end is the last line
///   (2) well-formed, ASCII alone, of svg, rect, line, path, circle and text, with their attributes and no
///   other (3) every number is finite and decimal, every colour from 0 to 255
std::vector<std::string> fautes_svg(std::string_view svg);

struct boite {
  double gauche = 0, haut = 0, droite = 0, bas = 0;
  std::string texte;
};
/// The boxes of the texts, rims apart, estimated from their size.
std::vector<boite> boites_textes(std::string_view svg);
/// Texts that cover one another or leave the window.
std::vector<std::string> textes_genes(std::string_view svg);
