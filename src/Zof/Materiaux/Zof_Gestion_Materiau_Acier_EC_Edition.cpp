// The report of a reinforcing steel.
#include <array>

#include "Arithmetique.hpp"
#include "Zof_Gestion_Materiau_Acier_EC.hpp"
#include "Zof_Gestion_Materiau_Edition.hpp"

namespace {

constexpr std::array<std::string_view, 3> classes_ductilite = {"T_A", "T_B", "T_C"};

ligne_edition loc_ligne_fissuration(const zof_materiau_acier_ec& m) {
  if (!m.m_is_critere_fissuration_simplifie) return {"Fissuration simplifie : ", "non"};
  return {m.m_is_section_ba ? "Fissuration simp. BA  : " : "Fissuration simp. BB  : ", "oui"};
}

}  // namespace

void zof_editer_materiau_acier_ec(const zof_materiau_acier_ec& m, bool& erco) {
  zof_editer_titre_materiau(m);
  zof_editer_puces({
      zof_ligne_double("Fyk          : ", m.m_fyk),
      {"Section               : ",
       std::string(zof_par_zone_section[socle::indice(m.get_categorie_zone_section())].utile())},
      zof_ligne_oui_non("Confine               : ", m.m_is_acier_confine),
      zof_ligne_oui_non("Fatigue simplifiee    : ", m.m_is_critere_fatigue_simplifie),
      loc_ligne_fissuration(m),
      {"Type Acier            : ", std::string(classes_ductilite[socle::indice(m.m_type_acier)])},
      {"Classe Exposition     : ",
       std::string(zof_par_classe_exposition[socle::indice(m.m_classe_exposition)].utile())},
  });
  zof_editer_situations(m, erco);
}

void zof_editer_situation_acier_ec(const zof_situation_acier_ec& s, bool&) {
  zof_editer_titre_situation(s);
  zof_editer_puces(zof_lignes_situation_acier(
      s,
      {zof_ligne_double("Ouverture fissure  max  frequente   : ", s.m_ouverture_fissure_max_els_freq),
       zof_ligne_double("Ouverture fissure  max quasi_per.   : ", s.m_ouverture_fissure_max_els_quas)},
      {zof_ligne_double("Epsilon_rupture_PP_ELU              : ", s.m_epsilon_rupture_pp_elu)}));
  zof_editer_lois_situation(s);
}
