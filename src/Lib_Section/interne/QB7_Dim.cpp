#include "QB7_Dim.hpp"

#include <cmath>

#include "QB7_Dim_Optimiseur.hpp"
#include "QB7_Dim_Probleme.hpp"
#include "QB7_ERR_Erreurs.hpp"

namespace {

/// Where no law has a limit the least steel has no meaning; a little stands for it.
constexpr double remplissage_sans_limite = 0.01;
/// Below this a fill coefficient is the rounding of nothing.
constexpr double remplissage_nul = 1e-9;

qb7_dim_t loc_creer(gbd_section& section, std::span<const int> tab_num_etat_lim,
                    std::span<const int> tab_num_etat, std::span<const efforts> tab_efforts) {
  qb7_dim_t dim;
  dim.glob_pt_section = &section;
  dim.glob_pointeurs.resize(tab_efforts.size());
  for (std::size_t s = 0; s < tab_efforts.size(); ++s) {
    pointeur_soll& soll = dim.glob_pointeurs[s];
    soll.num_etat_lim = tab_num_etat_lim[s];
    soll.num_etat = tab_num_etat[s];
    soll.cible = tab_efforts[s];
  }
  return dim;
}

/// Calls f with the fill coefficient of each zone that is designed.
template <class action_t>
void loc_pour_les_remplissages(const qb7_dim_t& dim, action_t&& f) {
  for (std::size_t i = 0; i < dim.glob_surfaces.size(); ++i)
    if (dim.glob_surfaces[i] != 0) f(dim.glob_pt_zones[i]->c_remplissage);
}

/// The second method goes on from the steel where the first one failed. Detail: the method that ended it.
ier_2 loc_optimiser(qb7_dim_t& dim) {
  ier_2 ier = dim_optimiser_1(dim);
  const int methode = ier.code == ERR_ECHEC_OPTIM ? 2 : 1;
  if (methode == 2) ier = dim_optimiser_2(dim);
  loc_pour_les_remplissages(dim, [](double& c) {
    if (std::abs(c) < remplissage_nul) c = 0;
  });
  return {ier.code, methode};
}

ier_2 loc_dimensionner(qb7_dim_t& dim) {
  if (const ier_2 ier = dim_surface_zones(dim)) return ier;
  if (dim.glob_pointeurs.empty()) return {};  // nothing to carry: no steel
  if (const ier_2 ier = dim_init_c_remplissage(dim)) return ier;
  if (const ier_2 ier = dim_init_vars(dim)) return ier;
  if (const ier_2 ier = dim_inegalites(dim)) return ier;
  if (!dim.glob_b_eps_lim.empty()) return loc_optimiser(dim);
  loc_pour_les_remplissages(dim, [](double& c) { c = remplissage_sans_limite; });
  return {};
}

}  // namespace

ier_2 dim_dimensionner(gbd_section& section, std::span<const int> tab_num_etat_lim,
                       std::span<const int> tab_num_etat, std::span<const efforts> tab_efforts,
                       std::optional<int> choix_base_pref) {
  dim_tracer("                              DEBUT OPTIMISATION ");
  ier_2 ier = gbd_sect_creer_etat(section, qb7_etat_du_dimensionnement);
  if (!ier) {
    qb7_dim_t dim = loc_creer(section, tab_num_etat_lim, tab_num_etat, tab_efforts);
    dim.choix_base_pref = choix_base_pref;
    ier = loc_dimensionner(dim);
    const ier_2 rappel = gbd_sect_rappeller_etat(section, qb7_etat_du_dimensionnement);
    if (!ier && rappel) ier = rappel;
    section.lst_etats.lst_supprimer_elt(qb7_etat_du_dimensionnement);
  }
  dim_tracer("                               FIN OPTIMISATION ");
  return err_traiter("DIM_Dimensionner", ier);
}
