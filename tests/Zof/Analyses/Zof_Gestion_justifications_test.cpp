// The tables of strains and stresses and the report of one load case, on sections whose materials are linear:
// every value is worked out by hand from the plane.

#include "Zof_Gestion_justifications.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numbers>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Lecteur.hpp"
#include "Litteral.hpp"
#include "Outils.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Lois.hpp"
#include "QB7_Sections.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"

using namespace socle;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

struct materiau_d_essai : uef_element<materiau_d_essai, zof_materiau> {
  void editer_materiau(bool&) const override {}
  void decoder_materiau(bool&) override {}
};

constexpr int etat_limite = 1006;

std::string l1(std::string_view texte) { return std::string(texte); }

/// A section of linear materials, and the notes that a justification writes on it.
class Tableaux : public ::testing::Test {
 protected:
  void TearDown() override { vider(); }

  /// Reads the section S1 and activates it.
  void lire(const std::string& corps) {
    vider();
    lecteur_.emplace("S1 TITR 'Essai'\n" + corps + "\nFIN_SECT\n");
    materiau("BETON", type_materiau_beton_precontraint, 30000, {}, 15.0);
    materiau("ACIER", type_materiau_acier, 200000, -400.0, 400.0);
    materiau("TORON", type_materiau_precontrainte, 195000, -1440.0, {});
    materiau("S355", type_materiau_charpente, 210000, -355.0, 355.0);
    bool erco = false;
    zof_decoder_creer_section(erco);
    ASSERT_FALSE(erco) << lecteur_->console();
    zof_activer_section("S1");
    txt_ = machine.creer("n.txt", debut::efface);
    html_ = machine.creer("n.html", debut::efface);
    utl_02_initialiser({.opt_unit_txt = txt_.get(),
                        .opt_unit_html = html_.get(),
                        .opt_edition_txt = true,
                        .opt_edition_html = true,
                        .opt_lg_separation = 3,
                        .opt_logiciel = 5,
                        .opt_lg_ligne = 300,
                        .opt_numeroter_titres = true,
                        .opt_ecrire_sommaire = false,
                        .opt_ecrire_sommaire_dynam = true,
                        .opt_profondeur_sommaire_voulue = 10,
                        .opt_langue_entete = std::string_view("fr")});
  }
  /// Engine zone at a position of the zone of that name: one a tendon, one a profile, otherwise its only one.
  static int zone_qb7(const texte<32>& nom, std::size_t position = 0) {
    return zof_get_pt_nom_zone_section("S1", nom)->numeros_zones_qb7().at(position);
  }
  std::string tableaux(const deformation& plan) {
    zof_editer_deformations_contraintes_section("S1", 1, etat_limite, plan);
    return txt();
  }
  std::string txt() { return std::exchange(machine.fichiers["n.txt"], {}); }
  std::string html() { return std::exchange(machine.fichiers["n.html"], {}); }
  [[nodiscard]] const std::string& console() const { return lecteur_->console(); }

  systeme_memoire machine;

 private:
  static void materiau(std::string_view nom, int type, double e, std::optional<double> sigma_min,
                       std::optional<double> sigma_max) {
    materiau_d_essai m;
    m.set_nom_materiau(nom);
    m.set_type_materiau(type);
    auto& materiaux = gestion_materiau.zof_mod_les_materiaux;
    if (!materiaux.est_cree()) materiaux.creer("materiaux", m, 10, true);
    const int numero = materiaux.nombre() + 1;
    m.set_numero_materiau_qb7(numero);
    materiaux.ajouter(m);
    if (qb7_loi_lin_bilin(numero, etat_limite, qb7_loi_lineaire, e, sigma_min, sigma_max))
      throw std::runtime_error("law of a test material");
  }
  void vider() {
    utl_02_reinitialiser();
    gestion_sollicitations_reinitialiser();
    gestion_section_reinitialiser();
    gestion_materiau_reinitialiser();
    qb7_quitter();
    qb7_err_reinitialiser();
    lecteur_.reset();
  }

  std::optional<lecteur> lecteur_;
  std::unique_ptr<sortie> txt_;
  std::unique_ptr<sortie> html_;
};

/// Cells of the lines of a text that begin with one of these numbers.
std::vector<std::vector<double>> lignes(const std::string& texte, const std::vector<int>& numeros) {
  std::vector<std::vector<double>> resultat;
  std::istringstream flux(texte);
  for (std::string ligne; std::getline(flux, ligne);) {
    std::istringstream cellules(ligne);
    std::vector<double> valeurs;
    for (double valeur = 0; cellules >> valeur;) valeurs.push_back(valeur);
    if (valeurs.size() < 4) continue;
    for (const int numero : numeros)
      if (valeurs[0] == numero) resultat.push_back(valeurs);
  }
  return resultat;
}

std::size_t nombre_de(const std::string& texte, const std::string& motif) {
  std::size_t nombre = 0;
  for (std::size_t ici = texte.find(motif); ici != std::string::npos; ici = texte.find(motif, ici + 1))
    ++nombre;
  return nombre;
}

double nombre_apres(const std::string& texte, const std::string& label) {
  const std::size_t ici = texte.find(label);
  if (ici == std::string::npos) throw std::runtime_error("no " + label);
  return std::stod(texte.substr(ici + label.size(), 20));
}

const std::string rectangle =
    "MATE BETON POIN NUME 1 Y -0.15D0 Z -0.25D0 FIN_ NUME 2 Y 0.15D0 Z -0.25D0 FIN_ "
    "NUME 3 Y 0.15D0 Z 0.25D0 FIN_ NUME 4 Y -0.15D0 Z 0.25D0 FIN_ FIN_POIN\n";

const std::string equation = l1("Equation axe neutre (repère géométrique) : 0="_l1);
const std::string ordonnee = l1("Ordonnée de l'axe neutre (repère géométrique) : z="_l1);
const std::string titre = l1("Déformations et contraintes dans :"_l1);
const std::string plan_zone = l1("- Déformations de la section (*):"_l1);

// ---- Contours and bars

// At (0.1, -0.2) under (1e-3, 2e-3, 3e-3): 1e-3 - 4e-4 - 3e-4 = 3e-4, and 60 MPa in the bar.
TEST_F(Tableaux, ContourEtBarres) {
  lire("CONT FUT " + rectangle +
       "FERR CAGE MATE ACIER DIAM 20. POIN NUME 101 Y 0.1D0 Z -0.2D0 FIN_ FIN_POIN FIN_FERR\nFIN_CONT");
  const std::string note = tableaux({1e-3, 2e-3, 3e-3});
  const std::size_t cage = note.find(titre + "CAGE");
  ASSERT_NE(cage, std::string::npos);
  const std::string fut = note.substr(0, cage);
  EXPECT_THAT(fut, HasSubstr(titre + "FUT\n"));
  EXPECT_THAT(
      fut,
      HasSubstr("  - Limites du materiau :\n    > Lim min  : aucune\n    > Eps max :0.50000E-03\n"
                "    > Sig max :15.000 Mpa\n" +
                ("  " + plan_zone) + "\n  - Ex: 0.10000E-02\n  - Ry: 0.20000E-02\n  - Rz: 0.30000E-02\n  - " +
                equation + "0.10000E-02 + 0.20000E-02z + -0.30000E-02y\n"));
  EXPECT_THAT(fut, Not(HasSubstr(ordonnee)));
  // Corners: 1e-3 -+ 5e-4 -+ 4.5e-4; past 5e-4 the stress is shown as outside of the limits.
  EXPECT_THAT(fut, HasSubstr(" 0.95000E-03"));
  EXPECT_THAT(fut, HasSubstr(" H Bornes (28.500) "));
  EXPECT_THAT(fut, HasSubstr(" 0.50000E-04"));
  EXPECT_THAT(fut, HasSubstr(" 1.5000 "));
  EXPECT_THAT(fut, HasSubstr(" Deformations et contraintes positives en compression\n"));
  const std::string barres = note.substr(cage);
  EXPECT_THAT(barres, HasSubstr("    > Eps min :-0.20000E-02\n    > Sig min :-400.00 Mpa\n"
                                "    > Eps max :0.20000E-02\n    > Sig max :400.00 Mpa\n"));
  EXPECT_THAT(barres, Not(HasSubstr(plan_zone)));
  EXPECT_THAT(barres, Not(HasSubstr(equation)));
  const auto barre = lignes(barres, {101});
  ASSERT_EQ(barre.size(), 1U);
  EXPECT_EQ(barre[0], (std::vector<double>{101, 0.1, -0.2, 3e-4, 60.0}));
}

// Below the lower limit too.
TEST_F(Tableaux, SousLaBorneInferieure) {
  lire("CONT FUT " + rectangle +
       "FERR CAGE MATE ACIER DIAM 20. POIN NUME 101 Y 0.1D0 Z -0.2D0 FIN_ FIN_POIN FIN_FERR\nFIN_CONT");
  EXPECT_THAT(tableaux({-3e-3, 0, 0}), HasSubstr(" H Bornes (-600.00) "));
}

TEST_F(Tableaux, LOrdonneeDeLAxeNeutreQuandIlEstParalleleAY) {
  lire("CONT FUT " + rectangle + "FIN_CONT");
  // 2e-4 + 2e-3 z = 0
  EXPECT_THAT(tableaux({2e-4, 2e-3, 0}), HasSubstr("  - " + ordonnee + "-0.10000E+00\n"));
  // A slope along y under 1e-10 is none; one along z must be above 1e-8.
  EXPECT_THAT(tableaux({2e-4, 2e-3, 5e-11}), HasSubstr(ordonnee));
  EXPECT_THAT(tableaux({2e-4, 2e-3, 2e-10}), Not(HasSubstr(ordonnee)));
  EXPECT_THAT(tableaux({2e-4, -2e-8, 0}), HasSubstr(ordonnee));
  EXPECT_THAT(tableaux({2e-4, -5e-9, 0}), Not(HasSubstr(ordonnee)));
}

// The axis is told in the axes of the section: in a frame that is shifted and turned its equation still gives
// the strains of the points.
TEST_F(Tableaux, LEquationDeLAxeNeutreDonneLesDeformations) {
  lire("CONT FUT " + rectangle + "FIN_CONT");
  ASSERT_EQ(qb7_fixer_repere_sollicitation(1, 0.07, -0.12, 0.6), ier_2{});
  const std::string note = tableaux({1e-4, 2e-3, -1.5e-3});
  const std::string axe = note.substr(note.find(equation) + equation.size());
  const double constante = std::stod(axe);
  const double pente_z = nombre_apres(axe, " + ");
  const double pente_y = nombre_apres(axe, "z + ");
  const auto points = lignes(note, {1, 2, 3, 4});
  ASSERT_EQ(points.size(), 4U);
  for (const auto& p : points) EXPECT_NEAR(p[3], constante + pente_z * p[2] + pente_y * p[1], 2e-8) << p[0];
  // At the origin of the frame the strain is 1e-4: y = 0.07, z = -0.12.
  EXPECT_NEAR(constante + pente_y * 0.07 - pente_z * 0.12, 1e-4, 2e-8);
}

// The plane that the zone carries adds to that of the section.
TEST_F(Tableaux, LePlanDeLaZoneSAjoute) {
  lire("CONT FUT " + rectangle + "FIN_CONT");
  ASSERT_EQ(qb7_fixer_deform_zone(1, zone_qb7("FUT"), false, qb7_deform_cumulee, {1e-4, 0, 1e-3}), ier_2{});
  const std::string note = tableaux({2e-4, 4e-4, 0});
  EXPECT_THAT(note, HasSubstr("- Ex: 0.30000E-03\n  - Ry: 0.40000E-03\n  - Rz: 0.10000E-02\n  - " + equation +
                              "0.30000E-03 + 0.40000E-03z + -0.10000E-02y\n"));
  // (0.15, 0.25): 3e-4 + 1e-4 - 1.5e-4
  EXPECT_EQ(lignes(note, {3}).at(0).at(3), 2.5e-4);
}

TEST_F(Tableaux, UneZoneInactiveNEnAPas) {
  lire("CONT FUT " + rectangle +
       "EVID TROU POIN NUME 1 Y -0.05D0 Z -0.05D0 FIN_ NUME 2 Y 0.05D0 Z -0.05D0 FIN_ NUME 3 Y 0. Z 0.05D0 "
       "FIN_ FIN_POIN FIN_EVID\n"
       "GAIN TUBE DIAM 60. POIN NUME 7 Y 0. Z 0.15D0 FIN_ FIN_POIN FIN_GAIN\n"
       "FERR CAGE MATE ACIER DIAM 20. POIN NUME 101 Y 0.1D0 Z -0.2D0 FIN_ FIN_POIN FIN_FERR\nFIN_CONT");
  const std::string complete = tableaux({1e-4, 0, 0});
  EXPECT_EQ(nombre_de(complete, titre), 2U);  // neither the void nor the duct
  EXPECT_THAT(complete, Not(HasSubstr(titre + "TROU")));
  EXPECT_THAT(complete, Not(HasSubstr(titre + "TUBE")));
  ASSERT_EQ(qb7_activer_zone(1, zone_qb7("CAGE"), false, false), ier_2{});
  const std::string sans_barres = tableaux({1e-4, 0, 0});
  EXPECT_EQ(nombre_de(sans_barres, titre), 1U);
  EXPECT_THAT(sans_barres, HasSubstr(titre + "FUT\n"));
}

// ---- Profiles

const std::string charpente =
    "CHAR H1 MATE S355 POIN NUME 1 Y 0. Z 0. FIN_ NUME 2 Y 0. Z 0.4D0 FIN_ NUME 3 Y 0.2D0 Z 0.4D0 FIN_ "
    "FIN_POIN PROF NUME 1 ORIG 1 EXTR 2 EPAI 10. FIN_ NUME 2 ORIG 2 EXTR 3 EPAI 20. FIN_ FIN_PROF FIN_CHAR";

// Under (1e-3, 2e-3, 1e-3) points 1, 2, 3 have 1, 1.8 and 1.6 per mille; 355/210000 = 1.6905 per mille is the
// limit. The second profile carries 0.1 per mille of its own.
TEST_F(Tableaux, ChaqueProfilALeSien) {
  lire(charpente);
  ASSERT_EQ(qb7_fixer_deform_zone(1, zone_qb7("H1", 1), false, qb7_deform_cumulee, {1e-4, 0, 0}), ier_2{});
  const std::string note = tableaux({1e-3, 2e-3, 1e-3});
  EXPECT_THAT(note, HasSubstr(titre + "H1\n"));
  ASSERT_EQ(nombre_de(note, "Num_Point"), 2U);
  const std::size_t second = note.find("Limites du materiau", note.find("Num_Point"));
  ASSERT_NE(second, std::string::npos);
  const std::string profil_1 = note.substr(0, second);
  const std::string profil_2 = note.substr(second);
  EXPECT_THAT(profil_1, HasSubstr("    > Eps min :-0.16905E-02\n    > Sig min :-355.00 Mpa\n"
                                  "    > Eps max :0.16905E-02\n    > Sig max :355.00 Mpa\n"));
  EXPECT_THAT(profil_1, HasSubstr(plan_zone + "\n  - Ex: 0.10000E-02\n"));
  EXPECT_THAT(profil_2, HasSubstr(plan_zone + "\n  - Ex: 0.11000E-02\n"));
  EXPECT_EQ(lignes(profil_1, {1, 2}).size(), 2U);
  EXPECT_EQ(lignes(profil_1, {1}).at(0), (std::vector<double>{1, 0.0, 0.0, 1e-3, 210.0}));
  EXPECT_THAT(profil_1, HasSubstr(" 0.18000E-02   H Bornes (378.00) "));
  EXPECT_THAT(profil_2, HasSubstr(" 0.19000E-02   H Bornes (399.00) "));
  EXPECT_THAT(profil_2, HasSubstr(" 0.17000E-02   H Bornes (357.00) "));
  EXPECT_EQ(nombre_de(note, " Deformations et contraintes positives en compression\n"), 2U);
}

TEST_F(Tableaux, UnProfilInactifNEnAPas) {
  lire(charpente);
  ASSERT_EQ(qb7_activer_zone(1, zone_qb7("H1", 0), false, false), ier_2{});
  const std::string note = tableaux({1e-3, 0, 0});
  EXPECT_EQ(nombre_de(note, "Num_Point"), 1U);
  EXPECT_TRUE(lignes(note, {1}).empty());
  EXPECT_EQ(lignes(note, {2, 3}).size(), 2U);
  ASSERT_EQ(qb7_activer_zone(1, zone_qb7("H1", 1), false, false), ier_2{});
  EXPECT_THAT(tableaux({1e-3, 0, 0}), Not(HasSubstr(titre)));
}

// ---- Tendons

const std::string cables = "CONT FUT " + rectangle +
                           "PREC C1 MATE TORON AIRE 150. POIN NUME 11 Y -0.1D0 Z -0.2D0 FIN_ "
                           "NUME 12 Y 0.1D0 Z -0.2D0 FIN_ FIN_POIN FIN_PREC\nFIN_CONT";

// The section strains the tendon by 1e-3 - 4e-4 = 6e-4. Bonded at -6e-3, with 1e-3 lost before the concrete
// was unstrained: -5.4e-3, hence -1053 MPa; since then 1.6e-3, hence 312 MPa.
TEST_F(Tableaux, ChaqueCableActifASaLigne) {
  lire(cables);
  ASSERT_EQ(qb7_activer_zone(1, zone_qb7("C1", 1), false, false), ier_2{});
  modif_lois historique;
  historique.epsilon_a = -6e-3;
  historique.epsilon_z = 1e-3;
  ASSERT_EQ(qb7_fixer_modif_lois_zone(1, zone_qb7("C1", 0), historique), ier_2{});
  const std::string note = tableaux({1e-3, 2e-3, 0});
  const std::string groupe = note.substr(note.find(titre + "C1\n"));
  EXPECT_THAT(groupe, HasSubstr("    > Eps min :-0.73846E-02\n    > Sig min :-1440.0 Mpa\n"
                                "    > Lim max  : aucune\n"));
  EXPECT_THAT(groupe, HasSubstr(" Deformations et contraintes en Mpa positives en compression\n"));
  for (const char* colonne : {"Num_Cable ", " D_eps_P(*) ", " D_sig_P(*,**) ", " Eps final ", " Sig final "})
    EXPECT_THAT(groupe, HasSubstr(colonne));
  EXPECT_TRUE(lignes(groupe, {12}).empty());
  EXPECT_EQ(lignes(groupe, {11}).at(0),
            (std::vector<double>{11, -0.1, -0.2, 1.6e-3, 312.0, -5.4e-3, -1053.0}));
  EXPECT_THAT(
      groupe,
      HasSubstr(
          l1(" (*) D_eps_P et D_sig_P correspondent aux surtensions apres retour à l'etat 0 du diagramme "
             "6.1 de EC2\n"_l1)));
  EXPECT_THAT(groupe,
              HasSubstr(l1(" (**) Dans le cas de la prétension et en l'absence d'aciers passifs, la "
                           "vérification du critere de fissuration (Cf. Clause 7.3.3(101) note) est à la "
                           "charge de l'utilisateur\n"_l1)));
}

// -8e-3 + 6e-4 = -7.4e-3, past 1440/195000 = 7.3846e-3: -1443 MPa.
TEST_F(Tableaux, UnCableHorsBornes) {
  lire(cables);
  modif_lois historique;
  historique.epsilon_a = -8e-3;
  ASSERT_EQ(qb7_fixer_modif_lois_zone(1, zone_qb7("C1", 0), historique), ier_2{});
  EXPECT_THAT(tableaux({1e-3, 2e-3, 0}), HasSubstr(" -0.74000E-02   H Bornes (-1443.0) "));
}

TEST_F(Tableaux, SansCableActifIlNyEnAPas) {
  lire(cables);
  zof_desactiver_cables_section("S1");
  const std::string note = tableaux({1e-3, 2e-3, 0});
  EXPECT_THAT(note, HasSubstr(titre + "FUT\n"));
  EXPECT_THAT(note, Not(HasSubstr(titre + "C1")));
}

// ---- One load case

zof_cadre_justification cadre() { return {"S1", "EXPLOITATION_SERVICE", "ELS_CAR", true, 1, etat_limite}; }

// 0.6 / (0.15 x 30000) = 1.3333e-4. The rough pi shows in the angle: 180 x 1.5707963 / 3.14156 = 90.00093.
TEST_F(Tableaux, LesDonneesDUnCas) {
  lire("CONT FUT " + rectangle + "FIN_CONT");
  ASSERT_EQ(qb7_fixer_repere_sollicitation(1, 0, 0, std::numbers::pi / 2), ier_2{});
  deformation plan{NAN, NAN, NAN};  // the search does not begin there
  const std::vector<std::string> commentaires = {"phase 1", "phase 2"};
  EXPECT_TRUE(zof_solliciter_section(cadre(), "  cas ", {0.6, 0, 0}, true, plan, commentaires));
  EXPECT_NEAR(plan.e0, 0.6 / 4500, 1e-5 * 0.6 / 4500);
  EXPECT_THAT(console(), HasSubstr("==> Equilibre sous :cas\n"));
  const std::string note = txt();
  EXPECT_THAT(note, HasSubstr(" Efforts : cas\n"));
  EXPECT_THAT(note, HasSubstr("\n  - phase 1\n  - phase 2\n  - Situation    : EXPLOITATION_SERVICE\n"
                              "  - Etat_limite  : ELS_CAR\n"
                              "  - Repere       :  y : 0.0000 - z : 0.0000 - angle : 90.001\n"
                              "  - Nx: 0.60000"));
  EXPECT_THAT(note, HasSubstr(plan_zone + "\n  - Ex: 0.13333E-03\n"));
}

// These materials have no situation at all.
TEST_F(Tableaux, UnMateriauSansLEtatLimiteArreteLeCalcul) {
  lire("CONT FUT " + rectangle + "FIN_CONT");
  zof_efforts_etat_limite etat;
  etat.m_label_etat_limite = "ELS_CAR";
  etat.m_label_situation = "EXPLOITATION_SERVICE";
  etat.m_les_phases.ajouter(zof_phase());
  zof_sollicitations s;
  s.m_nom_section = "S1";
  s.m_nom_section_sollicitations = "S1_T";
  s.m_type_repere = type_repere_geometrique;
  s.m_les_efforts_etat_limite.ajouter(etat);
  gestion_sollicitations.zof_mod_les_sollicitations.ajouter(s);
  EXPECT_EQ(statut_d_arret([] { zof_justifier_sollicitations_ba("S1", "T", true, false); }), 1);
  EXPECT_THAT(console(), HasSubstr("Justification impossible - EXPLOITATION_SERVICE-ELS_CAR: Non defini pour "
                                   "un des materiaux\n"));
}

TEST_F(Tableaux, UnTitreDeCasEstCoupeA300) {
  lire("CONT FUT " + rectangle + "FIN_CONT");
  deformation plan;
  const std::string long_titre = std::string(300, 'x') + "fin";
  EXPECT_TRUE(zof_solliciter_section(cadre(), long_titre, {0.6, 0, 0}, true, plan));
  const std::string note = html();
  EXPECT_THAT(note, HasSubstr("Efforts : " + std::string(300, 'x') + "<"));
  EXPECT_THAT(note, HasSubstr("R&#233;sultat : Equilibre sous : " + long_titre + "</b>"));
}

// ---- Load cases on an interaction diagram

/// 0.30 x 0.50 within 15 MPa on both sides: N up to 2.25, My up to 0.1875; a tendon of 10 mm2 that bears
/// nothing.
class Diagrammes : public Tableaux {
 protected:
  Diagrammes() {
    lire("CONT FUT " + rectangle +
         "PREC C1 MATE TORON AIRE 10. POIN NUME 11 Y 0.1D0 Z -0.2D0 FIN_ FIN_POIN FIN_PREC\nFIN_CONT");
    constexpr int beton = 1;
    EXPECT_EQ(qb7_fixer_bornes_loi(beton, etat_limite, -5e-4, 5e-4), ier_2{});
    zof_desactiver_cables_section("S1");
    gestion_justifications_reinitialiser();
  }
  ~Diagrammes() override { gestion_justifications_reinitialiser(); }

  static zof_effort effort(const efforts& f) {
    zof_effort e;
    e.set_efforts(f);
    return e;
  }
  /// Writes the diagram in the notes of this machine.
  void afficher(const zof_cas_interactions& cas) {
    const systeme_en_place ici(machine);
    zof_afficher_interactions(true, cadre(), &cas);
  }
  /// The rows E1, E2... of the table of cases, without their labels.
  static std::vector<std::vector<double>> legende(const std::string& note) {
    std::vector<std::vector<double>> resultat;
    std::istringstream flux(note);
    for (std::string ligne; std::getline(flux, ligne);) {
      if (!ligne.starts_with("E" + std::to_string(resultat.size() + 1) + " ")) continue;
      std::istringstream cellules(ligne.substr(ligne.find(' ')));
      resultat.emplace_back();
      for (double valeur = 0; cellules >> valeur;) resultat.back().push_back(valeur);
    }
    return resultat;
  }
  const std::string& dessin(int numero = 1) {
    return machine
        .fichiers["S1_Diagramme_N_My_EXPLOITATION_SERVICE_ELS_CAR_MZ_0_" + std::to_string(numero) + ".svg"];
  }
};

// Each case of the first list with each of the second: a cross of two red lines and a label for each, and its
// row. The curve is the rhombus |N| / 2.25 + |My| / 0.1875 = 1.
TEST_F(Diagrammes, ChaquePaireDeCasEstUnPoint) {
  const std::array premiers = {effort({0.4, 0.04, 0.02}), effort({1.1, -0.04, 0})};
  const std::array seconds = {effort({0.1, 0.02, 0}), effort({-0.4, 0.04, 0}), effort({1.9, 0.15, 0})};
  const std::array tensions = {1000.0};
  const std::array zones = {zone_qb7("C1")};
  afficher({premiers, seconds, tensions, zones, true});
  const std::string note = txt();
  EXPECT_THAT(note, HasSubstr("S1- Diagramme:N/My-EXPLOITATION_SERVICE-ELS_CAR-MZ=0.0000\n"));
  EXPECT_THAT(note, HasSubstr("  - Attention : en repere non brut le diagramme est atypique.\n"
                              "  - Attention : Les efforts du diagramme sont donnes - precontrainte "
                              "isostatique incluse.\n"));
  EXPECT_THAT(note, HasSubstr(l1("Légende diagramme\n"_l1)));
  EXPECT_THAT(
      note, testing::ContainsRegex("Label +My\\(Renseigne\\) +N\\(Renseigne\\) +My\\(P iso\\) +N\\(P iso\\) "
                                   "+Norme_effort +Norme_distance +Rapport"));
  const auto lignes_lues = legende(note);
  const std::vector<std::array<double, 2>> attendus = {{0.06, 0.5},  {0.08, 0}, {0.19, 2.3},
                                                       {-0.02, 1.2}, {0, 0.7},  {0.11, 3}};
  ASSERT_EQ(lignes_lues.size(), attendus.size());
  for (std::size_t i = 0; i < attendus.size(); ++i) {
    SCOPED_TRACE(i);
    const std::vector<double>& l = lignes_lues[i];
    ASSERT_EQ(l.size(), 7U);
    EXPECT_NEAR(l[0], attendus[i][0], 1e-9);
    EXPECT_NEAR(l[1], attendus[i][1], 1e-9);
    // 0.01 MN of the tendon at (0.1, -0.2): My = -0.002
    EXPECT_NEAR(l[2], -0.002, 1e-9);
    EXPECT_NEAR(l[3], 0.01, 1e-9);
    EXPECT_NEAR(l[4], std::hypot(l[0], l[1]), 1e-4 * l[4]);
    EXPECT_NEAR(l[6], (l[4] - l[5]) / l[4], 1e-4);
  }
  // (0.08, 0): 0.1071 from the side, and the next point of the curve stands less than 0.05 along it
  EXPECT_GE(lignes_lues[1][5], 0.106);
  EXPECT_LE(lignes_lues[1][5], std::hypot(0.1075, 0.05));
  EXPECT_LT(note.find(l1("Légende diagramme"_l1)), note.find("Tableau des valeurs"));

  const std::string& svg = dessin();
  EXPECT_EQ(nombre_de(svg, "<line "),
            nombre_de(svg, "stroke:rgb(255,0,0)") + nombre_de(svg, "stroke:rgb(0,0,0)") +
                nombre_de(svg, "stroke:rgb(192,192,192)") + nombre_de(svg, "stroke:rgb(0,0,255)"));
  EXPECT_EQ(nombre_de(svg, "stroke:rgb(255,0,0)"), 12U);
  // A cross is a twenty-fifth of the curve in width and height: pixels of the path against those of a line.
  std::istringstream chemin(svg.substr(svg.find("<path d='M") + 9));
  std::vector<double> xs;
  std::vector<double> ys;
  char lettre = 0;
  for (double x = 0, y = 0; chemin >> lettre && lettre != '\'' && chemin >> x >> y;) {
    xs.push_back(x);
    ys.push_back(y);
  }
  ASSERT_EQ(xs.size(), 101U);
  const std::string ligne = svg.substr(svg.rfind("<line ", svg.find("stroke:rgb(255,0,0)")));
  const auto [gauche, droite] = std::ranges::minmax(xs);
  const auto [haut, bas] = std::ranges::minmax(ys);
  EXPECT_NEAR(nombre_apres(ligne, "x2='") - nombre_apres(ligne, "x1='"), (droite - gauche) / 25, 0.01);
  EXPECT_NEAR(nombre_apres(ligne, "y1='") - nombre_apres(ligne, "y2='"), (bas - haut) / 25, 0.01);
  // Each label with its white rim, after the last cross.
  const std::string noms = svg.substr(svg.rfind("<line "));
  for (int i = 1; i <= 6; ++i) EXPECT_EQ(nombre_de(noms, ">E" + std::to_string(i) + "</text>"), 2U) << i;
  EXPECT_EQ(nombre_de(noms, "stroke=\"rgb(255,255,255)\" stroke-width='3'"), 6U);
  EXPECT_TRUE(svg.ends_with("</svg>\n"));
  EXPECT_THAT(html(), HasSubstr("MZ_0_1.svg"));
}

// Without a second list its own cases are the points; without tendons nothing is said of prestress.
TEST_F(Diagrammes, UneSeuleListe) {
  const std::array cas = {effort({0.5, 0.05, 0}), effort({0, 0, 0.1})};
  gestion_justifications.mod_glo_sollicitation_en_repere_brut = true;
  afficher({.opt_les_efforts_1 = cas});
  const std::string note = txt();
  EXPECT_THAT(note, Not(HasSubstr("Attention")));
  const auto lignes_lues = legende(note);
  ASSERT_EQ(lignes_lues.size(), 2U);
  EXPECT_EQ(lignes_lues[0][2], 0);
  EXPECT_EQ(lignes_lues[0][3], 0);
  // No force at all: the norm is a millionth, and the ratio says that the curve is far.
  EXPECT_EQ(lignes_lues[1][4], 1e-6);
  EXPECT_NEAR(lignes_lues[1][6], 1 - lignes_lues[1][5] * 1e6, 1e-4 * std::abs(lignes_lues[1][6]));
}

TEST_F(Diagrammes, SansLaPrecontrainteIsostatique) {
  const std::array cas = {effort({0.5, 0.05, 0})};
  gestion_justifications.mod_glo_sollicitation_en_repere_brut = true;
  afficher({.opt_les_efforts_1 = cas, .opt_prec_iso_incluse = false});
  EXPECT_THAT(txt(), HasSubstr("  - Attention : Les efforts du diagramme sont donnes sans la precontrainte "
                               "isostatique.\n"));
}

// A case on a point of the curve has no distance to it.
TEST_F(Diagrammes, UnCasSurLaCourbe) {
  std::array<point_xy, 100> courbe;
  ASSERT_EQ(qb7_diagramme_interaction(true, 1, etat_limite, {{{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}}, 0, courbe),
            ier_2{});
  const std::array cas = {effort({courbe[37].y, courbe[37].x, 0})};
  afficher({.opt_les_efforts_1 = cas});
  const auto lignes_lues = legende(txt());
  ASSERT_EQ(lignes_lues.size(), 1U);
  EXPECT_EQ(lignes_lues[0][5], 0);
  EXPECT_EQ(lignes_lues[0][6], 1);
}

// The force of the tendon seen from a frame at (0.3, 0.1), turned by 90 degrees: there it acts at (-0.3,
// 0.2).
TEST_F(Diagrammes, LaPrecontrainteIsostatiqueDansUnRepereTourne) {
  ASSERT_EQ(qb7_fixer_repere_sollicitation(1, 0.3, 0.1, std::numbers::pi / 2), ier_2{});
  const std::array cas = {effort({1, 0, 0})};
  const std::array tensions = {1000.0, 500.0};
  const std::array zones = {zone_qb7("C1"), zone_qb7("C1")};
  struct attente {
    const char* composante;
    double x, y;
  };
  // y' = z - 0.1 = -0.3, z' = -(y - 0.3) = 0.2: My = 0.015 * 0.2, Mz = 0.015 * 0.3
  for (const attente& a :
       {attente{"MZ", 0.003, 0.015}, attente{"MY", 0.0045, 0.015}, attente{"N", 0.003, 0.0045}}) {
    gestion_justifications.mod_glo_composante_fixee = std::string_view(a.composante);
    afficher({cas, {}, tensions, zones, true});
    const auto lignes_lues = legende(txt());
    ASSERT_EQ(lignes_lues.size(), 1U) << a.composante;
    EXPECT_NEAR(lignes_lues[0][2], a.x, 1e-9) << a.composante;
    EXPECT_NEAR(lignes_lues[0][3], a.y, 1e-9) << a.composante;
  }
}

// Lists that do not match are an internal fault.
TEST_F(Diagrammes, UneTensionSansCable) {
  const std::array tensions = {1000.0};
  EXPECT_EQ(statut_d_arret([&] { afficher({.opt_les_tensions = tensions}); }), 1);
}

}  // namespace
