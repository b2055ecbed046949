#include "SPLX_X2.hpp"

#include <algorithm>
#include <cmath>
#include <new>
#include <optional>

#include "Simple.hpp"

namespace {

using std::size_t;

/// Least pivot, and the violation of a row that counts: both on rows of length 1.
constexpr double epsilon_pivot = socle::simple(1.1f) * 1e-10;
static_assert(epsilon_pivot == 1.1000000238418579e-10, "the documents give these digits");
/// Below this an entry of a reduced row is the rounding of a zero, and a negative multiplier that of a zero.
constexpr double epsilon_nul = 1e-10;
/// A preferred row is taken unless its pivot is so many times worse than the best one.
constexpr double faveur = 1000;
constexpr int nbre_echanges_max = 300;
constexpr int nbre_passes_max = 100;

// Marks of a row while the first base is sought.
constexpr int hors_base = 0;
constexpr int en_base = 1;
constexpr int preferee = 2;

// ---- Products ----

double loc_produit(const splx_matrice& a, size_t ligne, const splx_colonne& colonne) {
  double somme = 0;
  for (const splx_tranche& t : a.ligne(ligne)) {
    const size_t debut = std::max(t.colonne, colonne.debut);
    const size_t fin = std::min(t.colonne + t.longueur, colonne.fin());
    for (size_t k = debut; k < fin; ++k)
      somme += a.valeurs[t.valeurs + (k - t.colonne)] * colonne.valeurs[k - colonne.debut];
  }
  return somme;
}

double loc_produit(const splx_matrice& a, size_t ligne, std::span<const double> x) {
  double somme = 0;
  for (const splx_tranche& t : a.ligne(ligne))
    for (size_t k = 0; k < t.longueur; ++k) somme += a.valeurs[t.valeurs + k] * x[t.colonne + k];
  return somme;
}

double loc_produit(std::span<const double> c, const splx_colonne& colonne) {
  double somme = 0;
  for (size_t k = colonne.debut; k < colonne.fin(); ++k) somme += c[k] * colonne.valeurs[k - colonne.debut];
  return somme;
}

/// ecart = a u(:, q) in the rows that the column touches; all others are zero.
void loc_voir_colonne(splx_travail& t, size_t q) {
  for (const size_t i : t.touchees) t.ecart[i] = 0;
  t.touchees.clear();
  const splx_colonne& colonne = t.u[q];
  for (size_t k = colonne.debut; k < colonne.fin(); ++k) {
    const double facteur = colonne.valeurs[k - colonne.debut];
    if (facteur == 0) continue;
    for (size_t e = t.debuts_colonnes[k]; e < t.debuts_colonnes[k + 1]; ++e) {
      const double produit = t.valeurs_colonnes[e] * facteur;
      if (produit == 0) continue;
      const size_t i = t.lignes_colonnes[e];
      if (t.ecart[i] == 0) t.touchees.push_back(i);  // twice if a sum came back to zero: it does no harm
      t.ecart[i] += produit;
    }
  }
}

/// v = a(ip, :) u
void loc_reduire_ligne(splx_travail& t, size_t ip) {
  for (size_t j = 0; j < t.u.size(); ++j) t.v[j] = loc_produit(t.a, ip, t.u[j]);
}

void loc_annuler_les_petits(std::span<double> v) {
  for (double& x : v)
    if (std::abs(x) < epsilon_nul) x = 0;
}

// ---- The inverse of the base ----

/// Makes room in a column for the rows from debut to fin.
void loc_elargir(splx_colonne& colonne, size_t debut, size_t fin) {
  if (fin > colonne.fin()) colonne.valeurs.resize(fin - colonne.debut, 0.0);
  if (debut < colonne.debut) {
    colonne.valeurs.insert(colonne.valeurs.begin(), colonne.debut - debut, 0.0);
    colonne.debut = debut;
  }
}

/// The row whose reduced form is v takes place j of the base.
void loc_eliminer(splx_travail& t, size_t j) {
  splx_colonne& pivot = t.u[j];
  for (double& x : pivot.valeurs) x /= t.v[j];
  for (size_t l = 0; l < t.u.size(); ++l) {
    const double facteur = t.v[l];
    if (l == j || facteur == 0) continue;
    splx_colonne& colonne = t.u[l];
    loc_elargir(colonne, pivot.debut, pivot.fin());
    double* destination = colonne.valeurs.data() + (pivot.debut - colonne.debut);
    for (size_t k = 0; k < pivot.valeurs.size(); ++k) destination[k] -= facteur * pivot.valeurs[k];
  }
}

/// Row ip enters at place j; w stays positive, save at place q if that one is being raised.
void loc_echanger(splx_travail& t, std::span<int> i_ligne, size_t ip, size_t j,
                  std::optional<size_t> q = {}) {
  const double theta = t.w[j] / t.v[j];
  i_ligne[t.lgn_base[j]] = hors_base;
  i_ligne[ip] = en_base;
  t.lgn_base[j] = ip;
  for (size_t k = 0; k < t.w.size(); ++k) t.w[k] -= theta * t.v[k];
  t.w[j] = theta;
  for (size_t k = 0; k < t.w.size(); ++k)
    if (k != q && t.w[k] < 0) t.w[k] = 0;
  loc_eliminer(t, j);
}

// ---- The first base ----

/// The first of the touched rows with this mark that has the largest pivot; nothing if all are too small.
struct candidate {
  size_t ligne = 0;
  double pivot = 0;

  void proposer(size_t i, double p) {
    if (p > pivot || (p == pivot && i < ligne)) *this = {i, p};
  }
  bool suffit() const { return pivot > epsilon_pivot; }
};

std::optional<size_t> int_meilleur_ip(const splx_travail& t, std::span<const int> i_ligne) {
  candidate libre;
  candidate favorite;
  for (const size_t i : t.touchees) {
    if (i_ligne[i] == hors_base) libre.proposer(i, std::abs(t.ecart[i]));
    if (i_ligne[i] == preferee) favorite.proposer(i, std::abs(t.ecart[i]));
  }
  if (favorite.suffit() && faveur * favorite.pivot >= libre.pivot) return favorite.ligne;
  return libre.suffit() ? std::optional(libre.ligne) : std::nullopt;
}

int loc_trouver_base(splx_travail& t, std::span<int> i_ligne) {
  for (int& marque : i_ligne) marque = marque == en_base ? preferee : hors_base;
  for (size_t q = 0; q < t.u.size(); ++q) {
    t.u[q].debut = q;
    t.u[q].valeurs.assign(1, 1.0);
  }
  for (size_t q = 0; q < t.u.size(); ++q) {
    loc_voir_colonne(t, q);
    const std::optional<size_t> ip = int_meilleur_ip(t, i_ligne);
    if (!ip) return splx_err_rang;
    t.lgn_base[q] = *ip;
    i_ligne[*ip] = en_base;
    loc_reduire_ligne(t, *ip);
    loc_eliminer(t, q);
  }
  std::ranges::replace(i_ligne, preferee, hors_base);
  return 0;
}

// ---- A base with positive multipliers ----

/// The row outside the base that raises the multiplier of place q most; nothing if none does.
std::optional<size_t> loc_ligne_montante(splx_travail& t, std::span<const int> i_ligne, size_t q) {
  loc_voir_colonne(t, q);
  candidate montante;
  for (const size_t i : t.touchees)
    if (i_ligne[i] == hors_base) montante.proposer(i, -t.ecart[i]);
  return montante.pivot >= epsilon_pivot ? std::optional(montante.ligne) : std::nullopt;
}

/// The place whose multiplier falls to zero first as a row enters; place q, if it is being raised, has its
/// turn when its own multiplier comes up to zero.
std::optional<size_t> loc_place_sortante(const splx_travail& t, std::optional<size_t> q = {}) {
  std::optional<size_t> place;
  double theta = 0;
  for (size_t j = 0; j < t.v.size(); ++j) {
    if (!(t.v[j] > 0) && j != q) continue;
    const double rapport = t.w[j] / t.v[j];
    if (place && !(rapport < theta)) continue;
    place = j;
    theta = rapport;
  }
  return place;
}

double loc_multiplicateur(const splx_travail& t, std::span<const double> c, size_t k) {
  return -loc_produit(c, t.u[k]);
}

/// Brings the most negative multiplier to zero by exchanges, without regard to the other negative ones: that
/// part of the cost is left out until their turn comes. False: the cost falls without end along this place.
bool loc_relever(splx_travail& t, std::span<const double> c, std::span<int> i_ligne, size_t q,
                 int& nbre_echanges) {
  while (t.w[q] < 0 && nbre_echanges <= nbre_echanges_max) {
    const std::optional<size_t> ip = loc_ligne_montante(t, i_ligne, q);
    if (!ip) return !(loc_multiplicateur(t, c, q) < -epsilon_nul);
    loc_reduire_ligne(t, *ip);
    loc_annuler_les_petits(t.v);
    if (++nbre_echanges <= nbre_echanges_max) loc_echanger(t, i_ligne, *ip, *loc_place_sortante(t, q), q);
  }
  return true;
}

int loc_trouver_sommet(splx_travail& t, std::span<const double> c, std::span<int> i_ligne) {
  int nbre_echanges = 0;
  while (nbre_echanges <= nbre_echanges_max) {
    for (size_t k = 0; k < t.w.size(); ++k) {
      t.w[k] = loc_multiplicateur(t, c, k);
      if (t.w[k] < 0 && t.w[k] > -epsilon_nul) t.w[k] = 0;
    }
    const auto pire = std::ranges::min_element(t.w);
    if (pire == t.w.end() || !(*pire < 0)) return 0;
    const double w_q = *pire;
    for (double& w : t.w) w = std::max(w, 0.0);
    *pire = w_q;
    if (!loc_relever(t, c, i_ligne, static_cast<size_t>(pire - t.w.begin()), nbre_echanges))
      return splx_err_infini;
  }
  return splx_err_boucle;
}

// ---- The minimum ----

void loc_calculer_sommet(const splx_travail& t, std::span<double> x) {
  std::ranges::fill(x, 0.0);
  for (size_t k = 0; k < t.u.size(); ++k) {
    const double y = t.b[t.lgn_base[k]];
    if (y == 0) continue;
    for (size_t r = t.u[k].debut; r < t.u[k].fin(); ++r) x[r] += y * t.u[k].valeurs[r - t.u[k].debut];
  }
}

/// The row that x violates most; nothing if none counts.
std::optional<size_t> loc_ligne_violee(splx_travail& t, std::span<const int> i_ligne,
                                       std::span<const double> x) {
  candidate violee;
  for (size_t i = 0; i < t.ecart.size(); ++i) {
    if (i_ligne[i] == en_base) continue;
    t.ecart[i] = loc_produit(t.a, i, x) - t.b[i];
    violee.proposer(i, t.ecart[i]);
  }
  return violee.suffit() ? std::optional(violee.ligne) : std::nullopt;
}

/// From the vertex of a base with positive multipliers to one that violates no row.
int loc_descendre(splx_travail& t, std::span<int> i_ligne, std::span<double> x) {
  for (int nu_iter = 1; nu_iter <= nbre_passes_max; ++nu_iter) {
    const std::optional<size_t> ip = loc_ligne_violee(t, i_ligne, x);
    if (!ip) return 0;
    loc_reduire_ligne(t, *ip);
    loc_annuler_les_petits(t.v);
    const std::optional<size_t> j = loc_place_sortante(t);
    if (!j) return splx_err_vide;
    const double pas = t.ecart[*ip] / t.v[*j];
    const splx_colonne& colonne = t.u[*j];
    for (size_t r = colonne.debut; r < colonne.fin(); ++r) x[r] -= pas * colonne.valeurs[r - colonne.debut];
    loc_echanger(t, i_ligne, *ip, *j);
  }
  return splx_err_boucle;
}

// ---- Data ----

bool loc_dimensions_justes(const splx_matrice& aa, std::span<const double> bb, std::span<const double> c,
                           std::span<const double> x, std::span<const int> i_ligne) {
  return bb.size() >= x.size() && aa.nbre_lignes() >= bb.size() && aa.nbre_colonnes == x.size() &&
         c.size() == x.size() && i_ligne.size() == bb.size();
}

/// Row i of the copy to length 1, and its right-hand side with it; a row of zeros keeps 0. False: not finite.
bool loc_normer_ligne(splx_travail& t, size_t i, double bb) {
  double somme = 0;
  for (const splx_tranche& tranche : t.a.ligne(i))
    for (const double x : t.a.valeurs_de(tranche)) somme += x * x;
  const double norme = std::sqrt(somme);
  t.b[i] = norme > 0 ? bb / norme : 0;
  if (!std::isfinite(norme) || !std::isfinite(bb)) return false;
  if (norme == 0) return true;
  for (const splx_tranche& tranche : t.a.ligne(i))
    for (double& x : t.a.valeurs_de(tranche)) x /= norme;
  return std::isfinite(t.b[i]);
}

/// The matrix a second time, by columns.
void loc_ranger_par_colonnes(splx_travail& t, size_t m) {
  t.debuts_colonnes.assign(t.a.nbre_colonnes + 2, 0);
  for (size_t i = 0; i < m; ++i)
    for (const splx_tranche& tranche : t.a.ligne(i))
      for (size_t k = 0; k < tranche.longueur; ++k) ++t.debuts_colonnes[tranche.colonne + k + 2];
  for (size_t k = 2; k < t.debuts_colonnes.size(); ++k) t.debuts_colonnes[k] += t.debuts_colonnes[k - 1];
  t.lignes_colonnes.resize(t.debuts_colonnes.back());
  t.valeurs_colonnes.resize(t.debuts_colonnes.back());
  for (size_t i = 0; i < m; ++i) {
    for (const splx_tranche& tranche : t.a.ligne(i)) {
      for (size_t k = 0; k < tranche.longueur; ++k) {
        const size_t e = t.debuts_colonnes[tranche.colonne + k + 1]++;
        t.lignes_colonnes[e] = i;
        t.valeurs_colonnes[e] = t.a.valeurs[tranche.valeurs + k];
      }
    }
  }
}

bool loc_preparer(const splx_matrice& aa, std::span<const double> bb, std::span<const double> c,
                  splx_travail& t) {
  const size_t m = bb.size();
  const size_t n = c.size();
  t.a = aa;
  t.b.resize(m);
  for (size_t i = 0; i < m; ++i)
    if (!loc_normer_ligne(t, i, bb[i])) return false;
  loc_ranger_par_colonnes(t, m);
  t.u.resize(n);
  t.lgn_base.assign(n, 0);
  t.w.assign(n, 0.0);
  t.v.assign(n, 0.0);
  t.ecart.assign(m, 0.0);
  t.touchees.clear();
  return std::ranges::all_of(c, [](double x) { return std::isfinite(x); });
}

int loc_minimiser(splx_travail& t, std::span<const double> c, std::span<double> x, double& f,
                  std::span<int> i_ligne) {
  if (const int ier = loc_trouver_base(t, i_ligne)) return ier;
  if (const int ier = loc_trouver_sommet(t, c, i_ligne)) return ier;
  loc_calculer_sommet(t, x);
  if (const int ier = loc_descendre(t, i_ligne, x)) return ier;
  f = 0;
  for (size_t k = 0; k < t.w.size(); ++k) f -= t.w[k] * t.b[t.lgn_base[k]];
  const bool fini = std::isfinite(f) && std::ranges::all_of(x, [](double e) { return std::isfinite(e); });
  return fini ? 0 : splx_err_vide;
}

int loc_resoudre(const splx_matrice& aa, std::span<const double> bb, std::span<const double> c,
                 std::span<double> x, double& f, std::span<int> i_ligne, splx_travail& travail) {
  if (!loc_dimensions_justes(aa, bb, c, x, i_ligne)) return splx_err_dimensions;
  try {
    if (!loc_preparer(aa, bb, c, travail)) return splx_err_vide;
    return loc_minimiser(travail, c, x, f, i_ligne);
  } catch (const std::bad_alloc&) {
    return splx_err_alloc;
  }
}

}  // namespace

void splx_ajouter_ligne(splx_matrice& matrice, std::span<const splx_tranche> tranches) {
  for (splx_tranche t : tranches) {
    t.valeurs = matrice.valeurs.size();
    matrice.valeurs.resize(t.valeurs + t.longueur, 0.0);
    matrice.tranches.push_back(t);
  }
  matrice.premieres_tranches.push_back(matrice.tranches.size());
}

int splx_solve(const splx_matrice& aa, std::span<const double> bb, std::span<const double> c,
               std::span<double> x, double& f, std::span<int> i_ligne, splx_travail& travail) {
  const int ier = loc_resoudre(aa, bb, c, x, f, i_ligne, travail);
  if (ier == 0) return 0;
  std::ranges::fill(x, 0.0);
  f = 0;
  return ier;
}

std::string splx_err_message(int ier) {
  const auto texte = [ier]() -> std::string {
    switch (ier) {
      case 0: return "Aucune erreur detectee";
      case splx_err_dimensions: return "Dimensions des tableaux d'appel incorrectes";
      case splx_err_alloc: return "Echec d'allocation dynamique";
      case splx_err_rang: return "Rang de la matrice A plus petit que n";
      case splx_err_vide: return "Pas de solution, ensemble (AX <= B) vide";
      case splx_err_infini: return "Solution infinie ou ensemble (AX <= B) vide";
      case splx_err_boucle: return "Boucle infinie";
      default: return "";
    }
  };
  return texte() + " (SPLX_)";
}
