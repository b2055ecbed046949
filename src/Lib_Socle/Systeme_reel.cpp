#include "Systeme_reel.hpp"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

namespace socle {
namespace {

/// A standard stream that the caller closed would be taken by the first file of the run, which then gets the
/// console. In its place comes one that refuses what is written, as a closed one does.
void loc_occuper_flux_standard() {
  int d = STDIN_FILENO;
  while (d >= 0 && d <= STDERR_FILENO) d = open("/dev/null", O_RDONLY);
  if (d > STDERR_FILENO) close(d);
}

constexpr std::size_t taille_tampon = 1U << 16U;

/// The path as the file system takes it: "\" separates like "/".
std::string loc_chemin(vue_l1 chemin) {
  std::string resultat(chemin.octets());
  std::replace(resultat.begin(), resultat.end(), '\\', '/');
  return resultat;
}

/// A regular file or whatever else takes bytes; the first failed write is noted once, the rest is dropped.
class sortie_descripteur final : public sortie {
 public:
  sortie_descripteur(systeme& machine, std::string nom, int descripteur)
      : machine_(machine), nom_(std::move(nom)), descripteur_(descripteur) {
    tampon_.reserve(taille_tampon);
  }
  sortie_descripteur(const sortie_descripteur&) = delete;
  sortie_descripteur& operator=(const sortie_descripteur&) = delete;
  ~sortie_descripteur() override {
    vider();
    // Some file systems tell only here that a write failed.
    if (descripteur_ > STDERR_FILENO && close(descripteur_) != 0 && errno != EINTR)
      machine_.noter_echec(nom_);
  }

  void ecrire(vue_l1 octets) override {
    const std::string_view v = octets.octets();
    if (tampon_.size() + v.size() > taille_tampon) vider();
    if (v.size() > taille_tampon)
      envoyer(v);
    else
      tampon_ += v;
  }

  void vider() {
    envoyer(tampon_);
    tampon_.clear();
  }

 private:
  void envoyer(std::string_view v) {
    while (!v.empty() && !echec_) {
      const ssize_t n = write(descripteur_, v.data(), v.size());
      if (n >= 0) {
        v.remove_prefix(static_cast<std::size_t>(n));
      } else if (errno == EAGAIN) {
        attendre_place();
      } else if (errno != EINTR) {
        echec_ = true;
        machine_.noter_echec(nom_);
      }
    }
  }

  /// A pipe that does not block is full: what reads it makes room, or goes away and the next write fails.
  void attendre_place() const {
    pollfd attente{descripteur_, POLLOUT, 0};
    poll(&attente, 1, -1);
  }

  systeme& machine_;
  std::string nom_;
  int descripteur_;
  bool echec_ = false;
  std::string tampon_;
};

/// Lines of a file through one buffer; a line may have any length.
class entree_descripteur final : public entree {
 public:
  explicit entree_descripteur(int descripteur) : descripteur_(descripteur), tampon_(taille_tampon) {}
  entree_descripteur(const entree_descripteur&) = delete;
  entree_descripteur& operator=(const entree_descripteur&) = delete;
  ~entree_descripteur() override { close(descripteur_); }

  etat_lecture ligne(std::string& resultat) override {
    resultat.clear();
    for (;;) {
      const char* debut = tampon_.data() + lu_;
      if (const void* fin = std::memchr(debut, '\n', rempli_ - lu_)) {
        const auto n = static_cast<std::size_t>(static_cast<const char*>(fin) - debut);
        resultat.append(debut, n);
        lu_ += n + 1;
        return etat_lecture::lue;
      }
      resultat.append(debut, rempli_ - lu_);
      lu_ = rempli_ = 0;
      if (etat_ == etat_lecture::lue) remplir();
      if (rempli_ > 0) continue;
      if (etat_ == etat_lecture::fin && !resultat.empty()) return etat_lecture::lue;
      return etat_;
    }
  }

 private:
  void remplir() {
    ssize_t n = 0;
    do {
      n = read(descripteur_, tampon_.data(), tampon_.size());
    } while (n < 0 && errno == EINTR);
    if (n > 0)
      rempli_ = static_cast<std::size_t>(n);
    else
      etat_ = n == 0 ? etat_lecture::fin : etat_lecture::erreur;
  }

  int descripteur_;
  std::vector<char> tampon_;
  std::size_t lu_ = 0;
  std::size_t rempli_ = 0;
  etat_lecture etat_ = etat_lecture::lue;
};

}  // namespace

systeme_reel::systeme_reel()
    : console_(std::make_unique<sortie_descripteur>(*this, "la console", STDOUT_FILENO)) {
  std::signal(SIGPIPE, SIG_IGN);
  loc_occuper_flux_standard();
}
systeme_reel::~systeme_reel() = default;

sortie& systeme_reel::console() { return *console_; }

void systeme_reel::vider_console() { static_cast<sortie_descripteur&>(*console_).vider(); }

std::unique_ptr<entree> systeme_reel::ouvrir(vue_l1 chemin) {
  const int d = open(loc_chemin(chemin).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (d < 0) return nullptr;
  // A directory opens, and a pipe without writer would wait for ever: neither is a data file.
  struct stat s {};
  if (fstat(d, &s) != 0 || !S_ISREG(s.st_mode)) {
    close(d);
    return nullptr;
  }
  return std::make_unique<entree_descripteur>(d);
}

std::unique_ptr<sortie> systeme_reel::creer(vue_l1 chemin, debut d) {
  const std::string nom = loc_chemin(chemin);
  const int mode =
      O_WRONLY | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK | (d == debut::efface ? O_TRUNC : O_APPEND);
  const int descripteur = open(nom.c_str(), mode, 0666);
  if (descripteur < 0) return nullptr;
  return std::make_unique<sortie_descripteur>(*this, nom, descripteur);
}

void systeme_reel::refaire_repertoire(vue_l1 chemin) {
  // Without a final separator: with one, the library would empty the target of a link.
  std::string nom = loc_chemin(chemin);
  while (nom.size() > 1 && nom.back() == '/') nom.pop_back();
  std::error_code ignore;
  const auto etat = std::filesystem::symlink_status(nom, ignore);
  if (std::filesystem::is_directory(etat) || std::filesystem::is_symlink(etat))
    std::filesystem::remove_all(nom, ignore);
  std::filesystem::create_directory(nom, ignore);
}

std::string systeme_reel::repertoire_programme() {
  std::error_code ignore;
  const auto programme = std::filesystem::read_symlink("/proc/self/exe", ignore);
  if (ignore || !programme.has_parent_path()) return {};
  return programme.parent_path().string() + "/";
}

}  // namespace socle
