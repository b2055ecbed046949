#include "And_expressions.hpp"

#include <array>

#include "And_files.hpp"
#include "And_fonctions.hpp"
#include "And_global.hpp"
#include "And_operations.hpp"
#include "And_pile.hpp"
#include "And_termes.hpp"
#include "And_variables.hpp"
#include "Arithmetique.hpp"

using socle::vue_l1;

namespace {

constexpr int loc_file_operandes = 3;  // LISTE OPERANDE

// clang-format off
/// Moves: 3 push, 4 pop and look at the same term again, 5 pop and go on, 6 error. One line for each kind of
/// term, one column for the operator before:      (  +- */ ** ,  f( name
constexpr std::array<std::array<int, 7>, 9> tabpre_apres_operande{{{{6, 6, 6, 6, 6, 6, 6}},     // (
                                                                   {{5, 4, 4, 4, 4, 5, 6}},     // )
                                                                   {{3, 4, 4, 4, 3, 3, 6}},     // + -
                                                                   {{3, 3, 4, 4, 3, 3, 6}},     // * /
                                                                   {{3, 3, 3, 6, 3, 3, 6}},     // **
                                                                   {{3, 4, 4, 4, 3, 3, 6}},     // ,
                                                                   {{6, 6, 6, 6, 6, 6, 6}},     // name
                                                                   {{6, 6, 6, 6, 6, 6, 6}},     // number, string
                                                                   {{6, 6, 6, 6, 6, 6, 6}}}};   // anything else
constexpr std::array<std::array<int, 7>, 9> tabpre_apres_operateur{{{{3, 3, 3, 3, 3, 3, 3}},
                                                                    {{6, 6, 6, 6, 6, 6, 4}},
                                                                    {{3, 6, 6, 6, 3, 3, 4}},
                                                                    {{6, 6, 6, 6, 6, 6, 4}},
                                                                    {{6, 6, 6, 6, 6, 6, 4}},
                                                                    {{6, 6, 6, 6, 6, 6, 4}},
                                                                    {{3, 3, 3, 3, 3, 3, 6}},
                                                                    {{3, 3, 3, 3, 3, 3, 6}},
                                                                    {{6, 6, 6, 6, 6, 6, 6}}}};
/// Side actions: 1 unary sign, 2 name, 3 call, 4 number or string, 5 comma, 6 operation, 7 variable,
/// 8 function.
constexpr std::array<std::array<int, 7>, 9> tabact_apres_operande{{{{0, 0, 0, 0, 0, 0, 0}},
                                                                   {{0, 6, 6, 6, 5, 8, 0}},
                                                                   {{0, 6, 6, 6, 0, 0, 0}},
                                                                   {{0, 0, 6, 6, 0, 0, 0}},
                                                                   {{0, 0, 0, 0, 0, 0, 0}},
                                                                   {{0, 6, 6, 6, 0, 0, 0}},
                                                                   {{0, 0, 0, 0, 0, 0, 0}},
                                                                   {{0, 0, 0, 0, 0, 0, 0}},
                                                                   {{0, 0, 0, 0, 0, 0, 0}}}};
constexpr std::array<std::array<int, 7>, 9> tabact_apres_operateur{{{{0, 0, 0, 0, 0, 0, 3}},
                                                                    {{0, 0, 0, 0, 0, 0, 7}},
                                                                    {{1, 0, 0, 0, 1, 1, 7}},
                                                                    {{0, 0, 0, 0, 0, 0, 7}},
                                                                    {{0, 0, 0, 0, 0, 0, 7}},
                                                                    {{0, 0, 0, 0, 0, 0, 7}},
                                                                    {{2, 2, 2, 2, 2, 2, 0}},
                                                                    {{4, 4, 4, 4, 4, 4, 0}},
                                                                    {{0, 0, 0, 0, 0, 0, 0}}}};
// clang-format on

enum colonne : int { ouvrante = 1, fermante, signe, produit, puissance, virgule, nom, valeur, autre };

struct expression {
  int source = 0;
  int niveau = 1;
  pile<100> and_pile_operateurs;
  pile<100> and_pile_nb_arguments;
  bool apres_un_operande = false;  // and_type_terme_precedent
  int terme = autre;               // column of the term looked at
  int operateur = 0;               // its number, if it is an operator
};

int loc_ligne(int operateur) {
  switch (operateur) {
    case and_operateur_ouvrante: return 1;
    case and_operateur_plus:
    case and_operateur_moins: return 2;
    case and_operateur_fois:
    case and_operateur_divise: return 3;
    case and_operateur_puissance: return 4;
    case and_operateur_virgule: return 5;
    case and_operateur_fonction: return 6;
    default: return 7;
  }
}

colonne loc_colonne(const and_terme_t& t) {
  if (t.and_type_terme == type_terme::nom) return nom;
  if (and_operande(t.and_type_terme) != 17) return valeur;
  if (t.and_type_terme != type_terme::operateur) return autre;
  switch (t.and_var_entier_ou_operateur) {
    case and_operateur_ouvrante: return ouvrante;
    case and_operateur_fermante: return fermante;
    case and_operateur_plus:
    case and_operateur_moins: return signe;
    case and_operateur_fois:
    case and_operateur_divise: return produit;
    case and_operateur_puissance: return puissance;
    case and_operateur_virgule: return virgule;
    default: return autre;
  }
}

/// The next term; line ends and ";" don't count in an expression.
void loc_lire(expression& e) {
  const and_global_t& g = and_global;
  do and_consulter(e.source, e.niveau, 0);
  while (g.and_type_terme == type_terme::delimiteur);
  e.terme = loc_colonne(g);
  e.operateur = g.and_var_entier_ou_operateur;
}

/// `and_message` becomes an error term, behind the current one if this is an error too.
and_resultat loc_echec(const expression& e, bool and_autre_erreur) {
  and_traitement_erreur(e.niveau, and_autre_erreur);
  and_initialiser_structure(1, loc_file_operandes);
  return and_resultat::echec;
}
and_resultat loc_echec(const expression& e, vue_l1 message, bool and_autre_erreur = false) {
  and_global.and_message = message;
  return loc_echec(e, and_autre_erreur);
}

void loc_empiler_operande() { and_ecriture(1, loc_file_operandes); }

bool loc_action_signe() {
  and_terme_courant() = and_entier(0);
  loc_empiler_operande();
  return true;
}

bool loc_action_nom(expression& e) {
  and_mettre_nom_en_majuscules();
  and_global.and_type_terme = type_terme::operateur;
  e.operateur = and_global.and_var_entier_ou_operateur = and_operateur_nom;
  loc_empiler_operande();
  return true;
}

/// The counts never go deeper than the operators, each of them standing for a bracket.
bool loc_action_appel(expression& e) {
  e.and_pile_operateurs.sommet() = and_operateur_fonction;
  return e.and_pile_nb_arguments.empiler(1);
}

bool loc_action_variable(expression& e) {
  and_lecture(1, loc_file_operandes, -1);
  if (!and_action_variable(e.niveau)) return false;
  loc_empiler_operande();
  e.apres_un_operande = true;
  return true;
}

bool loc_action_fonction(expression& e) {
  const int nb_arguments = e.and_pile_nb_arguments.sommet();
  e.and_pile_nb_arguments.depiler();
  return and_action_fonction(nb_arguments);
}

/// What goes with the move; false on a fault, whose message is in and_message.
bool and_action_expression(expression& e, int action) {
  switch (action) {
    case 1: return loc_action_signe();
    case 2: return loc_action_nom(e);
    case 3: return loc_action_appel(e);
    case 4: loc_empiler_operande(); return true;
    case 5: ++e.and_pile_nb_arguments.sommet(); return true;
    case 6: return and_action_operation(e.and_pile_operateurs.sommet());
    case 7: return loc_action_variable(e);
    case 8: return loc_action_fonction(e);
    default: return true;
  }
}

/// An operator goes onto its stack, a bracket with its count of values; an operand stands in its queue
/// already, and the bracket of a call is the call.
bool loc_empiler(expression& e, bool appel) {
  e.apres_un_operande = e.terme == valeur;
  if (e.apres_un_operande || appel) return true;
  return e.and_pile_operateurs.empiler(e.operateur) &&
         (e.terme != ouvrante || e.and_pile_nb_arguments.empiler(1));
}

/// A ")" takes its bracket off. One inside another stands for a single value.
bool loc_fermer(expression& e) {
  const bool appel = e.and_pile_operateurs.sommet() == and_operateur_fonction;
  e.and_pile_operateurs.depiler();
  e.apres_un_operande = true;
  if (appel || e.and_pile_operateurs.vide()) return true;
  const bool une_valeur = e.and_pile_nb_arguments.sommet() == 1;
  e.and_pile_nb_arguments.depiler();
  return une_valeur;
}

/// The values of the outer bracket leave OPERANDE for the FILE, in their order.
and_resultat loc_livrer(const expression& e, int nombre) {
  for (int i = 0; i < nombre; ++i) {
    and_lecture(1, loc_file_operandes, 1);
    if (and_global.and_type_terme == type_terme::chaine) {
      and_dequoter_chaine_donnee();
      and_global.and_type_terme = type_terme::nom;
    }
    and_ecriture(3, e.niveau);
    if (and_global.and_type_terme == type_terme::erreur_capacite) {
      and_initialiser_structure(1, loc_file_operandes);
      return and_depassement_liste(e.niveau);
    }
  }
  return nombre > 1 ? and_resultat::plusieurs : and_resultat::une_valeur;
}

/// What a step of the parser leads to.
enum class suite { terme_suivant, meme_terme, fin, echec };

suite loc_echouer(const expression& e, vue_l1 message, bool and_autre_erreur = false) {
  loc_echec(e, message, and_autre_erreur);
  return suite::echec;
}

suite loc_bouger(expression& e, int mouvement, bool appel) {
  if (mouvement == 4) {
    e.and_pile_operateurs.depiler();
    return suite::meme_terme;
  }
  if (mouvement == 3)
    return loc_empiler(e, appel)
               ? suite::terme_suivant
               : loc_echouer(e, " ERREUR TRAITEMENT EXPRESSION : DEPASSEMENT CAPACITE OPERATEURS");
  if (!loc_fermer(e)) return loc_echouer(e, " SYNTAXE EXPRESSION INCORRECTE");
  return e.and_pile_operateurs.vide() ? suite::fin : suite::terme_suivant;
}

suite loc_pas(expression& e) {
  const and_global_t& g = and_global;
  const std::size_t terme = socle::indice(e.terme);
  const std::size_t avant = socle::indice(loc_ligne(e.and_pile_operateurs.sommet()));
  const int mouvement = (e.apres_un_operande ? tabpre_apres_operande : tabpre_apres_operateur)[terme][avant];
  const int action = (e.apres_un_operande ? tabact_apres_operande : tabact_apres_operateur)[terme][avant];
  if (mouvement == 6 && and_classe(g.and_type_terme) == 4)
    return loc_echouer(e, " SYNTAXE EXPRESSION INCORRECTE", true);
  if (mouvement == 6) return loc_echouer(e, " SYNTAXE EXPRESSION INCORRECTE : ERREUR PRECEDENCE");
  if (!and_action_expression(e, action)) {
    loc_echec(e, false);
    return suite::echec;
  }
  if (action != 0 && g.and_type_terme == type_terme::erreur_capacite)
    return loc_echouer(e, " ERREUR TRAITEMENT EXPRESSION : DEPASSEMENT CAPACITE OPERANDES");
  return loc_bouger(e, mouvement, action == 3);
}

}  // namespace

and_resultat and_analyse_liste_expressions(int source, int niveau) {
  and_initialiser_structure(1, loc_file_operandes);
  expression e;
  e.source = source;
  e.niveau = niveau;
  e.terme = ouvrante;
  e.operateur = and_operateur_ouvrante;
  suite etape = loc_bouger(e, 3, false);
  while (etape == suite::terme_suivant || etape == suite::meme_terme) {
    if (etape == suite::terme_suivant) loc_lire(e);
    etape = loc_pas(e);
  }
  return etape == suite::fin ? loc_livrer(e, e.and_pile_nb_arguments.sommet()) : and_resultat::echec;
}
