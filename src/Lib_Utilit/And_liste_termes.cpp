#include "And_liste_termes.hpp"

#include <array>
#include <span>

#include "And_expressions.hpp"
#include "And_files.hpp"
#include "And_global.hpp"
#include "And_series.hpp"
#include "And_termes.hpp"
#include "Arithmetique.hpp"

using socle::vue_l1;

namespace {

/// What to do with a term: 3 take it in, 5 the list ends before it, 6 error, 10 a sign or a bracket.
enum class action : int { prendre = 3, finir = 5, erreur = 6, ouvrir = 10 };

// clang-format off
/// By the operator before and the kind of the term.
/// Columns:                                                    +-  A   REP DIV INC *   (   )   num other
constexpr std::array<std::array<int, 10>, 5> apres_operande{{{{5,  3,  3,  6,  6,  3,  5,  6,  5,  5}},   // none
                                                             {{5,  6,  6,  3,  3,  6,  5,  6,  5,  5}},   // A
                                                             {{6,  6,  6,  6,  3,  6,  6,  6,  6,  6}},   // REP
                                                             {{5,  6,  6,  6,  6,  6,  5,  6,  5,  5}},   // INC, DIV
                                                             {{5,  6,  6,  6,  6,  6,  5,  6,  5,  5}}}}; // *
constexpr std::array<std::array<int, 10>, 5> apres_operateur{{{{10, 6,  6,  6,  6,  6,  10, 6,  3,  5}},
                                                              {{10, 6,  6,  6,  6,  6,  10, 6,  3,  6}},
                                                              {{10, 6,  6,  6,  6,  6,  10, 6,  3,  6}},
                                                              {{10, 6,  6,  6,  6,  6,  10, 6,  3,  6}},
                                                              {{10, 6,  6,  6,  6,  6,  10, 6,  3,  6}}}};
// clang-format on

struct liste_termes {
  int classe = 0;
  int file = 1;
  int and_op_precedent = and_operateur_debut;
  bool apres_un_operande = false;  // and_type_terme_precedent
  std::size_t nb_nombres = 0;      // of and_nombres_liste that were taken in so far

  [[nodiscard]] std::span<const and_terme_t> nombres() const {
    return {and_global.and_nombres_liste.data(), nb_nombres};
  }
};

int loc_ligne(int operateur) {
  switch (operateur) {
    case and_operateur_debut: return 1;
    case and_operateur_a: return 2;
    case and_operateur_rep: return 3;
    case and_operateur_fois: return 5;
    default: return 4;
  }
}

int loc_colonne(const and_terme_t& t) {
  if (and_classe(t.and_type_terme) == 4) return 8;
  if (and_operande(t.and_type_terme) == 16) return 9;
  if (t.and_type_terme != type_terme::operateur) return 10;
  switch (t.and_var_entier_ou_operateur) {
    case and_operateur_plus:
    case and_operateur_moins: return 1;
    case and_operateur_a: return 2;
    case and_operateur_rep: return 3;
    case and_operateur_div: return 4;
    case and_operateur_inc: return 5;
    case and_operateur_fois: return 6;
    case and_operateur_ouvrante: return 7;
    case and_operateur_fermante: return 8;
    default: return 10;
  }
}

action and_precedence_liste_termes(const liste_termes& l) {
  const auto& table = l.apres_un_operande ? apres_operande : apres_operateur;
  return action{table[socle::indice(loc_ligne(l.and_op_precedent))][socle::indice(loc_colonne(and_global))]};
}

/// A number that no list operator has taken yet stands in front of the fault as a term of its own; those of a
/// list that is not whole are no terms.
and_resultat loc_echec(const liste_termes& l, vue_l1 message) {
  const and_terme_t faute = and_terme_courant();
  if (l.and_op_precedent == and_operateur_debut && l.apres_un_operande)
    and_developper_liste(l.and_op_precedent, l.nombres(), l.file);
  and_terme_courant() = faute;
  and_global.and_message = message;
  and_traitement_erreur(l.file, and_classe(faute.and_type_terme) == 4);
  return and_resultat::echec;
}

and_resultat loc_erreur_dans_la_liste(const liste_termes& l) {
  return loc_echec(l, " ERREUR DANS ANALYSE LISTE TERMES ( TERME , INCREMENTATEUR OU  REPETITEUR) ");
}

void loc_lire(const liste_termes& l) { and_consulter(l.classe, l.file, 0); }

/// The number behind a sign becomes the current term, with the sign applied; it is no longer as it was typed,
/// and loses its text.
bool and_mutation_operande(const liste_termes& l, int signe) {
  and_global_t& g = and_global;
  loc_lire(l);
  if (and_operande(g.and_type_terme) != 16) return false;
  if (signe == and_operateur_moins) {
    g.and_var_entier_ou_operateur = socle::difference_32(0, g.and_var_entier_ou_operateur);
    g.and_var_reel = -g.and_var_reel;
    g.and_var_reel_d = -g.and_var_reel_d;
  }
  g.and_lg_terme = 0;
  return true;
}

/// An operator becomes the one before; a number waits for the end of the list.
void loc_prendre(liste_termes& l) {
  const and_global_t& g = and_global;
  l.apres_un_operande = g.and_type_terme != type_terme::operateur;
  if (l.apres_un_operande) {
    and_global.and_nombres_liste[l.nb_nombres++] = and_terme_courant();
  } else {
    const bool inc_apres_rep = l.and_op_precedent == and_operateur_rep;
    l.and_op_precedent = inc_apres_rep ? and_operateur_rep_inc : g.and_var_entier_ou_operateur;
  }
  loc_lire(l);
}

and_resultat loc_conclure(const liste_termes& l, and_serie serie) {
  switch (serie) {
    case and_serie::une_valeur: return and_resultat::une_valeur;
    case and_serie::plusieurs: return and_resultat::plusieurs;
    case and_serie::file_pleine: return and_depassement_liste(l.file);
    default: and_traitement_erreur(l.file, false); return and_resultat::echec;
  }
}

/// The list is whole: the term just looked at belongs to what follows. A term that is no number stands for
/// itself.
and_resultat loc_finir(const liste_termes& l) {
  if (l.apres_un_operande) {
    and_reconsulter(l.classe, l.file);
    return loc_conclure(l, and_developper_liste(l.and_op_precedent, l.nombres(), l.file));
  }
  and_ecriture(3, l.file);
  const bool ecrit = and_global.and_type_terme != type_terme::erreur_capacite;
  return loc_conclure(l, ecrit ? and_serie::une_valeur : and_serie::file_pleine);
}

/// A bracket: several values make a whole unit, one becomes the current term.
and_resultat loc_parenthese(const liste_termes& l) {
  const int nb_termes = and_nb_termes(3, l.file);
  const and_resultat resultat = and_analyse_liste_expressions(l.classe, l.file);
  if (resultat == and_resultat::une_valeur) and_lecture(3, l.file, -1);
  if (resultat != and_resultat::plusieurs || l.and_op_precedent == and_operateur_debut) return resultat;
  while (and_nb_termes(3, l.file) > nb_termes) and_lecture(3, l.file, -1);
  return loc_erreur_dans_la_liste(l);
}

}  // namespace

and_resultat and_analyse_liste_termes(int classe, int file) {
  const and_global_t& g = and_global;
  liste_termes l;
  l.classe = classe;
  l.file = file;
  for (loc_lire(l);;) switch (and_precedence_liste_termes(l)) {
      case action::prendre: loc_prendre(l); break;
      case action::finir: return loc_finir(l);
      case action::ouvrir:
        if (!and_est_operateur(g, and_operateur_ouvrante)) {
          if (!and_mutation_operande(l, g.and_var_entier_ou_operateur))
            return loc_echec(l, " OPERATEUR UNAIRE SUIVI D UN OPERANDE NON NUMERIQUE");
        } else if (const and_resultat r = loc_parenthese(l); r != and_resultat::une_valeur) {
          return r;
        }
        break;
      default:
        if (and_classe(g.and_type_terme) == 4) return loc_erreur_dans_la_liste(l);
        return loc_echec(l, " ERREUR DE PRECEDENCE DANS REPETITEUR OU INCREMENTATEUR");
    }
}
