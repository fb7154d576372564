#include "cli/altitude_commands.h"

#include <string>

#include "cli/command.h"
#include "platform/files.h"
#include "site/altitude_check.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"

namespace coltre::cli {

namespace {

/// The file as the system writes its path.
std::string shown_path(std::string_view directory) {
    return path_text(find_path(altitude_file_name(suite_notation(to_path(directory)))));
}

int complain(std::ostream& err, std::string_view what, std::string_view directory, std::string_view reason) {
    err << "Impossibile " << what << " il file " << shown_path(directory) << ": " << reason << ".\n";
    return failed;
}

/// What became of an earlier file that was replaced.
std::string kept(const std::string& name) {
    return name.empty() ? "" : "; il precedente è conservato come " + name;
}

void list(std::ostream& out, const std::vector<AltitudeFault>& faults) {
    for (const AltitudeFault& fault : faults)
        out << text_of(fault) << '\n';
}

}  // namespace

int write_command(std::string_view directory, std::ostream& out, std::ostream& err) {
    const TableReplacement replaced =
        replace_altitude_file(suite_notation(to_path(directory)), built_in_altitude_file());
    if (replaced.failure) return complain(err, "scrivere", directory, *replaced.failure);
    if (replaced.is_new) {
        out << "Scritto il file " << shown_path(directory) << kept(replaced.kept_name) << ".\n";
    } else {
        out << "Il file " << shown_path(directory) << " era già uguale alla tabella del programma.\n";
    }
    return all_well;
}

int check_command(std::string_view directory, std::ostream& out, std::ostream& err) {
    const AltitudeFileCheck check = check_altitude_file(suite_notation(to_path(directory)));
    if (check.failure) return complain(err, "leggere", directory, *check.failure);
    list(out, check.faults);
    if (!check.faults.empty()) return failed;
    out << "Nessun difetto nel file " << shown_path(directory) << ".\n";
    return all_well;
}

int repair_command(std::string_view directory, std::ostream& out, std::ostream& err) {
    const AltitudeFileCheck check = repair_altitude_file(suite_notation(to_path(directory)));
    if (check.failure) return complain(err, "riparare", directory, *check.failure);
    if (check.faults.empty()) {
        out << "Nessun difetto nel file " << shown_path(directory) << ".\n";
        return all_well;
    }
    list(out, check.faults);
    out << "Riparato il file " << shown_path(directory) << kept(check.kept_name) << ".\n";
    return all_well;
}

}  // namespace coltre::cli
