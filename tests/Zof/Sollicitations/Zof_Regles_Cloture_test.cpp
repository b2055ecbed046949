#include "Zof_Regles_Cloture.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Zof_Types_Effort.hpp"

namespace {

struct cas {
  std::vector<std::string_view> types;  // of the efforts of the phase or of the limit state
  zof_regime regime;
  std::string message;  // empty: nothing to say
};

template <std::size_t N>
std::string premiere_enfreinte(const std::array<zof_regle_cloture, N>& regles, const cas& c) {
  zof_presence presence;
  for (const std::string_view type : c.types) presence |= zof_pt_type_effort(type)->presence;
  for (const zof_regle_cloture& regle : regles)
    if (regle.enfreinte(presence, c.regime)) return std::string(regle.message);
  return "";
}

constexpr zof_regime beton_arme{};
constexpr zof_regime beton_arme_phase{.phasee = true};
constexpr zof_regime post{.precontrainte = true, .postendue = true};
constexpr zof_regime post_phase{.precontrainte = true, .postendue = true, .phasee = true};
constexpr zof_regime pre{.precontrainte = true};
constexpr zof_regime pre_phase{.precontrainte = true, .phasee = true};

const std::string melange =
    "Section pr\xEF\xBF\xBD"
    "contrainte";
const std::string sans_g_ni_p =
    "Aucun Effort de type G ou P d\xEF\xBF\xBD"
    "fini";

TEST(ReglesCloture, FinDUnEtatLimite) {
  for (const cas& c : std::vector<cas>{
           {{"G"}, beton_arme, ""},
           {{"GQ"}, beton_arme, ""},
           {{"G", "Q", "GQ"}, beton_arme, ""},
           {{"Q"}, beton_arme, sans_g_ni_p},
           {{"G", "Q"}, beton_arme_phase, ""},
           {{"GQ"}, beton_arme_phase, "Section BA : GQ interdit en mode phasage"},
           {{"GP"}, post, ""},
           {{"G", "P"}, post, ""},
           {{"GP", "Q"}, post, ""},
           {{"GQ", "P"}, post, "Effort de type GQ interdit en post-tension"},
           {{"GP", "P"}, post, melange + "  : melange GP et P interdit"},
           {{"GP", "G"}, post, melange + "  : melange GP et G interdit"},
           {{"P"}, post, melange + " non phasee : Aucun effort de type G defini"},
           {{"G"}, post, melange + " non phasee : Aucun effort de type P defini"},
           {{"P"}, post_phase, melange + " par postension phasee : P sans G interdit"},
           {{"G"}, post_phase, ""},
           {{"GQ", "P"}, pre, ""},
           {{"G", "P", "Q"}, pre, ""},
           {{"GP"}, pre, "Effort de type GP interdit en pretension"},
           {{"GQ", "Q"}, pre, melange + " : melange GQ et Q interdit"},
           {{"GQ", "G"}, pre, melange + " : melange GQ et G interdit"},
           {{"G"}, pre, melange + " non phasee : Aucun effort de type P defini"},
           {{"P"}, pre, melange + " non phasee : Aucun effort de type G defini"},
           {{"P"}, pre_phase, ""},
           {{"GQ"}, pre_phase, "Effort de type GQ interdit en pretension phasee"},
           {{"G", "P"}, pre_phase, "Presence simultanee de G et P interdite en pretension phasee"}})
    EXPECT_EQ(premiere_enfreinte(regles_cloture::etat_limite, c), c.message);
}

TEST(ReglesCloture, FinDUnePhase) {
  for (const cas& c : std::vector<cas>{
           {{"G", "Q"}, beton_arme_phase, ""},
           {{"Q"}, beton_arme_phase, "Aucun Effort de type G ou P defini"},
           {{"GQ"}, beton_arme_phase, "Section BA : GQ interdit en mode phasage"},
           {{"G"}, post_phase, ""},
           {{"G", "P"}, post_phase, ""},
           {{"GP"}, post_phase, ""},
           {{"GQ"}, post_phase, "Effort de type GQ interdit en post-tension"},
           {{"GP", "P"}, post_phase, melange + " : melange GP et P interdit"},
           {{"GP", "G"}, post_phase, melange + " : melange GP et G interdit"},
           {{"P"}, post_phase, melange + " par postension phasee : P sans G interdit"},
           {{"P"}, pre_phase, ""},
           {{"G", "Q"}, pre_phase, ""},
           {{"GP"}, pre_phase, "Effort de type GP interdit en pretension"},
           {{"GQ"}, pre_phase, "Effort de type GQ interdit en pretension"},
           {{"G", "P"}, pre_phase, "Presence simultanee de G et P interdite en pretension phasee"}})
    EXPECT_EQ(premiere_enfreinte(regles_cloture::phase, c), c.message);
}

TEST(TypesEffort, LesCinqTypes) {
  for (const std::string_view label : {"G", "P", "Q", "GP", "GQ"})
    EXPECT_NE(zof_pt_type_effort(label), nullptr);
  EXPECT_EQ(zof_pt_type_effort("PG"), nullptr);
  EXPECT_EQ(zof_pt_type_effort(""), nullptr);
}

}  // namespace
