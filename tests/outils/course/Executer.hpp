// A whole run in memory: data in, console, listing, notes, trace, drawings and status out.
#pragma once

#include <map>
#include <string>

#include "Texte.hpp"

struct course {
  int statut = 0;
  std::string console;
  std::string listing;  // <root>.err
  std::string txt;
  std::string html;
  std::string tra;
  std::map<std::string, std::string> svg;       // name without directory: contents
  std::map<std::string, std::string> fichiers;  // all files of the run, the data file included
  std::string premier_echec;                    // first file on which a write failed
};

/// Runs the program on these data as etude.zof in the current directory of a machine in memory.
course executer(socle::vue_l1 donnees);
