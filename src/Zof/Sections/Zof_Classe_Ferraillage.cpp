#include "Zof_Classe_Ferraillage.hpp"

#include "And_anadon.hpp"
#include "QB7_Sections.hpp"
#include "Simple.hpp"
#include "Zof_Classe_Contour.hpp"
#include "Zof_Classe_Materiau.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

constexpr double pi_sur_2_simple = simple(1.5707964f);

double loc_metres_depuis_mm(double mm) { return mm / 1000; }

}  // namespace

void zof_ferraillage::decoder_materiau(bool& erco) {
  const int type = lire_materiau(erco);
  if (erco) return;
  zof_assert_commande(type == type_materiau_acier || type == type_materiau_generique,
                      " Le materiau n est pas du type acier", erco);
}

void zof_ferraillage::decoder_diametre(bool& erco) {
  lire_diametre(erco);
  if (!erco) m_diametre_zone = loc_metres_depuis_mm(m_diametre_zone);
}

void zof_ferraillage::decoder_dimensionnable(bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "OUI"_mot: m_dimensionnable = true; break;
    case "NON"_mot: m_dimensionnable = false; break;
    default: zof_attribut_incorrect(mot, erco);
  }
}

void zof_ferraillage::decoder_groupe(bool& erco) {
  zof_non_repetition_integer("GROU", m_cardinalite_groupe, erco);
  if (erco) return;
  and_lire_entier(m_cardinalite_groupe, erco);
  if (erco) return;
  zof_assert_commande(m_cardinalite_groupe > 0, "cardinalité groupe negatif ou nul"_l1, erco);
}

void zof_ferraillage::decoder_fin_zone(bool& erco) {
  zof_assert_commande(m_les_points_zone.nombre() > 0, " Aucun point n est defini", erco);
  if (!erco) traiter_zone(erco);
}

void zof_ferraillage::traiter_zone(bool& erco) {
  zof_assert_commande(est_renseigne_chaine(m_nom_materiau_zone), " Acier : un materiau doit etre defini ",
                      erco);
  zof_assert_commande(est_renseigne_double(m_diametre_zone),
                      " Acier :  le diametre des aciers doit être defini "_l1, erco);
  if (erco) return;
  if (!est_renseigne_integer(m_cardinalite_groupe)) m_cardinalite_groupe = 1;
  m_type_zone_qb7 = qb7_zone_semis;
  m_matiere_zone_qb7 = pi_sur_2_simple * (2.0 * m_cardinalite_groupe) * m_diametre_zone * m_diametre_zone / 4;
  m_encombrement_zone_qb7 = 0;
  finaliser_zone(erco);
}

void zof_ferraillage::controle_duplication_point(bool& erco) {
  auto* const contour = dynamic_cast<zof_contour*>(zone_mere());
  refuser_points_doubles(contour->m_barres, erco);
}

void zof_ferraillage::declarer_aciers_passifs_dimensionnables() const {
  if (!m_dimensionnable) return;
  zof_assert(!qb7_fixer_dimensionnable(m_numero_section_qb7, m_numero_zone_qb7, true),
             "Zof_Declarer_Aciers_Passifs_Dimensionnables : Cas impossible");
}

double zof_ferraillage::rayon_points() const {
  return est_renseigne_double(m_diametre_zone) ? m_diametre_zone / 2 : 0;
}

std::vector<std::string> zof_ferraillage::donnees_editees() const {
  std::vector<std::string> donnees{
      concat({"Diametre (mm) : ", zof_chaine_numerique_double(m_diametre_zone * 1000).utile()})};
  if (m_cardinalite_groupe > 1)
    donnees.push_back(concat(
        {"Nombre de barres par groupe : ", zof_chaine_numerique_entier(m_cardinalite_groupe).utile()}));
  return donnees;
}
