// Values that the section engine and its clients share: strain planes, forces, tangents, frames, status.
//
//   strain at (y, z)    e0 + ky z - kz y                        compression positive, as is stress
//   forces              N = ∫σ, My = ∫σ z, Mz = -∫σ y           the minus sign of Mz goes with that of kz
//   tangent             a1 = ∫σ', a2 = ∫σ' z, b2 = ∫σ' z², a3 = -∫σ' y, b3 = -∫σ' y z, c3 = ∫σ' y²
//
// Lengths, stresses and forces are in the client's units: the engine converts nothing.
#pragma once

#include <array>

/// Strain plane: strain at the origin, and its change per length.
struct deformation {
  double e0 = 0, ky = 0, kz = 0;

  constexpr deformation& operator+=(const deformation& d) {
    e0 += d.e0;
    ky += d.ky;
    kz += d.kz;
    return *this;
  }
  constexpr deformation& operator-=(const deformation& d) {
    e0 -= d.e0;
    ky -= d.ky;
    kz -= d.kz;
    return *this;
  }
  constexpr deformation& operator*=(double k) {
    e0 *= k;
    ky *= k;
    kz *= k;
    return *this;
  }
  friend constexpr deformation operator+(deformation a, const deformation& b) { return a += b; }
  friend constexpr deformation operator-(deformation a, const deformation& b) { return a -= b; }
  friend constexpr deformation operator*(double k, deformation d) { return d *= k; }
  friend constexpr bool operator==(const deformation&, const deformation&) = default;
};

/// Resultant forces of a section at the origin of the frame.
struct efforts {
  double n = 0, my = 0, mz = 0;

  constexpr efforts& operator+=(const efforts& f) {
    n += f.n;
    my += f.my;
    mz += f.mz;
    return *this;
  }
  constexpr efforts& operator-=(const efforts& f) {
    n -= f.n;
    my -= f.my;
    mz -= f.mz;
    return *this;
  }
  constexpr efforts& operator*=(double k) {
    n *= k;
    my *= k;
    mz *= k;
    return *this;
  }
  friend constexpr efforts operator+(efforts a, const efforts& b) { return a += b; }
  friend constexpr efforts operator-(efforts a, const efforts& b) { return a -= b; }
  friend constexpr efforts operator*(double k, efforts f) { return f *= k; }
  friend constexpr bool operator==(const efforts&, const efforts&) = default;
};

/// Tangent stiffness d(N, My, Mz) / d(e0, ky, kz): upper triangle of a symmetric matrix, by columns.
struct rigidite {
  double a1 = 0, a2 = 0, b2 = 0, a3 = 0, b3 = 0, c3 = 0;

  constexpr rigidite& operator+=(const rigidite& r) {
    a1 += r.a1;
    a2 += r.a2;
    b2 += r.b2;
    a3 += r.a3;
    b3 += r.b3;
    c3 += r.c3;
    return *this;
  }
  constexpr rigidite& operator-=(const rigidite& r) {
    a1 -= r.a1;
    a2 -= r.a2;
    b2 -= r.b2;
    a3 -= r.a3;
    b3 -= r.b3;
    c3 -= r.c3;
    return *this;
  }
  constexpr rigidite& operator*=(double k) {
    a1 *= k;
    a2 *= k;
    b2 *= k;
    a3 *= k;
    b3 *= k;
    c3 *= k;
    return *this;
  }
  friend constexpr rigidite operator*(double k, rigidite r) { return r *= k; }
  friend constexpr bool operator==(const rigidite&, const rigidite&) = default;
};

struct point_yz {
  double y = 0, z = 0;
  friend constexpr bool operator==(const point_yz&, const point_yz&) = default;
};

/// A point of the plane of an interaction diagram.
struct point_xy {
  double x = 0, y = 0;

  friend constexpr point_xy operator+(point_xy a, point_xy b) { return {a.x + b.x, a.y + b.y}; }
  friend constexpr point_xy operator-(point_xy a, point_xy b) { return {a.x - b.x, a.y - b.y}; }
  friend constexpr point_xy operator*(double k, point_xy p) { return {k * p.x, k * p.y}; }
  friend constexpr bool operator==(const point_xy&, const point_xy&) = default;
};

/// Frame of loading: origin in the section's own axes, and angle in radians with its cosine and sine.
struct repere {
  double y_rep = 0, z_rep = 0, alpha = 0, cosal = 1, sinal = 0;
  friend constexpr bool operator==(const repere&, const repere&) = default;
};

constexpr double epsilon(const deformation& d, point_yz p) { return d.e0 + d.ky * p.z - d.kz * p.y; }

constexpr double norme_2(const deformation& d) { return d.e0 * d.e0 + d.ky * d.ky + d.kz * d.kz; }
constexpr double norme_2(const efforts& f) { return f.n * f.n + f.my * f.my + f.mz * f.mz; }

using matrice_3 = std::array<std::array<double, 3>, 3>;  ///< by rows

/// A point of the section's own axes, seen in a frame of loading, and back.
constexpr point_yz vers_repere(const repere& r, point_yz p) {
  const double dy = p.y - r.y_rep;
  const double dz = p.z - r.z_rep;
  return {dy * r.cosal + dz * r.sinal, dz * r.cosal - dy * r.sinal};
}
constexpr point_yz depuis_repere(const repere& r, point_yz p) {
  return {r.y_rep + (p.y * r.cosal - p.z * r.sinal), r.z_rep + (p.y * r.sinal + p.z * r.cosal)};
}

/// Status of an engine operation: code (0 for success, else ERR_... of QB7_ERR_Erreurs.hpp) and detail,
/// usually the number of the object at fault. In a condition it is true for a failure: if (const ier_2 ier =
/// ...) return ier;
struct [[nodiscard]] ier_2 {
  int code = 0;
  int detail = 0;

  explicit constexpr operator bool() const { return code != 0; }
  friend constexpr bool operator==(const ier_2&, const ier_2&) = default;
};

// Markers. They stand in the fields of real numbers, and clients store them: the values are fixed.
inline constexpr int qb7_indefini = -33554432;   ///< number not set
inline constexpr int qb7_sans_mere = -33554430;  ///< num_zone_mere of a zone at the top
inline constexpr int qb7_sans_materiau =
    -33554428;  ///< num_materiau of a zone that is only a hole in its mother
inline constexpr int qb7_etat_mecanique = -33554416;  ///< num_etat_lim of geometric results: stress = strain
inline constexpr int qb7_etat_du_dimensionnement =
    -33554424;  ///< state of a section as it stands when a design begins; it exists during the design alone
inline constexpr double qb7_sans_borne = 33554432.0;  ///< epsilon_min or epsilon_max without limit, 2^25

/// Coefficients of 1, e, e², e³, with e the strain itself: never a strain measured from the interval's end.
using qb7_polynome = std::array<double, 4>;

// Types of a zone.
inline constexpr int qb7_zone_vide = 1000;     ///< an empty record: no zone can be created so
inline constexpr int qb7_zone_contour = 1001;  ///< closed polygon, counter-clockwise
inline constexpr int qb7_zone_sous_contour =
    1002;                                     ///< closed polygon inside its mother, with a fill coefficient
inline constexpr int qb7_zone_profil = 1003;  ///< open polyline with a thickness
inline constexpr int qb7_zone_semis = 1004;   ///< set of bars with an area per point

// What a daughter zone takes out of its mother: held by the law of the daughter.
inline constexpr int qb7_trou_encombrement = 2000;  ///< p_encombrement
inline constexpr int qb7_trou_matiere = 2001;       ///< p_matiere
inline constexpr int qb7_trou_rien = 2002;          ///< nothing
/// 1002 in a mother with a material: fill coefficient 0; 1003: p_matiere; 1004: takes and contributes
/// nothing.
inline constexpr int qb7_trou_selon_zone = 2003;

// How a zone's own strain plane combines with the section's.
inline constexpr int qb7_deform_cumulee = -1328;  ///< is added to it
inline constexpr int qb7_deform_imposee = 1328;   ///< replaces it: the zone does not follow the section

/// How the history of a cable changes the law of its material. With σ the law of the material, the zone
/// follows
///   σ'(e) = rho σ(e + epsilon_a) + (1 - rho) σ(epsilon_p) - σ(epsilon_b)
struct modif_lois {
  double rho = 1;        ///< share of the section's strain that the cable feels: 0 not bonded, 1 bonded
  double epsilon_a = 0;  ///< shift between the section's strain and the strain read on the law
  double epsilon_b = 0;  ///< strain whose stress is taken out: already counted among the loads
  double epsilon_p = 0;  ///< strain whose stress stays for the share 1 - rho
  double epsilon_m = 0;  ///< strain at the moment of tensioning
  double epsilon_z = 0;  ///< strain added only where changes of stress and limits are read
  friend constexpr bool operator==(const modif_lois&, const modif_lois&) = default;
};
