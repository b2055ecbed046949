// The situation block of a prestressing steel.
#include <array>
#include <initializer_list>
#include <string_view>

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Gestion_Materiau_Precontrainte_EC.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

using situation = zof_situation_precontrainte_ec;
using entree = entree_para<situation>;

// The names of the keys QUAS keep the blank of the padded words, as for concrete.
constexpr std::array<entree, 14> entrees_para = {{
    {"COEF_ELS _CARA_COMP", "COEF_ELS_CARA_COMP", &situation::m_sigma_lim_compression_els_car},
    {"COEF_ELS _CARA_TRAC", "COEF_ELS_CARA_TRAC", &situation::m_sigma_lim_traction_els_car},
    {"COEF_ELS _FREQ_COMP", "COEF_ELS_FREQ_COMP", &situation::m_sigma_lim_compression_els_fre},
    {"COEF_ELS _FREQ_TRAC", "COEF_ELS_FREQ_TRAC", &situation::m_sigma_lim_traction_els_fre},
    {"COEF_ELS _QUAS_COMP", "COEF_ELS _QUAS_COMP", &situation::m_sigma_lim_compression_els_qp},
    {"COEF_ELS _QUAS_TRAC", "COEF_ELS _QUAS_TRAC", &situation::m_sigma_lim_traction_els_qp},
    {"COEF_ELU _BILI_CONT", "COEF_ELU_BILI_CONT", &situation::m_coefficient_contrainte_ult_bil_elu},
    {"COEF_ELU _BILI_DEFO", "COEF_ELU_BILI_DEFO", &situation::m_coefficient_deformation_adm_bil_elu},
    {"COEF_ELU _BILI_PART", "COEF_ELU_BILI_PART", &situation::m_coefficient_partiel_elu},
    {"COEF_ELU _PARF_PART", "COEF_ELU_PARF_PART", &situation::m_coefficient_partiel_elu},
    {"CONT_ELU _PARF_COMP", "CONT_ELU_PARF_COMP", &situation::m_sigma_lim_compression_pp_elu},
    {"CONT_ELU _PARF_TRAC", "CONT_ELU_PARF_TRAC", &situation::m_sigma_lim_traction_pp_elu},
    {"DEFO_ELU _BILI_RUPT", "DEFO_ELU_BILI_RUPT", &situation::m_epsilon_rupture_bil_elu},
    {"MODU", "MODU", &situation::m_module_elasticite},
}};

/// Data of a situation block: each is not given until its keyword is met.
struct lecture_situation {
  situation& s;
  bool premier_mot = true;
  texte<80> titre = non_renseigne;
  int type_loi_elu = non_renseigne, type_loi_els = non_renseigne;
  std::array<double, entrees_para.size()> parametres;

  explicit lecture_situation(situation& s_lue) : s(s_lue) { parametres.fill(non_renseigne); }

  [[nodiscard]] bool parametre_lu(std::initializer_list<std::string_view> noms) const {
    return zof_parametre_lu<entree>(entrees_para, parametres, noms);
  }
};

void loc_choisir_situation(lecture_situation& l, const texte<4>& mot, bool& erco) {
  const int type = zof_lire_situation(mot, l.premier_mot, *l.s.m_pt_materiau, erco);
  if (erco) return;
  l.s.set_type_situation_projet(type);
  l.s.affectation_coefficents_ec();
  l.s.set_label_situation(zof_conversion_en_label_situation(type));
}

/// Parameters of a law that the situation does not use are refused.
void loc_controler_parametres(const lecture_situation& l, bool& erco) {
  if (l.parametre_lu({"COEF_ELU_PARF_PART", "CONT_ELU_PARF_TRAC", "CONT_ELU_PARF_COMP"}))
    zof_controler_loi_elu_acier(l.s.m_type_loi_elu, type_loi_plastique_parfaite, erco);
  if (l.parametre_lu(
          {"DEFO_ELU_BILI_RUPT", "COEF_ELU_BILI_DEFO", "COEF_ELU_BILI_CONT", "COEF_ELU_BILI_PART"}))
    zof_controler_loi_elu_acier(l.s.m_type_loi_elu, type_loi_bilineaire, erco);
}

void loc_finir_situation(lecture_situation& l, bool& erco) {
  zof_controle_mot_fin("FIN_SITU");
  zof_assert_commande(zof_situation_choisie(l.s), "La Situation de projet doit etre renseignee ", erco);
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  loc_controler_parametres(l, erco);
  if (!erco) l.s.creer_lois();
}

}  // namespace

void zof_decoder_situation_precontrainte_ec(zof_situation_precontrainte_ec& situation_lue, bool& erco) {
  lecture_situation l(situation_lue);
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "EXPL"_mot:
      case "CONS"_mot:
      case "ACCI"_mot:
      case "SEIS"_mot: loc_choisir_situation(l, mot, erco); break;
      case "TITR"_mot: zof_lire_titre_situation(situation_lue, l.titre, erco); break;
      case "ELU"_mot: zof_lire_type_loi_elu_acier(l.type_loi_elu, situation_lue.m_type_loi_elu, erco); break;
      case "ELS"_mot: zof_lire_type_loi_els_acier(l.type_loi_els, situation_lue.m_type_loi_els, erco); break;
      case "PARA"_mot:
        zof_lire_parametres_acier<situation>(situation_lue, entrees_para,
                                             situation_lue.m_pt_materiau->m_fp0_1k, l.parametres, erco);
        break;
      case "FIN_"_mot: loc_finir_situation(l, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
    l.premier_mot = false;
  }
}
