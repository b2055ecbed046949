// The typed forms in the data file: every refusal, and what may just be accepted.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "modele.hpp"

using namespace socle;

namespace {

struct cote {
  std::string mot;
  std::string message;
};

/// Each dimension at 0 and below is refused with its message, and given twice under its keyword.
void verifier_cotes(const std::string& forme, const std::vector<cote>& cotes) {
  for (const cote& c : cotes) {
    const std::string debut = forme + " " + c.mot;
    verifier_refus({{contour(debut + " 0."), c.message},
                    {contour(debut + " -0.1"), c.message},
                    {contour(debut + " 0.1 " + c.mot), "Repetition interdite du mot clef:" + c.mot}});
  }
  verifier_refus({{contour(forme + " ZZZZ"), " Mot clef  ZZZZ incorrect dans ce contexte"}});
}

/// The messages of a form whose block is given; each message on its line.
void verifier(const std::string& bloc, const std::vector<std::string>& attendus) {
  std::string texte;
  for (const std::string& a : attendus) texte += "     - " + a + "\n";
  EXPECT_EQ(messages(contour(bloc)), texte) << bloc;
}

void verifier_acceptee(const std::string& bloc, std::size_t nombre_points) {
  modele m(contour(bloc));
  ASSERT_TRUE(m.lire()) << bloc << m.console();
  EXPECT_EQ(zof_get_pt_zone_section("S1", 1)->positions_points().size(), nombre_points) << bloc;
}

const std::string h_totale = "Attribut hauteur totale incorrecte : <=0";
const std::string l_totale = "Attribut largeur totale incorrecte : <=0";
const std::string l_ame = "Attribut largeur ame incorrecte : <=0";
const std::string h_joue = "Attribut hauteur joue incorrecte : <=0";
const std::string ame_trop_large = "Attribut largeur ame >= largeur totale";
const std::string joues_trop_larges = "Attribut largeur ame + 2*l_joue >= largeur totale";
const std::string joue_sans_hauteur = "Attribut largeur joue interdit si hauteur joue non renseignee";

}  // namespace

TEST(Formes, Rectangle) {
  verifier_cotes(
      "RECT", {{"HAUT", "Attribut hauteur incorrect : <=0"}, {"LARG", "Attribut largeur incorrect : <=0"}});
  verifier("RECT FIN_RECT", {"HAUT: non renseigne(e)", "LARG: non renseigne(e)"});
}

TEST(Formes, RectangleEvide) {
  verifier_cotes("REC_EVIDE", {{"HAUT", "Attribut hauteur incorrect : <=0"},
                               {"LARG", "Attribut largeur incorrect : <=0"},
                               {"EP_E", "Attribut epaisseur sup incorrect : <=0"},
                               {"E_SU", "Attribut epaisseur sup incorrect : <=0"},
                               {"EP_I", "Attribut epaisseur inf incorrect : <=0"},
                               {"E_IN", "Attribut epaisseur inf incorrect : <=0"},
                               {"EP_L", "Attribut epaisseur laterale incorrect : <=0"},
                               {"L_GO", "Attribut largeur gousset incorrect : <=0"},
                               {"H_GO", "Attribut hauteur gousset incorrect : <=0"}});
  verifier("REC_ FIN_", {"HAUT: non renseigne(e)", "LARG: non renseigne(e)", "EP_S: non renseigne(e)",
                         "EP_I: non renseigne(e)", "EP_L: non renseigne(e)"});
  // The thickness of the top is asked for by a name that no keyword has.
  verifier("REC_ EP_S", {" Mot clef  EP_S incorrect dans ce contexte"});
  verifier("REC_ E_EX", {" Mot clef  E_EX incorrect dans ce contexte"});
  verifier("REC_ E_SU 0.1 EP_E", {"Repetition interdite du mot clef:EP_E"});
  const std::string plein = "REC_ HAUT 1. LARG 1. EP_E 0.1 EP_I 0.1 EP_L 0.1 ";
  verifier(plein + "H_GO 0.1 FIN_", {"L_GO: non renseigne(e)"});
  verifier(plein + "L_GO 0.1 FIN_", {"H_GO: non renseigne(e)"});
  const std::string hauteur_2 = l1("Epaisseurs superieures à  la hauteur"_l1);
  const std::string hauteur_1 = l1("Epaisseurs superieures à la hauteur"_l1);
  const std::string largeur = l1("Epaisseurs superieures à la largeur"_l1);
  verifier("REC_ HAUT 1. LARG 1. EP_E 0.5 EP_I 0.5 EP_L 0.5 FIN_", {hauteur_2, largeur});
  verifier("REC_ HAUT 1. LARG 1. EP_E 0.5 EP_I 0.5 EP_L 0.5 L_GO 0.4 H_GO 0.1 FIN_",
           {hauteur_2, largeur, hauteur_1, largeur});
  // The width of the haunches stands for their height.
  verifier(plein + "L_GO 0.4 H_GO 0.1 FIN_", {hauteur_1, largeur});
  verifier_acceptee(plein + "L_GO 0.3 H_GO 0.6 FIN_", 4);
}

TEST(Formes, Cercle) {
  verifier_cotes("CIRC", {{"DIAM", "Attribut hauteur incorrect : <0"}});
  verifier("CIRC FIN_", {"DIAMETRE: non renseigne(e)"});
  verifier("CIRC NOMB 9", {"Attribut nombre incorrecte : <10"});
  verifier("CIRC NOMB 10 NOMB", {"Repetition interdite du mot clef:NOMB"});
  verifier("CIRC DIAM 1. NOMB 2000000000 FIN_", {" Numero de point incorrect >99999"});
  verifier_acceptee("CIRC DIAM 1. NOMB 10 FIN_", 10);
  verifier_acceptee("CIRC DIAM 1. FIN_", 25);
}

TEST(Formes, Tube) {
  verifier_cotes(
      "TUBE", {{"DIAM", "Attribut hauteur incorrect : <0"}, {"EPAI", "Attribut epaisseur incorrecte : <0"}});
  verifier("TUBE FIN_", {"DIAMETRE: non renseigne(e)", "EPAISSEUR: non renseigne(e)"});
  verifier("TUBE NOMB 9", {"Attribut nombre incorrecte : <10"});
  verifier("TUBE DIAM 1. EPAI 0.6 FIN_", {"Attribut epaisseur incorrecte : > rayon"});
  // A tube without hollow: the points of the void are one.
  verifier("TUBE DIAM 1. EPAI 0.5 FIN_", {" Duplication de point :     2 zone : C1_EVID"});
}

TEST(Formes, Te) {
  verifier_cotes("TE", {{"H_TO", h_totale},
                        {"L_TO", l_totale},
                        {"H_AM", "Attribut hauteur ame incorrecte : <=0"},
                        {"L_AM", l_ame}});
  verifier("TE FIN_TE", {"H_TOTALE: non renseigne(e)", "L_TOTALE: non renseigne(e)",
                         "H_AME: non renseigne(e)", "L_AME: non renseigne(e)"});
  // A check on a dimension that is not there would tell nothing: it is left out.
  verifier("TE H_TO 1. L_TO 1. H_AM 0.5 FIN_TE", {"L_AME: non renseigne(e)"});
  verifier("TE H_TO 1. L_TO 0.7 H_AM 1. L_AM 0.7 FIN_TE",
           {ame_trop_large, "Attribut hauteur ame >= hauteur totale"});
}

TEST(Formes, ISymetrique) {
  verifier_cotes("I_SY", {{"H_TO", h_totale},
                          {"L_TO", l_totale},
                          {"H_TA", "Attribut hauteur table incorrecte : <=0"},
                          {"H_JO", h_joue},
                          {"L_JO", h_joue},
                          {"L_AM", l_ame}});
  verifier("I_SY FIN_", {"H_TOTALE: non renseigne(e)", "L_TOTALE: non renseigne(e)",
                         "H_TABLE: non renseigne(e)", "L_AME: non renseigne(e)"});
  verifier("I_SY H_TO 1. L_TO 0.5 H_TA 0.2 L_AM 0.5 FIN_", {ame_trop_large});
  verifier("I_SY H_TO 1. L_TO 0.5 H_TA 0.2 L_AM 0.1 L_JO 0.1 FIN_", {joue_sans_hauteur});
  verifier("I_SY H_TO 1. L_TO 0.5 H_TA 0.5 L_AM 0.1 FIN_", {"Attribut 2*hauteur table >= hauteur totale"});
  verifier("I_SY H_TO 1. L_TO 0.5 H_TA 0.5 L_AM 0.1 H_JO 0.5 L_JO 0.2 FIN_",
           {"Attribut hauteur table +joue >= hauteur totale", joues_trop_larges});
  // The slope counts once: slopes that cross in the web are accepted.
  verifier_acceptee("I_SY H_TO 1. L_TO 0.5 H_TA 0.2 L_AM 0.1 H_JO 0.5 FIN_", 12);
}

TEST(Formes, INonSymetrique) {
  const std::string l_table = "Attribut largeur table incorrecte : <=0";
  const std::string h_table = "Attribut hauteur table incorrecte : <=0";
  verifier_cotes("I_NO", {{"H_TO", h_totale},
                          {"L_AM", l_ame},
                          {"LT_S", l_table},
                          {"LT_I", l_table},
                          {"HT_S", h_table},
                          {"HT_I", h_table},
                          {"HJ_S", h_joue},
                          {"HJ_I", h_joue},
                          {"LJ_S", h_joue},
                          {"LJ_I", h_joue}});
  verifier("I_NO FIN_",
           {"H_TOTALE: non renseigne(e)", "L_TABLE: non renseigne(e)", "L_TABLE: non renseigne(e)",
            "H_TABLE: non renseigne(e)", "H_TABLE: non renseigne(e)", "L_AME: non renseigne(e)"});
  const std::string tables = "LT_S 0.8 LT_I 0.6 HT_S 0.2 HT_I 0.2 ";
  verifier("I_NO H_TO 1. L_AM 0.8 " + tables + "FIN_", {ame_trop_large, ame_trop_large});
  verifier("I_NO H_TO 1. L_AM 0.7 " + tables + "FIN_", {ame_trop_large});
  verifier("I_NO H_TO 0.4 L_AM 0.1 " + tables + "FIN_", {"Attribut 2*hauteur table >= hauteur totale"});
  verifier("I_NO H_TO 0.7 L_AM 0.1 " + tables + "HJ_S 0.1 HJ_I 0.2 FIN_",
           {"Attribut hauteur table +joue >= hauteur totale"});
  verifier("I_NO H_TO 1. L_AM 0.1 " + tables + "HJ_S 0.1 HJ_I 0.1 LJ_S 0.35 LJ_I 0.25 FIN_",
           {joues_trop_larges, joues_trop_larges});
  verifier("I_NO H_TO 1. L_AM 0.1 " + tables + "LJ_S 0.1 LJ_I 0.1 FIN_",
           {joue_sans_hauteur, joue_sans_hauteur});
  // All together, in their order.
  verifier("I_NO H_TO 0.4 L_AM 0.9 " + tables + "HJ_S 0.1 LJ_S 0.1 LJ_I 0.1 FIN_",
           {ame_trop_large, ame_trop_large, "Attribut hauteur table +joue >= hauteur totale",
            joues_trop_larges, joue_sans_hauteur});
  verifier_acceptee("I_NO H_TO 1. L_AM 0.1 " + tables + "HJ_S 0.1 LJ_S 0.1 FIN_", 14);
}

TEST(Formes, TeEncorbellement) {
  verifier_cotes("TE_E", {{"H_TO", h_totale},
                          {"L_TO", l_totale},
                          {"H_EX", "Attribut hauteur extremite encorbellement incorrecte : <=0"},
                          {"H_OR", "Attribut hauteur origine encorbellement incorrecte : <=0"},
                          {"L_EN", "Attribut largeur encorbellement incorrecte : <=0"},
                          {"L_JO", "Attribut largeur joue incorrecte : <=0"},
                          {"H_JO", "Attribut hauteur bandeau incorrecte : <=0"}});
  verifier("TE_E FIN_", {"H_TOTALE: non renseigne(e)", "L_TOTALE: non renseigne(e)",
                         "H_EXTREMITE_ENCORBELLEMENT: non renseigne(e)",
                         "H_ORIGINE_ENCORBELLEMENT: non renseigne(e)", "L_ENCORBELLEMENT: non renseigne(e)"});
  verifier(
      "TE_E H_TO 1. L_TO 2. H_EX 1.2 H_OR 1.1 L_EN 1.1 FIN_",
      {"Attribut hauteur extremite > hauteur totale", "Attribut largeur encorbellement >  largeur totale /2",
       "Attribut hauteur origine > hauteur totale", "Attribut hauteur origine < hauteur extremite"});
  const std::string sans_joue = "TE_E H_TO 1. L_TO 5. H_EX 0.2 H_OR 0.4 L_EN 1.5 ";
  verifier(sans_joue + "L_JO 0.2 FIN_", {"Attribut hauteur joue non renseignee"});
  verifier(sans_joue + "H_JO 0.2 FIN_", {"Attribut largeur joue non renseignee"});
  verifier(sans_joue + "L_JO 1.1 H_JO 0.7 FIN_",
           {"Attribut hauteur origine + hauteur joue > hauteur totale",
            "Attribut largeurs joue + encobellement> largeur totale/2"});
  // The slope reaches the bottom: no web is left. In single precision 0.4 + 0.6 is a little more than 1.
  verifier_acceptee(sans_joue + "L_JO 0.2 H_JO 0.6 FIN_", 8);
  verifier_acceptee(sans_joue + "L_JO 0.2 H_JO 0.5 FIN_", 10);
  verifier_acceptee(sans_joue + "FIN_", 8);
  verifier_acceptee("TE_E H_TO 0.4 L_TO 5. H_EX 0.2 H_OR 0.4 L_EN 1.5 FIN_", 6);
  verifier_acceptee("TE_E H_TO 0.4 L_TO 5. H_EX 0.4 H_OR 0.4 L_EN 1.5 FIN_", 6);
  // Overhangs that meet are no longer than half the width: what is refused is the web without width.
  verifier("TE_E H_TO 1. L_TO 3. H_EX 0.2 H_OR 0.4 L_EN 1.5 FIN_",
           {" Duplication de point :     5 zone : C1"});
}

TEST(Formes, CaissonCotes) {
  verifier_cotes("CAIS", {{"H_TO", h_totale},
                          {"L_TO", l_totale},
                          {"H_EX", "Attribut hauteur extremite encorbellement incorrecte : <=0"},
                          {"H_OR", "Attribut hauteur origine encorbellement incorrecte : <=0"},
                          {"L_EN", "Attribut largeur encorbellement incorrecte : <=0"},
                          {"L_JO", "Attribut largeur joue incorrecte : <=0"},
                          {"H_JO", "Attribut hauteur bandeau incorrecte : <=0"},
                          {"L_IN", "Attribut largeur intrados incorrecte : <=0"},
                          {"CRET", "Attribut largeur joue incorrecte : <=0"},
                          {"E_IN", "Attribut epaisseur intrados incorrecte : <=0"},
                          {"E_EX", "Attribut epaisseur_extrados incorrecte : <=0"},
                          {"E_AM", "Attribut lepaisseur_ame incorrecte : <=0"},
                          {"H_GE", "Attribut hauteur gousset extrados incorrecte : <=0"},
                          {"H_GI", "Attribut hauteur gousset intrados incorrecte : <=0"},
                          {"L_GE", "Attribut largeur gousset extrados incorrecte : <=0"},
                          {"L_GI", "Attribut largeur gousset intrados incorrecte : <=0"}});
  verifier("CAIS DEVE 25.1", {"Attribut devers incorrect : > 25%"});
  verifier("CAIS DEVE -25.1", {"Attribut devers incorrect : > 25%"});
  verifier("CAIS DEVE 25. DEVE", {"Repetition interdite du mot clef:DEVE"});
  verifier("CAIS FIN_",
           {"H_TOTALE: non renseigne(e)", "L_TOTALE: non renseigne(e)",
            "H_EXTREMITE_ENCORBELLEMENT: non renseigne(e)", "H_ORIGINE_ENCORBELLEMENT: non renseigne(e)",
            "L_ENCORBELLEMENT: non renseigne(e)", "EP_INTRADOS: non renseigne(e)",
            "EP_EXTRADOS: non renseigne(e)", "EP_AME: non renseigne(e)"});
}

TEST(Formes, CaissonControles) {
  const std::string base = "CAIS H_TO 2. L_TO 8. ";
  const std::string courant = base + "H_EX 0.2 H_OR 0.4 L_EN 1.5 E_IN 0.2 E_EX 0.25 E_AM 0.4 ";
  verifier(courant + "H_GE 0.1 FIN_", {"LG_EXTRADOS: non renseigne(e)"});
  verifier(courant + "L_GE 0.1 L_GI 0.1 FIN_",
           {"HG_EXTRADOS: non renseigne(e)", "HG_INTRADOS: non renseigne(e)"});
  verifier(courant + "H_GI 0.1 FIN_", {"LG_INTRADOS: non renseigne(e)"});
  verifier(base + "H_EX 0.5 H_OR 0.4 L_EN 1.5 E_IN 0.2 E_EX 0.25 E_AM 0.4 FIN_",
           {"Attribut hauteur extremite encorbellement > hauteur origine encorbellement"});
  verifier(base + "H_EX 0.2 H_OR 1.7 L_EN 1.5 E_IN 0.2 E_EX 0.25 E_AM 0.4 H_GI 0.2 L_GI 0.2 FIN_",
           {"Attribut hauteur origine +epaisseur_intrados+hauteurs_goussets_inferieurs > hauteur totale"});
  verifier(
      base + "H_EX 0.2 H_OR 0.4 L_EN 1.5 E_IN 0.5 E_EX 0.5 E_AM 0.4 H_GI 0.5 L_GI 0.1 H_GE 0.5 L_GE 0.1 FIN_",
      {"epaisseur_intrados + epaisseur_extrados+ h_goussets_intrados + h_goussets_extrados  < h_totale"});
  verifier(courant + "H_GI 0.1 L_GI 2.2 H_GE 0.1 L_GE 2.3 L_IN 3. FIN_",
           {"l_encorbellement+epaisseur_ame+l_goussets_intrados >  largeur totale /2",
            "l_encorbellement+epaisseur_ame+l_goussets_extrados >  largeur totale /2"});
  verifier(courant + "L_JO 0.2 FIN_", {"Attribut hauteur joue non renseignee"});
  verifier(courant + "H_JO 0.2 FIN_", {"Attribut largeur joue non renseignee"});
  verifier(courant + "L_JO 2.6 H_JO 1.7 FIN_",
           {"Attribut hauteur origine + hauteur joue > hauteur totale",
            "Attribut largeurs joue + encobellement> largeur totale/2",
            "h_joue+h_origine_encorbellement+epaisseur_intrados+ h_goussets_intrados> hauteur totale",
            "Attribut largeurs joue + encobellement + ame + goussets intrados> largeur totale/2",
            "Attribut largeurs joue + encobellement + ame + goussets extrados> largeur totale/2"});
  verifier(courant + "L_IN 0.4 FIN_", {"Attribut largeur intrados <= epaisseur_ame+l_goussets_intrado"});
  verifier(courant + "H_GI 0.1 L_GI 0.3 L_IN 0.7 FIN_",
           {"Attribut largeur intrados <= epaisseur_ame+l_goussets_intrado"});
  verifier(courant + "L_IN 5.1 FIN_", {"Attribut largeur intrados >l_totale-2*l_encorbellement"});
  verifier(courant + "L_IN 4.9 L_JO 0.2 H_JO 0.2 FIN_",
           {"Attribut largeur intrados >l_totale-2*l_encorbellement-2*l_joue"});
  // All that can fail together, in their order.
  verifier(base +
               "H_EX 3. H_OR 2.5 L_EN 3.9 E_IN 1. E_EX 1.5 E_AM 0.4 H_GI 0.2 L_GI 0.3 H_GE 0.1 L_GE 0.3 "
               "L_JO 0.5 H_JO 0.6 L_IN 9. FIN_",
           {"Attribut hauteur extremite encorbellement > hauteur origine encorbellement",
            "Attribut hauteur origine +epaisseur_intrados+hauteurs_goussets_inferieurs > hauteur totale",
            "epaisseur_intrados + epaisseur_extrados+ h_goussets_intrados + h_goussets_extrados  < h_totale",
            "l_encorbellement+epaisseur_ame+l_goussets_intrados >  largeur totale /2",
            "l_encorbellement+epaisseur_ame+l_goussets_extrados >  largeur totale /2",
            "Attribut hauteur origine + hauteur joue > hauteur totale",
            "Attribut largeurs joue + encobellement> largeur totale/2",
            "h_joue+h_origine_encorbellement+epaisseur_intrados+ h_goussets_intrados> hauteur totale",
            "Attribut largeurs joue + encobellement + ame + goussets intrados> largeur totale/2",
            "Attribut largeurs joue + encobellement + ame + goussets extrados> largeur totale/2",
            "Attribut largeur intrados >l_totale-2*l_encorbellement",
            "Attribut largeur intrados >l_totale-2*l_encorbellement-2*l_joue"});
  verifier_acceptee(courant + "FIN_", 8);
  verifier_acceptee(courant + "L_IN 5. FIN_", 8);
  verifier_acceptee(courant + "L_IN 4. CRET 0.1 DEVE 2.5 L_JO 0.2 H_JO 0.2 FIN_", 11);
}

// Cross-fall 2.5 %: the right edge of a deck 8 m wide lies 0.10 under its axis, the left one as much above.
TEST(Formes, LeDeversAbaisseLaDroite) {
  modele m(
      contour("CAIS H_TO 2. L_TO 8. H_EX 0.2 H_OR 0.4 L_EN 1.5 E_IN 0.2 E_EX 0.25 E_AM 0.4 DEVE 2.5 FIN_"));
  ASSERT_TRUE(m.lire()) << m.console();
  const polygone p = zof_get_pt_zone_section("S1", 1)->positions_points();
  EXPECT_NEAR(p.front().z, 0.1, 1e-15);
  EXPECT_NEAR(p.back().z, -0.1, 1e-15);
}

TEST(Formes, UneFormeEtDesPointsSExcluent) {
  const std::string rect = "RECT HAUT 1. LARG 1. FIN_ ";
  const std::string forme_et_points = "Il est interdit de definir des points avec une forme typee";
  const std::string redefinie = "Il est interdit de redefinir une forme typee";
  const std::string point = "POIN NUME 1 Y 0. Z 0. FIN_ FIN_POIN ";
  verifier(rect + "POIN", {forme_et_points});
  verifier(point + "RECT", {forme_et_points});
  verifier(rect + "CIRC", {redefinie});
  verifier_refus(
      {{contour("PART RECT", "SYME Y"), redefinie}, {contour(rect + "PART", "SYME Y"), redefinie}});
}

TEST(Formes, LesFormesEnDehorsDesContours) {
  const auto refusee = [](const std::string& nom) {
    return " Mot clef  " + nom + " incorrect dans ce contexte";
  };
  verifier_refus({{rectangle("FERR F1 RECT"), refusee("RECTANGLE")},
                  {rectangle("FERR F1 REC_"), refusee("RECTANGLE_EVIDE")},
                  {rectangle("FERR F1 CIRC"), refusee("CIRCULAIRE")},
                  {rectangle("FERR F1 TUBE"), refusee("TUBE")},
                  {rectangle("FERR F1 TE"), refusee("TE")},
                  {rectangle("FERR F1 TE_E"), refusee("TE_ENCORBELLEMENT")},
                  {rectangle("FERR F1 I_SY"), refusee("I_SYMETRIQUE")},
                  {rectangle("FERR F1 I_NO"), refusee("I_NON_SYMETRIQUE")},
                  {rectangle("FERR F1 CAIS"), refusee("CAISSON")},
                  // A void in a void would give nothing back.
                  {rectangle("EVID E1 REC_"), refusee("REC_")},
                  {rectangle("EVID E1 TUBE"), refusee("TUBE")},
                  {rectangle("EVID E1 CAIS"), refusee("CAIS")}});
}

// The void is named after its contour, in 27 letters, and by the next number where that name is taken.
TEST(Formes, NomDeLEvidementDUneFormeCreuse) {
  const std::string tube = " MATE BA TUBE DIAM 1. EPAI 0.1 FIN_ FIN_CONT\n";
  modele m(section("CONT C1" + tube + "CONT UN_NOM_DE_TRENTE_DEUX_LETTRES_AA" + tube +
                   "CONT UN_NOM_DE_TRENTE_DEUX_LETTRES_AB" + tube + "CONT UN_NOM_DE_TRENTE_DEUX_LETTRES_AC" +
                   tube));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_TRUE(zof_existe_zone_section("S1", "C1_EVID"));
  EXPECT_TRUE(zof_existe_zone_section("S1", "UN_NOM_DE_TRENTE_DEUX_LETTR_EVID"));
  EXPECT_TRUE(zof_existe_zone_section("S1", "UN_NOM_DE_TRENTE_DEUX_LETTR_EV2"));
  EXPECT_TRUE(zof_existe_zone_section("S1", "UN_NOM_DE_TRENTE_DEUX_LETTR_EV3"));
  EXPECT_FALSE(est_renseigne_chaine(zof_get_pt_nom_zone_section("S1", "C1_EVID")->m_titre_zone));
}

// Beyond 99 voids of one name the number takes the place of a letter: every void still has a name of its own.
TEST(Formes, CentEvidementsDeMemeRacine) {
  const std::string racine = "UN_NOM_DE_TRENTE_DEUX_LETTRES";
  std::string contours;
  for (int i = 100; i < 205; ++i)
    contours += "CONT " + racine + std::to_string(i) + " MATE BA TUBE DIAM 1. EPAI 0.1 FIN_ FIN_CONT\n";
  modele m(section(contours));
  ASSERT_TRUE(m.lire()) << m.console();
  EXPECT_EQ(zof_get_nombre_type_zone_section("S1", nature_zone::evidement), 105);
  EXPECT_TRUE(zof_existe_zone_section("S1", "UN_NOM_DE_TRENTE_DEUX_LETTR_EV99"));
  EXPECT_TRUE(zof_existe_zone_section("S1", "UN_NOM_DE_TRENTE_DEUX_LETT_EV100"));
  EXPECT_TRUE(zof_existe_zone_section("S1", "UN_NOM_DE_TRENTE_DEUX_LETT_EV105"));
}
