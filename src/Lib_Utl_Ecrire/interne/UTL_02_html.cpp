#include "UTL_02_html.hpp"

#include <algorithm>
#include <array>
#include <string>

#include "Texte.hpp"
#include "UTL_02_composition.hpp"
#include "UTL_02_ressources.hpp"
#include "UTL_02_sommaire.hpp"

using namespace socle;

namespace {

// --- texts
// ----------------------------------------------------------------------------------------------------

/// The text between its prefix and its suffix, as a target and as a link where these are asked for.
void loc_ecrire_texte(composition& note, std::string_view texte, const utl_02_options& options) {
  const std::string_view ancre = options.opt_ancre.octets();
  const std::string_view lien = options.opt_lien_ancre.octets();
  const std::string_view fichier = options.opt_fic.octets();
  const bool avec_lien = !lien.empty() || !fichier.empty();
  if (!ancre.empty() || avec_lien) note << "<a";
  if (!ancre.empty()) note << " id='" << en_attribut{ancre} << "'";
  if (avec_lien) note << " href='" << en_adresse{fichier};
  if (!lien.empty()) note << "#" << en_attribut{lien};
  if (avec_lien) note << "'";
  if (!ancre.empty() || avec_lien) note << ">";
  note << options.opt_prefixe_html.octets() << en_html{sans_blancs_finals(texte)}
       << options.opt_suffixe_html.octets();
  if (!ancre.empty() || avec_lien) note << "</a>";
}

void loc_ecrire_element(sortie& unite, std::string_view ouverture, std::string_view texte,
                        std::string_view fermeture, const utl_02_options& options) {
  composition note(unite);
  note << ouverture;
  loc_ecrire_texte(note, texte, options);
  note << fermeture << fin_de_ligne;
}

constexpr std::array<std::string_view, 7> balises_titre = {"h1", "h2", "h3", "h4", "h5", "h6", "p"};

std::string_view loc_balise_titre(int niveau) {
  const bool est_titre = niveau >= 0 && niveau < static_cast<int>(balises_titre.size());
  return est_titre ? balises_titre[static_cast<std::size_t>(niveau)] : balises_titre.back();
}

// --- tables
// ---------------------------------------------------------------------------------------------------

bool loc_premiere_ligne_en_tete(int contour) {
  return contour >= utl_01_contour_premiere_ligne && contour <= utl_01_contour_titre_lignes_colonnes;
}
bool loc_premiere_colonne_en_tete(int contour) {
  return contour == utl_01_contour_titre_lignes_colonnes || contour == utl_01_contour_titre_lignes;
}

std::string_view loc_case(const utl_01_type_tableau* tableau, int ligne, int colonne) {
  return tableau == nullptr ? std::string_view{} : tableau->cellule(ligne, colonne).utile();
}

/// A table on its way into the note.
struct table_html {
  composition& note;
  const utl_01_type_tableau& tableau;
  const utl_02_decoupe& decoupe;
  const utl_02_options_tableau& options;

  /// Text of a cell. Looked for within the width of its column: nearly all of its eighty characters are
  /// blank.
  [[nodiscard]] std::string_view texte(int ligne, int colonne) const {
    const auto largeur = static_cast<std::size_t>(decoupe.largeur(colonne));
    return sans_blancs_finals(tableau.cellule(ligne, colonne).entier().substr(0, largeur));
  }
};

/// Place of the cell and number of columns that it covers.
struct place_cellule {
  int ligne, colonne, etendue;
  bool en_tete;
};

void loc_code_tab_html(const table_html& t, const place_cellule& place) {
  const std::string_view balise = place.en_tete ? "TH" : "TD";
  t.note << "<" << balise;
  if (place.etendue > 1) t.note << " COLSPAN=" << place.etendue;
  t.note << ">";
  const std::string_view texte = t.texte(place.ligne, place.colonne);
  const std::string_view ancre = loc_case(t.options.opt_tab_ancres, place.ligne, place.colonne);
  const std::string_view lien = loc_case(t.options.opt_tab_liens, place.ligne, place.colonne);
  if (ancre.empty() && lien.empty())
    t.note << en_html{texte};
  else
    loc_ecrire_texte(t.note, texte, {.opt_ancre = ancre, .opt_lien_ancre = lien});
  t.note << "</" << balise << ">";
}

/// Number of cells from this one on that show the same text, one if cells are not to be joined.
int loc_etendue(const table_html& t, const utl_02_tableau_partiel& partiel, int ligne, int position) {
  const utl_02_options_tableau& o = t.options;
  // Joined cells would lose their targets.
  if (!o.opt_fusionner || o.opt_tab_ancres != nullptr || o.opt_tab_liens != nullptr) return 1;
  const std::string_view texte = t.texte(ligne, partiel.colonne(position));
  int etendue = 1;
  while (!texte.empty() && position + etendue <= partiel.nb_colonnes() &&
         t.texte(ligne, partiel.colonne(position + etendue)) == texte)
    ++etendue;
  return etendue;
}

void loc_ecrire_ligne(const table_html& t, const utl_02_tableau_partiel& partiel, int ligne) {
  const bool titre_de_colonnes = ligne == 1 && loc_premiere_ligne_en_tete(t.tableau.contour_tableau);
  const bool titre_de_ligne = loc_premiere_colonne_en_tete(t.tableau.contour_tableau);
  t.note << "<TR ALIGN=LEFT>";
  int etendue = 1;
  for (int k = 1; k <= partiel.nb_colonnes(); k += etendue) {
    const int colonne = partiel.colonne(k);
    etendue = loc_etendue(t, partiel, ligne, k);
    const bool en_tete = titre_de_colonnes || (titre_de_ligne && colonne == 1);
    loc_code_tab_html(t, {.ligne = ligne, .colonne = colonne, .etendue = etendue, .en_tete = en_tete});
  }
  t.note << "</TR>" << fin_de_ligne;
}

void loc_ecrire_legende(composition& note, std::string_view titre, int partie, int nb_parties) {
  if (titre.empty() && nb_parties == 1) return;
  note << "<CAPTION> " << en_html{titre};
  if (nb_parties > 1) note << ", Partie : " << partie;
  note << " </CAPTION>" << fin_de_ligne;
}

// --- head and end
// ---------------------------------------------------------------------------------------------

constexpr std::string_view hors_ancien_navigateur = "<!--[if(!IE)|(gte IE 9)]><!-->\n";
constexpr std::string_view fin_hors_ancien_navigateur = "<!--<![endif]-->\n";

void loc_copier_ressource(composition& note, std::string_view ouverture, vue_l1 fichier,
                          std::string_view fermeture) {
  note << ouverture << fin_de_ligne;
  if (const auto lignes = utl_02_lire_ressource(fichier))
    for (const std::string& ligne : *lignes) note << ligne << fin_de_ligne;
  note << fermeture << fin_de_ligne;
}

void loc_copier_styles(composition& note) {
  constexpr std::string_view ecran = R"(<style type="text/css" media="screen">)";
  loc_copier_ressource(note, ecran, "default.css", "</style>");
  if (utl_02.glb_ecrire_sommaire_dynam) {
    note << hors_ancien_navigateur;
    loc_copier_ressource(note, ecran, "ajout_dyn.css", "</style>");
    note << fin_hors_ancien_navigateur;
  }
  loc_copier_ressource(note, R"(<style type="text/css" media="print">)", "print.css", "</style>");
}

/// A section with its lower bars: the mark of the publisher.
constexpr std::string_view logo_editeur =
    R"(<svg width="64" height="56" viewBox="0 0 64 56"><path d="M4 4H60V18H41V52H23V18H4Z")"
    R"( fill="#c9d3df" stroke="#1f3a5f" stroke-width="2"></path><g fill="#b3282d"><circle cx="28" cy="46" r="2.5">)"
    R"(</circle><circle cx="36" cy="46" r="2.5"></circle></g></svg>)";

/// Name of the program by its number.
std::string_view loc_logo_logiciel() { return utl_02.glb_logiciel == 5 ? "ZOF" : ""; }

constexpr std::string_view avis_ancien_navigateur =
    "<!--[if lt IE 9]>\n"
    "<div class='avant_propos'>\n"
    "<p class='avant_propos_titre'>Navigateur trop ancien</p>\n"
    "<p>Le sommaire et les dessins de cette note demandent un navigateur plus r&#233;cent.</p>\n"
    "</div>\n"
    "<![endif]-->\n";

}  // namespace

void utl_02_ecrire_entete_html(sortie& unite, std::string_view titre, std::string_view sous_titre) {
  composition note(unite);
  note << "<html>\n"
          "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=ISO-8859-1\">\n";
  if (utl_02.glb_ecrire_sommaire_dynam)
    loc_copier_ressource(note, R"(<script type="text/javascript">)", "NDC.js", "</script>");
  note << "<head>\n";
  loc_copier_styles(note);
  note << "<title>" << en_html{titre}
       << "</title>\n"
          "</head>\n"
          "<body>\n"
          "<div class=\"header\">\n"
          "<table class=\"tableau\">\n"
          "<tr>\n"
          "<td class=\"logo\">"
       << logo_editeur << "</td>\n<td class=\"texte\"><h1>" << en_html{titre} << "</h1><h3>"
       << en_html{sous_titre} << "</h3></td>\n<td class=\"logo\">" << loc_logo_logiciel()
       << "</td>\n"
          "</tr>\n"
          "</table>\n"
          "</div>\n"
          "<a name=\"up\"></a>\n"
          "<div class='main'>\n"
          "<div class='content1'>\n"
       << avis_ancien_navigateur << "<div class='content'>\n";
}

void utl_02_ecrire_titre_html(sortie& unite, std::string_view titre, int niveau, int rang,
                              const utl_02_options& options) {
  composition note(unite);
  const std::string_view balise = loc_balise_titre(niveau);
  note << "<" << balise;
  if (rang > 0) note << " id='" << rang << "'";
  note << ">";
  loc_ecrire_texte(note, titre, options);
  note << "</" << balise << ">" << fin_de_ligne;
}

void utl_02_ecrire_texte_html(sortie& unite, std::string_view texte, const utl_02_options& options) {
  loc_ecrire_element(unite, "<p>", texte, "</p>", options);
}

void utl_02_ecrire_note_html(sortie& unite, std::string_view texte, const utl_02_options& options) {
  loc_ecrire_element(unite, R"(<span class="surlign">)", texte, "</span>", options);
}

void utl_02_ecrire_avertissement_html(sortie& unite, std::string_view texte, const utl_02_options& options) {
  loc_ecrire_element(unite, "<p class='avert'>", texte, "</p>\n<br>", options);
}

void utl_02_debut_puce_html(sortie& unite) {
  ++utl_02.glb_listes_html;
  unite.ligne("<ul>");
}

void utl_02_ecrire_puce_html(sortie& unite, std::string_view texte, const utl_02_options& options) {
  loc_ecrire_element(unite, "<li>", texte, "</li>", options);
}

void utl_02_fin_puce_html(sortie& unite) {
  if (utl_02.glb_listes_html == 0) return;
  --utl_02.glb_listes_html;
  unite.ligne("</ul>");
}

void utl_02_ecrire_tableau_html(sortie& unite, const utl_01_type_tableau& tableau,
                                const utl_02_decoupe& decoupe, const utl_02_options_tableau& options) {
  composition note(unite);
  const table_html t{note, tableau, decoupe, options};
  const auto nb_parties = static_cast<int>(decoupe.partiels.size());
  int partie = 0;
  for (const utl_02_tableau_partiel& partiel : decoupe.partiels) {
    const std::string_view bordure = tableau.contour_tableau == utl_01_sans_contour ? "0" : "1";
    note << "<center><TABLE class='table_donnees' BORDER=" << bordure << ">" << fin_de_ligne;
    loc_ecrire_legende(note, tableau.titre_tableau.utile(), ++partie, nb_parties);
    for (int i = 1; i <= tableau.nb_lignes(); ++i) loc_ecrire_ligne(t, partiel, i);
    note << "</TABLE></center>" << fin_de_ligne;
  }
}

void utl_02_ecrire_lien_html(sortie& unite, std::string_view cible, std::string_view texte) {
  const auto diese = std::min(cible.find('#'), cible.size());
  composition(unite) << "<a href='" << en_adresse{cible.substr(0, diese)} << en_attribut{cible.substr(diese)}
                     << "'>" << en_html{sans_blancs_finals(texte)} << "</a>" << fin_de_ligne;
}

void utl_02_finaliser_html(sortie& unite) {
  while (utl_02.glb_listes_html > 0) utl_02_fin_puce_html(unite);
  composition note(unite);
  note << "</div> <!-- fin de content -->\n";
  if (utl_02.glb_ecrire_sommaire_dynam)
    utl_02_ecrire_sommaire_dynamique_html(note);
  else if (utl_02.glb_ecrire_sommaire)
    utl_02_ecrire_sommaire_html(note);
  note << "</div> <!-- fin de content1 -->\n"
          "</div> <!-- fin de main -->\n"
          "</body>\n"
          "<div class='footer'>\n"
          "<table class='table_footer'>\n"
          "<tr>\n"
          "<td>"
       << en_html{utl_02.glb_titre.utile()} << "</td>\n<td>" << en_html{utl_02.glb_sous_titre.utile()}
       << "</td>\n"
          "<td><a href='#up'>Haut de page</a></td>\n"
          "</tr>\n"
          "</table>\n"
          "</div>\n"
          "</html>\n";
}
