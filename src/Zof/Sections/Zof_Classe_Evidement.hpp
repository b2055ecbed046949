#pragma once
// A void in a contour: a closed outline without material.

#include "Zof_Classe_Zone.hpp"

struct zof_evidement : uef_element<zof_evidement, zof_zone> {
  [[nodiscard]] nature_zone nature() const override { return nature_zone::evidement; }
  [[nodiscard]] std::string_view intitule() const override { return "Evidement"; }
  [[nodiscard]] std::string_view mot_fin() const override { return {}; }
  [[nodiscard]] bool admet(nature_zone nature_fille) const override;
  [[nodiscard]] bool admet_forme() const override { return true; }
  void decoder_diametre(bool& erco) override;
  void traiter_zone(bool& erco) override;
  [[nodiscard]] bool point_interieur_zone(point_yz p) const override;
  void dessin_zone() const override { dessiner_contour(utl_04_svg_couleur_fond); }
};
