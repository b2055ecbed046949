#pragma once
// Points sorted in squares as wide as a reach: whether one lies nearer than that to a point, and which, is
// found without going through all of them.

#include <unordered_map>

#include "QB7_Types.hpp"
#include "Zof_Classe_Point.hpp"

class grille_points {
 public:
  /// portee: the reach, m; two points nearer than the tolerance are one point.
  explicit grille_points(double portee = zof_tolerance_points_confondus) : portee_(portee) {}
  /// Rank of a point of the grid that lies strictly nearer than the reach; 0 if there is none.
  [[nodiscard]] int rang_proche(point_yz p) const;
  [[nodiscard]] bool existe_proche(point_yz p) const { return rang_proche(p) != 0; }
  /// Ranks are above 0; several points may have the same.
  void ajouter(point_yz p, int rang = 1);
  /// Takes out a point that was added, whatever its rank.
  void retirer(point_yz p);

 private:
  struct carre {
    double y, z;
    bool operator==(const carre&) const = default;
  };
  struct hachage {
    std::size_t operator()(const carre& c) const;
  };
  struct point_range {
    point_yz position;
    int rang;
  };
  [[nodiscard]] carre carre_de(point_yz p) const;

  double portee_;
  std::unordered_multimap<carre, point_range, hachage> points_;
};
