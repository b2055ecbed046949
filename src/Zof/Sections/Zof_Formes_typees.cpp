#include "Zof_Formes_typees.hpp"

#include <cmath>
#include <cstddef>

#include "Zof_Classe_Point.hpp"
#include "Zof_Utilit.hpp"

namespace {

constexpr double pi_sur_2 = 1.5707963267948966;

double loc_zero_si_absent(double cote) { return est_renseigne_double(cote) ? cote : 0.0; }

bool loc_avec_joue(const table_en_i& t) {
  return est_renseigne_double(t.h_joue) && est_renseigne_double(t.l_joue);
}

// Half of the upper flange on the side given by signe (-1 left, 1 right), from its edge at the top down to
// the web.
polygone loc_aile(const table_en_i& t, double l_ame, double signe) {
  const double bord = signe * t.l_table / 2;
  const double ame = signe * l_ame / 2;
  polygone points{{bord, 0}, {bord, -t.h_table}};
  if (loc_avec_joue(t)) points.push_back({ame + signe * t.l_joue, -t.h_table});
  points.push_back({ame, -t.h_table - loc_zero_si_absent(t.h_joue)});
  return points;
}

// The same seen from below: the bottom of the I at z = -h_totale, from the web down to the edge.
polygone loc_talon(const table_en_i& t, double l_ame, double h_totale, double signe) {
  const double bord = signe * t.l_table / 2;
  const double ame = signe * l_ame / 2;
  const double b = t.h_table - h_totale;
  polygone points{{ame, loc_zero_si_absent(t.h_joue) + b}};
  if (loc_avec_joue(t)) points.push_back({ame + signe * t.l_joue, b});
  points.push_back({bord, b});
  points.push_back({bord, -h_totale});
  return points;
}

void loc_ajouter(polygone& points, const polygone& suite) {
  points.insert(points.end(), suite.begin(), suite.end());
}
void loc_ajouter_a_rebours(polygone& points, const polygone& suite) {
  points.insert(points.end(), suite.rbegin(), suite.rend());
}

// Deck of a box girder: the cross-fall turns z into d y + z.
struct devers_tablier {
  double d;
  point_yz operator()(double y, double k) const { return {y, d * y + k}; }
};

devers_tablier loc_devers(const forme_caisson& f) { return {-loc_zero_si_absent(f.devers) / 100}; }

// Inner face of the webs of a box girder: its half width at a height above the soffit.
struct parement_interieur {
  double pente;
  double demi_intrados;
  double operator()(double hauteur) const { return hauteur * pente + demi_intrados; }
};

parement_interieur loc_parement(const forme_caisson& f) {
  const double a = f.l_totale / 2 - f.l_encorbellement;
  const double demi_largeur = a - loc_zero_si_absent(f.l_joue);
  const double hauteur_ame = f.h_totale - f.h_origine - loc_zero_si_absent(f.h_joue);
  const double demi_intrados = largeur_intrados(f) / 2;
  const double pente = (demi_largeur - demi_intrados) / hauteur_ame;
  return {pente, demi_intrados - f.epaisseur_ame / std::cos(std::atan(pente))};
}

}  // namespace

point_yz point_du_cercle(point_yz centre, double diametre, double angle_deg) {
  const double angle = angle_deg * pi_sur_2 / 90;
  return {centre.y + diametre / 2 * std::cos(angle), centre.z + diametre / 2 * std::sin(angle)};
}

polygone points_cercle(point_yz centre, double diametre, double origine_deg, int nombre) {
  polygone points;
  for (int k = 0; k < nombre; ++k)
    points.push_back(point_du_cercle(centre, diametre, origine_deg + 360.0 * k / nombre));
  return points;
}

polygone points_arc(point_yz centre, double diametre, double origine_deg, double extremite_deg, int nombre) {
  polygone points{point_du_cercle(centre, diametre, origine_deg)};
  for (int k = 1; k < nombre; ++k) {
    const double angle = origine_deg + (extremite_deg - origine_deg) * k / (nombre - 1);
    points.push_back(point_du_cercle(centre, diametre, angle));
  }
  return points;
}

polygone points_contour(const forme_rectangle& f) {
  const double y = f.largeur / 2;
  const double z = f.hauteur / 2;
  return {{y, z}, {-y, z}, {-y, -z}, {y, -z}};
}

polygone points_contour(const forme_rectangle_evide& f) {
  const double y = f.largeur / 2;
  return {{y, 0}, {-y, 0}, {-y, -f.hauteur}, {y, -f.hauteur}};
}

polygone points_evidement(const forme_rectangle_evide& f) {
  const double a = f.largeur / 2 - f.epaisseur_lat;
  const double haut = -f.epaisseur_sup;
  const double bas = f.epaisseur_inf - f.hauteur;
  if (!est_renseigne_double(f.largeur_gousset)) return {{a, haut}, {-a, haut}, {-a, bas}, {a, bas}};
  const double gl = f.largeur_gousset;
  const double gh = f.hauteur_gousset;
  return {{a, haut - gh}, {a - gl, haut}, {gl - a, haut}, {-a, haut - gh},
          {-a, gh + bas}, {gl - a, bas},  {a - gl, bas},  {a, gh + bas}};
}

polygone points_contour(const forme_cercle& f) { return points_cercle({}, f.diametre, 0, f.nombre_points); }

polygone points_contour(const forme_tube& f) { return points_cercle({}, f.diametre, 0, f.nombre_points); }

polygone points_evidement(const forme_tube& f) {
  return points_cercle({}, f.diametre - 2 * f.epaisseur, 0, f.nombre_points);
}

polygone points_contour(const forme_te& f) {
  const double table = f.l_totale / 2;
  const double ame = f.l_ame / 2;
  const double t = f.h_totale - f.h_ame;
  return {{-table, 0},        {-table, -t}, {-ame, -t},  {-ame, -f.h_totale},
          {ame, -f.h_totale}, {ame, -t},    {table, -t}, {table, 0}};
}

polygone points_contour(const forme_en_i& f) {
  polygone points = loc_aile(f.sup, f.l_ame, -1);
  loc_ajouter(points, loc_talon(f.inf, f.l_ame, f.h_totale, -1));
  loc_ajouter_a_rebours(points, loc_talon(f.inf, f.l_ame, f.h_totale, 1));
  loc_ajouter_a_rebours(points, loc_aile(f.sup, f.l_ame, 1));
  return points;
}

polygone points_contour(const forme_te_encorbellement& f) {
  const double bord = f.l_totale / 2;
  const double a = bord - f.l_encorbellement;
  // Left half from the edge down; the right half is its image, run back.
  polygone gauche{{-bord, 0}, {-bord, -f.h_extremite}, {-a, -f.h_origine}};
  double pied = a;
  double h_pied = f.h_origine;
  if (est_renseigne_double(f.h_joue)) {
    pied = a - f.l_joue;
    h_pied = f.h_origine + f.h_joue;
    gauche.push_back({-pied, -h_pied});
  }
  if (std::abs(h_pied - f.h_totale) > zof_tolerance_points_confondus) gauche.push_back({-pied, -f.h_totale});
  polygone points = gauche;
  for (auto p = gauche.rbegin(); p != gauche.rend(); ++p) points.push_back({-p->y, p->z});
  return points;
}

double largeur_intrados(const forme_caisson& f) {
  if (est_renseigne_double(f.l_intrados)) return f.l_intrados;
  return f.l_totale - 2 * f.l_encorbellement - 2 * loc_zero_si_absent(f.l_joue);
}

polygone points_contour(const forme_caisson& f) {
  const auto z = loc_devers(f);
  const double bord = f.l_totale / 2;
  const double a = bord - f.l_encorbellement;
  const bool joue = est_renseigne_double(f.h_joue);
  const double c = a - loc_zero_si_absent(f.l_joue);
  const double h_c = f.h_origine + loc_zero_si_absent(f.h_joue);
  const double demi_intrados = largeur_intrados(f) / 2;
  polygone points;
  if (est_renseigne_double(f.h_crete)) points.push_back({0, f.h_crete});
  loc_ajouter(points, {z(-bord, 0), z(-bord, -f.h_extremite), z(-a, -f.h_origine)});
  if (joue) points.push_back(z(-c, -h_c));
  loc_ajouter(points, {{-demi_intrados, -f.h_totale}, {demi_intrados, -f.h_totale}});
  if (joue) points.push_back(z(c, -h_c));
  loc_ajouter(points, {z(a, -f.h_origine), z(bord, -f.h_extremite), z(bord, 0)});
  return points;
}

polygone points_evidement(const forme_caisson& f) {
  const auto z = loc_devers(f);
  const auto demi_largeur = loc_parement(f);
  const double ht = f.h_totale;
  const double ee = f.epaisseur_extrados;
  const double ei = f.epaisseur_intrados;
  const double sup = demi_largeur(ht - ee);
  const double inf = demi_largeur(ei);
  // Left half from the top down; the top follows the cross-fall, the soffit is level.
  polygone haut{{-sup, -ee}};
  if (est_renseigne_double(f.h_gousset_extrados)) {
    haut = {{-(sup - f.l_gousset_extrados), -ee},
            {-demi_largeur(ht - ee - f.h_gousset_extrados), -ee - f.h_gousset_extrados}};
  }
  polygone bas{{-inf, ei - ht}};
  if (est_renseigne_double(f.h_gousset_intrados)) {
    bas = {{-demi_largeur(f.h_gousset_intrados + ei), f.h_gousset_intrados + ei - ht},
           {-(inf - f.l_gousset_intrados), ei - ht}};
  }
  polygone points;
  for (const auto& p : haut) points.push_back(z(p.y, p.z));
  loc_ajouter(points, bas);
  for (auto p = bas.rbegin(); p != bas.rend(); ++p) points.push_back({-p->y, p->z});
  for (auto p = haut.rbegin(); p != haut.rend(); ++p) points.push_back(z(-p->y, p->z));
  return points;
}

double aire_polygone(const polygone& points) {
  double somme = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const point_yz& p = points[i];
    const point_yz& q = points[i + 1 == points.size() ? 0 : i + 1];
    somme += p.y * q.z - q.y * p.z;
  }
  return somme / 2;
}
