// Writing of both notes, to files: time a cell and a load case. Growth must be in proportion.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "Edition.hpp"
#include "Systeme_reel.hpp"
#include "UTL_02_Ecriture_Resu.hpp"

using namespace socle;

namespace {

/// Both notes in a directory of their own, with the settings of the program.
class notes {
 public:
  notes() {
    std::filesystem::create_directories(repertoire_);
    txt_ = machine_.creer(repertoire_.string() + "/n.txt", debut::efface);
    html_ = machine_.creer(repertoire_.string() + "/n.html", debut::efface);
    utl_02_reinitialiser();
    utl_02_initialiser({.opt_unit_txt = txt_.get(),
                        .opt_unit_html = html_.get(),
                        .opt_numeroter_titres = true,
                        .opt_ecrire_sommaire_dynam = true,
                        .opt_profondeur_sommaire_voulue = 10});
  }
  notes(const notes&) = delete;
  notes& operator=(const notes&) = delete;
  ~notes() {
    utl_02_reinitialiser();
    txt_.reset();
    html_.reset();
    std::filesystem::remove_all(repertoire_);
  }

 private:
  std::filesystem::path repertoire_ = std::filesystem::temp_directory_path() / "bench_notes";
  systeme_reel machine_;
  systeme_en_place en_place_{machine_};
  std::unique_ptr<sortie> txt_;
  std::unique_ptr<sortie> html_;
};

/// Points with their strains and stresses, as a justification writes them.
utl_01_type_tableau loc_tableau(int nb_points) {
  utl_01_type_tableau t(1 + nb_points, 5, utl_01_contour_premiere_ligne);
  t.titre_tableau = " Deformations et contraintes positives en compression";
  t.remplir_ligne(1, {"Num_Point", "y", "z", "Epsilon", "Sigma (Mpa)"});
  for (int i = 1; i <= nb_points; ++i)
    t.remplir_ligne(1 + i, {std::to_string(i), "-0.1500", "0.3000", "0.16823E-02", "18.215"});
  return t;
}

void notes_un_tableau(benchmark::State& etat) {
  const utl_01_type_tableau t = loc_tableau(static_cast<int>(etat.range(0)));
  for (auto _ : etat) {
    const notes n;
    utl_02_ecrire_tableau(t);
  }
  etat.counters["par cellule"] =
      benchmark::Counter(static_cast<double>(etat.range(0)) * 5,
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void loc_ecrire_cas(const utl_01_type_tableau& modele) {
  utl_02_ecrire_titre("Efforts : poids propre + exploitation", 3);
  utl_02_debut_puce();
  for (const std::string_view ligne : {"Situation    : EXPLOITATION_SERVICE", "Nx: 0.0000", "My: 0.19800"})
    utl_02_ecrire_puce(ligne);
  utl_02_fin_puce();
  for (int zone = 0; zone < 3; ++zone) {
    utl_02_ecrire_titre("Deformations et contraintes dans :AME", 4);
    const utl_01_type_tableau t = modele;
    utl_02_ecrire_tableau(t);
  }
}

/// Load cases of a title, bullets and three titled tables of eight points, then the summary.
void notes_cas_de_charge(benchmark::State& etat) {
  const utl_01_type_tableau modele = loc_tableau(8);
  for (auto _ : etat) {
    const notes n;
    utl_02_ecrire_titre("Justification", 2);
    for (int i = 0; i < etat.range(0); ++i) loc_ecrire_cas(modele);
    utl_02_finaliser();
  }
  etat.counters["par cas"] =
      benchmark::Counter(static_cast<double>(etat.range(0)),
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

}  // namespace

BENCHMARK(notes_un_tableau)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(notes_cas_de_charge)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
