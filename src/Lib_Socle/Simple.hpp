// Constants that are single-precision values widened to double.
#pragma once

namespace socle {

/// The single-precision value, widened: the formulas were calibrated with these. simple(0.85) does not
/// compile.
consteval double simple(float valeur) { return static_cast<double>(valeur); }
double simple(double) = delete;

}  // namespace socle
