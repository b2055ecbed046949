#include "QB7_Jacobie.hpp"

#include <cmath>
#include <cstddef>

#include "Simple.hpp"

using socle::simple;

namespace {

constexpr std::size_t n = 3;

struct terme {
  std::size_t p, q;
  double maxa;
};

/// The largest term above the diagonal, the first one by columns; the corner is looked at first of all.
terme loc_maxpq(const matrice_3& a) {
  terme t{0, n - 1, std::abs(a[0][n - 1])};
  for (std::size_t q = 1; q < n; ++q) {
    for (std::size_t p = 0; p < q; ++p) {
      if (std::abs(a[p][q]) > t.maxa) t = {p, q, std::abs(a[p][q])};
    }
  }
  return t;
}

/// The sum of the entries and not of their squares: the scale that the stop test was tuned with.
double loc_rms(const matrice_3& a) {
  double somme = 0;
  for (const auto& ligne : a) {
    for (const double x : ligne) somme += x;
  }
  return std::sqrt(std::abs(somme)) / static_cast<double>(n);
}

/// Rotation in the plane (p, q) that makes a(p, q) zero. Equal diagonal terms turn by 45 degrees.
void loc_zeropq(matrice_3& a, matrice_3* v, const terme& t) {
  const auto [p, q, maxa] = t;
  const double theta = (a[q][q] - a[p][p]) / (2 * a[p][q]);
  const bool theta_ordinaire = theta < simple(1e19f);
  const double tan = theta_ordinaire ? (theta < 0 ? -1 : 1) / (std::abs(theta) + std::sqrt(theta * theta + 1))
                                     : 1 / std::abs(2 * theta);
  const double c = 1 / std::sqrt(tan * tan + 1);
  const double s = tan * c;
  const std::size_t r = n - p - q;  // the third rank
  a[p][p] -= tan * a[p][q];
  a[q][q] += tan * a[p][q];
  a[p][q] = a[q][p] = 0;
  const double arp = a[r][p];
  const double arq = a[r][q];
  a[r][p] = a[p][r] = c * arp - s * arq;
  a[r][q] = a[q][r] = s * arp + c * arq;
  if (v == nullptr) return;
  for (auto& ligne : *v) {
    const double vp = ligne[p];
    const double vq = ligne[q];
    ligne[p] = c * vp - s * vq;
    ligne[q] = s * vp + c * vq;
  }
}

}  // namespace

int uti_analyse_spectrale_matrice_symetrique_jacobie(matrice_3& a, matrice_3* v, double epsilon, int countr) {
  if (v != nullptr) *v = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  int passes = 0;
  for (terme t = loc_maxpq(a); loc_rms(a) * epsilon < t.maxa; t = loc_maxpq(a)) {
    if (passes > countr) return 1;
    loc_zeropq(a, v, t);
    ++passes;
  }
  return 0;
}
