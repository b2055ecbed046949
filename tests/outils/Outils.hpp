// What the tests share: the status of a stop, data from outside in CSV files, Latin-1 literals.
#pragma once

#include <fstream>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "Arret.hpp"
#include "Systeme.hpp"
#include "Systeme_memoire.hpp"
#include "Texte.hpp"

/// Exit status with which the operation stops the run; nothing if it comes back.
template <class operation>
std::optional<int> statut_d_arret(operation&& o) {
  try {
    o();
  } catch (const socle::arret& a) {
    return a.statut;
  }
  return std::nullopt;
}

/// A table of values from outside: lines that begin with # say where they come from, the first other line
/// names the columns.
struct table_csv {
  std::vector<std::string> colonnes;
  std::vector<std::vector<std::string>> lignes;

  [[nodiscard]] std::size_t colonne(const std::string& nom) const {
    for (std::size_t i = 0; i < colonnes.size(); ++i)
      if (colonnes[i] == nom) return i;
    throw std::runtime_error("no column " + nom);
  }
  [[nodiscard]] const std::string& texte(std::size_t ligne, const std::string& nom) const {
    return lignes.at(ligne).at(colonne(nom));
  }
  [[nodiscard]] double reel(std::size_t ligne, const std::string& nom) const {
    return std::stod(texte(ligne, nom));
  }
};

/// Reads tests/donnees/<nom>; fields may stand in double quotes. A file that is missing or empty is an error.
table_csv lire_csv(const std::string& chemin);
