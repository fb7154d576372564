#include "site/altitude_file.h"

#include <cerrno>
#include <filesystem>

#include "platform/file_replacement.h"
#include "platform/files.h"
#include "platform/system_files.h"

namespace coltre {

namespace {

namespace fs = std::filesystem;
using system_files::Entry;

/// Gives the file the first free numbered name.
Failure move_aside(const fs::path& backup) {
    for (int number = 1;; ++number) {
        fs::path numbered = backup;
        numbered += std::to_string(number);
        const int error = system_files::rename_to_free(backup, numbered);
        if (error != EEXIST) return system_failure(error);
    }
}

/// What became of the file that was in the place of the new one.
struct Kept {
    Failure failure;
    fs::path name;               ///< empty if there was none
    bool old_name_gone = false;  ///< it has the name of the backup alone
};

/// Gives the old file the name altitudini.bak, in addition to its own, so that a crash finds it in its place.
/// Where the file system knows no second names, it has that of the backup alone.
/// @param content  of the old file
Kept keep(const fs::path& old_file, const FileContent& content) {
    const std::string backup_name = suite_notation(old_file.parent_path()) + "\\altitudini.bak";
    for (;;) {
        const fs::path backup = find_path(backup_name);
        int error = system_files::add_name(old_file, backup);
        if (error == 0) return {{}, backup};
        if (error == ENOENT && content.end == ReadEnd::missing) return {};
        if (error != EEXIST) {
            error = system_files::rename_to_free(old_file, backup);
            if (error == 0) return {{}, backup, true};
            if (error != EEXIST) return {system_failure(error), {}};
        }
        Entry old;
        Entry other;
        error = system_files::look_at(old_file, old);
        if (error == 0) error = system_files::look_at(backup, other);
        if (error != 0) return {system_failure(error), {}};
        if (other.is_same_file(old)) return {{}, backup};  // an earlier run came as far as this
        const bool is_equal = other.kind == Entry::Kind::file && content.end == ReadEnd::read &&
                              read_file(backup_name) == content.bytes;
        if (Failure failure = is_equal ? system_failure(system_files::remove(backup)) : move_aside(backup))
            return {failure, {}};
    }
}

/// The file's data and its new name.
Failure bring_backup_to_disk(const fs::path& backup) {
    system_files::Descriptor file;
    int error = system_files::open_to_read(backup, file);
    if (error == 0) {
        error = system_files::bring_to_disk(file);
    } else if (error == EACCES) {
        error = 0;  // a file that is closed to the user: its name must do
    }
    if (error == 0) error = system_files::bring_names_to_disk(backup.parent_path());
    return system_failure(error);
}

Failure not_kept(const std::string& reason) {
    return "non si riesce a conservare il vecchio file come altitudini.bak (" + reason + ")";
}

}  // namespace

std::string altitude_file_name(std::string_view ProgramDirectory) {
    return std::string(ProgramDirectory) + "\\altitudini.txt";
}

TableReplacement replace_altitude_file(std::string_view ProgramDirectory, std::string_view bytes) {
    const std::string name = altitude_file_name(ProgramDirectory);
    FileReplacement replacement(find_path(name), Outlives::power_failure);
    if (replacement.failure()) return {.failure = replacement.failure()};
    // Two programs that both keep the old file must not take each other's backups for their own.
    const DirectoryLock lock(replacement.target().parent_path());
    const FileContent old = read_content(name);
    if (old.end == ReadEnd::disturbed) return {.failure = old.reason};
    if (old.end == ReadEnd::read && old.bytes == bytes) return {};

    replacement.write(bytes);
    if (replacement.complete()) return {.failure = replacement.failure()};
    Kept kept = keep(replacement.target(), old);
    if (!kept.failure && !kept.name.empty()) kept.failure = bring_backup_to_disk(kept.name);
    const Failure failure = kept.failure ? not_kept(*kept.failure) : replacement.commit();
    if (!failure) return {{}, true, path_text(kept.name.filename())};
    if (kept.old_name_gone) static_cast<void>(system_files::rename_to_free(kept.name, replacement.target()));
    return {.failure = failure};
}

Failure create_altitude_file(std::string_view ProgramDirectory, std::string_view bytes) {
    const fs::path file = find_path(altitude_file_name(ProgramDirectory));
    FileReplacement replacement(file, Outlives::power_failure);
    replacement.write(bytes);
    Failure failure = replacement.commit_as_new();
    Entry entry;
    if (failure && system_files::look_at(file, entry) == 0 && entry.kind == Entry::Kind::file)
        return std::nullopt;
    return failure;
}

}  // namespace coltre
