#include "Zof_Classe_Precontrainte.hpp"

#include <array>
#include <cmath>
#include <numbers>

#include "And_anadon.hpp"
#include "QB7_Sections.hpp"
#include "Zof_Classe_Materiau.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

void zof_precontrainte::decoder_materiau(bool& erco) {
  const int type = lire_materiau(erco);
  if (erco) return;
  zof_assert_commande(type == type_materiau_precontrainte || type == type_materiau_generique,
                      " Le materiau n est pas du type precontrainte", erco);
}

void zof_precontrainte::decoder_aire(bool& erco) {
  zof_non_repetition_double("AIRE", m_aire_precontrainte, erco);
  if (erco) return;
  double aire_mm2 = 0;
  and_lire_reel_d(aire_mm2, erco);
  if (erco) return;
  zof_assert_commande(aire_mm2 > 1, " Attribut aire incorrect : <=1 mm2 ", erco);
  m_aire_precontrainte = aire_mm2 * 1e-6;
  m_matiere_zone_qb7 = m_aire_precontrainte;
}

void zof_precontrainte::decoder_fin_zone(bool& erco) {
  zof_assert_commande(m_les_points_zone.nombre() > 0, " Aucun point n est defini", erco);
  if (!erco) traiter_zone(erco);
}

void zof_precontrainte::traiter_zone(bool& erco) {
  zof_assert_commande(est_renseigne_chaine(m_nom_materiau_zone), " Cable : un materiau doit etre defini ",
                      erco);
  zof_assert_commande(est_renseigne_double(m_aire_precontrainte),
                      " Precontrainte :  l 'aire de la section doit être defini "_l1, erco);
  if (erco) return;
  m_diametre_zone = std::sqrt(4 * m_aire_precontrainte / std::numbers::pi);
  m_type_zone_qb7 = qb7_zone_semis;
  // A tendon displaces concrete only where it lies in it: in a duct, the duct alone makes the hole.
  const zof_zone* const mere = zone_mere();
  const bool dans_le_beton = mere != nullptr && mere->nature() == nature_zone::contour;
  m_encombrement_zone_qb7 = dans_le_beton ? m_aire_precontrainte : 0.0;
  finaliser_zone_precontrainte(erco);
}

void zof_precontrainte::finaliser_zone_precontrainte(bool& erco) {
  std::vector<int> points;
  preparer_points(points, erco);
  if (erco) return;
  // A duct can't be the engine's mother of a tendon, for it has neither law nor strain: its contour is.
  const zof_zone* const mere = zone_mere();
  const bool en_gaine = mere != nullptr && mere->nature() == nature_zone::gaines;
  const int numero_mere = en_gaine ? mere->m_numero_mere_zone_qb7 : m_numero_mere_zone_qb7;
  int position = 0;
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) {
    inc_numero_courant_qb7_zone_generalisee();
    zof_cable cable;
    cable.m_ix_point = ++position;
    cable.m_no_point = p.m_numero_point;
    cable.m_numero_cable = p.m_numero_point;
    cable.m_numero_zone_qb7 = get_numero_courant_qb7_zone_generalisee();
    creer_zone_qb7(cable.m_numero_zone_qb7, m_numero_materiau_qb7, std::array{p.m_numero_point_qb7},
                   {m_matiere_zone_qb7, m_encombrement_zone_qb7}, numero_mere);
    m_les_cables.ajouter(cable);
    positions_cables_.emplace(cable.m_no_point, position);
  }
}

std::vector<int> zof_precontrainte::numeros_zones_qb7() const {
  std::vector<int> numeros;
  for (const zof_cable& c : uef_parcours<zof_cable>(m_les_cables)) numeros.push_back(c.m_numero_zone_qb7);
  return numeros;
}

void zof_precontrainte::desactiver_precontrainte() const {
  for (const int numero : numeros_zones_qb7())
    zof_assert(!qb7_activer_zone(m_numero_section_qb7, numero, false, false),
               "Zof_Desactiver_Precontrainte : Cas impossible");
}

double zof_precontrainte::rayon_points() const {
  return est_renseigne_double(m_diametre_zone) ? m_diametre_zone / 2 : 0;
}

int zof_precontrainte::numero_cable_qb7(int numero_point) const {
  const auto trouve = positions_cables_.find(numero_point);
  if (trouve == positions_cables_.end()) return non_renseigne;
  return zof_cp_cable(*m_les_cables.case_element(trouve->second).m_ptr_element).m_numero_zone_qb7;
}

void zof_precontrainte::dessin_zone() const {
  dessiner_cercles(
      {.opt_couleur_fond = utl_04_vert_fonce, .opt_couleur_trait = utl_04_vert_fonce, .opt_largeur = 0});
}

std::vector<std::string> zof_precontrainte::donnees_editees() const {
  return {concat({"Aire (mm2) : ", zof_chaine_numerique_double(m_aire_precontrainte * 1e6).utile()})};
}
