// The one list of the program: a growable array of owned, polymorphic elements, with a label for its
// messages, a check of the type of what goes in, and a flag on elements that somebody works on, which can't
// be deleted meanwhile.
//
// Positions run from 1. A wrong use is an internal fault: a message on the console, and the run ends with
// status 0.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

#include "Texte.hpp"
#include "Uef_Utilit.hpp"

/// Base of all that stands in a list.
class uef_vector_element {
 public:
  uef_vector_element() = default;
  virtual ~uef_vector_element() = default;
  /// A deep copy of the same dynamic type, which nobody points.
  [[nodiscard]] virtual std::unique_ptr<uef_vector_element> cloner() const = 0;

  bool m_element_pointe = false;  // somebody works on this element

 protected:
  // A copy is another element: that the original is pointed says nothing about it.
  uef_vector_element(const uef_vector_element&) noexcept {}
  uef_vector_element(uef_vector_element&&) noexcept {}
  uef_vector_element& operator=(const uef_vector_element&) noexcept {
    return *this;
  }  // NOLINT(bugprone-unhandled-self-assignment)
  uef_vector_element& operator=(uef_vector_element&&) noexcept { return *this; }
};

/// Gives a class its deep copy:  struct zof_contour : uef_element<zof_contour, zof_zone> { ... };
/// A class that holds a uef_vector makes its copy constructor deep with transferer.
template <class classe, class base = uef_vector_element>
class uef_element : public base {
 public:
  using base::base;
  [[nodiscard]] std::unique_ptr<uef_vector_element> cloner() const override {
    return std::make_unique<classe>(static_cast<const classe&>(*this));
  }
};

/// One slot of a list; empty where `inserer` left a gap.
struct uef_pointeur_element {
  std::shared_ptr<uef_vector_element> m_ptr_element;
};

/// A list. `ajouter`, `inserer` and `remplacer` store a deep copy of their argument.
///   (1) assigning a list shares its elements with the source: the copy is shallow; `transferer` makes a deep
///   one (2) the sample's exact type is what goes in; with `m_polymorphe`, `ajouter` takes any element (3) a
///   pointed element can't be deleted, unless forced; the flag is no count
class uef_vector {
 public:
  static constexpr int capacite_par_defaut = 10;

  uef_vector() = default;
  uef_vector(const uef_vector&) = default;
  uef_vector& operator=(const uef_vector&) = default;
  virtual ~uef_vector() = default;

  /// Appends a copy; a list never created takes the label "N_R" and the element's type.
  virtual void ajouter(const uef_vector_element& element);
  [[nodiscard]] virtual std::unique_ptr<uef_vector_element> copier_dernier() const;
  [[nodiscard]] virtual std::unique_ptr<uef_vector_element> copier(int position) const;
  /// Ends the work on an element; a fault if nobody pointed it.
  virtual void depointer(int position);
  virtual void creer(socle::vue_l1 label, const uef_vector_element& modele,
                     int capacite = capacite_par_defaut, bool polymorphe = false);
  /// Inserts a copy before the element at this position. Beyond the end the slots between stay empty.
  virtual void inserer(int position, const uef_vector_element& element);
  /// As new: without elements, label and sample, whoever points.
  virtual void detruire();
  /// The element itself, to work on in place until `depointer`.
  virtual uef_vector_element& pointer(int position);
  virtual uef_vector_element& pointer_dernier();
  /// As `creer`, but an existing list is emptied first, whoever points.
  virtual void re_creer(socle::vue_l1 label, const uef_vector_element& modele,
                        int capacite = capacite_par_defaut);
  [[nodiscard]] virtual int nombre() const { return m_position_fin; }
  /// Deletes the elements and their slots; with `tout` the label and the sample go too.
  virtual void desallouer(bool forcer = false, bool tout = false);
  virtual void depointer_tous();
  virtual void depointer_dernier();
  /// Deletes elements from this position on and closes the gap.
  virtual void supprimer(int position, int nombre_elements);
  virtual void remplacer(int position, const uef_vector_element& element);
  /// Deletes the elements and starts again with this capacity.
  virtual void vider(int capacite = capacite_par_defaut, bool forcer = false);
  /// Becomes a deep copy of the source, label and type included; the source stays as it was.
  virtual void transferer(const uef_vector& source);

  [[nodiscard]] bool est_cree() const { return m_type_element != nullptr; }
  [[nodiscard]] int capacite() const { return static_cast<int>(m_les_pointeur_element.size()); }
  [[nodiscard]] const std::string& label() const { return m_label; }
  /// The slot at a position from 1 to the number of elements, for reading; the element is not pointed.
  [[nodiscard]] const uef_pointeur_element& case_element(int position) const;

 private:
  friend void vector_augmenter_taille(uef_vector& le_vector, int taille_demandee);
  void verifier_ajout(const char* operation, int position, const uef_vector_element& element) const;
  [[nodiscard]] bool est_occupee(int position) const;
  [[noreturn]] void fautif(socle::vue_l1 detail, socle::vue_l1 intitule_nombre, int position,
                           socle::vue_l1 message) const;
  void allouer(int capacite);

  int m_position_fin = 0;
  std::vector<uef_pointeur_element> m_les_pointeur_element;  // its length is the capacity
  std::string m_label;
  std::shared_ptr<const uef_vector_element> m_type_element;  // a sample; null: the list is not created
  bool m_polymorphe = false;
};

/// Brings the capacity to the greater of its double and the size asked for; never lowers it.
void vector_augmenter_taille(uef_vector& le_vector, int taille_demandee);

/// The element as the class that the caller expects, itself or a class derived from it; anything else is a
/// fault.
template <class classe>
classe& uef_comme(uef_vector_element& element, socle::vue_l1 label) {
  if (typeid(element) == typeid(classe)) return static_cast<classe&>(element);
  auto* const p = dynamic_cast<classe*>(&element);
  if (p == nullptr) uef_assert(false, socle::concat({"uef_comme : element de type incorrect dans :", label}));
  return *p;
}

/// Reading of a whole list:  for (const zof_point& p : uef_parcours<zof_point>(v)) ...
/// Points nothing; empty slots are passed over.
template <class classe>
class uef_parcours {
 public:
  explicit uef_parcours(const uef_vector& v) : v_(&v) {}

  class iterateur {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = classe;
    using difference_type = std::ptrdiff_t;
    using pointer = const classe*;
    using reference = const classe&;

    iterateur(const uef_vector* v, int position) : v_(v), position_(position) { sauter_vides(); }
    const classe& operator*() const {
      return uef_comme<classe>(*v_->case_element(position_).m_ptr_element, v_->label());
    }
    iterateur& operator++() {
      ++position_;
      sauter_vides();
      return *this;
    }
    bool operator==(const iterateur& autre) const { return position_ == autre.position_; }

   private:
    void sauter_vides() {
      while (position_ <= v_->nombre() && v_->case_element(position_).m_ptr_element == nullptr) ++position_;
    }
    const uef_vector* v_;
    int position_;
  };
  [[nodiscard]] iterateur begin() const { return iterateur(v_, 1); }
  [[nodiscard]] iterateur end() const { return iterateur(v_, v_->nombre() + 1); }

 private:
  const uef_vector* v_;
};

/// Work on one element in place:  uef_pointage<zof_point> p{v, i}; p->m_y = 0;
/// The element is un-pointed at the end of the block.
template <class classe>
class uef_pointage {
 public:
  uef_pointage(uef_vector& v, int position)
      : garde_((v.pointer(position), v.case_element(position))),
        element_(&uef_comme<classe>(*garde_.m_ptr_element, v.label())) {}
  uef_pointage(const uef_pointage&) = delete;
  uef_pointage& operator=(const uef_pointage&) = delete;
  ~uef_pointage() { garde_.m_ptr_element->m_element_pointe = false; }

  classe& operator*() const { return *element_; }
  classe* operator->() const { return element_; }

 private:
  uef_pointeur_element garde_;  // outlives a forced deletion
  classe* element_;
};
