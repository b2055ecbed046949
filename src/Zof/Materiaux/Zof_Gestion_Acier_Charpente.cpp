#include "Zof_Gestion_Acier_Charpente.hpp"

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

/// Data of a block CHAR: each is not given until its keyword is met.
struct lecture_charpente {
  zof_materiau_acier_charpente& materiau;
  texte<80> titre = non_renseigne;
  double fy = non_renseigne, fu = non_renseigne;
};

/// A strength is positive, and steel does not break before it yields.
void loc_lire_resistance(lecture_charpente& l, vue_l1 mot, vue_l1 refus, double& copie, double& champ,
                         bool& erco) {
  zof_lire_reel_unique(mot, copie, erco);
  if (erco) return;
  zof_assert_commande(copie > 0, refus, erco);
  if (erco) return;
  const bool connues = est_renseigne_double(l.fy) && est_renseigne_double(l.fu);
  zof_assert_commande(!connues || l.fy <= l.fu, " Fy > Fu ", erco);
  if (!erco) champ = copie;
}

void loc_lire_situation(lecture_charpente& l, bool& erco) {
  zof_assert_commande(est_renseigne_double(l.fy), "FY doit etre renseigne avant l option Situation", erco);
  zof_assert_commande(est_renseigne_double(l.fu), "FU doit etre renseigne avant l option Situation", erco);
  if (!erco) zof_decoder_nouvelle_situation<zof_situation_acier_charpente>(l.materiau, erco);
}

void loc_finir_materiau(lecture_charpente& l, bool& erco) {
  zof_controle_mot_fin("FIN_MATE");
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  zof_assert_renseigne_double(l.fy, "Fy", erco);
  zof_assert_renseigne_double(l.fu, "Fu", erco);
  if (erco) return;
  zof_creer_situations_absentes(l.materiau, &zof_materiau_acier_charpente::creer_situation_acier_charpente);
}

}  // namespace

void zof_materiau_acier_charpente::editer_materiau(bool& erco) const {
  zof_editer_materiau_acier_charpente(*this, erco);
}
void zof_materiau_acier_charpente::decoder_materiau(bool& erco) {
  zof_decoder_materiau_acier_charpente(*this, erco);
}
void zof_materiau_acier_charpente::creer_situation_acier_charpente(int type_situation) {
  zof_creer_situation_acier_charpente(*this, type_situation);
}

void zof_decoder_materiau_acier_charpente(zof_materiau_acier_charpente& materiau, bool& erco) {
  lecture_charpente l{.materiau = materiau};
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "TITR"_mot: zof_lire_titre_materiau(materiau, l.titre, erco); break;
      case "FY"_mot:
        loc_lire_resistance(l, "FY", " Attribut FY incorrect : <=0 ", l.fy, materiau.m_fy, erco);
        break;
      case "FU"_mot:
        loc_lire_resistance(l, "FU", " Attribut FU incorrect : <=0 ", l.fu, materiau.m_fu, erco);
        break;
      case "SITU"_mot: loc_lire_situation(l, erco); break;
      case "FIN_"_mot: loc_finir_materiau(l, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_creer_situation_acier_charpente(zof_materiau_acier_charpente& materiau, int type_situation) {
  zof_situation_acier_charpente& s = zof_ajouter_situation<zof_situation_acier_charpente>(materiau);
  s.set_type_situation_projet(type_situation);
  zof_affectation_coefficients_charpente_ec(s);
  zof_intituler_situation_par_defaut(s);
  zof_creer_lois_acier_charpente(s);
  materiau.m_les_situations.depointer_dernier();
}
