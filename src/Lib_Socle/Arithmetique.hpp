// Integer and power arithmetic with a result for every argument, where C++ leaves it undefined.
#pragma once

#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace socle {

/// Towards zero; saturates outside the integers, and NaN gives 0.
constexpr int tronquer(double v) {
  if (v != v) return 0;
  if (v >= 2147483647.0) return std::numeric_limits<int>::max();
  if (v <= -2147483648.0) return std::numeric_limits<int>::min();
  return static_cast<int>(v);
}

/// Sums, differences and products modulo 2^32, as the integers of the data language have them.
constexpr int somme_32(int a, int b) {
  return static_cast<int>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}
constexpr int difference_32(int a, int b) {
  return static_cast<int>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}
constexpr int produit_32(int a, int b) {
  return static_cast<int>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

/// 10^n by squaring, with one reciprocal at the end for a negative n. The number decoders rest on these very
/// values: a correctly rounded power may differ in the last bit.
constexpr double puissance_dix(int n) {
  double resultat = 1.0;
  double base = 10.0;
  for (unsigned reste = n < 0 ? 0U - static_cast<unsigned>(n) : static_cast<unsigned>(n); reste != 0;
       reste >>= 1U) {
    if ((reste & 1U) != 0) resultat *= base;
    if (reste > 1U) base *= base;
  }
  return n < 0 ? 1.0 / resultat : resultat;
}

/// Place in an array of what has this position, counted from 1.
constexpr std::size_t indice(int position) {
  assert(position >= 1);
  return static_cast<std::size_t>(position - 1);
}

}  // namespace socle
