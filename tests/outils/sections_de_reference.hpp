// The laws and sections whose forces and planes in equilibrium were found by an independent program
// (tests/donnees/moteur), built through the engine's facade, and their forces by strips.
#pragma once

#include <gmock/gmock.h>

#include <map>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "Outils.hpp"
#include "QB7_Lois.hpp"
#include "QB7_Sections.hpp"
#include "fibres.hpp"
#include "moteur.hpp"

namespace sections_de_reference {

inline constexpr int etat_lim = 1001;

/// Numbers of the materials, in the order of the laws below.
inline int num_materiau(const std::string& loi) {
  static const std::map<std::string, int> numeros = {{"PR30", 1}, {"PN60", 2}, {"PN80", 3}, {"BB35", 4},
                                                     {"PA", 5},   {"PANC", 6}, {"EP", 7},   {"LIN", 8},
                                                     {"COMP", 9}, {"TRAC", 10}};
  return numeros.at(loi);
}

inline void creer_lois() {
  constexpr int el = etat_lim;
  const ier_2 ok{};
  EXPECT_EQ(qb7_loi_parabole_rectangle_avec_bornes(num_materiau("PR30"), el, 20, 0.002, 0.0035, false, 0),
            ok);
  EXPECT_EQ(
      qb7_loi_parabole_degre_n_avec_bornes(num_materiau("PN60"), el, 1.59, 40, 0.00229, 0.00288, false, 0),
      ok);
  EXPECT_EQ(
      qb7_loi_parabole_degre_n_avec_bornes(num_materiau("PN80"), el, 1.402, 53.3, 0.00252, 0.0026, false, 0),
      ok);
  EXPECT_EQ(qb7_loi_beton_bilin(num_materiau("BB35"), el, 23.3, 0.00175, 0.0035), ok);
  EXPECT_EQ(qb7_loi_passif_palier(num_materiau("PA"), el, 200000, 434.78260869565219, {}, 0.025, true), ok);
  EXPECT_EQ(qb7_loi_passif_palier(num_materiau("PANC"), el, 200000, 434.78260869565219, 460, 0.05, false),
            ok);
  EXPECT_EQ(qb7_loi_elastoplastique_avec_bornes(num_materiau("EP"), el, 0.002, 400, 0.05, 440, true, -430,
                                                300, true),
            ok);
  EXPECT_EQ(qb7_loi_lin_bilin(num_materiau("LIN"), el, 10010, 33000, -2.5, 18), ok);
  EXPECT_EQ(qb7_loi_lin_bilin(num_materiau("COMP"), el, 10020, 13333.25, {}, 18), ok);
  EXPECT_EQ(qb7_loi_lin_bilin(num_materiau("TRAC"), el, 10030, 200000, -300), ok);
}

struct zone_de_reference {
  int num_zone = 0;
  std::string genre;  // contour, void, bars, duct, profile
  std::string loi;    // empty: no material
  double parametre = 0;
  int num_mere = 0;  // 0: none
  std::vector<point_yz> points;
};
using section_de_reference = std::vector<zone_de_reference>;

inline std::vector<point_yz> lire_points(const std::string& texte) {
  std::istringstream flux(texte);
  std::vector<point_yz> points;
  char virgule = 0;
  for (point_yz p; flux >> p.y >> virgule >> p.z;) points.push_back(p);
  return points;
}

inline std::map<std::string, section_de_reference> lire_sections() {
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/sections.csv");
  std::map<std::string, section_de_reference> sections;
  for (std::size_t i = 0; i < t.lignes.size(); ++i)
    sections[t.texte(i, "section")].push_back({.num_zone = static_cast<int>(t.reel(i, "zone")),
                                               .genre = t.texte(i, "kind"),
                                               .loi = t.texte(i, "law"),
                                               .parametre = t.reel(i, "parameter"),
                                               .num_mere = t.texte(i, "hole_in").empty() ? 0 : 1,
                                               .points = lire_points(t.texte(i, "points_y_z"))});
  return sections;
}

/// The section in the engine, all its zones active.
inline void creer_section(int num_section, const section_de_reference& section) {
  ASSERT_EQ(qb7_creer_section(num_section), ier_2{});
  for (const zone_de_reference& z : section) {
    const bool est_contour = z.genre == "contour" || z.genre == "void";
    const int type = est_contour ? 1001 : z.genre == "profile" ? 1003 : 1004;
    const int materiau = z.loi.empty() ? qb7_sans_materiau : num_materiau(z.loi);
    creer_zone_et_points(num_section, z.num_zone, type, materiau, z.points);
    if (!est_contour) {
      ASSERT_EQ(qb7_fixer_param_zone(num_section, z.num_zone, z.parametre), ier_2{});
    }
    if (z.num_mere != 0) {
      ASSERT_EQ(qb7_fixer_num_zone_mere(num_section, z.num_zone, z.num_mere), ier_2{});
    }
  }
}

/// A law of the engine for the strips: its stress, and the strains at which it is not smooth.
inline fibres_materiau materiau_de(const std::string& loi) {
  const int materiau = num_materiau(loi);
  int n = 0;
  int degre = 0;
  EXPECT_EQ(qb7_lire_dims_loi(materiau, etat_lim, n, degre), ier_2{});
  std::vector<double> noeuds(static_cast<std::size_t>(n));
  std::vector<qb7_polynome> coeffs(noeuds.size());
  EXPECT_EQ(qb7_lire_tabs_loi(materiau, etat_lim, noeuds, coeffs), ier_2{});
  return {.sigma =
              [materiau](double e) {
                double sigma = 0;
                EXPECT_EQ(qb7_contrainte_materiau(materiau, etat_lim, e, sigma), ier_2{});
                return sigma;
              },
          .noeuds = noeuds};
}

inline efforts fibres_zone(const zone_de_reference& z, const deformation& plan, const fibres_materiau& m) {
  if (z.genre == "profile") return fibres_profil(z.points, z.parametre, plan, m);
  if (z.genre == "bars" || z.genre == "duct") return fibres_semis(z.points, z.parametre, plan, m);
  return fibres_contour(z.points, plan, m);
}

/// Forces by strips: each zone under its law, less what stands in it under the law of its mother.
inline efforts fibres_section(const section_de_reference& section, const deformation& plan) {
  efforts f;
  for (const zone_de_reference& z : section) {
    if (!z.loi.empty()) f += fibres_zone(z, plan, materiau_de(z.loi));
    if (z.num_mere != 0) f -= fibres_zone(z, plan, materiau_de(section.front().loi));
  }
  return f;
}

}  // namespace sections_de_reference
