// A model in memory: the six kinds of materials, and sections read from text as a run reads them.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Lecteur.hpp"
#include "Outils.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Lois.hpp"
#include "QB7_Sections.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Gestion_Section.hpp"

/// Materials without data of their own: a kind, a number, the three geometric laws in the situation of
/// service.
struct situation_d_essai : uef_element<situation_d_essai, zof_situation_materiau> {
  void editer_situation(bool&) const override {}
  void decoder_situation(bool&) override {}
};
struct materiau_d_essai : uef_element<materiau_d_essai, zof_materiau> {
  void editer_materiau(bool&) const override {}
  void decoder_materiau(bool&) override {}
};

class modele {
 public:
  explicit modele(const std::string& donnees) : lecteur_(donnees) {
    gestion_section_reinitialiser();
    gestion_materiau_reinitialiser();
    qb7_quitter();
    qb7_err_reinitialiser();
    creer_materiau("BA", type_materiau_beton);
    creer_materiau("BP", type_materiau_beton_precontraint);
    creer_materiau("HA", type_materiau_acier);
    creer_materiau("TORON", type_materiau_precontrainte);
    creer_materiau("GENE", type_materiau_generique);
    creer_materiau("S355", type_materiau_charpente);
  }
  modele(const modele&) = delete;
  modele& operator=(const modele&) = delete;
  ~modele() {
    gestion_section_reinitialiser();
    gestion_materiau_reinitialiser();
    qb7_quitter();
  }

  /// Reads as many sections as the text holds; false at the first error. A stop leaves its status.
  bool lire() {
    bool erco = false;
    statut = statut_d_arret([&] {
      socle::texte<4> mot;
      for (and_lire_deb_nom(mot, 4, erco); !erco && mot == "SECT"; and_lire_deb_nom(mot, 4, erco)) {
        zof_decoder_creer_section(erco);
        if (erco) return;
      }
    });
    return !erco && !statut;
  }
  [[nodiscard]] const std::string& console() const { return lecteur_.console(); }
  [[nodiscard]] std::string listing() const { return lecteur_.listing(); }
  std::optional<int> statut;

 private:
  static void creer_materiau(std::string_view nom, int type) {
    materiau_d_essai m;
    m.set_nom_materiau(nom);
    m.set_type_materiau(type);
    const int numero = gestion_materiau.zof_mod_les_materiaux.nombre() + 1;
    m.set_numero_materiau_qb7(numero);
    situation_d_essai s;
    s.m_type_situation_projet = situation_exploitation_service;
    s.m_label_situation = zof_conversion_en_label_situation(situation_exploitation_service);
    const std::array etats{s.ajouter_etat_limite("MECA_BRUT"), s.ajouter_etat_limite("MECA_NET"),
                           s.ajouter_etat_limite("MECA_HOMOGENEISEE")};
    m.m_les_situations.creer("m_les_situations", situation_d_essai());
    m.m_les_situations.ajouter(s);
    auto& materiaux = gestion_materiau.zof_mod_les_materiaux;
    if (!materiaux.est_cree()) materiaux.creer("materiaux", m, 10, true);
    materiaux.ajouter(m);
    if (creer_lois(type, numero, etats)) throw std::runtime_error("laws of a test material");
  }
  static ier_2 creer_lois(int type, int numero, std::span<const int> etats) {
    switch (type) {
      case type_materiau_acier: return qb7_loi_passif_meca(numero, etats, 15.0);
      case type_materiau_precontrainte: return qb7_loi_actif_meca(numero, etats, 15.0);
      case type_materiau_generique:
      case type_materiau_charpente: return qb7_loi_charpente_meca(numero, etats);
      default: return qb7_loi_beton_meca(numero, etats);
    }
  }

  lecteur lecteur_;
};

/// A section S1 with a title, and what stands in it.
inline std::string section(const std::string& corps, const std::string& tete = "") {
  return "SECT S1 TITR 'Essai' " + tete + "\n" + corps + "\nFIN_SECT\nSTOP\n";
}
/// The same with a contour C1 of reinforced concrete.
inline std::string contour(const std::string& corps, const std::string& tete = "") {
  return section("CONT C1 MATE BA\n" + corps + "\nFIN_CONT", tete);
}
/// The same with a rectangle 0.5 high, 0.3 wide.
inline std::string rectangle(const std::string& corps) {
  return contour("RECT HAUT 0.5D0 LARG 0.3D0 FIN_RECT\n" + corps);
}
inline std::string barres(const std::string& corps) {
  return rectangle("FERR F1 MATE HA DIAM 20.D0 " + corps + " FIN_FERR");
}

/// The messages of a refused text, without the heading.
inline std::string messages(const std::string& donnees) {
  modele m(donnees);
  EXPECT_FALSE(m.lire()) << donnees;
  const std::string listing = m.listing();
  const auto debut = listing.find("Erreur de commande :\n");
  EXPECT_NE(debut, std::string::npos) << m.console();
  return debut == std::string::npos ? m.console() : listing.substr(debut + 21);
}

struct refus {
  std::string donnees;
  std::string message;
};

inline void verifier_refus(const std::vector<refus>& cas) {
  for (const refus& r : cas) EXPECT_EQ(messages(r.donnees), "     - " + r.message + "\n") << r.donnees;
}

inline std::string l1(std::string_view texte) { return std::string(texte); }
