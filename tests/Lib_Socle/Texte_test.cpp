// Fixed texts, Latin-1 literals, keywords as numbers.
#include "Texte.hpp"

#include <gtest/gtest.h>

#include <type_traits>

using namespace socle;

static_assert("durée"_l1.size() == 5 && static_cast<unsigned char>("durée"_l1[3]) == 0xE9);
static_assert("ï¿½"_l1.size() == 3 && static_cast<unsigned char>("ï¿½"_l1[0]) == 0xEF);
static_assert(clef(texte<4>("ELU")) == "ELU"_mot && "ELU"_mot != "ELS"_mot);
static_assert(!std::is_convertible_v<texte<8>, vue_l1>, "entier() or utile() must be chosen");
static_assert(std::is_trivially_copyable_v<texte<32>>);

TEST(Texte, EstCompleteDeBlancsOuCoupe) {
  EXPECT_EQ(texte<6>("abc").entier(), "abc   ");
  EXPECT_EQ(texte<2>("abc").entier(), "ab");
  EXPECT_EQ(texte<6>("abc").utile(), "abc");
  EXPECT_TRUE(texte<6>().vide());
}

TEST(Texte, LesBlancsFinauxNeComptentPas) {
  EXPECT_EQ(texte<6>("abc"), texte<32>("abc"));
  EXPECT_TRUE(texte<6>("abc") == "abc  ");
  EXPECT_FALSE(texte<6>("abc") == " abc");
  EXPECT_TRUE(texte<6>() == "");
}

TEST(Texte, NonRenseigneEstNR) { EXPECT_EQ(texte<32>(non_renseigne).utile(), "N_R"); }

TEST(Texte, ConcatMetBoutABout) {
  EXPECT_EQ(concat({"a", std::string("b"), texte<4>("c").entier(), "é"_l1}), "abc   \xE9");
}

TEST(Texte, LaClefDUnMotLongEstCelleDeSesQuatrePremieresLettres) {
  EXPECT_EQ(clef("FIN_MATE"), "FIN_"_mot);
  EXPECT_EQ(clef("TE"), "TE"_mot);
}
