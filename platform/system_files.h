#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>

// Files as the system has them: all of the rooms that differs from one system to another, one source a
// system. The functions return an error number of <cerrno>, 0 where all went well. A call that a signal
// interrupts is made again.
namespace coltre::system_files {

/// An open file or a lock, closed at the end of its life.
class Descriptor {
  public:
    Descriptor() = default;
    /// @param number  by which the system knows it; -1 for none
    explicit Descriptor(std::intptr_t number) : m_number(number) {}
    ~Descriptor() { static_cast<void>(close()); }
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool is_open() const { return m_number != -1; }
    [[nodiscard]] std::intptr_t number() const { return m_number; }
    /// Some file systems report only now that a write failed.
    int close();

  private:
    std::intptr_t m_number = -1;
};

/// What stands at a path, without following a link.
struct Entry {
    enum class Kind { nothing, file, link, other };
    Kind kind = Kind::nothing;
    long long device = 0, number = 0;  ///< which file it is
    unsigned mode = 0;                 ///< permission bits
    unsigned owner = 0, group = 0;

    [[nodiscard]] bool is_same_file(const Entry& other) const {
        return kind != Kind::nothing && device == other.device && number == other.number;
    }
};

/// The path with each name as its directory has it. A name that does not exist as written is the one that
/// differs from it in letter case alone; one that does not exist at all is kept as written.
std::filesystem::path existing(const std::filesystem::path& written);

/// Looks at a path. An error that may pass is tried again. That nothing is there is no error, and no error
/// ever means that nothing is there.
int look_at(const std::filesystem::path& path, Entry& entry);

/// A state of a file that changes whenever its bytes change, unless that happens within one tick of the file
/// system's clock.
struct State {
    long long number = 0;   ///< which file it is
    long long size = 0;     ///< bytes
    long long written = 0;  ///< time of the last writing, ns since 1970

    bool operator==(const State&) const = default;
};

int state_of(const Descriptor& file, State& state);

/// The system's time, to be compared with State::written, ns since 1970.
long long now();

/// Opens a regular file. It waits for nothing else that stands there, a pipe, say: EISDIR.
int open_to_read(const std::filesystem::path& path, Descriptor& file);

/// Reads what there is, up to `room` bytes.
/// @param taken  how many there were; 0 at the end of the file
int read_some(const Descriptor& file, char* to, std::size_t room, std::size_t& taken);

/// Creates a file to write where nothing stands, not even a link: else EEXIST.
/// @param only_for_its_owner  closed to all others; else as the user's settings have it
int create(const std::filesystem::path& path, bool only_for_its_owner, Descriptor& file);

/// Opens the file to those whom the entry is open to, as far as the system lets its writer do so.
void take_over_access(const Descriptor& file, const Entry& entry);

int write_all(const Descriptor& file, std::string_view bytes);

/// Waits until the disk has what was written.
int bring_to_disk(const Descriptor& file);

/// Waits until the disk has the directory's names, where the system can be asked for that.
int bring_names_to_disk(const std::filesystem::path& directory);

/// Why the user may not replace a file that is there; 0 if he may.
int refusal(const std::filesystem::path& path, const Entry& entry);

/// Whether a link in this directory may be followed to a file that is then replaced: not where somebody else
/// put it into a directory that is open to everybody.
bool is_trusted(const Entry& link, const Entry& directory);

/// Gives the file another name; a file of that name is replaced.
int rename(const std::filesystem::path& from, const std::filesystem::path& to);

/// Gives the file another name, unless something has that name: EEXIST.
int rename_to_free(const std::filesystem::path& from, const std::filesystem::path& to);

/// Gives the file a second name, unless something has that name: EEXIST.
int add_name(const std::filesystem::path& file, const std::filesystem::path& name);

/// Takes the file's only or one of its names away. Allocates nothing.
int remove(const std::filesystem::path& file) noexcept;

/// Tries to lock a directory, until the lock is closed, against other programs that do the same.
/// @return EAGAIN while another one has it
int try_lock(const std::filesystem::path& directory, Descriptor& lock);

}  // namespace coltre::system_files
