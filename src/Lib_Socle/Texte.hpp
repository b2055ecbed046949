// Texts of the system: bytes in Latin-1, of fixed length and blank padded (texte), or seen through a view
// (vue_l1). Blanks at the end never count in a comparison.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "Litteral.hpp"
#include "Non_renseigne.hpp"

namespace socle {

/// What every operation that writes or compares takes. A plain literal must be ASCII: an accent needs _l1.
class vue_l1 {
 public:
  // NOLINTBEGIN(google-explicit-constructor): every text converts to a view, a texte excepted
  template <std::size_t N>
  consteval vue_l1(const char (&ascii)[N]) : octets_(ascii, N - 1) {
    for (const char c : octets_)
      if (static_cast<unsigned char>(c) >= 0x80) throw "a literal with accents needs _l1";
  }
  constexpr vue_l1(std::string_view octets) : octets_(octets) {}
  vue_l1(const std::string& octets) : octets_(octets) {}
  // NOLINTEND(google-explicit-constructor)
  [[nodiscard]] constexpr std::string_view octets() const { return octets_; }

 private:
  std::string_view octets_;
};

/// The text without the blanks at its end.
constexpr std::string_view sans_blancs_finals(std::string_view v) {
  const auto fin = v.find_last_not_of(' ');
  return v.substr(0, fin == std::string_view::npos ? 0 : fin + 1);
}

/// The text without the blanks at its start.
constexpr std::string_view sans_blancs_initiaux(std::string_view v) {
  const auto debut = v.find_first_not_of(' ');
  return debut == std::string_view::npos ? std::string_view{} : v.substr(debut);
}

/// Text of N Latin-1 characters, blank padded, cut when longer.
/// It does not convert to a view: entier() or utile() says which of the two goes out.
template <std::size_t N>
class texte {
 public:
  constexpr texte() { octets_.fill(' '); }
  // NOLINTBEGIN(google-explicit-constructor): a field takes any text
  constexpr texte(vue_l1 v) : texte(v.octets()) {}
  constexpr texte(std::string_view v) {
    const std::size_t n = std::min(N, v.size());
    std::copy_n(v.begin(), n, octets_.begin());
    std::fill(octets_.begin() + static_cast<std::ptrdiff_t>(n), octets_.end(), ' ');
  }
  texte(const std::string& v) : texte(std::string_view(v)) {}
  template <std::size_t M>
  consteval texte(const char (&ascii)[M]) : texte(vue_l1(ascii)) {}
  constexpr texte(non_renseigne_t) : texte(std::string_view("N_R")) {}
  // NOLINTEND(google-explicit-constructor)

  /// All N characters.
  [[nodiscard]] constexpr std::string_view entier() const { return {octets_.data(), N}; }
  /// Without the blanks at the end.
  [[nodiscard]] constexpr std::string_view utile() const { return sans_blancs_finals(entier()); }
  [[nodiscard]] constexpr bool vide() const { return utile().empty(); }
  static constexpr std::size_t longueur_max = N;

 private:
  std::array<char, N> octets_{};
};

template <std::size_t N, std::size_t M>
constexpr bool operator==(const texte<N>& a, const texte<M>& b) {
  return a.utile() == b.utile();
}
template <std::size_t N>
constexpr bool operator==(const texte<N>& a, vue_l1 b) {
  return a.utile() == sans_blancs_finals(b.octets());
}

/// The pieces one behind the other.
inline std::string concat(std::initializer_list<vue_l1> morceaux) {
  std::size_t longueur = 0;
  for (const vue_l1& m : morceaux) longueur += m.octets().size();
  std::string resultat;
  resultat.reserve(longueur);
  for (const vue_l1& m : morceaux) resultat += m.octets();
  return resultat;
}

/// A keyword as one number, so that a block of commands is a switch and a keyword listed twice does not
/// compile.
enum class mot_clef : std::uint32_t {};

/// The first four characters in 32 bits, blank padded.
constexpr mot_clef clef(std::string_view mot) {
  std::uint32_t valeur = 0;
  for (std::size_t i = 0; i < 4; ++i)
    valeur = (valeur << 8U) | static_cast<unsigned char>(i < mot.size() ? mot[i] : ' ');
  return mot_clef{valeur};
}

template <std::size_t N>
constexpr mot_clef clef(const texte<N>& mot) {
  return clef(mot.entier());
}

inline namespace litteraux {
/// "ELU"_mot: a keyword of at most four characters, blank padded; a longer one does not compile.
consteval mot_clef operator""_mot(const char* mot, std::size_t longueur) {
  if (longueur > 4) throw "a keyword has at most four characters";
  return clef(std::string_view(mot, longueur));
}
}  // namespace litteraux

}  // namespace socle
