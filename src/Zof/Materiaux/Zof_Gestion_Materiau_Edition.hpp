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

/// The lines of a situation of steel that all steels have, in their order, with those of its own kind behind
/// the modulus and at the end.
template <class situation>
std::vector<ligne_edition> zof_lignes_situation_acier(const situation& s,
                                                      const std::vector<ligne_edition>& apres_module,
                                                      const std::vector<ligne_edition>& a_la_fin) {
  std::vector<ligne_edition> lignes = {
      zof_ligne_type_loi("Type loi ELS                        : ", s.m_type_loi_els),
      zof_ligne_type_loi("Type loi ELU                        : ", s.m_type_loi_elu),
      zof_ligne_double("Module_elasticite                   : ", s.m_module_elasticite),
  };
  const std::vector<ligne_edition> limites = {
      zof_ligne_double("Sigma_lim_traction_ELS_CAR          : ", s.m_sigma_lim_traction_els_car),
      zof_ligne_double("Sigma_lim_compression_ELS_CAR       : ", s.m_sigma_lim_compression_els_car),
      zof_ligne_double("Sigma_lim_traction_ELS_QP           : ", s.m_sigma_lim_traction_els_qp),
      zof_ligne_double("Sigma_lim_compression_ELS_QP        : ", s.m_sigma_lim_compression_els_qp),
      zof_ligne_double("Sigma_lim_traction_ELS_FRE          : ", s.m_sigma_lim_traction_els_fre),
      zof_ligne_double("Sigma_lim_compression_ELS_FRE       : ", s.m_sigma_lim_compression_els_fre),
      zof_ligne_double("Coefficient_partiel_ELU             : ", s.m_coefficient_partiel_elu),
      zof_ligne_double("Coefficient_contrainte_ult_BIL_ELU  : ", s.m_coefficient_contrainte_ult_bil_elu),
      zof_ligne_double("Coefficient_deformation_adm_BIL_ELU : ", s.m_coefficient_deformation_adm_bil_elu),
      zof_ligne_double("Epsilon_rupture_BIL_ELU             : ", s.m_epsilon_rupture_bil_elu),
  };
  for (const auto& suite : {apres_module, limites, a_la_fin})
    lignes.insert(lignes.end(), suite.begin(), suite.end());
  return lignes;
}

/// The lines as a bullet list.
void zof_editer_puces(const std::vector<ligne_edition>& lignes);

/// The law of one limit state: title of level 4, and a table of its points and limits by rising strain.
void zof_editer_loi_etat_limite(int num_materiau, const zof_etat_limite& etat_limite);

/// The laws of all limit states of the situation, in the order of their creation.
void zof_editer_lois_situation(const zof_situation_materiau& situation);
