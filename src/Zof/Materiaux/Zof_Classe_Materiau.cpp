#include "Zof_Classe_Materiau.hpp"

#include "Zof_Erreurs.hpp"

using socle::concat;
using socle::texte;

zof_materiau::zof_materiau(const zof_materiau& autre)
    : uef_vector_element(autre),
      m_titre_materiau(autre.m_titre_materiau),
      m_nom_materiau(autre.m_nom_materiau),
      m_numero_materiau_qb7(autre.m_numero_materiau_qb7),
      m_categorie_zone_section(autre.m_categorie_zone_section),
      m_type_materiau(autre.m_type_materiau) {
  m_les_situations.transferer(autre.m_les_situations);
}

void zof_materiau::ajouter_situation_materiau(const zof_situation_materiau& situation) {
  m_les_situations.ajouter(situation);
}

bool zof_materiau::existe_etat_limite_situation_materiau(const texte<32>& label_situation,
                                                         const texte<32>& label_etat_limite) const {
  const zof_situation_materiau* const situation = get_pt_situation_materiau(label_situation);
  return situation != nullptr && situation->existe_etat_limite(label_etat_limite);
}

bool zof_materiau::existe_label_situation_materiau(const texte<32>& label_situation) const {
  return get_pt_situation_materiau(label_situation) != nullptr;
}

int zof_materiau::get_categorie_zone_section() const { return m_categorie_zone_section; }

bool zof_materiau::existe_type_situation_materiau(int type_situation) const {
  bool existe = false;
  for (const zof_situation_materiau& situation : uef_parcours<zof_situation_materiau>(m_les_situations))
    existe = existe || situation.get_type_situation_projet() == type_situation;
  return existe;
}

void zof_materiau::controle_situations_materiau(bool& erco) const {
  erco = false;
  const uef_parcours<zof_situation_materiau> situations(m_les_situations);
  for (auto s1 = situations.begin(); s1 != situations.end(); ++s1) {
    auto s2 = s1;
    for (++s2; s2 != situations.end(); ++s2) {
      if ((*s1).get_type_situation_projet() != (*s2).get_type_situation_projet()) continue;
      zof_erreur_commande(
          concat({"Repetition de la situation de projet", (*s2).get_label_situation().entier()}), erco);
    }
  }
}

const texte<32>& zof_materiau::get_nom_materiau() const { return m_nom_materiau; }
int zof_materiau::get_numero_materiau_qb7() const { return m_numero_materiau_qb7; }

zof_situation_materiau& zof_materiau::pointer_situation_materiau_dernier() {
  return zof_pt_situation_materiau(m_les_situations.pointer_dernier());
}

int zof_materiau::get_type_materiau() const { return m_type_materiau; }
void zof_materiau::set_numero_materiau_qb7(int numero) { m_numero_materiau_qb7 = numero; }
void zof_materiau::set_type_materiau(int type_materiau) { m_type_materiau = type_materiau; }
void zof_materiau::set_titre_materiau(const texte<80>& titre) { m_titre_materiau = titre; }
void zof_materiau::set_nom_materiau(const texte<32>& nom) { m_nom_materiau = nom; }
void zof_materiau::set_categorie_zone_section(int categorie) { m_categorie_zone_section = categorie; }
const texte<80>& zof_materiau::get_titre_materiau() const { return m_titre_materiau; }

zof_situation_materiau* zof_materiau::get_pt_situation_materiau(const texte<32>& label_situation) const {
  return zof_pt_situation_materiau_label(m_les_situations, label_situation);
}

zof_materiau& zof_pt_materiau(uef_vector_element& element) {
  auto* const materiau = dynamic_cast<zof_materiau*>(&element);
  zof_assert(materiau != nullptr, "Zof_Pt_Materiau : Cas impossible");
  return *materiau;
}

zof_materiau* get_pt_materiau_nom(const uef_vector& les_materiaux, const texte<32>& nom_materiau) {
  for (int i = 1; i <= les_materiaux.nombre(); ++i) {
    zof_materiau& materiau = zof_pt_materiau(*les_materiaux.case_element(i).m_ptr_element);
    if (materiau.m_nom_materiau == nom_materiau) return &materiau;
  }
  return nullptr;
}
