// A data file read up to its end, with the objects that it makes left in place: executer() shows what a run
// writes, this shows what it holds.
#pragma once

#include <memory>
#include <string>

#include "And_anadon.hpp"
#include "And_global.hpp"
#include "Lex_analex.hpp"
#include "Systeme_memoire.hpp"
#include "Zof_Commandes.hpp"
#include "Zof_Reinitialisation.hpp"

class modele {
 public:
  explicit modele(const std::string& donnees) : en_place_(machine_) {
    zof_reinitialiser();
    machine_.fichiers["etude.zof"] = donnees;
    donnees_ = machine_.ouvrir("etude.zof");
    and_initialiser_anadon();
    and_initialiser_variables();
    and_global.and_unite_echo_messages = &machine_.console();
    and_global.and_mode_dequoter = true;
    and_global.and_mode_phrase = true;
    and_global.and_mode_delimiteur = false;
    lex_analex.lex_mode_mettre_code_fin_ligne = true;
    lex_analex.lex_lg_fixee_ligne_fichier_donnees = 200;
    lex_analex.lex_unite_lecture_donnees = donnees_.get();
    socle::texte<4> mot;
    and_lire_deb_nom(mot, 4, erreur_);
    if (!erreur_) zof_executer_commandes(erreur_);
  }
  modele(const modele&) = delete;
  modele& operator=(const modele&) = delete;
  ~modele() { zof_reinitialiser(); }

  [[nodiscard]] bool erreur() const { return erreur_; }
  [[nodiscard]] const std::string& console() const { return machine_.texte_console; }

 private:
  systeme_memoire machine_;
  socle::systeme_en_place en_place_;
  std::unique_ptr<socle::entree> donnees_;
  bool erreur_ = false;
};
