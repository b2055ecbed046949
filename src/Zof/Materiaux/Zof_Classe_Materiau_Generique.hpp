#pragma once
// A material whose laws the user writes: what a block MATE SPEC says of it.

#include "Zof_Classe_Materiau.hpp"
#include "Zof_Classe_Situation_Materiau_Generique.hpp"

struct zof_materiau_generique : uef_element<zof_materiau_generique, zof_materiau> {
  void editer_materiau(bool& erco) const override;
  void decoder_materiau(bool& erco) override;
};
