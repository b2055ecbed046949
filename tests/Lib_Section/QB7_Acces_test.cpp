// What every routine of the facade has in common: it begins with an empty journal, and a look-up that fails
// is journalled under its name.
#include <gmock/gmock.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "QB7_Sections.hpp"
#include "moteur.hpp"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int S = 1;
constexpr int ABSENT = 9;
constexpr ier_2 reussite{};

/// What the routines give back; nothing is left of it after a failure.
struct resultats {
  int n = 0, m = 0;
  bool oui = false;
  double x = 0, y = 0;
  repere r;
  deformation d;
  efforts f;
  modif_lois modif;
  qb7_tailles_section tailles;
  qb7_deformation_point point;
  qb7_etat_fluage fluage;
  caracteristiques_mecaniques caracteristiques;
};

/// A routine, under the name that it has in the journal, called on a section and one of its zones, or on a
/// law.
struct routine {
  const char* nom;
  std::function<ier_2(int, int)> appeler;
};

constexpr std::array un_numero = {1};
constexpr std::array une_contrainte = {-1.0};

std::vector<routine> loc_routines_de_section(resultats& r) {
  return {
      {"QB7_Lire_Section", [&r](int s, int) { return qb7_lire_section(s, r.tailles); }},
      {"QB7_Supprimer_Section", [](int s, int) { return qb7_supprimer_section(s); }},
      {"QB7_Copier_Section", [](int s, int) { return qb7_copier_section(s, 3); }},
      {"QB7_Fixer_Repere_Sollicitation",
       [](int s, int) { return qb7_fixer_repere_sollicitation(s, 0, 0, 0); }},
      {"QB7_Lire_Repere_Sollicitation", [&r](int s, int) { return qb7_lire_repere_sollicitation(s, r.r); }},
      {"QB7_Creer_Point", [](int s, int) { return qb7_creer_point(s, 1, 0, 0); }},
      {"QB7_Modifier_Point", [](int s, int) { return qb7_modifier_point(s, 1, 0, 0); }},
      {"QB7_Lire_Point", [&r](int s, int) { return qb7_lire_point(s, 1, r.x, r.y); }},
      {"QB7_Supprimer_Point", [](int s, int) { return qb7_supprimer_point(s, 1); }},
      {"QB7_Creer_Zone", [](int s, int) { return qb7_creer_zone(s, 1, 1001, 1, un_numero); }},
      {"QB7_Lire_Nbre_Zones", [&r](int s, int) { return qb7_lire_nbre_zones(s, r.n); }},
      {"QB7_Lire_Liste_Zones", [](int s, int) { return qb7_lire_liste_zones(s, {}); }},
      {"QB7_Creer_Etat", [](int s, int) { return qb7_creer_etat(s, 1); }},
      {"QB7_Supprimer_Etat", [](int s, int) { return qb7_supprimer_etat(s, 1); }},
      {"QB7_Rappeller_Etat", [](int s, int) { return qb7_rappeller_etat(s, 1); }},
      {"QB7_Completer_Etat", [](int s, int) { return qb7_completer_etat(s, 1); }},
      {"QB7_Etat_Permanent", [](int s, int) { return qb7_etat_permanent(s, 1, 1, 1, 6, 0, 1); }},
      {"QB7_Caracteristiques_Mecaniques",
       [&r](int s, int) { return qb7_caracteristiques_mecaniques(s, 1, r.caracteristiques); }},
      {"QB7_Deformer_Section", [&r](int s, int) { return qb7_deformer_section(s, 1, {}, r.f); }},
      {"QB7_Solliciter_Section", [&r](int s, int) { return qb7_solliciter_section(true, s, 1, {}, r.d); }},
      {"QB7_Effort_Resistant_Limite",
       [&r](int s, int) { return qb7_effort_resistant_limite(true, s, 1, {}, {}, 0, 1, r.x); }},
  };
}

std::vector<routine> loc_lecteurs_de_zone(resultats& r) {
  return {
      {"QB7_Lire_Type_Zone", [&r](int s, int z) { return qb7_lire_type_zone(s, z, r.n); }},
      {"QB7_Lire_Num_Materiau", [&r](int s, int z) { return qb7_lire_num_materiau(s, z, r.n); }},
      {"QB7_Lire_Nbre_Pts_Zone", [&r](int s, int z) { return qb7_lire_nbre_pts_zone(s, z, r.n); }},
      {"QB7_Lire_Liste_Pts_Zone", [](int s, int z) { return qb7_lire_liste_pts_zone(s, z, {}); }},
      {"QB7_Lire_Num_Zone_Mere", [&r](int s, int z) { return qb7_lire_num_zone_mere(s, z, r.n); }},
      {"QB7_Lire_Param_Zone", [](int s, int z) { return qb7_lire_param_zone(s, z); }},
      {"QB7_Lire_C_Remplissage", [&r](int s, int z) { return qb7_lire_c_remplissage(s, z, r.x); }},
      {"QB7_Activite_Zone", [&r](int s, int z) { return qb7_activite_zone(s, z, r.oui); }},
      {"QB7_Lire_Deform_Zone", [&r](int s, int z) { return qb7_lire_deform_zone(s, z, r.n, r.d); }},
      {"QB7_Lire_Modif_Lois_Zone", [&r](int s, int z) { return qb7_lire_modif_lois_zone(s, z, r.modif); }},
      {"QB7_Lire_Inclinaisons_Zone",
       [&r](int s, int z) { return qb7_lire_inclinaisons_zone(s, z, r.x, r.y); }},
      {"QB7_Lire_Dimensionnable", [&r](int s, int z) { return qb7_lire_dimensionnable(s, z, r.oui); }},
      {"QB7_Lire_Fluante", [&r](int s, int z) { return qb7_lire_fluante(s, z, r.oui); }},
      {"QB7_Lire_C_Fluage", [&r](int s, int z) { return qb7_lire_c_fluage(s, z, r.x); }},
      {"QB7_Section_Brute_Zone", [&r](int s, int z) { return qb7_section_brute_zone(s, z, r.x); }},
      {"QB7_Section_Nette_Zone", [&r](int s, int z) { return qb7_section_nette_zone(s, z, 1, r.x); }},
      {"QB7_Deformation_Point_Zone",
       [&r](int s, int z) { return qb7_deformation_point_zone(s, z, 0, 0, {}, r.point); }},
      {"QB7_Contrainte_Point_Zone",
       [&r](int s, int z) { return qb7_contrainte_point_zone(s, z, 1, 0, r.x, r.y, false); }},
      {"QB7_Etat_Point_Zone_Fluage",
       [&r](int s, int z) { return qb7_etat_point_zone_fluage(s, z, 1, 1, 0, 0, {}, {}, r.fluage); }},
  };
}

std::vector<routine> loc_actions_sur_zone() {
  return {
      {"QB7_Supprimer_Point_Zone", [](int s, int z) { return qb7_supprimer_point_zone(s, z, 1); }},
      {"QB7_Supprimer_Zone", [](int s, int z) { return qb7_supprimer_zone(s, z); }},
      {"QB7_Fixer_Num_Zone_Mere", [](int s, int z) { return qb7_fixer_num_zone_mere(s, z, z); }},
      {"QB7_Fixer_Param_Zone", [](int s, int z) { return qb7_fixer_param_zone(s, z, -1); }},
      {"QB7_Fixer_C_Remplissage", [](int s, int z) { return qb7_fixer_c_remplissage(s, z, -1); }},
      {"QB7_Fixer_Critiques", [](int s, int z) { return qb7_fixer_critiques(s, z, un_numero, true); }},
      {"QB7_Activer_Zone", [](int s, int z) { return qb7_activer_zone(s, z, true, false); }},
      {"QB7_Activer_Zone", [](int s, int z) { return qb7_activer_zone(s, z, true, true); }},
      {"QB7_Fixer_Deform_Zone", [](int s, int z) { return qb7_fixer_deform_zone(s, z, true, 0, {}); }},
      {"QB7_Fixer_Modif_Lois_Zone", [](int s, int z) { return qb7_fixer_modif_lois_zone(s, z, {}); }},
      {"QB7_Fixer_Inclinaisons_Zone", [](int s, int z) { return qb7_fixer_inclinaisons_zone(s, z, 0, 0); }},
      {"QB7_Fixer_Dimensionnable", [](int s, int z) { return qb7_fixer_dimensionnable(s, z, true); }},
      {"QB7_Fixer_Fluante", [](int s, int z) { return qb7_fixer_fluante(s, z, true); }},
      {"QB7_Fixer_C_Fluage", [](int s, int z) { return qb7_fixer_c_fluage(s, z, -1); }},
      {"QB7_Tendre_Cable",
       [](int s, int z) { return qb7_tendre_cable(s, 1, false, std::array{z}, une_contrainte); }},
      {"QB7_Reinitialiser_Cable", [](int s, int z) { return qb7_reinitialiser_cable(s, std::array{z}); }},
      {"QB7_Injecter_Cable_Methode_BP_E",
       [](int s, int z) { return qb7_injecter_cable_methode_bp_ec(s, z, 1, {}); }},
      {"QB7_Injecter_Cable_Methode_Reto",
       [](int s, int z) { return qb7_injecter_cable_methode_retour_etat_zero(s, z, {}); }},
  };
}

std::vector<routine> loc_routines_de_loi(resultats& r) {
  return {
      {"QB7_Supprimer_Loi", [](int m, int el) { return qb7_supprimer_loi(m, el); }},
      {"QB7_Copier_Loi", [](int m, int el) { return qb7_copier_loi(m, el, 1, 1); }},
      {"QB7_Lire_Dims_Loi", [&r](int m, int el) { return qb7_lire_dims_loi(m, el, r.n, r.m); }},
      {"QB7_Lire_Tabs_Loi", [](int m, int el) { return qb7_lire_tabs_loi(m, el, {}, {}); }},
      {"QB7_Fixer_Type_Trou", [](int m, int el) { return qb7_fixer_type_trou(m, el, 0); }},
      {"QB7_Lire_Type_Trou", [&r](int m, int el) { return qb7_lire_type_trou(m, el, r.n); }},
      {"QB7_Fixer_Bornes_Loi", [](int m, int el) { return qb7_fixer_bornes_loi(m, el, 1, 0); }},
      {"QB7_Lire_Bornes_Loi", [&r](int m, int el) { return qb7_lire_bornes_loi(m, el, r.x, r.y); }},
      {"QB7_Contrainte_Materiau", [&r](int m, int el) { return qb7_contrainte_materiau(m, el, 0, r.x); }},
      {"QB7_Young_Materiau", [&r](int m, int el) { return qb7_young_materiau(m, el, 0, r.x); }},
      {"QB7_Deformation_Materiau", [&r](int m, int el) { return qb7_deformation_materiau(m, el, 0, r.x); }},
  };
}

class Acces : public Moteur {
 protected:
  Acces() { EXPECT_EQ(qb7_creer_section(S), reussite); }
  resultats m_resultats;
};

}  // namespace

// Each call finds the journal of the one before, which failed, and leaves its own lines alone.
TEST_F(Acces, UneSectionAbsente) {
  for (const routine& r : loc_routines_de_section(m_resultats)) {
    SCOPED_TRACE(r.nom);
    EXPECT_EQ(r.appeler(ABSENT, 0), (ier_2{ERR_NON_SECTION, ABSENT}));
    EXPECT_THAT(journal_du_moteur(), ElementsAre(r.nom));
  }
}

TEST_F(Acces, UneZoneAbsenteOuSaSection) {
  for (const auto& routines : {loc_lecteurs_de_zone(m_resultats), loc_actions_sur_zone()}) {
    for (const routine& r : routines) {
      SCOPED_TRACE(r.nom);
      EXPECT_EQ(r.appeler(S, ABSENT), (ier_2{ERR_NON_ZONE, ABSENT}));
      EXPECT_THAT(journal_du_moteur(), ElementsAre("LOC_Chercher_Zone", r.nom));
      EXPECT_EQ(r.appeler(8, ABSENT), (ier_2{ERR_NON_SECTION, 8}));
      EXPECT_THAT(journal_du_moteur(), ElementsAre("LOC_Chercher_Zone", r.nom));
    }
  }
}

TEST_F(Acces, UneLoiAbsente) {
  for (const routine& r : loc_routines_de_loi(m_resultats)) {
    SCOPED_TRACE(r.nom);
    EXPECT_EQ(r.appeler(ABSENT, 1001), (ier_2{ERR_NON_LOI, ABSENT}));
    EXPECT_THAT(journal_du_moteur(), ElementsAre(r.nom));
  }
}

// The routines that cannot fail empty the journal like the others.
TEST_F(Acces, CeQuiNePeutEchouerVideAussiLeJournal) {
  for (void (*finir)() : {qb7_reinit_loi, qb7_clore_trace_dimensionnement, qb7_quitter}) {
    EXPECT_EQ(qb7_supprimer_section(ABSENT), (ier_2{ERR_NON_SECTION, ABSENT}));
    finir();
    EXPECT_THAT(journal_du_moteur(), IsEmpty());
  }
}
