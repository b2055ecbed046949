#pragma once
// Concrete to EN 1992-1-1: what a block MATE BETO says of it.

#include "Zof_Classe_Beton.hpp"
#include "Zof_Classe_Situation_Beton_EC.hpp"

struct zof_materiau_beton_ec : uef_element<zof_materiau_beton_ec, zof_beton> {
  int m_type_ciment = ciment_n;
  int m_type_beton = beton_normal;
  double m_humidite_relative = 70.0;  // percent
  double m_rayon_moyen = 0.25;        // m
  int m_classe_exposition = 1;
  bool m_is_beton_precontraint = false;
  bool m_is_critere_fatigue_simplifie_comp = true;
  bool m_is_critere_fatigue_simplifie_trac = true;

  void editer_materiau(bool& erco) const override;
  void decoder_materiau(bool& erco) override;

  /// Adds a situation of this kind with the values by default, and its laws.
  virtual void creer_situation_beton(int type_situation);
};
