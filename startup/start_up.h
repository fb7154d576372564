#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/messages.h"
#include "startup/program.h"

// The start of the program as far as it needs no window.
namespace coltre {

/// Items of `ComboEsp` in their order: the exposure coefficient CE.
inline constexpr std::array<std::string_view, 3> exposure_items{"0.9", "1.0", "1.1"};

/// What the main window shows when it opens. Items count from 0.
struct StartUp {
    bool goes_on = false;                ///< false: the program must end, and nothing else here counts
    std::optional<std::string> caption;  ///< of the main window; nothing: it stays as designed
    int unit_item = 0;                   ///< of `udmcombo` (unit_items)
    int exposure_item = 1;               ///< of `ComboEsp`: "1.0"
    int region_item = 15;                ///< of `regione`: "Piemonte"
};

/// Stores the command line, settles whether the suite started the program, sets the directory values, and
/// gives the return period, its factor and the zone their start values. The suite's directory check may have
/// the program end. Reads the suite's settings files
/// alone and writes nothing.
/// @param command_line   the arguments of the process as one text
/// @param own_directory  the directory that holds the program
StartUp start_up(std::string_view command_line, std::string_view own_directory, Program& program,
                 Messages& messages);

}  // namespace coltre
