// The laws of a generic material, from their words to the section engine.
#include <optional>

#include "And_anadon.hpp"
#include "QB7_Sections.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau_Generique.hpp"
#include "Zof_Gestion_Materiau_Lecture.hpp"
#include "Zof_Gestion_Materiau_Lois.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

/// The laws of matter in one piece: a zone of it takes its whole extent out of what surrounds it.
constexpr int type_trou = qb7_trou_encombrement;

/// Limits stand on both sides of the strain zero, from which every search of a strain plane starts.
void loc_lire_borne_min(const texte<4>& mot, double& borne, bool& erco) {
  zof_lire_reel_unique("MIN", borne, erco);
  if (erco) return;
  zof_assert_commande(borne <= 0, concat({"Valeur attribut ", mot.entier(), " incorrecte >0"}), erco);
}

void loc_lire_borne_max(const texte<4>& mot, double& borne, bool& erco) {
  zof_lire_reel_unique("MAX", borne, erco);
  if (erco) return;
  zof_assert_commande(borne >= 0, concat({"Valeur attribut ", mot.entier(), " incorrecte <0"}), erco);
}

void loc_lire_intervalle(loi_generique& loi, bool& erco) {
  zof_intervalle intervalle;
  zof_decoder_intervalle_loi(intervalle, erco);
  if (!erco) loi.intervalles.push_back(intervalle);
}

void loc_finir_loi(zof_situation_materiau_generique& situation, const texte<32>& label_etat_limite,
                   const loi_generique& loi, bool& erco) {
  zof_assert_commande(!loi.intervalles.empty(), "Aucun intervalle n est defini", erco);
  if (!erco) zof_creer_loi_materiau_generique(situation, label_etat_limite, loi);
}

double loc_coefficient(double a) { return est_renseigne_double(a) ? a : 0; }

std::optional<double> loc_borne(double borne) {
  if (!est_renseigne_double(borne)) return std::nullopt;
  return borne;
}

/// Packs the pieces into the engine's table, of degree 3.
ier_2 int_creer_loi(int num_materiau, int num_etat_lim, const std::vector<zof_intervalle>& intervalles) {
  std::vector<double> epsilons;
  std::vector<qb7_polynome> coeffs;
  for (const zof_intervalle& i : intervalles) {
    epsilons.push_back(i.m_epsilon);
    coeffs.push_back(
        {loc_coefficient(i.m_a0), loc_coefficient(i.m_a1), loc_coefficient(i.m_a2), loc_coefficient(i.m_a3)});
  }
  return qb7_creer_loi(num_materiau, num_etat_lim, epsilons, 3, coeffs);
}

}  // namespace

void zof_decoder_creer_loi(zof_situation_materiau_generique& situation, const texte<32>& label_etat_limite,
                           bool& erco) {
  loi_generique loi;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "MIN"_mot: loc_lire_borne_min(mot, loi.epsilon_min, erco); break;
      case "MAX"_mot: loc_lire_borne_max(mot, loi.epsilon_max, erco); break;
      case "INTE"_mot: loc_lire_intervalle(loi, erco); break;
      case "FIN_"_mot: loc_finir_loi(situation, label_etat_limite, loi, erco); return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_decoder_intervalle_loi(zof_intervalle& intervalle, bool& erco) {
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "EPSI"_mot: zof_lire_reel_unique("EPSI", intervalle.m_epsilon, erco); break;
      case "A0"_mot: zof_lire_reel_unique("A0", intervalle.m_a0, erco); break;
      case "A1"_mot: zof_lire_reel_unique("A1", intervalle.m_a1, erco); break;
      case "A2"_mot: zof_lire_reel_unique("A2", intervalle.m_a2, erco); break;
      case "A3"_mot: zof_lire_reel_unique("A3", intervalle.m_a3, erco); break;
      case "FIN_"_mot:
        zof_controle_mot_fin("FIN_INTE");
        zof_assert_renseigne_double(intervalle.m_epsilon, "EPSI", erco);
        return;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_creer_loi_materiau_generique(zof_situation_materiau_generique& situation,
                                      const texte<32>& label_etat_limite, const loi_generique& loi) {
  const int num_materiau = situation.get_numero_materiau_qb7();
  const int num_etat_lim = situation.ajouter_etat_limite(label_etat_limite);
  zof_exiger(int_creer_loi(num_materiau, num_etat_lim, loi.intervalles));
  zof_exiger(qb7_fixer_type_trou(num_materiau, num_etat_lim, type_trou));
  zof_exiger(qb7_fixer_bornes_loi(num_materiau, num_etat_lim, loc_borne(loi.epsilon_min),
                                  loc_borne(loi.epsilon_max)));
}
