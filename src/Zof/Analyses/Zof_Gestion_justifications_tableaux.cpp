// Strains and stresses of the zones, in the notes.

#include <cmath>
#include <string>

#include "QB7_Sections.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Edition_Justifications.hpp"
#include "Zof_Gestion_justifications.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

/// The law that a zone is read with, and where.
struct lecture_zone {
  int num_section = 0;
  int num_zone = 0;
  int num_materiau = 0;
  int num_etat_lim = 0;
  double epsilon_min = qb7_sans_borne;
  double epsilon_max = qb7_sans_borne;

  lecture_zone(int section, int zone, int materiau, int etat_lim)
      : num_section(section), num_zone(zone), num_materiau(materiau), num_etat_lim(etat_lim) {
    (void)qb7_lire_bornes_loi(num_materiau, num_etat_lim, epsilon_min, epsilon_max);
  }
};

/// Strains and stresses of one point, and what its cell of final stress says.
struct etat_point {
  qb7_deformation_point deformations;
  double sigma = 0;
  double delta_sigma = 0;
  std::string texte_sigma;
};

bool loc_hors_bornes(const lecture_zone& l, double epsilon) {
  return (l.epsilon_min != qb7_sans_borne && epsilon < l.epsilon_min) ||
         (l.epsilon_max != qb7_sans_borne && epsilon > l.epsilon_max);
}

/// The limits are looked at here, so that the engine is asked without them: a stress past a limit is shown
/// too.
etat_point loc_lire_point(const lecture_zone& l, point_yz p, const deformation& deform_section) {
  etat_point etat;
  (void)qb7_deformation_point_zone(l.num_section, l.num_zone, p.y, p.z, deform_section, etat.deformations);
  (void)qb7_contrainte_point_zone(l.num_section, l.num_zone, l.num_etat_lim, etat.deformations.epsilon,
                                  etat.sigma, etat.delta_sigma, false);
  const auto sigma = zof_chaine_numerique_double(etat.sigma);
  etat.texte_sigma = loc_hors_bornes(l, etat.deformations.epsilon)
                         ? concat({"H Bornes (", sigma.utile(), ")"})
                         : std::string(sigma.utile());
  return etat;
}

void loc_editer_borne(const lecture_zone& l, std::string_view rang, double borne) {
  if (borne == qb7_sans_borne) return utl_02_ecrire_puce(concat({"Lim ", rang, "  : aucune"}));
  double sigma = 0;
  (void)qb7_contrainte_materiau(l.num_materiau, l.num_etat_lim, borne, sigma);
  utl_02_ecrire_puce(concat({"Eps ", rang, " :", zof_chaine_deformation(borne).utile()}));
  utl_02_ecrire_puce(concat({"Sig ", rang, " :", zof_chaine_numerique_double(sigma).utile(), " Mpa"}));
}

void loc_editer_bornes(const lecture_zone& l) {
  utl_02_ecrire_puce("Limites du materiau : ");
  utl_02_debut_puce();
  loc_editer_borne(l, "min", l.epsilon_min);
  loc_editer_borne(l, "max", l.epsilon_max);
  utl_02_fin_puce();
}

deformation loc_plan_zone(const lecture_zone& l) {
  int type_deform = 0;
  deformation plan;
  (void)qb7_lire_deform_zone(l.num_section, l.num_zone, type_deform, plan);
  return plan;
}

void loc_editer_titre(const zof_zone& zone) {
  utl_02_ecrire_titre(concat({"Déformations et contraintes dans :"_l1, zone.get_nom_zone().utile()}), 4);
}

utl_01_type_tableau loc_nouveau_tableau(int nb_points) {
  utl_01_type_tableau t(1 + nb_points, 5, utl_01_contour_premiere_ligne);
  t.titre_tableau = " Deformations et contraintes positives en compression";
  t.remplir_ligne(1, {"Num_Point", "y", "z", "Epsilon", "Sigma (Mpa)"});
  return t;
}

void loc_remplir_ligne(utl_01_type_tableau& t, int ligne, const zof_point& point, const etat_point& etat) {
  t.remplir_ligne(ligne, {zof_chaine_numerique_entier(point.m_numero_point).utile(),
                          zof_chaine_numerique_geometrique(point.m_y).utile(),
                          zof_chaine_numerique_geometrique(point.m_z).utile(),
                          zof_chaine_deformation(etat.deformations.epsilon).utile(), etat.texte_sigma});
}

bool loc_est_active(int num_section, int num_zone) {
  bool active = false;
  (void)qb7_activite_zone(num_section, num_zone, active);
  return active;
}

const zof_point& loc_point(const zof_zone& zone, int position) {
  return uef_comme<zof_point>(*zone.m_les_points_zone.case_element(position).m_ptr_element,
                              zone.m_les_points_zone.label());
}

}  // namespace

void zof_editer_plan(const deformation& plan) {
  utl_02_ecrire_puce("Déformations de la section (*): "_l1);
  utl_02_ecrire_puce(concat({"Ex: ", zof_chaine_deformation(plan.e0).utile()}));
  utl_02_ecrire_puce(concat({"Ry: ", zof_chaine_deformation(plan.ky).utile()}));
  utl_02_ecrire_puce(concat({"Rz: ", zof_chaine_deformation(plan.kz).utile()}));
}

void zof_editer_deformations_contraintes_section(const texte<32>& nom_section, int num_section_qb7,
                                                 int num_etat_lim_qb7, const deformation& deform_section) {
  for (const zof_zone* const zone : zof_get_pt_section(nom_section)->zones()) {
    switch (zone->nature()) {
      case nature_zone::evidement:
      case nature_zone::gaines: break;
      case nature_zone::precontrainte:
        zof_editer_deformations_contraintes_zone_precontrainte(
            static_cast<const zof_precontrainte&>(*zone), num_section_qb7, num_etat_lim_qb7, deform_section);
        break;
      case nature_zone::charpente_externe:
      case nature_zone::charpente_interieure:
        zof_editer_deformations_contraintes_zone_charpente(static_cast<const zof_charpente&>(*zone),
                                                           num_section_qb7, num_etat_lim_qb7, deform_section);
        break;
      case nature_zone::contour:
      case nature_zone::ferraillage: {
        const int num_zone = zone->get_numero_zone_qb7();
        if (loc_est_active(num_section_qb7, num_zone))
          zof_editer_deformations_contraintes_zone(*zone, num_section_qb7, num_zone, num_etat_lim_qb7,
                                                   deform_section);
        break;
      }
    }
  }
}

void zof_editer_deformations_contraintes_zone(const zof_zone& zone, int num_section_qb7, int num_zone_qb7,
                                              int num_etat_lim_qb7, const deformation& deform_section) {
  const lecture_zone l(num_section_qb7, num_zone_qb7, zone.m_numero_materiau_qb7, num_etat_lim_qb7);
  loc_editer_titre(zone);
  utl_02_debut_puce();
  loc_editer_bornes(l);
  if (zone.nature() == nature_zone::contour) {
    const deformation plan = loc_plan_zone(l);
    zof_editer_plan(plan + deform_section);
    zof_editer_axe_neutre(num_section_qb7, plan, deform_section);
  }
  utl_02_fin_puce();
  utl_01_type_tableau t = loc_nouveau_tableau(zone.m_les_points_zone.nombre());
  int ligne = 1;
  for (const zof_point& point : uef_parcours<zof_point>(zone.m_les_points_zone))
    loc_remplir_ligne(t, ++ligne, point, loc_lire_point(l, {point.m_y, point.m_z}, deform_section));
  utl_02_ecrire_tableau(t);
}

void zof_editer_deformations_contraintes_zone_precontrainte(const zof_precontrainte& zone,
                                                            int num_section_qb7, int num_etat_lim_qb7,
                                                            const deformation& deform_section) {
  int nb_actifs = 0;
  for (const zof_cable& cable : uef_parcours<zof_cable>(zone.m_les_cables))
    if (loc_est_active(num_section_qb7, cable.m_numero_zone_qb7)) ++nb_actifs;
  if (nb_actifs == 0) return;
  loc_editer_titre(zone);
  utl_02_debut_puce();
  loc_editer_bornes({num_section_qb7, qb7_indefini, zone.m_numero_materiau_qb7, num_etat_lim_qb7});
  utl_02_fin_puce();
  utl_01_type_tableau t(1 + nb_actifs, 7, utl_01_contour_premiere_ligne);
  t.titre_tableau = " Deformations et contraintes en Mpa positives en compression";
  t.remplir_ligne(1, {"Num_Cable", "y", "z", "D_eps_P(*)", "D_sig_P(*,**)", "Eps final", "Sig final"});
  int ligne = 1;
  for (const zof_cable& cable : uef_parcours<zof_cable>(zone.m_les_cables)) {
    if (!loc_est_active(num_section_qb7, cable.m_numero_zone_qb7)) continue;
    const lecture_zone l(num_section_qb7, cable.m_numero_zone_qb7, zone.m_numero_materiau_qb7,
                         num_etat_lim_qb7);
    const zof_point& point = loc_point(zone, cable.m_ix_point);
    const etat_point etat = loc_lire_point(l, {point.m_y, point.m_z}, deform_section);
    t.remplir_ligne(++ligne, {zof_chaine_numerique_entier(cable.m_numero_cable).utile(),
                              zof_chaine_numerique_geometrique(point.m_y).utile(),
                              zof_chaine_numerique_geometrique(point.m_z).utile(),
                              zof_chaine_deformation(etat.deformations.delta_epsilon).utile(),
                              zof_chaine_numerique_double(etat.delta_sigma).utile(),
                              zof_chaine_deformation(etat.deformations.epsilon).utile(), etat.texte_sigma});
  }
  utl_02_ecrire_tableau(t);
  utl_02_ecrire_note(
      " (*) D_eps_P et D_sig_P correspondent aux surtensions apres retour à l'etat 0 du diagramme 6.1 de EC2"_l1);
  utl_02_ecrire_note(
      " (**) Dans le cas de la prétension et en l'absence d'aciers passifs, la vérification du critere de fissuration (Cf. Clause 7.3.3(101) note) est à la charge de l'utilisateur"_l1);
}

void zof_editer_deformations_contraintes_zone_charpente(const zof_charpente& zone, int num_section_qb7,
                                                        int num_etat_lim_qb7,
                                                        const deformation& deform_section) {
  bool titre_ecrit = false;
  for (const zof_profil& profil : uef_parcours<zof_profil>(zone.m_les_profils_charpente)) {
    if (!loc_est_active(num_section_qb7, profil.m_numero_zone_qb7)) continue;
    if (!titre_ecrit) loc_editer_titre(zone);
    titre_ecrit = true;
    const lecture_zone l(num_section_qb7, profil.m_numero_zone_qb7, profil.m_numero_materiau_qb7_profil,
                         num_etat_lim_qb7);
    utl_02_debut_puce();
    loc_editer_bornes(l);
    zof_editer_plan(loc_plan_zone(l) + deform_section);
    utl_02_fin_puce();
    utl_01_type_tableau t = loc_nouveau_tableau(2);
    int ligne = 1;
    for (const int position : {profil.m_ix_point_origine, profil.m_ix_point_extremite}) {
      const zof_point& point = loc_point(zone, position);
      loc_remplir_ligne(t, ++ligne, point, loc_lire_point(l, {point.m_y, point.m_z}, deform_section));
    }
    utl_02_ecrire_tableau(t);
  }
}

// In the frame of loading the strain is e0 + ky z' - kz y', with y' = (y - y_rep) c + (z - z_rep) s and
// z' = (z - z_rep) c - (y - y_rep) s; in the axes of the section it is constante + pentez z + pentey y.
void zof_editer_axe_neutre(int num_section_qb7, const deformation& deformee_zone,
                           const deformation& deform_section) {
  repere rep;
  (void)qb7_lire_repere_sollicitation(num_section_qb7, rep);
  const auto [e0, ry, rz] = deformee_zone + deform_section;
  const double c = std::cos(rep.alpha);
  const double s = std::sin(rep.alpha);
  const double constante =
      rep.z_rep * rz * s + rep.y_rep * ry * s + e0 - ry * c * rep.z_rep + rep.y_rep * rz * c;
  const double pentey = -(ry * s) - rz * c;
  const double pentez = ry * c - rz * s;
  utl_02_ecrire_puce(concat(
      {"Equation axe neutre (repère géométrique) : 0="_l1, zof_chaine_deformation(constante).utile(), " + ",
       zof_chaine_deformation(pentez).utile(), "z + ", zof_chaine_deformation(pentey).utile(), "y"}));
  // Parallel to the y axis, it has one ordinate.
  if (std::abs(pentey) < 1e-10 && std::abs(pentez) > 1e-8)
    utl_02_ecrire_puce(concat({"Ordonnée de l'axe neutre (repère géométrique) : z="_l1,
                               zof_chaine_deformation(-constante / pentez).utile()}));
}
