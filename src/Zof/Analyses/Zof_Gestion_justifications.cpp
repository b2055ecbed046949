#include "Zof_Gestion_justifications.hpp"

#include "And_anadon.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Sections.hpp"
#include "Simple.hpp"
#include "Systeme.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Classe_Situation_Beton_EC.hpp"
#include "Zof_Edition_Justifications.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Lecture_Analyses.hpp"
#include "Zof_Plan_Interaction.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

gestion_justifications_t gestion_justifications;
void gestion_justifications_reinitialiser() { gestion_justifications = {}; }

namespace {

/// Options of the command: they act on the SOLL that follow.
struct options_justification {
  bool controle_bornes = true;
  bool pivot_c_justifie = false;
};

void loc_console(vue_l1 ligne) { le_systeme().console().ligne(ligne); }

/// The diagrams of the SOLL that follow; FIXE may give their plane.
void loc_lire_interactions(bool& erco) {
  gestion_justifications_t& g = gestion_justifications;
  zof_assert_commande(!g.mod_glo_afficher_interactions, "OPTION INTERACTION repetee", erco);
  if (erco) return;
  g.mod_glo_afficher_interactions = true;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  if (clef(mot) != "FIXE"_mot) return and_relire_donnee();
  zof_lire_composante_fixee(g.mod_glo_composante_fixee, g.mod_glo_valeur_fixee, erco);
  if (erco) return;
  zof_assert_commande(zof_pt_plan_interaction(g.mod_glo_composante_fixee) != nullptr,
                      "Composante fixee incorrecte /= N/My/MZ", erco);
}

void loc_justifier(const texte<32>& nom_section, const texte<32>& nom_sollicitations,
                   const options_justification& options, bool& erco) {
  const zof_sollicitations& s = zof_get_pt_sollicitations(nom_section, nom_sollicitations);
  gestion_justifications.mod_glo_sollicitation_en_repere_brut = s.m_type_repere == type_repere_brut;
  // Prestress and construction phases need the history of the zones, which this road has not.
  if (zof_est_section_precontrainte(nom_section) || s.m_est_phasee)
    return zof_attribut_incorrect("SOLL", erco);
  utl_02_ecrire_titre(
      concat({"Justification de la section : ", nom_section.utile(), " sous ", nom_sollicitations.utile()}),
      2);
  utl_02_ecrire_texte("    ===> Type  de  justification : Béton armé"_l1);
  zof_justifier_sollicitations_ba(nom_section, nom_sollicitations, options.controle_bornes,
                                  options.pivot_c_justifie);
}

void loc_lire_sollicitations(const texte<32>& nom_section, const options_justification& options, bool& erco) {
  texte<32> nom;
  and_lire_nom(nom, 32, erco);
  if (erco) return;
  zof_assert_commande(
      zof_existe_sollicitations(nom_section, nom),
      concat({"Sollicitation non definie : ", nom.utile(), " pour la section : ", nom_section.utile()}),
      erco);
  if (erco) return;
  loc_justifier(nom_section, nom, options, erco);
}

bool loc_est_ultime(const texte<32>& label_etat_limite) {
  return label_etat_limite == "ELU_DURABLE" || label_etat_limite == "ELU_ACCIDENT";
}

void loc_editer_donnees_cas(const zof_cadre_justification& cadre, vue_l1 titre, const efforts& f,
                            std::span<const std::string> commentaires) {
  repere rep;
  (void)qb7_lire_repere_sollicitation(cadre.num_section_qb7, rep);
  // A shortened pi in single precision: the angle is printed with five digits, and as in earlier studies.
  const double angle_deg = 180 * rep.alpha / simple(3.14156f);
  utl_02_ecrire_titre(concat({"Efforts : ", titre.octets().substr(0, 300)}), 3);
  utl_02_debut_puce();
  for (const std::string& commentaire : commentaires) utl_02_ecrire_puce(commentaire);
  utl_02_ecrire_puce(concat({"Situation    : ", cadre.label_situation.utile()}));
  utl_02_ecrire_puce(concat({"Etat_limite  : ", cadre.label_etat_limite.utile()}));
  utl_02_ecrire_puce(concat({"Repere       :  y : ", zof_chaine_numerique_double(rep.y_rep).utile(),
                             " - z : ", zof_chaine_numerique_double(rep.z_rep).utile(),
                             " - angle : ", zof_chaine_numerique_double(angle_deg).utile()}));
  utl_02_ecrire_puce(concat({"Nx: ", zof_chaine_numerique_double(f.n).entier()}));
  utl_02_ecrire_puce(concat({"My: ", zof_chaine_numerique_double(f.my).entier()}));
  utl_02_ecrire_puce(concat({"Mz: ", zof_chaine_numerique_double(f.mz).entier()}));
}

constexpr std::string_view debut_rouge = "<b style='color:red;'>";
constexpr std::string_view fin_rouge = "</b>";

/// A case with a plane: equilibrium, within the limits or past them. The list of bullets is open.
void loc_editer_equilibre(const zof_cadre_justification& cadre, std::string_view resultat, vue_l1 titre,
                          const deformation& deform_section) {
  utl_02_ecrire_puce(concat({resultat, titre}),
                     {.opt_prefixe_html = debut_rouge, .opt_suffixe_html = fin_rouge});
  zof_editer_plan(deform_section);
  utl_02_fin_puce();
  utl_02_ecrire_note(
      " (*) Attention : En mode phasage, il s agit de l incrément courant de déformation de la section"_l1);
  zof_editer_deformations_contraintes_section(cadre.nom_section, cadre.num_section_qb7,
                                              cadre.num_etat_lim_qb7, deform_section);
}

void loc_editer_non_equilibre(vue_l1 titre) {
  utl_02_fin_puce();
  utl_02_ecrire_texte(concat({"Résultat : Non Equilibre sous : "_l1, titre, "(*)"}),
                      {.opt_prefixe_html = debut_rouge, .opt_suffixe_html = fin_rouge});
  utl_02_ecrire_note(
      " (*) Basculer en mode deformations non bornées pour identifier les zones de depassement"_l1);
}

/// Strain at the peak of the concrete's ultimate diagram; not given if the contour is of no concrete.
double loc_deformation_pic(const zof_zone& zone, const texte<32>& label_situation) {
  const int type = zof_type_materiau(zone.m_nom_materiau_zone);
  if (type != type_materiau_beton && type != type_materiau_beton_precontraint) return non_renseigne;
  const auto* const situation = dynamic_cast<const zof_situation_beton_ec*>(
      zof_get_pt_situation_materiau(zone.m_nom_materiau_zone, label_situation));
  return situation == nullptr ? static_cast<double>(non_renseigne) : situation->m_deformation_elu_pic;
}

void loc_editer_pivot_c(std::string_view nom_zone, double deformation_cdg, double limite) {
  const bool depasse = !(deformation_cdg <= limite);  // a strain that is not a number holds nothing
  utl_02_ecrire_titre(concat({"Justification du pivot C : ", nom_zone}), 3);
  loc_console(depasse ? concat({"==> Pivot C -", nom_zone, " : Non justifie"})
                      : concat({"==> Pivot C - ", nom_zone, " : justifie"}));
  utl_02_debut_puce();
  utl_02_ecrire_puce(concat({"Résultat : Pivot C "_l1, depasse ? "Depasse"_l1 : "Respecte"_l1}));
  utl_02_ecrire_puce(
      concat({"Valeur deformation au cdg :", zof_chaine_deformation(deformation_cdg).utile()}));
  utl_02_ecrire_puce(concat({"Valeur deformation limite :", zof_chaine_deformation(limite).utile()}));
  utl_02_fin_puce();
}

/// The head of a limit state; the law set that its cases are solved with.
zof_cadre_justification loc_ouvrir_etat_limite(const texte<32>& nom_section,
                                               const texte<32>& nom_sollicitations, int no_etat_limite,
                                               bool controle_bornes) {
  const auto [situation, etat_limite, nb_phases] =
      zof_get_situation_sollicitations(nom_section, nom_sollicitations, no_etat_limite);
  if (!zof_existe_etat_limite_situation_section(nom_section, situation, etat_limite)) {
    zof_ecrire_message(concat({"Justification impossible - ", situation.utile(), "-", etat_limite.utile(),
                               ": Non defini pour un des materiaux"}));
    zof_arret();
  }
  zof_cadre_justification cadre{nom_section, situation, etat_limite, controle_bornes,
                                zof_get_numero_qb7_section(nom_section)};
  cadre.num_etat_lim_qb7 = zof_get_no_etat_limite_qb7_section(nom_section, situation, etat_limite);
  const std::string titre =
      concat({" Etat limite : ", etat_limite.utile(), " - situation: ", situation.utile()});
  loc_console("  ");
  loc_console(titre);
  utl_02_ecrire_titre(titre, 3);
  return cadre;
}

}  // namespace

void zof_traiter_justifications(bool& erco) {
  gestion_justifications.mod_glo_afficher_interactions = false;
  gestion_justifications.mod_glo_composante_fixee = "MZ";
  gestion_justifications.mod_glo_valeur_fixee = 0;
  texte<32> nom_section;
  and_lire_nom(nom_section, 32, erco);
  if (erco) return;
  zof_assert_commande(zof_existe_section(nom_section),
                      concat({"Section non definie : ", nom_section.entier()}), erco);
  if (erco) return;
  options_justification options;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "DEFO"_mot: zof_lire_choix("BORN"_mot, options.controle_bornes, erco); break;
      case "PIVO"_mot: zof_lire_choix("JUST"_mot, options.pivot_c_justifie, erco); break;
      case "INTE"_mot: loc_lire_interactions(erco); break;
      case "SOLL"_mot: loc_lire_sollicitations(nom_section, options, erco); break;
      case "FIN_"_mot: return zof_controle_mot_fin("FIN_JUST");
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

void zof_justifier_sollicitations_ba(const texte<32>& nom_section, const texte<32>& nom_sollicitations,
                                     bool controle_bornes, bool pivot_c_justifie) {
  zof_activer_section(nom_section);
  const repere rep = zof_get_repere_chargement_sollicitations(nom_section, nom_sollicitations);
  (void)qb7_fixer_repere_sollicitation(zof_get_numero_qb7_section(nom_section), rep.y_rep, rep.z_rep,
                                       rep.alpha);
  const int nb_etats_limites = zof_get_nb_etats_limites_sollicitations(nom_section, nom_sollicitations);
  for (int i = 1; i <= nb_etats_limites; ++i) {
    const zof_cadre_justification cadre =
        loc_ouvrir_etat_limite(nom_section, nom_sollicitations, i, controle_bornes);
    const bool pivot_c = pivot_c_justifie && loc_est_ultime(cadre.label_etat_limite);
    for (const zof_effort& cas :
         zof_get_efforts_etat_limite_sollicitations_gq(nom_section, nom_sollicitations, i)) {
      deformation deform_section;
      zof_solliciter_section(cadre, cas.m_titre.utile(), cas.get_efforts(), true, deform_section);
      if (pivot_c) zof_justifier_pivot_c(cadre, deform_section);
    }
    if (gestion_justifications.mod_glo_afficher_interactions) zof_afficher_interactions(true, cadre);
  }
}

bool zof_solliciter_section(const zof_cadre_justification& cadre, vue_l1 titre_efforts,
                            const efforts& efforts_section, bool editer, deformation& deform_section,
                            std::span<const std::string> opt_commentaires) {
  const vue_l1 titre = sans_blancs_finals(sans_blancs_initiaux(titre_efforts.octets()));
  if (editer) loc_editer_donnees_cas(cadre, titre, efforts_section, opt_commentaires);
  deform_section = {};
  const ier_2 ier = qb7_solliciter_section(cadre.controle_bornes, cadre.num_section_qb7,
                                           cadre.num_etat_lim_qb7, efforts_section, deform_section);
  switch (ier.code) {
    case 0:
      if (!editer) return true;
      loc_editer_equilibre(cadre, "Résultat : Equilibre sous : "_l1, titre, deform_section);
      loc_console(concat({"==> Equilibre sous :", titre}));
      return true;
    case ERR_EPSILON_LIM:
      if (editer)
        loc_editer_equilibre(cadre, "Résultat : Equilibre mais déformée limite dépassée sous : "_l1, titre,
                             deform_section);
      loc_console(concat({"==> Equilibre mais déformée limite dépassée sous :"_l1, titre}));
      return false;
    case ERR_EQUILIBRE:
      if (editer) loc_editer_non_equilibre(titre);
      loc_console(concat({"==> Non Equilibre sous :", titre}));
      return false;
    default: zof_assert(false, "Zof_Solliciter_section : Cas impossible"); return false;
  }
}

void zof_justifier_pivot_c(const zof_cadre_justification& cadre, const deformation& deform_section) {
  caracteristiques_mecaniques brutes;
  (void)qb7_caracteristiques_mecaniques(cadre.num_section_qb7, qb7_etat_mecanique, brutes);
  for (const zof_zone* const zone : zof_get_pt_section(cadre.nom_section)->zones()) {
    if (zone->nature() != nature_zone::contour) continue;
    const double limite = loc_deformation_pic(*zone, cadre.label_situation);
    if (!est_renseigne_double(limite)) continue;
    qb7_deformation_point au_cdg;
    (void)qb7_deformation_point_zone(cadre.num_section_qb7, zone->get_numero_zone_qb7(), brutes.yg, brutes.zg,
                                     deform_section, au_cdg);
    loc_editer_pivot_c(zone->get_nom_zone().utile(), au_cdg.epsilon, limite);
  }
}
