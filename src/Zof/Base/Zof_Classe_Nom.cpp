#include "Zof_Classe_Nom.hpp"

#include "Zof_Classe_commun.hpp"

zof_nom& zof_pt_nom(uef_vector_element& element) {
  return zof_element<zof_nom>(element, "Zof_Pt_Nom : Cas impossible");
}
zof_nom zof_cp_nom(const uef_vector_element& element) {
  return zof_element<zof_nom>(element, "Zof_Pt_Nom : Cas impossible");
}

bool zof_existe_nom(const uef_vector& vecteur_noms, const socle::texte<32>& nom) {
  return zof_position<zof_nom>(vecteur_noms, &zof_nom::m_nom, nom) != 0;
}
