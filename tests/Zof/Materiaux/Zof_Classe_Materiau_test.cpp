#include "Zof_Classe_Materiau.hpp"

#include <gtest/gtest.h>

#include <string>

#include "Outils.hpp"
#include "Systeme_memoire.hpp"

namespace {

struct situation_nue : uef_element<situation_nue, zof_situation_materiau> {
  void editer_situation(bool&) const override {}
  void decoder_situation(bool&) override {}
};

struct materiau_nu : uef_element<materiau_nu, zof_materiau> {
  void editer_materiau(bool&) const override {}
  void decoder_materiau(bool&) override {}
};

situation_nue situation_de_type(int type) {
  situation_nue s;
  s.set_type_situation_projet(type);
  s.set_label_situation(zof_conversion_en_label_situation(type));
  return s;
}

}  // namespace

TEST(Materiau, SansSituationTouteQuestionEstNegative) {
  const materiau_nu m;
  EXPECT_FALSE(m.existe_label_situation_materiau("SEISME"));
  EXPECT_FALSE(m.existe_type_situation_materiau(situation_seisme));
  EXPECT_FALSE(m.existe_etat_limite_situation_materiau("SEISME", "ELU_ACCIDENT"));
  EXPECT_EQ(m.get_pt_situation_materiau("SEISME"), nullptr);
}

TEST(Materiau, RetrouveSesSituationsEtLeursEtatsLimites) {
  materiau_nu m;
  m.ajouter_situation_materiau(situation_de_type(situation_construction));
  m.ajouter_situation_materiau(situation_de_type(situation_accident));
  m.pointer_situation_materiau_dernier().ajouter_etat_limite("ELU_ACCIDENT");
  m.m_les_situations.depointer_dernier();
  EXPECT_TRUE(m.existe_label_situation_materiau("CONSTRUCTION"));
  EXPECT_TRUE(m.existe_type_situation_materiau(situation_accident));
  EXPECT_FALSE(m.existe_type_situation_materiau(situation_seisme));
  EXPECT_TRUE(m.existe_etat_limite_situation_materiau("ACCIDENT", "ELU_ACCIDENT"));
  EXPECT_FALSE(m.existe_etat_limite_situation_materiau("CONSTRUCTION", "ELU_ACCIDENT"));
  EXPECT_FALSE(m.existe_etat_limite_situation_materiau("SEISME", "ELU_ACCIDENT"));
  ASSERT_NE(m.get_pt_situation_materiau("ACCIDENT"), nullptr);
  EXPECT_EQ(m.get_pt_situation_materiau("ACCIDENT")->get_numero_etat_limite_qb7("ELU_ACCIDENT"), 4011);
}

TEST(Materiau, UneCopieNePartagePasSesSituations) {
  materiau_nu m;
  m.ajouter_situation_materiau(situation_de_type(situation_construction));
  const materiau_nu copie(m);
  m.pointer_situation_materiau_dernier().set_label_situation("SEISME");
  m.ajouter_situation_materiau(situation_de_type(situation_accident));
  EXPECT_EQ(copie.m_les_situations.nombre(), 1);
  EXPECT_TRUE(copie.existe_label_situation_materiau("CONSTRUCTION"));
}

// Three equal situations make three pairs; the label is told in its 32 characters.
TEST(Materiau, ChaquePaireDeSituationsEgalesFaitUnMessage) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  materiau_nu m;
  m.ajouter_situation_materiau(situation_de_type(situation_seisme));
  m.ajouter_situation_materiau(situation_de_type(situation_construction));
  bool erco = true;
  m.controle_situations_materiau(erco);
  EXPECT_FALSE(erco);
  EXPECT_EQ(machine.texte_console, "");
  m.ajouter_situation_materiau(situation_de_type(situation_seisme));
  m.ajouter_situation_materiau(situation_de_type(situation_seisme));
  m.controle_situations_materiau(erco);
  EXPECT_TRUE(erco);
  const std::string message = "     - Repetition de la situation de projetSEISME\n";
  EXPECT_EQ(machine.texte_console, "Erreur de commande : \n" + message + message + message);
}

TEST(Materiau, SeTrouveParSonNom) {
  uef_vector materiaux;
  materiau_nu m;
  m.set_nom_materiau("C30");
  materiaux.ajouter(m);
  m.set_nom_materiau("B500");
  materiaux.ajouter(m);
  EXPECT_EQ(get_pt_materiau_nom(materiaux, "C40"), nullptr);
  zof_materiau* const b500 = get_pt_materiau_nom(materiaux, "B500");
  EXPECT_EQ(b500, &zof_pt_materiau(materiaux.pointer(2)));
}

TEST(Materiau, UnElementQuiNEnEstPasUnArreteLaCourse) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  zof_etat_limite etat;
  EXPECT_EQ(statut_d_arret([&etat] { zof_pt_materiau(etat); }), 1);
  EXPECT_EQ(machine.texte_console,
            "Zof_Pt_Materiau : Cas impossible\n ARRET PREMATURE : PREVENIR LE GESTIONNAIRE\n");
}

TEST(Materiau, TextesDesSectionsEtDesLois) {
  EXPECT_EQ(zof_par_zone_section[2].utile(), "CAISSON");
  EXPECT_EQ(zof_par_type_loi_materiau[3].entier(), "PLASTIQUE PARFAITE");
  EXPECT_EQ(zof_par_type_loi_materiau[4].entier(), "LINEAIRE EQUIVALE.");
}
