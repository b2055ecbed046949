#include "Uef_Classe_Vector.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

#include "Arithmetique.hpp"
#include "Arret.hpp"
#include "Systeme.hpp"

using socle::concat;
using socle::indice;
using socle::vue_l1;

namespace {

bool loc_pointe(const uef_pointeur_element& c) {
  return c.m_ptr_element && c.m_ptr_element->m_element_pointe;
}

}  // namespace

void uef_vector::fautif(vue_l1 detail, vue_l1 intitule_nombre, int position, vue_l1 message) const {
  socle::le_systeme().console().ligne(concat({detail, m_label, " position_element:", std::to_string(position),
                                              intitule_nombre, std::to_string(m_position_fin)}));
  uef_assert(false, concat({message, m_label}));
  socle::arreter(0);  // the assertion above has ended the run
}

bool uef_vector::est_occupee(int position) const {
  return position >= 1 && position <= m_position_fin &&
         m_les_pointeur_element[indice(position)].m_ptr_element != nullptr;
}

const uef_pointeur_element& uef_vector::case_element(int position) const {
  if (position < 1 || position > m_position_fin)
    uef_assert(false, concat({"Vector_case_element : position incorrecte dans ", m_label}));
  return m_les_pointeur_element[indice(position)];
}

void uef_vector::allouer(int capacite) {
  m_les_pointeur_element.clear();
  m_les_pointeur_element.resize(static_cast<std::size_t>(std::max(capacite, 1)));
  m_position_fin = 0;
}

void vector_augmenter_taille(uef_vector& le_vector, int taille_demandee) {
  const int presente = le_vector.capacite();
  // Doubled in single precision: from 2^24 elements on the capacity is that of the nearest single.
  const int doublee = socle::tronquer(static_cast<double>(2.0F * static_cast<float>(presente)));
  const int nouvelle = std::max(doublee, taille_demandee);
  if (nouvelle <= presente) return;
  le_vector.m_les_pointeur_element.resize(static_cast<std::size_t>(nouvelle));
}

void uef_vector::ajouter(const uef_vector_element& element) {
  if (!est_cree()) creer("N_R", element);
  const uef_vector_element& modele = *m_type_element;
  if (!m_polymorphe && typeid(modele) != typeid(element))
    uef_assert(false, concat({"Vector_Ajouter : element de type incorrect pour :", m_label}));
  std::shared_ptr<uef_vector_element> copie =
      element.cloner();  // before growth: it may stand in this very list
  if (m_position_fin >= capacite()) vector_augmenter_taille(*this, m_position_fin + 1);
  m_les_pointeur_element[indice(m_position_fin + 1)].m_ptr_element = std::move(copie);
  ++m_position_fin;
}

std::unique_ptr<uef_vector_element> uef_vector::copier_dernier() const {
  if (!est_occupee(m_position_fin)) {
    socle::le_systeme().console().ligne(
        concat({"vector_copier_dernier : lecture impossible de ", m_label, " : vecteur vide"}));
    uef_assert(false, concat({"vector_copier_dernier : copie impossible dans ", m_label}));
  }
  return m_les_pointeur_element[indice(m_position_fin)].m_ptr_element->cloner();
}

std::unique_ptr<uef_vector_element> uef_vector::copier(int position) const {
  if (!est_occupee(position))
    fautif("Vector_copier : lecture impossible de ", " taille :", position,
           "Vector_copier : copie impossible dans ");
  return m_les_pointeur_element[indice(position)].m_ptr_element->cloner();
}

void uef_vector::depointer(int position) {
  if (!est_occupee(position))
    fautif("Vector_depointer : depointage impossible de ", " size:", position,
           "Vector_depointer : depointage impossible dans ");
  uef_vector_element& element = *m_les_pointeur_element[indice(position)].m_ptr_element;
  if (!element.m_element_pointe)
    fautif("Vector_depointer : depointage inutile de ", " size:", position,
           "Vector_depointer : depointage inutile dans ");
  element.m_element_pointe = false;
}

void uef_vector::creer(vue_l1 label, const uef_vector_element& modele, int capacite, bool polymorphe) {
  uef_assert(!est_cree(), concat({"Vector_creer : vecteur deja cree :", m_label}));
  m_label = std::string(label.octets());
  m_type_element = modele.cloner();
  m_polymorphe = polymorphe;
  allouer(capacite);
}

void uef_vector::verifier_ajout(const char* operation, int position,
                                const uef_vector_element& element) const {
  const std::string_view debut = operation;
  if (!est_cree()) uef_assert(false, concat({debut, " : aucun element present dans :", m_label}));
  const uef_vector_element& modele = *m_type_element;
  if (typeid(modele) != typeid(element))
    uef_assert(false, concat({debut, " : element de type incorrect pour :", m_label}));
  if (position < 1) uef_assert(false, concat({debut, " : position  incorrecte dans:", m_label}));
}

void uef_vector::inserer(int position, const uef_vector_element& element) {
  verifier_ajout("Vector_Inserer", position, element);
  std::shared_ptr<uef_vector_element> copie = element.cloner();
  if (m_position_fin >= capacite()) vector_augmenter_taille(*this, m_position_fin + 1);
  if (position > capacite()) vector_augmenter_taille(*this, position);
  if (position <= m_position_fin) {
    const auto premier = m_les_pointeur_element.begin();
    std::move_backward(premier + position - 1, premier + m_position_fin, premier + m_position_fin + 1);
    ++m_position_fin;
  } else {
    m_position_fin = position;
  }
  m_les_pointeur_element[indice(position)].m_ptr_element = std::move(copie);
}

void uef_vector::detruire() { desallouer(true, true); }

uef_vector_element& uef_vector::pointer(int position) {
  if (!est_occupee(position))
    fautif("Vector_pointer : pointage impossible de ", " size:", position,
           "Vector_pointer : pointage impossible dans ");
  uef_vector_element& element = *m_les_pointeur_element[indice(position)].m_ptr_element;
  element.m_element_pointe = true;
  return element;
}

uef_vector_element& uef_vector::pointer_dernier() {
  if (!est_occupee(m_position_fin))
    fautif("vector_pointer_dernier: pointage impossible de ", " size:", m_position_fin,
           "Vector_pointer_dernier : pointage dernier impossible dans ");
  uef_vector_element& element = *m_les_pointeur_element[indice(m_position_fin)].m_ptr_element;
  element.m_element_pointe = true;
  return element;
}

void uef_vector::re_creer(vue_l1 label, const uef_vector_element& modele, int capacite) {
  // Both may belong to this very list.
  const std::string nouveau_label(label.octets());
  const std::unique_ptr<uef_vector_element> nouveau_modele = modele.cloner();
  detruire();
  creer(nouveau_label, *nouveau_modele, capacite);
}

void uef_vector::desallouer(bool forcer, bool tout) {
  if (!forcer)
    uef_assert(std::none_of(m_les_pointeur_element.begin(), m_les_pointeur_element.end(), loc_pointe),
               concat({"vector_Desallouer : un element est pointe dans :", m_label}));
  m_les_pointeur_element.clear();
  m_position_fin = 0;
  if (!tout) return;
  m_label.clear();
  m_type_element.reset();
  m_polymorphe = false;
}

void uef_vector::depointer_tous() {
  uef_assert(m_position_fin > 0, "vector_depointer_tous: depointage impossible de  vector vide");
  for (const uef_pointeur_element& c : m_les_pointeur_element)
    if (c.m_ptr_element) c.m_ptr_element->m_element_pointe = false;
}

void uef_vector::depointer_dernier() {
  if (!est_occupee(m_position_fin))
    fautif("vector_depointer_dernier: depointage impossible de ", " size:", m_position_fin,
           "vector_depointer_dernier : depointage dernier impossible dans ");
  uef_vector_element& element = *m_les_pointeur_element[indice(m_position_fin)].m_ptr_element;
  if (!element.m_element_pointe)
    fautif("Vector_depointer_dernier : depointage inutile de ", " size:", m_position_fin,
           "vector_depointer_dernier : depointage dernier inutile dans ");
  element.m_element_pointe = false;
}

void uef_vector::supprimer(int position, int nombre_elements) {
  std::string_view faute;
  if (position < 1 || position > m_position_fin)
    faute = "Vector : Suppression impossible - position  incorrecte pour  :";
  else if (nombre_elements < 1)
    faute = "Vector : Suppression impossible - nombre incorrect pour  : ";
  else if (nombre_elements > m_position_fin - position + 1)
    faute = "Vector : Suppression impossible - position+nombre incorrecte pour ";
  if (!faute.empty()) {
    socle::le_systeme().console().ligne(concat({faute, m_label}));
    uef_assert(false, concat({"vector_supprimer : Suppression impossible  dans ", m_label}));
  }
  const auto premier = m_les_pointeur_element.begin() + (position - 1);
  const auto suivant = premier + nombre_elements;
  const auto fin = m_les_pointeur_element.begin() + m_position_fin;
  uef_assert(std::none_of(premier, suivant, loc_pointe),
             concat({"Vector : Suppression impossible - element pointe ", m_label}));
  const auto vides = std::move(suivant, fin, premier);
  std::fill(vides, fin, uef_pointeur_element{});
  m_position_fin -= nombre_elements;
}

void uef_vector::remplacer(int position, const uef_vector_element& element) {
  verifier_ajout("Vector_Remplacer", position, element);
  if (position > m_position_fin)
    uef_assert(false, concat({"Vector_Remplacer : position  incorrecte dans:", m_label}));
  uef_pointeur_element& c = m_les_pointeur_element[indice(position)];
  if (loc_pointe(c))
    uef_assert(false, concat({"Vector_Remplacer : suppression d element pointe dans:", m_label}));
  c.m_ptr_element = element.cloner();
}

void uef_vector::vider(int capacite, bool forcer) {
  uef_assert(est_cree(), concat({"Vector_vider : vecteur non alloue :", m_label}));
  desallouer(forcer);
  allouer(capacite);
}

void uef_vector::transferer(const uef_vector& source) {
  if (this == &source) return;
  detruire();
  if (!source.est_cree()) return;
  creer(source.m_label, *source.m_type_element, source.m_position_fin, source.m_polymorphe);
  for (int i = 1; i <= source.m_position_fin; ++i) {
    const uef_pointeur_element& c = source.m_les_pointeur_element[indice(i)];
    if (c.m_ptr_element) m_les_pointeur_element[indice(i)].m_ptr_element = c.m_ptr_element->cloner();
  }
  m_position_fin = source.m_position_fin;
}
