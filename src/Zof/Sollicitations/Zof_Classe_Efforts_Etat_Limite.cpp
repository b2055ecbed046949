#include "Zof_Classe_Efforts_Etat_Limite.hpp"

zof_efforts_etat_limite::zof_efforts_etat_limite(const zof_efforts_etat_limite& autre)
    : uef_element<zof_efforts_etat_limite>(autre),
      m_nom_section(autre.m_nom_section),
      m_label_etat_limite(autre.m_label_etat_limite),
      m_label_situation(autre.m_label_situation),
      m_etat_limite_pondere(autre.m_etat_limite_pondere) {
  m_les_efforts.transferer(autre.m_les_efforts);
  m_les_phases.transferer(autre.m_les_phases);
}
