#pragma once

#include <string>
#include <string_view>

#include "platform/messages.h"

namespace coltre {

/// What is to be said of altitudini.txt besides what was read from it.
struct AltitudeNotices {
    Messages messages;  ///< in message boxes, in order
    std::string note;   ///< in a line of the window, without a box; empty: nothing
};

/// Writes altitudini.txt anew from the built-in table, in one step. What it replaces is kept, see
/// replace_altitude_file(), and the note says as what. On any failure to create or to write it that is
/// reported and the program must end; the old file then is as it was.
/// @param ProgramDirectory  in the suite's notation
/// @return false if the program must end
bool WriteAltitudeFile(std::string_view ProgramDirectory, AltitudeNotices& notices);

/// What a failure to write the file says.
Message altitude_write_error();

}  // namespace coltre
