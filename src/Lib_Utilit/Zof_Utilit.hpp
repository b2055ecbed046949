// The not given state of the data, and numbers as texts of messages and notes.
#pragma once

#include <cstddef>
#include <string>

#include "Non_renseigne.hpp"
#include "Texte.hpp"

/// True for anything but the sentinel of the type; a NaN counts as given.
constexpr bool est_renseigne_integer(int v) { return v != static_cast<int>(socle::non_renseigne); }
constexpr bool est_renseigne_real(float v) { return v != static_cast<float>(socle::non_renseigne); }
constexpr bool est_renseigne_double(double v) { return v != static_cast<double>(socle::non_renseigne); }
template <std::size_t N>
constexpr bool est_renseigne_chaine(const socle::texte<N>& v) {
  return !(v == socle::vue_l1("N_R"));
}

/// Texts of numbers, left-adjusted and blank padded; "Non renseigne" for a value that isn't given.
socle::texte<15> zof_chaine_numerique_double(double val);        ///< G15.5
socle::texte<15> zof_chaine_numerique_geometrique(double val);   ///< F12.4
socle::texte<15> zof_chaine_numerique_entier(int val);           ///< I10
std::string zof_chaine_numerique_entier_ajuste(int val, int n);  ///< I10, in n characters
socle::texte<15> zof_chaine_deformation(double val);             ///< E15.5
socle::texte<14> zof_chaine_flux(double val);                    ///< F12.4
