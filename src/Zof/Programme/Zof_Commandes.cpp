#include "Zof_Commandes.hpp"

#include "And_anadon.hpp"
#include "And_global.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Gestion_dimensionnement.hpp"
#include "Zof_Gestion_interactions.hpp"
#include "Zof_Gestion_justifications.hpp"
#include "Zof_Options.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

void loc_titrer(bool& erco) {
  texte<80> titre;
  zof_decoder_titre(titre, erco);
  if (!erco) utl_02_ecrire_titre(titre.utile(), 1);
}

/// Options rule the laws of the materials: they must come before the first of them.
void loc_opter(const texte<4>& mot, bool materiau, bool& erco) {
  if (materiau) zof_attribut_incorrect(mot, erco);
  if (!erco) zof_decoder_options(erco);
}

void loc_executer(const texte<4>& mot, bool& materiau, bool& erco) {
  switch (clef(mot)) {
    case "TITR"_mot: loc_titrer(erco); break;
    case "OPTI"_mot: loc_opter(mot, materiau, erco); break;
    case "MATE"_mot:
      materiau = true;
      zof_decoder_creer_materiau(erco);
      break;
    case "SECT"_mot: zof_decoder_creer_section(erco); break;
    case "SOLL"_mot: zof_decoder_sollicitations(erco); break;
    case "JUST"_mot: zof_traiter_justifications(erco); break;
    case "INTE"_mot: zof_traiter_interactions(erco); break;
    case "DIME"_mot: zof_traiter_dimensionnement(erco); break;
    case "EDIT"_mot: zof_editer(erco); break;
    default: zof_attribut_incorrect(mot, erco); break;
  }
}

/// The word behind RETO is optional: one that is neither INST nor IDEN is the next command.
void loc_lire_type_retour(bool& erco) {
  zof_options.zof_type_option_retour_etat_0 = retour_etat_0::identique;
  and_lire_terme(erco);
  if (erco) return;
  and_relire_donnee();
  if (and_global.and_type_terme != type_terme::nom) return;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (mot == "INST")
    zof_options.zof_type_option_retour_etat_0 = retour_etat_0::instantane;
  else if (mot != "IDEN")
    and_relire_donnee();
}

}  // namespace

void zof_executer_commandes(bool& erco) {
  bool materiau = false;
  for (;;) {
    texte<4> mot;
    and_lire_deb_nom(mot, 4, erco);
    if (erco || mot == "FIN_") return;
    loc_executer(mot, materiau, erco);
    if (erco) return;
  }
}

void zof_decoder_options(bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "RETO"_mot:
      zof_options.zof_option_retour_etat_0 = true;
      zof_options.zof_option_loi_ponderee = false;
      zof_options.zof_option_ponderation_lois_ct_lt = 0;
      loc_lire_type_retour(erco);
      break;
    case "POND"_mot:
      zof_options.zof_option_retour_etat_0 = false;
      zof_options.zof_option_loi_ponderee = true;
      zof_options.zof_option_ponderation_lois_ct_lt = 0.25;
      break;
    default: zof_attribut_incorrect(mot, erco); break;
  }
}

void zof_editer(bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "SECT"_mot: zof_editer_dessiner_sections(erco); break;
    case "MATE"_mot: zof_editer_materiaux(erco); break;
    case "SOLL"_mot: zof_editer_sollicitations_sections(); break;
    default: zof_attribut_incorrect(mot, erco); break;
  }
}
