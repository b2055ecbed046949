#include "Uti_divers.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "Arret.hpp"
#include "Systeme.hpp"

namespace {

/// Elimination with the greatest pivot of each column, on a matrix with `n` rows and any number of right-hand
/// sides behind its first n columns: these become the solutions.
template <class reel, class acces>
bool loc_eliminer(std::size_t n, std::size_t colonnes, acces a) {
  reel plus_grand = 0;
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = 0; j < n; ++j) plus_grand = std::max(plus_grand, std::abs(a(i, j)));
  // Below this a pivot is only what the rounding of the others left.
  const reel negligeable = static_cast<reel>(n) * std::numeric_limits<reel>::epsilon() * plus_grand;
  for (std::size_t k = 0; k < n; ++k) {
    std::size_t p = k;
    for (std::size_t i = k + 1; i < n; ++i)
      if (std::abs(a(i, k)) > std::abs(a(p, k))) p = i;
    if (!(std::abs(a(p, k)) > negligeable)) return false;
    for (std::size_t j = k; j < colonnes && p != k; ++j) std::swap(a(p, j), a(k, j));
    for (std::size_t i = 0; i < n; ++i) {
      if (i == k) continue;
      const reel facteur = a(i, k) / a(k, k);
      for (std::size_t j = k; j < colonnes; ++j) a(i, j) -= facteur * a(k, j);
    }
  }
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = n; j < colonnes; ++j) a(i, j) /= a(i, i);
  return true;
}

template <class reel>
int loc_rang_maxi(std::span<const reel> liste) {
  if (liste.empty()) return 0;
  return static_cast<int>(std::max_element(liste.begin(), liste.end()) - liste.begin()) + 1;
}

}  // namespace

bool uti_resolve_gauss_d(socle::matrice& a, std::span<double> b) {
  const std::size_t n = b.size();
  return loc_eliminer<double>(
      n, n + 1, [&](std::size_t i, std::size_t j) -> double& { return j < n ? a(i, j) : b[i]; });
}

bool uti_resolve_gauss_s(std::span<float> a, std::span<float> b) {
  const std::size_t n = b.size();
  return loc_eliminer<float>(
      n, n + 1, [&](std::size_t i, std::size_t j) -> float& { return j < n ? a[i * n + j] : b[i]; });
}

bool uti_inversion_matrice_non_symetrique_d(socle::matrice& a) {
  const std::size_t n = a.lignes();
  socle::matrice inverse(n, n);
  for (std::size_t i = 0; i < n; ++i) inverse(i, i) = 1;
  const bool reguliere = loc_eliminer<double>(
      n, 2 * n, [&](std::size_t i, std::size_t j) -> double& { return j < n ? a(i, j) : inverse(i, j - n); });
  if (reguliere) a = inverse;
  return reguliere;
}

void uti_tri_croissant_e(std::span<int> liste) { std::sort(liste.begin(), liste.end()); }

int uti_rang_valeur_v_e(std::span<const int> liste, int valeur) {
  const auto trouvee = std::find(liste.begin(), liste.end(), valeur);
  return trouvee == liste.end() ? 0 : static_cast<int>(trouvee - liste.begin()) + 1;
}

int uti_rang_valeur_maxi_s(std::span<const float> liste) { return loc_rang_maxi(liste); }
int uti_rang_valeur_maxi_e(std::span<const int> liste) { return loc_rang_maxi(liste); }

vecteur_3 uti_vecteur_2_plans(const vecteur_3& normale_1, const vecteur_3& normale_2) {
  return uti_produit_v_spatial_d(normale_1, normale_2);
}

vecteur_3 uti_produit_v_spatial_d(const vecteur_3& a, const vecteur_3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

float uti_produit_scalaire_s(std::span<const float> a, std::span<const float> b) {
  return std::inner_product(a.begin(), a.end(), b.begin(), 0.0F);
}
double uti_produit_scalaire_d(std::span<const double> a, std::span<const double> b) {
  return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}
float uti_norme_euclidienne_s(std::span<const float> v) { return std::sqrt(uti_produit_scalaire_s(v, v)); }
double uti_norme_euclidienne_d(std::span<const double> v) { return std::sqrt(uti_produit_scalaire_d(v, v)); }

socle::matrice uti_produit_matrice_a_bt_d(const socle::matrice& a, const socle::matrice& b) {
  socle::matrice produit(a.lignes(), b.lignes());
  for (std::size_t i = 0; i < a.lignes(); ++i)
    for (std::size_t j = 0; j < b.lignes(); ++j)
      produit(i, j) = uti_produit_scalaire_d(a.ligne(i), b.ligne(j));
  return produit;
}

matrice_3 uti_op_rotation_spatiale_d(const vecteur_3& axe, double angle) {
  const double norme = uti_norme_euclidienne_d(axe);
  if (!(norme > 0)) return {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  const double x = axe[0] / norme;
  const double y = axe[1] / norme;
  const double z = axe[2] / norme;
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  const double d = 1 - c;
  return {{{c + d * x * x, d * x * y - s * z, d * x * z + s * y},
           {d * x * y + s * z, c + d * y * y, d * y * z - s * x},
           {d * x * z - s * y, d * y * z + s * x, c + d * z * z}}};
}

double uti_arc_sinus_d(double sinus) { return std::asin(std::clamp(sinus, -1.0, 1.0)); }
double uti_arc_cosinus_d(double cosinus) { return std::acos(std::clamp(cosinus, -1.0, 1.0)); }
double uti_arc_sinus_cosinus_d(double sinus, double cosinus) {
  return std::copysign(uti_arc_cosinus_d(cosinus), sinus);
}

void uti_arret_premature(socle::vue_l1 procedure) {
  socle::le_systeme().console().ligne(
      socle::concat({"' ATTENTION - ARRET PREMATURE : PROCEDURE '", procedure, " PREVENIR LE GESTIONNAIRE"}));
  socle::arreter(1);
}
