#include "Zof_Classe_Efforts_Etat_Limite.hpp"

zof_efforts_etat_limite::zof_efforts_etat_limite(const zof_efforts_etat_limite& autre)
    : uef_element<zof_efforts_etat_limite>(autre),
      m_nom_section(autre.m_nom_section),
      m_label_etat_limite(autre.m_label_etat_limite),
      m_label_situation(autre.m_label_situation),
      m_etat_limite_pondere(autre.m_etat_limite_pondere) {
  m_les_efforts.transferer(autre.m_les_efforts);
  m_les_phases.transferer(autre.m_les_phases);
  // The efforts of the copy belong to the phases of the copy.
  for (int i = 1; i <= m_les_efforts.nombre(); ++i) {
    uef_pointage<zof_effort> effort{m_les_efforts, i};
    const int rang = effort->m_numero_phase;
    if (rang < 1 || rang > m_les_phases.nombre()) continue;
    effort->m_pt_phase_courante =
        &uef_comme<zof_phase>(*m_les_phases.case_element(rang).m_ptr_element, m_les_phases.label());
  }
}
