// A name in a list.
#pragma once

#include "Non_renseigne.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_nom : uef_element<zof_nom> {
  socle::texte<32> m_nom = socle::non_renseigne;

  zof_nom() = default;
  explicit zof_nom(const socle::texte<32>& nom) : m_nom(nom) {}
};

zof_nom& zof_pt_nom(uef_vector_element& element);
zof_nom zof_cp_nom(const uef_vector_element& element);

/// True if the name stands in the list.
bool zof_existe_nom(const uef_vector& vecteur_noms, const socle::texte<32>& nom);
