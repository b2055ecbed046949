// A title in a list.
#pragma once

#include "Non_renseigne.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_titre : uef_element<zof_titre> {
  socle::texte<80> m_titre = socle::non_renseigne;

  zof_titre() = default;
  explicit zof_titre(const socle::texte<80>& titre) : m_titre(titre) {}
};

zof_titre& zof_pt_titre(uef_vector_element& element);
zof_titre zof_cp_titre(const uef_vector_element& element);
