// Dense matrix of doubles, by rows in one block; indices from 0.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace socle {

class matrice {
 public:
  matrice() = default;
  matrice(std::size_t lignes, std::size_t colonnes)
      : lignes_(lignes), colonnes_(colonnes), valeurs_(lignes * colonnes) {}

  [[nodiscard]] std::size_t lignes() const { return lignes_; }
  [[nodiscard]] std::size_t colonnes() const { return colonnes_; }
  double& operator()(std::size_t i, std::size_t j) { return valeurs_[i * colonnes_ + j]; }
  double operator()(std::size_t i, std::size_t j) const { return valeurs_[i * colonnes_ + j]; }
  std::span<double> ligne(std::size_t i) { return std::span(valeurs_).subspan(i * colonnes_, colonnes_); }
  [[nodiscard]] std::span<const double> ligne(std::size_t i) const {
    return std::span(valeurs_).subspan(i * colonnes_, colonnes_);
  }

 private:
  std::size_t lignes_ = 0;
  std::size_t colonnes_ = 0;
  std::vector<double> valeurs_;
};

}  // namespace socle
