// The EFFO, TENS and MEME blocks of a loading.

#include <optional>

#include "And_anadon.hpp"
#include "Zof_Classe_Nom.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Lecture_Sollicitations.hpp"
#include "Zof_Types_Effort.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"
#include "Zof_Zones_Sollicitations.hpp"

using namespace socle;

namespace {

/// What an EFFO block has brought so far.
struct lecture_effort {
  zof_effort& effort;
  const texte<32>& nom_section;
  const zof_type_effort* type = nullptr;
  bool n = false, my = false, mz = false, tensions = false;
};

/// The type of an effort, one of the five.
const zof_type_effort* loc_lire_type(texte<32>& label, bool& erco) {
  and_lire_nom(label, 32, erco);
  if (erco) return nullptr;
  const zof_type_effort* const type = zof_pt_type_effort(label.utile());
  zof_assert_commande(type != nullptr, concat({"Type d effort incorrect: ", label.entier()}), erco);
  return type;
}

void loc_refuser_precontrainte(const texte<32>& label, const zof_type_effort& type, bool& erco) {
  zof_assert_commande(!type.precontrainte,
                      concat({"Effort P incorrect pour une section non precontrainte : ", label.entier()}),
                      erco);
}

void loc_refuser_combinaison(const texte<32>& label, const zof_type_effort& type, bool pondere, bool& erco) {
  zof_assert_commande(pondere || !type.combinaison,
                      concat({"Type d effort incorrect pour Etat limite non pondere : ", label.entier()}),
                      erco);
}

void loc_lire_composante(vue_l1 nom, double& composante, bool& lue, bool& erco) {
  zof_assert_commande(!lue, concat({"Repetition de l effort ", nom}), erco);
  if (erco) return;
  lue = true;
  and_lire_reel_d(composante, erco);
}

void loc_lire_titre(zof_effort& effort, bool& erco) {
  zof_assert_commande(!est_renseigne_chaine(effort.m_titre), "Repetition de titre", erco);
  if (erco) return;
  int longueur = 0;
  and_lire_chaine(effort.m_titre, 160, longueur, erco);
}

void loc_lire_repere_zone(lecture_effort& l, bool& erco) {
  texte<32>& nom = l.effort.m_nom_zone_repere_brut;
  zof_assert_commande(!est_renseigne_chaine(nom), "Repetition de repere", erco);
  if (erco) return;
  and_lire_nom(nom, 32, erco);
  if (erco) return;
  zof_assert_commande(zof_est_contour_ou_profil(l.nom_section, nom),
                      concat({nom.entier(), " n existe pas ou n est pas un contour ou un profil"}), erco);
}

void loc_lire_repere_zones_actives(zof_effort& effort, bool& erco) {
  zof_assert_commande(!est_renseigne_chaine(effort.m_nom_zone_repere_brut), "Repetition de repere", erco);
  if (erco) return;
  effort.m_nom_zone_repere_brut = zof_repere_brut_zones_actives;
}

void loc_lire_tensions(lecture_effort& l, bool& erco) {
  zof_assert_commande(l.type->precontrainte, "Les tensions ne doivent etre dï¿½finies qu'avec GP ou P"_l1,
                      erco);
  if (erco) return;
  l.tensions = true;
  zof_decoder_tensions(l.effort, erco);
}

void loc_finir_effort(const lecture_effort& l, bool& erco) {
  zof_controle_mot_fin("FIN_EFFO");
  zof_assert_commande(l.n || l.my || l.mz, "Aucun effort defini", erco);
  if (erco) return;
  if (l.type->precontrainte && !l.tensions)
    zof_message_avertissement("Les tensions ne sont pas dï¿½finies avec GP ou P"_l1);
}

// ---- TENS

void loc_lire_point(const texte<32>& nom_section, zof_tension& tension, bool& erco) {
  zof_lire_mot_attendu("POIN"_mot, erco);
  if (erco) return;
  and_lire_entier(tension.m_numero_point, erco);
  if (erco) return;
  zof_assert_commande(
      zof_existe_cable_section(nom_section, tension.m_nom_precontrainte, tension.m_numero_point),
      concat({" Point non defini ", zof_chaine_numerique_entier(tension.m_numero_point).entier()}), erco);
}

void loc_lire_valeur(zof_tension& tension, bool& erco) {
  zof_lire_mot_attendu("TENS"_mot, erco);
  if (erco) return;
  and_lire_reel_d(tension.m_tension, erco);
  if (erco) return;
  zof_assert_commande(tension.m_tension >= 0,
                      concat({" Tension negative ou nulle du point :",
                              zof_chaine_numerique_entier(tension.m_numero_point).entier()}),
                      erco);
}

void loc_lire_injection(zof_tension& tension, bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  if (clef(mot) == "NON_"_mot) return;
  if (clef(mot) != "INJE"_mot) return zof_attribut_incorrect(mot, erco);
  and_lire_reel_d(tension.m_rho, erco);
  if (erco) return;
  zof_assert_commande(tension.m_rho >= 0 && tension.m_rho <= 1,
                      concat({" Coefficient rho incorrect:  <0 ou > 1 du point :",
                              zof_chaine_numerique_entier(tension.m_numero_point).entier()}),
                      erco);
}

/// One PREC entry. The stress allowed while tensioning (EN 1992-1-1 5.10.2.1) is looked at last, once the
/// entry is kept.
void loc_lire_tension(zof_effort& effort, bool& erco) {
  zof_tension tension;
  and_lire_nom(tension.m_nom_precontrainte, 32, erco);
  if (erco) return;
  zof_assert_commande(zof_existe_precontrainte_section(effort.m_nom_section, tension.m_nom_precontrainte),
                      concat({" Precontrainte non definie : ", tension.m_nom_precontrainte.entier()}), erco);
  if (erco) return;
  loc_lire_point(effort.m_nom_section, tension, erco);
  if (erco) return;
  loc_lire_valeur(tension, erco);
  if (erco) return;
  loc_lire_injection(tension, erco);
  if (erco) return;
  zof_verification_non_repetition_tension(effort, tension, erco);
  if (erco) return;
  effort.m_les_tensions.ajouter(tension);
  const std::optional<double> limite =
      zof_contrainte_limite_precontrainte_section(effort.m_nom_section, tension.m_nom_precontrainte);
  zof_assert_commande(!limite || tension.m_tension <= *limite,
                      concat({" Tension superieure ï¿½ min (0.8fpk, 0.9fp0.1k)  du point :"_l1,
                              zof_chaine_numerique_entier(tension.m_numero_point).entier()}),
                      erco);
}

}  // namespace

void zof_decoder_efforts(zof_effort& effort, const texte<32>& nom_section, bool etat_limite_pondere,
                         bool& erco) {
  lecture_effort l{effort, nom_section};
  l.type = loc_lire_type(effort.m_label_effort, erco);
  if (erco) return;
  if (!zof_est_section_precontrainte(nom_section))
    loc_refuser_precontrainte(effort.m_label_effort, *l.type, erco);
  if (erco) return;
  loc_refuser_combinaison(effort.m_label_effort, *l.type, etat_limite_pondere, erco);
  if (erco) return;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "N"_mot: loc_lire_composante("N", effort.m_n, l.n, erco); break;
      case "MY"_mot: loc_lire_composante("My", effort.m_my, l.my, erco); break;
      case "MZ"_mot: loc_lire_composante("Mz", effort.m_mz, l.mz, erco); break;
      case "TITR"_mot: loc_lire_titre(effort, erco); break;
      case "REPE"_mot: loc_lire_repere_zone(l, erco); break;
      case "R_BR"_mot: loc_lire_repere_zones_actives(effort, erco); break;
      case "TENS"_mot: loc_lire_tensions(l, erco); break;
      case "FIN_"_mot: return loc_finir_effort(l, erco);
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_decoder_tensions(zof_effort& effort, bool& erco) {
  texte<4> mot;
  bool entree_lue = false;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "PREC"_mot:
        loc_lire_tension(effort, erco);
        entree_lue = true;
        break;
      case "FIN_"_mot:
        zof_controle_mot_fin("FIN_TENS");
        return zof_assert_commande(entree_lue, "Aucune tension definie", erco);
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_verification_non_repetition_tension(const zof_effort& effort, const zof_tension& tension,
                                             bool& erco) {
  for (const zof_tension& autre : uef_parcours<zof_tension>(effort.m_les_tensions)) {
    zof_assert_commande(autre.m_numero_point != tension.m_numero_point,
                        concat({"Tension - Numero de point de passage deja defini :",
                                zof_chaine_numerique_entier(tension.m_numero_point).entier()}),
                        erco);
    if (erco) return;
  }
}

void zof_controle_tensions_phase(const zof_effort& effort, const texte<32>& nom_section,
                                 const uef_vector& noms_zones_actives, bool& erco) {
  for (const zof_tension& tension : uef_parcours<zof_tension>(effort.m_les_tensions)) {
    bool presente = false;
    for (const zof_nom& nom : uef_parcours<zof_nom>(noms_zones_actives))
      presente =
          presente || zof_existe_precontrainte_zone(nom_section, nom.m_nom, tension.m_nom_precontrainte);
    if (presente) continue;
    return zof_erreur_commande(
        concat({tension.m_nom_precontrainte.entier(), " non presente dans zones actives de la phase"}), erco);
  }
}

void zof_decoder_memes_efforts(zof_efforts_etat_limite& enregistrement, bool etat_limite_pondere,
                               const uef_vector& les_enregistrements, const texte<32>& nom_section,
                               bool& erco) {
  texte<32> label;
  const zof_type_effort* const type = loc_lire_type(label, erco);
  if (erco) return;
  if (zof_est_section_precontrainte(nom_section))
    zof_assert_commande(type->label != "GQ",
                        concat({"Effort GQ incorrect pour une section precontrainte : ", label.entier()}),
                        erco);
  else
    loc_refuser_precontrainte(label, *type, erco);
  if (erco) return;
  loc_refuser_combinaison(label, *type, etat_limite_pondere, erco);
  if (erco) return;
  zof_assert_commande(!etat_limite_pondere, "Option Meme_effort interdite pour un Etat limite pondere ",
                      erco);
  if (erco) return;
  zof_lire_mot_attendu("QUE"_mot, erco);
  if (erco) return;
  texte<32> label_etat_limite;
  zof_decoder_etat_limite(label_etat_limite, erco);
  if (erco) return;
  zof_lire_mot_attendu("EN"_mot, erco);
  if (erco) return;
  texte<32> label_situation;
  zof_decoder_situation(label_situation, erco);
  if (erco) return;
  zof_lire_mot_attendu("FIN_"_mot, erco);
  if (erco) return;
  bool trouve = false;
  for (const auto& cible : uef_parcours<zof_efforts_etat_limite>(les_enregistrements)) {
    if (!(cible.m_label_etat_limite == label_etat_limite) || !(cible.m_label_situation == label_situation))
      continue;
    // The record itself may be a target: its efforts are counted before it grows.
    const int nb_efforts = cible.m_les_efforts.nombre();
    for (int i = 1; i <= nb_efforts; ++i) {
      const auto& effort = zof_element<zof_effort>(cible.m_les_efforts, i);
      if (!(effort.m_label_effort == label)) continue;
      enregistrement.m_les_efforts.ajouter(effort);
      trouve = true;
    }
  }
  zof_assert_commande(trouve, "Aucun effort de meme type dï¿½jï¿½ defini dans l etat limite cible"_l1, erco);
}
