#include "Zof_Gestion_Materiau_Edition.hpp"

#include <algorithm>

#include "Arithmetique.hpp"
#include "QB7_Sections.hpp"
#include "UTL_01_Types.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Gestion_Materiau_Lois.hpp"
#include "Zof_Utilit.hpp"

using socle::concat;

namespace {

/// Strains at which the law is told: left ends of its intervals and its limits, rising, each once.
std::vector<double> loc_deformations_remarquables(int num_materiau, int num_etat_lim) {
  int nbre_interv = 0;
  int degre = 0;
  zof_exiger(qb7_lire_dims_loi(num_materiau, num_etat_lim, nbre_interv, degre));
  std::vector<double> epsilons(static_cast<std::size_t>(nbre_interv));
  std::vector<qb7_polynome> coeffs(epsilons.size());
  zof_exiger(qb7_lire_tabs_loi(num_materiau, num_etat_lim, epsilons, coeffs));
  double epsilon_min = 0;
  double epsilon_max = 0;
  zof_exiger(qb7_lire_bornes_loi(num_materiau, num_etat_lim, epsilon_min, epsilon_max));
  for (const double borne : {epsilon_min, epsilon_max})
    if (borne != qb7_sans_borne) epsilons.push_back(borne);
  std::sort(epsilons.begin(), epsilons.end());
  epsilons.erase(std::unique(epsilons.begin(), epsilons.end()), epsilons.end());
  return epsilons;
}

}  // namespace

void zof_editer_titre_materiau(const zof_materiau& materiau) {
  utl_02_ecrire_titre(concat({"Materiau : ", materiau.get_nom_materiau().utile(), " - ",
                              materiau.get_titre_materiau().utile()}),
                      2);
}

void zof_editer_situations(const zof_materiau& materiau, bool& erco) {
  for (const zof_situation_materiau& situation :
       uef_parcours<zof_situation_materiau>(materiau.m_les_situations))
    situation.editer_situation(erco);
}

void zof_editer_titre_situation(const zof_situation_materiau& situation) {
  utl_02_ecrire_titre(concat({"Situation : ", situation.get_label_situation().utile()}), 3);
}

ligne_edition zof_ligne_double(std::string_view intitule, double valeur) {
  return {intitule, std::string(zof_chaine_numerique_double(valeur).entier())};
}

ligne_edition zof_ligne_oui_non(std::string_view intitule, bool valeur) {
  return {intitule, valeur ? "oui" : "non"};
}

ligne_edition zof_ligne_type_loi(std::string_view intitule, int type_loi) {
  return {intitule, std::string(zof_par_type_loi_materiau[socle::indice(type_loi)].utile())};
}

void zof_editer_puces(const std::vector<ligne_edition>& lignes) {
  utl_02_debut_puce();
  for (const ligne_edition& ligne : lignes) utl_02_ecrire_puce(concat({ligne.intitule, ligne.valeur}));
  utl_02_fin_puce();
}

void zof_editer_loi_etat_limite(int num_materiau, const zof_etat_limite& etat_limite) {
  const int num_etat_lim = etat_limite.m_numero_etat_limite_qb7;
  utl_02_ecrire_titre(concat({"Etat limite : ", etat_limite.m_label_etat_limite.utile()}), 4);
  const std::vector<double> epsilons = loc_deformations_remarquables(num_materiau, num_etat_lim);
  utl_01_type_tableau tableau(1 + static_cast<int>(epsilons.size()), 2, utl_01_contour_premiere_ligne);
  tableau.remplir_ligne(1, {"Epsilon", "Sigma (Mpa)"});
  int ligne = 1;
  for (const double epsilon : epsilons) {
    double sigma = 0;
    zof_exiger(qb7_contrainte_materiau(num_materiau, num_etat_lim, epsilon, sigma));
    tableau.remplir_ligne(
        ++ligne, {zof_chaine_deformation(epsilon).utile(), zof_chaine_numerique_double(sigma).utile()});
  }
  utl_02_ecrire_tableau(tableau);
}

void zof_editer_lois_situation(const zof_situation_materiau& situation) {
  for (const zof_etat_limite& etat : uef_parcours<zof_etat_limite>(situation.m_les_etats_limites))
    zof_editer_loi_etat_limite(situation.get_numero_materiau_qb7(), etat);
}
