// The typed forms in the data file: keywords, checks in their order, then the points.

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string>
#include <string_view>

#include "And_anadon.hpp"
#include "Zof_Classe_Evidement.hpp"
#include "Zof_Classe_Section.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Formes_typees.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

namespace {

// A dimension in the block of a form: where it goes, and what is said of a value that is not above 0.
struct cote_forme {
  std::string_view mot;
  double* valeur;  // m
  std::string_view message;
};

// What a block may hold beside dimensions above 0.
struct autres_mots {
  int* nombre_points = nullptr;  // NOMB
  double* devers = nullptr;      // DEVE, %
};

bool loc_donne(double cote) { return est_renseigne_double(cote); }
// Reals of the data file are singles: sums that are equal on paper differ in their seventh digit. Dimensions
// that differ by no more than that are equal.
double loc_jeu(double a, double b) { return 1e-6 * std::max(std::abs(a), std::abs(b)); }
bool loc_au_plus(double a, double b) { return a <= b + loc_jeu(a, b); }
bool loc_sous(double a, double b) { return a < b - loc_jeu(a, b); }

double loc_zero_si_absent(double cote) { return loc_donne(cote) ? cote : 0.0; }

void loc_lire_nombre_points(int& nombre, bool& deja_lu, bool& erco) {
  zof_non_repetition_integer("NOMB", deja_lu ? nombre : static_cast<int>(non_renseigne), erco);
  if (erco) return;
  deja_lu = true;
  and_lire_entier(nombre, erco);
  if (!erco) zof_assert_commande(nombre >= 10, "Attribut nombre incorrecte : <10", erco);
}

void loc_lire_devers(double& devers, bool& erco) {
  zof_non_repetition_double("DEVE", devers, erco);
  if (erco) return;
  and_lire_reel_d(devers, erco);
  if (!erco) zof_assert_commande(std::abs(devers) <= 25, "Attribut devers incorrect : > 25%", erco);
}

void loc_lire_cote(const cote_forme& cote, bool& erco) {
  zof_non_repetition_double(cote.mot, *cote.valeur, erco);
  if (erco) return;
  and_lire_reel_d(*cote.valeur, erco);
  if (!erco) zof_assert_commande(*cote.valeur > 0, cote.message, erco);
}

// The block of a form up to a word in FIN_.
void loc_lire_cotes(std::span<const cote_forme> cotes, const autres_mots& autres, bool& erco) {
  bool nombre_lu = false;
  texte<4> mot;
  for (and_lire_deb_nom(mot, 4, erco); !erco && clef(mot) != "FIN_"_mot; and_lire_deb_nom(mot, 4, erco)) {
    const auto cote =
        std::find_if(cotes.begin(), cotes.end(), [&](const cote_forme& c) { return mot == c.mot; });
    if (cote != cotes.end()) {
      loc_lire_cote(*cote, erco);
    } else if (autres.nombre_points != nullptr && clef(mot) == "NOMB"_mot) {
      loc_lire_nombre_points(*autres.nombre_points, nombre_lu, erco);
    } else if (autres.devers != nullptr && clef(mot) == "DEVE"_mot) {
      loc_lire_devers(*autres.devers, erco);
    } else {
      zof_attribut_incorrect(mot, erco);
    }
    if (erco) return;
  }
}

// A polygon of more points than there are numbers is refused before it is made: NOMB may be any integer.
void loc_assert_nombre_points(int nombre, bool& erco) {
  zof_assert_commande(nombre <= numero_point_max,
                      concat({" Numero de point incorrect >", std::to_string(numero_point_max)}), erco);
}

// The first 27 letters of a name and a suffix; fewer letters where a longer suffix would not fit.
texte<32> loc_nom_suffixe(const texte<32>& nom, const std::string& suffixe) {
  const auto place = std::min<std::size_t>(27, 32 - suffixe.size());
  return concat({nom.utile().substr(0, place), suffixe});
}

// The void of a hollow form: named after its contour, and complete before anything that follows.
void loc_creer_evidement(zof_zone& contour, const polygone& points, bool& erco) {
  const zof_section& section = *contour.m_p_section_mere;
  texte<32> nom = loc_nom_suffixe(contour.m_nom_zone, "_EVID");
  for (int n = 2; section.pointer_zone(nom) != nullptr; ++n)
    nom = loc_nom_suffixe(contour.m_nom_zone, "_EV" + std::to_string(n));
  zof_zone& evidement = contour.creer_sous_zone(nature_zone::evidement, nom);
  evidement.ajouter_points(1, points, erco);
  if (!erco) evidement.traiter_zone(erco);
}

template <class forme>
void loc_creer_contour(zof_zone& zone, const forme& f, bool& erco) {
  zone.ajouter_points(1, points_contour(f), erco);
}

template <class forme>
void loc_creer_contour_creux(zof_zone& zone, const forme& f, bool& erco) {
  loc_creer_contour(zone, f, erco);
  if (!erco) loc_creer_evidement(zone, points_evidement(f), erco);
}

// ---- Checks that several forms share

constexpr std::string_view hauteur_incorrecte = "Attribut hauteur incorrect : <=0";
constexpr std::string_view largeur_incorrecte = "Attribut largeur incorrect : <=0";
constexpr std::string_view h_totale_incorrecte = "Attribut hauteur totale incorrecte : <=0";
constexpr std::string_view l_totale_incorrecte = "Attribut largeur totale incorrecte : <=0";
constexpr std::string_view l_ame_incorrecte = "Attribut largeur ame incorrecte : <=0";
constexpr std::string_view h_table_incorrecte = "Attribut hauteur table incorrecte : <=0";
constexpr std::string_view h_joue_incorrecte = "Attribut hauteur joue incorrecte : <=0";
constexpr std::string_view l_joue_incorrecte = "Attribut largeur joue incorrecte : <=0";
constexpr std::string_view diametre_incorrect = "Attribut hauteur incorrect : <0";
constexpr std::string_view h_extremite_incorrecte =
    "Attribut hauteur extremite encorbellement incorrecte : <=0";
constexpr std::string_view h_origine_incorrecte = "Attribut hauteur origine encorbellement incorrecte : <=0";
constexpr std::string_view l_encorbellement_incorrecte = "Attribut largeur encorbellement incorrecte : <=0";
constexpr std::string_view h_bandeau_incorrecte = "Attribut hauteur bandeau incorrecte : <=0";

constexpr std::string_view ame_trop_large = "Attribut largeur ame >= largeur totale";
constexpr std::string_view joues_trop_larges = "Attribut largeur ame + 2*l_joue >= largeur totale";
constexpr std::string_view joue_sans_hauteur =
    "Attribut largeur joue interdit si hauteur joue non renseignee";
constexpr std::string_view tables_et_joues_trop_hautes = "Attribut hauteur table +joue >= hauteur totale";
constexpr std::string_view tables_trop_hautes = "Attribut 2*hauteur table >= hauteur totale";

// Two dimensions that come together or not at all.
void loc_assert_paire(double a, std::string_view nom_a, double b, std::string_view nom_b, bool& erco) {
  if (!loc_donne(a) && !loc_donne(b)) return;
  zof_assert_renseigne_double(a, nom_a, erco);
  zof_assert_renseigne_double(b, nom_b, erco);
}

// The slope under an overhang. What is missing is told, and nothing is computed with it.
template <class forme>
void loc_controler_joue(const forme& f, bool& erco) {
  zof_assert_commande(loc_donne(f.h_joue), "Attribut hauteur joue non renseignee", erco);
  zof_assert_commande(loc_donne(f.l_joue), "Attribut largeur joue non renseignee", erco);
  zof_assert_commande(loc_donne(f.h_origine), "hauteur origine obligatoire en présence de joue"_l1, erco);
  if (loc_donne(f.h_joue))
    zof_assert_commande(loc_au_plus(f.h_origine + f.h_joue, f.h_totale),
                        "Attribut hauteur origine + hauteur joue > hauteur totale", erco);
  if (loc_donne(f.l_joue))
    zof_assert_commande(loc_au_plus(f.l_joue + f.l_encorbellement, f.l_totale / 2),
                        "Attribut largeurs joue + encobellement> largeur totale/2", erco);
}

template <class forme>
bool loc_avec_joue(const forme& f) {
  return loc_donne(f.h_joue) || loc_donne(f.l_joue);
}

// ---- I sections: the cross checks of I_SY and of I_NO run in one order

void loc_controler_joues_en_i(const forme_en_i& f, const table_en_i& table, bool& erco) {
  if (loc_donne(table.h_joue) && loc_donne(table.l_joue))
    zof_assert_commande(loc_sous(2 * table.l_joue + f.l_ame, table.l_table), joues_trop_larges, erco);
}

void loc_controler_i_symetrique(const forme_en_i& f, bool& erco) {
  const table_en_i& t = f.sup;
  zof_assert_commande(loc_sous(f.l_ame, t.l_table), ame_trop_large, erco);
  if (loc_donne(t.h_joue)) {
    // The slope counts once, though the I has two: slopes that meet in the web are accepted.
    zof_assert_commande(loc_sous(t.h_table + t.h_joue, f.h_totale), tables_et_joues_trop_hautes, erco);
    loc_controler_joues_en_i(f, t, erco);
  } else {
    zof_assert_commande(!loc_donne(t.l_joue), joue_sans_hauteur, erco);
    zof_assert_commande(loc_sous(2 * t.h_table, f.h_totale), tables_trop_hautes, erco);
  }
}

void loc_controler_i_non_symetrique(const forme_en_i& f, bool& erco) {
  zof_assert_commande(loc_sous(f.l_ame, f.sup.l_table), ame_trop_large, erco);
  zof_assert_commande(loc_sous(f.l_ame, f.inf.l_table), ame_trop_large, erco);
  const double hauteurs =
      f.sup.h_table + loc_zero_si_absent(f.sup.h_joue) + f.inf.h_table + loc_zero_si_absent(f.inf.h_joue);
  const bool joue = loc_donne(f.sup.h_joue) || loc_donne(f.inf.h_joue);
  zof_assert_commande(loc_sous(hauteurs, f.h_totale), joue ? tables_et_joues_trop_hautes : tables_trop_hautes,
                      erco);
  loc_controler_joues_en_i(f, f.sup, erco);
  loc_controler_joues_en_i(f, f.inf, erco);
  zof_assert_commande(loc_donne(f.sup.h_joue) || !loc_donne(f.sup.l_joue), joue_sans_hauteur, erco);
  zof_assert_commande(loc_donne(f.inf.h_joue) || !loc_donne(f.inf.l_joue), joue_sans_hauteur, erco);
}

// ---- Box girder

void loc_assert_renseigne_caisson(const forme_caisson& f, bool& erco) {
  zof_assert_renseigne_double(f.h_totale, "H_TOTALE", erco);
  zof_assert_renseigne_double(f.l_totale, "L_TOTALE", erco);
  zof_assert_renseigne_double(f.h_extremite, "H_EXTREMITE_ENCORBELLEMENT", erco);
  zof_assert_renseigne_double(f.h_origine, "H_ORIGINE_ENCORBELLEMENT", erco);
  zof_assert_renseigne_double(f.l_encorbellement, "L_ENCORBELLEMENT", erco);
  zof_assert_renseigne_double(f.epaisseur_intrados, "EP_INTRADOS", erco);
  zof_assert_renseigne_double(f.epaisseur_extrados, "EP_EXTRADOS", erco);
  zof_assert_renseigne_double(f.epaisseur_ame, "EP_AME", erco);
  loc_assert_paire(f.h_gousset_extrados, "HG_EXTRADOS", f.l_gousset_extrados, "LG_EXTRADOS", erco);
  loc_assert_paire(f.h_gousset_intrados, "HG_INTRADOS", f.l_gousset_intrados, "LG_INTRADOS", erco);
}

void loc_controler_joue_caisson(const forme_caisson& f, bool& erco) {
  loc_controler_joue(f, erco);
  const double hgi = loc_zero_si_absent(f.h_gousset_intrados);
  if (loc_donne(f.h_joue))
    zof_assert_commande(
        loc_au_plus(f.h_joue + f.h_origine + f.epaisseur_intrados + hgi, f.h_totale),
        "h_joue+h_origine_encorbellement+epaisseur_intrados+ h_goussets_intrados> hauteur totale", erco);
  if (!loc_donne(f.l_joue)) return;
  const double l = f.l_joue + f.l_encorbellement + f.epaisseur_ame;
  zof_assert_commande(loc_au_plus(l + loc_zero_si_absent(f.l_gousset_intrados), f.l_totale / 2),
                      "Attribut largeurs joue + encobellement + ame + goussets intrados> largeur totale/2",
                      erco);
  zof_assert_commande(loc_au_plus(l + loc_zero_si_absent(f.l_gousset_extrados), f.l_totale / 2),
                      "Attribut largeurs joue + encobellement + ame + goussets extrados> largeur totale/2",
                      erco);
}

void loc_controler_intrados(const forme_caisson& f, bool& erco) {
  if (!loc_donne(f.l_intrados)) return;
  zof_assert_commande(loc_sous(f.epaisseur_ame + loc_zero_si_absent(f.l_gousset_intrados), f.l_intrados),
                      "Attribut largeur intrados <= epaisseur_ame+l_goussets_intrado", erco);
  zof_assert_commande(loc_au_plus(f.l_intrados, f.l_totale - 2 * f.l_encorbellement),
                      "Attribut largeur intrados >l_totale-2*l_encorbellement", erco);
  if (loc_donne(f.l_joue))
    zof_assert_commande(loc_au_plus(f.l_intrados, f.l_totale - 2 * f.l_encorbellement - 2 * f.l_joue),
                        "Attribut largeur intrados >l_totale-2*l_encorbellement-2*l_joue", erco);
}

void loc_controler_caisson(const forme_caisson& f, bool& erco) {
  const double hge = loc_zero_si_absent(f.h_gousset_extrados);
  const double hgi = loc_zero_si_absent(f.h_gousset_intrados);
  const double l = f.l_encorbellement + f.epaisseur_ame;
  zof_assert_commande(loc_au_plus(f.h_extremite, f.h_origine),
                      "Attribut hauteur extremite encorbellement > hauteur origine encorbellement", erco);
  zof_assert_commande(
      loc_au_plus(f.h_origine + f.epaisseur_intrados + hgi, f.h_totale),
      "Attribut hauteur origine +epaisseur_intrados+hauteurs_goussets_inferieurs > hauteur totale", erco);
  zof_assert_commande(
      loc_sous(f.epaisseur_intrados + f.epaisseur_extrados + hgi + hge, f.h_totale),
      "epaisseur_intrados + epaisseur_extrados+ h_goussets_intrados + h_goussets_extrados  < h_totale", erco);
  zof_assert_commande(loc_au_plus(l + loc_zero_si_absent(f.l_gousset_intrados), f.l_totale / 2),
                      "l_encorbellement+epaisseur_ame+l_goussets_intrados >  largeur totale /2", erco);
  zof_assert_commande(loc_au_plus(l + loc_zero_si_absent(f.l_gousset_extrados), f.l_totale / 2),
                      "l_encorbellement+epaisseur_ame+l_goussets_extrados >  largeur totale /2", erco);
  if (loc_avec_joue(f)) loc_controler_joue_caisson(f, erco);
  loc_controler_intrados(f, erco);
}

}  // namespace

void zof_zone::decoder_zone_rectangle(bool& erco) {
  forme_rectangle f;
  const std::array cotes{cote_forme{"HAUT", &f.hauteur, hauteur_incorrecte},
                         cote_forme{"LARG", &f.largeur, largeur_incorrecte}};
  loc_lire_cotes(cotes, {}, erco);
  if (erco) return;
  zof_assert_renseigne_double(f.hauteur, "HAUT", erco);
  zof_assert_renseigne_double(f.largeur, "LARG", erco);
  if (!erco) loc_creer_contour(*this, f, erco);
}

void zof_zone::decoder_zone_rectangle_evide(bool& erco) {
  constexpr std::string_view sup_incorrecte = "Attribut epaisseur sup incorrect : <=0";
  constexpr std::string_view inf_incorrecte = "Attribut epaisseur inf incorrect : <=0";
  forme_rectangle_evide f;
  const std::array cotes{cote_forme{"HAUT", &f.hauteur, hauteur_incorrecte},
                         cote_forme{"LARG", &f.largeur, largeur_incorrecte},
                         cote_forme{"EP_E", &f.epaisseur_sup, sup_incorrecte},
                         cote_forme{"E_SU", &f.epaisseur_sup, sup_incorrecte},
                         cote_forme{"EP_I", &f.epaisseur_inf, inf_incorrecte},
                         cote_forme{"E_IN", &f.epaisseur_inf, inf_incorrecte},
                         cote_forme{"EP_L", &f.epaisseur_lat, "Attribut epaisseur laterale incorrect : <=0"},
                         cote_forme{"L_GO", &f.largeur_gousset, "Attribut largeur gousset incorrect : <=0"},
                         cote_forme{"H_GO", &f.hauteur_gousset, "Attribut hauteur gousset incorrect : <=0"}};
  loc_lire_cotes(cotes, {}, erco);
  if (erco) return;
  zof_assert_renseigne_double(f.hauteur, "HAUT", erco);
  zof_assert_renseigne_double(f.largeur, "LARG", erco);
  zof_assert_renseigne_double(f.epaisseur_sup, "EP_S", erco);
  zof_assert_renseigne_double(f.epaisseur_inf, "EP_I", erco);
  zof_assert_renseigne_double(f.epaisseur_lat, "EP_L", erco);
  loc_assert_paire(f.largeur_gousset, "L_GO", f.hauteur_gousset, "H_GO", erco);
  if (erco) return;
  const double hauteurs = f.epaisseur_sup + f.epaisseur_inf;
  zof_assert_commande(loc_sous(hauteurs, f.hauteur), "Epaisseurs superieures à  la hauteur"_l1, erco);
  zof_assert_commande(loc_sous(2 * f.epaisseur_lat, f.largeur), "Epaisseurs superieures à la largeur"_l1,
                      erco);
  if (loc_donne(f.largeur_gousset)) {
    // The width of the haunches stands in for their height too.
    zof_assert_commande(loc_sous(hauteurs + 2 * f.largeur_gousset, f.hauteur),
                        "Epaisseurs superieures à la hauteur"_l1, erco);
    zof_assert_commande(loc_sous(2 * (f.largeur_gousset + f.epaisseur_lat), f.largeur),
                        "Epaisseurs superieures à la largeur"_l1, erco);
  }
  if (!erco) loc_creer_contour_creux(*this, f, erco);
}

void zof_zone::decoder_zone_circulaire(bool& erco) {
  forme_cercle f;
  const std::array cotes{cote_forme{"DIAM", &f.diametre, diametre_incorrect}};
  loc_lire_cotes(cotes, {.nombre_points = &f.nombre_points}, erco);
  if (erco) return;
  zof_assert_renseigne_double(f.diametre, "DIAMETRE", erco);
  if (!erco) loc_assert_nombre_points(f.nombre_points, erco);
  if (!erco) loc_creer_contour(*this, f, erco);
}

void zof_zone::decoder_zone_tube(bool& erco) {
  forme_tube f;
  const std::array cotes{cote_forme{"DIAM", &f.diametre, diametre_incorrect},
                         cote_forme{"EPAI", &f.epaisseur, "Attribut epaisseur incorrecte : <0"}};
  loc_lire_cotes(cotes, {.nombre_points = &f.nombre_points}, erco);
  if (erco) return;
  zof_assert_renseigne_double(f.diametre, "DIAMETRE", erco);
  zof_assert_renseigne_double(f.epaisseur, "EPAISSEUR", erco);
  if (erco) return;
  zof_assert_commande(loc_au_plus(f.epaisseur, f.diametre / 2), "Attribut epaisseur incorrecte : > rayon ",
                      erco);
  if (!erco) loc_assert_nombre_points(f.nombre_points, erco);
  if (!erco) loc_creer_contour_creux(*this, f, erco);
}

void zof_zone::decoder_zone_en_te(bool& erco) {
  forme_te f;
  const std::array cotes{cote_forme{"H_TO", &f.h_totale, h_totale_incorrecte},
                         cote_forme{"L_TO", &f.l_totale, l_totale_incorrecte},
                         cote_forme{"H_AM", &f.h_ame, "Attribut hauteur ame incorrecte : <=0"},
                         cote_forme{"L_AM", &f.l_ame, l_ame_incorrecte}};
  loc_lire_cotes(cotes, {}, erco);
  if (erco) return;
  zof_assert_renseigne_double(f.h_totale, "H_TOTALE", erco);
  zof_assert_renseigne_double(f.l_totale, "L_TOTALE", erco);
  zof_assert_renseigne_double(f.h_ame, "H_AME", erco);
  zof_assert_renseigne_double(f.l_ame, "L_AME", erco);
  if (erco) return;
  zof_assert_commande(loc_sous(f.l_ame, f.l_totale), ame_trop_large, erco);
  zof_assert_commande(loc_sous(f.h_ame, f.h_totale), "Attribut hauteur ame >= hauteur totale", erco);
  if (!erco) loc_creer_contour(*this, f, erco);
}

void zof_zone::decoder_zone_en_i(bool& erco) {
  forme_en_i f;
  table_en_i& t = f.sup;
  const std::array cotes{cote_forme{"H_TO", &f.h_totale, h_totale_incorrecte},
                         cote_forme{"L_TO", &t.l_table, l_totale_incorrecte},
                         cote_forme{"H_TA", &t.h_table, h_table_incorrecte},
                         cote_forme{"H_JO", &t.h_joue, h_joue_incorrecte},
                         cote_forme{"L_JO", &t.l_joue, h_joue_incorrecte},
                         cote_forme{"L_AM", &f.l_ame, l_ame_incorrecte}};
  loc_lire_cotes(cotes, {}, erco);
  if (erco) return;
  zof_assert_renseigne_double(f.h_totale, "H_TOTALE", erco);
  zof_assert_renseigne_double(t.l_table, "L_TOTALE", erco);
  zof_assert_renseigne_double(t.h_table, "H_TABLE", erco);
  zof_assert_renseigne_double(f.l_ame, "L_AME", erco);
  if (erco) return;
  loc_controler_i_symetrique(f, erco);
  if (erco) return;
  f.inf = f.sup;
  loc_creer_contour(*this, f, erco);
}

void zof_zone::decoder_zone_en_i_non_symetrique(bool& erco) {
  constexpr std::string_view l_table_incorrecte = "Attribut largeur table incorrecte : <=0";
  forme_en_i f;
  const std::array cotes{cote_forme{"H_TO", &f.h_totale, h_totale_incorrecte},
                         cote_forme{"L_AM", &f.l_ame, l_ame_incorrecte},
                         cote_forme{"LT_S", &f.sup.l_table, l_table_incorrecte},
                         cote_forme{"LT_I", &f.inf.l_table, l_table_incorrecte},
                         cote_forme{"HT_S", &f.sup.h_table, h_table_incorrecte},
                         cote_forme{"HT_I", &f.inf.h_table, h_table_incorrecte},
                         cote_forme{"HJ_S", &f.sup.h_joue, h_joue_incorrecte},
                         cote_forme{"HJ_I", &f.inf.h_joue, h_joue_incorrecte},
                         cote_forme{"LJ_S", &f.sup.l_joue, h_joue_incorrecte},
                         cote_forme{"LJ_I", &f.inf.l_joue, h_joue_incorrecte}};
  loc_lire_cotes(cotes, {}, erco);
  if (erco) return;
  zof_assert_renseigne_double(f.h_totale, "H_TOTALE", erco);
  for (const table_en_i* const t : {&f.sup, &f.inf}) zof_assert_renseigne_double(t->l_table, "L_TABLE", erco);
  for (const table_en_i* const t : {&f.sup, &f.inf}) zof_assert_renseigne_double(t->h_table, "H_TABLE", erco);
  zof_assert_renseigne_double(f.l_ame, "L_AME", erco);
  if (erco) return;
  loc_controler_i_non_symetrique(f, erco);
  if (!erco) loc_creer_contour(*this, f, erco);
}

void zof_zone::decoder_zone_te_encorbellement(bool& erco) {
  forme_te_encorbellement f;
  const std::array cotes{cote_forme{"H_TO", &f.h_totale, h_totale_incorrecte},
                         cote_forme{"L_TO", &f.l_totale, l_totale_incorrecte},
                         cote_forme{"H_EX", &f.h_extremite, h_extremite_incorrecte},
                         cote_forme{"H_OR", &f.h_origine, h_origine_incorrecte},
                         cote_forme{"L_EN", &f.l_encorbellement, l_encorbellement_incorrecte},
                         cote_forme{"L_JO", &f.l_joue, l_joue_incorrecte},
                         cote_forme{"H_JO", &f.h_joue, h_bandeau_incorrecte}};
  loc_lire_cotes(cotes, {}, erco);
  if (erco) return;
  zof_assert_renseigne_double(f.h_totale, "H_TOTALE", erco);
  zof_assert_renseigne_double(f.l_totale, "L_TOTALE", erco);
  zof_assert_renseigne_double(f.h_extremite, "H_EXTREMITE_ENCORBELLEMENT", erco);
  zof_assert_renseigne_double(f.h_origine, "H_ORIGINE_ENCORBELLEMENT", erco);
  zof_assert_renseigne_double(f.l_encorbellement, "L_ENCORBELLEMENT", erco);
  if (erco) return;
  zof_assert_commande(loc_au_plus(f.h_extremite, f.h_totale), "Attribut hauteur extremite > hauteur totale",
                      erco);
  zof_assert_commande(loc_au_plus(2 * f.l_encorbellement, f.l_totale),
                      "Attribut largeur encorbellement >  largeur totale /2", erco);
  zof_assert_commande(loc_au_plus(f.h_origine, f.h_totale), "Attribut hauteur origine > hauteur totale",
                      erco);
  zof_assert_commande(loc_au_plus(f.h_extremite, f.h_origine), "Attribut hauteur origine < hauteur extremite",
                      erco);
  if (loc_avec_joue(f)) loc_controler_joue(f, erco);
  if (!erco) loc_creer_contour(*this, f, erco);
}

void zof_zone::decoder_zone_caisson(bool& erco) {
  forme_caisson f;
  const std::array cotes{
      cote_forme{"H_TO", &f.h_totale, h_totale_incorrecte},
      cote_forme{"L_TO", &f.l_totale, l_totale_incorrecte},
      cote_forme{"H_EX", &f.h_extremite, h_extremite_incorrecte},
      cote_forme{"H_OR", &f.h_origine, h_origine_incorrecte},
      cote_forme{"L_EN", &f.l_encorbellement, l_encorbellement_incorrecte},
      cote_forme{"L_JO", &f.l_joue, l_joue_incorrecte},
      cote_forme{"H_JO", &f.h_joue, h_bandeau_incorrecte},
      cote_forme{"L_IN", &f.l_intrados, "Attribut largeur intrados incorrecte : <=0"},
      cote_forme{"CRET", &f.h_crete, l_joue_incorrecte},
      cote_forme{"E_IN", &f.epaisseur_intrados, "Attribut epaisseur intrados incorrecte : <=0"},
      cote_forme{"E_EX", &f.epaisseur_extrados, "Attribut epaisseur_extrados incorrecte : <=0"},
      cote_forme{"E_AM", &f.epaisseur_ame, "Attribut lepaisseur_ame incorrecte : <=0"},
      cote_forme{"H_GE", &f.h_gousset_extrados, "Attribut hauteur gousset extrados incorrecte : <=0"},
      cote_forme{"H_GI", &f.h_gousset_intrados, "Attribut hauteur gousset intrados incorrecte : <=0"},
      cote_forme{"L_GE", &f.l_gousset_extrados, "Attribut largeur gousset extrados incorrecte : <=0"},
      cote_forme{"L_GI", &f.l_gousset_intrados, "Attribut largeur gousset intrados incorrecte : <=0"}};
  loc_lire_cotes(cotes, {.devers = &f.devers}, erco);
  if (erco) return;
  loc_assert_renseigne_caisson(f, erco);
  if (erco) return;
  loc_controler_caisson(f, erco);
  if (!erco) loc_creer_contour_creux(*this, f, erco);
}
