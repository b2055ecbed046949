#pragma once
// What the decoders of all kinds of materials read in the same way: words that choose a value, numbers,
// titles, the words of a situation, and the entries of a block PARA.
//
// Every keyword of a block may stand once. A decoder keeps a copy of each datum that starts as not given: the
// fields themselves have defaults and can't tell.

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string_view>

#include "Texte.hpp"
#include "Zof_Classe_Materiau.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

/// A word and the value that it stands for.
struct choix {
  socle::mot_clef mot;
  int valeur;
};

/// Value of the word that is already read; another word is refused and gives 0.
int zof_choisir(const socle::texte<4>& mot, std::initializer_list<choix> les_choix, bool& erco);

/// Reads the word, then as above.
int zof_lire_choix(std::initializer_list<choix> les_choix, bool& erco);

/// OUI or NON.
bool zof_lire_oui_non(bool& erco);

/// Keywords that may stand once, with their data: `copie` is not given before.
void zof_lire_reel_unique(socle::vue_l1 mot, double& copie, bool& erco);
void zof_lire_choix_unique(socle::vue_l1 mot, std::initializer_list<choix> les_choix, int& copie, bool& erco);
void zof_lire_titre_unique(socle::texte<80>& copie, bool& erco);

/// The same title, given to the material or to the situation.
void zof_lire_titre_materiau(zof_materiau& materiau, socle::texte<80>& copie, bool& erco);
void zof_lire_titre_situation(zof_situation_materiau& situation, socle::texte<80>& copie, bool& erco);

/// Kind of the situation that begins with this word (EXPL, then INFI or SERV; CONS; ACCI; SEIS): it must be
/// the first word of its block, and new to the material. 0 where it is refused.
int zof_lire_situation(const socle::texte<4>& mot, bool premier_mot, const zof_materiau& materiau,
                       bool& erco);

/// A situation like its material: the stored copy, pointed, with the material's name, title and number, its
/// owner and its rank.
template <class situation, class materiau>
situation& zof_ajouter_situation(materiau& m) {
  m.ajouter_situation_materiau(situation{});
  auto& s = static_cast<situation&>(m.pointer_situation_materiau_dernier());
  s.m_pt_materiau = &m;
  s.set_titre_materiau(m.get_titre_materiau());
  s.set_nom_materiau(m.get_nom_materiau());
  s.set_numero_materiau_qb7(m.get_numero_materiau_qb7());
  s.set_numero_ordre_situation(m.m_les_situations.nombre());
  return s;
}

/// A situation block of a material: what follows SITU.
template <class situation, class materiau>
void zof_decoder_nouvelle_situation(materiau& m, bool& erco) {
  zof_ajouter_situation<situation>(m).decoder_situation(erco);
  m.m_les_situations.depointer_dernier();
  if (!erco) m.controle_situations_materiau(erco);
}

/// The situations in the order in which those that the data left out are made.
inline constexpr std::array<int, nombre_situations_projet> ordre_situations_par_defaut = {
    situation_exploitation_service, situation_exploitation_infinie, situation_construction, situation_seisme,
    situation_accident};

/// Makes the situations that the data left out, with the material's own operation.
template <class materiau>
void zof_creer_situations_absentes(materiau& m, void (materiau::*creer_situation)(int)) {
  for (const int type : ordre_situations_par_defaut)
    if (!m.existe_type_situation_materiau(type)) (m.*creer_situation)(type);
}

/// The situation's kind as its title and its label.
void zof_intituler_situation_par_defaut(zof_situation_materiau& situation);

/// The block of the situation has told its kind.
bool zof_situation_choisie(const zof_situation_materiau& situation);

/// The kinds of laws of a steel, each given once: BILI or PARF after ELU, LINE or BILI after ELS.
void zof_lire_type_loi_elu_acier(int& copie, int& type_loi_elu, bool& erco);
void zof_lire_type_loi_els_acier(int& copie, int& type_loi_els, bool& erco);

/// The words of an entry of a block PARA: four, or one that stands alone.
struct clef_para {
  std::array<socle::texte<4>, 4> mots;
  socle::texte<19> clef;  ///< each word in four characters, joined by "_"
};

/// Reads the words of the next entry. False at the end of the block (any word that begins with FIN_), or on
/// an error.
bool zof_lire_clef_para(std::string_view mot_seul, clef_para& lue, bool& erco);

/// Reads the entry's value, which is not negative.
double zof_lire_valeur_para(const clef_para& lue, bool& erco);

/// The block PARA stands behind the kind of its situation.
void zof_controler_situation_avant_para(const zof_situation_materiau& situation, bool& erco);

/// Refuses a key that the block does not know.
void zof_refuser_clef_para(const clef_para& lue, bool& erco);

/// An entry of a block PARA: the words as they are looked up, the name under which a repetition is told, the
/// field.
template <class situation>
struct entree_para {
  std::string_view clef;
  std::string_view nom;
  double situation::*champ;
};

/// Rank (from 0) of the entry in the table. A key that is not in it is refused, and so is one whose value
/// `copies` holds already: both give -1.
template <class entree>
int zof_rang_entree_para(const clef_para& lue, std::span<const entree> entrees,
                         std::span<const double> copies, bool& erco) {
  for (std::size_t i = 0; i < entrees.size(); ++i) {
    if (lue.clef != socle::vue_l1(entrees[i].clef)) continue;
    zof_non_repetition_double(entrees[i].nom, copies[i], erco);
    return erco ? -1 : static_cast<int>(i);
  }
  zof_refuser_clef_para(lue, erco);
  return -1;
}

/// The entry belongs to the laws of service: its second word is ELS.
bool zof_est_para_de_service(const clef_para& lue);

/// The block PARA of a steel: the stress limits of service are given in parts of its characteristic strength
/// (MPa). The values as they are given go to `copies`.
template <class situation>
void zof_lire_parametres_acier(situation& s, std::span<const entree_para<situation>> entrees,
                               double resistance, std::span<double> copies, bool& erco) {
  zof_controler_situation_avant_para(s, erco);
  if (erco) return;
  clef_para lue;
  while (zof_lire_clef_para("MODU", lue, erco)) {
    const double valeur = zof_lire_valeur_para(lue, erco);
    if (erco) return;
    const int rang = zof_rang_entree_para(lue, entrees, copies, erco);
    if (erco) return;
    if (rang < 0) continue;
    const auto i = static_cast<std::size_t>(rang);
    copies[i] = valeur;
    s.*entrees[i].champ = zof_est_para_de_service(lue) ? valeur * resistance : valeur;
  }
}

/// One at least of the entries of these names was given.
template <class entree>
bool zof_parametre_lu(std::span<const entree> entrees, std::span<const double> copies,
                      std::initializer_list<std::string_view> noms) {
  for (std::size_t i = 0; i < entrees.size(); ++i)
    if (est_renseigne_double(copies[i]) && std::ranges::find(noms, entrees[i].nom) != noms.end()) return true;
  return false;
}

/// Parameters of an ultimate law of steel, bilinear or perfectly plastic, that the situation does not use are
/// refused.
void zof_controler_loi_elu_acier(int type_loi_elu, int type_loi_des_parametres, bool& erco);
