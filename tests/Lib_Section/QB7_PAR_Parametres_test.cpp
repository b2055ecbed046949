#include "QB7_PAR_Parametres.hpp"

#include <gmock/gmock.h>

namespace {
class Parametres : public testing::Test {
 protected:
  Parametres() { qb7_par_reinitialiser(); }
  ~Parametres() override { qb7_par_reinitialiser(); }
};
}  // namespace

TEST_F(Parametres, ValeursDeDepart) {
  EXPECT_FALSE(qb7_par.qb7_par_ecraser_permis);
  EXPECT_EQ(qb7_par.qb7_par_max_iter, 200);
  EXPECT_EQ(qb7_par.qb7_par_deform_max, 1.0);
  EXPECT_EQ(qb7_par.qb7_par_precis_efforts, 1e-5);
  EXPECT_EQ(qb7_par.qb7_par_precis_deforms, 1e-5);
  EXPECT_EQ(qb7_par.qb7_par_precis_acier, 1e-5);
  EXPECT_EQ(qb7_par.qb7_par_precis_symetrie, 0.01);
  EXPECT_FALSE(qb7_par.qb7_par_sym_auto);
  EXPECT_EQ(qb7_par.qb7_par_cout_oy, 0.9);
  EXPECT_EQ(qb7_par.qb7_par_cout_oz, 0.9);
  EXPECT_EQ(qb7_par.qb7_par_coeff_homothetie, 1.25);
  EXPECT_EQ(qb7_par.qb7_par_max_nb_homothetie, 6);
  EXPECT_EQ(qb7_par.qb7_par_unite_trace_optimisation, 0);
  EXPECT_TRUE(qb7_par.qb7_par_fichier_trace_optimisation.vide());
  EXPECT_FALSE(qb7_par.qb7_par_trace_equilibre);
}

// Leaving the engine puts its parameters back, save the scalings of creep and the flag of the trace.
TEST_F(Parametres, CeQueLeMoteurNeRemetPas) {
  qb7_par.qb7_par_ecraser_permis = true;
  qb7_par.qb7_par_max_iter = 5;
  qb7_par.qb7_par_deform_max = 2;
  qb7_par.qb7_par_precis_efforts = 1;
  qb7_par.qb7_par_precis_deforms = 1;
  qb7_par.qb7_par_precis_acier = 1;
  qb7_par.qb7_par_precis_symetrie = 1;
  qb7_par.qb7_par_sym_auto = true;
  qb7_par.qb7_par_cout_oy = 0.5;
  qb7_par.qb7_par_cout_oz = 0.5;
  qb7_par.qb7_par_unite_trace_optimisation = 99;
  qb7_par.qb7_par_fichier_trace_optimisation = "poutre.tra";
  qb7_par.qb7_par_coeff_homothetie = 1.5;
  qb7_par.qb7_par_max_nb_homothetie = 3;
  qb7_par.qb7_par_trace_equilibre = true;
  par_renitialiser();
  EXPECT_FALSE(qb7_par.qb7_par_ecraser_permis);
  EXPECT_EQ(qb7_par.qb7_par_max_iter, 200);
  EXPECT_EQ(qb7_par.qb7_par_deform_max, 1.0);
  EXPECT_EQ(qb7_par.qb7_par_precis_efforts, 1e-5);
  EXPECT_EQ(qb7_par.qb7_par_precis_deforms, 1e-5);
  EXPECT_EQ(qb7_par.qb7_par_precis_acier, 1e-5);
  EXPECT_EQ(qb7_par.qb7_par_precis_symetrie, 0.01);
  EXPECT_FALSE(qb7_par.qb7_par_sym_auto);
  EXPECT_EQ(qb7_par.qb7_par_cout_oy, 0.9);
  EXPECT_EQ(qb7_par.qb7_par_cout_oz, 0.9);
  EXPECT_EQ(qb7_par.qb7_par_unite_trace_optimisation, 0);
  EXPECT_TRUE(qb7_par.qb7_par_fichier_trace_optimisation.vide());
  EXPECT_EQ(qb7_par.qb7_par_coeff_homothetie, 1.5);
  EXPECT_EQ(qb7_par.qb7_par_max_nb_homothetie, 3);
  EXPECT_TRUE(qb7_par.qb7_par_trace_equilibre);
}
