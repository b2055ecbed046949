// A piece of a note while it is composed: bytes are gathered in the buffer of the writers and go out in large
// pieces, so that a table of a hundred thousand lines costs neither a call nor an allocation a cell.
//   composition note(unite);
//   note << "<p>" << en_html{texte} << "</p>" << fin_de_ligne;
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "Systeme.hpp"
#include "UTL_02_Ecriture_Resu.hpp"

/// A text of the HTML note: codes above 127 as decimal references.
struct en_html {
  std::string_view texte;
};
/// The same within an attribute in single quotes.
struct en_attribut {
  std::string_view texte;
};
/// A path as an address in single quotes: "\" becomes "/", and what an address can't hold is percent-encoded.
struct en_adresse {
  std::string_view chemin;
};
/// The same character several times; a negative number counts as none.
struct repete {
  std::ptrdiff_t nombre;
  char c;
};
struct fin_de_ligne_t {};
inline constexpr fin_de_ligne_t fin_de_ligne;

/// What it still holds goes out when it leaves its block. One at a time: they share one buffer.
class composition {
 public:
  explicit composition(socle::sortie& unite) : unite_(unite), octets_(utl_02.tampon) { octets_.clear(); }
  composition(const composition&) = delete;
  composition& operator=(const composition&) = delete;
  ~composition() { envoyer(); }

  composition& operator<<(std::string_view v) {
    octets_ += v;
    return *this;
  }
  composition& operator<<(int v);
  composition& operator<<(en_html v);
  composition& operator<<(en_attribut v);
  composition& operator<<(en_adresse v);
  composition& operator<<(repete v) {
    if (v.nombre > 0) octets_.append(static_cast<std::size_t>(v.nombre), v.c);
    return *this;
  }
  composition& operator<<(fin_de_ligne_t) {
    octets_ += '\n';
    if (octets_.size() >= taille_d_envoi) envoyer();
    return *this;
  }

 private:
  static constexpr std::size_t taille_d_envoi = 1U << 15U;
  void envoyer();

  socle::sortie& unite_;
  std::string& octets_;
};
