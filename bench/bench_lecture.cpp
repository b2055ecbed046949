// Reading of the data: load cases through lexemes, the data language, queues and phrases to finished terms,
// with both echoes.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <cstdio>
#include <string>
#include <string_view>

#include "And_anadon.hpp"
#include "And_global.hpp"
#include "Lex_analex.hpp"

namespace {

/// Lines of a text in memory, over and over.
class entree_en_memoire final : public socle::entree {
 public:
  explicit entree_en_memoire(std::string_view donnees) : donnees_(donnees) {}
  socle::etat_lecture ligne(std::string& resultat) override {
    if (lu_ >= donnees_.size()) return socle::etat_lecture::fin;
    const std::size_t fin = donnees_.find('\n', lu_);
    resultat.assign(donnees_, lu_, fin - lu_);
    lu_ = fin + 1;
    return socle::etat_lecture::lue;
  }

 private:
  std::string_view donnees_;
  std::size_t lu_ = 0;
};

/// Counts the bytes and drops them.
class sortie_comptee final : public socle::sortie {
 public:
  void ecrire(socle::vue_l1 octets) override { total += octets.octets().size(); }
  std::size_t total = 0;
};

std::string loc_cas_de_charge(int nombre) {
  std::string d;
  for (int i = 0; i < nombre; ++i) {
    char ligne[96];
    std::snprintf(ligne, sizeof ligne, "EFFO G N %.3f MY %.4f MZ -%.4f FIN_EFFO $ cas\n", 0.1 * (1 + i % 10),
                  0.012 * (1 + i / 10 % 10), 0.012 * (1 + i / 100 % 10));
    d += ligne;
  }
  return d;
}

void loc_brancher(socle::entree& donnees, socle::sortie& console, socle::sortie& listing) {
  lex_analex_reinitialiser();
  and_global_reinitialiser();
  and_initialiser_anadon();
  and_initialiser_variables();
  and_global.and_unite_echo_messages = &console;
  and_global.and_mode_echo_donnees_analysees = 3;
  and_global.and_unite_echo_donnees_analysees = &listing;
  lex_analex.lex_mode_mettre_code_fin_ligne = true;
  lex_analex.lex_mode_garder_point_virgule_dans_echo = true;
  lex_analex.lex_unite_lecture_donnees = &donnees;
  lex_analex.lex_unite_echo_donnees_lues = &console;
}

/// As a handler reads one case: seven words and three numbers.
void loc_lire_cas(double& somme, bool& erco) {
  socle::texte<8> mot;
  double valeur = 0;
  and_lire_deb_nom(mot, 4, erco);
  and_lire_deb_nom(mot, 4, erco);
  for (int i = 0; i < 3; ++i) {
    and_lire_deb_nom(mot, 4, erco);
    and_lire_reel_d(valeur, erco);
    somme += valeur;
  }
  and_lire_deb_nom(mot, 8, erco);
}

/// The same grid of cases written by directed lists, a thousand by each of them.
std::string loc_listes_dirigees(int nombre) {
  std::string d;
  for (int i = 0; i < nombre; i += 1000)
    d += "< < < < EFFO G N (0.1 * I) MY (0.012 * J) MZ (0.012 * K) FIN_EFFO\n"
         "> I = 1 A 10 > J = 1 A 10 > K = 1 A 10 >\n";
  return d;
}

/// Greatest memory of the process so far; of the reading alone when nothing else has run in it.
double loc_memoire() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void loc_mesurer_lecture(benchmark::State& etat, const std::string& donnees) {
  const auto nombre = static_cast<int>(etat.range(0));
  for (auto _ : etat) {
    entree_en_memoire entree(donnees);
    sortie_comptee console;
    sortie_comptee listing;
    loc_brancher(entree, console, listing);
    double somme = 0;
    bool erco = false;
    for (int i = 0; i < nombre && !erco; ++i) loc_lire_cas(somme, erco);
    if (erco) etat.SkipWithError("a case was refused");
    benchmark::DoNotOptimize(somme);
  }
  etat.SetItemsProcessed(etat.iterations() * nombre);
  etat.SetComplexityN(nombre);
  etat.counters["peak_MB"] = loc_memoire();
}

// Time must grow with the number of cases, no faster: 1 000, 10 000, 100 000. Memory must not: a phrase is
// over when the next one is read.
void BM_CasDUneListeDirigee(benchmark::State& etat) {
  loc_mesurer_lecture(etat, loc_listes_dirigees(static_cast<int>(etat.range(0))));
}
BENCHMARK(BM_CasDUneListeDirigee)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void BM_CasDeCharge(benchmark::State& etat) {
  loc_mesurer_lecture(etat, loc_cas_de_charge(static_cast<int>(etat.range(0))));
}
BENCHMARK(BM_CasDeCharge)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

// What a run pays before its first word: the queues take their room, and no more of it than they use.
void BM_Initialisation(benchmark::State& etat) {
  sortie_comptee console;
  entree_en_memoire entree("");
  for (auto _ : etat) loc_brancher(entree, console, console);
}
BENCHMARK(BM_Initialisation)->Unit(benchmark::kMicrosecond);

// The automaton alone, in characters a second.
void BM_Lexemes(benchmark::State& etat) {
  const std::string donnees = loc_cas_de_charge(10000);
  for (auto _ : etat) {
    entree_en_memoire entree(donnees);
    lex_analex_reinitialiser();
    lex_analex.lex_mode_mettre_code_fin_ligne = true;
    lex_analex.lex_unite_lecture_donnees = &entree;
    lex_ligne chaine{};
    int nbcar = 0;
    while (lexeme(chaine, lex_lg_ligne, nbcar) != code_lexeme::controle || chaine[0] != lex_code_fin_fichier)
      benchmark::DoNotOptimize(nbcar);
  }
  etat.SetBytesProcessed(etat.iterations() * static_cast<std::int64_t>(donnees.size()));
}
BENCHMARK(BM_Lexemes)->Unit(benchmark::kMillisecond);

}  // namespace
