#include "Arret.hpp"

namespace socle {

void arreter(int statut) { throw arret{statut}; }

}  // namespace socle
