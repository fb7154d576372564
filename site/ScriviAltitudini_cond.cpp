#include "site/ScriviAltitudini_cond.h"

#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"

namespace coltre {

bool WriteAltitudeFile(std::string_view ProgramDirectory, AltitudeNotices& notices) {
    const TableReplacement replaced = replace_altitude_file(ProgramDirectory, built_in_altitude_file());
    if (replaced.failure) {
        notices.messages.push_back(altitude_write_error());
        return false;
    }
    if (!replaced.kept_name.empty())
        notices.note =
            "Il file altitudini.txt è stato riscritto dalla tabella del programma; il precedente è "
            "conservato come " +
            replaced.kept_name + ".";
    return true;
}

Message altitude_write_error() {
    return {Icon::error, std::string(program_title), "Errore di scrittura del file altitudini.txt ."};
}

}  // namespace coltre
