#pragma once
// The DIME command: the least steel of the zones of bars that design may change, for one or several loadings.
//
// All load cases of a loading go to the engine's optimisation together, which gives each zone a fill
// coefficient: its steel over the steel that the data gave it. Over the loadings the greatest coefficient of
// each zone counts. At the end the zones receive their steel: bars listed one by one keep their places and
// get a diameter; bars laid automatically are chosen from the zone's catalogue. Areas in m2, lengths in m;
// the notes have cm2 and mm.

#include <string>
#include <vector>

#include "QB7_Types.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

struct zof_ferraillage;

struct gestion_dimensionnement_t {
  // Fill coefficients, of zof_double; the k-th is of the k-th zone of bars that design may change.
  uef_vector zof_mod_rem_zone_dim_toutes_sollicitations;         ///< the greatest over the loadings
  uef_vector zof_mod_rem_zone_dim_sollicitation_ite_courante;    ///< of the present loading
  uef_vector zof_mod_rem_zone_dim_sollicitation_ite_precedente;  ///< of the iteration before
  int dim_glo_iteration = 1;                                     ///< of the present loading, from 1
};
extern gestion_dimensionnement_t gestion_dimensionnement;
void gestion_dimensionnement_reinitialiser();

/// How the design of a loading ended.
enum class zof_statut_dimensionnement : int { resolu = 1, echec = 2, non_optimal = 3 };

/// The load cases of a loading, as the engine takes them; the lists have one length.
struct zof_cas_dimensionnement {
  std::vector<socle::texte<32>> les_label_situation;
  std::vector<socle::texte<32>> les_label_etat_limite;
  std::vector<std::string> les_titre_effort;
  std::vector<int> les_num_etat_lim_qb7;
  std::vector<int> les_etats_efforts;  ///< state of the section that each case finds
  std::vector<efforts> les_efforts_section;
};

/// The whole command, behind the word DIME. A design that fails under the last loading raises erco, and
/// leaves the zones as they were.
void zof_traiter_dimensionnement(bool& erco);

/// A loading of a reinforced concrete section, without construction phases.
zof_statut_dimensionnement zof_dimensionner_ba(const socle::texte<32>& nom_section,
                                               const socle::texte<32>& nom_sollicitations,
                                               bool editer_resultats);

/// Reports the cases if editer_resultats, designs, reports the steel that was found.
zof_statut_dimensionnement zof_dimensionner_section(const socle::texte<32>& nom_section,
                                                    const socle::texte<32>& nom_sollicitations,
                                                    const zof_cas_dimensionnement& cas, int num_section_qb7,
                                                    bool editer_resultats);

/// Tells the steel of each zone under a loading, and keeps its coefficient as that of the present iteration.
void zof_lister_aciers_dimensionnes(const socle::texte<32>& nom_section,
                                    const socle::texte<32>& nom_sollicitations, int num_section_qb7);

/// Takes the coefficients that stand in the engine into the envelope of the loadings.
void zof_envelopper_aciers_dimensionnes_toutes_sollicitations(const socle::texte<32>& nom_section);

// ---- The steel that the zones receive, from the envelope

/// Bars listed one by one: the coefficient of the envelope, and the least diameter in whole millimetres.
void zof_affecter_aciers_dimensionnes(const socle::texte<32>& nom_section, int num_section_qb7);

/// Bars laid automatically.
void zof_ajuster_ferraillages_automatiques(const socle::texte<32>& nom_section, int num_section_qb7,
                                           bool& reussite_ajustement_ferraillage, bool& presence_automatique,
                                           bool& erco);

/// One such zone: the first bar of its catalogue that has the area, at the places that stand; or the last
/// one, and as many bars as it takes. ferraillage_ajuste: the spacings are those of the data.
void zof_ajuster_ferraillage_automatique(zof_ferraillage& zone, int num_section_qb7,
                                         double aire_acier_necessaire, bool& ferraillage_ajuste,
                                         double& aire_acier_effective, bool& erco);
