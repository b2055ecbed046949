#include "Zof_Classe_Intervalle.hpp"

#include "Zof_Classe_commun.hpp"

zof_intervalle& zof_pt_intervalle(uef_vector_element& element) {
  return zof_element<zof_intervalle>(element, "Zof_Pt_Intervalle : Cas impossible");
}
zof_intervalle zof_cp_intervalle(const uef_vector_element& element) {
  return zof_element<zof_intervalle>(element, "Zof_Pt_Intervalle : Cas impossible");
}
