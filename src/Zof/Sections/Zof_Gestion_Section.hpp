#pragma once
// The sections of a run: the command SECT that reads them, and what loadings and analyses ask of them by
// name.
//
// A section is known by its name, 32 characters. Except zof_existe_section and zof_get_pt_section, the
// operations take the name of a section that exists; another one is an internal fault that ends the run.
// Ranks run from 1. Lengths in metres, angles in radians.

#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "QB7_Sections.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Section.hpp"

struct gestion_section_t {
  int zof_mod_numero_courant_section_qb7 = 0;                           // the last number given
  uef_vector zof_mod_les_sections;                                      // of zof_zone_generalisee_pointeur
  std::deque<std::unique_ptr<zof_zone_generalisee>> zof_mod_les_zones;  // sections and zones live here
  std::unordered_map<std::string, zof_section*> zof_mod_sections_par_nom;
  int no_dessin = 0;  // of the last drawing of the run
};
extern gestion_section_t gestion_section;
void gestion_section_reinitialiser();

// ---- Commands. Every operation returns as soon as erco is true.

/// The command SECT: name and block up to FIN_SECT.
void zof_decoder_creer_section(bool& erco);

/// The command EDIT SECT: "TOUT" or the name of a section; title, drawings, properties and zones in the
/// notes.
void zof_editer_dessiner_sections(bool& erco);

// ---- Queries

bool zof_existe_section(const socle::texte<32>& nom_section);
/// Null if there is no section of that name.
zof_section* zof_get_pt_section(const socle::texte<32>& nom_section);

int zof_get_numero_qb7_section(const socle::texte<32>& nom_section);

/// Material of the section's concrete, or of its frame: not given if the section has neither.
socle::texte<32> zof_get_nom_materiau_principal_section(const socle::texte<32>& nom_section);
/// The materials of the section, each once, in the order of the zones; those of profiles included.
int zof_get_nombre_materiau_section(const socle::texte<32>& nom_section);
socle::texte<32> zof_get_nom_materiau_section(const socle::texte<32>& nom_section, int i);

/// All zones of the section at any depth, in the order of their declaration: a mother before her children.
int zof_get_nombre_zones_section(const socle::texte<32>& nom_section);
zof_zone* zof_get_pt_zone_section(const socle::texte<32>& nom_section, int i);
std::span<zof_zone* const> zof_lister_zones_section(const socle::texte<32>& nom_section);
/// Null if the section has no zone of that name.
zof_zone* zof_get_pt_nom_zone_section(const socle::texte<32>& nom_section, const socle::texte<32>& nom_zone);
bool zof_existe_zone_section(const socle::texte<32>& nom_section, const socle::texte<32>& nom_zone);
socle::texte<32> zof_get_nom_materiau_zone_section(const socle::texte<32>& nom_section,
                                                   const socle::texte<32>& nom_zone);
/// Number of zones of a kind, at any depth.
int zof_get_nombre_type_zone_section(const socle::texte<32>& nom_section, nature_zone nature);
/// The first contour, the first steel frame of the first level; null if there is none.
zof_contour* zof_get_pt_contour_externe(const socle::texte<32>& nom_section);
zof_charpente* zof_get_pt_charpente_externe(const socle::texte<32>& nom_section);

/// Whether all materials of the section hold the situation, and the limit state in it.
bool zof_existe_situation_section(const socle::texte<32>& nom_section,
                                  const socle::texte<32>& label_situation);
bool zof_existe_etat_limite_situation_section(const socle::texte<32>& nom_section,
                                              const socle::texte<32>& label_situation,
                                              const socle::texte<32>& label_etat_limite);
/// Number in the engine of the laws of a limit state that all materials of the section hold.
int zof_get_no_etat_limite_qb7_section(const socle::texte<32>& nom_section,
                                       const socle::texte<32>& label_situation,
                                       const socle::texte<32>& label_etat_limite);

/// Tendons: a group by its name, a tendon of it by the number of its point.
bool zof_existe_precontrainte_section(const socle::texte<32>& nom_section,
                                      const socle::texte<32>& nom_precontrainte);
bool zof_existe_cable_section(const socle::texte<32>& nom_section, const socle::texte<32>& nom_precontrainte,
                              int numero_point);
/// Engine zone of the tendon; one that does not exist ends the run.
int zof_get_numero_qb7_cable_section(const socle::texte<32>& nom_section,
                                     const socle::texte<32>& nom_precontrainte, int numero_point);
/// Greatest stress while tensioning, min(0.8 fpk, 0.9 fp0.1k) in MPa (EN 1992-1-1 5.10.2.1 (1)); nothing for
/// a material without these strengths.
std::optional<double> zof_contrainte_limite_precontrainte_section(const socle::texte<32>& nom_section,
                                                                  const socle::texte<32>& nom_precontrainte);

/// Kinds of sections: bars, bars that design may change (DIME OUI), tendons anywhere in the tree.
bool zof_est_section_ferraillee(const socle::texte<32>& nom_section);
bool zof_est_section_ferraillage_dimensionnable(const socle::texte<32>& nom_section);
bool zof_est_section_precontrainte(const socle::texte<32>& nom_section);

/// Declares to the engine the bars that design may change.
void zof_declarer_aciers_passifs_dimensionnables_section(const socle::texte<32>& nom_section);

/// Fills m_y_min_max, m_z_min_max of the section: the extent of its points, bars and ducts with half their
/// diameter.
void zof_emprise_section(zof_section& section);
/// Fills m_tous_les_materiaux_de_la_section.
void zof_lister_materiaux_section(zof_section& section);

// ---- Activity in the engine

/// All engine zones of the section inactive, without planes, all tendons without history.
void zof_desactiver_section(const socle::texte<32>& nom_section);
/// The same, then all zones active, voids and ducts included; tendons stay inactive if asked so.
void zof_activer_section(const socle::texte<32>& nom_section, bool opt_sauf_precontrainte = false);
/// The tendons inactive, nothing else.
void zof_desactiver_cables_section(const socle::texte<32>& nom_section);

/// Centroid and principal axes of the gross section: of the named zones with all that stands in them, or of
/// the whole section when no name is given. The activity of the zones is left as it was.
struct zof_repere_brut {
  double y = 0, z = 0, alpha = 0;
};
zof_repere_brut zof_get_repere_brut_section(const socle::texte<32>& nom_section,
                                            std::span<const socle::texte<32>> noms_zones = {});

// ---- In the notes

/// Title, drawings, properties and zones of a section. One that can't be drawn is refused.
void zof_editer_dessiner_section(zof_section& section, bool& erco);
