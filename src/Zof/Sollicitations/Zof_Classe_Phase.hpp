#pragma once
// Construction phase of a loading: the zones that exist in it.

#include "Non_renseigne.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_phase : uef_element<zof_phase> {
  zof_phase() = default;
  zof_phase(const zof_phase& autre);
  zof_phase& operator=(const zof_phase&) = delete;
  ~zof_phase() override = default;

  socle::texte<80> m_le_titre_phase = socle::non_renseigne;
  uef_vector m_les_noms_zones_actives;        ///< of zof_nom; empty in the phase of a loading without phases
  int m_numero_phase = socle::non_renseigne;  ///< 1 in a loading without phases; the others go by their rank
};
