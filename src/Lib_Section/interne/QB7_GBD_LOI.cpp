#include "QB7_GBD_LOI.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "QB7_ERR_Erreurs.hpp"
#include "QB7_PAR_Parametres.hpp"

namespace {

/// Rank, from 1, of the left end whose step to the next is the smallest; 0 if all steps are positive. The
/// first left end takes no part in the evaluation of a law, and its step is not looked at.
int loc_rang_pas_negatif(std::span<const double> epsilons) {
  int rang = 0;
  double plus_petit = 0;
  for (std::size_t i = 1; i + 1 < epsilons.size(); ++i) {
    const double pas = epsilons[i + 1] - epsilons[i];
    if (pas > 0 || (rang != 0 && pas >= plus_petit)) continue;
    plus_petit = pas;
    rang = static_cast<int>(i) + 1;
  }
  return rang;
}

/// Rank, from 1, of the first interval whose left end or whose polynomial is not made of finite numbers; else
/// 0.
int loc_rang_non_fini(std::span<const double> epsilons, int degre, std::span<const qb7_polynome> coeffs) {
  const auto fini = [](double x) { return std::isfinite(x); };
  for (std::size_t i = 0; i < epsilons.size(); ++i) {
    const auto fin = coeffs[i].begin() + degre + 1;
    if (!fini(epsilons[i]) || !std::all_of(coeffs[i].begin(), fin, fini)) return static_cast<int>(i) + 1;
  }
  return 0;
}

}  // namespace

ier_2 gbd_loi_creer(int num_materiau, int num_etat_lim, std::span<const double> epsilons, int degre,
                    std::span<const qb7_polynome> coeffs, gbd_loi& loi) {
  if (epsilons.empty()) return {ERR_NBRE_INT_LOI, 0};
  if (degre < 0 || degre > 3) return {ERR_DEGRE_LOI, degre};
  if (coeffs.size() != epsilons.size()) return {ERR_DIM_TAB, static_cast<int>(epsilons.size())};
  if (const int rang = loc_rang_pas_negatif(epsilons); rang != 0) return {ERR_DEF_LOI, rang};
  if (const int rang = loc_rang_non_fini(epsilons, degre, coeffs); rang != 0) return {ERR_DEF_LOI, rang};

  loi = {};
  loi.num_materiau = num_materiau;
  loi.num_etat_lim = num_etat_lim;
  loi.epsilons.assign(epsilons.begin(), epsilons.end());
  loi.coeffs.assign(coeffs.begin(), coeffs.end());
  loi.degre = degre;
  for (qb7_polynome& p : loi.coeffs) std::fill(p.begin() + degre + 1, p.end(), 0.0);
  return {};
}

gbd_loi gbd_loi_meca() {
  gbd_loi loi;
  loi.num_etat_lim = qb7_etat_mecanique;
  loi.epsilons = {0.0};
  loi.coeffs = {{0, 1, 0, 0}};
  loi.degre = 1;
  return loi;
}

std::size_t gbd_loi_intervalle(std::span<const double> epsilons, double epsilon) {
  std::size_t rang = 0;
  while (rang + 1 < epsilons.size() && epsilons[rang + 1] <= epsilon) ++rang;
  return rang;
}

ier_2 gbd_loi_lst_ajouter(gbd_liste<gbd_loi>& liste, gbd_loi loi) {
  const int num_materiau = loi.num_materiau;
  if (liste.lst_inserer_elt(std::move(loi), qb7_par.qb7_par_ecraser_permis)) return {};
  return {ERR_LOI_EXISTE, num_materiau};
}

gbd_loi* gbd_loi_lst_chercher(gbd_liste<gbd_loi>& liste, gbd_clef_loi clef, ier_2& ier) {
  gbd_loi* loi = liste.lst_chercher_elt(clef);
  ier = loi != nullptr ? ier_2{} : ier_2{ERR_NON_LOI, clef.num_materiau};
  return loi;
}
