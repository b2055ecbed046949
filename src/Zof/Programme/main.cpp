// Program zof: one argument, the data file; -v first prints the version.
#include <cstddef>
#include <cstdio>
#include <string_view>
#include <vector>

#include "Systeme_reel.hpp"
#include "Zof_Principal.hpp"

int main(int nombre, char** arguments) {
  socle::systeme_reel machine;
  const std::vector<std::string_view> mots(arguments + (nombre > 0 ? 1 : 0), arguments + nombre);
  const int statut = zof_executer(mots, machine);
  machine.vider_console();
  // A note cut short by a full disk must not pass for a complete one.
  if (!machine.premier_echec().empty()) {
    std::fprintf(stderr, "zof : ecriture impossible : %s\n", machine.premier_echec().c_str());
    return 1;
  }
  return statut;
}
