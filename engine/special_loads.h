#pragma once

#include <functional>

#include "engine/run.h"

// Special load cases: abrupt change of roof level, drift against a wall, force on snow guards. The ground
// load G is that of the qsk cell.
// Source: circular of 4 July 1996, C.6.4 to C.6.6.
namespace coltre {

/// mu2 = (b1 + b2) / 2h, at most 2h / G, between 0.8 and 4.0; ls = 2h between 5 and 15 m. A drift that
/// reaches the end of the lower roof is cut there: qs1 grows to the load there, ls becomes b2.
template <typename Number>
void level_change(Run<Number>& run, const Entries& entries);

/// mu2 = 2h / G between 0.8 and 2.0; ls = 2h between 5 and 15 m, never cut.
template <typename Number>
void wall(Run<Number>& run, const Entries& entries);

/// Fs = qs b sin(alfa); the ground load plays no part.
template <typename Number>
void snow_guard(Run<Number>& run, const Entries& entries);

/// Length of a drift, m: twice the height of the step or wall, between 5 and 15 m.
/// @param h      m
/// @param named  what takes the length before its limits, and gives it back
template <typename Number, typename Named = std::identity>
Number drift_length(const Number& h, Named named = {}) {
    return clamp(Number(named(2 * h)), in_words(Number(5), "limite inferiore 5 m"),
                 in_words(Number(15), "limite superiore 15 m"));
}

/// Whether the drift of a level change reaches the end of the lower roof, or just ends there, and is cut.
/// @param ls  drift length, m   @param b2  width of the lower roof, m
template <typename Number>
auto drift_is_cut(const Number& ls, const Number& b2) {
    return ls >= b2;
}

}  // namespace coltre
