// A number in a list.
#pragma once

#include "Non_renseigne.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_double : uef_element<zof_double> {
  double m_double = socle::non_renseigne;

  zof_double() = default;
  explicit zof_double(double valeur) : m_double(valeur) {}
};

zof_double& zof_pt_double(uef_vector_element& element);
zof_double zof_cp_double(const uef_vector_element& element);
