#pragma once
// Ducts of tendons in a contour: circular holes of one diameter, each at a point.

#include "Zof_Classe_Zone.hpp"

struct zof_gaines : uef_element<zof_gaines, zof_zone> {
  [[nodiscard]] nature_zone nature() const override { return nature_zone::gaines; }
  [[nodiscard]] std::string_view intitule() const override { return "Gaine"; }
  [[nodiscard]] std::string_view mot_fin() const override { return "FIN_GAIN"; }
  [[nodiscard]] bool admet(nature_zone nature_fille) const override;
  void decoder_diametre(bool& erco) override;
  void decoder_fin_zone(bool& erco) override;
  void traiter_zone(bool& erco) override;
  [[nodiscard]] bool point_interieur_zone(point_yz p) const override;
  [[nodiscard]] double rayon_points() const override;
  void dessin_zone() const override;

 protected:
  [[nodiscard]] std::vector<std::string> donnees_editees() const override;

 private:
  grille_points centres_;  // of ducts in the engine: what stands in one is nearer than half its diameter
};
