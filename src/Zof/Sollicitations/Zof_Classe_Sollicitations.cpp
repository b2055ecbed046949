#include "Zof_Classe_Sollicitations.hpp"

zof_sollicitations::zof_sollicitations(const zof_sollicitations& autre)
    : uef_element<zof_sollicitations>(autre),
      m_nom_section_sollicitations(autre.m_nom_section_sollicitations),
      m_titre(autre.m_titre),
      m_nom_section(autre.m_nom_section),
      m_type_repere(autre.m_type_repere),
      m_y(autre.m_y),
      m_z(autre.m_z),
      m_alpha(autre.m_alpha),
      m_est_precontrainte_iso_incluse(autre.m_est_precontrainte_iso_incluse),
      m_est_precontrainte_postendue(autre.m_est_precontrainte_postendue),
      m_est_phasee(autre.m_est_phasee),
      m_est_ponderation_surchargee(autre.m_est_ponderation_surchargee),
      m_ponderations_gpq12(autre.m_ponderations_gpq12) {
  m_les_efforts_etat_limite.transferer(autre.m_les_efforts_etat_limite);
}
