#include "Zof_Gestion_Materiau_Beton_EC.hpp"

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Options.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

/// Data of a block BETO: each is not given until its keyword is met.
struct lecture_beton {
  zof_materiau_beton_ec& materiau;
  texte<80> titre = non_renseigne;
  double fck = non_renseigne, humidite = non_renseigne, rayon = non_renseigne;
  int section = non_renseigne, precontraint = non_renseigne, fatigue = non_renseigne, type = non_renseigne,
      ciment = non_renseigne, exposition = non_renseigne;
};

void loc_lire_fck(lecture_beton& l, bool& erco) {
  zof_lire_reel_unique("FCK", l.fck, erco);
  if (erco) return;
  zof_assert_commande(!(l.fck <= 0), " Attribut FCK incorrect : <=0 ", erco);
  if (!erco) l.materiau.set_fck(l.fck);
}

void loc_lire_humidite(lecture_beton& l, bool& erco) {
  zof_lire_reel_unique("HUMI", l.humidite, erco);
  if (erco) return;
  zof_assert_commande(!(l.humidite <= 50 || l.humidite > 100),
                      " Attribut humidite incorrect : <= 50 ou > 100", erco);
  if (!erco) l.materiau.m_humidite_relative = l.humidite;
}

void loc_lire_rayon(lecture_beton& l, bool& erco) {
  zof_lire_reel_unique("RAYO", l.rayon, erco);
  if (erco) return;
  // The bound is a double: RAYO 0.01 is a little less once it has been read in single precision.
  zof_assert_commande(!(l.rayon <= 0.01 || l.rayon > 10), " Attribut rayon moyen incorrect : <=0.01 ou > 10",
                      erco);
  if (!erco) l.materiau.m_rayon_moyen = l.rayon;
}

void loc_lire_precontraint(lecture_beton& l, bool& erco) {
  zof_lire_choix_unique("PREC", {{"OUI"_mot, 1}, {"NON"_mot, 0}}, l.precontraint, erco);
  if (erco) return;
  l.materiau.m_is_beton_precontraint = l.precontraint != 0;
  l.materiau.set_type_materiau(l.precontraint != 0 ? type_materiau_beton_precontraint : type_materiau_beton);
}

/// The word of the criterion alone is on with OUI, and alone off with NON.
void loc_lire_fatigue(lecture_beton& l, bool& erco) {
  enum critere : int { tous, compression, traction };
  zof_lire_choix_unique("FATI", {{"TOUS"_mot, tous}, {"COMP"_mot, compression}, {"TRAC"_mot, traction}},
                        l.fatigue, erco);
  if (erco) return;
  const bool oui = zof_lire_oui_non(erco);
  if (erco) return;
  l.materiau.m_is_critere_fatigue_simplifie_comp = l.fatigue == traction ? !oui : oui;
  l.materiau.m_is_critere_fatigue_simplifie_trac = l.fatigue == compression ? !oui : oui;
}

void loc_lire_exposition(lecture_beton& l, bool& erco) {
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
                         {"XS3"_mot, 11}},
                        l.exposition, erco);
  if (!erco) l.materiau.m_classe_exposition = l.exposition;
}

void loc_lire_situation(lecture_beton& l, bool& erco) {
  zof_assert_commande(est_renseigne_double(l.fck), "FCK doit etre renseigne avant l'option Situation", erco);
  if (!erco) zof_decoder_nouvelle_situation<zof_situation_beton_ec>(l.materiau, erco);
}

void loc_lire_autre_mot(lecture_beton& l, const texte<4>& mot, bool& erco) {
  zof_materiau_beton_ec& m = l.materiau;
  switch (clef(mot)) {
    case "SECT"_mot:
      zof_lire_choix_unique(
          "SECT",
          {{"NORM"_mot, categorie_normale}, {"PIEU"_mot, categorie_pieu}, {"CAIS"_mot, categorie_caisson}},
          l.section, erco);
      if (!erco) m.set_categorie_zone_section(l.section);
      break;
    case "TYPE"_mot:
      zof_lire_choix_unique("TYPE",
                            {{"NORM"_mot, beton_normal},
                             {"SANS"_mot, beton_bhp_sans_silice},
                             {"AVEC"_mot, beton_bhp_avec_silice}},
                            l.type, erco);
      if (!erco) m.m_type_beton = l.type;
      break;
    case "CIME"_mot:
      zof_lire_choix_unique("CIME", {{"N"_mot, ciment_n}, {"R"_mot, ciment_r}, {"S"_mot, ciment_s}}, l.ciment,
                            erco);
      if (!erco) m.m_type_ciment = l.ciment;
      break;
    default: zof_attribut_incorrect(mot, erco);
  }
}

void loc_finir_materiau(lecture_beton& l, bool& erco) {
  zof_controle_mot_fin("FIN_MATE");
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  zof_assert_renseigne_double(l.fck, "FCK", erco);
  zof_assert_renseigne_integer(l.materiau.get_type_materiau(), "PRECONTRAINT", erco);
  if (erco) return;
  zof_creer_situations_absentes(l.materiau, &zof_materiau_beton_ec::creer_situation_beton);
}

}  // namespace

void zof_materiau_beton_ec::editer_materiau(bool& erco) const { zof_editer_materiau_beton_ec(*this, erco); }
void zof_materiau_beton_ec::decoder_materiau(bool& erco) { zof_decoder_materiau_beton_ec(*this, erco); }
void zof_materiau_beton_ec::creer_situation_beton(int type_situation) {
  zof_creer_situation_beton(*this, type_situation);
}

void zof_decoder_materiau_beton_ec(zof_materiau_beton_ec& materiau, bool& erco) {
  lecture_beton l{.materiau = materiau};
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "TITR"_mot: zof_lire_titre_materiau(materiau, l.titre, erco); break;
      case "FCK"_mot: loc_lire_fck(l, erco); break;
      case "HUMI"_mot: loc_lire_humidite(l, erco); break;
      case "RAYO"_mot: loc_lire_rayon(l, erco); break;
      case "PREC"_mot: loc_lire_precontraint(l, erco); break;
      case "FATI"_mot: loc_lire_fatigue(l, erco); break;
      case "EXPO"_mot: loc_lire_exposition(l, erco); break;
      case "SITU"_mot: loc_lire_situation(l, erco); break;
      case "FIN_"_mot: loc_finir_materiau(l, erco); return;
      default: loc_lire_autre_mot(l, mot, erco);
    }
    if (erco) return;
  }
}

void zof_creer_situation_beton(zof_materiau_beton_ec& materiau, int type_situation) {
  zof_situation_beton_ec& s = zof_ajouter_situation<zof_situation_beton_ec>(materiau);
  s.set_type_situation_projet(type_situation);
  s.fixer_ages();
  s.m_ponderation_lois_ct_lt = zof_options.zof_option_ponderation_lois_ct_lt;
  s.creer_beton_situation_ec();
  s.affectation_coefficents_ec();
  s.assigner_deformations();
  zof_intituler_situation_par_defaut(s);
  s.creer_lois();
  materiau.m_les_situations.depointer_dernier();
}
