#include "Zof_Gestion_Materiau_Acier_EC.hpp"

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

/// Data of a block ACIE: each is not given until its keyword is met.
struct lecture_acier {
  zof_materiau_acier_ec& materiau;
  texte<80> titre = non_renseigne;
  double fyk = non_renseigne;
  int type = non_renseigne, section = non_renseigne, confine = non_renseigne, fatigue = non_renseigne,
      fissuration = non_renseigne, exposition = non_renseigne;
};

void loc_lire_fyk(lecture_acier& l, bool& erco) {
  zof_lire_reel_unique("FYK", l.fyk, erco);
  if (erco) return;
  zof_assert_commande(!(l.fyk <= 0), " Attribut FYK incorrect : <=0 ", erco);
  if (!erco) l.materiau.m_fyk = l.fyk;
}

void loc_lire_section(lecture_acier& l, bool& erco) {
  zof_lire_choix_unique(
      "SECT",
      {{"NORM"_mot, categorie_normale}, {"PIEU"_mot, categorie_pieu}, {"CAIS"_mot, categorie_caisson}},
      l.section, erco);
  if (!erco) l.materiau.set_categorie_zone_section(l.section);
}

void loc_lire_type(lecture_acier& l, bool& erco) {
  zof_lire_choix_unique(
      "TYPE", {{"T_A"_mot, ductilite_a}, {"T_B"_mot, ductilite_b}, {"T_C"_mot, ductilite_c}}, l.type, erco);
  if (!erco) l.materiau.m_type_acier = l.type;
}

void loc_lire_oui_non_unique(vue_l1 mot, int& copie, bool& champ, bool& erco) {
  zof_lire_choix_unique(mot, {{"OUI"_mot, 1}, {"NON"_mot, 0}}, copie, erco);
  if (!erco) champ = copie != 0;
}

/// FISS, with BP or BA before OUI or NON where the kind of section is told.
void loc_lire_fissuration(lecture_acier& l, bool& erco) {
  zof_non_repetition_integer("FISS", l.fissuration, erco);
  if (erco) return;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "BP"_mot: l.materiau.m_is_section_ba = false; break;
    case "BA"_mot: l.materiau.m_is_section_ba = true; break;
    default: and_relire_donnee();
  }
  loc_lire_oui_non_unique("FISS", l.fissuration, l.materiau.m_is_critere_fissuration_simplifie, erco);
}

void loc_lire_exposition(lecture_acier& l, bool& erco) {
  zof_lire_choix_unique("EXPO",
                        {{"X0"_mot, 1},
                         {"XD1"_mot, 2},
                         {"XD2"_mot, 3},
                         {"XD3"_mot, 4},
                         {"XC1"_mot, 5},
                         {"XC2"_mot, 6},
                         {"XC3"_mot, 7},
                         {"XC4"_mot, 8},
                         {"XS1"_mot, 9},
                         {"XS2"_mot, 10},
                         {"XS3"_mot, 11},
                         {"XF1"_mot, 12},
                         {"XF2"_mot, 13},
                         {"XF3"_mot, 14},
                         {"XF4"_mot, 15}},
                        l.exposition, erco);
  if (!erco) l.materiau.m_classe_exposition = l.exposition;
}

void loc_lire_situation(lecture_acier& l, bool& erco) {
  zof_assert_commande(est_renseigne_double(l.fyk), "FYK doit etre renseigne avant l option Situation", erco);
  if (!erco) zof_decoder_nouvelle_situation<zof_situation_acier_ec>(l.materiau, erco);
}

void loc_finir_materiau(lecture_acier& l, bool& erco) {
  zof_controle_mot_fin("FIN_MATE");
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  zof_assert_renseigne_double(l.fyk, "FYK", erco);
  if (erco) return;
  zof_creer_situations_absentes(l.materiau, &zof_materiau_acier_ec::creer_situation_acier);
}

}  // namespace

void zof_materiau_acier_ec::editer_materiau(bool& erco) const { zof_editer_materiau_acier_ec(*this, erco); }
void zof_materiau_acier_ec::decoder_materiau(bool& erco) { zof_decoder_materiau_acier_ec(*this, erco); }
void zof_materiau_acier_ec::creer_situation_acier(int type_situation) {
  zof_creer_situation_acier(*this, type_situation);
}

void zof_decoder_materiau_acier_ec(zof_materiau_acier_ec& materiau, bool& erco) {
  lecture_acier l{.materiau = materiau};
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "TITR"_mot: zof_lire_titre_materiau(materiau, l.titre, erco); break;
      case "FYK"_mot: loc_lire_fyk(l, erco); break;
      case "TYPE"_mot: loc_lire_type(l, erco); break;
      case "SECT"_mot: loc_lire_section(l, erco); break;
      case "CONF"_mot: loc_lire_oui_non_unique("CONF", l.confine, materiau.m_is_acier_confine, erco); break;
      case "FATI"_mot:
        loc_lire_oui_non_unique("FATI", l.fatigue, materiau.m_is_critere_fatigue_simplifie, erco);
        break;
      case "FISS"_mot: loc_lire_fissuration(l, erco); break;
      case "EXPO"_mot: loc_lire_exposition(l, erco); break;
      case "SITU"_mot: loc_lire_situation(l, erco); break;
      case "FIN_"_mot: loc_finir_materiau(l, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_creer_situation_acier(zof_materiau_acier_ec& materiau, int type_situation) {
  zof_situation_acier_ec& s = zof_ajouter_situation<zof_situation_acier_ec>(materiau);
  s.set_type_situation_projet(type_situation);
  s.fixer_parametres_defaut_situation();
  s.affectation_coefficents_ec();
  zof_intituler_situation_par_defaut(s);
  s.creer_lois();
  materiau.m_les_situations.depointer_dernier();
}
