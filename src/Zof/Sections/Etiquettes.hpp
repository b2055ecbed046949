#pragma once
// Places for the numbers of a drawing: next to their points, off one another and off the circles of bars,
// ducts and tendons, and off the sides of outlines where there is room. All in pixels of the window, y
// downwards.

#include <cstddef>
#include <optional>
#include <vector>

class etiquettes {
 public:
  struct point {
    double x = 0, y = 0;
  };
  /// Where a text begins, at its foot; upright texts run from the foot up.
  struct place {
    point pied;
    bool debout = false;
    bool eloignee = false;  // too far from its point to be its own without a line
    point attache;          // end of this line: the middle of the text
  };

  etiquettes(double largeur, double hauteur, int taille_police);

  /// A circle that no text may cover.
  void ajouter_cercle(point centre, double rayon);
  /// A line that texts keep off if they can.
  void ajouter_segment(point a, point b);
  /// Keeps a place for a text of so many characters outside of a circle about its point, as near as can be to
  /// the wanted direction (of any length). Nothing if all of them are taken.
  std::optional<place> placer(point p, double rayon, std::size_t nombre_caracteres, point direction);

 private:
  struct boite {
    double gauche, haut, droite, bas;
  };
  struct cercle {
    point centre;
    double rayon;
  };
  struct segment {
    point a, b;
  };
  struct cellule {
    std::vector<boite> textes;
    std::vector<cercle> cercles;
    std::vector<segment> segments;
    [[nodiscard]] bool pleine() const;
  };

  template <class operation>
  bool pour_chaque_cellule(const boite& b, operation&& o);
  [[nodiscard]] bool libre(const boite& b, bool hors_des_segments);
  std::optional<place> essayer(point p, double rayon, double longueur, double angle, bool hors_des_segments);
  static bool coupe(const segment& s, const boite& b);

  double largeur_, hauteur_;
  int taille_police_;
  std::size_t colonnes_, lignes_;
  std::vector<cellule> cellules_;
};
