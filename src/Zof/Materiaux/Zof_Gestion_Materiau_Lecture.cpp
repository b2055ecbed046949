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

void zof_lire_titre_materiau(zof_materiau& materiau, texte<80>& copie, bool& erco) {
  zof_lire_titre_unique(copie, erco);
  if (!erco) materiau.set_titre_materiau(copie);
}

void zof_lire_titre_situation(zof_situation_materiau& situation, texte<80>& copie, bool& erco) {
  zof_lire_titre_unique(copie, erco);
  if (!erco) situation.set_titre_situation(copie);
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

void zof_intituler_situation_par_defaut(zof_situation_materiau& situation) {
  const texte<32> label = zof_conversion_en_label_situation(situation.get_type_situation_projet());
  situation.set_titre_situation(label.entier());
  situation.set_label_situation(label);
}

bool zof_situation_choisie(const zof_situation_materiau& situation) {
  return est_renseigne_integer(situation.get_type_situation_projet());
}

void zof_lire_type_loi_elu_acier(int& copie, int& type_loi_elu, bool& erco) {
  zof_lire_choix_unique("ELU", {{"BILI"_mot, type_loi_bilineaire}, {"PARF"_mot, type_loi_plastique_parfaite}},
                        copie, erco);
  if (!erco) type_loi_elu = copie;
}

void zof_lire_type_loi_els_acier(int& copie, int& type_loi_els, bool& erco) {
  zof_lire_choix_unique("ELS", {{"LINE"_mot, type_loi_lineaire}, {"BILI"_mot, type_loi_bilineaire}}, copie,
                        erco);
  if (!erco) type_loi_els = copie;
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

void zof_controler_situation_avant_para(const zof_situation_materiau& situation, bool& erco) {
  zof_assert_commande(
      zof_situation_choisie(situation),
      "La Situation de projet doit etre renseignee avant de définir les parametres avances"_l1, erco);
}

bool zof_est_para_de_service(const clef_para& lue) { return clef(lue.mots[1]) == "ELS"_mot; }

void zof_controler_loi_elu_acier(int type_loi_elu, int type_loi_des_parametres, bool& erco) {
  const bool accord = type_loi_elu == type_loi_des_parametres;
  if (type_loi_des_parametres == type_loi_plastique_parfaite)
    zof_assert_commande(accord, " incompatibilite avec le type de loi ELU  :  BILINEAIRE", erco);
  else
    zof_assert_commande(accord, "incompatibilite avec le type de loi ELU  : PARFAITE", erco);
}

void zof_refuser_clef_para(const clef_para& lue, bool& erco) {
  if (!lue.mots[0].vide()) zof_attribut_incorrect(lue.clef, erco);
}
