#include "Zof_Gestion_Section.hpp"

#include <algorithm>
#include <array>
#include <numbers>
#include <string>
#include <unordered_set>
#include <utility>

#include "And_anadon.hpp"
#include "Arithmetique.hpp"
#include "Arret.hpp"
#include "QB7_Sections.hpp"
#include "Simple.hpp"
#include "UTL_02_Ecriture_Resu.hpp"
#include "Zof_Classe_Materiau_Precontrainte_EC.hpp"
#include "Zof_Classe_Situation_Materiau.hpp"
#include "Zof_Dessin_Section.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Materiau.hpp"
#include "Zof_Utilit.hpp"

using namespace socle;

gestion_section_t gestion_section;
void gestion_section_reinitialiser() { gestion_section = {}; }

namespace {

// Sections and zones that the model holds are in the engine too.
void loc_assert_qb7(ier_2 ier) { zof_assert(!ier, "Zof_Gestion_Section : Cas impossible"); }

// An internal fault: the caller has not asked whether the object exists.
[[noreturn]] void loc_cas_impossible(vue_l1 operation) {
  zof_assert(false, concat({operation, " : Cas impossible"}));
  arreter(1);
}

zof_section& loc_section(const texte<32>& nom_section) {
  zof_section* const section = zof_get_pt_section(nom_section);
  if (section == nullptr) loc_cas_impossible("Zof_Get_Pt_Section");
  return *section;
}

zof_precontrainte* loc_precontrainte(const texte<32>& nom_section, const texte<32>& nom_precontrainte) {
  return dynamic_cast<zof_precontrainte*>(zof_get_pt_nom_zone_section(nom_section, nom_precontrainte));
}

zof_zone* loc_premiere_zone(const zof_section& section, nature_zone nature) {
  const auto& zones = section.zones();
  const auto trouvee = std::find_if(zones.begin(), zones.end(), [&](const zof_zone* z) {
    return z->m_est_sous_section && z->nature() == nature;
  });
  return trouvee == zones.end() ? nullptr : *trouvee;
}

// The section's number is the next one; its generated points are numbered above those that a user may give.
void loc_initialiser_section(zof_section& section, const texte<32>& nom) {
  section.set_nom_zone(nom);
  section.set_numero_section_qb7(++gestion_section.zof_mod_numero_courant_section_qb7);
  section.m_numero_courant_point_zone_type = numero_point_utilisateur_max;
  section.m_tous_les_materiaux_de_la_section.creer("Tous_Les_Materiaux_de_la_section", zof_nom());
}

zof_section& loc_creer_section(const texte<32>& nom) {
  auto nouvelle = std::make_unique<zof_section>();
  zof_section& section = *nouvelle;
  gestion_section.zof_mod_les_zones.push_back(std::move(nouvelle));
  gestion_section.zof_mod_les_sections.ajouter(zof_zone_generalisee_pointeur(&section));
  gestion_section.zof_mod_sections_par_nom.emplace(nom.utile(), &section);
  loc_initialiser_section(section, nom);
  loc_assert_qb7(qb7_creer_section(section.get_numero_section_qb7()));
  return section;
}

}  // namespace

void zof_decoder_creer_section(bool& erco) {
  texte<32> nom;
  and_lire_nom(nom, 32, erco);
  if (erco) return;
  zof_assert_commande(!zof_existe_section(nom), concat({" La section ", nom.utile(), " existe deja"}), erco);
  if (erco) return;
  zof_section& section = loc_creer_section(nom);
  section.decoder_zone(erco);
  if (!erco) section.controle_section(erco);
}

// ---- Queries

bool zof_existe_section(const texte<32>& nom_section) { return zof_get_pt_section(nom_section) != nullptr; }

zof_section* zof_get_pt_section(const texte<32>& nom_section) {
  const auto& sections = gestion_section.zof_mod_sections_par_nom;
  const auto trouvee = sections.find(std::string(nom_section.utile()));
  return trouvee == sections.end() ? nullptr : trouvee->second;
}

int zof_get_numero_qb7_section(const texte<32>& nom_section) {
  return loc_section(nom_section).get_numero_section_qb7();
}

texte<32> zof_get_nom_materiau_principal_section(const texte<32>& nom_section) {
  return loc_section(nom_section).m_nom_materiau_principal.m_nom;
}

int zof_get_nombre_materiau_section(const texte<32>& nom_section) {
  return loc_section(nom_section).m_tous_les_materiaux_de_la_section.nombre();
}

texte<32> zof_get_nom_materiau_section(const texte<32>& nom_section, int i) {
  return zof_cp_nom(
             *loc_section(nom_section).m_tous_les_materiaux_de_la_section.case_element(i).m_ptr_element)
      .m_nom;
}

int zof_get_nombre_zones_section(const texte<32>& nom_section) {
  return static_cast<int>(loc_section(nom_section).zones().size());
}

zof_zone* zof_get_pt_zone_section(const texte<32>& nom_section, int i) {
  return loc_section(nom_section).zones()[indice(i)];
}

std::span<zof_zone* const> zof_lister_zones_section(const texte<32>& nom_section) {
  return loc_section(nom_section).zones();
}

zof_zone* zof_get_pt_nom_zone_section(const texte<32>& nom_section, const texte<32>& nom_zone) {
  return loc_section(nom_section).pointer_zone(nom_zone);
}

bool zof_existe_zone_section(const texte<32>& nom_section, const texte<32>& nom_zone) {
  return zof_get_pt_nom_zone_section(nom_section, nom_zone) != nullptr;
}

texte<32> zof_get_nom_materiau_zone_section(const texte<32>& nom_section, const texte<32>& nom_zone) {
  const zof_zone* const zone = zof_get_pt_nom_zone_section(nom_section, nom_zone);
  if (zone == nullptr) loc_cas_impossible("Zof_Get_Nom_Materiau_Zone_Section");
  return zone->m_nom_materiau_zone;
}

int zof_get_nombre_type_zone_section(const texte<32>& nom_section, nature_zone nature) {
  const auto zones = zof_lister_zones_section(nom_section);
  return static_cast<int>(
      std::count_if(zones.begin(), zones.end(), [&](const zof_zone* z) { return z->nature() == nature; }));
}

zof_contour* zof_get_pt_contour_externe(const texte<32>& nom_section) {
  return static_cast<zof_contour*>(loc_premiere_zone(loc_section(nom_section), nature_zone::contour));
}

zof_charpente* zof_get_pt_charpente_externe(const texte<32>& nom_section) {
  return static_cast<zof_charpente*>(
      loc_premiere_zone(loc_section(nom_section), nature_zone::charpente_externe));
}

bool zof_existe_situation_section(const texte<32>& nom_section, const texte<32>& label_situation) {
  for (int i = 1; i <= zof_get_nombre_materiau_section(nom_section); ++i)
    if (!zof_existe_situation_materiau(zof_get_nom_materiau_section(nom_section, i), label_situation))
      return false;
  return true;
}

bool zof_existe_etat_limite_situation_section(const texte<32>& nom_section, const texte<32>& label_situation,
                                              const texte<32>& label_etat_limite) {
  for (int i = 1; i <= zof_get_nombre_materiau_section(nom_section); ++i)
    if (!zof_existe_etat_limite_materiau(zof_get_nom_materiau_section(nom_section, i), label_situation,
                                         label_etat_limite))
      return false;
  return true;
}

// The number is the same for every material: a section of frames whose profiles bring their own material has
// no main one, and any of them will do.
int zof_get_no_etat_limite_qb7_section(const texte<32>& nom_section, const texte<32>& label_situation,
                                       const texte<32>& label_etat_limite) {
  texte<32> materiau = zof_get_nom_materiau_principal_section(nom_section);
  if (!est_renseigne_chaine(materiau)) materiau = zof_get_nom_materiau_section(nom_section, 1);
  return zof_get_no_etat_limite_qb7_materiau(materiau, label_situation, label_etat_limite);
}

// ---- Tendons

bool zof_existe_precontrainte_section(const texte<32>& nom_section, const texte<32>& nom_precontrainte) {
  return loc_precontrainte(nom_section, nom_precontrainte) != nullptr;
}

bool zof_existe_cable_section(const texte<32>& nom_section, const texte<32>& nom_precontrainte,
                              int numero_point) {
  const zof_precontrainte* const zone = loc_precontrainte(nom_section, nom_precontrainte);
  return zone != nullptr && est_renseigne_integer(zone->numero_cable_qb7(numero_point));
}

int zof_get_numero_qb7_cable_section(const texte<32>& nom_section, const texte<32>& nom_precontrainte,
                                     int numero_point) {
  zof_assert(zof_existe_cable_section(nom_section, nom_precontrainte, numero_point),
             "Zof_Get_Numero_QB7_Cable_Section : Cas impossible");
  return loc_precontrainte(nom_section, nom_precontrainte)->numero_cable_qb7(numero_point);
}

// ---- Kinds of sections

bool zof_est_section_ferraillee(const texte<32>& nom_section) {
  return zof_get_nombre_type_zone_section(nom_section, nature_zone::ferraillage) > 0;
}

bool zof_est_section_ferraillage_dimensionnable(const texte<32>& nom_section) {
  const auto zones = zof_lister_zones_section(nom_section);
  return std::any_of(zones.begin(), zones.end(), [](const zof_zone* z) {
    const auto* const barres = dynamic_cast<const zof_ferraillage*>(z);
    return barres != nullptr && barres->m_dimensionnable;
  });
}

bool zof_est_section_precontrainte(const texte<32>& nom_section) {
  return zof_get_nombre_type_zone_section(nom_section, nature_zone::precontrainte) > 0;
}

std::optional<double> zof_contrainte_limite_precontrainte_section(const texte<32>& nom_section,
                                                                  const texte<32>& nom_precontrainte) {
  const zof_precontrainte* const zone = loc_precontrainte(nom_section, nom_precontrainte);
  if (zone == nullptr) return std::nullopt;
  const auto* const acier =
      dynamic_cast<const zof_materiau_precontrainte_ec*>(zof_get_pt_materiau(zone->m_nom_materiau_zone));
  if (acier == nullptr) return std::nullopt;
  return std::min(simple(0.8f) * zof_get_fpk(*acier), simple(0.9f) * zof_get_fp0_1k(*acier));
}

void zof_declarer_aciers_passifs_dimensionnables_section(const texte<32>& nom_section) {
  for (const zof_zone* const zone : zof_lister_zones_section(nom_section))
    zone->declarer_aciers_passifs_dimensionnables();
}

void zof_emprise_section(zof_section& section) { section.emprise_section(); }
void zof_lister_materiaux_section(zof_section& section) { section.lister_materiaux(); }

// ---- Activity in the engine

void zof_desactiver_section(const texte<32>& nom_section) {
  for (const zof_zone* const zone : zof_lister_zones_section(nom_section)) {
    const int section = zone->get_numero_section_qb7();
    for (const int numero : zone->numeros_zones_qb7()) {
      loc_assert_qb7(qb7_activer_zone(section, numero, false, false));
      loc_assert_qb7(qb7_fixer_deform_zone(section, numero, false, qb7_deform_cumulee, {}));
      if (zone->nature() == nature_zone::precontrainte)
        loc_assert_qb7(qb7_fixer_modif_lois_zone(section, numero, {}));
    }
  }
}

void zof_activer_section(const texte<32>& nom_section, bool opt_sauf_precontrainte) {
  zof_desactiver_section(nom_section);
  for (const zof_zone* const zone : zof_lister_zones_section(nom_section)) {
    if (opt_sauf_precontrainte && zone->nature() == nature_zone::precontrainte) continue;
    for (const int numero : zone->numeros_zones_qb7())
      loc_assert_qb7(qb7_activer_zone(zone->get_numero_section_qb7(), numero, true, false));
  }
}

void zof_desactiver_cables_section(const texte<32>& nom_section) {
  for (const zof_zone* const zone : zof_lister_zones_section(nom_section)) zone->desactiver_precontrainte();
}

namespace {

// The zones of these names with all that stands in them; all zones when no name is given. A mother comes
// before her children in the list of a section.
std::vector<const zof_zone*> loc_zones_et_descendants(const zof_section& section,
                                                      std::span<const texte<32>> noms_zones) {
  if (noms_zones.empty()) return {section.zones().begin(), section.zones().end()};
  std::unordered_set<const zof_zone*> retenues;
  for (const texte<32>& nom : noms_zones) retenues.insert(section.pointer_zone(nom));
  std::vector<const zof_zone*> resultat;
  for (const zof_zone* const zone : section.zones()) {
    if (!retenues.contains(zone) && !(zone->zone_mere() != nullptr && retenues.contains(zone->zone_mere())))
      continue;
    retenues.insert(zone);
    resultat.push_back(zone);
  }
  return resultat;
}

// The activity of the engine zones of a section, put back at the end of a query.
class activite_conservee {
 public:
  explicit activite_conservee(int section) : section_(section) {
    int nombre = 0;
    loc_assert_qb7(qb7_lire_nbre_zones(section, nombre));
    numeros_.resize(static_cast<std::size_t>(nombre));
    loc_assert_qb7(qb7_lire_liste_zones(section, numeros_));
    for (const int numero : numeros_) {
      bool active = false;
      loc_assert_qb7(qb7_activite_zone(section, numero, active));
      actives_.push_back(active);
    }
  }
  void tout_desactiver() const {
    for (const int numero : numeros_) loc_assert_qb7(qb7_activer_zone(section_, numero, false, false));
  }
  void remettre() const {
    for (std::size_t i = 0; i < numeros_.size(); ++i)
      loc_assert_qb7(qb7_activer_zone(section_, numeros_[i], actives_[i], false));
  }

 private:
  int section_;
  std::vector<int> numeros_;
  std::vector<bool> actives_;
};

}  // namespace

zof_repere_brut zof_get_repere_brut_section(const texte<32>& nom_section,
                                            std::span<const texte<32>> noms_zones) {
  const zof_section& section = loc_section(nom_section);
  const int numero_section = section.get_numero_section_qb7();
  const activite_conservee activite(numero_section);
  activite.tout_desactiver();
  for (const zof_zone* const zone : loc_zones_et_descendants(section, noms_zones))
    for (const int numero : zone->numeros_zones_qb7())
      loc_assert_qb7(qb7_activer_zone(numero_section, numero, true, false));
  caracteristiques_mecaniques c;
  loc_assert_qb7(qb7_caracteristiques_mecaniques(numero_section, qb7_etat_mecanique, c));
  activite.remettre();
  return {c.yg, c.zg, c.alpha};
}

// ---- In the notes

namespace {

struct groupe_proprietes {
  std::string_view intitule;
  texte<32> etat_limite;
};

const std::array<groupe_proprietes, 3>& loc_groupes() {
  static constexpr std::array<groupe_proprietes, 3> groupes{
      {{"Caractéristiques brutes : "_l1, "MECA_BRUT"},
       {"Caractéristiques nettes : "_l1, "MECA_NET"},
       {"Caractéristiques homogeneisees (n=15) : "_l1, "MECA_HOMOGENEISEE"}}};
  return groupes;
}

// The first situation in which all materials of the section hold the three mechanical states: 1, 2, 3; 0 if
// none does.
int loc_situation_des_proprietes(const texte<32>& nom_section) {
  for (int situation = 1; situation <= 3; ++situation) {
    const texte<32> label = zof_conversion_en_label_situation(situation);
    const bool complete =
        std::all_of(loc_groupes().begin(), loc_groupes().end(), [&](const groupe_proprietes& g) {
          return zof_existe_etat_limite_situation_section(nom_section, label, g.etat_limite);
        });
    if (complete) return situation;
  }
  return 0;
}

// A section of tendons alone has no stiffness of its own.
bool loc_a_des_proprietes(const zof_section& section) {
  return std::any_of(section.zones().begin(), section.zones().end(), [](const zof_zone* z) {
    return z->nature() == nature_zone::contour || z->nature() == nature_zone::charpente_externe ||
           z->nature() == nature_zone::charpente_interieure;
  });
}

void loc_editer_caracteristiques(std::string_view intitule, const caracteristiques_mecaniques& c) {
  const double angle_deg = c.alpha * 180 / std::numbers::pi;
  const std::array<std::pair<std::string_view, double>, 6> lignes{{{"y cdg      (m) : ", c.yg},
                                                                   {"z cdg      (m) : ", c.zg},
                                                                   {"angle    (deg) : ", angle_deg},
                                                                   {"Aire      (m2) : ", c.e_sx},
                                                                   {"Inertie y (m4) : ", c.e_iy},
                                                                   {"Inertie z (m4) : ", c.e_iz}}};
  utl_02_ecrire_puce(intitule);
  utl_02_debut_puce();
  for (const auto& [label, valeur] : lignes)
    utl_02_ecrire_puce(concat({label, zof_chaine_numerique_double(valeur).utile()}));
  utl_02_fin_puce();
}

void loc_editer_proprietes(const zof_section& section) {
  const int situation = loc_situation_des_proprietes(section.m_nom_zone);
  if (situation == 0 || !loc_a_des_proprietes(section)) return;
  utl_02_debut_puce();
  int etat_limite = 1000 * situation;
  for (const groupe_proprietes& groupe : loc_groupes()) {
    caracteristiques_mecaniques c;
    loc_assert_qb7(qb7_caracteristiques_mecaniques(section.get_numero_section_qb7(), ++etat_limite, c));
    loc_editer_caracteristiques(groupe.intitule, c);
  }
  utl_02_fin_puce();
}

}  // namespace

void zof_editer_dessiner_section(zof_section& section, bool& erco) {
  utl_02_ecrire_titre(concat({"Section : ", section.m_nom_zone.utile(), " - ", section.m_titre_zone.utile()}),
                      2);
  zof_activer_section(section.m_nom_zone);
  section.emprise_section();
  zof_dessiner_section(section, erco);
  if (erco) return;
  loc_editer_proprietes(section);
  for (const zof_zone* const zone : section.zones()) zone->edition_zone();
}

void zof_editer_dessiner_sections(bool& erco) {
  texte<32> nom;
  and_lire_nom(nom, 32, erco);
  if (erco) return;
  zof_section* const section = zof_get_pt_section(nom);
  if (section != nullptr) return zof_editer_dessiner_section(*section, erco);
  zof_assert_commande(nom == "TOUT", concat({"la section ", nom.utile(), " n existe pas"}), erco);
  if (erco) return;
  for (const auto& p : uef_parcours<zof_zone_generalisee_pointeur>(gestion_section.zof_mod_les_sections))
    if (!erco) zof_editer_dessiner_section(static_cast<zof_section&>(*p.m_pt_zone), erco);
}
