#pragma once
// The base of all materials: a name, a number in the section engine, and at most one design situation of each
// of the five kinds.

#include <array>

#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Situation_Materiau.hpp"

/// Kinds of section that a material is meant for.
inline constexpr int categorie_normale = 1;
inline constexpr int categorie_pieu = 2;
inline constexpr int categorie_caisson = 3;
inline constexpr std::array<socle::texte<12>, 3> zof_par_zone_section = {"NORMALE", "PIEU", "CAISSON"};

/// Kinds of material.
inline constexpr int type_materiau_beton = 1;
inline constexpr int type_materiau_beton_precontraint = 2;
inline constexpr int type_materiau_acier = 3;
inline constexpr int type_materiau_precontrainte = 4;
inline constexpr int type_materiau_generique = 5;
inline constexpr int type_materiau_charpente = 6;

/// Kinds of stress-strain law.
inline constexpr int type_loi_lineaire = 1;
inline constexpr int type_loi_bilineaire = 2;
inline constexpr int type_loi_parabole = 3;
inline constexpr int type_loi_plastique_parfaite = 4;
inline constexpr int type_loi_lineaire_equivalente = 5;
inline constexpr std::array<socle::texte<18>, 5> zof_par_type_loi_materiau = {
    "LINEAIRE", "BILINEAIRE", "PARABOLE", "PLASTIQUE PARFAITE", "LINEAIRE EQUIVALE."};

/// Exposure classes in the order of their numbers, from 1.
inline constexpr std::array<socle::texte<4>, 15> zof_par_classe_exposition = {
    "X0", "XD1", "XD2", "XD3", "XC1", "XC2", "XC3", "XC4", "XS1", "XS2", "XS3", "XF1", "XF2", "XF3", "XF4"};

struct zof_materiau : uef_vector_element {
  socle::texte<80> m_titre_materiau = socle::non_renseigne;
  socle::texte<32> m_nom_materiau = socle::non_renseigne;
  int m_numero_materiau_qb7 = socle::non_renseigne;
  int m_categorie_zone_section = categorie_normale;
  int m_type_materiau = socle::non_renseigne;
  uef_vector m_les_situations;  ///< of zof_situation_materiau and its extensions

  zof_materiau() = default;
  /// A deep copy; the situations of the copy still name the first material as their owner.
  zof_materiau(const zof_materiau& autre);
  zof_materiau& operator=(const zof_materiau& autre) = delete;

  virtual void ajouter_situation_materiau(const zof_situation_materiau& situation);
  virtual bool existe_etat_limite_situation_materiau(const socle::texte<32>& label_situation,
                                                     const socle::texte<32>& label_etat_limite) const;
  virtual bool existe_label_situation_materiau(const socle::texte<32>& label_situation) const;
  virtual void editer_materiau(bool& erco) const = 0;
  virtual void decoder_materiau(bool& erco) = 0;
  virtual int get_categorie_zone_section() const;
  virtual bool existe_type_situation_materiau(int type_situation) const;
  /// Refuses two situations of one kind: one message for each pair.
  virtual void controle_situations_materiau(bool& erco) const;
  virtual const socle::texte<32>& get_nom_materiau() const;
  virtual int get_numero_materiau_qb7() const;
  /// The stored copy of the situation that was added last, to be completed in place.
  virtual zof_situation_materiau& pointer_situation_materiau_dernier();
  virtual int get_type_materiau() const;
  virtual void set_numero_materiau_qb7(int numero_materiau_qb7);
  virtual void set_type_materiau(int type_materiau);
  virtual void set_titre_materiau(const socle::texte<80>& titre_materiau);
  virtual void set_nom_materiau(const socle::texte<32>& nom_materiau);
  virtual void set_categorie_zone_section(int categorie);
  virtual const socle::texte<80>& get_titre_materiau() const;
  /// The situation of that label, or null.
  virtual zof_situation_materiau* get_pt_situation_materiau(const socle::texte<32>& label_situation) const;
};

/// The element as a material of any kind; an element that is none ends the run.
zof_materiau& zof_pt_materiau(uef_vector_element& element);

/// The material of that name in a list of materials of all kinds, or null.
zof_materiau* get_pt_materiau_nom(const uef_vector& les_materiaux, const socle::texte<32>& nom_materiau);
