// The loadings as the analyses see them: their records, and the lists of weighted load cases.

#include <algorithm>
#include <array>
#include <optional>

#include "Zof_Classe_Nom.hpp"
#include "Zof_Erreurs.hpp"
#include "Zof_Gestion_Section.hpp"
#include "Zof_Gestion_Sollicitations.hpp"
#include "Zof_Lecture_Sollicitations.hpp"

using namespace socle;

namespace {

zof_sollicitations* loc_chercher(const texte<32>& nom_section, const texte<32>& nom_sollicitations) {
  const uef_vector& liste = gestion_sollicitations.zof_mod_les_sollicitations;
  const texte<65> clef = concat({nom_section.utile(), "_", nom_sollicitations.utile()});
  for (int i = 1; i <= liste.nombre(); ++i) {
    auto& s = zof_element<zof_sollicitations>(liste, i);
    // The key of (A_B, C) is that of (A, B_C): the section tells them apart.
    if (s.m_nom_section_sollicitations == clef && s.m_nom_section == nom_section) return &s;
  }
  return nullptr;
}

const zof_efforts_etat_limite& loc_enregistrement(const texte<32>& nom_section,
                                                  const texte<32>& nom_sollicitations, int no_etat_limite) {
  const uef_vector& liste =
      zof_get_pt_sollicitations(nom_section, nom_sollicitations).m_les_efforts_etat_limite;
  zof_assert(no_etat_limite >= 1 && no_etat_limite <= liste.nombre(),
             "Zof_Get_efforts_etat_limite_sollicitations : Cas impossible 1");
  return zof_element<zof_efforts_etat_limite>(liste, no_etat_limite);
}

const zof_phase& loc_phase(const texte<32>& nom_section, const texte<32>& nom_sollicitations,
                           int no_etat_limite, int no_phase) {
  const uef_vector& phases = loc_enregistrement(nom_section, nom_sollicitations, no_etat_limite).m_les_phases;
  zof_assert(no_phase >= 1 && no_phase <= phases.nombre(), "Zof_Get_phase_sollicitation : Cas impossible 1");
  return zof_element<zof_phase>(phases, no_phase);
}

/// The efforts of one action in one phase, each taken with one factor or with two.
struct action {
  std::vector<const zof_effort*> les_efforts;
  zof_ponderation ponderation;

  int nb_efforts() const { return static_cast<int>(les_efforts.size()); }
  int nb_cas() const { return ponderation.defavorable == ponderation.favorable ? 1 : 2; }
  double facteur(int cas) const { return cas == 0 ? ponderation.defavorable : ponderation.favorable; }
  std::string_view suffixe(int cas) const {
    if (nb_cas() == 1) return "";
    return cas == 0 ? "_max" : "_min";
  }
};

/// Reads the actions of one phase of one record.
class selection {
 public:
  selection(const texte<32>& nom_section, const texte<32>& nom_sollicitations, int no_etat_limite,
            int no_phase)
      : sollicitations_(zof_get_pt_sollicitations(nom_section, nom_sollicitations)),
        enregistrement_(loc_enregistrement(nom_section, nom_sollicitations, no_etat_limite)),
        no_phase_(no_phase) {
    zof_assert(no_phase >= 1 && no_phase <= enregistrement_.m_les_phases.nombre(),
               "Zof_Get_efforts_etat_limite_sollicitations : Cas impossible 2");
  }

  action de_label(vue_l1 label) const {
    action a;
    for (const zof_effort& effort : uef_parcours<zof_effort>(enregistrement_.m_les_efforts))
      if (effort.m_numero_phase == no_phase_ && effort.m_label_effort == label)
        a.les_efforts.push_back(&effort);
    return a;
  }
  action ponderee(vue_l1 label) const {
    action a = de_label(label);
    if (!enregistrement_.m_etat_limite_pondere)
      a.ponderation = zof_get_ponderation_efforts(sollicitations_, enregistrement_.m_label_etat_limite,
                                                  enregistrement_.m_label_situation, label);
    return a;
  }
  /// " - " limit state "-" situation: the end of every title.
  std::string fin_de_titre() const {
    return concat(
        {" - ", enregistrement_.m_label_etat_limite.utile(), "-", enregistrement_.m_label_situation.utile()});
  }

 private:
  const zof_sollicitations& sollicitations_;
  const zof_efforts_etat_limite& enregistrement_;
  int no_phase_;
};

/// The efforts of an action as they are.
void loc_ajouter_tels_quels(const action& a, std::vector<zof_effort>& cas) {
  for (const zof_effort* effort : a.les_efforts) cas.push_back(*effort);
}

/// A case without tensions from the effort that gives it its section and its phase.
zof_effort& loc_nouveau_cas(const zof_effort& source, std::string_view label, std::vector<zof_effort>& cas) {
  zof_effort& nouveau = cas.emplace_back();
  nouveau.m_nom_section = source.m_nom_section;
  nouveau.m_label_effort = label;
  nouveau.m_nom_zone_repere_brut = source.m_nom_zone_repere_brut;
  nouveau.m_pt_phase_courante = source.m_pt_phase_courante;
  nouveau.m_numero_phase = source.m_numero_phase;
  return nouveau;
}

void loc_copier_tensions(const zof_effort& source, double facteur, zof_effort& cas) {
  for (zof_tension tension : uef_parcours<zof_tension>(source.m_les_tensions)) {
    tension.m_tension *= facteur;
    cas.m_les_tensions.ajouter(tension);
  }
}

/// Each effort of one action with each of its factors, alone.
void loc_ajouter_seule(const action& a, std::string_view label, std::string_view fin,
                       std::vector<zof_effort>& cas) {
  for (const zof_effort* effort : a.les_efforts)
    for (int i = 0; i < a.nb_cas(); ++i) {
      zof_effort& nouveau = loc_nouveau_cas(*effort, label, cas);
      nouveau.set_efforts(a.facteur(i) * effort->get_efforts());
      nouveau.m_titre = concat({effort->m_titre.utile(), a.suffixe(i), fin});
      loc_copier_tensions(*effort, a.facteur(i), nouveau);
    }
}

/// Each case of G with each case of Q or P.
void loc_ajouter_combinaisons(const action& g, const action& autre, std::string_view label,
                              std::string_view fin, std::vector<zof_effort>& cas) {
  for (const zof_effort* effort_g : g.les_efforts)
    for (int i = 0; i < g.nb_cas(); ++i)
      for (const zof_effort* effort : autre.les_efforts)
        for (int j = 0; j < autre.nb_cas(); ++j) {
          zof_effort& nouveau = loc_nouveau_cas(*effort_g, label, cas);
          nouveau.set_efforts(g.facteur(i) * effort_g->get_efforts() +
                              autre.facteur(j) * effort->get_efforts());
          nouveau.m_titre = concat({effort_g->m_titre.utile(), g.suffixe(i), " + ", effort->m_titre.utile(),
                                    autre.suffixe(j), fin});
          loc_copier_tensions(*effort, autre.facteur(j), nouveau);
        }
}

/// G where no Q stands: once per factor of Q, which change nothing.
void loc_ajouter_g_sans_q(const action& g, int nb_cas_q, std::string_view fin, std::vector<zof_effort>& cas) {
  for (const zof_effort* effort : g.les_efforts)
    for (int i = 0; i < g.nb_cas(); ++i)
      for (int j = 0; j < nb_cas_q; ++j) {
        zof_effort& nouveau = loc_nouveau_cas(*effort, "GQ", cas);
        nouveau.set_efforts(g.facteur(i) * effort->get_efforts());
        nouveau.m_titre = concat({effort->m_titre.utile(), g.suffixe(i), fin});
      }
}

int loc_nb_cas_gq(const action& gq, const action& g, const action& q) {
  return gq.nb_efforts() + g.nb_efforts() * std::max(q.nb_efforts(), 1) * g.nb_cas() * q.nb_cas();
}

int loc_nb_cas_gp(const action& gp, const action& g, const action& p) {
  if (g.nb_efforts() > 0 && p.nb_efforts() > 0)
    return gp.nb_efforts() + g.nb_efforts() * p.nb_efforts() * g.nb_cas() * p.nb_cas();
  if (g.nb_efforts() > 0) return gp.nb_efforts() + g.nb_efforts() * g.nb_cas();
  return gp.nb_efforts() + p.nb_efforts() * p.nb_cas();
}

}  // namespace

bool zof_existe_sollicitations(const texte<32>& nom_section, const texte<32>& nom_sollicitations) {
  return loc_chercher(nom_section, nom_sollicitations) != nullptr;
}

zof_sollicitations& zof_get_pt_sollicitations(const texte<32>& nom_section,
                                              const texte<32>& nom_sollicitations) {
  zof_sollicitations* const s = loc_chercher(nom_section, nom_sollicitations);
  zof_assert(s != nullptr, "Zof_Get_pt_sollicitations : Cas impossible 1");
  return *s;
}

bool zof_est_precontrainte_iso_incluse(const texte<32>& nom_section, const texte<32>& nom_sollicitations) {
  return zof_get_pt_sollicitations(nom_section, nom_sollicitations).m_est_precontrainte_iso_incluse;
}

int zof_get_nb_etats_limites_sollicitations(const texte<32>& nom_section,
                                            const texte<32>& nom_sollicitations) {
  return zof_get_pt_sollicitations(nom_section, nom_sollicitations).m_les_efforts_etat_limite.nombre();
}

zof_situation_sollicitations zof_get_situation_sollicitations(const texte<32>& nom_section,
                                                              const texte<32>& nom_sollicitations,
                                                              int no_etat_limite) {
  const zof_efforts_etat_limite& e = loc_enregistrement(nom_section, nom_sollicitations, no_etat_limite);
  return {e.m_label_situation, e.m_label_etat_limite, e.m_les_phases.nombre()};
}

bool zof_est_etat_limite_pondere(const texte<32>& nom_section, const texte<32>& nom_sollicitations,
                                 int no_etat_limite) {
  return loc_enregistrement(nom_section, nom_sollicitations, no_etat_limite).m_etat_limite_pondere;
}

texte<80> zof_get_titre_phase_sollicitation(const texte<32>& nom_section, const texte<32>& nom_sollicitations,
                                            int no_etat_limite, int no_phase) {
  return loc_phase(nom_section, nom_sollicitations, no_etat_limite, no_phase).m_le_titre_phase;
}

std::vector<texte<32>> zof_get_zones_actives_phase_sollicitation(const texte<32>& nom_section,
                                                                 const texte<32>& nom_sollicitations,
                                                                 int no_etat_limite, int no_phase) {
  std::vector<texte<32>> noms;
  const zof_phase& phase = loc_phase(nom_section, nom_sollicitations, no_etat_limite, no_phase);
  for (const zof_nom& nom : uef_parcours<zof_nom>(phase.m_les_noms_zones_actives)) noms.push_back(nom.m_nom);
  return noms;
}

zof_ponderation zof_get_ponderation_efforts(const zof_sollicitations& sollicitations,
                                            const texte<32>& label_etat_limite,
                                            const texte<32>& label_situation, vue_l1 label_effort) {
  const auto facteur = [&](vue_l1 rang) {
    const std::string clef = concat({label_effort, rang});
    if (sollicitations.m_est_ponderation_surchargee) {
      const double surcharge = zof_get_ponderation_efforts_surcharges(
          sollicitations.m_ponderations_gpq12, label_etat_limite, label_situation, clef);
      if (est_renseigne_double(surcharge)) return surcharge;
    }
    return zof_get_ponderation_efforts_defaut(label_etat_limite, label_situation, clef);
  };
  return {facteur("1"), facteur("2")};
}

int zof_get_nb_efforts_etat_limite_sollicitations(const texte<32>& nom_section,
                                                  const texte<32>& nom_sollicitations, int no_etat_limite,
                                                  vue_l1 label_effort, int opt_no_phase) {
  return selection(nom_section, nom_sollicitations, no_etat_limite, opt_no_phase)
      .de_label(label_effort)
      .nb_efforts();
}

std::vector<zof_effort> zof_get_efforts_etat_limite_sollicitations(const texte<32>& nom_section,
                                                                   const texte<32>& nom_sollicitations,
                                                                   int no_etat_limite, vue_l1 label_effort,
                                                                   int opt_no_phase) {
  const action a =
      selection(nom_section, nom_sollicitations, no_etat_limite, opt_no_phase).de_label(label_effort);
  std::vector<zof_effort> cas;
  cas.reserve(a.les_efforts.size());
  loc_ajouter_tels_quels(a, cas);
  return cas;
}

int zof_get_nb_efforts_etat_limite_sollicitations_ponderes(const texte<32>& nom_section,
                                                           const texte<32>& nom_sollicitations,
                                                           int no_etat_limite, vue_l1 label_effort,
                                                           int opt_no_phase) {
  const action a =
      selection(nom_section, nom_sollicitations, no_etat_limite, opt_no_phase).ponderee(label_effort);
  return a.nb_efforts() * a.nb_cas();
}

std::vector<zof_effort> zof_get_efforts_etat_limite_sollicitations_ponderes(
    const texte<32>& nom_section, const texte<32>& nom_sollicitations, int no_etat_limite,
    vue_l1 label_effort, int opt_no_phase) {
  const selection s(nom_section, nom_sollicitations, no_etat_limite, opt_no_phase);
  const action a = s.ponderee(label_effort);
  std::vector<zof_effort> cas;
  cas.reserve(a.les_efforts.size() * static_cast<std::size_t>(a.nb_cas()));
  loc_ajouter_seule(a, label_effort.octets(), s.fin_de_titre(), cas);
  return cas;
}

int zof_get_nb_efforts_etat_limite_sollicitations_gq(const texte<32>& nom_section,
                                                     const texte<32>& nom_sollicitations, int no_etat_limite,
                                                     int opt_no_phase) {
  const selection s(nom_section, nom_sollicitations, no_etat_limite, opt_no_phase);
  return loc_nb_cas_gq(s.de_label("GQ"), s.ponderee("G"), s.ponderee("Q"));
}

std::vector<zof_effort> zof_get_efforts_etat_limite_sollicitations_gq(const texte<32>& nom_section,
                                                                      const texte<32>& nom_sollicitations,
                                                                      int no_etat_limite, int opt_no_phase) {
  const selection s(nom_section, nom_sollicitations, no_etat_limite, opt_no_phase);
  const action gq = s.de_label("GQ");
  const action g = s.ponderee("G");
  const action q = s.ponderee("Q");
  zof_assert(gq.nb_efforts() + g.nb_efforts() > 0,
             "Zof_Get_efforts_etat_limite_sollicitations_GQ : Cas impossible");
  const std::string fin = s.fin_de_titre();
  std::vector<zof_effort> cas;
  cas.reserve(static_cast<std::size_t>(loc_nb_cas_gq(gq, g, q)));
  loc_ajouter_tels_quels(gq, cas);
  if (q.nb_efforts() > 0)
    loc_ajouter_combinaisons(g, q, "GQ", fin, cas);
  else
    loc_ajouter_g_sans_q(g, q.nb_cas(), fin, cas);
  return cas;
}

int zof_get_nb_efforts_etat_limite_sollicitations_gp(const texte<32>& nom_section,
                                                     const texte<32>& nom_sollicitations, int no_etat_limite,
                                                     int opt_no_phase) {
  const selection s(nom_section, nom_sollicitations, no_etat_limite, opt_no_phase);
  return loc_nb_cas_gp(s.de_label("GP"), s.ponderee("G"), s.ponderee("P"));
}

std::vector<zof_effort> zof_get_efforts_etat_limite_sollicitations_gp(const texte<32>& nom_section,
                                                                      const texte<32>& nom_sollicitations,
                                                                      int no_etat_limite, int opt_no_phase) {
  const selection s(nom_section, nom_sollicitations, no_etat_limite, opt_no_phase);
  const action gp = s.de_label("GP");
  const action g = s.ponderee("G");
  const action p = s.ponderee("P");
  zof_assert(gp.nb_efforts() + g.nb_efforts() + p.nb_efforts() > 0,
             " Zof_Get_efforts_etat_limite_sollicitations_GP : cas impossible 1");
  zof_assert(gp.nb_efforts() == 0 || g.nb_efforts() + p.nb_efforts() == 0,
             " Zof_Get_efforts_etat_limite_sollicitations_GP : cas impossible 2");
  const std::string fin = s.fin_de_titre();
  std::vector<zof_effort> cas;
  cas.reserve(static_cast<std::size_t>(loc_nb_cas_gp(gp, g, p)));
  loc_ajouter_tels_quels(gp, cas);
  if (g.nb_efforts() > 0 && p.nb_efforts() > 0)
    loc_ajouter_combinaisons(g, p, "GP", fin, cas);
  else if (g.nb_efforts() > 0)
    loc_ajouter_seule(g, "G", fin, cas);
  else
    loc_ajouter_seule(p, "P", fin, cas);
  return cas;
}

std::vector<texte<32>> zof_get_noms_cables_effort_p(const zof_effort& effort) {
  std::vector<texte<32>> noms;
  for (const zof_tension& tension : uef_parcours<zof_tension>(effort.m_les_tensions))
    noms.push_back(tension.m_nom_precontrainte);
  return noms;
}

std::vector<int> zof_get_zones_cables_effort_p(const zof_effort& effort) {
  std::vector<int> zones;
  for (const zof_tension& tension : uef_parcours<zof_tension>(effort.m_les_tensions))
    zones.push_back(zof_get_numero_qb7_cable_section(effort.m_nom_section, tension.m_nom_precontrainte,
                                                     tension.m_numero_point));
  return zones;
}

std::vector<double> zof_get_rhos_effort_p(const zof_effort& effort) {
  std::vector<double> rhos;
  for (const zof_tension& tension : uef_parcours<zof_tension>(effort.m_les_tensions))
    rhos.push_back(tension.m_rho);
  return rhos;
}

std::vector<double> zof_get_tensions_effort_p(const zof_effort& effort) {
  std::vector<double> tensions;
  for (const zof_tension& tension : uef_parcours<zof_tension>(effort.m_les_tensions))
    tensions.push_back(tension.m_tension);
  return tensions;
}
