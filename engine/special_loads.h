#pragma once

#include "engine/calculation.h"

// Special load cases: abrupt change of roof level, drift against a wall, force on snow guards.
// Source: circular of 4 July 1996, C.6.4 to C.6.6.
namespace coltre {

/// Length of a drift, m: twice the height of the step or wall, between 5 and 15 m.
/// @param h  m
Checked drift_length(double h);

/// Whether the drift of a level change reaches the end of the lower roof, or just ends there, and is cut.
/// @param ls  drift length, m   @param b2  width of the lower roof, m
bool drift_is_cut(double ls, double b2);

/// Computes the special case from the qsk cell, which holds the design ground load G, into its result cells.
///  - level change: mu2 = (b1 + b2) / 2h, at most 2h / G, between 0.8 and 4.0; ls = 2h between 5 and 15 m. A
///    drift that reaches the end of the lower roof is cut there: qs1 grows to the load there, ls becomes b2.
///  - wall: mu2 = 2h / G between 0.8 and 2.0; ls = 2h between 5 and 15 m, never cut.
///  - snow guard: Fs = qs b sin(alfa); the ground load plays no part.
Calculation calculate_special_case(ProgramCells& cells, const SpecialCaseEntries& entries);

}  // namespace coltre
