// The steel that the zones receive at the end of a design: a diameter for the bars listed one by one, bars of
// the catalogue and their number for those laid automatically.
#include <cmath>

#include "Arithmetique.hpp"
#include "QB7_Sections.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Classe_Selection_Acier.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Ferraillage_Automatique.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_dimensionnement.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Zones_Dimensionnables.hpp"

using namespace socle;

namespace {

constexpr double cm2_par_m2 = 10000;
constexpr double mm_par_m = 1000;

std::string loc_cm2(double aire) { return zof_chaine_entier_superieur(aire * cm2_par_m2); }
std::string loc_mm(double longueur) {
  return concat({zof_chaine_entier_superieur(longueur * mm_par_m), " mm"});
}

/// The least diameter that gives the steel, in whole millimetres.
double loc_diametre_minimal_mm(const zof_ferraillage& zone, double c_remplissage) {
  constexpr double pi_sur_4 = 0.7853981852531433;  // in single precision: the diameters of earlier studies
  if (zof_aire_aciers(zone, c_remplissage) == 0) return 0;
  return std::ceil(std::sqrt(zof_matiere_par_point(zone) * c_remplissage / pi_sur_4) * mm_par_m);
}

void loc_affecter(zof_ferraillage& zone, double c_remplissage, int num_section_qb7) {
  (void)qb7_fixer_c_remplissage(num_section_qb7, zone.get_numero_zone_qb7(), c_remplissage);
  const double diametre_mm = loc_diametre_minimal_mm(zone, c_remplissage);
  utl_02_ecrire_puce(
      concat({"Ferraillage : ", zone.get_nom_zone().utile(),
              " - Section d'acier totale necessaire: ", loc_cm2(zof_aire_aciers(zone, c_remplissage)),
              "cm2 - diametre minimal:", zof_chaine_entier_superieur(diametre_mm), "mm"}));
  zone.m_diametre_zone = diametre_mm / mm_par_m;
}

/// Steel of one point that is laid with this bar of the catalogue, m2.
double loc_aire_par_point(const zof_ferraillage& zone, const zof_selection_acier& acier) {
  return acier.m_aire_acier * zone.m_cardinalite_groupe;
}

/// The first bar of the catalogue whose steel at the zone's points is enough; else the last, and not enough.
struct choix_acier {
  zof_selection_acier acier;
  bool suffisant = false;
};
choix_acier loc_choisir_acier(const zof_ferraillage& zone, double aire_acier_necessaire) {
  const double aire_par_point = aire_acier_necessaire / zone.m_les_points_zone.nombre();
  choix_acier choix;
  for (const zof_selection_acier& acier : uef_parcours<zof_selection_acier>(zone.m_liste_selection_aciers)) {
    choix.acier = acier;
    choix.suffisant = loc_aire_par_point(zone, acier) >= aire_par_point;
    if (choix.suffisant) break;
  }
  return choix;
}

void loc_editer_choix(const zof_ferraillage& zone, const zof_selection_acier& acier, double aire_effective) {
  utl_02_ecrire_puce(concat({"Label acier optimal          : ", acier.m_label_selection.utile()}));
  utl_02_ecrire_puce(concat({"Nombre aciers places         : ",
                             zof_chaine_numerique_entier(zone.m_les_points_zone.nombre()).utile()}));
  utl_02_ecrire_puce(concat({"section acier placee         : ", loc_cm2(aire_effective), " cm2"}));
  utl_02_ecrire_puce(concat({"Espacement max effectif      : ", loc_mm(zone.m_espacement_max_effectif)}));
  utl_02_ecrire_puce(concat({"Espacement min effectif      : ", loc_mm(zone.m_espacement_min_effectif)}));
  utl_02_ecrire_puce(concat({"Espacement moyen effectif    : ", loc_mm(zone.m_espacement_moyen_effectif)}));
}

void loc_editer_espacements_prescrits(const zof_ferraillage& zone) {
  utl_02_ecrire_puce(concat({"Espacement max prescrit      : ", loc_mm(zone.m_ecartement_aciers_max)}));
  utl_02_ecrire_puce(concat({"Espacement min prescrit      : ", loc_mm(zone.m_ecartement_aciers_min)}));
}

/// Lays the zone again with as many bars of this size as the steel takes.
void loc_multiplier_barres(zof_ferraillage& zone, const zof_selection_acier& acier,
                           double aire_acier_necessaire, bool& ferraillage_ajuste,
                           double& aire_acier_effective, bool& erco) {
  utl_02_ecrire_puce("Ajustement des espacements :");
  const double barres_par_lit =
      std::ceil(aire_acier_necessaire / zone.m_nb_lits / loc_aire_par_point(zone, acier));
  ferraillage_ajuste = zof_modifier_ferraillage_automatique(zone, tronquer(barres_par_lit), erco);
  if (erco) return;
  aire_acier_effective = zone.m_les_points_zone.nombre() * loc_aire_par_point(zone, acier);
  loc_editer_choix(zone, acier, aire_acier_effective);
  if (!ferraillage_ajuste) loc_editer_espacements_prescrits(zone);
  utl_02_ecrire_puce(ferraillage_ajuste ? "Ajustement Espacements       : reussi"_l1
                                        : "Ajustement Espacements       : en echec"_l1);
  // The division and the product of the count may differ by their rounding.
  zof_assert(aire_acier_effective >= aire_acier_necessaire * (1 - 1e-12),
             "Zof_Ajuster_ferraillage_automatique : Cas impossible");
}

/// From now on the engine sees real bars, filled with their own steel.
void loc_poser_acier(zof_ferraillage& zone, const zof_selection_acier& acier, int num_section_qb7) {
  constexpr double pi_sur_2 = 1.5707963267948966;
  const double d = acier.m_diametre_mm / mm_par_m;
  zone.m_diametre_zone = d;
  zone.m_matiere_zone_qb7 = pi_sur_2 * (2 * zone.m_cardinalite_groupe) * d * d / 4;
  (void)qb7_fixer_c_remplissage(num_section_qb7, zone.get_numero_zone_qb7(), 1.0);
  (void)qb7_fixer_param_zone(num_section_qb7, zone.get_numero_zone_qb7(), zone.m_matiere_zone_qb7,
                             zone.m_encombrement_zone_qb7);
}

void loc_editer_bilan_automatique(bool reussite, double aire_effective_totale, double aire_section) {
  utl_02_ecrire_puce(reussite ? "Resultat final dimensionnement automatique : Effectue"_l1
                              : "Resultat final dimensionnement automatique : Effectue avec non respect des "
                                "espacements specifies"_l1);
  utl_02_ecrire_puce(concat({"Pourcentage de Ferraillage total : ",
                             zof_chaine_entier_superieur(aire_effective_totale * 100 / aire_section), "%"}));
}

}  // namespace

void zof_affecter_aciers_dimensionnes(const texte<32>& nom_section, int num_section_qb7) {
  bool presence_explicite = false;
  int k = 0;
  for (zof_ferraillage* const zone : zof_zones_dimensionnables(nom_section)) {
    ++k;
    if (zone->m_type_ferraillage != type_ferraillage_explicite) continue;
    if (!presence_explicite) {
      utl_02_ecrire_titre("Dimensionnement enveloppe du ferraillage explicite", 3);
      utl_02_debut_puce();
    }
    presence_explicite = true;
    loc_affecter(*zone,
                 zof_lire_remplissage(gestion_dimensionnement.zof_mod_rem_zone_dim_toutes_sollicitations, k),
                 num_section_qb7);
  }
  if (presence_explicite) utl_02_fin_puce();
}

void zof_ajuster_ferraillages_automatiques(const texte<32>& nom_section, int num_section_qb7,
                                           bool& reussite_ajustement_ferraillage, bool& presence_automatique,
                                           bool& erco) {
  reussite_ajustement_ferraillage = true;
  presence_automatique = false;
  caracteristiques_mecaniques brutes;
  (void)qb7_caracteristiques_mecaniques(num_section_qb7, qb7_etat_mecanique, brutes);
  double aire_effective_totale = 0;
  int k = 0;
  for (zof_ferraillage* const zone : zof_zones_dimensionnables(nom_section)) {
    ++k;
    if (zone->m_type_ferraillage == type_ferraillage_explicite) continue;
    if (!presence_automatique) {
      utl_02_ecrire_titre("Dimensionnement enveloppe du ferraillage automatique", 3);
      utl_02_debut_puce();
      utl_02_ecrire_puce("Dimensionnement enveloppe");
    }
    presence_automatique = true;
    const double aire_necessaire = zof_aire_aciers(
        *zone, zof_lire_remplissage(gestion_dimensionnement.zof_mod_rem_zone_dim_toutes_sollicitations, k));
    utl_02_ecrire_puce(concat({"Ferraillage: ", zone->get_nom_zone().utile()}));
    utl_02_ecrire_puce(concat({"Section acier necessaire     : ", loc_cm2(aire_necessaire), " cm2"}));
    bool ferraillage_ajuste = false;
    double aire_effective = 0;
    zof_ajuster_ferraillage_automatique(*zone, num_section_qb7, aire_necessaire, ferraillage_ajuste,
                                        aire_effective, erco);
    if (erco) return utl_02_fin_puce();
    aire_effective_totale += aire_effective;
    reussite_ajustement_ferraillage = reussite_ajustement_ferraillage && ferraillage_ajuste;
    utl_02_ecrire_puce(ferraillage_ajuste
                           ? "Ajustement du ferraillage : Effectue"_l1
                           : "Ajustement du ferraillage  :  effectue mais sans respecter les espacements "
                             "specifies (modifiez vos parametres de ferraillage)"_l1);
  }
  if (!presence_automatique) return;
  loc_editer_bilan_automatique(reussite_ajustement_ferraillage, aire_effective_totale, brutes.e_sx);
  utl_02_fin_puce();
}

void zof_ajuster_ferraillage_automatique(zof_ferraillage& zone, int num_section_qb7,
                                         double aire_acier_necessaire, bool& ferraillage_ajuste,
                                         double& aire_acier_effective, bool& erco) {
  const choix_acier choix = loc_choisir_acier(zone, aire_acier_necessaire);
  ferraillage_ajuste = choix.suffisant;
  if (choix.suffisant) {
    aire_acier_effective = zone.m_les_points_zone.nombre() * loc_aire_par_point(zone, choix.acier);
    loc_editer_choix(zone, choix.acier, aire_acier_effective);
  } else {
    loc_multiplier_barres(zone, choix.acier, aire_acier_necessaire, ferraillage_ajuste, aire_acier_effective,
                          erco);
    if (erco) return;
  }
  loc_poser_acier(zone, choix.acier, num_section_qb7);
}
