#include "UTL_02_txt.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>

#include "Arret.hpp"
#include "Texte.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "UTL_02_composition.hpp"
#include "UTL_02_ressources.hpp"

using namespace socle;

namespace {

constexpr std::size_t longueur_max_titre = 300;
constexpr std::string_view saut_de_page = "\f";

// --- paragraphs
// -----------------------------------------------------------------------------------------------

/// Takes the next line off a text: at most that many characters, cut at the last blank among them.
std::string_view loc_prendre_ligne(std::string_view& reste, int longueur) {
  const auto limite = static_cast<std::size_t>(std::max(longueur, 1));
  if (reste.size() <= limite) return std::exchange(reste, {});
  std::size_t coupe = reste.substr(0, limite).find_last_of(' ');
  // The blanks in front of the first word are no place to cut: the line would be empty.
  if (coupe == std::string_view::npos || coupe < reste.find_first_not_of(' ')) coupe = limite;
  const std::string_view ligne = sans_blancs_finals(reste.substr(0, coupe));
  reste = sans_blancs_initiaux(reste.substr(coupe));
  return ligne;
}

// --- titles
// ---------------------------------------------------------------------------------------------------

/// Rules above and below a title (0: none) and what follows its text.
struct forme_titre {
  char dessus, dessous;
  std::string_view suite;
  bool ligne_vide;
};

forme_titre loc_forme_titre(int niveau) {
  switch (niveau) {
    case 0: return {'*', '*', "   ", true};
    case 1: return {'-', '-', "", true};
    case 2: return {'.', '.', "", true};
    case 3: return {0, '*', "", true};
    case 4: return {0, '-', "", true};
    case 5: return {0, 0, " : ", true};
    case 7: return {0, 0, " :", false};
    default: return {0, 0, " : ", false};
  }
}

// --- bullets
// --------------------------------------------------------------------------------------------------

/// Marks of the bullets by depth; the first one stands outside of any list.
constexpr std::array<texte<2>, 5> marques = {"  ", "- ", "> ", "* ", ". "};
constexpr int espace_max = 8;

[[noreturn]] void loc_erreur_programmation(vue_l1 precision) {
  le_systeme().console().ligne(concat({"ERREUR PROGRAMMATION UTL_ECRIRE_02 ", precision}));
  arreter(0);
}

/// Depth of the present list.
int loc_rang_puce() {
  const auto* const marque = std::find(marques.begin(), marques.end(), utl_02.glb_tiret);
  if (marque == marques.end()) loc_erreur_programmation("GLB_Tiret");
  return static_cast<int>(marque - marques.begin());
}

void loc_controler_espace() {
  if (utl_02.glb_espace_puce < 0 || utl_02.glb_espace_puce > espace_max)
    loc_erreur_programmation("GLB_Espace_Puce");
}

// --- tables
// ---------------------------------------------------------------------------------------------------

bool loc_avec_barres(int contour) {
  return contour != utl_01_sans_contour && contour != utl_01_contour_premiere_ligne;
}

/// Blanks between two columns, with a bar in the middle of them.
std::string loc_separation(int contour) {
  std::string separation(static_cast<std::size_t>(std::max(utl_02.glb_lg_separation, 0)), ' ');
  if (loc_avec_barres(contour) && !separation.empty()) separation[(separation.size() - 1) / 2] = '|';
  return separation;
}

bool loc_avec_filet(int contour, int ligne, int nb_lignes) {
  switch (contour) {
    case utl_01_sans_contour: return false;
    case utl_01_contour_premiere_ligne: return ligne == 1;
    case utl_01_contour_une_ligne_sur_deux: return ligne % 2 == 1 || ligne == nb_lignes;
    default: return true;
  }
}

void loc_ecrire_cellule(composition& note, const texte<80>& cellule, int largeur) {
  const std::string_view complet = cellule.entier().substr(0, static_cast<std::size_t>(largeur));
  const std::string_view ajuste = sans_blancs_initiaux(complet);
  note << ajuste << repete{std::ssize(complet) - std::ssize(ajuste), ' '};
}

void loc_ecrire_tableau_partiel(composition& note, const utl_01_type_tableau& tableau,
                                const utl_02_decoupe& decoupe, const utl_02_tableau_partiel& partiel) {
  const std::string separation = loc_separation(tableau.contour_tableau);
  std::ptrdiff_t longueur = 0;
  for (int k = 1; k <= partiel.nb_colonnes(); ++k)
    longueur += decoupe.largeur(partiel.colonne(k)) + std::ssize(separation);
  for (int i = 1; i <= tableau.nb_lignes(); ++i) {
    for (int k = 1; k <= partiel.nb_colonnes(); ++k) {
      const int j = partiel.colonne(k);
      loc_ecrire_cellule(note, tableau.cellule(i, j), decoupe.largeur(j));
      note << separation;
    }
    note << fin_de_ligne;
    if (loc_avec_filet(tableau.contour_tableau, i, tableau.nb_lignes()))
      note << repete{longueur, '-'} << fin_de_ligne;
  }
  note << fin_de_ligne;
}

// --- closing words
// --------------------------------------------------------------------------------------------

constexpr int hauteur_lettre = 8;
struct lettre {
  char c;
  std::array<std::string_view, hauteur_lettre> dessin;
};
// clang-format off
constexpr std::array<lettre, 12> alphabet = {{
    {'A', {"  XX  ", " X  X ", "X    X", "X    X", "XXXXXX", "X    X", "X    X", "X    X"}},
    {'C', {" XXXX ", "X    X", "X     ", "X     ", "X     ", "X     ", "X    X", " XXXX "}},
    {'D', {"XXXXX ", "X    X", "X    X", "X    X", "X    X", "X    X", "X    X", "XXXXX "}},
    {'E', {"XXXXXX", "X     ", "X     ", "XXXXX ", "X     ", "X     ", "X     ", "XXXXXX"}},
    {'F', {"XXXXXX", "X     ", "X     ", "XXXXX ", "X     ", "X     ", "X     ", "X     "}},
    {'H', {"X    X", "X    X", "X    X", "XXXXXX", "X    X", "X    X", "X    X", "X    X"}},
    {'I', {"XXX", " X ", " X ", " X ", " X ", " X ", " X ", "XXX"}},
    {'L', {"X     ", "X     ", "X     ", "X     ", "X     ", "X     ", "X     ", "XXXXXX"}},
    {'N', {"X    X", "XX   X", "XX   X", "X X  X", "X  X X", "X   XX", "X   XX", "X    X"}},
    {'O', {" XXXX ", "X    X", "X    X", "X    X", "X    X", "X    X", "X    X", " XXXX "}},
    {'T', {"XXXXXXX", "   X   ", "   X   ", "   X   ", "   X   ", "   X   ", "   X   ", "   X   "}},
    {' ', {"   ", "   ", "   ", "   ", "   ", "   ", "   ", "   "}},
}};
// clang-format on

void loc_ecrire_banniere(composition& note, std::string_view mots) {
  for (std::size_t rangee = 0; rangee < hauteur_lettre; ++rangee) {
    std::string ligne;
    for (const char c : mots) {
      const auto* const l =
          std::find_if(alphabet.begin(), alphabet.end(), [c](const lettre& x) { return x.c == c; });
      if (l != alphabet.end()) (ligne += l->dessin[rangee]) += "  ";
    }
    note << sans_blancs_finals(ligne) << fin_de_ligne;
  }
}

}  // namespace

void utl_02_ecrire_entete_txt(sortie& unite, std::string_view titre, std::string_view sous_titre) {
  composition note(unite);
  for (const vue_l1& page : {vue_l1("Page_garde_"), vue_l1("Page_chapitre_")}) {
    const auto lignes = utl_02_lire_ressource(concat({page, utl_02.glb_langue_entete.utile(), ".txt"}));
    if (!lignes) continue;
    for (const std::string& ligne : *lignes) note << ligne << fin_de_ligne;
    note << saut_de_page << fin_de_ligne;
  }
  for (const std::string_view ligne : {titre, sous_titre})
    if (!sans_blancs_finals(ligne).empty()) note << sans_blancs_finals(ligne) << fin_de_ligne;
  note << fin_de_ligne;
}

void utl_02_ecrire_titre_txt(sortie& unite, std::string_view titre, int niveau) {
  composition note(unite);
  const forme_titre forme = loc_forme_titre(niveau);
  const std::string_view ecrit = sans_blancs_finals(titre.substr(0, longueur_max_titre));
  const repete retrait{2 * static_cast<std::ptrdiff_t>(niveau), ' '};
  const auto filet = [&](char c) {
    if (c != 0) note << retrait << repete{std::ssize(ecrit), c} << fin_de_ligne;
  };
  filet(forme.dessus);
  note << retrait << ecrit << forme.suite << fin_de_ligne;
  filet(forme.dessous);
  if (forme.ligne_vide) note << fin_de_ligne;
}

void utl_02_ecrire_texte_txt(sortie& unite, std::string_view texte) {
  composition note(unite);
  std::string_view reste = sans_blancs_finals(texte);
  do {
    const std::string_view ligne = loc_prendre_ligne(reste, utl_02.glb_lg_ligne - 2);
    note << repete{utl_02.glb_espace_puce, ' '} << ligne << fin_de_ligne;
  } while (!reste.empty());
}

void utl_02_debut_puce_txt() {
  const int rang = loc_rang_puce() + 1;
  if (rang == static_cast<int>(marques.size()))
    loc_erreur_programmation("GLB_Tiret : rang de puce desire = 5 : NON GERE !");
  utl_02.glb_tiret = marques[static_cast<std::size_t>(rang)];
  utl_02.glb_espace_puce += 2;
  loc_controler_espace();
}

void utl_02_fin_puce_txt() {
  const int rang = loc_rang_puce() - 1;
  if (rang < 0) loc_erreur_programmation("GLB_Tiret : rang de puce desire = -1 : NON GERE !");
  utl_02.glb_tiret = marques[static_cast<std::size_t>(rang)];
  utl_02.glb_espace_puce -= 2;
  loc_controler_espace();
}

void utl_02_ecrire_puce_txt(sortie& unite, std::string_view texte) {
  loc_rang_puce();
  loc_controler_espace();
  composition note(unite);
  std::string_view reste = sans_blancs_finals(texte);
  std::string_view marque = utl_02.glb_tiret.entier();
  do {
    const std::string_view ligne = loc_prendre_ligne(reste, utl_02.glb_lg_ligne - utl_02.glb_espace_puce);
    note << repete{utl_02.glb_espace_puce, ' '} << marque << ligne << fin_de_ligne;
    marque = marques.front().entier();
  } while (!reste.empty());
}

void utl_02_ecrire_tableau_txt(sortie& unite, const utl_01_type_tableau& tableau,
                               const utl_02_decoupe& decoupe) {
  composition note(unite);
  if (!tableau.titre_tableau.vide())
    note << repete{utl_02.glb_espace_puce, ' '} << tableau.titre_tableau.utile() << fin_de_ligne
         << fin_de_ligne;
  for (const utl_02_tableau_partiel& partiel : decoupe.partiels)
    loc_ecrire_tableau_partiel(note, tableau, decoupe, partiel);
}

void utl_02_ecrire_saut_page_txt(sortie& unite) { unite.ligne(saut_de_page); }

void utl_02_finaliser_txt(sortie& unite) {
  composition note(unite);
  if (!utl_02.glb_tiret.vide() || utl_02.glb_espace_puce != 0)
    note << "ERREUR PROGRAMMATION : Nombre d'ouverture d'enumeration different du nombre de fermeture"
         << fin_de_ligne;
  else
    loc_ecrire_banniere(note, utl_02.glb_langue_entete == "en" ? "END OF THE DOC" : "FIN DE LA NDC");
}
