// Integer and power arithmetic with a result for every argument, where C++ leaves it undefined.
#pragma once

#include <array>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
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

/// 10^n in double precision. The number decoders rest on it: they reach the greatest double only with powers
/// that are not off by their last bits, as repeated squaring leaves them beyond 10^22, the last exact one.
inline double puissance_dix(int n) {
  constexpr std::array<double, 23> exactes{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                           1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                           1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  const auto exposant = static_cast<std::size_t>(std::abs(n));
  if (exposant >= exactes.size()) return std::pow(10.0, n);
  return n < 0 ? 1.0 / exactes[exposant] : exactes[exposant];
}

/// Place in an array of what has this position, counted from 1.
constexpr std::size_t indice(int position) {
  assert(position >= 1);
  return static_cast<std::size_t>(position - 1);
}

}  // namespace socle
