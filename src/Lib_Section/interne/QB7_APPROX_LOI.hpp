// Piecewise affine approximation of a law, for creep: where a past stress is affine in the strain, it is
// affine over a region of the section too, and so is the creep strain that it leaves behind.
#pragma once

#include "QB7_GBD_LOI.hpp"
#include "QB7_Types.hpp"

/// The law by chords: on each, the integral over the strain of what the law has more than the chord is at
/// most 1e-5 (stress times strain, in the client's unit). A chord begins where the one before ends, so that
/// the approximation jumps only where the law does; a law of degree 1 at most is copied. The first and the
/// last piece go on without end: a law without limit on that side must be affine there. The approximation
/// keeps the keys of the law; it has no limits of its own and is in no list. ERR_NON_AFF_BORNES (interval);
/// ERR_CALC_APPROX: more than 1000 pieces, and the console is told; ERR_LOI_APPROX: nothing but intervals
/// shorter than 1e-5.
ier_2 creation_loi_approximation_aff_par_mor(const gbd_loi& loi_approximee, gbd_loi& loi_approximante);
