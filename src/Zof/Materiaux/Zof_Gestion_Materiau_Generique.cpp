#include "Zof_Gestion_Materiau_Generique.hpp"

#include "And_anadon.hpp"
#include "QB7_Lois.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Edition.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Gestion_Materiau_Lois.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

/// Data of a block SPEC: each is not given until its keyword is met.
struct lecture_generique {
  zof_materiau_generique& materiau;
  texte<80> titre = non_renseigne;
  bool situation_lue = false;
};

void loc_lire_situation(lecture_generique& l, bool& erco) {
  l.situation_lue = true;
  zof_decoder_nouvelle_situation<zof_situation_materiau_generique>(l.materiau, erco);
}

void loc_finir_materiau(const lecture_generique& l, bool& erco) {
  zof_controle_mot_fin("FIN_MATE");
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  zof_assert_commande(l.situation_lue, " Situation non renseignee ", erco);
}

/// Data of a situation block. Each keyword of a law may stand once: ELU is one keyword, whatever its state.
struct lecture_situation {
  zof_situation_materiau_generique& s;
  texte<80> titre = non_renseigne;
  bool elu_lu = false, cara_lu = false, freq_lu = false, quas_lu = false;

  [[nodiscard]] bool a_une_loi() const { return elu_lu || cara_lu || freq_lu || quas_lu; }
};

/// The kind of the situation may stand behind its title, but not behind another kind.
void loc_choisir_situation(lecture_situation& l, const texte<4>& mot, bool& erco) {
  const int type = zof_lire_situation(mot, !zof_situation_choisie(l.s), *l.s.m_pt_materiau, erco);
  if (erco) return;
  l.s.set_type_situation_projet(type);
  l.s.set_label_situation(zof_conversion_en_label_situation(type));
}

/// A law may stand here, and the keyword did not yet.
void loc_controler_mot_loi(const lecture_situation& l, vue_l1 mot, bool& deja_lu, bool& erco) {
  zof_assert_commande(zof_situation_choisie(l.s),
                      "La Situation de projet doit etre choisie avant la definition des lois", erco);
  if (erco) return;
  zof_non_repetition_mot_clef(deja_lu, mot, erco);
  deja_lu = true;
}

void loc_lire_loi_service(lecture_situation& l, vue_l1 mot, const texte<32>& label_etat_limite, bool& deja_lu,
                          bool& erco) {
  loc_controler_mot_loi(l, mot, deja_lu, erco);
  if (!erco) zof_decoder_creer_loi(l.s, label_etat_limite, erco);
}

void loc_lire_loi_ultime(lecture_situation& l, bool& erco) {
  loc_controler_mot_loi(l, "ELU", l.elu_lu, erco);
  if (erco) return;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "DURA"_mot: zof_decoder_creer_loi(l.s, "ELU_DURABLE", erco); break;
    case "ACCI"_mot: zof_decoder_creer_loi(l.s, "ELU_ACCIDENT", erco); break;
    default: zof_attribut_incorrect(mot, erco);
  }
}

void loc_finir_situation(const lecture_situation& l, bool& erco) {
  zof_controle_mot_fin("FIN_SITU");
  zof_assert_commande(zof_situation_choisie(l.s), "La Situation de projet doit etre definie", erco);
  zof_assert_commande(l.a_une_loi(), "Aucune loi n est definie", erco);
  zof_assert_renseigne_chaine(l.titre, "Titre", erco);
  if (erco || est_situation_accidentelle(l.s.get_type_situation_projet())) return;
  zof_exiger(qb7_loi_charpente_meca(l.s.get_numero_materiau_qb7(), zof_ajouter_etats_mecaniques(l.s)));
}

}  // namespace

void zof_materiau_generique::editer_materiau(bool& erco) const {
  zof_editer_titre_materiau(*this);
  zof_editer_situations(*this, erco);
}
void zof_materiau_generique::decoder_materiau(bool& erco) { zof_decoder_materiau_generique(*this, erco); }

void zof_situation_materiau_generique::editer_situation(bool&) const {
  zof_editer_titre_situation(*this);
  zof_editer_lois_situation(*this);
}
void zof_situation_materiau_generique::decoder_situation(bool& erco) {
  zof_decoder_situation_materiau_generique(*this, erco);
}

void zof_decoder_materiau_generique(zof_materiau_generique& materiau, bool& erco) {
  lecture_generique l{.materiau = materiau};
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "TITR"_mot: zof_lire_titre_materiau(materiau, l.titre, erco); break;
      case "SITU"_mot: loc_lire_situation(l, erco); break;
      case "FIN_"_mot: loc_finir_materiau(l, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_decoder_situation_materiau_generique(zof_situation_materiau_generique& situation, bool& erco) {
  lecture_situation l{.s = situation};
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "EXPL"_mot:
      case "CONS"_mot:
      case "ACCI"_mot:
      case "SEIS"_mot: loc_choisir_situation(l, mot, erco); break;
      case "TITR"_mot: zof_lire_titre_situation(situation, l.titre, erco); break;
      case "ELU"_mot: loc_lire_loi_ultime(l, erco); break;
      case "CARA"_mot: loc_lire_loi_service(l, "CARA", "ELS_CAR", l.cara_lu, erco); break;
      case "FREQ"_mot: loc_lire_loi_service(l, "FREQ", "ELS_FRE", l.freq_lu, erco); break;
      case "QUAS"_mot: loc_lire_loi_service(l, "QUAS", "ELS_QP", l.quas_lu, erco); break;
      case "FIN_"_mot: loc_finir_situation(l, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}
