#include "platform/file_replacement.h"

#include <cerrno>
#include <chrono>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/environment.h"
#include "platform/files.h"
#include "platform/interruption.h"

namespace coltre {

namespace {

namespace fs = std::filesystem;
using system_files::Entry;

constexpr std::size_t buffer_size = 65536;

/// Whether a killed program left this temporary file: no program that lives takes a day to write one.
bool is_left_behind(const fs::path& temporary) {
    std::error_code error;
    if (!fs::is_regular_file(fs::symlink_status(temporary, error))) return false;
    const fs::file_time_type written = fs::last_write_time(temporary, error);
    return !error && fs::file_time_type::clock::now() - written > std::chrono::hours(24);
}

/// Replaces the path of a link by that of the file it leads to.
/// @return an error number; 0 if all went well
int follow(fs::path& path, const Entry& link) {
    Entry directory;
    if (const int error = system_files::look_at(path.parent_path() / ".", directory)) return error;
    if (!system_files::is_trusted(link, directory)) return EACCES;
    std::error_code error;
    fs::path linked = fs::canonical(path, error);
    if (error) return error == std::errc::no_such_file_or_directory ? ELOOP : error.value();
    path = std::move(linked);
    return 0;
}

/// Creates the directory if it is the user's own.
/// @return an error number; 0 if it is there now
int create_if_users_own(const fs::path& directory) {
    const fs::path users = find_path(users_directory());
    std::error_code error;
    const fs::path named = fs::weakly_canonical(fs::absolute(directory, error), error);
    if (error || named.empty() || named != fs::weakly_canonical(users, error)) return ENOENT;
    fs::create_directories(users, error);
    return error.default_error_condition().value();
}

}  // namespace

DirectoryLock::DirectoryLock(const fs::path& directory) {
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    while (system_files::try_lock(directory, m_lock) == EAGAIN && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(1ms);
}

// Through the constructor that does nothing: should the memory not suffice here, the destructor removes the
// temporary file.
FileReplacement::FileReplacement(fs::path target, Outlives outlives) : FileReplacement() {
    m_target = std::move(target);
    m_outlives = outlives;
    if (const int error = open()) fail(error);
}

int FileReplacement::open() {
    if (holds_code_0(m_target)) return EINVAL;
    Entry old;
    if (const int error = system_files::look_at(m_target, old)) return error;
    if (old.kind == Entry::Kind::link) {
        if (const int error = follow(m_target, old)) return error;
        if (const int error = system_files::look_at(m_target, old)) return error;
    }
    if (old.kind != Entry::Kind::nothing) {
        if (const int error = system_files::refusal(m_target, old)) return error;
    }
    int error = create_temporary(old);
    if (error == ENOENT && (error = create_if_users_own(m_target.parent_path())) == 0)
        error = create_temporary(old);
    return error;
}

int FileReplacement::create_temporary(const Entry& old) {
    const bool replaces = old.kind != Entry::Kind::nothing;
    for (int number = 1;; ++number) {  // passes over what other programs are writing
        m_temporary = m_target;
        m_temporary += "." + std::to_string(number) + ".tmp";
        const InterruptionsHeldBack held_back;
        const int error = system_files::create(m_temporary, replaces, m_file);
        if (error == 0) {
            m_created = true;
            remove_when_interrupted(m_temporary);
            if (replaces) system_files::take_over_access(m_file, old);
            return 0;
        }
        if (error != EEXIST) return error;
        if (is_left_behind(m_temporary)) static_cast<void>(system_files::remove(m_temporary));
    }
}

FileReplacement::~FileReplacement() {
    drop();
}

void FileReplacement::write(std::string_view bytes) {
    if (m_failure) return;
    m_buffer += bytes;
    if (m_buffer.size() >= buffer_size) flush();
}

void FileReplacement::flush() {
    if (const int error = system_files::write_all(m_file, m_buffer)) fail(error);
    m_buffer.clear();
}

const Failure& FileReplacement::complete() {
    if (m_failure || !m_file.is_open()) return m_failure;
    flush();
    if (m_failure) return m_failure;
    int error = m_outlives == Outlives::power_failure ? system_files::bring_to_disk(m_file) : 0;
    if (const int close_error = m_file.close(); error == 0) error = close_error;
    if (error != 0) fail(error);
    return m_failure;
}

const Failure& FileReplacement::commit() {
    return put_in_place(system_files::rename);
}

const Failure& FileReplacement::commit_as_new() {
    return put_in_place(system_files::rename_to_free);
}

const Failure& FileReplacement::put_in_place(int (*rename)(const fs::path&, const fs::path&)) {
    if (complete()) return m_failure;
    {
        const InterruptionsHeldBack held_back;
        if (const int error = rename(m_temporary, m_target)) {
            fail(error);
            return m_failure;
        }
        m_created = false;
        forget_to_remove(m_temporary);
    }
    if (m_outlives == Outlives::power_failure) {
        if (const int error = system_files::bring_names_to_disk(m_target.parent_path())) fail(error);
    }
    return m_failure;
}

void FileReplacement::fail(int error_number) {
    if (!m_failure) m_failure = system_failure(error_number);
    drop();
}

void FileReplacement::drop() {
    static_cast<void>(m_file.close());
    if (!std::exchange(m_created, false)) return;
    static_cast<void>(system_files::remove(m_temporary));
    forget_to_remove(m_temporary);
}

}  // namespace coltre
