#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// The door to the file system. Directory values are texts in the suite's notation, with "\" between the
// names. Here "\" and "/" are accepted alike, and an existing name is found whatever its letter case, as the
// suite's own system does: the suite's root comes back in lower case from the command line.
namespace coltre {

/// The path that a text in the suite's notation names. Each name that does not exist as written is looked for
/// in its directory without regard to letter case; one that does not exist at all is kept as written.
std::filesystem::path find_path(std::string_view suite_path);

/// The path as a text in the suite's notation, without a separator at its end.
std::string suite_notation(const std::filesystem::path& path);

/// True when the path names a directory that exists and can be asked for.
bool is_directory(std::string_view suite_path);

/// All bytes of a file.
/// @return nothing if it cannot be opened or read, is anything but a regular file, or holds more than 64 MiB:
///         then it is none of the program's, and might be more than the memory takes
std::optional<std::string> read_file(std::string_view suite_path);

/// First line of a text file, without its line end, as UTF-8; empty for an empty file. A line of more than 64
/// KiB is cut there.
/// @return nothing if the file cannot be opened or read
std::optional<std::string> read_first_line(std::string_view suite_path);

/// A state of a file that changes whenever its bytes change, unless that happens within one tick of the file
/// system's clock.
struct FileState {
    long long written;  ///< time of the last writing, ns
    long long
        changed;  ///< time of the last change of anything about the file, ns; 0 where the system has none
    long long number;  ///< of the file in its file system; 0 where the system has none

    bool operator==(const FileState&) const = default;
};

/// The state of a file; nothing if it cannot be told.
std::optional<FileState> file_state(const std::filesystem::path& path);

/// A text line as the program's files hold it: Windows-1252, CR LF at its end. Line ends and characters of
/// code 0 inside become "?".
std::string file_line(std::string_view utf8);

/// Gives the file another name in the same directory; an existing file of that name is replaced.
/// @return why the system refuses, in Italian; empty when all went well
std::string rename_file(const std::filesystem::path& from, const std::filesystem::path& to);

/// Has programs that change files of one directory wait for each other. Where the file system knows no locks,
/// or the turn does not come within five seconds, the program goes on without.
class DirectoryLock {
  public:
    explicit DirectoryLock(const std::filesystem::path& directory);
    ~DirectoryLock();
    DirectoryLock(const DirectoryLock&) = delete;
    DirectoryLock& operator=(const DirectoryLock&) = delete;

  private:
    int m_directory = -1;
};

/// What a replaced file outlives. A power failure costs waiting for the disk, some milliseconds; without that
/// a file written in the last half minute may come out of one empty.
enum class Outlives { program_crash, power_failure };

/// Writes a file anew and puts it in place in one step: everything goes into a temporary file beside it,
/// which takes its name when it is complete. Whatever happens before, the old file stays as it was. A file
/// that its owner made read-only is not replaced.
///
/// The temporary file is named after the target: "coltre.txt.1.tmp", with the first number that is free. One
/// that a killed program left behind is removed when it is a day old and the next file is written.
class FileReplacement {
  public:
    /// Creates the temporary file. After a failure good() is false and reason() says why.
    /// @param target  taken as it is; find_path() finds one whatever its letter case
    explicit FileReplacement(std::filesystem::path target, Outlives outlives = Outlives::program_crash);
    /// Without a commit() before, drops what was written.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    [[nodiscard]] bool good() const { return m_reason.empty(); }
    /// Why the file could not be written, in Italian; empty while all is well.
    [[nodiscard]] const std::string& reason() const { return m_reason; }

    void write(std::string_view bytes);

    /// Completes the temporary file, so that only the change of names is left to do.
    /// @return good()
    bool complete();

    /// Puts the file in place, after complete() if that was not called.
    /// @return good()
    bool commit();

    /// The file that is replaced, as found on disk.
    [[nodiscard]] const std::filesystem::path& target() const { return m_target; }

  private:
    int open();
    void fail(int error_number);
    void drop();

    std::filesystem::path m_target;
    Outlives m_outlives;
    std::filesystem::path m_temporary;
    std::FILE* m_file = nullptr;
    std::string m_reason;
};

}  // namespace coltre
