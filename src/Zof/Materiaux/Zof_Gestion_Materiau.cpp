#include "Zof_Gestion_Materiau.hpp"

#include "And_anadon.hpp"
#include "Zof_Classe_Materiau_Acier_Charpente.hpp"
#include "Zof_Classe_Materiau_Acier_EC.hpp"
#include "Zof_Classe_Materiau_Beton_EC.hpp"
#include "Zof_Classe_Materiau_Generique.hpp"
#include "Zof_Classe_Materiau_Precontrainte_EC.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

gestion_materiau_t gestion_materiau;
void gestion_materiau_reinitialiser() { gestion_materiau = {}; }

namespace {

/// Reads the name of a new material; false if it is refused. Names are common to all kinds.
bool loc_lire_nom(texte<32>& nom, bool& erco) {
  and_lire_deb_nom(nom, 32, erco);
  if (erco) return false;
  zof_assert_commande(zof_get_pt_materiau(nom) == nullptr, concat({" Materiau deja defini : ", nom.entier()}),
                      erco);
  return !erco;
}

/// Appends a material of this class, and reads its block in place. The laws of a situation are registered
/// under the material's number while the block is read: the number stands before.
template <class classe_materiau, class classe_situation>
void loc_creer_materiau(int type_materiau, bool& erco) {
  texte<32> nom;
  if (!loc_lire_nom(nom, erco)) return;
  uef_vector& materiaux = gestion_materiau.zof_mod_les_materiaux;
  if (!materiaux.est_cree())
    materiaux.creer("zof_mod_les_materiaux", classe_materiau{}, uef_vector::capacite_par_defaut, true);
  materiaux.ajouter(classe_materiau{});
  zof_materiau& materiau = zof_pt_materiau(materiaux.pointer_dernier());
  materiau.set_nom_materiau(nom);
  materiau.set_type_materiau(type_materiau);
  materiau.set_numero_materiau_qb7(materiaux.nombre());
  materiau.m_les_situations.creer(concat({nom.utile(), "_m_les_situations"}), classe_situation{},
                                  nombre_situations_projet, true);
  materiau.decoder_materiau(erco);
  materiaux.depointer_dernier();
}

}  // namespace

void zof_decoder_creer_materiau(bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return;
  switch (clef(mot)) {
    case "ACIE"_mot:
      loc_creer_materiau<zof_materiau_acier_ec, zof_situation_acier_ec>(type_materiau_acier, erco);
      break;
    // A concrete's kind is that of its keyword PREC, which the block must give.
    case "BETO"_mot:
      loc_creer_materiau<zof_materiau_beton_ec, zof_situation_beton_ec>(non_renseigne, erco);
      break;
    case "CHAR"_mot:
      loc_creer_materiau<zof_materiau_acier_charpente, zof_situation_acier_charpente>(type_materiau_charpente,
                                                                                      erco);
      break;
    case "PREC"_mot:
      loc_creer_materiau<zof_materiau_precontrainte_ec, zof_situation_precontrainte_ec>(
          type_materiau_precontrainte, erco);
      break;
    case "SPEC"_mot:
      loc_creer_materiau<zof_materiau_generique, zof_situation_materiau_generique>(type_materiau_generique,
                                                                                   erco);
      break;
    default: zof_attribut_incorrect(mot, erco);
  }
}

void zof_editer_materiaux(bool& erco) {
  for (const zof_materiau& materiau : uef_parcours<zof_materiau>(gestion_materiau.zof_mod_les_materiaux)) {
    materiau.editer_materiau(erco);
    if (erco) return;
  }
}

zof_materiau* zof_get_pt_materiau(const texte<32>& nom_materiau) {
  return get_pt_materiau_nom(gestion_materiau.zof_mod_les_materiaux, nom_materiau);
}

zof_situation_materiau* zof_get_pt_situation_materiau(const texte<32>& nom_materiau,
                                                      const texte<32>& label_situation) {
  const zof_materiau* const materiau = zof_get_pt_materiau(nom_materiau);
  return materiau == nullptr ? nullptr : materiau->get_pt_situation_materiau(label_situation);
}

int zof_get_materiau_numero_qb7(const texte<32>& nom_materiau) {
  const zof_materiau* const materiau = zof_get_pt_materiau(nom_materiau);
  return materiau == nullptr ? static_cast<int>(non_renseigne) : materiau->get_numero_materiau_qb7();
}

int zof_type_materiau(const texte<32>& nom_materiau) {
  const zof_materiau* const materiau = zof_get_pt_materiau(nom_materiau);
  return materiau == nullptr ? static_cast<int>(non_renseigne) : materiau->get_type_materiau();
}

bool zof_existe_situation_materiau(const texte<32>& nom_materiau, const texte<32>& label_situation) {
  return zof_get_pt_situation_materiau(nom_materiau, label_situation) != nullptr;
}

bool zof_existe_etat_limite_materiau(const texte<32>& nom_materiau, const texte<32>& label_situation,
                                     const texte<32>& label_etat_limite) {
  const zof_situation_materiau* const situation =
      zof_get_pt_situation_materiau(nom_materiau, label_situation);
  return situation != nullptr && situation->existe_etat_limite(label_etat_limite);
}

int zof_get_no_etat_limite_qb7_materiau(const texte<32>& nom_materiau, const texte<32>& label_situation,
                                        const texte<32>& label_etat_limite) {
  const zof_situation_materiau* const situation =
      zof_get_pt_situation_materiau(nom_materiau, label_situation);
  zof_assert(situation != nullptr, "Get_Numero_etat_limite_QB7 : Cas impossible");
  return situation->get_numero_etat_limite_qb7(label_etat_limite);
}
