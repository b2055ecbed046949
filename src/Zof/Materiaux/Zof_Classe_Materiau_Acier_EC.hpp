#pragma once
// Reinforcing steel to EN 1992-1-1: what a block MATE ACIE says of it.

#include "Zof_Classe_Materiau.hpp"
#include "Zof_Classe_Situation_Acier_EC.hpp"

/// Ductility classes, EN 1992-1-1 table C.1.
inline constexpr int ductilite_a = 1;
inline constexpr int ductilite_b = 2;
inline constexpr int ductilite_c = 3;

struct zof_materiau_acier_ec : uef_element<zof_materiau_acier_ec, zof_materiau> {
  double m_fyk = socle::non_renseigne;  // MPa
  int m_type_acier = ductilite_a;
  int m_classe_exposition = 1;
  bool m_is_acier_confine = false;  ///< works in compression as well
  bool m_is_critere_fatigue_simplifie = true;
  bool m_is_critere_fissuration_simplifie = true;
  bool m_is_section_ba = true;  ///< steel of a reinforced section; false: of a prestressed one

  void editer_materiau(bool& erco) const override;
  void decoder_materiau(bool& erco) override;

  /// Adds a situation of this kind with the values by default, and its laws.
  virtual void creer_situation_acier(int type_situation);
};
