// A thin element between two points of a thin-walled zone.
#pragma once

#include "Non_renseigne.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_profil : uef_element<zof_profil> {
  int m_ix_point_origine = socle::non_renseigne;  // positions in the zone's list of points
  int m_ix_point_extremite = socle::non_renseigne;
  int m_no_point_origine = socle::non_renseigne;  // the user's numbers
  int m_no_point_extremite = socle::non_renseigne;
  int m_numero_zone_qb7 = socle::non_renseigne;
  int m_numero_profil = socle::non_renseigne;
  double m_epaisseur_profil = socle::non_renseigne;  // m
  int m_numero_materiau_qb7_profil = socle::non_renseigne;
  socle::texte<32> m_nom_materiau_profil = socle::non_renseigne;
};

zof_profil& zof_pt_profil(uef_vector_element& element);
zof_profil zof_cp_profil(const uef_vector_element& element);

/// The first element of that number; an unset one if there is none.
zof_profil get_profil(const uef_vector& vecteur_profils, int numero_profil);
/// Removes the first element of that number; a missing one ends the run.
void zof_supprimer_profil(uef_vector& vecteur_profils, int numero_profil);
