#include "And_liste_dirigee.hpp"

#include <array>
#include <string>

#include "And_files.hpp"
#include "And_global.hpp"
#include "And_liste_termes.hpp"
#include "And_pile.hpp"
#include "And_termes.hpp"
#include "And_variables.hpp"
#include "Arithmetique.hpp"
#include "Edition.hpp"

using socle::concat;
using socle::vue_l1;

namespace {

constexpr int loc_file_variables = 2;                       // LISTE VARIABLE
constexpr int loc_nb_maxi_files = and_nb_maxi_niveaux + 1;  // the pattern and the variables

// States of the acquisition. The pattern begins (3) or goes on (8); of a variable come the name (4), "="
// (7), the first value (5) and the others (9).
constexpr int loc_motif_vide = 3;
constexpr int loc_variable = 4;
constexpr int loc_premiere_valeur = 5;
constexpr int loc_erreur = 6;
constexpr int loc_egal = 7;
constexpr int loc_motif = 8;
constexpr int loc_valeurs = 9;
/// State behind a term of a list, by the state before it, from 1.
constexpr std::array<int, 9> preced{6, 6, 8, 6, 9, 6, 6, 8, 9};

struct acquisition {
  int etat = loc_motif_vide;
  int niveau = 1;
};

/// One more level. The brackets are no part of the pattern; one that comes later is a fault, and the message
/// shows what stands before it.
bool loc_ouvrir_niveau(acquisition& a) {
  if (a.etat != loc_motif_vide) return false;
  and_initialiser_structure(2, 1);
  return ++and_global.and_nb_niveaux <= loc_nb_maxi_files;
}

/// The pattern or a list of values is whole; what comes next is the variable of the next level.
bool loc_fermer_niveau(acquisition& a) {
  if (a.etat != loc_motif && a.etat != loc_valeurs) return false;
  a.etat = loc_variable;
  if (++a.niveau <= and_global.and_nb_niveaux) and_initialiser_structure(2, a.niveau);
  return true;
}

bool loc_prendre_egal(acquisition& a) {
  if (a.etat != loc_egal) return false;
  and_initialiser_structure(2, a.niveau);
  a.etat = loc_premiere_valeur;
  return true;
}

bool loc_prendre_variable(acquisition& a) {
  and_global_t& g = and_global;
  if (g.and_lg_terme > and_lg_nom_variable) return false;
  and_mettre_nom_en_majuscules();
  g.and_noms_variables[socle::indice(a.niveau - 1)] = and_texte(g);
  a.etat = loc_egal;
  return true;
}

bool loc_prendre_delimiteur(acquisition& a) {
  if (a.niveau > 1)
    and_lecture(2, a.niveau, -1);
  else
    a.etat = loc_motif;
  return true;
}

/// A term of the pattern or of a list of values; outside of brackets there is no level that it could belong
/// to.
bool loc_prendre_terme(acquisition& a) {
  a.etat = preced[socle::indice(a.etat)];
  return a.etat != loc_erreur && and_global.and_nb_niveaux > 1;
}

bool loc_prendre(acquisition& a) {
  const and_global_t& g = and_global;
  if (g.and_type_terme == type_terme::delimiteur) return loc_prendre_delimiteur(a);
  if (g.and_type_terme == type_terme::operateur) switch (g.and_var_entier_ou_operateur) {
      case and_operateur_inferieur: return loc_ouvrir_niveau(a);
      case and_operateur_superieur: return loc_fermer_niveau(a);
      case and_operateur_egal: return loc_prendre_egal(a);
      default: return loc_prendre_terme(a);
    }
  if (and_classe(g.and_type_terme) != 1) return false;
  if (g.and_type_terme == type_terme::nom && a.etat == loc_variable) return loc_prendre_variable(a);
  return loc_prendre_terme(a);
}

// ---- evaluation

/// Levels that are open, the innermost on top; level 1 is the pattern.
using pile_niveaux = pile<loc_nb_maxi_files>;

bool loc_est_fin_de_liste() { return and_est_operateur(and_global, and_operateur_superieur); }

/// Opens a level, at the start of its list.
bool loc_descendre(pile_niveaux& and_pile_niveaux, int niveau) {
  and_consulter(2, niveau, 1);
  return and_pile_niveaux.empiler(niveau);
}

/// Leaves a level: the one above goes on to its next value, and the value it had is over.
void loc_remonter(pile_niveaux& and_pile_niveaux) {
  and_pile_niveaux.depiler();
  if (!and_pile_niveaux.vide()) and_lecture(1, loc_file_variables, -1);
}

/// The next value of a level's variable; false on a fault, with its term current.
bool loc_avancer_variable(pile_niveaux& and_pile_niveaux, int niveau) {
  and_global_t& g = and_global;
  and_lecture(3, niveau, 1);
  if (g.and_type_terme == type_terme::fin_file) {
    and_analyse_liste_termes(2, niveau);
    and_lecture(3, niveau, 1);
  }
  if (loc_est_fin_de_liste()) {
    loc_remonter(and_pile_niveaux);
    return true;
  }
  if (and_operande(g.and_type_terme) != 16) return false;
  and_ecriture(1, loc_file_variables);
  if (g.and_type_terme == type_terme::erreur_capacite) return false;
  ++g.and_nb_affectations[socle::indice(niveau - 1)];
  return loc_descendre(and_pile_niveaux, niveau - 1);
}

/// The next term of the pattern.
bool loc_avancer_motif(pile_niveaux& and_pile_niveaux) {
  and_consulter(2, 1, 0);
  if (loc_est_fin_de_liste()) {
    loc_remonter(and_pile_niveaux);
    return true;
  }
  and_reconsulter(2, 1);
  return and_analyse_liste_termes(2, 1) != and_resultat::echec;
}

/// "VARIABLE name = value", with the value that the variable has.
void loc_signaler_variable(int niveau) {
  and_global_t& g = and_global;
  and_valeur_de_variable(niveau - 1);
  and_formater_terme();
  const socle::texte<16> valeur(and_texte(g));
  g.and_message =
      concat({"VARIABLE ", g.and_noms_variables[socle::indice(niveau - 1)].entier(), " = ", valeur.entier()});
  and_traitement_erreur(1, false);
}

/// The fault, if the analysis has not told it in FILE 1 itself; the level; the values of the variables that
/// were running above it.
void and_erreur_liste_dirigee(int niveau) {
  and_global_t& g = and_global;
  g.and_niveau_erreur = niveau;
  g.and_position_erreur = and_position_lecture(2, niveau);
  if (niveau > 1 && and_classe(g.and_type_terme) == 4) {
    and_ecriture_erreur(1);
  } else if (niveau > 1) {
    g.and_message = vue_l1(" TERME INCORRECT DANS LISTE NUMERIQUE");
    and_traitement_erreur(1, false);
  }
  g.and_message =
      concat({" ERREUR DURANT EVALUATION LISTE DIRIGEE - NIVEAU :", socle::edite(socle::I{6}, niveau)});
  and_traitement_erreur(1, false);
  for (int n = niveau + 1; n <= g.and_nb_niveaux; ++n) loc_signaler_variable(n);
}

/// The values of the variables will stand behind those of the global ones, that of the outermost level first.
void loc_situer_variables(int debut) {
  and_global_t& g = and_global;
  for (int niveau = 2; niveau <= g.and_nb_niveaux; ++niveau)
    g.and_positions_variables[socle::indice(niveau - 1)] = debut + g.and_nb_niveaux - niveau + 1;
  g.and_nb_affectations.fill(0);
}

/// The list is over: its values leave VARIABLE, and what a fault left in the FILEs of its levels.
void loc_abandonner(int debut) {
  while (and_nb_termes(1, loc_file_variables) > debut) and_lecture(1, loc_file_variables, -1);
  for (int niveau = 2; niveau <= and_global.and_nb_niveaux; ++niveau) and_initialiser_structure(3, niveau);
}

}  // namespace

bool and_acquisition_liste_dirigee() {
  and_global_t& g = and_global;
  acquisition a;
  g.and_nb_niveaux = 1;
  and_initialiser_structure(2, 1);
  while (a.niveau <= g.and_nb_niveaux) {
    and_lecture(0, a.niveau, 1);
    if (loc_prendre(a)) continue;
    const bool trop = g.and_nb_niveaux > loc_nb_maxi_files;
    g.and_message = trop ? vue_l1(" LISTE_DIRIGEE : NOMBRE MAXI NIVEAUX DEPASSE")
                         : vue_l1(" LISTE DIRIGEE : DERNIER TERME LU INCORRECT");
    and_traitement_erreur(1, and_classe(g.and_type_terme) == 4);
    g.and_nb_niveaux = 1;
    return false;
  }
  return true;
}

void and_evaluation_liste_dirigee() {
  and_global_t& g = and_global;
  const int debut = and_nb_termes(1, loc_file_variables);
  loc_situer_variables(debut);
  pile_niveaux and_pile_niveaux;
  bool bonne = loc_descendre(and_pile_niveaux, g.and_nb_niveaux);
  while (bonne && !and_pile_niveaux.vide()) {
    const int niveau = and_pile_niveaux.sommet();
    bonne =
        niveau == 1 ? loc_avancer_motif(and_pile_niveaux) : loc_avancer_variable(and_pile_niveaux, niveau);
  }
  if (!bonne) and_erreur_liste_dirigee(and_pile_niveaux.sommet());
  loc_abandonner(debut);
  g.and_nb_niveaux = 1;
}
