#include "platform/files.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "platform/code_page.h"
#include "text/characters.h"

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace coltre {

namespace {

namespace fs = std::filesystem;

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

/// The name in the directory that equals `name` but for letter case; of several the first in byte order.
fs::path find_name(const fs::path& directory, const fs::path& name) {
    const std::string wanted = lower_case(name.string());
    std::vector<fs::path> hits;
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error)) {
        const fs::path found = entry->path().filename();
        if (lower_case(found.string()) == wanted) hits.push_back(found);
    }
    const auto first = std::ranges::min_element(hits);
    return first == hits.end() ? name : *first;
}

/// The system would take what stands before a character of code 0 for the whole path.
bool holds_code_0(const fs::path& path) {
    return path.native().find(fs::path::value_type{}) != fs::path::string_type::npos;
}

/// Opens a regular file; a pipe or a device would make the program wait or never end.
OpenFile open_to_read(const fs::path& path) {
    if (holds_code_0(path)) return nullptr;
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return nullptr;
    return OpenFile(std::fopen(path.string().c_str(), "rb"));
}

std::string system_reason(int error_number) {
    switch (error_number) {
        case ENOENT:
        case ENOTDIR:
            return "la cartella non esiste";
        case EACCES:
        case EPERM:
            return "permesso negato";
        case EROFS:
            return "la cartella è in sola lettura";
        case ENOSPC:
            return "il disco è pieno";
#ifdef EDQUOT
        case EDQUOT:
            return "lo spazio concesso all'utente è esaurito";
#endif
        case EISDIR:
            return "al suo posto c'è qualcosa che non è un file";
        case EFBIG:
            return "il file supera la grandezza concessa";
        case EINVAL:
            return "il nome non è valido";
        case ENAMETOOLONG:
            return "il nome è troppo lungo";
        case ELOOP:
            return "il collegamento non porta a un file";
        default:
            return "errore di sistema " + std::to_string(error_number);
    }
}

/// Why a file that is there may not be replaced, as an error number; 0 if it may.
int refusal(const fs::path& path, const fs::file_status& status) {
    if (!fs::is_regular_file(status)) return EISDIR;
    // Also where permissions bind nobody: the administrator's account, some network file systems.
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) return EACCES;
#ifndef _WIN32
    if (::access(path.c_str(), W_OK) != 0) return errno;
#endif
    return 0;
}

/// Whether a killed program left this temporary file: no program that lives takes a day to write one.
bool is_left_behind(const fs::path& temporary) {
    std::error_code error;
    if (!fs::is_regular_file(fs::symlink_status(temporary, error))) return false;
    const fs::file_time_type written = fs::last_write_time(temporary, error);
    return !error && fs::file_time_type::clock::now() - written > std::chrono::hours(24);
}

/// Opens the new file to those whom the old one was open to, as far as the system lets its writer do so.
void take_over_access(const fs::path& old_file, const fs::file_status& old_status, const fs::path& new_file) {
#ifndef _WIN32
    struct stat owner {};
    // The administrator may give the file back to its owner; others, at most to a group of their own.
    if (::stat(old_file.c_str(), &owner) == 0 && ::chown(new_file.c_str(), owner.st_uid, owner.st_gid) != 0)
        static_cast<void>(::chown(new_file.c_str(), static_cast<uid_t>(-1), owner.st_gid) == 0);
#endif
    // Whoever writes the file is to be able to read it, even if the old one was closed to him.
    std::error_code error;
    fs::permissions(new_file, old_status.permissions() | fs::perms::owner_read, error);
}

/// Waits until the disk has what was written.
/// @return false, with the reason in errno, if it does not take it
bool bring_to_disk(std::FILE* file) {
    if (std::fflush(file) != 0) return false;
#ifdef _WIN32
    return ::_commit(::_fileno(file)) == 0;
#else
    return ::fsync(::fileno(file)) == 0;
#endif
}

#ifndef _WIN32
int open_directory(const fs::path& directory) {
    return ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}
#endif

/// Waits until the disk has the directory's names, where the system can be asked for that.
void bring_names_to_disk([[maybe_unused]] const fs::path& directory) {
#ifndef _WIN32
    const int descriptor = open_directory(directory);
    if (descriptor < 0) return;
    static_cast<void>(::fsync(descriptor));
    ::close(descriptor);
#endif
}

}  // namespace

fs::path find_path(std::string_view suite_path) {
    std::string text(suite_path);
    std::ranges::replace(text, '\\', '/');
    const fs::path written(text);
    std::error_code error;
    if (fs::exists(fs::symlink_status(written, error))) return written;

    fs::path found = written.root_path();
    for (const fs::path& name : written.relative_path()) {
        const fs::path next = found / name;
        if (fs::exists(fs::symlink_status(next, error))) {
            found = next;
        } else {
            found /= find_name(found.empty() ? fs::path(".") : found, name);
        }
    }
    return found;
}

std::string suite_notation(const fs::path& path) {
    std::string text = path.string();
    std::ranges::replace(text, '/', '\\');
    while (text.size() > 1 && text.back() == '\\')
        text.pop_back();
    return text;
}

bool is_directory(std::string_view suite_path) {
    std::error_code error;
    return fs::is_directory(find_path(suite_path), error);
}

std::optional<std::string> read_file(std::string_view suite_path) {
    const fs::path path = find_path(suite_path);
    const OpenFile file = open_to_read(path);
    if (file == nullptr) return std::nullopt;
    // One read of the whole size where the size is known; the loop takes what a growing file adds.
    std::string bytes;
    std::error_code error;
    const auto size = fs::file_size(path, error);
    constexpr std::size_t largest = 64U << 20U;
    if (!error && size > largest) return std::nullopt;
    std::size_t room = error ? 65536 : static_cast<std::size_t>(size) + 1;
    static_cast<void>(std::setvbuf(file.get(), nullptr, _IONBF, 0));
    for (;;) {
        const std::size_t length = bytes.size();
        bytes.resize(length + room);
        const std::size_t taken = std::fread(bytes.data() + length, 1, room, file.get());
        bytes.resize(length + taken);
        if (bytes.size() > largest) return std::nullopt;
        if (taken < room) break;
        room = bytes.size();
    }
    if (std::ferror(file.get()) != 0) return std::nullopt;
    return bytes;
}

std::optional<std::string> read_first_line(std::string_view suite_path) {
    const OpenFile file = open_to_read(find_path(suite_path));
    if (file == nullptr) return std::nullopt;
    constexpr std::size_t longest = 65536;
    std::string line(longest, '\0');
    line.resize(std::fread(line.data(), 1, longest, file.get()));
    if (std::ferror(file.get()) != 0) return std::nullopt;
    line.resize(std::min(line.size(), line.find_first_of("\r\n")));
    return from_code_page(line);
}

std::optional<FileState> file_state(const std::filesystem::path& path) {
#ifdef _WIN32
    std::error_code error;
    const auto written = fs::last_write_time(path, error);
    if (error) return std::nullopt;
    return FileState{written.time_since_epoch().count(), 0, 0};
#else
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    constexpr long long second = 1'000'000'000;  // ns
    return FileState{status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec,
                     status.st_ctim.tv_sec * second + status.st_ctim.tv_nsec,
                     static_cast<long long>(status.st_ino)};
#endif
}

std::string file_line(std::string_view utf8) {
    std::string line = to_code_page(utf8);
    std::ranges::replace_if(
        line, [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, '?');
    return line + "\r\n";
}

std::string rename_file(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    return error ? system_reason(error.value()) : std::string();
}

#ifdef _WIN32
DirectoryLock::DirectoryLock(const fs::path& /*directory*/) {}
DirectoryLock::~DirectoryLock() = default;
#else
DirectoryLock::DirectoryLock(const fs::path& directory) : m_directory(open_directory(directory)) {
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    while (m_directory >= 0 && ::flock(m_directory, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
           std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(1ms);
}

DirectoryLock::~DirectoryLock() {
    if (m_directory >= 0) ::close(m_directory);  // which lets the next one in
}
#endif

FileReplacement::FileReplacement(fs::path target, Outlives outlives)
    : m_target(std::move(target)), m_outlives(outlives) {
    if (const int error_number = open()) fail(error_number);
}

int FileReplacement::open() {
    if (holds_code_0(m_target)) return EINVAL;
    std::error_code error;
    const fs::file_status status = fs::status(m_target, error);
    if (fs::exists(status)) {
        if (const int error_number = refusal(m_target, status)) return error_number;
        // A link stays a link: what it points to is replaced.
        const fs::path linked = fs::canonical(m_target, error);
        if (!error) m_target = linked;
    } else if (fs::is_symlink(fs::symlink_status(m_target, error))) {
        return ELOOP;
    }
    for (int number = 1; m_file == nullptr; ++number) {  // passes over what other programs are writing
        fs::path name = m_target;
        name += "." + std::to_string(number) + ".tmp";
        m_file = std::fopen(name.string().c_str(), "wbx");
        if (m_file != nullptr) {
            m_temporary = name;
        } else if (errno != EEXIST) {
            return errno;
        } else if (is_left_behind(name)) {
            fs::remove(name, error);
        }
    }
    if (fs::exists(status)) take_over_access(m_target, status, m_temporary);
    return 0;
}

FileReplacement::~FileReplacement() {
    drop();
}

void FileReplacement::write(std::string_view bytes) {
    if (m_file == nullptr) return;
    if (std::fwrite(bytes.data(), 1, bytes.size(), m_file) != bytes.size()) fail(errno);
}

bool FileReplacement::complete() {
    if (m_file == nullptr) return good();
    int error_number = 0;
    if (m_outlives == Outlives::power_failure && !bring_to_disk(m_file)) error_number = errno;
    // Writes what is still in the buffer, and hears of the faults that a network file system tells only now.
    if (std::fclose(m_file) != 0 && error_number == 0) error_number = errno;
    m_file = nullptr;
    if (error_number != 0) fail(error_number);
    return good();
}

bool FileReplacement::commit() {
    if (!complete()) return false;
    std::error_code error;
    fs::rename(m_temporary, m_target, error);
    if (error) {
        fail(error.value());
    } else {
        m_temporary.clear();
        if (m_outlives == Outlives::power_failure) bring_names_to_disk(m_target.parent_path());
    }
    return good();
}

void FileReplacement::fail(int error_number) {
    if (m_reason.empty()) m_reason = system_reason(error_number);
    drop();
}

void FileReplacement::drop() {
    if (m_file != nullptr) static_cast<void>(std::fclose(m_file));
    m_file = nullptr;
    std::error_code error;
    if (!m_temporary.empty()) fs::remove(m_temporary, error);
    m_temporary.clear();
}

}  // namespace coltre
