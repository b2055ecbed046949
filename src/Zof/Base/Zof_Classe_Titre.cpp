#include "Zof_Classe_Titre.hpp"

#include "Zof_Classe_commun.hpp"

zof_titre& zof_pt_titre(uef_vector_element& element) {
  return zof_element<zof_titre>(element, "Zof_Pt_Titre : Cas impossible");
}
zof_titre zof_cp_titre(const uef_vector_element& element) {
  return zof_element<zof_titre>(element, "Zof_Pt_Titre : Cas impossible");
}
