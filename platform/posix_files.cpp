#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "platform/failure.h"
#include "platform/system_files.h"
#include "text/characters.h"

namespace coltre::system_files {

namespace {

namespace fs = std::filesystem;

/// Makes a call of the system, again where a signal interrupts it.
/// @return what the call returns
template <typename Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

template <typename Call>
int error_of(Call call) {
    return uninterrupted(call) < 0 ? errno : 0;
}

int number_of(const Descriptor& file) {
    return static_cast<int>(file.number());
}

int open(const fs::path& path, int flags, mode_t mode, Descriptor& opened) {
    const int number = uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); });
    if (number < 0) return errno;
    opened = Descriptor(number);
    return 0;
}

constexpr long long second = 1'000'000'000;  // ns

Entry::Kind kind_of(mode_t mode) {
    if (S_ISREG(mode)) return Entry::Kind::file;
    return S_ISLNK(mode) ? Entry::Kind::link : Entry::Kind::other;
}

int open_directory(const fs::path& directory, Descriptor& opened) {
    return open(directory.empty() ? fs::path(".") : directory, O_RDONLY | O_DIRECTORY, 0, opened);
}

/// Appends the names that a directory holds. (The library's own way ends the program where memory lacks.)
int list(const fs::path& directory, std::vector<std::string>& names) {
    struct Close {
        void operator()(DIR* opened) const { static_cast<void>(::closedir(opened)); }
    };
    const std::unique_ptr<DIR, Close> opened(::opendir(directory.c_str()));
    if (opened == nullptr) return errno;
    for (;;) {
        errno = 0;
        const dirent* const entry = ::readdir(opened.get());
        if (entry == nullptr) return errno;
        names.emplace_back(entry->d_name);
    }
}

/// Whether the path names something. What the system does not say counts as there.
bool may_be_there(const fs::path& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

/// The name in the directory that equals `name` but for letter case; of several the first in byte order.
fs::path find_name(const fs::path& directory, const fs::path& name) {
    std::vector<std::string> names;
    static_cast<void>(tried_again([&] {
        names.clear();
        return list(directory, names);
    }));
    const std::string wanted = lower_case(name.string());
    std::erase_if(names, [&](const std::string& found) { return lower_case(found) != wanted; });
    const auto first = std::ranges::min_element(names);
    return first == names.end() ? name : fs::path(*first);
}

}  // namespace

int Descriptor::close() {
    // Not again after an interruption: the descriptor is gone, or even another thread's, by then.
    const auto number = static_cast<int>(std::exchange(m_number, -1));
    return number < 0 || ::close(number) == 0 || errno == EINTR ? 0 : errno;
}

fs::path existing(const fs::path& written) {
    if (may_be_there(written)) return written;

    fs::path found = written.root_path();
    for (const fs::path& name : written.relative_path()) {
        const fs::path next = found / name;
        if (may_be_there(next)) {
            found = next;
        } else {
            found /= find_name(found.empty() ? fs::path(".") : found, name);
        }
    }
    return found;
}

int look_at(const fs::path& path, Entry& entry) {
    struct stat status {};
    const int error = tried_again([&] { return error_of([&] { return ::lstat(path.c_str(), &status); }); });
    entry = {};
    if (error == ENOENT || error == ENOTDIR) return 0;
    if (error != 0) return error;
    entry = {.kind = kind_of(status.st_mode),
             .device = static_cast<long long>(status.st_dev),
             .number = static_cast<long long>(status.st_ino),
             .mode = status.st_mode & 07777U,
             .owner = status.st_uid,
             .group = status.st_gid};
    return 0;
}

int state_of(const Descriptor& file, State& state) {
    struct stat status {};
    if (::fstat(number_of(file), &status) != 0) return errno;
    state = {.number = static_cast<long long>(status.st_ino),
             .size = static_cast<long long>(status.st_size),
             .written = status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec};
    return 0;
}

long long now() {
    timespec time{};
    ::clock_gettime(CLOCK_REALTIME, &time);
    return time.tv_sec * second + time.tv_nsec;
}

int open_to_read(const fs::path& path, Descriptor& file) {
    Descriptor opened;
    if (const int error = open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY, 0, opened)) return error;
    struct stat status {};
    if (::fstat(number_of(opened), &status) != 0) return errno;
    if (!S_ISREG(status.st_mode)) return EISDIR;
    file = std::move(opened);
    return 0;
}

int read_some(const Descriptor& file, char* to, std::size_t room, std::size_t& taken) {
    const ssize_t length = uninterrupted([&] { return ::read(number_of(file), to, room); });
    taken = length < 0 ? 0 : static_cast<std::size_t>(length);
    return length < 0 ? errno : 0;
}

int create(const fs::path& path, bool only_for_its_owner, Descriptor& file) {
    return open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, only_for_its_owner ? 0600 : 0666, file);
}

void take_over_access(const Descriptor& file, const Entry& entry) {
    // The administrator may give the file back to its owner; others, at most to a group of their own.
    if (::fchown(number_of(file), entry.owner, entry.group) != 0)
        static_cast<void>(::fchown(number_of(file), static_cast<uid_t>(-1), entry.group) == 0);
    // Whoever writes the file is to be able to read it, even if the old one was closed to him.
    static_cast<void>(::fchmod(number_of(file), static_cast<mode_t>(entry.mode) | S_IRUSR) == 0);
}

int write_all(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            uninterrupted([&] { return ::write(number_of(file), bytes.data(), bytes.size()); });
        if (written < 0) return errno;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

int bring_to_disk(const Descriptor& file) {
    return error_of([&] { return ::fsync(number_of(file)); });
}

int bring_names_to_disk(const fs::path& directory) {
    Descriptor opened;
    if (int error = open_directory(directory, opened))
        return error == EACCES ? 0 : error;  // it may be one that is written but not listed
    const int error = bring_to_disk(opened);
    return error == EINVAL || error == ENOTSUP ? 0 : error;  // this file system cannot be asked
}

int refusal(const fs::path& path, const Entry& entry) {
    if (entry.kind != Entry::Kind::file) return EISDIR;
    // Also where permissions bind nobody: the administrator's account, some network file systems.
    if ((entry.mode & S_IWUSR) == 0) return EACCES;
    return error_of([&] { return ::access(path.c_str(), W_OK); });
}

bool is_trusted(const Entry& link, const Entry& directory) {
    return (directory.mode & S_IWOTH) == 0 || link.owner == directory.owner || link.owner == ::geteuid();
}

int rename(const fs::path& from, const fs::path& to) {
    return error_of([&] { return ::rename(from.c_str(), to.c_str()); });
}

int rename_to_free(const fs::path& from, const fs::path& to) {
#ifdef RENAME_NOREPLACE
    const int error =
        error_of([&] { return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE); });
    if (error != EINVAL && error != ENOSYS) return error;  // else this file system knows no such call
#endif
    Entry other;
    if (const int unknown = look_at(to, other)) return unknown;
    return other.kind == Entry::Kind::nothing ? system_files::rename(from, to) : EEXIST;
}

int add_name(const fs::path& file, const fs::path& name) {
    return error_of([&] { return ::link(file.c_str(), name.c_str()); });
}

int remove(const fs::path& file) noexcept {
    return ::unlink(file.c_str()) == 0 ? 0 : errno;
}

int try_lock(const fs::path& directory, Descriptor& lock) {
    Descriptor opened;
    if (const int error = open_directory(directory, opened)) return error;
    if (const int error = error_of([&] { return ::flock(number_of(opened), LOCK_EX | LOCK_NB); }))
        return error;
    lock = std::move(opened);
    return 0;
}

}  // namespace coltre::system_files
