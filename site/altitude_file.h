#pragma once

#include <string>
#include <string_view>

namespace coltre {

/// The name of the altitude file, in the suite's notation.
std::string altitude_file_name(std::string_view ProgramDirectory);

/// Puts these bytes in the place of altitudini.txt in one step. A different file that was there is kept as
/// altitudini.bak, and a different altitudini.bak as the first free of altitudini.bak1, .bak2 and so on: an
/// engineer's own altitudes are never lost. If the file holds these bytes already it is left alone, but not
/// being able to write beside it is a failure all the same.
/// @return why it failed, in Italian, with the old file as it was; empty when all went well
std::string replace_altitude_file(std::string_view ProgramDirectory, std::string_view bytes);

}  // namespace coltre
