// The situation block of a structural steel.
#include <array>
#include <string_view>

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Acier_Charpente.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

using situation = zof_situation_acier_charpente;
using entree = entree_para<situation>;

// The names of the keys QUAS keep the blank of the padded words, as for concrete.
constexpr std::array<entree, 11> entrees_para = {{
    {"COEF_ELS _CARA_TRAC", "COEF_ELS_CARA_TRAC", &situation::m_sigma_lim_traction_els_car},
    {"COEF_ELS _CARA_COMP", "COEF_ELS_CARA_COMP", &situation::m_sigma_lim_compression_els_car},
    {"COEF_ELS _QUAS_TRAC", "COEF_ELS _QUAS_TRAC", &situation::m_sigma_lim_traction_els_qp},
    {"COEF_ELS _QUAS_COMP", "COEF_ELS _QUAS_COMP", &situation::m_sigma_lim_compression_els_qp},
    {"COEF_ELS _FREQ_TRAC", "COEF_ELS_FREQ_TRAC", &situation::m_sigma_lim_traction_els_fre},
    {"COEF_ELS _FREQ_COMP", "COEF_ELS_FREQ_COMP", &situation::m_sigma_lim_compression_els_fre},
    {"COEF_ELU _BILI_PART", "COEF_ELU_BILI_PART", &situation::m_coefficient_partiel_elu},
    {"COEF_ELU _PARF_PART", "COEF_ELU_PARF_PART", &situation::m_coefficient_partiel_elu},
    {"DEFO_ELU _BILI_RUPT", "DEFO_ELU_BILI_RUPT", &situation::m_epsilon_rupture_bil_elu},
    {"DEFO_ELU _PARF_RUPT", "DEFO_ELU_PARF_RUPT", &situation::m_epsilon_rupture_pp_elu},
    {"MODU", "MODU", &situation::m_module_elasticite},
}};

/// Data of a situation block: each is not given until its keyword is met.
struct lecture_situation {
  situation& s;
  bool premier_mot = true;
  texte<80> titre = non_renseigne;
  int type_loi_elu = non_renseigne;
  std::array<double, entrees_para.size()> parametres;

  explicit lecture_situation(situation& s_lue) : s(s_lue) { parametres.fill(non_renseigne); }
};

void loc_choisir_situation(lecture_situation& l, const texte<4>& mot, bool& erco) {
  const int type = zof_lire_situation(mot, l.premier_mot, *l.s.m_pt_materiau, erco);
  if (erco) return;
  l.s.set_type_situation_projet(type);
  zof_affectation_coefficients_charpente_ec(l.s);
  l.s.set_label_situation(zof_conversion_en_label_situation(type));
}

/// Where both laws were given a partial factor, that of the law in use stands, whichever came last.
void loc_retenir_coefficient_partiel(lecture_situation& l) {
  const std::string_view nom =
      l.s.m_type_loi_elu == type_loi_bilineaire ? "COEF_ELU_BILI_PART" : "COEF_ELU_PARF_PART";
  for (std::size_t i = 0; i < entrees_para.size(); ++i)
    if (entrees_para[i].nom == nom && est_renseigne_double(l.parametres[i]))
      l.s.m_coefficient_partiel_elu = l.parametres[i];
}

void loc_finir_situation(lecture_situation& l, bool& erco) {
  zof_controle_mot_fin("FIN_SITU");
  zof_assert_commande(zof_situation_choisie(l.s), "La Situation de projet doit etre renseignee", erco);
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  if (erco) return;
  loc_retenir_coefficient_partiel(l);
  zof_creer_lois_acier_charpente(l.s);
}

}  // namespace

void zof_situation_acier_charpente::decoder_situation(bool& erco) {
  zof_decoder_situation_acier_charpente(*this, erco);
}

void zof_decoder_situation_acier_charpente(zof_situation_acier_charpente& situation_lue, bool& erco) {
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
      case "PARA"_mot:
        zof_lire_parametres_acier<situation>(situation_lue, entrees_para, situation_lue.m_pt_materiau->m_fy,
                                             l.parametres, erco);
        break;
      case "FIN_"_mot: loc_finir_situation(l, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
    l.premier_mot = false;
  }
}
