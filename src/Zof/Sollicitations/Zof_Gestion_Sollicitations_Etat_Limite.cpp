// The ETAT block of a loading: its phases and their efforts.

#include <algorithm>
#include <vector>

#include "And_anadon.hpp"
#include "Zof_Classe_Nom.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Lecture_Sollicitations.hpp"
#include "Zof_Regles_Cloture.hpp"
#include "Zof_Types_Effort.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"
#include "Zof_Zones_Sollicitations.hpp"

using namespace socle;

namespace {

/// What is known while an ETAT block is read.
struct lecture_etat_limite {
  zof_efforts_etat_limite& enregistrement;
  const uef_vector& les_enregistrements;
  const texte<32>& nom_section;
  zof_regime regime;
  int nb_phases = 0;                         // phases read by PHAS
  std::vector<texte<32>> noms_cumules = {};  // zones of all phases read so far, repeats kept
  bool effort_lu = false;                    // in the present phase
  zof_presence presence = {};                // of the efforts of the present phase
};

template <std::size_t N>
void loc_controle_cloture(const std::array<zof_regle_cloture, N>& regles, const lecture_etat_limite& l,
                          bool& erco) {
  for (const zof_regle_cloture& regle : regles) {
    zof_assert_commande(!regle.enfreinte(l.presence, l.regime), regle.message, erco);
    if (erco) return;
  }
}

void loc_lire_ponderation(bool& pondere, bool& erco) {
  texte<4> mot;
  and_lire_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "A_PO"_mot: pondere = false; break;
    case "POND"_mot: pondere = true; break;
    default: zof_attribut_incorrect(mot, erco);
  }
}

/// Limit state, situation, and whether the forces are weighted; the section must know the pair.
void loc_lire_tete(zof_efforts_etat_limite& e, const texte<32>& nom_section, bool& erco) {
  zof_decoder_etat_limite(e.m_label_etat_limite, erco);
  if (erco) return;
  zof_lire_mot_attendu("SITU"_mot, erco);
  if (erco) return;
  zof_decoder_situation(e.m_label_situation, erco);
  if (erco) return;
  loc_lire_ponderation(e.m_etat_limite_pondere, erco);
  if (erco) return;
  zof_assert_commande(zof_existe_situation_section(nom_section, e.m_label_situation),
                      concat({"Situation non definie : ", e.m_label_situation.entier()}), erco);
  if (erco) return;
  zof_assert_commande(
      zof_existe_etat_limite_situation_section(nom_section, e.m_label_situation, e.m_label_etat_limite),
      concat({"Etat limite non defini :", e.m_label_etat_limite.utile(),
              " pour la situation : ", e.m_label_situation.utile()}),
      erco);
}

void loc_noter_presence(lecture_etat_limite& l) {
  const auto& effort =
      zof_element<zof_effort>(l.enregistrement.m_les_efforts, l.enregistrement.m_les_efforts.nombre());
  l.presence |= zof_pt_type_effort(effort.m_label_effort.utile())->presence;
  l.effort_lu = true;
}

void loc_lire_effort(lecture_etat_limite& l, bool& erco) {
  zof_assert_commande(!l.regime.phasee || l.nb_phases > 0,
                      "PHASE Prealable Obligatoire si Sollicitation declaree PHASEE", erco);
  if (erco) return;
  uef_vector& phases = l.enregistrement.m_les_phases;
  const auto& phase = zof_element<zof_phase>(phases, phases.nombre());
  auto& effort = zof_ajouter<zof_effort>(l.enregistrement.m_les_efforts);
  effort.m_nom_section = l.nom_section;
  effort.m_pt_phase_courante = &phase;
  effort.m_numero_phase = phases.nombre();
  zof_decoder_efforts(effort, l.nom_section, l.enregistrement.m_etat_limite_pondere, erco);
  if (erco) return;
  loc_noter_presence(l);
  if (est_renseigne_chaine(effort.m_nom_zone_repere_brut))
    zof_calcul_efforts_en_repere_sollicitations(effort);
  if (l.regime.phasee && l.regime.precontrainte)
    zof_controle_tensions_phase(effort, l.nom_section, phase.m_les_noms_zones_actives, erco);
}

void loc_lire_memes_efforts(lecture_etat_limite& l, bool& erco) {
  zof_assert_commande(!l.regime.phasee, "Option MEME interdite en mode Phasage", erco);
  if (erco) return;
  zof_decoder_memes_efforts(l.enregistrement, l.enregistrement.m_etat_limite_pondere, l.les_enregistrements,
                            l.nom_section, erco);
  if (erco) return;
  loc_noter_presence(l);
}

void loc_clore_phase(const lecture_etat_limite& l, bool& erco) {
  zof_assert_commande(l.effort_lu, "Aucun effort defini dans phase", erco);
  if (erco) return;
  loc_controle_cloture(regles_cloture::phase, l, erco);
}

/// A phase takes up every zone of the phases before it, or none: what stands apart is joined whole.
void loc_lire_phase(lecture_etat_limite& l, bool& erco) {
  zof_assert_commande(l.regime.phasee, "Phase interdite si Sollicitation non declare PHASEE", erco);
  if (erco) return;
  if (l.nb_phases > 0) loc_clore_phase(l, erco);
  if (erco) return;
  auto& phase = zof_ajouter<zof_phase>(l.enregistrement.m_les_phases);
  std::vector<texte<32>> noms_courants;
  zof_decoder_phase(phase, l.nom_section, noms_courants, erco);
  if (erco) return;
  ++l.nb_phases;
  if (!zof_intersection_vide_zones_phase(l.noms_cumules, noms_courants))
    zof_controle_completion_zones_phase(l.noms_cumules, noms_courants, erco);
  if (erco) return;
  l.noms_cumules.insert(l.noms_cumules.end(), noms_courants.begin(), noms_courants.end());
  l.effort_lu = false;
  l.presence = {};
}

void loc_finir_etat_limite(const lecture_etat_limite& l, bool& erco) {
  zof_controle_mot_fin("FIN_ETAT");
  zof_assert_commande(l.effort_lu, "Aucun effort defini", erco);
  if (erco) return;
  loc_controle_cloture(regles_cloture::etat_limite, l, erco);
}

std::vector<std::string_view> loc_tries(std::span<const texte<32>> noms) {
  std::vector<std::string_view> tries;
  tries.reserve(noms.size());
  for (const texte<32>& nom : noms) tries.push_back(nom.utile());
  std::ranges::sort(tries);
  return tries;
}

}  // namespace

void zof_decoder_efforts_etat_limite(zof_efforts_etat_limite& enregistrement,
                                     const uef_vector& les_enregistrements, const texte<32>& nom_section,
                                     bool precontrainte_postendue, bool& erco) {
  lecture_etat_limite l{.enregistrement = enregistrement,
                        .les_enregistrements = les_enregistrements,
                        .nom_section = nom_section,
                        .regime = {.precontrainte = zof_est_section_precontrainte(nom_section),
                                   .postendue = precontrainte_postendue,
                                   .phasee = gestion_sollicitations.zof_mod_sollicitation_phasee}};
  if (!l.regime.phasee) {
    auto& phase = zof_ajouter<zof_phase>(enregistrement.m_les_phases);
    phase.m_le_titre_phase = "Phase initiale";
    phase.m_numero_phase = 1;
  }
  loc_lire_tete(enregistrement, nom_section, erco);
  if (erco) return;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "EFFO"_mot: loc_lire_effort(l, erco); break;
      case "MEME"_mot: loc_lire_memes_efforts(l, erco); break;
      case "PHAS"_mot: loc_lire_phase(l, erco); break;
      case "FIN_"_mot: return loc_finir_etat_limite(l, erco);
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_decoder_phase(zof_phase& phase, const texte<32>& nom_section, std::vector<texte<32>>& noms_zones,
                       bool& erco) {
  zof_decoder_titre(phase.m_le_titre_phase, erco);
  if (erco) return;
  zof_lire_mot_attendu("ZONE"_mot, erco);
  if (erco) return;
  zof_nom nom;
  for (and_lire_nom(nom.m_nom, 32, erco); !erco; and_lire_nom(nom.m_nom, 32, erco)) {
    if (clef(nom.m_nom.utile()) == "FIN_"_mot) break;
    zof_assert_commande(
        zof_est_contour_ou_profil(nom_section, nom.m_nom),
        concat({"Zone ", nom.m_nom.utile(), " : n existe pas ou n est pas du type contour ou parois"}), erco);
    if (erco) return;
    phase.m_les_noms_zones_actives.ajouter(nom);
    noms_zones.push_back(nom.m_nom);
  }
  if (erco) return;
  zof_controle_mot_fin("FIN_ZONE");
  zof_assert_commande(!noms_zones.empty(), "Aucun nom de zone n est defini", erco);
}

bool zof_intersection_vide_zones_phase(std::span<const texte<32>> noms_cumules,
                                       std::span<const texte<32>> noms_courants) {
  const std::vector<std::string_view> courants = loc_tries(noms_courants);
  return std::ranges::none_of(
      noms_cumules, [&](const texte<32>& nom) { return std::ranges::binary_search(courants, nom.utile()); });
}

void zof_controle_completion_zones_phase(std::span<const texte<32>> noms_cumules,
                                         std::span<const texte<32>> noms_courants, bool& erco) {
  const std::vector<std::string_view> courants = loc_tries(noms_courants);
  for (const texte<32>& nom : noms_cumules) {
    zof_assert_commande(
        std::ranges::binary_search(courants, nom.utile()),
        concat({nom.utile(),
                " non activee dans la phase CONTINUE courante alors qu elle est active dans une phase "
                "precedente"}),
        erco);
    if (erco) return;
  }
}
