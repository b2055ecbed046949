// Ducts and tendons in whole runs: what the note says of them, the tendons of a section by the numbers of
// their points, the stress that they may take while they are tensioned.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <set>
#include <string>

#include "Executer.hpp"
#include "Modele.hpp"
#include "QB7_Sections.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Utilit.hpp"

using namespace socle::litteraux;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string materiaux = R"(MATE BETON C40 TITR 'Beton C40/50' FCK 40. PREC OUI FIN_MATE
MATE PREC T15 TITR 'Torons' FP01 1600. FPK 1860. FIN_MATE
)";

// Rectangle 1.00 x 0.50.
std::string poutre(const std::string& zones, const std::string& tete = "") {
  return "SECT PONT TITR 'Poutre' " + tete + "\nCONT AME MATE C40 RECT HAUT 1. LARG 0.5D0 FIN_RECT\n" +
         zones + "\nFIN_CONT FIN_SECT\n";
}
const std::string tendons =
    "PREC P1 TITR 'Torons' MATE T15 AIRE 1500. POIN NUME 5 Y 0. Z -0.3D0 FIN_POIN FIN_POIN FIN_PREC\n";
const std::string gaines =
    "GAIN G1 TITR 'Gaines du bas' DIAM 80. POIN NUME 1 Y 0. Z -0.3D0 FIN_POIN FIN_POIN\n" + tendons +
    "FIN_GAIN\n";

course lancer(const std::string& commandes) { return executer("ZOF\n" + materiaux + commandes + "FIN_\n"); }

/// The three groups of properties in the note, and what stands behind them.
struct proprietes {
  std::string brutes, nettes, homogenes;
};
proprietes lire_proprietes(const std::string& note) {
  const auto brutes = note.find(std::string("Caractéristiques brutes :"_l1));
  const auto nettes = note.find(std::string("Caractéristiques nettes :"_l1));
  const auto homogenes = note.find(std::string("Caractéristiques homogeneisees (n=15) :"_l1));
  if (brutes == std::string::npos || nettes == std::string::npos || homogenes == std::string::npos) return {};
  return {note.substr(brutes, nettes - brutes), note.substr(nettes, homogenes - nettes),
          note.substr(homogenes)};
}
void verifier_groupe(const std::string& groupe, const std::string& aire, const std::string& z,
                     const std::string& inertie_y) {
  EXPECT_THAT(groupe, HasSubstr("Aire      (m2) : " + aire));
  EXPECT_THAT(groupe, HasSubstr("y cdg      (m) : 0.0000"));
  EXPECT_THAT(groupe, HasSubstr("z cdg      (m) : " + z));
  EXPECT_THAT(groupe, HasSubstr("Inertie y (m4) : " + inertie_y));
}

/// The model of these sections, to be asked; the limit states and the engine stand with it.
std::unique_ptr<modele> lire(const std::string& commandes) {
  auto m = std::make_unique<modele>(materiaux + commandes + "FIN_\n");
  EXPECT_FALSE(m->erco()) << m->console();
  return m;
}

struct parametres {
  double matiere = -1, encombrement = -1;
  int mere = 0;
};
parametres lire_parametres(int zone) {
  parametres p;
  EXPECT_FALSE(qb7_lire_param_zone(1, zone, &p.matiere, &p.encombrement));
  EXPECT_FALSE(qb7_lire_num_zone_mere(1, zone, p.mere));
  return p;
}

}  // namespace

// Closed forms. A duct is out of all groups: 0.5 - pi 0.08^2 / 4 = 0.494973, z = 0.00502655 x 0.3 / 0.494973.
// Its tendon takes nothing out of it; transformed, 15 x 0.0015 m2 come at z = -0.3.
TEST(PrecontrainteEnGaine, LaNoteDonneProprietesEtZones) {
  const course c = lancer(poutre(gaines) + "EDIT SECT PONT\n");
  EXPECT_EQ(c.statut, 0) << c.console;
  const proprietes p = lire_proprietes(c.txt);
  verifier_groupe(p.brutes, "0.49497", "0.30466E-02", "0.41210E-01");
  verifier_groupe(p.nettes, "0.49497", "0.30466E-02", "0.41210E-01");
  verifier_groupe(p.homogenes, "0.51747", "-0.10130E-01", "0.43186E-01");
  EXPECT_THAT(c.txt, HasSubstr("Gaine : G1 - Gaines du bas"));
  EXPECT_THAT(c.txt, HasSubstr("Diametre (mm) : 80.000"));
  EXPECT_THAT(c.txt, HasSubstr("Precontrainte : P1 - Torons"));
  EXPECT_THAT(c.txt, HasSubstr("Materiau : T15"));
  EXPECT_THAT(c.txt, HasSubstr("Aire (mm2) : 1500.0"));
}

// In the concrete the tendon displaces its area: net 0.5 - 0.0015, transformed 14 times it more than gross.
TEST(PrecontrainteDansLeBeton, LaNoteDonneProprietesEtZones) {
  const course c = lancer(poutre(tendons) + "EDIT SECT PONT\n");
  EXPECT_EQ(c.statut, 0) << c.console;
  const proprietes p = lire_proprietes(c.txt);
  verifier_groupe(p.brutes, "0.50000", "0.0000", "0.41667E-01");
  verifier_groupe(p.nettes, "0.49850", "0.90271E-03", "0.41531E-01");
  verifier_groupe(p.homogenes, "0.52100", "-0.12092E-01", "0.43480E-01");
}

// A section of tendons alone has no properties, and the note says nothing of them.
TEST(PrecontrainteSeule, LaNoteNAPasDeProprietes) {
  const course c = lancer("SECT PONT TITR 'Torons seuls' " + tendons + "FIN_SECT\nEDIT SECT PONT\n");
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, Not(HasSubstr("(m4)")));
  EXPECT_THAT(c.txt, HasSubstr("Precontrainte : P1 - Torons"));
}

// Each tendon is an engine zone of its own, by the number of its point; other numbers and groups are not
// there.
TEST(Cables, ParLeNumeroDeLeurPoint) {
  const auto m = lire(poutre(
      "PREC P1 MATE T15 AIRE 150. POIN DROI NUME 11 NOMB 4 Y_OR -0.15D0 Z_OR -0.4D0 Y_EX 0.15D0 Z_EX -0.4D0 "
      "FIN_ FIN_POIN FIN_PREC PREC P2 MATE T15 AIRE 300. POIN NUME 11 Y 0. Z 0.4D0 FIN_ FIN_POIN FIN_PREC"));
  EXPECT_TRUE(zof_est_section_precontrainte("PONT"));
  EXPECT_TRUE(zof_existe_precontrainte_section("PONT", "P1"));
  EXPECT_FALSE(zof_existe_precontrainte_section("PONT", "P3"));
  EXPECT_FALSE(zof_existe_precontrainte_section("PONT", "AME"));
  std::set<int> zones;
  for (const int point : {11, 12, 13, 14}) {
    ASSERT_TRUE(zof_existe_cable_section("PONT", "P1", point));
    const int zone = zof_get_numero_qb7_cable_section("PONT", "P1", point);
    zones.insert(zone);
    EXPECT_NEAR(lire_parametres(zone).matiere, 150e-6, 1e-18);
    EXPECT_NEAR(lire_parametres(zone).encombrement, 150e-6, 1e-18);
    EXPECT_EQ(lire_parametres(zone).mere, 1);
  }
  zones.insert(zof_get_numero_qb7_cable_section("PONT", "P2", 11));
  EXPECT_EQ(zones.size(), 5U);
  EXPECT_FALSE(zof_existe_cable_section("PONT", "P1", 15));
  EXPECT_FALSE(zof_existe_cable_section("PONT", "P2", 12));
  EXPECT_FALSE(zof_existe_cable_section("PONT", "P3", 11));
}

// Half a group in a symmetric section: the images are tendons of their own, numbered by the section.
TEST(Cables, LesImagesParSymetrieSontDesCables) {
  const auto m = lire(poutre(
      "PREC P1 MATE T15 AIRE 150. PART POIN NUME 1 Y 0.1D0 Z -0.4D0 FIN_ NUME 2 Y 0. Z -0.4D0 FIN_ FIN_POIN "
      "FIN_PREC",
      "SYME Z"));
  EXPECT_TRUE(zof_existe_cable_section("PONT", "P1", 1));
  EXPECT_TRUE(zof_existe_cable_section("PONT", "P1", 2));
  EXPECT_TRUE(zof_existe_cable_section("PONT", "P1", 40001));
  EXPECT_FALSE(zof_existe_cable_section("PONT", "P1", 40002));
  EXPECT_NE(zof_get_numero_qb7_cable_section("PONT", "P1", 1),
            zof_get_numero_qb7_cable_section("PONT", "P1", 40001));
}

// Half the ducts and half the tendons in them: an image of a tendon stands in the image of its duct.
TEST(Cables, LesGainesSontSymetriquesAvecLeursCables) {
  const auto m = lire(
      poutre("GAIN G1 DIAM 2. PART POIN NUME 1 Y 0.1D0 Z -0.4D0 FIN_ FIN_POIN\n"
             "PREC P1 MATE T15 AIRE 2. PART POIN NUME 7 Y 0.1D0 Z -0.4D0 FIN_ FIN_POIN FIN_PREC FIN_GAIN",
             "SYME Z"));
  EXPECT_TRUE(zof_existe_cable_section("PONT", "P1", 7));
  int images = 0;
  for (const int point : {40001, 40002})
    if (zof_existe_cable_section("PONT", "P1", point)) ++images;
  EXPECT_EQ(images, 1);
  EXPECT_EQ(lire_parametres(zof_get_numero_qb7_cable_section("PONT", "P1", 7)).encombrement, 0);
}

// A tendon in a void displaces nothing.
TEST(Cables, DansUnEvidementIlsNOtentRien) {
  const auto m =
      lire(poutre("EVID E1 RECT HAUT 0.6D0 LARG 0.3D0 FIN_\n"
                  "PREC P1 MATE T15 AIRE 1500. POIN NUME 5 Y 0. Z -0.2D0 FIN_ FIN_POIN FIN_PREC "
                  "FIN_EVID"));
  const parametres p = lire_parametres(zof_get_numero_qb7_cable_section("PONT", "P1", 5));
  EXPECT_NEAR(p.matiere, 1500e-6, 1e-18);
  EXPECT_EQ(p.encombrement, 0);
}

// min(0.8 fpk, 0.9 fp0.1k): the one, then the other.
TEST(Cables, ContrainteLimiteALaMiseEnTension) {
  const auto m = lire("MATE PREC T16 TITR 't' FP01 1600. FPK 1700. FIN_MATE\n" +
                      poutre(tendons + "PREC P2 MATE T16 AIRE 1500. POIN NUME 6 Y 0. Z 0.3D0 FIN_ FIN_POIN "
                                       "FIN_PREC"));
  const auto limite = zof_contrainte_limite_precontrainte_section("PONT", "P1");
  ASSERT_TRUE(limite.has_value());
  EXPECT_NEAR(*limite, 0.8999999761581421 * 1600, 1e-12);
  const auto autre = zof_contrainte_limite_precontrainte_section("PONT", "P2");
  ASSERT_TRUE(autre.has_value());
  EXPECT_NEAR(*autre, 0.800000011920929 * 1700, 1e-12);
  EXPECT_FALSE(zof_contrainte_limite_precontrainte_section("PONT", "AME").has_value());
  EXPECT_FALSE(zof_contrainte_limite_precontrainte_section("PONT", "P3").has_value());
}

// Strain planes of a section with tendons need their history, which JUST has not.
TEST(JustificationPrecontrainte, EstRefusee) {
  const course c = lancer(poutre(tendons) +
                          "SOLL T SECT PONT TITR 't' REPE GEOM PREC TOTA POST ETAT ELS CARA SITU SERV A_PO\n"
                          "EFFO G MY 0.5 FIN_EFFO EFFO P N 1. FIN_EFFO FIN_ETAT FIN_SOLL\n"
                          "JUST PONT SOLL T\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.console, HasSubstr("     -  Mot clef  SOLL incorrect dans ce contexte\n"));
}
