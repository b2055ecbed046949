// The situation block of a concrete.
#include <array>

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Beton_EC.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Options.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

using situation = zof_situation_beton_ec;
using entree = entree_para<situation>;

// The peak strain of an ultimate parabola can't be set: its entry does not exist.
// The names of three keys and the ends of two keep the blank of the padded words.
constexpr std::array<entree, 19> entrees_para = {{
    {"ALPH", "ALPH", &situation::m_alpha_compression},
    {"COEF_ELS _CARA_COMP", "COEF_ELS_CARA_COMP", &situation::m_coeff_sigma_max_els_car},
    {"COEF_ELS _CARA_TRAC", "COEF_ELS_CARA_TRAC", &situation::m_coeff_sigma_min_els_car},
    {"COEF_ELS _CARA_ENRO", "COEF_ELS_CARA_ENRO", &situation::m_coeff_sigma_min_enrobage_els_car},
    {"COEF_ELS _FREQ_COMP", "COEF_ELS_FREQ_COMP", &situation::m_coeff_sigma_max_els_fre},
    {"COEF_ELS _FREQ_TRAC", "COEF_ELS_FREQ_TRAC", &situation::m_coeff_sigma_min_els_fre},
    {"COEF_ELS _FREQ_ENRO", "COEF_ELS_FREQ_ENRO", &situation::m_coeff_sigma_min_enrobage_els_fre},
    {"COEF_ELS _QUAS_COMP", "COEF_ELS _QUAS_COMP", &situation::m_coeff_sigma_max_els_qp},
    {"COEF_ELS _QUAS_TRAC", "COEF_ELS _QUAS_TRAC", &situation::m_coeff_sigma_min_els_qp},
    {"COEF_ELS _QUAS_ENRO", "COEF_ELS _QUAS_ENRO", &situation::m_coeff_sigma_min_enrobage_els_qp},
    {"COEF_ELU _BILI_PART", "COEF_ELU_BILI_PART", &situation::m_coefficient_partiel_elu},
    {"COEF_ELU _PARA_PART", "COEF_ELU_PARA_PART", &situation::m_coefficient_partiel_elu},
    {"DEFO_ELS _PARA_PIC ", "DEFO_ELS_PARA_PIC ", &situation::m_deformation_els_pic},
    {"DEFO_ELS _PARA_RUPT", "DEFO_ELS_PARA_RUPT", &situation::m_deformation_els_rupture},
    {"DEFO_ELU _BILI_PIC ", "DEFO_ELU_BILI_PIC", &situation::m_deformation_elu_pic},
    {"DEFO_ELU _BILI_RUPT", "DEFO_ELU_BILI_RUPT", &situation::m_deformation_elu_rupture},
    {"DEFO_ELU _PARA_RUPT", "DEFO_ELU_PARA_RUPT", &situation::m_deformation_elu_rupture},
    {"DEGR_ELS _PARA_LOI ", "DEGR_ELS_PARA_LOI", &situation::m_degre_parabole_els},
    {"DEGR_ELU _PARA_LOI ", "DEGR_ELU_PARA_LOI ", &situation::m_degre_parabole_elu},
}};

/// Data of a situation block: each is not given until its keyword is met.
struct lecture_situation {
  situation& s;
  bool premier_mot = true;
  bool parametres_lus = false;  // a block PARA was met: the kinds of laws are settled
  texte<80> titre = non_renseigne;
  double ponderation = non_renseigne;
  int type_loi_elu = non_renseigne, type_loi_els = non_renseigne;
  std::array<double, entrees_para.size()> parametres;

  explicit lecture_situation(situation& s_lue) : s(s_lue) { parametres.fill(non_renseigne); }
};

void loc_choisir_situation(lecture_situation& l, const texte<4>& mot, bool& erco) {
  const int type = zof_lire_situation(mot, l.premier_mot, *l.s.m_pt_materiau, erco);
  if (erco) return;
  l.s.set_type_situation_projet(type);
  l.s.fixer_ages();
  l.s.creer_beton_situation_ec();
  l.s.affectation_coefficents_ec();
  l.s.set_label_situation(zof_conversion_en_label_situation(type));
}

void loc_lire_ponderation(lecture_situation& l, bool& erco) {
  zof_assert_commande(!zof_options.zof_option_retour_etat_0,
                      " La ponderation ne peut être modifiee en cas de retour  a l'etat 0 "_l1, erco);
  if (erco) return;
  zof_lire_reel_unique("POND", l.ponderation, erco);
  if (erco) return;
  zof_assert_commande(l.ponderation >= 0 && l.ponderation <= 1, " Attribut ponderation incorrect : <0 ou >1 ",
                      erco);
  if (erco) return;
  l.s.m_ponderation_lois_ct_lt = l.ponderation;
  l.s.m_le_beton_ec.set_ponderation_lois_ct_lt(l.ponderation);
}

void loc_lire_type_loi_elu(lecture_situation& l, bool& erco) {
  zof_assert_commande(!l.parametres_lus, " L'option ELU doit preceder la definition des parametres", erco);
  if (erco) return;
  zof_lire_choix_unique("ELU", {{"BILI"_mot, type_loi_bilineaire}, {"PARA"_mot, type_loi_parabole}},
                        l.type_loi_elu, erco);
  if (!erco) l.s.m_type_loi_elu = l.type_loi_elu;
}

void loc_lire_type_loi_els(lecture_situation& l, bool& erco) {
  zof_assert_commande(!l.parametres_lus, " L'option ELS doit preceder la definition des parametres", erco);
  if (erco) return;
  zof_lire_choix_unique("ELS",
                        {{"LINE"_mot, type_loi_lineaire},
                         {"PARA"_mot, type_loi_parabole},
                         {"EQUI"_mot, type_loi_lineaire_equivalente}},
                        l.type_loi_els, erco);
  if (erco) return;
  l.s.m_type_loi_els = l.type_loi_els;
  if (l.type_loi_els != type_loi_lineaire_equivalente) return;
  double n = 0;
  and_lire_reel_d(n, erco);
  if (erco) return;
  zof_assert_commande(n > 0, " Le Coefficient d equivalence doit etre superieur a zero", erco);
  if (!erco) l.s.m_coefficient_equivalence_els = n;
}

/// The kind of law that the second and third words name must be that of the situation.
void loc_controler_type_loi(const situation& s, const clef_para& lue, bool& erco) {
  const mot_clef etat = clef(lue.mots[1]);
  const mot_clef loi = clef(lue.mots[2]);
  const bool elu_incompatible =
      etat == "ELU"_mot && ((loi == "PARA"_mot && s.m_type_loi_elu != type_loi_parabole) ||
                            (loi == "BILI"_mot && s.m_type_loi_elu != type_loi_bilineaire));
  zof_assert_commande(!elu_incompatible, " Incompatibite avec le type de loi ELU", erco);
  const bool els_incompatible =
      etat == "ELS"_mot && loi == "PARA"_mot && s.m_type_loi_els != type_loi_parabole;
  zof_assert_commande(!els_incompatible, " Incompatibite avec le type de loi ELS", erco);
}

void loc_affecter_parametre(lecture_situation& l, const clef_para& lue, double valeur, bool& erco) {
  const int rang = zof_rang_entree_para<entree>(lue, entrees_para, l.parametres, erco);
  if (rang < 0) return;
  const auto i = static_cast<std::size_t>(rang);
  if (clef(lue.mots[3]) == "ENRO"_mot)
    zof_assert_commande(l.s.m_pt_materiau->m_is_beton_precontraint,
                        "Attribut ENROBAGE incorrect pour un béton non précontraint"_l1, erco);
  if (entrees_para[i].champ == &situation::m_degre_parabole_elu)
    zof_assert_commande(valeur > 1, concat({"Valeur degre ", lue.mots[0].entier(), " incorrect : <=1"}),
                        erco);
  if (erco) return;
  l.parametres[i] = valeur;
  l.s.*entrees_para[i].champ = valeur;
}

void loc_lire_parametres(lecture_situation& l, bool& erco) {
  zof_controler_situation_avant_para(l.s, erco);
  if (erco) return;
  l.parametres_lus = true;
  clef_para lue;
  while (zof_lire_clef_para("ALPH", lue, erco)) {
    loc_controler_type_loi(l.s, lue, erco);
    if (erco) return;
    const double valeur = zof_lire_valeur_para(lue, erco);
    if (erco) return;
    loc_affecter_parametre(l, lue, valeur, erco);
    if (erco) return;
  }
}

void loc_finir_situation(lecture_situation& l, bool& erco) {
  zof_controle_mot_fin("FIN_SITU");
  zof_assert_commande(zof_situation_choisie(l.s), "la Situation de projet doit etre renseignee", erco);
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  if (erco) return;
  l.s.assigner_deformations();
  l.s.creer_lois();
}

}  // namespace

void zof_decoder_situation_beton_ec(zof_situation_beton_ec& situation_lue, bool& erco) {
  lecture_situation l(situation_lue);
  situation_lue.m_ponderation_lois_ct_lt = zof_options.zof_option_ponderation_lois_ct_lt;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "EXPL"_mot:
      case "CONS"_mot:
      case "ACCI"_mot:
      case "SEIS"_mot: loc_choisir_situation(l, mot, erco); break;
      case "TITR"_mot: zof_lire_titre_situation(situation_lue, l.titre, erco); break;
      case "POND"_mot: loc_lire_ponderation(l, erco); break;
      case "ELU"_mot: loc_lire_type_loi_elu(l, erco); break;
      case "ELS"_mot: loc_lire_type_loi_els(l, erco); break;
      case "PARA"_mot: loc_lire_parametres(l, erco); break;
      case "FIN_"_mot: loc_finir_situation(l, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
    l.premier_mot = false;
  }
}
