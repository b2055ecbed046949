#include "UTL_02_Ecriture_Resu.hpp"

#include <algorithm>
#include <string_view>

#include "UTL_00_Parametres.hpp"
#include "UTL_02_composition.hpp"
#include "UTL_02_decoupe.hpp"
#include "UTL_02_html.hpp"
#include "UTL_02_sommaire.hpp"
#include "UTL_02_txt.hpp"

using namespace socle;

utl_02_t utl_02;

void utl_02_reinitialiser() { utl_02 = {}; }

namespace {

/// Channels of an item: null where it is not written.
struct canaux {
  sortie* txt = nullptr;
  sortie* html = nullptr;

  [[nodiscard]] bool aucun() const { return txt == nullptr && html == nullptr; }
};

template <class options_t>
canaux loc_canaux(const options_t& options) {
  canaux c;
  if (utl_02.glb_edition_txt)
    c.txt = options.opt_unit_txt != nullptr ? options.opt_unit_txt : utl_02.glb_unit_txt;
  if (utl_02.glb_edition_html)
    c.html = options.opt_unit_html != nullptr ? options.opt_unit_html : utl_02.glb_unit_html;
  return c;
}

template <class valeur>
void loc_fixer(valeur& reglage, const std::optional<valeur>& donnee) {
  if (donnee) reglage = *donnee;
}

/// A table of anchors or links counts only if it has the shape of the table that it goes with.
const utl_01_type_tableau* loc_controler_forme(const utl_01_type_tableau* annexe,
                                               const utl_01_type_tableau& tableau) {
  if (annexe == nullptr || annexe->dim_alloc == tableau.dim_alloc) return annexe;
  le_systeme().console().ligne("Le tableau d'ancre est mal dimensionne");
  return nullptr;
}

}  // namespace

void utl_02_initialiser(const utl_02_options_initialiser& options) {
  if (options.opt_unit_txt != nullptr) utl_02.glb_unit_txt = options.opt_unit_txt;
  if (options.opt_unit_html != nullptr) utl_02.glb_unit_html = options.opt_unit_html;
  loc_fixer(utl_02.glb_edition_txt, options.opt_edition_txt);
  loc_fixer(utl_02.glb_edition_html, options.opt_edition_html);
  loc_fixer(utl_02.glb_lg_separation, options.opt_lg_separation);
  loc_fixer(utl_02.glb_logiciel, options.opt_logiciel);
  loc_fixer(utl_02.glb_lg_ligne, options.opt_lg_ligne);
  loc_fixer(utl_02.glb_numeroter_titres, options.opt_numeroter_titres);
  loc_fixer(utl_02.glb_ecrire_sommaire, options.opt_ecrire_sommaire);
  loc_fixer(utl_02.glb_ecrire_sommaire_dynam, options.opt_ecrire_sommaire_dynam);
  loc_fixer(utl_02.glb_profondeur_sommaire_voulue, options.opt_profondeur_sommaire_voulue);
  if (options.opt_langue_entete) utl_02.glb_langue_entete = *options.opt_langue_entete;
  utl_02.glb_renseigner_sommaire =
      utl_02.glb_numeroter_titres || utl_02.glb_ecrire_sommaire || utl_02.glb_ecrire_sommaire_dynam;
  utl_02.glb_profondeur_sommaire_voulue =
      std::min(utl_02.glb_profondeur_sommaire_voulue, glb_profondeur_sommaire_max);
  utl_02.glb_compteurs = {};
  utl_01_ini_sommaire(utl_02.utl_str_sommaire);
}

void utl_02_ecrire_entete(int numero_module, const utl_02_options_entete& options) {
  const canaux c = loc_canaux(options);
  if (c.aucun()) return;
  utl_02.glb_titre = options.opt_titre;
  utl_02.glb_sous_titre = options.opt_sous_titre;
  if (utl_02.glb_titre.vide()) utl_00_lire_titre_module(numero_module, utl_02.glb_titre);
  const std::string_view titre = utl_02.glb_titre.utile();
  const std::string_view sous_titre = utl_02.glb_sous_titre.utile();
  if (c.txt != nullptr) utl_02_ecrire_entete_txt(*c.txt, titre, sous_titre);
  if (c.html != nullptr) utl_02_ecrire_entete_html(*c.html, titre, sous_titre);
}

void utl_02_ecrire_titre(vue_l1 titre, int niveau, const utl_02_options& options) {
  const canaux c = loc_canaux(options);
  if (c.aucun()) return;
  const bool dans_sommaire = utl_02_est_dans_sommaire(niveau);
  const std::string ecrit =
      dans_sommaire ? utl_02_memoriser_sommaire(titre.octets(), niveau) : std::string(titre.octets());
  const int rang = dans_sommaire ? utl_02.utl_str_sommaire.taille_sommaire : 0;
  if (c.txt != nullptr) utl_02_ecrire_titre_txt(*c.txt, ecrit, niveau);
  if (c.html != nullptr) utl_02_ecrire_titre_html(*c.html, ecrit, niveau, rang, options);
}

void utl_02_ecrire_texte(vue_l1 texte, const utl_02_options& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_ecrire_texte_txt(*c.txt, texte.octets());
  if (c.html != nullptr) utl_02_ecrire_texte_html(*c.html, texte.octets(), options);
}

void utl_02_ecrire_note(vue_l1 texte, const utl_02_options& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_ecrire_texte_txt(*c.txt, texte.octets());
  if (c.html != nullptr) utl_02_ecrire_note_html(*c.html, texte.octets(), options);
}

void utl_02_ecrire_avertissement(vue_l1 texte, const utl_02_options& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_ecrire_texte_txt(*c.txt, texte.octets());
  if (c.html != nullptr) utl_02_ecrire_avertissement_html(*c.html, texte.octets(), options);
}

void utl_02_debut_puce(const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_debut_puce_txt();
  if (c.html != nullptr) utl_02_debut_puce_html(*c.html);
}

void utl_02_ecrire_puce(vue_l1 texte, const utl_02_options& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_ecrire_puce_txt(*c.txt, texte.octets());
  if (c.html != nullptr) utl_02_ecrire_puce_html(*c.html, texte.octets(), options);
}

void utl_02_fin_puce(const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_fin_puce_txt();
  if (c.html != nullptr) utl_02_fin_puce_html(*c.html);
}

void utl_02_ecrire_tableau(const utl_01_type_tableau& obj_tableau, const utl_02_options_tableau& options) {
  const canaux c = loc_canaux(options);
  if (c.aucun()) return;
  const utl_02_decoupe decoupe = utl_02_decouper_tableau(obj_tableau, options.opt_colonnes_info);
  if (c.txt != nullptr) utl_02_ecrire_tableau_txt(*c.txt, obj_tableau, decoupe);
  if (c.html == nullptr) return;
  utl_02_options_tableau verifiees = options;
  verifiees.opt_tab_ancres = loc_controler_forme(options.opt_tab_ancres, obj_tableau);
  verifiees.opt_tab_liens = loc_controler_forme(options.opt_tab_liens, obj_tableau);
  utl_02_ecrire_tableau_html(*c.html, obj_tableau, decoupe, verifiees);
}

void utl_02_ecrire_saut_page(const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_ecrire_saut_page_txt(*c.txt);
  utl_02_ecrire_saut_page_html(options);
}

void utl_02_ecrire_saut_page_html(const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.html != nullptr) c.html->ligne(R"(<div class="saut"></div>)");
}

void utl_02_ecrire_lien_hypertexte(vue_l1 cible, vue_l1 texte, const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_ecrire_texte_txt(*c.txt, texte.octets());
  if (c.html != nullptr) utl_02_ecrire_lien_html(*c.html, cible.octets(), texte.octets());
}

void utl_02_ecrire_inclusion_objet_html(vue_l1 fichier, int largeur, int hauteur,
                                        const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.html == nullptr) return;
  composition note(*c.html);
  note << "<!--[if(!IE)|(gte IE 9)]><!-->\n<object data = '" << en_adresse{fichier.octets()} << "' width  = '"
       << largeur << "'   height = '" << hauteur
       << "' ></object>\n"
          "<!--<![endif]-->\n"
          "<!--[if lt IE 9]>\n"
          "<span class='ie' >Impossible d'afficher l'objet</span>\n"
          "<![endif]-->\n";
}

void utl_02_ecrire_cleaner_html(const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.html != nullptr) c.html->ligne(R"(<div class="cleaner"></div>)");
}

void utl_02_ecrire_passage_ligne_html(const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.html != nullptr) c.html->ligne("<br>");
}

void utl_02_finaliser(const utl_02_options_canal& options) {
  const canaux c = loc_canaux(options);
  if (c.txt != nullptr) utl_02_finaliser_txt(*c.txt);
  if (c.html != nullptr) utl_02_finaliser_html(*c.html);
  utl_02.glb_unit_txt = nullptr;
  utl_02.glb_unit_html = nullptr;
}
