// The reader on data in memory, with the modes that a run gives it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "And_anadon.hpp"
#include "And_global.hpp"
#include "Lex_analex.hpp"
#include "Systeme_memoire.hpp"
#include "Zof_Erreurs.hpp"

class lecteur {
 public:
  /// A read error comes after this many lines; none if negative.
  explicit lecteur(const std::string& donnees, int lignes_avant_faute = -1) : en_place_(machine_) {
    machine_.fichiers["essai.zof"] = donnees;
    if (lignes_avant_faute >= 0) machine_.lectures_fautives["essai.zof"] = lignes_avant_faute;
    donnees_ = machine_.ouvrir("essai.zof");
    listing_ = machine_.creer("essai.err", socle::debut::efface);
    lex_analex_reinitialiser();
    and_global_reinitialiser();
    zof_erreurs_reinitialiser();
    and_initialiser_anadon();
    and_initialiser_variables();
    and_global.and_unite_echo_messages = &machine_.console();
    and_global.and_mode_echo_donnees_analysees = 3;
    and_global.and_unite_echo_donnees_analysees = listing_.get();
    lex_analex.lex_mode_garder_point_virgule_dans_echo = true;
    lex_analex.lex_mode_mettre_code_fin_ligne = true;
    lex_analex.lex_unite_lecture_donnees = donnees_.get();
    zof_erreurs.zof_unite_erreurs = listing_.get();
  }
  lecteur(const lecteur&) = delete;
  lecteur& operator=(const lecteur&) = delete;
  ~lecteur() {
    lex_analex_reinitialiser();
    and_global_reinitialiser();
    zof_erreurs_reinitialiser();
  }

  /// Lines read are echoed on the console too, as a run does.
  void avec_echo_des_lignes() { lex_analex.lex_unite_echo_donnees_lues = &machine_.console(); }

  [[nodiscard]] const std::string& console() const { return machine_.texte_console; }
  /// The listing without the blanks at the ends of its lines.
  [[nodiscard]] std::string listing() const { return sans_blancs(listing_brut()); }
  [[nodiscard]] const std::string& listing_brut() const { return machine_.fichiers.at("essai.err"); }

  static std::string sans_blancs(const std::string& texte) {
    std::string resultat;
    std::size_t debut = 0;
    while (debut < texte.size()) {
      const std::size_t fin = std::min(texte.find('\n', debut), texte.size());
      resultat += socle::sans_blancs_finals(std::string_view(texte).substr(debut, fin - debut));
      resultat += '\n';
      debut = fin + 1;
    }
    return resultat;
  }

 private:
  systeme_memoire machine_;
  socle::systeme_en_place en_place_;
  std::unique_ptr<socle::entree> donnees_;
  std::unique_ptr<socle::sortie> listing_;
};
