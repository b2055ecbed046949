#pragma once
// The loadings of the run: the SOLL command that reads them, and the queries that turn them into load cases.
//
// A load case is a zof_effort whose forces are weighted already (EN 1990 6.4.3, 6.5.3) and whose title tells
// where it comes from. A loading is named by its section and its own name; a limit state record by its rank
// in the loading, from 1; a phase by its rank in the record, from 1. An unknown name or rank is an internal
// fault: the reading of the data has checked them.
//
// Forces in MN and MN.m. Frame (y, z, alpha): origin in metres in the section's axes, angle in radians.

#include <span>
#include <vector>

#include "QB7_Types.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Sollicitations.hpp"

struct gestion_sollicitations_t {
  uef_vector zof_mod_les_sollicitations;      ///< of zof_sollicitations, in the order of the file
  bool zof_mod_sollicitation_phasee = false;  ///< the block being read declares phases
  // The last frame that a REPE gave. A block keeps that of the block before until its own REPE is read.
  int zof_mod_type_repere = socle::non_renseigne;
  repere zof_mod_repere_defini;
};
extern gestion_sollicitations_t gestion_sollicitations;
void gestion_sollicitations_reinitialiser();

// ---- The SOLL command. Every decoder returns as soon as erco is true.

/// The whole command, behind the word SOLL.
void zof_decoder_sollicitations(bool& erco);
/// The keywords of the block, up to FIN_SOLL.
void zof_decoder_corps_sollicitations(zof_sollicitations& sollicitations, bool& erco);
/// One ETAT block. les_enregistrements: all records of the loading so far, this one included.
void zof_decoder_efforts_etat_limite(zof_efforts_etat_limite& enregistrement,
                                     const uef_vector& les_enregistrements,
                                     const socle::texte<32>& nom_section, bool precontrainte_postendue,
                                     bool& erco);
/// Two words to the label of a limit state: ELS QUAS gives ELS_QP.
void zof_decoder_etat_limite(socle::texte<32>& label_etat_limite, bool& erco);
/// One or two words to the label of a design situation: EXPL SERV gives EXPLOITATION_SERVICE.
void zof_decoder_situation(socle::texte<32>& label_situation, bool& erco);
/// One PHAS block; the names of its zones come out in noms_zones too.
void zof_decoder_phase(zof_phase& phase, const socle::texte<32>& nom_section,
                       std::vector<socle::texte<32>>& noms_zones, bool& erco);
/// One line of load factors of a POND block.
void zof_decoder_surcharge_ponderation(zof_ponderations_gpq12& ponderations, bool& erco);
/// One EFFO block. etat_limite_pondere: the file gives weighted forces.
void zof_decoder_efforts(zof_effort& effort, const socle::texte<32>& nom_section, bool etat_limite_pondere,
                         bool& erco);
/// One MEME line: the efforts of one type are taken over from the records of another limit state.
void zof_decoder_memes_efforts(zof_efforts_etat_limite& enregistrement, bool etat_limite_pondere,
                               const uef_vector& les_enregistrements, const socle::texte<32>& nom_section,
                               bool& erco);
/// One TENS block.
void zof_decoder_tensions(zof_effort& effort, bool& erco);
/// Each tensioned cable must lie in a zone that is active in the phase.
void zof_controle_tensions_phase(const zof_effort& effort, const socle::texte<32>& nom_section,
                                 const uef_vector& noms_zones_actives, bool& erco);
/// A passage point stands once in an effort, whatever the cable.
void zof_verification_non_repetition_tension(const zof_effort& effort, const zof_tension& tension,
                                             bool& erco);
/// No name is common to the two lists.
bool zof_intersection_vide_zones_phase(std::span<const socle::texte<32>> noms_cumules,
                                       std::span<const socle::texte<32>> noms_courants);
/// Every name of the earlier phases must stand in the present one.
void zof_controle_completion_zones_phase(std::span<const socle::texte<32>> noms_cumules,
                                         std::span<const socle::texte<32>> noms_courants, bool& erco);
/// The loadings in the notes (EDIT SOLL).
void zof_editer_sollicitations_sections();

// ---- Queries

bool zof_existe_sollicitations(const socle::texte<32>& nom_section,
                               const socle::texte<32>& nom_sollicitations);
zof_sollicitations& zof_get_pt_sollicitations(const socle::texte<32>& nom_section,
                                              const socle::texte<32>& nom_sollicitations);
/// The forces of the file hold the isostatic effect of prestress.
bool zof_est_precontrainte_iso_incluse(const socle::texte<32>& nom_section,
                                       const socle::texte<32>& nom_sollicitations);
int zof_get_nb_etats_limites_sollicitations(const socle::texte<32>& nom_section,
                                            const socle::texte<32>& nom_sollicitations);

struct zof_situation_sollicitations {
  socle::texte<32> label_situation;
  socle::texte<32> label_etat_limite;
  int nb_phases = 0;
};
zof_situation_sollicitations zof_get_situation_sollicitations(const socle::texte<32>& nom_section,
                                                              const socle::texte<32>& nom_sollicitations,
                                                              int no_etat_limite);
/// The file gives weighted forces for this limit state.
bool zof_est_etat_limite_pondere(const socle::texte<32>& nom_section,
                                 const socle::texte<32>& nom_sollicitations, int no_etat_limite);
/// Frame of the loading. The raw frame is asked of the engine, for the zones that are active at this moment.
repere zof_get_repere_chargement_sollicitations(const socle::texte<32>& nom_section,
                                                const socle::texte<32>& nom_sollicitations);
socle::texte<80> zof_get_titre_phase_sollicitation(const socle::texte<32>& nom_section,
                                                   const socle::texte<32>& nom_sollicitations,
                                                   int no_etat_limite, int no_phase);
std::vector<socle::texte<32>> zof_get_zones_actives_phase_sollicitation(
    const socle::texte<32>& nom_section, const socle::texte<32>& nom_sollicitations, int no_etat_limite,
    int no_phase);

/// Factors of an action: the unfavourable one, then the favourable one.
struct zof_ponderation {
  double defavorable = 1;
  double favorable = 1;
  friend constexpr bool operator==(const zof_ponderation&, const zof_ponderation&) = default;
};
/// Factors of G, P or Q: the defaults of the limit state, or what a POND line of the loading puts in their
/// place.
zof_ponderation zof_get_ponderation_efforts(const zof_sollicitations& sollicitations,
                                            const socle::texte<32>& label_etat_limite,
                                            const socle::texte<32>& label_situation,
                                            socle::vue_l1 label_effort);

// Lists of efforts of one phase. Each is the caller's own: its records are deep copies. The counts equal the
// lengths of the lists.

/// The efforts of one label (G, P, Q, GP, GQ) as the file gives them, in its order.
int zof_get_nb_efforts_etat_limite_sollicitations(const socle::texte<32>& nom_section,
                                                  const socle::texte<32>& nom_sollicitations,
                                                  int no_etat_limite, socle::vue_l1 label_effort,
                                                  int opt_no_phase = 1);
std::vector<zof_effort> zof_get_efforts_etat_limite_sollicitations(const socle::texte<32>& nom_section,
                                                                   const socle::texte<32>& nom_sollicitations,
                                                                   int no_etat_limite,
                                                                   socle::vue_l1 label_effort,
                                                                   int opt_no_phase = 1);
/// Weighted cases of one action: per effort one case, or two where the favourable factor is another.
int zof_get_nb_efforts_etat_limite_sollicitations_ponderes(const socle::texte<32>& nom_section,
                                                           const socle::texte<32>& nom_sollicitations,
                                                           int no_etat_limite, socle::vue_l1 label_effort,
                                                           int opt_no_phase = 1);
std::vector<zof_effort> zof_get_efforts_etat_limite_sollicitations_ponderes(
    const socle::texte<32>& nom_section, const socle::texte<32>& nom_sollicitations, int no_etat_limite,
    socle::vue_l1 label_effort, int opt_no_phase = 1);
/// GQ as given, then each case of G with each case of Q. The cases of Q count even where there is no Q: a G
/// alone stands once per factor of Q.
int zof_get_nb_efforts_etat_limite_sollicitations_gq(const socle::texte<32>& nom_section,
                                                     const socle::texte<32>& nom_sollicitations,
                                                     int no_etat_limite, int opt_no_phase = 1);
std::vector<zof_effort> zof_get_efforts_etat_limite_sollicitations_gq(
    const socle::texte<32>& nom_section, const socle::texte<32>& nom_sollicitations, int no_etat_limite,
    int opt_no_phase = 1);
/// GP as given, then each case of G with each case of P; G alone or P alone where the other has no effort.
int zof_get_nb_efforts_etat_limite_sollicitations_gp(const socle::texte<32>& nom_section,
                                                     const socle::texte<32>& nom_sollicitations,
                                                     int no_etat_limite, int opt_no_phase = 1);
std::vector<zof_effort> zof_get_efforts_etat_limite_sollicitations_gp(
    const socle::texte<32>& nom_section, const socle::texte<32>& nom_sollicitations, int no_etat_limite,
    int opt_no_phase = 1);

// The cables of an effort, in the order of its tensions.

std::vector<socle::texte<32>> zof_get_noms_cables_effort_p(const zof_effort& effort);
/// Engine numbers of their zones.
std::vector<int> zof_get_zones_cables_effort_p(const zof_effort& effort);
std::vector<double> zof_get_rhos_effort_p(const zof_effort& effort);
std::vector<double> zof_get_tensions_effort_p(const zof_effort& effort);

// ---- Frames

/// A frame from its origin and its angle, in radians, or in degrees as users give it.
repere zof_repere(double y, double z, double alpha);
repere zof_repere_degres(double y, double z, double angle_deg);
/// Forces given in a frame, seen from the base frame.
///   (1) zof_efforts_nouveau_repere(r, zof_efforts_ancien_repere(r, f)) == f, to rounding
efforts zof_efforts_ancien_repere(const repere& r, const efforts& f);
/// Forces given in the base frame, seen from a frame.
efforts zof_efforts_nouveau_repere(const repere& r, const efforts& f);
/// Forces given in the raw frame of a zone (or of the zones active in the phase) go to the frame of the
/// loading.
void zof_calcul_efforts_en_repere_sollicitations(zof_effort& effort);
