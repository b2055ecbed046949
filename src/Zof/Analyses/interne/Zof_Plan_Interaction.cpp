#include "Zof_Plan_Interaction.hpp"

#include <algorithm>
#include <cmath>

#include "And_anadon.hpp"
#include "Arithmetique.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Gestion_justifications.hpp"
#include "Zof_Options.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

constexpr std::array<zof_plan_interaction, 3> loc_plans = {
    {{"MZ", "My", "N", "Mz", {{{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}}},
     {"MY", "Mz", "N", "My", {{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}}},
     {"N", "My", "Mz", "N", {{{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}}}}};

}  // namespace

const zof_plan_interaction* zof_pt_plan_interaction(const texte<4>& composante_fixee) {
  const auto plan =
      std::ranges::find(loc_plans, composante_fixee.utile(), &zof_plan_interaction::composante_fixee);
  return plan == loc_plans.end() ? nullptr : &*plan;
}

point_xy zof_point_du_plan(const zof_plan_interaction& plan, const efforts& f) {
  const auto coordonnee = [&](const std::array<double, 3>& ligne) {
    return ligne[0] * f.n + ligne[1] * f.my + ligne[2] * f.mz;
  };
  return {coordonnee(plan.matrice[0]), coordonnee(plan.matrice[1])};
}

void zof_lire_composante_fixee(texte<4>& composante, double& valeur, bool& erco) {
  and_lire_deb_nom(composante, 4, erco);
  if (!erco) and_lire_reel_d(valeur, erco);
}

void zof_ouvrir_dessin_interaction(vue_l1 nom_diagramme) {
  const int numero = ++gestion_justifications.mod_glo_no_diagramme;
  utl_04_initialiser_fichier_dessin(zof_options.glo_racine_nom_fichier_svg.utile(),
                                    zof_options.glo_repertoire_svg.utile(),
                                    concat({nom_diagramme, "_", std::to_string(numero), ".svg"}));
}

std::vector<utl_04_point> zof_courbe_fermee(const zof_courbe_interaction& courbe) {
  std::vector<utl_04_point> points;
  points.reserve(courbe.size() + 1);
  for (const point_xy& p : courbe) points.push_back({p.x, p.y});
  points.push_back(points.front());
  return points;
}

std::string zof_valeur_arrondie(double valeur) { return std::to_string(tronquer(std::round(valeur))); }

void zof_editer_valeurs_interaction(const zof_plan_interaction& plan, const zof_courbe_interaction& courbe,
                                    vue_l1 titre) {
  utl_02_ecrire_titre("Tableau des valeurs", 4);
  utl_01_type_tableau t(1 + static_cast<int>(courbe.size()), 2, utl_01_contour_premiere_ligne);
  t.titre_tableau = titre;
  t.remplir_ligne(1, {plan.label_abscisse, plan.label_ordonnee});
  int ligne = 1;
  for (const point_xy& p : courbe)
    t.remplir_ligne(++ligne,
                    {zof_chaine_numerique_double(p.x).utile(), zof_chaine_numerique_double(p.y).utile()});
  utl_02_ecrire_tableau(t);
}
