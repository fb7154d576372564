#include "site/ScriviAltitudini_cond.h"

#include <string>

#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"

namespace coltre {

bool WriteAltitudeFile(std::string_view ProgramDirectory, Doors doors) {
    if (replace_altitude_file(ProgramDirectory, built_in_altitude_file()).empty()) return true;
    doors.message_boxes.show(
        {Icon::error, std::string(program_title), "Errore di scrittura del file altitudini.txt ."});
    doors.program_end.end();
    return false;
}

}  // namespace coltre
