#pragma once

#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

#include "calculate/calculations.h"
#include "calculate/click.h"
#include "calculate/return_period.h"
#include "fuzz/input.h"
#include "report/unit_systems.h"

namespace coltre::fuzz {

/// What stands in a window before a click, and the program behind it.
struct Click {
    Fields fields;
    Program program;
};

/// Reads, a line each: number of the calculation; item of the unit selector; zone; altitude; CE; Ct; return
/// period, empty if none is confirmed; four texts, of which the calculation takes as many as it has entries.
/// @return nothing where the first three are no numbers
inline std::optional<Click> read_click(Input& input) {
    const auto row = [](double number, std::size_t count) {
        return static_cast<std::size_t>(std::fmod(std::fabs(number), static_cast<double>(count)));
    };
    const auto calculation = input.finite();
    const auto unit = input.finite();
    const auto zone = input.finite();
    if (!calculation || !unit || !zone) return std::nullopt;

    const Description& description = calculations()[row(*calculation, calculations().size())];
    Click click;
    click.fields.kind = description.kind;
    click.fields.udmcombo = unit_items[row(*unit, unit_items.size())];
    click.program.cells.zone = static_cast<SnowZone>(std::fmod(*zone, 4));
    click.fields.asinput = input.line();
    click.fields.ComboEsp = input.line();
    click.fields.TextCTermico = input.line();
    const std::string_view return_period = input.line();
    if (!return_period.empty()) confirm_return_period(return_period, click.program.cells);
    for (int i = 0; i < 4; ++i)
        click.fields.entries.emplace_back(input.line());
    click.fields.entries.resize(description.entries.size());
    return click;
}

}  // namespace coltre::fuzz
