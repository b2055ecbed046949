#pragma once
// A bar of the catalogue from which a reinforcement is chosen.

#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_selection_acier : uef_element<zof_selection_acier> {
  int m_diametre_mm = socle::non_renseigne;
  int m_cardinalite = socle::non_renseigne;  ///< bars in the group: 1 in this version
  socle::texte<2> m_label_phi = socle::non_renseigne;
  socle::texte<1> m_label_cardinalite = socle::non_renseigne;
  socle::texte<4> m_label_selection = socle::non_renseigne;
  double m_aire_acier = socle::non_renseigne;  ///< of the group, m2
};

/// Whether the catalogue has this label: "P_" and a diameter in millimetres.
bool zof_est_label_selection(const socle::texte<4>& label);

/// Appends the entry of a label: "P_" and a diameter in millimetres, "P_6 ", "P_8 ", "P_10" to "P_32".
/// Another label ends the run.
void zof_ajouter_selection(uef_vector& vecteur_selection, const socle::texte<4>& label_selection);

/// The element as a catalogue entry; an element of another type ends the run.
zof_selection_acier& zof_pt_selection_acier(uef_vector_element& element);
