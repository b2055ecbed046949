#include "And_termes.hpp"

#include <algorithm>

#include "Arithmetique.hpp"
#include "Lxs_lexica.hpp"

and_terme_t and_entier(int valeur) {
  and_terme_t t;
  t.and_type_terme = type_terme::entier;
  t.and_var_entier_ou_operateur = valeur;
  return t;
}

and_terme_t and_simple(float valeur) {
  and_terme_t t;
  t.and_type_terme = type_terme::reel_s;
  t.and_var_reel = valeur;
  return t;
}

and_terme_t and_double(double valeur) {
  and_terme_t t;
  t.and_type_terme = type_terme::reel_d;
  t.and_var_reel_d = valeur;
  return t;
}

and_terme_t and_de_type(type_terme type, double valeur) {
  switch (type) {
    case type_terme::entier: return and_entier(socle::tronquer(valeur));
    case type_terme::reel_s: return and_simple(static_cast<float>(valeur));
    default: return and_double(valeur);
  }
}

and_terme_t and_chaine(std::string_view avec_quotes) {
  and_terme_t t;
  t.and_type_terme = type_terme::chaine;
  t.and_var_chaine = avec_quotes;
  t.and_lg_terme = static_cast<int>(avec_quotes.size());
  return t;
}

double and_valeur(const and_terme_t& nombre) {
  switch (nombre.and_type_terme) {
    case type_terme::entier: return nombre.and_var_entier_ou_operateur;
    case type_terme::reel_s: return static_cast<double>(nombre.and_var_reel);
    default: return nombre.and_var_reel_d;
  }
}

void and_mettre_nom_en_majuscules() {
  const std::string_view nom = and_texte(and_global);
  lex_ligne tampon{};
  std::copy(nom.begin(), nom.end(), tampon.begin());
  lxs_z_majuscule({tampon.data(), nom.size()});
  and_global.and_var_chaine = std::string_view(tampon.data(), nom.size());
}

std::size_t and_sans_quotes(std::string_view avec_quotes, lex_ligne& contenu) {
  contenu.front() = ' ';
  if (avec_quotes.size() < 3) return 1;
  const char quote = avec_quotes.front();
  std::size_t n = 0;
  for (std::size_t i = 1; i + 1 < avec_quotes.size(); ++i) {
    contenu[n++] = avec_quotes[i];
    if (avec_quotes[i] == quote && avec_quotes[i + 1] == quote) ++i;
  }
  return n;
}

void and_dequoter_chaine_donnee() {
  lex_ligne contenu{};
  const std::size_t n = and_sans_quotes(and_texte(and_global), contenu);
  and_global.and_var_chaine = std::string_view(contenu.data(), n);
  and_global.and_lg_terme = static_cast<int>(n);
}
