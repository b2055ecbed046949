// The two iterations of a design. Both linearise around the present steel and planes, solve the linear
// programme, and step; they differ in how far they step, and in when they look at the true equilibrium.
#pragma once

#include "QB7_Dim_Probleme.hpp"

/// Whole steps, save that none removes more steel than a quarter of what the start had; the equilibria are
/// looked at once, at the end. Finds the optimum in six to ten passes where the start is good.
ier_2 dim_optimiser_1(qb7_dim_t& dim);

/// Steps that are halved until every loading is in equilibrium within its limits: it goes from one feasible
/// steel to the next, and gives up at a start that has no feasible step.
ier_2 dim_optimiser_2(qb7_dim_t& dim);
