#include "SPLX_X2.hpp"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "Moteur_de_test.hpp"
#include "Outils.hpp"

namespace {

using std::size_t;
using testing::Each;
using testing::ElementsAre;

/// A row of numbers as its runs that are not zero.
void ajouter(splx_matrice& a, const std::vector<double>& ligne) {
  std::vector<splx_tranche> tranches;
  for (size_t k = 0; k < ligne.size(); ++k) {
    if (ligne[k] == 0) continue;
    if (tranches.empty() || tranches.back().colonne + tranches.back().longueur != k)
      tranches.push_back({.colonne = k});
    ++tranches.back().longueur;
  }
  splx_ajouter_ligne(a, tranches);
  size_t k = 0;
  for (const splx_tranche& t : a.ligne(a.nbre_lignes() - 1))
    for (double& valeur : a.valeurs_de(t)) {
      while (ligne[k] == 0) ++k;
      valeur = ligne[k++];
    }
}

struct programme {
  std::vector<std::vector<double>> lignes;
  std::vector<double> b, c;
  std::vector<int> preferees = {};  // none if empty
};

struct solution {
  int ier = -1;
  std::vector<double> x;
  double f = -1;
  std::vector<int> base;
};

splx_matrice matrice(const programme& p) {
  splx_matrice a;
  a.nbre_colonnes = p.c.size();
  for (const auto& ligne : p.lignes) ajouter(a, ligne);
  return a;
}

solution resoudre(const programme& p, splx_travail&& travail = {}) {
  solution s;
  s.x.assign(p.c.size(), -1);
  s.base = p.preferees.empty() ? std::vector<int>(p.b.size(), 0) : p.preferees;
  s.ier = splx_solve(matrice(p), p.b, p.c, s.x, s.f, s.base, travail);
  return s;
}

double produit(const std::vector<double>& a, const std::vector<double>& b) {
  double somme = 0;
  for (size_t i = 0; i < a.size(); ++i) somme += a[i] * b[i];
  return somme;
}

double violation(const programme& p, const std::vector<double>& x) {
  double pire = 0;
  for (size_t i = 0; i < p.b.size(); ++i) pire = std::max(pire, produit(p.lignes[i], x) - p.b[i]);
  return pire;
}

/// Vertex of some rows by Gauss with the largest pivot; nothing if they are not independent.
std::optional<std::vector<double>> sommet(const programme& p, const std::vector<size_t>& choix) {
  const size_t n = choix.size();
  std::vector<std::vector<double>> a;
  for (const size_t i : choix) {
    a.push_back(p.lignes[i]);
    a.back().push_back(p.b[i]);
  }
  for (size_t k = 0; k < n; ++k) {
    size_t pivot = k;
    for (size_t i = k; i < n; ++i)
      if (std::abs(a[i][k]) > std::abs(a[pivot][k])) pivot = i;
    if (std::abs(a[pivot][k]) < 1e-9) return std::nullopt;
    std::swap(a[k], a[pivot]);
    for (size_t i = 0; i < n; ++i) {
      if (i == k) continue;
      const double facteur = a[i][k] / a[k][k];
      for (size_t j = k; j <= n; ++j) a[i][j] -= facteur * a[k][j];
    }
  }
  std::vector<double> x(n);
  for (size_t k = 0; k < n; ++k) x[k] = a[k][n] / a[k][k];
  return x;
}

/// The least c.x over all vertices that satisfy every row: right for a bounded set.
std::optional<double> minimum_par_sommets(const programme& p) {
  const size_t n = p.c.size();
  std::optional<double> f;
  std::vector<size_t> choix(n);
  for (size_t k = 0; k < n; ++k) choix[k] = k;
  for (;;) {
    if (const auto x = sommet(p, choix); x && violation(p, *x) < 1e-9) {
      const double fx = produit(p.c, *x);
      if (!f || fx < *f) f = fx;
    }
    size_t k = n;
    while (k > 0 && choix[k - 1] == p.b.size() - n + k - 1) --k;
    if (k == 0) return f;
    ++choix[k - 1];
    for (size_t l = k; l < n; ++l) choix[l] = choix[l - 1] + 1;
  }
}

/// -1 <= x <= 1 for each unknown, as the first rows.
programme cube(size_t n) {
  programme p;
  for (size_t k = 0; k < n; ++k) {
    for (const double signe : {1.0, -1.0}) {
      std::vector<double> ligne(n);
      ligne[k] = signe;
      p.lignes.push_back(ligne);
      p.b.push_back(1);
    }
  }
  p.c.assign(n, 0);
  return p;
}

void echoue(const solution& s, int ier) {
  EXPECT_EQ(s.ier, ier);
  EXPECT_THAT(s.x, Each(0.0));
  EXPECT_EQ(s.f, 0);
}

}  // namespace

TEST(Simplexe, ProgrammesDeReference) {
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/programmes.csv");
  ASSERT_EQ(t.lignes.size(), 30u);
  for (size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE("programme " + t.texte(i, "id"));
    programme p{.lignes = {}, .b = nombres(t.texte(i, "b")), .c = nombres(t.texte(i, "c"))};
    const std::vector<double> a = nombres(t.texte(i, "A_by_rows"));
    const auto n = static_cast<std::ptrdiff_t>(p.c.size());
    for (auto ligne = a.begin(); ligne != a.end(); ligne += n) p.lignes.emplace_back(ligne, ligne + n);
    const solution s = resoudre(p);
    if (t.texte(i, "ier") != "0") {
      EXPECT_THAT(t.texte(i, "ier"), testing::HasSubstr(std::to_string(s.ier)));
      EXPECT_THAT(s.x, Each(0.0));
      continue;
    }
    ASSERT_EQ(s.ier, 0);
    EXPECT_NEAR(s.f, t.reel(i, "f"), 1e-9 * std::max(1.0, std::abs(s.f)));
    EXPECT_NEAR(produit(p.c, s.x), s.f, 1e-9);
    EXPECT_LT(violation(p, s.x), 1e-9);
    EXPECT_THAT(s.x, testing::Pointwise(testing::DoubleNear(1e-9), nombres(t.texte(i, "x"))));
  }
}

// Coefficients of -2, -1, 0, 1, 2 make rows that repeat, vertices where many rows meet, and edges of equal
// cost: the least over all vertices is the same whatever the path.
TEST(Simplexe, MinimumDeTousLesSommets) {
  std::mt19937 hasard(20260921);
  const auto entier = [&](int bas, int haut) {
    return static_cast<double>(std::uniform_int_distribution(bas, haut)(hasard));
  };
  int nbre_vides = 0;
  splx_travail travail;
  for (int essai = 0; essai < 3000; ++essai) {
    const auto n = static_cast<size_t>(1 + essai % 4);
    programme p = cube(n);
    for (size_t i = 0; i < 5; ++i) {
      std::vector<double> ligne(n);
      for (double& a : ligne) a = entier(-2, 2);
      p.lignes.push_back(ligne);
      p.b.push_back(entier(-2, 3));
    }
    for (double& c : p.c) c = entier(-2, 2);
    for (size_t i = 0; i < p.b.size(); ++i) p.preferees.push_back(static_cast<int>(entier(0, 1)));
    // a zero row counts as satisfied
    for (size_t i = 0; i < p.b.size(); ++i)
      if (produit(p.lignes[i], p.lignes[i]) == 0) p.b[i] = 0;
    const auto f = minimum_par_sommets(p);
    std::vector<double> x(n);
    double trouve = 0;
    const int ier = splx_solve(matrice(p), p.b, p.c, x, trouve, p.preferees, travail);
    SCOPED_TRACE("trial " + std::to_string(essai));
    if (!f) {
      ++nbre_vides;
      EXPECT_EQ(ier, splx_err_vide);
      continue;
    }
    ASSERT_EQ(ier, 0);
    EXPECT_NEAR(trouve, *f, 1e-9);
    EXPECT_LT(violation(p, x), 1e-9);
    EXPECT_EQ(std::ranges::count(p.preferees, 1), static_cast<std::ptrdiff_t>(n));
  }
  EXPECT_GT(nbre_vides, 100);
}

// max 3 x + 2 y under x + y <= 4, x + 3 y <= 7, x <= 3, x, y >= 0: the vertex (3, 1), value 11.
TEST(Simplexe, ExempleALaMain) {
  const solution s =
      resoudre({.lignes = {{1, 1}, {1, 3}, {1, 0}, {-1, 0}, {0, -1}}, .b = {4, 7, 3, 0, 0}, .c = {-3, -2}});
  EXPECT_EQ(s.ier, 0);
  EXPECT_NEAR(s.x[0], 3, 1e-14);
  EXPECT_NEAR(s.x[1], 1, 1e-14);
  EXPECT_NEAR(s.f, -11, 1e-14);
  EXPECT_THAT(s.base, ElementsAre(1, 0, 1, 0, 0));
}

// Beale's programme turns in a circle under the first rule of the simplex: -0.05 is its minimum.
TEST(Simplexe, LeProgrammeDeBealeNeTournePasEnRond) {
  const programme p = {.lignes = {{0.25, -60, -0.04, 9},
                                  {0.5, -90, -0.02, 3},
                                  {0, 0, 1, 0},
                                  {-1, 0, 0, 0},
                                  {0, -1, 0, 0},
                                  {0, 0, -1, 0},
                                  {0, 0, 0, -1}},
                       .b = {0, 0, 1, 0, 0, 0, 0},
                       .c = {-0.75, 150, -0.02, 6}};
  const solution s = resoudre(p);
  EXPECT_EQ(s.ier, 0);
  EXPECT_NEAR(s.f, -0.05, 1e-12);
  EXPECT_LT(violation(p, s.x), 1e-12);
}

TEST(Simplexe, AutantDeLignesQueDInconnues) {
  const solution s = resoudre({.lignes = {{2, 0}, {0, 4}}, .b = {2, 8}, .c = {-1, -1}});
  EXPECT_EQ(s.ier, 0);
  EXPECT_THAT(s.x, ElementsAre(1, 2));
  EXPECT_EQ(s.f, -3);
  echoue(resoudre({.lignes = {{2, 0}, {0, 4}}, .b = {2, 8}, .c = {-1, 1}}), splx_err_infini);
}

TEST(Simplexe, SansInconnueNiLigne) {
  EXPECT_EQ(resoudre({}).ier, 0);
  EXPECT_EQ(resoudre({}).f, 0);
}

// min x under x <= 1 and -x <= 0: the row that enters has the opposite sign at the place that leaves.
TEST(Simplexe, UneInconnueEntreDeuxBornes) {
  const solution s = resoudre({.lignes = {{1}, {-1}}, .b = {1, 0}, .c = {1}, .preferees = {1, 0}});
  EXPECT_EQ(s.ier, 0);
  EXPECT_NEAR(s.x[0], 0, 1e-15);
  EXPECT_THAT(s.base, ElementsAre(0, 1));
}

TEST(Simplexe, EnsembleVide) {
  echoue(resoudre({.lignes = {{1, 0}, {-1, 0}, {0, 1}}, .b = {1, -2, 0}, .c = {0, 0}}), splx_err_vide);
}

TEST(Simplexe, SansMinimum) {
  echoue(resoudre({.lignes = {{1, 0}, {0, 1}, {1, 1}}, .b = {1, 1, 1}, .c = {1, 1}}), splx_err_infini);
}

TEST(Simplexe, RangInsuffisant) {
  echoue(resoudre({.lignes = {{1, 2}, {-2, -4}, {3, 6}}, .b = {1, 1, 1}, .c = {1, 1}}), splx_err_rang);
  echoue(resoudre({.lignes = {{0, 0}, {1, 0}, {-1, 0}}, .b = {1, 1, 1}, .c = {0, 0}}), splx_err_rang);
}

// What counts of a row is its direction: lines a millionth and a million long are the same to the pivots.
TEST(Simplexe, LesLignesSontRameneesALaLongueur1) {
  const solution s = resoudre(
      {.lignes = {{1e-12, 0}, {0, 1e12}, {-1e-12, 0}, {0, -1e12}}, .b = {3e-12, 5e12, 0, 0}, .c = {-1, -1}});
  EXPECT_EQ(s.ier, 0);
  EXPECT_NEAR(s.x[0], 3, 1e-12);
  EXPECT_NEAR(s.x[1], 5, 1e-12);
}

// 0 <= -5 is false, but a row of zeros bounds nothing: its right-hand side is dropped with it.
TEST(Simplexe, UneLigneNulleEstSatisfaite) {
  for (const double b : {5.0, -5.0}) {
    const solution s = resoudre({.lignes = {{1}, {0}, {-1}}, .b = {1, b, 1}, .c = {-1}});
    EXPECT_EQ(s.ier, 0);
    EXPECT_EQ(s.x[0], 1);
  }
}

// The rows x <= 5 and y <= 5 are taken first; they are violated by nothing, and no cost moves the vertex.
TEST(Simplexe, SansCoutLePremierSommetRealisable) {
  programme p = {.lignes = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}}, .b = {5, 5, 5, 5}, .c = {0, 0}};
  p.preferees = {1, 0, 1, 0};
  EXPECT_THAT(resoudre(p).x, ElementsAre(5, 5));
  p.preferees = {0, 1, 0, 1};
  EXPECT_THAT(resoudre(p).x, ElementsAre(-5, -5));
  p.b = {5, 5, 5, -5};  // y = 5 alone is left
  EXPECT_THAT(resoudre(p).x, ElementsAre(-5, 5));
}

// Once (1, 0) is in the base the preferred row (1, d) has the pivot d, and (0, 1) the pivot 1. All three meet
// at (1, 0), so that no exchange follows.
TEST(Simplexe, UneLignePrefereePasseSaufSiElleEstMilleFoisPire) {
  const auto base = [](double d) {
    return resoudre({.lignes = {{1, 0}, {1, d}, {0, 1}}, .b = {1, 1, 0}, .c = {0, 0}, .preferees = {1, 1, 0}})
        .base;
  };
  EXPECT_THAT(base(0.0011), ElementsAre(1, 1, 0));
  EXPECT_THAT(base(0.0009), ElementsAre(1, 0, 1));
}

TEST(Simplexe, MarquesDeLaDerniereBase) {
  const solution s = resoudre({.lignes = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}},
                               .b = {1, 1, 1, 1},
                               .c = {1, 1},
                               .preferees = {1, 1, 0, 0}});
  EXPECT_EQ(s.ier, 0);
  EXPECT_THAT(s.x, ElementsAre(-1, -1));
  EXPECT_THAT(s.base, ElementsAre(0, 0, 1, 1));
}

// Of equal rows the first is taken, of equal ratios the lowest place leaves: a design does not depend on
// chance.
TEST(Simplexe, EgalitesAuPremier) {
  EXPECT_THAT(resoudre({.lignes = {{1}, {1}, {-1}}, .b = {1, 1, 0}, .c = {-1}}).base, ElementsAre(1, 0, 0));
  const solution s = resoudre({.lignes = {{-1, 0}, {0, -1}, {-1, -1}, {-1, -1}},
                               .b = {0, 0, -1, -1},
                               .c = {1, 1},
                               .preferees = {1, 1, 0, 0}});
  EXPECT_THAT(s.base, ElementsAre(0, 1, 1, 0));
  EXPECT_NEAR(s.x[0], 1, 1e-15);
  EXPECT_EQ(s.x[1], 0);
}

TEST(Simplexe, DimensionsQuiNeVontPasEnsemble) {
  const programme p = {.lignes = {{1, 0}, {0, 1}, {1, 1}}, .b = {1, 1, 1}, .c = {1, 1}};
  const splx_matrice a = matrice(p);
  splx_travail t;
  double f = 7;
  const auto essai = [&](size_t nx, size_t nb, size_t nc, size_t nl) {
    std::vector<double> x(nx, 7), b(nb, 1), c(nc, 1);
    std::vector<int> i_ligne(nl);
    const int ier = splx_solve(a, b, c, x, f, i_ligne, t);
    EXPECT_THAT(x, Each(0.0));
    return ier;
  };
  EXPECT_EQ(essai(2, 1, 2, 1), splx_err_dimensions);  // fewer rows than unknowns
  EXPECT_EQ(essai(2, 4, 2, 4), splx_err_dimensions);  // more right-hand sides than rows
  EXPECT_EQ(essai(1, 3, 1, 3), splx_err_dimensions);  // columns
  EXPECT_EQ(essai(2, 3, 3, 3), splx_err_dimensions);  // costs
  EXPECT_EQ(essai(2, 3, 2, 2), splx_err_dimensions);  // marks
  EXPECT_EQ(f, 0);
}

// Whatever the data, a solution comes to its end, and gives nothing that is not finite.
TEST(Simplexe, DonneesQuiNeSontPasFinies) {
  const programme sain = {.lignes = {{1, 0.5}, {-1, 0.25}, {0.125, -1}}, .b = {1, 1, 1}, .c = {1, 1}};
  for (const double x : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                         -std::numeric_limits<double>::infinity(), 1e300}) {
    for (size_t i = 0; i < 3; ++i) {
      for (size_t k = 0; k < 2; ++k) {
        programme p = sain;
        p.lignes[i][k] = x;
        echoue(resoudre(p), splx_err_vide);
      }
    }
    if (x == 1e300) continue;
    for (size_t i = 0; i < 3; ++i) {
      programme p = sain;
      p.b[i] = x;
      echoue(resoudre(p), splx_err_vide);
    }
    programme p = sain;
    p.c[1] = x;
    echoue(resoudre(p), splx_err_vide);
  }
}

// Loadings that share three unknowns of steel and have three of their own: as blocks, and as one full matrix,
// which the sparse products must not tell apart. The vertices are too many to be tried: the minimum is told
// by the multipliers, which are a solution of the dual.
TEST(Simplexe, BlocsDeTroisInconnues) {
  std::mt19937 hasard(4711);
  std::uniform_real_distribution<double> reel(-1, 1);
  constexpr size_t nv = 3;
  constexpr size_t ns = 6;
  constexpr size_t n = nv + 3 * ns;
  programme p;
  p.c.assign(n, 0);
  std::vector<double> realisable(n, 1);
  for (size_t k = nv; k < n; ++k) realisable[k] = reel(hasard);
  for (size_t v = 0; v < nv; ++v) {
    p.c[v] = 1 + static_cast<double>(v) / 10;
    p.lignes.emplace_back(n)[v] = -1;
    p.b.push_back(0);
  }
  for (size_t s = 0; s < ns; ++s) {
    std::array<std::vector<double>, 3> equations;
    for (size_t e = 0; e < 3; ++e) {
      equations[e].assign(n, 0);
      for (size_t v = 0; v < nv; ++v) equations[e][v] = reel(hasard);
      for (size_t k = 0; k < 3; ++k) equations[e][nv + 3 * s + k] = (k == e ? 3 : 0) + reel(hasard);
    }
    for (const double signe : {1.0, -1.0}) {
      for (size_t e = 0; e < 3; ++e) {
        p.lignes.push_back(equations[e]);
        for (double& a : p.lignes.back()) a *= signe;
        p.b.push_back(produit(p.lignes.back(), realisable));
      }
    }
    for (int borne = 0; borne < 4; ++borne) {
      std::vector<double>& ligne = p.lignes.emplace_back(n);
      for (size_t k = 0; k < 3; ++k) ligne[nv + 3 * s + k] = reel(hasard);
      p.b.push_back(produit(ligne, realisable) + 0.1);
    }
  }
  const solution s = resoudre(p);
  ASSERT_EQ(s.ier, 0);
  EXPECT_GT(s.f, 0.1);
  EXPECT_LT(violation(p, s.x), 1e-9);
  EXPECT_NEAR(produit(p.c, s.x), s.f, 1e-9);
  // c + w A = 0 with w >= 0 on the rows of the base: the optimum, by the theorem of duality
  std::vector<size_t> base;
  for (size_t i = 0; i < p.b.size(); ++i)
    if (s.base[i] == 1) base.push_back(i);
  ASSERT_EQ(base.size(), n);
  programme dual;  // columns of A as rows
  for (size_t k = 0; k < n; ++k) {
    dual.lignes.emplace_back();
    for (const size_t i : base) dual.lignes.back().push_back(p.lignes[i][k]);
    dual.b.push_back(-p.c[k]);
  }
  std::vector<size_t> toutes(n);
  for (size_t k = 0; k < n; ++k) toutes[k] = k;
  const auto w = sommet(dual, toutes);
  ASSERT_TRUE(w);
  EXPECT_THAT(*w, Each(testing::Ge(-1e-9)));

  // filled with a zero at each end, every row is one run
  splx_matrice pleine;
  pleine.nbre_colonnes = n;
  for (const auto& ligne : p.lignes) {
    splx_ajouter_ligne(pleine, std::array{splx_tranche{.colonne = 0, .longueur = n}});
    std::ranges::copy(ligne, pleine.valeurs_de(pleine.ligne(pleine.nbre_lignes() - 1)[0]).begin());
  }
  std::vector<double> x(n);
  std::vector<int> marques(p.b.size());
  double f = 0;
  splx_travail travail;
  EXPECT_EQ(splx_solve(pleine, p.b, p.c, x, f, marques, travail), 0);
  EXPECT_EQ(x, s.x);
  EXPECT_EQ(marques, s.base);
}

TEST(Simplexe, TextesDesStatuts) {
  EXPECT_EQ(splx_err_message(0), "Aucune erreur detectee (SPLX_)");
  EXPECT_EQ(splx_err_message(3110010), "Dimensions des tableaux d'appel incorrectes (SPLX_)");
  EXPECT_EQ(splx_err_message(3110020), "Echec d'allocation dynamique (SPLX_)");
  EXPECT_EQ(splx_err_message(3110030), "Rang de la matrice A plus petit que n (SPLX_)");
  EXPECT_EQ(splx_err_message(3110040), "Pas de solution, ensemble (AX <= B) vide (SPLX_)");
  EXPECT_EQ(splx_err_message(3110050), "Solution infinie ou ensemble (AX <= B) vide (SPLX_)");
  EXPECT_EQ(splx_err_message(3110060), "Boucle infinie (SPLX_)");
}
