#pragma once
// Which actions a phase, and a limit state, must hold and may not mix. The first rule that is broken speaks.
//
// Prestress by post-tension acts on a section that carries its permanent loads already: GP, or G with P. By
// pre-tension it acts before every load: P, then GQ, or G with Q. Without prestress: G, Q and GQ.

#include <array>

#include "Litteral.hpp"
#include "Zof_Types_Effort.hpp"

namespace regles_cloture {

using namespace socle::litteraux;
using pr = zof_presence;
using rg = zof_regime;

constexpr bool loc_post(const rg& r) { return r.precontrainte && r.postendue; }
constexpr bool loc_pre(const rg& r) { return r.precontrainte && !r.postendue; }

/// End of a phase that another one follows.
inline constexpr std::array<zof_regle_cloture, 11> phase = {{
    {[](const pr& p, const rg&) { return !p.g && !p.p; }, "Aucun Effort de type G ou P defini"},
    {[](const pr& p, const rg& r) { return loc_post(r) && p.gq; },
     "Effort de type GQ interdit en post-tension"},
    {[](const pr& p, const rg& r) { return loc_post(r) && p.gp && p.p_seul; },
     "Section prï¿½contrainte : melange GP et P interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_post(r) && p.gp && p.g_seul; },
     "Section prï¿½contrainte : melange GP et G interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_post(r) && p.p_seul && !p.g_seul; },
     "Section prï¿½contrainte par postension phasee : P sans G interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_pre(r) && p.gp; }, "Effort de type GP interdit en pretension"},
    {[](const pr& p, const rg& r) { return loc_pre(r) && p.gq; }, "Effort de type GQ interdit en pretension"},
    {[](const pr& p, const rg& r) { return loc_pre(r) && p.gq && p.q_seul; },
     "Section prï¿½contrainte : melange GQ et Q interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_pre(r) && p.gq && p.g_seul; },
     "Section prï¿½contrainte : melange GQ et G interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_pre(r) && p.g && p.p; },
     "Presence simultanee de G et P interdite en pretension phasee"},
    {[](const pr& p, const rg& r) { return !r.precontrainte && p.gq; },
     "Section BA : GQ interdit en mode phasage"},
}};

/// End of a limit state; with phases these are the checks of the last one.
inline constexpr std::array<zof_regle_cloture, 14> etat_limite = {{
    {[](const pr& p, const rg&) { return !p.g && !p.p; }, "Aucun Effort de type G ou P dï¿½fini"_l1},
    {[](const pr& p, const rg& r) { return loc_post(r) && p.gq; },
     "Effort de type GQ interdit en post-tension"},
    {[](const pr& p, const rg& r) { return loc_post(r) && p.gp && p.p_seul; },
     "Section prï¿½contrainte  : melange GP et P interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_post(r) && p.gp && p.g_seul; },
     "Section prï¿½contrainte  : melange GP et G interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_post(r) && r.phasee && p.p_seul && !p.g_seul; },
     "Section prï¿½contrainte par postension phasee : P sans G interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_pre(r) && p.gp; }, "Effort de type GP interdit en pretension"},
    {[](const pr& p, const rg& r) { return loc_pre(r) && r.phasee && p.gq; },
     "Effort de type GQ interdit en pretension phasee"},
    {[](const pr& p, const rg& r) { return loc_pre(r) && r.phasee && p.g && p.p; },
     "Presence simultanee de G et P interdite en pretension phasee"},
    {[](const pr& p, const rg& r) { return loc_pre(r) && p.gq && p.q_seul; },
     "Section prï¿½contrainte : melange GQ et Q interdit"_l1},
    {[](const pr& p, const rg& r) { return loc_pre(r) && p.gq && p.g_seul; },
     "Section prï¿½contrainte : melange GQ et G interdit"_l1},
    {[](const pr& p, const rg& r) { return r.precontrainte && !r.phasee && !p.g; },
     "Section prï¿½contrainte non phasee : Aucun effort de type G defini"_l1},
    {[](const pr& p, const rg& r) { return r.precontrainte && !r.phasee && !p.p; },
     "Section prï¿½contrainte non phasee : Aucun effort de type P defini"_l1},
    {[](const pr& p, const rg& r) { return !r.precontrainte && r.phasee && p.gq; },
     "Section BA : GQ interdit en mode phasage"},
    {[](const pr& p, const rg& r) { return !r.precontrainte && !r.phasee && !p.g; },
     "Section BA : Aucun effort de type G  defini"},
}};

}  // namespace regles_cloture
