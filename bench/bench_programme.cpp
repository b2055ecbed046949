// The whole program, as a user starts it: wall time and peak memory of the process.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

struct mesure {
  double secondes;
  double megaoctets;
  int statut;
};

/// Starts zof on the file, its console thrown away, and waits for it.
mesure loc_lancer(const std::string& fichier) {
  const auto debut = std::chrono::steady_clock::now();
  const pid_t enfant = fork();
  if (enfant == 0) {
    const int nul = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nul, STDOUT_FILENO);
    execl(ZOF_PROGRAMME, ZOF_PROGRAMME, fichier.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  int etat = 0;
  rusage usage{};
  wait4(enfant, &etat, 0, &usage);
  const std::chrono::duration<double> duree = std::chrono::steady_clock::now() - debut;
  return {duree.count(), static_cast<double>(usage.ru_maxrss) / 1024.0,
          WIFEXITED(etat) ? WEXITSTATUS(etat) : -1};
}

/// A column under this many load cases, all in one JUST.
std::string loc_donnees(int cas) {
  std::string d =
      "ZOF\nMATE BETON C30\nTITR 'Beton'\nFCK 30.\nPREC NON\nFIN_MATE\n"
      "MATE ACIER B500\nTITR 'Acier'\nFYK 500.\nTYPE T_B\nCONF OUI\nFIN_MATE\n"
      "SECT POTEAU\nTITR 'Poteau'\nCONT FUT\nTITR 'Fut'\nMATE C30\nRECT HAUT 0.40 LARG 0.40 FIN_RECT\n"
      "FERR CAGE\nTITR '8 HA20'\nMATE B500\nDIAM 20.\nPOIN\n"
      "NUME 101 Y -0.15 Z -0.15 FIN_POIN\nNUME 102 Y 0. Z -0.15 FIN_POIN\nNUME 103 Y 0.15 Z -0.15 FIN_POIN\n"
      "NUME 104 Y 0.15 Z 0. FIN_POIN\nNUME 105 Y 0.15 Z 0.15 FIN_POIN\nNUME 106 Y 0. Z 0.15 FIN_POIN\n"
      "NUME 107 Y -0.15 Z 0.15 FIN_POIN\nNUME 108 Y -0.15 Z 0. "
      "FIN_POIN\nFIN_POIN\nFIN_FERR\nFIN_CONT\nFIN_SECT\n"
      "SOLL GRILLE SECT POTEAU\nTITR 'Grille'\nREPE GEOM\nETAT ELU DURA SITU EXPL SERV POND\n";
  for (int i = 0; i < cas; ++i) {
    char ligne[96];
    std::snprintf(ligne, sizeof ligne, "EFFO G N %.3f MY %.4f MZ %.4f FIN_EFFO\n", 0.1 * (1 + i % 10),
                  0.012 * (1 + i / 10 % 10), 0.012 * (1 + i / 100 % 10));
    d += ligne;
  }
  return d + "FIN_ETAT\nFIN_SOLL\nJUST POTEAU\nSOLL GRILLE\nFIN_JUST\nFIN_\n";
}

void loc_mesurer(benchmark::State& etat, const std::string& donnees) {
  const auto repertoire =
      std::filesystem::temp_directory_path() / ("bench_programme_" + std::to_string(getpid()));
  std::filesystem::create_directories(repertoire);
  const std::string fichier = repertoire / "etude.zof";
  std::ofstream(fichier) << donnees;
  double memoire = 0;
  for (auto _ : etat) {
    const mesure m = loc_lancer(fichier);
    if (m.statut != 0) etat.SkipWithError("zof failed");
    etat.SetIterationTime(m.secondes);
    memoire = std::max(memoire, m.megaoctets);
  }
  etat.counters["peak_MB"] = memoire;
  std::filesystem::remove_all(repertoire);
}

void BM_FichierMinimal(benchmark::State& etat) { loc_mesurer(etat, "ZOF\nFIN_\n"); }
BENCHMARK(BM_FichierMinimal)->UseManualTime()->Unit(benchmark::kMillisecond);

// Time and memory against the number of cases: 1 000, 10 000, 100 000.
void BM_CasDeCharge(benchmark::State& etat) {
  loc_mesurer(etat, loc_donnees(static_cast<int>(etat.range(0))));
}
BENCHMARK(BM_CasDeCharge)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

}  // namespace
