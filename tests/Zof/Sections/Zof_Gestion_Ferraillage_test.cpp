// The blocks OPTI, LITS and SELE: words, checks, messages, what they leave in the zone.

#include <gmock/gmock.h>

#include <numbers>
#include <string>

#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Classe_Selection_Acier.hpp"
#include "modele.hpp"

using namespace socle;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string ferr(const std::string& corps) { return rectangle("FERR F1 MATE HA " + corps); }
std::string opti(const std::string& corps) { return ferr("OPTI " + corps); }
std::string lits(const std::string& corps) { return ferr("DIAM 20.D0 LITS INFE " + corps); }

const zof_ferraillage& zone(const std::string& nom = "F1") {
  return dynamic_cast<const zof_ferraillage&>(*zof_get_pt_nom_zone_section("S1", nom));
}

std::string repetition(const std::string& mot) {
  return "       - Repetition interdite du mot clef:" + mot + "\n";
}

const std::string exclusifs = "les Mots clefs  DIAM et OPTI sont exclusifs entre eux";
const std::string lit_et_points = "Il est interdit de definir un lit avec une forme typee";
const std::string min_sup_max = " Valeur de l'espacement min superieure a l espacement max";
const std::string sans_bornes = " FIN_OPTI FIN_FERR";

}  // namespace

TEST(Options, SeulesLesBarresLesPrennent) {
  verifier_refus(
      {{section("CONT C1 OPTI"), " Mot clef  OPTION_FERRAILLAGE_AUTOMATIQUE incorrect dans ce contexte"},
       {rectangle("EVID E1 OPTI"), " Mot clef  OPTION_FERRAILLAGE_AUTOMATIQUE incorrect dans ce contexte"},
       {section("CONT C1 LITS"), " Mot clef  LITS incorrect dans ce contexte"},
       {opti("ABCD"), " Mot clef  ABCD incorrect dans ce contexte"},
       {opti("NOMB"), " Mot clef  NOMB incorrect dans ce contexte"},
       {lits("DISP"), " Mot clef  DISP incorrect dans ce contexte"},
       {ferr("LITS LATE"), " Mot clef  LATE incorrect dans ce contexte"}});
}

TEST(Options, Dispositions) {
  const std::vector<std::pair<std::string, int>> mots{
      {"SUPE STRI", 2}, {"SUPERIEUR PAROIS", 3}, {"INFE STRI", 4}, {"INFE PARO", 5},
      {"LATE STRI", 6}, {"LATE PARO", 7},        {"PERI STRI", 8}, {"PERI PARO", 9}};
  for (const auto& [disp, type] : mots) {
    modele m(opti("DISP " + disp + " LITS 1" + sans_bornes));
    ASSERT_TRUE(m.lire()) << m.console();
    EXPECT_EQ(zone().m_type_ferraillage, type);
  }
  verifier_refus({{opti("DISP SUPE LARG"), " Mot clef  SUPELARG incorrect dans ce contexte"},
                  {opti("DISP HAUT STRI"), " Mot clef  HAUTSTRI incorrect dans ce contexte"},
                  {opti("LITS 1 FIN_OPTI"), " La disposition des aciers n est pas renseignee"}});
  EXPECT_EQ(messages(opti("DISP SUPE STRI DISP")), repetition("DISP"));
}

TEST(Options, ValeursRefusees) {
  const std::string enro = " Valeur de l'enrobage < 1mm";
  const std::string dist = l1(" Valeur de la distance entre lits négative ou nulle"_l1);
  const std::string nb = l1(" Valeur du nombre de lits maxi négative ou nulle"_l1);
  const std::string grou = l1(" nombre de barres par groupe négatif ou nul"_l1);
  const std::string e_ma = l1(" Valeur de l'espacement max négative ou nulle"_l1);
  const std::string e_mi = l1(" Valeur de l'espacement min négative ou nulle"_l1);
  const std::string devi = l1(" Valeur de la déviation angulaire horizontale  max incorrecte <=0 ou >=90"_l1);
  verifier_refus({{opti("ENRO 0.00099D0"), enro},
                  {opti("ENRO -1."), enro},
                  {opti("DIST 0."), dist},
                  {opti("DIST -0.1"), dist},
                  {opti("LITS 0"), nb},
                  {opti("LITS -1"), nb},
                  {opti("GROU 0"), grou},
                  {opti("E_MA 0."), e_ma},
                  {opti("E_MI 0."), e_mi},
                  {opti("E_MI 0.2 E_MA 0.1"), min_sup_max},
                  {opti("E_MA 0.1 E_MI 0.2"), min_sup_max},
                  {opti("E_MI 0.2 E_MA 0."), e_ma},
                  {opti("DEVI 0."), devi},
                  {opti("DEVI 90."), devi},
                  {opti("DEVI -10."), devi}});
  verifier_refus({{lits("ENRO 0.00099D0"), enro},
                  {lits("DIST 0."), dist},
                  {lits("GROU 0"), grou},
                  {lits("E_MA 0."), e_ma},
                  {lits("E_MI 0."), e_mi},
                  {lits("E_MI 0.2 E_MA 0.1"), min_sup_max},
                  {lits("NOMB 0"), "nombre negatif ou nul"},
                  {lits("NOMB -3"), "nombre negatif ou nul"}});
}

TEST(Options, RepetitionsRefusees) {
  const std::string groupe = l1(" Répétition du mot clef GROUPE"_l1);
  const std::string mot = "Repetition interdite du mot clef:";
  verifier_refus({{opti("ENRO 0.03 ENRO"), mot + "ENRO"},
                  {opti("DIST 0.03 DIST"), mot + "DIST"},
                  {opti("LITS 2 LITS"), mot + "LITS"},
                  {opti("E_MA 0.1 E_MA"), mot + "E_MA"},
                  {opti("E_MI 0.1 E_MI"), mot + "E_MI"},
                  {opti("DEVI 30. DEVI"), mot + "DEVI"},
                  {opti("GROU 2 GROU"), groupe},
                  {lits("GROU 2 GROU"), groupe},
                  {lits("NOMB 2 NOMB"), mot + "NOMB"},
                  {lits("ENRO 0.03 ENRO"), mot + "ENRO"}});
  EXPECT_EQ(messages(opti("SELE P_10 FI SELE")), repetition("SELE"));
  EXPECT_EQ(messages(opti("DISP SUPE STRI LITS 1 FIN_OPTI OPTI")), repetition("OPTI"));
  EXPECT_EQ(messages(lits("NOMB 2 FIN_LITS LITS")), repetition("LITS"));
}

TEST(Options, FinDuBloc) {
  const std::string groupe =
      " l option GROUPE ne peut etre introduite que pour les aciers sup et inf stricts";
  const std::string sans_nombre = " Nombre de lits non renseigne";
  const std::string sans_distance = " Distance entre lits non renseignee";
  for (const char* const disp :
       {"SUPE PARO", "INFE PARO", "LATE STRI", "LATE PARO", "PERI STRI", "PERI PARO"})
    verifier_refus({{opti(std::string("LITS 1 GROU 2 DISP ") + disp + " FIN_OPTI"), groupe}});
  verifier_refus({{opti("DISP SUPE STRI DIST 0.05 FIN_OPTI"), sans_nombre},
                  {opti("DISP SUPE STRI LITS 2 FIN_OPTI"), sans_distance}});
  EXPECT_EQ(messages(opti("DISP LATE STRI GROU 2 DIST 0.05 FIN_OPTI")),
            "     - " + groupe + "\n     - " + sans_nombre + "\n");
  for (const char* const disp : {"SUPE STRI", "INFE STRI"}) {
    modele m(opti(std::string("LITS 1 GROU 2 DISP ") + disp + sans_bornes));
    EXPECT_TRUE(m.lire()) << m.console();
    EXPECT_EQ(zone().m_cardinalite_groupe, 2);
  }
}

TEST(Options, UnAutreMotDeFinArreteLaCourse) {
  for (const std::string& donnees : {opti("DISP SUPE STRI LITS 1 FIN_LITS"), lits("NOMB 2 FIN_OPTI")}) {
    modele m(donnees);
    EXPECT_FALSE(m.lire());
    EXPECT_EQ(m.statut, 1);
    EXPECT_THAT(m.console(), HasSubstr("Incorrect dans ce contexte - Attendu : FIN_"));
  }
}

TEST(Options, ValeursLues) {
  modele m(
      opti("DISP INFE STRI ENRO 0.04D0 DIST 0.06D0 LITS 2 GROU 3 E_MI 0.1D0 E_MA 0.15D0 DEVI 30.D0 "
           "SELE P_6 P_8 P_10 P_12 P_14 P_16 P_20 P_25 P_32 FIN_SELE" +
           sans_bornes));
  ASSERT_TRUE(m.lire()) << m.console();
  const zof_ferraillage& f = zone();
  EXPECT_EQ(f.m_enrobage, 0.04);
  EXPECT_EQ(f.m_distance_lits, 0.06);
  EXPECT_EQ(f.m_nb_lits, 2);
  EXPECT_EQ(f.m_cardinalite_groupe, 3);
  EXPECT_EQ(f.m_ecartement_aciers_min, 0.1);
  EXPECT_EQ(f.m_ecartement_aciers_max, 0.15);
  EXPECT_DOUBLE_EQ(f.m_angle_horizontal_max, std::numbers::pi / 6);
  std::vector<int> diametres;
  for (const auto& s : uef_parcours<zof_selection_acier>(f.m_liste_selection_aciers))
    diametres.push_back(s.m_diametre_mm);
  EXPECT_THAT(diametres, ElementsAre(6, 8, 10, 12, 14, 16, 20, 25, 32));
  EXPECT_EQ(f.m_diametre_zone, 0.032);  // the last of the selection
  // Three bars of 32 a point; pi in single precision.
  EXPECT_DOUBLE_EQ(f.m_matiere_zone_qb7, 3 * 3.1415927410125732 * 0.032 * 0.032 / 4);
}

TEST(Options, ValeursParDefaut) {
  modele m(opti("DISP SUPE STRI LITS 1" + sans_bornes));
  ASSERT_TRUE(m.lire()) << m.console();
  const zof_ferraillage& f = zone();
  EXPECT_EQ(f.m_enrobage, 0.029999999329447746);
  EXPECT_EQ(f.m_ecartement_aciers_max, 0.20000000298023224);
  EXPECT_EQ(f.m_ecartement_aciers_min, 0.05000000074505806);
  EXPECT_EQ(f.m_angle_horizontal_max, 0.7853981633974483);
  EXPECT_EQ(f.m_cardinalite_groupe, 1);
  EXPECT_EQ(f.m_diametre_zone, 0.025);  // P_20 and P_25
  EXPECT_EQ(f.m_liste_selection_aciers.nombre(), 2);
}

TEST(Options, LimitesAcceptees) {
  modele m(opti("DISP SUPE STRI LITS 1 ENRO 0.001 E_MI 0.1 E_MA 0.1 DEVI 89.9" + sans_bornes));
  EXPECT_TRUE(m.lire()) << m.console();
}

TEST(Selection, Labels) {
  verifier_refus({{opti("SELE P_18"), " Mot clef  P_18 incorrect dans ce contexte"},
                  {opti("SELE Q_20"), " Mot clef  Q_20 incorrect dans ce contexte"},
                  {opti("SELE FI"), " Aucun acier n est defini"},
                  {opti("SELE FIN_"), " Aucun acier n est defini"},
                  {opti("SELE FIN_SELE"), " Aucun acier n est defini"}});
}

TEST(Selection, UnMotCommencantParFiNEstPasLaFin) {
  verifier_refus({{opti("SELE P_10 FIL"), " Mot clef  FIL  incorrect dans ce contexte"}});
}

TEST(Barres, DiametreEtOptionsSExcluent) {
  verifier_refus({{ferr("DIAM 20. OPTI"), exclusifs},
                  {opti("DISP SUPE STRI LITS 1 FIN_OPTI DIAM"), exclusifs},
                  {ferr("DIAM 20. POIN NUME 1 Y 0. Z 0. FIN_ FIN_POIN OPTI"), exclusifs}});
}

TEST(Barres, PointsLitsEtOptionsSExcluent) {
  const std::string points = "POIN NUME 1 Y 0. Z 0. FIN_ FIN_POIN ";
  verifier_refus({{ferr(points + "OPTI"), lit_et_points},
                  {ferr(points + "LITS"), lit_et_points},
                  {opti("DISP SUPE STRI LITS 1 FIN_OPTI POIN"), lit_et_points},
                  {opti("DISP SUPE STRI LITS 1 FIN_OPTI LITS"), lit_et_points},
                  {ferr("LITS SUPE NOMB 2 FIN_LITS POIN"), lit_et_points},
                  {ferr("LITS SUPE NOMB 2 FIN_LITS OPTI"), lit_et_points}});
}

TEST(Barres, FinDeLaZone) {
  const std::string diametre = l1(" Acier :  le diametre des aciers doit être defini"_l1);
  verifier_refus(
      {{ferr("OPTI DISP SUPE STRI FIN_OPTI FIN_FERR"), " Acier automatique:  dimensionnement obligatoire"},
       {ferr("DIME NON OPTI DISP SUPE STRI FIN_OPTI FIN_FERR"),
        " Acier automatique:  dimensionnement obligatoire"},
       {ferr("LITS INFE NOMB 2 FIN_LITS FIN_FERR"), diametre},
       {ferr("DIAM 18. LITS INFE NOMB 2 FIN_LITS FIN_FERR"), l1("Diametre des aciers non homologué"_l1)},
       {ferr("DIAM 1.D30 LITS INFE NOMB 2 FIN_LITS FIN_FERR"), l1("Diametre des aciers non homologué"_l1)},
       {ferr("DIAM 0.3 LITS INFE NOMB 2 FIN_LITS FIN_FERR"), l1("Diametre des aciers non homologué"_l1)},
       {ferr("DIAM 20. LITS INFE FIN_LITS"), "NOMB: non renseigne(e)"},
       {rectangle("FERR F1 OPTI DISP SUPE STRI LITS 1 FIN_OPTI FIN_FERR"),
        " Acier : un materiau doit etre defini"}});
  for (const char* const corps :
       {"DIME OUI OPTI DISP SUPE STRI FIN_OPTI", "OPTI DISP SUPE STRI FIN_OPTI DIME OUI",
        "DIME NON OPTI DISP SUPE STRI LITS 1 FIN_OPTI", "DIAM 20.4 LITS INFE NOMB 2 FIN_LITS",
        "LITS INFE NOMB 2 FIN_LITS DIAM 6."}) {
    modele m(ferr(std::string(corps) + " FIN_FERR"));
    EXPECT_TRUE(m.lire()) << corps << m.console();
  }
}

// 20.4 mm is laid as the 20 of the catalogue.
TEST(Barres, LeDiametreDUnLitEstCeluiDuCatalogue) {
  modele m(ferr("DIAM 20.4 LITS INFE NOMB 2 FIN_LITS FIN_FERR"));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_EQ(zone().m_diametre_zone, 0.02);
}
