#include "Lxs_lexica.hpp"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>

namespace {

std::optional<int> loc_entier(std::string_view texte) {
  int valeur = 0;
  bool erreur = false;
  lxs_decodage_entier(texte, valeur, erreur);
  return erreur ? std::nullopt : std::optional(valeur);
}
std::optional<float> loc_simple(std::string_view texte) {
  float valeur = 0;
  bool erreur = false;
  lxs_decodage_reel_s(texte, valeur, erreur);
  return erreur ? std::nullopt : std::optional(valeur);
}
std::optional<double> loc_double(std::string_view texte) {
  double valeur = 0;
  bool erreur = false;
  lxs_decodage_reel_d(texte, valeur, erreur);
  return erreur ? std::nullopt : std::optional(valeur);
}

}  // namespace

TEST(DecodageEntier, Valeurs) {
  EXPECT_EQ(loc_entier("0"), 0);
  EXPECT_EQ(loc_entier("007"), 7);
  EXPECT_EQ(loc_entier("+12"), 12);
  EXPECT_EQ(loc_entier("-12"), -12);
  EXPECT_EQ(loc_entier("999999999"), 999999999);
  EXPECT_EQ(loc_entier("2147483647"), 2147483647);
  EXPECT_EQ(loc_entier("-2147483647"), -2147483647);
  EXPECT_EQ(loc_entier("00000000000000000000012"), 12);
}

TEST(DecodageEntier, Refus) {
  EXPECT_EQ(loc_entier(""), std::nullopt);
  EXPECT_EQ(loc_entier("-"), std::nullopt);
  EXPECT_EQ(loc_entier("1a"), std::nullopt);
  EXPECT_EQ(loc_entier("1."), std::nullopt);
  EXPECT_EQ(loc_entier("2147483648"), std::nullopt);
  EXPECT_EQ(loc_entier("-2147483648"), std::nullopt);
  EXPECT_EQ(loc_entier("9999999999"), std::nullopt);
  EXPECT_EQ(loc_entier("99999999999999999999"), std::nullopt);
}

TEST(DecodageReelSimple, Valeurs) {
  EXPECT_EQ(loc_simple("0.1"), 0.1F);
  EXPECT_EQ(loc_simple(".5"), 0.5F);
  EXPECT_EQ(loc_simple("12."), 12.0F);
  EXPECT_EQ(loc_simple("1E3"), 1000.0F);
  EXPECT_EQ(loc_simple("1e-3"), 0.001F);
  EXPECT_EQ(loc_simple("-2.5E+2"), -250.0F);
  EXPECT_EQ(loc_simple("1.0E25"), 1e25F);
  EXPECT_EQ(loc_simple("1.0E-25"), 1e-25F);
  EXPECT_EQ(loc_simple("0.000000000000012"), 1.2e-14F) << "17 characters";
}

TEST(DecodageReelSimple, Refus) {
  EXPECT_EQ(loc_simple(""), std::nullopt);
  EXPECT_EQ(loc_simple("1.0E26"), std::nullopt) << "the limit of the single form is low on purpose";
  EXPECT_EQ(loc_simple("1.0E-26"), std::nullopt);
  EXPECT_EQ(loc_simple("1.23456789012345678"), std::nullopt) << "more than 17 characters";
  EXPECT_EQ(loc_simple("."), std::nullopt);
  EXPECT_EQ(loc_simple(".E3"), std::nullopt);
  EXPECT_EQ(loc_simple("1E"), std::nullopt);
  EXPECT_EQ(loc_simple("1E+"), std::nullopt);
  EXPECT_EQ(loc_simple("1E3x"), std::nullopt);
  EXPECT_EQ(loc_simple("1x"), std::nullopt);
  EXPECT_EQ(loc_simple("1.2.3"), std::nullopt);
  EXPECT_EQ(loc_simple("99999999999999E25"), std::nullopt) << "no finite single";
}

TEST(DecodageReelDouble, Valeurs) {
  EXPECT_EQ(loc_double("0.1D0"), 0.1);
  EXPECT_EQ(loc_double("1.0D26"), 1e26);
  EXPECT_EQ(loc_double("-1.5d-2"), -0.015);
  EXPECT_EQ(loc_double("1.D3"), 1000.0);
  EXPECT_DOUBLE_EQ(loc_double("1.0D286").value_or(0), 1e286);
  EXPECT_DOUBLE_EQ(loc_double("1.0D-286").value_or(0), 1e-286);
  EXPECT_DOUBLE_EQ(loc_double("1.7976931348623157D286").value_or(0), 1.7976931348623157e286);
}

// The digits are worked out as an integer, and brought to their place by one power of ten: 3 tenths are 3
// times 0.1.
TEST(DecodageReelDouble, LesChiffresFoisUnePuissanceDeDix) {
  EXPECT_EQ(loc_double("0.3D0"), 3 * 0.1);
  EXPECT_EQ(loc_double("2.5D-1"), 25 * (1.0 / 100.0));
}

TEST(DecodageReel, LaLongueurLaPlusGrande) {
  const auto zeros = [](std::size_t n) { return "1." + std::string(n, '0'); };
  EXPECT_EQ(loc_simple(zeros(15)), 1.0F);
  EXPECT_EQ(loc_simple(zeros(16)), std::nullopt) << "18 characters";
  EXPECT_EQ(loc_double(zeros(19) + "D+0"), 1.0);
  EXPECT_EQ(loc_double(zeros(20) + "D+0"), std::nullopt) << "25 characters";
}

TEST(DecodageReelDouble, Refus) {
  EXPECT_EQ(loc_double("1.0D287"), std::nullopt);
  EXPECT_EQ(loc_double("1.0D-287"), std::nullopt);
  EXPECT_EQ(loc_double("1.7976931348623157D308"), std::nullopt)
      << "the value that means not given can't be typed";
  EXPECT_EQ(loc_double("1.2345678901234567890123D0"), std::nullopt) << "more than 24 characters";
  EXPECT_EQ(loc_double("1.0D99999999999"), std::nullopt);
  EXPECT_EQ(loc_double("99999999999999999999D286").has_value(), true);
}

TEST(Majuscules, SeulesLesLettresAscii) {
  EXPECT_EQ(lxs_c_majuscule('a'), 'A');
  EXPECT_EQ(lxs_c_majuscule('z'), 'Z');
  EXPECT_EQ(lxs_c_majuscule('{'), '{');
  EXPECT_EQ(lxs_c_majuscule('\xE9'), '\xE9');
  std::string mot = "fin_9z\xE9";
  lxs_z_majuscule({mot.data(), 6});
  EXPECT_EQ(mot, "FIN_9Z\xE9");
}
