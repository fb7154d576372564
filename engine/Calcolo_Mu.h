#pragma once

#include "engine/program_cells.h"

// Roof shape coefficients as functions of the pitch. The cylindrical roof's mu3 is no function of the pitch:
// it is computed with its load cases (roof_loads). Source: circular of 4 July 1996.
namespace coltre {

/// Sets the mu1 cell: 0.8 up to 30 degrees, falling in a straight line to 0 at 60, 0 above.
/// @param alfa  pitch, degrees; a negative one leaves the cell as it was: deliberate, no error
void mu1(ProgramCells& cells, double alfa);

/// Sets the mu2 cell: rising from 0.8 at 0 to 1.6 at 30 degrees, 1.6 up to 60, 0 above.
/// @param alfa  pitch, degrees; a negative one leaves the cell as it was: deliberate, no error
void mu2(ProgramCells& cells, double alfa);

}  // namespace coltre
