// Arrays of numbers to cells, tables joined, texts made safe for HTML.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "Texte.hpp"
#include "UTL_01_Types.hpp"

/// Rewrites in place the characters that the HTML note can't hold as they stand: a code from 128 to 255
/// becomes its decimal reference, 233 "&#233;". All others stay, "<", ">" and "&" included.
void utl_03_caractere_interdit_html(std::string& texte);

/// Each integer to a cell, at its start. opt_longueur: the characters at most, beyond them asterisks.
void utl_03_convertir_tableau_i_txt(std::span<const int> tableau_i, std::span<socle::texte<80>> tableau_txt,
                                    std::optional<int> opt_longueur = {});

/// Each double to a cell, at its start. opt_fmt: an edit descriptor such as "(F8.3)"; opt_i_fmt: the number
/// of decimals of a fixed form. Neither, or a descriptor that can't be read: G15.5.
void utl_03_convertir_tableau_dp_txt(std::span<const double> tableau_dp,
                                     std::span<socle::texte<80>> tableau_txt, socle::vue_l1 opt_fmt = "",
                                     std::optional<int> opt_i_fmt = {});

/// Two tables side by side; missing cells are blank. Style and title are those given, else those of the
/// first.
void utl_03_fusion_laterale_tab(const utl_01_type_tableau& obj_tab_1, const utl_01_type_tableau& obj_tab_2,
                                utl_01_type_tableau& obj_tab_fusion, std::optional<int> opt_contour_tab = {},
                                socle::vue_l1 opt_titre = "");

/// The second table under the first; missing cells are blank. Style and title as above.
void utl_03_fusion_horizontale_tab(const utl_01_type_tableau& obj_tab_1, const utl_01_type_tableau& obj_tab_2,
                                   utl_01_type_tableau& obj_tab_fusion,
                                   std::optional<int> opt_contour_tab = {}, socle::vue_l1 opt_titre = "");

/// A list of tables joined: dimen 1, each under the one before; dimen 2, side by side.
void utl_03_fusion_multiple(std::span<const utl_01_type_tableau> tab_obj_tab, int dimen,
                            utl_01_type_tableau& obj_tab_fusion);
