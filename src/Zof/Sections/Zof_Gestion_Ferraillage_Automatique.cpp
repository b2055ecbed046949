// Bars along the sides of a contour. Notation, per side:
//   r      cover and half a diameter: distance from the side to the axis of a bar of layer 1
//   a      distance from layer 1 to a further layer
//   f      +1 for the contour, -1 for a void: the side of the outline on which the concrete lies
//   rank   of a bar on its side: 0 at the origin, 1 to n inside, n + 1 at the extremity

#include "Zof_Gestion_Ferraillage_Automatique.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "Arithmetique.hpp"
#include "QB7_Sections.hpp"
#include "Simple.hpp"
#include "Systeme.hpp"
#include "Zof_Classe_Contour.hpp"
#include "Zof_Classe_Evidement.hpp"
#include "Zof_Classe_Ferraillage.hpp"
#include "Zof_Classe_Selection_Acier.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_segments.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

// Spacings that differ by less are equal: what the coordinates lose by rounding.
constexpr double tolerance_longueurs = 1e-9;  // m
// A length that passes a limit by less holds it: both are written in single precision.
constexpr double tolerance_limites = 1e-6;  // m
// Spacings of a layout that design has changed hold within this.
constexpr double tolerance_espacements = 0.001;  // m
// Below this sine of half its angle a corner is a spike: no bar fits into it.
constexpr double sinus_min_coin = 1e-9;

void loc_assert_qb7(ier_2 ier) { zof_assert(!ier, "Zof_Ferraillage_Automatique : Cas impossible"); }

// ---- What the data left open

void loc_completer(int& champ, int valeur) {
  if (!est_renseigne_integer(champ)) champ = valeur;
}
void loc_completer(double& champ, double valeur) {
  if (!est_renseigne_double(champ)) champ = valeur;
}

void loc_completer_donnees(zof_ferraillage& zone) {
  loc_completer(zone.m_enrobage, simple(0.03F));
  loc_completer(zone.m_nb_lits, 1);
  loc_completer(zone.m_distance_lits, zone.m_diametre_zone);
  loc_completer(zone.m_ecartement_aciers_max, simple(0.2F));
  loc_completer(zone.m_ecartement_aciers_min, simple(0.05F));
  loc_completer(zone.m_angle_horizontal_max, std::numbers::pi / 4);
}

// A layer of bars has the diameter of its block; otherwise the last bar of the selection is laid, from which
// design goes down.
void loc_choisir_diametre(zof_ferraillage& zone) {
  uef_vector& selection = zone.m_liste_selection_aciers;
  if (selection.nombre() == 0 && zone.est_en_lits()) {
    zof_ajouter_selection(selection, zone.label_diametre());
  } else if (selection.nombre() == 0) {
    zof_ajouter_selection(selection, "P_20");
    zof_ajouter_selection(selection, "P_25");
  }
  const uef_pointage<zof_selection_acier> dernier{selection, selection.nombre()};
  zone.m_diametre_zone = dernier->m_diametre_mm / 1000.0;
}

// ---- Faces

struct face {
  uef_vector segments;
  std::string_view refus;  // of a contour that has none
};

std::vector<face> loc_faces(const zof_ferraillage& zone, const zof_zone& contour) {
  const int type = zone.m_type_ferraillage;
  const bool stricte = type == type_ferraillage_sup_strict || type == type_ferraillage_inf_strict ||
                       type == type_ferraillage_lat_strict || type == type_ferraillage_peri_strict;
  uef_vector sup;
  uef_vector inf;
  uef_vector droite;
  uef_vector gauche;
  uef_vector tous;
  const bool erco = false;
  zof_selectionner_segments_contour(contour.m_les_points_zone, contour.get_numero_zone_qb7(),
                                    zone.m_angle_horizontal_max, stricte, sup, inf, droite, gauche, tous,
                                    erco);
  switch (type) {
    case type_ferraillage_sup_strict:
    case type_ferraillage_sup_parois: return {{sup, " Aucun cote du contour detecte en face supérieure"_l1}};
    case type_ferraillage_inf_strict:
    case type_ferraillage_inf_parois: return {{inf, " Aucun cote du contour detecte en face inférieure"_l1}};
    case type_ferraillage_lat_strict:
    case type_ferraillage_lat_parois:
      return {{droite, " Aucun cote du contour detecte en face laterale droite"},
              {gauche, " Aucun cote du contour detecte en face laterale gauche"}};
    default: return {{tous, {}}};
  }
}

// ---- Sides, moved inwards

struct cote_ferraille {
  point_yz origine, extremite;                  // of the bars of layer 1
  vecteur_yz derive_origine, derive_extremite;  // by which the ends move per metre of a
  double longueur = 0;                          // m, on layer 1
  int nombre_interieurs = 0;

  [[nodiscard]] point_yz origine_a(double a) const {
    return {origine.y + a * derive_origine.y, origine.z + a * derive_origine.z};
  }
  [[nodiscard]] point_yz extremite_a(double a) const {
    return {extremite.y + a * derive_extremite.y, extremite.z + a * derive_extremite.z};
  }
  [[nodiscard]] point_yz barre(double a, int rang) const {
    const point_yz o = origine_a(a);
    const point_yz e = extremite_a(a);
    const double t = static_cast<double>(rang) / (nombre_interieurs + 1);
    return rang == nombre_interieurs + 1 ? e : point_yz{o.y + (e.y - o.y) * t, o.z + (e.z - o.z) * t};
  }
};

struct retrait {
  double r = 0;      // m
  double a_max = 0;  // m: the last layer
  double f = 1;
};

// The end of a side moves along the bisector of its corner, so that it keeps r to both sides. On a further
// layer it does so where the next side bears bars of the same face; at the end of a face the layers stand
// square to the side.
void loc_deplacer_bout(const zof_point& coin, bool coin_de_la_face, const retrait& ret, point_yz& bout,
                       vecteur_yz& derive) {
  const double sinus = std::sin(coin.m_angle_bissectrice);
  const vecteur_yz b{ret.f / sinus * coin.m_vec_bissectrice.y, ret.f / sinus * coin.m_vec_bissectrice.z};
  bout = {coin.m_y + ret.r * b.y, coin.m_z + ret.r * b.z};
  derive = coin_de_la_face ? b : vecteur_yz{ret.f * coin.m_vec_orthogonal.y, ret.f * coin.m_vec_orthogonal.z};
}

// The two ends still stand in the order of the side. Not so in a piece of concrete thinner than twice r.
bool loc_garde_son_sens(const cote_ferraille& cote, const vecteur_yz& direction, double a) {
  const point_yz o = cote.origine_a(a);
  const point_yz e = cote.extremite_a(a);
  return (e.y - o.y) * direction.y + (e.z - o.z) * direction.z >= -tolerance_limites;
}

bool loc_coin_ferraillable(const zof_point& coin) {
  return std::sin(coin.m_angle_bissectrice) >= sinus_min_coin;
}

// The sides of a face on which bars fit, on all layers, in their order.
void zof_ferrailler_segments(const uef_vector& segments, int nombre_cotes, const retrait& ret,
                             std::vector<cote_ferraille>& cotes) {
  std::vector<bool> de_la_face(static_cast<std::size_t>(nombre_cotes), false);  // by the number less 1
  for (const zof_segment& s : uef_parcours<zof_segment>(segments))
    de_la_face[indice(s.m_le_numero_segment)] = true;
  for (const zof_segment& s : uef_parcours<zof_segment>(segments)) {
    const zof_point& origine = s.m_le_point_origine;
    const zof_point& extremite = s.m_le_point_extremite;
    if (!loc_coin_ferraillable(origine) || !loc_coin_ferraillable(extremite)) continue;
    const int numero = s.m_le_numero_segment;
    cote_ferraille cote;
    loc_deplacer_bout(origine, de_la_face[indice(numero == 1 ? nombre_cotes : numero - 1)], ret, cote.origine,
                      cote.derive_origine);
    loc_deplacer_bout(extremite, de_la_face[indice(numero == nombre_cotes ? 1 : numero + 1)], ret,
                      cote.extremite, cote.derive_extremite);
    const vecteur_yz direction = zof_vecteur_segment_normalise(s);
    if (!loc_garde_son_sens(cote, direction, 0) || !loc_garde_son_sens(cote, direction, ret.a_max)) continue;
    cote.longueur = std::hypot(cote.extremite.y - cote.origine.y, cote.extremite.z - cote.origine.z);
    cotes.push_back(cote);
  }
}

// ---- Numbers of bars

// More bars than numbers of points cannot be.
void loc_assert_nombre(double nombre, bool& erco) {
  zof_assert_commande(nombre <= numero_point_max,
                      concat({" Numero de point incorrect >", std::to_string(numero_point_max)}), erco);
}

// Inner bars of a side: as few as the greatest spacing allows. One fewer if they stand too close, as long as
// the greatest spacing holds: it limits the width of cracks and comes first (EN 1992-1-1 7.3.3). A spacing at
// a limit, as far as the coordinates tell, holds.
double loc_nombre_points_interieurs(double longueur, double distance_max, double distance_min) {
  const double espacement_max = distance_max + tolerance_limites;
  const double espacement_min = distance_min - tolerance_limites;
  double n = std::max(std::trunc(longueur / distance_max) - 1, 0.0);
  if (longueur / (n + 1) > espacement_max) {
    n += 1;
    zof_assert(!(longueur / (n + 1) > espacement_max),
               "ZOF_Creer_points_sur_segment : Distance maximale non verifiee cas 1");
  }
  if (longueur / (n + 1) < espacement_min && n > 0 && longueur / n <= espacement_max) n -= 1;
  return n;
}

// Values under change, of which the greatest is asked for: a tree whose nodes hold the greater of their two
// children.
class arbre_des_maxima {
 public:
  explicit arbre_des_maxima(std::size_t nombre)
      : feuilles_(std::bit_ceil(nombre)), noeuds_(2 * feuilles_, -1.0) {}
  void fixer(std::size_t i, double valeur) {
    std::size_t n = feuilles_ + i;
    noeuds_[n] = valeur;
    for (n /= 2; n > 0; n /= 2) noeuds_[n] = std::max(noeuds_[2 * n], noeuds_[2 * n + 1]);
  }
  /// The first value among those that are the greatest one, within a tolerance.
  [[nodiscard]] std::size_t premier_des_plus_grands(double tolerance) const {
    const double seuil = noeuds_[1] - tolerance;
    std::size_t n = 1;
    while (n < feuilles_) n = noeuds_[2 * n] >= seuil ? 2 * n : 2 * n + 1;
    return n - feuilles_;
  }

 private:
  std::size_t feuilles_;
  std::vector<double> noeuds_;
};

// ---- The layout of a zone

// A bar of layer 1; those of the further layers stand at the same rank of the same side.
struct place {
  std::size_t cote = 0;
  int rang = 0;
};

// The contour, or one of its voids.
struct partie {
  std::vector<cote_ferraille> cotes;
  std::vector<place> places;
};

class pose_automatique {
 public:
  explicit pose_automatique(zof_ferraillage& zone)
      : zone_(zone), autres_(zone.contour_mere().m_barres_automatiques) {}

  /// The bars of the zone, in order; the results of the layout go into the zone. A number of points per
  /// layer that is not given follows from the spacings.
  polygone poser(int nombre_par_lit, bool& erco) {
    deplacer_cotes(erco);
    if (erco) return {};
    est_renseigne_integer(nombre_par_lit) ? repartir(nombre_par_lit, erco) : espacer(erco);
    if (erco) return {};
    for (partie& p : parties_) {
      poser_partie(p, erco);
      if (erco) return {};
    }
    zof_assert_commande(!positions_.empty(), " Aucun point n est defini", erco);
    conclure();
    return std::move(positions_);
  }

 private:
  // The sides of the contour, then those of each void: of the same faces, of which it may have none.
  void deplacer_cotes(bool& erco) {
    const zof_contour& contour = zone_.contour_mere();
    deplacer_cotes_de(contour, 1, erco);
    const int type = zone_.m_type_ferraillage;
    const bool par_parois = type == type_ferraillage_sup_parois || type == type_ferraillage_inf_parois ||
                            type == type_ferraillage_lat_parois || type == type_ferraillage_peri_parois;
    if (!par_parois) return;
    for (const auto& fille : uef_parcours<zof_zone_generalisee_pointeur>(contour.m_les_zones)) {
      const auto* const vide = dynamic_cast<const zof_evidement*>(fille.m_pt_zone);
      if (vide != nullptr && !erco) deplacer_cotes_de(*vide, -1, erco);
    }
  }

  void deplacer_cotes_de(const zof_zone& contour, double f, bool& erco) {
    const retrait ret{
        .r = zone_.m_enrobage + zone_.m_diametre_zone / 2, .a_max = distance(zone_.m_nb_lits), .f = f};
    partie& p = parties_.emplace_back();
    for (const face& une : loc_faces(zone_, contour)) {
      const bool vide = une.segments.nombre() == 0;
      zof_assert_commande(!vide || f < 0, une.refus, erco);
      if (erco) return;
      zof_ferrailler_segments(une.segments, contour.m_les_points_zone.nombre(), ret, p.cotes);
    }
  }

  [[nodiscard]] double distance(int lit) const { return (lit - 1.0) * zone_.m_distance_lits; }

  // By the spacings, each side for itself.
  void espacer(bool& erco) {
    double somme = 0;
    for (partie& p : parties_) {
      for (cote_ferraille& cote : p.cotes) {
        loc_assert_nombre(cote.longueur / zone_.m_ecartement_aciers_max, erco);
        if (erco) return;
        const double n = loc_nombre_points_interieurs(cote.longueur, zone_.m_ecartement_aciers_max,
                                                      zone_.m_ecartement_aciers_min);
        somme += n;
        loc_assert_nombre(somme, erco);
        if (erco) return;
        cote.nombre_interieurs = static_cast<int>(n);
      }
    }
  }

  // So many points in a layer, over all sides: each bar beyond those of the corners goes where the spacing is
  // the greatest.
  void repartir(int nombre, bool& erco) {
    loc_assert_nombre(nombre, erco);
    if (erco) return;
    std::vector<cote_ferraille*> cotes;
    for (partie& p : parties_)
      for (cote_ferraille& cote : p.cotes) cotes.push_back(&cote);
    if (cotes.empty()) return;
    arbre_des_maxima espacements(cotes.size());
    for (std::size_t i = 0; i < cotes.size(); ++i) espacements.fixer(i, cotes[i]->longueur);
    for (int reste = nombre - nombre_bouts(cotes); reste > 0; --reste) {
      const std::size_t i = espacements.premier_des_plus_grands(tolerance_longueurs);
      cotes[i]->nombre_interieurs += 1;
      espacements.fixer(i, cotes[i]->longueur / (cotes[i]->nombre_interieurs + 1));
    }
  }

  [[nodiscard]] int nombre_bouts(const std::vector<cote_ferraille*>& cotes) const {
    grille_points bouts;
    int nombre = 0;
    for (const cote_ferraille* const cote : cotes) {
      for (const point_yz p : {cote->origine, cote->extremite}) {
        if (bouts.existe_proche(p) || autres_.existe_proche(p)) continue;
        bouts.ajouter(p);
        ++nombre;
      }
    }
    return nombre;
  }

  void poser_partie(partie& p, bool& erco) {
    const std::size_t debut = positions_.size();
    poser_premier_lit(p, erco);
    if (erco) return;
    mesurer_espacements({positions_.begin() + static_cast<std::ptrdiff_t>(debut), positions_.end()});
    loc_assert_nombre(static_cast<double>(p.places.size()) * zone_.m_nb_lits, erco);
    for (int lit = 2; lit <= zone_.m_nb_lits && !p.places.empty(); ++lit) {
      for (const place& une : p.places) {
        if (erco) return;
        const point_yz position = p.cotes[une.cote].barre(distance(lit), une.rang);
        if (autres_.existe_proche(position)) refuser_double(erco);
        poser_barre(position, erco);
      }
    }
  }

  // A bar that two sides share, or that another zone has laid, stands once.
  void poser_premier_lit(partie& p, bool& erco) {
    for (std::size_t i = 0; i < p.cotes.size(); ++i) {
      const cote_ferraille& cote = p.cotes[i];
      for (int rang = 0; rang <= cote.nombre_interieurs + 1; ++rang) {
        const point_yz position = cote.barre(0, rang);
        if (premier_lit_.existe_proche(position) || autres_.existe_proche(position)) continue;
        poser_barre(position, erco);
        if (erco) return;
        premier_lit_.ajouter(position);
        p.places.push_back({i, rang});
      }
      zone_.m_longueur_ferraillage += cote.longueur;
    }
  }

  void poser_barre(point_yz position, bool& erco) {
    if (erco) return;
    if (toutes_.existe_proche(position)) return refuser_double(erco);
    toutes_.ajouter(position);
    positions_.push_back(position);
  }

  static void refuser_double(bool& erco) {
    zof_erreur_commande(" Duplication de point : prevenir le gestionnaire", erco);
  }

  // From each bar of layer 1 to the one before it, or to the one behind it where that is nearer: a step from
  // one face to the next is no spacing.
  void mesurer_espacements(const polygone& lit) {
    const auto ecart = [&lit](std::size_t k) {
      return std::hypot(lit[k].y - lit[k - 1].y, lit[k].z - lit[k - 1].z);
    };
    for (std::size_t k = 1; k < lit.size(); ++k) {
      const double d = k + 1 < lit.size() ? std::min(ecart(k), ecart(k + 1)) : ecart(k);
      zone_.m_espacement_max_effectif = std::max(zone_.m_espacement_max_effectif, d);
      zone_.m_espacement_min_effectif = std::min(zone_.m_espacement_min_effectif, d);
      zone_.m_espacement_moyen_effectif += d;
      ++nombre_espacements_;
    }
  }

  void conclure() {
    if (nombre_espacements_ > 0) zone_.m_espacement_moyen_effectif /= nombre_espacements_;
  }

  zof_ferraillage& zone_;
  const grille_points& autres_;  // bars that other zones of the contour have laid
  std::vector<partie> parties_;
  grille_points premier_lit_, toutes_;
  polygone positions_;
  int nombre_espacements_ = 0;
};

polygone loc_poser(zof_ferraillage& zone, int nombre_par_lit, bool& erco) {
  loc_completer_donnees(zone);
  loc_choisir_diametre(zone);
  zone.m_longueur_ferraillage = 0;
  zone.m_espacement_max_effectif = -1;
  zone.m_espacement_min_effectif = 1;
  zone.m_espacement_moyen_effectif = 0;
  return pose_automatique(zone).poser(nombre_par_lit, erco);
}

bool loc_espacements_verifies(const zof_ferraillage& zone, double tolerance) {
  return zone.m_espacement_max_effectif <= zone.m_ecartement_aciers_max + tolerance &&
         zone.m_espacement_min_effectif >= zone.m_ecartement_aciers_min - tolerance;
}

void loc_avertir(const zof_ferraillage& zone) {
  sortie& console = le_systeme().console();
  const auto ligne = [&console](vue_l1 intitule, double valeur) {
    console.ligne(concat({intitule, zof_chaine_numerique_double(valeur).entier()}));
  };
  console.ligne(" ATTENTION  - Espacements max ou min non verifies : ");
  ligne("  - Espacement max effectif : ", zone.m_espacement_max_effectif);
  ligne("  - Espacement min effectif : ", zone.m_espacement_min_effectif);
  ligne("  - Ecartement_aciers_max   : ", zone.m_ecartement_aciers_max);
  ligne("  - Ecartement_aciers_min   : ", zone.m_ecartement_aciers_min);
}

// ---- The zones of a contour together

struct mode {
  int type_1, type_2;
  std::string_view repetition;
};
constexpr std::array<mode, 5> modes{
    {{type_ferraillage_sup_strict, type_ferraillage_sup_parois,
      "repetiton du mode de ferraillage: Superieur"},
     {type_ferraillage_inf_strict, type_ferraillage_inf_parois,
      "repetiton du mode de ferraillage: Inferieur"},
     {type_ferraillage_lat_strict, type_ferraillage_lat_parois, "repetiton du mode de ferraillage: Lateral"},
     {type_ferraillage_peri_strict, type_ferraillage_peri_strict,
      "repetiton du mode de ferraillage: Peripherique strict"},
     {type_ferraillage_peri_parois, type_ferraillage_peri_parois,
      "repetiton du mode de ferraillage: peripherique parois"}}};

// Each face is laid once; bars all round stand alone.
void loc_controler_modes(const std::vector<zof_ferraillage*>& zones, bool& erco) {
  std::array<bool, modes.size()> presents{};
  for (const zof_ferraillage* const zone : zones) {
    for (std::size_t i = 0; i < modes.size(); ++i) {
      if (zone->m_type_ferraillage != modes[i].type_1 && zone->m_type_ferraillage != modes[i].type_2)
        continue;
      zof_assert_commande(!presents[i], modes[i].repetition, erco);
      presents[i] = true;
    }
    zof_assert_commande(!zone->est_en_lits() || zone->m_nb_points_par_lit > 1,
                        "definition du lit explicite avec une seule armature interdite", erco);
    if (erco) return;
  }
  const bool tout_autour = presents[3] || presents[4];
  zof_assert_commande(!tout_autour || std::count(presents.begin(), presents.end(), true) == 1,
                      " Les dispositions de ferraillage automatique sont incompatibles ", erco);
}

}  // namespace

void zof_traiter_ferraillages_automatiques_ou_en_lits(zof_contour& contour, bool& erco) {
  std::vector<zof_ferraillage*> zones;
  for (const auto& fille : uef_parcours<zof_zone_generalisee_pointeur>(contour.m_les_zones)) {
    auto* const zone = dynamic_cast<zof_ferraillage*>(fille.m_pt_zone);
    if (zone != nullptr && zone->est_automatique()) zones.push_back(zone);
  }
  loc_controler_modes(zones, erco);
  for (zof_ferraillage* const zone : zones) {
    if (erco) return;
    zof_traiter_ferraillage_automatique(*zone, erco);
  }
}

void zof_traiter_ferraillage_automatique(zof_ferraillage& zone, bool& erco) {
  const polygone positions = loc_poser(zone, zone.m_nb_points_par_lit, erco);
  if (erco) return;
  if (!loc_espacements_verifies(zone, tolerance_limites)) loc_avertir(zone);
  zone.placer_barres(positions, erco);
}

bool zof_modifier_ferraillage_automatique(zof_ferraillage& zone, int nombre_points_par_lit, bool& erco) {
  const int section = zone.get_numero_section_qb7();
  const int numero = zone.get_numero_zone_qb7();
  bool active = false;
  bool dimensionnable = false;
  loc_assert_qb7(qb7_activite_zone(section, numero, active));
  loc_assert_qb7(qb7_lire_dimensionnable(section, numero, dimensionnable));
  zone.retirer_barres();
  const polygone positions = loc_poser(zone, nombre_points_par_lit, erco);
  if (erco) return false;
  zone.placer_barres(positions, erco);
  if (erco) return false;
  loc_assert_qb7(qb7_activer_zone(section, numero, active, false));
  loc_assert_qb7(qb7_fixer_dimensionnable(section, numero, dimensionnable));
  return loc_espacements_verifies(zone, tolerance_espacements);
}
