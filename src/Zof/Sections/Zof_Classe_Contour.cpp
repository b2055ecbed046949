#include "Zof_Classe_Contour.hpp"

#include "Zof_Classe_Materiau.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Ferraillage_Automatique.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

bool zof_contour::admet(nature_zone nature_fille) const {
  return nature_fille != nature_zone::charpente_externe;
}

void zof_contour::decoder_materiau(bool& erco) {
  const int type = lire_materiau(erco);
  if (erco) return;
  zof_assert_commande(type == type_materiau_beton || type == type_materiau_beton_precontraint ||
                          type == type_materiau_generique || type == type_materiau_charpente,
                      " Le materiau n est pas d un type autorise", erco);
}

void zof_contour::traiter_zone(bool& erco) {
  zof_assert_commande(est_renseigne_chaine(m_nom_materiau_zone), " Contour : un materiau doit etre defini ",
                      erco);
  controle_nombre_points("  Un contour non partiel doit comporter au moins trois points ",
                         "  Symetrie : Y ou Z : Un contour partiel doit comporter au moins deux points ",
                         erco);
  if (erco) return;
  const int type = zof_type_materiau(m_nom_materiau_zone);
  const bool precontraignable = type == type_materiau_beton_precontraint || type == type_materiau_generique;
  zof_assert_commande(!contient_ferraillage() || precontraignable || type == type_materiau_beton,
                      " Présence de ferraillage alors que le materiau n'est pas du type béton armé"_l1, erco);
  zof_assert_commande(!contient_cable() || precontraignable,
                      " Présence  de câbles alors que le materiau n'est pas du type béton precontraint"_l1,
                      erco);
  if (erco) return;
  m_type_zone_qb7 = qb7_zone_contour;
  finaliser_zone(erco);
  if (!erco) zof_traiter_ferraillages_automatiques_ou_en_lits(*this, erco);
}

bool zof_contour::point_interieur_zone(point_yz p) const { return contour_.contient(p); }
