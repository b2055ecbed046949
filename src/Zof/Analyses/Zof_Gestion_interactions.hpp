#pragma once
// The INTE command: the closed curve of the forces that a section can just carry, alone and outside of any
// loading (EN 1992-1-1 6.1), drawn in the notes and tabled.
//
// One of N, My and Mz is fixed, the two others are the axes; moments about the principal axes through the
// centroid of the gross section. Forces in MN and MN.m, compression positive. Tendons count neither in
// strength nor in tension.

/// The whole command, behind the word INTE.
void zof_traiter_interactions(bool& erco);
