#include "And_langage.hpp"

#include "And_files.hpp"
#include "And_global.hpp"
#include "Arithmetique.hpp"

namespace {

/// The number behind a sign, with the sign applied; it is no longer as it was typed, and loses its text.
void loc_mutation_operande(int signe) {
  and_global_t& g = and_global;
  and_lecture(0, 1, 1);
  if (and_operande(g.and_type_terme) != 16) {
    g.and_message = socle::vue_l1(" OPERATEUR UNAIRE SUIVI D UN OPERANDE NON NUMERIQUE");
    and_traitement_erreur(1, and_classe(g.and_type_terme) == 4);
    return;
  }
  if (signe == and_operateur_moins) {
    g.and_var_entier_ou_operateur = socle::difference_32(0, g.and_var_entier_ou_operateur);
    g.and_var_reel = -g.and_var_reel;
    g.and_var_reel_d = -g.and_var_reel_d;
  }
  g.and_lg_terme = 0;
  and_ecriture(3, 1);
}

}  // namespace

void and_analyse_unite_syntaxique() {
  const and_global_t& g = and_global;
  and_initialiser_structure(2, 1);
  and_lecture(0, 1, 1);
  const bool signe =
      g.and_type_terme == type_terme::operateur && (g.and_var_entier_ou_operateur == and_operateur_plus ||
                                                    g.and_var_entier_ou_operateur == and_operateur_moins);
  if (signe)
    loc_mutation_operande(g.and_var_entier_ou_operateur);
  else
    and_ecriture(3, 1);
}

void and_traitement_erreur(int niveau, bool and_autre_erreur) {
  and_global_t& g = and_global;
  if (and_autre_erreur) and_ecriture(3, niveau);
  g.and_type_terme = type_terme::erreur_syntaxe;
  g.and_var_entier_ou_operateur = niveau;
  g.and_var_chaine = g.and_message.entier();
  g.and_lg_terme = and_lg_message;
  and_ecriture(3, niveau);
}
