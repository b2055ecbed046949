#include "QB7_APPROX_LOI.hpp"

#include <cmath>

#include "Moteur_de_test.hpp"
#include "QB7_RDM.hpp"
#include "Systeme_memoire.hpp"
#include "moteur.hpp"

namespace {

constexpr int el = etat_lim_de_test;
constexpr int mat = 1;
constexpr double tolerance = 1e-5f;

class Approximation : public moteur_vide {
 protected:
  static gbd_loi loi(std::vector<double> epsilons, std::vector<qb7_polynome> coeffs,
                     double epsilon_min = qb7_sans_borne, double epsilon_max = qb7_sans_borne) {
    gbd_loi l;
    reussit(gbd_loi_creer(mat, el, epsilons, 3, coeffs, l));
    l.epsilon_min = epsilon_min;
    l.epsilon_max = epsilon_max;
    return l;
  }
  static gbd_loi approcher(const gbd_loi& l) {
    gbd_loi a;
    reussit(creation_loi_approximation_aff_par_mor(l, a));
    return a;
  }

  /// ∫ (law - approximation) between two strains, by a thousand mid-points.
  static double ecart(const gbd_loi& l, const gbd_loi& a, double e0, double e1) {
    constexpr int n = 1000;
    double somme = 0;
    for (int i = 0; i < n; ++i) {
      const double e = e0 + (e1 - e0) * (i + 0.5) / n;
      somme += (rdm_contrainte_materiau(l, e) - rdm_contrainte_materiau(a, e)) * (e1 - e0) / n;
    }
    return somme;
  }

  systeme_memoire m_machine;
  socle::systeme_en_place m_en_place{m_machine};
};

}  // namespace

// Parabola-rectangle of 20 MPa: each chord is as long as the integral allows, among the halves of what is
// left.
TEST_F(Approximation, LesCordesSuiventLaParabole) {
  reussit(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 20, 0.002, 0.0035, false, 0));
  const gbd_loi l = loi_du_moteur(mat);
  const gbd_loi a = approcher(l);
  EXPECT_EQ(a.num_materiau, mat);
  EXPECT_EQ(a.num_etat_lim, el);
  EXPECT_EQ(a.degre, 1);
  EXPECT_EQ(a.epsilons.front(), -1);
  EXPECT_EQ(a.epsilons.back(), 0.002);
  EXPECT_EQ(a.coeffs.front(), qb7_polynome{});
  EXPECT_EQ(a.coeffs.back(), (qb7_polynome{20}));
  // The integral over a chord of length L is |a2| L^3 / 6, a2 = -5e6: the longest is 2.3e-4, the halvings of
  // 0.002 give 0.002 / 16 first and stay between half of the longest and the longest.
  EXPECT_EQ(a.epsilons[1], 0);
  EXPECT_EQ(a.epsilons[2], 0.002 / 16);
  for (std::size_t i = 1; i + 1 < a.epsilons.size(); ++i) {
    SCOPED_TRACE(i);
    const double e0 = a.epsilons[i];
    const double e1 = a.epsilons[i + 1];
    EXPECT_NEAR(ecart(l, a, e0, e1), 5e6 * std::pow(e1 - e0, 3) / 6, 1e-10);
    EXPECT_LE(std::abs(ecart(l, a, e0, e1)), tolerance);
    for (const double e : {e0, e1 - 1e-15})
      EXPECT_NEAR(rdm_contrainte_materiau(a, e), rdm_contrainte_materiau(l, e), 1e-9);
    // half as long again as what is left would not do, unless the chord ends the interval
    if (e1 < 0.002) {
      const double deux_fois = std::min(2 * (e1 - e0), 0.002 - e0);
      EXPECT_GT(5e6 * std::pow(deux_fois, 3) / 6, tolerance);
    }
  }
}

TEST_F(Approximation, UneLoiAffineEstCopiee) {
  reussit(qb7_loi_lin_bilin(mat, el, qb7_loi_compression_seule, 30000, {}, 18.0));
  const gbd_loi l = loi_du_moteur(mat);
  const gbd_loi a = approcher(l);
  EXPECT_EQ(a.epsilons, l.epsilons);
  EXPECT_EQ(a.coeffs, l.coeffs);
  EXPECT_EQ(a.epsilon_max, l.epsilon_max);
}

// σ = e + e², -1e-3 to 2e-3 in MPa times 1e6, by its limits alone: they close the interval.
TEST_F(Approximation, LesLimitesFermentLesIntervallesExtremes) {
  const gbd_loi l = loi({-7}, {{0, 1e4, 1e6}}, -1e-3, 2e-3);
  const gbd_loi a = approcher(l);
  EXPECT_EQ(a.epsilons.front(), -1e-3);
  EXPECT_LT(a.epsilons.back(), 2e-3);
  // 1e6 L^3 / 6 <= 1e-5: L <= 3.9e-4; from 3e-3: an eighth
  EXPECT_EQ(a.epsilons[1], -1e-3 + 3e-3 / 8);
  EXPECT_NEAR(rdm_contrainte_materiau(a, 2e-3), rdm_contrainte_materiau(l, 2e-3), 1e-12);
  EXPECT_NEAR(rdm_contrainte_materiau(a, -1e-3), rdm_contrainte_materiau(l, -1e-3), 1e-12);
}

TEST_F(Approximation, SansLimiteUnIntervalleExtremeDoitEtreAffine) {
  gbd_loi a;
  EXPECT_EQ(creation_loi_approximation_aff_par_mor(loi({-1, 0}, {{0, 1, 1}, {0, 1}}), a),
            (ier_2{ERR_NON_AFF_BORNES, 1}));
  EXPECT_EQ(creation_loi_approximation_aff_par_mor(loi({-1, 0, 1}, {{}, {0, 1}, {0, 1, 0, 1}}), a),
            (ier_2{ERR_NON_AFF_BORNES, 3}));
  EXPECT_EQ(journal_du_moteur().back(), "Creation_Loi_Approx_Aff_Par_Mor");
  EXPECT_EQ(creation_loi_approximation_aff_par_mor(loi({-1, 0}, {{0, 1, 1}, {0, 1}}, -0.001), a), ier_2{});
  EXPECT_EQ(creation_loi_approximation_aff_par_mor(
                loi({-1, 0, 1}, {{}, {0, 1}, {0, 1, 0, 1}}, qb7_sans_borne, 1.001), a),
            ier_2{});
}

// The curve between 0 and 1e-5 (single precision) is too short: the interval before goes on over it.
TEST_F(Approximation, UnIntervalleCourbeTresCourtDisparait) {
  const gbd_loi court = loi({-1, 0, tolerance}, {{}, {0, 1e5, 1e9}, {2}});
  EXPECT_EQ(approcher(court).epsilons, (std::vector<double>{-1, tolerance}));
  const gbd_loi a = approcher(loi({-1, 0, 1.01 * tolerance}, {{}, {0, 1e5, 1e9}, {2}}));
  EXPECT_EQ(a.epsilons, (std::vector<double>{-1, 0, 1.01 * tolerance}));
  // an affine one stays however short
  const gbd_loi affine = approcher(loi({-1, 0, 1e-9, 1}, {{}, {0, 1e5}, {1, 0, 1}, {1}}));
  EXPECT_EQ(affine.epsilons[1], 0);
  EXPECT_EQ(affine.epsilons[2], 1e-9);
}

// Limits 9e-6 apart leave nothing of a curve.
TEST_F(Approximation, UneLoiDontIlNeResteRien) {
  gbd_loi a;
  EXPECT_EQ(creation_loi_approximation_aff_par_mor(loi({0}, {{0, 1, 1}}, 0, 9e-6), a),
            (ier_2{ERR_LOI_APPROX}));
  EXPECT_EQ(journal_du_moteur(),
            (std::vector<std::string>{"GBD_LOI_Creer", "Creation_Loi_Approx_Aff_Par_Mor"}));
}

// 20e6 instead of 20: with stresses in Pa each chord must be a hundred times shorter.
TEST_F(Approximation, TropDeCordes) {
  gbd_loi a;
  reussit(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 20e6, 0.002, 0.0035, false, 0));
  EXPECT_EQ(creation_loi_approximation_aff_par_mor(loi_du_moteur(mat), a), (ier_2{ERR_CALC_APPROX}));
  EXPECT_EQ(journal_du_moteur(),
            (std::vector<std::string>{"LOC_Approcher", "Creation_Loi_Approx_Aff_Par_Mor"}));
  EXPECT_EQ(qb7_err.glob_tab_num_erreurs[1], ERR_INT_MAX_APPROX);
  EXPECT_EQ(m_machine.texte_console, "erreur approx 2\n");
}

// 998 affine pieces and one chord make 1000 with the first; one more affine piece is too many.
TEST_F(Approximation, TropDIntervallesAffines) {
  std::vector<double> epsilons = {-1};
  std::vector<qb7_polynome> coeffs = {{}};
  for (int i = 0; i < 998; ++i) {
    epsilons.push_back(i * 1e-3);
    coeffs.push_back({0, 1});
  }
  epsilons.push_back(1);
  coeffs.push_back({0, 1, 1e-3});
  gbd_loi a;
  reussit(creation_loi_approximation_aff_par_mor(loi(epsilons, coeffs, qb7_sans_borne, 1.01), a));
  EXPECT_EQ(a.nbre_interv(), 1000);
  epsilons.push_back(1.01);
  coeffs.push_back({1});
  EXPECT_EQ(creation_loi_approximation_aff_par_mor(loi(epsilons, coeffs), a), (ier_2{ERR_CALC_APPROX}));
  EXPECT_EQ(m_machine.texte_console, "erreur approx 1\n");
}

// Polynomials that no chord fits, or whose values overflow, end with a code.
TEST_F(Approximation, DesPolynomesImmensesFinissent) {
  gbd_loi a;
  for (const double grand : {1e30, 1e150, 1e308}) {
    EXPECT_EQ(creation_loi_approximation_aff_par_mor(loi({-1, 0, 1}, {{}, {0, grand, -grand}, {1}}), a),
              (ier_2{ERR_CALC_APPROX}));
    EXPECT_EQ(creation_loi_approximation_aff_par_mor(loi({0}, {{0, 0, 1, grand}}, -1e20, 2e20), a),
              (ier_2{ERR_CALC_APPROX}));
  }
}

// The law of exponent n: three cubics.
TEST_F(Approximation, LaLoiDegreNEstApprocheeEnContrainte) {
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 1.59, 40, 0.00229, 0.00288, false, 0));
  const gbd_loi l = loi_du_moteur(mat);
  const gbd_loi a = approcher(l);
  for (int i = -10; i <= 300; ++i)
    EXPECT_NEAR(rdm_contrainte_materiau(a, i * 1e-5), rdm_contrainte_materiau(l, i * 1e-5), 0.2) << i;
  for (std::size_t i = 1; i + 1 < a.epsilons.size(); ++i)
    EXPECT_LE(std::abs(ecart(l, a, a.epsilons[i], a.epsilons[i + 1])), 1.01 * tolerance) << i;
}
