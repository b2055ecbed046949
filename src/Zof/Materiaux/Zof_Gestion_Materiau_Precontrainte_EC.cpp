#include "Zof_Gestion_Materiau_Precontrainte_EC.hpp"

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

/// Data of a block PREC: each is not given until its keyword is met.
struct lecture_precontrainte {
  zof_materiau_precontrainte_ec& materiau;
  texte<80> titre = non_renseigne;
  double fp0_1k = non_renseigne, fpk = non_renseigne;
  int type = non_renseigne;
};

void loc_lire_resistance(vue_l1 mot, vue_l1 refus, double& copie, double& champ, bool& erco) {
  zof_lire_reel_unique(mot, copie, erco);
  if (erco) return;
  zof_assert_commande(!(copie <= 0), refus, erco);
  if (!erco) champ = copie;
}

void loc_lire_type(lecture_precontrainte& l, bool& erco) {
  zof_lire_choix_unique(
      "TYPE",
      {{"TORO"_mot, precontrainte_toron}, {"FIL"_mot, precontrainte_fil}, {"BARR"_mot, precontrainte_barre}},
      l.type, erco);
  if (!erco) l.materiau.m_type_precontrainte = l.type;
}

void loc_lire_situation(lecture_precontrainte& l, bool& erco) {
  zof_assert_commande(est_renseigne_double(l.fp0_1k), "FP0.1K doit etre renseigne avant l option Situation",
                      erco);
  zof_assert_commande(est_renseigne_double(l.fpk), "FPK doit etre renseigne avant l option Situation", erco);
  if (!erco) zof_decoder_nouvelle_situation<zof_situation_precontrainte_ec>(l.materiau, erco);
}

void loc_finir_materiau(lecture_precontrainte& l, bool& erco) {
  zof_controle_mot_fin("FIN_MATE");
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  zof_assert_renseigne_double(l.fp0_1k, "FP0_", erco);
  zof_assert_renseigne_double(l.fpk, "FPK", erco);
  if (erco) return;
  zof_assert_commande(l.fp0_1k < l.fpk, "fp0_1k >= Fpk ", erco);
  if (erco) return;
  zof_creer_situations_absentes(l.materiau, &zof_materiau_precontrainte_ec::creer_situation_precontrainte);
}

}  // namespace

void zof_materiau_precontrainte_ec::editer_materiau(bool& erco) const {
  zof_editer_materiau_precontrainte_ec(*this, erco);
}
void zof_materiau_precontrainte_ec::decoder_materiau(bool& erco) {
  zof_decoder_materiau_precontrainte_ec(*this, erco);
}
void zof_materiau_precontrainte_ec::creer_situation_precontrainte(int type_situation) {
  zof_creer_situation_precontrainte(*this, type_situation);
}

double zof_get_fpk(const zof_materiau_precontrainte_ec& materiau) { return materiau.m_fpk; }
double zof_get_fp0_1k(const zof_materiau_precontrainte_ec& materiau) { return materiau.m_fp0_1k; }

void zof_decoder_materiau_precontrainte_ec(zof_materiau_precontrainte_ec& materiau, bool& erco) {
  lecture_precontrainte l{.materiau = materiau};
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "TITR"_mot: zof_lire_titre_materiau(materiau, l.titre, erco); break;
      case "FP01"_mot:
        loc_lire_resistance("FP01", " Attribut Fp0_1K incorrect : <=0 ", l.fp0_1k, materiau.m_fp0_1k, erco);
        break;
      case "FPK"_mot:
        loc_lire_resistance("FPK", " Attribut FpK incorrect : <=0 ", l.fpk, materiau.m_fpk, erco);
        break;
      case "TYPE"_mot: loc_lire_type(l, erco); break;
      case "SITU"_mot: loc_lire_situation(l, erco); break;
      case "FIN_"_mot: loc_finir_materiau(l, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_creer_situation_precontrainte(zof_materiau_precontrainte_ec& materiau, int type_situation) {
  zof_situation_precontrainte_ec& s = zof_ajouter_situation<zof_situation_precontrainte_ec>(materiau);
  s.set_type_situation_projet(type_situation);
  s.affectation_coefficents_ec();
  zof_intituler_situation_par_defaut(s);
  s.creer_lois();
  materiau.m_les_situations.depointer_dernier();
}
