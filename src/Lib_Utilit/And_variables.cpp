#include "And_variables.hpp"

#include "And_files.hpp"
#include "And_langage.hpp"
#include "And_liste_termes.hpp"
#include "And_termes.hpp"
#include "Arithmetique.hpp"
#include "Lxs_lexica.hpp"

using socle::concat;
using socle::vue_l1;
using nom_variable = socle::texte<and_lg_nom_variable>;

namespace {

constexpr int loc_file_variables = 2;  // LISTE VARIABLE

/// Slot of the name among those from `debut` to `fin`; 0 if it isn't there. All characters are compared: the
/// names are padded alike.
int loc_chercher(const nom_variable& nom, int debut, int fin) {
  const auto& noms = and_global.and_noms_variables;
  for (int i = debut; i <= fin; ++i)
    if (noms[socle::indice(i)].entier() == nom.entier()) return i;
  return 0;
}

int loc_derniere_globale() { return and_premiere_globale + and_global.and_nb_variables - 1; }

void loc_refuser(vue_l1 message) {
  const bool erreur = and_classe(and_global.and_type_terme) == 4;
  and_global.and_message = message;
  and_initialiser_structure(3, 1);
  and_traitement_erreur(1, erreur);
}

/// The value behind "=" alone in FILE 1 becomes the current term; false after an error term.
bool loc_lire_valeur() {
  const and_resultat resultat = and_analyse_liste_termes(0, 1);
  if (resultat == and_resultat::echec) return false;
  if (resultat == and_resultat::une_valeur) {
    and_lecture(3, 1, -1);
    if (and_operande(and_global.and_type_terme) == 16) return true;
  }
  loc_refuser(" ERREUR AFFECTATION : TERME AFFECTE NON NUMERIQUE");
  return false;
}

/// The current term goes into VARIABLE and the closing ">" follows; false after an error term.
bool loc_ranger_valeur() {
  const and_global_t& g = and_global;
  and_ecriture(1, loc_file_variables);
  const bool rangee = g.and_type_terme != type_terme::erreur_capacite;
  if (rangee) and_lecture(0, 1, 1);
  if (!rangee || !and_est_operateur(g, and_operateur_superieur)) {
    loc_refuser(" ERREUR SYNTAXIQUE DANS AFFECTATION");
    return false;
  }
  if (and_nb_termes(1, loc_file_variables) <= and_nb_maxi_affectations) return true;
  loc_refuser(" ERREUR AFFECTATION : NOMBRE AFFECTATIONS >  NB_MAXI_VARIABLES_GLOBALES");
  return false;
}

}  // namespace

void and_analyse_affectation() {
  and_global_t& g = and_global;
  if (g.and_lg_terme > and_lg_nom_variable) {
    loc_refuser(" ERREUR AFFECTATION : LONGUEUR DE VARIABLE INCORRECTE");
    return;
  }
  and_mettre_nom_en_majuscules();
  const nom_variable nom(and_texte(g));
  int position = loc_chercher(nom, and_premiere_globale, loc_derniere_globale());
  const bool nouvelle = position == 0;
  if (nouvelle) position = loc_derniere_globale() + 1;
  if (position > and_nb_cases_variables) {
    loc_refuser(" ERREUR AFFECTATION : NOMBRE VARIABLES >  NB_MAXI_VARIABLES_GLOBALES");
    return;
  }
  and_lecture(0, 1, 1);
  if (!and_est_operateur(g, and_operateur_egal)) {
    loc_refuser(" ERREUR SYNTAXIQUE DANS AFFECTATION");
    return;
  }
  if (!loc_lire_valeur() || !loc_ranger_valeur()) return;
  g.and_noms_variables[socle::indice(position)] = nom;
  g.and_positions_variables[socle::indice(position)] = and_nb_termes(1, loc_file_variables);
  if (nouvelle) ++g.and_nb_variables;
}

bool and_action_variable(int niveau) {
  and_global_t& g = and_global;
  int position = 0;
  if (g.and_lg_terme <= and_lg_nom_variable) {
    const nom_variable nom(and_texte(g));
    position = loc_chercher(nom, niveau, g.and_nb_niveaux - 1);
    if (position == 0) position = loc_chercher(nom, and_premiere_globale, loc_derniere_globale());
  }
  if (position == 0) {
    g.and_message = concat({and_texte(g), " : VARIABLE INCORRECTE DANS EXPRESSION"});
    return false;
  }
  and_valeur_de_variable(position);
  return true;
}

bool and_nb_valeurs_prises(const and_terme_t& chaine, int& compte) {
  and_global_t& g = and_global;
  lex_ligne contenu{};
  const std::size_t n = and_sans_quotes(and_texte(chaine), contenu);
  if (n > and_lg_nom_variable) return false;
  lxs_z_majuscule({contenu.data(), n});
  const int position =
      loc_chercher(nom_variable(std::string_view(contenu.data(), n)), 1, g.and_nb_niveaux - 1);
  if (position == 0) return false;
  compte = g.and_nb_affectations[socle::indice(position)];
  return true;
}

void and_valeur_de_variable(int position) {
  and_consulter(1, loc_file_variables, and_global.and_positions_variables[socle::indice(position)]);
  and_consulter(1, loc_file_variables, 0);
}
