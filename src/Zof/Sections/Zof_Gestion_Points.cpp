// The points of a zone: one by one, along a line, along an arc.

#include <cmath>
#include <string>

#include "And_anadon.hpp"
#include "Grille_Points.hpp"
#include "Zof_Classe_Zone.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

// A real that stands once in its block.
void loc_lire_reel(vue_l1 mot, double& valeur, bool& erco) {
  zof_non_repetition_double(mot, valeur, erco);
  if (!erco) and_lire_reel_d(valeur, erco);
}

// An integer that stands once in its block.
void loc_lire_entier(vue_l1 mot, int& valeur, bool& erco) {
  zof_non_repetition_integer(mot, valeur, erco);
  if (!erco) and_lire_entier(valeur, erco);
}

// The same above 0.
void loc_lire_entier_positif(vue_l1 mot, vue_l1 message, int& valeur, bool& erco) {
  loc_lire_entier(mot, valeur, erco);
  if (!erco) zof_assert_commande(valeur > 0, message, erco);
}

// ---- One point

struct point_lu {
  int nume = non_renseigne;
  double y = non_renseigne;
  double z = non_renseigne;
};

void loc_lire_numero_point(int& numero, bool& erco) {
  loc_lire_entier("NUME", numero, erco);
  if (erco) return;
  zof_assert_commande(
      numero >= 1 && numero <= numero_point_utilisateur_max,
      concat({" Numero de point incorrect : < 1 ou >", std::to_string(numero_point_utilisateur_max)}), erco);
}

// ---- A line

// An end of a line: a point that exists, or coordinates of a point to be made.
struct bout_de_droite {
  int numero = non_renseigne;
  double y = non_renseigne;
  double z = non_renseigne;

  [[nodiscard]] bool existant() const { return est_renseigne_integer(numero); }
  [[nodiscard]] bool par_coordonnees() const { return est_renseigne_double(y) || est_renseigne_double(z); }
};

struct droite_lue {
  int nume = non_renseigne;
  int nomb = non_renseigne;
  bout_de_droite origine;
  bout_de_droite extremite;
};

// The number of an existing end; its coordinates are those of the point.
void loc_lire_bout_existant(const zof_zone& zone, vue_l1 mot, bout_de_droite& bout, bool& erco) {
  zof_assert_commande(!bout.par_coordonnees(), "répétition option origine"_l1, erco);
  if (erco) return;
  loc_lire_entier(mot, bout.numero, erco);
  if (erco) return;
  const int position = zone.position_point(bout.numero);
  zof_assert_commande(
      position != 0, concat({" Point non defini ", zof_chaine_numerique_entier(bout.numero).entier()}), erco);
}

void loc_lire_bout(vue_l1 mot, const bout_de_droite& bout, double& coordonnee, bool& erco) {
  zof_assert_commande(!bout.existant(), "répétition option origine"_l1, erco);
  if (!erco) loc_lire_reel(mot, coordonnee, erco);
}

void loc_lire_mot_droite(zof_zone& zone, const texte<4>& mot, droite_lue& d, bool& erco) {
  switch (clef(mot)) {
    case "NUME"_mot: return loc_lire_entier_positif("NUME", "numero negatif ou nul", d.nume, erco);
    case "NOMB"_mot: return loc_lire_entier_positif("NOMB", "nombre points negatif ou nul", d.nomb, erco);
    case "GROU"_mot: return zone.decoder_groupe(erco);
    case "ORIG"_mot: return loc_lire_bout_existant(zone, "ORIG", d.origine, erco);
    case "EXTR"_mot: return loc_lire_bout_existant(zone, "EXTR", d.extremite, erco);
    case "Y_OR"_mot: return loc_lire_bout("Y_OR", d.origine, d.origine.y, erco);
    case "Z_OR"_mot: return loc_lire_bout("Z_OR", d.origine, d.origine.z, erco);
    case "Y_EX"_mot: return loc_lire_bout("Y_EX", d.extremite, d.extremite.y, erco);
    case "Z_EX"_mot: return loc_lire_bout("Z_EX", d.extremite, d.extremite.z, erco);
    default: zof_attribut_incorrect(mot, erco);
  }
}

void loc_assert_bout(const bout_de_droite& bout, vue_l1 mot_y, vue_l1 mot_z, bool& erco) {
  if (bout.existant()) return;
  zof_assert_renseigne_double(bout.y, mot_y, erco);
  zof_assert_renseigne_double(bout.z, mot_z, erco);
}

point_yz loc_position(const zof_zone& zone, const bout_de_droite& bout) {
  if (!bout.existant()) return {bout.y, bout.z};
  const auto& element = *zone.m_les_points_zone.case_element(zone.position_point(bout.numero)).m_ptr_element;
  const zof_point p = zof_cp_point(element);
  return {p.m_y, p.m_z};
}

// nomb points at equal steps between two ends; an end that exists already is not made again.
polygone loc_points_de_droite(point_yz a, point_yz b, const droite_lue& d) {
  const int premier = d.origine.existant() ? 1 : 0;
  const int intervalles = d.nomb - 1 + premier + (d.extremite.existant() ? 1 : 0);
  polygone points;
  for (int k = premier; k < premier + d.nomb; ++k) {
    const double t = intervalles == 0 ? 0.0 : static_cast<double>(k) / intervalles;
    points.push_back({a.y + (b.y - a.y) * t, a.z + (b.z - a.z) * t});
  }
  return points;
}

// ---- An arc

struct arc_lu {
  double y_ce = non_renseigne;
  double z_ce = non_renseigne;
  double diam = non_renseigne;  // m
  double orig = non_renseigne;  // degrees
  double extr = non_renseigne;
  int nomb = non_renseigne;
  int nume = non_renseigne;
};

void loc_lire_mot_arc(zof_zone& zone, const texte<4>& mot, arc_lu& a, bool& erco) {
  switch (clef(mot)) {
    case "Y_CE"_mot: return loc_lire_reel("Y_CE", a.y_ce, erco);
    case "Z_CE"_mot: return loc_lire_reel("Z_CE", a.z_ce, erco);
    case "DIAM"_mot:
      loc_lire_reel("DIAM", a.diam, erco);
      if (!erco) zof_assert_commande(a.diam > 0, "diametre negatif ou nul", erco);
      return;
    case "ORIG"_mot: return loc_lire_reel("ORIG", a.orig, erco);
    case "EXTR"_mot: return loc_lire_reel("EXTR", a.extr, erco);
    case "NOMB"_mot: return loc_lire_entier_positif("NOMB", "nombre negatif ou nul", a.nomb, erco);
    case "NUME"_mot: return loc_lire_entier_positif("NUME", "numero de point negatif ou nul", a.nume, erco);
    case "GROU"_mot: return zone.decoder_groupe(erco);
    default: zof_attribut_incorrect(mot, erco);
  }
}

void loc_assert_arc(const arc_lu& a, bool cercle, bool& erco) {
  zof_assert_renseigne_double(a.y_ce, "Y_CE", erco);
  zof_assert_renseigne_double(a.z_ce, "Z_CE", erco);
  zof_assert_renseigne_double(a.diam, "DIAM", erco);
  zof_assert_renseigne_integer(a.nomb, "NOMB", erco);
  zof_assert_renseigne_integer(a.nume, "NUME", erco);
  if (cercle) return;
  zof_assert_renseigne_double(a.orig, "ORIG", erco);
  zof_assert_renseigne_double(a.extr, "EXTR", erco);
}

// Beyond this an arc is a full circle: its ends would meet.
constexpr double arc_ferme_deg = 359;

polygone loc_points_d_arc(const arc_lu& a, bool cercle) {
  const point_yz centre{a.y_ce, a.z_ce};
  const double origine = est_renseigne_double(a.orig) ? a.orig : 0.0;
  if (cercle || std::abs(a.extr - a.orig) > arc_ferme_deg)
    return points_cercle(centre, a.diam, origine, a.nomb);
  return points_arc(centre, a.diam, a.orig, a.extr, a.nomb);
}

// A count that leads beyond the last number is refused before its points are made: it may be any integer.
void loc_assert_dernier_numero(int nume, int nomb, bool& erco) {
  zof_assert_commande(nume <= numero_point_max && nomb <= numero_point_max - nume + 1,
                      concat({" Numero de point incorrect >", std::to_string(numero_point_max)}), erco);
}

}  // namespace

void zof_zone::decoder_points(bool& erco) {
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "NUME"_mot: decoder_point(true, erco); break;
      case "POIN"_mot: decoder_point(false, erco); break;
      case "DROI"_mot: decoder_droite(erco); break;
      case "ARC"_mot: decoder_arc(false, erco); break;
      case "CERC"_mot: decoder_arc(true, erco); break;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
  if (erco) return;
  zof_controle_mot_fin("FIN_POIN");
  zof_assert_commande(m_les_points_zone.nombre() > 0, " Aucun point n est defini", erco);
}

void zof_zone::decoder_point(bool numero_annonce, bool& erco) {
  point_lu p;
  if (numero_annonce) loc_lire_numero_point(p.nume, erco);
  if (erco) return;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "NUME"_mot: loc_lire_numero_point(p.nume, erco); break;
      case "Y"_mot: loc_lire_reel("Y", p.y, erco); break;
      case "Z"_mot: loc_lire_reel("Z", p.z, erco); break;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
  if (erco) return;
  zof_assert_renseigne_integer(p.nume, "NUME", erco);
  zof_assert_renseigne_double(p.y, "Y", erco);
  zof_assert_renseigne_double(p.z, "Z", erco);
  if (!erco) ajouter_point(p.nume, {p.y, p.z}, erco);
}

void zof_zone::decoder_droite(bool& erco) {
  zof_assert_commande(nature() != nature_zone::ferraillage || est_renseigne_double(m_diametre_zone),
                      " Le diametre des aciers doit precéder la définition des points"_l1, erco);
  if (erco) return;
  droite_lue d;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    loc_lire_mot_droite(*this, mot, d, erco);
    if (erco) return;
  }
  if (erco) return;
  zof_assert_renseigne_integer(d.nume, "NUME", erco);
  zof_assert_renseigne_integer(d.nomb, "NOMB", erco);
  loc_assert_bout(d.origine, "Y_OR", "Z_OR", erco);
  loc_assert_bout(d.extremite, "Y_EX", "Z_EX", erco);
  if (erco) return;
  const point_yz a = loc_position(*this, d.origine);
  const point_yz b = loc_position(*this, d.extremite);
  zof_assert_commande(std::hypot(b.y - a.y, b.z - a.z) >= zof_tolerance_points_confondus,
                      " Origine et extremites de la droite confondus", erco);
  if (erco) return;
  loc_assert_dernier_numero(d.nume, d.nomb, erco);
  if (!erco) ajouter_points(d.nume, loc_points_de_droite(a, b, d), erco);
}

void zof_zone::decoder_arc(bool cercle, bool& erco) {
  arc_lu a;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    loc_lire_mot_arc(*this, mot, a, erco);
    if (erco) return;
  }
  if (erco) return;
  loc_assert_arc(a, cercle, erco);
  if (erco) return;
  loc_assert_dernier_numero(a.nume, a.nomb, erco);
  if (!erco) ajouter_points(a.nume, loc_points_d_arc(a, cercle), erco);
}
