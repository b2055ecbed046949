#include "Zof_Gestion_dimensionnement.hpp"

#include <algorithm>
#include <optional>

#include "And_anadon.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Sections.hpp"
#include "Systeme.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Classe_Double.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"
#include "Zof_Zones_Dimensionnables.hpp"

using namespace socle;

gestion_dimensionnement_t gestion_dimensionnement;
void gestion_dimensionnement_reinitialiser() { gestion_dimensionnement = {}; }

namespace {

/// Where each linear programme of the optimisation starts.
constexpr int base_preferentielle = 1;

void loc_console(vue_l1 ligne) { le_systeme().console().ligne(ligne); }

void loc_creer_listes() {
  gestion_dimensionnement_t& g = gestion_dimensionnement;
  g.zof_mod_rem_zone_dim_toutes_sollicitations.re_creer("zof_mod_rem_zone_dim_toutes_sollicitations",
                                                        zof_double());
  g.zof_mod_rem_zone_dim_sollicitation_ite_courante.re_creer(
      "zof_mod_rem_zone_dim_sollicitation_ite_courante", zof_double());
  g.zof_mod_rem_zone_dim_sollicitation_ite_precedente.re_creer(
      "zof_mod_rem_zone_dim_sollicitation_ite_precedente", zof_double());
}

void loc_detruire_listes() {
  gestion_dimensionnement_t& g = gestion_dimensionnement;
  g.zof_mod_rem_zone_dim_toutes_sollicitations.detruire();
  g.zof_mod_rem_zone_dim_sollicitation_ite_courante.detruire();
  g.zof_mod_rem_zone_dim_sollicitation_ite_precedente.detruire();
}

/// Name of the section: it must exist and hold bars that design may change.
void loc_lire_section(texte<32>& nom_section, bool& erco) {
  and_lire_nom(nom_section, 32, erco);
  if (erco) return;
  zof_assert_commande(zof_existe_section(nom_section),
                      concat({"Section non definie : ", nom_section.entier()}), erco);
  if (erco) return;
  zof_assert_commande(
      zof_est_section_ferraillage_dimensionnable(nom_section),
      concat({"Aucun ferraillage dimensionnable défini pour la section : "_l1, nom_section.utile()}), erco);
}

/// ITER and its count, which only the tendons of a prestressed section give a meaning: their forces depend on
/// the strains that the steel sought leaves them. Any other word is left to the command.
void loc_lire_iterations(const texte<32>& nom_section, bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  if (clef(mot) != "ITER"_mot) return and_relire_donnee();
  int nb_max_iterations = 0;
  and_lire_entier(nb_max_iterations, erco);
  if (erco) return;
  zof_assert_commande(nb_max_iterations > 0, " Nombre d itérations incorrect"_l1, erco);
  if (erco) return;
  zof_assert_commande(zof_est_section_precontrainte(nom_section), " ITERATION interdit en BA", erco);
}

void loc_lire_sollicitations(const texte<32>& nom_section, texte<32>& nom_sollicitations, bool& erco) {
  and_lire_nom(nom_sollicitations, 32, erco);
  if (erco) return;
  zof_assert_commande(zof_existe_sollicitations(nom_section, nom_sollicitations),
                      concat({"Sollicitation non definie : ", nom_sollicitations.utile(),
                              " pour la section : ", nom_section.utile()}),
                      erco);
  if (erco) return;
  // Prestress and construction phases need the history of the zones, which this road has not.
  if (zof_est_section_precontrainte(nom_section) ||
      zof_get_pt_sollicitations(nom_section, nom_sollicitations).m_est_phasee)
    zof_attribut_incorrect("SOLL", erco);
}

zof_statut_dimensionnement loc_dimensionner(const texte<32>& nom_section,
                                            const texte<32>& nom_sollicitations) {
  utl_02_ecrire_titre(
      concat({"Dimensionnement de la section : ", nom_section.utile(), " sous ", nom_sollicitations.utile()}),
      2);
  utl_02_debut_puce();
  gestion_dimensionnement.dim_glo_iteration = 1;
  const zof_statut_dimensionnement statut = zof_dimensionner_ba(nom_section, nom_sollicitations, true);
  if (statut != zof_statut_dimensionnement::echec)
    zof_envelopper_aciers_dimensionnes_toutes_sollicitations(nom_section);
  utl_02_fin_puce();
  return statut;
}

void loc_attribuer_aciers(const texte<32>& nom_section, bool& erco) {
  const int num_section_qb7 = zof_get_numero_qb7_section(nom_section);
  zof_affecter_aciers_dimensionnes(nom_section, num_section_qb7);
  bool reussite_ajustement_ferraillage = true;
  bool presence_automatique = false;
  zof_ajuster_ferraillages_automatiques(nom_section, num_section_qb7, reussite_ajustement_ferraillage,
                                        presence_automatique, erco);
}

/// The SOLL of the block up to its end, then the allotment of what the last of them allows.
void loc_lire_corps(const texte<32>& nom_section, bool& erco) {
  std::optional<zof_statut_dimensionnement> statut;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    if (clef(mot) != "SOLL"_mot) return zof_attribut_incorrect(mot, erco);
    texte<32> nom_sollicitations;
    loc_lire_sollicitations(nom_section, nom_sollicitations, erco);
    if (erco) return;
    statut = loc_dimensionner(nom_section, nom_sollicitations);
  }
  if (erco) return;
  zof_controle_mot_fin("FIN_DIME");
  zof_assert_commande(statut.has_value(),
                      concat({"Aucune sollicitation  définie pour la section : "_l1, nom_section.utile()}),
                      erco);
  if (erco) return;
  erco = statut == zof_statut_dimensionnement::echec;
  if (!erco) loc_attribuer_aciers(nom_section, erco);
}

/// The law set of a limit state of the loading; one that a material has not stops the run.
int loc_numero_etat_limite(const texte<32>& nom_section, const texte<32>& situation,
                           const texte<32>& etat_limite) {
  if (!zof_existe_etat_limite_situation_section(nom_section, situation, etat_limite)) {
    zof_ecrire_message(concat({"Dimensionnement impossible - ", situation.utile(), "-", etat_limite.utile(),
                               ": Non defini pour un des materiaux"}));
    zof_arret();
  }
  return zof_get_no_etat_limite_qb7_section(nom_section, situation, etat_limite);
}

void loc_controler_nombre_efforts(const texte<32>& nom_section, const texte<32>& nom_sollicitations,
                                  int nb_etats_limites) {
  int total = 0;
  for (int i = 1; i <= nb_etats_limites; ++i) {
    const int nombre = zof_get_nb_efforts_etat_limite_sollicitations_gq(nom_section, nom_sollicitations, i);
    zof_assert(nombre > 0, " Zof_Dimensionner_BA : cas impossible 1");
    total += nombre;
  }
  zof_assert(total > 0, " Zof_Dimensionner_BA : cas impossible 2");
}

void loc_ajouter_cas(const texte<32>& nom_section, const texte<32>& nom_sollicitations, int no_etat_limite,
                     zof_cas_dimensionnement& cas) {
  const auto [situation, etat_limite, nb_phases] =
      zof_get_situation_sollicitations(nom_section, nom_sollicitations, no_etat_limite);
  const int num_etat_lim_qb7 = loc_numero_etat_limite(nom_section, situation, etat_limite);
  for (const zof_effort& effort :
       zof_get_efforts_etat_limite_sollicitations_gq(nom_section, nom_sollicitations, no_etat_limite)) {
    cas.les_label_situation.push_back(situation);
    cas.les_label_etat_limite.push_back(etat_limite);
    cas.les_titre_effort.emplace_back(effort.m_titre.utile());
    cas.les_num_etat_lim_qb7.push_back(num_etat_lim_qb7);
    cas.les_etats_efforts.push_back(qb7_etat_du_dimensionnement);
    cas.les_efforts_section.push_back(effort.get_efforts());
  }
}

void loc_editer_cas(const zof_cas_dimensionnement& cas) {
  for (std::size_t i = 0; i < cas.les_efforts_section.size(); ++i) {
    const efforts& f = cas.les_efforts_section[i];
    utl_02_ecrire_puce(concat({"Efforts     : ", cas.les_titre_effort[i]}));
    utl_02_debut_puce();
    utl_02_ecrire_puce(concat({"Situation   : ", cas.les_label_situation[i].utile()}));
    utl_02_ecrire_puce(concat({"Etat_limite : ", cas.les_label_etat_limite[i].utile()}));
    utl_02_ecrire_puce(concat({"Nx: ", zof_chaine_numerique_double(f.n).entier(),
                               " My: ", zof_chaine_numerique_double(f.my).entier(),
                               " Mz: ", zof_chaine_numerique_double(f.mz).entier()}));
    utl_02_fin_puce();
  }
}

void loc_dire_echec() {
  constexpr std::string_view motif =
      "Echec de l optimisation : beton insuffisant ou aciers mal places ou non confines";
  utl_02_ecrire_puce(motif);
  loc_console(gestion_dimensionnement.dim_glo_iteration == 1
                  ? concat({" ==> ", motif})
                  : std::string(" ==> Echec de l optimisation : Reduire le nombre d iterations a 1"
                                " (Cf. Option ITERATION de la commande DIMENSIONNER)"));
}

}  // namespace

void zof_traiter_dimensionnement(bool& erco) {
  texte<32> nom_section;
  loc_lire_section(nom_section, erco);
  if (erco) return;
  loc_lire_iterations(nom_section, erco);
  if (erco) return;
  loc_creer_listes();
  loc_lire_corps(nom_section, erco);
  loc_detruire_listes();
}

zof_statut_dimensionnement zof_dimensionner_ba(const texte<32>& nom_section,
                                               const texte<32>& nom_sollicitations, bool editer_resultats) {
  utl_02_ecrire_puce("Type de dimensionnement : Béton armé"_l1);
  const int num_section_qb7 = zof_get_numero_qb7_section(nom_section);
  zof_activer_section(nom_section);
  zof_declarer_aciers_passifs_dimensionnables_section(nom_section);
  const repere rep = zof_get_repere_chargement_sollicitations(nom_section, nom_sollicitations);
  (void)qb7_fixer_repere_sollicitation(num_section_qb7, rep.y_rep, rep.z_rep, rep.alpha);
  const int nb_etats_limites = zof_get_nb_etats_limites_sollicitations(nom_section, nom_sollicitations);
  loc_controler_nombre_efforts(nom_section, nom_sollicitations, nb_etats_limites);
  zof_cas_dimensionnement cas;
  for (int i = 1; i <= nb_etats_limites; ++i) loc_ajouter_cas(nom_section, nom_sollicitations, i, cas);
  return zof_dimensionner_section(nom_section, nom_sollicitations, cas, num_section_qb7, editer_resultats);
}

zof_statut_dimensionnement zof_dimensionner_section(const texte<32>& nom_section,
                                                    const texte<32>& nom_sollicitations,
                                                    const zof_cas_dimensionnement& cas, int num_section_qb7,
                                                    bool editer_resultats) {
  utl_02_ecrire_puce("Etape : Dimensionnement - Rappel des efforts appliques :");
  if (editer_resultats) loc_editer_cas(cas);
  const ier_2 ier = qb7_dimensionner(num_section_qb7, cas.les_num_etat_lim_qb7, cas.les_etats_efforts,
                                     cas.les_efforts_section, base_preferentielle);
  switch (ier.code) {
    case 0:
      zof_lister_aciers_dimensionnes(nom_section, nom_sollicitations, num_section_qb7);
      return zof_statut_dimensionnement::resolu;
    case ERR_ECHEC_OPTIM:
      utl_02_ecrire_puce("Echec de l optimisation : solution obtenue non optimale ");
      zof_lister_aciers_dimensionnes(nom_section, nom_sollicitations, num_section_qb7);
      loc_console("==> Echec de l optimisation : solution obtenue non optimale ");
      return zof_statut_dimensionnement::non_optimal;
    default: loc_dire_echec(); return zof_statut_dimensionnement::echec;
  }
}

void zof_lister_aciers_dimensionnes(const texte<32>& nom_section, const texte<32>& nom_sollicitations,
                                    int num_section_qb7) {
  utl_02_ecrire_puce(
      concat({"Resultat dimensionnement sous :", sans_blancs_initiaux(nom_sollicitations.utile())}));
  int k = 0;
  for (const zof_ferraillage* const zone : zof_zones_dimensionnables(nom_section)) {
    double c_remplissage = 0;
    (void)qb7_lire_c_remplissage(num_section_qb7, zone->get_numero_zone_qb7(), c_remplissage);
    zof_noter_remplissage(gestion_dimensionnement.zof_mod_rem_zone_dim_sollicitation_ite_courante, ++k,
                          c_remplissage);
    utl_02_ecrire_puce(
        concat({"Ferraillage : ", zone->get_nom_zone().utile(), " - Section d'acier totale necessaire: ",
                zof_chaine_entier_superieur(zof_aire_aciers(*zone, c_remplissage) * 10000), "cm2"}));
  }
}

void zof_envelopper_aciers_dimensionnes_toutes_sollicitations(const texte<32>& nom_section) {
  const int num_section_qb7 = zof_get_numero_qb7_section(nom_section);
  uef_vector& enveloppe = gestion_dimensionnement.zof_mod_rem_zone_dim_toutes_sollicitations;
  int k = 0;
  for (const zof_ferraillage* const zone : zof_zones_dimensionnables(nom_section)) {
    double c_remplissage = 0;
    (void)qb7_lire_c_remplissage(num_section_qb7, zone->get_numero_zone_qb7(), c_remplissage);
    if (++k <= enveloppe.nombre())
      c_remplissage = std::max(c_remplissage, zof_lire_remplissage(enveloppe, k));
    zof_noter_remplissage(enveloppe, k, c_remplissage);
  }
}
