#include "Systeme.hpp"

#include <cassert>
#include <utility>

namespace socle {

struct socle_t {
  systeme* machine = nullptr;
};
static socle_t socle_etat;  // NOLINT(misc-use-anonymous-namespace)

systeme& le_systeme() {
  assert(socle_etat.machine != nullptr);
  return *socle_etat.machine;
}

systeme_en_place::systeme_en_place(systeme& machine)
    : precedent_(std::exchange(socle_etat.machine, &machine)) {}
systeme_en_place::~systeme_en_place() { socle_etat.machine = precedent_; }

}  // namespace socle
