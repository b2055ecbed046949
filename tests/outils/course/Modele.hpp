// The model that a data file builds, to be asked while it stands: the commands run, but the run is not ended.
#pragma once

#include <memory>
#include <string>

#include "And_anadon.hpp"
#include "And_global.hpp"
#include "Lex_analex.hpp"
#include "Systeme_memoire.hpp"
#include "Zof_Commandes.hpp"
#include "Zof_Reinitialisation.hpp"

/// Reads these data, which begin with their first command, on a machine in memory. No note is written.
class modele {
 public:
  explicit modele(const std::string& donnees) : en_place_(machine_) {
    zof_reinitialiser();
    and_initialiser_anadon();
    and_initialiser_variables();
    machine_.fichiers["etude.zof"] = donnees;
    donnees_ = machine_.ouvrir("etude.zof");
    and_global.and_unite_echo_messages = &machine_.console();
    and_global.and_lg_envoi_echo = 0;
    and_global.and_mode_dequoter = true;
    and_global.and_mode_phrase = true;
    and_global.and_mode_delimiteur = false;
    lex_analex.lex_mode_mettre_code_fin_ligne = true;
    lex_analex.lex_lg_fixee_ligne_fichier_donnees = 200;
    lex_analex.lex_unite_lecture_donnees = donnees_.get();
    lex_analex.lex_mode_suspend_echo_donnees_lues = true;
    zof_executer_commandes(erco_);
  }
  modele(const modele&) = delete;
  modele& operator=(const modele&) = delete;
  ~modele() { zof_reinitialiser(); }

  [[nodiscard]] bool erco() const { return erco_; }
  [[nodiscard]] const std::string& console() const { return machine_.texte_console; }

 private:
  systeme_memoire machine_;
  socle::systeme_en_place en_place_;
  std::unique_ptr<socle::entree> donnees_;
  bool erco_ = false;
};
