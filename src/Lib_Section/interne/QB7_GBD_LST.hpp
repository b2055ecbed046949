// The sorted list of the engine's records, with a cursor.
//
// An element gives its key by clef(); keys are unique and ascending. Elements do not move when others come or
// go, so that a pointer to one stays good until it is removed. A look-up is a binary search, save that the
// cursor's element and its neighbours are tried first: records are mostly asked for one after the other.
// Clients number their objects upwards, and an insertion at the end is constant; anywhere else it shifts the
// pointers behind it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

template <class elt_t>
class gbd_liste {
 public:
  using clef_t = decltype(std::declval<const elt_t&>().clef());

  gbd_liste() = default;
  gbd_liste(gbd_liste&&) noexcept = default;
  gbd_liste& operator=(gbd_liste&&) noexcept = default;
  ~gbd_liste() = default;

  /// A copy has elements of its own.
  gbd_liste(const gbd_liste& l) : m_curseur(l.m_curseur) {
    m_elements.reserve(l.m_elements.size());
    for (const auto& e : l.m_elements) m_elements.push_back(std::make_unique<elt_t>(*e));
  }
  gbd_liste& operator=(const gbd_liste& l) {
    gbd_liste copie(l);
    *this = std::move(copie);
    return *this;
  }

  int lst_longueur() const { return static_cast<int>(m_elements.size()); }

  /// The element at the cursor, null when the list is empty or the cursor has left it.
  elt_t* lst_actuel() const { return m_curseur < m_elements.size() ? m_elements[m_curseur].get() : nullptr; }

  // These four move the cursor and give its element.
  elt_t* lst_premier() { return lst_aller(0); }
  elt_t* lst_dernier() { return lst_aller(m_elements.size() - 1); }
  elt_t* lst_suivant() { return lst_aller(m_curseur + 1); }
  elt_t* lst_precedent() { return lst_aller(m_curseur - 1); }

  /// The element of that key, null if there is none; the cursor then stands where it would be.
  elt_t* lst_chercher_elt(const clef_t& clef) {
    if (lst_clef_est(m_curseur, clef)) return lst_actuel();
    if (lst_clef_est(m_curseur + 1, clef)) return lst_suivant();
    if (lst_clef_est(m_curseur - 1, clef)) return lst_precedent();
    m_curseur = lst_rang(clef);
    return lst_clef_est(m_curseur, clef) ? lst_actuel() : nullptr;
  }
  /// The same with the cursor left where it is, for look-ups inside a walk.
  elt_t* lst_consulter_elt(const clef_t& clef) const {
    const std::size_t rang = lst_rang(clef);
    return lst_clef_est(rang, clef) ? m_elements[rang].get() : nullptr;
  }

  /// Enters an element, with the cursor on it. A key that exists is not inserted a second time: the element
  /// is overwritten if ecraser is true, and false is returned if not.
  bool lst_inserer_elt(elt_t elt, bool ecraser) {
    const clef_t clef = elt.clef();
    const bool a_la_fin = m_elements.empty() || m_elements.back()->clef() < clef;
    m_curseur = a_la_fin ? m_elements.size() : lst_rang(clef);
    if (lst_clef_est(m_curseur, clef)) {
      if (ecraser) *m_elements[m_curseur] = std::move(elt);
      return ecraser;
    }
    m_elements.insert(m_elements.begin() + static_cast<std::ptrdiff_t>(m_curseur),
                      std::make_unique<elt_t>(std::move(elt)));
    return true;
  }

  /// Removes an element; false if there is none of that key. The cursor stands on the one that followed.
  bool lst_supprimer_elt(const clef_t& clef) {
    m_curseur = lst_rang(clef);
    if (!lst_clef_est(m_curseur, clef)) return false;
    m_elements.erase(m_elements.begin() + static_cast<std::ptrdiff_t>(m_curseur));
    return true;
  }

  void lst_vider() {
    m_elements.clear();
    m_curseur = 0;
  }

  /// Elements in ascending order of their keys: for (gbd_zone& zone : section.lst_zones).
  template <class interne_t, class valeur_t>
  class iterateur {
   public:
    explicit iterateur(interne_t position) : m_position(position) {}
    valeur_t& operator*() const { return **m_position; }
    valeur_t* operator->() const { return m_position->get(); }
    iterateur& operator++() {
      ++m_position;
      return *this;
    }
    bool operator==(const iterateur& autre) const = default;

   private:
    interne_t m_position;
  };
  auto begin() { return iterateur<typename elements_t::iterator, elt_t>(m_elements.begin()); }
  auto end() { return iterateur<typename elements_t::iterator, elt_t>(m_elements.end()); }
  auto begin() const {
    return iterateur<typename elements_t::const_iterator, const elt_t>(m_elements.begin());
  }
  auto end() const { return iterateur<typename elements_t::const_iterator, const elt_t>(m_elements.end()); }

 private:
  using elements_t = std::vector<std::unique_ptr<elt_t>>;

  elt_t* lst_aller(std::size_t rang) {
    if (rang < m_elements.size()) m_curseur = rang;
    return rang < m_elements.size() ? lst_actuel() : nullptr;
  }
  bool lst_clef_est(std::size_t rang, const clef_t& clef) const {
    return rang < m_elements.size() && m_elements[rang]->clef() == clef;
  }
  /// Rank of the first element whose key is not below: where a new one goes.
  std::size_t lst_rang(const clef_t& clef) const {
    const auto place =
        std::ranges::lower_bound(m_elements, clef, {}, [](const auto& e) { return e->clef(); });
    return static_cast<std::size_t>(place - m_elements.begin());
  }

  elements_t m_elements;
  std::size_t m_curseur = 0;
};
