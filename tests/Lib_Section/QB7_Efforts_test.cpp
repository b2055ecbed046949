#include "QB7_Efforts.hpp"

#include <numbers>

#include "Moteur_de_test.hpp"
#include "QB7_RDM.hpp"

namespace {

constexpr int el = etat_lim_de_test;
constexpr int beton = 1;
constexpr int acier = 2;
constexpr int elastique = 3;

const std::vector<point_yz> carre = {{0.2, 0.2}, {-0.2, 0.2}, {-0.2, -0.2}, {0.2, -0.2}};
const std::vector<point_yz> vide = {{0.1, 0.1}, {-0.1, 0.1}, {-0.1, -0.1}, {0.1, -0.1}};

const std::vector<deformation> plans = {
    {0.001, 0, 0}, {0.0005, 0.004, 0}, {0.0003, 0.003, -0.006}, {-0.0002, -0.005, 0.002}};

class Efforts : public moteur_vide {
 protected:
  Efforts() {
    reussit(qb7_loi_parabole_rectangle_avec_bornes(beton, el, 20, 0.002, 0.0035, false, 0));
    reussit(qb7_loi_passif_palier(acier, el, 200000, 400));
    reussit(qb7_loi_lin_bilin(elastique, el, qb7_loi_lineaire, 30000));
    reussit(qb7_creer_section(1));
  }

  static ier_2 calculer(int etat_lim = el) { return eff_section_calcul(section_du_moteur(1), etat_lim); }

  static resultante forces(const deformation& d, ier_2* ier = nullptr) {
    resultante r;
    eff_efforts_section(d, r.eff, &r.mat, ier);
    return r;
  }

  /// Forces of the square without the zones that a test adds to it.
  static resultante du_carre(const deformation& d, const std::vector<point_yz>& pts = carre,
                             int materiau = beton) {
    const gbd_loi& loi = loi_du_moteur(materiau);
    return int_efforts_contour({{loi.epsilons, loi.coeffs, 3}, d}, pts, true);
  }
  static resultante des_barres(const deformation& d, const std::vector<point_yz>& pts, double aire,
                               int materiau) {
    const gbd_loi& loi = loi_du_moteur(materiau);
    return int_efforts_semis({{loi.epsilons, loi.coeffs, 3}, d}, pts, aire, true);
  }

  static void attendre(const resultante& r, const resultante& attendue) {
    forces_proches(r.eff, attendue.eff, 1e-14 * std::max(1.0, plus_grand(attendue.eff)));
    tangentes_proches(r.mat, attendue.mat, 1e-13 * std::max(1.0, plus_grand(attendue.mat)));
  }
};

}  // namespace

// Ten sections (outlines, voids, bars, profiles, ducts, one outline in another) under planes, by strip
// quadrature.
TEST_F(moteur_vide, EffortsEtTangentesDeReference) {
  const auto sections = construire_sections_de_reference();
  const table_csv t = lire_csv(ZOF_DONNEES "/moteur/efforts.csv");
  std::string presente;
  for (std::size_t i = 0; i < t.lignes.size(); ++i) {
    SCOPED_TRACE("row " + std::to_string(i) + " of " + t.texte(i, "section"));
    if (presente != t.texte(i, "section")) {
      presente = t.texte(i, "section");
      reussit(eff_section_calcul(section_du_moteur(sections.at(presente)), el));
    }
    const deformation d = {t.reel(i, "e0"), t.reel(i, "ky"), t.reel(i, "kz")};
    const efforts f = {t.reel(i, "N"), t.reel(i, "My"), t.reel(i, "Mz")};
    const rigidite k = {t.reel(i, "a1"), t.reel(i, "a2"), t.reel(i, "b2"),
                        t.reel(i, "a3"), t.reel(i, "b3"), t.reel(i, "c3")};
    efforts eff;
    rigidite mat;
    eff_efforts_section(d, eff, &mat);
    // a curvature under 1e-9 about z is not turned to, which costs up to 1e-7
    const double precision = d.kz != 0 && std::abs(d.kz) < 1e-9 ? 1e-6 : 1e-9;
    forces_proches(eff, f, precision * std::max(plus_grand(f), 1e-6));
    tangentes_proches(mat, k, precision * std::max(plus_grand(k), 1e-3));
  }
}

TEST_F(Efforts, EtatMecaniqueDonneAiresEtMoments) {
  creer_zone(1, 1, qb7_zone_contour, 999,
             {{0, 0}, {0.3, 0}, {0.3, 0.6}, {0, 0.6}});  // a material without law
  reussit(calculer(qb7_etat_mecanique));
  forces_proches(forces({1, 0, 0}).eff, {0.18, 0.054, -0.027}, 1e-16);
  forces_proches(forces({0, 1, 0}).eff, {0.054, 0.3 * 0.216 / 3, -0.09 / 2 * 0.36 / 2}, 1e-16);
}

TEST_F(Efforts, UnVideOteCeQuIlOccupe) {
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_contour, qb7_sans_materiau, vide);
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  for (const bool actif : {true, false}) {  // an inactive hole is a hole
    reussit(qb7_activer_zone(1, 2, actif, false));
    reussit(calculer());
    for (const deformation& d : plans) attendre(forces(d), du_carre(d) - du_carre(d, vide));
  }
}

TEST_F(Efforts, UneGaineOteSonEncombrementSaufALEtatMecanique) {
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_semis, qb7_sans_materiau, {{0, -0.15}});
  reussit(qb7_fixer_param_zone(1, 2, 0, 0.005));
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(calculer());
  for (const deformation& d : plans) {
    attendre(forces(d), du_carre(d) - des_barres(d, {{0, -0.15}}, 0.005, beton));
  }
  reussit(calculer(qb7_etat_mecanique));
  EXPECT_DOUBLE_EQ(forces({1, 0, 0}).eff.n, 0.16);
}

// Bars of a material with hole type 2002 take nothing out of the concrete; with 2000 they take their extent.
TEST_F(Efforts, LesBarresOtentSelonLeTypeDeTrou) {
  const std::vector<point_yz> barres = {{-0.15, -0.15}, {0.15, -0.15}};
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_semis, acier, barres);
  reussit(qb7_fixer_param_zone(1, 2, 5e-4, 7e-4));
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  const auto attendue = [&](const deformation& d, double otee) {
    return du_carre(d) + des_barres(d, barres, 5e-4, acier) - des_barres(d, barres, otee, beton);
  };
  for (const auto& [trou, otee] : {std::pair{2002, 0.0}, std::pair{2000, 7e-4}, std::pair{2001, 5e-4}}) {
    reussit(qb7_fixer_type_trou(acier, el, trou));
    reussit(calculer());
    for (const deformation& d : plans) attendre(forces(d), attendue(d, otee));
  }
  reussit(qb7_fixer_type_trou(acier, el, 2003));  // neither contribute nor take
  reussit(calculer());
  for (const deformation& d : plans) attendre(forces(d), du_carre(d));
}

TEST_F(Efforts, UnProfilOteSaMatiereSelonLeTypeDeTrou) {
  const std::vector<point_yz> ame = {{0, -0.15}, {0, 0.15}};
  creer_zone(1, 1, qb7_zone_contour, elastique, carre);
  creer_zone(1, 2, qb7_zone_profil, acier, ame);
  reussit(qb7_fixer_param_zone(1, 2, 0.01, 0.03));
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  const deformation d = {0.0005, 0, 0};
  for (const auto& [trou, otee] :
       {std::pair{2000, 0.03}, std::pair{2001, 0.01}, std::pair{2002, 0.0}, std::pair{2003, 0.01}}) {
    reussit(qb7_fixer_type_trou(acier, el, trou));
    reussit(calculer());
    EXPECT_NEAR(forces(d).eff.n, 15 * 0.16 + 0.3 * (100 * 0.01 - 15 * otee), 1e-13);
  }
}

TEST_F(Efforts, LeRemplissageMultiplieLesBarres) {
  const std::vector<point_yz> barres = {{-0.15, -0.15}, {0.15, -0.15}};
  creer_zone(1, 1, qb7_zone_semis, acier, barres);
  reussit(qb7_fixer_param_zone(1, 1, 5e-4));
  reussit(qb7_fixer_c_remplissage(1, 1, 0.25));
  reussit(calculer());
  attendre(forces(plans[1]), des_barres(plans[1], barres, 1.25e-4, acier));
  reussit(qb7_fixer_c_remplissage(1, 1, 0));
  reussit(calculer());
  attendre(forces(plans[1]), {});
}

// A sub-contour with the fill coefficient c: as daughter it takes c of its own extent and all of what lies in
// it.
TEST_F(Efforts, UnSousContourEtSesFilles) {
  const std::vector<point_yz> trou = {{0.05, 0.05}, {-0.05, 0.05}, {-0.05, -0.05}, {0.05, -0.05}};
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_sous_contour, elastique, vide);
  creer_zone(1, 3, qb7_zone_contour, qb7_sans_materiau, trou);
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(qb7_fixer_num_zone_mere(1, 3, 2));
  reussit(qb7_fixer_c_remplissage(1, 2, 0.4));
  reussit(calculer());
  const deformation d = plans[2];
  const auto b = [&](const std::vector<point_yz>& pts) { return du_carre(d, pts, beton); };
  const auto e = [&](const std::vector<point_yz>& pts) { return du_carre(d, pts, elastique); };
  attendre(forces(d), b(carre) - b(trou) - 0.4 * (b(vide) - b(trou)) + 0.4 * (e(vide) - e(trou)));
  EXPECT_NEAR(eff_surface_zone(1), 0.16 - 0.01 - 0.4 * 0.03, 1e-16);
  EXPECT_NEAR(eff_surface_zone(2), 0.03, 1e-16);  // its own fill coefficient does not count
  EXPECT_EQ(eff_surface_zone(3), 0);              // no material
}

// Empty, it contributes nothing itself, and still takes out of its mother what lies in it.
TEST_F(Efforts, UnSousContourVideOteEncoreSesFilles) {
  const std::vector<point_yz> trou = {{0.05, 0.05}, {-0.05, 0.05}, {-0.05, -0.05}, {0.05, -0.05}};
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_sous_contour, elastique, vide);
  creer_zone(1, 3, qb7_zone_contour, qb7_sans_materiau, trou);
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(qb7_fixer_num_zone_mere(1, 3, 2));
  reussit(qb7_fixer_c_remplissage(1, 2, 0));
  reussit(calculer());
  for (const deformation& d : plans) attendre(forces(d), du_carre(d) - du_carre(d, trou));
}

// What is taken out is what the mother would have had there: her law and her plane, whatever the daughter's.
TEST_F(Efforts, UnTrouSuitLaLoiEtLePlanDeSaMere) {
  const std::vector<point_yz> gaine = {{0.05, -0.1}};
  const deformation de_la_mere = {0.0003, 0.001, 0};
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_semis, acier, gaine);
  reussit(qb7_fixer_type_trou(acier, el, qb7_trou_encombrement));
  reussit(qb7_fixer_param_zone(1, 2, 1e-3, 4e-3));
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(qb7_fixer_deform_zone(1, 1, false, qb7_deform_cumulee, de_la_mere));
  reussit(qb7_fixer_deform_zone(1, 2, false, qb7_deform_imposee, {-0.001, 0, 0}));
  reussit(calculer());
  for (const deformation& d : plans) {
    const resultante mere = du_carre(d + de_la_mere) - des_barres(d + de_la_mere, gaine, 4e-3, beton);
    attendre(forces(d), mere + resultante{{-0.2, 0.02, 0.01}, {}} +
                            resultante{{}, des_barres({-0.001, 0, 0}, gaine, 1e-3, acier).mat});
  }
  // before it is tensioned a cable is a hole all the same
  reussit(qb7_activer_zone(1, 2, false, false));
  reussit(calculer());
  const deformation d = plans[1] + de_la_mere;
  attendre(forces(plans[1]), du_carre(d) - des_barres(d, gaine, 4e-3, beton));
}

TEST_F(Efforts, UnSousContourDansDeLaMatiereNeRemplitRienALEtatMecanique) {
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_sous_contour, elastique, vide);
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(calculer(qb7_etat_mecanique));
  EXPECT_DOUBLE_EQ(forces({1, 0, 0}).eff.n, 0.16);
  reussit(qb7_fixer_num_zone_mere(1, 2, qb7_sans_mere));
  reussit(calculer(qb7_etat_mecanique));
  EXPECT_DOUBLE_EQ(forces({1, 0, 0}).eff.n, 0.16 + 0.04);
}

TEST_F(Efforts, PairesDeMeresEtDeFilles) {
  struct paire {
    int mere;
    double c_mere;
    int fille;
    double c_fille;
    bool permise;
  };
  const std::vector<paire> paires = {
      {1001, 1, 1001, 1, true},      {1001, 1, 1002, 0.5, true}, {1001, 1, 1003, 0.5, true},
      {1001, 1, 1004, 0.5, true},    {1002, 1, 1001, 1, true},   {1002, 1, 1002, 1, false},
      {1002, 0, 1002, 1, false},     {1002, 1, 1003, 1, true},   {1002, 1, 1003, 0.5, false},
      {1002, 0.3, 1003, 0.5, false}, {1002, 0.3, 1004, 1, true}, {1002, 0, 1003, 0.5, true},
      {1002, 1, 1004, 2, false},     {1002, 0, 1004, 2, true},   {1003, 1, 1004, 1, false},
      {1004, 1, 1004, 1, false},     {1004, 0, 1001, 1, false}};
  int section = 1;
  for (const paire& p : paires) {
    SCOPED_TRACE(std::to_string(p.mere) + " and " + std::to_string(p.fille));
    reussit(qb7_creer_section(++section));
    creer_zone(section, 5, p.mere, beton, carre);
    creer_zone(section, 6, p.fille, beton, vide);
    if (p.mere != 1001) reussit(qb7_fixer_c_remplissage(section, 5, p.c_mere));
    if (p.fille != 1001) reussit(qb7_fixer_c_remplissage(section, 6, p.c_fille));
    reussit(qb7_fixer_num_zone_mere(section, 6, 5));
    EXPECT_EQ(eff_section_calcul(section_du_moteur(section), el),
              p.permise ? ier_2{} : (ier_2{ERR_TYPE_MERE, 6}));
  }
}

TEST_F(Efforts, LaTableRefuseCeQuiManque) {
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_semis, acier, {{0, 0}});
  reussit(qb7_fixer_num_zone_mere(1, 2, 8));
  EXPECT_EQ(calculer(), (ier_2{ERR_NON_MERE, 8}));
  EXPECT_EQ(qb7_efforts.glob_nbre_zones, 0);
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(qb7_activer_zone(1, 1, false, false));
  EXPECT_EQ(calculer(), (ier_2{ERR_MERE_INACTIVE, 1}));
  reussit(qb7_activer_zone(1, 2, false, false));
  reussit(calculer());
  EXPECT_EQ(calculer(el + 1), (ier_2{ERR_NON_LOI, beton}));  // asked for every zone, active or not
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[static_cast<std::size_t>(qb7_err_nbre_messages())].utile(),
            "EFF_Section_Calcul");
  reussit(qb7_supprimer_point(1, 2));
  EXPECT_EQ(calculer(), (ier_2{ERR_NON_POINT, 2}));
}

// What the store never lets in.
TEST_F(Efforts, UnTypeInconnuEstUneErreurInterne) {
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  gbd_zone* zone = section_du_moteur(1).lst_zones.lst_premier();
  zone->type_zone = 1005;
  EXPECT_EQ(calculer(), (ier_2{ERR_INTERNE, 1}));
  zone->type_zone = qb7_zone_contour;
  reussit(calculer());
  gbd_glob.glob_lst_lois.lst_chercher_elt({el, beton})->type_trou = 2004;
  qb7_err_effacer();
  EXPECT_EQ(calculer(), (ier_2{ERR_INTERNE, 1}));
  ASSERT_EQ(qb7_err_nbre_messages(), 2);
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[1].utile(), "LOC_Zone_Calcul");
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[2].utile(), "EFF_Section_Calcul");
}

TEST_F(Efforts, UnePaireInterditeEstJournaliseeSousLaListeDesFilles) {
  creer_zone(1, 1, qb7_zone_semis, acier, {{0, 0}});
  creer_zone(1, 2, qb7_zone_semis, acier, {{0, 0}});
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  EXPECT_EQ(calculer(), (ier_2{ERR_TYPE_MERE, 2}));
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[1].utile(), "LOC_Liste_Filles");
}

// Bars without area and a profile without thickness weigh nothing.
TEST_F(Efforts, SansMatiereRien) {
  creer_zone(1, 1, qb7_zone_semis, acier, {{0.1, 0.1}});
  creer_zone(1, 2, qb7_zone_profil, acier, {{0.1, 0.1}, {0.2, 0.1}});
  reussit(calculer());
  attendre(forces(plans[1]), {});
}

// A tensioned cable that is not bonded is a constant force without stiffness; bonded it follows the section.
TEST_F(Efforts, UnCableAvantEtApresSonInjection) {
  creer_zone(1, 1, qb7_zone_semis, acier, {{0, -0.1}});
  reussit(qb7_fixer_param_zone(1, 1, 1e-3));
  reussit(qb7_fixer_modif_lois_zone(1, 1, {.rho = 0, .epsilon_a = -0.0015, .epsilon_p = -0.0015}));
  reussit(calculer());
  for (const deformation& d : plans) attendre(forces(d), {{-0.3, 0.03, 0}, {}});
  reussit(qb7_fixer_modif_lois_zone(1, 1, {.rho = 1, .epsilon_a = -0.0015, .epsilon_p = -0.0015}));
  reussit(calculer());
  attendre(forces({0.0004, 0, 0}), {{-0.22, 0.022, 0}, {200, -20, 2, 0, 0, 0}});
}

// Each limit that a zone passes, and the first zone in order of numbers.
TEST_F(Efforts, LimitesDeDeformation) {
  creer_zone(1, 3, qb7_zone_contour, beton, carre);
  creer_zone(1, 7, qb7_zone_semis, acier, {{0, -0.18}});
  reussit(qb7_fixer_param_zone(1, 7, 1e-3));
  reussit(calculer());
  ier_2 ier;
  forces({0.0034, 0, 0}, &ier);
  EXPECT_EQ(ier, ier_2{});
  forces({0.0035, 0, 0}, &ier);  // reached, not passed
  EXPECT_EQ(ier, ier_2{});
  forces({-0.01, 0, 0}, &ier);
  EXPECT_EQ(ier, ier_2{});
  forces({0.0036, 0, 0}, &ier);
  EXPECT_EQ(ier, (ier_2{ERR_EPSILON_LIM, 3}));
  forces({-0.0101, 0, 0}, &ier);
  EXPECT_EQ(ier, (ier_2{ERR_EPSILON_LIM, 7}));
  forces({-0.007, 0.06, 0}, &ier);  // both
  EXPECT_EQ(ier, (ier_2{ERR_EPSILON_LIM, 3}));
  efforts f;
  reussit(qb7_deformer_section(1, el, {0.0034, 0, 0}, f));
  EXPECT_GT(f.n, 3);
  EXPECT_EQ(qb7_deformer_section(1, el, {0.0036, 0, 0}, f), (ier_2{ERR_EPSILON_LIM, 3}));
  EXPECT_EQ(f, efforts{});
  EXPECT_EQ(qb7_err.glob_tab_noms_procs[1].utile(), "QB7_Deformer_Section");
}

// Points that design leaves aside are judged here like the others.
TEST_F(Efforts, LesLimitesSeJugentATousLesPoints) {
  creer_zone(1, 3, qb7_zone_contour, beton, carre);
  reussit(qb7_fixer_critiques(1, 3, std::array{1, 2}, false));
  reussit(calculer());
  ier_2 ier;
  forces({0.002, 0.01, 0}, &ier);  // 0.004 at the two upper points
  EXPECT_EQ(ier, (ier_2{ERR_EPSILON_LIM, 3}));
}

// A cable: its limits are those of the strain on its own law, and epsilon_z counts.
TEST_F(Efforts, LimitesDUnCable) {
  creer_zone(1, 1, qb7_zone_semis, acier, {{0, 0}});
  reussit(qb7_fixer_param_zone(1, 1, 1e-3));
  const auto depasse = [](const modif_lois& m, double e) {
    reussit(qb7_fixer_modif_lois_zone(1, 1, m));
    reussit(calculer());
    ier_2 ier;
    forces({e, 0, 0}, &ier);
    return ier.code == ERR_EPSILON_LIM;
  };
  EXPECT_FALSE(depasse({.rho = 1, .epsilon_a = -0.006, .epsilon_p = -0.006}, -0.0039));
  EXPECT_TRUE(depasse({.rho = 1, .epsilon_a = -0.006, .epsilon_p = -0.006}, -0.0041));
  EXPECT_TRUE(depasse({.rho = 1, .epsilon_a = -0.006, .epsilon_p = -0.006, .epsilon_z = -0.001}, -0.0035));
}

// The same on the other side, of a steel limited at 0.001 and -0.0015.
TEST_F(Efforts, LimiteSuperieureDUneZoneQuiAUneHistoire) {
  reussit(qb7_loi_lin_bilin(9, el, qb7_loi_lineaire, 200000, -300, 200));
  creer_zone(1, 1, qb7_zone_semis, 9, {{0, 0}});
  reussit(qb7_fixer_param_zone(1, 1, 1e-3));
  const auto depasse = [](double epsilon_a, double epsilon_z, double e) {
    reussit(qb7_fixer_modif_lois_zone(1, 1, {.rho = 1, .epsilon_a = epsilon_a, .epsilon_z = epsilon_z}));
    reussit(calculer());
    ier_2 ier;
    forces({e, 0, 0}, &ier);
    return ier == ier_2{ERR_EPSILON_LIM, 1};
  };
  EXPECT_FALSE(depasse(0.0004, 0, 0.00059));
  EXPECT_TRUE(depasse(0.0004, 0, 0.00061));
  EXPECT_FALSE(depasse(0.0004, 0.0002, 0.00039));
  EXPECT_TRUE(depasse(0.0004, 0.0002, 0.00041));
  EXPECT_FALSE(depasse(0.0004, 0.0002, -0.00209));
  EXPECT_TRUE(depasse(0.0004, 0.0002, -0.00211));
}

TEST_F(Efforts, LePlanDUneZoneSAjouteOuRemplace) {
  creer_zone(1, 1, qb7_zone_contour, elastique, carre);
  const deformation propre = {0.0002, 0.001, 0};
  const deformation d = {0.0005, 0, -0.002};
  reussit(qb7_fixer_deform_zone(1, 1, false, qb7_deform_cumulee, propre));
  reussit(calculer());
  attendre(forces(d), du_carre(d + propre, carre, elastique));
  reussit(qb7_fixer_deform_zone(1, 1, false, qb7_deform_imposee, propre));
  reussit(calculer());
  attendre(forces(d), du_carre(propre, carre, elastique));
}

// The frame of loading: forces are those at its origin, along its axes.
TEST_F(Efforts, LeRepereDeSollicitationDeplaceLesEfforts) {
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  const double angle = 0.4;
  reussit(qb7_fixer_repere_sollicitation(1, 0.3, -0.1, angle));
  reussit(calculer());
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  const deformation propre = {0.0006, 0.003, 0.002};  // the same strains in the section's own axes
  const deformation d = {propre.e0 + propre.ky * -0.1 - propre.kz * 0.3, c * propre.ky + s * propre.kz,
                         c * propre.kz - s * propre.ky};
  const efforts f = du_carre(propre).eff;
  const efforts au_repere = {f.n, f.my + 0.1 * f.n, f.mz + 0.3 * f.n};
  forces_proches(forces(d).eff,
                 {f.n, c * au_repere.my + s * au_repere.mz, c * au_repere.mz - s * au_repere.my}, 1e-14);
}

TEST_F(Efforts, AiresDesZones) {
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_contour, qb7_sans_materiau, vide);
  creer_zone(1, 3, qb7_zone_profil, elastique, {{0, -0.15}, {0, -0.12}, {0.04, -0.12}});
  creer_zone(1, 4, qb7_zone_semis, acier, {{0.15, 0.15}, {-0.15, 0.15}, {0, 0.15}});
  reussit(qb7_fixer_param_zone(1, 3, 0.01, 0.02));
  reussit(qb7_fixer_param_zone(1, 4, 2e-4));
  reussit(qb7_fixer_c_remplissage(1, 3, 0.5));
  for (const int fille : {2, 3, 4}) reussit(qb7_fixer_num_zone_mere(1, fille, 1));
  double aire = 0;
  reussit(qb7_section_nette_zone(1, 1, el, aire));
  EXPECT_NEAR(aire, 0.16 - 0.04 - 0.5 * 0.02 * 0.07, 1e-16);
  reussit(qb7_section_brute_zone(1, 1, aire));  // profiles out once, bars not at all
  EXPECT_NEAR(aire, 0.16 - 0.04 - 0.5 * 0.01 * 0.07, 1e-16);
  reussit(qb7_section_nette_zone(1, 3, el, aire));
  EXPECT_NEAR(aire, 0.01 * 0.07, 1e-16);
  reussit(qb7_section_nette_zone(1, 4, el, aire));
  EXPECT_NEAR(aire, 6e-4, 1e-18);
  EXPECT_EQ(eff_surface_zone(5), 0);
}

TEST_F(Efforts, TangenteDUneZoneAuPlanNul) {
  creer_zone(1, 1, qb7_zone_contour, elastique, carre);
  creer_zone(1, 2, qb7_zone_semis, acier, {{0.1, 0.1}});
  reussit(qb7_fixer_param_zone(1, 2, 1e-3));
  reussit(qb7_activer_zone(1, 2, false, false));
  reussit(calculer());
  EXPECT_NEAR(eff_mat_zone(1).a1, 30000 * 0.16, 1e-10);
  EXPECT_EQ(eff_mat_zone(2), rigidite{});
  reussit(qb7_activer_zone(1, 2, true, false));
  reussit(calculer());
  tangentes_proches(eff_mat_zone(2), {200, 20, 2, -20, -2, 2}, 1e-12);
}

// Forces of a zone of bars with a fill coefficient of 1, less what it displaces, whatever its own
// coefficient.
TEST_F(Efforts, EffortsDUneUniteDAcier) {
  const std::vector<point_yz> barre = {{0.1, -0.15}};
  creer_zone(1, 1, qb7_zone_contour, elastique, carre);
  creer_zone(1, 2, qb7_zone_semis, acier, barre);
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(qb7_fixer_param_zone(1, 2, 1e-3));
  reussit(qb7_fixer_c_remplissage(1, 2, 0.01));
  const deformation d = {0.0002, 0.001, 0.001};
  reussit(calculer());
  forces_proches(eff_mat_acier(2, d), des_barres(d, barre, 1e-3, acier).eff, 1e-16);
  reussit(qb7_fixer_type_trou(acier, el, qb7_trou_encombrement));
  reussit(calculer());
  const auto nette = des_barres(d, barre, 1e-3, acier) - des_barres(d, barre, 1e-3, elastique);
  forces_proches(eff_mat_acier(2, d), nette.eff, 1e-16);
  EXPECT_EQ(qb7_efforts.glob_loc_zones[1].c_remplissage, 0.01);
  reussit(qb7_activer_zone(1, 2, false, false));
  reussit(calculer());
  EXPECT_EQ(eff_mat_acier(2, d), efforts{});
}

// Bars that stand in a void displace nothing.
TEST_F(Efforts, EffortsDUneUniteDAcierDansUnVide) {
  const std::vector<point_yz> barre = {{0, 0.05}};
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_contour, qb7_sans_materiau, vide);
  creer_zone(1, 3, qb7_zone_semis, acier, barre);
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(qb7_fixer_num_zone_mere(1, 3, 2));
  reussit(qb7_fixer_param_zone(1, 3, 1e-3));
  reussit(qb7_fixer_type_trou(acier, el, qb7_trou_encombrement));
  reussit(calculer());
  const deformation d = {0.0002, 0.001, 0.001};
  forces_proches(eff_mat_acier(3, d), des_barres(d, barre, 1e-3, acier).eff, 1e-16);
}

// The table of a smaller section after that of a larger one holds nothing of it.
TEST_F(Efforts, LaTableNeGardeRienDUneSectionAuneAutre) {
  creer_zone(1, 1, qb7_zone_contour, beton, carre);
  creer_zone(1, 2, qb7_zone_contour, qb7_sans_materiau, vide);
  reussit(qb7_fixer_num_zone_mere(1, 2, 1));
  reussit(calculer());
  reussit(qb7_creer_section(2));
  creer_zone(2, 1, qb7_zone_contour, elastique, vide);
  reussit(eff_section_calcul(section_du_moteur(2), el));
  attendre(forces(plans[0]), du_carre(plans[0], vide, elastique));
  eff_vider();
  attendre(forces(plans[0]), {});
}

TEST_F(Efforts, CaracteristiquesDeLaSection) {
  creer_zone(1, 1, qb7_zone_contour, beton, {{0, 0}, {0.3, 0}, {0.3, 0.6}, {0, 0.6}});
  reussit(qb7_fixer_repere_sollicitation(1, 5, -3, 0.4));  // not looked at
  caracteristiques_mecaniques c;
  reussit(qb7_caracteristiques_mecaniques(1, qb7_etat_mecanique, c));
  EXPECT_NEAR(c.yg, 0.15, 1e-15);
  EXPECT_NEAR(c.zg, 0.3, 1e-15);
  EXPECT_NEAR(c.e_iy, 0.3 * 0.216 / 12, 1e-15);
  EXPECT_NEAR(c.e_iz, 0.6 * 0.027 / 12, 1e-15);
  // at half of eps_c1 the parabola's slope is f_cd / eps_c1
  reussit(qb7_caracteristiques_mecaniques(1, el, c, {0.001, 0, 0}));
  EXPECT_NEAR(c.e_sx, 10000 * 0.18, 1e-9);
  EXPECT_EQ(qb7_caracteristiques_mecaniques(1, el, c, {-0.001, 0, 0}), (ier_2{ERR_E_SX_NUL, 1}));
  EXPECT_EQ(c.e_sx, 0);
}
