#pragma once
// The five types of actions, and what a limit state may hold of them.

#include <array>
#include <string_view>

/// What the efforts of a phase, or of a limit state, have brought so far.
struct zof_presence {
  bool g = false, p = false;    ///< permanent actions, prestress: alone or combined
  bool gp = false, gq = false;  ///< combined by the user
  bool g_seul = false, p_seul = false, q_seul = false;

  constexpr zof_presence& operator|=(const zof_presence& autre) {
    g |= autre.g;
    p |= autre.p;
    gp |= autre.gp;
    gq |= autre.gq;
    g_seul |= autre.g_seul;
    p_seul |= autre.p_seul;
    q_seul |= autre.q_seul;
    return *this;
  }
};

struct zof_type_effort {
  std::string_view label;
  zof_presence presence;
  bool precontrainte;  ///< of sections with prestress alone; such an effort holds the tensions of the cables
  bool combinaison;    ///< of limit states whose forces are weighted already
};

inline constexpr std::array<zof_type_effort, 5> zof_types_effort = {{
    {"G", {.g = true, .g_seul = true}, false, false},
    {"P", {.p = true, .p_seul = true}, true, false},
    {"Q", {.q_seul = true}, false, false},
    {"GP", {.g = true, .p = true, .gp = true}, true, true},
    {"GQ", {.g = true, .gq = true}, false, true},
}};

/// Null if there is no such type.
constexpr const zof_type_effort* zof_pt_type_effort(std::string_view label) {
  for (const zof_type_effort& type : zof_types_effort)
    if (type.label == label) return &type;
  return nullptr;
}

/// Where the closing checks stand: what they depend on besides the efforts.
struct zof_regime {
  bool precontrainte = false;
  bool postendue = false;
  bool phasee = false;
};

/// A closing check: what must not be, and what is said of it.
struct zof_regle_cloture {
  bool (*enfreinte)(const zof_presence&, const zof_regime&);
  std::string_view message;
};
