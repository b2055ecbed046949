// Latin-1 texts from UTF-8 sources, converted by the compiler: "durée"_l1.
// A character beyond U+00FF does not compile.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace socle {

/// The Latin-1 bytes of a UTF-8 literal, as a template argument.
template <std::size_t N>
struct litteral_l1 {
  std::array<char, N> octets{};
  std::size_t longueur = 0;

  // NOLINTNEXTLINE(google-explicit-constructor): a literal converts by itself
  consteval litteral_l1(const char (&utf8)[N]) {
    for (std::size_t i = 0; i + 1 < N; ++i) {
      const auto octet = static_cast<unsigned char>(utf8[i]);
      if (octet < 0x80) {
        octets[longueur++] = utf8[i];
      } else if ((octet == 0xC2 || octet == 0xC3) && i + 2 < N) {
        const auto suite = static_cast<unsigned char>(utf8[++i]);
        octets[longueur++] = static_cast<char>(((octet & 0x03U) << 6U) | (suite & 0x3FU));
      } else {
        throw "this character is not in Latin-1";
      }
    }
  }
};

inline namespace litteraux {
/// The Latin-1 bytes of a literal with accents.
template <litteral_l1 L>
constexpr std::string_view operator""_l1() {
  return {L.octets.data(), L.longueur};
}
}  // namespace litteraux

}  // namespace socle
