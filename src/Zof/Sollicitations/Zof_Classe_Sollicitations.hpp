#pragma once
// One named loading of a section: its forces per limit state, the frame they are given in, its own load
// factors.

#include "Non_renseigne.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Efforts_Etat_Limite.hpp"
#include "Zof_Classe_Situation_Materiau.hpp"

/// Frame of the forces of a loading: values of zof_sollicitations::m_type_repere.
inline constexpr int type_repere_geometrique = 1;  ///< the axes in which the section is drawn
inline constexpr int type_repere_defini = 2;       ///< origin and angle of the user
inline constexpr int type_repere_brut = 3;         ///< centroid and principal axes of the gross section

struct zof_sollicitations : uef_element<zof_sollicitations> {
  zof_sollicitations() = default;
  zof_sollicitations(
      const zof_sollicitations& autre);  ///< the records of limit states are copied, not shared
  zof_sollicitations& operator=(const zof_sollicitations&) = delete;
  ~zof_sollicitations() override = default;

  socle::texte<65> m_nom_section_sollicitations = socle::non_renseigne;  ///< key: section, "_", loading
  socle::texte<80> m_titre = socle::non_renseigne;
  socle::texte<32> m_nom_section = socle::non_renseigne;
  int m_type_repere = socle::non_renseigne;
  double m_y = socle::non_renseigne, m_z = socle::non_renseigne;  // m
  double m_alpha = socle::non_renseigne;                          // degrees
  bool m_est_precontrainte_iso_incluse = true;  ///< the forces hold the isostatic effect of prestress
  bool m_est_precontrainte_postendue = true;
  bool m_est_phasee = false;
  uef_vector m_les_efforts_etat_limite;  ///< of zof_efforts_etat_limite, in the order of the file
  bool m_est_ponderation_surchargee = false;
  /// Factors of the user, by situation, limit state, action (G, P, Q) and effect (unfavourable, favourable).
  zof_ponderations_gpq12 m_ponderations_gpq12;
};
