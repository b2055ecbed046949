#include "Zof_Classe_Gaines.hpp"

#include "Simple.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

bool zof_gaines::admet(nature_zone nature_fille) const { return nature_fille == nature_zone::precontrainte; }

void zof_gaines::decoder_diametre(bool& erco) {
  lire_diametre(erco);
  if (erco) return;
  zof_assert_commande(m_diametre_zone > 1, "Diametre < 1mm", erco);
  if (erco) return;
  m_diametre_zone /= 1000;
  m_matiere_zone_qb7 = 0;
  m_encombrement_zone_qb7 = simple(3.1415927f) * m_diametre_zone * m_diametre_zone / 4;
}

void zof_gaines::decoder_fin_zone(bool& erco) {
  zof_assert_commande(m_les_points_zone.nombre() > 0, " Aucun point n est defini", erco);
  if (!erco) traiter_zone(erco);
}

void zof_gaines::traiter_zone(bool& erco) {
  zof_assert_commande(est_renseigne_double(m_diametre_zone), " Gaine :  le diametre doit être defini "_l1,
                      erco);
  if (erco) return;
  m_type_zone_qb7 = qb7_zone_semis;
  finaliser_zone(erco);
  if (erco) return;
  centres_ = grille_points(m_diametre_zone / 2);
  for (const point_yz& centre : positions_points()) centres_.ajouter(centre);
}

bool zof_gaines::point_interieur_zone(point_yz p) const { return centres_.existe_proche(p); }

double zof_gaines::rayon_points() const {
  return est_renseigne_double(m_diametre_zone) ? m_diametre_zone / 2 : 0;
}

void zof_gaines::dessin_zone() const { dessiner_cercles({.opt_couleur_trait = utl_04_bleu}); }

std::vector<std::string> zof_gaines::donnees_editees() const {
  return {concat({"Diametre (mm) : ", zof_chaine_numerique_double(m_diametre_zone * 1000).utile()})};
}
