#include "ui/altitude_repair.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>

#include "platform/files.h"
#include "site/altitude_check.h"
#include "site/altitude_file.h"

namespace coltre {

namespace {

Message box(Icon icon, std::string text) {
    return {icon, std::string(program_title), std::move(text)};
}

std::string list(const std::vector<AltitudeFault>& faults) {
    std::vector<std::string> lines;
    std::ranges::transform(faults, std::back_inserter(lines), text_of);
    return lines_of_message(lines);
}

}  // namespace

void check_and_repair_altitudes(std::string_view ProgramDirectory, UserDialogs& dialogs) {
    const std::filesystem::path path = find_path(altitude_file_name(ProgramDirectory));
    const std::string file = "il file " + path_text(path);
    std::error_code unknown;
    if (!std::filesystem::exists(path, unknown) && !unknown) {
        if (!dialogs.ask(box(Icon::information, "Non c'è ancora " + file +
                                                    ".\rScriverlo dalla tabella del programma, senza i suoi "
                                                    "difetti?")))
            return;
    } else {
        const AltitudeFileCheck check = check_altitude_file(ProgramDirectory);
        if (check.failure)
            return dialogs.show(
                box(Icon::error, "Impossibile leggere " + file + ": " + *check.failure + "."));
        if (check.faults.empty())
            return dialogs.show(box(Icon::information, "Nessun difetto nel file " + path_text(path) + "."));
        if (!dialogs.ask(box(Icon::warning, "Difetti del file " + path_text(path) + ":" + list(check.faults) +
                                                "\r\rRiparare il file? Le altre righe restano come sono; il "
                                                "file attuale è conservato accanto.")))
            return;
    }
    const AltitudeFileCheck repair = repair_altitude_file(ProgramDirectory);
    if (repair.failure)
        return dialogs.show(box(Icon::error, "Impossibile riparare " + file + ": " + *repair.failure + "."));
    const std::string kept =
        repair.kept_name.empty() ? "" : " Il precedente è conservato come " + repair.kept_name + ".";
    dialogs.show(box(Icon::information, "Scritto " + file + ", senza difetti." + kept));
}

}  // namespace coltre
