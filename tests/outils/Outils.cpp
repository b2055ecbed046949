#include "Outils.hpp"

namespace {

std::vector<std::string> loc_champs(const std::string& ligne) {
  std::vector<std::string> champs(1);
  bool entre_guillemets = false;
  for (const char c : ligne) {
    if (c == '"')
      entre_guillemets = !entre_guillemets;
    else if (c == ',' && !entre_guillemets)
      champs.emplace_back();
    else if (c != '\r')
      champs.back() += c;
  }
  return champs;
}

}  // namespace

table_csv lire_csv(const std::string& chemin) {
  std::ifstream fichier(chemin);
  table_csv table;
  for (std::string ligne; std::getline(fichier, ligne);) {
    if (ligne.empty() || ligne.front() == '#') continue;
    if (table.colonnes.empty())
      table.colonnes = loc_champs(ligne);
    else
      table.lignes.push_back(loc_champs(ligne));
  }
  if (table.lignes.empty()) throw std::runtime_error("no data in " + chemin);
  return table;
}
