#pragma once
// Design situations of a material: their numbers and labels, the base of the situations of every kind of
// material, and the partial factors of loads that go with a situation and a limit state.

#include <cstddef>
#include <vector>

#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Etat_Limite.hpp"

/// Numbers of the design situations.
inline constexpr int situation_exploitation_service = 1;
inline constexpr int situation_exploitation_infinie = 2;
inline constexpr int situation_construction = 3;
inline constexpr int situation_accident = 4;
inline constexpr int situation_seisme = 5;
inline constexpr int nombre_situations_projet = 5;

/// Number (1 to 5) from the label, and label from the number; anything else ends the run.
int zof_conversion_en_type_situation(const socle::texte<32>& label_situation);
socle::texte<32> zof_conversion_en_label_situation(int type_situation);

/// True in the two situations that have an ultimate accidental law and no serviceability law.
constexpr bool est_situation_accidentelle(int type_situation) {
  return type_situation == situation_accident || type_situation == situation_seisme;
}

/// A design situation of a material. It carries copies of its material's name, title and number, so that it
/// can be edited and used alone. The decoder adds it to the material first and fills the stored copy.
struct zof_situation_materiau : uef_vector_element {
  socle::texte<80> m_titre_materiau = socle::non_renseigne;
  socle::texte<32> m_nom_materiau = socle::non_renseigne;
  int m_numero_materiau_qb7 = socle::non_renseigne;
  socle::texte<80> m_titre_situation = socle::non_renseigne;
  socle::texte<32> m_label_situation = socle::non_renseigne;
  int m_type_situation_projet = socle::non_renseigne;
  int m_numero_ordre_situation = socle::non_renseigne;  ///< rank in the material's list, from 1
  uef_vector m_les_etats_limites;                       ///< of zof_etat_limite

  zof_situation_materiau() = default;
  /// A deep copy: a limit state added to one of the two does not show in the other.
  zof_situation_materiau(const zof_situation_materiau& autre);
  zof_situation_materiau& operator=(const zof_situation_materiau& autre) = delete;

  /// Appends the limit state and gives its number in the engine: 1000 times the situation's number plus its
  /// own. The number is the same for every material: one limit state across a section makes one state of the
  /// engine.
  virtual int ajouter_etat_limite(const socle::texte<32>& label_etat_limite);
  virtual bool existe_etat_limite(const socle::texte<32>& label_etat_limite) const;
  virtual void editer_situation(bool& erco) const = 0;
  virtual void decoder_situation(bool& erco) = 0;
  virtual const socle::texte<32>& get_label_situation() const;
  virtual const socle::texte<32>& get_nom_materiau() const;
  virtual int get_numero_materiau_qb7() const;
  virtual const socle::texte<80>& get_titre_materiau() const;
  virtual int get_type_situation_projet() const;
  virtual void set_label_situation(const socle::texte<32>& label_situation);
  virtual int nb_etat_limite_situation() const;
  virtual const socle::texte<80>& get_titre_situation() const;
  virtual int get_numero_ordre_situation() const;
  virtual void set_titre_materiau(const socle::texte<80>& titre_materiau);
  virtual void set_numero_ordre_situation(int numero_ordre);
  virtual void set_numero_materiau_qb7(int numero_materiau_qb7);
  virtual void set_nom_materiau(const socle::texte<32>& nom_materiau);
  /// Number of the law of a limit state that the situation holds; one that it does not hold ends the run.
  virtual int get_numero_etat_limite_qb7(const socle::texte<32>& label_etat_limite) const;
  virtual void set_type_situation_projet(int type_situation_projet);
  virtual void set_titre_situation(const socle::texte<80>& titre_situation);
  /// By value; the record that was never filled if the situation does not hold it.
  virtual zof_etat_limite get_etat_limite_situation(const socle::texte<32>& label_etat_limite) const;
};

/// The element as a situation of any kind; an element that is none ends the run.
zof_situation_materiau& zof_pt_situation_materiau(uef_vector_element& element);

/// The situation of that label, or null. It points nothing: the list stays free to grow.
zof_situation_materiau* zof_pt_situation_materiau_label(const uef_vector& les_situations,
                                                        const socle::texte<32>& label_situation);

/// User's factors of loads: situation 1 to 5, limit state 1 to 11, G P Q as 1 to 3, first or second value 1
/// to 2.
class zof_ponderations_gpq12 {
 public:
  explicit zof_ponderations_gpq12(double valeur = socle::non_renseigne);
  double& operator()(int situation, int etat_limite, int charge, int valeur) {
    return valeurs_[rang(situation, etat_limite, charge, valeur)];
  }
  double operator()(int situation, int etat_limite, int charge, int valeur) const {
    return valeurs_[rang(situation, etat_limite, charge, valeur)];
  }

 private:
  static std::size_t rang(int situation, int etat_limite, int charge, int valeur);
  std::vector<double> valeurs_;
};

/// Factor of one kind of load, "G1" to "Q2", as the codes of practice give it for the limit state; the
/// situation has no influence. A limit state without loads ("MECA_BRUT" and its like) or another label of
/// load ends the run.
double zof_get_ponderation_efforts_defaut(const socle::texte<32>& label_etat_limite,
                                          const socle::texte<32>& label_situation,
                                          socle::vue_l1 label_effort);

/// The same factor from the user's table.
double zof_get_ponderation_efforts_surcharges(const zof_ponderations_gpq12& ponderation_gpq12,
                                              const socle::texte<32>& label_etat_limite,
                                              const socle::texte<32>& label_situation,
                                              socle::vue_l1 label_effort);
