#include "Zof_Lecture_Analyses.hpp"

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"

using namespace socle;

void zof_lire_choix(mot_clef oui, bool& choix, bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  if (clef(mot) == oui)
    choix = true;
  else if (clef(mot) == "NON_"_mot)
    choix = false;
  else
    zof_attribut_incorrect(mot, erco);
}
