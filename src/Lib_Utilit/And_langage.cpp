#include "And_langage.hpp"

#include "And_files.hpp"
#include "And_global.hpp"
#include "And_liste_dirigee.hpp"
#include "And_liste_termes.hpp"
#include "And_variables.hpp"

namespace {

void loc_terme_d_erreur(type_terme type, int code) {
  and_global_t& g = and_global;
  g.and_type_terme = type;
  g.and_var_entier_ou_operateur = code;
  g.and_var_chaine = g.and_message.entier();
  g.and_lg_terme = and_lg_message;
}

/// What "<" opened: an assignment if a name follows, a directed list otherwise.
void loc_analyse_crochet() {
  and_lecture(0, 1, 1);
  const type_terme type = and_global.and_type_terme;
  if (type == type_terme::nom) {
    and_analyse_affectation();
  } else if (and_classe(type) == 4) {
    and_ecriture_erreur(1);
  } else {
    and_reconsulter(0, 1);
    if (and_acquisition_liste_dirigee()) and_evaluation_liste_dirigee();
  }
}

}  // namespace

void and_analyse_unite_syntaxique() {
  const and_global_t& g = and_global;
  and_initialiser_structure(2, 1);
  and_lecture(0, 1, 1);
  if (and_est_operateur(g, and_operateur_inferieur)) {
    loc_analyse_crochet();
  } else if (and_classe(g.and_type_terme) == 1 || g.and_type_terme == type_terme::operateur) {
    and_reconsulter(0, 1);
    and_analyse_liste_termes(0, 1);
  } else {
    and_ecriture(3, 1);
  }
}

void and_traitement_erreur(int niveau, bool and_autre_erreur) {
  if (and_autre_erreur) and_ecriture_erreur(niveau);
  loc_terme_d_erreur(type_terme::erreur_syntaxe, niveau);
  and_ecriture_erreur(niveau);
}

void and_traitement_depassement(int niveau, int code) {
  loc_terme_d_erreur(type_terme::erreur_capacite, code);
  if (niveau != 0) and_ecriture_erreur(niveau);
}

and_resultat and_depassement_liste(int niveau) {
  and_global.and_message =
      socle::vue_l1(" ERREUR DANS ANALYSE LISTE TERMES ( TERME ,  INCREMENTATEUR OU  REPETITEUR) ");
  and_traitement_depassement(niveau, 300 + niveau);
  return and_resultat::echec;
}
