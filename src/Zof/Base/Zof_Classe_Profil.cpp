#include "Zof_Classe_Profil.hpp"

#include "Zof_Classe_commun.hpp"

zof_profil& zof_pt_profil(uef_vector_element& element) {
  return zof_element<zof_profil>(element, "Zof_Pt_Profil : Cas impossible");
}
zof_profil zof_cp_profil(const uef_vector_element& element) {
  return zof_element<zof_profil>(element, "Zof_Pt_Profil : Cas impossible");
}

zof_profil get_profil(const uef_vector& vecteur_profils, int numero_profil) {
  return zof_chercher<zof_profil>(vecteur_profils, &zof_profil::m_numero_profil, numero_profil);
}

void zof_supprimer_profil(uef_vector& vecteur_profils, int numero_profil) {
  zof_supprimer<zof_profil>(vecteur_profils, &zof_profil::m_numero_profil, numero_profil,
                            " Zof_Supprimer_Profil : Profil incorrect :");
}
