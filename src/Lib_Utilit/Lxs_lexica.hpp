// Texts of numbers into numbers, and upper case.
#pragma once

#include <span>
#include <string_view>

/// Integer with an optional sign. `erreur`: empty, a character that is no digit, a value beyond 2147483647.
void lxs_decodage_entier(std::string_view zone, int& entier, bool& erreur);

/// Single: digits, at most one point, an optional exponent. The value is worked out in double as digits times
/// a power of ten, then narrowed. `erreur`: not a number, longer than 17 characters, an exponent beyond 25,
/// no finite single.
void lxs_decodage_reel_s(std::string_view zone, float& reels, bool& erreur);

/// The same for a double: at most 24 characters, an exponent of at most 286.
void lxs_decodage_reel_d(std::string_view zone, double& reeld, bool& erreur);

/// Upper case of one ASCII letter; every other character as it is.
constexpr char lxs_c_majuscule(char c_in) {
  return c_in >= 'a' && c_in <= 'z' ? static_cast<char>(c_in - 'a' + 'A') : c_in;
}

/// Upper case in place, ASCII letters only.
constexpr void lxs_z_majuscule(std::span<char> zone) {
  for (char& c : zone) c = lxs_c_majuscule(c);
}
