#include "Zof_Classe_Effort.hpp"

zof_effort::zof_effort(const zof_effort& autre)
    : uef_element<zof_effort>(autre),
      m_titre(autre.m_titre),
      m_nom_section(autre.m_nom_section),
      m_label_effort(autre.m_label_effort),
      m_nom_zone_repere_brut(autre.m_nom_zone_repere_brut),
      m_n(autre.m_n),
      m_my(autre.m_my),
      m_mz(autre.m_mz),
      m_pt_phase_courante(autre.m_pt_phase_courante),
      m_numero_phase(autre.m_numero_phase) {
  if (autre.m_les_tensions.nombre() > 0) m_les_tensions.transferer(autre.m_les_tensions);
}

void zof_effort::set_efforts(const efforts& f) {
  m_n = f.n;
  m_my = f.my;
  m_mz = f.mz;
}
