#include "Zof_Classe_Section.hpp"

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

#include "And_anadon.hpp"
#include "Zof_Classe_Materiau.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Zone.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

std::unique_ptr<zof_zone> loc_nouvelle_zone(nature_zone nature) {
  switch (nature) {
    case nature_zone::contour: return std::make_unique<zof_contour>();
    case nature_zone::evidement: return std::make_unique<zof_evidement>();
    case nature_zone::gaines: return std::make_unique<zof_gaines>();
    case nature_zone::charpente_externe:
    case nature_zone::charpente_interieure: return std::make_unique<zof_charpente>();
    case nature_zone::precontrainte: return std::make_unique<zof_precontrainte>();
    case nature_zone::ferraillage: break;
  }
  return std::make_unique<zof_ferraillage>();
}

// What a new zone takes from what holds it: numbers, symmetry, kind of section.
void loc_initialiser_zone(zof_zone& zone, const texte<32>& nom, zof_section& section,
                          zof_zone_generalisee& mere) {
  zof_assert(!zone.is_zone_deja_creee(), "Zone deja initialisee");
  zone.set_zone_deja_creee(true);
  zone.m_p_section_mere = &section;
  zone.m_p_zone_mere = &mere;
  zone.set_nom_zone(nom);
  zone.set_numero_section_qb7(mere.get_numero_section_qb7());
  zone.set_symetrie(mere.get_symetrie());
  zone.set_section_precontrainte(mere.is_section_precontrainte());
  mere.inc_numero_courant_qb7_zone_generalisee();
  zone.set_numero_zone_qb7(mere.get_numero_courant_qb7_zone_generalisee());
  zone.m_numero_mere_zone_qb7 = &mere == &section ? qb7_sans_mere : mere.get_numero_zone_qb7();
  zone.m_les_points_zone.creer(concat({nom.utile(), "m_les_points"}), zof_point());
}

void loc_ajouter(uef_vector& liste, zof_zone_generalisee& zone) {
  liste.ajouter(zof_zone_generalisee_pointeur(&zone));
}

void loc_lire_titre(zof_section& section, bool& erco) {
  zof_non_repetition_chaine("TITR", section.m_titre_zone, erco);
  if (!erco) zof_decoder_titre(section.m_titre_zone, erco);
}

void loc_lire_symetrie(zof_section& section, bool& erco) {
  zof_non_repetition_integer("SYME", section.get_symetrie(), erco);
  if (erco) return;
  zof_assert_commande(section.zones().empty(), "Cette option doit preceder la definition des zones", erco);
  if (erco) return;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "Y"_mot: section.set_symetrie(symetrie_y); break;
    case "Z"_mot: section.set_symetrie(symetrie_z); break;
    case "YZ"_mot: section.set_symetrie(symetrie_yz); break;
    default: zof_attribut_incorrect(mot, erco);
  }
}

void loc_finir_section(const zof_section& section, bool& erco) {
  zof_controle_mot_fin("FIN_SECT");
  zof_assert_renseigne_chaine(section.m_titre_zone, "Titre", erco);
  zof_assert_commande(!section.zones().empty(), "Aucune entite definie dans section", erco);
}

}  // namespace

void zof_section::decoder_zone(bool& erco) {
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    switch (clef(mot)) {
      case "TITR"_mot: loc_lire_titre(*this, erco); break;
      case "SYME"_mot: loc_lire_symetrie(*this, erco); break;
      case "CONT"_mot: decoder_sous_section(nature_zone::contour, erco); break;
      case "CHAR"_mot: decoder_sous_section(nature_zone::charpente_externe, erco); break;
      case "PREC"_mot: decoder_sous_section(nature_zone::precontrainte, erco); break;
      default: zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
  if (erco) return;
  loc_finir_section(*this, erco);
  if (!erco) lister_materiaux();
}

// The main material is that of the last concrete; without concrete, that of the first zone that has one.
void zof_section::decoder_sous_section(nature_zone nature, bool& erco) {
  texte<32> nom;
  zof_decoder_nom_zone(*this, nom, erco);
  if (erco) return;
  zof_zone& zone = ajouter_zone(nature, nom, *this);
  zone.decoder_zone(erco);
  if (erco) return;
  texte<32>& principal = m_nom_materiau_principal.m_nom;
  const int type = zof_type_materiau(zone.m_nom_materiau_zone);
  const bool beton = nature == nature_zone::contour &&
                     (type == type_materiau_beton || type == type_materiau_beton_precontraint);
  const bool retenu = nature == nature_zone::contour || nature == nature_zone::charpente_externe;
  if (beton || (retenu && !est_renseigne_chaine(principal))) principal = zone.m_nom_materiau_zone;
}

zof_zone& zof_section::ajouter_zone(nature_zone nature, const texte<32>& nom, zof_zone_generalisee& mere) {
  std::unique_ptr<zof_zone> nouvelle = loc_nouvelle_zone(nature);
  zof_zone& zone = *nouvelle;
  gestion_section.zof_mod_les_zones.push_back(std::move(nouvelle));
  zone.m_est_sous_section = &mere == this;
  loc_ajouter(mere.m_les_zones, zone);
  loc_ajouter(m_toutes_les_zones_de_la_section, zone);
  zones_.push_back(&zone);
  zones_par_nom_.emplace(nom.utile(), &zone);
  loc_initialiser_zone(zone, nom, *this, mere);
  if (zof_zone* const zone_mere = zone.zone_mere()) zone_mere->noter_contenu(nature);
  return zone;
}

zof_zone* zof_section::pointer_zone(const texte<32>& nom) const {
  const auto trouvee = zones_par_nom_.find(std::string(nom.utile()));
  return trouvee == zones_par_nom_.end() ? nullptr : trouvee->second;
}

void zof_section::controle_section(bool& erco) const {
  for (const zof_zone* const zone : zones_) zone->controle_points_interieurs_zone(erco);
}

void zof_section::lister_materiaux() {
  for (const zof_zone* const zone : zones_) {
    for (const texte<32>& nom : zone->noms_materiaux())
      if (!zof_existe_nom(m_tous_les_materiaux_de_la_section, nom))
        m_tous_les_materiaux_de_la_section.ajouter(zof_nom(nom));
  }
}

int zof_section::numero_point_max_section() const {
  int numero = 0;
  for (const auto& p : uef_parcours<zof_zone_generalisee_pointeur>(m_les_zones))
    numero = std::max(numero, static_cast<const zof_zone*>(p.m_pt_zone)->numero_point_max_recursif());
  return numero;
}

void zof_section::emprise_section() {
  constexpr double infini = std::numeric_limits<double>::infinity();
  m_y_min_max = {infini, -infini};
  m_z_min_max = {infini, -infini};
  for (const zof_zone* const zone : zones_) zone->etendre_emprise(m_y_min_max, m_z_min_max);
}
