#include "QB7_ERR_Erreurs.hpp"

#include <algorithm>
#include <string>

#include "Arret.hpp"

qb7_err_t qb7_err;

void qb7_err_reinitialiser() { qb7_err = {}; }

namespace {

struct nom_d_un_code {
  int code;
  std::string_view nom;
};

constexpr std::array loc_noms = {
    nom_d_un_code{ERR_INTERNE, "ERR_INTERNE"},
    nom_d_un_code{ERR_ALLOC, "ERR_ALLOC"},
    nom_d_un_code{ERR_FICHIER_TRACE, "ERR_FICHIER_TRACE"},
    nom_d_un_code{ERR_DIM_TAB, "ERR_DIM_TAB"},
    nom_d_un_code{ERR_DIM_DEFORM, "ERR_DIM_DEFORM"},
    nom_d_un_code{ERR_DIM_EFFORT, "ERR_DIM_EFFORT"},
    nom_d_un_code{ERR_NBRE_INT_LOI, "ERR_NBRE_INT_LOI"},
    nom_d_un_code{ERR_DEGRE_LOI, "ERR_DEGRE_LOI"},
    nom_d_un_code{ERR_DEF_LOI, "ERR_DEF_LOI"},
    nom_d_un_code{ERR_TYPE_TROU, "ERR_TYPE_TROU"},
    nom_d_un_code{ERR_BORNES_LOI, "ERR_BORNES_LOI"},
    nom_d_un_code{ERR_LOI_EXISTE, "ERR_LOI_EXISTE"},
    nom_d_un_code{ERR_NON_LOI, "ERR_NON_LOI"},
    nom_d_un_code{ERR_POINT_EXISTE, "ERR_POINT_EXISTE"},
    nom_d_un_code{ERR_NON_POINT, "ERR_NON_POINT"},
    nom_d_un_code{ERR_TYPE_ZONE, "ERR_TYPE_ZONE"},
    nom_d_un_code{ERR_DIM_LISTE_PTS, "ERR_DIM_LISTE_PTS"},
    nom_d_un_code{ERR_NUM_MERE, "ERR_NUM_MERE"},
    nom_d_un_code{ERR_MATIERE, "ERR_MATIERE"},
    nom_d_un_code{ERR_ENCOMBREMENT, "ERR_ENCOMBREMENT"},
    nom_d_un_code{ERR_REMPLISSAGE, "ERR_REMPLISSAGE"},
    nom_d_un_code{ERR_TYPE_DEFORM, "ERR_TYPE_DEFORM"},
    nom_d_un_code{ERR_ZONE_EXISTE, "ERR_ZONE_EXISTE"},
    nom_d_un_code{ERR_NON_ZONE, "ERR_NON_ZONE"},
    nom_d_un_code{ERR_FLUAGE, "ERR_FLUAGE"},
    nom_d_un_code{ERR_ETAT_EXISTE, "ERR_ETAT_EXISTE"},
    nom_d_un_code{ERR_NON_ETAT, "ERR_NON_ETAT"},
    nom_d_un_code{ERR_NON_MERE, "ERR_NON_MERE"},
    nom_d_un_code{ERR_MERE_INACTIVE, "ERR_MERE_INACTIVE"},
    nom_d_un_code{ERR_HERITAGE, "ERR_HERITAGE"},
    nom_d_un_code{ERR_SECT_EXISTE, "ERR_SECT_EXISTE"},
    nom_d_un_code{ERR_NON_SECTION, "ERR_NON_SECTION"},
    nom_d_un_code{ERR_DIM_LISTE_ZONES, "ERR_DIM_LISTE_ZONES"},
    nom_d_un_code{ERR_NON_EPSILON, "ERR_NON_EPSILON"},
    nom_d_un_code{ERR_EPSILON_MIN, "ERR_EPSILON_MIN"},
    nom_d_un_code{ERR_EPSILON_MAX, "ERR_EPSILON_MAX"},
    nom_d_un_code{ERR_TYPE_MERE, "ERR_TYPE_MERE"},
    nom_d_un_code{ERR_EPSILON_LIM, "ERR_EPSILON_LIM"},
    nom_d_un_code{ERR_EQUILIBRE, "ERR_EQUILIBRE"},
    nom_d_un_code{ERR_EQUILIBRE_FLUAGE, "ERR_EQUILIBRE_FLUAGE"},
    nom_d_un_code{ERR_NBRE_PTS_DGI, "ERR_NBRE_PTS_DGI"},
    nom_d_un_code{ERR_MAT_PLAN, "ERR_MAT_PLAN"},
    nom_d_un_code{ERR_NON_POINT_INT, "ERR_NON_POINT_INT"},
    nom_d_un_code{ERR_NON_POINT_EXT, "ERR_NON_POINT_EXT"},
    nom_d_un_code{ERR_SURFACE_ZONE, "ERR_SURFACE_ZONE"},
    nom_d_un_code{ERR_DIM_ACIERS, "ERR_DIM_ACIERS"},
    nom_d_un_code{ERR_ECHEC_OPTIM, "ERR_ECHEC_OPTIM"},
    nom_d_un_code{ERR_E_SX_NUL, "ERR_E_SX_NUL"},
    nom_d_un_code{ERR_K_MIN, "ERR_K_MIN"},
    nom_d_un_code{ERR_PTS_CABLE, "ERR_PTS_CABLE"},
    nom_d_un_code{ERR_NON_LOI_CABLE, "ERR_NON_LOI_CABLE"},
    nom_d_un_code{ERR_MODULE_CABLE, "ERR_MODULE_CABLE"},
    nom_d_un_code{ERR_NON_CABLE, "ERR_NON_CABLE"},
    nom_d_un_code{ERR_CABLE_INACTIF, "ERR_CABLE_INACTIF"},
    nom_d_un_code{ERR_MODULE, "ERR_MODULE"},
    nom_d_un_code{ERR_TYPE_LOI, "ERR_TYPE_LOI"},
    nom_d_un_code{ERR_LIMITES_LOI, "ERR_LIMITES_LOI"},
    nom_d_un_code{ERR_CONTRAINTE, "ERR_CONTRAINTE"},
    nom_d_un_code{ERR_NON_AFF_BORNES, "ERR_NON_AFF_BORNES"},
    nom_d_un_code{ERR_CALC_APPROX, "ERR_CALC_APPROX"},
    nom_d_un_code{ERR_LOI_APPROX, "ERR_LOI_APPROX"},
    nom_d_un_code{ERR_INT_MAX_APPROX, "ERR_INT_MAX_APPROX"},
};

// Failures that are outcomes: a load that finds no equilibrium, a diagram without points, a design without
// solution.
constexpr std::array loc_issues_attendues = {
    nom_d_un_code{ERR_EPSILON_LIM, "QB7_Solliciter_Section"},
    nom_d_un_code{ERR_EQUILIBRE, "QB7_Solliciter_Section"},
    nom_d_un_code{ERR_ECHEC_OPTIM, "LOC_Optimiser_1"},
    nom_d_un_code{ERR_ECHEC_OPTIM, "LOC_Optimiser_2"},
    nom_d_un_code{ERR_ECHEC_OPTIM, "DIM_Dimensionner"},
    nom_d_un_code{ERR_DIM_ACIERS, "DIM_Dimensionner"},
    nom_d_un_code{ERR_ECHEC_OPTIM, "QB7_Dimensionner"},
    nom_d_un_code{ERR_DIM_ACIERS, "QB7_Dimensionner"},
    nom_d_un_code{ERR_DIM_ACIERS, "LOC_Init_C_Remplissage"},
};
constexpr std::array<std::string_view, 7> loc_procs_du_diagramme = {
    "DGI_Interaction",           "QB7_Diagramme_Interaction",      "LOC_Chercher_Pt_Interieur",
    "LOC_Ameliorer_Pt_Et_Cadre", "LOC_Chercher_4_Premiers_Points", "LOC_Chercher_Pts_Suivants",
    "LOC_Chercher_Point"};

bool loc_est_attendue(std::string_view nom_procedure, int code) {
  const auto est_elle = [&](const nom_d_un_code& issue) {
    return issue.code == code && issue.nom == nom_procedure;
  };
  if (std::ranges::any_of(loc_issues_attendues, est_elle)) return true;
  if (code != ERR_NON_POINT_INT && code != ERR_NON_POINT_EXT) return false;
  return std::ranges::find(loc_procs_du_diagramme, nom_procedure) != loc_procs_du_diagramme.end();
}

[[noreturn]] void loc_afficher_et_arreter(std::string_view nom_procedure, int code) {
  const std::string ligne_1 = socle::concat({" Erreur dans Procedure :", nom_procedure});
  const std::string ligne_2 = socle::concat({" Erreur : ", qb7_err_nom_erreur(code)});
  socle::sortie& console = socle::le_systeme().console();
  for (socle::sortie* canal : {&console, qb7_err.glob_listing}) {
    if (canal == nullptr) continue;
    canal->ligne(ligne_1);
    canal->ligne(ligne_2);
  }
  socle::arreter(1);
}

}  // namespace

ier_2 err_traiter(socle::vue_l1 nom_procedure, ier_2 ier) {
  if (!ier) return ier;
  if (qb7_err.glob_nbre_messages < qb7_err_max_messages) {
    const auto rang = static_cast<std::size_t>(++qb7_err.glob_nbre_messages);
    qb7_err.glob_tab_noms_procs[rang] = nom_procedure;
    qb7_err.glob_tab_num_erreurs[rang] = ier.code;
  }
  if (ier.code == ERR_ALLOC || ier.code == ERR_SIMPLEXE) ier.code = ERR_INTERNE;
  const std::string_view nom = socle::sans_blancs_finals(nom_procedure.octets());
  if (qb7_err.glob_afficher_erreur_et_arreter && !loc_est_attendue(nom, ier.code))
    loc_afficher_et_arreter(nom, ier.code);
  return ier;
}

void qb7_err_effacer() { qb7_err.glob_nbre_messages = 0; }

int qb7_err_nbre_messages() { return qb7_err.glob_nbre_messages; }

void qb7_err_consulter(int rang_message, socle::texte<31>& nom_procedure, socle::texte<31>& nom_erreur,
                       int* ier) {
  const bool present = rang_message >= 1 && rang_message <= qb7_err.glob_nbre_messages;
  const auto rang = static_cast<std::size_t>(present ? rang_message : 0);
  const int code = present ? qb7_err.glob_tab_num_erreurs[rang] : 0;
  nom_procedure = present ? qb7_err.glob_tab_noms_procs[rang] : socle::texte<31>();
  nom_erreur = present ? socle::texte<31>(qb7_err_nom_erreur(code)) : socle::texte<31>();
  if (ier != nullptr) *ier = code;
}

std::string_view qb7_err_nom_erreur(int ier) {
  static_assert(std::ranges::is_sorted(loc_noms, {}, &nom_d_un_code::code), "looked up by halving");
  const auto place = std::ranges::lower_bound(loc_noms, ier, {}, &nom_d_un_code::code);
  return place != loc_noms.end() && place->code == ier ? place->nom : std::string_view("ERR_NON_CONNUE");
}

void qb7_err_afficher_erreur_et_arreter(socle::sortie* listing) {
  qb7_err.glob_afficher_erreur_et_arreter = true;
  qb7_err.glob_listing = listing;
}
