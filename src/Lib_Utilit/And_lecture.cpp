#include "And_lecture.hpp"

#include <algorithm>
#include <string_view>

#include "And_files.hpp"
#include "And_global.hpp"
#include "Lex_analex.hpp"
#include "Lxs_lexica.hpp"

using socle::vue_l1;

namespace {

/// Keywords written with an underscore at their end, in upper case: names all the same.
constexpr std::array<std::string_view, 4> loc_mots_soulignes{"FIN_", "ELS_", "NON_", "REC_"};

/// The error term: 20 columns of what was read, and the message.
void loc_erreur(type_terme type, int numero, std::string_view lu, vue_l1 message) {
  and_global_t& g = and_global;
  g.and_type_terme = type;
  g.and_var_entier_ou_operateur = numero;
  std::array<char, and_lg_message> ligne{};
  ligne.fill(' ');
  std::copy_n(lu.begin(), std::min<std::size_t>(lu.size(), 20), ligne.begin());
  const std::string_view m = message.octets();
  std::copy_n(m.begin(), std::min<std::size_t>(m.size(), and_lg_message - 20), ligne.begin() + 20);
  g.and_var_chaine = std::string_view(ligne.data(), ligne.size());
  g.and_lg_terme = and_lg_message;
}

void loc_operateur(int numero) {
  and_global.and_type_terme = type_terme::operateur;
  and_global.and_var_entier_ou_operateur = numero;
}

/// A name; three of its letters or less may be one of the operators that are words.
void loc_nom(std::string_view lu) {
  and_global.and_type_terme = type_terme::nom;
  if (lu.size() > 3) return;
  std::array<char, 3> mot{};
  std::copy(lu.begin(), lu.end(), mot.begin());
  lxs_z_majuscule(mot);
  for (std::size_t i = and_operateur_a - 1; i < and_liste_operateurs.size(); ++i)
    if (std::string_view(mot.data(), lu.size()) == and_liste_operateurs[i])
      loc_operateur(static_cast<int>(i) + 1);
}

bool loc_est_mot_souligne(std::string_view lu) {
  return std::any_of(loc_mots_soulignes.begin(), loc_mots_soulignes.end(), [&](std::string_view mot) {
    return std::equal(mot.begin(), mot.end(), lu.begin(), lu.end(),
                      [](char m, char c) { return m == lxs_c_majuscule(c); });
  });
}

void loc_special(std::string_view lu) {
  if (lu == ";") {
    and_global.and_type_terme = type_terme::delimiteur;
    return;
  }
  const auto* const fin = and_liste_operateurs.begin() + (and_operateur_a - 1);
  const auto* const trouve = std::find(and_liste_operateurs.begin(), fin, lu);
  loc_operateur(trouve == fin ? and_operateur_autre
                              : static_cast<int>(trouve - and_liste_operateurs.begin()) + 1);
}

void loc_controle(char code) {
  if (code == lex_code_erreur_lecture)
    loc_erreur(type_terme::erreur_lecture, static_cast<int>(code_lexeme::controle), {},
               " ERREUR SUR UNITE DE LECTURE");
  else
    and_global.and_type_terme =
        code == lex_code_fin_fichier ? type_terme::fin_fichier : type_terme::delimiteur;
}

/// A number whose text the decoder took, or an error term.
void loc_numerique(type_terme type, code_lexeme code, std::string_view lu, bool erreur) {
  and_global.and_type_terme = type;
  if (erreur)
    loc_erreur(type_terme::erreur_lexicale, static_cast<int>(code), lu,
               " : NUMERIQUE INCORRECT (LONGUEUR OU VALEUR EXCESSIVE)");
}

void loc_classer(code_lexeme code, std::string_view lu) {
  and_global_t& g = and_global;
  bool erreur = false;
  switch (code) {
    case code_lexeme::nom: loc_nom(lu); break;
    case code_lexeme::entier:
      lxs_decodage_entier(lu, g.and_var_entier_ou_operateur, erreur);
      loc_numerique(type_terme::entier, code, lu, erreur);
      break;
    case code_lexeme::reel_s:
      lxs_decodage_reel_s(lu, g.and_var_reel, erreur);
      loc_numerique(type_terme::reel_s, code, lu, erreur);
      break;
    case code_lexeme::reel_d:
      lxs_decodage_reel_d(lu, g.and_var_reel_d, erreur);
      loc_numerique(type_terme::reel_d, code, lu, erreur);
      break;
    case code_lexeme::chaine: g.and_type_terme = type_terme::chaine; break;
    case code_lexeme::special: loc_special(lu); break;
    case code_lexeme::controle: loc_controle(lu.front()); break;
    case code_lexeme::faute:
      loc_erreur(type_terme::erreur_lexicale, lex_ercode(), lu, " : TERME TROP LONG OU CARACTERE INCORRECT");
      break;
    default:
      if (code == code_lexeme::nom_ambigu && loc_est_mot_souligne(lu))
        g.and_type_terme = type_terme::nom;
      else
        loc_erreur(type_terme::erreur_lexicale, static_cast<int>(code), lu, " : TERME INCORRECT OU AMBIGU");
      break;
  }
}

}  // namespace

void and_lecture_unite(int file) {
  and_global_t& g = and_global;
  g.and_var_entier_ou_operateur = 0;
  g.and_var_reel = 0.0F;
  g.and_var_reel_d = 0.0;
  lex_ligne chaine{};
  int nbcar = 0;
  const code_lexeme code = lexeme(chaine, and_lg_chaine, nbcar);
  const std::string_view lu(chaine.data(), static_cast<std::size_t>(nbcar));
  g.and_var_chaine = lu;
  g.and_lg_terme = nbcar;
  loc_classer(code, lu);
  if (and_classe(g.and_type_terme) != 4) and_ecriture(2, file);
}
