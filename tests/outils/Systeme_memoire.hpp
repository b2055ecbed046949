// A machine in memory: files are strings, and openings, reads and writes can be told to fail.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Systeme.hpp"

class systeme_memoire final : public socle::systeme {
 public:
  systeme_memoire();
  ~systeme_memoire() override;
  socle::sortie& console() override;
  std::unique_ptr<socle::entree> ouvrir(socle::vue_l1 chemin) override;
  std::unique_ptr<socle::sortie> creer(socle::vue_l1 chemin, socle::debut d) override;
  void refaire_repertoire(socle::vue_l1 chemin) override;
  std::string repertoire_programme() override { return programme; }

  std::map<std::string, std::string> fichiers;  // paths with "/", contents
  std::string texte_console;
  std::vector<std::string> repertoires_refaits;
  std::set<std::string> ouvertures_refusees;     // paths that ouvrir and creer refuse
  std::set<std::string> ecritures_refusees;      // paths on which every write fails
  std::map<std::string, int> lectures_fautives;  // path: number of lines read before a read error
  std::string programme = "/programme/";

 private:
  std::unique_ptr<socle::sortie> console_;
};
