// A tendon mark in a prestressing zone.
#pragma once

#include "Non_renseigne.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_cable : uef_element<zof_cable> {
  int m_ix_point = socle::non_renseigne;  // position in the zone's list of points
  int m_no_point = socle::non_renseigne;  // the user's number
  int m_numero_cable = socle::non_renseigne;
  int m_numero_zone_qb7 = socle::non_renseigne;
};

zof_cable& zof_pt_cable(uef_vector_element& element);
zof_cable zof_cp_cable(const uef_vector_element& element);

/// Removes the first tendon of that number; a missing one ends the run.
void zof_supprimer_cable(uef_vector& vecteur_cables, int numero_cable);
