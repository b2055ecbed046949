#include "Zof_Zones_Dimensionnables.hpp"

#include <cmath>

#include "Arithmetique.hpp"
#include "QB7_Sections.hpp"
#include "Zof_Classe_Double.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

std::vector<zof_ferraillage*> zof_zones_dimensionnables(const texte<32>& nom_section) {
  const int num_section_qb7 = zof_get_numero_qb7_section(nom_section);
  std::vector<zof_ferraillage*> zones;
  for (zof_zone* const zone : zof_lister_zones_section(nom_section)) {
    if (zone->nature() != nature_zone::ferraillage) continue;
    bool dimensionnable = false;
    (void)qb7_lire_dimensionnable(num_section_qb7, zone->get_numero_zone_qb7(), dimensionnable);
    if (dimensionnable) zones.push_back(static_cast<zof_ferraillage*>(zone));
  }
  return zones;
}

double zof_matiere_par_point(const zof_ferraillage& zone) {
  double matiere = 0;
  (void)qb7_lire_param_zone(zone.get_numero_section_qb7(), zone.get_numero_zone_qb7(), &matiere);
  return matiere;
}

double zof_aire_aciers(const zof_ferraillage& zone, double c_remplissage) {
  constexpr double aire_negligeable = 1e-7;
  const double aire = zone.m_les_points_zone.nombre() * zof_matiere_par_point(zone) * c_remplissage;
  return aire > aire_negligeable ? aire : 0;
}

double zof_lire_remplissage(const uef_vector& coefficients, int k) {
  return zof_cp_double(*coefficients.case_element(k).m_ptr_element).m_double;
}

void zof_noter_remplissage(uef_vector& coefficients, int k, double c_remplissage) {
  if (k > coefficients.nombre())
    coefficients.ajouter(zof_double(c_remplissage));
  else
    coefficients.remplacer(k, zof_double(c_remplissage));
}

std::string zof_chaine_entier_superieur(double quantite) {
  return std::string(zof_chaine_numerique_entier(tronquer(std::ceil(quantite))).utile());
}
