// Interaction diagram of a limit state, with its load cases.

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "QB7_Sections.hpp"
#include "Simple.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_justifications.hpp"
#include "Zof_Plan_Interaction.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

/// A load case on the diagram.
struct point_trace {
  std::string label;
  point_xy p;
};

struct noms_diagramme {
  texte<80> titre;
  std::string fichier;
};

noms_diagramme loc_noms(const zof_cadre_justification& cadre, const zof_plan_interaction& plan) {
  const double valeur = gestion_justifications.mod_glo_valeur_fixee;
  const auto assembler = [&](vue_l1 debut, vue_l1 entre_axes, vue_l1 separateur, vue_l1 egal, vue_l1 fin) {
    return concat({cadre.nom_section.utile(), debut, plan.label_ordonnee, entre_axes, plan.label_abscisse,
                   separateur, cadre.label_situation.utile(), separateur, cadre.label_etat_limite.utile(),
                   separateur, plan.composante_fixee, egal, fin});
  };
  return {assembler("- Diagramme:", "/", "-", "=", zof_chaine_numerique_double(valeur).entier()),
          assembler("_Diagramme_", "_", "_", "_", zof_valeur_arrondie(valeur))};
}

// ---- Forces

/// Force of the tendons, as if it were all that acts on the section: N, and its moments in the frame of
/// loading.
efforts loc_precontrainte_isostatique(int num_section, const zof_cas_interactions& cas) {
  zof_assert(cas.opt_les_tensions.size() == cas.opt_les_zones_cables.size(),
             "Zof_Afficher_Interactions : Cas impossible");
  repere rep;
  (void)qb7_lire_repere_sollicitation(num_section, rep);
  double n = 0;
  double sy = 0;
  double sz = 0;
  std::vector<int> points;
  for (std::size_t i = 0; i < cas.opt_les_zones_cables.size(); ++i) {
    const int zone = cas.opt_les_zones_cables[i];
    int nb_points = 0;
    double p_matiere = 0;
    (void)qb7_lire_nbre_pts_zone(num_section, zone, nb_points);
    (void)qb7_lire_param_zone(num_section, zone, &p_matiere);
    points.assign(static_cast<std::size_t>(nb_points), 0);
    (void)qb7_lire_liste_pts_zone(num_section, zone, points);
    point_yz p;
    if (!points.empty()) (void)qb7_lire_point(num_section, points.front(), p.y, p.z);
    const double force = p_matiere * cas.opt_les_tensions[i];
    n += force;
    sz += (p.z - rep.z_rep) * force;
    sy -= (p.y - rep.y_rep) * force;
  }
  return {n, std::sin(rep.alpha) * sy + std::cos(rep.alpha) * sz,
          std::cos(rep.alpha) * sy - std::sin(rep.alpha) * sz};
}

/// Each case of list 1 with each of list 2, or alone where there is no list 2.
std::vector<point_trace> loc_points(const zof_plan_interaction& plan, const zof_cas_interactions& cas) {
  std::vector<point_trace> points;
  const auto ajouter = [&](const efforts& f) {
    points.push_back({concat({"E", std::to_string(points.size() + 1)}), zof_point_du_plan(plan, f)});
  };
  for (const zof_effort& premier : cas.opt_les_efforts_1) {
    if (cas.opt_les_efforts_2.empty()) ajouter(premier.get_efforts());
    for (const zof_effort& second : cas.opt_les_efforts_2)
      ajouter(premier.get_efforts() + second.get_efforts());
  }
  return points;
}

// ---- Drawing

/// Half the size of a cross: a fiftieth of the curve's width and height.
point_xy loc_demi_croix(const zof_courbe_interaction& courbe) {
  const auto [gauche, droite] = std::ranges::minmax(courbe, {}, &point_xy::x);
  const auto [bas, haut] = std::ranges::minmax(courbe, {}, &point_xy::y);
  return {(droite.x - gauche.x) / 50, (haut.y - bas.y) / 50};
}

/// Corners of the crosses, with room for the labels above them.
std::vector<utl_04_point> loc_places(const std::vector<point_trace>& points, point_xy croix) {
  std::vector<utl_04_point> places;
  for (const auto& [label, p] : points) {
    places.push_back({p.x - croix.x, p.y - croix.y});
    places.push_back({p.x + croix.x, p.y + 2 * croix.y});
  }
  return places;
}

void loc_dessiner_croix(point_xy p, point_xy croix) {
  utl_04_creer_ligne_svg({p.x - croix.x, p.y - croix.y}, {p.x + croix.x, p.y + croix.y},
                         {.opt_couleur = utl_04_rouge});
  utl_04_creer_ligne_svg({p.x - croix.x, p.y + croix.y}, {p.x + croix.x, p.y - croix.y},
                         {.opt_couleur = utl_04_rouge});
}

void loc_nommer_croix(const point_trace& point, point_xy croix) {
  const auto& [label, p] = point;
  utl_04_ecrire_texte_svg(label, {p.x, p.y + croix.y}, {},
                          {.opt_couleur_trait = utl_04_rouge, .opt_halo = true});
}

void loc_dessiner(const zof_plan_interaction& plan, const zof_courbe_interaction& courbe,
                  const std::vector<point_trace>& points, const noms_diagramme& noms) {
  const std::vector<utl_04_point> fermee = zof_courbe_fermee(courbe);
  const point_xy croix = loc_demi_croix(courbe);
  const std::vector<utl_04_point> places = loc_places(points, croix);
  zof_ouvrir_dessin_interaction(noms.fichier);
  utl_04_editer_graphique_svg({{{.points = fermee, .legende = noms.titre.utile()}}},
                              {.opt_label_axe_x = plan.label_abscisse,
                               .opt_label_axe_y = plan.label_ordonnee,
                               .opt_points_visibles = places});
  for (const point_trace& point : points) loc_dessiner_croix(point.p, croix);
  // Over all the crosses: one near by must not strike a label out.
  for (const point_trace& point : points) loc_nommer_croix(point, croix);
  utl_04_inclure_dessin_html();
  utl_04_finaliser_svg();
}

// ---- Notes

void loc_editer_avertissements(const zof_cas_interactions* cas) {
  const bool en_repere_brut = gestion_justifications.mod_glo_sollicitation_en_repere_brut;
  const bool sur_precontrainte = cas != nullptr && cas->opt_prec_iso_incluse.has_value();
  if (en_repere_brut && !sur_precontrainte) return;
  utl_02_debut_puce();
  if (!en_repere_brut) utl_02_ecrire_puce("Attention : en repere non brut le diagramme est atypique.");
  if (sur_precontrainte)
    utl_02_ecrire_puce(*cas->opt_prec_iso_incluse
                           ? vue_l1("Attention : Les efforts du diagramme sont donnes - precontrainte "
                                    "isostatique incluse.")
                           : vue_l1("Attention : Les efforts du diagramme sont donnes sans la "
                                    "precontrainte isostatique."));
  utl_02_fin_puce();
}

double loc_distance(point_xy p, const zof_courbe_interaction& courbe) {
  double distance = std::numeric_limits<double>::infinity();
  for (const point_xy& c : courbe) distance = std::min(distance, std::hypot(p.x - c.x, p.y - c.y));
  return distance;
}

/// The ratio reads the same for a case within or beyond the curve: it is no safety factor.
void loc_editer_legende(const zof_plan_interaction& plan, const zof_courbe_interaction& courbe,
                        const std::vector<point_trace>& points, point_xy isostatique) {
  utl_01_type_tableau t(1 + static_cast<int>(points.size()), 8, utl_01_contour_premiere_ligne);
  t.titre_tableau = "Légende diagramme"_l1;
  t.remplir_ligne(1, {"Label", concat({plan.label_abscisse, "(Renseigne)"}),
                      concat({plan.label_ordonnee, "(Renseigne)"}), concat({plan.label_abscisse, "(P iso)"}),
                      concat({plan.label_ordonnee, "(P iso)"}), "Norme_effort", "Norme_distance", "Rapport"});
  int ligne = 1;
  for (const auto& [label, p] : points) {
    const double norme_effort = std::max(std::hypot(p.x, p.y), simple(1e-6f));
    const double distance = loc_distance(p, courbe);
    t.cellule(++ligne, 1) = label;
    int colonne = 1;
    for (const double v : {p.x, p.y, isostatique.x, isostatique.y, norme_effort, distance,
                           (norme_effort - distance) / norme_effort})
      t.cellule(ligne, ++colonne) = zof_chaine_numerique_double(v).utile();
  }
  utl_02_ecrire_tableau(t);
}

void loc_editer_vide() {
  utl_02_debut_puce();
  utl_02_ecrire_puce("- Diagramme d'interactions vide : aucun affichage");
  utl_02_fin_puce();
}

}  // namespace

void zof_afficher_interactions(bool controle_bornes, const zof_cadre_justification& cadre,
                               const zof_cas_interactions* opt_cas) {
  const zof_plan_interaction& plan =
      *zof_pt_plan_interaction(gestion_justifications.mod_glo_composante_fixee);
  zof_courbe_interaction courbe;
  if (qb7_diagramme_interaction(controle_bornes, cadre.num_section_qb7, cadre.num_etat_lim_qb7, plan.matrice,
                                gestion_justifications.mod_glo_valeur_fixee, courbe))
    return loc_editer_vide();
  const noms_diagramme noms = loc_noms(cadre, plan);
  const std::vector<point_trace> points =
      opt_cas == nullptr ? std::vector<point_trace>{} : loc_points(plan, *opt_cas);
  utl_02_ecrire_titre(noms.titre.utile(), 3);
  loc_dessiner(plan, courbe, points, noms);
  loc_editer_avertissements(opt_cas);
  if (opt_cas != nullptr) {
    const efforts isostatique = loc_precontrainte_isostatique(cadre.num_section_qb7, *opt_cas);
    loc_editer_legende(plan, courbe, points, zof_point_du_plan(plan, isostatique));
  }
  zof_editer_valeurs_interaction(plan, courbe, noms.titre.utile());
}
