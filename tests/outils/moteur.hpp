// What the tests of the engine share: an engine that is empty before and after each test, and its journal.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_PAR_Parametres.hpp"
#include "QB7_Sections.hpp"
#include "Texte.hpp"

class Moteur : public testing::Test {
 protected:
  Moteur() { remettre(); }
  ~Moteur() override { remettre(); }

  static void remettre() {
    qb7_quitter();
    qb7_err_reinitialiser();
    qb7_par_reinitialiser();
  }
};

/// Names of the routines in the journal, innermost first.
inline std::vector<std::string> journal_du_moteur() {
  std::vector<std::string> noms;
  for (int rang = 1; rang <= qb7_err_nbre_messages(); ++rang) {
    socle::texte<31> nom;
    socle::texte<31> erreur;
    qb7_err_consulter(rang, nom, erreur);
    noms.emplace_back(nom.utile());
  }
  return noms;
}

/// A zone with its points, which take the numbers 100 * num_zone + 1, 2...; active unless told otherwise.
inline void creer_zone_et_points(int num_section, int num_zone, int type_zone, int num_materiau,
                                 const std::vector<point_yz>& points, bool active = true) {
  std::vector<int> numeros;
  for (const point_yz& p : points) {
    numeros.push_back(100 * num_zone + static_cast<int>(numeros.size()) + 1);
    ASSERT_EQ(qb7_creer_point(num_section, numeros.back(), p.y, p.z), ier_2{});
  }
  ASSERT_EQ(qb7_creer_zone(num_section, num_zone, type_zone, num_materiau, numeros), ier_2{});
  ASSERT_EQ(qb7_activer_zone(num_section, num_zone, active, false), ier_2{});
}
