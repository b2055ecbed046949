#include "And_files.hpp"

#include <algorithm>
#include <string>

#include "And_global.hpp"
#include "And_lecture.hpp"
#include "Arithmetique.hpp"
#include "Arret.hpp"
#include "Edition.hpp"

using socle::concat;

namespace {

constexpr int etat_normal = 1;
constexpr int etat_relecture = 2;
constexpr int aucune_lecture = -1;

/// Room of a queue; numbers 4 to 10 of LISTE are not used and take none.
struct taille_file {
  int termes, caracteres;
};
constexpr taille_file loc_taille(int classe, int file) {
  constexpr std::array<taille_file, 3> listes{{{100000, 400000}, {2009, 8036}, {100, 400}}};
  constexpr taille_file petite{500, 2000};
  if (classe == 1) return file <= 3 ? listes[socle::indice(file)] : taille_file{0, 0};
  if (file > 1) return petite;
  return classe == 2 ? taille_file{5000, 20000} : taille_file{50000, 200000};
}

/// A queue with its part of the shared arrays; places run from 1, texts start at 0.
struct vue_file {
  and_controle_file_t& q;
  and_entree_t* entrees;
  int* entiers;
  double* reels;
  char* chaines;

  [[nodiscard]] and_entree_t& entree(int place) const { return entrees[place - 1]; }
  [[nodiscard]] type_terme type(int place) const { return entrees[place - 1].type; }
  [[nodiscard]] int& entier(int place) const { return entiers[place - 1]; }
  [[nodiscard]] double& reel(int place) const { return reels[place - 1]; }
  /// Place of the term of that rank, 1 at the head.
  [[nodiscard]] int place(int rang) const { return (q.tete - 1 + rang - 1) % q.capacite + 1; }
};

[[noreturn]] void loc_faute_interne(std::string_view operation) {
  socle::le_systeme().console().ligne(concat({"erreur anadon _ ", operation}));
  socle::arreter(10);
}

vue_file loc_file(int classe, int file, std::string_view operation) {
  and_global_t& g = and_global;
  if (classe < 1 || classe > 3 || file < 1 || file > and_nb_files_par_classe ||
      loc_taille(classe, file).termes == 0)
    loc_faute_interne(operation);
  if (g.and_stock.and_files_types == nullptr) and_construire_files();
  const std::size_t c = socle::indice(classe);
  const std::size_t f = socle::indice(file);
  const int debut = g.and_debuts_files[c][f];
  return {g.and_controle_files[c][f], g.and_stock.and_files_types.get() + debut,
          g.and_stock.and_files_entiers.get() + debut, g.and_stock.and_files_reels.get() + debut,
          g.and_stock.and_files_chaines.get() + g.and_debuts_chaines[c][f]};
}

void loc_vider(and_controle_file_t& q) {
  q.tete = 1;
  q.queue = 0;
  q.nombre = 0;
  q.nb_caracteres = 0;
  q.position_lecture = aucune_lecture;
  q.etat = etat_normal;
}

/// The entry becomes the current term.
void loc_servir(const vue_file& v, int place) {
  and_global_t& g = and_global;
  const and_entree_t& entree = v.entree(place);
  g.and_type_terme = entree.type;
  switch (entree.type) {
    case type_terme::reel_s: g.and_var_reel = static_cast<float>(v.reel(place)); break;
    case type_terme::reel_d: g.and_var_reel_d = v.reel(place); break;
    default: g.and_var_entier_ou_operateur = v.entier(place); break;
  }
  g.and_lg_terme = entree.longueur;
  g.and_var_chaine =
      std::string_view(v.chaines + entree.debut_texte, static_cast<std::size_t>(entree.longueur));
}

/// Writes the current term at a place of the queue, its text behind one blank.
void loc_ranger(const vue_file& v, int place) {
  const and_global_t& g = and_global;
  v.chaines[v.q.nb_caracteres++] = ' ';
  v.entree(place) = {g.and_type_terme, v.q.nb_caracteres, g.and_lg_terme};
  const std::string_view lu = g.and_var_chaine.entier().substr(0, static_cast<std::size_t>(g.and_lg_terme));
  std::copy(lu.begin(), lu.end(), v.chaines + v.q.nb_caracteres);
  v.q.nb_caracteres += g.and_lg_terme;
  v.entier(place) = g.and_var_entier_ou_operateur;
  if (g.and_type_terme == type_terme::reel_s) v.reel(place) = static_cast<double>(g.and_var_reel);
  if (g.and_type_terme == type_terme::reel_d) v.reel(place) = g.and_var_reel_d;
}

/// The queue counts as full from now on: who takes from it what never came in meets a capacity error.
void loc_saturer(const vue_file& v, int valeur) {
  for (int rang = v.q.nombre + 1; rang <= v.q.capacite; ++rang) {
    v.entree(v.place(rang)) = {type_terme::erreur_capacite, v.q.nb_caracteres + 1, 0};
    v.entier(v.place(rang)) = valeur;
  }
  v.q.nombre = v.q.capacite;
  v.q.queue = v.place(v.q.capacite);
}

/// The first entries of the queue leave.
void loc_retirer_tete(const vue_file& v, int nombre) {
  v.q.nombre -= std::min(nombre, v.q.nombre);
  v.q.tete = v.place(1 + nombre);
  if (v.q.nombre == 0) loc_vider(v.q);
}

/// A value of the series, from the entry behind its head on: the step is added in place, in the type of the
/// value.
void loc_avancer_serie(const vue_file& v, int place_valeur, int place_pas) {
  if (v.type(place_valeur) == type_terme::entier)
    v.entier(place_valeur) = socle::somme_32(v.entier(place_valeur), v.entier(place_pas));
  else
    v.reel(place_valeur) += v.reel(place_pas);
  v.entree(place_valeur).longueur = 0;  // the text was that of the value before
}

/// Entries that belong together at the head: a repetition is its head and the value, an increment its head,
/// the current value and the step. A head without them is given as it stands.
int loc_nb_entrees(const vue_file& v) {
  int nombre = 1;
  if (v.type(v.place(1)) == type_terme::tete_repetition) nombre = 2;
  if (v.type(v.place(1)) == type_terme::tete_increment) nombre = 3;
  return nombre <= v.q.nombre ? nombre : 1;
}

/// Takes the first term, or the next value of the series at the head.
void and_defiler_tete(const vue_file& v) {
  const int tete = v.place(1);
  const int nb_entrees = loc_nb_entrees(v);
  if (nb_entrees == 1) {
    loc_servir(v, tete);
    loc_retirer_tete(v, 1);
    return;
  }
  loc_servir(v, v.place(2));
  const int reste = --v.entier(tete);
  if (nb_entrees == 2) {
    if (reste == 1) loc_retirer_tete(v, 1);  // the last copy stands alone
    if (reste < 1) loc_retirer_tete(v, 2);
  } else {
    loc_avancer_serie(v, v.place(2), v.place(3));
    if (reste < 0) loc_retirer_tete(v, 3);
  }
}

/// The last entry leaves, with its text and the blank before it.
void loc_retirer_queue(const vue_file& v) {
  const int place = v.q.queue;
  v.q.nb_caracteres = std::max(v.entree(place).debut_texte - 1, 0);
  v.q.queue = place == 1 ? v.q.capacite : place - 1;
  if (--v.q.nombre == 0) loc_vider(v.q);
}

void loc_defiler_queue(const vue_file& v) {
  loc_servir(v, v.q.queue);
  loc_retirer_queue(v);
}

bool loc_est_pleine(const vue_file& v, int lg_terme) {
  return v.q.nombre >= v.q.capacite || v.q.nb_caracteres + lg_terme + 1 > v.q.capacite_caracteres;
}

/// The next term of the data file, or once more the last one: it then goes into the queue only if it left it
/// meanwhile.
void loc_lire_entree(int file) {
  and_global_t& g = and_global;
  if (g.and_relecture_demandee) {
    g.and_relecture_demandee = false;
    static_cast<and_terme_t&>(g) = g.and_dernier_terme_lu;
    if (g.and_file_dernier_terme == file) return;
    and_ecriture(2, file);
  } else {
    and_lecture_unite(file);
    g.and_dernier_terme_lu = static_cast<const and_terme_t&>(g);
  }
  g.and_file_dernier_terme = file;
}

/// The last term read belongs to the unit that follows: it leaves the queue of this one.
void loc_rendre_entree() {
  and_global_t& g = and_global;
  g.and_relecture_demandee = true;
  if (g.and_file_dernier_terme == 0 || and_classe(g.and_dernier_terme_lu.and_type_terme) == 4) return;
  loc_retirer_queue(loc_file(2, g.and_file_dernier_terme, "reconsulter"));
  g.and_file_dernier_terme = 0;
}

/// Name of a queue in messages.
std::string loc_nom_file(int classe, int file) {
  if (file == 1) return "SORTIE";
  if (classe == 1) return file == 2 ? "VARIABLE" : "OPERANDE";
  return socle::edite(socle::I{6}, file);
}

void loc_depassement(int classe, int file) {
  and_global_t& g = and_global;
  g.and_message =
      concat({" DEPASSEMENT CAPACITE  DANS ", and_nom_classe(classe), " ", loc_nom_file(classe, file)});
  g.and_type_terme = type_terme::erreur_capacite;
  g.and_var_entier_ou_operateur = 100 * classe + file;
  g.and_var_chaine = g.and_message.entier();
  g.and_lg_terme = and_lg_message;
}

/// Zeros at the end of a number's mantissa: at most three stay, and all before the point do.
std::string loc_couper_zeros(const std::string& nombre) {
  const std::size_t fin_mantisse = std::min(nombre.find_first_of("ED+-", 1), nombre.size());
  const std::size_t dernier = nombre.find_last_not_of('0', fin_mantisse - 1);
  if (dernier == std::string::npos || nombre.find('.') > fin_mantisse) return nombre;
  const std::size_t garde = std::min(dernier + 1 + 3, fin_mantisse);
  return nombre.substr(0, garde) + nombre.substr(fin_mantisse);
}

}  // namespace

std::string_view and_nom_classe(int classe) {
  constexpr std::array<std::string_view, 3> noms{"LISTE", "PREFILE", "FILE"};
  return noms[socle::indice(classe)];
}

std::string_view and_texte_file(int classe, int file) {
  const vue_file v = loc_file(classe, file, "texte");
  return {v.chaines, static_cast<std::size_t>(v.q.nb_caracteres)};
}

void and_construire_files() {
  and_global_t& g = and_global;
  g.and_stock = {std::make_unique_for_overwrite<and_entree_t[]>(and_nb_termes_total),
                 std::make_unique_for_overwrite<int[]>(and_nb_termes_total),
                 std::make_unique_for_overwrite<double[]>(and_nb_termes_total),
                 std::make_unique_for_overwrite<char[]>(and_nb_caracteres_total)};
  int terme = 0;
  int caractere = 0;
  for (int classe = 1; classe <= 3; ++classe)
    for (int file = 1; file <= and_nb_files_par_classe; ++file) {
      const taille_file taille = loc_taille(classe, file);
      const std::size_t c = socle::indice(classe);
      const std::size_t f = socle::indice(file);
      g.and_debuts_files[c][f] = terme;
      g.and_debuts_chaines[c][f] = caractere;
      g.and_controle_files[c][f] = {.capacite = taille.termes, .capacite_caracteres = taille.caracteres};
      terme += taille.termes;
      caractere += taille.caracteres;
    }
}

void and_vider_files() {
  and_global_t& g = and_global;
  if (g.and_stock.and_files_types == nullptr) and_construire_files();
  for (std::size_t c = 0; c < 3; ++c)
    for (std::size_t f = 0; f < and_nb_files_par_classe; ++f)
      if (c != 0 || f != 1) loc_vider(g.and_controle_files[c][f]);
  g.and_relecture_demandee = false;
  g.and_file_dernier_terme = 0;
}

void and_initialiser_structure(int classe, int file) {
  loc_vider(loc_file(classe, file, "initialiser").q);
  if (classe == 2 && file == and_global.and_file_dernier_terme) and_global.and_file_dernier_terme = 0;
}

void and_ecriture(int classe, int file) {
  const vue_file v = loc_file(classe, file, "ecriture");
  and_global_t& g = and_global;
  if (classe == 1 && file == 1) and_formater_terme();
  if (loc_est_pleine(v, g.and_lg_terme)) {
    loc_saturer(v, 100 * classe + file);
    loc_depassement(classe, file);
    return;
  }
  ++v.q.nombre;
  v.q.queue = v.place(v.q.nombre);
  loc_ranger(v, v.q.queue);
}

void and_ecriture_erreur(int file) {
  const vue_file v = loc_file(3, file, "ecriture");
  while (loc_est_pleine(v, and_global.and_lg_terme)) {
    const and_entree_t& derniere = v.entree(v.q.queue);
    if (and_classe(derniere.type) == 4 && derniere.longueur > 0) return;
    loc_retirer_queue(v);
  }
  and_ecriture(3, file);
}

void and_lecture(int classe, int file, int mode) {
  if (classe == 0) {
    loc_lire_entree(file);
    return;
  }
  const vue_file v = loc_file(classe, file, "lecture");
  v.q.position_lecture = aucune_lecture;
  v.q.etat = etat_normal;
  if (v.q.nombre == 0)
    and_terme_fin_file(classe, file);
  else if (mode == -1)
    loc_defiler_queue(v);
  else
    and_defiler_tete(v);
}

void and_consulter(int classe, int file, int mode) {
  if (classe == 0) {
    loc_lire_entree(file);
    return;
  }
  const vue_file v = loc_file(classe, file, "consulter");
  int& position = v.q.position_lecture;
  if (mode != 0) {
    position = mode == -1 ? v.q.nombre : mode;
    v.q.etat = etat_normal;
    return;
  }
  if (v.q.etat == etat_relecture && position > 1) --position;
  v.q.etat = etat_normal;
  if (position < 1 || position > v.q.nombre)
    and_terme_fin_file(classe, file);
  else
    loc_servir(v, v.place(position++));
}

void and_reconsulter(int classe, int file) {
  if (classe == 0) {
    if (file != 1) loc_faute_interne("reconsulter");
    loc_rendre_entree();
    return;
  }
  loc_file(classe, file, "reconsulter").q.etat = etat_relecture;
}

int and_nb_termes(int classe, int file) { return loc_file(classe, file, "nb_termes").q.nombre; }

int and_position_lecture(int classe, int file) {
  return loc_file(classe, file, "position").q.position_lecture;
}

void and_formater_terme() {
  and_global_t& g = and_global;
  if (g.and_lg_terme != 0) return;
  std::string nombre;
  switch (g.and_type_terme) {
    case type_terme::entier: nombre = socle::edite(socle::I{11}, g.and_var_entier_ou_operateur); break;
    case type_terme::reel_s: nombre = socle::edite(socle::G{14, 7}, g.and_var_reel); break;
    case type_terme::reel_d: nombre = socle::edite(socle::E{24, 14, 'D'}, g.and_var_reel_d); break;
    default: return;
  }
  std::erase(nombre, ' ');
  if (g.and_type_terme != type_terme::entier) nombre = loc_couper_zeros(nombre);
  g.and_var_chaine = nombre;
  g.and_lg_terme = static_cast<int>(nombre.size());
}

void and_terme_fin_file(int classe, int file) {
  and_global_t& g = and_global;
  g.and_type_terme = type_terme::fin_file;
  g.and_var_entier_ou_operateur = 100 * classe + file;
  g.and_var_chaine = socle::vue_l1(" ERREUR DANS ANADON : TERME = TYPE_FIN_FILE");
  g.and_lg_terme = and_lg_message;
}
