#include "Zof_Reinitialisation.hpp"

#include "And_global.hpp"
#include "Lex_analex.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_PAR_Parametres.hpp"
#include "QB7_Sections.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "UTL_04_Dessin.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Gestion_dimensionnement.hpp"
#include "Zof_Gestion_justifications.hpp"
#include "Zof_Options.hpp"

void zof_reinitialiser() {
  lex_analex_reinitialiser();
  and_global_reinitialiser();
  zof_erreurs_reinitialiser();
  utl_02_reinitialiser();
  utl_04_reinitialiser();
  qb7_g_quitter();
  qb7_par_reinitialiser();
  qb7_err_reinitialiser();
  zof_options_reinitialiser();
  gestion_materiau_reinitialiser();
  gestion_section_reinitialiser();
  gestion_sollicitations_reinitialiser();
  gestion_justifications_reinitialiser();
  gestion_dimensionnement_reinitialiser();
}
