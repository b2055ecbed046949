#pragma once
// A group of tendons of one material and one area, each at a point.

#include <unordered_map>

#include "Zof_Classe_Cable.hpp"
#include "Zof_Classe_Zone.hpp"

struct zof_precontrainte : uef_element<zof_precontrainte, zof_zone> {
  double m_aire_precontrainte = socle::non_renseigne;  // of one tendon, m2
  liste_propre m_les_cables;                           // of zof_cable; each is an engine zone of its own

  [[nodiscard]] nature_zone nature() const override { return nature_zone::precontrainte; }
  [[nodiscard]] std::string_view intitule() const override { return "Precontrainte"; }
  [[nodiscard]] std::string_view mot_fin() const override { return "FIN_PREC"; }
  void decoder_materiau(bool& erco) override;
  void decoder_aire(bool& erco) override;
  void decoder_fin_zone(bool& erco) override;
  void traiter_zone(bool& erco) override;
  void finaliser_zone_precontrainte(bool& erco);
  [[nodiscard]] std::vector<int> numeros_zones_qb7() const override;
  [[nodiscard]] double rayon_points() const override;
  void desactiver_precontrainte() const override;
  void dessin_zone() const override;
  /// Engine zone of the tendon at the point of that number; not given if there is none.
  [[nodiscard]] int numero_cable_qb7(int numero_point) const;

 protected:
  [[nodiscard]] std::vector<std::string> donnees_editees() const override;

 private:
  std::unordered_map<int, int> positions_cables_;  // number of the point: position in m_les_cables
};
