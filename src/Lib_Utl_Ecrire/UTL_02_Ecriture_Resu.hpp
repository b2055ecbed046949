// Writers of the calculation note: each item goes to the text note and to the HTML note. A caller speaks of
// titles, paragraphs, bullets, remarks, tables, links and drawings; the two forms are the business of this
// module. Texts are Latin-1; "<", ">" and "&" of a text stay as they are in the HTML note.
//
// A note that is off, or that has no channel, receives nothing: a caller never asks whether a note is wanted.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "Systeme.hpp"
#include "Texte.hpp"
#include "UTL_01_Types.hpp"

/// Deepest level of titles that a summary can hold.
inline constexpr int glb_profondeur_sommaire_max = 10;

/// Settings and state of the writers.
struct utl_02_t {
  socle::sortie* glb_unit_txt = nullptr;
  socle::sortie* glb_unit_html = nullptr;
  bool glb_edition_txt = true;
  bool glb_edition_html = true;
  int glb_lg_separation = 3;  // characters between the columns of a table
  int glb_logiciel = 0;       // number of the program: selects its name and logo
  int glb_lg_ligne = 300;     // length of a line of the text note
  bool glb_numeroter_titres = false;
  bool glb_ecrire_sommaire = false;
  bool glb_ecrire_sommaire_dynam = false;
  bool glb_renseigner_sommaire = false;  // one of the three above is on
  int glb_profondeur_sommaire_voulue = 0;
  socle::texte<2> glb_langue_entete = "fr";
  socle::texte<2> glb_tiret;  // mark of the present bullets of the text note; blank outside of a list
  int glb_espace_puce = 0;    // their indent: 0, 2, 4, 6 or 8
  int glb_listes_html = 0;    // lists that are open in the HTML note
  socle::texte<300> glb_titre;
  socle::texte<300> glb_sous_titre;
  // Titles of each level since the last one of a level above.
  std::array<int, glb_profondeur_sommaire_max + 1> glb_compteurs{};
  utl_01_type_sommaire utl_str_sommaire;
  std::string tampon;  // an item is composed here and goes out in one piece
};
extern utl_02_t utl_02;
void utl_02_reinitialiser();

/// Arguments of utl_02_initialiser, called with designators: utl_02_initialiser({.opt_lg_ligne = 300, ...}).
struct utl_02_options_initialiser {
  socle::sortie* opt_unit_txt = nullptr;
  socle::sortie* opt_unit_html = nullptr;
  std::optional<bool> opt_edition_txt = {};
  std::optional<bool> opt_edition_html = {};
  std::optional<int> opt_lg_separation = {};
  std::optional<int> opt_logiciel = {};
  std::optional<int> opt_lg_ligne = {};
  std::optional<bool> opt_numeroter_titres = {};
  std::optional<bool> opt_ecrire_sommaire = {};
  std::optional<bool> opt_ecrire_sommaire_dynam = {};
  std::optional<int> opt_profondeur_sommaire_voulue = {};  // glb_profondeur_sommaire_max at most
  std::optional<socle::vue_l1> opt_langue_entete = {};     // "fr"_l1 or "en"_l1
};

/// Arguments of the heads of the notes.
struct utl_02_options_entete {
  socle::sortie* opt_unit_txt = nullptr;  // null, here and below: the channel of the note
  socle::sortie* opt_unit_html = nullptr;
  socle::vue_l1 opt_titre = "";  // empty: the title of the module
  socle::vue_l1 opt_sous_titre = "";
};

/// Arguments of titles, paragraphs, remarks, warnings and bullets. The last five act in the HTML note alone.
struct utl_02_options {
  socle::sortie* opt_unit_txt = nullptr;
  socle::sortie* opt_unit_html = nullptr;
  socle::vue_l1 opt_ancre = "";         // the text becomes a target of this name
  socle::vue_l1 opt_lien_ancre = "";    // the text becomes a link to the target of this name
  socle::vue_l1 opt_fic = "";           // the file that holds this target, if it is another one
  socle::vue_l1 opt_prefixe_html = "";  // markup before the text: "<b style='color:red;'>"
  socle::vue_l1 opt_suffixe_html = "";  // markup behind it: "</b>"
};

/// Arguments of a table.
struct utl_02_options_tableau {
  socle::sortie* opt_unit_txt = nullptr;
  socle::sortie* opt_unit_html = nullptr;
  int opt_colonnes_info = 0;  // first columns, repeated in every partial table
  const utl_01_type_tableau* opt_tab_ancres =
      nullptr;                                         // cells as targets: names in a table of the same shape
  const utl_01_type_tableau* opt_tab_liens = nullptr;  // cells as links to these targets
  bool opt_fusionner = false;  // HTML: equal neighbours in a line are one cell, targets and links aside
};

/// Channel of an item that only one note has.
struct utl_02_options_canal {
  socle::sortie* opt_unit_txt = nullptr;
  socle::sortie* opt_unit_html = nullptr;
};

/// Takes the settings that are given and starts an empty summary.
void utl_02_initialiser(const utl_02_options_initialiser& options);

/// Heads of both notes. The styles and the script of the HTML note are copied from default.css,
/// ajout_dyn.css, print.css and NDC.js, searched in ../exe/, the current directory, the program's own and the
/// one that Chemin_appli.txt names; one that is nowhere leaves its element empty.
void utl_02_ecrire_entete(int numero_module, const utl_02_options_entete& options = {});

/// Title of a level, from 1 (0: above all). A level within the depth of the summary enters it and has a
/// number.
void utl_02_ecrire_titre(socle::vue_l1 titre, int niveau, const utl_02_options& options = {});

/// Paragraph.
void utl_02_ecrire_texte(socle::vue_l1 texte, const utl_02_options& options = {});
/// Remark: a paragraph in the text note, highlighted in the HTML note.
void utl_02_ecrire_note(socle::vue_l1 texte, const utl_02_options& options = {});
/// Warning: a paragraph, red in the HTML note.
void utl_02_ecrire_avertissement(socle::vue_l1 texte, const utl_02_options& options = {});

/// Bullet list: open, items, close. Lists nest four deep; a fifth, and one closed that is not open, are
/// faults of the program: message on the console, end of the run with status 0.
void utl_02_debut_puce(const utl_02_options_canal& options = {});
void utl_02_ecrire_puce(socle::vue_l1 texte, const utl_02_options& options = {});
void utl_02_fin_puce(const utl_02_options_canal& options = {});

/// Table. One that is wider than a line of the text note is cut into partial tables, ten at most: the tenth
/// takes all the columns that are left.
void utl_02_ecrire_tableau(const utl_01_type_tableau& obj_tableau,
                           const utl_02_options_tableau& options = {});

/// Page break for printing: in both notes, or in the HTML note alone.
void utl_02_ecrire_saut_page(const utl_02_options_canal& options = {});
void utl_02_ecrire_saut_page_html(const utl_02_options_canal& options = {});

/// Link to a file or to a target "#name"; in the text note its text as a paragraph.
void utl_02_ecrire_lien_hypertexte(socle::vue_l1 cible, socle::vue_l1 texte,
                                   const utl_02_options_canal& options = {});

/// Drawing in the HTML note: a file, by a path relative to the note, and its size in pixels.
void utl_02_ecrire_inclusion_objet_html(socle::vue_l1 fichier, int largeur, int hauteur,
                                        const utl_02_options_canal& options = {});

/// Layout of the HTML note: end of floating items, line break.
void utl_02_ecrire_cleaner_html(const utl_02_options_canal& options = {});
void utl_02_ecrire_passage_ligne_html(const utl_02_options_canal& options = {});

/// Ends of both notes: the summary of the HTML note, the closing words of the text note. Their channels are
/// let go: what is written afterwards goes nowhere. A list left open is told in the text note.
void utl_02_finaliser(const utl_02_options_canal& options = {});
