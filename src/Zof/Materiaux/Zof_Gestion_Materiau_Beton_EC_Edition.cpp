// The report of a concrete.
#include "Arithmetique.hpp"
#include "Zof_Gestion_Materiau_Beton_EC.hpp"
#include "Zof_Gestion_Materiau_Edition.hpp"

namespace {

std::string loc_ciment(int type_ciment) {
  switch (type_ciment) {
    case ciment_r: return "R";
    case ciment_s: return "S";
    default: return "Normal";
  }
}

/// Without (S) and with (A) silica fume.
std::string loc_beton(int type_beton) {
  switch (type_beton) {
    case beton_bhp_sans_silice: return "SFC";
    case beton_bhp_avec_silice: return "AFC";
    default: return "Normal";
  }
}

}  // namespace

void zof_editer_materiau_beton_ec(const zof_materiau_beton_ec& m, bool& erco) {
  zof_editer_titre_materiau(m);
  zof_editer_puces({
      zof_ligne_double("Fck          : ", m.get_fck()),
      {"Type Section : ",
       std::string(zof_par_zone_section[socle::indice(m.get_categorie_zone_section())].utile())},
      {"Ciment       : ", loc_ciment(m.m_type_ciment)},
      {"Beton        : ", loc_beton(m.m_type_beton)},
      zof_ligne_double("% Humidite   : ", m.m_humidite_relative),
      zof_ligne_double("rayon moyen  : ", m.m_rayon_moyen),
      {"Classe       : ",
       std::string(zof_par_classe_exposition[socle::indice(m.m_classe_exposition)].utile())},
      zof_ligne_oui_non("Precontraint : ", m.m_is_beton_precontraint),
      zof_ligne_oui_non("Fat. sim. tra: ", m.m_is_critere_fatigue_simplifie_trac),
      zof_ligne_oui_non("Fat. sim. com: ", m.m_is_critere_fatigue_simplifie_comp),
  });
  zof_editer_situations(m, erco);
}

void zof_editer_situation_beton_ec(const zof_situation_beton_ec& s, bool&) {
  zof_editer_titre_situation(s);
  zof_editer_puces({
      zof_ligne_type_loi("Type loi ELS            : ", s.m_type_loi_els),
      zof_ligne_type_loi("Type loi ELU            : ", s.m_type_loi_elu),
      zof_ligne_double("Age_Chargement_Q        : ", s.m_age_chargement_q),
      zof_ligne_double("Age_Chargement_G        : ", s.m_age_chargement_g),
      zof_ligne_double("Age_Fin_cure            : ", s.m_age_fin_cure),
      zof_ligne_double("Ponderation_lois_CT_LT  : ", s.m_ponderation_lois_ct_lt),
      zof_ligne_double("Coeff_sigma_max_ELS_CAR : ", s.m_coeff_sigma_max_els_car),
      zof_ligne_double("Coeff_sigma_min_ELS_CAR : ", s.m_coeff_sigma_min_els_car),
      zof_ligne_double("Coeff_equivalence       : ", s.m_coefficient_equivalence_els),
      zof_ligne_double("C_sigma_min_ELS_ENR_CAR : ", s.m_coeff_sigma_min_enrobage_els_car),
      zof_ligne_double("Coeff_sigma_max_ELS_FRE : ", s.m_coeff_sigma_max_els_fre),
      zof_ligne_double("Coeff_sigma_min_ELS_FRE : ", s.m_coeff_sigma_min_els_fre),
      zof_ligne_double("C_sigma_min_ELS_ENR_FRE : ", s.m_coeff_sigma_min_enrobage_els_fre),
      zof_ligne_double("Coeff_sigma_max_ELS_QP  : ", s.m_coeff_sigma_max_els_qp),
      zof_ligne_double("Coeff_sigma_min_ELS_QP  : ", s.m_coeff_sigma_min_els_qp),
      zof_ligne_double("C_sigma_min_ELS_ENR_QP  : ", s.m_coeff_sigma_min_enrobage_els_qp),
      zof_ligne_double("Coefficient_partiel_ELU : ", s.m_coefficient_partiel_elu),
      zof_ligne_double("Alpha_compression       : ", s.m_alpha_compression),
      zof_ligne_double("Degre_parabole_ELU      : ", s.m_degre_parabole_elu),
      zof_ligne_double("Degre_parabole_ELS      : ", s.m_degre_parabole_els),
      zof_ligne_double("Deformation_ELU_pic     : ", s.m_deformation_elu_pic),
      zof_ligne_double("Deformation_ELU_rupture : ", s.m_deformation_elu_rupture),
      zof_ligne_double("Deformation_ELS_pic     : ", s.m_deformation_els_pic),
      zof_ligne_double("Deformation_ELS_rupture : ", s.m_deformation_els_rupture),
  });
}
