// Bars laid along the sides of a contour: in one layer of a given number of bars, or automatically, in layers
// whose bars stand at most and at least so far from one another.
#pragma once

struct zof_contour;
struct zof_ferraillage;

/// The step at the end of a contour that is in the engine: its zones of bars that wait for its sides, in
/// their order. A face that two zones lay, or bars all round beside others, are refused; so is a face without
/// sides, a zone without bars, and a bar laid twice.
void zof_traiter_ferraillages_automatiques_ou_en_lits(zof_contour& contour, bool& erco);

/// Lays the bars of one zone and takes it into the engine. A layout that does not hold the spacings is a
/// warning on the console.
void zof_traiter_ferraillage_automatique(zof_ferraillage& zone, bool& erco);

/// Lays the bars of a zone again, with that number of points in each of its layers, over contour and voids
/// together; a number below that of the corners is raised to it. The zone keeps its number in the engine, its
/// material, mother, activity and dimensionable flag; its points are new ones; its factor of filling is 1.
/// True if the spacings hold within a millimetre. Layouts that cannot be made raise erco, with a message.
bool zof_modifier_ferraillage_automatique(zof_ferraillage& zone, int nombre_points_par_lit, bool& erco);
