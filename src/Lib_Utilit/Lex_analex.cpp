#include "Lex_analex.hpp"

#include <algorithm>
#include <string_view>

lex_analex_t lex_analex;
void lex_analex_reinitialiser() { lex_analex = {}; }

namespace {

constexpr int nb_classes = 14;
constexpr int nb_etats = 18;

/// Class of a character by its code, 1 to 14:
///   1 blank and control codes     2 letters but E, D     3 digits     4 E     5 underscore     6 '     7 "
///   8 other special characters    9 + -     10 .     11 codes 3, 10, 24     12 *     13 D     14 $
constexpr std::size_t loc_code(char c) { return static_cast<unsigned char>(c); }

constexpr std::array<int, 128> lex_classe = [] {
  std::array<int, 128> classe{};
  classe.fill(1);
  const auto classer = [&](std::string_view caracteres, int numero) {
    for (const char c : caracteres) classe[loc_code(c)] = numero;
  };
  classer("ABCFGHIJKLMNOPQRSTUVWXYZabcfghijklmnopqrstuvwxyz", 2);
  classer("0123456789", 3);
  classer("Ee", 4);
  classer("_", 5);
  classer("'", 6);
  classer("\"", 7);
  classer("!#%&(),/:;<=>?@[\\]^`{}~|\x7F", 8);
  classer("+-", 9);
  classer(".", 10);
  for (const char c : {lex_code_fin_fichier, lex_code_fin_ligne, lex_code_erreur_lecture})
    classe[loc_code(c)] = 11;
  classer("*", 12);
  classer("Dd", 13);
  classer("$", 14);
  return classe;
}();

using table_automate = std::array<std::array<int, nb_classes>, nb_etats>;

// States: 1 between lexemes; 2 in a name, 3 after an underscore in it; 4 in the digits of a number, 5 after
// its point; 6, 7, 8 after E, after its sign, in the exponent; 9, 10 in a '...' string, after a closing
// quote; 11, 12 the same for
// "..."; 13 after one *; 14, 15, 16 after D, after its sign, in the exponent; 17 after a leading point; 18 in
// a comment.

constexpr int prendre = 1;   // the character belongs to the lexeme
constexpr int sauter = 2;    // it is dropped
constexpr int remettre = 3;  // it belongs to the next lexeme

// clang-format off
constexpr table_automate lex_action{{
  // 1  2  3  4  5  6  7  8  9 10 11 12 13 14
  { 2, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 2},  //  1
  { 2, 1, 1, 1, 1, 3, 3, 3, 3, 3, 3, 3, 1, 3},  //  2
  { 2, 1, 1, 1, 2, 3, 3, 3, 3, 3, 3, 3, 1, 3},  //  3
  { 2, 3, 1, 1, 3, 3, 3, 3, 3, 1, 3, 3, 3, 3},  //  4
  { 2, 3, 1, 1, 3, 3, 3, 3, 3, 3, 3, 3, 1, 3},  //  5
  { 2, 3, 1, 3, 3, 3, 3, 3, 1, 3, 3, 3, 3, 3},  //  6
  { 2, 3, 1, 3, 3, 3, 3, 3, 1, 3, 3, 3, 3, 3},  //  7
  { 2, 3, 1, 3, 3, 3, 3, 3, 1, 3, 3, 3, 3, 3},  //  8
  { 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 3, 1, 1, 1},  //  9
  { 2, 3, 3, 3, 3, 1, 3, 3, 3, 3, 3, 3, 3, 3},  // 10
  { 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 3, 1, 1, 1},  // 11
  { 2, 3, 3, 3, 3, 3, 1, 3, 3, 3, 3, 3, 3, 3},  // 12
  { 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 1, 3, 3},  // 13
  { 2, 3, 1, 3, 3, 3, 3, 3, 1, 3, 3, 3, 3, 3},  // 14
  { 2, 3, 1, 3, 3, 3, 3, 3, 1, 3, 3, 3, 3, 3},  // 15
  { 2, 3, 1, 3, 3, 3, 3, 3, 1, 3, 3, 3, 3, 3},  // 16
  { 2, 3, 1, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3},  // 17
  { 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 1, 2, 2, 2},  // 18
}};

// A negative state ends the lexeme: minus its code.
constexpr table_automate lex_etat_suivant{{
  //  1    2    3    4    5    6    7    8    9   10   11   12   13   14
  {   1,   2,   4,   2,  -1,   9,  11, -10, -10,  17, -14,  13,   2,  18},  //  1
  {  -2,   2,   2,   2,   3,  -3,  -3,  -2,  -2,  -2,  -2,  -2,   2,  -2},  //  2
  {  -3,   2,   2,   2,  -3,  -3,  -3,  -3,  -3,  -3,  -3,  -3,   2,  -3},  //  3
  {  -4,  -5,   4,   6,  -5,  -5,  -5,  -4,  -4,   5,  -4,  -4,  -5,  -4},  //  4
  {  -6,  -7,   5,   6,  -7,  -7,  -7,  -6,  -6,  -7,  -6,  -6,  14,  -6},  //  5
  {  -7,  -7,   8,  -7,  -7,  -7,  -7,  -7,   7,  -7,  -7,  -7,  -7,  -7},  //  6
  {  -7,  -7,   8,  -7,  -7,  -7,  -7,  -7,  -7,  -7,  -7,  -7,  -7,  -7},  //  7
  {  -6,  -7,   8,  -7,  -7,  -7,  -7,  -6,  -6,  -7,  -6,  -6,  -7,  -6},  //  8
  {   9,   9,   9,   9,   9,  10,   9,   9,   9,   9,  -9,   9,   9,   9},  //  9
  {  -8,  -9,  -9,  -9,  -9,   9,  -9,  -8,  -8,  -9,  -8,  -8,  -9,  -8},  // 10
  {  11,  11,  11,  11,  11,  11,  12,  11,  11,  11,  -9,  11,  11,  11},  // 11
  {  -8,  -9,  -9,  -9,  -9,  -9,  11,  -8,  -8,  -9,  -8,  -8,  -9,  -8},  // 12
  { -10, -10, -10, -10, -10, -10, -10, -10, -10, -10, -10, -10, -10, -10},  // 13
  { -13, -13,  16, -13, -13, -13, -13, -13,  15, -13, -13, -13, -13, -13},  // 14
  { -13, -13,  16, -13, -13, -13, -13, -13, -13, -13, -13, -13, -13, -13},  // 15
  { -12, -13,  16, -13, -13, -13, -13, -12, -12, -13, -12, -12, -13, -12},  // 16
  { -10, -10,   5,  -7, -10, -10, -10, -10, -10, -10, -10, -10,  -7, -10},  // 17
  {  18,  18,  18,  18,  18,  18,  18,  18,  18,  18, -14,  18,  18,  18},  // 18
}};
// clang-format on

/// No state leads outside the tables, and no character is without an action.
constexpr bool loc_tables_closes() {
  for (std::size_t etat = 0; etat < nb_etats; ++etat)
    for (std::size_t classe = 0; classe < nb_classes; ++classe) {
      const int suivant = lex_etat_suivant[etat][classe];
      const int action = lex_action[etat][classe];
      if (suivant == 0 || suivant > nb_etats || suivant < -14 || suivant == -11) return false;
      if (action != prendre && action != sauter && action != remettre) return false;
    }
  return true;
}
static_assert(loc_tables_closes());

std::size_t loc_place(int i) { return static_cast<std::size_t>(i); }

/// From the push-back, from the line, or from the next line. After the end of the file there is nothing but
/// the end.
void loc_prendre_caractere(lex_analex_t& l) {
  if (l.ncartp >= 1) {
    l.car = l.tampon[loc_place(--l.ncartp)];
  } else if (l.fin_lue) {
    l.car = lex_code_fin_fichier;
  } else {
    if (l.numcar == l.ncarlu) {
      lex_lecture_ligne_donnees(l.entcar, l.ncarlu);
      l.numcar = 0;
    }
    l.car = l.entcar[loc_place(l.numcar++)];
  }
  l.codcar = static_cast<unsigned char>(l.car);
  if (l.car == lex_code_fin_fichier) l.fin_lue = true;
}

/// The line from the first `marque` on is comment; what remains ends in a blank at that place.
void loc_couper(lex_ligne& zone, int& lglue, char marque) {
  const auto* const debut = zone.begin();
  const auto* const fin = debut + lglue;
  const auto* const trouvee = std::find(debut, fin, marque);
  if (trouvee == fin) return;
  lglue = static_cast<int>(trouvee - debut) + 1;
  zone[loc_place(lglue - 1)] = ' ';
}

/// The line as it stands, comment and all, blank padded.
void loc_echo(const lex_ligne& zone, int longueur, socle::sortie* unite) {
  if (unite != nullptr) unite->ligne(std::string_view(zone.data(), loc_place(longueur)));
}

}  // namespace

bool lex_lecture_ligne_donnees(lex_ligne& zone, int& lglue) {
  lex_analex_t& l = lex_analex;
  ++l.lex_numero_ligne_lue_courante;
  const socle::etat_lecture etat = l.lex_unite_lecture_donnees == nullptr
                                       ? socle::etat_lecture::fin
                                       : l.lex_unite_lecture_donnees->ligne(l.ligne_fichier);
  if (etat != socle::etat_lecture::lue) {
    lglue = 1;
    zone[0] = etat == socle::etat_lecture::fin ? lex_code_fin_fichier : lex_code_erreur_lecture;
    return true;
  }
  // Files from other systems end their lines in CR LF.
  std::string_view ligne = l.ligne_fichier;
  if (ligne.ends_with('\r')) ligne.remove_suffix(1);
  ligne = ligne.substr(0, zone.size());
  std::fill(std::copy(ligne.begin(), ligne.end(), zone.begin()), zone.end(), ' ');

  const int colonnes = std::clamp(l.lex_lg_fixee_ligne_fichier_donnees, 0, lex_lg_ligne - 1);
  l.lg_format_ecriture = std::min(colonnes, lex_lg_ligne - 2);
  if (l.lex_mode_suspend_echo_donnees_lues) {
    l.lex_zone_stockage_echo_donnees_lues = zone;
  } else {
    loc_echo(zone, l.lg_format_ecriture, l.lex_unite_echo_donnees_lues);
    loc_echo(zone, l.lg_format_ecriture, l.lex_unite_echo_donnees_lues_bis);
  }

  lglue = colonnes + 1;
  zone[loc_place(colonnes)] = ' ';
  loc_couper(zone, lglue, '$');
  loc_couper(zone, lglue, '#');
  if (l.lex_mode_mettre_code_fin_ligne) zone[loc_place(lglue - 1)] = lex_code_fin_ligne;
  return true;
}

code_lexeme lexeme(lex_ligne& chaine, int maxcar, int& nbcar) {
  lex_analex_t& l = lex_analex;
  if (l.erreur)
    l.erreur = false;
  else
    l.etatc = l.etatd;
  nbcar = 0;
  l.nimage = 0;
  do {
    loc_prendre_caractere(l);
    if (l.nimage < lex_lg_ligne) l.image[loc_place(l.nimage++)] = l.car;
    if (l.codcar > 127) {
      l.ercod = 2;
      l.erreur = true;
      break;
    }
    const std::size_t etat = loc_place(l.etatc - 1);
    const std::size_t classe = loc_place(lex_classe[loc_place(l.codcar)] - 1);
    switch (lex_action[etat][classe]) {
      case prendre:
        if (nbcar == maxcar) {
          l.ercod = 1;
          l.erreur = true;
        } else {
          chaine[loc_place(nbcar++)] = l.car;
        }
        break;
      case remettre:
        l.tampon[loc_place(l.ncartp++)] = l.car;
        --l.nimage;
        break;
      default: break;
    }
    if (l.erreur) break;
    l.etatc = lex_etat_suivant[etat][classe];
    if (l.etatc == 1) l.nimage = 0;
  } while (l.etatc > 0);
  return l.erreur ? code_lexeme::faute : static_cast<code_lexeme>(-l.etatc);
}

void lex_init() {
  lex_analex_t& l = lex_analex;
  l.erreur = false;
  l.etatc = l.etatd = 1;
  l.ncartp = l.ncarlu = l.numcar = l.nimage = l.ercod = 0;
}

int lex_ercode() { return lex_analex.ercod; }
