#pragma once

#include "engine/calculation.h"

// Load cases of the four roof families.
// Source: circular of 4 July 1996.
namespace coltre {

/// Load of the snow overhanging the eaves: k qs^2 / 3 with k the smaller of 3/d and 3d, d = qs / 3.
/// 1.2 gives 0.576; 4 gives 12.
/// @param qs  roof load, kN/m2; 0 is a division by zero
/// @return kN/m
Checked qe(Checked qs);

/// Computes the roof's load cases from the qsk cell into its result cells. A roof that rises more than half
/// its width stops with Fault::incongruent_dimensions before any cell changes.
Calculation calculate_roof(ProgramCells& cells, const Roof& roof);

}  // namespace coltre
