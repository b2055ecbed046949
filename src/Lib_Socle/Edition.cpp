#include "Edition.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "Arithmetique.hpp"

namespace socle {
namespace {

/// Right-justified in the width; asterisks where it is too long.
std::string loc_cadrer(int largeur, std::string_view v) {
  const auto l = static_cast<std::size_t>(std::max(largeur, 0));
  if (v.size() > l) return std::string(l, '*');
  std::string resultat(l, ' ');
  std::copy(v.begin(), v.end(), resultat.end() - static_cast<std::ptrdiff_t>(v.size()));
  return resultat;
}

/// As loc_cadrer, after dropping the zero in front of the point when the text is one too long.
std::string loc_cadrer_reel(int largeur, std::string_view v) {
  if (static_cast<int>(v.size()) <= largeur) return loc_cadrer(largeur, v);
  const std::size_t debut = v.front() == '-' ? 1 : 0;
  if (v.size() < debut + 3 || v[debut] != '0' || v[debut + 1] != '.') return loc_cadrer(largeur, v);
  std::string court(v);
  court.erase(debut, 1);
  return loc_cadrer(largeur, court);
}

std::string loc_non_fini(int largeur, double v) {
  if (std::isnan(v)) return loc_cadrer(largeur, "NaN");
  if (v > 0) return loc_cadrer(largeur, largeur >= 8 ? "Infinity" : "Inf");
  return loc_cadrer(largeur, largeur >= 9 ? "-Infinity" : "-Inf");
}

/// The fixed form for G: thresholds and choice in the type of the value.
template <class reel>
std::string loc_edite_g(G f, reel v) {
  const reel m = std::abs(v);
  if (!std::isfinite(v)) return loc_non_fini(f.largeur, static_cast<double>(v));
  const auto large = static_cast<double>(v);
  const auto fixe = [&](int decimales) { return edite(F{f.largeur - 4, decimales}, large).append(4, ' '); };
  if (m == reel{0}) return fixe(f.decimales - 1);

  const auto dix_d = static_cast<reel>(puissance_dix(f.decimales));
  const reel presque_un = reel{1} - reel{0.5} / dix_d;
  if (m < static_cast<reel>(0.1 * static_cast<double>(presque_un)) || reel{0.5} >= dix_d - m)
    return edite(E{f.largeur, f.decimales}, large);
  int s = 0;
  while (s < f.decimales && m >= static_cast<reel>(puissance_dix(s)) * presque_un) ++s;
  return fixe(f.decimales - s);
}

}  // namespace

std::string edite(I f, int v) {
  std::array<char, 12> tampon{};
  const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), v).ptr;
  return loc_cadrer(f.largeur, {tampon.data(), static_cast<std::size_t>(fin - tampon.data())});
}

std::string edite(F f, double v) {
  if (!std::isfinite(v)) return loc_non_fini(f.largeur, v);
  // Too long for the width before any digit is worked out; keeps the buffer small.
  if (f.largeur <= 0 || f.largeur > 64 || f.decimales > 40 || std::abs(v) >= 1e65)
    return std::string(static_cast<std::size_t>(std::max(f.largeur, 0)), '*');
  std::array<char, 128> tampon{};
  const auto fin =
      std::to_chars(tampon.data(), tampon.data() + tampon.size(), v, std::chars_format::fixed, f.decimales)
          .ptr;
  char* ecrit = fin;
  if (f.decimales == 0) *ecrit++ = '.';
  return loc_cadrer_reel(f.largeur, {tampon.data(), static_cast<std::size_t>(ecrit - tampon.data())});
}

std::string edite(E f, double v) {
  if (!std::isfinite(v)) return loc_non_fini(f.largeur, v);
  std::array<char, 64> scientifique{};  // d.ddde+xx
  const int chiffres = std::clamp(f.decimales, 1, 40);
  const auto fin = std::to_chars(scientifique.data(), scientifique.data() + scientifique.size(), v,
                                 std::chars_format::scientific, chiffres - 1)
                       .ptr;
  std::string_view mantisse(scientifique.data(), static_cast<std::size_t>(fin - scientifique.data()));
  const std::size_t place_e = mantisse.find('e');
  const std::string_view puissance = mantisse.substr(place_e + 1);
  mantisse = mantisse.substr(0, place_e);
  if (mantisse.front() == '-') mantisse.remove_prefix(1);
  int exposant = 0;
  std::from_chars(puissance.data() + 1, puissance.data() + puissance.size(), exposant);
  if (puissance.front() == '-') exposant = -exposant;
  if (v != 0) ++exposant;  // d.ddd 10^x is 0.dddd 10^(x + 1)

  std::array<char, 64> edition{};
  char* ecrit = edition.data();
  if (std::signbit(v)) *ecrit++ = '-';
  *ecrit++ = '0';
  *ecrit++ = '.';
  *ecrit++ = mantisse.front();
  if (chiffres > 1) ecrit = std::copy_n(mantisse.data() + 2, chiffres - 1, ecrit);
  const int grandeur = std::abs(exposant);
  if (grandeur < 100) *ecrit++ = f.lettre;
  *ecrit++ = exposant < 0 ? '-' : '+';
  if (grandeur < 10) *ecrit++ = '0';
  ecrit = std::to_chars(ecrit, edition.data() + edition.size(), grandeur).ptr;
  return loc_cadrer_reel(f.largeur, {edition.data(), static_cast<std::size_t>(ecrit - edition.data())});
}

std::string edite(G f, double v) { return loc_edite_g(f, v); }
std::string edite(G f, float v) { return loc_edite_g(f, v); }

std::optional<format> lire_format(vue_l1 descripteur) {
  std::string_view v = sans_blancs_initiaux(sans_blancs_finals(descripteur.octets()));
  if (v.starts_with('(') && v.ends_with(')')) v = sans_blancs_initiaux(v.substr(1, v.size() - 2));
  if (v.empty()) return std::nullopt;
  const char lettre = v.front() >= 'a' ? static_cast<char>(v.front() - 'a' + 'A') : v.front();
  if (std::string_view("FEDG").find(lettre) == std::string_view::npos) return std::nullopt;
  format f{lettre, 0, 0};
  const char* const fin = v.data() + v.size();
  const auto largeur = std::from_chars(v.data() + 1, fin, f.largeur);
  if (largeur.ec != std::errc{} || largeur.ptr == fin || *largeur.ptr != '.') return std::nullopt;
  const auto decimales = std::from_chars(largeur.ptr + 1, fin, f.decimales);
  if (decimales.ec != std::errc{} || decimales.ptr != fin) return std::nullopt;
  if (f.largeur < 1 || f.largeur > 64 || f.decimales < 0 || f.decimales > 40) return std::nullopt;
  return f;
}

std::string edite(const format& f, double v) {
  switch (f.lettre) {
    case 'F': return edite(F{f.largeur, f.decimales}, v);
    case 'G': return edite(G{f.largeur, f.decimales}, v);
    default: return edite(E{f.largeur, f.decimales, f.lettre}, v);
  }
}

std::string ajuste_gauche(std::string v) {
  const std::size_t n = std::min(v.find_first_not_of(' '), v.size());
  v.erase(0, n);
  v.append(n, ' ');
  return v;
}

}  // namespace socle
