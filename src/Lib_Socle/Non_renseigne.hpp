// The values that mean "not given" in a field: one for each type of the data model.
// A data file may hold them, and then they read as not given: this is the meaning of the sentinels.
#pragma once

#include <limits>

namespace socle {

struct non_renseigne_t {
  // NOLINTBEGIN(google-explicit-constructor): the sentinel takes the type of the field
  constexpr operator int() const { return std::numeric_limits<int>::max(); }
  constexpr operator float() const { return std::numeric_limits<float>::max(); }
  constexpr operator double() const { return std::numeric_limits<double>::max(); }
  // NOLINTEND(google-explicit-constructor)
};
inline constexpr non_renseigne_t non_renseigne{};

static_assert(sizeof(int) == 4, "integers of the data model have 32 bits");

}  // namespace socle
