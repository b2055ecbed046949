// A stack of integers with a fixed depth.
#pragma once

#include <array>
#include <cstddef>

template <std::size_t N>
class pile {
 public:
  /// false if it is full.
  [[nodiscard]] bool empiler(int v) {
    if (profondeur_ == N) return false;
    valeurs_[profondeur_++] = v;
    return true;
  }
  void depiler() { --profondeur_; }
  [[nodiscard]] int& sommet() { return valeurs_[profondeur_ - 1]; }
  [[nodiscard]] bool vide() const { return profondeur_ == 0; }
  [[nodiscard]] std::size_t profondeur() const { return profondeur_; }

 private:
  std::size_t profondeur_ = 0;
  std::array<int, N> valeurs_{};
};
