#include "Zof_Classe_Zone_Generalisee.hpp"

#include "Zof_Classe_commun.hpp"

zof_zone_generalisee::zof_zone_generalisee(const zof_zone_generalisee& autre) : uef_vector_element(autre) {
  *this = autre;
}

zof_zone_generalisee& zof_zone_generalisee::operator=(const zof_zone_generalisee& autre) {
  if (this == &autre) return *this;
  m_zone_deja_creee = autre.m_zone_deja_creee;
  m_section_precontrainte = autre.m_section_precontrainte;
  m_titre_zone = autre.m_titre_zone;
  m_nom_zone = autre.m_nom_zone;
  m_est_sous_section = autre.m_est_sous_section;
  m_les_zones.transferer(autre.m_les_zones);
  m_numero_section_qb7 = autre.m_numero_section_qb7;
  m_numero_courant_point_section_qb7 = autre.m_numero_courant_point_section_qb7;
  m_numero_courant_qb7_zone_generalisee = autre.m_numero_courant_qb7_zone_generalisee;
  m_numero_courant_point_zone_type = autre.m_numero_courant_point_zone_type;
  m_numero_zone_qb7 = autre.m_numero_zone_qb7;
  m_symetrie = autre.m_symetrie;
  m_forme_zone = autre.m_forme_zone;
  return *this;
}

int zof_zone_generalisee::get_numero_zone_qb7(bool controle) const {
  zof_assert(controle || est_renseigne_integer(m_numero_zone_qb7), " Get_Numero_zone_QB7 : Cas impossible");
  return m_numero_zone_qb7;
}

zof_zone_generalisee_pointeur& zof_pt_pointeur_zone(uef_vector_element& element) {
  return zof_element<zof_zone_generalisee_pointeur>(element, "Zof_Pt_Pointeur_Zone : Cas impossible");
}
zof_zone_generalisee_pointeur zof_cp_pointeur_zone(const uef_vector_element& element) {
  return zof_element<zof_zone_generalisee_pointeur>(element, "Zof_Pt_Pointeur_Zone : Cas impossible");
}

zof_zone_generalisee_pointeur zof_pointeur_zone(const uef_vector& vecteur_zones,
                                                const socle::texte<32>& nom) {
  for (const auto& p : uef_parcours<zof_zone_generalisee_pointeur>(vecteur_zones))
    if (p.m_pt_zone != nullptr && p.m_pt_zone->get_nom_zone() == nom) return p;
  return {};
}
