#include "Svg_strict.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <regex>
#include <set>

namespace {

const std::string entete =
    "<?xml version='1.0' standalone='no'?>\n"
    "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' 'http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd'>\n"
    "<svg height='";

struct regle {
  std::set<std::string> requis, permis;
};
const std::map<std::string, regle> regles = {
    {"svg", {{"height", "width", "preserveAspectRatio", "viewBox", "xmlns", "xmlns:xlink", "version"}, {}}},
    {"rect", {{"x", "y", "width", "height", "fill"}, {}}},
    {"line", {{"x1", "y1", "x2", "y2", "style"}, {}}},
    {"path", {{"d", "fill", "stroke", "stroke-width"}, {"stroke-dasharray", "stroke-opacity"}}},
    {"circle", {{"cx", "cy", "r", "fill", "stroke", "stroke-width"}, {}}},
    {"text",
     {{"x", "y", "dx", "dy", "font-family", "font-size", "font-weight", "stroke", "stroke-width", "fill"},
      {"transform", "text-anchor", "stroke-linejoin"}}},
};

const std::string nombre_decimal = "-?[0-9]+(\\.[0-9]+)?";

bool est_nombre(const std::string& v) {
  static const std::regex forme(nombre_decimal);
  return std::regex_match(v, forme);
}

bool est_couleur(const std::string& v) {
  if (v == "none") return true;
  std::smatch parts;
  static const std::regex forme("rgb\\(([0-9]{1,3}),([0-9]{1,3}),([0-9]{1,3})\\)");
  if (!std::regex_match(v, parts, forme)) return false;
  return std::all_of(parts.begin() + 1, parts.end(), [](const auto& p) { return std::stoi(p.str()) <= 255; });
}

bool est_style(const std::string& v) {
  std::smatch parts;
  static const std::regex forme("stroke:(rgb\\([0-9,]+\\));stroke-width:([0-9]+\\.[0-9]{2})");
  return std::regex_match(v, parts, forme) && est_couleur(parts[1].str());
}

bool est_chemin(const std::string& v) {
  const std::string point = nombre_decimal + " " + nombre_decimal;
  // By pieces: one expression for a path of a thousand points recurses too deep.
  std::size_t debut = 0;
  std::string reste = v;
  if (reste.ends_with(" Z")) reste.resize(reste.size() - 2);
  static const std::regex premier("M" + point);
  static const std::regex autre("L" + point);
  for (int rang = 0; debut <= reste.size(); ++rang) {
    const std::size_t fin = std::min(reste.find(" L", debut), reste.size());
    if (!std::regex_match(reste.substr(debut, fin - debut), rang == 0 ? premier : autre)) return false;
    debut = fin + 1;
  }
  return true;
}

bool attribut_sain(const std::string& element, const std::string& nom, const std::string& v) {
  if (nom == "d") return est_chemin(v);
  if (nom == "style") return est_style(v);
  if (nom == "fill" || nom == "stroke") return est_couleur(v);
  if (nom == "transform")
    return std::regex_match(
        v, std::regex("rotate\\(" + nombre_decimal + " " + nombre_decimal + " " + nombre_decimal + "\\)"));
  if (nom == "stroke-dasharray") return std::regex_match(v, std::regex("[0-9.]+(,[0-9.]+)*"));
  if (element == "svg" && nom != "height" && nom != "width") return !v.empty();
  if (nom == "font-family" || nom == "font-weight" || nom == "text-anchor" || nom == "stroke-linejoin")
    return !v.empty();
  return est_nombre(v);
}

// Reads a sequence of elements; nothing where it is not well-formed.
class lecteur {
 public:
  explicit lecteur(std::string_view texte) : texte_(texte) {}

  std::optional<std::vector<element_svg>> lire() {
    if (!passer("<?xml version='1.0' standalone='no'?>\n")) return std::nullopt;
    const std::size_t fin_type = texte_.find(">\n", place_);
    if (!passer("<!DOCTYPE svg ") || fin_type == std::string_view::npos) return std::nullopt;
    place_ = fin_type + 2;
    std::vector<element_svg> elements;
    bool vide = false;
    if (!ouvrir(elements, vide) || vide || elements.front().nom != "svg") return std::nullopt;
    for (;;) {
      passer("\n");
      if (passer("</svg>")) break;
      if (!ouvrir(elements, vide)) return std::nullopt;
      if (vide) continue;
      const std::size_t fin = texte_.find('<', place_);
      if (fin == std::string_view::npos) return std::nullopt;
      if (!decoder(texte_.substr(place_, fin - place_), elements.back().texte)) return std::nullopt;
      place_ = fin;
      if (!passer("</" + elements.back().nom + ">")) return std::nullopt;
    }
    if (!passer("\n") || place_ != texte_.size()) return std::nullopt;
    return elements;
  }

 private:
  bool passer(std::string_view attendu) {
    if (!texte_.substr(place_).starts_with(attendu)) return false;
    place_ += attendu.size();
    return true;
  }
  std::string mot() {
    const std::size_t debut = place_;
    while (place_ < texte_.size() &&
           std::string_view(" =>/\n'\"<").find(texte_[place_]) == std::string_view::npos)
      ++place_;
    return std::string(texte_.substr(debut, place_ - debut));
  }
  bool ouvrir(std::vector<element_svg>& elements, bool& vide) {
    if (!passer("<")) return false;
    element_svg e;
    e.nom = mot();
    while (passer(" ")) {
      if (texte_.substr(place_).starts_with("/>")) break;
      const std::string nom = mot();
      if (nom.empty() || !passer("=") || place_ >= texte_.size()) return false;
      const char guillemet = texte_[place_++];
      const std::size_t fin = texte_.find(guillemet, place_);
      if ((guillemet != '\'' && guillemet != '"') || fin == std::string_view::npos) return false;
      std::string valeur;
      if (!decoder(texte_.substr(place_, fin - place_), valeur)) return false;
      if (!e.attributs.emplace(nom, valeur).second) return false;
      place_ = fin + 1;
    }
    vide = passer("/>");
    if (!vide && !passer(">")) return false;
    elements.push_back(e);
    return true;
  }
  static bool decoder(std::string_view xml, std::string& texte) {
    for (std::size_t i = 0; i < xml.size(); ++i) {
      const auto code = static_cast<unsigned char>(xml[i]);
      if (code < 0x20 || code > 0x7E || xml[i] == '<') return false;
      if (xml[i] != '&') {
        texte += xml[i];
        continue;
      }
      const std::size_t fin = xml.find(';', i);
      if (fin == std::string_view::npos || xml.substr(i, 2) != "&#") return false;
      const std::string chiffres(xml.substr(i + 2, fin - i - 2));
      if (chiffres.empty() || chiffres.size() > 3 ||
          chiffres.find_first_not_of("0123456789") != std::string::npos)
        return false;
      texte += static_cast<char>(std::stoi(chiffres));
      i = fin;
    }
    return true;
  }

  std::string_view texte_;
  std::size_t place_ = 0;
};

bool se_couvrent(const boite& a, const boite& b) {
  constexpr double tolerance = 0.5;  // pixels
  return a.gauche < b.droite - tolerance && b.gauche < a.droite - tolerance && a.haut < b.bas - tolerance &&
         b.haut < a.bas - tolerance;
}

}  // namespace

double element_svg::nombre(const std::string& attribut) const {
  const auto trouve = attributs.find(attribut);
  if (trouve == attributs.end() || !est_nombre(trouve->second))
    return std::numeric_limits<double>::quiet_NaN();
  return std::stod(trouve->second);
}

std::vector<element_svg> elements_svg(std::string_view svg) {
  return lecteur(svg).lire().value_or(std::vector<element_svg>{});
}

std::vector<std::string> fautes_svg(std::string_view svg) {
  std::vector<std::string> fautes;
  if (!svg.starts_with(entete)) fautes.emplace_back("head");
  const std::vector<element_svg> elements = elements_svg(svg);
  if (elements.empty()) {
    fautes.emplace_back("not well-formed");
    return fautes;
  }
  for (const element_svg& e : elements) {
    const auto r = regles.find(e.nom);
    if (r == regles.end() || (e.nom == "svg") != (&e == &elements.front())) {
      fautes.push_back("element " + e.nom);
      continue;
    }
    for (const std::string& requis : r->second.requis)
      if (!e.attributs.contains(requis)) fautes.push_back(e.nom + " without " + requis);
    for (const auto& [nom, valeur] : e.attributs) {
      if (!r->second.requis.contains(nom) && !r->second.permis.contains(nom))
        fautes.push_back(e.nom + " with " + nom);
      else if (!attribut_sain(e.nom, nom, valeur))
        fautes.push_back(e.nom + " " + nom + " = " + valeur);
    }
    if (e.nom != "text" && !e.texte.empty()) fautes.push_back("text in " + e.nom);
  }
  return fautes;
}

std::vector<boite> boites_textes(std::string_view svg) {
  std::vector<boite> boites;
  for (const element_svg& e : elements_svg(svg)) {
    if (e.nom != "text" || e.attributs.contains("stroke-linejoin")) continue;
    const double taille = e.nombre("font-size");
    const double largeur = 0.56 * taille * static_cast<double>(e.texte.size());
    const auto ancrage = e.attributs.find("text-anchor");
    double recul = 0;
    if (ancrage != e.attributs.end()) recul = ancrage->second == "middle" ? largeur / 2 : largeur;
    // Box along the text: from its foot up to the height of a digit.
    const double debut = e.nombre("dx") - recul;
    const double pied = e.nombre("dy");
    double angle = 0;
    if (const auto t = e.attributs.find("transform"); t != e.attributs.end())
      angle = std::stod(t->second.substr(7)) * std::acos(-1.0) / 180;
    boite b{1e300, 1e300, -1e300, -1e300, e.texte};
    for (const double u : {debut, debut + largeur}) {
      for (const double v : {pied - 0.73 * taille, pied}) {
        const double x = e.nombre("x") + u * std::cos(angle) - v * std::sin(angle);
        const double y = e.nombre("y") + u * std::sin(angle) + v * std::cos(angle);
        b = {std::min(b.gauche, x), std::min(b.haut, y), std::max(b.droite, x), std::max(b.bas, y), e.texte};
      }
    }
    boites.push_back(b);
  }
  return boites;
}

std::vector<std::string> textes_genes(std::string_view svg) {
  std::vector<std::string> genes;
  const std::vector<element_svg> elements = elements_svg(svg);
  if (elements.empty()) return {"not well-formed"};
  const double largeur = elements.front().nombre("width");
  const double hauteur = elements.front().nombre("height");
  const std::vector<boite> boites = boites_textes(svg);
  for (std::size_t i = 0; i < boites.size(); ++i) {
    const boite& a = boites[i];
    if (a.gauche < 0 || a.haut < 0 || a.droite > largeur || a.bas > hauteur)
      genes.push_back("out of the window: " + a.texte);
    for (std::size_t j = i + 1; j < boites.size(); ++j)
      if (se_couvrent(a, boites[j])) genes.push_back(a.texte + " on " + boites[j].texte);
  }
  return genes;
}
