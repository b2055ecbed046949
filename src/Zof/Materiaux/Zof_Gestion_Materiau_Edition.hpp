#pragma once
// What the reports of all kinds of materials write in the same way.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Texte.hpp"
#include "Zof_Classe_Materiau.hpp"

/// Title of level 2: the material's name and title.
void zof_editer_titre_materiau(const zof_materiau& materiau);

/// The reports of the material's situations, in their order.
void zof_editer_situations(const zof_materiau& materiau, bool& erco);

/// Title of level 3: the situation's label.
void zof_editer_titre_situation(const zof_situation_materiau& situation);

/// One line of a report.
struct ligne_edition {
  std::string_view intitule;
  std::string valeur;
};
ligne_edition zof_ligne_double(std::string_view intitule, double valeur);
ligne_edition zof_ligne_oui_non(std::string_view intitule, bool valeur);
ligne_edition zof_ligne_type_loi(std::string_view intitule, int type_loi);

/// The lines as a bullet list.
void zof_editer_puces(const std::vector<ligne_edition>& lignes);

/// The law of one limit state: title of level 4, and a table of its points and limits by rising strain.
void zof_editer_loi_etat_limite(int num_materiau, const zof_etat_limite& etat_limite);

/// The laws of all limit states of the situation, in the order of their creation.
void zof_editer_lois_situation(const zof_situation_materiau& situation);
