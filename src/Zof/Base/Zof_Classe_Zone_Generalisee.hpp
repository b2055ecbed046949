// The common base of all that can hold zones: a section, and the zones of its tree.
#pragma once

#include "Non_renseigne.hpp"
#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"

class zof_zone_generalisee : public uef_vector_element {
 public:
  bool m_zone_deja_creee = false;  // the zone has gone into the engine
  bool m_section_precontrainte = false;
  socle::texte<80> m_titre_zone = socle::non_renseigne;
  socle::texte<32> m_nom_zone = socle::non_renseigne;
  bool m_est_sous_section = false;
  uef_vector m_les_zones;  // of zof_zone_generalisee_pointeur: the children
  int m_numero_section_qb7 = socle::non_renseigne;
  int m_numero_courant_point_section_qb7 = 0;  // running counters
  int m_numero_courant_qb7_zone_generalisee = 0;
  int m_numero_courant_point_zone_type = 0;
  int m_numero_zone_qb7 = socle::non_renseigne;
  int m_symetrie = socle::non_renseigne;
  int m_forme_zone = socle::non_renseigne;

  zof_zone_generalisee() = default;
  /// The list of children is copied: a later change of the original's list does not show in the copy.
  zof_zone_generalisee(const zof_zone_generalisee& autre);
  zof_zone_generalisee& operator=(const zof_zone_generalisee& autre);
  ~zof_zone_generalisee() override = default;

  [[nodiscard]] virtual int get_forme_zone() const { return m_forme_zone; }
  [[nodiscard]] virtual const socle::texte<32>& get_nom_zone() const { return m_nom_zone; }
  [[nodiscard]] virtual int get_numero_courant_point_section_qb7() const {
    return m_numero_courant_point_section_qb7;
  }
  /// Reads the block of commands that describes the zone.
  virtual void decoder_zone(bool& erco) = 0;
  /// Number of the zone in the engine. It must be set, unless `controle` is true: else the run ends.
  [[nodiscard]] virtual int get_numero_zone_qb7(bool controle = false) const;
  [[nodiscard]] virtual int get_numero_section_qb7() const { return m_numero_section_qb7; }
  [[nodiscard]] virtual int get_numero_courant_qb7_zone_generalisee() const {
    return m_numero_courant_qb7_zone_generalisee;
  }
  [[nodiscard]] virtual int get_numero_courant_point_zone_type() const {
    return m_numero_courant_point_zone_type;
  }
  virtual void inc_numero_courant_point_section_qb7() { ++m_numero_courant_point_section_qb7; }
  [[nodiscard]] virtual const socle::texte<80>& get_titre_zone() const { return m_titre_zone; }
  /// Adds one, and gives the new value.
  virtual void inc_numero_courant_point_zone_type(int& numero) {
    numero = ++m_numero_courant_point_zone_type;
  }
  [[nodiscard]] virtual bool is_section_precontrainte() const { return m_section_precontrainte; }
  [[nodiscard]] virtual bool is_zone_deja_creee() const { return m_zone_deja_creee; }
  virtual void set_numero_section_qb7(int numero) { m_numero_section_qb7 = numero; }
  virtual void set_nom_zone(const socle::texte<32>& nom) { m_nom_zone = nom; }
  virtual void set_numero_zone_qb7(int numero) { m_numero_zone_qb7 = numero; }
  virtual void set_forme_zone(int forme) { m_forme_zone = forme; }
  virtual void set_symetrie(int symetrie) { m_symetrie = symetrie; }
  virtual void set_section_precontrainte(bool precontrainte) { m_section_precontrainte = precontrainte; }
  virtual void set_zone_deja_creee(bool creee) { m_zone_deja_creee = creee; }
  virtual void set_titre_zone(const socle::texte<80>& titre) { m_titre_zone = titre; }
  virtual void inc_numero_courant_qb7_zone_generalisee() { ++m_numero_courant_qb7_zone_generalisee; }
  [[nodiscard]] virtual int get_symetrie() const { return m_symetrie; }
};

/// A zone of whatever kind as an element of a list: it refers to the zone, which lives elsewhere to the end
/// of the run.
struct zof_zone_generalisee_pointeur : uef_element<zof_zone_generalisee_pointeur> {
  zof_zone_generalisee* m_pt_zone = nullptr;

  zof_zone_generalisee_pointeur() = default;
  explicit zof_zone_generalisee_pointeur(zof_zone_generalisee* zone) : m_pt_zone(zone) {}
};

zof_zone_generalisee_pointeur& zof_pt_pointeur_zone(uef_vector_element& element);
/// Copies the reference, not the zone.
zof_zone_generalisee_pointeur zof_cp_pointeur_zone(const uef_vector_element& element);

/// The first zone of that name in a list of zof_zone_generalisee_pointeur; its reference is null if there is
/// none.
zof_zone_generalisee_pointeur zof_pointeur_zone(const uef_vector& vecteur_zones, const socle::texte<32>& nom);
