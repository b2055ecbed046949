#pragma once
// Structural steel to EN 1993-1-1: what a block MATE CHAR says of it.

#include "Zof_Classe_Materiau.hpp"
#include "Zof_Classe_Situation_Acier_Charpente.hpp"

struct zof_materiau_acier_charpente : uef_element<zof_materiau_acier_charpente, zof_materiau> {
  double m_fy = socle::non_renseigne;  // yield strength, MPa
  double m_fu = socle::non_renseigne;  // ultimate strength, MPa

  void editer_materiau(bool& erco) const override;
  void decoder_materiau(bool& erco) override;

  /// Adds a situation of this kind with the values by default, and its laws.
  virtual void creer_situation_acier_charpente(int type_situation);
};
