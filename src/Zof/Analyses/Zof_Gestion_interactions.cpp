#include "Zof_Gestion_interactions.hpp"

#include <algorithm>
#include <string>
#include <vector>

#include "And_anadon.hpp"
#include "QB7_Sections.hpp"
#include "Texte.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Lecture_Analyses.hpp"
#include "Zof_Plan_Interaction.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

/// What the block asks for.
struct demande_interaction {
  texte<2048> nom_diagramme;
  texte<32> nom_section;
  bool controle_bornes = true;
  texte<32> label_etat_limite = "ELU_DURABLE";
  texte<32> label_situation = "EXPLOITATION_SERVICE";
  const zof_plan_interaction* plan = zof_pt_plan_interaction("MZ");
  double valeur_fixee = 0;
  texte<80> titre = non_renseigne;
};

// ---- Data

void loc_lire_tete(demande_interaction& d, bool& erco) {
  and_lire_nom(d.nom_diagramme, 2048, erco);
  if (erco) return;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  if (clef(mot) != "SECT"_mot) return zof_attribut_incorrect(mot, erco);
  and_lire_nom(d.nom_section, 32, erco);
  if (erco) return;
  zof_assert_commande(zof_existe_section(d.nom_section),
                      concat({"Section non definie : ", d.nom_section.entier()}), erco);
}

void loc_lire_situation(demande_interaction& d, bool& erco) {
  zof_decoder_situation(d.label_situation, erco);
  if (erco) return;
  zof_assert_commande(zof_existe_situation_section(d.nom_section, d.label_situation),
                      concat({"Situation non definie : ", d.label_situation.entier()}), erco);
}

void loc_lire_fixe(demande_interaction& d, bool& erco) {
  texte<4> composante;
  zof_lire_composante_fixee(composante, d.valeur_fixee, erco);
  if (erco) return;
  d.plan = zof_pt_plan_interaction(composante);
  if (d.plan == nullptr) zof_attribut_incorrect(composante, erco);
}

void loc_lire_mot_clef(const texte<4>& mot, demande_interaction& d, bool& erco) {
  switch (clef(mot)) {
    case "DEFO"_mot: return zof_lire_choix("BORN"_mot, d.controle_bornes, erco);
    case "ETAT"_mot: return zof_decoder_etat_limite(d.label_etat_limite, erco);
    case "SITU"_mot: return loc_lire_situation(d, erco);
    case "FIXE"_mot: return loc_lire_fixe(d, erco);
    case "TITR"_mot: return zof_decoder_titre(d.titre, erco);
    default: return zof_attribut_incorrect(mot, erco);
  }
}

void loc_lire(demande_interaction& d, bool& erco) {
  loc_lire_tete(d, erco);
  if (erco) return;
  std::vector<mot_clef> lus;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco; and_lire_deb_nom(mot, 4, erco)) {
    if (clef(mot) == "FIN_"_mot) return zof_controle_mot_fin("FIN_INTE");
    zof_non_repetition_mot_clef(std::ranges::find(lus, clef(mot)) != lus.end(), mot.utile(), erco);
    if (erco) return;
    lus.push_back(clef(mot));
    loc_lire_mot_clef(mot, d, erco);
    if (erco) return;
  }
}

// ---- Names

texte<80> loc_titre(const demande_interaction& d) {
  if (est_renseigne_chaine(d.titre)) return d.titre;
  const zof_plan_interaction& p = *d.plan;
  return concat({d.nom_section.utile(), ":", p.label_ordonnee, "/", p.label_abscisse, "-",
                 d.label_situation.utile(), "-", d.label_etat_limite.utile(), "-", p.label_fixee, "=",
                 zof_chaine_numerique_double(d.valeur_fixee).entier()});
}

std::string loc_nom_diagramme(const demande_interaction& d) {
  const zof_plan_interaction& p = *d.plan;
  return concat({d.nom_section.utile(), "_Interaction_", d.nom_diagramme.utile(), "_", p.label_ordonnee, "_",
                 p.label_abscisse, "_", d.label_situation.utile(), "_", d.label_etat_limite.utile(), "_",
                 p.label_fixee, "_", zof_valeur_arrondie(d.valeur_fixee)});
}

// ---- Run

/// The whole section without its tendons, seen from the principal axes of its gross section.
void loc_preparer_section(const texte<32>& nom_section, int num_section_qb7) {
  zof_activer_section(nom_section);
  zof_desactiver_cables_section(nom_section);
  caracteristiques_mecaniques brutes;
  (void)qb7_caracteristiques_mecaniques(num_section_qb7, qb7_etat_mecanique, brutes);
  (void)qb7_fixer_repere_sollicitation(num_section_qb7, brutes.yg, brutes.zg, brutes.alpha);
}

void loc_editer(const demande_interaction& d, const zof_courbe_interaction& courbe) {
  const texte<80> titre = loc_titre(d);
  zof_ouvrir_dessin_interaction(loc_nom_diagramme(d));
  utl_02_ecrire_titre(titre.utile(), 3);
  utl_02_ecrire_titre("Diagramme d'interaction", 4);
  const std::vector<utl_04_point> points = zof_courbe_fermee(courbe);
  utl_04_ecrire_graphique_svg(
      {{{.points = points, .legende = titre.utile()}}},
      {.opt_label_axe_x = d.plan->label_abscisse, .opt_label_axe_y = d.plan->label_ordonnee});
  utl_02_debut_puce();
  utl_02_ecrire_puce(
      "Attention : Si beton precontraint, les cables de precontrainte ne sont pas pris en compte ni du point "
      "de vue de leur tension ni du point de vue de leur resistance.");
  utl_02_ecrire_puce(
      "Pour que celles-ci soient prises en compte il faut que le diagramme soit demande dans la cadre d une "
      "JUSTIFICATION.");
  utl_02_fin_puce();
  zof_editer_valeurs_interaction(*d.plan, courbe, titre.utile());
}

void loc_tracer(const demande_interaction& d, bool& erco) {
  zof_assert(zof_existe_etat_limite_situation_section(d.nom_section, d.label_situation, d.label_etat_limite),
             concat({"Interaction impossible - ", d.label_situation.utile(), "-", d.label_etat_limite.utile(),
                     ": Non defini pour un des materiaux"}));
  const int num_section_qb7 = zof_get_numero_qb7_section(d.nom_section);
  loc_preparer_section(d.nom_section, num_section_qb7);
  zof_courbe_interaction courbe;
  const ier_2 ier = qb7_diagramme_interaction(
      d.controle_bornes, num_section_qb7,
      zof_get_no_etat_limite_qb7_section(d.nom_section, d.label_situation, d.label_etat_limite),
      d.plan->matrice, d.valeur_fixee, courbe);
  if (ier) return zof_erreur_commande("Diagramme d'interactions vide", erco);
  loc_editer(d, courbe);
}

}  // namespace

void zof_traiter_interactions(bool& erco) {
  demande_interaction d;
  loc_lire(d, erco);
  if (!erco) loc_tracer(d, erco);
}
