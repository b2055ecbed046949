#include "RAC_Racines.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "Outils.hpp"

namespace {

std::vector<double> loc_nombres(const std::string& texte) {
  std::istringstream flux(texte);
  std::vector<double> valeurs;
  for (double v = 0; flux >> v;) valeurs.push_back(v);
  return valeurs;
}

/// Coefficients, from degree 0, of the product of the x - root.
std::vector<double> loc_polynome_de_racines(const std::vector<double>& racs) {
  std::vector<double> p = {1};
  for (const double r : racs) {
    p.insert(p.begin(), 0);
    for (std::size_t i = 0; i + 1 < p.size(); ++i) p[i] -= r * p[i + 1];
  }
  return p;
}

std::vector<double> loc_trouvees(const racines& r) {
  return {r.racs.begin(), r.racs.begin() + std::max(0, r.n_racs)};
}

void loc_attendre(const std::vector<double>& attendues, const racines& r, double tolerance) {
  const auto trouvees = loc_trouvees(r);
  ASSERT_EQ(trouvees.size(), attendues.size());
  for (std::size_t i = 0; i < attendues.size(); ++i) EXPECT_NEAR(trouvees[i], attendues[i], tolerance);
}

}  // namespace

TEST(Racines, ValeursDeReference) {
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/racines.csv");
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE(t.texte(i, "id"));
    const auto poly = loc_nombres(t.texte(i, "poly_from_degree_0"));
    const racines r = rac_chercher(poly, {.x_inf = t.reel(i, "x_inf"), .x_sup = t.reel(i, "x_sup")});
    EXPECT_EQ(r.n_racs, static_cast<int>(t.reel(i, "n_racs")));
    const auto attendues = loc_nombres(t.texte(i, "racs"));
    ASSERT_EQ(loc_trouvees(r).size(), attendues.size());
    for (std::size_t k = 0; k < attendues.size(); ++k) {
      EXPECT_NEAR(r.racs[k], attendues[k], 1e-9 * std::abs(attendues[k]));
    }
  }
}

TEST(Racines, LesRacinesChoisiesSontRetrouvees) {
  const std::vector<std::vector<double>> choix = {
      {-2, 0.5, 3}, {-1e-3, 2e-3, 3.5e-3}, {1, 2, 3, 4}, {-3, -1, 0.25, 1, 2, 7}, {-2, -1, 0, 1, 2, 3, 4, 5}};
  for (const auto& racs : choix) loc_attendre(racs, rac_chercher(loc_polynome_de_racines(racs)), 1e-10);
}

// The three real roots of a cubic in the scale of a law: strains of some per mille under coefficients up to
// 1e10.
TEST(Racines, CubiqueALEchelleDUneLoi) {
  std::vector<double> p = loc_polynome_de_racines({-0.0031, 0.0007, 0.0042});
  for (double& c : p) c *= -4.8e9;
  loc_attendre({-0.0031, 0.0007, 0.0042}, rac_chercher(p), 1e-15);
}

TEST(Racines, UneParaboleTangenteADixPuissanceMoinsQuatorzeAUneRacineDouble) {
  const std::array tangente = {1 - 0.9e-14, -2.0, 1.0};
  const racines r = rac_chercher(tangente);
  ASSERT_EQ(r.n_racs, 1);
  EXPECT_EQ(r.rangs_racs[0], 2);
  EXPECT_DOUBLE_EQ(r.racs[0], 1);
  EXPECT_EQ(rac_chercher(std::array{1 + 1.2e-14, -2.0, 1.0}).n_racs, 0);
  EXPECT_EQ(rac_chercher(std::array{1 - 5e-14, -2.0, 1.0}).n_racs, 2);
}

// The closed form finds the three roots to the rounding of the largest; polished, each has its own digits.
TEST(Racines, LaPetiteRacineDUneCubiqueEstAffinee) {
  const racines r = rac_chercher(loc_polynome_de_racines({1e-6, 1, 1e6}));
  ASSERT_EQ(r.n_racs, 3);
  EXPECT_NEAR(r.racs[0], 1e-6, 1e-18);
  EXPECT_NEAR(r.racs[1], 1, 1e-12);
  EXPECT_NEAR(r.racs[2], 1e6, 1e-6);
}

TEST(Racines, MultiplicitesDUneCubique) {
  const racines double_puis_simple = rac_chercher(loc_polynome_de_racines({1, 1, 2}));
  loc_attendre({1, 2}, double_puis_simple, 1e-7);
  EXPECT_EQ(double_puis_simple.rangs_racs[0], 2);
  EXPECT_EQ(double_puis_simple.rangs_racs[1], 1);
  const racines simple_puis_double = rac_chercher(loc_polynome_de_racines({-4, 1, 1}));
  loc_attendre({-4, 1}, simple_puis_double, 1e-7);
  EXPECT_EQ(simple_puis_double.rangs_racs[0], 1);
  EXPECT_EQ(simple_puis_double.rangs_racs[1], 2);
  const racines triple = rac_chercher(loc_polynome_de_racines({2, 2, 2}));
  loc_attendre({2}, triple, 1e-7);
  EXPECT_EQ(triple.rangs_racs[0], 3);
}

TEST(Racines, MultiplicitesAuDelaDuTroisiemeDegre) {
  const racines r = rac_chercher(loc_polynome_de_racines({-1, 2, 2, 3}));
  loc_attendre({-1, 2, 3}, r, 1e-7);
  EXPECT_EQ(r.rangs_racs[0], 1);
  EXPECT_EQ(r.rangs_racs[1], 2);
  EXPECT_EQ(r.rangs_racs[2], 1);
  EXPECT_EQ(rac_chercher(std::array{1.0, 0.0, 0.0, 0.0, 1.0}).n_racs, 0);
}

TEST(Racines, ImpairesNeGardeQueLesChangementsDeSigne) {
  loc_attendre({2}, rac_chercher(loc_polynome_de_racines({1, 1, 2}), {.impaires = true}), 1e-7);
}

TEST(Racines, LesBornesSontComprises) {
  const std::array p = {-1.0, 0.0, 4.0};
  loc_attendre({0.5}, rac_chercher(p, {.x_inf = 0.5}), 0);
  loc_attendre({-0.5}, rac_chercher(p, {.x_sup = -0.5}), 0);
  EXPECT_EQ(rac_chercher(p, {.x_inf = -0.4, .x_sup = 0.4}).n_racs, 0);
}

// Roots that are dropped leave no hole and nothing behind them.
TEST(Racines, CeQuiResteEstTasseEtSuiviDeZeros) {
  const racines r = rac_chercher(loc_polynome_de_racines({-2, 0.5, 3}), {.x_inf = 0});
  loc_attendre({0.5, 3}, r, 1e-12);
  for (std::size_t i = 2; i < rac_degre_max; ++i) {
    EXPECT_EQ(r.racs[i], 0);
    EXPECT_EQ(r.rangs_racs[i], 0);
  }
}

// x1 + x2 = 1e8 and x1 x2 = 1: -b - sqrt(b^2 - 4 a c) would keep no digit of the smaller root.
TEST(Racines, LaPetiteRacineDUneParaboleGardeSesChiffres) {
  const racines r = rac_chercher(std::array{1.0, -1e8, 1.0});
  ASSERT_EQ(r.n_racs, 2);
  EXPECT_DOUBLE_EQ(r.racs[0], 1e-8);
  EXPECT_DOUBLE_EQ(r.racs[1], 1e8);
}

TEST(Racines, DegreEffectifEtPolynomeNul) {
  EXPECT_EQ(rac_chercher(std::array{0.0, 0.0, 0.0, 0.0}).n_racs, rac_toutes);
  EXPECT_EQ(rac_chercher({}).n_racs, rac_toutes);
  EXPECT_EQ(rac_chercher(std::array{3.0, 0.0}).n_racs, 0);
  loc_attendre({-0.5}, rac_chercher(std::array{2.0, 4.0, 0.0, 0.0}), 0);
}

TEST(Racines, UnDegreTropEleveEstSignale) {
  std::array<double, rac_degre_max + 2> p{};
  p.back() = 1;
  EXPECT_EQ(rac_chercher(p).ier, rac_degre_trop_eleve);
  EXPECT_EQ(rac_chercher(p).n_racs, 0);
}

TEST(Racines, ValeurEtDerivee) {
  const std::array p = {5.0, -3.0, 2.0, 7.0};
  EXPECT_DOUBLE_EQ(gen_valeur_poly(p, 2), 5 - 6 + 8 + 56);
  EXPECT_EQ(gen_valeurs_poly(p, std::array{2.0, 0.0, -1.0}), (std::vector<double>{63, 5, 3}));
  EXPECT_TRUE(gen_valeurs_poly(p, {}).empty());
  const auto d = rac_poly_derivee(p);
  EXPECT_DOUBLE_EQ(gen_valeur_poly(d, 2), -3 + 8 + 84);
}
