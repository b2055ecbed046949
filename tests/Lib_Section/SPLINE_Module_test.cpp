#include "SPLINE_Module.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "Outils.hpp"

namespace {

constexpr double libre = spline_pente_libre;

std::vector<double> loc_nombres(const std::string& texte) {
  std::istringstream flux(texte);
  std::vector<double> valeurs;
  for (double v = 0; flux >> v;) valeurs.push_back(v);
  return valeurs;
}

spline_type loc_spline(const std::vector<double>& x, const std::vector<double>& y,
                       const std::vector<double>& yp) {
  spline_type s;
  EXPECT_EQ(spline_definir(s, x, y, yp), 0);
  return s;
}

spline_valeur loc_valeur(const spline_type& s, double x) {
  spline_valeur v;
  EXPECT_EQ(spline_valeurs(s, x, v), 0);
  return v;
}

}  // namespace

TEST(Spline, ValeursDeReference) {
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/splines.csv");
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE(t.texte(i, "id") + " at " + t.texte(i, "x"));
    const auto s = loc_spline(loc_nombres(t.texte(i, "tab_x")), loc_nombres(t.texte(i, "tab_y")),
                              loc_nombres(t.texte(i, "tab_yp")));
    const spline_valeur v = loc_valeur(s, t.reel(i, "x"));
    const double echelle = std::max({1.0, std::abs(v.y), std::abs(v.yp), std::abs(v.ys)});
    EXPECT_NEAR(v.y, t.reel(i, "value"), 1e-9 * echelle);
    EXPECT_NEAR(v.yp, t.reel(i, "slope"), 1e-9 * echelle);
    // the two cubics of a knot have one second derivative where the slope is free, and only there
    EXPECT_NEAR(v.ys, t.reel(i, "second"), 1e-9 * echelle);
  }
}

// All slopes free: a cubic between two knots would have no second derivative at the ends, so a line it is.
TEST(Spline, ToutesPentesLibresDonneLaSplineNaturelle) {
  const auto droite = loc_spline({1, 3}, {2, 8}, {libre, libre});
  EXPECT_DOUBLE_EQ(loc_valeur(droite, 2.5).y, 6.5);
  const auto s = loc_spline({0, 1, 3}, {0, 1, 0}, {libre, libre, libre});
  EXPECT_NEAR(loc_valeur(s, 0).ys, 0, 1e-14);
  EXPECT_NEAR(loc_valeur(s, 3).ys, 0, 1e-14);
}

TEST(Spline, UneCubiqueEstReproduiteParSesPentes) {
  const auto cubique = [](double x) { return ((2 * x - 1) * x + 3) * x - 5; };
  const auto pente = [](double x) { return (6 * x - 2) * x + 3; };
  const std::vector<double> x = {-1, 0.5, 2};
  const auto s =
      loc_spline(x, {cubique(x[0]), cubique(x[1]), cubique(x[2])}, {pente(x[0]), libre, pente(x[2])});
  for (const double t : {-1.5, -0.3, 0.5, 1.1, 2.4}) {
    EXPECT_NEAR(loc_valeur(s, t).y, cubique(t), 1e-12);
    EXPECT_NEAR(loc_valeur(s, t).yp, pente(t), 1e-12);
  }
}

TEST(Spline, PenteImposeeAuDernierNoeudSeulFinitPlat) {
  const auto s = loc_spline({0, 0.2, 0.9, 1}, {0, 0.36, 0.99, 1}, {libre, libre, libre, 0});
  EXPECT_DOUBLE_EQ(loc_valeur(s, 1).y, 1);
  EXPECT_NEAR(loc_valeur(s, 1).yp, 0, 1e-13);
  EXPECT_NEAR(loc_valeur(s, 0).ys, 0, 1e-13);
}

// An imposed slope inside cuts the curve: what lies on its left does not feel what lies on its right.
TEST(Spline, UnePenteImposeeSepareDeuxTroncons) {
  const auto a = loc_spline({0, 1, 2, 3}, {0, 1, 0, 5}, {libre, libre, 0, libre});
  const auto b = loc_spline({0, 1, 2, 3}, {0, 1, 0, -9}, {libre, libre, 0, libre});
  EXPECT_EQ(a.tab_coeffs[0], b.tab_coeffs[0]);
  EXPECT_EQ(a.tab_coeffs[1], b.tab_coeffs[1]);
  EXPECT_NE(a.tab_coeffs[2], b.tab_coeffs[2]);
}

TEST(Spline, CoefficientsAbsolusEtLocauxDisentLaMemeCourbe) {
  const auto s = loc_spline({-1, 0.5, 1, 4}, {2, -1, 0, 3}, {1.5, libre, libre, libre});
  for (int k = 1; k <= spline_n_valeurs(s); ++k) {
    std::array<double, 4> a{};
    ASSERT_EQ(spline_coefficients_abs(s, k, a), 0);
    const double x = (s.tab_x[static_cast<std::size_t>(k - 1)] + s.tab_x[static_cast<std::size_t>(k)]) / 2;
    EXPECT_NEAR(((a[3] * x + a[2]) * x + a[1]) * x + a[0], loc_valeur(s, x).y, 1e-13);
  }
  EXPECT_EQ(spline_tab_x(s), (std::vector<double>{-1, 0.5, 1, 4}));
  EXPECT_THAT(spline_tab_y(s), testing::Pointwise(testing::DoubleNear(1e-13), {2.0, -1.0, 0.0, 3.0}));
}

TEST(Spline, Refus) {
  spline_type s;
  const std::vector<double> x = {0, 1};
  EXPECT_EQ(spline_definir(s, x, std::vector{1.0}, std::vector{libre, libre}), spline_err_dimensions);
  EXPECT_EQ(spline_definir(s, x, x, std::vector{libre}), spline_err_dimensions);
  EXPECT_EQ(spline_definir(s, std::vector{0.0}, std::vector{0.0}, std::vector{libre}), spline_err_dimensions);
  EXPECT_EQ(spline_definir(s, std::vector{1.0, 1.0}, x, x), spline_err_abscisses);
  std::array<double, 4> c{1, 1, 1, 1};
  spline_valeur v{1, 1, 1};
  EXPECT_EQ(spline_coefficients(s, 1, c), spline_err_non_initialisee);
  EXPECT_EQ(c, (std::array<double, 4>{}));
  EXPECT_EQ(spline_valeurs(s, 0, v), spline_err_non_initialisee);
  EXPECT_EQ(v.y, 0);
  s = loc_spline({0, 1}, {0, 1}, {libre, libre});
  EXPECT_EQ(spline_coefficients(s, 0, c), spline_err_intervalle);
  EXPECT_EQ(spline_coefficients_abs(s, 2, c), spline_err_intervalle);
  spline_vider(s);
  EXPECT_EQ(spline_n_valeurs(s), 0);
}

TEST(Spline, MessagesDesStatuts) {
  EXPECT_EQ(spline_err_message(0), "Aucune erreur detectee");
  EXPECT_EQ(spline_err_message(4110010), "Dimensions des tableaux d'appel incorrectes");
  EXPECT_EQ(spline_err_message(4110020), "Abscisses non ordonnees");
  EXPECT_EQ(spline_err_message(4110030), "Une condition d'alignement droit ne peut etre satisfaite");
  EXPECT_EQ(spline_err_message(4110040), "Echec d'allocation dynamique");
  EXPECT_EQ(spline_err_message(4110050), "Systeme non inversible");
  EXPECT_EQ(spline_err_message(4110060), "SPLINE non initialisee");
  EXPECT_EQ(spline_err_message(4110070), "Numero d'intervalle incorrect");
  EXPECT_EQ(spline_err_message(4110080), "Ordonnee de point esclave > 1 pour un intervalle ");
  EXPECT_EQ(spline_err_message(4110090), "Ordonnee de point esclave incorrecte");
}
