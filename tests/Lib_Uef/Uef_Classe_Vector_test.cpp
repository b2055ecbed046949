#include "Uef_Classe_Vector.hpp"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "Outils.hpp"

using testing::ElementsAre;

namespace {

struct nombre : uef_element<nombre> {
  int valeur = 0;
  nombre() = default;
  explicit nombre(int v) : valeur(v) {}
};
struct mot : uef_element<mot> {};
struct nombre_derive : uef_element<nombre_derive, nombre> {
  int supplement = 0;
};

uef_vector loc_liste(int n, const char* label = "essais") {
  uef_vector v;
  v.creer(std::string(label), nombre());
  for (int i = 1; i <= n; ++i) v.ajouter(nombre(i));
  return v;
}

std::vector<int> loc_valeurs(const uef_vector& v) {
  std::vector<int> resultat;
  for (const nombre& n : uef_parcours<nombre>(v)) resultat.push_back(n.valeur);
  return resultat;
}

/// What a fault writes before the words that all of them end with; it must stop the run with status 0.
template <class operation>
std::string loc_faute(const operation& o) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  EXPECT_EQ(statut_d_arret(o), 0);
  const std::string fin = " ARRET PREMATURE : PREVENIR LE GESTIONNAIRE\n";
  const std::string& console = machine.texte_console;
  EXPECT_TRUE(console.ends_with(fin)) << console;
  return console.substr(0, console.size() - fin.size());
}

}  // namespace

TEST(Vecteur, NeufEstVide) {
  const uef_vector v;
  EXPECT_EQ(v.nombre(), 0);
  EXPECT_FALSE(v.est_cree());
}

TEST(Vecteur, AjouterCreeUneListeSansNom) {
  uef_vector v;
  v.ajouter(nombre(3));
  EXPECT_EQ(v.nombre(), 1);
  EXPECT_EQ(v.label(), "N_R");
  EXPECT_EQ(v.capacite(), 10);
}

TEST(Vecteur, LaCapaciteDouble) {
  uef_vector v = loc_liste(10);
  EXPECT_EQ(v.capacite(), 10);
  v.ajouter(nombre(11));
  EXPECT_EQ(v.capacite(), 20);
  vector_augmenter_taille(v, 30);
  EXPECT_EQ(v.capacite(), 40) << "the double is more";
  vector_augmenter_taille(v, 100);
  EXPECT_EQ(v.capacite(), 100);
  vector_augmenter_taille(v, 5);
  EXPECT_EQ(v.capacite(), 200) << "the double again, whatever is asked for";
  uef_vector petite;
  petite.creer("petite", nombre(), 0);
  EXPECT_EQ(petite.capacite(), 1);
}

TEST(Vecteur, AjouterCopieSonArgument) {
  uef_vector v;
  nombre n(1);
  v.ajouter(n);
  n.valeur = 2;
  v.ajouter(n);
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 2));
}

TEST(Vecteur, AjouterUnElementDeLaListeMeme) {
  uef_vector v;
  v.creer("une", nombre(), 1);
  v.ajouter(nombre(5));
  v.ajouter(v.pointer(1));
  EXPECT_THAT(loc_valeurs(v), ElementsAre(5, 5));
}

TEST(Vecteur, UnAutreTypeEstRefuse) {
  uef_vector v = loc_liste(1);
  EXPECT_EQ(loc_faute([&] { v.ajouter(mot()); }),
            "Vector_Ajouter : element de type incorrect pour :essais\n");
  EXPECT_EQ(loc_faute([&] { v.ajouter(nombre_derive()); }),
            "Vector_Ajouter : element de type incorrect pour :essais\n")
      << "the exact type";
}

TEST(Vecteur, PolymorpheAjouterPrendTout) {
  uef_vector v;
  v.creer("tout", nombre(), 10, true);
  nombre_derive d;
  d.valeur = 4;
  d.supplement = 9;
  v.ajouter(d);
  v.ajouter(mot());
  EXPECT_EQ(v.nombre(), 2);
  const auto copie = v.copier(1);
  EXPECT_EQ(uef_comme<nombre_derive>(*copie, "").supplement, 9) << "the copy has the dynamic type";
  EXPECT_EQ(uef_comme<nombre>(*copie, "").valeur, 4);
  EXPECT_EQ(loc_faute([&] { v.inserer(1, mot()); }),
            "Vector_Inserer : element de type incorrect pour :tout\n");
}

TEST(Vecteur, Copier) {
  const uef_vector v = loc_liste(3);
  EXPECT_EQ(uef_comme<nombre>(*v.copier(2), "").valeur, 2);
  EXPECT_EQ(uef_comme<nombre>(*v.copier_dernier(), "").valeur, 3);
  EXPECT_EQ(loc_faute([&] { (void)v.copier(4); }),
            "Vector_copier : lecture impossible de essais position_element:4 taille :3\n"
            "Vector_copier : copie impossible dans essais\n");
  EXPECT_EQ(loc_faute([&] { (void)v.copier(0); }),
            "Vector_copier : lecture impossible de essais position_element:0 taille :3\n"
            "Vector_copier : copie impossible dans essais\n");
  const uef_vector vide = loc_liste(0);
  EXPECT_EQ(loc_faute([&] { (void)vide.copier_dernier(); }),
            "vector_copier_dernier : lecture impossible de essais : vecteur vide\n"
            "vector_copier_dernier : copie impossible dans essais\n");
}

TEST(Vecteur, UneCopieNEstPasPointee) {
  uef_vector v = loc_liste(1);
  EXPECT_TRUE(v.pointer(1).m_element_pointe);
  EXPECT_FALSE(v.copier(1)->m_element_pointe);
}

TEST(Vecteur, PointerEtDepointer) {
  uef_vector v = loc_liste(3);
  uef_comme<nombre>(v.pointer(2), "").valeur = 20;
  v.depointer(2);
  uef_comme<nombre>(v.pointer_dernier(), "").valeur = 30;
  v.depointer_dernier();
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 20, 30));
  v.pointer(1);
  v.pointer(2);
  v.depointer_tous();
  EXPECT_EQ(loc_faute([&] { v.depointer(1); }),
            "Vector_depointer : depointage inutile de essais position_element:1 size:3\n"
            "Vector_depointer : depointage inutile dans essais\n");
}

TEST(Vecteur, FautesDePointage) {
  uef_vector v = loc_liste(1);
  uef_vector vide = loc_liste(0);
  EXPECT_EQ(loc_faute([&] { v.pointer(2); }),
            "Vector_pointer : pointage impossible de essais position_element:2 size:1\n"
            "Vector_pointer : pointage impossible dans essais\n");
  EXPECT_EQ(loc_faute([&] { vide.pointer_dernier(); }),
            "vector_pointer_dernier: pointage impossible de essais position_element:0 size:0\n"
            "Vector_pointer_dernier : pointage dernier impossible dans essais\n");
  EXPECT_EQ(loc_faute([&] { v.depointer(2); }),
            "Vector_depointer : depointage impossible de essais position_element:2 size:1\n"
            "Vector_depointer : depointage impossible dans essais\n");
  EXPECT_EQ(loc_faute([&] { vide.depointer_dernier(); }),
            "vector_depointer_dernier: depointage impossible de essais position_element:0 size:0\n"
            "vector_depointer_dernier : depointage dernier impossible dans essais\n");
  EXPECT_EQ(loc_faute([&] { v.depointer_dernier(); }),
            "Vector_depointer_dernier : depointage inutile de essais position_element:1 size:1\n"
            "vector_depointer_dernier : depointage dernier inutile dans essais\n");
  EXPECT_EQ(loc_faute([&] { vide.depointer_tous(); }),
            "vector_depointer_tous: depointage impossible de  vector vide\n");
}

TEST(Vecteur, CreerDeuxFois) {
  uef_vector v = loc_liste(0);
  EXPECT_EQ(loc_faute([&] { v.creer("autre", nombre()); }), "Vector_creer : vecteur deja cree :essais\n");
  v.re_creer("autre", mot(), 3);
  EXPECT_EQ(v.label(), "autre");
  EXPECT_EQ(v.capacite(), 3);
  v.ajouter(mot());
  v.re_creer(v.label(), v.pointer(1));
  EXPECT_EQ(v.nombre(), 0) << "re-created with its own label and element";
  EXPECT_EQ(v.label(), "autre");
}

TEST(Vecteur, Inserer) {
  uef_vector v = loc_liste(3);
  v.inserer(2, nombre(9));
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 9, 2, 3));
  v.inserer(5, nombre(8));
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 9, 2, 3, 8)) << "behind the last one";
  v.inserer(1, nombre(7));
  EXPECT_THAT(loc_valeurs(v), ElementsAre(7, 1, 9, 2, 3, 8));
}

TEST(Vecteur, InsererAuDelaLaisseDesTrous) {
  uef_vector v = loc_liste(1);
  v.inserer(15, nombre(9));
  EXPECT_EQ(v.nombre(), 15);
  EXPECT_EQ(v.capacite(), 20);
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 9)) << "empty slots are passed over";
  EXPECT_EQ(loc_faute([&] { v.pointer(3); }),
            "Vector_pointer : pointage impossible de essais position_element:3 size:15\n"
            "Vector_pointer : pointage impossible dans essais\n");
  v.inserer(60, nombre(10));
  EXPECT_EQ(v.capacite(), 60);
}

TEST(Vecteur, FautesDInsertion) {
  uef_vector neuf;
  EXPECT_EQ(loc_faute([&] { neuf.inserer(1, nombre()); }), "Vector_Inserer : aucun element present dans :\n");
  uef_vector v = loc_liste(1);
  EXPECT_EQ(loc_faute([&] { v.inserer(1, mot()); }),
            "Vector_Inserer : element de type incorrect pour :essais\n");
  EXPECT_EQ(loc_faute([&] { v.inserer(0, nombre()); }),
            "Vector_Inserer : position  incorrecte dans:essais\n");
}

TEST(Vecteur, Remplacer) {
  uef_vector v = loc_liste(2);
  v.remplacer(2, nombre(9));
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 9));
  EXPECT_EQ(loc_faute([&] { v.remplacer(1, mot()); }),
            "Vector_Remplacer : element de type incorrect pour :essais\n");
  EXPECT_EQ(loc_faute([&] { v.remplacer(0, nombre()); }),
            "Vector_Remplacer : position  incorrecte dans:essais\n");
  EXPECT_EQ(loc_faute([&] { v.remplacer(3, nombre()); }),
            "Vector_Remplacer : position  incorrecte dans:essais\n");
  v.pointer(1);
  EXPECT_EQ(loc_faute([&] { v.remplacer(1, nombre()); }),
            "Vector_Remplacer : suppression d element pointe dans:essais\n");
  uef_vector neuf;
  EXPECT_EQ(loc_faute([&] { neuf.remplacer(1, nombre()); }),
            "Vector_Remplacer : aucun element present dans :\n");
}

TEST(Vecteur, Supprimer) {
  uef_vector v = loc_liste(5);
  v.supprimer(2, 2);
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 4, 5));
  v.supprimer(3, 1);
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 4));
  v.ajouter(nombre(6));
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 4, 6));
  v.supprimer(2, 2);
  v.inserer(4, nombre(9));
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 9)) << "the slots of deleted elements are empty";
  v.supprimer(1, 4);
  EXPECT_EQ(v.nombre(), 0);
}

TEST(Vecteur, FautesDeSuppression) {
  uef_vector v = loc_liste(3);
  const std::string fin = "vector_supprimer : Suppression impossible  dans essais\n";
  EXPECT_EQ(loc_faute([&] { v.supprimer(2, 0); }),
            "Vector : Suppression impossible - nombre incorrect pour  : essais\n" + fin);
  EXPECT_EQ(loc_faute([&] { v.supprimer(4, 1); }),
            "Vector : Suppression impossible - position  incorrecte pour  :essais\n" + fin);
  EXPECT_EQ(loc_faute([&] { v.supprimer(0, 1); }),
            "Vector : Suppression impossible - position  incorrecte pour  :essais\n" + fin);
  EXPECT_EQ(loc_faute([&] { v.supprimer(2, 3); }),
            "Vector : Suppression impossible - position+nombre incorrecte pour essais\n" + fin);
  EXPECT_EQ(loc_faute([&] { v.supprimer(2, 2147483647); }),
            "Vector : Suppression impossible - position+nombre incorrecte pour essais\n" + fin);
  v.pointer(3);
  EXPECT_EQ(loc_faute([&] { v.supprimer(1, 3); }),
            "Vector : Suppression impossible - element pointe essais\n");
  EXPECT_EQ(v.nombre(), 3) << "nothing is deleted";
}

TEST(Vecteur, Vider) {
  uef_vector v = loc_liste(12);
  v.vider();
  EXPECT_EQ(v.nombre(), 0);
  EXPECT_EQ(v.capacite(), 10);
  EXPECT_EQ(v.label(), "essais");
  v.ajouter(nombre(1));
  v.pointer(1);
  EXPECT_EQ(loc_faute([&] { v.vider(); }), "vector_Desallouer : un element est pointe dans :essais\n");
  v.vider(3, true);
  EXPECT_EQ(v.capacite(), 3);
  uef_vector neuf;
  EXPECT_EQ(loc_faute([&] { neuf.vider(); }), "Vector_vider : vecteur non alloue :\n");
}

TEST(Vecteur, DesallouerEtDetruire) {
  uef_vector v = loc_liste(2);
  v.desallouer();
  EXPECT_EQ(v.nombre(), 0);
  EXPECT_EQ(v.label(), "essais");
  v.ajouter(nombre(5));
  EXPECT_THAT(loc_valeurs(v), ElementsAre(5)) << "it grows again from nothing";
  v.pointer(1);
  EXPECT_EQ(loc_faute([&] { v.desallouer(); }), "vector_Desallouer : un element est pointe dans :essais\n");
  v.detruire();
  EXPECT_FALSE(v.est_cree());
  v.ajouter(mot());
  EXPECT_EQ(v.label(), "N_R") << "as new";
}

TEST(Vecteur, LAffectationPartageLesElements) {
  uef_vector v = loc_liste(2);
  uef_vector autre = v;
  uef_comme<nombre>(v.pointer(1), "").valeur = 10;
  EXPECT_THAT(loc_valeurs(autre), ElementsAre(10, 2));
  v.detruire();
  EXPECT_THAT(loc_valeurs(autre), ElementsAre(10, 2));
  EXPECT_EQ(autre.label(), "essais");
}

TEST(Vecteur, TransfererCopieLesElements) {
  uef_vector source = loc_liste(2);
  uef_vector v = loc_liste(5, "avant");
  v.transferer(source);
  uef_comme<nombre>(source.pointer(1), "").valeur = 10;
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 2));
  EXPECT_EQ(v.label(), "essais");
  EXPECT_EQ(source.nombre(), 2) << "the source stays as it was";
  v.transferer(v);
  EXPECT_THAT(loc_valeurs(v), ElementsAre(1, 2));
  v.transferer(uef_vector());
  EXPECT_FALSE(v.est_cree());
}

TEST(Vecteur, TransfererUneListePolymorphe) {
  uef_vector source;
  source.creer("tout", nombre(), 10, true);
  source.ajouter(nombre(1));
  source.ajouter(mot());
  uef_vector v;
  v.transferer(source);
  v.ajouter(mot());
  EXPECT_EQ(v.nombre(), 3) << "the copy takes what the source takes";
}

TEST(Pointage, JusquALaFinDuBloc) {
  uef_vector v = loc_liste(2);
  {
    const uef_pointage<nombre> p(v, 1);
    p->valeur = 7;
    (*p).valeur += 1;
    EXPECT_EQ(loc_faute([&] { v.supprimer(1, 1); }),
              "Vector : Suppression impossible - element pointe essais\n");
  }
  v.supprimer(2, 1);
  EXPECT_THAT(loc_valeurs(v), ElementsAre(8));
  {
    const uef_pointage<nombre> p(v, 1);
    v.vider(10, true);
    p->valeur = 9;  // the element outlives a forced deletion
  }
  EXPECT_EQ(v.nombre(), 0);
}

TEST(Parcours, UneAutreClasseEstUneFaute) {
  uef_vector v = loc_liste(1);
  EXPECT_EQ(loc_faute([&] {
              for (const mot& m : uef_parcours<mot>(v)) (void)m;
            }),
            "uef_comme : element de type incorrect dans :essais\n");
}

TEST(Parcours, LesClassesDerivees) {
  uef_vector v;
  v.creer("tout", nombre(), 10, true);
  nombre_derive d;
  d.valeur = 4;
  v.ajouter(nombre(3));
  v.ajouter(d);
  EXPECT_THAT(loc_valeurs(v), ElementsAre(3, 4));
}

TEST(Utilit, AvertissementEtCompteur) {
  systeme_memoire machine;
  const socle::systeme_en_place en_place(machine);
  uef_avertissement("prudence");
  EXPECT_EQ(machine.texte_console, "Avertissement:\n - prudence\n");
  uef_assert(true, "non");
  EXPECT_EQ(machine.texte_console, "Avertissement:\n - prudence\n");
  int v = 4;
  EXPECT_EQ(uef_pp(v), 5);
  EXPECT_EQ(v, 5);
}
