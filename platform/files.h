#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Names of files and what they hold. Directory values are texts in the suite's notation, with "\" between the
// names. Here "\" and "/" are accepted alike, and an existing name is found whatever its letter case, as the
// suite's own system does: the suite's root comes back in lower case from the command line.
namespace coltre {

/// The path that a UTF-8 text names as the system writes paths. (A path made of a plain text holds the text's
/// bytes, which are no names where the system has names of UTF-16.)
std::filesystem::path to_path(std::string_view utf8);

/// The path as the system writes it, as UTF-8.
std::string path_text(const std::filesystem::path& path);

/// The path that a text in the suite's notation names. Each name that does not exist as written is looked for
/// in its directory without regard to letter case; one that does not exist at all is kept as written.
std::filesystem::path find_path(std::string_view suite_path);

/// The path as a text in the suite's notation, without a separator at its end.
std::string suite_notation(const std::filesystem::path& path);

/// True when the path names a directory that exists and can be asked for.
bool is_directory(std::string_view suite_path);

/// True for a path that no system call may get: the system would take what stands before a character of code
/// 0 for the whole of it.
bool holds_code_0(const std::filesystem::path& path);

/// How the reading of a file ended.
enum class ReadEnd {
    read,
    missing,     ///< there is no such file
    unreadable,  ///< no regular file, closed to the user, or of more than 64 MiB: none of the program's
    disturbed,   ///< the system failed, several times: nothing is known of the file
};

/// What reading a file gave.
struct FileContent {
    ReadEnd end = ReadEnd::missing;
    std::string bytes;   ///< all of them, if it was read
    std::string reason;  ///< why not, in Italian, as part of a sentence
};

/// Reads a file whole. An error of the system that may pass is waited for, some tenths of a second.
FileContent read_content(std::string_view suite_path);

/// The same for a file that others may be saving at this moment. One that was written within the last second
/// may be half of what it will be: it is read again until its size and time of writing stay for a tenth of a
/// second, for two seconds at most. One that is missing may be away for a moment: it is looked for twice.
FileContent read_content_at_rest(std::string_view suite_path);

/// All bytes of a file, as read_content() gives them.
std::optional<std::string> read_file(std::string_view suite_path);

/// First line of a text file, without its line end, as UTF-8; empty for an empty file. A line of more than 64
/// KiB is cut there.
/// @return nothing if the file cannot be opened or read
std::optional<std::string> read_first_line(std::string_view suite_path);

/// A text line as the program's files hold it: Windows-1252, CR LF at its end. Line ends and characters of
/// code 0 inside become "?".
std::string file_line(std::string_view utf8);

}  // namespace coltre
