#include "UTL_02_decoupe.hpp"

#include <algorithm>
#include <cstddef>

#include "Arithmetique.hpp"
#include "UTL_02_Ecriture_Resu.hpp"

using namespace socle;

namespace {

constexpr std::size_t nb_max_partiels = 10;

std::vector<int> loc_largeurs(const utl_01_type_tableau& tableau) {
  static constexpr texte<80> blancs;
  const auto nb_colonnes = static_cast<std::size_t>(tableau.nb_colonnes());
  std::vector<int> largeurs(nb_colonnes, 0);
  for (std::size_t i = 0; i < tableau.tableau.size(); i += nb_colonnes)
    for (std::size_t j = 0; j < nb_colonnes; ++j) {
      // One comparison settles nearly all cells: a cell that is blank beyond the width found so far.
      const auto largeur = static_cast<std::size_t>(largeurs[j]);
      const std::string_view cellule = tableau.tableau[i + j].entier();
      if (cellule.substr(largeur) == blancs.entier().substr(largeur)) continue;
      largeurs[j] = static_cast<int>(sans_blancs_finals(cellule).size());
    }
  return largeurs;
}

/// Columns are taken in order as long as they stay within the line, one at least; the tenth partial table
/// takes all that are left, so that nothing is lost.
std::vector<utl_02_tableau_partiel> loc_calcul_nb_tableaux_partiels(const std::vector<int>& largeurs,
                                                                    int colonnes_info) {
  const auto nb_colonnes = static_cast<int>(largeurs.size());
  const int info = colonnes_info < 0 || colonnes_info >= nb_colonnes ? 0 : colonnes_info;
  const auto place = [&](int colonne) { return largeurs[indice(colonne)] + utl_02.glb_lg_separation; };
  const int limite = utl_02.glb_lg_ligne - 4;
  int place_info = 0;
  for (int j = 1; j <= info; ++j) place_info += place(j);

  std::vector<utl_02_tableau_partiel> partiels;
  int j = info + 1;
  do {
    utl_02_tableau_partiel p{.colonnes_info = info, .premiere = j, .derniere = j - 1};
    const bool dernier = partiels.size() + 1 == nb_max_partiels;
    for (int total = place_info;
         j <= nb_colonnes && (dernier || p.derniere < p.premiere || total + place(j) <= limite); ++j) {
      total += place(j);
      p.derniere = j;
    }
    partiels.push_back(p);
  } while (j <= nb_colonnes);
  return partiels;
}

}  // namespace

utl_02_decoupe utl_02_decouper_tableau(const utl_01_type_tableau& tableau, int colonnes_info) {
  utl_02_decoupe d;
  d.largeurs = loc_largeurs(tableau);
  d.partiels = loc_calcul_nb_tableaux_partiels(d.largeurs, colonnes_info);
  return d;
}
