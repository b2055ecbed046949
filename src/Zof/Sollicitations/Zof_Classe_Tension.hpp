#pragma once
// Tension of a prestressing cable at one of its passage points.

#include "Litteral.hpp"
#include "Non_renseigne.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_tension : uef_element<zof_tension> {
  socle::texte<32> m_nom_precontrainte = socle::non_renseigne;  ///< prestressing group of the section
  double m_tension = socle::non_renseigne;                      ///< MPa, positive in tension
  double m_rho = socle::non_renseigne;        ///< share bonded by injection, 0 to 1; not given: not injected
  int m_numero_point = socle::non_renseigne;  ///< passage point of the cable
};
