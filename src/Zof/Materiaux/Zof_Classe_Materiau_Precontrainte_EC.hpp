#pragma once
// Prestressing steel to EN 1992-1-1: what a block MATE PREC says of it.

#include "Zof_Classe_Materiau.hpp"
#include "Zof_Classe_Situation_Precontrainte_EC.hpp"

/// Products, EN 1992-1-1 3.3.2.
inline constexpr int precontrainte_toron = 1;
inline constexpr int precontrainte_fil = 2;
inline constexpr int precontrainte_barre = 3;

struct zof_materiau_precontrainte_ec : uef_element<zof_materiau_precontrainte_ec, zof_materiau> {
  double m_fp0_1k = socle::non_renseigne;  // 0.1 % proof stress, MPa
  double m_fpk = socle::non_renseigne;     // tensile strength, MPa
  int m_type_precontrainte = precontrainte_toron;

  void editer_materiau(bool& erco) const override;
  void decoder_materiau(bool& erco) override;

  /// Adds a situation of this kind with the values by default, and its laws.
  virtual void creer_situation_precontrainte(int type_situation);
};

/// Tensile strength and proof stress of the steel, MPa.
double zof_get_fpk(const zof_materiau_precontrainte_ec& materiau);
double zof_get_fp0_1k(const zof_materiau_precontrainte_ec& materiau);
