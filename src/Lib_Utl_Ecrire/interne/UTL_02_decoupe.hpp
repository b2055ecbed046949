// How a table is cut into partial tables when it is wider than a line of the text note. Both notes are cut
// alike.
#pragma once

#include <vector>

#include "Arithmetique.hpp"
#include "UTL_01_Types.hpp"

/// Columns of a partial table, from 1: those of the start that repeat, then a run of others.
struct utl_02_tableau_partiel {
  int colonnes_info = 0;
  int premiere = 1;
  int derniere = 0;

  [[nodiscard]] int nb_colonnes() const { return colonnes_info + derniere - premiere + 1; }
  /// Column of the whole table that stands at this position of the partial one.
  [[nodiscard]] int colonne(int position) const {
    return position <= colonnes_info ? position : premiere + position - colonnes_info - 1;
  }
};

struct utl_02_decoupe {
  std::vector<int> largeurs;  // greatest length in each column, blanks at the end aside
  std::vector<utl_02_tableau_partiel> partiels;

  [[nodiscard]] int largeur(int colonne) const { return largeurs[socle::indice(colonne)]; }
};

utl_02_decoupe utl_02_decouper_tableau(const utl_01_type_tableau& tableau, int colonnes_info);
