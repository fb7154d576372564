#include "site/ScriviAltitudini_cond.h"

#include <string>

#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"

namespace coltre {

bool WriteAltitudeFile(std::string_view ProgramDirectory, Messages& messages) {
    if (replace_altitude_file(ProgramDirectory, built_in_altitude_file()).empty()) return true;
    messages.push_back(
        {Icon::error, std::string(program_title), "Errore di scrittura del file altitudini.txt ."});
    return false;
}

}  // namespace coltre
