#pragma once

#include <span>

#include "engine/calculation.h"

// Which result label of the main window shows which cell. Always in kN and m: the unit selector acts on the
// report alone.
namespace coltre {

/// A label's row of the display table.
struct DisplayRow {
    const char* label;  ///< objectName
    ResultCell cell;
    int decimals;
};

/// The labels that a completed calculation of the family refreshes, besides `caricosuolo`.
std::span<const DisplayRow> display_rows(RoofFamily family);

/// Decimals of a load per area in the labels.
inline constexpr int load_decimals = 4;

}  // namespace coltre
