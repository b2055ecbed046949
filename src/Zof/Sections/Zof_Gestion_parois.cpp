#include "Zof_Gestion_parois.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <queue>
#include <tuple>
#include <utility>
#include <vector>

#include "Arithmetique.hpp"
#include "Grille_Points.hpp"
#include "QB7_Types.hpp"
#include "Zof_Erreurs.hpp"

using namespace socle;

namespace {

constexpr double tolerance = zof_tolerance_points_confondus;
// Sides that touch a wall share its ends: inside is what lies deeper than this.
constexpr double profondeur = tolerance / 10;

point_yz loc_position(const zof_point& p) { return {p.m_y, p.m_z}; }
double loc_scalaire(const vecteur_yz& a, const vecteur_yz& b) { return a.y * b.y + a.z * b.z; }
double loc_vectoriel(const vecteur_yz& a, const vecteur_yz& b) { return a.y * b.z - a.z * b.y; }
vecteur_yz loc_entre(const zof_point& a, const zof_point& b) { return {b.m_y - a.m_y, b.m_z - a.m_z}; }
vecteur_yz loc_gauche(const vecteur_yz& u) { return {-u.z, u.y}; }
zof_point loc_a_distance(const zof_point& p, const vecteur_yz& u, double d) {
  return {p.m_y + d * u.y, p.m_z + d * u.z};
}

double loc_longueur(const zof_segment& s) {
  return zof_distance_points(s.m_le_point_origine, s.m_le_point_extremite);
}

// A part of a segment keeps its position and its numbers.
zof_segment loc_partie(const zof_segment& s, const zof_point& origine, const zof_point& extremite) {
  zof_segment partie(origine, extremite);
  partie.m_la_position = s.m_la_position;
  partie.m_le_numero_zone = s.m_le_numero_zone;
  partie.m_le_numero_segment = s.m_le_numero_segment;
  return partie;
}

// Length of a segment inside a wall, which runs counter-clockwise round its four corners (Cyrus and Beck,
// 1978).
double loc_longueur_interieure(const zof_segment& s, const zof_paroi& paroi) {
  const std::array contour{paroi.m_le_point_origine_segment_1, paroi.m_le_point_extremite_segment_1,
                           paroi.m_le_point_extremite_segment_2, paroi.m_le_point_origine_segment_2};
  const vecteur_yz d = zof_vecteur_segment(s);
  double debut = 0;
  double fin = 1;
  for (std::size_t i = 0; i < contour.size(); ++i) {
    const vecteur_yz arete = loc_entre(contour[i], contour[(i + 1) % contour.size()]);
    const double longueur = zof_norme_vecteur(arete);
    if (longueur < profondeur) continue;
    const vecteur_yz n = loc_gauche({arete.y / longueur, arete.z / longueur});
    const double depart = loc_scalaire(n, loc_entre(contour[i], s.m_le_point_origine)) - profondeur;
    const double pente = loc_scalaire(n, d);
    if (pente > 0) debut = std::max(debut, -depart / pente);
    if (pente < 0) fin = std::min(fin, -depart / pente);
    if (pente == 0 && depart < 0) return 0;
  }
  return std::max(0.0, fin - debut) * zof_norme_vecteur(d);
}

// ---- The search of the walls

// A side of the contour or of a void, with its unit vector.
struct cote {
  const zof_segment* segment;
  vecteur_yz direction;
};

// What is free of a side: the whole of it at first.
struct partie_libre {
  std::size_t cote;
  zof_segment segment;
  bool occupee = false;
};

// The thinnest wall that a part may have, and the part on its other side.
struct paroi_possible {
  std::size_t partie, autre;
  zof_paroi paroi;

  [[nodiscard]] auto rang() const { return std::tuple(paroi.m_l_epaisseur_moyenne, partie); }
  friend bool operator>(const paroi_possible& a, const paroi_possible& b) { return a.rang() > b.rang(); }
};

class recherche_parois {
 public:
  recherche_parois(const uef_vector& segments, double angle_max, double epaisseur_max)
      : sinus_max_(std::sin(std::min(angle_max, std::numbers::pi / 2))) {
    // Far beyond any structure: a side of this length has no direction in floating point.
    constexpr double longueur_max = 1e9;
    double taille = 0;
    for (const zof_segment& s : uef_parcours<zof_segment>(segments)) {
      const double longueur = loc_longueur(s);
      if (!(longueur >= tolerance && longueur <= longueur_max)) continue;
      cotes_.push_back({&s, zof_vecteur_segment_normalise(s)});
      for (const zof_point& p : {s.m_le_point_origine, s.m_le_point_extremite})
        taille = std::max({taille, std::abs(p.m_y), std::abs(p.m_z)});
    }
    jeu_ = 1e-12 * taille;
    epaisseur_max_ = std::max(0.0, std::min(epaisseur_max, 4 * taille));
  }

  /// The walls in the order of their first sides.
  std::vector<zof_paroi> parois() {
    for (std::size_t i = 0; i < cotes_.size(); ++i) parties_.push_back({i, *cotes_[i].segment});
    for (std::size_t i = 0; i < parties_.size(); ++i) proposer(i);
    while (!file_.empty()) {
      const paroi_possible p = file_.top();
      file_.pop();
      retenir_ou_reprendre(p);
    }
    std::ranges::sort(retenues_, {}, [](const paroi_retenue& r) { return std::pair(r.cote, r.abscisse); });
    std::vector<zof_paroi> parois;
    for (const paroi_retenue& r : retenues_) parois.push_back(r.paroi);
    return parois;
  }

 private:
  struct paroi_retenue {
    std::size_t cote;
    double abscisse;  // along that side
    zof_paroi paroi;
  };

  void retenir_ou_reprendre(const paroi_possible& p) {
    if (parties_[p.partie].occupee) return;
    if (parties_[p.autre].occupee || empiete(p.paroi)) return proposer(p.partie);
    const auto [partie_1, partie_2] = dans_l_ordre(p.partie, p.autre);
    const zof_segment& segment_1 = *cotes_[parties_[partie_1].cote].segment;
    zof_paroi paroi = p.paroi;
    paroi.m_le_pt_segment_1 = &segment_1;
    paroi.m_le_pt_segment_2 = cotes_[parties_[partie_2].cote].segment;
    retenues_.push_back(
        {parties_[partie_1].cote,
         zof_distance_points(segment_1.m_le_point_origine, paroi.m_le_point_origine_segment_1), paroi});
    occuper(partie_1, {paroi.m_le_point_origine_segment_1, paroi.m_le_point_extremite_segment_1});
    occuper(partie_2, {paroi.m_le_point_origine_segment_2, paroi.m_le_point_extremite_segment_2});
  }

  // Two parts in the order of their sides.
  [[nodiscard]] std::pair<std::size_t, std::size_t> dans_l_ordre(std::size_t a, std::size_t b) const {
    return parties_[a].cote < parties_[b].cote ? std::pair(a, b) : std::pair(b, a);
  }

  // What a wall leaves of a part looks for walls of its own.
  void occuper(std::size_t partie, const zof_segment& occupe) {
    const std::size_t i_cote = parties_[partie].cote;
    parties_[partie].occupee = true;
    uef_vector libres;
    libres.ajouter(parties_[partie].segment);
    zof_modifier_segments_libres(occupe, cotes_[i_cote].segment->m_le_point_origine, libres);
    for (const zof_segment& libre : uef_parcours<zof_segment>(libres)) {
      parties_.push_back({i_cote, libre});
      proposer(parties_.size() - 1);
    }
  }

  // Puts the thinnest wall that a part may have with another one in the queue.
  void proposer(std::size_t partie) {
    std::optional<paroi_possible> meilleure;
    for (std::size_t autre = 0; autre < parties_.size(); ++autre) {
      if (parties_[autre].occupee || !opposes(parties_[partie].cote, parties_[autre].cote)) continue;
      const auto [i, j] = dans_l_ordre(partie, autre);
      const std::optional<zof_paroi> paroi = paroi_entre(parties_[i].segment, parties_[j].segment);
      if (!paroi) continue;
      if (meilleure && paroi->m_l_epaisseur_moyenne >= meilleure->paroi.m_l_epaisseur_moyenne) continue;
      if (est_traversee(*paroi, parties_[i].cote, parties_[j].cote) || empiete(*paroi)) continue;
      meilleure = paroi_possible{partie, autre, *paroi};
    }
    if (meilleure) file_.push(*meilleure);
  }

  // Two sides of a wall run against each other.
  [[nodiscard]] bool opposes(std::size_t cote_1, std::size_t cote_2) const {
    constexpr double tolerance_sinus = 1e-9;
    const vecteur_yz& u = cotes_[cote_1].direction;
    const vecteur_yz& v = cotes_[cote_2].direction;
    return loc_scalaire(u, v) < 0 && std::abs(loc_vectoriel(u, v)) <= sinus_max_ + tolerance_sinus;
  }

  // Faces of equal length meet at their ends: without some play rounding would decide whether they do.
  [[nodiscard]] zof_segment face(const zof_segment& s) const {
    const vecteur_yz u = zof_vecteur_segment_normalise(s);
    return loc_partie(s, loc_a_distance(s.m_le_point_extremite, u, jeu_),
                      loc_a_distance(s.m_le_point_origine, u, -jeu_));
  }

  // The matter stands on the left of both parts.
  [[nodiscard]] std::optional<zof_paroi> paroi_entre(const zof_segment& s1, const zof_segment& s2) const {
    const zof_segment face_2 = face(s2);
    if (!zof_segments_face_a_face(s1, face_2, epaisseur_max_)) return {};
    const zof_paroi paroi = zof_paroi_commune_segments(s1, face_2, epaisseur_max_, non_renseigne);
    const vecteur_yz gauche_1 = zof_vecteur_perpendiculaire_segment(s1);
    const vecteur_yz gauche_2 = zof_vecteur_perpendiculaire_segment(s2);
    for (const vecteur_yz& travers :
         {loc_entre(paroi.m_le_point_origine_segment_1, paroi.m_le_point_origine_segment_2),
          loc_entre(paroi.m_le_point_extremite_segment_1, paroi.m_le_point_extremite_segment_2)})
      if (loc_scalaire(gauche_1, travers) < 0 || loc_scalaire(gauche_2, travers) > 0) return {};
    if (!(loc_longueur(paroi.m_le_segment_moyen) >= tolerance)) return {};
    if (!(paroi.m_l_epaisseur_moyenne >= tolerance)) return {};
    return paroi;
  }

  // What lies between two parts is not matter alone.
  [[nodiscard]] bool est_traversee(const zof_paroi& paroi, std::size_t cote_1, std::size_t cote_2) const {
    for (std::size_t i = 0; i < cotes_.size(); ++i)
      if (i != cote_1 && i != cote_2 && loc_longueur_interieure(*cotes_[i].segment, paroi) > 0) return true;
    return false;
  }

  // Matter stands in one wall alone: the ends of a flange, or the stretch over a web and the other flange,
  // face each other through walls that are there.
  [[nodiscard]] bool empiete(const zof_paroi& paroi) const {
    return std::ranges::any_of(retenues_, [&](const paroi_retenue& r) {
      return loc_longueur_interieure(r.paroi.m_le_segment_moyen, paroi) > tolerance ||
             loc_longueur_interieure(paroi.m_le_segment_moyen, r.paroi) > tolerance;
    });
  }

  double sinus_max_;
  double epaisseur_max_;
  double jeu_ = 0;  // m: what rounding makes of coordinates
  std::vector<cote> cotes_;
  std::vector<partie_libre> parties_;
  std::vector<paroi_retenue> retenues_;
  std::priority_queue<paroi_possible, std::vector<paroi_possible>, std::greater<>> file_;
};

}  // namespace

void zof_construire_parois(int le_numero_contour, double angle_parois_max, double epaisseur_paroi_max,
                           const uef_vector& les_segments, uef_vector& les_parois, bool& erco) {
  if (erco) return;
  int numero = les_parois.nombre();
  for (zof_paroi& paroi : recherche_parois(les_segments, angle_parois_max, epaisseur_paroi_max).parois()) {
    paroi.m_le_numero_paroi = ++numero;
    paroi.m_le_segment_moyen.m_le_numero_zone = le_numero_contour;
    les_parois.ajouter(paroi);
  }
}

void zof_liste_segments_libres(const zof_segment& le_segment, const uef_vector& les_parois,
                               uef_vector& liste_segments_libres) {
  liste_segments_libres.re_creer("liste_segments_libres", zof_segment());
  liste_segments_libres.ajouter(le_segment);
  const zof_point& origine = le_segment.m_le_point_origine;
  for (const zof_paroi& p : uef_parcours<zof_paroi>(les_parois)) {
    if (p.m_le_pt_segment_1 == &le_segment)
      zof_modifier_segments_libres({p.m_le_point_origine_segment_1, p.m_le_point_extremite_segment_1},
                                   origine, liste_segments_libres);
    if (p.m_le_pt_segment_2 == &le_segment)
      zof_modifier_segments_libres({p.m_le_point_origine_segment_2, p.m_le_point_extremite_segment_2},
                                   origine, liste_segments_libres);
  }
}

void zof_modifier_segments_libres(const zof_segment& le_segment_occupe,
                                  const zof_point& le_point_origine_segment,
                                  uef_vector& les_segments_libres) {
  uef_vector restes;
  restes.creer(les_segments_libres.label(), zof_segment());
  for (const zof_segment& libre : uef_parcours<zof_segment>(les_segments_libres)) {
    const vecteur_yz u = zof_vecteur_segment_normalise(libre);
    const auto abscisse = [&](const zof_point& p) {
      return loc_scalaire(u, loc_entre(le_point_origine_segment, p));
    };
    const auto [debut, fin] = std::minmax(
        {abscisse(le_segment_occupe.m_le_point_origine), abscisse(le_segment_occupe.m_le_point_extremite)});
    const double origine = abscisse(libre.m_le_point_origine);
    const double extremite = abscisse(libre.m_le_point_extremite);
    const double avant = std::min(debut, extremite);
    const double apres = std::max(fin, origine);
    if (avant - origine >= tolerance)
      restes.ajouter(loc_partie(libre, libre.m_le_point_origine,
                                loc_a_distance(libre.m_le_point_origine, u, avant - origine)));
    if (extremite - apres >= tolerance)
      restes.ajouter(loc_partie(libre, loc_a_distance(libre.m_le_point_origine, u, apres - origine),
                                libre.m_le_point_extremite));
  }
  les_segments_libres = restes;
}

uef_vector zof_segments_moyens_parois(const uef_vector& les_parois, int position_segments) {
  uef_vector moyens;
  moyens.creer("segments_moyens", zof_segment());
  for (const zof_paroi& p : uef_parcours<zof_paroi>(les_parois))
    if (p.m_la_position == position_segments) moyens.ajouter(p.m_le_segment_moyen);
  return moyens;
}

// ---- Segments put end to end

bool zof_est_origine_segment(const zof_point& le_pt_point, const uef_vector& les_segments) {
  const uef_parcours<zof_segment> segments(les_segments);
  return std::any_of(segments.begin(), segments.end(), [&](const zof_segment& s) {
    return zof_distance_points(s.m_le_point_origine, le_pt_point) < tolerance;
  });
}

int zof_numero_segment_origine(const uef_vector& les_segments) {
  grille_points extremites;
  for (const zof_segment& s : uef_parcours<zof_segment>(les_segments))
    extremites.ajouter(loc_position(s.m_le_point_extremite));
  int numero = 0;
  int position = 0;
  for (const zof_segment& s : uef_parcours<zof_segment>(les_segments)) {
    ++position;
    if (extremites.existe_proche(loc_position(s.m_le_point_origine))) continue;
    zof_assert(numero == 0, "Zof_Numero_segment_origine : Cas impossible 2");
    numero = position;
  }
  zof_assert(numero != 0, "Zof_Numero_segment_origine : Cas impossible 1");
  return numero;
}

uef_vector zof_segments_ordonnes(const uef_vector& les_segments) {
  grille_points origines;
  std::vector<const zof_segment*> segments;
  for (const zof_segment& s : uef_parcours<zof_segment>(les_segments)) {
    segments.push_back(&s);
    origines.ajouter(loc_position(s.m_le_point_origine), static_cast<int>(segments.size()));
  }
  uef_vector chaine;
  chaine.creer("segments_ordonnes", zof_segment());
  int numero = zof_numero_segment_origine(les_segments);
  while (numero != 0 && chaine.nombre() < les_segments.nombre()) {
    const zof_segment& s = *segments[indice(numero)];
    chaine.ajouter(s);
    numero = origines.rang_proche(loc_position(s.m_le_point_extremite));
  }
  // A ring or a branch apart from the chain that has been followed.
  zof_assert(chaine.nombre() == les_segments.nombre() && numero == 0,
             "Zof_Numero_segment_origine : Cas impossible 2");
  return chaine;
}
