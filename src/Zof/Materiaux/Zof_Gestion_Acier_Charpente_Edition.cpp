// The report of a structural steel.
#include "Zof_Gestion_Acier_Charpente.hpp"
#include "Zof_Gestion_Materiau_Edition.hpp"

void zof_situation_acier_charpente::editer_situation(bool& erco) const {
  zof_editer_situation_acier_charpente(*this, erco);
}

void zof_editer_materiau_acier_charpente(const zof_materiau_acier_charpente& m, bool& erco) {
  zof_editer_titre_materiau(m);
  zof_editer_puces({
      zof_ligne_double("Fy           : ", m.m_fy),
      zof_ligne_double("Fu           : ", m.m_fu),
  });
  zof_editer_situations(m, erco);
}

void zof_editer_situation_acier_charpente(const zof_situation_acier_charpente& s, bool&) {
  zof_editer_titre_situation(s);
  zof_editer_puces(zof_lignes_situation_acier(
      s, {}, {zof_ligne_double("Epsilon_rupture_PP_ELU              : ", s.m_epsilon_rupture_pp_elu)}));
  zof_editer_lois_situation(s);
}
