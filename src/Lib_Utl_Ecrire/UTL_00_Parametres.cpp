#include "UTL_00_Parametres.hpp"

#include <charconv>
#include <memory>
#include <string>
#include <string_view>

#include "Systeme.hpp"

using namespace socle;

namespace {

constexpr int nb_max_modules = 100;
constexpr std::size_t largeur_numero = 4;

/// Number in the first four columns; blanks or anything else: no module.
bool loc_est_ligne_du_module(std::string_view ligne, int numero_module) {
  const std::string_view champ = sans_blancs_initiaux(sans_blancs_finals(ligne.substr(0, largeur_numero)));
  int numero = 0;
  const auto lu = std::from_chars(champ.data(), champ.data() + champ.size(), numero);
  return lu.ec == std::errc{} && lu.ptr == champ.data() + champ.size() && numero == numero_module;
}

}  // namespace

void utl_00_lire_titre_module(int numero_module, texte<300>& titre_module) {
  titre_module = numero_module == utl_00_module_zof ? texte<300>("Calcul ZOF") : texte<300>();
  const std::unique_ptr<entree> liste = le_systeme().ouvrir("..\\EXE\\UTL_Liste_Module.txt");
  if (liste == nullptr) {
    le_systeme().console().ligne("==> Liste des modules introuvable.");
    return;
  }
  std::string ligne;
  for (int i = 0; i < nb_max_modules && liste->ligne(ligne) == etat_lecture::lue; ++i) {
    if (ligne.ends_with('\r')) ligne.pop_back();
    if (ligne.size() > largeur_numero && loc_est_ligne_du_module(ligne, numero_module)) {
      titre_module = sans_blancs_initiaux(std::string_view(ligne).substr(largeur_numero));
      return;
    }
  }
}
