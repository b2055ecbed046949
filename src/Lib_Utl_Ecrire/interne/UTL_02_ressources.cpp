#include "UTL_02_ressources.hpp"

#include <array>
#include <memory>

#include "Systeme.hpp"

using namespace socle;

namespace {

std::optional<std::vector<std::string>> loc_lire(vue_l1 repertoire, vue_l1 nom) {
  const std::unique_ptr<entree> fichier = le_systeme().ouvrir(concat({repertoire, nom}));
  if (fichier == nullptr) return std::nullopt;
  std::vector<std::string> lignes;
  for (std::string ligne; fichier->ligne(ligne) == etat_lecture::lue;) {
    if (ligne.ends_with('\r')) ligne.pop_back();
    lignes.push_back(ligne);
  }
  return lignes;
}

std::optional<std::vector<std::string>> loc_lire_a_cote(vue_l1 nom) {
  const std::array<std::string, 3> repertoires = {"../exe/", "", le_systeme().repertoire_programme()};
  for (const std::string& repertoire : repertoires)
    if (auto lignes = loc_lire(repertoire, nom)) return lignes;
  return std::nullopt;
}

}  // namespace

std::optional<std::vector<std::string>> utl_02_lire_ressource(vue_l1 nom) {
  if (auto lignes = loc_lire_a_cote(nom)) return lignes;
  const auto chemin = loc_lire_a_cote("Chemin_appli.txt");
  if (!chemin || chemin->empty()) return std::nullopt;
  std::string repertoire(sans_blancs_finals(chemin->front()));
  if (repertoire.empty()) return std::nullopt;
  if (!repertoire.ends_with('/') && !repertoire.ends_with('\\')) repertoire += '/';
  return loc_lire(repertoire, nom);
}
