// Codes of the engine, and the journal of the routines through which the last failure passed, innermost
// first.
#pragma once

#include <array>
#include <string_view>

#include "QB7_Types.hpp"
#include "Systeme.hpp"
#include "Texte.hpp"

inline constexpr int ERR_INTERNE = 40000;  ///< inconsistent table; a failed allocation once it is passed up
inline constexpr int ERR_ALLOC = 40010;    ///< table that should be empty, allocation
inline constexpr int ERR_SIMPLEXE =
    40020;  ///< sizes of a linear programme; nameless, ERR_INTERNE once it is passed up
inline constexpr int ERR_FICHIER_TRACE = 40030;     ///< trace file not opened
inline constexpr int ERR_DIM_TAB = 42000;           ///< sizes of two arrays differ
inline constexpr int ERR_DIM_DEFORM = 42010;        ///< strain plane without three values
inline constexpr int ERR_DIM_EFFORT = 42020;        ///< forces without three values
inline constexpr int ERR_NBRE_INT_LOI = 43000;      ///< law without interval
inline constexpr int ERR_DEGRE_LOI = 43010;         ///< degree or exponent of a law
inline constexpr int ERR_DEF_LOI = 43020;           ///< points of a law not increasing
inline constexpr int ERR_TYPE_TROU = 43030;         ///< hole type
inline constexpr int ERR_BORNES_LOI = 43040;        ///< epsilon_min >= epsilon_max
inline constexpr int ERR_LOI_EXISTE = 43050;        ///< law taken
inline constexpr int ERR_NON_LOI = 43060;           ///< law not found
inline constexpr int ERR_POINT_EXISTE = 44000;      ///< point number taken
inline constexpr int ERR_NON_POINT = 44010;         ///< point not found, or not in the zone
inline constexpr int ERR_TYPE_ZONE = 45000;         ///< zone type unknown, or without that operation
inline constexpr int ERR_DIM_LISTE_PTS = 45010;     ///< empty or wrong list of points; last point of a zone
inline constexpr int ERR_NUM_MERE = 45020;          ///< zone its own mother
inline constexpr int ERR_MATIERE = 45030;           ///< negative p_matiere
inline constexpr int ERR_ENCOMBREMENT = 45040;      ///< negative p_encombrement
inline constexpr int ERR_REMPLISSAGE = 45050;       ///< negative c_remplissage
inline constexpr int ERR_TYPE_DEFORM = 45060;       ///< neither -1328 nor 1328
inline constexpr int ERR_ZONE_EXISTE = 45070;       ///< zone number taken
inline constexpr int ERR_NON_ZONE = 45080;          ///< zone not found
inline constexpr int ERR_FLUAGE = 45090;            ///< negative c_fluage
inline constexpr int ERR_ETAT_EXISTE = 46000;       ///< state number taken
inline constexpr int ERR_NON_ETAT = 46010;          ///< state not found
inline constexpr int ERR_NON_MERE = 47000;          ///< mother not found
inline constexpr int ERR_MERE_INACTIVE = 47010;     ///< active zone in an inactive mother
inline constexpr int ERR_HERITAGE = 47020;          ///< zone that descends from itself
inline constexpr int ERR_SECT_EXISTE = 47030;       ///< section number taken
inline constexpr int ERR_NON_SECTION = 47040;       ///< section not found
inline constexpr int ERR_DIM_LISTE_ZONES = 47050;   ///< wrong size of a list of zones
inline constexpr int ERR_NON_EPSILON = 48000;       ///< no strain for this stress
inline constexpr int ERR_EPSILON_MIN = 48010;       ///< strain below the law's limit
inline constexpr int ERR_EPSILON_MAX = 48020;       ///< strain above the law's limit
inline constexpr int ERR_TYPE_MERE = 49000;         ///< daughter of a forbidden type
inline constexpr int ERR_EPSILON_LIM = 49010;       ///< strain limit passed in a zone; not fatal
inline constexpr int ERR_EQUILIBRE = 49020;         ///< no equilibrium
inline constexpr int ERR_EQUILIBRE_FLUAGE = 49030;  ///< fixed point of creep not settled
inline constexpr int ERR_NBRE_PTS_DGI = 50000;      ///< interaction diagram: too few points
inline constexpr int ERR_MAT_PLAN = 50010;          ///< interaction diagram: plane matrix singular
inline constexpr int ERR_NON_POINT_INT = 50020;     ///< no point inside the diagram
inline constexpr int ERR_NON_POINT_EXT = 50030;     ///< no point outside the diagram
inline constexpr int ERR_SURFACE_ZONE = 53000;      ///< design: zone of zero area
inline constexpr int ERR_DIM_ACIERS = 53010;        ///< design: no feasible steel
inline constexpr int ERR_ECHEC_OPTIM = 53020;       ///< design: optimisation failed
inline constexpr int ERR_E_SX_NUL = 54000;          ///< section of zero stiffness
inline constexpr int ERR_K_MIN = 54010;             ///< lowest load not carried
inline constexpr int ERR_PTS_CABLE = 54020;         ///< cable with more than one point
inline constexpr int ERR_NON_LOI_CABLE = 54030;     ///< no law for the cable
inline constexpr int ERR_MODULE_CABLE = 54040;      ///< zero modulus of a cable's law
inline constexpr int ERR_NON_CABLE = 54050;         ///< no cable of that material
inline constexpr int ERR_CABLE_INACTIF = 54060;     ///< injection of an inactive cable
inline constexpr int ERR_MODULE = 55000;            ///< modulus not positive
inline constexpr int ERR_TYPE_LOI = 55010;          ///< unknown type_loi
inline constexpr int ERR_LIMITES_LOI = 55020;       ///< limit of the wrong sign, or not allowed
inline constexpr int ERR_CONTRAINTE = 55030;        ///< stress not positive, or inconsistent
inline constexpr int ERR_NON_AFF_BORNES = 56000;    ///< unbounded extreme interval not affine
inline constexpr int ERR_CALC_APPROX = 56010;       ///< approximation failed
inline constexpr int ERR_LOI_APPROX = 56020;        ///< approximate law not built
inline constexpr int ERR_INT_MAX_APPROX = 56030;    ///< more than 1000 affine pieces

inline constexpr int qb7_err_max_messages = 50;

struct qb7_err_t {
  int glob_nbre_messages = 0;
  std::array<socle::texte<31>, qb7_err_max_messages + 1> glob_tab_noms_procs{};  ///< from rank 1
  std::array<int, qb7_err_max_messages + 1> glob_tab_num_erreurs{};              ///< from rank 1
  bool glob_afficher_erreur_et_arreter = false;
  socle::sortie* glob_listing = nullptr;  ///< where a stop is written besides the console
};
extern qb7_err_t qb7_err;
void qb7_err_reinitialiser();

/// Journals a failure under the routine's name, and gives back the status that its caller is to see: a failed
/// allocation becomes ERR_INTERNE above the line that recorded it. A status of success passes through.
/// Ends the run (status 1, after two lines on the console and on the listing) once the client has asked for
/// it, unless the routine is one whose code is an outcome that its callers expect.
ier_2 err_traiter(socle::vue_l1 nom_procedure, ier_2 ier);

/// Empties the journal; each routine of the facade begins so.
void qb7_err_effacer();

int qb7_err_nbre_messages();

/// Line rang_message of the journal, from 1 to 50: name of the routine, name of the code. Out of range:
/// blanks and 0.
void qb7_err_consulter(int rang_message, socle::texte<31>& nom_procedure, socle::texte<31>& nom_erreur,
                       int* ier = nullptr);

/// "ERR_NON_LOI" for 43060, and so on; "ERR_NON_CONNUE" for any other number.
std::string_view qb7_err_nom_erreur(int ier);

/// From now on an engine error that nobody expects ends the run. There is no way back.
void qb7_err_afficher_erreur_et_arreter(socle::sortie* listing = nullptr);
