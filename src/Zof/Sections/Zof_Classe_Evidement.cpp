#include "Zof_Classe_Evidement.hpp"

#include "Zof_Erreurs.hpp"

using namespace socle;

bool zof_evidement::admet(nature_zone nature_fille) const {
  return nature_fille == nature_zone::precontrainte || nature_fille == nature_zone::contour ||
         nature_fille == nature_zone::charpente_interieure;
}

// Nothing uses the diameter of a void: it is read so that files which give one stay accepted.
void zof_evidement::decoder_diametre(bool& erco) { lire_diametre(erco); }

void zof_evidement::traiter_zone(bool& erco) {
  controle_nombre_points("  Un evidement non partiel doit comporter au moins trois points ",
                         "  Symetrie : Y ou Z : Un evidement partiel doit comporter au moins deux points ",
                         erco);
  if (erco) return;
  m_type_zone_qb7 = qb7_zone_contour;
  finaliser_zone(erco);
}

bool zof_evidement::point_interieur_zone(point_yz p) const { return contour_.contient(p); }
