// Both notes in memory, written with the settings of the program.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "Html_strict.hpp"
#include "Outils.hpp"
#include "UTL_02_Ecriture_Resu.hpp"

class Notes : public ::testing::Test {
 public:
  Notes(const Notes&) = delete;
  Notes& operator=(const Notes&) = delete;
  ~Notes() override { utl_02_reinitialiser(); }

 protected:
  Notes() {
    utl_02_reinitialiser();
    txt_ = machine.creer("n.txt", socle::debut::efface);
    html_ = machine.creer("n.html", socle::debut::efface);
    utl_02_initialiser({.opt_unit_txt = txt_.get(),
                        .opt_unit_html = html_.get(),
                        .opt_edition_txt = true,
                        .opt_edition_html = true,
                        .opt_lg_separation = 3,
                        .opt_logiciel = 5,
                        .opt_lg_ligne = 300,
                        .opt_numeroter_titres = true,
                        .opt_ecrire_sommaire = false,
                        .opt_ecrire_sommaire_dynam = true,
                        .opt_profondeur_sommaire_voulue = 10,
                        .opt_langue_entete = std::string_view("fr")});
  }

  /// What the notes received since the last look.
  std::string txt() { return std::exchange(machine.fichiers["n.txt"], {}); }
  std::string html() { return std::exchange(machine.fichiers["n.html"], {}); }

  systeme_memoire machine;

 private:
  socle::systeme_en_place en_place_{machine};
  std::unique_ptr<socle::sortie> txt_;
  std::unique_ptr<socle::sortie> html_;
};
