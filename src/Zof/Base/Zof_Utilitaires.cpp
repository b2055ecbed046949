#include "Zof_Utilitaires.hpp"

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"

void zof_controle_mot_fin(const socle::texte<8>& mot_attendu) {
  bool erco = false;
  socle::texte<8> mot;
  and_relire_donnee();
  and_lire_deb_nom(mot, 8, erco);
  if (!erco && mot == mot_attendu) return;
  if (!erco) zof_ecrire_message("Erreur de commande : ");
  zof_ecrire_message(socle::concat(
      {"     - ", mot.entier(), "Incorrect dans ce contexte - Attendu : ", mot_attendu.utile()}));
  zof_arret();
}

void zof_decoder_titre(socle::texte<80>& titre, bool& erco) {
  int longueur = 0;
  and_lire_chaine(titre, 80, longueur, erco);
}
