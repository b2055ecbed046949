#include "QB7_GBD_LST.hpp"

#include <gmock/gmock.h>

#include <vector>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_GBD_LOI.hpp"
#include "QB7_GBD_POINT.hpp"
#include "QB7_PAR_Parametres.hpp"

namespace {

using testing::ElementsAre;

gbd_liste<gbd_point> loc_liste(const std::vector<int>& numeros) {
  gbd_liste<gbd_point> liste;
  for (const int n : numeros)
    EXPECT_EQ(gbd_point_lst_ajouter(liste, {.num_point = n, .yz_point = {n * 0.5, 0}}), ier_2{});
  return liste;
}

std::vector<int> loc_numeros(const gbd_liste<gbd_point>& liste) {
  std::vector<int> numeros;
  for (const gbd_point& p : liste) numeros.push_back(p.num_point);
  return numeros;
}

class Liste : public testing::Test {
 protected:
  ~Liste() override { qb7_par_reinitialiser(); }
};

}  // namespace

TEST_F(Liste, RangeParNumeroDansQuelqueOrdreQueViennentLesElements) {
  EXPECT_THAT(loc_numeros(loc_liste({5, -3, 9, 1, 7, 2})), ElementsAre(-3, 1, 2, 5, 7, 9));
}

TEST_F(Liste, TrouveCeQuElleTientEtRienDAutre) {
  auto liste = loc_liste({2, 4, 6, 8, 10});
  for (const int n : {10, 2, 4, 8, 6, 6, 4, 2, 10}) {
    ier_2 ier{1, 1};
    const gbd_point* p = gbd_point_lst_chercher(liste, n, ier);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->num_point, n);
    EXPECT_EQ(ier, ier_2{});
    EXPECT_EQ(liste.lst_actuel(), p);
  }
  for (const int n : {1, 3, 5, 9, 11}) {
    ier_2 ier;
    EXPECT_EQ(gbd_point_lst_chercher(liste, n, ier), nullptr);
    EXPECT_EQ(ier, (ier_2{ERR_NON_POINT, n}));
    EXPECT_EQ(liste.lst_consulter_elt(n), nullptr);
  }
}

TEST_F(Liste, LeCurseurVaEtVient) {
  auto liste = loc_liste({1, 2, 3});
  EXPECT_EQ(liste.lst_premier()->num_point, 1);
  EXPECT_EQ(liste.lst_precedent(), nullptr);
  EXPECT_EQ(liste.lst_suivant()->num_point, 2);
  EXPECT_EQ(liste.lst_dernier()->num_point, 3);
  EXPECT_EQ(liste.lst_suivant(), nullptr);
  EXPECT_EQ(liste.lst_actuel()->num_point, 3);
  EXPECT_EQ(liste.lst_precedent()->num_point, 2);
  gbd_liste<gbd_point> vide;
  EXPECT_EQ(vide.lst_premier(), nullptr);
  EXPECT_EQ(vide.lst_dernier(), nullptr);
  EXPECT_EQ(vide.lst_actuel(), nullptr);
  EXPECT_EQ(vide.lst_chercher_elt(1), nullptr);
}

// Walks over zones look up mothers by lst_consulter_elt, which must not disturb the walk.
TEST_F(Liste, ConsulterLaisseLeCurseur) {
  auto liste = loc_liste({1, 2, 3});
  liste.lst_premier();
  EXPECT_EQ(liste.lst_consulter_elt(3)->num_point, 3);
  EXPECT_EQ(liste.lst_actuel()->num_point, 1);
}

TEST_F(Liste, UnNumeroPrisNEstEcraseQueSiCEstPermis) {
  auto liste = loc_liste({1, 2, 3});
  EXPECT_EQ(gbd_point_lst_ajouter(liste, {.num_point = 2, .yz_point = {9, 9}}), (ier_2{ERR_POINT_EXISTE, 2}));
  EXPECT_EQ(liste.lst_chercher_elt(2)->yz_point, (point_yz{1, 0}));
  qb7_par.qb7_par_ecraser_permis = true;
  const gbd_point* avant = liste.lst_chercher_elt(2);
  EXPECT_EQ(gbd_point_lst_ajouter(liste, {.num_point = 2, .yz_point = {9, 9}}), ier_2{});
  EXPECT_EQ(liste.lst_chercher_elt(2), avant);
  EXPECT_EQ(avant->yz_point, (point_yz{9, 9}));
  EXPECT_EQ(liste.lst_longueur(), 3);
}

TEST_F(Liste, UnElementNeBougePasQuandDAutresViennentOuPartent) {
  auto liste = loc_liste({50});
  const gbd_point* p = liste.lst_premier();
  for (int n = 99; n > 0; --n) {
    const ier_2 attendu = n == 50 ? ier_2{ERR_POINT_EXISTE, 50} : ier_2{};
    EXPECT_EQ(gbd_point_lst_ajouter(liste, {.num_point = n, .yz_point = {}}), attendu);
  }
  EXPECT_TRUE(liste.lst_supprimer_elt(49));
  EXPECT_FALSE(liste.lst_supprimer_elt(49));
  EXPECT_EQ(liste.lst_chercher_elt(50), p);
  EXPECT_EQ(p->yz_point, (point_yz{25, 0}));
}

TEST_F(Liste, UneCopieASesPropresElements) {
  const auto liste = loc_liste({1, 2, 3});
  gbd_liste<gbd_point> copie = liste;
  copie.lst_chercher_elt(2)->yz_point = {7, 7};
  EXPECT_TRUE(copie.lst_supprimer_elt(3));
  EXPECT_THAT(loc_numeros(liste), ElementsAre(1, 2, 3));
  EXPECT_EQ(liste.lst_consulter_elt(2)->yz_point, (point_yz{1, 0}));
  copie = liste;
  EXPECT_THAT(loc_numeros(copie), ElementsAre(1, 2, 3));
  copie.lst_vider();
  EXPECT_EQ(copie.lst_longueur(), 0);
  EXPECT_EQ(liste.lst_longueur(), 3);
}

TEST_F(Liste, LesLoisSeRangentParEtatLimitePuisParMateriau) {
  gbd_liste<gbd_loi> liste;
  for (const auto& [etat, materiau] : std::vector<std::pair<int, int>>{{2, 1}, {1, 9}, {1, 3}, {2, 0}}) {
    gbd_loi loi;
    loi.num_etat_lim = etat;
    loi.num_materiau = materiau;
    EXPECT_EQ(gbd_loi_lst_ajouter(liste, loi), ier_2{});
  }
  std::vector<std::pair<int, int>> clefs;
  for (const gbd_loi& l : liste) clefs.emplace_back(l.num_etat_lim, l.num_materiau);
  EXPECT_THAT(clefs, ElementsAre(std::pair{1, 3}, std::pair{1, 9}, std::pair{2, 0}, std::pair{2, 1}));
  ier_2 ier;
  EXPECT_EQ(gbd_loi_lst_chercher(liste, {.num_etat_lim = 3, .num_materiau = 9}, ier), nullptr);
  EXPECT_EQ(ier, (ier_2{ERR_NON_LOI, 9}));
  gbd_loi loi = *liste.lst_premier();
  EXPECT_EQ(gbd_loi_lst_ajouter(liste, loi), (ier_2{ERR_LOI_EXISTE, 3}));
}
