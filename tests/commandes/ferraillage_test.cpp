// Automatic reinforcement on whole data files: the note, the console, and what an analysis makes of the bars.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "Executer.hpp"
#include "Litteral.hpp"

using namespace socle;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

const std::string tete = R"(ZOF
MATE BETON C30 TITR 'Beton C30/37' FCK 30. PREC NON FIN_MATE
MATE ACIER B500 TITR 'Acier B500B' FYK 500. TYPE T_B CONF OUI FIN_MATE
SECT POUTRE TITR 'Poutre 30 x 60'
  CONT AME TITR 'Ame' MATE C30
    RECT HAUT 0.6D0 LARG 0.3D0 FIN_RECT
)";
const std::string fin_section = "  FIN_CONT\nFIN_SECT\n";
const std::string sollicitation = R"(SOLL FLEXION SECT POUTRE TITR 'Flexion deviee' REPE GEOM
  ETAT ELU DURA SITU EXPL SERV POND EFFO G N 0.3 MY 0.2 MZ 0.04 TITR 'ultime' FIN_EFFO FIN_ETAT
  ETAT ELS CARA SITU EXPL SERV POND EFFO G N 0.2 MY 0.12 MZ 0.03 TITR 'service' FIN_EFFO FIN_ETAT
FIN_SOLL
JUST POUTRE SOLL FLEXION FIN_JUST
)";

// The lines of the note from this word on.
std::string lignes(const std::string& txt, const std::string& mot) {
  std::string trouvees;
  for (std::size_t i = txt.find(mot); i != std::string::npos; i = txt.find(mot, i + 1))
    trouvees += txt.substr(i, txt.find('\n', i) - i) + "\n";
  return trouvees;
}

}  // namespace

// The bars laid at the bottom are those that one would list: the analysis finds the same plane to the last
// digit.
TEST(FerraillageAutomatique, MemeJustificationQueDesBarresListees) {
  const std::string automatique =
      "FERR BAS MATE B500 OPTI DISP INFE STRI SELE P_20 FI ENRO 0.03D0 LITS 2 DIST 0.06D0 GROU 2 FIN_OPTI "
      "FIN_FERR\n";
  const std::string listee = R"(FERR BAS MATE B500 DIAM 20. POIN
    DROI NUME 1 NOMB 3 GROU 2 Y_OR -0.11D0 Z_OR -0.26D0 Y_EX 0.11D0 Z_EX -0.26D0 FIN_DROI
    DROI NUME 4 NOMB 3 Y_OR -0.11D0 Z_OR -0.20D0 Y_EX 0.11D0 Z_EX -0.20D0 FIN_DROI FIN_POIN FIN_FERR
)";
  const course a = executer(tete + automatique + fin_section + sollicitation + "FIN_\n");
  const course b = executer(tete + listee + fin_section + sollicitation + "FIN_\n");
  ASSERT_EQ(a.statut, 0) << a.console;
  ASSERT_EQ(b.statut, 0) << b.console;
  for (const char* const mot : {"- Ex: ", "- Ry: ", "- Rz: ", "- R\xE9sultat : Equilibre"}) {
    EXPECT_NE(lignes(a.txt, mot), "") << a.txt;
    EXPECT_EQ(lignes(a.txt, mot), lignes(b.txt, mot));
  }
  EXPECT_THAT(a.txt, HasSubstr("40006"));
}

TEST(FerraillageAutomatique, LaNoteDitLaDisposition) {
  const course c =
      executer(tete +
               "FERR BAS MATE B500 OPTI DISP INFE STRI SELE P_20 FI ENRO 0.03D0 LITS 2 DIST 0.06D0 "
               "GROU 2 FIN_OPTI FIN_FERR\n"
               "FERR HAUT MATE B500 DIAM 16. LITS SUPE NOMB 4 FIN_LITS FIN_FERR\n" +
               fin_section + "EDIT SECT POUTRE\nFIN_\n");
  ASSERT_EQ(c.statut, 0) << c.console;
  const std::string bas = c.txt.substr(c.txt.find("Ferraillage : BAS"));
  EXPECT_THAT(
      bas.substr(0, bas.find("Ferraillage : HAUT")),
      testing::AllOf(HasSubstr("Diametre (mm) : 20.000"), HasSubstr("Nombre de barres par groupe : 2"),
                     HasSubstr("Disposition : INFE STRI"), HasSubstr("Enrobage (m) : 0.30000E-01"),
                     HasSubstr("Nombre de lits : 2"), HasSubstr("Espacement max effectif (m) : 0.11000"),
                     HasSubstr("Espacement min effectif (m) : 0.11000"),
                     HasSubstr("Espacement moyen effectif (m) : 0.11000"), HasSubstr("40006")));
  // 0.3 - 2 (0.03 + 0.008) = 0.224: three spacings.
  EXPECT_THAT(bas.substr(bas.find("Ferraillage : HAUT")),
              testing::AllOf(HasSubstr("Diametre (mm) : 16.000"), HasSubstr("Disposition : SUPE STRI"),
                             HasSubstr("Nombre de lits : 1"),
                             HasSubstr("Espacement moyen effectif (m) : 0.74667E-01"), HasSubstr("0.1120"),
                             HasSubstr("0.2620")));
  EXPECT_THAT(c.txt, Not(HasSubstr("ATTENTION")));
}

TEST(FerraillageAutomatique, LAvertissementNEstPasUneErreur) {
  const course c =
      executer(tete +
               "FERR BAS MATE B500 OPTI DISP INFE STRI ENRO 0.03 E_MA 0.1 E_MI 0.09 LITS 1 FIN_OPTI "
               "FIN_FERR\n" +
               fin_section + "FIN_\n");
  EXPECT_EQ(c.statut, 0);
  EXPECT_THAT(c.console, HasSubstr(" ATTENTION  - Espacements max ou min non verifies :"));
  EXPECT_THAT(c.listing, Not(HasSubstr("ATTENTION")));
}

// A bored pile of 25 sides, as the data of a design office give it.
TEST(FerraillageAutomatique, Pieu) {
  const course c = executer(R"(ZOF
MATE BETON C30 TITR 'Beton C30/37' FCK 30. PREC NON FIN_MATE
MATE ACIER B500 TITR 'Acier B500B' FYK 500. TYPE T_B CONF OUI FIN_MATE
SECT PIEU TITR 'Pieu de 1 m'
  CONT FUT MATE C30 CIRC DIAM 1.D0 FIN_CIRC
    FERR CAGE MATE B500 DIME OUI OPTI DISP PERI STRI SELE P_20 P_25 P_32 FI ENRO 0.07D0 FIN_OPTI FIN_FERR
  FIN_CONT
FIN_SECT
SOLL FLEXION SECT PIEU TITR 'Tete' REPE GEOM
  ETAT ELU DURA SITU EXPL SERV POND EFFO G N 2. MY 0.5 TITR 'ultime' FIN_EFFO FIN_ETAT
FIN_SOLL
JUST PIEU SOLL FLEXION FIN_JUST
FIN_
)");
  EXPECT_EQ(c.statut, 0) << c.console;
  EXPECT_THAT(c.txt, HasSubstr("40025"));
  EXPECT_THAT(c.txt, Not(HasSubstr("40026")));
}

TEST(FerraillageAutomatique, UneErreurDePoseTermineLaCourse) {
  const course c =
      executer(tete + "FERR BAS MATE B500 OPTI DISP PERI STRI ENRO 0.5 LITS 1 FIN_OPTI FIN_FERR\n" +
               fin_section + "FIN_\n");
  EXPECT_EQ(c.statut, 1);
  EXPECT_THAT(c.listing, HasSubstr("Erreur de commande : \n     -  Aucun point n est defini\n"));
}

// The blanks at the end of a message go to the listing as they stand.
TEST(FerraillageAutomatique, MessagesALOctet) {
  const auto listing = [](const std::string& ferr) {
    return executer(tete + ferr + fin_section + "FIN_\n").listing;
  };
  const std::string peri = " MATE B500 OPTI DISP PERI STRI LITS 1 FIN_OPTI FIN_FERR\n";
  EXPECT_THAT(listing("FERR F1 MATE B500 OPTI DISP SUPE STRI FIN_OPTI FIN_FERR\n"),
              HasSubstr("\n     -  Acier automatique:  dimensionnement obligatoire \n"));
  EXPECT_THAT(listing("FERR F1 MATE B500 LITS SUPE NOMB 2 FIN_LITS FIN_FERR\n"),
              HasSubstr(std::string("\n     -  Acier :  le diametre des aciers doit être defini \n"_l1)));
  EXPECT_THAT(listing("FERR F1 MATE B500 OPTI GROU 1 GROU"),
              HasSubstr(std::string("\n     -  Répétition du mot clef GROUPE \n"_l1)));
  EXPECT_THAT(listing("FERR F1" + peri + "FERR F2 MATE B500 DIAM 20. LITS SUPE NOMB 2 FIN_LITS FIN_FERR\n"),
              HasSubstr("\n     -  Les dispositions de ferraillage automatique sont incompatibles \n"));
}
