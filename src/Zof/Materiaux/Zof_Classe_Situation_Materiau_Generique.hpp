#pragma once
// A design situation of a generic material: it has the laws that its block writes, and no others.

#include "Zof_Classe_Situation_Materiau.hpp"

struct zof_materiau_generique;

struct zof_situation_materiau_generique
    : uef_element<zof_situation_materiau_generique, zof_situation_materiau> {
  zof_materiau_generique* m_pt_materiau = nullptr;

  void editer_situation(bool& erco) const override;
  void decoder_situation(bool& erco) override;
};
