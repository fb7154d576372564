#pragma once

#include <string_view>

#include "platform/messages.h"

namespace coltre {

/// Writes altitudini.txt anew from the built-in table, in one step. What it replaces is kept, see
/// replace_altitude_file(). On any failure to create or to write it the user is told and the program must
/// end; the old file then is as it was.
/// @param ProgramDirectory  in the suite's notation
/// @return false if the program must end
bool WriteAltitudeFile(std::string_view ProgramDirectory, Messages& messages);

}  // namespace coltre
