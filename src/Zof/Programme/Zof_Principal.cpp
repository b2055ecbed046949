#include "Zof_Principal.hpp"

#include "Arret.hpp"
#include "Zof_Options.hpp"

int zof_executer(std::span<const std::string_view> arguments, socle::systeme& machine) {
  zof_options_reinitialiser();
  const socle::systeme_en_place en_place(machine);
  return static_cast<int>(arguments.size());
}
