#include "And_operations.hpp"

#include <algorithm>
#include <cmath>
#include <string>

#include "And_files.hpp"
#include "And_termes.hpp"
#include "Arithmetique.hpp"
#include "Edition.hpp"

using socle::vue_l1;

namespace {

constexpr int loc_file_operandes = 3;  // LISTE OPERANDE

bool loc_quotient(int a, int b, int& resultat) {
  if (b == 0) return false;
  const auto q = static_cast<double>(static_cast<float>(a) / static_cast<float>(b));
  resultat = socle::tronquer(q);
  return and_tient_dans_un_entier(q);
}

bool loc_operation_entiere(int operateur, int a, int b, int& resultat) {
  switch (operateur) {
    case and_operateur_plus: resultat = socle::somme_32(a, b); return true;
    case and_operateur_moins: resultat = socle::difference_32(a, b); return true;
    case and_operateur_fois: resultat = socle::produit_32(a, b); return true;
    case and_operateur_divise: return loc_quotient(a, b, resultat);
    default: return and_puissance_entiere(a, b, resultat);
  }
}

/// In single or in double precision. A division by zero gives no finite value either.
template <class reel>
bool loc_operation_reelle(int operateur, reel a, reel b, reel& resultat) {
  switch (operateur) {
    case and_operateur_plus: resultat = a + b; break;
    case and_operateur_moins: resultat = a - b; break;
    case and_operateur_fois: resultat = a * b; break;
    case and_operateur_divise:
      if (b == 0) return false;
      resultat = a / b;
      break;
    default: resultat = std::pow(a, b); break;
  }
  return std::isfinite(resultat);
}

bool loc_operation_numerique(int operateur, const and_terme_t& a, const and_terme_t& b, and_terme_t& r) {
  switch (a.and_type_terme) {
    case type_terme::entier:
      r = and_entier(0);
      return loc_operation_entiere(operateur, a.and_var_entier_ou_operateur, b.and_var_entier_ou_operateur,
                                   r.and_var_entier_ou_operateur);
    case type_terme::reel_s:
      r = and_simple(0);
      return loc_operation_reelle(operateur, a.and_var_reel, b.and_var_reel, r.and_var_reel);
    default:
      r = and_double(0);
      return loc_operation_reelle(operateur, a.and_var_reel_d, b.and_var_reel_d, r.and_var_reel_d);
  }
}

/// What the right side adds to a string: the content of another one, written in the quotes of the left one,
/// or an integer of at most ten characters.
bool loc_suffixe(const and_terme_t& droite, char quote, std::string& suffixe) {
  if (droite.and_type_terme == type_terme::entier) {
    suffixe = socle::edite(socle::I{10}, droite.and_var_entier_ou_operateur);
    std::erase(suffixe, ' ');
    return suffixe.front() != '*';
  }
  if (droite.and_type_terme != type_terme::chaine) return false;
  const std::string_view brute = and_texte(droite);
  if (brute.size() < 3) return true;  // an empty string
  lex_ligne contenu{};
  const std::size_t n = and_sans_quotes(brute, contenu);
  for (const char c : std::string_view(contenu.data(), n)) {
    suffixe += c;
    if (c == quote) suffixe += c;
  }
  return true;
}

bool loc_concatener(int operateur, const and_terme_t& a, const and_terme_t& b, and_terme_t& r) {
  if (operateur != and_operateur_plus || a.and_type_terme != type_terme::chaine) return false;
  std::string chaine(and_texte(a));
  const char quote = chaine.front();
  std::string suffixe;
  if (!loc_suffixe(b, quote, suffixe)) return false;
  chaine.insert(chaine.size() - 1, suffixe);
  r = and_chaine(chaine);
  return chaine.size() <= and_lg_chaine;
}

and_terme_t loc_depiler() {
  and_lecture(1, loc_file_operandes, -1);
  return and_terme_courant();
}

bool loc_calculer(int operateur, and_terme_t& a, and_terme_t& b, and_terme_t& r) {
  const type_terme type = std::max(a.and_type_terme, b.and_type_terme);
  if (type == type_terme::chaine) {
    and_global.and_message = vue_l1(" OPERANDES DE CONCATENATION INCORRECTS DANS EXPRESSION");
    return loc_concatener(operateur, a, b, r);
  }
  and_global.and_message = vue_l1(" SYNTAXE EXPRESSION INCORRECTE");
  and_convertir(a, type);
  and_convertir(b, type);
  return loc_operation_numerique(operateur, a, b, r);
}

}  // namespace

bool and_action_operation(int operateur) {
  and_terme_t b = loc_depiler();
  and_terme_t a = loc_depiler();
  and_terme_t resultat;
  if (!loc_calculer(operateur, a, b, resultat)) return false;
  and_terme_courant() = resultat;
  and_ecriture(1, loc_file_operandes);
  return true;
}

void and_convertir(and_terme_t& nombre, type_terme type) {
  if (nombre.and_type_terme == type_terme::entier && type > type_terme::entier)
    nombre = and_simple(static_cast<float>(nombre.and_var_entier_ou_operateur));
  if (nombre.and_type_terme == type_terme::reel_s && type > type_terme::reel_s)
    nombre = and_double(static_cast<double>(nombre.and_var_reel));
}

bool and_tient_dans_un_entier(double v) { return v > -2147483649.0 && v < 2147483648.0; }

bool and_puissance_entiere(int x, int n, int& resultat) {
  if (n < 0) {
    const bool paire = n % 2 == 0;
    resultat = 0;
    if (x == 1) resultat = 1;
    if (x == -1) resultat = paire ? 1 : -1;
    return x != 0;
  }
  resultat = 1;
  for (int base = x; n > 0; n /= 2, base = socle::produit_32(base, base))
    if (n % 2 != 0) resultat = socle::produit_32(resultat, base);
  return true;
}
