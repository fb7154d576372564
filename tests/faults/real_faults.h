#pragma once

#include <fcntl.h>
#include <linux/capability.h>
#include <poll.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <map>
#include <stdexcept>
#include <utility>

#include "tests/support/temporary_directory.h"

// Faults made for real, by whoever runs the tests: disks that are full, permissions that bind, programs that
// are starved and killed.
namespace coltre {

/// Whether this process may mount disks. Nobody else sees them, and they go when it ends, however it ends.
inline const bool own_mounts = [] {
    const std::string user = std::to_string(::geteuid()), group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWNS) != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
        std::ofstream("/proc/self/setgroups") << "deny";
        std::ofstream("/proc/self/uid_map") << "0 " + user + " 1";
        std::ofstream("/proc/self/gid_map") << "0 " + group + " 1";
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}();

/// The sanitizers make the start of a program slow: under them one round of so many stands for all.
#ifdef __SANITIZE_ADDRESS__
inline constexpr int rounds_for_one = 5;
#else
inline constexpr int rounds_for_one = 1;
#endif

/// The device that every write finds full; a pipe where the test may make no device. Never a link to the
/// system's own: a program that went wrong could replace that.
inline void make_full_device(const std::filesystem::path& file) {
    if (::mknod(file.c_str(), S_IFCHR | 0666, makedev(1, 7)) != 0) ::mkfifo(file.c_str(), 0600);
}

/// A small disk in the place of a directory, empty at first.
class SmallDisk {
  public:
    explicit SmallDisk(std::filesystem::path directory) : m_directory(std::move(directory)) {
        m_mounted = own_mounts && ::mount("none", m_directory.c_str(), "tmpfs", 0, "size=4m,mode=755") == 0;
    }
    ~SmallDisk() {
        if (m_mounted) ::umount2(m_directory.c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    [[nodiscard]] bool mounted() const { return m_mounted; }
    /// Fills the disk but for these bytes.
    void leave(std::uintmax_t bytes) const {
        const std::filesystem::path filler = m_directory / "filler";
        std::filesystem::remove(filler);
        const int file = ::open(filler.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        const auto room = static_cast<off_t>(std::filesystem::space(m_directory).available - bytes);
        const bool filled = ::posix_fallocate(file, 0, room) == 0;
        ::close(file);
        if (!filled) throw std::runtime_error("the disk does not fill");
    }
    void make_read_only() const { ::mount("none", m_directory.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, ""); }

  private:
    std::filesystem::path m_directory;
    bool m_mounted;
};

/// A content short enough to be shown when a test fails.
inline std::string summary(const std::string& content) {
    if (content.size() < 2000) return content;
    return std::to_string(content.size()) + " bytes, hash " +
           std::to_string(std::hash<std::string>()(content));
}

/// All that a directory holds: the name and the summary of each file, of anything else what it is.
inline std::map<std::string, std::string> content_of(const std::filesystem::path& directory) {
    namespace fs = std::filesystem;
    std::map<std::string, std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(directory)) {
        std::string& what = all[entry.path().lexically_relative(directory).string()];
        if (entry.is_symlink()) {
            what = "-> " + fs::read_symlink(entry.path()).string();
        } else if (entry.is_regular_file()) {
            what = summary(read_file(entry.path().string()).value_or("unreadable"));
        } else {
            what = "of type " + std::to_string(static_cast<int>(entry.status().type()));
        }
    }
    return all;
}

/// What coltre-calcolo meets.
struct Conditions {
    bool permissions_bind = false;  ///< also where the administrator runs it
    rlim_t largest_file = RLIM_INFINITY;
    const char* output = nullptr;  ///< the file that its results go to; "": there is none
    const char* input = "/dev/null";
    bool traced = false;  ///< it stops at its start and at every call of the system
};

/// coltre-calcolo under way. It does not outlive the test.
class Command {
  public:
    struct End {
        int status;  ///< -1 if it was killed
        std::string out, err;
    };

    explicit Command(std::vector<std::string> arguments, const Conditions& conditions = {}) {
        arguments.insert(arguments.begin(), COLTRE_CALCOLO);
        std::vector<char*> argv;
        for (std::string& argument : arguments)
            argv.push_back(argument.data());
        argv.push_back(nullptr);
        int out[2], err[2];
        if (::pipe2(out, O_CLOEXEC) != 0 || ::pipe2(err, O_CLOEXEC) != 0) throw std::runtime_error("pipe");
        m_out = out[0];
        m_err = err[0];
        m_process = ::fork();
        if (m_process == 0) {
            ::dup2(out[1], STDOUT_FILENO);
            ::dup2(err[1], STDERR_FILENO);
            become(conditions, argv.data());
        }
        ::close(out[1]);
        ::close(err[1]);
    }
    ~Command() {
        ::kill(m_process, SIGKILL);
        static_cast<void>(wait());
    }
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    [[nodiscard]] pid_t process() const { return m_process; }
    /// Waits for its end, but not longer than this.
    void ends_within(int milliseconds) const {
        pollfd end_of_output{m_out, 0, 0};
        ::poll(&end_of_output, 1, milliseconds);
    }

    End wait() {
        End end{-1, read_all(m_out), read_all(m_err)};
        int status = -1;
        if (::waitpid(m_process, &status, 0) == m_process && WIFEXITED(status))
            end.status = WEXITSTATUS(status);
        return end;
    }

  private:
    [[noreturn]] static void become(const Conditions& conditions, char** argv) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        const auto redirect = [](const char* file, int flags, int descriptor) {
            ::close(descriptor);
            if (*file != '\0' && ::open(file, flags) != descriptor) ::_exit(126);
        };
        redirect(conditions.input, O_RDONLY, STDIN_FILENO);
        if (conditions.output) redirect(conditions.output, O_WRONLY, STDOUT_FILENO);
        if (conditions.permissions_bind)
            for (const int capability : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH})
                ::prctl(PR_CAPBSET_DROP, capability);  // an ordinary user has none
        if (conditions.largest_file != RLIM_INFINITY) {
            const rlimit limit{conditions.largest_file, conditions.largest_file};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        if (conditions.traced) {
            ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1);  // which would trace it as well
            ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        }
        ::execv(argv[0], argv);
        ::_exit(127);
    }

    static std::string read_all(int& descriptor) {
        std::string text;
        char part[4096];
        for (ssize_t taken = 0; descriptor >= 0 && (taken = ::read(descriptor, part, sizeof part)) > 0;)
            text.append(part, static_cast<std::size_t>(taken));
        if (descriptor >= 0) ::close(descriptor);
        descriptor = -1;
        return text;
    }

    pid_t m_process;
    int m_out, m_err;
};

}  // namespace coltre
