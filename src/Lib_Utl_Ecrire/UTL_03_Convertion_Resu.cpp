#include "UTL_03_Convertion_Resu.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include "Edition.hpp"

using namespace socle;

namespace {

constexpr int largeur_entier = 11;  // the longest integer, sign included
constexpr int largeur_reel_fixe = 40;
constexpr G forme_reel{15, 5};

constexpr bool loc_est_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }

/// Copies a table with its first cell at this place of the other.
void loc_poser(const utl_01_type_tableau& source, utl_01_type_tableau& cible, int ligne, int colonne) {
  for (int i = 1; i <= source.nb_lignes(); ++i)
    for (int j = 1; j <= source.nb_colonnes(); ++j)
      cible.cellule(ligne + i - 1, colonne + j - 1) = source.cellule(i, j);
}

enum class sens { l_un_sous_l_autre, cote_a_cote };

utl_01_type_tableau loc_fusionner(std::span<const utl_01_type_tableau* const> tableaux, sens s,
                                  std::optional<int> contour, vue_l1 titre) {
  int lignes = 0;
  int colonnes = 0;
  for (const utl_01_type_tableau* const t : tableaux) {
    const bool empile = s == sens::l_un_sous_l_autre;
    lignes = empile ? lignes + t->nb_lignes() : std::max(lignes, t->nb_lignes());
    colonnes = empile ? std::max(colonnes, t->nb_colonnes()) : colonnes + t->nb_colonnes();
  }
  utl_01_type_tableau fusion(lignes, colonnes);
  if (!tableaux.empty()) {
    fusion.contour_tableau = contour.value_or(tableaux.front()->contour_tableau);
    fusion.titre_tableau = titre.octets().empty() ? tableaux.front()->titre_tableau : texte<300>(titre);
  }
  int ligne = 1;
  int colonne = 1;
  for (const utl_01_type_tableau* const t : tableaux) {
    loc_poser(*t, fusion, ligne, colonne);
    if (s == sens::l_un_sous_l_autre)
      ligne += t->nb_lignes();
    else
      colonne += t->nb_colonnes();
  }
  return fusion;
}

}  // namespace

void utl_03_caractere_interdit_html(std::string& texte) {
  if (std::all_of(texte.begin(), texte.end(), loc_est_ascii)) return;
  std::string resultat;
  resultat.reserve(2 * texte.size());
  for (const char c : texte) {
    if (loc_est_ascii(c))
      resultat += c;
    else
      ((resultat += "&#") += std::to_string(static_cast<unsigned char>(c))) += ';';
  }
  texte = std::move(resultat);
}

void utl_03_convertir_tableau_i_txt(std::span<const int> tableau_i, std::span<texte<80>> tableau_txt,
                                    std::optional<int> opt_longueur) {
  const I forme{opt_longueur.value_or(largeur_entier)};
  const std::size_t nb = std::min(tableau_i.size(), tableau_txt.size());
  for (std::size_t i = 0; i < nb; ++i) tableau_txt[i] = ajuste_gauche(edite(forme, tableau_i[i]));
}

void utl_03_convertir_tableau_dp_txt(std::span<const double> tableau_dp, std::span<texte<80>> tableau_txt,
                                     vue_l1 opt_fmt, std::optional<int> opt_i_fmt) {
  const std::optional<format> forme = lire_format(opt_fmt);
  const auto texte_de = [&](double v) {
    if (forme) return edite(*forme, v);
    if (opt_i_fmt) return edite(F{largeur_reel_fixe, std::max(*opt_i_fmt, 0)}, v);
    return edite(forme_reel, v);
  };
  const std::size_t nb = std::min(tableau_dp.size(), tableau_txt.size());
  for (std::size_t i = 0; i < nb; ++i) tableau_txt[i] = ajuste_gauche(texte_de(tableau_dp[i]));
}

void utl_03_fusion_laterale_tab(const utl_01_type_tableau& obj_tab_1, const utl_01_type_tableau& obj_tab_2,
                                utl_01_type_tableau& obj_tab_fusion, std::optional<int> opt_contour_tab,
                                vue_l1 opt_titre) {
  const std::array tableaux = {&obj_tab_1, &obj_tab_2};
  obj_tab_fusion = loc_fusionner(tableaux, sens::cote_a_cote, opt_contour_tab, opt_titre);
}

void utl_03_fusion_horizontale_tab(const utl_01_type_tableau& obj_tab_1, const utl_01_type_tableau& obj_tab_2,
                                   utl_01_type_tableau& obj_tab_fusion, std::optional<int> opt_contour_tab,
                                   vue_l1 opt_titre) {
  const std::array tableaux = {&obj_tab_1, &obj_tab_2};
  obj_tab_fusion = loc_fusionner(tableaux, sens::l_un_sous_l_autre, opt_contour_tab, opt_titre);
}

void utl_03_fusion_multiple(std::span<const utl_01_type_tableau> tab_obj_tab, int dimen,
                            utl_01_type_tableau& obj_tab_fusion) {
  std::vector<const utl_01_type_tableau*> tableaux;
  for (const utl_01_type_tableau& t : tab_obj_tab) tableaux.push_back(&t);
  obj_tab_fusion =
      loc_fusionner(tableaux, dimen == 1 ? sens::l_un_sous_l_autre : sens::cote_a_cote, std::nullopt, "");
}
