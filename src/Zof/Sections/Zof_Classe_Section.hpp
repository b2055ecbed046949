#pragma once
// A section: the root of a tree of zones.

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include "Texte.hpp"
#include "Uef_Classe_Vector.hpp"
#include "Zof_Classe_Charpente.hpp"
#include "Zof_Classe_Contour.hpp"
#include "Zof_Classe_Evidement.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Classe_Gaines.hpp"
#include "Zof_Classe_Nom.hpp"
#include "Zof_Classe_Precontrainte.hpp"
#include "Zof_Classe_Zone.hpp"

struct zof_section : uef_element<zof_section, zof_zone_generalisee> {
  uef_vector
      m_toutes_les_zones_de_la_section;  // of zof_zone_generalisee_pointeur, a mother before her children
  uef_vector m_tous_les_materiaux_de_la_section;  // of zof_nom, each once
  std::array<double, 2> m_y_min_max{};            // m
  std::array<double, 2> m_z_min_max{};
  zof_nom m_nom_materiau_principal;

  /// The block up to FIN_SECT.
  void decoder_zone(bool& erco) override;
  /// A zone of the first level: name, block, and what it says of the section's main material.
  void decoder_sous_section(nature_zone nature, bool& erco);
  /// A new zone of that kind in this section, under that mother (the section itself or a zone).
  zof_zone& ajouter_zone(nature_zone nature, const socle::texte<32>& nom, zof_zone_generalisee& mere);
  /// Null if there is none.
  [[nodiscard]] zof_zone* pointer_zone(const socle::texte<32>& nom) const;
  /// All zones at any depth, a mother before her children.
  [[nodiscard]] const std::vector<zof_zone*>& zones() const { return zones_; }

  /// Points of the zones that lie outside of what holds them are refused.
  void controle_section(bool& erco) const;
  void lister_materiaux();
  void emprise_section();
  /// The greatest number of a point in the section; 0 without points.
  [[nodiscard]] int numero_point_max_section() const;

 private:
  std::vector<zof_zone*> zones_;
  std::unordered_map<std::string, zof_zone*> zones_par_nom_;
};
