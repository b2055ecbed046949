#include "Zof_Gestion_segments.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace {

// The extents start from these values: sections are described near the origin of their axes.
constexpr double loin = 1000;  // m

struct etendue {
  double y_min = loin, y_max = -loin;
  double z_min = loin, z_max = -loin;
};

etendue loc_etendue(const uef_vector& points) {
  etendue e;
  for (const zof_point& p : uef_parcours<zof_point>(points)) {
    e.y_min = std::min(e.y_min, p.m_y);
    e.y_max = std::max(e.y_max, p.m_y);
    e.z_min = std::min(e.z_min, p.m_z);
    e.z_max = std::max(e.z_max, p.m_z);
  }
  return e;
}

std::vector<zof_segment> loc_cotes(const uef_vector& points, int numero_zone) {
  std::vector<zof_segment> cotes;
  const int nombre = points.nombre();
  cotes.reserve(static_cast<std::size_t>(nombre));
  for (int i = 1; i <= nombre; ++i) {
    zof_segment& cote =
        cotes.emplace_back(zof_cp_point(*points.case_element(i).m_ptr_element),
                           zof_cp_point(*points.case_element(i == nombre ? 1 : i + 1).m_ptr_element));
    cote.m_le_numero_zone = numero_zone;
    cote.m_le_numero_segment = i;
  }
  return cotes;
}

// ---- Corners

// Below this the difference of two unit directions is rounding: the sides are aligned.
constexpr double ecart_directions_alignees = 1e-12;

struct coin {
  vecteur_yz bissectrice;
  double demi_angle = std::numbers::pi / 2;
  bool entrant = false;
};

// u arrives at the corner, v leaves it. v - u halves the angle between the sides, on the side to which the
// outline turns: to the left at a salient corner, to the right at a re-entrant one. The sense of the turn is
// read from the product of the directions, of which zof_angle_segments has the sign: the angle itself is lost
// by acos where the sides are nearly aligned. Its half has v - u for twice its cosine and u + v for twice its
// sine: unlike acos(-u.v) / 2 that is exact for a spike too, where the outline comes back on itself.
coin loc_coin(const vecteur_yz& u, const vecteur_yz& v) {
  const vecteur_yz ecart{v.y - u.y, v.z - u.z};
  if (zof_norme_vecteur(ecart) < ecart_directions_alignees)
    return {.bissectrice = zof_vecteur_perpendiculaire_vecteur(u)};
  coin c;
  c.entrant = u.y * v.z - u.z * v.y < 0;
  c.bissectrice = zof_vecteur_norme(ecart);
  if (c.entrant) c.bissectrice = {-c.bissectrice.y, -c.bissectrice.z};
  c.demi_angle = std::atan2(zof_norme_vecteur({u.y + v.y, u.z + v.z}), zof_norme_vecteur(ecart));
  return c;
}

void loc_decrire_bout(zof_point& bout, const coin& c, const vecteur_yz& orthogonal) {
  bout.m_vec_bissectrice = c.bissectrice;
  bout.m_vec_orthogonal = orthogonal;
  bout.m_angle_bissectrice = c.demi_angle;
  bout.m_est_entrant = c.entrant;
}

void loc_decrire_coins(std::vector<zof_segment>& cotes) {
  for (std::size_t i = 0; i < cotes.size(); ++i) {
    zof_segment& arrivant = cotes[i];
    zof_segment& partant = cotes[i + 1 == cotes.size() ? 0 : i + 1];
    const coin c = loc_coin(zof_vecteur_segment_normalise(arrivant), zof_vecteur_segment_normalise(partant));
    loc_decrire_bout(arrivant.m_le_point_extremite, c, zof_vecteur_perpendiculaire_segment(arrivant));
    loc_decrire_bout(partant.m_le_point_origine, c, zof_vecteur_perpendiculaire_segment(partant));
  }
}

// ---- Faces

// A coordinate that differs from the middle by less is at it, an angle that differs from the limit by less is
// equal to it: data are written in single precision, and both halves of a symmetric section go to the same
// faces.
constexpr double tolerance_milieu = 1e-6;  // m
constexpr double tolerance_angle = 1e-6;   // rad

// -1 below the middle, 0 at it, 1 above.
int loc_cote_du_milieu(double valeur, double milieu) {
  if (valeur < milieu - tolerance_milieu) return -1;
  return valeur > milieu + tolerance_milieu ? 1 : 0;
}

// 0 for a horizontal side; acos gives no number where rounding takes its cosine beyond 1.
double loc_angle_horizontal(const zof_segment& cote) {
  const double angle = zof_angle_reduit_vecteurs(zof_angle_segment_vecteur(cote, {1, 0}));
  return std::isnan(angle) ? 0 : angle;
}

}  // namespace

void zof_selectionner_segments_contour(const uef_vector& les_points_zone, int le_numero_zone,
                                       double angle_horizontal_max, bool option_stricte,
                                       uef_vector& les_segments_sup, uef_vector& les_segments_inf,
                                       uef_vector& les_segments_droite, uef_vector& les_segments_gauche,
                                       uef_vector& liste_complete_segments, const bool& erco) {
  if (erco) return;
  les_segments_sup.re_creer("les_segments_sup", zof_segment());
  les_segments_inf.re_creer("les_segments_inf", zof_segment());
  les_segments_droite.re_creer("les_segments_droite", zof_segment());
  les_segments_gauche.re_creer("les_segments_gauche", zof_segment());
  liste_complete_segments.re_creer("liste_complete_segments", zof_segment());

  const etendue e = loc_etendue(les_points_zone);
  const double y_milieu = (e.y_min + e.y_max) / 2;
  const double z_milieu = (e.z_min + e.z_max) / 2;
  std::vector<zof_segment> cotes = loc_cotes(les_points_zone, le_numero_zone);
  loc_decrire_coins(cotes);
  for (const zof_segment& cote : cotes) {
    const vecteur_yz sens = zof_vecteur_segment(cote);
    const int bout_1 = loc_cote_du_milieu(cote.m_le_point_origine.m_z, z_milieu);
    const int bout_2 = loc_cote_du_milieu(cote.m_le_point_extremite.m_z, z_milieu);
    const bool lateral = bout_1 * bout_2 < 0;
    const bool droite = loc_cote_du_milieu(cote.m_le_centre.m_y, y_milieu) >= 0;
    const bool sup = loc_cote_du_milieu(cote.m_le_centre.m_z, z_milieu) >= 0;
    const double angle = loc_angle_horizontal(cote);
    const bool vers_l_exterieur =
        lateral ? (sens.z > 0) == droite && angle > angle_horizontal_max + tolerance_angle
                : (sens.y < 0) == sup && angle < angle_horizontal_max - tolerance_angle;
    if (vers_l_exterieur || !option_stricte) {
      if (lateral)
        (droite ? les_segments_droite : les_segments_gauche).ajouter(cote);
      else
        (sup ? les_segments_sup : les_segments_inf).ajouter(cote);
    }
    liste_complete_segments.ajouter(cote);
  }
}
