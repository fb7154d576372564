#pragma once

#include "engine/program_cells.h"

// Roof shape coefficients as functions of the pitch. The cylindrical roof's mu3 is no function of the pitch:
// it is computed with its load cases (roof_loads). Source: circular of 4 July 1996.
namespace coltre {

/// Sets the mu1 cell: 0.8 up to 30 degrees, falling in a straight line to 0 at 60, 0 above.
/// @param alfa  pitch, degrees; a negative one leaves the cell as it was: deliberate, no error
inline void mu1(ProgramCells& cells, double alfa) {
    if (alfa >= 0 && alfa <= 30) {
        cells.mu1 = 0.8;
    } else if (alfa > 30 && alfa <= 60) {
        cells.mu1 = (60 - alfa) * 0.8 / 30;
    } else if (alfa > 60) {
        cells.mu1 = 0;
    }
}

/// Sets the mu2 cell: rising from 0.8 at 0 to 1.6 at 30 degrees, 1.6 up to 60, 0 above.
/// @param alfa  pitch, degrees; a negative one leaves the cell as it was: deliberate, no error
inline void mu2(ProgramCells& cells, double alfa) {
    if (alfa >= 0 && alfa <= 30) {
        cells.mu2 = 0.8 / 30 * alfa + 0.8;
    } else if (alfa > 30 && alfa <= 60) {
        cells.mu2 = 1.6;
    } else if (alfa > 60) {
        cells.mu2 = 0;
    }
}

}  // namespace coltre
