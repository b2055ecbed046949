#include "Zof_Classe_Double.hpp"

#include "Zof_Classe_commun.hpp"

zof_double& zof_pt_double(uef_vector_element& element) {
  return zof_element<zof_double>(element, "Zof_Pt_double : Cas impossible");
}
zof_double zof_cp_double(const uef_vector_element& element) {
  return zof_element<zof_double>(element, "Zof_Pt_double : Cas impossible");
}
