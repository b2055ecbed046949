#pragma once
// Pieces of the notes that several analyses write alike.

#include "QB7_Types.hpp"

/// Bullets of a strain plane, in the list that is open.
void zof_editer_plan(const deformation& plan);
