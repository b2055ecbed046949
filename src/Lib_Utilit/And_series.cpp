#include "And_series.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <initializer_list>

#include "And_files.hpp"
#include "And_global.hpp"
#include "And_termes.hpp"

using socle::vue_l1;

namespace {

constexpr int loc_compte_maxi = 100000;
constexpr double loc_ecart = 1e-4;  // of a step: nearer than that, two values are one
constexpr double loc_pas_minimal = 1e-6;

using nombres = std::span<const and_terme_t>;

/// Appends terms to the queue; false if it is full.
bool loc_ecrire(int file, std::initializer_list<std::reference_wrapper<const and_terme_t>> termes) {
  return std::all_of(termes.begin(), termes.end(), [file](const and_terme_t& t) {
    and_terme_courant() = t;
    and_ecriture(3, file);
    return and_global.and_type_terme != type_terme::erreur_capacite;
  });
}

and_serie loc_une_valeur(int file, const and_terme_t& valeur) {
  return loc_ecrire(file, {valeur}) ? and_serie::une_valeur : and_serie::file_pleine;
}

and_serie loc_refuser(vue_l1 message) {
  and_global.and_message = message;
  return and_serie::refusee;
}
and_serie loc_refuser_increment() { return loc_refuser(" PARAMETRES INCREMENTATION INCORRECTS"); }

and_terme_t loc_tete(type_terme type, int compte) {
  and_terme_t t;
  t.and_type_terme = type;
  t.and_var_entier_ou_operateur = compte;
  return t;
}

/// compte + 1 values from the first one on, then the last one.
and_serie loc_serie(int file, int compte, const and_terme_t& premier, const and_terme_t& pas,
                    const and_terme_t& dernier) {
  const and_terme_t tete = loc_tete(type_terme::tete_increment, compte);
  const bool ecrite =
      compte > 0 ? loc_ecrire(file, {tete, premier, pas, dernier}) : loc_ecrire(file, {premier, dernier});
  return ecrite ? and_serie::plusieurs : and_serie::file_pleine;
}

/// An integer from 1 to 100000, as a count must be.
bool loc_est_un_compte(const and_terme_t& n) {
  return n.and_type_terme == type_terme::entier && n.and_var_entier_ou_operateur >= 1 &&
         n.and_var_entier_ou_operateur <= loc_compte_maxi;
}

and_serie and_action_dupliquer(nombres lus, int file) {
  const and_terme_t& n = lus[0];
  const and_terme_t& x = lus[1];
  if (!loc_est_un_compte(n)) return loc_refuser(" PARAMETRES REPETITEUR INCORRECTS");
  const int compte = n.and_var_entier_ou_operateur;
  if (compte == 1) return loc_une_valeur(file, x);
  const and_terme_t tete = loc_tete(type_terme::tete_repetition, compte);
  return loc_ecrire(file, {tete, x}) ? and_serie::plusieurs : and_serie::file_pleine;
}

and_serie and_action_a(nombres lus, int file) {
  const and_terme_t& a = lus[0];
  const and_terme_t& b = lus[1];
  if (a.and_type_terme != b.and_type_terme)
    return loc_refuser(" EXTREMITES INTERVALLE INCREMENTATION INCORRECTE");
  const double d = and_valeur(b) - and_valeur(a);
  const double k = std::trunc(d);
  if (k == 0) return loc_une_valeur(file, b);
  const double compte = std::abs(k) - (std::abs(d - k) < loc_ecart ? 1 : 0);
  if (!(compte <= loc_compte_maxi)) return loc_refuser(" EXTREMITES INTERVALLE INCREMENTATION INCORRECTE");
  return loc_serie(file, static_cast<int>(compte), a, and_de_type(a.and_type_terme, k > 0 ? 1 : -1), b);
}

and_serie and_action_increment(nombres lus, int file) {
  const and_terme_t& a = lus[0];
  const and_terme_t& b = lus[1];
  const and_terme_t& s = lus[2];
  if (a.and_type_terme != b.and_type_terme || a.and_type_terme != s.and_type_terme)
    return loc_refuser_increment();
  const double pas = and_valeur(s);
  const double d = and_valeur(b) - and_valeur(a);
  if (!(std::abs(pas) > loc_pas_minimal)) return loc_refuser_increment();
  double compte = std::trunc(d / pas);
  if (!(compte >= 1 && compte <= loc_compte_maxi)) return loc_refuser_increment();
  if (std::abs(std::fmod(d, pas)) < loc_ecart * std::abs(pas)) compte -= 1;
  return loc_serie(file, static_cast<int>(compte), a, s, b);
}

/// One of n parts of the interval; false where an integer has no step of at least 1. A whole interval that a
/// single can't hold is never stepped through.
bool loc_pas_de_division(const and_terme_t& a, const and_terme_t& b, int n, and_terme_t& pas) {
  if (a.and_type_terme != type_terme::entier) {
    pas = n == 1 ? a : and_de_type(a.and_type_terme, (and_valeur(b) - and_valeur(a)) / n);
    return true;
  }
  const std::int64_t d = std::int64_t{b.and_var_entier_ou_operateur} - a.and_var_entier_ou_operateur;
  pas = and_entier(static_cast<int>(d / n));
  return pas.and_var_entier_ou_operateur != 0;
}

and_serie and_action_diviser(nombres lus, int file) {
  const and_terme_t& a = lus[0];
  const and_terme_t& b = lus[1];
  const and_terme_t& n = lus[2];
  if (a.and_type_terme != b.and_type_terme || n.and_type_terme != type_terme::entier)
    return loc_refuser_increment();
  const int parts = n.and_var_entier_ou_operateur;
  const double d = and_valeur(b) - and_valeur(a);
  and_terme_t pas;
  if (parts < 1 || parts > loc_compte_maxi + 1 || d == 0 || !std::isfinite(d) ||
      !loc_pas_de_division(a, b, parts, pas))
    return loc_refuser_increment();
  return loc_serie(file, parts - 1, a, pas, b);
}

/// a + n s, in the arithmetic of its type; false if it has no such value.
bool loc_dernier_de_repetition(const and_terme_t& a, int n, const and_terme_t& s, and_terme_t& dernier) {
  switch (a.and_type_terme) {
    case type_terme::entier: {
      const std::int64_t v = a.and_var_entier_ou_operateur + std::int64_t{n} * s.and_var_entier_ou_operateur;
      dernier = and_entier(static_cast<int>(v));
      return v == dernier.and_var_entier_ou_operateur;
    }
    case type_terme::reel_s:
      dernier = and_simple(a.and_var_reel + static_cast<float>(n) * s.and_var_reel);
      return std::isfinite(dernier.and_var_reel);
    default:
      dernier = and_double(a.and_var_reel_d + n * s.and_var_reel_d);
      return std::isfinite(dernier.and_var_reel_d);
  }
}

and_serie and_action_repeter(nombres lus, int file) {
  const and_terme_t& a = lus[0];
  const and_terme_t& n = lus[1];
  const and_terme_t& s = lus[2];
  and_terme_t dernier;
  if (a.and_type_terme != s.and_type_terme || !loc_est_un_compte(n) ||
      !loc_dernier_de_repetition(a, n.and_var_entier_ou_operateur, s, dernier))
    return loc_refuser_increment();
  return loc_serie(file, n.and_var_entier_ou_operateur - 1, a, s, dernier);
}

}  // namespace

and_serie and_developper_liste(int operateur, std::span<const and_terme_t> nombres, int file) {
  switch (operateur) {
    case and_operateur_fois: return and_action_dupliquer(nombres, file);
    case and_operateur_a: return and_action_a(nombres, file);
    case and_operateur_inc: return and_action_increment(nombres, file);
    case and_operateur_div: return and_action_diviser(nombres, file);
    case and_operateur_rep_inc: return and_action_repeter(nombres, file);
    default: return loc_une_valeur(file, nombres[0]);
  }
}
