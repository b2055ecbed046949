#include "Zof_Gestion_Sollicitations.hpp"

#include <algorithm>
#include <array>

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Lecture_Sollicitations.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

gestion_sollicitations_t gestion_sollicitations;
void gestion_sollicitations_reinitialiser() { gestion_sollicitations = {}; }

namespace {

struct mots_etat_limite {
  mot_clef premier;
  mot_clef second;
  std::string_view label;
};
// EN 1990 6.5.3 and 6.4.3; ELS_ (not cracked) against ELS (cracked).
constexpr std::array<mots_etat_limite, 8> loc_etats_limites = {{
    {"ELS"_mot, "CARA"_mot, "ELS_CAR"},
    {"ELS"_mot, "FREQ"_mot, "ELS_FRE"},
    {"ELS"_mot, "QUAS"_mot, "ELS_QP"},
    {"ELS_"_mot, "CARA"_mot, "ELS_CAR_NF"},
    {"ELS_"_mot, "FREQ"_mot, "ELS_FRE_NF"},
    {"ELS_"_mot, "QUAS"_mot, "ELS_QP_NF"},
    {"ELU"_mot, "DURA"_mot, "ELU_DURABLE"},
    {"ELU"_mot, "ACCI"_mot, "ELU_ACCIDENT"},
}};

struct mot_situation {
  mot_clef mot;
  std::string_view label;
};
constexpr std::array<mot_situation, 5> loc_situations = {{
    {"SERV"_mot, "EXPLOITATION_SERVICE"},
    {"INFI"_mot, "EXPLOITATION_INFINIE"},
    {"ACCI"_mot, "ACCIDENT"},
    {"CONS"_mot, "CONSTRUCTION"},
    {"SEIS"_mot, "SEISME"},
}};

void loc_lire_mot_clef(texte<4>& mot, bool& erco) { and_lire_deb_nom(mot, 4, erco); }
void loc_lire_mot_court(texte<4>& mot, bool& erco) { and_lire_nom(mot, 4, erco); }
/// Section, then the loading's own name: a pair that is new.
void loc_lire_tete(texte<32>& nom, texte<32>& nom_section, bool& erco) {
  and_lire_nom(nom, 32, erco);
  if (erco) return;
  zof_lire_mot_attendu("SECT"_mot, erco);
  if (erco) return;
  and_lire_nom(nom_section, 32, erco);
  if (erco) return;
  zof_assert_commande(zof_existe_section(nom_section),
                      concat({"Section non definie :", nom_section.entier()}), erco);
  if (erco) return;
  zof_assert_commande(
      !zof_existe_sollicitations(nom_section, nom),
      concat({"Sollicitations : ", nom.utile(), " deja definies pour : ", nom_section.utile()}), erco);
}

/// The word PHAS may follow the name of the section.
bool loc_lire_option_phasee(bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return false;
  if (clef(mot) == "PHAS"_mot) return true;
  and_relire_donnee();
  return false;
}

void loc_lire_titre(zof_sollicitations& s, bool& erco) {
  zof_non_repetition_chaine("TITR", s.m_titre, erco);
  if (erco) return;
  zof_decoder_titre(s.m_titre, erco);
}

/// Behind Y: the origin and the angle, in this order.
void loc_lire_repere_defini(zof_sollicitations& s, bool& erco) {
  and_lire_reel_d(s.m_y, erco);
  if (erco) return;
  zof_lire_mot_attendu("Z"_mot, erco);
  if (erco) return;
  and_lire_reel_d(s.m_z, erco);
  if (erco) return;
  zof_lire_mot_attendu("ANGL"_mot, erco);
  if (erco) return;
  and_lire_reel_d(s.m_alpha, erco);
  if (erco) return;
  gestion_sollicitations.zof_mod_repere_defini = zof_repere_degres(s.m_y, s.m_z, s.m_alpha);
}

void loc_lire_repere(zof_sollicitations& s, bool& erco) {
  zof_assert_commande(!est_renseigne_integer(s.m_type_repere), "Repere deja defini", erco);
  if (erco) return;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "BRUT"_mot: s.m_type_repere = type_repere_brut; break;
    case "GEOM"_mot: s.m_type_repere = type_repere_geometrique; break;
    case "Y"_mot:
      s.m_type_repere = type_repere_defini;
      loc_lire_repere_defini(s, erco);
      break;
    default: zof_attribut_incorrect(mot, erco);
  }
  if (erco) return;
  gestion_sollicitations.zof_mod_type_repere = s.m_type_repere;
}

void loc_lire_precontrainte(zof_sollicitations& s, bool deja_lue, bool& erco) {
  zof_assert_commande(!deja_lue, "Precontrainte totale/hyper deja definie", erco);
  if (erco) return;
  zof_assert_commande(zof_est_section_precontrainte(s.m_nom_section),
                      " option precontrainte incorrecte pour section non precontrainte", erco);
  if (erco) return;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "TOTA"_mot: s.m_est_precontrainte_iso_incluse = true; break;
    case "HYPE"_mot: s.m_est_precontrainte_iso_incluse = false; break;
    default: return zof_attribut_incorrect(mot, erco);
  }
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "PRET"_mot: s.m_est_precontrainte_postendue = false; break;
    case "POST"_mot: s.m_est_precontrainte_postendue = true; break;
    default: zof_attribut_incorrect(mot, erco);
  }
}

/// A word of a factor line.
void loc_lire_mot_ponderation(mot_clef attendu, vue_l1 message, bool& erco) {
  texte<4> mot;
  loc_lire_mot_court(mot, erco);
  if (erco) return;
  zof_assert_commande(clef(mot) == attendu, message, erco);
}

/// The action of a factor line: rank of G, P or Q.
void loc_lire_action(int& action, bool& erco) {
  texte<1> lettre;
  and_lire_nom(lettre, 1, erco);
  if (erco) return;
  const auto rang = std::string_view("GPQ").find(lettre.entier());
  zof_assert_commande(rang != std::string_view::npos, concat({"Type d effort incorrect: ", lettre.entier()}),
                      erco);
  if (erco) return;
  action = static_cast<int>(rang) + 1;
}

/// FAVO value DEFA value. A favourable factor lessens an action, an unfavourable one increases it.
void loc_lire_facteurs(zof_ponderation& ponderation, bool& erco) {
  loc_lire_mot_ponderation("FAVO"_mot, "syntaxe incorrecte: mot clef FAVORABLE attendu", erco);
  if (erco) return;
  and_lire_reel_d(ponderation.favorable, erco);
  if (erco) return;
  loc_lire_mot_ponderation("DEFA"_mot, "syntaxe incorrecte: mot clef DEFAVORABLE attendu", erco);
  if (erco) return;
  and_lire_reel_d(ponderation.defavorable, erco);
  if (erco) return;
  zof_assert_commande(ponderation.defavorable >= ponderation.favorable,
                      "valeurs incorrectes: v_fav > v_defavorable", erco);
  if (erco) return;
  zof_assert_commande(ponderation.favorable <= 1, "valeurs incorrectes: v_fav superieur a 1", erco);
  if (erco) return;
  zof_assert_commande(ponderation.defavorable >= 1, "valeurs incorrectes: v_defav inferieur a 1", erco);
}

void loc_lire_ponderations(zof_sollicitations& s, bool& erco) {
  s.m_est_ponderation_surchargee = true;
  for (;;) {
    zof_decoder_surcharge_ponderation(s.m_ponderations_gpq12, erco);
    if (erco) return;
    texte<4> mot;
    and_lire_deb_nom(mot, 4, erco);
    if (erco) return;
    if (clef(mot) == "FIN_"_mot) return zof_controle_mot_fin("FIN_POND");
    and_relire_donnee();
  }
}

void loc_lire_etat_limite(zof_sollicitations& s, bool& erco) {
  zof_efforts_etat_limite& enregistrement = zof_ajouter<zof_efforts_etat_limite>(s.m_les_efforts_etat_limite);
  enregistrement.m_nom_section = s.m_nom_section;
  zof_decoder_efforts_etat_limite(enregistrement, s.m_les_efforts_etat_limite, s.m_nom_section,
                                  s.m_est_precontrainte_postendue, erco);
}

void loc_finir_sollicitations(const zof_sollicitations& s, bool precontrainte_lue, bool& erco) {
  zof_controle_mot_fin("FIN_SOLL");
  zof_assert_renseigne_chaine(s.m_titre, "Titre", erco);
  if (erco) return;
  zof_assert_renseigne_integer(s.m_type_repere, "REPERE", erco);
  if (erco) return;
  zof_assert_commande(precontrainte_lue || !zof_est_section_precontrainte(s.m_nom_section),
                      "Precontrainte totale/hyper non definie", erco);
  if (erco) return;
  zof_assert_commande(s.m_les_efforts_etat_limite.nombre() > 0, "Aucun etat limite defini", erco);
}

}  // namespace

void zof_decoder_etat_limite(zof_lecture_mot lire, texte<32>& label, bool& erco) {
  texte<4> premier;
  lire(premier, erco);
  if (erco) return;
  const auto est_premier = [&](const mots_etat_limite& m) { return m.premier == clef(premier); };
  if (std::ranges::none_of(loc_etats_limites, est_premier)) return zof_attribut_incorrect(premier, erco);
  texte<4> second;
  lire(second, erco);
  if (erco) return;
  for (const mots_etat_limite& m : loc_etats_limites)
    if (est_premier(m) && m.second == clef(second)) {
      label = m.label;
      return;
    }
  zof_attribut_incorrect(second, erco);
}

void zof_decoder_situation(zof_lecture_mot lire, texte<32>& label, bool& erco) {
  texte<4> mot;
  lire(mot, erco);
  if (!erco && clef(mot) == "EXPL"_mot) lire(mot, erco);
  if (erco) return;
  for (const mot_situation& m : loc_situations)
    if (m.mot == clef(mot)) {
      label = m.label;
      return;
    }
  zof_attribut_incorrect(mot, erco);
}

void zof_decoder_etat_limite(texte<32>& label_etat_limite, bool& erco) {
  zof_decoder_etat_limite(loc_lire_mot_clef, label_etat_limite, erco);
}

void zof_decoder_situation(texte<32>& label_situation, bool& erco) {
  zof_decoder_situation(loc_lire_mot_clef, label_situation, erco);
}

void zof_decoder_surcharge_ponderation(zof_ponderations_gpq12& ponderations, bool& erco) {
  loc_lire_mot_ponderation("ETAT"_mot, "Dans Ponderation mot ETAT attendu", erco);
  if (erco) return;
  texte<32> etat_limite;
  zof_decoder_etat_limite(loc_lire_mot_court, etat_limite, erco);
  if (erco) return;
  loc_lire_mot_ponderation("SITU"_mot, "Dans Ponderation mot SITU attendu", erco);
  if (erco) return;
  texte<32> situation;
  zof_decoder_situation(loc_lire_mot_court, situation, erco);
  if (erco) return;
  loc_lire_mot_ponderation("EFFO"_mot, "Dans Ponderation mot EFFO attendu", erco);
  if (erco) return;
  int action = 0;
  loc_lire_action(action, erco);
  if (erco) return;
  zof_ponderation ponderation;
  loc_lire_facteurs(ponderation, erco);
  if (erco) return;
  const int s = zof_conversion_en_type_situation(situation);
  const int e = zof_conversion_en_type_etat_limite(etat_limite);
  ponderations(s, e, action, 1) = ponderation.defavorable;
  ponderations(s, e, action, 2) = ponderation.favorable;
}

void zof_decoder_sollicitations(bool& erco) {
  gestion_sollicitations.zof_mod_sollicitation_phasee = false;
  texte<32> nom;
  texte<32> nom_section;
  loc_lire_tete(nom, nom_section, erco);
  if (erco) return;
  const bool phasee = loc_lire_option_phasee(erco);
  if (erco) return;
  gestion_sollicitations.zof_mod_sollicitation_phasee = phasee;
  auto& s = zof_ajouter<zof_sollicitations>(gestion_sollicitations.zof_mod_les_sollicitations);
  s.m_nom_section_sollicitations = concat({nom_section.utile(), "_", nom.utile()});
  s.m_nom_section = nom_section;
  s.m_est_phasee = phasee;
  zof_decoder_corps_sollicitations(s, erco);
}

void zof_decoder_corps_sollicitations(zof_sollicitations& sollicitations, bool& erco) {
  bool precontrainte_lue = false;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "TITR"_mot: loc_lire_titre(sollicitations, erco); break;
      case "REPE"_mot: loc_lire_repere(sollicitations, erco); break;
      case "PREC"_mot:
        loc_lire_precontrainte(sollicitations, precontrainte_lue, erco);
        precontrainte_lue = true;
        break;
      case "POND"_mot: loc_lire_ponderations(sollicitations, erco); break;
      case "ETAT"_mot: loc_lire_etat_limite(sollicitations, erco); break;
      case "FIN_"_mot: return loc_finir_sollicitations(sollicitations, precontrainte_lue, erco);
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}
