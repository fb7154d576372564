#pragma once

#include <span>

#include "engine/calculation.h"

// Which result label shows which cell. Always in kN and m: the unit selector acts on the
// report alone.
namespace coltre {

/// A label's row of the display table.
struct DisplayRow {
    const char* label;  ///< objectName
    ResultCell cell;
};

/// The labels that a completed calculation refreshes, besides `caricosuolo`.
std::span<const DisplayRow> display_rows(RoofFamily family);
std::span<const DisplayRow> display_rows(SpecialCase special_case);

}  // namespace coltre
