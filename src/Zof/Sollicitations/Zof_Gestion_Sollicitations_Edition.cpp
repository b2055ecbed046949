// The loadings in the notes.

#include "Edition.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

std::string loc_nombre(double valeur) { return std::string(zof_chaine_numerique_double(valeur).utile()); }

void loc_editer_repere(const zof_sollicitations& s) {
  utl_02_debut_puce();
  switch (s.m_type_repere) {
    case type_repere_defini:
      // y stands behind z too: listings are compared with those of earlier studies, which show it so.
      utl_02_ecrire_puce(concat({"Repere  : y : ", loc_nombre(s.m_y), " z : ", loc_nombre(s.m_y),
                                 " Angle : ", loc_nombre(s.m_alpha)}));
      break;
    case type_repere_brut: utl_02_ecrire_puce("Repere  : Brut"); break;
    default: utl_02_ecrire_puce("Repere  : Geometrique"); break;
  }
  utl_02_fin_puce();
}

void loc_editer_composante(vue_l1 nom, double valeur) {
  if (est_renseigne_double(valeur)) utl_02_ecrire_puce(concat({nom, loc_nombre(valeur)}));
}

void loc_editer_tension(const zof_tension& tension) {
  const std::string injection = est_renseigne_double(tension.m_rho)
                                    ? concat({" - rho injec: ", loc_nombre(tension.m_rho)})
                                    : std::string("  (non injectï¿½) "_l1);
  utl_02_ecrire_puce(concat({"Precontrainte : ", tension.m_nom_precontrainte.utile(),
                             " - point : ", zof_chaine_numerique_entier(tension.m_numero_point).utile(),
                             " - Tension  : ", loc_nombre(tension.m_tension), injection}));
}

void loc_editer_effort(const zof_effort& effort) {
  utl_02_ecrire_puce(concat({"Effort   : ", effort.m_label_effort.utile(), " - ", effort.m_titre.entier()}));
  utl_02_debut_puce();
  loc_editer_composante("N  : ", effort.m_n);
  loc_editer_composante("My : ", effort.m_my);
  loc_editer_composante("Mz : ", effort.m_mz);
  utl_02_fin_puce();
  for (const zof_tension& tension : uef_parcours<zof_tension>(effort.m_les_tensions))
    loc_editer_tension(tension);
}

void loc_editer_etat_limite(const zof_efforts_etat_limite& e) {
  utl_02_ecrire_titre(concat({"Situation : ", e.m_label_situation.utile(),
                              " - Etat_limite : ", e.m_label_etat_limite.utile()}),
                      3);
  utl_02_debut_puce();
  utl_02_ecrire_puce(concat({"Pondere  : ", e.m_etat_limite_pondere ? "Oui"_l1 : "Non"_l1}));
  for (const zof_effort& effort : uef_parcours<zof_effort>(e.m_les_efforts)) loc_editer_effort(effort);
  utl_02_fin_puce();
}

}  // namespace

void zof_editer_sollicitations_sections() {
  for (const auto& s : uef_parcours<zof_sollicitations>(gestion_sollicitations.zof_mod_les_sollicitations)) {
    utl_02_ecrire_titre(
        concat({"Sollicitation : ", s.m_nom_section_sollicitations.utile(), " - ", s.m_titre.utile()}), 2);
    loc_editer_repere(s);
    for (const auto& e : uef_parcours<zof_efforts_etat_limite>(s.m_les_efforts_etat_limite))
      loc_editer_etat_limite(e);
  }
}
