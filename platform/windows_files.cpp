#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cwchar>
#include <string>

#include "platform/failure.h"
#include "platform/system_files.h"

namespace coltre::system_files {

namespace {

namespace fs = std::filesystem;

constexpr DWORD disk_quota_exceeded = 1295;  // its name is missing in the compiler's headers

int error_number(DWORD error) {
    switch (error) {
        case ERROR_SUCCESS:
            return 0;
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
            return ENOENT;
        case ERROR_ACCESS_DENIED:
        case ERROR_PRIVILEGE_NOT_HELD:
            return EACCES;
        case ERROR_WRITE_PROTECT:
            return EROFS;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return EBUSY;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return EEXIST;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case disk_quota_exceeded:
            return ENOSPC;
        case ERROR_FILE_TOO_LARGE:
            return EFBIG;
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_DIRECTORY:
            return EINVAL;
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BUFFER_OVERFLOW:
            return ENAMETOOLONG;
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
        case ERROR_NO_SYSTEM_RESOURCES:
            return ENOMEM;
        case ERROR_TOO_MANY_OPEN_FILES:
            return EMFILE;
        case ERROR_INVALID_FUNCTION:
        case ERROR_NOT_SUPPORTED:
            return ENOTSUP;
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_NETNAME_DELETED:
        case ERROR_NETWORK_UNREACHABLE:
        case ERROR_UNEXP_NET_ERR:
            return ENETUNREACH;
        default:
            return EIO;
    }
}

int last_error() {
    return error_number(::GetLastError());
}

/// @param done  what a call of the system returned
int error_of(BOOL done) {
    return done != 0 ? 0 : last_error();
}

HANDLE handle_of(const Descriptor& file) {
    return reinterpret_cast<HANDLE>(file.number());
}

// Nobody is kept from reading, replacing or removing what is open here.
constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
// Opens a directory as well.
constexpr DWORD of_any_kind = FILE_FLAG_BACKUP_SEMANTICS;

int open(const fs::path& path, DWORD access, DWORD sharing, DWORD creation, DWORD flags, Descriptor& opened) {
    const HANDLE file = ::CreateFileW(path.c_str(), access, sharing, nullptr, creation, flags, nullptr);
    if (file == INVALID_HANDLE_VALUE) return last_error();
    opened = Descriptor(reinterpret_cast<std::intptr_t>(file));
    return 0;
}

int information_of(const Descriptor& file, BY_HANDLE_FILE_INFORMATION& information) {
    return error_of(::GetFileInformationByHandle(handle_of(file), &information));
}

long long joined(DWORD high, DWORD low) {
    return static_cast<long long>(high) << 32U | low;
}

/// Files that are kept elsewhere and fetched when they are needed are no links, though both are reparse
/// points.
bool is_link(const Descriptor& file) {
    FILE_ATTRIBUTE_TAG_INFO tag{};
    return ::GetFileInformationByHandleEx(handle_of(file), FileAttributeTagInfo, &tag, sizeof tag) != 0 &&
           (tag.ReparseTag == IO_REPARSE_TAG_SYMLINK || tag.ReparseTag == IO_REPARSE_TAG_MOUNT_POINT);
}

constexpr long long tick = 100;  // ns
constexpr long long ticks_to_1970 = 116'444'736'000'000'000;

/// @param ticks  since 1601
long long since_1970(long long ticks) {
    return (ticks - ticks_to_1970) * tick;
}

/// Another program that has the file open is what the system calls a lack of permission.
bool is_held_open(const fs::path& path) {
    Descriptor file;
    return open(path, DELETE, shared, OPEN_EXISTING, 0, file) == EBUSY;
}

/// Gives the file another name. Programs that look for viruses or words hold new files for a moment.
int move(const fs::path& from, const fs::path& to, DWORD flags) {
    for (int tries = 1;; ++tries) {
        int error = error_of(::MoveFileExW(from.c_str(), to.c_str(), flags | MOVEFILE_WRITE_THROUGH));
        if (error == EACCES && (is_held_open(from) || is_held_open(to))) error = EBUSY;
        if (error != EBUSY || tries == 20) return error;
        ::Sleep(25);
    }
}

}  // namespace

int Descriptor::close() {
    const std::intptr_t number = std::exchange(m_number, -1);
    return number == -1 ? 0 : error_of(::CloseHandle(reinterpret_cast<HANDLE>(number)));
}

// The system itself looks for names whatever their letter case. It knows no directory with a separator at its
// end, other than a root.
fs::path existing(const fs::path& written) {
    std::wstring path = fs::path(written).make_preferred().native();
    const std::size_t root = written.root_path().native().size();
    while (path.size() > root && path.ends_with(L'\\'))
        path.pop_back();
    return path;
}

int look_at(const fs::path& path, Entry& entry) {
    entry = {};
    Descriptor file;
    int error = tried_again([&] {
        return open(path, FILE_READ_ATTRIBUTES, shared, OPEN_EXISTING,
                    of_any_kind | FILE_FLAG_OPEN_REPARSE_POINT, file);
    });
    if (error == ENOENT) return 0;
    BY_HANDLE_FILE_INFORMATION information{};
    if (error == 0) error = information_of(file, information);
    if (error != 0) return error;
    const bool is_directory = (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const bool is_read_only = (information.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    const bool is_reparse_point = (information.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    entry.kind = is_reparse_point && is_link(file) ? Entry::Kind::link
                 : is_directory                    ? Entry::Kind::other
                                                   : Entry::Kind::file;
    entry.device = information.dwVolumeSerialNumber;
    entry.number = joined(information.nFileIndexHigh, information.nFileIndexLow);
    entry.mode = is_read_only ? 0444 : 0666;
    return 0;
}

int state_of(const Descriptor& file, State& state) {
    BY_HANDLE_FILE_INFORMATION information{};
    if (const int error = information_of(file, information)) return error;
    const FILETIME& written = information.ftLastWriteTime;
    state = {.number = joined(information.nFileIndexHigh, information.nFileIndexLow),
             .size = joined(information.nFileSizeHigh, information.nFileSizeLow),
             .written = since_1970(joined(written.dwHighDateTime, written.dwLowDateTime))};
    return 0;
}

long long now() {
    FILETIME time{};
    ::GetSystemTimePreciseAsFileTime(&time);
    return since_1970(joined(time.dwHighDateTime, time.dwLowDateTime));
}

int open_to_read(const fs::path& path, Descriptor& file) {
    Descriptor opened;
    if (const int error = open(path, GENERIC_READ, shared, OPEN_EXISTING, of_any_kind, opened)) return error;
    if (::GetFileType(handle_of(opened)) != FILE_TYPE_DISK) return EISDIR;
    BY_HANDLE_FILE_INFORMATION information{};
    if (const int error = information_of(opened, information)) return error;
    if ((information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return EISDIR;
    file = std::move(opened);
    return 0;
}

int read_some(const Descriptor& file, char* to, std::size_t room, std::size_t& taken) {
    constexpr std::size_t most = 1U << 30U;
    DWORD length = 0;
    const int error =
        error_of(::ReadFile(handle_of(file), to, static_cast<DWORD>(std::min(room, most)), &length, nullptr));
    taken = error == 0 ? length : 0;
    return error;
}

// The new file is open to those whom its directory opens it to, as the old one was.
int create(const fs::path& path, bool /*only_for_its_owner*/, Descriptor& file) {
    Descriptor opened;
    // An interruption removes the file while it is open.
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_DELETE;
    if (const int error = open(path, GENERIC_WRITE, sharing, CREATE_NEW, 0, opened)) return error;
    if (::GetFileType(handle_of(opened)) != FILE_TYPE_DISK) return EINVAL;  // "con", "nul"
    file = std::move(opened);
    return 0;
}

void take_over_access(const Descriptor& /*file*/, const Entry& /*entry*/) {}

int write_all(const Descriptor& file, std::string_view bytes) {
    constexpr std::size_t most = 1U << 30U;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto length = static_cast<DWORD>(std::min(bytes.size(), most));
        if (const int error = error_of(::WriteFile(handle_of(file), bytes.data(), length, &written, nullptr)))
            return error;
        bytes.remove_prefix(written);
    }
    return 0;
}

int bring_to_disk(const Descriptor& file) {
    const int error = error_of(::FlushFileBuffers(handle_of(file)));
    return error == EACCES ? 0 : error;  // opened to read: nothing of it waits to be written
}

int bring_names_to_disk(const fs::path& /*directory*/) {
    return 0;  // the changes of names have waited for that
}

int refusal(const fs::path& path, const Entry& entry) {
    if (entry.kind != Entry::Kind::file) return EISDIR;
    if ((entry.mode & 0200U) == 0) return EACCES;
    Descriptor file;
    const int error = open(path, GENERIC_WRITE, shared, OPEN_EXISTING, 0, file);
    return error == EBUSY ? 0 : error;  // another program may be done with it by then
}

bool is_trusted(const Entry& /*link*/, const Entry& /*directory*/) {
    return true;  // to make a link is the administrator's right
}

int rename(const fs::path& from, const fs::path& to) {
    return move(from, to, MOVEFILE_REPLACE_EXISTING);
}

int rename_to_free(const fs::path& from, const fs::path& to) {
    return move(from, to, 0);
}

int add_name(const fs::path& file, const fs::path& name) {
    return error_of(::CreateHardLinkW(name.c_str(), file.c_str(), nullptr));
}

int remove(const fs::path& file) noexcept {
    return error_of(::DeleteFileW(file.c_str()));
}

// A directory cannot be locked: a mutex of its name stands for it, for as long as somebody has it.
int try_lock(const fs::path& directory, Descriptor& lock) {
    Descriptor opened;
    const fs::path place = directory.empty() ? fs::path(L".") : directory;
    if (const int error = open(place, FILE_READ_ATTRIBUTES, shared, OPEN_EXISTING, of_any_kind, opened))
        return error;
    BY_HANDLE_FILE_INFORMATION information{};
    if (const int error = information_of(opened, information)) return error;
    const std::wstring name = L"Local\\coltre-" + std::to_wstring(information.dwVolumeSerialNumber) + L'-' +
                              std::to_wstring(information.nFileIndexHigh) + L'-' +
                              std::to_wstring(information.nFileIndexLow);
    const HANDLE mutex = ::CreateMutexW(nullptr, FALSE, name.c_str());
    const DWORD error = ::GetLastError();
    if (mutex == nullptr) return error_number(error);
    Descriptor taken(reinterpret_cast<std::intptr_t>(mutex));
    if (error == ERROR_ALREADY_EXISTS) return EAGAIN;
    lock = std::move(taken);
    return 0;
}

}  // namespace coltre::system_files
