#pragma once
// One set of forces on a section: an action of the data file, or a load case made of weighted actions.
// Forces in MN and MN.m, N positive in compression, My = ∫σ z, Mz = -∫σ y, in the frame of the loading.

#include "Non_renseigne.hpp"
#include "QB7_Types.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Phase.hpp"
#include "Zof_Classe_Tension.hpp"

struct zof_effort : uef_element<zof_effort> {
  zof_effort() = default;
  zof_effort(const zof_effort& autre);  ///< the tensions are copied, not shared
  zof_effort(zof_effort&&) = default;
  zof_effort& operator=(const zof_effort&) = delete;
  ~zof_effort() override = default;

  efforts get_efforts() const { return {m_n, m_my, m_mz}; }
  void set_efforts(const efforts& f);

  socle::texte<160> m_titre = socle::non_renseigne;
  socle::texte<32> m_nom_section = socle::non_renseigne;
  socle::texte<32> m_label_effort = socle::non_renseigne;  ///< G, P, Q, GP or GQ
  socle::texte<32> m_nom_zone_repere_brut =
      socle::non_renseigne;  ///< zone in whose raw frame the file gives the forces
  double m_n = 0, m_my = 0, m_mz = 0;
  uef_vector m_les_tensions;                       ///< of zof_tension
  const zof_phase* m_pt_phase_courante = nullptr;  ///< phase in force where the file gives the effort
  int m_numero_phase = socle::non_renseigne;       ///< rank of that phase in its limit state record, from 1
};

/// What m_nom_zone_repere_brut holds for forces given in the raw frame of the zones active in the phase.
inline constexpr std::string_view zof_repere_brut_zones_actives = "REPERE_BRUT_ZONES_ACTIVEES";
