// What the tests of MATE share, whatever the kind of the material: blocks read into a model, runs that are
// refused, laws as the section engine holds them, extracts of the note.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "Executer.hpp"
#include "Html_strict.hpp"
#include "Modele.hpp"
#include "QB7_Sections.hpp"
#include "Texte.hpp"
#include "Zof_Classe_Materiau.hpp"
#include "Zof_Utilit.hpp"

namespace blocs_mate {

/// Tests that read data files and ask the model while it stands.
class commande : public ::testing::Test {
 protected:
  /// Reads the blocks without an error.
  void lire(const std::string& blocs) {
    modele_.reset();
    modele_ = std::make_unique<modele>(blocs + "\nFIN_\n");
    EXPECT_FALSE(modele_->erco()) << modele_->console();
  }
  [[nodiscard]] const std::string& console() const { return modele_->console(); }

 private:
  std::unique_ptr<modele> modele_;
};

inline course executer_bloc(const std::string& blocs) { return executer("ZOF\n" + blocs + "\nFIN_\n"); }

/// The run ended on this error alone, told on the console and in the listing, the notes closed.
inline void verifier_refus(const std::string& blocs, const std::string& lignes) {
  const course c = executer_bloc(blocs);
  EXPECT_EQ(c.statut, 1) << lignes;
  EXPECT_THAT(c.console, testing::HasSubstr("Erreur de commande : \n" + lignes + "\nFIN DE L EXECUTION\n"));
  EXPECT_THAT(c.listing, testing::HasSubstr("Erreur de commande : \n" + lignes + "\n"));
  EXPECT_THAT(c.listing, testing::Not(testing::HasSubstr("Execution de Zof terminee")));
}

inline std::string message(socle::vue_l1 texte_du_message) {
  return socle::concat({"     - ", texte_du_message});
}
inline std::string repetition(socle::vue_l1 mot) {
  return socle::concat({"     - Repetition interdite du mot clef:", mot});
}
inline std::string repetition_titre() { return "       - Repetition interdite du mot clef:TITR"; }
inline std::string mot_incorrect(socle::vue_l1 mot) {
  return socle::concat({"     -  Mot clef  ", mot, " incorrect dans ce contexte"});
}

/// The run stopped at once on these last lines, the notes left open.
inline void verifier_arret(const std::string& blocs, const std::string& lignes) {
  const course c = executer_bloc(blocs);
  EXPECT_EQ(c.statut, 1) << lignes;
  EXPECT_TRUE(c.console.ends_with(lignes + "\n")) << c.console;
  EXPECT_TRUE(c.listing.ends_with(lignes + "\n")) << c.listing;
}

/// The engine refused a law with this code and stopped the run.
inline void verifier_arret_du_moteur(const std::string& blocs, const std::string& code) {
  const course c = executer_bloc(blocs);
  EXPECT_EQ(c.statut, 1);
  EXPECT_TRUE(c.console.ends_with(" Erreur : " + code + "\n")) << c.console;
  EXPECT_THAT(c.console, testing::HasSubstr(" Erreur dans Procedure :"));
  EXPECT_THAT(c.listing, testing::HasSubstr(" Erreur : " + code + "\n"));
  EXPECT_THAT(c.listing, testing::Not(testing::HasSubstr("Execution de Zof terminee")));
}

struct cas {
  std::string mots;
  std::string lignes;
};

/// The whole block of a material around these words.
using bloc_de_materiau = std::string (*)(const std::string& mots);

/// A situation block begins with a kind that exists, before anything else of it.
inline void verifier_situation_d_abord(bloc_de_materiau materiau) {
  using namespace socle;
  verifier_refus(materiau("SITU EXPL LONG"), mot_incorrect("LONG"));
  for (const std::string mots : {"EXPL SERV", "SEIS"})
    verifier_refus(materiau("SITU TITR 's' " + mots), message("situation incorrectement definie"));
  verifier_refus(
      materiau("SITU PARA"),
      message("La Situation de projet doit etre renseignee avant de définir les parametres avances"_l1));
}

/// A material has one situation of each kind at the most.
inline void verifier_situations_uniques(bloc_de_materiau materiau) {
  for (const std::string mots : {"EXPL SERV", "EXPL INFI", "CONS", "ACCI", "SEIS"})
    verifier_refus(materiau("SITU " + mots + " TITR 's' FIN_SITU SITU " + mots + " TITR 's' FIN_SITU"),
                   message("Situation deja definie"));
}

/// Labels of the material's situations, in their order.
inline std::vector<std::string> situations_de(const zof_materiau& materiau) {
  std::vector<std::string> labels;
  for (const zof_situation_materiau& s : uef_parcours<zof_situation_materiau>(materiau.m_les_situations))
    labels.emplace_back(s.get_label_situation().utile());
  return labels;
}

inline double contrainte(int materiau, int etat, double epsilon) {
  double sigma = 0;
  EXPECT_FALSE(qb7_contrainte_materiau(materiau, etat, epsilon, sigma));
  return sigma;
}
inline double borne_max(int materiau, int etat) {
  double epsilon_min = 0;
  double epsilon_max = 0;
  EXPECT_FALSE(qb7_lire_bornes_loi(materiau, etat, epsilon_min, epsilon_max));
  return epsilon_max;
}
inline double borne_min(int materiau, int etat) {
  double epsilon_min = 0;
  double epsilon_max = 0;
  EXPECT_FALSE(qb7_lire_bornes_loi(materiau, etat, epsilon_min, epsilon_max));
  return epsilon_min;
}

/// The note's lines between two texts, blanks at their ends aside.
inline std::string extrait(const std::string& note, const std::string& debut, const std::string& fin) {
  const auto a = note.find(debut);
  const auto b = note.find(fin, a);
  if (a == std::string::npos || b == std::string::npos) return "not found:\n" + note;
  std::string resultat;
  for (std::size_t i = a; i < b;) {
    const auto suivant = std::min(note.find('\n', i), b);
    const auto ligne =
        socle::sans_blancs_initiaux(socle::sans_blancs_finals(std::string_view(note).substr(i, suivant - i)));
    if (!ligne.empty()) resultat += std::string(ligne) + "\n";
    i = suivant + 1;
  }
  return resultat;
}

/// The words of a text in their order, one blank between them, without the rulers and the dashes of lists of
/// a text note.
inline std::string mots(const std::string& texte) {
  std::string resultat;
  for (std::size_t i = 0; i < texte.size();) {
    const auto fin = std::min(texte.find('\n', i), texte.size());
    const std::string_view ligne = socle::sans_blancs_initiaux(std::string_view(texte).substr(i, fin - i));
    const bool puce = ligne.starts_with("- ");
    i = fin + 1;
    if (ligne.find_first_not_of("-*. ") == std::string_view::npos) continue;
    for (const char c : ligne.substr(puce ? 2 : 0)) {
      if (c != ' ' && c != '\r')
        resultat += c;
      else if (!resultat.ends_with(' '))
        resultat += ' ';
    }
    if (!resultat.ends_with(' ')) resultat += ' ';
  }
  return resultat;
}

/// The words that a reader of the HTML note sees: each element begins a word.
inline std::string mots_html(const std::string& html) {
  std::string separe;
  for (const char c : html) separe += c == '<' ? std::string(" <") : std::string(1, c);
  return mots(texte_visible(separe));
}

/// Labels of the situation's limit states, in their order.
inline std::vector<std::string> etats_de(const zof_situation_materiau& s) {
  std::vector<std::string> labels;
  for (const zof_etat_limite& e : uef_parcours<zof_etat_limite>(s.m_les_etats_limites))
    labels.emplace_back(e.m_label_etat_limite.utile());
  return labels;
}

/// The table of a law in a note, from its rows.
inline std::string table(const std::vector<std::string>& lignes) {
  std::string resultat = "Epsilon Sigma (Mpa)\n";
  for (const std::string& ligne : lignes) resultat += ligne + "\n";
  return resultat;
}

/// A number that the reader takes in double precision.
inline std::string reel(double valeur) {
  std::ostringstream s;
  s << std::scientific << std::setprecision(16) << valeur;
  std::string texte_lu = s.str();
  texte_lu[texte_lu.find('e')] = 'D';
  return texte_lu;
}

/// The number that follows the label.
inline double nombre_apres(const std::string& note, const std::string& label) {
  const auto ici = note.find(label);
  if (ici == std::string::npos) {
    ADD_FAILURE() << "no " << label;
    return NAN;
  }
  return std::stod(note.substr(ici + label.size(), 20));
}

/// Both notes of the run hold these words, one after the other, from this one on.
inline void verifier_les_deux_notes(const course& c, const std::string& debut, const std::string& attendu) {
  const std::string attendus = mots(attendu);
  for (const std::string& note : {mots(c.txt), mots_html(c.html)}) {
    const auto ici = note.find(debut);
    ASSERT_NE(ici, std::string::npos) << debut;
    EXPECT_EQ(note.substr(ici, attendus.size()), attendus);
  }
}

}  // namespace blocs_mate
