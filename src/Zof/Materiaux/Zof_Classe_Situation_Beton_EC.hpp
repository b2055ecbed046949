#pragma once
// A design situation of a concrete: the ages at which the concrete is looked at, the stress limits and the
// partial factor that the codes of practice give for it, and the laws that it hands to the section engine.
//
// Stresses in MPa, compression positive; coefficients multiply fck(t) in compression and fctm(t) in tension.
// A coefficient that is not given is no limit.

#include "Zof_Classe_Beton_EC.hpp"
#include "Zof_Classe_Situation_Materiau.hpp"

struct zof_materiau_beton_ec;

/// How a law takes creep into account. The system asks for the last two only.
enum class type_comportement_beton : int {
  instantane = 1,
  differe = 2,
  pondere = 3,    ///< between short-term and long-term behaviour, by the weight w
  equivalent = 4  ///< modulus from the modular ratio
};

struct zof_situation_beton_ec : uef_element<zof_situation_beton_ec, zof_situation_materiau> {
  zof_beton_ec m_le_beton_ec;
  zof_materiau_beton_ec* m_pt_materiau = nullptr;
  int m_type_loi_els = 1;  ///< linear, parabola or linear by modular ratio: type_loi_... of the material
  int m_type_loi_elu = 3;  ///< bilinear or parabola
  double m_age_chargement_q = socle::non_renseigne;  // days; age of study; not given: infinite
  double m_age_chargement_g = socle::non_renseigne;  // days; age at loading
  double m_age_fin_cure = socle::non_renseigne;      // days
  double m_ponderation_lois_ct_lt = socle::non_renseigne;
  double m_coefficient_equivalence_els = socle::non_renseigne;  // modular ratio n
  double m_coeff_sigma_max_els_car = socle::non_renseigne;
  double m_coeff_sigma_min_els_car = socle::non_renseigne;
  double m_coeff_sigma_max_els_fre = socle::non_renseigne;
  double m_coeff_sigma_min_els_fre = socle::non_renseigne;
  double m_coeff_sigma_max_els_qp = socle::non_renseigne;
  double m_coeff_sigma_min_els_qp = socle::non_renseigne;
  double m_coeff_sigma_min_enrobage_els_car = socle::non_renseigne;
  double m_coeff_sigma_min_enrobage_els_fre = socle::non_renseigne;
  double m_coeff_sigma_min_enrobage_els_qp = socle::non_renseigne;
  double m_coefficient_partiel_elu = socle::non_renseigne;  // gamma c
  double m_alpha_compression = socle::non_renseigne;        // alpha cc
  double m_degre_parabole_elu = socle::non_renseigne;
  double m_degre_parabole_els = socle::non_renseigne;
  double m_deformation_elu_pic = socle::non_renseigne;
  double m_deformation_elu_rupture = socle::non_renseigne;
  double m_deformation_els_pic = socle::non_renseigne;
  double m_deformation_els_rupture = socle::non_renseigne;
  double m_ecm_t = socle::non_renseigne;     // MPa, modulus at the age of study
  double m_phi_t = socle::non_renseigne;     // creep coefficient
  double m_eps_c2_t = socle::non_renseigne;  // peak strain, stretched by creep, of the last ultimate law

  void editer_situation(bool& erco) const override;
  void decoder_situation(bool& erco) override;

  /// Modulus and creep at the age of study, and the strains of the diagrams that the data left open.
  virtual void assigner_deformations();
  virtual void creer_loi_beton_bilineaire_ec_elu(type_comportement_beton comportement,
                                                 double coefficient_partiel,
                                                 const socle::texte<32>& label_loi);
  /// Fills the calculator from the material and the ages.
  virtual void creer_beton_situation_ec();
  virtual void creer_loi_beton_parabole_ec_els(type_comportement_beton comportement, double coeff_sigma_max,
                                               const socle::texte<32>& label_loi);
  virtual void creer_lois_beton_bilineaires_ec_elu(type_comportement_beton comportement);
  virtual void creer_loi_beton_parabole_ec_elu(type_comportement_beton comportement,
                                               double coefficient_partiel, const socle::texte<32>& label_loi);
  virtual void creer_loi_beton_lineaire_ec_els(type_comportement_beton comportement, double coeff_sigma_max,
                                               double coeff_sigma_min, bool is_section_fissuree,
                                               const socle::texte<32>& label_loi);
  /// Stress limits (EN 1992-1-1 7.2, by exposure and kind of section) and partial factor (table 2.1N) of the
  /// situation.
  virtual void affectation_coefficents_ec();
  virtual void creer_lois_beton_lineaires_ec_els_non_fissuree(type_comportement_beton comportement);
  virtual void creer_lois_beton_lineaires_ec_els_fissuree(type_comportement_beton comportement);
  virtual void creer_lois_beton_paraboles_ec_elu(type_comportement_beton comportement);
  virtual void creer_lois_beton_paraboles_ec_els(type_comportement_beton comportement);
  virtual void creer_lois_beton_elu_ec();
  virtual void creer_lois_beton_els_ec();

  /// Factor by which creep stretches the strains of a law: (1 + phi Et) / (1 + w phi Et), with phi the
  /// specific creep.
  double facteur_fluage() const;
  /// Design compressive strength, alpha cc fck(t) / gamma c.
  double resistance_calcul(double coefficient_partiel) const;
  /// Ages of the situation, from its kind and from the option of return to state 0.
  void fixer_ages();
  /// All laws of the situation, those of service where there are some, then the ultimate one.
  void creer_lois();
};
