#include "And_fonctions.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <limits>
#include <type_traits>

#include "And_files.hpp"
#include "And_global.hpp"
#include "And_operations.hpp"
#include "And_termes.hpp"
#include "And_variables.hpp"

using socle::concat;
using socle::vue_l1;

namespace {

constexpr int loc_file_operandes = 3;  // LISTE OPERANDE
constexpr int loc_nb_maxi_arguments = 3;

enum class fonction : int {
  sinus,
  cosinus,
  arc_tangente,
  exponentielle,
  tangente,
  arc_sinus,
  arc_cosinus,
  logarithme,
  absolue,
  entiere,
  reelle,
  double_precision,
  x_clothoide,
  y_clothoide,
  compteur,
  maximum,
  minimum
};

/// What a function takes: numbers of that type, or one string.
struct description {
  socle::texte<5> nomfon;
  int nbargt;
  bool entier, reel_s, reel_d, chaine;
};

/// In the order of `fonction`.
constexpr std::array<description, 17> loc_fonctions{{{"SIN", 1, false, true, true, false},
                                                     {"COS", 1, false, true, true, false},
                                                     {"ATAN", 1, false, true, true, false},
                                                     {"EXP", 1, false, true, true, false},
                                                     {"TAN", 1, false, true, true, false},
                                                     {"ASIN", 1, false, true, true, false},
                                                     {"ACOS", 1, false, true, true, false},
                                                     {"LOG", 1, false, true, true, false},
                                                     {"ABS", 1, true, true, true, false},
                                                     {"ENT", 1, true, true, true, false},
                                                     {"REEL", 1, true, true, true, false},
                                                     {"DBLE", 1, true, true, true, false},
                                                     {"XCLOT", 3, false, true, true, false},
                                                     {"YCLOT", 3, false, true, true, false},
                                                     {"CPTR", 1, false, false, false, true},
                                                     {"MAX", 2, true, true, true, false},
                                                     {"MIN", 2, true, true, true, false}}};

/// A call: its arguments are of one type.
struct appel {
  fonction f = fonction::sinus;
  std::array<and_terme_t, loc_nb_maxi_arguments> arguments;
};

enum class issue { valeur, refus, sans_resultat };

bool loc_accepte(const description& d, type_terme type) {
  switch (type) {
    case type_terme::entier: return d.entier;
    case type_terme::reel_s: return d.reel_s;
    case type_terme::reel_d: return d.reel_d;
    default: return d.chaine;
  }
}

template <class reel>
and_terme_t loc_terme(reel v) {
  if constexpr (std::is_same_v<reel, float>)
    return and_simple(v);
  else
    return and_double(v);
}

/// Where a function has no value that makes sense: near the pole of the tangent, near the zero of the
/// logarithm.
template <class reel>
bool loc_hors_domaine(fonction f, reel x) {
  constexpr reel seuil = std::is_same_v<reel, float> ? reel(1e-6F) : reel(1e-10);
  switch (f) {
    case fonction::tangente: return std::abs(x - reel(1.5707963)) <= seuil;
    case fonction::arc_sinus:
    case fonction::arc_cosinus: return std::abs(x) > 1;
    case fonction::logarithme: return !(std::abs(x) > seuil);
    default: return false;
  }
}

template <class reel>
reel loc_valeur(fonction f, reel x) {
  switch (f) {
    case fonction::sinus: return std::sin(x);
    case fonction::cosinus: return std::cos(x);
    case fonction::arc_tangente: return std::atan(x);
    case fonction::exponentielle: return std::exp(x);
    case fonction::tangente: return std::tan(x);
    case fonction::arc_sinus: return std::asin(x);
    case fonction::arc_cosinus: return std::acos(x);
    case fonction::logarithme: return std::log(x);
    default: return std::abs(x);
  }
}

/// Functions of one real whose result is of its type.
template <class reel>
issue loc_fonction_reelle(fonction f, reel x, and_terme_t& resultat) {
  if (loc_hors_domaine(f, x)) return issue::refus;
  const reel v = loc_valeur(f, x);
  resultat = loc_terme(v);
  return std::isfinite(v) ? issue::valeur : issue::sans_resultat;
}

issue loc_absolue(int x, and_terme_t& resultat) {
  if (x == std::numeric_limits<int>::min()) return issue::sans_resultat;
  resultat = and_entier(std::abs(x));
  return issue::valeur;
}

/// ENT, REEL, DBLE: the number in another type.
issue loc_conversion(fonction f, const and_terme_t& x, and_terme_t& resultat) {
  const double v = and_valeur(x);
  if (f == fonction::entiere && !and_tient_dans_un_entier(v)) return issue::sans_resultat;
  if (f == fonction::reelle && std::abs(v) > static_cast<double>(std::numeric_limits<float>::max()))
    return issue::sans_resultat;
  switch (f) {
    case fonction::entiere: resultat = and_de_type(type_terme::entier, v); break;
    case fonction::reelle: resultat = and_de_type(type_terme::reel_s, v); break;
    default: resultat = and_double(v); break;
  }
  return issue::valeur;
}

issue loc_clothoide(const appel& c, and_terme_t& resultat) {
  double x = 0;
  double y = 0;
  bool erreur = false;
  clotho(and_valeur(c.arguments[0]), and_valeur(c.arguments[1]), and_valeur(c.arguments[2]), x, y, erreur);
  if (erreur) return issue::refus;
  const double v = c.f == fonction::x_clothoide ? x : y;
  const type_terme type = c.arguments[0].and_type_terme;
  if (!std::isfinite(v) ||
      (type == type_terme::reel_s && std::abs(v) > static_cast<double>(std::numeric_limits<float>::max())))
    return issue::sans_resultat;
  resultat = and_de_type(type, v);
  return issue::valeur;
}

issue loc_compteur(const and_terme_t& nom, and_terme_t& resultat) {
  int compte = 0;
  if (!and_nb_valeurs_prises(nom, compte)) return issue::refus;
  resultat = and_entier(compte);
  return issue::valeur;
}

issue loc_appliquer(const appel& c, and_terme_t& resultat) {
  const and_terme_t& x = c.arguments[0];
  switch (c.f) {
    case fonction::entiere:
    case fonction::reelle:
    case fonction::double_precision: return loc_conversion(c.f, x, resultat);
    case fonction::x_clothoide:
    case fonction::y_clothoide: return loc_clothoide(c, resultat);
    case fonction::compteur: return loc_compteur(x, resultat);
    case fonction::maximum:
      resultat = and_valeur(x) >= and_valeur(c.arguments[1]) ? x : c.arguments[1];
      break;
    case fonction::minimum:
      resultat = and_valeur(x) <= and_valeur(c.arguments[1]) ? x : c.arguments[1];
      break;
    default:
      if (x.and_type_terme == type_terme::entier) return loc_absolue(x.and_var_entier_ou_operateur, resultat);
      if (x.and_type_terme == type_terme::reel_s) return loc_fonction_reelle(c.f, x.and_var_reel, resultat);
      return loc_fonction_reelle(c.f, x.and_var_reel_d, resultat);
  }
  resultat.and_lg_terme = 0;
  return issue::valeur;
}

/// Takes the arguments off, last first; those beyond what any function takes are dropped.
type_terme loc_prendre_arguments(appel& c, int nombre) {
  type_terme type = type_terme::entier;
  for (int i = nombre; i >= 1; --i) {
    and_lecture(1, loc_file_operandes, -1);
    type = std::max(type, and_global.and_type_terme);
    if (i <= loc_nb_maxi_arguments) c.arguments[static_cast<std::size_t>(i - 1)] = and_terme_courant();
  }
  return type;
}

void loc_uniformiser(appel& c, int nombre, type_terme type) {
  if (type == type_terme::chaine) return;
  for (int i = 0; i < nombre; ++i) and_convertir(c.arguments[static_cast<std::size_t>(i)], type);
}

bool loc_refuser(std::initializer_list<vue_l1> message) {
  and_global.and_message = concat(message);
  return false;
}

// clang-format off
/// The point at m.s, by series, with t the abscissa from the point of inflection over a √π and lo that of the
/// origin; at t the tangent has turned by π t²/2, hence
///   ∫cos = a √π Σ (-1)^n (π/2)^(2n)   t^(4n+1) / ((2n)!   (4n+1))
///   ∫sin = a √π Σ (-1)^n (π/2)^(2n+1) t^(4n+3) / ((2n+1)! (4n+3))
// clang-format on
void loc_serie_de_fresnel(clotho_t& m) {
  constexpr double rpi = 1.772453850905518;  // √π
  constexpr double pi = 3.1415926535898;
  constexpr double demi_pi = 1.5707963267949;
  double so = m.a * m.a / m.r;
  if (std::abs(so) <= 0.001) so = 0;
  const double to = so / m.r / 2;
  const double t = (m.s + so) / m.a / rpi;
  const double lo = so / m.a / rpi;
  const auto difference = [t, lo](int exposant) { return std::pow(t, exposant) - std::pow(lo, exposant); };
  double dx = m.a * (t - lo) * rpi;
  double dy = pi * m.a * rpi * difference(3) / 6;
  double signe = 1;
  double fact2n = 1;
  int n = 0;
  double longueur = 0;
  do {
    ++n;
    signe = -signe;
    fact2n *= n * 2.0 * (2 * n - 1);
    const double ddx =
        std::pow(demi_pi, 2 * n) * m.a * rpi * signe * difference(4 * n + 1) / (4 * n + 1) / fact2n;
    const double ddy = std::pow(demi_pi, 2 * n + 1) * m.a * rpi * signe * difference(4 * n + 3) /
                       (4 * n + 3) / fact2n / (2 * n + 1);
    dx += ddx;
    dy += ddy;
    longueur = std::hypot(ddx, ddy);
  } while (n <= 10 && !(longueur < 1e-6));
  m.erreur = n > 10;
  m.x = std::sin(to) * dy + std::cos(to) * dx;
  m.y = std::cos(to) * dy - std::sin(to) * dx;
}

}  // namespace

bool and_action_fonction(int nb_arguments) {
  and_global_t& g = and_global;
  appel c;
  const type_terme type = loc_prendre_arguments(c, nb_arguments);
  and_lecture(1, loc_file_operandes, -1);
  const and_terme_t nom = and_terme_courant();
  const auto* const trouvee =
      std::find_if(loc_fonctions.begin(), loc_fonctions.end(),
                   [&nom](const description& d) { return d.nomfon.utile() == and_texte(nom); });
  if (trouvee == loc_fonctions.end()) return loc_refuser({" FONCTION ", and_texte(nom), " NON DEFINIE "});
  c.f = fonction{static_cast<int>(trouvee - loc_fonctions.begin())};

  issue resultat = issue::refus;
  if (nb_arguments == trouvee->nbargt && loc_accepte(*trouvee, type)) {
    loc_uniformiser(c, nb_arguments, type);
    resultat = loc_appliquer(c, g);
  }
  if (resultat == issue::refus)
    return loc_refuser({" ARGUMENT(S) DE ", and_texte(nom), " INCORRECT(S) (TYPE ,NOMBRE OU VALEUR)"});
  if (resultat == issue::sans_resultat) return loc_refuser({" SYNTAXE EXPRESSION INCORRECTE"});
  and_ecriture(1, loc_file_operandes);
  return true;
}

void clotho(double a, double r, double s, double& x, double& y, bool& erreur) {
  clotho_t& m = and_global.dernier_clotho;
  x = y = 0;
  erreur = !(a > 1e-6 && std::abs(r) > 1e-6);
  if (erreur) return;
  if (!m.connue || m.a != a || m.r != r || m.s != s) {
    m = {.connue = true, .a = a, .r = r, .s = s};
    loc_serie_de_fresnel(m);
  }
  x = m.x;
  y = m.y;
  erreur = m.erreur;
}
