#include "UTL_02_sommaire.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "Arithmetique.hpp"
#include "Texte.hpp"
#include "UTL_02_Ecriture_Resu.hpp"

using namespace socle;

namespace {

constexpr std::size_t longueur_max_libelle = 300;
constexpr std::size_t longueur_max_titre = 500;
constexpr std::string_view style_liste = R"(style="list-style-type:none;")";

/// Number of a new title: for each level down to its own, how many titles of that level came since the last
/// one of a level above. A title of level 0 has none.
std::string loc_numeroter(int niveau) {
  auto& compteurs = utl_02.glb_compteurs;
  const auto n = static_cast<std::size_t>(niveau);
  ++compteurs[n];
  std::fill(compteurs.begin() + niveau + 1, compteurs.end(), 0);
  std::string numero;
  for (std::size_t i = 1; i <= n; ++i) (numero += std::to_string(compteurs[i])) += '.';
  return numero;
}

int loc_niveau(int titre) { return utl_02.utl_str_sommaire.tab_hierarchie_sommaire[indice(titre)]; }

/// The next title stands below this one.
bool loc_a_des_enfants(int titre) {
  return titre < utl_02.utl_str_sommaire.taille_sommaire && loc_niveau(titre + 1) > loc_niveau(titre);
}

void loc_ecrire_article(composition& note, int titre, bool dynamique) {
  const utl_01_type_sommaire& s = utl_02.utl_str_sommaire;
  note << "<li>";
  if (dynamique && loc_a_des_enfants(titre))
    note << "<span onClick=\"expandcontent(this, 'sc" << titre
         << "')\"><span class=\"showstate\"></span></span>";
  note << "<a href='#" << titre << "'>";
  if (utl_02.glb_numeroter_titres) {
    const std::string& numero = s.tab_numero_sommaire[indice(titre)];
    note << numero << (numero.empty() ? "" : " ");
  }
  note << en_html{s.tab_lib_sommaire[indice(titre)]} << "</a>";
}

/// Titles as nested lists. A level that is left out between two titles opens no list of its own: a title
/// stands below the last one of a smaller level.
void loc_ecrire_listes(composition& note, bool dynamique) {
  const int nb = utl_02.utl_str_sommaire.taille_sommaire;
  if (nb == 0) return;
  note << "<ol " << style_liste << ">" << fin_de_ligne;
  std::vector<int> ouverts;  // levels of the items that are not closed yet
  for (int titre = 1; titre <= nb; ++titre) {
    const int niveau = loc_niveau(titre);
    while (!ouverts.empty() && ouverts.back() >= niveau) {
      ouverts.pop_back();
      note << "</li>" << fin_de_ligne;
      if (!ouverts.empty() && ouverts.back() >= niveau) note << "</ol>" << fin_de_ligne;
    }
    loc_ecrire_article(note, titre, dynamique);
    ouverts.push_back(niveau);
    if (!loc_a_des_enfants(titre)) continue;
    note << fin_de_ligne << "<ol ";
    if (dynamique) note << R"(class="switchcontent" id="sc)" << titre << R"(" )";
    note << style_liste << ">" << fin_de_ligne;
  }
  for (; !ouverts.empty(); ouverts.pop_back()) note << "</li>" << fin_de_ligne << "</ol>" << fin_de_ligne;
}

void loc_ecrire_bouton(composition& note, std::string_view attributs, std::string_view libelle) {
  note << R"(<li><div class="bouton"><a )" << attributs << ">" << libelle << "</a></div></li>"
       << fin_de_ligne;
}

}  // namespace

bool utl_02_est_dans_sommaire(int niveau) {
  return utl_02.glb_renseigner_sommaire && niveau >= 0 && niveau <= utl_02.glb_profondeur_sommaire_voulue;
}

std::string utl_02_memoriser_sommaire(std::string_view titre, int niveau) {
  utl_01_type_sommaire& s = utl_02.utl_str_sommaire;
  std::string numero = loc_numeroter(niveau);
  std::string ecrit;
  if (utl_02.glb_numeroter_titres && !numero.empty()) (ecrit = numero) += ' ';
  ecrit += sans_blancs_finals(titre);
  if (ecrit.size() > longueur_max_titre) ecrit.resize(longueur_max_titre);

  ++s.taille_sommaire;
  s.profondeur_sommaire = std::max(s.profondeur_sommaire, niveau);
  s.tab_hierarchie_sommaire.push_back(static_cast<signed char>(niveau));
  s.tab_lib_sommaire.emplace_back(sans_blancs_finals(titre.substr(0, longueur_max_libelle)));
  s.tab_numero_sommaire.push_back(std::move(numero));
  return ecrit;
}

void utl_02_ecrire_sommaire_dynamique_html(composition& note) {
  note << " <!--[if(!IE)|(gte IE 9)]><!--> \n"
          "<div class=\"conteneur\">\n"
          "<div class=\"menu_bar\">\n"
          "<ul>\n";
  const bool avec_titres = utl_02.utl_str_sommaire.taille_sommaire > 0;
  loc_ecrire_bouton(note, avec_titres ? R"(href="#1")" : R"(href="#up")", "Retour Accueil");
  loc_ecrire_bouton(note, R"(href="#up")", " Retour haut de page");
  loc_ecrire_bouton(note, R"(href="#Tab_sommaire_dynam" id="reduire_sommaire")", " R&#233;duire le sommaire");
  loc_ecrire_bouton(note, R"(href="#up" onclick="window.print(); return false;")", "Imprimer");
  note << "</ul>\n"
          "</div>\n"
          "<div class = \"Tab_sommaire_dynam\" id= \"Tab_sommaire_dynam\">\n"
          "<h2>Sommaire</h2>\n";
  loc_ecrire_listes(note, true);
  note << "</div> <!-- fin du sommaire dynamique-->\n"
          "</div> \n"
          "<!--<![endif]-->"
       << fin_de_ligne;
}

void utl_02_ecrire_sommaire_html(composition& note) {
  note << "<div class=\"Tab_sommaire\">\n"
          "<h2>Sommaire</h2>\n";
  loc_ecrire_listes(note, false);
  note << "</div> <!-- fin du sommaire-->" << fin_de_ligne;
}
