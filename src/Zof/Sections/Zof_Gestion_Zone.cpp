#include "Zof_Gestion_Zone.hpp"

#include <optional>
#include <vector>

#include "And_anadon.hpp"
#include "Zof_Classe_Section.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

namespace {

constexpr std::string_view forme_redefinie = "Il est interdit de redefinir une forme typee";
constexpr std::string_view forme_et_points = "Il est interdit de definir des points avec une forme typee";

std::optional<nature_zone> loc_nature(const texte<4>& mot) {
  switch (clef(mot)) {
    case "CONT"_mot: return nature_zone::contour;
    case "EVID"_mot: return nature_zone::evidement;
    case "FERR"_mot: return nature_zone::ferraillage;
    case "GAIN"_mot: return nature_zone::gaines;
    case "PREC"_mot: return nature_zone::precontrainte;
    case "CHAR"_mot: return nature_zone::charpente_interieure;
    default: return std::nullopt;
  }
}

void loc_lire_titre(zof_zone& zone, bool& erco) {
  zof_non_repetition_chaine("TITR", zone.m_titre_zone, erco);
  if (!erco) zof_decoder_titre(zone.m_titre_zone, erco);
}

void loc_lire_dimensionnable(bloc_zone& bloc, bool& erco) {
  zof_non_repetition_mot_clef(bloc.dimensionnable_lu, "DIME", erco);
  if (erco) return;
  bloc.dimensionnable_lu = true;
  bloc.zone->decoder_dimensionnable(erco);
}

// A typed form is whole: it is not completed by symmetry.
void loc_lire_partielle(zof_zone& zone, bool& erco) {
  zof_non_repetition_mot_clef(zone.m_zone_partielle, "PART", erco);
  if (erco) return;
  zof_assert_commande(!est_renseigne_integer(zone.m_forme_zone), forme_redefinie, erco);
  if (erco) return;
  zof_assert_commande(est_renseigne_integer(zone.get_symetrie()),
                      " l option PARTIELLE ne doit etre définie que si l option SYMETRIE est activee"_l1,
                      erco);
  zof_assert_commande(zone.m_les_zones.nombre() == 0, " l option PARTIELLE doit preceder les sous zones",
                      erco);
  zone.m_zone_partielle = true;
}

void loc_lire_points(zof_zone& zone, bool& erco) {
  zof_assert_commande(!est_renseigne_integer(zone.m_forme_zone), forme_et_points, erco);
  if (!erco) zone.decoder_points(erco);
}

// A form stands in a contour or a void, once, and instead of points; a void takes no hollow form, whose void
// would stand in a void.
struct forme_typee {
  std::string_view nom;
  bool creuse;
  void (zof_zone::*decoder)(bool& erco);
  forme_zone numero;
};

std::optional<forme_typee> loc_forme(const texte<4>& mot) {
  using z = zof_zone;
  using f = forme_zone;
  switch (clef(mot)) {
    case "RECT"_mot: return forme_typee{"RECTANGLE", false, &z::decoder_zone_rectangle, f::rectangle};
    case "REC_"_mot:
      return forme_typee{"RECTANGLE_EVIDE", true, &z::decoder_zone_rectangle_evide, f::rectangle_evide};
    case "CIRC"_mot: return forme_typee{"CIRCULAIRE", false, &z::decoder_zone_circulaire, f::cercle};
    case "TUBE"_mot: return forme_typee{"TUBE", true, &z::decoder_zone_tube, f::tube};
    case "TE"_mot: return forme_typee{"TE", false, &z::decoder_zone_en_te, f::te};
    case "TE_E"_mot:
      return forme_typee{"TE_ENCORBELLEMENT", false, &z::decoder_zone_te_encorbellement,
                         f::te_encorbellement};
    case "I_SY"_mot: return forme_typee{"I_SYMETRIQUE", false, &z::decoder_zone_en_i, f::en_i};
    case "I_NO"_mot:
      return forme_typee{"I_NON_SYMETRIQUE", false, &z::decoder_zone_en_i_non_symetrique,
                         f::en_i_non_symetrique};
    case "CAIS"_mot: return forme_typee{"CAISSON", true, &z::decoder_zone_caisson, f::caisson};
    default: return std::nullopt;
  }
}

void loc_lire_forme(zof_zone& zone, const texte<4>& mot, const forme_typee& forme, bool& erco) {
  if (!zone.admet_forme()) return zof_attribut_incorrect(forme.nom, erco);
  if (forme.creuse && zone.nature() == nature_zone::evidement) return zof_attribut_incorrect(mot, erco);
  zof_assert_commande(!est_renseigne_integer(zone.m_forme_zone) && !zone.m_zone_partielle, forme_redefinie,
                      erco);
  if (erco) return;
  zof_assert_commande(zone.m_les_points_zone.nombre() == 0, forme_et_points, erco);
  if (erco) return;
  zone.set_forme_zone(static_cast<int>(forme.numero));
  (zone.*forme.decoder)(erco);
}

void loc_lire_mot(bloc_zone& bloc, const texte<4>& mot, bool& erco) {
  zof_zone& zone = *bloc.zone;
  switch (clef(mot)) {
    case "TITR"_mot: return loc_lire_titre(zone, erco);
    case "MATE"_mot: return zone.decoder_materiau(erco);
    case "DIAM"_mot: return zone.decoder_diametre(erco);
    case "DIME"_mot: return loc_lire_dimensionnable(bloc, erco);
    case "AIRE"_mot: return zone.decoder_aire(erco);
    case "PROF"_mot: return zone.decoder_profils(erco);
    case "POIN"_mot: return loc_lire_points(zone, erco);
    case "OPTI"_mot: return zone.decoder_options_ferraillage(erco);
    case "LITS"_mot: return zone.decoder_lits(erco);
    case "PART"_mot: return loc_lire_partielle(zone, erco);
    default: break;
  }
  if (const auto forme = loc_forme(mot)) return loc_lire_forme(zone, mot, *forme, erco);
  zof_attribut_incorrect(mot, erco);
}

// The end of a block: its word where it has one of its own, then the checks and the engine.
void loc_finir(zof_zone& zone, bool& erco) {
  if (!zone.mot_fin().empty()) zof_controle_mot_fin(zone.mot_fin());
  zone.decoder_fin_zone(erco);
}

}  // namespace

void zof_decoder_nom_zone(const zof_section& section, texte<32>& nom, bool& erco) {
  and_lire_nom(nom, 32, erco);
  if (erco) return;
  zof_assert_commande(section.pointer_zone(nom) == nullptr, " Cette zone existe deja ", erco);
}

// Zones may nest to any depth: those that are open stand in a list, not on the machine's stack.
void zof_zone::decoder_zone(bool& erco) {
  std::vector<bloc_zone> ouverts{{this}};
  while (!ouverts.empty()) {
    bloc_zone& bloc = ouverts.back();
    texte<4> mot;
    and_lire_deb_nom(mot, 4, erco);
    if (erco) return;
    if (const auto nature_fille = loc_nature(mot)) {
      if (!bloc.zone->admet(*nature_fille)) return zof_attribut_incorrect(mot, erco);
      zof_zone* const fille = bloc.zone->decoder_sous_zone(*nature_fille, erco);
      if (!erco) ouverts.push_back({fille});
    } else if (clef(mot) == "FIN_"_mot) {
      loc_finir(*bloc.zone, erco);
      ouverts.pop_back();
    } else {
      loc_lire_mot(bloc, mot, erco);
    }
    if (erco) return;
  }
}

zof_zone* zof_zone::decoder_sous_zone(nature_zone nature_fille, bool& erco) {
  texte<32> nom;
  zof_decoder_nom_zone(*m_p_section_mere, nom, erco);
  return erco ? nullptr : &creer_sous_zone(nature_fille, nom);
}

zof_zone& zof_zone::creer_sous_zone(nature_zone nature_fille, const texte<32>& nom) {
  return m_p_section_mere->ajouter_zone(nature_fille, nom, *this);
}

bool zof_zone::admet(nature_zone) const { return false; }

// ---- Keywords of the block that are common to several kinds

void zof_zone::decoder_materiau(bool& erco) { zof_attribut_incorrect("Materiau", erco); }
void zof_zone::decoder_diametre(bool& erco) { zof_attribut_incorrect("Diametre", erco); }
void zof_zone::decoder_dimensionnable(bool& erco) { zof_attribut_incorrect("DIME", erco); }
void zof_zone::decoder_aire(bool& erco) { zof_attribut_incorrect("AIRE", erco); }
void zof_zone::decoder_profils(bool& erco) { zof_attribut_incorrect("PROF", erco); }
void zof_zone::decoder_groupe(bool& erco) { zof_attribut_incorrect("GROU", erco); }
void zof_zone::decoder_options_ferraillage(bool& erco) {
  zof_attribut_incorrect("OPTION_FERRAILLAGE_AUTOMATIQUE", erco);
}
void zof_zone::decoder_lits(bool& erco) { zof_attribut_incorrect("LITS", erco); }

int zof_zone::lire_materiau(bool& erco) {
  zof_non_repetition_chaine("MATE", m_nom_materiau_zone, erco);
  if (erco) return non_renseigne;
  texte<32> nom;
  and_lire_nom(nom, 32, erco);
  if (erco) return non_renseigne;
  const int numero = zof_get_materiau_numero_qb7(nom);
  zof_assert_commande(est_renseigne_integer(numero), concat({" Materiau non défini :"_l1, nom.entier()}),
                      erco);
  if (erco) return non_renseigne;
  m_nom_materiau_zone = nom;
  m_numero_materiau_qb7 = numero;
  return zof_type_materiau(nom);
}

void zof_zone::lire_diametre(bool& erco) {
  zof_non_repetition_double("DIAM", m_diametre_zone, erco);
  if (erco) return;
  and_lire_reel_d(m_diametre_zone, erco);
  if (erco) return;
  zof_assert_commande(m_diametre_zone > 0, " Attribut diametre incorrect : <=0 ", erco);
}

void zof_zone::decoder_fin_zone(bool& erco) { traiter_zone(erco); }
