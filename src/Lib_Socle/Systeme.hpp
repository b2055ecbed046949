// All that a run asks of the machine: one console, files that are read by lines or written, a directory made
// anew. Two implementations: systeme_reel in the program, systeme_memoire in the tests.
#pragma once

#include <memory>
#include <string>

#include "Texte.hpp"

namespace socle {

/// A channel that takes bytes as they are. What can't be written is noticed by the machine, not here.
class sortie {
 public:
  sortie() = default;
  sortie(const sortie&) = delete;
  sortie& operator=(const sortie&) = delete;
  virtual ~sortie() = default;
  virtual void ecrire(vue_l1 octets) = 0;
  /// The bytes and an end of line.
  void ligne(vue_l1 octets) {
    ecrire(octets);
    ecrire("\n");
  }
};

enum class etat_lecture { lue, fin, erreur };

/// A file that is read line by line. After the end, and after an error, every further read gives the same.
class entree {
 public:
  entree() = default;
  entree(const entree&) = delete;
  entree& operator=(const entree&) = delete;
  virtual ~entree() = default;
  /// The next line without its end-of-line byte; a carriage return stays. A last line without end counts.
  virtual etat_lecture ligne(std::string& resultat) = 0;
};

enum class debut { efface, suite };

/// Paths keep the "\" of the data model; the machine turns them into what its file system takes.
class systeme {
 public:
  systeme() = default;
  systeme(const systeme&) = delete;
  systeme& operator=(const systeme&) = delete;
  virtual ~systeme() = default;
  virtual sortie& console() = 0;
  /// Null: can't be read.
  virtual std::unique_ptr<entree> ouvrir(vue_l1 chemin) = 0;
  /// Null: can't be written.
  virtual std::unique_ptr<sortie> creer(vue_l1 chemin, debut d) = 0;
  /// The directory is removed with its contents and made anew, silently whatever comes of it. A symbolic link
  /// of that name, or inside, is removed itself; a plain file stays.
  virtual void refaire_repertoire(vue_l1 chemin) = 0;
  /// Directory of the running program, with a final "/"; empty if unknown.
  virtual std::string repertoire_programme() = 0;
  /// Notes a write that failed on this file; only the first one is kept.
  void noter_echec(vue_l1 chemin) {
    if (premier_echec_.empty()) premier_echec_ = std::string(chemin.octets());
  }
  /// Name of the first file on which a write failed; empty if none did.
  [[nodiscard]] const std::string& premier_echec() const { return premier_echec_; }

 private:
  std::string premier_echec_;
};

/// The machine of the present run. There is none outside a run: using it then is a fault of the caller.
systeme& le_systeme();

/// Puts a machine in place for the length of a run.
class systeme_en_place {
 public:
  explicit systeme_en_place(systeme& machine);
  systeme_en_place(const systeme_en_place&) = delete;
  systeme_en_place& operator=(const systeme_en_place&) = delete;
  ~systeme_en_place();

 private:
  systeme* precedent_;
};

}  // namespace socle
