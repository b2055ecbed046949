// The laws' side of the facade.
#include <algorithm>
#include <cmath>
#include <utility>

#include "QB7_Acces.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_GBD_SECT.hpp"
#include "QB7_RDM.hpp"
#include "QB7_Sections.hpp"

ier_2 qb7_creer_loi(int num_materiau, int num_etat_lim, std::span<const double> epsilons, int degre,
                    std::span<const qb7_polynome> coeffs) {
  qb7_err_effacer();
  gbd_loi loi;
  ier_2 ier = gbd_loi_creer(num_materiau, num_etat_lim, epsilons, degre, coeffs, loi);
  if (!ier) ier = gbd_loi_lst_ajouter(gbd_glob.glob_lst_lois, std::move(loi));
  return err_traiter("QB7_Creer_Loi", ier);
}

ier_2 qb7_supprimer_loi(int num_materiau, int num_etat_lim) {
  return qb7_sur_loi("QB7_Supprimer_Loi", num_materiau, num_etat_lim, [](const gbd_loi& loi) {
    gbd_glob.glob_lst_lois.lst_supprimer_elt(loi.clef());
    return ier_2{};
  });
}

ier_2 qb7_copier_loi(int num_materiau, int num_etat_lim, int num_materiau_c, int num_etat_lim_c) {
  return qb7_sur_loi("QB7_Copier_Loi", num_materiau, num_etat_lim, [&](const gbd_loi& loi) {
    gbd_loi copie = loi;
    copie.num_materiau = num_materiau_c;
    copie.num_etat_lim = num_etat_lim_c;
    return gbd_loi_lst_ajouter(gbd_glob.glob_lst_lois, std::move(copie));
  });
}

ier_2 qb7_lire_dims_loi(int num_materiau, int num_etat_lim, int& nbre_interv, int& degre_loi) {
  nbre_interv = 0;
  degre_loi = 0;
  return qb7_sur_loi("QB7_Lire_Dims_Loi", num_materiau, num_etat_lim, [&](const gbd_loi& loi) {
    nbre_interv = loi.nbre_interv();
    degre_loi = loi.degre;
    return ier_2{};
  });
}

ier_2 qb7_lire_tabs_loi(int num_materiau, int num_etat_lim, std::span<double> epsilons,
                        std::span<qb7_polynome> coeffs) {
  std::ranges::fill(epsilons, 0.0);
  std::ranges::fill(coeffs, qb7_polynome{});
  return qb7_sur_loi("QB7_Lire_Tabs_Loi", num_materiau, num_etat_lim, [&](const gbd_loi& loi) {
    if (epsilons.size() != loi.epsilons.size() || coeffs.size() != loi.coeffs.size())
      return ier_2{ERR_DIM_TAB, loi.nbre_interv()};
    std::ranges::copy(loi.epsilons, epsilons.begin());
    std::ranges::copy(loi.coeffs, coeffs.begin());
    return ier_2{};
  });
}

ier_2 qb7_fixer_type_trou(int num_materiau, int num_etat_lim, int type_trou) {
  return qb7_sur_loi("QB7_Fixer_Type_Trou", num_materiau, num_etat_lim, [&](gbd_loi& loi) {
    if (type_trou < qb7_trou_encombrement || type_trou > qb7_trou_selon_zone)
      return ier_2{ERR_TYPE_TROU, type_trou};
    loi.type_trou = type_trou;
    return ier_2{};
  });
}

ier_2 qb7_lire_type_trou(int num_materiau, int num_etat_lim, int& type_trou) {
  type_trou = qb7_trou_encombrement;
  return qb7_sur_loi("QB7_Lire_Type_Trou", num_materiau, num_etat_lim, [&](const gbd_loi& loi) {
    type_trou = loi.type_trou;
    return ier_2{};
  });
}

ier_2 qb7_fixer_bornes_loi(int num_materiau, int num_etat_lim, std::optional<double> epsilon_min,
                           std::optional<double> epsilon_max) {
  return qb7_sur_loi("QB7_Fixer_Bornes_Loi", num_materiau, num_etat_lim, [&](gbd_loi& loi) {
    const double min = epsilon_min.value_or(qb7_sans_borne);
    const double max = epsilon_max.value_or(qb7_sans_borne);
    if (!std::isfinite(min) || !std::isfinite(max)) return ier_2{ERR_BORNES_LOI, num_materiau};
    if (min != qb7_sans_borne && max != qb7_sans_borne && min >= max)
      return ier_2{ERR_BORNES_LOI, num_materiau};
    loi.epsilon_min = min;
    loi.epsilon_max = max;
    return ier_2{};
  });
}

ier_2 qb7_lire_bornes_loi(int num_materiau, int num_etat_lim, double& epsilon_min, double& epsilon_max) {
  epsilon_min = 0;
  epsilon_max = 0;
  return qb7_sur_loi("QB7_Lire_Bornes_Loi", num_materiau, num_etat_lim, [&](const gbd_loi& loi) {
    epsilon_min = loi.epsilon_min;
    epsilon_max = loi.epsilon_max;
    return ier_2{};
  });
}

ier_2 qb7_contrainte_materiau(int num_materiau, int num_etat_lim, double epsilon, double& sigma) {
  sigma = 0;
  return qb7_sur_loi("QB7_Contrainte_Materiau", num_materiau, num_etat_lim, [&](const gbd_loi& loi) {
    sigma = rdm_contrainte_materiau(loi, epsilon);
    return ier_2{};
  });
}

ier_2 qb7_young_materiau(int num_materiau, int num_etat_lim, double epsilon, double& e) {
  e = 0;
  return qb7_sur_loi("QB7_Young_Materiau", num_materiau, num_etat_lim, [&](const gbd_loi& loi) {
    e = rdm_young_materiau(loi, epsilon);
    return ier_2{};
  });
}

ier_2 qb7_deformation_materiau(int num_materiau, int num_etat_lim, double sigma, double& epsilon) {
  epsilon = 0;
  return qb7_sur_loi("QB7_Deformation_Materiau", num_materiau, num_etat_lim,
                     [&](const gbd_loi& loi) { return rdm_deformation_materiau(loi, sigma, epsilon); });
}
