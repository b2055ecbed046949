#pragma once
// What the two interaction diagrams share, that of INTE and that of JUST: their plane in the space of the
// forces, their drawing and their table.
//
// One force is fixed, the two others are the axes. Forces in MN and MN.m.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "QB7_Types.hpp"
#include "Texte.hpp"
#include "UTL_04_Dessin.hpp"

struct zof_plan_interaction {
  std::string_view composante_fixee;  ///< the word of the data file
  std::string_view label_abscisse, label_ordonnee, label_fixee;
  matrice_3 matrice;  ///< rows: abscissa, ordinate, fixed force; columns: N, My, Mz
};
/// Plane of the fixed force N, MY or MZ; null for any other word.
const zof_plan_interaction* zof_pt_plan_interaction(const socle::texte<4>& composante_fixee);
/// The two axes of some forces.
point_xy zof_point_du_plan(const zof_plan_interaction& plan, const efforts& f);

/// "FIXE": the word behind it, which is still to be judged, and the value.
void zof_lire_composante_fixee(socle::texte<4>& composante, double& valeur, bool& erco);

inline constexpr std::size_t zof_nb_points_interaction = 100;
using zof_courbe_interaction = std::array<point_xy, zof_nb_points_interaction>;

/// Opens the drawing of the next number of the run: stem, number, ".svg".
void zof_ouvrir_dessin_interaction(socle::vue_l1 nom_diagramme);
/// The curve with its first point again at its end.
std::vector<utl_04_point> zof_courbe_fermee(const zof_courbe_interaction& courbe);
/// The fixed value in the name of a file: the nearest integer.
std::string zof_valeur_arrondie(double valeur);
/// Title and table of the points.
void zof_editer_valeurs_interaction(const zof_plan_interaction& plan, const zof_courbe_interaction& courbe,
                                    socle::vue_l1 titre);
