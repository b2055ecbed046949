// Walls of contours whose plates are known by hand: thicknesses, lengths, mean lines; what is left of the
// sides; chains of segments; outlines drawn at random.
#include "Zof_Gestion_parois.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include "Outils.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Formes_typees.hpp"

using socle::non_renseigne;
using testing::ElementsAre;

namespace {

constexpr double pi = std::numbers::pi;
constexpr double sans_limite = 100;  // m: thicker than any of these sections
constexpr double angle_faible = 0.2;

point_yz tourne(point_yz p, double angle) {
  return {std::cos(angle) * p.y - std::sin(angle) * p.z, std::sin(angle) * p.y + std::cos(angle) * p.z};
}
polygone tourne(polygone contour, double angle) {
  for (point_yz& p : contour) p = tourne(p, angle);
  return contour;
}

/// The sides of an outline that runs counter-clockwise: of a contour in that sense, of a void against it.
void ajouter_cotes(uef_vector& cotes, polygone contour, int numero_zone) {
  if (numero_zone > 1) std::ranges::reverse(contour);
  for (std::size_t i = 0; i < contour.size(); ++i) {
    const point_yz a = contour[i];
    const point_yz b = contour[(i + 1) % contour.size()];
    zof_segment cote(zof_point(a.y, a.z), zof_point(b.y, b.z));
    cote.m_le_numero_zone = numero_zone;
    cote.m_le_numero_segment = static_cast<int>(i) + 1;
    cotes.ajouter(cote);
  }
}

/// A contour, its voids and their walls.
struct section_en_parois {
  uef_vector cotes;
  uef_vector liste;
  std::vector<zof_paroi> parois;

  explicit section_en_parois(const std::vector<polygone>& contours, double angle_max = angle_faible,
                             double epaisseur_max = sans_limite) {
    int numero_zone = 0;
    for (const polygone& contour : contours) ajouter_cotes(cotes, contour, ++numero_zone);
    bool erco = false;
    zof_construire_parois(1, angle_max, epaisseur_max, cotes, liste, erco);
    EXPECT_FALSE(erco);
    for (const zof_paroi& p : uef_parcours<zof_paroi>(liste)) parois.push_back(p);
  }
  section_en_parois(const section_en_parois&) = delete;
  section_en_parois& operator=(const section_en_parois&) = delete;

  [[nodiscard]] const zof_segment& cote(int position) const {
    return static_cast<const zof_segment&>(*cotes.case_element(position).m_ptr_element);
  }
};

double longueur(const zof_segment& s) {
  return zof_distance_points(s.m_le_point_origine, s.m_le_point_extremite);
}

/// Thickness and length of a wall.
struct plaque {
  double epaisseur, longueur;
};
void PrintTo(const plaque& p, std::ostream* flux) { *flux << p.epaisseur << " x " << p.longueur; }
MATCHER_P2(EstPlaque, epaisseur, longueur, "") {
  return std::abs(arg.epaisseur - epaisseur) < 1e-10 && std::abs(arg.longueur - longueur) < 1e-10;
}
std::vector<plaque> plaques(const std::vector<zof_paroi>& parois) {
  std::vector<plaque> resultat;
  for (const zof_paroi& p : parois)
    resultat.push_back({p.m_l_epaisseur_moyenne, longueur(p.m_le_segment_moyen)});
  return resultat;
}
double aire(const std::vector<zof_paroi>& parois) {
  double somme = 0;
  for (const plaque& p : plaques(parois)) somme += p.epaisseur * p.longueur;
  return somme;
}

polygone rectangle(double y_min, double y_max, double z_min, double z_max) {
  return {{y_max, z_max}, {y_min, z_max}, {y_min, z_min}, {y_max, z_min}};
}

// Flanges 1.0 x 0.2, web 0.3 x 1.1.
const polygone en_i{{0.5, 0.75},   {-0.5, 0.75}, {-0.5, 0.55}, {-0.15, 0.55}, {-0.15, -0.55}, {-0.5, -0.55},
                    {-0.5, -0.75}, {0.5, -0.75}, {0.5, -0.55}, {0.15, -0.55}, {0.15, 0.55},   {0.5, 0.55}};

/// What a fault writes on the console; it must stop the run with status 1.
template <class operation>
std::string faute(const operation& o) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  zof_erreurs_reinitialiser();
  EXPECT_EQ(statut_d_arret(o), 1);
  return machine.texte_console.substr(0, machine.texte_console.find('\n'));
}

}  // namespace

// A rectangle is one plate: the thinner pair of faces, whose wall the other pair would cross.
TEST(Parois, UnRectangleEstUnePlaque) {
  for (const double angle : {0.0, 0.3, 2.0, -1.1}) {
    const section_en_parois s({tourne(rectangle(-0.15, 0.15, -0.4, 0.4), angle)});
    EXPECT_THAT(plaques(s.parois), ElementsAre(EstPlaque(0.3, 0.8))) << angle;
    const zof_paroi& p = s.parois.front();
    EXPECT_EQ(p.m_le_pt_segment_1, &s.cote(2));
    EXPECT_EQ(p.m_le_pt_segment_2, &s.cote(4));
    EXPECT_EQ(p.m_le_numero_paroi, 1);
    const point_yz origine = tourne({0, 0.4}, angle);
    EXPECT_NEAR(p.m_le_segment_moyen.m_le_point_origine.m_y, origine.y, 1e-12);
    EXPECT_NEAR(p.m_le_segment_moyen.m_le_point_origine.m_z, origine.z, 1e-12);
    EXPECT_EQ(p.m_le_segment_moyen.m_le_numero_zone, 1);
  }
}

TEST(Parois, UneParoiNEstPasPlusEpaisseQueLaLimite) {
  const polygone c = rectangle(-0.15, 0.15, -0.4, 0.4);
  EXPECT_EQ(section_en_parois({c}, angle_faible, 0.31).parois.size(), 1U);
  EXPECT_EQ(section_en_parois({c}, angle_faible, 0.29).parois.size(), 0U);
  for (const double limite : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(section_en_parois({c}, angle_faible, limite).parois.size(), 0U) << limite;
  EXPECT_EQ(section_en_parois({c}, angle_faible, std::numeric_limits<double>::max()).parois.size(), 1U);
}

// Two faces that rise against each other by 0.25 in 4: 0.5 to 1.0 thick, and the angle between them is
// 2 atan(1/16).
TEST(Parois, UnTrapezeSiLAngleLePermet) {
  const polygone c{{2, 0.25}, {-2, 0.5}, {-2, -0.5}, {2, -0.25}};
  const double angle = 2 * std::atan(1.0 / 16);
  const section_en_parois s({c}, angle * 1.001);
  EXPECT_THAT(plaques(s.parois), ElementsAre(EstPlaque(0.75, 4)));
  EXPECT_THAT(plaques(section_en_parois({c}, angle * 0.999).parois), ElementsAre(EstPlaque(4, 0.5)))
      << "the ends are parallel";
}

// Outline 3 x 2, 0.25 thick: four plates between the corners of the void, at any angle in the plane.
TEST(Parois, UnCaissonAQuatrePlaques) {
  for (const double angle : {0.0, 0.7, 1.9}) {
    const section_en_parois s(
        {tourne(rectangle(-1.5, 1.5, -1, 1), angle), tourne(rectangle(-1.25, 1.25, -0.75, 0.75), angle)});
    EXPECT_THAT(plaques(s.parois), ElementsAre(EstPlaque(0.25, 2.5), EstPlaque(0.25, 1.5),
                                               EstPlaque(0.25, 2.5), EstPlaque(0.25, 1.5)));
    EXPECT_NEAR(aire(s.parois), 3 * 2 - 2.5 * 1.5 - 4 * 0.25 * 0.25, 1e-9);
    for (const zof_paroi& p : s.parois) {
      EXPECT_EQ(p.m_le_pt_segment_1->m_le_numero_zone, 1);
      EXPECT_EQ(p.m_le_pt_segment_2->m_le_numero_zone, 2);
    }
  }
}

// The web between two cells has no side on the contour.
TEST(Parois, UnCaissonADeuxCellules) {
  const section_en_parois s(
      {rectangle(-2, 2, 0, 1), rectangle(-1.8, -0.1, 0.2, 0.8), rectangle(0.1, 1.8, 0.2, 0.8)});
  std::vector<plaque> p = plaques(s.parois);
  ASSERT_EQ(p.size(), 7U);
  EXPECT_EQ(std::ranges::count_if(p, [](const plaque& q) { return std::abs(q.longueur - 0.6) < 1e-10; }), 3);
  EXPECT_EQ(std::ranges::count_if(p, [](const plaque& q) { return std::abs(q.longueur - 1.7) < 1e-10; }), 4);
  for (const plaque& q : p) EXPECT_NEAR(q.epaisseur, 0.2, 1e-10);
}

// The four overhangs and the web; the column of the web between the far faces is no wall of its own.
TEST(Parois, UnIACinqPlaques) {
  for (const double angle : {0.0, 1.0, 2.5}) {
    const section_en_parois s({tourne(en_i, angle)});
    EXPECT_THAT(plaques(s.parois),
                ElementsAre(EstPlaque(0.2, 0.35), EstPlaque(0.2, 0.35), EstPlaque(0.3, 1.1),
                            EstPlaque(0.2, 0.35), EstPlaque(0.2, 0.35)))
        << angle;
  }
}

TEST(Parois, UneCorniereEtUnU) {
  const polygone corniere{{0, 0}, {0.6, 0}, {0.6, 0.2}, {0.25, 0.2}, {0.25, 0.8}, {0, 0.8}};
  EXPECT_THAT(plaques(section_en_parois({corniere}).parois),
              ElementsAre(EstPlaque(0.2, 0.35), EstPlaque(0.25, 0.6)));
  const polygone en_u{{0, 0}, {1, 0}, {1, 0.8}, {0.9, 0.8}, {0.9, 0.15}, {0.1, 0.15}, {0.1, 0.8}, {0, 0.8}};
  EXPECT_THAT(plaques(section_en_parois({en_u}).parois),
              ElementsAre(EstPlaque(0.15, 0.8), EstPlaque(0.1, 0.65), EstPlaque(0.1, 0.65)));
}

// Flange 2.0 x 0.2, web 0.3 x 0.8, haunches of 0.2 at 45 degrees: under a small angle the haunches are in no
// wall, and the flange over them is free.
TEST(Parois, UnTeAGoussets) {
  const polygone te{{1, 0},      {-1, 0},    {-1, -0.2},   {-0.35, -0.2}, {-0.15, -0.4},
                    {-0.15, -1}, {0.15, -1}, {0.15, -0.4}, {0.35, -0.2},  {1, -0.2}};
  const section_en_parois s({te});
  EXPECT_THAT(plaques(s.parois),
              ElementsAre(EstPlaque(0.2, 0.65), EstPlaque(0.2, 0.65), EstPlaque(0.3, 0.6)));
  uef_vector libres;
  zof_liste_segments_libres(s.cote(1), s.liste, libres);
  ASSERT_EQ(libres.nombre(), 1);
  const zof_segment libre = zof_cp_segment(*libres.case_element(1).m_ptr_element);
  EXPECT_NEAR(libre.m_le_point_origine.m_y, 0.35, 1e-10);
  EXPECT_NEAR(libre.m_le_point_extremite.m_y, -0.35, 1e-10);
  EXPECT_EQ(libre.m_le_numero_segment, 1);
  // The haunch alone: none of it is taken.
  zof_liste_segments_libres(s.cote(4), s.liste, libres);
  ASSERT_EQ(libres.nombre(), 1);
  EXPECT_NEAR(longueur(zof_cp_segment(*libres.case_element(1).m_ptr_element)), 0.2 * std::sqrt(2), 1e-12);
  // A side that is taken whole.
  zof_liste_segments_libres(s.cote(5), s.liste, libres);
  EXPECT_EQ(libres.nombre(), 0);
}

// A bridge deck: two overhangs, the slab between the webs, two webs, the soffit.
TEST(Parois, UnCaissonAEncorbellements) {
  forme_caisson f;
  f.h_totale = 3;
  f.l_totale = 12;
  f.h_extremite = 0.22;
  f.h_origine = 0.5;
  f.l_encorbellement = 2.8;
  f.l_intrados = 5;
  f.epaisseur_intrados = 0.25;
  f.epaisseur_extrados = 0.28;
  f.epaisseur_ame = 0.4;
  const section_en_parois s({points_contour(f), points_evidement(f)}, angle_faible, 1);
  ASSERT_EQ(s.parois.size(), 6U);
  std::vector<double> epaisseurs;
  for (const plaque& p : plaques(s.parois)) epaisseurs.push_back(p.epaisseur);
  std::ranges::sort(epaisseurs);
  EXPECT_NEAR(epaisseurs[0], 0.25, 1e-10);
  EXPECT_NEAR(epaisseurs[1], 0.28, 1e-10);
  // Overhangs from 0.22 to 0.50; the slope of 0.1 makes the normal a little longer or shorter.
  EXPECT_NEAR(epaisseurs[2], 0.36, 0.005);
  EXPECT_NEAR(epaisseurs[3], epaisseurs[2], 1e-10);
  // Webs inclined by 0.7 in 2.5: 0.4 across them, or 0.4 along y.
  EXPECT_NEAR(epaisseurs[4], 0.39, 0.015);
  EXPECT_NEAR(epaisseurs[5], epaisseurs[4], 1e-10);
}

// Over and under a void the slab is two plates; beside it, one.
TEST(Parois, UneDalleEvidee) {
  const section_en_parois s({rectangle(-1, 1, -0.25, 0.25), rectangle(-0.1, 0.1, -0.1, 0.1)});
  EXPECT_THAT(plaques(s.parois), ElementsAre(EstPlaque(0.5, 0.9), EstPlaque(0.15, 0.2), EstPlaque(0.5, 0.9),
                                             EstPlaque(0.15, 0.2)));
}

// A void whose sides face nothing: the faces over and under it are no wall.
TEST(Parois, UnVideEntreDeuxFacesNEnFaitPasUneParoi) {
  const polygone losange{{0.1, 0}, {0, 0.1}, {-0.1, 0}, {0, -0.1}};
  EXPECT_TRUE(section_en_parois({rectangle(-1, 1, -0.25, 0.25), losange}).parois.empty());
}

// Sides cut in pieces give the walls in pieces, end to end.
TEST(Parois, DesFacesCoupeesEnMorceaux) {
  for (const double angle : {0.0, 0.4}) {
    const polygone c = tourne({{2, 0.1}, {1, 0.1}, {0, 0.1}, {0, -0.1}, {1, -0.1}, {2, -0.1}}, angle);
    EXPECT_THAT(plaques(section_en_parois({c}).parois), ElementsAre(EstPlaque(0.2, 1), EstPlaque(0.2, 1)));
  }
}

// Walls behind those of another contour, with their positions: that of both faces, if they agree.
TEST(Parois, NumerosEtPositions) {
  uef_vector cotes;
  ajouter_cotes(cotes, en_i, 1);
  for (const int position : {4, 10}) uef_pointage<zof_segment> {
      cotes, position
      } -> m_la_position = 3;
  uef_vector parois;
  parois.ajouter(zof_paroi());
  bool erco = false;
  zof_construire_parois(7, angle_faible, sans_limite, cotes, parois, erco);
  ASSERT_EQ(parois.nombre(), 6);
  int numero = 1;
  for (int i = 2; i <= 6; ++i) {
    const zof_paroi p = zof_cp_paroi(*parois.case_element(i).m_ptr_element);
    EXPECT_EQ(p.m_le_numero_paroi, ++numero);
    EXPECT_EQ(p.m_le_segment_moyen.m_le_numero_zone, 7);
  }
  const uef_vector moyens = zof_segments_moyens_parois(parois, 3);
  ASSERT_EQ(moyens.nombre(), 1);
  EXPECT_NEAR(longueur(zof_cp_segment(*moyens.case_element(1).m_ptr_element)), 1.1, 1e-10);
  EXPECT_EQ(zof_segments_moyens_parois(parois, 4).nombre(), 0);
  erco = true;
  zof_construire_parois(7, angle_faible, sans_limite, cotes, parois, erco);
  EXPECT_EQ(parois.nombre(), 6) << "after an error nothing is built";
}

// Outlines of all sorts: star-shaped, self-crossing, on a grid so that points coincide and sides lie on one
// another, with coordinates that are no lengths. Walls keep to their sides and to the limits.
TEST(Parois, DesContoursAuHasard) {
  std::mt19937 hasard(20);
  std::uniform_real_distribution<double> reel(-1, 1);
  std::uniform_int_distribution<int> entier(-3, 3);
  std::uniform_int_distribution<int> nombre(3, 24);
  std::size_t total = 0;
  for (int essai = 0; essai < 3000; ++essai) {
    polygone c;
    const int n = nombre(hasard);
    for (int i = 0; i < n; ++i) {
      const double rayon = 1.5 + reel(hasard);
      switch (essai % 3) {
        case 0: c.push_back(tourne({rayon, 0}, 2 * pi * i / n)); break;
        case 1: c.push_back({reel(hasard), reel(hasard)}); break;
        default: c.push_back({static_cast<double>(entier(hasard)), static_cast<double>(entier(hasard))});
      }
    }
    const double angle_max = pi / 2 * std::abs(reel(hasard));
    const double epaisseur_max = 3 * std::abs(reel(hasard));
    const section_en_parois s({c}, angle_max, epaisseur_max);
    total += s.parois.size();
    for (const zof_paroi& p : s.parois) {
      ASSERT_LE(zof_distance_points(p.m_le_point_origine_segment_1, p.m_le_point_origine_segment_2),
                epaisseur_max + 1e-9);
      const double ecart =
          zof_angle_reduit_vecteurs(zof_angle_segments(*p.m_le_pt_segment_1, *p.m_le_pt_segment_2));
      ASSERT_FALSE(ecart > angle_max + 1e-6);
    }
    // What is free and what is taken make up the side.
    for (int i = 1; i <= s.cotes.nombre(); ++i) {
      if (!(longueur(s.cote(i)) >= 0.001)) continue;
      uef_vector libres;
      zof_liste_segments_libres(s.cote(i), s.liste, libres);
      double somme = 0;
      for (const zof_segment& l : uef_parcours<zof_segment>(libres)) somme += longueur(l);
      for (const zof_paroi& p : s.parois) {
        if (p.m_le_pt_segment_1 == &s.cote(i))
          somme += zof_distance_points(p.m_le_point_origine_segment_1, p.m_le_point_extremite_segment_1);
        if (p.m_le_pt_segment_2 == &s.cote(i))
          somme += zof_distance_points(p.m_le_point_origine_segment_2, p.m_le_point_extremite_segment_2);
      }
      ASSERT_NEAR(somme, longueur(s.cote(i)), 0.02) << "pieces under a millimetre are dropped";
    }
  }
  EXPECT_GT(total, 1000U);
}

TEST(Parois, DesCoordonneesQuiNeSontPasDesLongueurs) {
  constexpr double infini = std::numeric_limits<double>::infinity();
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double v : {1e300, -1e300, infini, nan, 1e-300, 0.0, 1e12}) {
    const polygone c{{0, 0}, {v, 0}, {v, v}, {0, 0.2}, {v, -v}};
    EXPECT_LE(section_en_parois({c}, 1.5).parois.size(), 5U) << v;
  }
}

// ---- What is left of a side

TEST(SegmentsLibres, CeQuiResteDUnCote) {
  const zof_point origine(1, 1);
  uef_vector libres;
  libres.ajouter(zof_segment(origine, zof_point(5, 1)));
  const auto occuper = [&](double y1, double y2) {
    zof_modifier_segments_libres({zof_point(y1, 1), zof_point(y2, 1)}, origine, libres);
  };
  const auto bornes = [&] {
    std::vector<double> y;
    for (const zof_segment& s : uef_parcours<zof_segment>(libres)) {
      y.push_back(s.m_le_point_origine.m_y);
      y.push_back(s.m_le_point_extremite.m_y);
    }
    return y;
  };
  occuper(7, 9);
  EXPECT_THAT(bornes(), ElementsAre(1, 5)) << "beyond the side";
  occuper(3, 2);
  EXPECT_THAT(bornes(), ElementsAre(1, 2, 3, 5)) << "in either sense";
  occuper(4.9995, 6);
  EXPECT_THAT(bornes(), ElementsAre(1, 2, 3, 4.9995));
  occuper(1.0005, 1.5);
  EXPECT_THAT(bornes(), ElementsAre(1.5, 2, 3, 4.9995)) << "half a millimetre is nothing";
  occuper(0, 9);
  EXPECT_EQ(libres.nombre(), 0);
}

// ---- Segments put end to end

namespace {

uef_vector segments(const std::vector<std::pair<point_yz, point_yz>>& bouts) {
  uef_vector v;
  for (const auto& [a, b] : bouts) v.ajouter(zof_segment(zof_point(a.y, a.z), zof_point(b.y, b.z)));
  return v;
}

const std::string cas_1 = "Zof_Numero_segment_origine : Cas impossible 1";
const std::string cas_2 = "Zof_Numero_segment_origine : Cas impossible 2";

}  // namespace

TEST(Chaine, LesSegmentsSeSuivent) {
  const uef_vector v =
      segments({{{2, 0}, {3, 0}}, {{1, 0}, {2, 0.0005}}, {{3, 0}, {3, 4}}, {{0, 0}, {1, 0}}});
  EXPECT_EQ(zof_numero_segment_origine(v), 4);
  EXPECT_TRUE(zof_est_origine_segment(zof_point(2, 0), v));
  EXPECT_TRUE(zof_est_origine_segment(zof_point(2, 0.0009), v));
  EXPECT_FALSE(zof_est_origine_segment(zof_point(2, 0.0011), v));
  EXPECT_FALSE(zof_est_origine_segment(zof_point(3, 4), v));
  const uef_vector chaine = zof_segments_ordonnes(v);
  std::vector<double> origines;
  for (const zof_segment& s : uef_parcours<zof_segment>(chaine)) origines.push_back(s.m_le_point_origine.m_y);
  EXPECT_THAT(origines, ElementsAre(0, 1, 2, 3));
}

TEST(Chaine, CeQuiNEstPasUneChaineArreteLaCourse) {
  const uef_vector anneau = segments({{{0, 0}, {1, 0}}, {{1, 0}, {0, 1}}, {{0, 1}, {0, 0}}});
  EXPECT_EQ(faute([&] { zof_segments_ordonnes(anneau); }), cas_1);
  EXPECT_EQ(faute([] { zof_numero_segment_origine(uef_vector()); }), cas_1);
  const uef_vector deux = segments({{{0, 0}, {1, 0}}, {{5, 0}, {6, 0}}});
  EXPECT_EQ(faute([&] { zof_segments_ordonnes(deux); }), cas_2);
  // A chain and a ring apart, a fork, a chain that runs into itself.
  const uef_vector chaine_et_anneau =
      segments({{{9, 9}, {8, 9}}, {{0, 0}, {1, 0}}, {{1, 0}, {0, 1}}, {{0, 1}, {0, 0}}});
  EXPECT_EQ(faute([&] { zof_segments_ordonnes(chaine_et_anneau); }), cas_2);
  const uef_vector fourche = segments({{{0, 0}, {1, 0}}, {{1, 0}, {2, 1}}, {{1, 0}, {2, -1}}});
  EXPECT_EQ(faute([&] { zof_segments_ordonnes(fourche); }), cas_2);
  const uef_vector boucle = segments({{{-1, 0}, {0, 0}}, {{0, 0}, {1, 0}}, {{1, 0}, {0, 0}}});
  EXPECT_EQ(faute([&] { zof_segments_ordonnes(boucle); }), cas_2);
}
