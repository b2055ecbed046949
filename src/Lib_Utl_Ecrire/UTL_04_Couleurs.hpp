// The named colours of the drawings, and their order for the series of a graph.
#pragma once

#include <array>

/// Parts of red, green and blue, each from 0 to 255.
struct utl_04_couleur {
  int rouge = 0, vert = 0, bleu = 0;
  friend bool operator==(const utl_04_couleur&, const utl_04_couleur&) = default;
};

inline constexpr utl_04_couleur utl_04_bleu{0, 0, 255};
inline constexpr utl_04_couleur utl_04_bleu_clair{153, 204, 255};
inline constexpr utl_04_couleur utl_04_bleu_fonce{51, 102, 255};
inline constexpr utl_04_couleur utl_04_bleu_moyen{0, 204, 255};
inline constexpr utl_04_couleur utl_04_citron_vert{153, 204, 0};
inline constexpr utl_04_couleur utl_04_gris_0_25{192, 192, 192};
inline constexpr utl_04_couleur utl_04_gris_0_40{153, 153, 153};
inline constexpr utl_04_couleur utl_04_gris_0_50{128, 128, 128};
inline constexpr utl_04_couleur utl_04_lavande{204, 153, 255};
inline constexpr utl_04_couleur utl_04_marron{130, 78, 20};
inline constexpr utl_04_couleur utl_04_marron_clair{168, 78, 20};
inline constexpr utl_04_couleur utl_04_marron_fonce{115, 78, 0};
inline constexpr utl_04_couleur utl_04_noir{0, 0, 0};
inline constexpr utl_04_couleur utl_04_ocre{234, 187, 14};
inline constexpr utl_04_couleur utl_04_ocre_fonce{192, 153, 12};
inline constexpr utl_04_couleur utl_04_orange{255, 102, 0};
inline constexpr utl_04_couleur utl_04_orange_clair{255, 153, 0};
inline constexpr utl_04_couleur utl_04_orange_fonce{255, 74, 0};
inline constexpr utl_04_couleur utl_04_rose{255, 153, 204};
inline constexpr utl_04_couleur utl_04_rouge{255, 0, 0};
inline constexpr utl_04_couleur utl_04_rouge_clair{255, 105, 105};
inline constexpr utl_04_couleur utl_04_rouge_fonce{165, 54, 45};
inline constexpr utl_04_couleur utl_04_rouge_moyen{194, 31, 31};
inline constexpr utl_04_couleur utl_04_vert{0, 255, 0};
inline constexpr utl_04_couleur utl_04_vert_clair{121, 235, 121};
inline constexpr utl_04_couleur utl_04_vert_fonce{0, 128, 0};
inline constexpr utl_04_couleur utl_04_vert_moyen{69, 200, 69};
inline constexpr utl_04_couleur utl_04_violet{128, 0, 128};
inline constexpr utl_04_couleur utl_04_violet_cliar{228, 16, 228};
inline constexpr utl_04_couleur utl_04_violet_fonce{98, 20, 98};
inline constexpr utl_04_couleur utl_04_svg_couleur_fond{255, 255, 255};

/// The series that a legend has room for.
inline constexpr int utl_04_nb_series_max = 30;

/// Fills the colours of the series of a graph, in their order.
void utl_04_couleurs_graphe_svg(std::array<utl_04_couleur, utl_04_nb_series_max>& couleurs);
