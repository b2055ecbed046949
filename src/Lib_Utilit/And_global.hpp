// Shared state of the data analyser: the current term, the queues of terms, modes and channels.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>

#include "Lex_analex.hpp"
#include "Systeme.hpp"
#include "Texte.hpp"

/// Type of a term.
enum class type_terme : int {
  aucun = 0,
  entier = 1,
  reel_s = 2,
  reel_d = 3,
  nom = 4,
  chaine = 5,
  delimiteur = 6,  // line end or ";"
  fin_fichier = 7,
  operateur = 8,
  erreur_lexicale = 9,
  erreur_syntaxe = 10,
  erreur_lecture = 11,   // read error on the data file
  erreur_capacite = 12,  // a queue is full
  tete_repetition = 13,  // in queues only: n copies of the value behind it
  tete_increment = 14,   // in queues only: the n + 1 values of a series, current value and step behind it
  fin_file = 15          // TYPE_FIN_FILE: the queue is empty
};

/// Class of a term: 1 operand, 2 end of a phrase, 3 operator or head, 4 error, 5 end of a queue; by type,
/// from 0.
inline constexpr std::array<int, 16> and_classe_terme{0, 1, 1, 1, 1, 1, 2, 2, 3, 4, 4, 4, 4, 3, 3, 5};
constexpr int and_classe(type_terme type) { return and_classe_terme[static_cast<std::size_t>(type)]; }

/// Kind of an operand: 16 numeric, 4 name, 5 string, 17 all other terms; by type, from 0.
inline constexpr std::array<int, 16> and_type_operande{17, 16, 16, 16, 4,  5,  17, 17,
                                                       17, 17, 17, 17, 17, 17, 17, 17};
constexpr int and_operande(type_terme type) { return and_type_operande[static_cast<std::size_t>(type)]; }

/// Operators, numbered from 1 in this order; the four words are operators in any case.
inline constexpr std::array<std::string_view, 17> and_liste_operateurs{
    "+", "-", "*", "(", ")", "**", "/", ",", ".", ":", "<", ">", "=", "A", "REP", "INC", "DIV"};
inline constexpr int and_operateur_plus = 1;
inline constexpr int and_operateur_moins = 2;
inline constexpr int and_operateur_fois = 3;
inline constexpr int and_operateur_ouvrante = 4;
inline constexpr int and_operateur_fermante = 5;
inline constexpr int and_operateur_puissance = 6;
inline constexpr int and_operateur_divise = 7;
inline constexpr int and_operateur_virgule = 8;
inline constexpr int and_operateur_inferieur = 11;
inline constexpr int and_operateur_superieur = 12;
inline constexpr int and_operateur_egal = 13;
inline constexpr int and_operateur_a = 14;  // the first of the four words
inline constexpr int and_operateur_rep = 15;
inline constexpr int and_operateur_inc = 16;
inline constexpr int and_operateur_div = 17;
// Internal ones of the data language.
inline constexpr int and_operateur_rep_inc = 18;   // INC behind REP
inline constexpr int and_operateur_nom = 19;       // a name just read in an expression
inline constexpr int and_operateur_fonction = 20;  // the bracket of a function call
inline constexpr int and_operateur_debut = 21;     // start of a list term
inline constexpr int and_operateur_autre = 22;     // any other special character

inline constexpr int and_lg_chaine = 201;  // the longest term
inline constexpr int and_nb_files_par_classe = 10;
inline constexpr int and_nb_termes_total = 166109;  // of all queues
inline constexpr int and_nb_caracteres_total = 664436;
inline constexpr int and_lg_message = 80;

inline constexpr int and_lg_nom_variable = 16;
inline constexpr int and_nb_maxi_niveaux = 9;                // levels of a directed list
inline constexpr int and_nb_maxi_variables_globales = 2000;  // names
inline constexpr int and_nb_maxi_affectations = 1999;        // values that they were given
inline constexpr int and_premiere_globale =
    and_nb_maxi_niveaux + 1;  // slots before it: the levels' variables
inline constexpr int and_nb_cases_variables = and_nb_maxi_niveaux + and_nb_maxi_variables_globales;

/// A term: what all layers pass on.
struct and_terme_t {
  type_terme and_type_terme = type_terme::aucun;
  int and_var_entier_ou_operateur = 0;         // integer, number of an operator, error code
  float and_var_reel = 0.0F;                   // type 2
  double and_var_reel_d = 0.0;                 // type 3
  socle::texte<and_lg_chaine> and_var_chaine;  // text of the term as read, or a message
  int and_lg_terme = 0;                        // its length; 0: a computed number that has no text yet
};

constexpr bool and_est_operateur(const and_terme_t& t, int numero) {
  return t.and_type_terme == type_terme::operateur && t.and_var_entier_ou_operateur == numero;
}

/// Control record of a queue. It is a ring: places run from 1 to `capacite` and wrap round.
struct and_controle_file_t {
  int tete = 1;               // place of the first term
  int queue = 0;              // place of the last term
  int capacite = 0;           // in terms
  int nombre = 0;             // of terms
  int position_lecture = -1;  // rank of the next term to consult, 1 at the head; -1: no reading
  int capacite_caracteres = 0;
  int nb_caracteres = 0;  // used
  int etat = 1;           // 1 normal, 2 a re-read is pending
};

/// Reading operation at work, for its message when the term is refused.
enum class and_operation : int { terme = 1, entier = 2, reel_d = 4, nom = 5, chaine = 6, delimiteur = 7 };

/// How far the announcement of an error has gone.
enum class and_indicateur : int {
  aucun = 0,
  commande = 1,
  lecture = 2,
  unite = 3,
  fin_fichier = 4,
  general = 5
};

/// What a queue holds of a term beside its value: where its text starts in the queue's characters, and its
/// length.
struct and_entree_t {
  type_terme type;
  int debut_texte;
  int longueur;
};

/// The shared arrays that hold the terms of all queues. Their pages are taken as they are used: nothing is
/// initialised, and a place is written before it is read.
struct and_stock_t {
  std::unique_ptr<and_entree_t[]> and_files_types;
  std::unique_ptr<int[]> and_files_entiers;
  std::unique_ptr<double[]> and_files_reels;
  std::unique_ptr<char[]> and_files_chaines;
};

/// Modes and channels, set by the driver; they outlive an error of the data.
struct and_modes_t {
  bool and_mode_phrase = true;              // a logical unit ends at a delimiter only
  bool and_mode_dequoter = true;            // strings arrive without their quotes
  bool and_mode_delimiteur = false;         // line ends and ";" are served
  int and_mode_echo_donnees_analysees = 1;  // 1: a leading blank; 3: none
  int and_lg_envoi_echo = 80;               // longest line of the echo; 0: no echo
  socle::sortie* and_unite_echo_donnees_analysees = nullptr;
  socle::sortie* and_unite_echo_donnees_analysees_bis = nullptr;
  socle::sortie* and_unite_echo_messages = nullptr;
};

/// The last clothoid: its second coordinate is asked for right after the first.
struct clotho_t {
  bool connue = false;
  double a = 0, r = 0, s = 0;
  double x = 0, y = 0;
  bool erreur = false;
};

template <class T>
using and_table_files = std::array<std::array<T, and_nb_files_par_classe>, 3>;

struct and_global_t : and_terme_t, and_modes_t {
  and_indicateur and_indicateur_erreur_donnee = and_indicateur::aucun;
  and_operation and_numero_operation = and_operation::terme;
  socle::texte<and_lg_message> and_message;
  socle::texte<200> and_ligne_analysee;  // a line of the echo
  int and_niveau_erreur = 0;
  int and_position_erreur = 0;

  // Variables: the first slots are those of the levels of a directed list, innermost first, then the global
  // ones.
  std::array<socle::texte<and_lg_nom_variable>, and_nb_cases_variables> and_noms_variables;
  std::array<int, and_nb_cases_variables> and_positions_variables{};  // of the value, in LISTE 2
  int and_nb_variables = 0;                                           // global ones
  std::array<int, and_nb_maxi_niveaux> and_nb_affectations{};         // values that a level has taken so far
  int and_nb_niveaux = 1;                        // 1 and the levels of the directed list in progress
  std::array<and_terme_t, 3> and_nombres_liste;  // of the list term at work; no list form takes more
  clotho_t dernier_clotho;

  int and_debut_echo = 1;
  int and_lg_echo = 0;

  // Queues, by class and number, both from 0; where the terms and characters of each start in the shared
  // arrays.
  and_table_files<and_controle_file_t> and_controle_files{};
  and_table_files<int> and_debuts_files{};
  and_table_files<int> and_debuts_chaines{};
  and_stock_t and_stock;

  // Reading of the input itself (class 0).
  and_terme_t and_dernier_terme_lu;     // last term taken from the data file
  int and_file_dernier_terme = 0;       // PREFILE that holds it; 0: none does
  bool and_relecture_demandee = false;  // it will be served again
};
extern and_global_t and_global;
void and_global_reinitialiser();
