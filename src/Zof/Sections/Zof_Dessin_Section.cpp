#include "Zof_Dessin_Section.hpp"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

#include "Etiquettes.hpp"
#include "Simple.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "UTL_04_Dessin.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Options.hpp"

using namespace socle;

namespace {

/// What makes the two sizes of a drawing.
struct format_dessin {
  std::string_view suffixe;
  int cote;      // pixels of the greater side
  double marge;  // on each side, as a part of the greater length
};
constexpr format_dessin ordinaire{"", 600, simple(0.1F)};
constexpr format_dessin grand{"_D", 1800, simple(0.05F)};
constexpr int police_numeros = 8;

double loc_longueur(const std::array<double, 2>& v) { return v[1] - v[0]; }

bool loc_contient_zero(const std::array<double, 2>& v) { return v[0] <= 0 && v[1] >= 0; }

std::array<double, 2> loc_elargie(const std::array<double, 2>& v, double marge) {
  return {v[0] - marge, v[1] + marge};
}

// Opens the drawing with its window and its head; the axes are those whose zero it shows.
void loc_ouvrir(const zof_section& section, const format_dessin& format, bool axes) {
  const std::string fichier = concat(
      {section.m_nom_zone.utile(), "_", std::to_string(gestion_section.no_dessin), format.suffixe, ".svg"});
  utl_04_initialiser_fichier_dessin(zof_options.glo_racine_nom_fichier_svg.utile(),
                                    zof_options.glo_repertoire_svg.utile(), fichier);
  const double longueur = std::max(loc_longueur(section.m_y_min_max), loc_longueur(section.m_z_min_max));
  std::array<double, 2> y = loc_elargie(section.m_y_min_max, format.marge * longueur);
  std::array<double, 2> z = loc_elargie(section.m_z_min_max, format.marge * longueur);
  const std::array<int, 2> fenetre = utl_04_fenetre_proportionnee(format.cote, y, z);
  const double pas = utl_04_pas_grille(longueur);
  utl_04_initialise_svg(fenetre, y, z,
                        {.opt_dx_grille = pas,
                         .opt_dy_grille = pas,
                         .opt_afficher_axex = axes && loc_contient_zero(z),
                         .opt_afficher_axey = axes && loc_contient_zero(y),
                         .opt_label_axe_x = "y",
                         .opt_label_axe_y = "z"});
  utl_04_entete_svg();
}

void loc_dessiner_zones(const zof_section& section) {
  for (const zof_zone* const zone : section.zones()) zone->dessin_zone();
}

// ---- Numbers of the points

etiquettes::point loc_en_pixels(point_yz p) {
  utl_04_point echelle;
  utl_04_echelle_svg(echelle);
  return {(p.y - utl_04.glb_x_min_max[0]) * echelle.x, (utl_04.glb_y_min_max[1] - p.z) * echelle.y};
}

class numerotation {
 public:
  explicit numerotation(const zof_section& section)
      : section_(section),
        places_(utl_04.glb_taille_fenetre[0], utl_04.glb_taille_fenetre[1], police_numeros) {
    utl_04_echelle_svg(echelle_);
    for (const zof_zone* const zone : section.zones()) {
      ajouter_cercles(*zone);
      ajouter_cotes(*zone);
    }
  }

  void ecrire() {
    for (const zof_zone* const zone : section_.zones()) {
      for (const zof_point& p : uef_parcours<zof_point>(zone->m_les_points_zone)) ecrire(*zone, p);
    }
  }

 private:
  void ajouter_cercles(const zof_zone& zone) {
    const double rayon = zone.rayon_points() * echelle_.x;
    if (!(rayon > 0)) return;
    for (const zof_point& p : uef_parcours<zof_point>(zone.m_les_points_zone)) {
      const etiquettes::point centre = loc_en_pixels({p.m_y, p.m_z});
      places_.ajouter_cercle(centre, rayon);
      double& plus_grand = rayons_[{p.m_y, p.m_z}];
      plus_grand = std::max(plus_grand, rayon);
    }
  }

  void ajouter_cotes(const zof_zone& zone) {
    if (zone.nature() != nature_zone::contour && zone.nature() != nature_zone::evidement) return;
    const polygone points = zone.positions_points();
    for (std::size_t i = 0; i < points.size(); ++i)
      places_.ajouter_segment(loc_en_pixels(points[i]), loc_en_pixels(points[(i + 1) % points.size()]));
  }

  // The numbers of an outline stand outside of it, those of what lies in it towards the middle of the
  // section.
  void ecrire(const zof_zone& zone, const zof_point& p) {
    const etiquettes::point position = loc_en_pixels({p.m_y, p.m_z});
    const etiquettes::point milieu{utl_04.glb_taille_fenetre[0] / 2.0, utl_04.glb_taille_fenetre[1] / 2.0};
    const double sens = zone.numeros_au_dehors() ? 1 : -1;
    const etiquettes::point direction{sens * (position.x - milieu.x), sens * (position.y - milieu.y)};
    const auto cercle = rayons_.find({p.m_y, p.m_z});
    const double rayon = cercle == rayons_.end() ? 0 : cercle->second;
    const std::string numero = std::to_string(p.m_numero_point);
    const auto place = places_.placer(position, rayon, numero.size(), direction);
    if (!place) return;
    if (place->eloignee)
      utl_04_creer_ligne_svg({position.x, position.y}, {place->attache.x, place->attache.y},
                             {utl_04_gris_0_50, 0.5, true});
    utl_04_ecrire_texte_svg(numero, {place->pied.x, place->pied.y}, {},
                            {.opt_coordonnes_globales = true,
                             .opt_taille_police = police_numeros,
                             .opt_angle_degree = place->debout ? -90.0 : 0.0,
                             .opt_halo = true});
  }

  const zof_section& section_;
  etiquettes places_;
  utl_04_point echelle_;
  std::map<std::pair<double, double>, double> rayons_;  // of the greatest circle about a position, pixels
};

// The drawing at large format. Gives its address in the note.
std::string loc_dessiner_section_grand_format(const zof_section& section) {
  loc_ouvrir(section, grand, false);
  loc_dessiner_zones(section);
  numerotation(section).ecrire();
  utl_04_finaliser_svg();
  return utl_04.lien;
}

}  // namespace

void zof_dessiner_section(const zof_section& section, bool& erco) {
  const bool plate = loc_longueur(section.m_y_min_max) == 0 || loc_longueur(section.m_z_min_max) == 0;
  zof_assert_commande(!plate, " Dessin section impossible : une dimension est nulle", erco);
  if (erco) return;
  ++gestion_section.no_dessin;
  loc_ouvrir(section, ordinaire, true);
  loc_dessiner_zones(section);
  utl_04_afficher_axex_svg();
  utl_04_afficher_axey_svg();
  utl_04_inclure_dessin_html();
  utl_04_finaliser_svg();
  utl_02_ecrire_lien_hypertexte(loc_dessiner_section_grand_format(section),
                                "==================================> DESSIN EN GRANDE LARGEUR");
}
