// What the small classes share: an element of a list as its class, and look-ups by the user's number.
#pragma once

#include <typeinfo>

#include "Uef_Classe_Vector.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

/// The element as an object of exactly this class; anything else is an internal fault with this message.
template <class classe>
classe& zof_element(uef_vector_element& element, socle::vue_l1 message) {
  zof_assert(typeid(element) == typeid(classe), message);
  return static_cast<classe&>(element);
}
template <class classe>
const classe& zof_element(const uef_vector_element& element, socle::vue_l1 message) {
  zof_assert(typeid(element) == typeid(classe), message);
  return static_cast<const classe&>(element);
}

/// Position of the first element whose field has this value; 0 if there is none.
template <class classe, class valeur>
int zof_position(const uef_vector& v, valeur classe::*champ, const valeur& cherchee) {
  for (int i = 1; i <= v.nombre(); ++i) {
    uef_vector_element* const element = v.case_element(i).m_ptr_element.get();
    if (element != nullptr && uef_comme<const classe>(*element, v.label()).*champ == cherchee) return i;
  }
  return 0;
}

/// A copy of the first element of that number; an unset one if there is none.
template <class classe>
classe zof_chercher(const uef_vector& v, int classe::*champ, int numero) {
  const int position = zof_position<classe>(v, champ, numero);
  return position == 0 ? classe{}
                       : uef_comme<const classe>(*v.case_element(position).m_ptr_element, v.label());
}

/// Removes the first element of that number; a missing one is an internal fault with this message and the
/// number.
template <class classe>
void zof_supprimer(uef_vector& v, int classe::*champ, int numero, socle::vue_l1 message) {
  const int position = zof_position<classe>(v, champ, numero);
  if (position == 0)
    zof_assert(false, socle::concat({message, zof_chaine_numerique_entier(numero).entier()}));
  v.supprimer(position, 1);
}
