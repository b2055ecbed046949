// The HTML note: form of each item. The callers are the general operations of UTL_02_Ecriture_Resu.
#pragma once

#include <string_view>

#include "Systeme.hpp"
#include "UTL_01_Types.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "UTL_02_decoupe.hpp"

void utl_02_ecrire_entete_html(socle::sortie& unite, std::string_view titre, std::string_view sous_titre);
/// rang: place of the title in the summary, from 1; 0: not in it.
void utl_02_ecrire_titre_html(socle::sortie& unite, std::string_view titre, int niveau, int rang,
                              const utl_02_options& options);
void utl_02_ecrire_texte_html(socle::sortie& unite, std::string_view texte, const utl_02_options& options);
void utl_02_ecrire_note_html(socle::sortie& unite, std::string_view texte, const utl_02_options& options);
void utl_02_ecrire_avertissement_html(socle::sortie& unite, std::string_view texte,
                                      const utl_02_options& options);
void utl_02_debut_puce_html(socle::sortie& unite);
void utl_02_ecrire_puce_html(socle::sortie& unite, std::string_view texte, const utl_02_options& options);
void utl_02_fin_puce_html(socle::sortie& unite);
void utl_02_ecrire_tableau_html(socle::sortie& unite, const utl_01_type_tableau& tableau,
                                const utl_02_decoupe& decoupe, const utl_02_options_tableau& options);
void utl_02_ecrire_lien_html(socle::sortie& unite, std::string_view cible, std::string_view texte);
void utl_02_finaliser_html(socle::sortie& unite);
