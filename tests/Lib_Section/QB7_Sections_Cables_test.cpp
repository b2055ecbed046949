#include <gmock/gmock.h>

#include <array>
#include <vector>

#include "QB7_Lois.hpp"
#include "QB7_Sections.hpp"
#include "moteur.hpp"

namespace {

using testing::ElementsAre;

constexpr int S = 1;
constexpr ier_2 reussite{};
constexpr int beton = 1;
constexpr int toron = 2;
constexpr int perm = 1001;
constexpr int final_ = 1002;
constexpr double e_perm = 195000;
constexpr double e_final = 190000;
constexpr double e_beton = 30000;
constexpr double aire_cable = 1e-3;
constexpr double sigma_0 = -1170;  // tensioning stress
constexpr double eps_m = sigma_0 / e_perm;
constexpr point_yz lieu{0.05, -0.2};  // of cable 2

/// A concrete rectangle (1) of elastic concrete with a tendon in each half (2, 3); a free-standing tendon
/// (4).
class Cables : public Moteur {
 protected:
  Cables() {
    for (const int el : {perm, final_})
      EXPECT_EQ(qb7_loi_lin_bilin(beton, el, 10010, e_beton, {}, 20), reussite);
    // 0.9 of the plateau is 1530
    EXPECT_EQ(
        qb7_loi_elastoplastique_avec_bornes(toron, perm, 1700 / e_perm, 1700, 0.05, 1700, false, 0, 0, true),
        reussite);
    EXPECT_EQ(qb7_loi_lin_bilin(toron, final_, 10010, e_final), reussite);
    EXPECT_EQ(qb7_creer_section(S), reussite);
    creer_zone_et_points(S, 1, 1001, beton, {{0.15, 0.3}, {-0.15, 0.3}, {-0.15, -0.3}, {0.15, -0.3}});
    creer_zone_et_points(S, 2, 1004, toron, {lieu}, false);
    creer_zone_et_points(S, 3, 1004, toron, {{0, 0.2}}, false);
    creer_zone_et_points(S, 4, 1004, toron, {{0, 1}}, false);
    for (const int z : {2, 3, 4}) EXPECT_EQ(qb7_fixer_param_zone(S, z, aire_cable, 0), reussite);
    for (const int z : {2, 3}) EXPECT_EQ(qb7_fixer_num_zone_mere(S, z, 1), reussite);
  }

  static modif_lois histoire(int num_zone) {
    modif_lois m;
    EXPECT_EQ(qb7_lire_modif_lois_zone(S, num_zone, m), reussite);
    return m;
  }
  static bool active(int num_zone) {
    bool a = false;
    EXPECT_EQ(qb7_activite_zone(S, num_zone, a), reussite);
    return a;
  }
  static efforts efforts_de(const deformation& plan) {
    efforts f;
    EXPECT_EQ(qb7_deformer_section(S, perm, plan, f), reussite);
    return f;
  }
  static ier_2 tendre(bool prec_iso_incluse = false) {
    return qb7_tendre_cable(S, perm, prec_iso_incluse, std::array{2}, std::array{sigma_0});
  }
};

void loc_proches(const modif_lois& a, const modif_lois& b) {
  EXPECT_NEAR(a.rho, b.rho, 1e-15);
  EXPECT_NEAR(a.epsilon_a, b.epsilon_a, 1e-15);
  EXPECT_NEAR(a.epsilon_b, b.epsilon_b, 1e-15);
  EXPECT_NEAR(a.epsilon_p, b.epsilon_p, 1e-15);
  EXPECT_NEAR(a.epsilon_m, b.epsilon_m, 1e-15);
  EXPECT_NEAR(a.epsilon_z, b.epsilon_z, 1e-15);
}

const deformation plan_d_injection{2e-4, 1e-4, -3e-4};
const double e0_mere = epsilon(plan_d_injection, lieu);

}  // namespace

// Tensioned and not bonded, the tendon is a constant force on its section, whatever the plane.
TEST_F(Cables, UnCableTenduEstUneForceConstante) {
  const efforts sans = efforts_de(plan_d_injection);
  EXPECT_EQ(tendre(), reussite);
  EXPECT_TRUE(active(2));
  loc_proches(
      histoire(2),
      {.rho = 0, .epsilon_a = eps_m, .epsilon_b = 0, .epsilon_p = eps_m, .epsilon_m = eps_m, .epsilon_z = 0});
  const double force = sigma_0 * aire_cable;
  const efforts avec = efforts_de(plan_d_injection);
  EXPECT_NEAR(avec.n - sans.n, force, 1e-12);
  EXPECT_NEAR(avec.my - sans.my, force * lieu.z, 1e-12);
  EXPECT_NEAR(avec.mz - sans.mz, -force * lieu.y, 1e-12);
  EXPECT_NEAR(efforts_de({}).n, force, 1e-12);
}

// When the loads hold the effect of the tendon already, it adds nothing to the balance.
TEST_F(Cables, LEffetDejaDansLesChargesNEstPasCompteDeuxFois) {
  EXPECT_EQ(tendre(true), reussite);
  loc_proches(histoire(2), {.rho = 0,
                            .epsilon_a = eps_m,
                            .epsilon_b = eps_m,
                            .epsilon_p = eps_m,
                            .epsilon_m = eps_m,
                            .epsilon_z = 0});
  EXPECT_NEAR(efforts_de({}).n, 0, 1e-12);
}

TEST_F(Cables, LaTensionSArreteAuPremierCableFautif) {
  EXPECT_EQ(qb7_tendre_cable(S, perm, false, std::array{2, 3, 4}, std::array{sigma_0, -1800., sigma_0}).code,
            ERR_NON_EPSILON);
  EXPECT_THAT(journal_du_moteur(), ElementsAre("RDM_Deformation_Materiau", "QB7_Tendre_Cable"));
  EXPECT_TRUE(active(2));
  EXPECT_FALSE(active(3)) << "as it was before";
  EXPECT_EQ(histoire(3), modif_lois{});
  EXPECT_FALSE(active(4));
}

TEST_F(Cables, TensionsRefusees) {
  EXPECT_EQ(qb7_tendre_cable(S, perm, false, std::array{2, 3}, std::array{sigma_0}), (ier_2{ERR_DIM_TAB, 1}));
  EXPECT_EQ(qb7_tendre_cable(S, 77, false, std::array{2}, std::array{sigma_0}),
            (ier_2{ERR_NON_LOI_CABLE, 2}));
  EXPECT_EQ(qb7_tendre_cable(S, perm, false, std::array{9}, std::array{sigma_0}), (ier_2{ERR_NON_ZONE, 9}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("LOC_Chercher_Zone", "QB7_Tendre_Cable"));
  EXPECT_EQ(qb7_tendre_cable(S, perm, false, std::array{1}, std::array{sigma_0}), (ier_2{ERR_PTS_CABLE, 1}));
  EXPECT_FALSE(active(2));
}

// A tension of zero leaves three null strains: the law then counts as not modified, and the tendon follows
// the section.
TEST_F(Cables, UneTensionNulleSuitLaSection) {
  EXPECT_EQ(qb7_tendre_cable(S, perm, false, std::array{2}, std::array{0.0}), reussite);
  EXPECT_TRUE(active(2));
  EXPECT_NEAR(efforts_de({1e-4, 0, 0}).n, (e_beton * 0.18 + e_perm * aire_cable) * 1e-4, 1e-12);
}

TEST_F(Cables, ReinitialiserRendLaLoiTelleQuElleEst) {
  EXPECT_EQ(tendre(), reussite);
  EXPECT_EQ(qb7_reinitialiser_cable(S, std::array{2, 3}), reussite);
  EXPECT_EQ(histoire(2), (modif_lois{.rho = 0}));
  EXPECT_NEAR(efforts_de({1e-4, 0, 0}).n, (e_beton * 0.18 + e_perm * aire_cable) * 1e-4, 1e-12);
  EXPECT_EQ(qb7_reinitialiser_cable(S, std::array{3, 1}), (ier_2{ERR_PTS_CABLE, 1}));
  EXPECT_EQ(qb7_reinitialiser_cable(S, std::array{9}), (ier_2{ERR_NON_ZONE, 9}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("LOC_Chercher_Zone", "QB7_Reinitialiser_Cable"));
}

// Snapshots carry the whole history: recalled, the tendon is again the force that it was.
TEST_F(Cables, RappelerUnEtatRendLaTension) {
  EXPECT_EQ(qb7_creer_etat(S, 1), reussite);
  EXPECT_EQ(tendre(), reussite);
  EXPECT_EQ(qb7_creer_etat(S, 2), reussite);
  EXPECT_EQ(qb7_rappeller_etat(S, 1), reussite);
  EXPECT_FALSE(active(2));
  EXPECT_NEAR(efforts_de({}).n, 0, 1e-12);
  EXPECT_EQ(qb7_completer_etat(S, 2), reussite);
  EXPECT_NEAR(efforts_de({}).n, sigma_0 * aire_cable, 1e-12);
  EXPECT_EQ(qb7_reinitialiser_cable(S, std::array{2}), reussite);
  EXPECT_EQ(qb7_rappeller_etat(S, 2), reussite);
  EXPECT_NEAR(efforts_de({}).n, sigma_0 * aire_cable, 1e-12);
  EXPECT_EQ(qb7_copier_section(S, 2), reussite);
  efforts de_la_copie;
  EXPECT_EQ(qb7_deformer_section(2, perm, {}, de_la_copie), reussite);
  EXPECT_NEAR(de_la_copie.n, sigma_0 * aire_cable, 1e-12);
}

// At the plane of the bond the force does not jump; from there on the tendon takes rho of the section's
// strain.
TEST_F(Cables, LInjectionECEstContinue) {
  for (const double rho : {0.3, 1.0}) {
    EXPECT_EQ(tendre(), reussite);
    const efforts avant = efforts_de(plan_d_injection);
    EXPECT_EQ(qb7_injecter_cable_methode_bp_ec(S, 2, rho, plan_d_injection), reussite);
    loc_proches(histoire(2), {.rho = rho,
                              .epsilon_a = eps_m - e0_mere,
                              .epsilon_b = 0,
                              .epsilon_p = eps_m,
                              .epsilon_m = eps_m,
                              .epsilon_z = 0});
    const efforts apres = efforts_de(plan_d_injection);
    EXPECT_NEAR(apres.n, avant.n, 1e-12);
    EXPECT_NEAR(apres.my, avant.my, 1e-12);
    EXPECT_NEAR(apres.mz, avant.mz, 1e-12);
    const double de = 1e-5;
    EXPECT_NEAR(efforts_de(plan_d_injection + deformation{de, 0, 0}).n - avant.n,
                (e_beton * 0.18 + rho * e_perm * aire_cable) * de, 1e-12);
  }
}

TEST_F(Cables, LInjectionARetourAZeroEstContinue) {
  EXPECT_EQ(tendre(), reussite);
  const efforts avant = efforts_de(plan_d_injection);
  EXPECT_EQ(qb7_injecter_cable_methode_retour_etat_zero(S, 2, plan_d_injection), reussite);
  const double a = eps_m - e0_mere;
  loc_proches(histoire(2),
              {.rho = 1, .epsilon_a = a, .epsilon_b = 0, .epsilon_p = a, .epsilon_m = eps_m, .epsilon_z = 0});
  EXPECT_NEAR(efforts_de(plan_d_injection).n, avant.n, 1e-12);
}

// The strain of the mother counts with the mother's own plane, and is read in the frame of loading.
TEST_F(Cables, LInjectionVoitLePlanPropreDeLaMere) {
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, false, qb7_deform_cumulee, {1e-5, 2e-5, 3e-5}), reussite);
  EXPECT_EQ(tendre(), reussite);
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, lieu.y, lieu.z, 0.8), reussite);
  EXPECT_EQ(qb7_injecter_cable_methode_bp_ec(S, 2, 1, plan_d_injection), reussite);
  const double propre = epsilon({1e-5, 2e-5, 3e-5}, lieu);
  EXPECT_NEAR(histoire(2).epsilon_a, eps_m - (plan_d_injection.e0 + propre), 1e-16);
}

TEST_F(Cables, InjectionsRefusees) {
  EXPECT_EQ(qb7_injecter_cable_methode_bp_ec(S, 2, 1, {}), (ier_2{ERR_CABLE_INACTIF, 2}));
  EXPECT_EQ(qb7_injecter_cable_methode_bp_ec(S, 1, 1, {}), (ier_2{ERR_PTS_CABLE, 1}));
  EXPECT_EQ(qb7_injecter_cable_methode_bp_ec(S, 9, 1, {}), (ier_2{ERR_NON_ZONE, 9}));
  EXPECT_EQ(tendre(), reussite);
  EXPECT_EQ(qb7_activer_zone(S, 1, false, false), reussite);
  EXPECT_EQ(qb7_injecter_cable_methode_retour_etat_zero(S, 2, {}), (ier_2{ERR_MERE_INACTIVE, 1}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Injecter_Cable_Methode_Reto"));
  EXPECT_EQ(qb7_activer_zone(S, 4, true, false), reussite);
  EXPECT_EQ(qb7_injecter_cable_methode_bp_ec(S, 4, 1, {}), (ier_2{ERR_MERE_INACTIVE, 4}))
      << "no mother at all";
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 4, 8), reussite);
  EXPECT_EQ(qb7_injecter_cable_methode_bp_ec(S, 4, 1, {}), (ier_2{ERR_NON_MERE, 8}));
  loc_proches(
      histoire(2),
      {.rho = 0, .epsilon_a = eps_m, .epsilon_b = 0, .epsilon_p = eps_m, .epsilon_m = eps_m, .epsilon_z = 0});
}

// By hand: sigma_pm = -1170, sigma_bpm = 30000 e0, n = 6; ep = (sigma_pm - n sigma_bpm) / 190000.
TEST_F(Cables, EtatPermanent) {
  EXPECT_EQ(qb7_tendre_cable(S, perm, true, std::array{2, 3}, std::array{sigma_0, sigma_0}), reussite);
  EXPECT_EQ(qb7_injecter_cable_methode_retour_etat_zero(S, 2, plan_d_injection), reussite);
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, final_, 6, 0.25, 0.75), reussite);
  const double ep_2 = (sigma_0 - 6 * e_beton * e0_mere) / e_final;
  loc_proches(histoire(2), {.rho = 0.75,
                            .epsilon_a = ep_2,
                            .epsilon_b = sigma_0 / e_final,
                            .epsilon_p = ep_2,
                            .epsilon_m = eps_m,
                            .epsilon_z = 0});
  // Not bonded: epsilon_m - epsilon_a is 0, the mother had no stress there.
  const double ep_3 = sigma_0 / e_final;
  loc_proches(histoire(3), {.rho = 0.25,
                            .epsilon_a = ep_3,
                            .epsilon_b = sigma_0 / e_final,
                            .epsilon_p = ep_3,
                            .epsilon_m = eps_m,
                            .epsilon_z = 0});
  EXPECT_EQ(histoire(4), modif_lois{}) << "inactive";
}

TEST_F(Cables, EtatsPermanentsRefuses) {
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, final_, 6, 0, 1), (ier_2{ERR_NON_CABLE, toron}));
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, 77, 6, 0, 1), (ier_2{ERR_NON_LOI_CABLE, toron}));
  EXPECT_EQ(qb7_etat_permanent(S, toron, 77, final_, 6, 0, 1), (ier_2{ERR_NON_LOI_CABLE, toron}));
  EXPECT_EQ(qb7_etat_permanent(9, toron, perm, final_, 6, 0, 1), (ier_2{ERR_NON_SECTION, 9}));
  EXPECT_EQ(qb7_loi_lin_bilin(toron, 1003, 10000), reussite);
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, 1003, 6, 0, 1), (ier_2{ERR_MODULE_CABLE, toron}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Etat_Permanent"));
  EXPECT_EQ(tendre(), reussite);
  creer_zone_et_points(S, 5, 1004, toron, {{0, 0}, {0, 0.1}});
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, final_, 6, 0, 1), (ier_2{ERR_PTS_CABLE, 2}))
      << "the second cable";
}

// The mother's stress is read on her permanent law: she must have one, and be there.
TEST_F(Cables, EtatPermanentSansLaMere) {
  EXPECT_EQ(tendre(), reussite);
  EXPECT_EQ(qb7_supprimer_loi(beton, perm), reussite);
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, final_, 6, 0, 1), (ier_2{ERR_NON_LOI, beton}));
  EXPECT_EQ(qb7_activer_zone(S, 1, false, false), reussite);
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, final_, 6, 0, 1), (ier_2{ERR_MERE_INACTIVE, 1}));
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 2, qb7_sans_mere), reussite);
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, final_, 6, 0, 1), (ier_2{ERR_MERE_INACTIVE, 2}));
  EXPECT_EQ(qb7_supprimer_zone(S, 1), reussite);
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 2, 1), reussite);
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, final_, 6, 0, 1), (ier_2{ERR_NON_MERE, 1}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Etat_Permanent"));
}

// The mother was strained past its limit when the tendon was bonded.
TEST_F(Cables, EtatPermanentVoitLaLimiteDeLaMere) {
  EXPECT_EQ(tendre(), reussite);
  EXPECT_EQ(qb7_injecter_cable_methode_bp_ec(S, 2, 1, {1e-3, 0, 0}), reussite);
  const modif_lois avant = histoire(2);
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, final_, 6, 0, 1), (ier_2{ERR_EPSILON_MAX, 1}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("RDM_Contrainte_Point_Zone", "QB7_Etat_Permanent"));
  EXPECT_EQ(histoire(2), avant);
}

// The final law does not reach the stress that the loads already hold: the tendon is named.
TEST_F(Cables, EtatPermanentSansDeformationFinale) {
  EXPECT_EQ(
      qb7_loi_elastoplastique_avec_bornes(toron, 1003, 1000 / e_final, 1000, 0.05, 1000, false, 0, 0, true),
      reussite);
  EXPECT_EQ(tendre(true), reussite);
  EXPECT_EQ(qb7_etat_permanent(S, toron, perm, 1003, 6, 0, 1), (ier_2{ERR_NON_EPSILON, 2}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("RDM_Deformation_Materiau", "QB7_Etat_Permanent"));
}
