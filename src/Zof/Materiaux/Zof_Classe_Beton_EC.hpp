#pragma once
// Properties of one concrete with time: strengths, moduli, creep, shrinkage, and the strains of its
// stress-strain diagrams. EN 1992-1-1 for normal concrete; annex B of its French national annex for
// high-performance concrete (BHP).
//
// The object holds the inputs alone; every property is computed when it is asked for.
// Notation: t age of study, t0 age at loading, ts age at the end of curing, in days; h0 notional size; RH
// humidity. Strengths and moduli in MPa; strains without unit, shortening positive. An age of study that is
// not given is infinite: the formulas take their limits. An input that a property needs and that was not
// given ends the run.

#include "Non_renseigne.hpp"

/// Classes of cement.
inline constexpr int ciment_n = 1;
inline constexpr int ciment_r = 2;
inline constexpr int ciment_s = 3;

/// Kinds of concrete.
inline constexpr int beton_normal = 1;
inline constexpr int beton_bhp_sans_silice = 2;  ///< high-performance, without silica fume
inline constexpr int beton_bhp_avec_silice = 3;  ///< high-performance, with silica fume

struct zof_beton_ec {
  double m_resistance_caracteristique_28j = socle::non_renseigne;  // fck, MPa
  int m_type_ciment = socle::non_renseigne;
  int m_type_beton = socle::non_renseigne;
  double m_humidite_relative = socle::non_renseigne;       // percent
  double m_rayon_moyen = socle::non_renseigne;             // h0, m
  double m_age_chargement = socle::non_renseigne;          // t0, days
  double m_age_fin_cure = socle::non_renseigne;            // ts, days
  double m_age_etude = socle::non_renseigne;               // t, days
  double m_ponderation_lois_ct_lt = socle::non_renseigne;  // w: 0 long-term, 1 short-term behaviour

  zof_beton_ec() = default;
  zof_beton_ec(const zof_beton_ec&) = default;
  zof_beton_ec& operator=(const zof_beton_ec&) = default;
  virtual ~zof_beton_ec() = default;

  /// Growth of the mean compressive strength, EN 1992-1-1 (3.2); exp(s) at infinite age.
  virtual double calcul_beta_cc(double t) const;
  /// Specific creep of a BHP: phi / (1.05 Ecm), per MPa. RH at most 80, cement of class R.
  virtual double coefficient_fluage_bhp(bool avec_silice) const;
  /// Specific creep of a normal concrete: phi / (1.05 Ecm), per MPa. EN 1992-1-1 annex B.1, t0 without
  /// adjustment.
  virtual double coefficient_fluage_beton_normal() const;
  /// Total shrinkage at the age of study.
  virtual double deformation_retrait() const;
  /// epsilon c3, EN 1992-1-1 table 3.1.
  virtual double deformation_pic_3() const;
  /// epsilon c2, EN 1992-1-1 table 3.1.
  virtual double deformation_pic_2() const;
  virtual double deformation_retrait_bhp(bool avec_silice) const;
  /// epsilon cu2, EN 1992-1-1 table 3.1.
  virtual double deformation_rupture_2() const;
  /// epsilon cu3, equal to epsilon cu2.
  virtual double deformation_rupture_3() const;
  /// Ecm, EN 1992-1-1 table 3.1.
  virtual double module_elastique_28j() const;
  /// Modulus under a load that stays from t0 on: E(t0) / (1 + creep).
  virtual double module_elastique_differe_age_etude() const;
  /// Ecm(t), EN 1992-1-1 (3.5).
  virtual double module_elastique_age_etude() const;
  /// fck(t), EN 1992-1-1 3.1.2 (5): fck after 28 days, fcm(t) - 8 up to 28 days.
  virtual double resistance_caracteristique_age_etude() const;
  /// fck as it was given.
  virtual double resistance_caracteristique_28j() const;
  /// fcm(t), EN 1992-1-1 (3.1).
  virtual double resistance_moyenne_compression_age(double t) const;
  /// fcm = fck + 8.
  virtual double resistance_moyenne_compression_28j() const;
  /// Modulus between the short-term one (w = 1) and the one of loads that stay (w = 0).
  virtual double module_pondere_age_etude() const;
  virtual double resistance_moyenne_compression_age_etude() const;
  /// Exponent n of the parabola, EN 1992-1-1 table 3.1.
  virtual double degre_parabole() const;
  /// fctm(t), EN 1992-1-1 (3.4).
  virtual double resistance_moyenne_traction_age_etude() const;
  /// Drying shrinkage of a BHP at age t.
  virtual double retrait_dessication_bhp(double t, bool avec_silice) const;
  virtual void set_age_chargement(double age_chargement);
  /// Autogenous shrinkage of a BHP at age t; negative for fck under 20.
  virtual double retrait_endogene_bhp(double t) const;
  virtual void set_age_etude(double age_etude);
  virtual void set_rayon_moyen(double rayon_moyen);
  virtual void set_type_beton(int type_beton);
  virtual void set_resistance_caracteristique_28j(double fck);
  virtual void set_ponderation_lois_ct_lt(double ponderation);
  virtual void set_humidite_relative(double humidite_relative);
  virtual void set_age_fin_cure(double age_fin_cure);
  virtual void set_type_ciment(int type_ciment);
  /// fctm, EN 1992-1-1 table 3.1.
  virtual double resistance_moyenne_traction_28j() const;
  /// Autogenous and drying shrinkage of a normal concrete, EN 1992-1-1 3.1.4 (6) and annex B.2.
  virtual double deformation_retrait_beton_normal() const;
  /// Specific creep phi / (1.05 Ecm), per MPa: 1 + coefficient x modulus has no unit.
  virtual double coefficient_fluage() const;

  /// Under two days the formulas say nothing; an age that is not given is infinite.
  bool age_etude_admis() const;
};
