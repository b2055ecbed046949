#include "Zof_Classe_Charpente.hpp"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <utility>

#include "And_anadon.hpp"
#include "Arithmetique.hpp"
#include "Edition.hpp"
#include "QB7_Sections.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Classe_Materiau.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

bool loc_materiau_admis(const texte<32>& nom) {
  const int type = zof_type_materiau(nom);
  return type == type_materiau_generique || type == type_materiau_charpente;
}

void loc_assert_materiau(const texte<32>& nom, bool& erco) {
  zof_assert_commande(loc_materiau_admis(nom), " Le materiau doit être du type Charpente ou specifique"_l1,
                      erco);
}

void loc_lire_bout(const zof_zone& zone, vue_l1 mot, int& numero, bool& erco) {
  zof_non_repetition_integer(mot, numero, erco);
  if (erco) return;
  and_lire_entier(numero, erco);
  if (erco) return;
  zof_assert_commande(zone.position_point(numero) != 0,
                      concat({" Point non defini ", zof_chaine_numerique_entier(numero).entier()}), erco);
}

void loc_lire_epaisseur(double& epaisseur, bool& erco) {
  zof_non_repetition_double("EPAI", epaisseur, erco);
  if (erco) return;
  double epaisseur_mm = 0;
  and_lire_reel_d(epaisseur_mm, erco);
  if (erco) return;
  zof_assert_commande(epaisseur_mm >= 0, "Epaisseur negative", erco);
  epaisseur = epaisseur_mm / 1000;
}

void loc_lire_materiau_profil(zof_profil& profil, bool& erco) {
  zof_non_repetition_chaine("MATE", profil.m_nom_materiau_profil, erco);
  if (erco) return;
  and_lire_nom(profil.m_nom_materiau_profil, 32, erco);
  if (erco) return;
  profil.m_numero_materiau_qb7_profil = zof_get_materiau_numero_qb7(profil.m_nom_materiau_profil);
  zof_assert_commande(est_renseigne_integer(profil.m_numero_materiau_qb7_profil),
                      concat({" Materiau non défini :"_l1, profil.m_nom_materiau_profil.entier()}), erco);
  if (!erco) loc_assert_materiau(profil.m_nom_materiau_profil, erco);
}

void loc_lire_mot_profil(const zof_zone& zone, const texte<4>& mot, zof_profil& profil, bool& erco) {
  switch (clef(mot)) {
    case "ORIG"_mot: return loc_lire_bout(zone, "ORIG", profil.m_no_point_origine, erco);
    case "EXTR"_mot: return loc_lire_bout(zone, "EXTR", profil.m_no_point_extremite, erco);
    case "EPAI"_mot: return loc_lire_epaisseur(profil.m_epaisseur_profil, erco);
    case "MATE"_mot: return loc_lire_materiau_profil(profil, erco);
    default: zof_attribut_incorrect(mot, erco);
  }
}

// A profile behind the word NUME, up to a word in FIN_.
void loc_lire_profil(const zof_zone& zone, zof_profil& profil, bool& erco) {
  and_lire_entier(profil.m_numero_profil, erco);
  if (erco) return;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    loc_lire_mot_profil(zone, mot, profil, erco);
    if (erco) return;
  }
  if (erco) return;
  zof_assert_renseigne_integer(profil.m_no_point_origine, "ORIG", erco);
  zof_assert_renseigne_integer(profil.m_no_point_extremite, "EXTR", erco);
  zof_assert_renseigne_double(profil.m_epaisseur_profil, "EPAI", erco);
}

// A profile without material takes that of its frame.
void loc_completer_profil(const zof_zone& zone, zof_profil& profil, bool& erco) {
  profil.m_ix_point_origine = zone.position_point(profil.m_no_point_origine);
  profil.m_ix_point_extremite = zone.position_point(profil.m_no_point_extremite);
  if (est_renseigne_chaine(profil.m_nom_materiau_profil)) return;
  zof_assert_commande(est_renseigne_chaine(zone.m_nom_materiau_zone),
                      "Aucun materiau défini au niveau du profil et de la charpente"_l1, erco);
  profil.m_nom_materiau_profil = zone.m_nom_materiau_zone;
  profil.m_numero_materiau_qb7_profil = zone.m_numero_materiau_qb7;
}

}  // namespace

void zof_charpente::decoder_materiau(bool& erco) {
  lire_materiau(erco);
  if (!erco) loc_assert_materiau(m_nom_materiau_zone, erco);
}

void zof_charpente::decoder_profils(bool& erco) {
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    if (clef(mot) != "NUME"_mot) return zof_attribut_incorrect(mot, erco);
    zof_profil profil;
    loc_lire_profil(*this, profil, erco);
    if (erco) return;
    m_les_profils_charpente.ajouter(profil);
  }
  if (erco) return;
  zof_controle_mot_fin("FIN_PROF");
  zof_assert_commande(m_les_profils_charpente.nombre() > 0, " Aucun profil n est defini", erco);
}

void zof_charpente::traiter_zone(bool& erco) {
  zof_assert_commande(m_les_points_zone.nombre() >= 2,
                      "Charpente : au moins deux points doivent être definis"_l1, erco);
  zof_assert_commande(m_les_profils_charpente.nombre() >= 1,
                      "Charpente : au moins un profil doit être defini"_l1, erco);
  for (int i = 1; i <= m_les_profils_charpente.nombre() && !erco; ++i) {
    const uef_pointage<zof_profil> profil{m_les_profils_charpente, i};
    loc_completer_profil(*this, *profil, erco);
  }
  if (erco) return;
  m_type_zone_qb7 = qb7_zone_profil;
  finaliser_zone_charpente(erco);
}

void zof_charpente::finaliser_zone_charpente(bool& erco) {
  std::vector<int> points;
  preparer_points(points, erco);
  if (!erco) controle_duplication_profil(erco);
  if (erco) return;
  for (int i = 1; i <= m_les_profils_charpente.nombre(); ++i) {
    const uef_pointage<zof_profil> p{m_les_profils_charpente, i};
    inc_numero_courant_qb7_zone_generalisee();
    p->m_numero_zone_qb7 = get_numero_courant_qb7_zone_generalisee();
    const std::array bouts{points[static_cast<std::size_t>(p->m_ix_point_origine) - 1],
                           points[static_cast<std::size_t>(p->m_ix_point_extremite) - 1]};
    creer_zone_qb7(p->m_numero_zone_qb7, p->m_numero_materiau_qb7_profil, bouts,
                   {p->m_epaisseur_profil, p->m_epaisseur_profil}, m_numero_mere_zone_qb7);
  }
}

void zof_charpente::controle_duplication_profil(bool& erco) const {
  std::set<std::pair<int, int>> poses;
  for (const zof_profil& p : uef_parcours<zof_profil>(m_les_profils_charpente)) {
    if (poses.insert(std::minmax(p.m_ix_point_origine, p.m_ix_point_extremite)).second) continue;
    zof_erreur_commande(concat({" Duplication de profil : ", edite(I{5}, p.m_numero_profil)}), erco);
    return;
  }
}

std::vector<int> zof_charpente::numeros_zones_qb7() const {
  std::vector<int> numeros;
  for (const zof_profil& p : uef_parcours<zof_profil>(m_les_profils_charpente))
    numeros.push_back(p.m_numero_zone_qb7);
  return numeros;
}

std::vector<texte<32>> zof_charpente::noms_materiaux() const {
  std::vector<texte<32>> noms = zof_zone::noms_materiaux();
  for (const zof_profil& p : uef_parcours<zof_profil>(m_les_profils_charpente))
    noms.push_back(p.m_nom_materiau_profil);
  return noms;
}

// images: for each position of a point the position of its image, itself on the axis.
void zof_charpente::symetriser_contenu(const std::vector<int>& images) {
  int numero = 0;
  for (const zof_profil& p : uef_parcours<zof_profil>(m_les_profils_charpente))
    numero = std::max(numero, p.m_numero_profil);
  const int nombre = m_les_profils_charpente.nombre();
  for (int i = 1; i <= nombre; ++i) {
    zof_profil image = zof_cp_profil(*m_les_profils_charpente.case_element(i).m_ptr_element);
    const int origine = images[static_cast<std::size_t>(image.m_ix_point_origine) - 1];
    const int extremite = images[static_cast<std::size_t>(image.m_ix_point_extremite) - 1];
    if (origine == image.m_ix_point_origine && extremite == image.m_ix_point_extremite) continue;
    image.m_ix_point_origine = origine;
    image.m_ix_point_extremite = extremite;
    image.m_no_point_origine =
        zof_cp_point(*m_les_points_zone.case_element(origine).m_ptr_element).m_numero_point;
    image.m_no_point_extremite =
        zof_cp_point(*m_les_points_zone.case_element(extremite).m_ptr_element).m_numero_point;
    image.m_numero_profil = numero = somme_32(numero, 1);
    m_les_profils_charpente.ajouter(image);
  }
}

void zof_charpente::edition_zone() const {
  zof_zone::edition_zone();
  utl_01_type_tableau tableau(1 + m_les_profils_charpente.nombre(), 5, utl_01_contour_premiere_ligne);
  tableau.remplir_ligne(1, {"Num_Profil", "Origine", "Extremite", "Epaisseur (mm)", "Materiau"});
  int ligne = 1;
  for (const zof_profil& p : uef_parcours<zof_profil>(m_les_profils_charpente)) {
    tableau.remplir_ligne(++ligne, {zof_chaine_numerique_entier(p.m_numero_profil).utile(),
                                    zof_chaine_numerique_entier(p.m_no_point_origine).utile(),
                                    zof_chaine_numerique_entier(p.m_no_point_extremite).utile(),
                                    zof_chaine_numerique_double(p.m_epaisseur_profil * 1000).utile(),
                                    p.m_nom_materiau_profil.utile()});
  }
  utl_02_ecrire_tableau(tableau);
}

void zof_charpente::dessin_zone() const {
  utl_04_point echelle;
  utl_04_echelle_svg(echelle);
  const polygone points = positions_points();
  for (const zof_profil& p : uef_parcours<zof_profil>(m_les_profils_charpente)) {
    const point_yz origine = points[indice(p.m_ix_point_origine)];
    const point_yz extremite = points[indice(p.m_ix_point_extremite)];
    utl_04_creer_ligne_svg(
        {origine.y, origine.z}, {extremite.y, extremite.z},
        {.opt_couleur = utl_04_bleu_fonce, .opt_largeur = std::max(1.0, p.m_epaisseur_profil * echelle.x)});
  }
}
