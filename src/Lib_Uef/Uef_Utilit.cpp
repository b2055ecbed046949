#include "Uef_Utilit.hpp"

#include "Arret.hpp"
#include "Systeme.hpp"

void uef_assert(bool assertion, socle::vue_l1 message) {
  if (assertion) return;
  socle::sortie& console = socle::le_systeme().console();
  console.ligne(message);
  console.ligne(" ARRET PREMATURE : PREVENIR LE GESTIONNAIRE");
  socle::arreter(0);
}

void uef_avertissement(socle::vue_l1 message) {
  socle::sortie& console = socle::le_systeme().console();
  console.ligne("Avertissement:");
  console.ligne(socle::concat({" - ", message}));
}
