#include "And_echo.hpp"

#include <algorithm>

#include "And_files.hpp"
#include "And_global.hpp"
#include "Arret.hpp"

using socle::concat;
using socle::sans_blancs_finals;
using socle::sans_blancs_initiaux;
using socle::vue_l1;

namespace {

constexpr int loc_lg_erreur = 69;  // longest piece of the data in a message

bool loc_est_controle(char c) {
  return c == lex_code_fin_fichier || c == lex_code_fin_ligne || c == lex_code_erreur_lecture;
}

void loc_message(vue_l1 ligne) {
  if (and_global.and_unite_echo_messages != nullptr) and_global.and_unite_echo_messages->ligne(ligne);
}

/// Where the text's first line ends: a unit may run on over several.
std::size_t loc_fin_de_ligne(std::string_view texte) {
  return std::min(texte.find(lex_code_fin_ligne), texte.size());
}

/// The text in pieces of at most `largeur` characters, cut at a line end or the last blank inside; a piece
/// starts with a character that isn't blank.
void loc_decouper(std::string_view texte, int largeur, and_routine_echo routine) {
  const auto limite = static_cast<std::size_t>(largeur);
  for (texte = sans_blancs_initiaux(texte); !texte.empty(); texte = sans_blancs_initiaux(texte)) {
    std::size_t coupe = loc_fin_de_ligne(texte);
    if (coupe > limite) {
      coupe = texte.substr(0, limite).rfind(' ');
      if (coupe == std::string_view::npos) coupe = limite;
    }
    const std::string_view piece = sans_blancs_finals(texte.substr(0, coupe));
    if (!piece.empty()) routine(piece);
    texte.remove_prefix(coupe);
    if (texte.starts_with(lex_code_fin_ligne)) texte.remove_prefix(1);
  }
}

/// Part of a queue's text; a final control code doesn't count.
std::string_view loc_partie(int classe, int file, int debut, int lg) {
  const std::string_view tout = and_texte_file(classe, file);
  std::string_view partie =
      tout.substr(std::min(static_cast<std::size_t>(std::max(debut, 1) - 1), tout.size()),
                  static_cast<std::size_t>(std::max(lg, 0)));
  while (!partie.empty() && loc_est_controle(partie.back())) partie.remove_suffix(1);
  return sans_blancs_finals(partie);
}

/// The heading of an error in a unit, once.
void loc_annoncer_unite() {
  and_indicateur& indicateur = and_global.and_indicateur_erreur_donnee;
  if (indicateur == and_indicateur::unite || indicateur == and_indicateur::lecture) return;
  indicateur = and_global.and_type_terme == type_terme::erreur_lecture ? and_indicateur::lecture
                                                                       : and_indicateur::unite;
  loc_message("");
  loc_message(" ===> ERREUR DANS  UNITE SYNTAXIQUE COURANTE : ");
  loc_message("");
}

void loc_annoncer_commande() {
  and_indicateur& indicateur = and_global.and_indicateur_erreur_donnee;
  if (indicateur == and_indicateur::commande) return;
  indicateur = and_indicateur::commande;
  loc_message("");
  loc_message("  ===> ERREUR(S) DANS LA DERNIERE COMMANDE TRAITEE :");
}

}  // namespace

void and_echo_chaine(and_routine_echo routine, int classe, int file, int debut, int lg) {
  if (and_global.and_lg_envoi_echo < 1) return;
  loc_decouper(loc_partie(classe, file, debut, lg), and_global.and_lg_envoi_echo, routine);
}

void and_echo_donnees_analysees(std::string_view chaine) {
  and_global_t& g = and_global;
  if (!lex_analex.lex_mode_garder_point_virgule_dans_echo && chaine.ends_with(';')) {
    chaine = sans_blancs_finals(chaine.substr(0, chaine.size() - 1));
    if (chaine.empty()) return;
  }
  if (g.and_mode_echo_donnees_analysees == 1)
    g.and_ligne_analysee = concat({" ", chaine});
  else
    g.and_ligne_analysee = chaine;
  for (socle::sortie* unite : {g.and_unite_echo_donnees_analysees, g.and_unite_echo_donnees_analysees_bis})
    if (unite != nullptr) unite->ligne(g.and_ligne_analysee.entier());
}

void and_echo_erreur(std::string_view chaine) {
  const std::string_view piece = chaine.substr(0, loc_lg_erreur);
  if (and_global.and_numero_operation == and_operation::terme) {
    loc_annoncer_unite();
    loc_message(concat({" ANALYSE> ", piece}));
  } else {
    loc_annoncer_commande();
    loc_message(concat({"     - TERME LU : ", piece}));
  }
}

void and_echo_chaine_erronee() {
  const and_global_t& g = and_global;
  loc_annoncer_unite();
  // What came before in the phrase, as understood, then the source of the unit that gave the error, as typed.
  loc_decouper(loc_partie(1, 1, 1, g.and_lg_echo), loc_lg_erreur, and_echo_erreur);
  const std::string_view source = and_texte_file(2, 1);
  loc_decouper(loc_partie(2, 1, 1, static_cast<int>(source.size())), loc_lg_erreur, and_echo_erreur);
}

void and_echo_message_erreur() {
  const and_global_t& g = and_global;
  const std::string_view message = g.and_var_chaine.entier().substr(0, and_lg_message);
  loc_message(concat({" MESSAGE> ", sans_blancs_finals(message)}));
}

void and_echo_terme_refuse() {
  const and_global_t& g = and_global;
  std::string_view lu = g.and_var_chaine.entier().substr(0, static_cast<std::size_t>(g.and_lg_terme));
  while (!lu.empty() && loc_est_controle(lu.back())) lu.remove_suffix(1);
  and_echo_erreur(lu);
}

void and_message_deterministe(std::string_view message) { loc_message(message); }

void and_erreur_fin_fichier() {
  and_global.and_indicateur_erreur_donnee = and_indicateur::fin_fichier;
  loc_message("    ERREUR : FIN PREMATUREE  DU FICHIER DE DONNEES");
  loc_message("     ");
  loc_message("     ***  ARRET DE L EXECUTION  *** ");
  socle::arreter(0);
}
