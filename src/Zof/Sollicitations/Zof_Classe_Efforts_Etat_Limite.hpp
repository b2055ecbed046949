#pragma once
// The forces of a loading for one limit state in one design situation.

#include "Non_renseigne.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Effort.hpp"
#include "Zof_Classe_Phase.hpp"

struct zof_efforts_etat_limite : uef_element<zof_efforts_etat_limite> {
  zof_efforts_etat_limite() = default;
  zof_efforts_etat_limite(
      const zof_efforts_etat_limite& autre);  ///< efforts and phases are copied, not shared
  zof_efforts_etat_limite& operator=(const zof_efforts_etat_limite&) = delete;
  ~zof_efforts_etat_limite() override = default;

  socle::texte<32> m_nom_section = socle::non_renseigne;
  socle::texte<32> m_label_etat_limite = socle::non_renseigne;
  socle::texte<32> m_label_situation = socle::non_renseigne;
  uef_vector m_les_efforts;            ///< of zof_effort, in the order of the file
  uef_vector m_les_phases;             ///< of zof_phase; exactly one when the loading has no phases
  bool m_etat_limite_pondere = false;  ///< the file gives weighted forces: no factor is applied
};
