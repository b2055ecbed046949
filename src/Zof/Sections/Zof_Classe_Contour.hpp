#pragma once
// A piece of concrete, or of another solid material, bounded by a closed outline.

#include "Grille_Points.hpp"
#include "Zof_Classe_Zone.hpp"

struct zof_contour : uef_element<zof_contour, zof_zone> {
  grille_points m_barres;  // bars of all zones that stand in the contour, as far as they are complete
  grille_points m_barres_automatiques;  // those of them that were laid along its sides

  [[nodiscard]] nature_zone nature() const override { return nature_zone::contour; }
  [[nodiscard]] std::string_view intitule() const override { return "Contour"; }
  [[nodiscard]] std::string_view mot_fin() const override { return "FIN_CONT"; }
  [[nodiscard]] bool admet(nature_zone nature_fille) const override;
  [[nodiscard]] bool admet_forme() const override { return true; }
  void decoder_materiau(bool& erco) override;
  void traiter_zone(bool& erco) override;
  [[nodiscard]] bool point_interieur_zone(point_yz p) const override;
  void dessin_zone() const override { dessiner_contour(utl_04_gris_0_25); }
  [[nodiscard]] bool numeros_au_dehors() const override { return true; }
};
