#include "QB7_Sections.hpp"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <functional>
#include <numbers>
#include <string>
#include <vector>

#include "Outils.hpp"
#include "QB7_GBD_SECT.hpp"
#include "moteur.hpp"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int S = 1;
constexpr ier_2 reussite{};

/// A section with a contour (1), a profile (2), bars (3) and a cable (4).
class Magasin : public Moteur {
 protected:
  Magasin() {
    EXPECT_EQ(qb7_creer_section(S), reussite);
    creer_zone_et_points(S, 1, 1001, 10, {{0, 0}, {1, 0}, {1, 1}, {0, 1}}, false);
    creer_zone_et_points(S, 2, 1003, 11, {{0, 0}, {1, 0}}, false);
    creer_zone_et_points(S, 3, 1004, 12, {{0.1, 0.1}, {0.9, 0.1}}, false);
    creer_zone_et_points(S, 4, 1004, 13, {{0.5, 0.2}}, false);
  }

  static bool active(int num_zone) {
    bool a = false;
    EXPECT_EQ(qb7_activite_zone(S, num_zone, a), reussite);
    return a;
  }
  static std::vector<bool> critiques(int num_zone) {
    return gbd_glob.glob_lst_sections.lst_chercher_elt(S)->lst_zones.lst_chercher_elt(num_zone)->critiques;
  }
  static deformation plan_de_zone(int num_zone, int type_attendu = qb7_deform_cumulee) {
    int type = 0;
    deformation d;
    EXPECT_EQ(qb7_lire_deform_zone(S, num_zone, type, d), reussite);
    EXPECT_EQ(type, type_attendu);
    return d;
  }
};

void loc_proches(const deformation& a, const deformation& b, double tolerance) {
  EXPECT_NEAR(a.e0, b.e0, tolerance);
  EXPECT_NEAR(a.ky, b.ky, tolerance);
  EXPECT_NEAR(a.kz, b.kz, tolerance);
}

}  // namespace

// ---- Look-ups ----

TEST_F(Magasin, UneZoneAbsenteLaisseDeuxLignesAuJournal) {
  EXPECT_EQ(qb7_fixer_c_remplissage(S, 9, 1), (ier_2{ERR_NON_ZONE, 9}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("LOC_Chercher_Zone", "QB7_Fixer_C_Remplissage"));
  EXPECT_EQ(qb7_fixer_c_remplissage(8, 3, 1), (ier_2{ERR_NON_SECTION, 8}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("LOC_Chercher_Zone", "QB7_Fixer_C_Remplissage"));
  EXPECT_EQ(qb7_supprimer_section(8), (ier_2{ERR_NON_SECTION, 8}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Supprimer_Section"));
  EXPECT_EQ(qb7_fixer_c_remplissage(S, 3, 1), reussite);
  EXPECT_THAT(journal_du_moteur(), IsEmpty());
}

TEST_F(Magasin, UnLecteurQuiEchoueMetSesResultatsAZero) {
  int n = 7;
  EXPECT_TRUE(qb7_lire_type_zone(S, 9, n));
  EXPECT_EQ(n, 0);
  n = 7;
  EXPECT_TRUE(qb7_lire_num_materiau(S, 9, n));
  EXPECT_EQ(n, 0);
  n = 7;
  EXPECT_TRUE(qb7_lire_nbre_pts_zone(S, 9, n));
  EXPECT_EQ(n, 0);
  n = 7;
  EXPECT_TRUE(qb7_lire_nbre_zones(9, n));
  EXPECT_EQ(n, 0);
  n = 7;
  EXPECT_TRUE(qb7_lire_num_zone_mere(S, 9, n));
  EXPECT_EQ(n, 0);
  n = 7;
  EXPECT_TRUE(qb7_lire_type_trou(1, 1, n));
  EXPECT_EQ(n, 2000);
  double a = 7;
  double b = 7;
  EXPECT_TRUE(qb7_lire_point(S, 99, a, b));
  EXPECT_EQ(a + b, 0);
  a = b = 7;
  EXPECT_TRUE(qb7_lire_param_zone(S, 9, &a, &b));
  EXPECT_EQ(a + b, 0);
  a = b = 7;
  EXPECT_TRUE(qb7_lire_inclinaisons_zone(S, 9, a, b));
  EXPECT_EQ(a + b, 0);
  a = b = 7;
  EXPECT_TRUE(qb7_lire_bornes_loi(1, 1, a, b));
  EXPECT_EQ(a + b, 0);
  a = 7;
  EXPECT_TRUE(qb7_lire_c_remplissage(S, 9, a));
  EXPECT_EQ(a, 0);
  a = 7;
  EXPECT_TRUE(qb7_lire_c_fluage(S, 9, a));
  EXPECT_EQ(a, 0);
  modif_lois modif{.rho = 7, .epsilon_a = 7};
  EXPECT_TRUE(qb7_lire_modif_lois_zone(S, 9, modif));
  EXPECT_EQ(modif, modif_lois{});
  EXPECT_EQ(modif.rho, 1);
  deformation d{7, 7, 7};
  EXPECT_TRUE(qb7_lire_deform_zone(S, 9, n, d));
  EXPECT_EQ(n, 0);
  EXPECT_EQ(d, deformation{});
  d = {7, 7, 7};
  EXPECT_TRUE(qb7_rappeller_etat(S, 9, &d));
  EXPECT_EQ(d, deformation{});
  for (const auto& lire : {qb7_activite_zone, qb7_lire_dimensionnable, qb7_lire_fluante}) {
    bool oui = true;
    EXPECT_TRUE(lire(S, 9, oui));
    EXPECT_FALSE(oui);
  }
  std::array<int, 2> liste{7, 7};
  EXPECT_TRUE(qb7_lire_liste_pts_zone(S, 9, liste));
  EXPECT_THAT(liste, ElementsAre(0, 0));
  liste = {7, 7};
  EXPECT_TRUE(qb7_lire_liste_zones(9, liste));
  EXPECT_THAT(liste, ElementsAre(0, 0));
  d = {7, 7, 7};
  EXPECT_TRUE(qb7_completer_etat(S, 9, &d));
  EXPECT_EQ(d, deformation{});
  repere r{1, 1, 1, 1, 1};
  EXPECT_TRUE(qb7_lire_repere_sollicitation(9, r));
  EXPECT_EQ(r, repere{});
  qb7_tailles_section tailles{7, 7, 7};
  EXPECT_TRUE(qb7_lire_section(9, tailles));
  EXPECT_EQ(tailles.nbre_zones + tailles.nbre_points + tailles.nbre_etats, 0);
}

// ---- Sections ----

TEST_F(Magasin, UnNumeroDeSectionNeSertQuUneFois) {
  EXPECT_EQ(qb7_creer_section(S), (ier_2{ERR_SECT_EXISTE, S}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Creer_Section"));
  EXPECT_EQ(qb7_supprimer_section(S), reussite);
  EXPECT_EQ(qb7_creer_section(S), reussite);
  qb7_tailles_section tailles;
  EXPECT_EQ(qb7_lire_section(S, tailles), reussite);
  EXPECT_EQ(tailles.nbre_zones, 0);
}

TEST_F(Magasin, TaillesDUneSection) {
  EXPECT_EQ(qb7_creer_etat(S, 5), reussite);
  qb7_tailles_section tailles;
  EXPECT_EQ(qb7_lire_section(S, tailles), reussite);
  EXPECT_EQ(tailles.nbre_zones, 4);
  EXPECT_EQ(tailles.nbre_points, 9);
  EXPECT_EQ(tailles.nbre_etats, 1);
}

TEST_F(Magasin, LaCopieEstProfonde) {
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 1, 2, 0.3), reussite);
  EXPECT_EQ(qb7_creer_etat(S, 5, {1, 2, 3}), reussite);
  EXPECT_EQ(qb7_copier_section(S, 2), reussite);
  EXPECT_EQ(qb7_copier_section(S, 2), (ier_2{ERR_SECT_EXISTE, 2}));
  EXPECT_EQ(qb7_modifier_point(2, 101, 8, 8), reussite);
  EXPECT_EQ(qb7_fixer_c_remplissage(2, 3, 4), reussite);
  EXPECT_EQ(qb7_supprimer_etat(2, 5), reussite);
  EXPECT_EQ(qb7_fixer_repere_sollicitation(2, 0, 0, 0), reussite);
  double y = 1;
  double z = 1;
  EXPECT_EQ(qb7_lire_point(S, 101, y, z), reussite);
  EXPECT_EQ(y + z, 0);
  double c = 0;
  EXPECT_EQ(qb7_lire_c_remplissage(S, 3, c), reussite);
  EXPECT_EQ(c, 1);
  EXPECT_EQ(qb7_supprimer_etat(S, 5), reussite);
  repere r;
  EXPECT_EQ(qb7_lire_repere_sollicitation(S, r), reussite);
  EXPECT_EQ(r, (repere{1, 2, 0.3, std::cos(0.3), std::sin(0.3)}));
}

// ---- Points ----

TEST_F(Magasin, Points) {
  EXPECT_EQ(qb7_creer_point(S, 101, 0, 0), (ier_2{ERR_POINT_EXISTE, 101}));
  EXPECT_EQ(qb7_modifier_point(S, 101, 3, 4), reussite);
  double y = 0;
  double z = 0;
  EXPECT_EQ(qb7_lire_point(S, 101, y, z), reussite);
  EXPECT_EQ(y, 3);
  EXPECT_EQ(z, 4);
  EXPECT_EQ(qb7_modifier_point(S, 99, 3, 4), (ier_2{ERR_NON_POINT, 99}));
  EXPECT_EQ(qb7_supprimer_point(S, 101), reussite);
  EXPECT_EQ(qb7_supprimer_point(S, 101), (ier_2{ERR_NON_POINT, 101}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Supprimer_Point"));
}

// The zone keeps the number of a point that its section has lost; what reads its coordinates finds out.
TEST_F(Magasin, UnPointSupprimeLaisseUnNumeroSansPoint) {
  EXPECT_EQ(qb7_supprimer_point(S, 302), reussite);
  int n = 0;
  EXPECT_EQ(qb7_lire_nbre_pts_zone(S, 3, n), reussite);
  EXPECT_EQ(n, 2);
  double aire = 7;
  EXPECT_EQ(qb7_section_brute_zone(S, 3, aire), (ier_2{ERR_NON_POINT, 302}));
  EXPECT_EQ(aire, 0);
}

TEST_F(Magasin, OterUnPointDUneZone) {
  EXPECT_EQ(qb7_supprimer_point_zone(S, 1, 102), reussite);
  std::array<int, 3> points{};
  EXPECT_EQ(qb7_lire_liste_pts_zone(S, 1, points), reussite);
  EXPECT_THAT(points, ElementsAre(101, 103, 104));
  EXPECT_EQ(qb7_supprimer_point_zone(S, 1, 102), (ier_2{ERR_NON_POINT, 102}));
  EXPECT_EQ(qb7_supprimer_point_zone(S, 1, 201), (ier_2{ERR_NON_POINT, 201}));
  double y = 0;
  double z = 0;
  EXPECT_EQ(qb7_lire_point(S, 201, y, z), (ier_2{ERR_NON_POINT, 201})) << "gone, though not of that zone";
}

TEST_F(Magasin, LeDernierPointDUneZoneEstPerduPourLaSectionSeule) {
  EXPECT_EQ(qb7_supprimer_point_zone(S, 4, 401), (ier_2{ERR_DIM_LISTE_PTS, 4}));
  double y = 0;
  double z = 0;
  EXPECT_EQ(qb7_lire_point(S, 401, y, z), (ier_2{ERR_NON_POINT, 401}));
  int n = 0;
  EXPECT_EQ(qb7_lire_nbre_pts_zone(S, 4, n), reussite);
  EXPECT_EQ(n, 1);
}

// ---- Zones ----

TEST_F(Magasin, UneZoneNouvelleEstInactiveEtSansMere) {
  EXPECT_FALSE(active(1));
  int n = 0;
  EXPECT_EQ(qb7_lire_num_zone_mere(S, 1, n), reussite);
  EXPECT_EQ(n, -33554430);
  EXPECT_EQ(qb7_lire_type_zone(S, 2, n), reussite);
  EXPECT_EQ(n, 1003);
  EXPECT_EQ(qb7_lire_num_materiau(S, 2, n), reussite);
  EXPECT_EQ(n, 11);
  EXPECT_EQ(plan_de_zone(1), deformation{});
  modif_lois modif{.rho = 0};
  EXPECT_EQ(qb7_lire_modif_lois_zone(S, 1, modif), reussite);
  EXPECT_EQ(modif, modif_lois{});
  double a = 7;
  double b = 7;
  EXPECT_EQ(qb7_lire_param_zone(S, 3, &a, &b), reussite);
  EXPECT_EQ(a + b, 0);
  EXPECT_EQ(qb7_lire_c_remplissage(S, 3, a), reussite);
  EXPECT_EQ(a, 1);
}

TEST_F(Magasin, ZonesRefusees) {
  const std::array points = {101};
  for (const int type : {1000, 1005, 0, -1})
    EXPECT_EQ(qb7_creer_zone(S, 9, type, 1, points), (ier_2{ERR_TYPE_ZONE, type}));
  EXPECT_EQ(qb7_creer_zone(S, 9, 1001, 1, {}), (ier_2{ERR_DIM_LISTE_PTS, 9}));
  EXPECT_EQ(qb7_creer_zone(S, 1, 1001, 1, points), (ier_2{ERR_ZONE_EXISTE, 1}));
  EXPECT_EQ(qb7_creer_zone(S, 9, 1002, 1, points), reussite);
}

TEST_F(Magasin, ListeDesZonesEnNumerosCroissants) {
  creer_zone_et_points(S, -2, 1004, 1, {{0, 0}}, false);
  int n = 0;
  EXPECT_EQ(qb7_lire_nbre_zones(S, n), reussite);
  EXPECT_EQ(n, 5);
  std::array<int, 5> zones{};
  EXPECT_EQ(qb7_lire_liste_zones(S, zones), reussite);
  EXPECT_THAT(zones, ElementsAre(-2, 1, 2, 3, 4));
  std::array<int, 4> courte{7, 7, 7, 7};
  EXPECT_EQ(qb7_lire_liste_zones(S, courte), (ier_2{ERR_DIM_LISTE_ZONES, 4}));
  EXPECT_THAT(courte, ElementsAre(0, 0, 0, 0));
  std::array<int, 3> trop{7, 7, 7};
  EXPECT_EQ(qb7_lire_liste_pts_zone(S, 3, trop), (ier_2{ERR_DIM_LISTE_PTS, 3}));
  EXPECT_THAT(trop, ElementsAre(0, 0, 0));
}

TEST_F(Magasin, UneZoneNEstPasSaPropreMere) {
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 3, 3), (ier_2{ERR_NUM_MERE, 3}));
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 3, 77), reussite) << "the mother may come later";
  int n = 0;
  EXPECT_EQ(qb7_lire_num_zone_mere(S, 3, n), reussite);
  EXPECT_EQ(n, 77);
}

TEST_F(Magasin, ParametresDeZone) {
  double matiere = 0;
  double encombrement = 0;
  EXPECT_EQ(qb7_fixer_param_zone(S, 3, 0.5), reussite);
  EXPECT_EQ(qb7_lire_param_zone(S, 3, &matiere, &encombrement), reussite);
  EXPECT_EQ(matiere, 0.5);
  EXPECT_EQ(encombrement, 0.5);
  EXPECT_EQ(qb7_fixer_param_zone(S, 2, 0.25, 0), reussite);
  EXPECT_EQ(qb7_lire_param_zone(S, 2, &matiere), reussite);
  EXPECT_EQ(qb7_lire_param_zone(S, 2, nullptr, &encombrement), reussite);
  EXPECT_EQ(matiere, 0.25);
  EXPECT_EQ(encombrement, 0);
  EXPECT_EQ(qb7_fixer_param_zone(S, 1, 0.5), (ier_2{ERR_TYPE_ZONE, 1001}));
  EXPECT_EQ(qb7_fixer_param_zone(S, 2, -0.1), (ier_2{ERR_MATIERE, 2}));
  EXPECT_EQ(qb7_fixer_param_zone(S, 2, 0.1, -0.1), (ier_2{ERR_ENCOMBREMENT, 2}));
  EXPECT_EQ(qb7_lire_param_zone(S, 2, &matiere), reussite);
  EXPECT_EQ(matiere, 0.25) << "a refusal changes nothing";
}

TEST_F(Magasin, RemplissageDimensionnableFluage) {
  EXPECT_EQ(qb7_fixer_c_remplissage(S, 1, 2), (ier_2{ERR_TYPE_ZONE, 1001}));
  EXPECT_EQ(qb7_fixer_c_remplissage(S, 3, -2), (ier_2{ERR_REMPLISSAGE, 3}));
  EXPECT_EQ(qb7_fixer_c_remplissage(S, 3, 0), reussite);
  double c = 7;
  EXPECT_EQ(qb7_lire_c_remplissage(S, 3, c), reussite);
  EXPECT_EQ(c, 0);

  EXPECT_EQ(qb7_fixer_dimensionnable(S, 1, true), (ier_2{ERR_TYPE_ZONE, 1001}));
  EXPECT_EQ(qb7_fixer_dimensionnable(S, 1, false), reussite);
  EXPECT_EQ(qb7_fixer_dimensionnable(S, 3, true), reussite);
  bool oui = false;
  EXPECT_EQ(qb7_lire_dimensionnable(S, 3, oui), reussite);
  EXPECT_TRUE(oui);

  EXPECT_EQ(qb7_fixer_c_fluage(S, 1, -1), (ier_2{ERR_FLUAGE, 1}));
  EXPECT_EQ(qb7_fixer_c_fluage(S, 1, 2.5), reussite);
  EXPECT_EQ(qb7_lire_c_fluage(S, 1, c), reussite);
  EXPECT_EQ(c, 2.5);
}

TEST_F(Magasin, UneZoneQuiFlueLeReste) {
  bool oui = true;
  EXPECT_EQ(qb7_lire_fluante(S, 1, oui), reussite);
  EXPECT_FALSE(oui);
  EXPECT_EQ(qb7_fixer_fluante(S, 1, true), reussite);
  EXPECT_EQ(qb7_fixer_fluante(S, 1, false), reussite);
  EXPECT_EQ(qb7_lire_fluante(S, 1, oui), reussite);
  EXPECT_TRUE(oui);
}

TEST_F(Magasin, Inclinaisons) {
  EXPECT_EQ(qb7_fixer_inclinaisons_zone(S, 4, 0.01, -0.02), reussite);
  double y = 0;
  double z = 0;
  EXPECT_EQ(qb7_lire_inclinaisons_zone(S, 4, y, z), reussite);
  EXPECT_EQ(y, 0.01);
  EXPECT_EQ(z, -0.02);
}

TEST_F(Magasin, UnNumeroPrisEstEcraseSiCEstPermis) {
  EXPECT_EQ(qb7_activer_zone(S, 3, true, false), reussite);
  EXPECT_EQ(qb7_creer_etat(S, 7, {1, 2, 3}), reussite);
  qb7_par.qb7_par_ecraser_permis = true;
  EXPECT_EQ(qb7_creer_point(S, 101, 8, 9), reussite);
  double y = 0;
  double z = 0;
  EXPECT_EQ(qb7_lire_point(S, 101, y, z), reussite);
  EXPECT_EQ(y, 8);
  EXPECT_EQ(z, 9);
  EXPECT_EQ(qb7_creer_zone(S, 3, 1003, 5, std::array{101}), reussite);
  int n = 0;
  EXPECT_EQ(qb7_lire_type_zone(S, 3, n), reussite);
  EXPECT_EQ(n, 1003);
  EXPECT_FALSE(active(3)) << "as a new zone";
  EXPECT_EQ(qb7_creer_etat(S, 7, {4, 5, 6}), reussite);
  deformation plan;
  EXPECT_EQ(qb7_rappeller_etat(S, 7, &plan), reussite);
  EXPECT_EQ(plan, (deformation{4, 5, 6}));
  EXPECT_EQ(qb7_creer_section(2), reussite);
  EXPECT_EQ(qb7_copier_section(S, 2), reussite);
  qb7_tailles_section tailles;
  EXPECT_EQ(qb7_lire_section(2, tailles), reussite);
  EXPECT_EQ(tailles.nbre_zones, 4);
  EXPECT_EQ(qb7_creer_section(S), reussite);
  EXPECT_EQ(qb7_lire_section(S, tailles), reussite);
  EXPECT_EQ(tailles.nbre_zones + tailles.nbre_points + tailles.nbre_etats, 0);
}

TEST_F(Magasin, LesPointsDUneZoneNouvelleSontTousCritiques) {
  EXPECT_THAT(critiques(1), ElementsAre(true, true, true, true));
  EXPECT_EQ(qb7_fixer_critiques(S, 1, std::array{101, 103, 104}, false), reussite);
  EXPECT_THAT(critiques(1), ElementsAre(false, true, false, false));
  EXPECT_EQ(qb7_fixer_critiques(S, 1, std::array{104}, true), reussite);
  EXPECT_THAT(critiques(1), ElementsAre(false, true, false, true));
  EXPECT_EQ(qb7_supprimer_point_zone(S, 1, 101), reussite);
  EXPECT_THAT(critiques(1), ElementsAre(true, false, true)) << "each flag stays with its point";
}

TEST_F(Magasin, UnPointCritiqueDoitEtreDeLaZone) {
  EXPECT_EQ(qb7_fixer_critiques(S, 1, std::array{101, 104}, false), reussite);
  EXPECT_EQ(qb7_fixer_critiques(S, 1, std::array{102, 201}, false), (ier_2{ERR_NON_POINT, 201}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Fixer_Critiques"));
  EXPECT_THAT(critiques(1), ElementsAre(false, false, true, false)) << "what came before the refusal stands";
}

TEST_F(Magasin, UneZoneSupprimeeQuitteAussiLesEtats) {
  EXPECT_EQ(qb7_activer_zone(S, 2, true, false), reussite);
  EXPECT_EQ(qb7_creer_etat(S, 1), reussite);
  EXPECT_EQ(qb7_supprimer_zone(S, 2), reussite);
  int n = 0;
  EXPECT_EQ(qb7_lire_type_zone(S, 2, n), (ier_2{ERR_NON_ZONE, 2}));
  EXPECT_EQ(qb7_creer_zone(S, 2, 1003, 11, std::array{201, 202}), reussite);
  EXPECT_EQ(qb7_completer_etat(S, 1), reussite);
  EXPECT_FALSE(active(2)) << "what the state held of the old zone 2 is gone";
}

// ---- Activity ----

TEST_F(Magasin, ActiverUneZoneSeule) {
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 3, 1), reussite);
  EXPECT_EQ(qb7_activer_zone(S, 1, true, false), reussite);
  EXPECT_TRUE(active(1));
  EXPECT_FALSE(active(3));
}

// 1 holds 2 and 3, 3 holds 4; 5 stands alone.
TEST_F(Magasin, ActiverUneZoneEtSesDescendantes) {
  creer_zone_et_points(S, 5, 1004, 1, {{0, 0}}, false);
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 2, 1), reussite);
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 3, 1), reussite);
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 4, 3), reussite);
  const auto actives = [] { return std::array{active(1), active(2), active(3), active(4), active(5)}; };
  EXPECT_EQ(qb7_activer_zone(S, 3, true, true), reussite);
  EXPECT_THAT(actives(), ElementsAre(false, false, true, true, false));
  EXPECT_EQ(qb7_activer_zone(S, 1, true, true), reussite);
  EXPECT_THAT(actives(), ElementsAre(true, true, true, true, false));
  EXPECT_EQ(qb7_activer_zone(S, 4, false, true), reussite);
  EXPECT_THAT(actives(), ElementsAre(true, true, true, false, false));
}

TEST_F(Magasin, DescendantesRefusees) {
  EXPECT_EQ(qb7_activer_zone(S, 9, true, true), (ier_2{ERR_NON_ZONE, 9}));
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 4, 77), reussite);
  EXPECT_EQ(qb7_activer_zone(S, 1, true, true), (ier_2{ERR_NON_MERE, 77})) << "a mother unknown anywhere";
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Activer_Zone"));
  EXPECT_FALSE(active(1));
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 4, 3), reussite);
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 3, 2), reussite);
  EXPECT_EQ(qb7_fixer_num_zone_mere(S, 2, 4), reussite);
  const ier_2 cycle = qb7_activer_zone(S, 1, true, true);
  EXPECT_EQ(cycle.code, ERR_HERITAGE);
  EXPECT_FALSE(active(1));
  // A cycle through the zone itself is not seen: each of its zones descends from it.
  EXPECT_EQ(qb7_activer_zone(S, 3, true, true), reussite);
  EXPECT_TRUE(active(2));
  EXPECT_TRUE(active(4));
}

// ---- Own planes, in the frame of loading ----

// The strain of a plane at a point does not depend on the frame in which both are told.
TEST_F(Magasin, LePlanDUneZoneSeLitDansLeRepereDuMoment) {
  const double alpha = 0.4;
  const deformation donne{0.001, 0.002, -0.003};
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 0.3, -0.2, alpha), reussite);
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, false, qb7_deform_cumulee, donne), reussite);
  loc_proches(plan_de_zone(1), donne, 1e-17);
  const repere premier{0.3, -0.2, alpha, std::cos(alpha), std::sin(alpha)};
  for (const double autre : {0.0, 1.1, std::numbers::pi / 2}) {
    EXPECT_EQ(qb7_fixer_repere_sollicitation(S, -1, 0.5, autre), reussite);
    const repere second{-1, 0.5, autre, std::cos(autre), std::sin(autre)};
    const deformation lu = plan_de_zone(1);
    for (const point_yz p : {point_yz{0, 0}, point_yz{1, 2}, point_yz{-3, 0.7}})
      EXPECT_NEAR(epsilon(lu, vers_repere(second, p)), epsilon(donne, vers_repere(premier, p)), 1e-16);
  }
}

TEST_F(Magasin, LesPlansSAjoutentDansLesAxesDeLaSection) {
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, false, qb7_deform_cumulee, {1, 2, 3}), reussite);
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 0, 0, std::numbers::pi / 2), reussite);
  // A quarter turn: ky of the frame is kz of the section, kz of the frame is minus ky.
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, true, qb7_deform_imposee, {10, 20, 30}), reussite);
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 0, 0, 0), reussite);
  loc_proches(plan_de_zone(1, qb7_deform_imposee), {11, 2 - 30, 3 + 20}, 1e-13);
}

TEST_F(Magasin, UnPlanNulResteExactementNul) {
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 1e300, -1e300, 0.7), reussite);
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, false, qb7_deform_imposee, {}), reussite);
  EXPECT_EQ(plan_de_zone(1, qb7_deform_imposee), deformation{});
}

TEST_F(Magasin, AjouterUnPlanNulFixeToutDeMemeLeType) {
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, false, qb7_deform_cumulee, {1, 2, 3}), reussite);
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, true, qb7_deform_imposee, {}), reussite);
  EXPECT_EQ(plan_de_zone(1, qb7_deform_imposee), (deformation{1, 2, 3}));
}

TEST_F(Magasin, TypeDeDeformationRefuse) {
  for (const int type : {0, 1, -1329, 1329}) {
    EXPECT_EQ(qb7_fixer_deform_zone(S, 1, false, type, {1, 2, 3}), (ier_2{ERR_TYPE_DEFORM, type}));
  }
  EXPECT_EQ(plan_de_zone(1), deformation{});
}

// ---- States ----

TEST_F(Magasin, RappelerRemetRepereZonesEtPlan) {
  const modif_lois modif{.rho = 0.5,
                         .epsilon_a = 1e-3,
                         .epsilon_b = 2e-3,
                         .epsilon_p = 3e-3,
                         .epsilon_m = 4e-3,
                         .epsilon_z = 5e-3};
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 0.1, 0.2, 0.3), reussite);
  EXPECT_EQ(qb7_activer_zone(S, 1, true, false), reussite);
  EXPECT_EQ(qb7_fixer_modif_lois_zone(S, 4, modif), reussite);
  EXPECT_EQ(qb7_creer_etat(S, 7, {1, 2, 3}), reussite);
  EXPECT_EQ(qb7_creer_etat(S, 7), (ier_2{ERR_ETAT_EXISTE, 7}));

  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 9, 9, 9), reussite);
  EXPECT_EQ(qb7_activer_zone(S, 1, false, false), reussite);
  EXPECT_EQ(qb7_activer_zone(S, 2, true, false), reussite);
  EXPECT_EQ(qb7_fixer_deform_zone(S, 2, false, qb7_deform_imposee, {1, 1, 1}), reussite);
  EXPECT_EQ(qb7_fixer_modif_lois_zone(S, 4, {}), reussite);
  EXPECT_EQ(qb7_fixer_c_remplissage(S, 3, 5), reussite);

  deformation plan;
  EXPECT_EQ(qb7_rappeller_etat(S, 7, &plan), reussite);
  EXPECT_EQ(plan, (deformation{1, 2, 3}));
  EXPECT_TRUE(active(1));
  EXPECT_FALSE(active(2));
  EXPECT_EQ(plan_de_zone(2), deformation{});
  modif_lois lue;
  EXPECT_EQ(qb7_lire_modif_lois_zone(S, 4, lue), reussite);
  EXPECT_EQ(lue, modif);
  repere r;
  EXPECT_EQ(qb7_lire_repere_sollicitation(S, r), reussite);
  EXPECT_EQ(r, (repere{0.1, 0.2, 0.3, std::cos(0.3), std::sin(0.3)}));
  double c = 0;
  EXPECT_EQ(qb7_lire_c_remplissage(S, 3, c), reussite);
  EXPECT_EQ(c, 5) << "no part of a state";
}

TEST_F(Magasin, UnEtatSansPlanDonneLePlanNul) {
  EXPECT_EQ(qb7_creer_etat(S, 7), reussite);
  deformation plan{1, 1, 1};
  EXPECT_EQ(qb7_rappeller_etat(S, 7, &plan), reussite);
  EXPECT_EQ(plan, deformation{});
  EXPECT_EQ(qb7_rappeller_etat(S, 7), reussite);
}

TEST_F(Magasin, RappelerUnEtatDAvantUneZoneLEteint) {
  EXPECT_EQ(qb7_creer_etat(S, 7), reussite);
  creer_zone_et_points(S, 5, 1004, 1, {{0, 0}});
  EXPECT_EQ(qb7_fixer_deform_zone(S, 5, false, qb7_deform_imposee, {1, 1, 1}), reussite);
  EXPECT_EQ(qb7_fixer_modif_lois_zone(S, 5, {.rho = 0, .epsilon_a = 1}), reussite);
  EXPECT_EQ(qb7_rappeller_etat(S, 7), reussite);
  EXPECT_FALSE(active(5));
  EXPECT_EQ(plan_de_zone(5), deformation{});
  modif_lois modif{.rho = 0};
  EXPECT_EQ(qb7_lire_modif_lois_zone(S, 5, modif), reussite);
  EXPECT_EQ(modif, modif_lois{});
  EXPECT_EQ(qb7_creer_etat(S, 8), reussite) << "the zone keeps its number in its state";
  EXPECT_EQ(qb7_activer_zone(S, 5, true, false), reussite);
  EXPECT_EQ(qb7_rappeller_etat(S, 8), reussite);
  EXPECT_FALSE(active(5));
}

TEST_F(Magasin, CompleterNEteintAucuneZone) {
  EXPECT_EQ(qb7_activer_zone(S, 1, true, false), reussite);
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, false, qb7_deform_cumulee, {1, 0, 0}), reussite);
  EXPECT_EQ(qb7_fixer_deform_zone(S, 2, false, qb7_deform_cumulee, {2, 0, 0}), reussite);
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 0, 0, 0.25), reussite);
  EXPECT_EQ(qb7_creer_etat(S, 7, {1, 2, 3}), reussite);
  EXPECT_EQ(qb7_fixer_repere_sollicitation(S, 0, 0, 0), reussite);
  EXPECT_EQ(qb7_activer_zone(S, 1, false, false), reussite);
  EXPECT_EQ(qb7_activer_zone(S, 2, true, false), reussite);
  EXPECT_EQ(qb7_fixer_deform_zone(S, 1, false, qb7_deform_cumulee, {}), reussite);
  EXPECT_EQ(qb7_fixer_deform_zone(S, 2, false, qb7_deform_cumulee, {8, 0, 0}), reussite);
  deformation plan;
  EXPECT_EQ(qb7_completer_etat(S, 7, &plan), reussite);
  EXPECT_EQ(plan, (deformation{1, 2, 3}));
  EXPECT_TRUE(active(1));
  EXPECT_EQ(plan_de_zone(1).e0, 1);
  EXPECT_TRUE(active(2)) << "the state holds it inactive: it stays as it is";
  EXPECT_EQ(plan_de_zone(2).e0, 8);
  repere r;
  EXPECT_EQ(qb7_lire_repere_sollicitation(S, r), reussite);
  EXPECT_EQ(r.alpha, 0.25);
}

TEST_F(Magasin, EtatsAbsents) {
  EXPECT_EQ(qb7_supprimer_etat(S, 7), (ier_2{ERR_NON_ETAT, 7}));
  EXPECT_EQ(qb7_rappeller_etat(S, 7), (ier_2{ERR_NON_ETAT, 7}));
  EXPECT_EQ(qb7_completer_etat(S, 7), (ier_2{ERR_NON_ETAT, 7}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Completer_Etat"));
  EXPECT_EQ(qb7_creer_etat(S, 7), reussite);
  EXPECT_EQ(qb7_supprimer_etat(S, 7), reussite);
  EXPECT_EQ(qb7_creer_etat(S, 7), reussite);
}

// ---- Life ----

TEST_F(Magasin, QuitterVideTout) {
  EXPECT_EQ(qb7_creer_loi(1, 1, std::array{0.0}, 1, std::array<qb7_polynome, 1>{{{0, 1}}}), reussite);
  qb7_par.qb7_par_max_iter = 3;
  qb7_quitter();
  EXPECT_EQ(qb7_supprimer_section(S), (ier_2{ERR_NON_SECTION, S}));
  EXPECT_EQ(qb7_supprimer_loi(1, 1), (ier_2{ERR_NON_LOI, 1}));
  EXPECT_EQ(qb7_par.qb7_par_max_iter, 200);
}

namespace {
class Trace : public Moteur {
 protected:
  ~Trace() override { qb7_clore_trace_dimensionnement(); }
  systeme_memoire m_machine;
  socle::systeme_en_place m_en_place{m_machine};
};
}  // namespace

TEST_F(Trace, SOuvreSurUnFichierEffaceOuALaSuite) {
  m_machine.fichiers["a.tra"] = "avant\n";
  EXPECT_EQ(par_trace_optimisation(), nullptr);
  EXPECT_EQ(qb7_fixer_trace_dimensionnement(99, "a.tra", false, false), reussite);
  ASSERT_NE(par_trace_optimisation(), nullptr);
  par_trace_optimisation()->ligne("un");
  EXPECT_EQ(par_trace_equilibre(), nullptr) << "the passes of the equilibrium are not wanted";
  EXPECT_EQ(qb7_fixer_trace_dimensionnement(99, "b.tra", true, true), reussite);
  ASSERT_NE(par_trace_equilibre(), nullptr);
  EXPECT_EQ(m_machine.fichiers["a.tra"], "avant\nun\n") << "closed by the second opening";
  EXPECT_EQ(qb7_fixer_trace_dimensionnement(99, "a.tra", true, true), reussite);
  qb7_clore_trace_dimensionnement();
  EXPECT_EQ(par_trace_optimisation(), nullptr);
  EXPECT_EQ(m_machine.fichiers["a.tra"], "");
}

TEST_F(Trace, QuitterLaFerme) {
  EXPECT_EQ(qb7_fixer_trace_dimensionnement(99, "a.tra", true, true), reussite);
  par_trace_optimisation()->ligne("un");
  qb7_quitter();
  EXPECT_EQ(par_trace_optimisation(), nullptr);
  EXPECT_EQ(m_machine.fichiers["a.tra"], "un\n");
}

TEST_F(Trace, UnFichierQuiNeSOuvrePas) {
  m_machine.ouvertures_refusees.insert("a.tra");
  EXPECT_EQ(qb7_fixer_trace_dimensionnement(99, "a.tra", true, true), (ier_2{ERR_FICHIER_TRACE, 99}));
  EXPECT_THAT(journal_du_moteur(), ElementsAre("QB7_Fixer_Trace_Dimensionnement"));
  EXPECT_EQ(par_trace_optimisation(), nullptr);
}

TEST_F(Trace, LeCanalZeroNOuvreRien) {
  EXPECT_EQ(qb7_fixer_trace_dimensionnement(0, "a.tra", true, true), reussite);
  EXPECT_EQ(par_trace_optimisation(), nullptr);
  EXPECT_FALSE(m_machine.fichiers.contains("a.tra"));
}

TEST_F(Trace, UnNomTropLongEstCoupe) {
  const std::string long_nom(250, 'x');
  EXPECT_EQ(qb7_fixer_trace_dimensionnement(99, long_nom, true, true), reussite);
  qb7_clore_trace_dimensionnement();
  EXPECT_TRUE(m_machine.fichiers.contains(std::string(200, 'x')));
}
