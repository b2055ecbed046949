#include "Zof_Classe_Ferraillage.hpp"

#include <cmath>
#include <string>

#include "And_anadon.hpp"
#include "QB7_Sections.hpp"
#include "Simple.hpp"
#include "Zof_Classe_Contour.hpp"
#include "Zof_Classe_Materiau.hpp"
#include "Zof_Classe_Selection_Acier.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

constexpr double pi_sur_2_simple = simple(1.5707964f);

// The engine refuses only what the checks of the data have kept away.
void loc_assert_qb7(ier_2 ier) { zof_assert(!ier, "Zof_Ferraillage : Cas impossible"); }

}  // namespace

void zof_ferraillage::decoder_materiau(bool& erco) {
  const int type = lire_materiau(erco);
  if (erco) return;
  zof_assert_commande(type == type_materiau_acier || type == type_materiau_generique,
                      " Le materiau n est pas du type acier", erco);
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
  zof_assert_commande(est_automatique() || m_les_points_zone.nombre() > 0, " Aucun point n est defini", erco);
  if (!erco) traiter_zone(erco);
}

void zof_ferraillage::traiter_zone(bool& erco) {
  zof_assert_commande(est_renseigne_chaine(m_nom_materiau_zone), " Acier : un materiau doit etre defini ",
                      erco);
  const bool diametre_donne = est_renseigne_double(m_diametre_zone);
  zof_assert_commande(diametre_donne || (est_automatique() && !est_en_lits()),
                      " Acier :  le diametre des aciers doit être defini "_l1, erco);
  zof_assert_commande(
      !est_automatique() || est_en_lits() || m_dimensionnable || est_renseigne_integer(m_nb_lits),
      " Acier automatique:  dimensionnement obligatoire ", erco);
  if (est_en_lits() && diametre_donne)
    zof_assert_commande(zof_est_label_selection(label_diametre()), "Diametre des aciers non homologué"_l1,
                        erco);
  if (erco) return;
  if (!est_renseigne_integer(m_cardinalite_groupe)) m_cardinalite_groupe = 1;
  m_type_zone_qb7 = qb7_zone_semis;
  m_encombrement_zone_qb7 = 0;
  if (est_automatique()) {
    m_zone_partielle = false;  // the sides of the contour are whole, and so are its bars
    return;
  }
  fixer_matiere();
  finaliser_zone(erco);
}

texte<4> zof_ferraillage::label_diametre() const {
  const double mm = std::round(m_diametre_zone * 1000);
  return mm < 100 ? texte<4>(concat({"P_", std::to_string(static_cast<int>(mm))})) : texte<4>();
}

void zof_ferraillage::fixer_matiere() {
  m_matiere_zone_qb7 = pi_sur_2_simple * (2.0 * m_cardinalite_groupe) * m_diametre_zone * m_diametre_zone / 4;
}

void zof_ferraillage::controle_duplication_point(bool& erco) {
  refuser_points_doubles(contour_mere().m_barres, erco);
}

zof_contour& zof_ferraillage::contour_mere() const { return *dynamic_cast<zof_contour*>(zone_mere()); }

void zof_ferraillage::placer_barres(const polygone& positions, bool& erco) {
  for (const point_yz& p : positions) {
    int numero = 0;
    inc_numero_courant_point_zone_type(numero);
    ajouter_point(numero, p, erco);
    if (erco) return;
  }
  fixer_matiere();
  finaliser_zone(erco);
  if (erco) return;
  for (const point_yz& p : positions) contour_mere().m_barres_automatiques.ajouter(p);
}

void zof_ferraillage::retirer_barres() {
  for (const zof_point& p : uef_parcours<zof_point>(m_les_points_zone)) {
    contour_mere().m_barres.retirer({p.m_y, p.m_z});
    contour_mere().m_barres_automatiques.retirer({p.m_y, p.m_z});
    loc_assert_qb7(qb7_supprimer_point(m_numero_section_qb7, p.m_numero_point_qb7));
  }
  loc_assert_qb7(qb7_supprimer_zone(m_numero_section_qb7, m_numero_zone_qb7));
  retirer_points();
}

void zof_ferraillage::declarer_aciers_passifs_dimensionnables() const {
  if (!m_dimensionnable) return;
  zof_assert(!qb7_fixer_dimensionnable(m_numero_section_qb7, m_numero_zone_qb7, true),
             "Zof_Declarer_Aciers_Passifs_Dimensionnables : Cas impossible");
}

double zof_ferraillage::rayon_points() const {
  return est_renseigne_double(m_diametre_zone) ? m_diametre_zone / 2 : 0;
}

void zof_ferraillage::dessin_zone() const {
  dessiner_cercles({.opt_couleur_fond = utl_04_rouge,
                    .opt_couleur_trait = utl_04_rouge,
                    .opt_largeur = 0,
                    .opt_rayon_min = 2});
}

std::vector<std::string> zof_ferraillage::donnees_editees() const {
  std::vector<std::string> donnees{
      concat({"Diametre (mm) : ", zof_chaine_numerique_double(m_diametre_zone * 1000).utile()})};
  if (m_cardinalite_groupe > 1)
    donnees.push_back(concat(
        {"Nombre de barres par groupe : ", zof_chaine_numerique_entier(m_cardinalite_groupe).utile()}));
  if (!est_automatique()) return donnees;
  const auto ajouter = [&donnees](std::string_view intitule, const texte<15>& valeur) {
    donnees.push_back(concat({intitule, valeur.utile()}));
  };
  donnees.push_back(concat({"Disposition : ", intitule_disposition()}));
  ajouter("Enrobage (m) : ", zof_chaine_numerique_double(m_enrobage));
  ajouter("Nombre de lits : ", zof_chaine_numerique_entier(m_nb_lits));
  ajouter("Espacement max effectif (m) : ", zof_chaine_numerique_double(m_espacement_max_effectif));
  ajouter("Espacement min effectif (m) : ", zof_chaine_numerique_double(m_espacement_min_effectif));
  ajouter("Espacement moyen effectif (m) : ", zof_chaine_numerique_double(m_espacement_moyen_effectif));
  return donnees;
}
