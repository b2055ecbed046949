#include "Html_strict.hpp"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace {

std::string loc_minuscules(std::string_view v) {
  std::string resultat(v);
  for (char& c : resultat) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return resultat;
}

bool loc_est_blanc(char c) { return c == ' ' || c == '\n' || c == '\t'; }

struct balise {
  std::string nom;
  bool fermante = false, vide = false;
  std::map<std::string, std::string> attributs;
};

/// What stands between "<" and ">".
balise loc_lire_balise(std::string_view v) {
  balise b;
  if (v.starts_with('/')) {
    b.fermante = true;
    v.remove_prefix(1);
  }
  const auto passer_blancs = [&] {
    while (!v.empty() && loc_est_blanc(v.front())) v.remove_prefix(1);
  };
  const auto prendre_nom = [&] {
    std::size_t n = 0;
    while (n < v.size() && !loc_est_blanc(v[n]) && v[n] != '=' && v[n] != '/') ++n;
    std::string nom = loc_minuscules(v.substr(0, n));
    v.remove_prefix(n);
    return nom;
  };
  b.nom = prendre_nom();
  for (passer_blancs(); !v.empty(); passer_blancs()) {
    if (v.front() == '/') {
      b.vide = true;
      v.remove_prefix(1);
      continue;
    }
    const std::string nom = prendre_nom();
    if (nom.empty()) break;
    passer_blancs();
    std::string valeur;
    if (v.starts_with('=')) {
      v.remove_prefix(1);
      passer_blancs();
      const bool entre_quotes = v.starts_with('\'') || v.starts_with('"');
      const char fin = entre_quotes ? v.front() : ' ';
      if (entre_quotes) v.remove_prefix(1);
      const std::size_t n = std::min(v.find(fin), v.size());
      valeur = v.substr(0, n);
      v.remove_prefix(std::min(v.size(), n + (entre_quotes ? 1 : 0)));
    }
    b.attributs[nom] = valeur;
  }
  return b;
}

/// Calls one of the two for each text and each tag; comments are dropped, scripts and styles pass as a tag.
template <class sur_texte, class sur_balise>
void loc_parcourir(std::string_view note, sur_texte texte, sur_balise element) {
  while (!note.empty()) {
    const std::size_t debut = std::min(note.find('<'), note.size());
    texte(note.substr(0, debut));
    note.remove_prefix(debut);
    if (note.empty()) return;
    const bool commentaire = note.starts_with("<!--");
    // The mark that shows a passage to all browsers but old ones is a comment of its own.
    const std::string_view cloture = commentaire ? "-->" : ">";
    std::size_t fin = std::min(note.find(cloture), note.size());
    if (!commentaire) {
      // A ">" between quotes does not end the tag.
      char quote = 0;
      for (fin = 0; fin < note.size() && (quote != 0 || note[fin] != '>'); ++fin) {
        if (quote != 0 && note[fin] == quote)
          quote = 0;
        else if (quote == 0 && (note[fin] == '\'' || note[fin] == '"'))
          quote = note[fin];
      }
      const balise b = loc_lire_balise(note.substr(1, std::min(fin, note.size()) - 1));
      element(b);
      if (!b.fermante && (b.nom == "script" || b.nom == "style")) {
        note.remove_prefix(std::min(fin + 1, note.size()));
        fin = std::min(note.find("</" + b.nom), note.size());
        note.remove_prefix(fin);
        continue;
      }
    }
    note.remove_prefix(std::min(fin + cloture.size(), note.size()));
  }
}

}  // namespace

std::vector<std::string> fautes_html(std::string_view note) {
  std::vector<std::string> fautes;
  std::vector<std::string> ouverts;
  std::set<std::string> cibles;
  std::vector<std::string> liens;
  const auto viser = [&](const std::string& nom) {
    if (!cibles.insert(nom).second) fautes.push_back("target given twice: " + nom);
  };
  const auto lire = [&](const balise& b) {
    if (b.nom == "meta" || b.nom == "br") return;
    if (b.fermante) {
      if (ouverts.empty() || ouverts.back() != b.nom)
        fautes.push_back("</" + b.nom + "> closes " + (ouverts.empty() ? "nothing" : ouverts.back()));
      if (!ouverts.empty()) ouverts.pop_back();
      return;
    }
    if (!b.vide) ouverts.push_back(b.nom);
    if (const auto id = b.attributs.find("id"); id != b.attributs.end()) viser(id->second);
    if (const auto nom = b.attributs.find("name"); b.nom == "a" && nom != b.attributs.end())
      viser(nom->second);
    if (const auto lien = b.attributs.find("href");
        lien != b.attributs.end() && lien->second.starts_with('#'))
      liens.push_back(lien->second.substr(1));
  };
  loc_parcourir(
      note, [](std::string_view) {}, lire);
  for (const std::string& nom : ouverts) fautes.push_back("never closed: " + nom);
  for (const std::string& lien : liens)
    if (!cibles.contains(lien)) fautes.push_back("link without target: #" + lien);
  if (std::any_of(note.begin(), note.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; }))
    fautes.emplace_back("a byte above 127");
  return fautes;
}

std::string texte_visible(std::string_view note) {
  std::string resultat;
  const auto ajouter = [&](std::string_view v) {
    while (!v.empty()) {
      const std::size_t debut = std::min(v.find("&#"), v.size());
      resultat += v.substr(0, debut);
      v.remove_prefix(debut);
      if (v.empty()) return;
      const std::size_t fin = std::min(v.find(';'), v.size() - 1);
      resultat += static_cast<char>(std::stoi(std::string(v.substr(2, fin - 2))));
      v.remove_prefix(fin + 1);
    }
  };
  loc_parcourir(note, ajouter, [](const balise&) {});
  return resultat;
}

std::vector<std::string> fichiers_lies(std::string_view note) {
  std::vector<std::string> fichiers;
  loc_parcourir(
      note, [](std::string_view) {},
      [&](const balise& b) {
        for (const char* const attribut : {"href", "data", "src"}) {
          const auto v = b.attributs.find(attribut);
          if (v != b.attributs.end() && !v->second.starts_with('#')) fichiers.push_back(v->second);
        }
      });
  return fichiers;
}
