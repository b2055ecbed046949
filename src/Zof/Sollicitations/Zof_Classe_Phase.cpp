#include "Zof_Classe_Phase.hpp"

zof_phase::zof_phase(const zof_phase& autre)
    : uef_element<zof_phase>(autre),
      m_le_titre_phase(autre.m_le_titre_phase),
      m_numero_phase(autre.m_numero_phase) {
  m_les_noms_zones_actives.transferer(autre.m_les_noms_zones_actives);
}
