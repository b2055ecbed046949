// The machine of the program: standard output, POSIX files, the directory of drawings.
#pragma once

#include <memory>
#include <string>

#include "Systeme.hpp"

namespace socle {

class systeme_reel final : public systeme {
 public:
  /// A closed pipe must not kill the process: its signal is ignored from here on. A standard stream that is
  /// closed stays so for the run's files.
  systeme_reel();
  ~systeme_reel() override;
  sortie& console() override;
  std::unique_ptr<entree> ouvrir(vue_l1 chemin) override;
  std::unique_ptr<sortie> creer(vue_l1 chemin, debut d) override;
  void refaire_repertoire(vue_l1 chemin) override;
  std::string repertoire_programme() override;
  /// Sends out what the console still holds.
  void vider_console();

 private:
  std::unique_ptr<sortie> console_;
};

}  // namespace socle
