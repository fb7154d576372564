#include "site/altitude_replacement.h"

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
bool move_aside(const fs::path& backup) {
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
bool keep(const fs::path& old_file, const std::optional<std::string>& content) {
    const std::string backup_name = suite_notation(old_file.parent_path()) + "\\altitudini.bak";
    const fs::path backup = find_path(backup_name);
    if (content && read_file(backup_name) == content) return true;
    if (is_there(backup) && !move_aside(backup)) return false;
    if (!content) return rename_file(old_file, backup);
    FileReplacement copy(backup_name);
    copy.write(*content);
    return copy.commit();
}

}  // namespace

std::string altitude_file_name(std::string_view ProgramDirectory) {
    return std::string(ProgramDirectory) + "\\altitudini.txt";
}

std::string replace_altitude_file(std::string_view ProgramDirectory, std::string_view bytes) {
    const std::string name = altitude_file_name(ProgramDirectory);
    FileReplacement replacement(name);
    if (!replacement.good()) return replacement.reason();
    const std::optional<std::string> old_content = read_file(name);
    if (old_content == bytes) return {};

    replacement.write(bytes);
    if (!replacement.complete()) return replacement.reason();
    if (is_there(replacement.target()) && !keep(replacement.target(), old_content))
        return "non si riesce a conservare il vecchio file come altitudini.bak";
    replacement.commit();
    return replacement.reason();
}

}  // namespace coltre
