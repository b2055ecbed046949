#include "UTL_01_Types.hpp"

#include <algorithm>
#include <cassert>
#include <cstddef>

#include "Arithmetique.hpp"

using namespace socle;

namespace {

void loc_allouer(utl_01_type_tableau& objet, std::array<int, 2> dimensions) {
  objet.dim_alloc = {std::max(dimensions[0], 0), std::max(dimensions[1], 0)};
  const auto nb_lignes = static_cast<std::size_t>(objet.dim_alloc[0]);
  const auto nb_colonnes = static_cast<std::size_t>(objet.dim_alloc[1]);
  objet.tableau.assign(nb_lignes * nb_colonnes, texte<80>());
}

}  // namespace

utl_01_type_tableau::utl_01_type_tableau(int nb_lignes, int nb_colonnes, int contour)
    : contour_tableau(contour) {
  loc_allouer(*this, {nb_lignes, nb_colonnes});
}

void utl_01_type_tableau::remplir_ligne(int ligne, std::initializer_list<vue_l1> textes) {
  int colonne = 0;
  for (const vue_l1& t : textes) cellule(ligne, ++colonne) = t;
}

std::size_t utl_01_type_tableau::loc_position(int ligne, int colonne) const {
  assert(ligne <= nb_lignes() && colonne <= nb_colonnes());
  return indice(ligne) * static_cast<std::size_t>(nb_colonnes()) + indice(colonne);
}

void utl_01_set_tableau(utl_01_type_tableau& objet, const utl_01_valeurs_tableau& valeurs) {
  if (valeurs.opt_dim_alloc) loc_allouer(objet, *valeurs.opt_dim_alloc);
  if (valeurs.opt_tableau) {
    const std::size_t nb = std::min(objet.tableau.size(), valeurs.opt_tableau->size());
    std::copy_n(valeurs.opt_tableau->begin(), nb, objet.tableau.begin());
  }
  if (valeurs.opt_titre_tableau) objet.titre_tableau = *valeurs.opt_titre_tableau;
  if (valeurs.opt_contour_tableau) objet.contour_tableau = *valeurs.opt_contour_tableau;
}

void utl_01_get_tableau(const utl_01_type_tableau& objet, const utl_01_lecture_tableau& lecture) {
  if (lecture.opt_tableau != nullptr) *lecture.opt_tableau = objet.tableau;
  if (lecture.opt_titre_tableau != nullptr) *lecture.opt_titre_tableau = objet.titre_tableau;
  if (lecture.opt_contour_tableau != nullptr) *lecture.opt_contour_tableau = objet.contour_tableau;
  if (lecture.opt_dim_alloc != nullptr) *lecture.opt_dim_alloc = objet.dim_alloc;
}

void utl_01_recopier_tableau(const utl_01_type_tableau& obj_tab_1, utl_01_type_tableau& obj_tab_2) {
  obj_tab_2 = obj_tab_1;
}

bool utl_01_type_sommaire::hierarchie(int titre, int niveau) const {
  return tab_hierarchie_sommaire[indice(titre)] == niveau;
}

void utl_01_ini_sommaire(utl_01_type_sommaire& utl_str_sommaire) {
  utl_str_sommaire = {};
  utl_str_sommaire.tab_sommaire_initialise = true;
}

void utl_01_set_sommaire(utl_01_type_sommaire& utl_str_sommaire, const utl_01_valeurs_sommaire& valeurs) {
  const auto copier = [](const auto& source, auto& cible) {
    if (source) cible.assign(source->begin(), source->end());
  };
  copier(valeurs.opt_tab_hierarchie_sommaire, utl_str_sommaire.tab_hierarchie_sommaire);
  copier(valeurs.opt_tab_lib_sommaire, utl_str_sommaire.tab_lib_sommaire);
  copier(valeurs.opt_tab_numero_sommaire, utl_str_sommaire.tab_numero_sommaire);
  if (valeurs.opt_taille_sommaire) utl_str_sommaire.taille_sommaire = *valeurs.opt_taille_sommaire;
  if (valeurs.opt_profondeur_sommaire)
    utl_str_sommaire.profondeur_sommaire = *valeurs.opt_profondeur_sommaire;
  if (valeurs.opt_tab_sommaire_initialise)
    utl_str_sommaire.tab_sommaire_initialise = *valeurs.opt_tab_sommaire_initialise;
}

void utl_01_get_sommaire(const utl_01_type_sommaire& utl_str_sommaire,
                         const utl_01_lecture_sommaire& lecture) {
  const auto copier = [](const auto& source, auto* cible) {
    if (cible != nullptr) *cible = source;
  };
  copier(utl_str_sommaire.taille_sommaire, lecture.opt_taille_sommaire);
  copier(utl_str_sommaire.tab_hierarchie_sommaire, lecture.opt_tab_hierarchie_sommaire);
  copier(utl_str_sommaire.tab_lib_sommaire, lecture.opt_tab_lib_sommaire);
  copier(utl_str_sommaire.profondeur_sommaire, lecture.opt_profondeur_sommaire);
  copier(utl_str_sommaire.tab_sommaire_initialise, lecture.opt_tab_sommaire_initialise);
  copier(utl_str_sommaire.tab_numero_sommaire, lecture.opt_tab_numero_sommaire);
}
