#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "Outils.hpp"
#include "Zof_Classe_Cable.hpp"
#include "Zof_Classe_Double.hpp"
#include "Zof_Classe_Intervalle.hpp"
#include "Zof_Classe_Nom.hpp"
#include "Zof_Classe_Paroi.hpp"
#include "Zof_Classe_Profil.hpp"
#include "Zof_Classe_Titre.hpp"
#include "Zof_Classe_Zone_Generalisee.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using socle::non_renseigne;

namespace {

constexpr double pi = std::numbers::pi;

/// What a fault writes on the console; it must stop the run with status 1.
template <class operation>
std::string loc_faute(const operation& o) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  zof_erreurs_reinitialiser();
  EXPECT_EQ(statut_d_arret(o), 1);
  const std::string& console = machine.texte_console;
  return console.substr(0, console.find('\n'));
}

zof_point loc_point(double y, double z, int numero = non_renseigne) {
  zof_point p(y, z);
  p.m_numero_point = numero;
  return p;
}

zof_segment loc_segment(double y1, double z1, double y2, double z2) {
  return {loc_point(y1, z1), loc_point(y2, z2)};
}

uef_vector loc_points() {
  uef_vector v;
  v.ajouter(loc_point(0, 0, 10));
  v.ajouter(loc_point(1, 0, 20));
  v.ajouter(loc_point(1, 1, 20));
  return v;
}

struct zone_d_essai : uef_element<zone_d_essai, zof_zone_generalisee> {
  void decoder_zone(bool& erco) override { erco = true; }
};

}  // namespace

TEST(Classes, ChacuneCommenceNonRenseignee) {
  const zof_point p;
  EXPECT_FALSE(est_renseigne_double(p.m_y));
  EXPECT_FALSE(est_renseigne_double(p.m_vec_bissectrice.z));
  EXPECT_FALSE(est_renseigne_integer(p.m_numero_point_sym_cible));
  EXPECT_FALSE(p.m_est_entrant);
  EXPECT_FALSE(est_renseigne_chaine(zof_profil{}.m_nom_materiau_profil));
  EXPECT_FALSE(est_renseigne_double(zof_profil{}.m_epaisseur_profil));
  EXPECT_FALSE(est_renseigne_integer(zof_segment{}.m_le_numero_zone));
  EXPECT_EQ(zof_paroi{}.m_le_pt_segment_1, nullptr);
  EXPECT_FALSE(est_renseigne_integer(zof_cable{}.m_ix_point));
  EXPECT_FALSE(est_renseigne_chaine(zof_titre{}.m_titre));
  EXPECT_FALSE(est_renseigne_chaine(zof_nom{}.m_nom));
  EXPECT_FALSE(est_renseigne_double(zof_double{}.m_double));
  EXPECT_FALSE(est_renseigne_double(zof_intervalle{}.m_a3));
}

TEST(Classes, UnElementDUneAutreClasseEstUneFauteInterne) {
  zof_nom nom;
  zof_point point;
  EXPECT_EQ(loc_faute([&] { zof_pt_point(nom); }), "Zof_Pt_Point : Cas impossible");
  EXPECT_EQ(loc_faute([&] { zof_cp_point(nom); }), "Zof_Pt_Point : Cas impossible");
  EXPECT_EQ(loc_faute([&] { zof_pt_profil(nom); }), "Zof_Pt_Profil : Cas impossible");
  EXPECT_EQ(loc_faute([&] { zof_pt_segment(nom); }), "Zof_Pt_Segment : Cas impossible");
  EXPECT_EQ(loc_faute([&] { zof_pt_paroi(nom); }), "Zof_Pt_Paroi : Cas impossible");
  EXPECT_EQ(loc_faute([&] { zof_pt_cable(nom); }), "Zof_Pt_Cable : Cas impossible");
  EXPECT_EQ(loc_faute([&] { zof_pt_nom(point); }), "Zof_Pt_Nom : Cas impossible");
  EXPECT_EQ(loc_faute([&] { zof_pt_double(nom); }), "Zof_Pt_double : Cas impossible");
  EXPECT_EQ(loc_faute([&] { zof_cp_double(nom); }), "Zof_Pt_double : Cas impossible");
}

TEST(Classes, ParUneListe) {
  uef_vector v = loc_points();
  zof_pt_point(v.pointer(2)).m_y = 7;
  v.depointer(2);
  EXPECT_EQ(zof_cp_point(*v.copier(2)).m_y, 7);
  uef_vector noms;
  noms.ajouter(zof_nom("B500"));
  EXPECT_TRUE(zof_cp_nom(*noms.copier(1)).m_nom == "B500");
  EXPECT_TRUE(zof_existe_nom(noms, "B500"));
  EXPECT_FALSE(zof_existe_nom(noms, "B5"));
  EXPECT_FALSE(zof_existe_nom(uef_vector{}, "B500"));
}

TEST(Points, ChercherParNumero) {
  const uef_vector v = loc_points();
  EXPECT_EQ(get_point(v, 20).m_z, 0) << "the first one of that number";
  EXPECT_FALSE(est_renseigne_double(get_point(v, 30).m_y));
  EXPECT_EQ(get_position_point(v, 20), 2);
  EXPECT_EQ(get_position_point(v, 30), 0);
}

TEST(Points, Confondus) {
  uef_vector v;
  v.ajouter(zof_point(0, 0));
  EXPECT_TRUE(existe_point_geometrique(v, zof_point(0.0009999, 0)));
  EXPECT_TRUE(existe_point_geometrique(v, zof_point(0, -0.001)));
  EXPECT_FALSE(existe_point_geometrique(v, zof_point(0.0010000000474974513, 0))) << "at the tolerance";
  EXPECT_FALSE(existe_point_geometrique(v, zof_point(0.001, 0.001)));
  EXPECT_FALSE(existe_point_geometrique(uef_vector{}, zof_point(0, 0)));
}

TEST(Points, Supprimer) {
  uef_vector v = loc_points();
  zof_supprimer_point(v, 20);
  EXPECT_EQ(v.nombre(), 2);
  EXPECT_EQ(get_point(v, 20).m_z, 1);
  EXPECT_EQ(loc_faute([&] { zof_supprimer_point(v, 99); }),
            " Zof_Supprimer_point : point incorrect :99             ");
}

TEST(Profils, ChercherEtSupprimer) {
  uef_vector v;
  zof_profil p;
  p.m_numero_profil = 3;
  p.m_epaisseur_profil = 0.01;
  v.ajouter(p);
  EXPECT_EQ(get_profil(v, 3).m_epaisseur_profil, 0.01);
  EXPECT_FALSE(est_renseigne_integer(get_profil(v, 4).m_numero_profil));
  EXPECT_EQ(loc_faute([&] { zof_supprimer_profil(v, 4); }),
            " Zof_Supprimer_Profil : Profil incorrect :4              ");
  zof_supprimer_profil(v, 3);
  EXPECT_EQ(v.nombre(), 0);
}

TEST(Cables, Supprimer) {
  uef_vector v;
  zof_cable c;
  c.m_numero_cable = 5;
  v.ajouter(c);
  EXPECT_EQ(loc_faute([&] { zof_supprimer_cable(v, 6); }),
            " Zof_Supprimer_Cable : Cable incorrect :6              ");
  zof_supprimer_cable(v, 5);
  EXPECT_EQ(v.nombre(), 0);
}

TEST(Vecteurs, NormeEtPerpendiculaire) {
  EXPECT_DOUBLE_EQ(zof_distance_points(zof_point(1, 1), zof_point(4, 5)), 5);
  EXPECT_DOUBLE_EQ(zof_norme_vecteur({3, 4}), 5);
  EXPECT_EQ(zof_vecteur_norme({3, 4}), (vecteur_yz{0.6, 0.8}));
  // Squares of these are no numbers any more, or nothing.
  for (const double unite : {1e200, 1e-200}) {
    EXPECT_DOUBLE_EQ(zof_norme_vecteur({3 * unite, 4 * unite}), 5 * unite);
    const vecteur_yz u = zof_vecteur_norme({3 * unite, 4 * unite});
    EXPECT_DOUBLE_EQ(u.y, 0.6);
    EXPECT_DOUBLE_EQ(u.z, 0.8);
  }
  EXPECT_EQ(zof_vecteur_points_normalise(zof_point(1, 1), zof_point(4, 5)), (vecteur_yz{0.6, 0.8}));
  EXPECT_EQ(zof_vecteur_perpendiculaire_vecteur({2, 0}), (vecteur_yz{0, 1})) << "to the left";
  EXPECT_EQ(zof_vecteur_segment(loc_segment(1, 1, 4, 5)), (vecteur_yz{3, 4}));
  EXPECT_EQ(zof_vecteur_segment_normalise(loc_segment(1, 1, 4, 5)), (vecteur_yz{0.6, 0.8}));
  EXPECT_EQ(zof_vecteur_perpendiculaire_segment(loc_segment(0, 0, 0, 5)), (vecteur_yz{-1, 0}));
  EXPECT_DOUBLE_EQ(zof_distance_centres_segments(loc_segment(0, 0, 2, 0), loc_segment(0, 3, 2, 3)), 3);
}

TEST(Vecteurs, SansLongueurLaCourseSArrete) {
  const std::string message = " ZOF_vecteur_segment_normalise : Cas impossible";
  EXPECT_EQ(loc_faute([] { zof_vecteur_norme({0, 0}); }), message);
  EXPECT_EQ(loc_faute([] { zof_vecteur_segment_normalise(loc_segment(1, 2, 1, 2)); }), message);
  EXPECT_EQ(loc_faute([] { zof_vecteur_perpendiculaire_vecteur({0, 0}); }), message);
  EXPECT_EQ(loc_faute([] { zof_angle_vecteurs({1, 0}, {0, 0}); }), message);
  EXPECT_EQ(loc_faute([] {
              zof_angle_segment_vecteur(loc_segment(0, 0, 1, 0), {0, 0});
            }),
            "ZOF_Angle_segment_vecteur : cas impossible");
}

TEST(Angles, DeMoinsPiAPi) {
  EXPECT_DOUBLE_EQ(zof_angle_vecteurs({1, 0}, {0, 3}), pi / 2);
  EXPECT_DOUBLE_EQ(zof_angle_vecteurs({0, 3}, {1, 0}), -pi / 2);
  EXPECT_NEAR(zof_angle_vecteurs({1, 0}, {-1, 1}), 3 * pi / 4, 1e-15);
  EXPECT_DOUBLE_EQ(std::abs(zof_angle_vecteurs({1, 0}, {-2, 0})), pi);
  EXPECT_DOUBLE_EQ(zof_angle_vecteurs({1, 0}, {5, 0}), 0);
  EXPECT_NEAR(zof_angle_segments(loc_segment(0, 0, 1, 0), loc_segment(5, 5, 6, 4)), -pi / 4, 1e-15);
  EXPECT_NEAR(zof_angle_segment_vecteur(loc_segment(0, 0, 1, 0), {1, 1}), pi / 4, 1e-15);
}

TEST(Angles, Reduits) {
  EXPECT_DOUBLE_EQ(zof_angle_reduit_vecteurs(-3 * pi / 4), pi / 4);
  EXPECT_DOUBLE_EQ(zof_angle_reduit_vecteurs(-pi / 3), pi / 3);
  EXPECT_DOUBLE_EQ(zof_angle_reduit_vecteurs(pi / 2), pi / 2);
  EXPECT_DOUBLE_EQ(zof_angle_reduit_vecteurs(pi), 0);
}

TEST(Bissecteur, DeDeuxVecteurs) {
  const vecteur_yz b = zof_vecteur_bissecteur_vecteurs({2, 0}, {0, 5});
  EXPECT_DOUBLE_EQ(b.y, std::sqrt(0.5));
  EXPECT_DOUBLE_EQ(b.z, std::sqrt(0.5));
  EXPECT_EQ(zof_vecteur_bissecteur_vecteurs({1, 0}, {-1, 0}), (vecteur_yz{0, -1}))
      << "opposite: the perpendicular of the second";
  const vecteur_yz presque = zof_vecteur_bissecteur_vecteurs({1, 0}, {-1, 1e-12});
  EXPECT_NEAR(presque.y, 0, 1e-3);
  EXPECT_NEAR(presque.z, 1, 1e-6) << "nearly opposite: still their sum";
}

TEST(Intersection, UnContactCompte) {
  const zof_segment s = loc_segment(0, 0, 2, 0);
  EXPECT_TRUE(zof_existe_intersection_segments(s, loc_segment(1, -1, 1, 1)));
  EXPECT_TRUE(zof_existe_intersection_segments(s, loc_segment(1, 0, 1, 1))) << "an end on the segment";
  EXPECT_TRUE(zof_existe_intersection_segments(s, loc_segment(2, 0, 3, 5))) << "an end on an end";
  EXPECT_TRUE(zof_existe_intersection_segments(s, loc_segment(0, 5, 0, 0))) << "an origin on an extremity";
  EXPECT_FALSE(zof_existe_intersection_segments(s, loc_segment(1, 0.1, 1, 1)));
  EXPECT_FALSE(zof_existe_intersection_segments(s, loc_segment(3, -1, 3, 1)));
  EXPECT_FALSE(zof_existe_intersection_segments(s, loc_segment(0, 1, 2, 1))) << "parallel";
  EXPECT_FALSE(zof_existe_intersection_segments(s, loc_segment(1, 0, 3, 0))) << "on one line, overlapping";
  EXPECT_FALSE(zof_existe_intersection_segments(s, s));
}

TEST(Intersection, LePoint) {
  const zof_point p = zof_point_intersection_segments(loc_segment(0, 0, 2, 2), loc_segment(0, 1, 2, 0));
  EXPECT_NEAR(p.m_y, 2.0 / 3, 1e-15);
  EXPECT_NEAR(p.m_z, 2.0 / 3, 1e-15);
  EXPECT_FALSE(est_renseigne_integer(p.m_numero_point));
  EXPECT_FALSE(est_renseigne_double(
      zof_point_intersection_segments(loc_segment(0, 0, 1, 0), loc_segment(0, 1, 1, 1)).m_y));
}

TEST(SegmentMoyen, DeDeuxSegmentsDeMemeSens) {
  zof_segment s1 = loc_segment(0, 0, 2, 0);
  s1.m_la_position = 1;
  s1.m_le_numero_zone = 2;
  s1.m_le_numero_segment = 3;
  const zof_segment moyen = zof_segment_moyen(s1, loc_segment(0, 1, 4, 1));
  EXPECT_EQ(moyen.m_le_point_origine.m_z, 0.5);
  EXPECT_EQ(moyen.m_le_point_extremite.m_y, 3);
  EXPECT_EQ(moyen.m_le_centre.m_y, 1.5);
  EXPECT_EQ(moyen.m_la_position, 1);
  EXPECT_EQ(moyen.m_le_numero_zone, 2);
  EXPECT_EQ(moyen.m_le_numero_segment, 3);
}

// Two faces of a web of 0.20 m: one longer than the other, so that the wall is what both have in common.
TEST(Paroi, DeuxFacesParalleles) {
  zof_segment s1 = loc_segment(0, 0, 4, 0);
  zof_segment s2 = loc_segment(1, 0.2, 3, 0.2);
  s1.m_la_position = s2.m_la_position = 7;
  s1.m_le_numero_zone = 2;
  s1.m_le_numero_segment = 3;
  const zof_paroi p = zof_paroi_commune_segments(s1, s2, 0.5, 12);
  EXPECT_EQ(p.m_le_pt_segment_1, &s1);
  EXPECT_EQ(p.m_le_pt_segment_2, &s2);
  EXPECT_NEAR(p.m_le_point_origine_segment_1.m_y, 1, 1e-15);
  EXPECT_NEAR(p.m_le_point_origine_segment_2.m_y, 1, 1e-15);
  EXPECT_NEAR(p.m_le_point_extremite_segment_1.m_y, 3, 1e-15);
  EXPECT_NEAR(p.m_l_epaisseur_moyenne, 0.2, 1e-15);
  EXPECT_NEAR(p.m_le_segment_moyen.m_le_point_origine.m_z, 0.1, 1e-15);
  EXPECT_NEAR(p.m_le_segment_moyen.m_le_centre.m_y, 2, 1e-15);
  EXPECT_EQ(p.m_la_position, 7);
  EXPECT_EQ(p.m_le_segment_moyen.m_la_position, 7);
  EXPECT_EQ(p.m_le_segment_moyen.m_le_numero_zone, 2);
  EXPECT_EQ(p.m_le_segment_moyen.m_le_numero_segment, 3);
  EXPECT_EQ(p.m_le_numero_paroi, 12);
}

TEST(Paroi, UneFaceInclinee) {
  const zof_segment s1 = loc_segment(0, 0, 2, 0);
  zof_segment s2 = loc_segment(0, 0.2, 2, 0.4);
  s2.m_la_position = 1;
  const zof_paroi p = zof_paroi_commune_segments(s1, s2, 1, 1);
  ASSERT_NE(p.m_le_pt_segment_1, nullptr);
  // The mean segment rises by 1 in 20. Across it: from the start of the second face down to the first one,
  // and from the end of the first face up to the second one, which rises by 1 in 10.
  EXPECT_NEAR(p.m_l_epaisseur_moyenne, (0.2 + 0.4 / 1.005) * std::sqrt(1.0025) / 2, 1e-15);
  EXPECT_FALSE(est_renseigne_integer(p.m_la_position)) << "the two segments disagree";
}

TEST(Paroi, TropLoinPasDeParoi) {
  const zof_segment s1 = loc_segment(0, 0, 4, 0);
  const zof_segment s2 = loc_segment(0, 1, 4, 1);
  const zof_paroi p = zof_paroi_commune_segments(s1, s2, 0.5, 1);
  EXPECT_EQ(p.m_le_pt_segment_1, nullptr);
  EXPECT_EQ(p.m_le_pt_segment_2, nullptr);
}

TEST(Paroi, DUnSeulCoteLaCourseSArrete) {
  const zof_segment s1 = loc_segment(0, 0, 4, 0);
  const zof_segment s2 = loc_segment(0, 0.2, 4, 2);
  EXPECT_EQ(loc_faute([&] { zof_paroi_commune_segments(s1, s2, 0.5, 1); }),
            "Zof_Paroi_commune_segments: Cas impossible ");
}

TEST(Zone, CompteursEtNumero) {
  zone_d_essai z;
  int numero = 0;
  z.inc_numero_courant_point_zone_type(numero);
  z.inc_numero_courant_point_zone_type(numero);
  EXPECT_EQ(numero, 2);
  EXPECT_EQ(z.get_numero_courant_point_zone_type(), 2);
  z.inc_numero_courant_point_section_qb7();
  EXPECT_EQ(z.get_numero_courant_point_section_qb7(), 1);
  z.inc_numero_courant_qb7_zone_generalisee();
  EXPECT_EQ(z.get_numero_courant_qb7_zone_generalisee(), 1);
  EXPECT_EQ(loc_faute([&] { (void)z.get_numero_zone_qb7(); }), " Get_Numero_zone_QB7 : Cas impossible");
  EXPECT_FALSE(est_renseigne_integer(z.get_numero_zone_qb7(true)));
  z.set_numero_zone_qb7(4);
  EXPECT_EQ(z.get_numero_zone_qb7(), 4);
}

TEST(Zone, ChercherParNom) {
  zone_d_essai ame;
  ame.set_nom_zone("AME");
  zone_d_essai autre;
  autre.set_nom_zone("AME");
  uef_vector v;
  v.ajouter(zof_zone_generalisee_pointeur());
  v.ajouter(zof_zone_generalisee_pointeur(&ame));
  v.ajouter(zof_zone_generalisee_pointeur(&autre));
  EXPECT_EQ(zof_pointeur_zone(v, "AME").m_pt_zone, &ame);
  EXPECT_EQ(zof_pointeur_zone(v, "TALON").m_pt_zone, nullptr);
  EXPECT_EQ(zof_cp_pointeur_zone(*v.copier(2)).m_pt_zone, &ame) << "the reference is copied, not the zone";
}

TEST(Zone, LaCopieATousLesChamps) {
  zone_d_essai z;
  int numero = 0;
  z.set_zone_deja_creee(true);
  z.set_section_precontrainte(true);
  z.set_titre_zone("Ame");
  z.set_nom_zone("AME");
  z.m_est_sous_section = true;
  z.set_numero_section_qb7(1);
  z.inc_numero_courant_point_section_qb7();
  for (int i = 0; i < 2; ++i) z.inc_numero_courant_qb7_zone_generalisee();
  for (int i = 0; i < 3; ++i) z.inc_numero_courant_point_zone_type(numero);
  z.set_numero_zone_qb7(4);
  z.set_symetrie(5);
  z.set_forme_zone(6);
  const zone_d_essai copie(z);
  EXPECT_TRUE(copie.is_zone_deja_creee());
  EXPECT_TRUE(copie.is_section_precontrainte());
  EXPECT_TRUE(copie.get_titre_zone() == "Ame");
  EXPECT_TRUE(copie.get_nom_zone() == "AME");
  EXPECT_TRUE(copie.m_est_sous_section);
  EXPECT_EQ(copie.get_numero_section_qb7(), 1);
  EXPECT_EQ(copie.get_numero_courant_point_section_qb7(), 1);
  EXPECT_EQ(copie.get_numero_courant_qb7_zone_generalisee(), 2);
  EXPECT_EQ(copie.get_numero_courant_point_zone_type(), 3);
  EXPECT_EQ(copie.get_numero_zone_qb7(), 4);
  EXPECT_EQ(copie.get_symetrie(), 5);
  EXPECT_EQ(copie.get_forme_zone(), 6);
}

TEST(Zone, LaCopieASaPropreListeDEnfants) {
  zone_d_essai mere;
  zone_d_essai fille;
  mere.m_les_zones.ajouter(zof_zone_generalisee_pointeur(&fille));
  zone_d_essai copie(mere);
  zof_pt_pointeur_zone(mere.m_les_zones.pointer(1)).m_pt_zone = nullptr;
  mere.m_les_zones.depointer(1);
  EXPECT_EQ(zof_cp_pointeur_zone(*copie.m_les_zones.copier(1)).m_pt_zone, &fille);
}
