#pragma once
// The materials of a run: the command MATE that creates them, their report, and what sections, loadings and
// analyses ask of them by name. Names are common to all kinds of materials.

#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Materiau.hpp"

struct gestion_materiau_t {
  uef_vector zof_mod_les_materiaux;  ///< of zof_materiau and its extensions, in the order of their creation
};
extern gestion_materiau_t gestion_materiau;
void gestion_materiau_reinitialiser();

/// The command MATE: kind, name, and the block of that kind up to FIN_MATE.
void zof_decoder_creer_materiau(bool& erco);

/// The command EDIT MATE: all materials, in the order of their creation.
void zof_editer_materiaux(bool& erco);

/// The material of that name, or null.
zof_materiau* zof_get_pt_materiau(const socle::texte<32>& nom_materiau);

/// The situation of that label of the material of that name; null if either does not exist.
zof_situation_materiau* zof_get_pt_situation_materiau(const socle::texte<32>& nom_materiau,
                                                      const socle::texte<32>& label_situation);

/// Number of the material in the engine; not given if no material has that name.
int zof_get_materiau_numero_qb7(const socle::texte<32>& nom_materiau);

/// Kind of the material, type_materiau_beton to type_materiau_charpente; not given if no material has that
/// name.
int zof_type_materiau(const socle::texte<32>& nom_materiau);

/// False as well if no material has that name.
bool zof_existe_situation_materiau(const socle::texte<32>& nom_materiau,
                                   const socle::texte<32>& label_situation);
bool zof_existe_etat_limite_materiau(const socle::texte<32>& nom_materiau,
                                     const socle::texte<32>& label_situation,
                                     const socle::texte<32>& label_etat_limite);

/// Number of the engine's law of a limit state in a situation; one that the material does not hold ends the
/// run: callers ask zof_existe_etat_limite_materiau first.
int zof_get_no_etat_limite_qb7_materiau(const socle::texte<32>& nom_materiau,
                                        const socle::texte<32>& label_situation,
                                        const socle::texte<32>& label_etat_limite);
