#pragma once
// What the decoders of the loadings share.

#include "And_anadon.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Erreurs.hpp"

/// Appends an element with its defaults, to be filled in place: the list owns a copy of what it is given.
template <class classe>
classe& zof_ajouter(uef_vector& liste) {
  liste.ajouter(classe{});
  return uef_comme<classe>(*liste.case_element(liste.nombre()).m_ptr_element, liste.label());
}

/// The element of a list at a position from 1.
template <class classe>
classe& zof_element(const uef_vector& liste, int position) {
  return uef_comme<classe>(*liste.case_element(position).m_ptr_element, liste.label());
}

/// Reads the one keyword that may stand here.
inline void zof_lire_mot_attendu(socle::mot_clef attendu, bool& erco) {
  socle::texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  if (socle::clef(mot) != attendu) zof_attribut_incorrect(mot, erco);
}

/// How a word is read: keywords count by their first letters; a factor line takes no word of more than four.
using zof_lecture_mot = void (*)(socle::texte<4>&, bool&);
void zof_decoder_etat_limite(zof_lecture_mot lire, socle::texte<32>& label_etat_limite, bool& erco);
void zof_decoder_situation(zof_lecture_mot lire, socle::texte<32>& label_situation, bool& erco);
