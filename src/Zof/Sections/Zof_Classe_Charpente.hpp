#pragma once
// A steel frame: thin profiles between points.

#include "Zof_Classe_Profil.hpp"
#include "Zof_Classe_Zone.hpp"

struct zof_charpente : uef_element<zof_charpente, zof_zone> {
  liste_propre m_les_profils_charpente;  // of zof_profil; each is an engine zone of its own

  [[nodiscard]] nature_zone nature() const override {
    return m_est_sous_section ? nature_zone::charpente_externe : nature_zone::charpente_interieure;
  }
  [[nodiscard]] std::string_view intitule() const override { return "Charpente"; }
  [[nodiscard]] std::string_view mot_fin() const override { return "FIN_CHAR"; }
  void decoder_materiau(bool& erco) override;
  void decoder_profils(bool& erco) override;
  void traiter_zone(bool& erco) override;
  void finaliser_zone_charpente(bool& erco);
  void controle_duplication_profil(bool& erco) const;
  [[nodiscard]] std::vector<int> numeros_zones_qb7() const override;
  [[nodiscard]] std::vector<socle::texte<32>> noms_materiaux() const override;
  void edition_zone() const override;
  void dessin_zone() const override;
  [[nodiscard]] bool numeros_au_dehors() const override { return true; }

 protected:
  void symetriser_contenu(const std::vector<int>& images) override;
};
