#include "Zof_Classe_Cable.hpp"

#include "Zof_Classe_commun.hpp"

zof_cable& zof_pt_cable(uef_vector_element& element) {
  return zof_element<zof_cable>(element, "Zof_Pt_Cable : Cas impossible");
}
zof_cable zof_cp_cable(const uef_vector_element& element) {
  return zof_element<zof_cable>(element, "Zof_Pt_Cable : Cas impossible");
}

void zof_supprimer_cable(uef_vector& vecteur_cables, int numero_cable) {
  zof_supprimer<zof_cable>(vecteur_cables, &zof_cable::m_numero_cable, numero_cable,
                           " Zof_Supprimer_Cable : Cable incorrect :");
}
