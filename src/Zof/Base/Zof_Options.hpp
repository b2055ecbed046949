// Run-wide options and names, set by the driver and by OPTI, read by the analyses and by what writes files.
#pragma once

#include "Texte.hpp"

/// What a calculation with return to state 0 takes up again.
enum class retour_etat_0 : int { instantane = 1, identique = 2 };

struct zof_options_t {
  bool zof_edition_txt = true;
  bool zof_edition_html = true;
  bool zof_option_retour_etat_0 = false;
  retour_etat_0 zof_type_option_retour_etat_0 = retour_etat_0::identique;
  bool zof_option_loi_ponderee = true;
  double zof_option_ponderation_lois_ct_lt = 0.25;  // weight of the short-term law

  socle::texte<256> glo_racine_nom_fichier;        // directory part and root
  socle::texte<256> glo_racine_nette_nom_fichier;  // root alone
  socle::texte<256> glo_racine_nom_fichier_svg;    // directory of the drawings, with a final "\"
  socle::texte<256> glo_repertoire_svg;            // the same, relative: the form of links
};
extern zof_options_t zof_options;
void zof_options_reinitialiser();
