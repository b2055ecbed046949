#pragma once
// Limit states: their numbers and labels, and the record that joins one of them to its stress-strain law in
// the section engine.

#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

/// Numbers of the limit states. The "_nf" states are those of a section that is not cracked, the "meca_" ones
/// give the elastic properties of the section: gross, net of its holes, transformed.
inline constexpr int etat_limite_meca_brut = 1;
inline constexpr int etat_limite_meca_net = 2;
inline constexpr int etat_limite_meca_homogeneisee = 3;
inline constexpr int etat_limite_els_qp = 4;
inline constexpr int etat_limite_els_fre = 5;
inline constexpr int etat_limite_els_car = 6;
inline constexpr int etat_limite_els_qp_nf = 7;
inline constexpr int etat_limite_els_fre_nf = 8;
inline constexpr int etat_limite_els_car_nf = 9;
inline constexpr int etat_limite_elu_durable = 10;
inline constexpr int etat_limite_elu_accident = 11;
inline constexpr int nombre_etats_limites = 11;

/// One limit state of a situation. A record that was never filled has the number 0 and the label "N_R".
struct zof_etat_limite : uef_element<zof_etat_limite> {
  int m_numero_etat_limite_qb7 = 0;  ///< number of the law in the engine
  socle::texte<32> m_label_etat_limite = socle::non_renseigne;
  int m_type_etat_limite = socle::non_renseigne;
};

/// Number (1 to 11) of a limit state from its label; another label ends the run.
int zof_conversion_en_type_etat_limite(const socle::texte<32>& label_etat_limite);

/// The element as a limit state; an element of another type ends the run.
zof_etat_limite& zof_pt_etat_limite(uef_vector_element& element);

/// The first limit state of that label, by value; the record that was never filled if there is none.
zof_etat_limite get_etat_limite(const uef_vector& les_etats_limites,
                                const socle::texte<32>& label_etat_limite);

/// Whether the strains of a phase stay when the next one begins: they do at every limit state.
bool zof_remanence_deformations(const socle::texte<32>& label_etat_limite);
