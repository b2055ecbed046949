#include "UTL_02_composition.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace {

constexpr unsigned char fin_ascii = 0x80;

constexpr bool loc_est_ascii(char c) { return static_cast<unsigned char>(c) < fin_ascii; }

/// Within a path: characters that are not part of an address as they stand, or that end it.
constexpr bool loc_est_a_coder(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code <= ' ' || code >= 0x7F || std::string_view("'\"<>%#?&").find(c) != std::string_view::npos;
}

}  // namespace

composition& composition::operator<<(int v) {
  std::array<char, 12> chiffres{};
  const auto fin = std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), v).ptr;
  octets_.append(chiffres.data(), fin);
  return *this;
}

composition& composition::operator<<(en_html v) {
  std::string_view reste = v.texte;
  while (!reste.empty()) {
    const auto special = std::find_if_not(reste.begin(), reste.end(), loc_est_ascii);
    const auto n = static_cast<std::size_t>(special - reste.begin());
    octets_ += reste.substr(0, n);
    if (n == reste.size()) break;
    *this << "&#" << static_cast<int>(static_cast<unsigned char>(reste[n])) << ";";
    reste.remove_prefix(n + 1);
  }
  return *this;
}

composition& composition::operator<<(en_attribut v) {
  std::string_view reste = v.texte;
  for (std::size_t quote = reste.find('\''); quote != std::string_view::npos; quote = reste.find('\'')) {
    *this << en_html{reste.substr(0, quote)} << "&#39;";
    reste.remove_prefix(quote + 1);
  }
  return *this << en_html{reste};
}

composition& composition::operator<<(en_adresse v) {
  constexpr std::string_view chiffres = "0123456789ABCDEF";
  for (const char c : v.chemin) {
    if (c == '\\') {
      octets_ += '/';
    } else if (loc_est_a_coder(c)) {
      const auto code = static_cast<unsigned char>(c);
      octets_ += '%';
      octets_ += chiffres[code >> 4U];
      octets_ += chiffres[code & 0x0FU];
    } else {
      octets_ += c;
    }
  }
  return *this;
}

void composition::envoyer() {
  if (!octets_.empty()) unite_.ecrire(octets_);
  octets_.clear();
}
