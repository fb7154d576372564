#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace coltre {

/// One unit conversion command of the directive language.
struct UnitCommand {
    std::string_view command;    ///< as written in directive strings, "(cu_m_cm)"; letter case plays no part
    double multiplier;           ///< turns a value of the first unit into one of the second
    std::int16_t decimal_shift;  ///< added to the decimals of a "(dv_nn)": about -log10 of the multiplier
};

/// All unit commands in their order: lengths, areas, volumes, forces, moments, distributed loads, speeds,
/// pressures, specific weights, thermal conductivity.
std::span<const UnitCommand> unit_table();

/// The row whose command stands in the directive string; of several the first in the order of the table.
/// @return nullptr if there is none
const UnitCommand* find_unit_command(std::string_view directives);

}  // namespace coltre
