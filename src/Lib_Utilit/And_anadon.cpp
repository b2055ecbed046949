#include "And_anadon.hpp"

#include "And_echo.hpp"
#include "And_files.hpp"
#include "And_langage.hpp"
#include "And_termes.hpp"

namespace {

/// Text of the current term.
std::string_view loc_texte() { return and_texte(and_global); }

/// The next finished term, from the data file if none is waiting.
void loc_prendre_terme_fini() {
  and_lecture(3, 1, 1);
  if (and_global.and_type_terme != type_terme::fin_file) return;
  and_analyse_unite_syntaxique();
  and_lecture(3, 1, 1);
}

/// Appends the current term to the phrase; a phrase that is too long is dropped for the error that says so.
void loc_ajouter_a_la_phrase() {
  and_global_t& g = and_global;
  if (g.and_type_terme == type_terme::nom) and_mettre_nom_en_majuscules();
  if (g.and_type_terme == type_terme::chaine && g.and_mode_dequoter) and_dequoter_chaine_donnee();
  and_ecriture(1, 1);
  if (g.and_type_terme != type_terme::erreur_capacite || !g.and_mode_phrase) return;
  and_initialiser_structure(3, 1);
  and_initialiser_structure(1, 1);
  g.and_lg_echo = 0;
  and_ecriture(1, 1);
}

/// Builds the next phrase in LISTE 1, and echoes it.
void loc_preparer_phrase() {
  and_global_t& g = and_global;
  and_initialiser_structure(1, 1);
  g.and_debut_echo = 1;
  g.and_lg_echo = 0;
  int compteur = 0;
  int reserve = 400000;
  bool finie = false;
  while (!finie) {
    loc_prendre_terme_fini();
    if (g.and_type_terme == type_terme::fin_file) continue;  // an assignment leaves no term
    loc_ajouter_a_la_phrase();
    const int classe = and_classe(g.and_type_terme);
    reserve -= g.and_lg_terme + 1;
    ++compteur;
    if (classe != 4) g.and_lg_echo += g.and_lg_terme + 1;
    finie =
        classe == 2 || classe == 4 || (!g.and_mode_phrase && (compteur == 100000 || reserve < and_lg_chaine));
  }
  if (g.and_lg_envoi_echo > 0)
    and_echo_chaine(and_echo_donnees_analysees, 1, 1, g.and_debut_echo, g.and_lg_echo);
  and_consulter(1, 1, 1);
}

/// The term just read is not what the operation reads.
void loc_refuser(std::string_view message, bool& erco) {
  const and_operation operation = and_global.and_numero_operation;
  and_relire_donnee();
  and_echo_terme_refuse();
  and_message_deterministe(message);
  and_erreur_donnee(operation);
  erco = true;
}

/// Reads a term for an operation; false after an error term, whose messages are out.
bool loc_lire_pour(and_operation operation, bool& erco) {
  and_lire_terme(erco);
  and_global.and_numero_operation = operation;
  return !erco;
}

}  // namespace

void and_lire_terme(bool& erco) {
  and_global_t& g = and_global;
  g.and_numero_operation = and_operation::terme;
  erco = false;
  do {
    and_consulter(1, 1, 0);
    if (g.and_type_terme == type_terme::fin_file) {
      loc_preparer_phrase();
      and_consulter(1, 1, 0);
    }
  } while (g.and_type_terme == type_terme::delimiteur && !g.and_mode_delimiteur);
  if (and_classe(g.and_type_terme) != 4) return;
  and_echo_chaine_erronee();
  g.and_debut_echo = g.and_lg_echo + 1;
  and_echo_message_erreur();
  and_erreur_donnee(and_operation::terme);
  erco = true;
}

void and_lire_entier(int& entier, bool& erco) {
  entier = 0;
  if (!loc_lire_pour(and_operation::entier, erco)) return;
  if (and_global.and_type_terme == type_terme::entier)
    entier = and_global.and_var_entier_ou_operateur;
  else
    loc_refuser("     - TERME LU INCORRECT : NON  ENTIER ", erco);
}

void and_lire_reel_d(double& reel, bool& erco) {
  reel = 0;
  if (!loc_lire_pour(and_operation::reel_d, erco)) return;
  switch (and_global.and_type_terme) {
    case type_terme::entier: reel = and_global.and_var_entier_ou_operateur; break;
    case type_terme::reel_s: reel = static_cast<double>(and_global.and_var_reel); break;
    case type_terme::reel_d: reel = and_global.and_var_reel_d; break;
    default: loc_refuser("     - TERME LU INCORRECT : NON ENTIER REEL OU REEL DOUBLE ", erco); break;
  }
}

std::string_view and_obtenir_deb_nom(std::size_t lgmax, bool& erco) {
  if (!loc_lire_pour(and_operation::nom, erco)) return {};
  if (and_global.and_type_terme == type_terme::nom) return loc_texte().substr(0, lgmax);
  loc_refuser("     - TERME LU INCORRECT : AUTRE QUE NOM ", erco);
  return {};
}

std::string_view and_obtenir_nom(std::size_t lgmax, bool& erco) {
  if (!loc_lire_pour(and_operation::nom, erco)) return {};
  if (and_global.and_type_terme == type_terme::nom && loc_texte().size() <= lgmax) return loc_texte();
  loc_refuser("     - TERME LU INCORRECT : NOM TROP LONG OU AUTRE TERME", erco);
  return {};
}

std::string_view and_obtenir_chaine(std::size_t lgmax, bool& erco) {
  if (!loc_lire_pour(and_operation::chaine, erco)) return {};
  if (and_global.and_type_terme == type_terme::chaine && loc_texte().size() <= lgmax) return loc_texte();
  loc_refuser("     - TERME LU INCORRECT : CHAINE TROP LONGUE OU AUTRE TERME", erco);
  return {};
}

void and_lire_delimiteur(bool& erco) {
  if (!loc_lire_pour(and_operation::delimiteur, erco)) return;
  if (and_global.and_type_terme != type_terme::delimiteur)
    loc_refuser("     - TERME LU INCORRECT : NON  DELIMITEUR ", erco);
}

void and_relire_donnee() { and_reconsulter(1, 1); }

void and_initialiser_anadon() {
  and_global_t& g = and_global;
  static_cast<and_modes_t&>(g) = {};
  g.and_indicateur_erreur_donnee = and_indicateur::aucun;
  g.and_nb_niveaux = 1;
  g.and_niveau_erreur = g.and_position_erreur = 0;
  g.and_debut_echo = 1;
  g.and_lg_echo = 0;
  and_vider_files();
  lex_init();
}

void and_initialiser_variables() {
  and_initialiser_structure(1, 2);
  and_global.and_nb_variables = 0;
}

void and_erreur_donnee(and_operation operation) {
  if (operation != and_operation::terme) {
    bool erco = false;
    and_lire_terme(erco);
    if (and_global.and_type_terme == type_terme::fin_fichier) and_erreur_fin_fichier();
  }
  const and_modes_t modes = static_cast<const and_modes_t&>(and_global);
  and_initialiser_anadon();
  static_cast<and_modes_t&>(and_global) = modes;
}
