#include "Zof_Gestion_Materiau_Lecture.hpp"

#include "And_anadon.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"
#include "Zof_Utilitaires.hpp"

using namespace socle;

int zof_choisir(const texte<4>& mot, std::initializer_list<choix> les_choix, bool& erco) {
  for (const choix& c : les_choix)
    if (c.mot == clef(mot)) return c.valeur;
  zof_attribut_incorrect(mot, erco);
  return 0;
}

int zof_lire_choix(std::initializer_list<choix> les_choix, bool& erco) {
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return 0;
  return zof_choisir(mot, les_choix, erco);
}

bool zof_lire_oui_non(bool& erco) { return zof_lire_choix({{"OUI"_mot, 1}, {"NON"_mot, 0}}, erco) != 0; }

void zof_lire_reel_unique(vue_l1 mot, double& copie, bool& erco) {
  zof_non_repetition_double(mot, copie, erco);
  if (erco) return;
  and_lire_reel_d(copie, erco);
}

void zof_lire_choix_unique(vue_l1 mot, std::initializer_list<choix> les_choix, int& copie, bool& erco) {
  zof_non_repetition_integer(mot, copie, erco);
  if (erco) return;
  copie = zof_lire_choix(les_choix, erco);
}

void zof_lire_titre_unique(texte<80>& copie, bool& erco) {
  zof_non_repetition_chaine("TITR", copie, erco);
  if (erco) return;
  zof_decoder_titre(copie, erco);
}

int zof_lire_situation(const texte<4>& mot, bool premier_mot, const zof_materiau& materiau, bool& erco) {
  zof_assert_commande(premier_mot, "situation incorrectement definie", erco);
  if (erco) return 0;
  int type = 0;
  if (clef(mot) == "EXPL"_mot)
    type = zof_lire_choix(
        {{"INFI"_mot, situation_exploitation_infinie}, {"SERV"_mot, situation_exploitation_service}}, erco);
  else
    type = zof_choisir(mot,
                       {{"CONS"_mot, situation_construction},
                        {"ACCI"_mot, situation_accident},
                        {"SEIS"_mot, situation_seisme}},
                       erco);
  if (erco) return 0;
  zof_assert_commande(!materiau.existe_type_situation_materiau(type), "Situation deja definie", erco);
  return erco ? 0 : type;
}

bool zof_lire_clef_para(std::string_view mot_seul, clef_para& lue, bool& erco) {
  lue = {};
  and_lire_deb_nom(lue.mots[0], 4, erco);
  if (erco || clef(lue.mots[0]) == "FIN_"_mot) return false;
  lue.clef = lue.mots[0].entier();
  if (lue.mots[0] == vue_l1(mot_seul)) return true;
  for (std::size_t i = 1; i < lue.mots.size(); ++i) {
    and_lire_deb_nom(lue.mots[i], 4, erco);
    if (erco) return false;
  }
  lue.clef = concat({lue.mots[0].entier(), "_", lue.mots[1].entier(), "_", lue.mots[2].entier(), "_",
                     lue.mots[3].entier()});
  return true;
}

double zof_lire_valeur_para(const clef_para& lue, bool& erco) {
  double valeur = 0;
  and_lire_reel_d(valeur, erco);
  if (erco) return valeur;
  zof_assert_commande(valeur >= 0, concat({"Valeur attribut ", lue.mots[0].entier(), " incorrecte:  <0"}),
                      erco);
  return valeur;
}

void zof_refuser_clef_para(const clef_para& lue, bool& erco) {
  if (!lue.mots[0].vide()) zof_attribut_incorrect(lue.clef, erco);
}
