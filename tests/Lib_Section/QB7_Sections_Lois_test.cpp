#include <gmock/gmock.h>

#include <array>
#include <vector>

#include "QB7_Sections.hpp"
#include "moteur.hpp"

namespace {

using testing::ElementsAre;

constexpr int M = 3;
constexpr int EL = 1002;
constexpr ier_2 reussite{};

class MagasinDeLois : public Moteur {
 protected:
  /// Nothing in tension, 20000 e - 5e6 e² up to 0.002, then 20.
  static ier_2 creer_parabole(int num_materiau = M, int num_etat_lim = EL) {
    const std::array epsilons = {-1.0, 0.0, 0.002};
    const std::array<qb7_polynome, 3> coeffs = {{{}, {0, 20000, -5e6}, {20}}};
    return qb7_creer_loi(num_materiau, num_etat_lim, epsilons, 2, coeffs);
  }
  static ier_2 creer(const std::vector<double>& epsilons, int degre, std::size_t nbre_polynomes) {
    return qb7_creer_loi(M, EL, epsilons, degre, std::vector<qb7_polynome>(nbre_polynomes, {1, 2, 3, 4}));
  }
};

}  // namespace

TEST_F(MagasinDeLois, UneLoiSeRelit) {
  EXPECT_EQ(creer_parabole(), reussite);
  int nbre_interv = 0;
  int degre = 0;
  EXPECT_EQ(qb7_lire_dims_loi(M, EL, nbre_interv, degre), reussite);
  EXPECT_EQ(nbre_interv, 3);
  EXPECT_EQ(degre, 2);
  std::array<double, 3> epsilons{};
  std::array<qb7_polynome, 3> coeffs{};
  EXPECT_EQ(qb7_lire_tabs_loi(M, EL, epsilons, coeffs), reussite);
  EXPECT_THAT(epsilons, ElementsAre(-1, 0, 0.002));
  EXPECT_THAT(coeffs[1], ElementsAre(0, 20000, -5e6, 0));
  double min = 0;
  double max = 0;
  EXPECT_EQ(qb7_lire_bornes_loi(M, EL, min, max), reussite);
  EXPECT_EQ(min, 33554432.0);
  EXPECT_EQ(max, 33554432.0);
  int type_trou = 0;
  EXPECT_EQ(qb7_lire_type_trou(M, EL, type_trou), reussite);
  EXPECT_EQ(type_trou, 2000);
}

TEST_F(MagasinDeLois, LesCoefficientsAuDessusDuDegreNeComptentPas) {
  EXPECT_EQ(creer({0}, 1, 1), reussite);
  double sigma = 0;
  EXPECT_EQ(qb7_contrainte_materiau(M, EL, 10, sigma), reussite);
  EXPECT_EQ(sigma, 21);
  int nbre_interv = 0;
  int degre = 0;
  EXPECT_EQ(qb7_lire_dims_loi(M, EL, nbre_interv, degre), reussite);
  EXPECT_EQ(degre, 1);
}

TEST_F(MagasinDeLois, LoisRefusees) {
  EXPECT_EQ(creer({}, 1, 0), (ier_2{ERR_NBRE_INT_LOI, 0}));
  EXPECT_EQ(creer({}, 9, 0), (ier_2{ERR_NBRE_INT_LOI, 0})) << "before the degree";
  EXPECT_EQ(creer({0}, 4, 1), (ier_2{ERR_DEGRE_LOI, 4}));
  EXPECT_EQ(creer({0}, -1, 3), (ier_2{ERR_DEGRE_LOI, -1})) << "before the sizes";
  EXPECT_EQ(creer({0, 1}, 2, 3), (ier_2{ERR_DIM_TAB, 2}));
  EXPECT_EQ(creer({0, 2, 1, 3, 3}, 2, 5), (ier_2{ERR_DEF_LOI, 2})) << "the smallest of two bad steps";
  EXPECT_EQ(creer({0, 1, 1, 1}, 2, 4), (ier_2{ERR_DEF_LOI, 2})) << "the first in a tie";
  EXPECT_EQ(creer({0, 1, 2, 2}, 2, 4), (ier_2{ERR_DEF_LOI, 3}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Creer_Loi"));
  int n = 7;
  int d = 7;
  EXPECT_EQ(qb7_lire_dims_loi(M, EL, n, d), (ier_2{ERR_NON_LOI, M}));
  EXPECT_EQ(n + d, 0);
  std::array<double, 1> epsilons{7};
  std::array<qb7_polynome, 1> coeffs{{{7, 7, 7, 7}}};
  EXPECT_EQ(qb7_lire_tabs_loi(M, EL, epsilons, coeffs), (ier_2{ERR_NON_LOI, M}));
  EXPECT_EQ(epsilons[0], 0);
  EXPECT_EQ(coeffs[0], qb7_polynome{});
}

// The first left end takes no part in the evaluation: its step may be anything.
TEST_F(MagasinDeLois, LePremierPasNEstPasExamine) { EXPECT_EQ(creer({5, 0, 1}, 1, 3), reussite); }

TEST_F(MagasinDeLois, UneClefPriseNEstEcraseeQueSiCEstPermis) {
  EXPECT_EQ(creer_parabole(), reussite);
  EXPECT_EQ(creer({0}, 1, 1), (ier_2{ERR_LOI_EXISTE, M}));
  EXPECT_EQ(creer_parabole(M, EL + 1), reussite);
  EXPECT_EQ(creer_parabole(M + 1, EL), reussite);
  qb7_par.qb7_par_ecraser_permis = true;
  EXPECT_EQ(creer({0}, 1, 1), reussite);
  double sigma = 0;
  EXPECT_EQ(qb7_contrainte_materiau(M, EL, 10, sigma), reussite);
  EXPECT_EQ(sigma, 21);
}

TEST_F(MagasinDeLois, UnNoeudAppartientALIntervalleDeDroite) {
  const std::array epsilons = {-1.0, 0.5};
  const std::array<qb7_polynome, 2> coeffs = {{{1}, {7}}};
  EXPECT_EQ(qb7_creer_loi(M, EL, epsilons, 0, coeffs), reussite);
  double sigma = 0;
  EXPECT_EQ(qb7_contrainte_materiau(M, EL, 0.5, sigma), reussite);
  EXPECT_EQ(sigma, 7);
  EXPECT_EQ(qb7_contrainte_materiau(M, EL, 0.49999, sigma), reussite);
  EXPECT_EQ(sigma, 1);
  EXPECT_EQ(qb7_contrainte_materiau(M, EL, -1e9, sigma), reussite);
  EXPECT_EQ(sigma, 1) << "the first interval has no left end";
}

TEST_F(MagasinDeLois, ContrainteModuleEtDeformation) {
  EXPECT_EQ(creer_parabole(), reussite);
  double x = 0;
  EXPECT_EQ(qb7_contrainte_materiau(M, EL, 0.001, x), reussite);
  EXPECT_NEAR(x, 15, 1e-13);
  EXPECT_EQ(qb7_young_materiau(M, EL, 0, x), reussite);
  EXPECT_EQ(x, 20000);
  EXPECT_EQ(qb7_young_materiau(M, EL, 0.001, x), reussite);
  EXPECT_EQ(x, 20000) << "the coefficient and not the slope";
  EXPECT_EQ(qb7_deformation_materiau(M, EL, 15, x), reussite);
  EXPECT_NEAR(x, 0.001, 1e-12);
  EXPECT_EQ(qb7_deformation_materiau(M, EL, 0, x), reussite);
  EXPECT_EQ(x, 0) << "of all the strains without stress, the smallest";
  x = 7;
  EXPECT_EQ(qb7_deformation_materiau(M, EL, 21, x).code, ERR_NON_EPSILON);
  EXPECT_EQ(x, 0);
  EXPECT_THAT(journal_du_moteur(), ElementsAre("RDM_Deformation_Materiau", "QB7_Deformation_Materiau"));
  x = 7;
  EXPECT_EQ(qb7_young_materiau(9, EL, 0, x), (ier_2{ERR_NON_LOI, 9}));
  EXPECT_EQ(x, 0);
  x = 7;
  EXPECT_EQ(qb7_contrainte_materiau(9, EL, 0, x), (ier_2{ERR_NON_LOI, 9}));
  EXPECT_EQ(x, 0);
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Contrainte_Materiau"));
}

TEST_F(MagasinDeLois, CopierEtSupprimer) {
  EXPECT_EQ(creer_parabole(), reussite);
  EXPECT_EQ(qb7_fixer_bornes_loi(M, EL, {}, 0.0035), reussite);
  EXPECT_EQ(qb7_fixer_type_trou(M, EL, 2003), reussite);
  EXPECT_EQ(qb7_copier_loi(M, EL, 8, 2001), reussite);
  EXPECT_EQ(qb7_copier_loi(M, EL, 8, 2001), (ier_2{ERR_LOI_EXISTE, 8}));
  EXPECT_EQ(qb7_copier_loi(9, EL, 8, 2002), (ier_2{ERR_NON_LOI, 9}));
  EXPECT_EQ(qb7_supprimer_loi(M, EL), reussite);
  EXPECT_EQ(qb7_supprimer_loi(M, EL), (ier_2{ERR_NON_LOI, M}));
  int type_trou = 0;
  EXPECT_EQ(qb7_lire_type_trou(8, 2001, type_trou), reussite);
  EXPECT_EQ(type_trou, 2003);
  double min = 0;
  double max = 0;
  EXPECT_EQ(qb7_lire_bornes_loi(8, 2001, min, max), reussite);
  EXPECT_EQ(max, 0.0035);
  double sigma = 0;
  EXPECT_EQ(qb7_contrainte_materiau(8, 2001, 0.002, sigma), reussite);
  EXPECT_EQ(sigma, 20);
  qb7_reinit_loi();
  EXPECT_EQ(qb7_supprimer_loi(8, 2001), (ier_2{ERR_NON_LOI, 8}));
}

TEST_F(MagasinDeLois, TailleDesTableaux) {
  EXPECT_EQ(creer_parabole(), reussite);
  std::array<double, 2> epsilons{7, 7};
  std::array<qb7_polynome, 3> coeffs{};
  EXPECT_EQ(qb7_lire_tabs_loi(M, EL, epsilons, coeffs), (ier_2{ERR_DIM_TAB, 3}));
  EXPECT_THAT(epsilons, ElementsAre(0, 0));
  std::array<double, 3> bons{};
  std::array<qb7_polynome, 2> court{};
  EXPECT_EQ(qb7_lire_tabs_loi(M, EL, bons, court), (ier_2{ERR_DIM_TAB, 3}));
}

TEST_F(MagasinDeLois, TypesDeTrou) {
  EXPECT_EQ(creer_parabole(), reussite);
  for (const int type : {2000, 2001, 2002, 2003}) EXPECT_EQ(qb7_fixer_type_trou(M, EL, type), reussite);
  for (const int type : {1999, 2004, 0})
    EXPECT_EQ(qb7_fixer_type_trou(M, EL, type), (ier_2{ERR_TYPE_TROU, type}));
  int type_trou = 0;
  EXPECT_EQ(qb7_lire_type_trou(M, EL, type_trou), reussite);
  EXPECT_EQ(type_trou, 2003);
}

TEST_F(MagasinDeLois, Bornes) {
  EXPECT_EQ(creer_parabole(), reussite);
  const auto bornes = [] {
    double min = 0;
    double max = 0;
    EXPECT_EQ(qb7_lire_bornes_loi(M, EL, min, max), reussite);
    return std::array{min, max};
  };
  EXPECT_EQ(qb7_fixer_bornes_loi(M, EL, -0.01, 0.0035), reussite);
  EXPECT_THAT(bornes(), ElementsAre(-0.01, 0.0035));
  EXPECT_EQ(qb7_fixer_bornes_loi(M, EL, 0.1, 0.1), (ier_2{ERR_BORNES_LOI, M}));
  EXPECT_EQ(qb7_fixer_bornes_loi(M, EL, 0.2, 0.1), (ier_2{ERR_BORNES_LOI, M}));
  EXPECT_THAT(bornes(), ElementsAre(-0.01, 0.0035));
  EXPECT_EQ(qb7_fixer_bornes_loi(M, EL, {}, 0.0035), reussite);
  EXPECT_THAT(bornes(), ElementsAre(33554432.0, 0.0035));
  // The value that means no limit is in no order with the others.
  EXPECT_EQ(qb7_fixer_bornes_loi(M, EL, 33554432.0, 0.0035), reussite);
  EXPECT_THAT(bornes(), ElementsAre(33554432.0, 0.0035));
  EXPECT_EQ(qb7_fixer_bornes_loi(M, EL), reussite);
  EXPECT_THAT(bornes(), ElementsAre(33554432.0, 33554432.0));
}
