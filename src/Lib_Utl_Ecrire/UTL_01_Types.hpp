// Records of a report: a table, filled by a command before it is written, and the list of the titles written
// so far, from which the numbers of the titles and the summary are made.
#pragma once

#include <array>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Texte.hpp"

/// Style of the rules of a table (contour_tableau). In the HTML note every style but the first has a border.
///            bars between columns   rule below                        heading cells (HTML)
///   0        no                     no line                           none
///   1        yes                    every line                        none
///   2        no                     the first line                    first line
///   3        yes                    every odd line and the last one   first line
///   4        yes                    every line                        first line
///   5        yes                    every line                        first line and first column
///   6        yes                    every line                        first column
enum utl_01_contour : int {
  utl_01_sans_contour = 0,
  utl_01_contour_complet = 1,
  utl_01_contour_premiere_ligne = 2,
  utl_01_contour_une_ligne_sur_deux = 3,
  utl_01_contour_titre_colonnes = 4,
  utl_01_contour_titre_lignes_colonnes = 5,
  utl_01_contour_titre_lignes = 6
};

/// A table of a report. Every cell is a text: the caller turns its numbers into texts.
///   utl_01_type_tableau t(1 + nb_points, 3, utl_01_contour_premiere_ligne);
///   t.remplir_ligne(1, {"Num_Point", "y", "z"});
///   t.cellule(2, 1) = zof_chaine_numerique_entier(numero);
struct utl_01_type_tableau {
  std::vector<socle::texte<80>> tableau;  // line by line
  socle::texte<300> titre_tableau;        // blank: no title
  int contour_tableau = utl_01_sans_contour;
  std::array<int, 2> dim_alloc{};  // lines, columns

  utl_01_type_tableau() = default;
  /// A table of blank cells; a negative number counts as none.
  utl_01_type_tableau(int nb_lignes, int nb_colonnes, int contour = utl_01_sans_contour);

  [[nodiscard]] int nb_lignes() const { return dim_alloc[0]; }
  [[nodiscard]] int nb_colonnes() const { return dim_alloc[1]; }
  /// Cell by line and column, from 1.
  [[nodiscard]] socle::texte<80>& cellule(int ligne, int colonne) {
    return tableau[loc_position(ligne, colonne)];
  }
  [[nodiscard]] const socle::texte<80>& cellule(int ligne, int colonne) const {
    return tableau[loc_position(ligne, colonne)];
  }
  /// The first cells of a line.
  void remplir_ligne(int ligne, std::initializer_list<socle::vue_l1> textes);

 private:
  [[nodiscard]] std::size_t loc_position(int ligne, int colonne) const;
};

/// What utl_01_set_tableau stores: the arguments that are given.
struct utl_01_valeurs_tableau {
  std::optional<std::span<const socle::texte<80>>> opt_tableau = {};  // line by line
  std::optional<socle::vue_l1> opt_titre_tableau = {};                // a literal in the form "..."_l1
  std::optional<int> opt_contour_tableau = {};
  std::optional<std::array<int, 2>> opt_dim_alloc = {};  // lines, columns
};

/// What utl_01_get_tableau reads back: where an address is given.
struct utl_01_lecture_tableau {
  std::vector<socle::texte<80>>* opt_tableau = nullptr;
  socle::texte<300>* opt_titre_tableau = nullptr;
  int* opt_contour_tableau = nullptr;
  std::array<int, 2>* opt_dim_alloc = nullptr;
};

/// Stores what is given. Dimensions allocate the cells anew, all blank; cells are copied in order, as many as
/// the table holds.
void utl_01_set_tableau(utl_01_type_tableau& objet, const utl_01_valeurs_tableau& valeurs);
void utl_01_get_tableau(const utl_01_type_tableau& objet, const utl_01_lecture_tableau& lecture);
/// Copies the first table into the second.
void utl_01_recopier_tableau(const utl_01_type_tableau& obj_tab_1, utl_01_type_tableau& obj_tab_2);

/// The titles written so far, in their order. It is all that a report keeps in memory, so a title takes its
/// own length and not a fixed one.
struct utl_01_type_sommaire {
  int taille_sommaire = 0;                           // number of titles
  int profondeur_sommaire = 0;                       // greatest level met
  std::vector<signed char> tab_hierarchie_sommaire;  // level of each title
  std::vector<std::string> tab_lib_sommaire;         // titles, cut at 300 characters
  std::vector<std::string> tab_numero_sommaire;      // their numbers, "2.3."
  bool tab_sommaire_initialise = false;              // the lists stand

  /// True at the level of the title, which is counted from 1.
  [[nodiscard]] bool hierarchie(int titre, int niveau) const;
};

/// What utl_01_set_sommaire stores: the arguments that are given.
struct utl_01_valeurs_sommaire {
  std::optional<int> opt_taille_sommaire = {};
  std::optional<std::span<const signed char>> opt_tab_hierarchie_sommaire = {};
  std::optional<std::span<const std::string>> opt_tab_lib_sommaire = {};
  std::optional<int> opt_profondeur_sommaire = {};
  std::optional<bool> opt_tab_sommaire_initialise = {};
  std::optional<std::span<const std::string>> opt_tab_numero_sommaire = {};
};

/// What utl_01_get_sommaire reads back: where an address is given.
struct utl_01_lecture_sommaire {
  int* opt_taille_sommaire = nullptr;
  std::vector<signed char>* opt_tab_hierarchie_sommaire = nullptr;
  std::vector<std::string>* opt_tab_lib_sommaire = nullptr;
  int* opt_profondeur_sommaire = nullptr;
  bool* opt_tab_sommaire_initialise = nullptr;
  std::vector<std::string>* opt_tab_numero_sommaire = nullptr;
};

/// An empty summary, its lists standing.
void utl_01_ini_sommaire(utl_01_type_sommaire& utl_str_sommaire);
void utl_01_set_sommaire(utl_01_type_sommaire& utl_str_sommaire, const utl_01_valeurs_sommaire& valeurs);
void utl_01_get_sommaire(const utl_01_type_sommaire& utl_str_sommaire,
                         const utl_01_lecture_sommaire& lecture);
