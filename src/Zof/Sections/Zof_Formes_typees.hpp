#pragma once
// Outlines of the typed contours and voids, from their dimensions.
//
// y to the right, z upwards, in metres. Outlines run counter-clockwise, are open (the last point is joined to
// the first) and stand in the order in which their points are numbered. RECT, CIRC and TUBE are centred on
// the origin; the top of all others stands at z = 0, on the axis y = 0. A dimension that is optional starts
// as not given.
#include <vector>

#include "Non_renseigne.hpp"
#include "QB7_Types.hpp"

using polygone = std::vector<point_yz>;

/// What m_forme_zone holds; a zone of listed points has no form.
enum class forme_zone : int {
  rectangle = 1,
  rectangle_evide = 2,
  cercle = 3,
  tube = 4,
  te = 5,
  te_encorbellement = 6,
  en_i = 7,
  en_i_non_symetrique = 8,
  caisson = 9
};

struct forme_rectangle {
  double hauteur = socle::non_renseigne;
  double largeur = socle::non_renseigne;
};

/// Hollow rectangle; the haunches in the four inner corners come whole or not at all.
struct forme_rectangle_evide {
  double hauteur = socle::non_renseigne;
  double largeur = socle::non_renseigne;
  double epaisseur_sup = socle::non_renseigne;
  double epaisseur_inf = socle::non_renseigne;
  double epaisseur_lat = socle::non_renseigne;
  double largeur_gousset = socle::non_renseigne;
  double hauteur_gousset = socle::non_renseigne;
};

struct forme_cercle {
  double diametre = socle::non_renseigne;
  int nombre_points = 25;
};

struct forme_tube {
  double diametre = socle::non_renseigne;  // outer
  double epaisseur = socle::non_renseigne;
  int nombre_points = 25;  // of each of the two circles
};

struct forme_te {
  double h_totale = socle::non_renseigne;
  double l_totale = socle::non_renseigne;
  double h_ame = socle::non_renseigne;  // under the flange
  double l_ame = socle::non_renseigne;
};

/// A flange of an I. The joue is the slope between flange and web: h_joue its height, l_joue its width;
/// without a width it runs from the flange's edge.
struct table_en_i {
  double l_table = socle::non_renseigne;
  double h_table = socle::non_renseigne;
  double h_joue = socle::non_renseigne;
  double l_joue = socle::non_renseigne;
};

struct forme_en_i {
  double h_totale = socle::non_renseigne;
  double l_ame = socle::non_renseigne;
  table_en_i sup;
  table_en_i inf;
};

/// T with overhangs that taper from h_origine at the root to h_extremite at the edge. The joue is a slope
/// between the overhang's root and the web.
struct forme_te_encorbellement {
  double h_totale = socle::non_renseigne;
  double l_totale = socle::non_renseigne;
  double h_extremite = socle::non_renseigne;
  double h_origine = socle::non_renseigne;
  double l_encorbellement = socle::non_renseigne;
  double l_joue = socle::non_renseigne;
  double h_joue = socle::non_renseigne;
};

/// Box girder: overhangs as above, sloped webs down to the soffit of width l_intrados, crown and cross-fall
/// of the deck.
struct forme_caisson {
  double h_totale = socle::non_renseigne;
  double l_totale = socle::non_renseigne;
  double h_extremite = socle::non_renseigne;
  double h_origine = socle::non_renseigne;
  double l_encorbellement = socle::non_renseigne;
  double l_joue = socle::non_renseigne;
  double h_joue = socle::non_renseigne;
  double l_intrados = socle::non_renseigne;  // not given: the webs are vertical
  double h_crete = socle::non_renseigne;
  double epaisseur_intrados = socle::non_renseigne;
  double epaisseur_extrados = socle::non_renseigne;
  double epaisseur_ame = socle::non_renseigne;  // square to the web
  double h_gousset_extrados = socle::non_renseigne;
  double h_gousset_intrados = socle::non_renseigne;
  double l_gousset_extrados = socle::non_renseigne;
  double l_gousset_intrados = socle::non_renseigne;
  double devers = socle::non_renseigne;  // %; positive: the right side of the deck falls
};

/// Point of a circle of the given centre and diameter at an angle in degrees, from the axis y towards z.
point_yz point_du_cercle(point_yz centre, double diametre, double angle_deg);

/// A full circle: nombre points by equal steps from origine_deg on, counter-clockwise.
polygone points_cercle(point_yz centre, double diametre, double origine_deg, int nombre);

/// An arc, both ends included; one point stands at origine_deg.
polygone points_arc(point_yz centre, double diametre, double origine_deg, double extremite_deg, int nombre);

// The outline of each form; its dimensions have been checked.
polygone points_contour(const forme_rectangle& f);
polygone points_contour(const forme_rectangle_evide& f);
polygone points_contour(const forme_cercle& f);
polygone points_contour(const forme_tube& f);
polygone points_contour(const forme_te& f);
polygone points_contour(const forme_te_encorbellement& f);
polygone points_contour(const forme_en_i& f);
polygone points_contour(const forme_caisson& f);

// The hollow of the forms that have one.
polygone points_evidement(const forme_rectangle_evide& f);
polygone points_evidement(const forme_tube& f);
polygone points_evidement(const forme_caisson& f);

/// Width of the soffit of a box girder: as given, or that of vertical webs.
double largeur_intrados(const forme_caisson& f);

/// Area of an outline, positive when it runs counter-clockwise.
double aire_polygone(const polygone& points);
