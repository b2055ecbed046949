// Data shared by the tests of the loadings and of the analyses: materials, and sections made of them.
#pragma once

#include <cstddef>
#include <string>

namespace donnees {

/// Where the first command stands, behind the line of the word ZOF.
inline constexpr std::size_t premiere_commande = 4;

inline const std::string beton_arme = R"(ZOF
MATE BETON C30 TITR 'Beton C30/37' FCK 30. PREC NON FIN_MATE
MATE ACIER B500 TITR 'Acier B500B' FYK 500. TYPE T_B CONF OUI FIN_MATE
SECT POUTRE
  TITR 'Poutre en deux parties'
  CONT AME
    TITR 'Ame 30 x 60'
    MATE C30
    POIN
      NUME 1 Y -0.15D0 Z -0.3D0 FIN_POIN NUME 2 Y 0.15D0 Z -0.3D0 FIN_POIN
      NUME 3 Y 0.15D0 Z 0.3D0 FIN_POIN NUME 4 Y -0.15D0 Z 0.3D0 FIN_POIN
    FIN_POIN
    FERR INF
      TITR 'Aciers inferieurs'
      MATE B500
      DIAM 20.
      POIN NUME 101 Y -0.1D0 Z -0.25D0 FIN_POIN NUME 102 Y 0.1D0 Z -0.25D0 FIN_POIN FIN_POIN
    FIN_FERR
  FIN_CONT
  CONT TABLE
    TITR 'Table 60 x 20'
    MATE C30
    POIN
      NUME 1 Y -0.3D0 Z 0.3D0 FIN_POIN NUME 2 Y 0.3D0 Z 0.3D0 FIN_POIN
      NUME 3 Y 0.3D0 Z 0.5D0 FIN_POIN NUME 4 Y -0.3D0 Z 0.5D0 FIN_POIN
    FIN_POIN
  FIN_CONT
FIN_SECT
)";

inline const std::string precontraint = R"(ZOF
MATE BETON C40 TITR 'Beton C40/50' FCK 40. PREC OUI FIN_MATE
MATE PREC T15 TITR 'Torons' FP01 1600. FPK 1860. FIN_MATE
SECT PONT
  TITR 'Pont en deux parties'
  CONT AME
    TITR 'Ame 50 x 100'
    MATE C40
    POIN
      NUME 1 Y -0.25D0 Z -0.5D0 FIN_POIN NUME 2 Y 0.25D0 Z -0.5D0 FIN_POIN
      NUME 3 Y 0.25D0 Z 0.5D0 FIN_POIN NUME 4 Y -0.25D0 Z 0.5D0 FIN_POIN
    FIN_POIN
    PREC C1 TITR 'Cables du bas' MATE T15 AIRE 1500.
      POIN NUME 11 Y -0.1D0 Z -0.4D0 FIN_POIN NUME 12 Y 0.1D0 Z -0.4D0 FIN_POIN FIN_POIN
    FIN_PREC
  FIN_CONT
  CONT TABLE
    TITR 'Table 100 x 20'
    MATE C40
    POIN
      NUME 1 Y -0.5D0 Z 0.5D0 FIN_POIN NUME 2 Y 0.5D0 Z 0.5D0 FIN_POIN
      NUME 3 Y 0.5D0 Z 0.7D0 FIN_POIN NUME 4 Y -0.5D0 Z 0.7D0 FIN_POIN
    FIN_POIN
    PREC C2 TITR 'Cables du haut' MATE T15 AIRE 1500.
      POIN NUME 11 Y 0. Z 0.6D0 FIN_POIN FIN_POIN
    FIN_PREC
  FIN_CONT
FIN_SECT
)";

/// A plain concrete prism 0.30 x 0.60, C30/37, whose stresses are worked out by hand: 20 MPa at the ultimate
/// states, 18 MPa at the characteristic state, nothing in tension.
inline const std::string prisme = R"(ZOF
MATE BETON C30 TITR 'Beton C30/37' FCK 30. PREC NON FIN_MATE
SECT PRISME
  TITR 'Prisme 30 x 60'
  CONT FUT
    TITR 'Fut'
    MATE C30
    POIN
      NUME 1 Y -0.15D0 Z -0.3D0 FIN_POIN NUME 2 Y 0.15D0 Z -0.3D0 FIN_POIN
      NUME 3 Y 0.15D0 Z 0.3D0 FIN_POIN NUME 4 Y -0.15D0 Z 0.3D0 FIN_POIN
    FIN_POIN
  FIN_CONT
FIN_SECT
)";

}  // namespace donnees
