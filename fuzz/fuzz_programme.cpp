// libFuzzer: the bytes are a data file; whatever they are, the run ends by itself with a status of the
// program and touches none but its own files.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>

#include "Systeme_memoire.hpp"
#include "Zof_Principal.hpp"

// NOLINTNEXTLINE(readability-identifier-naming): the name that the library calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t longueur) {
  systeme_memoire machine;
  machine.fichiers["a.zof"].assign(reinterpret_cast<const char*>(octets), longueur);
  const std::array<std::string_view, 1> arguments = {"a.zof"};
  const int statut = zof_executer(arguments, machine);
  if (statut != 0 && statut != 1 && statut != 10) std::abort();
  static const std::set<std::string> permis = {"a.zof", "a.err", "a.txt", "a.html", "a.tra"};
  for (const auto& [nom, contenu] : machine.fichiers)
    if (!permis.contains(nom) && !nom.starts_with("Svg_a/")) std::abort();
  return 0;
}
