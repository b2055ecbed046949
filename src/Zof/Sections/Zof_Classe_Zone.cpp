#include "Zof_Classe_Zone.hpp"

#include <algorithm>
#include <cmath>

#include "Edition.hpp"
#include "Grille_Points.hpp"
#include "QB7_Sections.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Classe_Section.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

// The engine refuses only what the checks of the data have kept away.
void loc_assert_qb7(ier_2 ier) { zof_assert(!ier, "Zof_Finaliser_zone : Cas impossible"); }

point_yz loc_position(const zof_point& p) { return {p.m_y, p.m_z}; }

}  // namespace

zof_zone* zof_zone::zone_mere() const { return dynamic_cast<zof_zone*>(m_p_zone_mere); }

int zof_zone::get_numero_courant_point_section_qb7() const {
  return m_p_section_mere->get_numero_courant_point_section_qb7();
}
int zof_zone::get_numero_courant_qb7_zone_generalisee() const {
  return m_p_section_mere->get_numero_courant_qb7_zone_generalisee();
}
int zof_zone::get_numero_courant_point_zone_type() const {
  return m_p_section_mere->get_numero_courant_point_zone_type();
}
void zof_zone::inc_numero_courant_point_section_qb7() {
  m_p_section_mere->inc_numero_courant_point_section_qb7();
}
void zof_zone::inc_numero_courant_point_zone_type(int& numero) {
  m_p_section_mere->inc_numero_courant_point_zone_type(numero);
}
void zof_zone::inc_numero_courant_qb7_zone_generalisee() {
  m_p_section_mere->inc_numero_courant_qb7_zone_generalisee();
}

void zof_zone::noter_contenu(nature_zone nature_fille) {
  const bool ferraillage = nature_fille == nature_zone::ferraillage;
  if (!ferraillage && nature_fille != nature_zone::precontrainte) return;
  for (zof_zone* z = this; z != nullptr; z = z->zone_mere()) {
    bool& note = ferraillage ? z->contient_ferraillage_ : z->contient_cable_;
    if (note) return;
    note = true;
  }
}

void zof_zone::ajouter_point(int numero, point_yz position, bool& erco) {
  const bool nouveau = positions_points_.emplace(numero, m_les_points_zone.nombre() + 1).second;
  if (!nouveau) {
    zof_erreur_commande(concat({" Duplication du numero de point : ", edite(I{5}, numero)}), erco);
    return;
  }
  zof_point point(position.y, position.z);
  point.m_numero_point = numero;
  m_les_points_zone.ajouter(point);
}

void zof_zone::ajouter_points(int premier_numero, const polygone& positions, bool& erco) {
  int numero = premier_numero;
  for (const point_yz& p : positions) {
    ajouter_point(numero++, p, erco);
    if (erco) return;
  }
}

void zof_zone::retirer_points() {
  m_les_points_zone.vider();
  positions_points_.clear();
}

int zof_zone::position_point(int numero) const {
  const auto trouve = positions_points_.find(numero);
  return trouve == positions_points_.end() ? 0 : trouve->second;
}

polygone zof_zone::positions_points() const {
  polygone positions;
  positions.reserve(static_cast<std::size_t>(m_les_points_zone.nombre()));
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) positions.push_back(loc_position(p));
  return positions;
}

// Zones may nest to any depth: those that are still to come stand in a list, not on the machine's stack.
void zof_zone::ajout_zone_recursif(std::vector<const zof_zone*>& zones) const {
  std::vector<const zof_zone*> a_venir{this};
  while (!a_venir.empty()) {
    const zof_zone* const zone = a_venir.back();
    a_venir.pop_back();
    zones.push_back(zone);
    for (int i = zone->m_les_zones.nombre(); i >= 1; --i) {
      const auto fille = zof_cp_pointeur_zone(*zone->m_les_zones.case_element(i).m_ptr_element);
      a_venir.push_back(static_cast<const zof_zone*>(fille.m_pt_zone));
    }
  }
}

int zof_zone::numero_point_max_recursif() const {
  std::vector<const zof_zone*> zones;
  ajout_zone_recursif(zones);
  int numero = 0;
  for (const zof_zone* const zone : zones)
    for (const zof_point& p : uef_parcours<zof_point>(zone->m_les_points_zone))
      numero = std::max(numero, p.m_numero_point);
  return numero;
}

double zof_zone::aire_zone() const { return aire_polygone(positions_points()); }

// ---- End of the block

void zof_zone::controle_duplication_point(bool& erco) {
  grille_points grille;
  refuser_points_doubles(grille, erco);
}

void zof_zone::refuser_points_doubles(grille_points& grille, bool& erco) const {
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) {
    if (grille.existe_proche(loc_position(p))) {
      zof_erreur_commande(
          concat({" Duplication de point : ", edite(I{5}, p.m_numero_point), " zone : ", m_nom_zone.utile()}),
          erco);
      return;
    }
    grille.ajouter(loc_position(p));
  }
}

void zof_zone::controle_nombre_points(vue_l1 message, vue_l1 message_partiel, bool& erco) const {
  const int nombre = m_les_points_zone.nombre();
  if (!m_zone_partielle) {
    zof_assert_commande(nombre >= 3, message, erco);
  } else if (m_symetrie != symetrie_yz) {
    zof_assert_commande(nombre >= 2, message_partiel, erco);
  }
}

void zof_zone::creer_points_qb7(std::vector<int>& liste_points) {
  for (int i = 1; i <= m_les_points_zone.nombre(); ++i) {
    const uef_pointage<zof_point> p{m_les_points_zone, i};
    if (!est_renseigne_integer(p->m_numero_point_qb7)) {
      inc_numero_courant_point_section_qb7();
      p->m_numero_point_qb7 = get_numero_courant_point_section_qb7();
      loc_assert_qb7(qb7_creer_point(m_numero_section_qb7, p->m_numero_point_qb7, p->m_y, p->m_z));
    }
    liste_points.push_back(p->m_numero_point_qb7);
  }
}

void zof_zone::preparer_points(std::vector<int>& liste_points, bool& erco) {
  if (m_zone_partielle) symetriser_zone_partielle();
  controle_duplication_point(erco);
  if (erco) return;
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) {
    if (p.m_numero_point <= numero_point_max) continue;
    zof_erreur_commande(concat({" Numero de point incorrect >", std::to_string(numero_point_max)}), erco);
    return;
  }
  creer_points_qb7(liste_points);
}

void zof_zone::creer_zone_qb7(int numero_zone, int numero_materiau, std::span<const int> points,
                              const parametres_zone_qb7& parametres, int numero_mere) const {
  const int section = m_numero_section_qb7;
  loc_assert_qb7(qb7_creer_zone(section, numero_zone, m_type_zone_qb7, numero_materiau, points));
  if (m_type_zone_qb7 != qb7_zone_contour) {
    loc_assert_qb7(qb7_fixer_param_zone(section, numero_zone, parametres.matiere, parametres.encombrement));
    loc_assert_qb7(qb7_fixer_c_remplissage(section, numero_zone, 1.0));
  }
  loc_assert_qb7(qb7_fixer_num_zone_mere(section, numero_zone, numero_mere));
}

void zof_zone::finaliser_zone(bool& erco) {
  std::vector<int> liste_points;
  preparer_points(liste_points, erco);
  if (erco) return;
  creer_zone_qb7(m_numero_zone_qb7, m_numero_materiau_qb7, liste_points,
                 {m_matiere_zone_qb7, m_encombrement_zone_qb7}, m_numero_mere_zone_qb7);
  if (m_type_zone_qb7 != qb7_zone_contour) return;
  const polygone positions = positions_points();
  contour_ = index_contour(positions);
  const double aire = aire_polygone(positions);
  zof_assert_commande(aire > 0,
                      concat({" l aire de la zone ", m_nom_zone.utile(), "  est  négative :"_l1,
                              zof_chaine_numerique_double(aire).entier()}),
                      erco);
}

// ---- Symmetry

// SYME Y: the axis Y is the axis of symmetry, z changes its sign; SYME Z: y does; YZ: one, then the other.
void zof_zone::symetriser_zone_partielle() {
  if (m_symetrie != symetrie_yz) return symetriser(m_symetrie);
  // A quarter of an outline is run counter-clockwise: where y z > 0 it ends towards the axis Z, elsewhere
  // towards Y.
  double somme_y = 0;
  double somme_z = 0;
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) {
    somme_y += p.m_y;
    somme_z += p.m_z;
  }
  const bool contour = nature() == nature_zone::contour || nature() == nature_zone::evidement;
  const int premier = contour && !(somme_y * somme_z > 0) ? symetrie_y : symetrie_z;
  symetriser(premier);
  symetriser(premier == symetrie_z ? symetrie_y : symetrie_z);
}

// The images of an outline come in reverse order, so that the whole closes; those of other zones in the same
// order. A point on the axis has no image.
void zof_zone::symetriser(int axe) {
  const bool a_rebours = nature() == nature_zone::contour || nature() == nature_zone::evidement;
  const int nombre = m_les_points_zone.nombre();
  std::vector<int> images(static_cast<std::size_t>(nombre));
  for (int k = 1; k <= nombre; ++k) {
    const int position = a_rebours ? nombre + 1 - k : k;
    zof_point image = zof_cp_point(*m_les_points_zone.case_element(position).m_ptr_element);
    double& coordonnee = axe == symetrie_z ? image.m_y : image.m_z;
    int& position_image = images[static_cast<std::size_t>(position) - 1];
    position_image = position;
    if (std::abs(coordonnee) <= zof_tolerance_points_confondus) continue;
    coordonnee = -coordonnee;
    image.m_numero_point_sym_cible = image.m_numero_point;
    image.m_ix_point_sym_cible = position;
    // A line of the zone may have taken numbers above those of single points.
    do inc_numero_courant_point_zone_type(image.m_numero_point);
    while (position_point(image.m_numero_point) != 0);
    m_les_points_zone.ajouter(image);
    position_image = m_les_points_zone.nombre();
    positions_points_.emplace(image.m_numero_point, position_image);
  }
  symetriser_contenu(images);
}

void zof_zone::symetriser_contenu(const std::vector<int>&) {}

// ---- Points inside their mother

bool zof_zone::point_interieur_zone(point_yz) const { return true; }

void zof_zone::controle_points_interieurs_zone(bool& erco) const {
  const zof_zone* const mere = zone_mere();
  if (mere == nullptr) return;
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) {
    if (mere->point_interieur_zone(loc_position(p))) continue;
    zof_erreur_commande(concat({" Point ", edite(I{5}, p.m_numero_point), " de la zone ", m_nom_zone.utile(),
                                " exterieur a la zone ", mere->m_nom_zone.utile()}),
                        erco);
  }
}

// ---- Results

std::vector<int> zof_zone::numeros_zones_qb7() const { return {m_numero_zone_qb7}; }

std::vector<texte<32>> zof_zone::noms_materiaux() const {
  if (!est_renseigne_chaine(m_nom_materiau_zone)) return {};
  return {m_nom_materiau_zone};
}

void zof_zone::etendre_emprise(std::array<double, 2>& y_min_max, std::array<double, 2>& z_min_max) const {
  const double r = rayon_points();
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) {
    y_min_max = {std::min(y_min_max[0], p.m_y - r), std::max(y_min_max[1], p.m_y + r)};
    z_min_max = {std::min(z_min_max[0], p.m_z - r), std::max(z_min_max[1], p.m_z + r)};
  }
}

std::vector<std::string> zof_zone::donnees_editees() const { return {}; }

void zof_zone::dessiner_contour(const utl_04_couleur& fond) const {
  std::vector<utl_04_point> points;
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) points.push_back({p.m_y, p.m_z});
  utl_04_creer_chemin_svg(points, {.opt_couleur_fond = fond, .opt_ferme = true});
}

void zof_zone::dessiner_cercles(const utl_04_options_cercle& options) const {
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone))
    utl_04_creer_cercle_svg({p.m_y, p.m_z}, rayon_points(), options);
}

void zof_zone::edition_zone() const {
  std::string titre = concat({intitule(), " : ", m_nom_zone.utile()});
  if (est_renseigne_chaine(m_titre_zone)) titre += concat({" - ", m_titre_zone.utile()});
  utl_02_ecrire_titre(titre, 3);

  std::vector<std::string> puces;
  if (est_renseigne_chaine(m_nom_materiau_zone))
    puces.push_back(concat({"Materiau : ", m_nom_materiau_zone.utile()}));
  for (std::string& donnee : donnees_editees()) puces.push_back(std::move(donnee));
  if (!puces.empty()) {
    utl_02_debut_puce();
    for (const std::string& puce : puces) utl_02_ecrire_puce(puce);
    utl_02_fin_puce();
  }

  utl_01_type_tableau tableau(1 + m_les_points_zone.nombre(), 3, utl_01_contour_premiere_ligne);
  tableau.remplir_ligne(1, {"Num_Point", "y", "z"});
  int ligne = 1;
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) {
    tableau.remplir_ligne(++ligne, {zof_chaine_numerique_entier(p.m_numero_point).utile(),
                                    zof_chaine_numerique_geometrique(p.m_y).utile(),
                                    zof_chaine_numerique_geometrique(p.m_z).utile()});
  }
  utl_02_ecrire_tableau(tableau);
}
