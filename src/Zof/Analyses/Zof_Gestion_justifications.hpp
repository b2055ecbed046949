#pragma once
// The JUST command: does the section stand under loadings that are declared, and with which strains and
// stresses.
//
// For each load case of each limit state the engine gives the strain plane in equilibrium with the forces,
// and says whether the limit strains of the materials hold (EN 1992-1-1 6.1, 7.2). A case that fails is a
// result: it is told in the notes and on the console, and the run goes on. Forces in MN and MN.m, stresses in
// MPa, compression positive.

#include <optional>
#include <span>
#include <string>

#include "QB7_Types.hpp"
#include "Texte.hpp"
#include "Zof_Classe_Effort.hpp"
#include "Zof_Gestion_Section.hpp"

struct gestion_justifications_t {
  bool mod_glo_afficher_interactions = false;  ///< the command draws interaction diagrams
  socle::texte<4> mod_glo_composante_fixee = "MZ";
  double mod_glo_valeur_fixee = 0;  ///< of that component of the forces
  int mod_glo_no_diagramme = 0;     ///< number of the last diagram of the run
  bool mod_glo_sollicitation_en_repere_brut = false;
};
extern gestion_justifications_t gestion_justifications;
void gestion_justifications_reinitialiser();

/// What the load cases of one limit state have in common.
struct zof_cadre_justification {
  socle::texte<32> nom_section;
  socle::texte<32> label_situation;
  socle::texte<32> label_etat_limite;
  bool controle_bornes =
      true;  ///< equilibrium within the limit strains of the laws; else whatever the strains
  int num_section_qb7 = 0;
  int num_etat_lim_qb7 = 0;
};

/// The whole command, behind the word JUST.
void zof_traiter_justifications(bool& erco);

/// Reinforced concrete, or any section without prestress; no construction phases.
void zof_justifier_sollicitations_ba(const socle::texte<32>& nom_section,
                                     const socle::texte<32>& nom_sollicitations, bool controle_bornes,
                                     bool pivot_c_justifie);

/// One load case: solves, and reports if editer. True if it is in equilibrium within the limit strains; the
/// plane is the increment over those that the zones carry. opt_commentaires: bullets under the title.
bool zof_solliciter_section(const zof_cadre_justification& cadre, socle::vue_l1 titre_efforts,
                            const efforts& efforts_section, bool editer, deformation& deform_section,
                            std::span<const std::string> opt_commentaires = {});

/// Strain at the centroid of the gross section against that of the peak of the concrete's diagram: a section
/// wholly in compression turns about its pivot C (EN 1992-1-1 6.1, figure 6.1).
void zof_justifier_pivot_c(const zof_cadre_justification& cadre, const deformation& deform_section);

/// Load cases that are plotted on an interaction diagram, each of list 1 with each of list 2; and the tendons
/// under tension (positive, MPa), whose own force is shown beside them.
struct zof_cas_interactions {
  std::span<const zof_effort> opt_les_efforts_1 = {};
  std::span<const zof_effort> opt_les_efforts_2 = {};  ///< empty: those of list 1 alone
  std::span<const double> opt_les_tensions = {};
  std::span<const int> opt_les_zones_cables = {};  ///< as many as tensions
  /// Whether the forces of the cases hold the isostatic effect of the tendons; not given without tendons.
  std::optional<bool> opt_prec_iso_incluse = {};
};
/// Interaction diagram in the notes, of the section as it stands in the engine and in its frame of loading;
/// the plane is that of the INTE option. An empty one is told, and nothing is drawn.
void zof_afficher_interactions(bool controle_bornes, const zof_cadre_justification& cadre,
                               const zof_cas_interactions* opt_cas = nullptr);

// ---- Strains and stresses in the notes, under a plane of the section

/// Tables of all zones that are active; voids and ducts have none.
void zof_editer_deformations_contraintes_section(const socle::texte<32>& nom_section, int num_section_qb7,
                                                 int num_etat_lim_qb7, const deformation& deform_section);
/// A contour, or bars: one row a point.
void zof_editer_deformations_contraintes_zone(const zof_zone& zone, int num_section_qb7, int num_zone_qb7,
                                              int num_etat_lim_qb7, const deformation& deform_section);
/// A group of tendons: one row an active tendon.
void zof_editer_deformations_contraintes_zone_precontrainte(const zof_precontrainte& zone,
                                                            int num_section_qb7, int num_etat_lim_qb7,
                                                            const deformation& deform_section);
/// A steel frame: one table an active profile.
void zof_editer_deformations_contraintes_zone_charpente(const zof_charpente& zone, int num_section_qb7,
                                                        int num_etat_lim_qb7,
                                                        const deformation& deform_section);
/// Line of zero strain in the axes in which the section is drawn; the plane of the zone adds to that of the
/// section.
void zof_editer_axe_neutre(int num_section_qb7, const deformation& deformee_zone,
                           const deformation& deform_section);
