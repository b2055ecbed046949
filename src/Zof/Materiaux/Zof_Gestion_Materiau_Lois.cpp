#include "Zof_Gestion_Materiau_Lois.hpp"

#include <optional>

#include "QB7_Lois.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Utilit.hpp"

namespace {

constexpr etat_service quasi_permanent = {combinaison::quasi_permanente, "ELS_QP", "ELS_QP_NF"};
constexpr etat_service frequent = {combinaison::frequente, "ELS_FRE", "ELS_FRE_NF"};
constexpr etat_service caracteristique = {combinaison::caracteristique, "ELS_CAR", "ELS_CAR_NF"};

constexpr std::array<etat_service, 3> etats_en_exploitation = {quasi_permanent, frequent, caracteristique};
constexpr std::array<etat_service, 2> etats_en_construction = {quasi_permanent, caracteristique};

/// The stress as the engine's builders take it: absent, and not the sentinel, where it is not given.
std::optional<double> loc_limite(double contrainte, double signe) {
  if (!est_renseigne_double(contrainte)) return std::nullopt;
  return signe * contrainte;
}

/// Stress at the admissible strain d, on the elastic branch or on the one that hardens.
double loc_contrainte_limite(const diagramme_acier& a, double module, double d) {
  if (a.epsilon_palier > d) return module * d;
  const double part = (a.epsilon_palier - d) / (a.epsilon_palier - a.epsilon_rupture);
  // At the end of the branch the stress must be f_rupture to the bit: a limit past it would be none.
  if (part == 1) return a.f_rupture;
  return a.f_palier - (a.f_palier - a.f_rupture) * part;
}

}  // namespace

std::span<const etat_service> zof_etats_service(int type_situation) {
  if (est_situation_accidentelle(type_situation)) return {};
  if (type_situation == situation_construction) return etats_en_construction;
  return etats_en_exploitation;
}

socle::texte<32> zof_label_etat_ultime(int type_situation) {
  return est_situation_accidentelle(type_situation) ? socle::texte<32>("ELU_ACCIDENT")
                                                    : socle::texte<32>("ELU_DURABLE");
}

std::array<int, 3> zof_ajouter_etats_mecaniques(zof_situation_materiau& situation) {
  const int brut = situation.ajouter_etat_limite("MECA_BRUT");
  const int net = situation.ajouter_etat_limite("MECA_NET");
  const int homogeneise = situation.ajouter_etat_limite("MECA_HOMOGENEISEE");
  return {brut, net, homogeneise};
}

void zof_exiger(const ier_2& ier) {
  if (ier) zof_arret();
}

void zof_creer_loi_acier_lineaire(const loi_acier& loi, double module, const limites_acier& limites) {
  const std::optional<double> sigma_min = loc_limite(limites.traction, -1);
  // A steel that tension alone strains has no limit on the other side.
  const std::optional<double> sigma_max =
      loi.travail_en_compression ? loc_limite(limites.compression, 1) : std::nullopt;
  zof_exiger(qb7_loi_lin_bilin(loi.num_materiau, loi.num_etat_lim,
                               loi.travail_en_compression ? qb7_loi_lineaire : qb7_loi_traction_seule, module,
                               sigma_min, sigma_max, loi.type_trou));
}

void zof_creer_loi_acier_palier(const loi_acier& loi, double module, double f_palier,
                                const limites_acier& limites) {
  const double epsilon_palier = f_palier / module;
  const bool limitee = est_renseigne_double(limites.traction) || est_renseigne_double(limites.compression);
  // A limit that is not given lies far beyond the plateau, where the builder sets no bound.
  zof_exiger(qb7_loi_elastoplastique_avec_bornes(
      loi.num_materiau, loi.num_etat_lim, epsilon_palier, f_palier, 2 * epsilon_palier, f_palier, limitee,
      -limites.traction, limites.compression, loi.travail_en_compression, loi.type_trou));
}

diagramme_acier zof_diagramme_bilineaire(double f_palier, double f_rupture, double module,
                                         double epsilon_rupture, double epsilon_admissible) {
  const double epsilon_palier = f_palier / module;
  return {epsilon_palier, f_palier, epsilon_rupture, f_rupture,
          loc_contrainte_limite({epsilon_palier, f_palier, epsilon_rupture, f_rupture, 0}, module,
                                epsilon_admissible)};
}

void zof_creer_loi_acier_bilineaire(const loi_acier& loi, const diagramme_acier& d) {
  zof_exiger(qb7_loi_elastoplastique_avec_bornes(loi.num_materiau, loi.num_etat_lim, d.epsilon_palier,
                                                 d.f_palier, d.epsilon_rupture, d.f_rupture, true, -d.f_lim,
                                                 d.f_lim, loi.travail_en_compression, loi.type_trou));
}

void zof_creer_loi_acier_bilineaire_elu(const loi_acier& loi, double limite_elasticite_garantie,
                                        double module_elasticite, double epsilon_rupture,
                                        double coefficient_contrainte_ultime,
                                        double coefficient_deformation_admissible,
                                        double coefficient_partiel) {
  zof_creer_loi_acier_bilineaire(
      loi, zof_diagramme_bilineaire(
               limite_elasticite_garantie / coefficient_partiel,
               coefficient_contrainte_ultime * limite_elasticite_garantie / coefficient_partiel,
               module_elasticite, epsilon_rupture, coefficient_deformation_admissible * epsilon_rupture));
}
