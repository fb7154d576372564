#include "site/altitude_file.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/files.h"

namespace coltre {

namespace {

namespace fs = std::filesystem;

bool is_there(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

/// Gives the file the first free numbered name.
/// @return why it could not be done, in Italian; empty when all went well
std::string move_aside(const fs::path& backup) {
    int number = 1;
    fs::path free_name;
    do {
        free_name = backup;
        free_name += std::to_string(number++);
    } while (is_there(free_name));
    return rename_file(backup, free_name);
}

/// Keeps the old file as altitudini.bak beside it. It stays in its place meanwhile, so that a crash finds it
/// there; only one that cannot be read is moved.
/// @param content  what the old file holds; nothing if it cannot be read
/// @return why it could not be kept, in Italian; empty when all went well
std::string keep(const fs::path& old_file, const std::optional<std::string>& content) {
    const std::string backup_name = suite_notation(old_file.parent_path()) + "\\altitudini.bak";
    const fs::path backup = find_path(backup_name);
    std::error_code error;
    // A link to the old file keeps nothing of it.
    const bool links = fs::is_symlink(fs::symlink_status(backup, error));
    if (content && !links && read_file(backup_name) == content) return {};
    if (is_there(backup)) {
        if (std::string reason = move_aside(backup); !reason.empty()) return reason;
    }
    if (!content) return rename_file(old_file, backup);
    FileReplacement copy(backup, Outlives::power_failure);
    copy.write(*content);
    copy.commit();
    return copy.reason();
}

}  // namespace

std::string altitude_file_name(std::string_view ProgramDirectory) {
    return std::string(ProgramDirectory) + "\\altitudini.txt";
}

std::string replace_altitude_file(std::string_view ProgramDirectory, std::string_view bytes) {
    const std::string name = altitude_file_name(ProgramDirectory);
    FileReplacement replacement(find_path(name), Outlives::power_failure);
    if (!replacement.good()) return replacement.reason();
    // Two programs that both keep the old file must not take each other's backups for their own.
    const DirectoryLock lock(replacement.target().parent_path());
    const std::optional<std::string> old_content = read_file(name);
    if (old_content == bytes) return {};

    replacement.write(bytes);
    if (!replacement.complete()) return replacement.reason();
    if (is_there(replacement.target())) {
        const std::string reason = keep(replacement.target(), old_content);
        if (!reason.empty())
            return "non si riesce a conservare il vecchio file come altitudini.bak (" + reason + ")";
    }
    replacement.commit();
    return replacement.reason();
}

}  // namespace coltre
