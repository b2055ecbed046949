#include "Zof_Classe_Situation_Materiau.hpp"

#include <array>
#include <cstddef>
#include <string>

#include "Arithmetique.hpp"
#include "Simple.hpp"
#include "Systeme.hpp"
#include "Zof_Erreurs.hpp"

using socle::concat;
using socle::simple;
using socle::texte;

namespace {

constexpr std::array<texte<32>, nombre_situations_projet> labels_situations = {
    "EXPLOITATION_SERVICE", "EXPLOITATION_INFINIE", "CONSTRUCTION", "ACCIDENT", "SEISME"};

void loc_ecrire_console(socle::vue_l1 intitule, socle::vue_l1 valeur) {
  socle::le_systeme().console().ligne(concat({intitule, valeur}));
}

/// A kind of load: G, P, Q as 1, 2, 3, and its first or second value.
struct charge {
  int nature, rang;
};

/// {0, 0} for a word that is no kind of load.
charge loc_charge(std::string_view label_effort) {
  struct cas {
    std::string_view label;
    charge c;
  };
  constexpr std::array<cas, 6> connues = {
      {{"G1", {1, 1}}, {"G2", {1, 2}}, {"P1", {2, 1}}, {"P2", {2, 2}}, {"Q1", {3, 1}}, {"Q2", {3, 2}}}};
  for (const cas& k : connues)
    if (k.label == label_effort) return k.c;
  return {0, 0};
}

/// Factors of one limit state, in the order G1, G2, P1, P2, Q1, Q2 (EN 1990 table A1.2(B), and the margins
/// that are customary at serviceability). Second values are those of favourable actions.
using facteurs = std::array<double, 6>;
constexpr facteurs facteurs_els = {simple(1.05f), simple(0.95f), simple(1.1f), simple(0.9f), 1, 0};
constexpr facteurs facteurs_elu_accident = {1, 1, 1, 1, 1, 0};
constexpr facteurs facteurs_elu_durable = {simple(1.4175f), simple(0.95f), 1, 1, simple(1.35f), 0};

constexpr std::array<texte<32>, 6> labels_els = {"ELS_CAR",    "ELS_CAR_NF", "ELS_FRE",
                                                 "ELS_FRE_NF", "ELS_QP",     "ELS_QP_NF"};

const facteurs& loc_facteurs(const texte<32>& label_etat_limite) {
  if (label_etat_limite == texte<32>("ELU_DURABLE")) return facteurs_elu_durable;
  if (label_etat_limite == texte<32>("ELU_ACCIDENT")) return facteurs_elu_accident;
  for (const texte<32>& label : labels_els)
    if (label == label_etat_limite) return facteurs_els;
  loc_ecrire_console("label_etat_limite: ", label_etat_limite.utile());
  zof_assert(false, " Zof_Get_ponderation_efforts_defaut : Cas impossible 2");
  return facteurs_els;
}

}  // namespace

int zof_conversion_en_type_situation(const texte<32>& label_situation) {
  int type = 0;
  for (const texte<32>& label : labels_situations) {
    ++type;
    if (label == label_situation) return type;
  }
  loc_ecrire_console("label_situation: ", label_situation.utile());
  zof_assert(false, " Zof_Conversion_en_type_situation : Cas impossible");
  return 0;
}

texte<32> zof_conversion_en_label_situation(int type_situation) {
  zof_assert(type_situation >= 1 && type_situation <= nombre_situations_projet,
             "Zof_Conversion_en_label_situation : Cas impossible");
  return labels_situations[socle::indice(type_situation)];
}

zof_situation_materiau::zof_situation_materiau(const zof_situation_materiau& autre)
    : uef_vector_element(autre),
      m_titre_materiau(autre.m_titre_materiau),
      m_nom_materiau(autre.m_nom_materiau),
      m_numero_materiau_qb7(autre.m_numero_materiau_qb7),
      m_titre_situation(autre.m_titre_situation),
      m_label_situation(autre.m_label_situation),
      m_type_situation_projet(autre.m_type_situation_projet),
      m_numero_ordre_situation(autre.m_numero_ordre_situation) {
  m_les_etats_limites.transferer(autre.m_les_etats_limites);
}

int zof_situation_materiau::ajouter_etat_limite(const texte<32>& label_etat_limite) {
  zof_etat_limite etat;
  etat.m_label_etat_limite = label_etat_limite;
  etat.m_type_etat_limite = zof_conversion_en_type_etat_limite(label_etat_limite);
  etat.m_numero_etat_limite_qb7 = etat.m_type_etat_limite + 1000 * get_type_situation_projet();
  m_les_etats_limites.ajouter(etat);
  return etat.m_numero_etat_limite_qb7;
}

bool zof_situation_materiau::existe_etat_limite(const texte<32>& label_etat_limite) const {
  return get_etat_limite(m_les_etats_limites, label_etat_limite).m_numero_etat_limite_qb7 != 0;
}

const texte<32>& zof_situation_materiau::get_label_situation() const { return m_label_situation; }
const texte<32>& zof_situation_materiau::get_nom_materiau() const { return m_nom_materiau; }
int zof_situation_materiau::get_numero_materiau_qb7() const { return m_numero_materiau_qb7; }
const texte<80>& zof_situation_materiau::get_titre_materiau() const { return m_titre_materiau; }
int zof_situation_materiau::get_type_situation_projet() const { return m_type_situation_projet; }
void zof_situation_materiau::set_label_situation(const texte<32>& label) { m_label_situation = label; }
int zof_situation_materiau::nb_etat_limite_situation() const { return m_les_etats_limites.nombre(); }
const texte<80>& zof_situation_materiau::get_titre_situation() const { return m_titre_situation; }
int zof_situation_materiau::get_numero_ordre_situation() const { return m_numero_ordre_situation; }
void zof_situation_materiau::set_titre_materiau(const texte<80>& titre) { m_titre_materiau = titre; }
void zof_situation_materiau::set_numero_ordre_situation(int numero) { m_numero_ordre_situation = numero; }
void zof_situation_materiau::set_numero_materiau_qb7(int numero) { m_numero_materiau_qb7 = numero; }
void zof_situation_materiau::set_nom_materiau(const texte<32>& nom) { m_nom_materiau = nom; }

int zof_situation_materiau::get_numero_etat_limite_qb7(const texte<32>& label_etat_limite) const {
  const int numero = get_etat_limite(m_les_etats_limites, label_etat_limite).m_numero_etat_limite_qb7;
  zof_assert(numero != 0, "Get_Numero_etat_limite_QB7 : Cas impossible");
  return numero;
}

void zof_situation_materiau::set_type_situation_projet(int type) { m_type_situation_projet = type; }
void zof_situation_materiau::set_titre_situation(const texte<80>& titre) { m_titre_situation = titre; }

zof_etat_limite zof_situation_materiau::get_etat_limite_situation(const texte<32>& label_etat_limite) const {
  return get_etat_limite(m_les_etats_limites, label_etat_limite);
}

zof_situation_materiau& zof_pt_situation_materiau(uef_vector_element& element) {
  auto* const situation = dynamic_cast<zof_situation_materiau*>(&element);
  zof_assert(situation != nullptr, "Zof_Pt_Situation_materiau : Cas impossible");
  return *situation;
}

zof_situation_materiau* zof_pt_situation_materiau_label(const uef_vector& les_situations,
                                                        const texte<32>& label_situation) {
  for (int i = 1; i <= les_situations.nombre(); ++i) {
    zof_situation_materiau& situation =
        zof_pt_situation_materiau(*les_situations.case_element(i).m_ptr_element);
    if (situation.m_label_situation == label_situation) return &situation;
  }
  return nullptr;
}

zof_ponderations_gpq12::zof_ponderations_gpq12(double valeur)
    : valeurs_(static_cast<std::size_t>(nombre_situations_projet * nombre_etats_limites * 3 * 2), valeur) {}

std::size_t zof_ponderations_gpq12::rang(int situation, int etat_limite, int charge, int valeur) {
  return socle::indice((((situation - 1) * nombre_etats_limites + etat_limite - 1) * 3 + charge - 1) * 2 +
                       valeur);
}

double zof_get_ponderation_efforts_defaut(const texte<32>& label_etat_limite, const texte<32>&,
                                          socle::vue_l1 label_effort) {
  zof_assert(label_effort.octets().size() == 2, "Zof_Get_ponderation_efforts_defaut : cas impossible 0");
  const facteurs& f = loc_facteurs(label_etat_limite);
  const charge c = loc_charge(label_effort.octets());
  if (c.nature == 0) {
    loc_ecrire_console("label_effort: ", label_effort);
    zof_assert(false, " Zof_Get_ponderation_efforts_defaut : Cas impossible 3");
  }
  return f[socle::indice((c.nature - 1) * 2 + c.rang)];
}

double zof_get_ponderation_efforts_surcharges(const zof_ponderations_gpq12& ponderation_gpq12,
                                              const texte<32>& label_etat_limite,
                                              const texte<32>& label_situation, socle::vue_l1 label_effort) {
  zof_assert(label_effort.octets().size() == 2, "Zof_Get_ponderation_efforts_surcharges : cas impossible 0");
  const charge c = loc_charge(label_effort.octets());
  zof_assert(c.nature != 0, " Zof_Get_ponderation_efforts_surcharges : Cas impossible 2");
  return ponderation_gpq12(zof_conversion_en_type_situation(label_situation),
                           zof_conversion_en_type_etat_limite(label_etat_limite), c.nature, c.rang);
}
