// Frames of forces.

#include <cmath>
#include <numbers>
#include <span>
#include <vector>

#include "QB7_Sections.hpp"
#include "Zof_Classe_Nom.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"

using namespace socle;

namespace {

repere loc_repere_brut(const zof_effort& effort) {
  std::vector<texte<32>> noms;
  if (effort.m_nom_zone_repere_brut == zof_repere_brut_zones_actives) {
    for (const zof_nom& nom : uef_parcours<zof_nom>(effort.m_pt_phase_courante->m_les_noms_zones_actives))
      noms.push_back(nom.m_nom);
  } else {
    noms.push_back(effort.m_nom_zone_repere_brut);
  }
  const auto r = zof_get_repere_brut_section(effort.m_nom_section, noms);
  return zof_repere(r.y, r.z, r.alpha);
}

repere loc_repere_cible(const texte<32>& nom_section) {
  switch (gestion_sollicitations.zof_mod_type_repere) {
    case type_repere_geometrique: return {};
    case type_repere_defini: return gestion_sollicitations.zof_mod_repere_defini;
    case type_repere_brut: {
      const auto r = zof_get_repere_brut_section(nom_section);
      return zof_repere(r.y, r.z, r.alpha);
    }
    default: zof_assert(false, " Zof_Calcul_efforts_en_repere_sollicitations: cas impossible"); return {};
  }
}

}  // namespace

repere zof_repere(double y, double z, double alpha) {
  return {y, z, alpha, std::cos(alpha), std::sin(alpha)};
}

repere zof_repere_degres(double y, double z, double angle_deg) {
  return zof_repere(y, z, std::numbers::pi / 2 * angle_deg / 90);
}

efforts zof_efforts_ancien_repere(const repere& r, const efforts& f) {
  const double my = f.my * r.cosal - f.mz * r.sinal;
  const double mz = f.my * r.sinal + f.mz * r.cosal;
  return {f.n, f.n * r.z_rep + my, mz - f.n * r.y_rep};
}

efforts zof_efforts_nouveau_repere(const repere& r, const efforts& f) {
  const double my = f.my - f.n * r.z_rep;
  const double mz = f.n * r.y_rep + f.mz;
  return {f.n, mz * r.sinal + my * r.cosal, mz * r.cosal - my * r.sinal};
}

void zof_calcul_efforts_en_repere_sollicitations(zof_effort& effort) {
  const repere cible = loc_repere_cible(effort.m_nom_section);
  const efforts base = zof_efforts_ancien_repere(loc_repere_brut(effort), effort.get_efforts());
  effort.set_efforts(zof_efforts_nouveau_repere(cible, base));
}

repere zof_get_repere_chargement_sollicitations(const texte<32>& nom_section,
                                                const texte<32>& nom_sollicitations) {
  const zof_sollicitations& s = zof_get_pt_sollicitations(nom_section, nom_sollicitations);
  if (s.m_type_repere == type_repere_geometrique) return {};
  if (s.m_type_repere == type_repere_defini) return zof_repere_degres(s.m_y, s.m_z, s.m_alpha);
  caracteristiques_mecaniques c;
  (void)qb7_caracteristiques_mecaniques(zof_get_numero_qb7_section(nom_section), qb7_etat_mecanique, c);
  return zof_repere(c.yg, c.zg, c.alpha);
}
