#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "engine/program_cells.h"

// The unit systems that a report can be written in. Calculations and windows always use kN and m.
namespace coltre {

/// Items of the unit selectors, in their order; item i is unit system i + 1. "Kgf" is capital in the second
/// alone.
inline constexpr std::array<std::string_view, 3> unit_items{"kN , m", "Kgf , m", "kgf , cm"};

/// Unit system of a selector's text, compared exactly; nothing for any other text.
std::optional<UnitSystem> unit_system_of(std::string_view item);

/// Conversion directives that the report appends to its format directives; empty where kN and m stay.
struct ConversionDirectives {
    std::string_view area_load;
    std::string_view line_load;
};

/// Directives of a unit system; any code but 2 and 3 leaves everything in kN and m.
ConversionDirectives conversion_directives(UnitSystem unit_system);

/// What the report's heading says of the units. Any code but 1 and 2 says kgf and cm: deliberate.
std::string_view unit_heading(UnitSystem unit_system);

}  // namespace coltre
