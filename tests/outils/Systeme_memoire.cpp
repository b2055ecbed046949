#include "Systeme_memoire.hpp"

#include <algorithm>

using socle::vue_l1;

namespace {

std::string loc_chemin(vue_l1 chemin) {
  std::string resultat(chemin.octets());
  std::replace(resultat.begin(), resultat.end(), '\\', '/');
  return resultat;
}

class sortie_texte final : public socle::sortie {
 public:
  explicit sortie_texte(std::string& texte) : texte_(texte) {}
  void ecrire(vue_l1 octets) override { texte_ += octets.octets(); }

 private:
  std::string& texte_;
};

class sortie_en_echec final : public socle::sortie {
 public:
  sortie_en_echec(socle::systeme& machine, std::string nom) : machine_(machine), nom_(std::move(nom)) {}
  void ecrire(vue_l1) override { machine_.noter_echec(nom_); }

 private:
  socle::systeme& machine_;
  std::string nom_;
};

class entree_texte final : public socle::entree {
 public:
  entree_texte(std::string contenu, int lignes_avant_faute)
      : contenu_(std::move(contenu)), lignes_avant_faute_(lignes_avant_faute) {}
  socle::etat_lecture ligne(std::string& resultat) override {
    resultat.clear();
    if (lignes_avant_faute_ == 0) return socle::etat_lecture::erreur;
    if (lignes_avant_faute_ > 0) --lignes_avant_faute_;
    if (lu_ >= contenu_.size()) return socle::etat_lecture::fin;
    const std::size_t fin = std::min(contenu_.find('\n', lu_), contenu_.size());
    resultat = contenu_.substr(lu_, fin - lu_);
    lu_ = fin + 1;
    return socle::etat_lecture::lue;
  }

 private:
  std::string contenu_;
  std::size_t lu_ = 0;
  int lignes_avant_faute_;
};

}  // namespace

systeme_memoire::systeme_memoire() : console_(std::make_unique<sortie_texte>(texte_console)) {}
systeme_memoire::~systeme_memoire() = default;

socle::sortie& systeme_memoire::console() { return *console_; }

std::unique_ptr<socle::entree> systeme_memoire::ouvrir(vue_l1 chemin) {
  const std::string nom = loc_chemin(chemin);
  const auto fichier = fichiers.find(nom);
  if (fichier == fichiers.end() || ouvertures_refusees.contains(nom)) return nullptr;
  const auto faute = lectures_fautives.find(nom);
  return std::make_unique<entree_texte>(fichier->second,
                                        faute == lectures_fautives.end() ? -1 : faute->second);
}

std::unique_ptr<socle::sortie> systeme_memoire::creer(vue_l1 chemin, socle::debut d) {
  const std::string nom = loc_chemin(chemin);
  if (ouvertures_refusees.contains(nom)) return nullptr;
  if (ecritures_refusees.contains(nom)) return std::make_unique<sortie_en_echec>(*this, nom);
  std::string& contenu = fichiers[nom];
  if (d == socle::debut::efface) contenu.clear();
  return std::make_unique<sortie_texte>(contenu);
}

void systeme_memoire::refaire_repertoire(vue_l1 chemin) {
  std::string nom = loc_chemin(chemin);
  while (nom.size() > 1 && nom.back() == '/') nom.pop_back();
  repertoires_refaits.push_back(nom);
  std::erase_if(fichiers, [&](const auto& f) { return f.first.starts_with(nom + "/"); });
}
