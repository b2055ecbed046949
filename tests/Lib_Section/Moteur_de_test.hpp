// What the tests of the engine share: an empty engine, the laws and the sections of the reference files.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Outils.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Efforts.hpp"
#include "QB7_Efforts_Generalises.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_Lois.hpp"
#include "QB7_PAR_Parametres.hpp"
#include "QB7_Sections.hpp"

/// The engine as at the start of the program.
class moteur_vide : public testing::Test {
 protected:
  moteur_vide() {
    qb7_err_reinitialiser();
    qb7_par_reinitialiser();
    gbd_glob_reinitialiser();
    qb7_efforts_reinitialiser();
    qb7_efforts_generalises_reinitialiser();
  }
};

constexpr int etat_lim_de_test = 1001;

inline void reussit(const ier_2& ier) { EXPECT_EQ(ier, ier_2{}); }

inline std::vector<double> nombres(const std::string& texte) {
  std::istringstream flux(texte);
  std::vector<double> valeurs;
  for (double v = 0; flux >> v;) valeurs.push_back(v);
  return valeurs;
}

/// "y,z y,z y,z"
inline std::vector<point_yz> points(const std::string& texte) {
  std::istringstream flux(texte);
  std::vector<point_yz> lus;
  char virgule = 0;
  for (point_yz p; flux >> p.y >> virgule >> p.z;) lus.push_back(p);
  return lus;
}

/// Arguments of a builder, as "f_cd=20;limites=true".
class arguments_de_loi {
 public:
  explicit arguments_de_loi(const std::string& texte) {
    std::istringstream flux(texte);
    for (std::string champ; std::getline(flux, champ, ';');) {
      const auto egal = champ.find('=');
      const std::string valeur = champ.substr(egal + 1);
      m_valeurs[champ.substr(0, egal)] = valeur == "true" ? 1 : valeur == "false" ? 0 : std::stod(valeur);
    }
  }
  double operator[](const std::string& nom) const { return m_valeurs.at(nom); }
  std::optional<double> optionnel(const std::string& nom) const {
    const auto trouve = m_valeurs.find(nom);
    return trouve == m_valeurs.end() ? std::nullopt : std::optional(trouve->second);
  }
  double ou(const std::string& nom, double defaut) const { return optionnel(nom).value_or(defaut); }

 private:
  std::map<std::string, double> m_valeurs;
};

inline ier_2 construire_loi(int mat, const std::string& constructeur, const arguments_de_loi& a) {
  const int el = etat_lim_de_test;
  if (constructeur == "qb7_loi_lin_bilin") {
    return qb7_loi_lin_bilin(mat, el, static_cast<int>(a["type_loi"]), a.optionnel("e"),
                             a.optionnel("sigma_min"), a.optionnel("sigma_max"));
  }
  if (constructeur == "qb7_loi_parabole_rectangle_avec_bornes") {
    return qb7_loi_parabole_rectangle_avec_bornes(mat, el, a["f_cd"], a["eps_c1"], a["eps_cu"],
                                                  a["limites"] != 0, a.ou("f_lim", qb7_sans_borne));
  }
  if (constructeur == "qb7_loi_parabole_degre_n_avec_bornes") {
    return qb7_loi_parabole_degre_n_avec_bornes(mat, el, a["n"], a["f_cd"], a["eps_c1"], a["eps_cu"],
                                                a["limites"] != 0, a.ou("f_lim", qb7_sans_borne));
  }
  if (constructeur == "qb7_loi_beton_bilin") {
    return qb7_loi_beton_bilin(mat, el, a["f_cd"], a["eps_c1"], a["eps_cu"]);
  }
  if (constructeur == "qb7_loi_elastoplastique_avec_bornes") {
    return qb7_loi_elastoplastique_avec_bornes(mat, el, a["eps_palier"], a["f_palier"], a["eps_rupture"],
                                               a["f_rupture"], a["limites"] != 0, a["f_min"], a["f_max"],
                                               a["comprimes"] != 0);
  }
  if (constructeur == "qb7_loi_passif_palier") {
    return qb7_loi_passif_palier(mat, el, a["es"], a["f_sed"], a.optionnel("f_sud"), a.optionnel("eps_su"),
                                 a["comprimes"] != 0);
  }
  throw std::runtime_error("no builder " + constructeur);
}

/// Material numbers of the laws of lois_valeurs.csv, once they are built.
inline std::map<std::string, int> construire_lois_de_reference() {
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/lois_valeurs.csv");
  std::map<std::string, int> materiaux;
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    const auto [place, neuf] =
        materiaux.try_emplace(t.texte(i, "law"), static_cast<int>(materiaux.size()) + 1);
    if (neuf) {
      reussit(
          construire_loi(place->second, t.texte(i, "builder"), arguments_de_loi(t.texte(i, "arguments"))));
    }
  }
  return materiaux;
}

/// A zone and its points; points take the numbers behind those that the section has.
inline void creer_zone(int section, int zone, int type, int materiau, const std::vector<point_yz>& pts) {
  qb7_tailles_section tailles;
  reussit(qb7_lire_section(section, tailles));
  std::vector<int> numeros;
  for (const point_yz& p : pts) {
    numeros.push_back(tailles.nbre_points + static_cast<int>(numeros.size()) + 1);
    reussit(qb7_creer_point(section, numeros.back(), p.y, p.z));
  }
  reussit(qb7_creer_zone(section, zone, type, materiau, numeros));
  reussit(qb7_activer_zone(section, zone, true, false));
}

/// One line of sections.csv.
inline void creer_zone_de_reference(int section, const table_csv& t, std::size_t i,
                                    const std::map<std::string, int>& materiaux) {
  static const std::map<std::string, int> types = {{"contour", qb7_zone_contour},
                                                   {"void", qb7_zone_contour},
                                                   {"bars", qb7_zone_semis},
                                                   {"duct", qb7_zone_semis},
                                                   {"profile", qb7_zone_profil}};
  const int zone = static_cast<int>(t.reel(i, "zone"));
  const int type = types.at(t.texte(i, "kind"));
  const std::string& loi = t.texte(i, "law");
  creer_zone(section, zone, type, loi.empty() ? qb7_sans_materiau : materiaux.at(loi),
             points(t.texte(i, "points_y_z")));
  if (type != qb7_zone_contour) reussit(qb7_fixer_param_zone(section, zone, t.reel(i, "parameter")));
  if (!t.texte(i, "hole_in").empty()) reussit(qb7_fixer_num_zone_mere(section, zone, 1));
}

/// Numbers of the sections of sections.csv, once they and their laws are built.
inline std::map<std::string, int> construire_sections_de_reference() {
  const auto materiaux = construire_lois_de_reference();
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/sections.csv");
  std::map<std::string, int> sections;
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    const auto [place, neuve] =
        sections.try_emplace(t.texte(i, "section"), static_cast<int>(sections.size()) + 1);
    if (neuve) reussit(qb7_creer_section(place->second));
    creer_zone_de_reference(place->second, t, i, materiaux);
  }
  return sections;
}

/// The section in the engine's store.
inline gbd_section& section_du_moteur(int num_section) {
  ier_2 ier;
  gbd_section* section = gbd_sect_lst_chercher(gbd_glob.glob_lst_sections, num_section, ier);
  if (section == nullptr) throw std::runtime_error("no section");
  return *section;
}

inline const gbd_loi& loi_du_moteur(int materiau, int etat_lim = etat_lim_de_test) {
  ier_2 ier;
  const gbd_loi* loi = gbd_loi_lst_chercher(gbd_glob.glob_lst_lois, {etat_lim, materiau}, ier);
  if (loi == nullptr) throw std::runtime_error("no law");
  return *loi;
}

inline void forces_proches(const efforts& a, const efforts& b, double tolerance) {
  EXPECT_NEAR(a.n, b.n, tolerance);
  EXPECT_NEAR(a.my, b.my, tolerance);
  EXPECT_NEAR(a.mz, b.mz, tolerance);
}

inline void tangentes_proches(const rigidite& a, const rigidite& b, double tolerance) {
  EXPECT_NEAR(a.a1, b.a1, tolerance);
  EXPECT_NEAR(a.a2, b.a2, tolerance);
  EXPECT_NEAR(a.b2, b.b2, tolerance);
  EXPECT_NEAR(a.a3, b.a3, tolerance);
  EXPECT_NEAR(a.b3, b.b3, tolerance);
  EXPECT_NEAR(a.c3, b.c3, tolerance);
}

inline double plus_grand(const efforts& f) {
  return std::max({std::abs(f.n), std::abs(f.my), std::abs(f.mz)});
}
inline double plus_grand(const rigidite& k) {
  return std::max(
      {std::abs(k.a1), std::abs(k.a2), std::abs(k.b2), std::abs(k.a3), std::abs(k.b3), std::abs(k.c3)});
}
