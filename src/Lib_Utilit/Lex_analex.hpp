// The lexeme reader: characters of the data file into lexemes, by a finite automaton fed line by line.
// Data are plain 7-bit text; line ends are delimiters, and a logical unit may run on over lines.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "Systeme.hpp"

inline constexpr int lex_lg_ligne = 201;  // a line of 200 columns and its end-of-line code

/// A line, or the text of a lexeme: what counts of it is told by a length beside it.
using lex_ligne = std::array<char, lex_lg_ligne>;

/// What `lexeme` returns.
enum class code_lexeme : int {
  faute = 1,           // too long, a character outside the table, an underscore at the start of a term
  nom = 2,             // letter, then letters, digits, single underscores between them
  nom_ambigu = 3,      // ends in an underscore, has two in a row, or is followed by a quote
  entier = 4,          // digits
  entier_ambigu = 5,   // digits followed by something that makes them no number
  reel_s = 6,          // digits with a point or an E exponent
  reel_s_errone = 7,   //
  chaine = 8,          // string with its quotes, doubled ones still in place
  chaine_erronee = 9,  // not closed on its line, or followed directly by a term
  special = 10,        // one special character, a sign, a lone point, "*" or "**"
  reel_d = 12,         // digits with a point and a D exponent
  reel_d_errone = 13,  //
  controle = 14        // code 3 (end of file), 10 (end of line) or 24 (read error)
};

inline constexpr char lex_code_fin_fichier = 3;
inline constexpr char lex_code_fin_ligne = 10;
inline constexpr char lex_code_erreur_lecture = 24;

struct lex_analex_t {
  lex_ligne entcar{};    // the current line
  int ncarlu = 0;        // number of its characters that count
  int numcar = 0;        // position of the last one taken
  lex_ligne tampon{};    // push-back stack
  int ncartp = 0;        // number of characters on it
  lex_ligne image{};     // characters of the current lexeme as read
  int nimage = 0;        // their number
  char car = ' ';        // the current character
  int codcar = 0;        // and its code
  int etatc = 1;         // current state, 1 to 18; negative at the end of a lexeme
  int etatd = 1;         // starting state
  bool erreur = false;   // the last call ended in a fault: the next one goes on in the same state
  int ercod = 0;         // 1: lexeme too long; 2: character outside the table
  bool fin_lue = false;  // the end of the file has been met: it stays

  int lex_numero_ligne_lue_courante = 0;
  int lex_lg_fixee_ligne_fichier_donnees = 200;  // columns that count
  bool lex_mode_mettre_code_fin_ligne = false;
  bool lex_mode_garder_point_virgule_dans_echo = false;
  bool lex_mode_suspend_echo_donnees_lues = false;
  socle::entree* lex_unite_lecture_donnees = nullptr;
  socle::sortie* lex_unite_echo_donnees_lues = nullptr;
  socle::sortie* lex_unite_echo_donnees_lues_bis = nullptr;
  lex_ligne lex_zone_stockage_echo_donnees_lues{};  // the held line
  int lg_format_ecriture = 0;                       // length of the echo of a line
  std::string ligne_fichier;                        // the line as the machine gives it
};
extern lex_analex_t lex_analex;
void lex_analex_reinitialiser();

/// The next lexeme: its text in `chaine`, of which `nbcar` characters count; at most `maxcar` are stored.
code_lexeme lexeme(lex_ligne& chaine, int maxcar, int& nbcar);

/// Back to the start: the rest of the current line is dropped.
void lex_init();

/// What the fault of the last lexeme was: 1 too long, 2 a character outside the table.
int lex_ercode();

/// Reads the next line and echoes it; `lglue` characters of it count. At the end of the file, or on a read
/// error, the line is the one control code. Always true.
bool lex_lecture_ligne_donnees(lex_ligne& zone, int& lglue);
