#include <array>
#include <string_view>

#include "Executer.hpp"
#include "Systeme_memoire.hpp"
#include "Zof_Principal.hpp"

course executer(socle::vue_l1 donnees) {
  systeme_memoire machine;
  machine.fichiers["etude.zof"] = std::string(donnees.octets());
  const std::array<std::string_view, 1> arguments = {"etude.zof"};
  course c;
  c.statut = zof_executer(arguments, machine);
  c.console = machine.texte_console;
  c.fichiers = machine.fichiers;
  c.listing = c.fichiers["etude.err"];
  c.txt = c.fichiers["etude.txt"];
  c.html = c.fichiers["etude.html"];
  c.tra = c.fichiers["etude.tra"];
  constexpr std::string_view repertoire = "Svg_etude/";
  for (const auto& [nom, contenu] : c.fichiers)
    if (nom.starts_with(repertoire)) c.svg[nom.substr(repertoire.size())] = contenu;
  c.premier_echec = machine.premier_echec();
  return c;
}
