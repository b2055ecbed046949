#include "Zof_Utilit.hpp"

#include <algorithm>

#include "Edition.hpp"

using socle::ajuste_gauche;
using socle::edite;
using socle::texte;

namespace {

constexpr std::string_view loc_absent = "Non renseigne";

}  // namespace

texte<15> zof_chaine_numerique_double(double val) {
  if (!est_renseigne_double(val)) return loc_absent;
  return ajuste_gauche(edite(socle::G{15, 5}, val));
}

texte<15> zof_chaine_numerique_geometrique(double val) {
  if (!est_renseigne_double(val)) return loc_absent;
  return ajuste_gauche(edite(socle::F{12, 4}, val));
}

texte<15> zof_chaine_numerique_entier(int val) {
  if (!est_renseigne_integer(val)) return loc_absent;
  return ajuste_gauche(edite(socle::I{10}, val));
}

std::string zof_chaine_numerique_entier_ajuste(int val, int n) {
  std::string resultat(zof_chaine_numerique_entier(val).entier());
  resultat.resize(static_cast<std::size_t>(std::max(n, 0)), ' ');
  return resultat;
}

texte<15> zof_chaine_deformation(double val) {
  if (!est_renseigne_double(val)) return loc_absent;
  return ajuste_gauche(edite(socle::E{15, 5}, val));
}

texte<14> zof_chaine_flux(double val) {
  if (!est_renseigne_double(val)) return loc_absent;
  return ajuste_gauche(edite(socle::F{12, 4}, val));
}
