#pragma once
// Points sorted in squares as wide as the tolerance: whether one lies nearer than that to a point is found
// without going through all of them.

#include <unordered_map>

#include "QB7_Types.hpp"
#include "Zof_Classe_Point.hpp"

class grille_points {
 public:
  /// True if a point of the grid lies strictly nearer than the tolerance.
  [[nodiscard]] bool existe_proche(point_yz p) const;
  void ajouter(point_yz p);

 private:
  struct carre {
    double y, z;
    bool operator==(const carre&) const = default;
  };
  struct hachage {
    std::size_t operator()(const carre& c) const;
  };
  static carre carre_de(point_yz p);

  std::unordered_multimap<carre, point_yz, hachage> points_;
};
