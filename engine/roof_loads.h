#pragma once

#include "engine/run.h"

// Load cases of the four roof families, from the qsk cell.
// Source: circular of 4 July 1996.
namespace coltre {

template <typename Number>
void one_pitch(Run<Number>& run, const Entries& entries);

/// Each side full, then halved.
template <typename Number>
void two_pitches(Run<Number>& run, const Entries& entries);

/// The additional condition of two adjacent pitches: both sides and the valley between them, without
/// overhang.
template <typename Number>
void several_pitches(Run<Number>& run, const Entries& entries);

/// A roof that rises more than half its width stops with Fault::incongruent_dimensions before any cell
/// changes.
template <typename Number>
void cylindrical(Run<Number>& run, const Entries& entries);

/// Load of the snow overhanging the eaves: k qs^2 / 3 with k the smaller of 3/d and 3d, d = qs / 3. 1.2 gives
/// 0.576; 4 gives 12.
/// @param qs       roof load, kN/m2; 0 is a division by zero
/// @param qs_name  its result, for the symbols of d and k
/// @return kN/m
template <typename Number>
Number qe(Run<Number>& run, const Number& qs, std::string_view qs_name);

}  // namespace coltre
