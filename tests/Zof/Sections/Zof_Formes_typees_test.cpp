#include "Zof_Formes_typees.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <regex>
#include <sstream>
#include <string>

#include "modele.hpp"

namespace {

/// The values from outside have nine digits.
double tolerance(double attendu) { return 5.1e-9 * std::abs(attendu) + 1e-15; }

polygone lire_points(const std::string& texte) {
  polygone points;
  std::istringstream flux(texte);
  point_yz p;
  for (char separateur = ' '; flux >> p.y >> separateur >> p.z;) points.push_back(p);
  return points;
}

void comparer(const polygone& obtenus, const polygone& attendus) {
  ASSERT_EQ(obtenus.size(), attendus.size());
  for (std::size_t i = 0; i < attendus.size(); ++i) {
    // Zeros come out as residues of cosines: those of a point some metres away are under 1e-15.
    EXPECT_NEAR(obtenus[i].y, attendus[i].y, tolerance(attendus[i].y)) << "point " << i + 1;
    EXPECT_NEAR(obtenus[i].z, attendus[i].z, tolerance(attendus[i].z)) << "point " << i + 1;
  }
}

/// The dimensions as they stand in the file, every real in double precision.
std::string en_double(const std::string& cotes) {
  const std::string entiers_en_reels = std::regex_replace(cotes, std::regex(R"( (-?\d+)(?= |$))"), " $1.");
  std::string reels = std::regex_replace(entiers_en_reels, std::regex(R"(( -?\d+\.\d*))"), "$1D0");
  return std::regex_replace(reels, std::regex(R"(NOMB (\d+)\.D0)"), "NOMB $1");
}

struct proprietes {
  double aire, y, z, angle_deg, inertie_y, inertie_z;
};

void comparer_proprietes(const table_csv& t, std::size_t i, int etat_limite) {
  zof_activer_section(socle::texte<32>("S1"));
  caracteristiques_mecaniques c;
  ASSERT_EQ(qb7_caracteristiques_mecaniques(1, etat_limite, c), ier_2{});
  EXPECT_NEAR(c.e_sx, t.reel(i, "area"), tolerance(t.reel(i, "area")));
  EXPECT_NEAR(c.yg, t.reel(i, "y_cdg"), tolerance(t.reel(i, "y_cdg")) + 1e-10);
  EXPECT_NEAR(c.zg, t.reel(i, "z_cdg"), tolerance(t.reel(i, "z_cdg")) + 1e-10);
  EXPECT_NEAR(c.e_iy, t.reel(i, "inertia_y"), tolerance(t.reel(i, "inertia_y")));
  EXPECT_NEAR(c.e_iz, t.reel(i, "inertia_z"), tolerance(t.reel(i, "inertia_z")));
  // With equal inertias every axis is a principal one.
  if (std::abs(c.e_iy - c.e_iz) > 1e-6 * c.e_iy) {
    const double angle_deg = c.alpha * 180 / std::numbers::pi;
    EXPECT_NEAR(angle_deg, t.reel(i, "angle_deg"), tolerance(t.reel(i, "angle_deg")) + 1e-8);
  }
}

}  // namespace

TEST(FormesTypees, PointsEtProprietesDesValeursIndependantes) {
  const table_csv t = lire_csv(ZOF_DONNEES "/sections/templates.csv");
  ASSERT_EQ(t.lignes.size(), 47U);
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE(t.texte(i, "case"));
    const std::string forme = t.texte(i, "form") == "REC_" ? "REC_EVIDE" : t.texte(i, "form");
    modele m(contour(forme + en_double(" " + t.texte(i, "dimensions")) + " FIN_"));
    const bool lue = m.lire();
    // Slopes as wide as the flange: the outline is that of the formulas, and the command refuses it.
    if (t.texte(i, "case") == "i_sy_4") {
      const table_en_i table{1.2, 0.2, 0.3, 0.475};
      const polygone contour = points_contour(forme_en_i{2.2, 0.25, table, table});
      comparer(contour, lire_points(t.texte(i, "outer_points")));
      EXPECT_NEAR(aire_polygone(contour), t.reel(i, "area"), tolerance(t.reel(i, "area")));
      EXPECT_FALSE(lue);
      continue;
    }
    ASSERT_TRUE(lue) << m.console();
    comparer(zof_get_pt_zone_section("S1", 1)->positions_points(), lire_points(t.texte(i, "outer_points")));
    const bool creuse = t.texte(i, "void_count") != "0";
    ASSERT_EQ(zof_get_nombre_zones_section("S1"), creuse ? 2 : 1);
    if (creuse)
      comparer(zof_get_pt_zone_section("S1", 2)->positions_points(), lire_points(t.texte(i, "void_points")));
    for (const int etat_limite : {1001, 1002, 1003, qb7_etat_mecanique})
      comparer_proprietes(t, i, etat_limite);
  }
}

// The polygon of n points on a circle of diameter d has the area n d² sin(2 pi/n) / 8.
TEST(FormesTypees, AireDUnPolygoneRegulier) {
  const double pi = std::numbers::pi;
  for (const int n : {3, 10, 25, 1000}) {
    const double aire = aire_polygone(points_cercle({2, -1}, 0.8, 30, n));
    EXPECT_NEAR(aire, n * 0.64 / 8 * std::sin(2 * pi / n), 1e-14);
  }
}

TEST(FormesTypees, UnArcComprendSesDeuxBouts) {
  const polygone points = points_arc({1, 2}, 2, 90, 0, 3);
  comparer(points, {{1, 3}, {1 + std::sqrt(0.5), 2 + std::sqrt(0.5)}, {2, 2}});
  comparer(points_arc({1, 2}, 2, 180, 0, 1), {{0, 2}});
}

// Webs without slope: the soffit is as wide as the deck between the overhangs.
TEST(FormesTypees, UnCaissonSansIntradosADesAmesVerticales) {
  forme_caisson f;
  f.h_totale = 2;
  f.l_totale = 8;
  f.h_extremite = 0.2;
  f.h_origine = 0.4;
  f.l_encorbellement = 1.5;
  f.epaisseur_intrados = 0.25;
  f.epaisseur_extrados = 0.3;
  f.epaisseur_ame = 0.5;
  EXPECT_DOUBLE_EQ(largeur_intrados(f), 5);
  comparer(points_evidement(f), {{-2, -0.3}, {-2, -1.75}, {2, -1.75}, {2, -0.3}});
  f.l_joue = 0.5;
  f.h_joue = 0.3;
  EXPECT_DOUBLE_EQ(largeur_intrados(f), 4);
}

// One flange of an I may have a slope with a width and the other none: 14 points.
TEST(FormesTypees, ChaqueTableDUnIALaSienne) {
  forme_en_i f;
  f.h_totale = 1.8;
  f.l_ame = 0.2;
  f.sup = {1.4, 0.15, 0.1, 0.3};
  f.inf = {0.7, 0.25, 0.2, socle::non_renseigne};
  comparer(points_contour(f), {{-0.7, 0},
                               {-0.7, -0.15},
                               {-0.4, -0.15},
                               {-0.1, -0.25},
                               {-0.1, -1.35},
                               {-0.35, -1.55},
                               {-0.35, -1.8},
                               {0.35, -1.8},
                               {0.35, -1.55},
                               {0.1, -1.35},
                               {0.1, -0.25},
                               {0.4, -0.15},
                               {0.7, -0.15},
                               {0.7, 0}});
}
