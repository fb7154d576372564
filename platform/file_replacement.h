#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/failure.h"
#include "platform/system_files.h"

// Files that are put in place in one step.
namespace coltre {

/// Has programs that change files of one directory wait for each other. Where the file system knows no locks,
/// or the turn does not come within five seconds, the program goes on without.
class DirectoryLock {
  public:
    explicit DirectoryLock(const std::filesystem::path& directory);

  private:
    system_files::Descriptor m_lock;  // closing it lets the next one in
};

/// What a replaced file outlives. A power failure costs waiting for the disk, some milliseconds; without that
/// a file written in the last half minute may come out of one empty.
enum class Outlives { program_crash, power_failure };

/// Writes a file anew and puts it in place in one step: everything goes into a temporary file beside it,
/// which takes its name when it is complete. Whatever happens before, the old file stays as it was. A file
/// that its owner made read-only is not replaced.
///
/// The temporary file is named after the target: "coltre.txt.1.tmp", with the first number that is free. It
/// is never open to more users than the file that it replaces. An interruption removes it; one that a killed
/// program left behind is removed when it is a day old and the next file is written.
///
/// users_directory() is created for its first file. Any other directory must be there.
class FileReplacement {
  public:
    /// Creates the temporary file; failure() says whether that was possible.
    /// @param target  taken as it is; find_path() finds one whatever its letter case. A link stays a link:
    ///                what it points to is replaced, unless somebody else put it into a directory that is
    ///                open to everybody.
    explicit FileReplacement(std::filesystem::path target, Outlives outlives = Outlives::program_crash);
    /// Without a commit() before, drops what was written.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Why the file could not be written so far.
    [[nodiscard]] const Failure& failure() const { return m_failure; }

    void write(std::string_view bytes);

    /// Completes the temporary file, so that only the change of names is left to do.
    /// @return failure()
    const Failure& complete();

    /// Puts the file in place, after complete() if that was not called. Where the disk does not confirm the
    /// change of names, that is a failure too, though the file is in its place.
    /// @return failure()
    const Failure& commit();

    /// The same where no file is to be replaced: one that has appeared meanwhile is a failure.
    const Failure& commit_as_new();

    /// The file that is replaced, as found on disk.
    [[nodiscard]] const std::filesystem::path& target() const { return m_target; }

  private:
    FileReplacement() = default;

    int open();
    int create_temporary(const system_files::Entry& old);
    void flush();
    const Failure& put_in_place(int (*rename)(const std::filesystem::path&, const std::filesystem::path&));
    void fail(int error_number);
    void drop();

    std::filesystem::path m_target;
    Outlives m_outlives = Outlives::program_crash;
    std::filesystem::path m_temporary;
    bool m_created = false;  // the temporary file is there
    system_files::Descriptor m_file;
    std::string m_buffer;  // written, but not yet to the file
    Failure m_failure;
};

}  // namespace coltre
