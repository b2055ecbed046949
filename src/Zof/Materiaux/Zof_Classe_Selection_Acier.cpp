#include "Zof_Classe_Selection_Acier.hpp"

#include <algorithm>
#include <array>
#include <numbers>
#include <typeinfo>

#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

using socle::texte;

namespace {

struct barre {
  texte<3> label;
  int diametre_mm;
};
constexpr std::array<barre, 9> barres = {{{"_10", 10},
                                          {"_12", 12},
                                          {"_14", 14},
                                          {"_16", 16},
                                          {"_20", 20},
                                          {"_25", 25},
                                          {"_32", 32},
                                          {"_6", 6},
                                          {"_8", 8}}};

bool loc_commence_par_p(const texte<4>& label) { return label.entier().substr(0, 2) == "P_"; }

const barre* loc_barre(const texte<4>& label) {
  const texte<3> fin = label.entier().substr(1);
  return std::find_if(barres.begin(), barres.end(), [&fin](const barre& b) { return b.label == fin; });
}

}  // namespace

bool zof_est_label_selection(const texte<4>& label) {
  return loc_commence_par_p(label) && loc_barre(label) != barres.end();
}

void zof_ajouter_selection(uef_vector& vecteur_selection, const texte<4>& label_selection) {
  zof_assert(loc_commence_par_p(label_selection), " ZOF_Ajouter_selection : Cas impossible 1");
  const barre* const trouvee = loc_barre(label_selection);
  zof_assert(trouvee != barres.end(), " ZOF_Ajouter_selection : Cas impossible 2");

  zof_selection_acier selection;
  selection.m_cardinalite = 1;
  selection.m_diametre_mm = trouvee->diametre_mm;
  selection.m_label_phi = zof_chaine_numerique_entier(selection.m_diametre_mm).entier();
  selection.m_label_cardinalite = label_selection.entier().substr(0, 1);
  selection.m_label_selection = label_selection;
  const double diametre = selection.m_diametre_mm / 1000.0;
  selection.m_aire_acier = std::numbers::pi / 2 * (2 * selection.m_cardinalite) * diametre * diametre / 4;
  vecteur_selection.ajouter(selection);
}

zof_selection_acier& zof_pt_selection_acier(uef_vector_element& element) {
  zof_assert(typeid(element) == typeid(zof_selection_acier), "Zof_Pt_Selection_acier : Cas impossible");
  return static_cast<zof_selection_acier&>(element);
}
