#include "QB7_Lois.hpp"

#include <limits>

#include "Moteur_de_test.hpp"
#include "QB7_RDM.hpp"
#include "RAC_Racines.hpp"
#include "Systeme_memoire.hpp"

namespace {

class ConstructeursDeLois : public moteur_vide {
 protected:
  static constexpr int mat = 1;
  static constexpr int el = etat_lim_de_test;
  static constexpr double sans = qb7_sans_borne;

  static void attendre_bornes(double epsilon_min, double epsilon_max) {
    EXPECT_DOUBLE_EQ(loi_du_moteur(mat).epsilon_min, epsilon_min);
    EXPECT_DOUBLE_EQ(loi_du_moteur(mat).epsilon_max, epsilon_max);
  }
  static double sigma(double epsilon) { return rdm_contrainte_materiau(loi_du_moteur(mat), epsilon); }

  /// Refused, and nothing created.
  static void attendre_refus(const ier_2& ier, const ier_2& attendu) {
    EXPECT_EQ(ier, attendu);
    EXPECT_EQ(gbd_glob.glob_lst_lois.lst_longueur(), 0);
  }
};

/// Positional arguments, as in lois_tables.csv; "0" and "1" are booleans.
ier_2 loc_construire(int mat, const std::string& constructeur, const std::vector<double>& a) {
  const int el = etat_lim_de_test;
  const auto n = [&a](std::size_t i) -> std::optional<double> {
    return i < a.size() ? std::optional(a[i]) : std::nullopt;
  };
  if (constructeur == "qb7_loi_lin_bilin")
    return qb7_loi_lin_bilin(mat, el, static_cast<int>(a[0]), n(1), n(2), n(3));
  if (constructeur == "qb7_loi_parabole_rectangle_avec_bornes") {
    return qb7_loi_parabole_rectangle_avec_bornes(mat, el, a[0], a[1], a[2], a[3] != 0, a[4]);
  }
  if (constructeur == "qb7_loi_parabole_degre_n_avec_bornes") {
    return qb7_loi_parabole_degre_n_avec_bornes(mat, el, a[0], a[1], a[2], a[3], a[4] != 0, a[5]);
  }
  if (constructeur == "qb7_loi_beton_bilin") return qb7_loi_beton_bilin(mat, el, a[0], a[1], a[2]);
  if (constructeur == "qb7_loi_elastoplastique_avec_bornes") {
    return qb7_loi_elastoplastique_avec_bornes(mat, el, a[0], a[1], a[2], a[3], a[4] != 0, a[5], a[6],
                                               a[7] != 0);
  }
  if (constructeur == "qb7_loi_passif_palier") {
    return qb7_loi_passif_palier(mat, el, a[0], a[1], a[2], a[3], a[4] != 0);
  }
  throw std::runtime_error("no builder " + constructeur);
}

/// "0 0 ; 0 12500": a list of coefficients for each interval.
std::vector<std::vector<double>> loc_coefficients(const std::string& texte) {
  std::vector<std::vector<double>> lus;
  std::istringstream flux(texte);
  for (std::string intervalle; std::getline(flux, intervalle, ';');) lus.push_back(nombres(intervalle));
  return lus;
}

double loc_plus_grand_terme(const std::vector<double>& coeffs, double x) {
  double plus_grand = 0;
  for (std::size_t p = 0; p < coeffs.size(); ++p) {
    plus_grand = std::max(plus_grand, std::abs(coeffs[p]) * std::pow(x, static_cast<double>(p)));
  }
  return plus_grand;
}

}  // namespace

TEST_F(ConstructeursDeLois, ContraintesEtPentesDeReference) {
  const auto materiaux = construire_lois_de_reference();
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/lois_valeurs.csv");
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE(t.texte(i, "law") + " at " + t.texte(i, "strain"));
    const gbd_loi& loi = loi_du_moteur(materiaux.at(t.texte(i, "law")));
    const double e = t.reel(i, "strain");
    const auto& a = loi.coeffs[gbd_loi_intervalle(loi.epsilons, e)];
    double terme = 1;
    double terme_pente = 1;
    for (std::size_t p = 0; p < a.size(); ++p) {
      terme = std::max(terme, std::abs(a[p] * std::pow(e, p)));
      if (p > 0)
        terme_pente = std::max(terme_pente, std::abs(static_cast<double>(p) * a[p] * std::pow(e, p - 1)));
    }
    EXPECT_NEAR(rdm_contrainte_materiau(loi, e), t.reel(i, "stress"), 1e-9 * terme);
    EXPECT_NEAR(gen_valeur_poly(rac_poly_derivee(a), e), t.reel(i, "slope"), 1e-9 * terme_pente);
    EXPECT_NEAR(loi.epsilon_min, t.reel(i, "epsilon_min"), 1e-9 * std::abs(loi.epsilon_min));
    EXPECT_NEAR(loi.epsilon_max, t.reel(i, "epsilon_max"), 1e-9 * std::abs(loi.epsilon_max));
  }
}

TEST_F(ConstructeursDeLois, TablesDeReference) {
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/lois_tables.csv");
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE("row " + t.texte(i, "row"));
    const int materiau = static_cast<int>(t.reel(i, "row"));
    reussit(loc_construire(materiau, t.texte(i, "builder"), nombres(t.texte(i, "arguments"))));
    const gbd_loi& loi = loi_du_moteur(materiau);
    const auto gauches = nombres(t.texte(i, "epsilons"));
    const auto coeffs = loc_coefficients(t.texte(i, "coeffs"));
    ASSERT_EQ(loi.nbre_interv(), static_cast<int>(t.reel(i, "nbre_interv")));
    for (std::size_t k = 0; k < gauches.size(); ++k) {
      EXPECT_NEAR(loi.epsilons[k], gauches[k], 1e-12 * std::abs(gauches[k]));
      EXPECT_EQ(static_cast<std::size_t>(loi.degre), coeffs[k].size() - 1);
      // a coefficient counts by what it contributes at the far end of its interval
      const double x = k + 1 < gauches.size() ? std::abs(gauches[k + 1]) : std::abs(gauches[k]) + 0.001;
      const double terme = loc_plus_grand_terme(coeffs[k], x);
      for (std::size_t p = 0; p < coeffs[k].size(); ++p) {
        EXPECT_NEAR((loi.coeffs[k][p] - coeffs[k][p]) * std::pow(x, p), 0,
                    (loi.degre == 3 ? 1e-9 : 1e-12) * terme);
      }
    }
    EXPECT_NEAR(loi.epsilon_min, t.reel(i, "epsilon_min"), 1e-12 * std::abs(loi.epsilon_min));
    EXPECT_NEAR(loi.epsilon_max, t.reel(i, "epsilon_max"), 1e-9 * std::abs(loi.epsilon_max));
  }
}

// The Young modulus of a law is its coefficient of degree 1 in the interval that holds strain 0, which lies
// on the right of the knot at 0.
TEST_F(ConstructeursDeLois, MultiLinPasseParSesPoints) {
  const std::array tab_epsilons = {-0.01, -0.002, 0.001, 0.02};
  const std::array tab_sigmas = {-500.0, -400.0, 200.0, 300.0};
  reussit(qb7_loi_multi_lin(mat, el, tab_epsilons, tab_sigmas, -0.005, 0.01, qb7_trou_matiere));
  for (std::size_t i = 0; i < tab_epsilons.size(); ++i)
    EXPECT_NEAR(sigma(tab_epsilons[i]), tab_sigmas[i], 1e-12);
  EXPECT_NEAR(sigma(-0.018), -600, 1e-12);  // prolonged
  EXPECT_NEAR(sigma(0.039), 400, 1e-12);
  attendre_bornes(-0.005, 0.01);
  EXPECT_EQ(loi_du_moteur(mat).type_trou, qb7_trou_matiere);
}

TEST_F(ConstructeursDeLois, MultiLinRefuse) {
  const std::array un = {0.0};
  const std::array deux = {0.0, 1.0};
  attendre_refus(qb7_loi_multi_lin(mat, el, un, un), {ERR_NBRE_INT_LOI, 0});
  attendre_refus(qb7_loi_multi_lin(mat, el, {}, {}), {ERR_NBRE_INT_LOI, 0});
  attendre_refus(qb7_loi_multi_lin(mat, el, deux, un), {ERR_DIM_TAB, 1});
  // two steps of -1: the first one is named
  const std::array desordre = {0.0, 1.0, 0.0, 3.0, 2.0};
  attendre_refus(qb7_loi_multi_lin(mat, el, desordre, desordre), {ERR_DEF_LOI, 2});
  EXPECT_EQ(qb7_err_nbre_messages(), 1);
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[1].utile(), "QB7_LOI_Multi_Lin");
}

// Limits or a hole type that are refused leave no law behind.
TEST_F(ConstructeursDeLois, MultiLinRetireLaLoiDontLesBornesSontRefusees) {
  const std::array deux = {0.0, 1.0};
  attendre_refus(qb7_loi_multi_lin(mat, el, deux, deux, 0.5, 0.5), {ERR_BORNES_LOI, mat});
  attendre_refus(qb7_loi_multi_lin(mat, el, deux, deux, {}, {}, 2004), {ERR_TYPE_TROU, 2004});
  reussit(qb7_loi_multi_lin(mat, el, deux, deux));
  EXPECT_EQ(qb7_loi_multi_lin(mat, el, deux, deux), (ier_2{ERR_LOI_EXISTE, mat}));
  EXPECT_EQ(gbd_glob.glob_lst_lois.lst_longueur(), 1);
}

TEST_F(ConstructeursDeLois, LinBilinTransformeLesLimitesDeContrainte) {
  reussit(qb7_loi_lin_bilin(mat, el, qb7_loi_lineaire, 200000, -400, sans));
  attendre_bornes(-0.002, sans);
  EXPECT_DOUBLE_EQ(sigma(-0.001), -200);
  EXPECT_DOUBLE_EQ(sigma(0.001), 200);
}

TEST_F(ConstructeursDeLois, LinBilinDUnSeulCote) {
  reussit(qb7_loi_lin_bilin(mat, el, qb7_loi_compression_seule, 12000, {}, 18, qb7_trou_rien));
  EXPECT_EQ(sigma(-0.001), 0);
  EXPECT_DOUBLE_EQ(sigma(0.001), 12);
  attendre_bornes(sans, 0.0015);
  EXPECT_EQ(loi_du_moteur(mat).type_trou, qb7_trou_rien);
  reussit(qb7_loi_lin_bilin(mat, el + 1, qb7_loi_traction_seule, 12000));
  EXPECT_EQ(rdm_contrainte_materiau(loi_du_moteur(mat, el + 1), 0.001), 0);
  EXPECT_DOUBLE_EQ(rdm_contrainte_materiau(loi_du_moteur(mat, el + 1), -0.001), -12);
}

TEST_F(ConstructeursDeLois, LinBilinNulleSansModuleNiBorne) {
  reussit(qb7_loi_lin_bilin(mat, el, qb7_loi_nulle, {}, {}, sans));
  EXPECT_EQ(sigma(0.5), 0);
  reussit(qb7_loi_lin_bilin(mat, el + 1, qb7_loi_nulle, 0.0));
}

TEST_F(ConstructeursDeLois, LinBilinRefuse) {
  const auto refus = [](int type, std::optional<double> e, std::optional<double> min,
                        std::optional<double> max, const ier_2& attendu) {
    attendre_refus(qb7_loi_lin_bilin(mat, el, type, e, min, max), attendu);
  };
  refus(qb7_loi_lineaire, {}, {}, {}, {ERR_MODULE});
  refus(qb7_loi_lineaire, 0.0, {}, {}, {ERR_MODULE});
  refus(qb7_loi_compression_seule, -1.0, {}, {}, {ERR_MODULE});
  refus(qb7_loi_nulle, 1.0, {}, {}, {ERR_MODULE});
  refus(qb7_loi_nulle, -1.0, {}, {}, {ERR_MODULE});
  refus(qb7_loi_nulle, {}, {}, 18.0, {ERR_LIMITES_LOI});
  refus(qb7_loi_nulle, {}, -18.0, {}, {ERR_LIMITES_LOI});
  refus(qb7_loi_compression_seule, 1.0, -1.0, {}, {ERR_LIMITES_LOI});
  refus(qb7_loi_compression_seule, 1.0, {}, -1.0, {ERR_LIMITES_LOI});
  refus(qb7_loi_traction_seule, 1.0, {}, 1.0, {ERR_LIMITES_LOI});
  refus(qb7_loi_traction_seule, 1.0, 1.0, {}, {ERR_LIMITES_LOI});
  refus(10040, 1.0, {}, {}, {ERR_TYPE_LOI, 10040});
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[1].utile(), "QB7_LOI_Lin_Bilin");
}

TEST_F(ConstructeursDeLois, ParaboleRectangleLimiteeParUneContrainte) {
  // sigma = 30 (1 - (1 - x)^2) = 18 at x = 1 - sqrt(0.4)
  reussit(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 30, 0.002, 0.0035, true, 18));
  EXPECT_NEAR(loi_du_moteur(mat).epsilon_max, 0.002 * (1 - std::sqrt(0.4)), 1e-16);
  EXPECT_NEAR(sigma(loi_du_moteur(mat).epsilon_max), 18, 1e-12);
  EXPECT_EQ(sigma(-1e9), 0);
  EXPECT_EQ(sigma(1), 30);
}

// A limit that the parabola does not pass limits nothing: the crushing strain stays.
TEST_F(ConstructeursDeLois, ParaboleRectangleDontLaLimiteNEstPasAtteinte) {
  reussit(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 30, 0.002, 0.0035, true, 30));
  attendre_bornes(sans, 0.0035);
}

TEST_F(ConstructeursDeLois, BetonsRefuses) {
  attendre_refus(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 0, 0.002, 0.0035, false, 0),
                 {ERR_CONTRAINTE});
  attendre_refus(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 20, 0.002, 0.0035, true, -1),
                 {ERR_CONTRAINTE});
  attendre_refus(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 20, 0, 0.0035, false, 0), {ERR_DEF_LOI});
  attendre_refus(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 20, 0.004, 0.0035, false, 0), {ERR_DEF_LOI});
  attendre_refus(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 1.5, 0, 0.002, 0.0035, false, 0),
                 {ERR_CONTRAINTE});
  attendre_refus(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 1.39999, 20, 0.002, 0.0035, false, 0),
                 {ERR_DEGRE_LOI});
  attendre_refus(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 2.00001, 20, 0.002, 0.0035, false, 0),
                 {ERR_DEGRE_LOI});
  attendre_refus(qb7_loi_beton_bilin(mat, el, 0, 0.00175, 0.0035), {ERR_CONTRAINTE});
  attendre_refus(qb7_loi_beton_bilin(mat, el, 20, 0.0035, 0.0035), {ERR_DEF_LOI, 3});
}

TEST_F(ConstructeursDeLois, UnBetonSansPlateauEstAccepte) {
  reussit(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 20, 0.003, 0.003, false, 0));
  attendre_bornes(sans, 0.003);
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el + 1, 1.5, 20, 0.003, 0.003, false, 0));
}

// EN 1992-1-1 table 3.1 gives C90/105 the exponent 1.4, here the value in single precision.
TEST_F(ConstructeursDeLois, LExposantDuC90EstAccepte) {
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 1.399999976158142, 60, 0.0026, 0.0026, false, 0));
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el + 1, 2.0, 60, 0.0026, 0.0026, false, 0));
}

TEST_F(ConstructeursDeLois, ParaboleDegreNDitSaFauteALaConsole) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  attendre_refus(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 1.5, 20, 0.004, 0.0035, false, 0),
                 {ERR_DEF_LOI});
  EXPECT_EQ(machine.texte_console, "erreur def loi \n");
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[1].utile(), "QB7_LOI_Parabole_Degre_n_avec_b");
}

TEST_F(ConstructeursDeLois, ParaboleDegreNEstContinueEtPlateAuSommet) {
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 1.6, 45, 0.0022, 0.003, false, sans));
  const gbd_loi& loi = loi_du_moteur(mat);
  for (std::size_t k = 1; k < loi.epsilons.size(); ++k) {
    const double x = loi.epsilons[k];
    EXPECT_NEAR(gen_valeur_poly(loi.coeffs[k - 1], x), gen_valeur_poly(loi.coeffs[k], x), 1e-10);
  }
  EXPECT_NEAR(gen_valeur_poly(rac_poly_derivee(loi.coeffs[3]), 0.0022), 0, 1e-6);
  EXPECT_EQ(sigma(-1e9), 0);
  EXPECT_EQ(sigma(1), 45);
}

// The strain of the limit is the first middle at which the stress is within 1e-10 of it, on whichever piece.
TEST_F(ConstructeursDeLois, LaLimiteDUneParaboleDegreNEstTrouveeADixPuissanceMoinsDix) {
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 1.6, 45, 0.0022, 0.003, true, 27));
  EXPECT_NEAR(sigma(loi_du_moteur(mat).epsilon_max), 27, 1.01e-10);
  EXPECT_LT(loi_du_moteur(mat).epsilon_max, 0.9 * 0.0022);
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el + 1, 1.6, 45, 0.0022, 0.003, true, 44.9));
  const gbd_loi& haute = loi_du_moteur(mat, el + 1);
  EXPECT_NEAR(rdm_contrainte_materiau(haute, haute.epsilon_max), 44.9, 1.01e-10);
  EXPECT_GT(haute.epsilon_max, 0.9 * 0.0022);
  // not passed, or not wanted: the crushing strain
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el + 2, 1.6, 45, 0.0022, 0.003, true, 45));
  EXPECT_EQ(loi_du_moteur(mat, el + 2).epsilon_max, 0.003);
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el + 3, 1.6, 45, 0.0022, 0.003, false, 27));
  EXPECT_EQ(loi_du_moteur(mat, el + 3).epsilon_max, 0.003);
}

// The cubic pieces leave the curve of EN 1992-1-1 (3.17) by 0.54 % of f_cd at most.
TEST_F(ConstructeursDeLois, LaSplineSuitLaCourbeDeLExposant) {
  int etat = el;
  for (const double n : {1.399999976158142, 1.5, 1.6, 1.75, 1.8, 1.9, 2.0}) {
    reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, ++etat, n, 50, 0.0025, 0.003, false, 0));
    double pire = 0;
    for (int i = 0; i <= 1000; ++i) {
      const double x = i / 1000.0;
      const double courbe = 50 * (1 - std::pow(1 - x, n));
      pire = std::max(pire, std::abs(rdm_contrainte_materiau(loi_du_moteur(mat, etat), 0.0025 * x) - courbe));
    }
    EXPECT_LE(pire, 0.0054 * 50) << n;
  }
}

TEST_F(ConstructeursDeLois, LesBetonsSePrennentPourInfinisDesDeuxCotes) {
  reussit(qb7_loi_beton_bilin(mat, el, 20, 0.00175, 0.0035));
  EXPECT_EQ(sigma(-1e9), 0);
  EXPECT_EQ(sigma(1), 20);
  EXPECT_EQ(loi_du_moteur(mat).type_trou, qb7_trou_encombrement);
}

// In pascals 1e-10 lies under the rounding of a stress: the halving must end all the same.
TEST_F(ConstructeursDeLois, LaLimiteSeTrouveDansToutesLesUnites) {
  reussit(qb7_loi_parabole_degre_n_avec_bornes(mat, el, 1.6, 45e6, 0.0022, 0.003, true, 27e6));
  EXPECT_NEAR(sigma(loi_du_moteur(mat).epsilon_max), 27e6, 1);
}

TEST_F(ConstructeursDeLois, ElastoplastiqueBornesParLesContraintes) {
  int etat = el;
  const auto attendre = [&etat](double f_min, double f_max, double epsilon_min, double epsilon_max) {
    reussit(
        qb7_loi_elastoplastique_avec_bornes(mat, ++etat, 0.002, 400, 0.02, 440, true, f_min, f_max, true));
    EXPECT_NEAR(loi_du_moteur(mat, etat).epsilon_min, epsilon_min, 1e-16);
    EXPECT_NEAR(loi_du_moteur(mat, etat).epsilon_max, epsilon_max, 1e-16);
  };
  attendre(-300, 250, -0.0015, 0.00125);
  attendre(-400, 400, -0.002, 0.002);
  attendre(-430, 410, -0.0155, 0.0065);
  attendre(-440, 440, -0.02, 0.02);
  attendre(-441, 441, sans, sans);
  reussit(qb7_loi_elastoplastique_avec_bornes(mat, el, 0.002, 400, 0.02, 440, false, -300, 250, true));
  attendre_bornes(sans, sans);
}

TEST_F(ConstructeursDeLois, ElastoplastiqueNonComprimeGardeSaBorneSuperieure) {
  reussit(qb7_loi_elastoplastique_avec_bornes(mat, el, 0.002, 400, 0.02, 440, true, -300, 250, false,
                                              qb7_trou_rien));
  attendre_bornes(-0.0015, 0.00125);
  EXPECT_EQ(sigma(0.001), 0);
  EXPECT_NEAR(sigma(-0.011), -420, 1e-11);
  EXPECT_EQ(loi_du_moteur(mat).type_trou, qb7_trou_rien);
}

TEST_F(ConstructeursDeLois, ElastoplastiqueParfaitLimiteASonPalier) {
  reussit(qb7_loi_elastoplastique_avec_bornes(mat, el, 0.002, 400, 0.02, 400, true, -400, 400, true));
  attendre_bornes(-0.02, 0.02);
}

TEST_F(ConstructeursDeLois, ElastoplastiqueRefuse) {
  const auto construire = [](double f_palier, double f_rupture) {
    return qb7_loi_elastoplastique_avec_bornes(mat, el, 0.002, f_palier, 0.02, f_rupture, false, 0, 0, true);
  };
  attendre_refus(construire(0, 400), {ERR_CONTRAINTE});
  attendre_refus(construire(401, 400), {ERR_CONTRAINTE});
  EXPECT_EQ(qb7_loi_elastoplastique_avec_bornes(mat, el, 0.02, 400, 0.002, 400, false, 0, 0, true),
            (ier_2{ERR_DEF_LOI, 1}));
}

TEST_F(ConstructeursDeLois, PassifPalierEtSesDefauts) {
  reussit(qb7_loi_passif_palier(mat, el, 200000, 400));
  EXPECT_DOUBLE_EQ(sigma(-0.001), -200);
  EXPECT_NEAR(sigma(-0.009), -400, 1e-12);
  EXPECT_NEAR(sigma(0.05), 400, 1e-12);
  attendre_bornes(-0.01, sans);
  EXPECT_EQ(loi_du_moteur(mat).type_trou, qb7_trou_rien);
}

// The ultimate law of EN 1992-1-1 3.2.7 with a horizontal top branch.
TEST_F(ConstructeursDeLois, PassifEc2SansContrainteDeRuptureEstParfaitementPlastique) {
  reussit(qb7_loi_passif_ec2_elu(mat, el, 200000, 434, {}, 0.025, false));
  EXPECT_NEAR(sigma(-0.02), -434, 1e-12);
  EXPECT_NEAR(sigma(-0.001), -200, 1e-12);
  EXPECT_EQ(sigma(0.001), 0);
  attendre_bornes(-0.025, sans);
}

TEST_F(ConstructeursDeLois, PassifPalierRefuse) {
  attendre_refus(qb7_loi_passif_palier(mat, el, 200000, 0), {ERR_CONTRAINTE});
  attendre_refus(qb7_loi_passif_palier(mat, el, 200000, 400, 399), {ERR_CONTRAINTE});
  attendre_refus(qb7_loi_passif_palier(mat, el, 0, 400), {ERR_MODULE});
  // the strain at rupture lies before the yield strain
  attendre_refus(qb7_loi_passif_palier(mat, el, 200000, 400, {}, 0.001), {ERR_DEF_LOI, 1});
  attendre_refus(qb7_loi_passif_ec2_elu(mat, el, -1, 400, {}, 0.01, true), {ERR_MODULE});
  EXPECT_EQ(qb7_err_nbre_messages(), 2);
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[2].utile(), "QB7_LOI_Passif_EC2_ELU");
}

// A partial factor or a modulus of zero makes infinite stresses and strains, zero times infinity no number at
// all.
TEST_F(ConstructeursDeLois, UnNombreInfiniOuIndefiniNeFaitPasDeLoi) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  constexpr double infini = std::numeric_limits<double>::infinity();
  for (const double x : {infini, -infini, std::numeric_limits<double>::quiet_NaN()}) {
    const auto parabole = [](double f_cd, double eps_c1, double eps_cu, double f_lim) {
      return qb7_loi_parabole_rectangle_avec_bornes(mat, el, f_cd, eps_c1, eps_cu, true, f_lim);
    };
    attendre_refus(parabole(x, 0.002, 0.0035, 18), {ERR_CONTRAINTE});
    attendre_refus(parabole(20, 0.002, 0.0035, x), {ERR_CONTRAINTE});
    attendre_refus(parabole(20, x, 0.0035, 18), {ERR_DEF_LOI});
    attendre_refus(parabole(20, 0.002, x, 18), {ERR_DEF_LOI});
    const auto degre_n = [](double n, double f_cd, double eps_c1, double eps_cu, double f_lim) {
      return qb7_loi_parabole_degre_n_avec_bornes(mat, el, n, f_cd, eps_c1, eps_cu, true, f_lim);
    };
    attendre_refus(degre_n(1.5, x, 0.002, 0.0035, 18), {ERR_CONTRAINTE});
    attendre_refus(degre_n(1.5, 20, 0.002, 0.0035, x), {ERR_CONTRAINTE});
    attendre_refus(degre_n(x, 20, 0.002, 0.0035, 18), {ERR_DEGRE_LOI});
    attendre_refus(degre_n(1.5, 20, x, 0.0035, 18), {ERR_DEF_LOI});
    attendre_refus(degre_n(1.5, 20, 0.002, x, 18), {ERR_DEF_LOI});
    attendre_refus(qb7_loi_beton_bilin(mat, el, x, 0.00175, 0.0035), {ERR_CONTRAINTE});
    EXPECT_EQ(qb7_loi_beton_bilin(mat, el, 20, x, 0.0035).code, ERR_DEF_LOI);
    EXPECT_EQ(qb7_loi_beton_bilin(mat, el, 20, 0.00175, x).code, ERR_DEF_LOI);
    const auto acier = [](double eps_palier, double f_palier, double f_rupture, double f_min, double f_max) {
      return qb7_loi_elastoplastique_avec_bornes(mat, el, eps_palier, f_palier, 0.05, f_rupture, true, f_min,
                                                 f_max, true);
    };
    attendre_refus(acier(0.002, x, 440, -300, 300), {ERR_CONTRAINTE});
    attendre_refus(acier(0.002, 400, x, -300, 300), {ERR_CONTRAINTE});
    attendre_refus(acier(0.002, 400, 440, x, 300), {ERR_CONTRAINTE});
    attendre_refus(acier(0.002, 400, 440, -300, x), {ERR_CONTRAINTE});
    EXPECT_EQ(acier(x, 400, 440, -300, 300).code, ERR_DEF_LOI);
    attendre_refus(qb7_loi_passif_palier(mat, el, 200000, x), {ERR_CONTRAINTE});
    attendre_refus(qb7_loi_passif_palier(mat, el, 200000, 400, x), {ERR_CONTRAINTE});
    attendre_refus(qb7_loi_passif_palier(mat, el, x, 400), {ERR_MODULE});
    EXPECT_EQ(qb7_loi_passif_palier(mat, el, 200000, 400, {}, x).code, ERR_DEF_LOI);
    attendre_refus(qb7_loi_lin_bilin(mat, el, qb7_loi_lineaire, x), {ERR_MODULE});
    attendre_refus(qb7_loi_lin_bilin(mat, el, qb7_loi_lineaire, 200000.0, x), {ERR_LIMITES_LOI});
    attendre_refus(qb7_loi_lin_bilin(mat, el, qb7_loi_lineaire, 200000.0, {}, x), {ERR_LIMITES_LOI});
  }
  // Finite numbers whose quotient is not: a stress limit, the slope of a line, the curvature of a parabola.
  attendre_refus(qb7_loi_lin_bilin(mat, el, qb7_loi_lineaire, 1e-300, {}, 1e10), {ERR_BORNES_LOI, mat});
  attendre_refus(qb7_loi_beton_bilin(mat, el, 20, 1e-308, 0.0035), {ERR_DEF_LOI, 2});
  attendre_refus(qb7_loi_parabole_rectangle_avec_bornes(mat, el, 20, 1e-200, 0.0035, false, 0),
                 {ERR_DEF_LOI, 2});
}

TEST_F(ConstructeursDeLois, LoisUnites) {
  const std::array etats = {1001, 1002, 1003};
  reussit(qb7_loi_beton_meca(1, etats));
  reussit(qb7_loi_charpente_meca(2, etats));
  reussit(qb7_loi_passif_meca(3, etats, 15));
  reussit(qb7_loi_actif_meca(4, etats, 15));
  struct attendue {
    int materiau;
    std::array<double, 3> modules;
    std::array<int, 3> trous;
  };
  const std::array<attendue, 4> lois = {{{1, {1, 1, 1}, {2003, 2000, 2000}},
                                         {2, {1, 1, 1}, {2001, 2001, 2001}},
                                         {3, {1, 0, 15}, {2003, 2002, 2002}},
                                         {4, {1, 0, 15}, {2003, 2000, 2000}}}};
  for (const attendue& a : lois) {
    for (std::size_t i = 0; i < 3; ++i) {
      const gbd_loi& loi = loi_du_moteur(a.materiau, etats[i]);
      EXPECT_DOUBLE_EQ(rdm_contrainte_materiau(loi, 0.5), 0.5 * a.modules[i]);
      EXPECT_DOUBLE_EQ(rdm_contrainte_materiau(loi, -0.5), -0.5 * a.modules[i]);
      EXPECT_EQ(loi.type_trou, a.trous[i]);
      EXPECT_EQ(loi.epsilon_min, sans);
      EXPECT_EQ(loi.epsilon_max, sans);
    }
  }
}

TEST_F(ConstructeursDeLois, LoisUnitesRefusent) {
  attendre_refus(qb7_loi_beton_meca(1, std::array{1, 2}), {ERR_DIM_TAB, 2});
  EXPECT_EQ(qb7_loi_passif_meca(1, std::array{1, 2, 3}, 0), (ier_2{ERR_MODULE, 3}));
  EXPECT_EQ(qb7_loi_passif_meca(1, std::array{4, 1, 5}, 15), (ier_2{ERR_LOI_EXISTE, 2}));
}
