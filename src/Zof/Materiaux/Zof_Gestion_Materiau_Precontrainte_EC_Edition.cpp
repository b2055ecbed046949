// The report of a prestressing steel.
#include <array>

#include "Arithmetique.hpp"
#include "Zof_Gestion_Materiau_Edition.hpp"
#include "Zof_Gestion_Materiau_Precontrainte_EC.hpp"

namespace {

constexpr std::array<std::string_view, 3> produits = {"TORO", "FIL", "BARR"};

}  // namespace

void zof_editer_materiau_precontrainte_ec(const zof_materiau_precontrainte_ec& m, bool& erco) {
  zof_editer_titre_materiau(m);
  zof_editer_puces({
      zof_ligne_double("Fp0.1k       : ", m.m_fp0_1k),
      zof_ligne_double("Fpk          : ", m.m_fpk),
      {"Type         : ", std::string(produits[socle::indice(m.m_type_precontrainte)])},
  });
  zof_editer_situations(m, erco);
}

void zof_editer_situation_precontrainte_ec(const zof_situation_precontrainte_ec& s, bool&) {
  zof_editer_titre_situation(s);
  zof_editer_puces(zof_lignes_situation_acier(
      s, {},
      {zof_ligne_double("Sigma_lim_traction_PP_ELU           : ", s.m_sigma_lim_traction_pp_elu),
       zof_ligne_double("Sigma_lim_compression_PP_ELU        : ", s.m_sigma_lim_compression_pp_elu)}));
  zof_editer_lois_situation(s);
}
