// One piece of a piecewise cubic: a0 + a1 x + a2 x^2 + a3 x^3 from epsilon on, up to the next piece.
#pragma once

#include "Non_renseigne.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_intervalle : uef_element<zof_intervalle> {
  double m_epsilon = socle::non_renseigne;
  double m_a0 = socle::non_renseigne;
  double m_a1 = socle::non_renseigne;
  double m_a2 = socle::non_renseigne;
  double m_a3 = socle::non_renseigne;
};

zof_intervalle& zof_pt_intervalle(uef_vector_element& element);
zof_intervalle zof_cp_intervalle(const uef_vector_element& element);
