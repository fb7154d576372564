#pragma once

#include "engine/calculation.h"

// Special load cases: abrupt change of roof level, drift against a wall, force on snow guards.
// Source: circular of 4 July 1996, C.6.4 to C.6.6.
namespace coltre {

/// Computes the special case from the qsk cell, which holds the design ground load G, into its result cells,
/// and tells the observer each result, whether the drift of a level change is cut, then the complete case.
///  - level change: mu2 = (b1 + b2) / 2h, at most 2h / G, between 0.8 and 4.0; ls = 2h between 5 and 15 m. A
///  drift as
///    long as the lower roof or longer is cut at its end: qs1 grows to the load there, ls becomes b2.
///  - wall: mu2 = 2h / G between 0.8 and 2.0; ls = 2h between 5 and 15 m, never cut.
///  - snow guard: Fs = qs b sin(alfa); the ground load plays no part.
/// @param observer  nullptr if nobody listens
CalculationEnd calculate_special_case(ProgramCells& cells, const SpecialCaseEntries& entries,
                                      CalculationObserver* observer);

}  // namespace coltre
