// The face of the section engine: sections made of zones, their points, states and laws, and what is asked of
// them.
//
// A client names things by numbers of its own; the engine holds the records. Materials are numbers too: a law
// is kept under (material, limit state). Signs and units as in QB7_Types.hpp.
//
// Order of a client: laws; section, points, zones; activity; frame of loading; computations. A computation
// reads the store afresh at each call, so that a section may be changed freely between two calls.
//
// Every routine gives a status: 0, or the code of QB7_ERR_Erreurs.hpp with the number of the object at fault.
// A failed look-up is ERR_NON_SECTION, ERR_NON_ZONE, ERR_NON_POINT, ERR_NON_ETAT or ERR_NON_LOI and is not
// repeated below. A reader that fails gives zeros (a rho of 1, a hole type of 2000); nothing else is changed
// by a failure save what the comment says.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "QB7_Types.hpp"
#include "Texte.hpp"

// ---- Life of the engine ----

/// Empties sections, laws and work tables, closes the trace, and resets the parameters as par_renitialiser
/// does.
void qb7_quitter();

/// The same, and the work tables of creep.
void qb7_g_quitter();

/// Empties the list of laws.
void qb7_reinit_loi();

/// Opens the trace of design, and of the equilibrium if trace_equilibre: from its start if effacer, else
/// behind what it holds. A trace that is open is closed first. Unit 0: no trace. ERR_FICHIER_TRACE (unit):
/// cannot be opened.
ier_2 qb7_fixer_trace_dimensionnement(int unite_trace_optimisation, socle::vue_l1 fichier_trace_optimisation,
                                      bool effacer, bool trace_equilibre);
void qb7_clore_trace_dimensionnement();

// ---- Sections ----

/// An empty section, its frame of loading that of its own axes. ERR_SECT_EXISTE (number).
ier_2 qb7_creer_section(int num_section);

struct qb7_tailles_section {
  int nbre_zones = 0, nbre_points = 0, nbre_etats = 0;
};
ier_2 qb7_lire_section(int num_section, qb7_tailles_section& tailles);

ier_2 qb7_supprimer_section(int num_section);

/// A deep copy under a new number: ERR_SECT_EXISTE (new number).
ier_2 qb7_copier_section(int num_section, int num_section_c);

/// Frame in which planes and forces are given and returned from now on; alpha in radians.
ier_2 qb7_fixer_repere_sollicitation(int num_section, double y_rep, double z_rep, double alpha);
ier_2 qb7_lire_repere_sollicitation(int num_section, repere& rep);

// ---- Points: coordinates in the section's own axes ----

/// ERR_POINT_EXISTE (point).
ier_2 qb7_creer_point(int num_section, int num_point, double y, double z);
ier_2 qb7_modifier_point(int num_section, int num_point, double y, double z);
ier_2 qb7_lire_point(int num_section, int num_point, double& y, double& z);

/// The zones that list the point keep its number.
ier_2 qb7_supprimer_point(int num_section, int num_point);

/// Removes the point from the section, then from the zone's list. ERR_DIM_LISTE_PTS (zone): it is the zone's
/// last; ERR_NON_POINT (point): not in the zone. In both the section has already lost it.
ier_2 qb7_supprimer_point_zone(int num_section, int num_zone, int num_point);

// ---- Zones ----

/// An inactive zone without mother. ERR_TYPE_ZONE (type) outside 1001 to 1004; ERR_DIM_LISTE_PTS (zone): no
/// points; ERR_ZONE_EXISTE (zone). The points themselves are looked for when the zone is computed.
ier_2 qb7_creer_zone(int num_section, int num_zone, int type_zone, int num_materiau,
                     std::span<const int> liste_points);

/// Removes the zone, from every stored state too.
ier_2 qb7_supprimer_zone(int num_section, int num_zone);

ier_2 qb7_lire_type_zone(int num_section, int num_zone, int& type_zone);
ier_2 qb7_lire_num_materiau(int num_section, int num_zone, int& num_materiau);
ier_2 qb7_lire_nbre_pts_zone(int num_section, int num_zone, int& nbre_points);

/// ERR_DIM_LISTE_PTS (size given) unless liste_points has the size of the zone's list.
ier_2 qb7_lire_liste_pts_zone(int num_section, int num_zone, std::span<int> liste_points);

ier_2 qb7_lire_nbre_zones(int num_section, int& nbre_zones);

/// Numbers of the zones, ascending. ERR_DIM_LISTE_ZONES (size given) unless the size is the number of zones.
ier_2 qb7_lire_liste_zones(int num_section, std::span<int> liste_numero_zones);

/// qb7_sans_mere for a zone at the top. ERR_NUM_MERE (zone): its own mother. The mother may come later.
ier_2 qb7_fixer_num_zone_mere(int num_section, int num_zone, int num_zone_mere);
ier_2 qb7_lire_num_zone_mere(int num_section, int num_zone, int& num_zone_mere);

/// Thickness of a 1003 or area per point of a 1004, and the same as the mother loses it, which is p_matiere
/// when it is absent. ERR_TYPE_ZONE (type) for the other types; ERR_MATIERE, ERR_ENCOMBREMENT (zone):
/// negative.
ier_2 qb7_fixer_param_zone(int num_section, int num_zone, double p_matiere,
                           std::optional<double> p_encombrement = {});
ier_2 qb7_lire_param_zone(int num_section, int num_zone, double* p_matiere = nullptr,
                          double* p_encombrement = nullptr);

/// Factor of the zone's forces. ERR_TYPE_ZONE (1001) for a contour; ERR_REMPLISSAGE (zone): negative.
ier_2 qb7_fixer_c_remplissage(int num_section, int num_zone, double c_remplissage);
ier_2 qb7_lire_c_remplissage(int num_section, int num_zone, double& c_remplissage);

/// Whether design checks the strain limits at these points of the zone. ERR_NON_POINT (point): not in the
/// zone; the points before it are set.
ier_2 qb7_fixer_critiques(int num_section, int num_zone, std::span<const int> liste_critiques, bool critique);

/// Activity of the zone, and of all its descendants if filles. With filles the kinship of the whole section
/// is looked at: ERR_NON_MERE (mother): no such zone; ERR_HERITAGE (zone): it descends from itself.
ier_2 qb7_activer_zone(int num_section, int num_zone, bool active, bool filles);
ier_2 qb7_activite_zone(int num_section, int num_zone, bool& active);

/// Own strain plane of the zone, in the present frame of loading; with cumul it is added to the one that the
/// zone has. The type is set in both cases: ERR_TYPE_DEFORM (value) if it is neither -1328 nor 1328.
ier_2 qb7_fixer_deform_zone(int num_section, int num_zone, bool cumul, int type_deform,
                            const deformation& deform_zone);
ier_2 qb7_lire_deform_zone(int num_section, int num_zone, int& type_deform, deformation& deform_zone);

/// History of a cable, as it stands.
ier_2 qb7_fixer_modif_lois_zone(int num_section, int num_zone, const modif_lois& modif);
ier_2 qb7_lire_modif_lois_zone(int num_section, int num_zone, modif_lois& modif);

ier_2 qb7_fixer_inclinaisons_zone(int num_section, int num_zone, double dy_sur_dx, double dz_sur_dx);
ier_2 qb7_lire_inclinaisons_zone(int num_section, int num_zone, double& dy_sur_dx, double& dz_sur_dx);

/// Whether design may change the zone's c_remplissage. True on a contour: ERR_TYPE_ZONE (1001).
ier_2 qb7_fixer_dimensionnable(int num_section, int num_zone, bool dimensionnable);
ier_2 qb7_lire_dimensionnable(int num_section, int num_zone, bool& dimensionnable);

/// Creep of the zone: once on it stays on, false changes nothing.
ier_2 qb7_fixer_fluante(int num_section, int num_zone, bool fluante);
ier_2 qb7_lire_fluante(int num_section, int num_zone, bool& fluante);

/// Creep strain per unit of stress, in the client's unit: φ(t, t0) / E_c with the creep coefficient φ and the
/// tangent modulus E_c of EN 1992-1-1 3.1.4 (3). ERR_FLUAGE (zone): negative or not finite.
ier_2 qb7_fixer_c_fluage(int num_section, int num_zone, double c_fluage);
ier_2 qb7_lire_c_fluage(int num_section, int num_zone, double& c_fluage);

// ---- States: snapshots of the frame, of a plane, and of what a phase can change of each zone ----

/// ERR_ETAT_EXISTE (state).
ier_2 qb7_creer_etat(int num_section, int num_etat, const deformation& deform_section = {});
ier_2 qb7_supprimer_etat(int num_section, int num_etat);

/// Puts the section back as it was; a zone that the state does not hold becomes inactive, without plane nor
/// history.
ier_2 qb7_rappeller_etat(int num_section, int num_etat, deformation* deform_section = nullptr);

/// The same for the zones alone that the state holds active; the others keep what they are. No zone is
/// switched off.
ier_2 qb7_completer_etat(int num_section, int num_etat, deformation* deform_section = nullptr);

// ---- Laws; their builders are in QB7_Lois.hpp ----

/// A law by its table: interval i from epsilons[i] on, where coeffs[i] multiplies 1, e, e², e³; the first
/// interval comes from minus infinity and the last goes to plus infinity. Without limits, hole type 2000.
/// ERR_NBRE_INT_LOI: no interval; ERR_DEGRE_LOI (degree) outside 0 to 3; ERR_DIM_TAB (number of left ends):
/// not as many polynomials; ERR_DEF_LOI (rank): left ends that do not increase, the first one aside;
/// ERR_LOI_EXISTE (material).
ier_2 qb7_creer_loi(int num_materiau, int num_etat_lim, std::span<const double> epsilons, int degre,
                    std::span<const qb7_polynome> coeffs);
ier_2 qb7_supprimer_loi(int num_materiau, int num_etat_lim);
ier_2 qb7_copier_loi(int num_materiau, int num_etat_lim, int num_materiau_c, int num_etat_lim_c);

ier_2 qb7_lire_dims_loi(int num_materiau, int num_etat_lim, int& nbre_interv, int& degre_loi);

/// ERR_DIM_TAB (number of intervals) unless both arrays have that size.
ier_2 qb7_lire_tabs_loi(int num_materiau, int num_etat_lim, std::span<double> epsilons,
                        std::span<qb7_polynome> coeffs);

/// What the zones of this law take out of their mother: ERR_TYPE_TROU (value) outside 2000 to 2003.
ier_2 qb7_fixer_type_trou(int num_materiau, int num_etat_lim, int type_trou);
ier_2 qb7_lire_type_trou(int num_materiau, int num_etat_lim, int& type_trou);

/// Limits of the strain; absent, or qb7_sans_borne: none. ERR_BORNES_LOI (material): epsilon_min >=
/// epsilon_max.
ier_2 qb7_fixer_bornes_loi(int num_materiau, int num_etat_lim, std::optional<double> epsilon_min = {},
                           std::optional<double> epsilon_max = {});
ier_2 qb7_lire_bornes_loi(int num_materiau, int num_etat_lim, double& epsilon_min, double& epsilon_max);

/// Stress at a strain; coefficient of degree 1 of the interval of a strain, which is the modulus at strain 0
/// (and not the slope elsewhere); strain of smallest magnitude at which a stress is reached, or
/// ERR_NON_EPSILON.
ier_2 qb7_contrainte_materiau(int num_materiau, int num_etat_lim, double epsilon, double& sigma);
ier_2 qb7_young_materiau(int num_materiau, int num_etat_lim, double epsilon, double& e);
ier_2 qb7_deformation_materiau(int num_materiau, int num_etat_lim, double sigma, double& epsilon);

// ---- Cables ----
// A cable is a zone with at most one point: ERR_PTS_CABLE (zone). Its law must exist: ERR_NON_LOI_CABLE
// (zone).

/// Tensions cables, and activates them: stress tab_sigma (negative in tension) before any bond. With
/// prec_iso_incluse the loads hold the cable's force already. Stops at the first that fails, and leaves those
/// before it tensioned. ERR_DIM_TAB (number of stresses); ERR_NON_EPSILON: the law does not reach the stress.
ier_2 qb7_tendre_cable(int num_section, int num_etat_lim, bool prec_iso_incluse,
                       std::span<const int> num_zones_cables, std::span<const double> tab_sigma);

/// All six values of the history to 0: the cable then follows the law of its material as it is.
ier_2 qb7_reinitialiser_cable(int num_section, std::span<const int> num_zones_cables);

/// Bonds a cable under the plane deform_section, rho_cable of the section's strain: the EC method, and the
/// return to state zero. ERR_CABLE_INACTIF (zone); ERR_MERE_INACTIVE.
ier_2 qb7_injecter_cable_methode_bp_ec(int num_section, int num_zone_cable, double rho_cable,
                                       const deformation& deform_section);
ier_2 qb7_injecter_cable_methode_retour_etat_zero(int num_section, int num_zone_cable,
                                                  const deformation& deform_section);

/// Loss of prestress between the permanent and the final limit state, for all active cables of a material; n:
/// ratio of the cable's modulus to the concrete's. ERR_MODULE_CABLE (material): final law without modulus;
/// ERR_NON_CABLE (material): no active cable; ERR_PTS_CABLE (rank of the cable).
ier_2 qb7_etat_permanent(int num_section, int num_materiau, int num_el_perm, int num_el_final, double n,
                         double rho_non_injecte, double rho_injecte);

// ---- Strains and stresses at a point ----

struct qb7_deformation_point {
  double epsilon_0 = 0;      ///< strain of the section's plane; 0 for a cable that is not bonded
  double epsilon = 0;        ///< strain on the material's law
  double delta_epsilon = 0;  ///< strain since the bond, as the limits see it
};

/// Point (y, z) in the section's own axes, plane in the frame of loading.
ier_2 qb7_deformation_point_zone(int num_section, int num_zone, double y, double z,
                                 const deformation& deform_section, qb7_deformation_point& resultat);

/// Stress at the strain `epsilon` of the routine above, and its change. ERR_EPSILON_MIN, ERR_EPSILON_MAX
/// (zone): a limit of the law is passed. With controle_bornes false that is told by the code alone: the
/// stresses stand and nothing is journalled.
ier_2 qb7_contrainte_point_zone(int num_section, int num_zone, int num_etat_lim, double epsilon,
                                double& sigma, double& delta_sigma, bool controle_bornes = true);

/// A point of a creeping zone under a permanent and then a final plane; strains and stresses are 0 in a zone
/// that does not creep, creep and permanent stress are 0 where the permanent plane does not compress the
/// point.
struct qb7_etat_fluage {
  double epsilon_permanent = 0, epsilon_final = 0, epsilon_fluage = 0, sigma_permanent = 0, sigma_final = 0;
};
ier_2 qb7_etat_point_zone_fluage(int num_section, int num_zone, int num_etat_lim, double coefficient_fluage,
                                 double y, double z, const deformation& deform_permanent_section,
                                 const deformation& deform_final_section, qb7_etat_fluage& resultat);

// ---- Geometry and mechanics ----

/// Area of an active zone with a material, less what its daughters take out of it: at the mechanical limit
/// state, and at num_etat_lim by the hole types of its laws.
ier_2 qb7_section_brute_zone(int num_section, int num_zone, double& section_brute);
ier_2 qb7_section_nette_zone(int num_section, int num_zone, int num_etat_lim, double& section_nette);

/// Centroid, angle of the principal axes in radians, and the tangent stiffnesses about them; areas and
/// inertias when stress = strain (qb7_etat_mecanique).
struct caracteristiques_mecaniques {
  double yg = 0, zg = 0, alpha = 0, e_sx = 0, e_iy = 0, e_iz = 0;
};

/// In the section's own axes, whatever the frame of loading; tangent at the plane given, itself in these
/// axes. ERR_E_SX_NUL (section): no stiffness.
ier_2 qb7_caracteristiques_mecaniques(int num_section, int num_etat_lim,
                                      caracteristiques_mecaniques& resultat,
                                      const deformation& deform_section = {});

/// Forces of a plane. ERR_EPSILON_LIM (zone): a strain limit is passed, and the forces are zero.
ier_2 qb7_deformer_section(int num_section, int num_etat_lim, const deformation& deform_section,
                           efforts& efforts_section);

/// Plane in equilibrium with forces; deform_section is where the search begins, and its result.
/// ERR_EQUILIBRE: none found, or with bornes one that passes a strain limit; ERR_EPSILON_LIM (zone), without
/// bornes alone: in equilibrium past a limit. Both are results: they do not end a run.
ier_2 qb7_solliciter_section(bool bornes, int num_section, int num_etat_lim, const efforts& efforts_section,
                             deformation& deform_section);

/// The planes by which a section that creeps came to rest under its permanent forces: the first without
/// creep, each of the others with the creep of those before.
struct qb7_histoire_fluage {
  std::array<deformation, 10> tab_deform_section{};
  int nb_tab_deform_section = 0;  ///< how many of them count
};

/// Plane in equilibrium with permanent forces once the zones that creep (qb7_fixer_fluante,
/// qb7_fixer_c_fluage) have crept under it: EN 1992-1-1 3.1.4 (2) and (3), creep in proportion to the stress.
/// deform_permanent_section is where the search begins, and its result; the history is what the routine below
/// goes on from. The coding of the limits is not that of qb7_solliciter_section: ERR_EPSILON_LIM (zone), with
/// bornes alone: a strain limit is passed; without bornes that is a success. ERR_EQUILIBRE: none found;
/// ERR_EQUILIBRE_FLUAGE: ten planes have not come to rest; ERR_NON_AFF_BORNES, ERR_CALC_APPROX,
/// ERR_LOI_APPROX: no affine approximation of the law of a zone that creeps. After a failure the history
/// holds the planes tried.
ier_2 qb7_solliciter_permanent_section(bool bornes, int num_section, int num_etat_lim,
                                       const efforts& efforts_permanents_section,
                                       deformation& deform_permanent_section, qb7_histoire_fluage& histoire);

/// Plane in equilibrium with all forces, with the creep that the permanent ones have left: what they add
/// finds the law without creep. deform_final_section and codes as above; the search had better begin at the
/// permanent plane, since under the creep of the past the zero plane is one of tension. ERR_DIM_TAB (number
/// of planes): not 0 to 10. Empties the work tables.
ier_2 qb7_solliciter_final_section(bool bornes, int num_section, int num_etat_lim,
                                   const qb7_histoire_fluage& histoire, const efforts& efforts_totaux_section,
                                   deformation& deform_final_section);

/// Largest k of [k_min, k_max] such that efforts_section + k delta_efforts is in equilibrium, within 1e-5.
/// ERR_K_MIN: not even k_min is, and k is 0.
ier_2 qb7_effort_resistant_limite(bool bornes, int num_section, int num_etat_lim,
                                  const efforts& efforts_section, const efforts& delta_efforts, double k_min,
                                  double k_max, double& k);

/// Closed curve of the forces that a section can just carry, in the plane of the (N, My, Mz) that satisfy
/// row 3 of mat_plan . F = c; x and y are rows 1 and 2 . F. As many points as xy_points has, at least 4,
/// counter-clockwise in (x, y), each within a thousandth of the curve's width and height. What the section
/// carries is what qb7_solliciter_section finds in equilibrium; without bornes, past the strain limits too.
/// All zeros on failure. ERR_NBRE_PTS_DGI (number of points); ERR_MAT_PLAN: singular matrix;
/// ERR_NON_POINT_INT: nothing is carried in this plane; ERR_NON_POINT_EXT: no end to what is carried. The
/// last two are results: they do not end a run.
ier_2 qb7_diagramme_interaction(bool bornes, int num_section, int num_etat_lim, const matrice_3& mat_plan,
                                double c, std::span<point_xy> xy_points);

// ---- Design ----

/// Least steel with which the section carries every loading: the fill coefficients of the zones that are
/// dimensionnable, in their c_remplissage. A loading is a limit state, a state of the section
/// (qb7_etat_du_dimensionnement: the section as it stands) and forces in the frame of that state; limits of
/// strain are judged at the critical points. Activity, frame and planes of the zones come back as they were.
///
/// opt_choix_base_pref says where each linear programme starts: 1 or 2 from the steel of the step before with
/// equilibrium as its active rows, anything else from no hint. The steel is the same; 1 is the quickest.
///
/// Success has for detail the method that found the steel: 1 the plain iteration, 2 the one with a line
/// search, 0 when no law has a limit, so that nothing bounds the section (every coefficient is then 0.01).
/// Failures: ERR_DIM_TAB (number of loadings): sizes that differ; ERR_SURFACE_ZONE (zone): a zone to be
/// designed has no area. Two are results and do not end a run: ERR_DIM_ACIERS (rank of the loading): no
/// quantity of steel, the same in every zone, carries it; ERR_ECHEC_OPTIM: neither method ended; the steel
/// that was reached stays in the zones, not optimal and perhaps short of what is needed.
ier_2 qb7_dimensionner(int num_section, std::span<const int> tab_num_etat_lim,
                       std::span<const int> tab_num_etat, std::span<const efforts> tab_efforts,
                       std::optional<int> opt_choix_base_pref = {});
