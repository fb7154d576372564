#include "platform/files.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <memory>
#include <system_error>
#include <vector>

#include "platform/code_page.h"
#include "text/characters.h"

#ifdef _WIN32
#include <process.h>
#else
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

/// Opens a regular file; a pipe or a device would make the program wait or never end.
OpenFile open_to_read(const fs::path& path) {
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
        case ENAMETOOLONG:
            return "il nome è troppo lungo";
        case ELOOP:
            return "il collegamento non porta a un file";
        default:
            return "errore di sistema " + std::to_string(error_number);
    }
}

bool is_writable(const fs::path& path, const fs::file_status& status) {
    // Also where permissions bind nobody: the administrator's account, some network file systems.
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) return false;
#ifdef _WIN32
    return true;
#else
    return ::access(path.c_str(), W_OK) == 0;
#endif
}

/// A name beside the target that no other program, and no other file of this one, uses.
fs::path temporary_beside(const fs::path& target) {
    static std::atomic<unsigned> counter{0};
#ifdef _WIN32
    const int process = ::_getpid();
#else
    const int process = ::getpid();
#endif
    fs::path name = target;
    name += "." + std::to_string(process) + "-" + std::to_string(++counter) + ".tmp";
    return name;
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
    std::size_t room = error ? 65536 : static_cast<std::size_t>(size) + 1;
    static_cast<void>(std::setvbuf(file.get(), nullptr, _IONBF, 0));
    for (;;) {
        const std::size_t length = bytes.size();
        bytes.resize(length + room);
        const std::size_t taken = std::fread(bytes.data() + length, 1, room, file.get());
        bytes.resize(length + taken);
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

std::string file_line(std::string_view utf8) {
    std::string line = to_code_page(utf8);
    std::ranges::replace_if(
        line, [](char c) { return c == '\r' || c == '\n'; }, '?');
    return line + "\r\n";
}

bool rename_file(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    return !error;
}

FileReplacement::FileReplacement(std::string_view suite_path) : m_target(find_path(suite_path)) {
    if (const int error_number = open()) fail(error_number);
}

int FileReplacement::open() {
    std::error_code error;
    const fs::file_status status = fs::status(m_target, error);
    if (fs::exists(status)) {
        if (!fs::is_regular_file(status)) return EISDIR;
        if (!is_writable(m_target, status)) return EACCES;
        // A link stays a link: what it points to is replaced.
        const fs::path linked = fs::canonical(m_target, error);
        if (!error) m_target = linked;
    } else if (fs::is_symlink(fs::symlink_status(m_target, error))) {
        return ELOOP;
    }
    do {  // a name that a crash left behind is passed over
        const fs::path name = temporary_beside(m_target);
        errno = 0;
        m_file = std::fopen(name.string().c_str(), "wbx");
        if (m_file != nullptr) m_temporary = name;
    } while (m_file == nullptr && errno == EEXIST);
    if (m_file == nullptr) return errno;
    if (fs::exists(status)) fs::permissions(m_temporary, status.permissions(), error);
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
    // Writes what is still in the buffer, and hears of the faults that a network file system tells only now.
    const bool closed = std::fclose(m_file) == 0;
    m_file = nullptr;
    if (!closed) fail(errno);
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
