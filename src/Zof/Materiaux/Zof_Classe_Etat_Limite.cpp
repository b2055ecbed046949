#include "Zof_Classe_Etat_Limite.hpp"

#include <array>
#include <typeinfo>

#include "Zof_Erreurs.hpp"

namespace {

constexpr std::array<socle::texte<32>, nombre_etats_limites> labels_etats_limites = {
    "MECA_BRUT", "MECA_NET",   "MECA_HOMOGENEISEE", "ELS_QP",      "ELS_FRE",     "ELS_CAR",
    "ELS_QP_NF", "ELS_FRE_NF", "ELS_CAR_NF",        "ELU_DURABLE", "ELU_ACCIDENT"};

}  // namespace

int zof_conversion_en_type_etat_limite(const socle::texte<32>& label_etat_limite) {
  int type = 0;
  for (const socle::texte<32>& label : labels_etats_limites) {
    ++type;
    if (label == label_etat_limite) return type;
  }
  zof_assert(false, " Zof_Conversion_en_type_etat_limite : Cas impossible");
  return 0;
}

zof_etat_limite& zof_pt_etat_limite(uef_vector_element& element) {
  zof_assert(typeid(element) == typeid(zof_etat_limite), "Zof_Pt_Etat_limite : Cas impossible");
  return static_cast<zof_etat_limite&>(element);
}

zof_etat_limite get_etat_limite(const uef_vector& les_etats_limites,
                                const socle::texte<32>& label_etat_limite) {
  for (const zof_etat_limite& etat : uef_parcours<zof_etat_limite>(les_etats_limites))
    if (etat.m_label_etat_limite == label_etat_limite) return etat;
  return {};
}

bool zof_remanence_deformations(const socle::texte<32>&) {
  // An increment is added to the strains that are there, at service as at ultimate limit states.
  return true;
}
