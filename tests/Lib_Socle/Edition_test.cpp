// Number texts against those that a Fortran runtime prints, and the rules that random values must keep.
#include "Edition.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

#include "Outils.hpp"

using namespace socle;

namespace {

std::string loc_editer(const std::string& format, const std::string& type, const std::string& valeur) {
  const char lettre = format[0];
  const int largeur = std::stoi(format.substr(1));
  const std::size_t point = format.find('.');
  const int decimales = point == std::string::npos ? 0 : std::stoi(format.substr(point + 1));
  if (lettre == 'I') return edite(I{largeur}, std::stoi(valeur));
  const double v = std::strtod(valeur.c_str(), nullptr);
  if (lettre == 'F') return edite(F{largeur, decimales}, v);
  if (lettre == 'E') return edite(E{largeur, decimales}, v);
  if (lettre == 'D') return edite(E{largeur, decimales, 'D'}, v);
  if (type == "single") return edite(G{largeur, decimales}, static_cast<float>(v));
  return edite(G{largeur, decimales}, v);
}

}  // namespace

TEST(Edition, ChaqueLigneDeLaTableDeReference) {
  const table_csv table = lire_csv(ZOF_DONNEES "/formats/formats.csv");
  for (std::size_t i = 0; i < table.lignes.size(); ++i)
    EXPECT_EQ(loc_editer(table.texte(i, "format"), table.texte(i, "type"), table.texte(i, "value")),
              table.texte(i, "text"))
        << table.texte(i, "format") << ' ' << table.texte(i, "type") << ' ' << table.texte(i, "value");
}

TEST(Edition, UneValeurNonFinieALeTexteDUnRuntime) {
  EXPECT_EQ(edite(F{12, 4}, NAN), "         NaN");
  EXPECT_EQ(edite(E{15, 5}, INFINITY), "       Infinity");
  EXPECT_EQ(edite(G{15, 5}, -INFINITY), "      -Infinity");
  EXPECT_EQ(edite(F{7, 2}, -INFINITY), "   -Inf");
}

// The text of E has d significant digits: read back, it is within half a unit of the last one.
TEST(Edition, EReliteEstADemiUniteDuDernierChiffre) {
  std::mt19937_64 hasard(7);
  std::uniform_real_distribution<double> mantisse(0.1, 1.0);
  std::uniform_int_distribution<int> exposant(-98, 98);
  for (int i = 0; i < 20000; ++i) {
    const double v = (i % 2 == 0 ? 1 : -1) * mantisse(hasard) * std::pow(10.0, exposant(hasard));
    const double relu = std::strtod(edite(E{15, 5}, v).c_str(), nullptr);
    EXPECT_LE(std::abs(relu - v), std::abs(v) * 0.5e-4 * (1 + 1e-9));
  }
}

TEST(Edition, AjusteGaucheDeplaceLesBlancs) {
  EXPECT_EQ(ajuste_gauche("   1.5  "), "1.5     ");
  EXPECT_EQ(ajuste_gauche("    "), "    ");
  EXPECT_EQ(ajuste_gauche(""), "");
}

TEST(Edition, UnDescripteurSeLitEtSEdite) {
  for (const char* const d : {"F8.3", "(f8.3)", " ( F8.3)"}) {
    const auto f = lire_format(std::string_view(d));
    ASSERT_TRUE(f.has_value()) << d;
    EXPECT_EQ(edite(*f, 1.5), "   1.500");
  }
  EXPECT_EQ(edite(*lire_format("(E12.4)"), 1.5), "  0.1500E+01");
  EXPECT_EQ(edite(*lire_format("(D12.4)"), 1.5), "  0.1500D+01");
  EXPECT_EQ(edite(*lire_format("(G12.4)"), 1.5), "   1.500    ");
}

TEST(Edition, CeQuiNEstPasUnDescripteurEstRefuse) {
  for (const char* const d :
       {"", "()", "(F8.3", "F8", "F8.", "F.3", "I5", "F8.3x", "F-8.3", "F0.3", "F65.3", "F8.-1", "F8.41"})
    EXPECT_FALSE(lire_format(std::string_view(d)).has_value()) << d;
}
