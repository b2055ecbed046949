#include "Lxs_lexica.hpp"

#include <cmath>
#include <limits>

#include "Arithmetique.hpp"

namespace {

constexpr bool loc_chiffre(char c) { return c >= '0' && c <= '9'; }

/// Takes an optional sign off the text: -1 or 1.
int loc_signe(std::string_view& zone) {
  if (zone.empty() || (zone.front() != '+' && zone.front() != '-')) return 1;
  const int signe = zone.front() == '-' ? -1 : 1;
  zone.remove_prefix(1);
  return signe;
}

/// Takes the digits at the start off the text and appends them to a value; tells how many there were.
int loc_accumuler(std::string_view& zone, double& valeur) {
  int nombre = 0;
  for (; !zone.empty() && loc_chiffre(zone.front()); zone.remove_prefix(1), ++nombre)
    valeur = valeur * 10 + (zone.front() - '0');
  return nombre;
}

/// The exponent behind its letter; false if it isn't one or goes beyond the limit.
bool loc_exposant(std::string_view zone, int limite, int& exposant) {
  const int signe = loc_signe(zone);
  if (zone.empty()) return false;
  int valeur = 0;
  for (const char c : zone) {
    if (!loc_chiffre(c)) return false;
    valeur = valeur * 10 + (c - '0');
    if (valeur > limite) return false;
  }
  exposant = signe * valeur;
  return true;
}

/// Both forms of a real: they differ by their limits.
bool loc_decodage_reel(std::string_view zone, std::size_t longueur_max, int exposant_max, double& reel) {
  if (zone.size() > longueur_max) return false;
  const int signe = loc_signe(zone);
  double valeur = 0;
  int chiffres = loc_accumuler(zone, valeur);
  int decimales = 0;
  if (zone.starts_with('.')) {
    zone.remove_prefix(1);
    decimales = loc_accumuler(zone, valeur);
    chiffres += decimales;
  }
  if (chiffres == 0) return false;
  int exposant = 0;
  if (!zone.empty()) {
    if (std::string_view("EDed").find(zone.front()) == std::string_view::npos) return false;
    if (!loc_exposant(zone.substr(1), exposant_max, exposant)) return false;
  }
  reel = signe * valeur * socle::puissance_dix(exposant - decimales);
  return std::isfinite(reel);
}

}  // namespace

void lxs_decodage_entier(std::string_view zone, int& entier, bool& erreur) {
  constexpr int maximum = std::numeric_limits<int>::max();
  erreur = true;
  const int signe = loc_signe(zone);
  if (zone.empty()) return;
  int valeur = 0;
  for (const char c : zone) {
    if (!loc_chiffre(c)) return;
    const int chiffre = c - '0';
    if (valeur > (maximum - chiffre) / 10) return;
    valeur = valeur * 10 + chiffre;
  }
  entier = signe * valeur;
  erreur = false;
}

void lxs_decodage_reel_s(std::string_view zone, float& reels, bool& erreur) {
  double reel = 0;
  // Beyond the greatest single the narrowing has no result.
  erreur = !loc_decodage_reel(zone, 17, 25, reel) ||
           std::abs(reel) > static_cast<double>(std::numeric_limits<float>::max());
  if (!erreur) reels = static_cast<float>(reel);
}

void lxs_decodage_reel_d(std::string_view zone, double& reeld, bool& erreur) {
  double reel = 0;
  erreur = !loc_decodage_reel(zone, 24, 286, reel);
  if (!erreur) reeld = reel;
}
