// The text note: form of each item. The callers are the general operations of UTL_02_Ecriture_Resu.
#pragma once

#include <string_view>

#include "Systeme.hpp"
#include "UTL_01_Types.hpp"
#include "UTL_02_decoupe.hpp"

void utl_02_ecrire_entete_txt(socle::sortie& unite, std::string_view titre, std::string_view sous_titre);
void utl_02_ecrire_titre_txt(socle::sortie& unite, std::string_view titre, int niveau);
void utl_02_ecrire_texte_txt(socle::sortie& unite, std::string_view texte);
void utl_02_debut_puce_txt();
void utl_02_ecrire_puce_txt(socle::sortie& unite, std::string_view texte);
void utl_02_fin_puce_txt();
void utl_02_ecrire_tableau_txt(socle::sortie& unite, const utl_01_type_tableau& tableau,
                               const utl_02_decoupe& decoupe);
void utl_02_ecrire_saut_page_txt(socle::sortie& unite);
void utl_02_finaliser_txt(socle::sortie& unite);
