// The blocks of bars that are laid along the sides of a contour: OPTI, LITS, SELE.

#include <array>
#include <numbers>
#include <string>
#include <string_view>

#include "And_anadon.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Classe_Selection_Acier.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

constexpr std::string_view diametre_et_options = "les Mots clefs  DIAM et OPTI sont exclusifs entre eux";
constexpr std::string_view lit_et_points = "Il est interdit de definir un lit avec une forme typee";

constexpr double enrobage_min = 0.001;  // m

struct disposition {
  texte<8> mots;
  int type;
};
constexpr std::array<disposition, 8> dispositions{{{"SUPESTRI", type_ferraillage_sup_strict},
                                                   {"SUPEPARO", type_ferraillage_sup_parois},
                                                   {"INFESTRI", type_ferraillage_inf_strict},
                                                   {"INFEPARO", type_ferraillage_inf_parois},
                                                   {"LATESTRI", type_ferraillage_lat_strict},
                                                   {"LATEPARO", type_ferraillage_lat_parois},
                                                   {"PERISTRI", type_ferraillage_peri_strict},
                                                   {"PERIPARO", type_ferraillage_peri_parois}}};

// ---- Keywords that OPTI and LITS share

// A real that stands once in its block, above 0.
void loc_lire_reel_positif(vue_l1 mot, vue_l1 message, double& valeur, bool& erco) {
  zof_non_repetition_double(mot, valeur, erco);
  if (erco) return;
  and_lire_reel_d(valeur, erco);
  if (!erco) zof_assert_commande(valeur > 0, message, erco);
}

void loc_lire_enrobage(zof_ferraillage& zone, bool& erco) {
  zof_non_repetition_double("ENRO", zone.m_enrobage, erco);
  if (erco) return;
  and_lire_reel_d(zone.m_enrobage, erco);
  if (!erco) zof_assert_commande(zone.m_enrobage >= enrobage_min, " Valeur de l'enrobage < 1mm", erco);
}

void loc_lire_groupe(zof_ferraillage& zone, bool& erco) {
  zof_assert_commande(!est_renseigne_integer(zone.m_cardinalite_groupe), " Répétition du mot clef GROUPE "_l1,
                      erco);
  if (erco) return;
  and_lire_entier(zone.m_cardinalite_groupe, erco);
  if (erco) return;
  zof_assert_commande(zone.m_cardinalite_groupe > 0, " nombre de barres par groupe négatif ou nul"_l1, erco);
}

// An unset limit is greater than any other, so that only a minimum that is not given must be told apart.
void loc_assert_ecartements(const zof_ferraillage& zone, bool& erco) {
  if (erco || !est_renseigne_double(zone.m_ecartement_aciers_min)) return;
  zof_assert_commande(zone.m_ecartement_aciers_min <= zone.m_ecartement_aciers_max,
                      " Valeur de l'espacement min superieure a l espacement max", erco);
}

// Cover, distances, group. False for any other word.
bool loc_lire_mot_commun(zof_ferraillage& zone, const texte<4>& mot, bool& erco) {
  switch (clef(mot)) {
    case "ENRO"_mot: loc_lire_enrobage(zone, erco); return true;
    case "DIST"_mot:
      loc_lire_reel_positif("DIST", " Valeur de la distance entre lits négative ou nulle"_l1,
                            zone.m_distance_lits, erco);
      return true;
    case "E_MA"_mot:
      loc_lire_reel_positif("E_MA", " Valeur de l'espacement max négative ou nulle"_l1,
                            zone.m_ecartement_aciers_max, erco);
      loc_assert_ecartements(zone, erco);
      return true;
    case "E_MI"_mot:
      loc_lire_reel_positif("E_MI", " Valeur de l'espacement min négative ou nulle"_l1,
                            zone.m_ecartement_aciers_min, erco);
      loc_assert_ecartements(zone, erco);
      return true;
    case "GROU"_mot: loc_lire_groupe(zone, erco); return true;
    default: return false;
  }
}

// ---- OPTI

void loc_lire_disposition(zof_ferraillage& zone, bool& erco) {
  zof_non_repetition_mot_clef(zone.est_automatique(), "DISP", erco);
  if (erco) return;
  texte<4> face;
  texte<4> suivi;
  and_lire_deb_nom(face, 4, erco);
  if (erco) return;
  and_lire_deb_nom(suivi, 4, erco);
  if (erco) return;
  const texte<8> mots = concat({face.entier(), suivi.entier()});
  for (const disposition& d : dispositions)
    if (d.mots == mots) zone.m_type_ferraillage = d.type;
  if (!zone.est_automatique()) zof_attribut_incorrect(mots, erco);
}

void loc_lire_nombre_lits(zof_ferraillage& zone, bool& erco) {
  zof_non_repetition_integer("LITS", zone.m_nb_lits, erco);
  if (erco) return;
  and_lire_entier(zone.m_nb_lits, erco);
  if (erco) return;
  zof_assert_commande(zone.m_nb_lits > 0, " Valeur du nombre de lits maxi négative ou nulle"_l1, erco);
}

void loc_lire_deviation(zof_ferraillage& zone, bool& erco) {
  zof_non_repetition_double("DEVI", zone.m_angle_horizontal_max, erco);
  if (erco) return;
  double degres = 0;
  and_lire_reel_d(degres, erco);
  if (erco) return;
  zof_assert_commande(degres > 0 && degres < 90,
                      " Valeur de la déviation angulaire horizontale  max incorrecte <=0 ou >=90"_l1, erco);
  zone.m_angle_horizontal_max = degres * std::numbers::pi / 180;
}

void loc_lire_mot_options(zof_ferraillage& zone, const texte<4>& mot, bool& erco) {
  switch (clef(mot)) {
    case "DISP"_mot: return loc_lire_disposition(zone, erco);
    case "LITS"_mot: return loc_lire_nombre_lits(zone, erco);
    case "DEVI"_mot: return loc_lire_deviation(zone, erco);
    case "SELE"_mot: return zone.decoder_selection_aciers(erco);
    default: break;
  }
  if (!loc_lire_mot_commun(zone, mot, erco)) zof_attribut_incorrect(mot, erco);
}

void loc_assert_options(const zof_ferraillage& zone, bool& erco) {
  zof_assert_commande(zone.est_automatique(), " La disposition des aciers n est pas renseignee", erco);
  if (erco) return;
  zof_assert_commande(!est_renseigne_integer(zone.m_cardinalite_groupe) ||
                          zone.m_type_ferraillage == type_ferraillage_sup_strict ||
                          zone.m_type_ferraillage == type_ferraillage_inf_strict,
                      " l option GROUPE ne peut etre introduite que pour les aciers sup et inf stricts",
                      erco);
  const bool distance_donnee = est_renseigne_double(zone.m_distance_lits);
  const bool lits_donnes = est_renseigne_integer(zone.m_nb_lits);
  zof_assert_commande(lits_donnes || !distance_donnee, " Nombre de lits non renseigne", erco);
  zof_assert_commande(distance_donnee || !lits_donnes || zone.m_nb_lits == 1,
                      " Distance entre lits non renseignee", erco);
}

// ---- LITS

void loc_lire_face_du_lit(zof_ferraillage& zone, bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "SUPE"_mot: zone.m_type_ferraillage = type_ferraillage_sup_strict; break;
    case "INFE"_mot: zone.m_type_ferraillage = type_ferraillage_inf_strict; break;
    default: zof_attribut_incorrect(mot, erco);
  }
}

void loc_lire_nombre_points(zof_ferraillage& zone, bool& erco) {
  zof_non_repetition_integer("NOMB", zone.m_nb_points_par_lit, erco);
  if (erco) return;
  and_lire_entier(zone.m_nb_points_par_lit, erco);
  if (erco) return;
  zof_assert_commande(zone.m_nb_points_par_lit > 0, "nombre negatif ou nul", erco);
}

}  // namespace

void zof_ferraillage::decoder_points(bool& erco) {
  zof_assert_commande(!est_automatique(), lit_et_points, erco);
  if (!erco) zof_zone::decoder_points(erco);
}

void zof_ferraillage::decoder_diametre(bool& erco) {
  zof_assert_commande(!est_automatique() || est_en_lits(), diametre_et_options, erco);
  if (erco) return;
  lire_diametre(erco);
  if (!erco) m_diametre_zone /= 1000;
}

void zof_ferraillage::decoder_options_ferraillage(bool& erco) {
  zof_assert_commande(!est_renseigne_double(m_diametre_zone), diametre_et_options, erco);
  if (erco) return;
  zof_assert_commande(!est_en_lits() && m_les_points_zone.nombre() == 0, lit_et_points, erco);
  if (erco) return;
  zof_non_repetition_mot_clef(est_automatique(), "OPTI", erco);
  if (erco) return;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    loc_lire_mot_options(*this, mot, erco);
    if (erco) return;
  }
  if (erco) return;
  zof_controle_mot_fin("FIN_OPTI");
  loc_assert_options(*this, erco);
}

void zof_ferraillage::decoder_lits(bool& erco) {
  zof_non_repetition_mot_clef(est_en_lits(), "LITS", erco);
  if (erco) return;
  zof_assert_commande(!est_automatique() && m_les_points_zone.nombre() == 0, lit_et_points, erco);
  if (erco) return;
  loc_lire_face_du_lit(*this, erco);
  if (erco) return;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    if (clef(mot) == "NOMB"_mot) {
      loc_lire_nombre_points(*this, erco);
    } else if (!loc_lire_mot_commun(*this, mot, erco)) {
      zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
  if (erco) return;
  zof_controle_mot_fin("FIN_LITS");
  zof_assert_renseigne_integer(m_nb_points_par_lit, "NOMB", erco);
}

void zof_ferraillage::decoder_selection_aciers(bool& erco) {
  zof_non_repetition_mot_clef(m_liste_selection_aciers.nombre() > 0, "SELE", erco);
  if (erco) return;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FI"_mot && clef(mot) != "FIN_"_mot;
       and_lire_deb_nom(mot, 4, erco)) {
    if (!zof_est_label_selection(mot)) return zof_attribut_incorrect(mot, erco);
    zof_ajouter_selection(m_liste_selection_aciers, mot);
  }
  if (erco) return;
  zof_assert_commande(m_liste_selection_aciers.nombre() > 0, " Aucun acier n est defini", erco);
}

std::string zof_ferraillage::intitule_disposition() const {
  for (const disposition& d : dispositions)
    if (d.type == m_type_ferraillage)
      return concat({d.mots.entier().substr(0, 4), " ", d.mots.entier().substr(4)});
  return {};
}
