#include "Zof_Principal.hpp"

#include <algorithm>
#include <memory>
#include <string>

#include "And_anadon.hpp"
#include "And_global.hpp"
#include "Arret.hpp"
#include "Edition.hpp"
#include "Lex_analex.hpp"
#include "QB7_ERR_Erreurs.hpp"
#include "QB7_Sections.hpp"
#include "Texte.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Commandes.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Options.hpp"
#include "Zof_Reinitialisation.hpp"

using namespace socle;

namespace {

constexpr double version_zof = 7.06;
constexpr int canal_trace = 99;
constexpr int logiciel_zof = 5;

/// The files of a run, open to its end; closing them sends out what they still hold.
struct fichiers_de_course {
  std::unique_ptr<entree> donnees;
  std::unique_ptr<sortie> erreurs;
  std::unique_ptr<sortie> ndc_txt;
  std::unique_ptr<sortie> ndc_html;
};

std::string loc_version() { return edite(F{4, 2}, version_zof); }

/// Name of the data file from the arguments: -v prints the version first, and without a second argument ends
/// the run.
texte<266> zof_execution(std::span<const std::string_view> arguments) {
  const auto argument = [&](std::size_t i) {
    return i < arguments.size() ? arguments[i] : std::string_view{};
  };
  if (sans_blancs_finals(argument(0)) != "-v") return argument(0);
  le_systeme().console().ligne(loc_version());
  if (sans_blancs_finals(argument(1)).empty()) arreter(0);
  return argument(1);
}

/// Names of the run, all from the data file's: both separators of directories count. Gives the path of the
/// drawings in its full length: a name too long for its field, cut, may be that of another directory, and
/// this one is to be removed.
std::string loc_nommer(const texte<266>& nom_fichier) {
  const std::string_view nom = nom_fichier.utile();
  const std::string_view racine = nom.substr(0, nom.size() > 4 ? nom.size() - 4 : 0);
  const std::size_t separateur = racine.find_last_of("/\\");
  const std::string_view chemin = racine.substr(0, separateur == std::string_view::npos ? 0 : separateur + 1);
  const std::string_view racine_nette = racine.substr(chemin.size());
  zof_options.glo_racine_nom_fichier = racine;
  zof_options.glo_racine_nette_nom_fichier = racine_nette;
  zof_options.glo_racine_nom_fichier_svg = concat({chemin, "Svg_", racine_nette, "\\"});
  zof_options.glo_repertoire_svg = concat({"Svg_", racine_nette, "\\"});
  return concat({chemin, "Svg_", racine_nette});
}

std::string loc_fichier(vue_l1 extension) {
  return concat({zof_options.glo_racine_nom_fichier.utile(), extension});
}

/// A file that can't be opened ends the run, with nothing written to the notes.
[[noreturn]] void loc_refuser_ouverture(vue_l1 message) {
  zof_ecrire_message(message);
  arreter(1);
}

void loc_ouvrir(fichiers_de_course& fichiers) {
  const std::string donnees = loc_fichier(".zof");
  fichiers.donnees = le_systeme().ouvrir(donnees);
  if (!fichiers.donnees)
    loc_refuser_ouverture(concat({" ERREUR : ouverture du fichier de données impossible:"_l1, donnees}));
  fichiers.erreurs = le_systeme().creer(loc_fichier(".err"), debut::efface);
  if (!fichiers.erreurs) loc_refuser_ouverture(" ERREUR : ouverture du fichier des Erreurs impossible");
  zof_erreurs.zof_unite_erreurs = fichiers.erreurs.get();
  fichiers.ndc_txt = le_systeme().creer(loc_fichier(".txt"), debut::efface);
  if (!fichiers.ndc_txt) loc_refuser_ouverture(" ERREUR : ouverture du fichier NDC texte impossible");
  fichiers.ndc_html = le_systeme().creer(loc_fichier(".html"), debut::efface);
  if (!fichiers.ndc_html) loc_refuser_ouverture(" ERREUR : ouverture du fichier NDC html impossible");
}

/// The data are echoed line by line on the console as read, and phrase by phrase in the listing as
/// understood.
void loc_regler_lecteur(const fichiers_de_course& fichiers) {
  sortie* const console = &le_systeme().console();
  and_global.and_unite_echo_messages = console;
  and_global.and_mode_echo_donnees_analysees = 3;
  and_global.and_unite_echo_donnees_analysees = fichiers.erreurs.get();
  and_global.and_lg_envoi_echo = 80;
  and_global.and_mode_dequoter = true;
  and_global.and_mode_phrase = true;
  and_global.and_mode_delimiteur = false;
  lex_analex.lex_mode_garder_point_virgule_dans_echo = true;
  lex_analex.lex_mode_mettre_code_fin_ligne = true;
  lex_analex.lex_lg_fixee_ligne_fichier_donnees = 200;
  lex_analex.lex_unite_lecture_donnees = fichiers.donnees.get();
  lex_analex.lex_mode_suspend_echo_donnees_lues = false;
  lex_analex.lex_unite_echo_donnees_lues = console;
}

void zof_editer_entete_ndc(const fichiers_de_course& fichiers) {
  const texte<6> num_version(loc_version());
  le_systeme().console().ligne(concat({"Version de ZOF : ", num_version.entier()}));
  const texte<20> phrase_version(concat({" version ", num_version.entier()}));
  if (!zof_options.zof_edition_txt && !zof_options.zof_edition_html) return;
  utl_02_initialiser({.opt_unit_txt = fichiers.ndc_txt.get(),
                      .opt_unit_html = fichiers.ndc_html.get(),
                      .opt_edition_txt = zof_options.zof_edition_txt,
                      .opt_edition_html = zof_options.zof_edition_html,
                      .opt_logiciel = logiciel_zof,
                      .opt_numeroter_titres = true,
                      .opt_ecrire_sommaire = false,
                      .opt_ecrire_sommaire_dynam = true,
                      .opt_profondeur_sommaire_voulue = 10,
                      .opt_langue_entete = vue_l1("fr")});
  const std::string titre = concat({"Calcul ZOF", phrase_version.utile()});
  utl_02_ecrire_entete(1, {.opt_titre = titre, .opt_sous_titre = "Note de calcul"});
  utl_02_ecrire_titre("ZOF - Note de calcul", 1);
}

/// The first word of the data. A file that doesn't begin with it is told on the console, and is no error.
bool loc_commence_par_zof(bool& erco) {
  if (erco) return false;
  texte<4> mot;
  and_lire_deb_nom(mot, 4, erco);
  if (erco) return false;
  if (mot == "ZOF") return true;
  le_systeme().console().ligne(" ERREUR : Le fichier doit commencer par ZOF");
  return false;
}

/// Ends the notes whatever the way out of the commands was, so that they hold what there is.
int loc_terminer(const fichiers_de_course& fichiers, bool erco) {
  le_systeme().console().ligne("FIN DE L EXECUTION");
  if (!erco) {
    fichiers.erreurs->ligne(" ");
    fichiers.erreurs->ligne(" ");
    fichiers.erreurs->ligne("Execution de Zof terminee");
  }
  if (zof_options.zof_edition_txt || zof_options.zof_edition_html) utl_02_finaliser();
  return erco ? 1 : 0;
}

int zof_principal(std::span<const std::string_view> arguments) {
  const texte<266> nom_fichier = zof_execution(arguments);
  bool erco = false;
  zof_assert_commande(nom_fichier.utile().size() <= 255, "Nom de fichier ou de repertoire trop long", erco);
  le_systeme().refaire_repertoire(loc_nommer(nom_fichier));
  and_initialiser_anadon();
  and_initialiser_variables();
  fichiers_de_course fichiers;
  loc_ouvrir(fichiers);
  loc_regler_lecteur(fichiers);
  qb7_err_afficher_erreur_et_arreter(fichiers.erreurs.get());
  zof_editer_entete_ndc(fichiers);
  if (qb7_fixer_trace_dimensionnement(canal_trace, loc_fichier(".tra"), true, true)) arreter(1);
  if (loc_commence_par_zof(erco)) zof_executer_commandes(erco);
  return loc_terminer(fichiers, erco);
}

}  // namespace

int zof_executer(std::span<const std::string_view> arguments, systeme& machine) {
  zof_reinitialiser();
  const systeme_en_place en_place(machine);
  int statut = 0;
  try {
    statut = zof_principal(arguments);
  } catch (const arret& a) {
    statut = a.statut;
  }
  // What holds a channel lets it go before the machine leaves.
  zof_reinitialiser();
  return statut;
}
