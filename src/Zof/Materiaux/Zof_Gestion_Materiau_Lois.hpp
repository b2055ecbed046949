#pragma once
// What the materials of all kinds share when they hand their laws to the section engine: the limit states of
// each situation, and the laws of steels. Stresses in MPa, compression positive; limits as positive numbers.

#include <array>
#include <span>

#include "QB7_Types.hpp"
#include "Texte.hpp"
#include "Zof_Classe_Situation_Materiau.hpp"

/// The three combinations of actions of serviceability.
enum class combinaison : int { quasi_permanente = 0, frequente = 1, caracteristique = 2 };

struct etat_service {
  combinaison actions;
  socle::texte<32> label;
  socle::texte<32> label_nf;  ///< the same for a section that is not cracked
};

/// States of serviceability of a situation, in the order in which their laws are made: construction has no
/// frequent combination, accident and seism have no serviceability.
std::span<const etat_service> zof_etats_service(int type_situation);

/// "ELU_DURABLE" or "ELU_ACCIDENT", by the situation.
socle::texte<32> zof_label_etat_ultime(int type_situation);

/// Registers the three states of elastic properties and gives their numbers: gross, net, transformed.
std::array<int, 3> zof_ajouter_etats_mecaniques(zof_situation_materiau& situation);

/// Modular ratio of the transformed section.
inline constexpr double rapport_homogeneisation = 15.0;

/// A law that the engine refuses is a fault: the engine has stopped the run already where it is told to.
void zof_exiger(const ier_2& ier);

/// Yield of a steel and the stress limits of one of its states; a limit that is not given is none.
struct limites_acier {
  double traction = socle::non_renseigne;
  double compression = socle::non_renseigne;
};

/// Limits of the stress of a steel under this combination.
template <class situation>
limites_acier zof_limites_acier(const situation& s, combinaison actions) {
  switch (actions) {
    case combinaison::quasi_permanente:
      return {s.m_sigma_lim_traction_els_qp, s.m_sigma_lim_compression_els_qp};
    case combinaison::frequente: return {s.m_sigma_lim_traction_els_fre, s.m_sigma_lim_compression_els_fre};
    case combinaison::caracteristique:
      return {s.m_sigma_lim_traction_els_car, s.m_sigma_lim_compression_els_car};
  }
  return {};
}

/// The law's place in the engine, and how its zones count in what surrounds them.
struct loi_acier {
  int num_materiau, num_etat_lim;
  bool travail_en_compression;
  int type_trou;
};

/// Elastic law of service: both signs, or tension alone.
void zof_creer_loi_acier_lineaire(const loi_acier& loi, double module, const limites_acier& limites);

/// Elastic up to the yield stress, then a horizontal plateau up to twice the strain of yield.
void zof_creer_loi_acier_palier(const loi_acier& loi, double module, double f_palier,
                                const limites_acier& limites);

/// Points of a bilinear ultimate law, EN 1992-1-1 figure 3.8, with a strain limit turned into a stress.
struct diagramme_acier {
  double epsilon_palier, f_palier, epsilon_rupture, f_rupture;
  double f_lim;  ///< stress at the admissible strain
};

/// From the yield and ultimate stresses (design values), the modulus, the ultimate strain and the admissible
/// one.
diagramme_acier zof_diagramme_bilineaire(double f_palier, double f_rupture, double module,
                                         double epsilon_rupture, double epsilon_admissible);

void zof_creer_loi_acier_bilineaire(const loi_acier& loi, const diagramme_acier& d);

/// The same from the characteristic yield stress, the ratio of the ultimate stress to it, the part of the
/// ultimate strain that is admissible, and the partial factor of both stresses.
void zof_creer_loi_acier_bilineaire_elu(const loi_acier& loi, double limite_elasticite_garantie,
                                        double module_elasticite, double epsilon_rupture,
                                        double coefficient_contrainte_ultime,
                                        double coefficient_deformation_admissible,
                                        double coefficient_partiel);
