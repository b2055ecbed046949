#pragma once
// An outline whose sides are sorted in bands: whether a point lies in it is found among the sides of its
// band.

#include <cstddef>
#include <vector>

#include "QB7_Types.hpp"
#include "Zof_Formes_typees.hpp"

/// Whether points lie in an outline, which may cross itself: by the parity of its sides on one side of the
/// point.
///   (1) a point nearer than the tolerance of coincident points to a side is inside
///   (2) time and memory grow with the number of sides, and with that of the sides that one band holds
class index_contour {
 public:
  index_contour() = default;
  explicit index_contour(const polygone& contour);
  [[nodiscard]] bool contient(point_yz p) const;

 private:
  struct cote {
    point_yz bas, haut;  // its lower end first
  };
  [[nodiscard]] std::size_t bande(double z) const;

  bool transpose_ = false;  // bands across y: the coordinates of the sides are exchanged
  double debut_ = 0;        // of the first band
  double pas_ = 1;          // height of a band
  std::vector<std::vector<cote>> bandes_;
};
