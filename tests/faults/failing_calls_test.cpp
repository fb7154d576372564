// Every call of the system and every request for memory fails once, in turn, or all of its name from there
// on. The functions of the C library that the program calls are replaced in this test's own program.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <linux/fs.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdlib>
#include <functional>
#include <map>
#include <new>
#include <sstream>

#include "cli/batch.h"
#include "platform/file_replacement.h"
#include "site/altitude_check.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"
#include "site/municipalities.h"
#include "tests/support/temporary_directory.h"

namespace {

/// The call that fails next, and what has been called so far.
struct {
    bool on = false;
    bool memory = false;  ///< requests for memory are what fails, not calls of the system
    int at = 0;           ///< number of the call that fails
    bool all = false;     ///< those of its name behind it as well
    int error = 0;
    int made = 0;
    const char* failed = nullptr;  ///< its name, once it has failed
} plan;

bool fails(const char* call, bool memory = false) {
    if (!plan.on || plan.memory != memory) return false;
    const int number = plan.made++;
    if (number == plan.at) plan.failed = call;
    const bool again = plan.all && plan.failed != nullptr && std::string_view(plan.failed) == call;
    if (number != plan.at && !again) return false;
    errno = plan.error;
    return true;
}

template <typename... Arguments>
long call(const char* name, long number, Arguments... arguments) {
    return fails(name) ? -1 : ::syscall(number, arguments...);
}

}  // namespace

extern "C" {
int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return static_cast<int>(call("open", SYS_openat, AT_FDCWD, path, flags, mode));
}
int lstat(const char* path, struct stat* status) noexcept {
    return static_cast<int>(call("lstat", SYS_newfstatat, AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW));
}
int fstat(int file, struct stat* status) noexcept {
    return static_cast<int>(call("fstat", SYS_newfstatat, file, "", status, AT_EMPTY_PATH));
}
ssize_t read(int file, void* bytes, size_t size) {
    return call("read", SYS_read, file, bytes, size);
}
ssize_t write(int file, const void* bytes, size_t size) {
    return call("write", SYS_write, file, bytes, size);
}
/// Nobody waits, neither for the disk nor for a time.
int fsync(int) {
    return fails("fsync") ? -1 : 0;
}
int close(int file) {
    const bool failing = fails("close");
    const long result = ::syscall(SYS_close, file);  // which frees the number even when it fails
    if (failing) errno = plan.error;
    return failing ? -1 : static_cast<int>(result);
}
int rename(const char* from, const char* to) noexcept {
    return static_cast<int>(call("rename", SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
int renameat2(int from_place, const char* from, int to_place, const char* to, unsigned flags) noexcept {
    return static_cast<int>(call("renameat2", SYS_renameat2, from_place, from, to_place, to, flags));
}
int link(const char* from, const char* to) noexcept {
    return static_cast<int>(call("link", SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}
int unlink(const char* path) noexcept {
    return static_cast<int>(call("unlink", SYS_unlinkat, AT_FDCWD, path, 0));
}
int access(const char* path, int mode) noexcept {
    return static_cast<int>(call("access", SYS_faccessat, AT_FDCWD, path, mode));
}
int fchown(int file, uid_t owner, gid_t group) noexcept {
    return static_cast<int>(call("fchown", SYS_fchown, file, owner, group));
}
int fchmod(int file, mode_t mode) noexcept {
    return static_cast<int>(call("fchmod", SYS_fchmod, file, mode));
}
int flock(int file, int operation) noexcept {
    return static_cast<int>(call("flock", SYS_flock, file, operation));
}
int nanosleep(const timespec*, timespec*) {
    return 0;
}
int clock_nanosleep(clockid_t, int, const timespec*, timespec*) {
    return 0;
}
}

[[gnu::noinline]] void* operator new(std::size_t size) {
    void* const memory = fails("new", true) ? nullptr : std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return fails("new", true) ? nullptr : std::malloc(size);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace coltre {
namespace {

namespace fs = std::filesystem;

/// What a deed reported.
struct Report {
    bool failed = false;
    std::string altitude{};  ///< that it read, if it read one
    bool warned = false;     ///< it said that something is not as it should be
};

/// Does something in a directory that holds an engineer's own files.
using Deed = std::function<Report(const TemporaryDirectory&)>;

const std::vector<int> passing_errors{EIO, EINTR, EMFILE, ESTALE, ENOMEM},
    lasting_errors{ENOENT, EACCES, ENOSPC};

std::vector<int> all_errors() {
    std::vector<int> errors = passing_errors;
    errors.insert(errors.end(), lasting_errors.begin(), lasting_errors.end());
    return errors;
}

const std::string own_table = "Torino\r\nTorino   999\r\n\r\n";

Report write_table(const TemporaryDirectory& directory) {
    const TableReplacement done = replace_altitude_file(directory.text(), built_in_altitude_file());
    return {.failed = done.failure.has_value()};
}

Report repair_table(const TemporaryDirectory& directory) {
    return {.failed = repair_altitude_file(directory.text()).failure.has_value()};
}

Report choose_in_the_window(const TemporaryDirectory& directory) {
    AltitudeNotices notices;
    const auto names = FillMunicipalities(directory.text(), "Torino", notices);
    const auto altitude = names ? ReadAltitude(directory.text(), "Torino", "Torino", notices) : std::nullopt;
    return {!altitude, altitude.value_or(""), !notices.messages.empty() || !notices.note.empty()};
}

/// A request by name.
/// @param key  what it has besides: a key, and as its value this file in the directory
Report run_batch(const TemporaryDirectory& directory, std::string_view key, std::string_view file) {
    plan.on = false;
    std::istringstream in(
        R"({"id":1,"calcolo":"una-falda","alfa":15,"provincia":"Torino","comune":"Torino",)" +
        std::string(key) + ":\"" + directory.name() + std::string(file) + "\"}");
    std::ostringstream out(std::string(2000, ' '));
    out.str("");  // which leaves it the room: the stream would hide that it lacks memory
    const Environment environment{.own_directory = directory.text()};
    plan.on = true;
    const cli::BatchEnd end = cli::run_batch(in, out, environment).end;
    plan.on = false;
    const std::string answer = out.str();
    const bool failed = answer.find("\"errore\": null") == std::string::npos;
    EXPECT_EQ(failed, end != cli::BatchEnd::all_well) << answer;
    EXPECT_THAT(answer, testing::AllOf(testing::StartsWith("{"), testing::EndsWith("}\n")));
    const std::size_t altitude = answer.find("\"altitudine\": ");
    return {failed, altitude == std::string::npos ? "" : answer.substr(altitude + 14, 3),
            answer.find("\"messaggi\": []") == std::string::npos};
}

Report batch_line(const TemporaryDirectory& directory) {
    return run_batch(directory, R"("altitudini")", "");
}

Report write_report(const TemporaryDirectory& directory) {
    return run_batch(directory, R"("relazione")", "");
}

Report write_illustrated_report(const TemporaryDirectory& directory) {
    return run_batch(directory, R"("illustrata")", "/tetto.html");
}

class FailingCalls : public testing::Test {
  protected:
    TemporaryDirectory directory;
    std::map<std::string, std::string> before,
        done;  ///< the files, and as a deed without a fault leaves them

    void put_files() const {
        for (const std::string& name : directory.files())
            fs::remove(directory.path() / name);
        directory.put("altitudini.txt", own_table);
        directory.put("altitudini.bak", "first");
        directory.put("coltre.txt", "old report");
    }

    [[nodiscard]] std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> files;
        for (const std::string& file : directory.files())
            files[file] = directory.content(file).value_or("unreadable");
        return files;
    }

    /// Does it without a fault.
    void learn(const Deed& deed) {
        put_files();
        before = files();
        plan = {.at = -1};
        EXPECT_FALSE(deed(directory).failed);
        done = files();
    }

    /// Nothing of the engineer's is lost, nothing is half written, and what was reported is true.
    void check(const std::string& name, const Report& report) {
        std::map<std::string, std::string> left = files();
        int own = 0, first = 0;
        for (const auto& [file, bytes] : left) {
            EXPECT_TRUE(!file.ends_with(".tmp") || plan.all || plan.failed == std::string("unlink")) << file;
            own += file.starts_with("altitudini.") && bytes == own_table ? 1 : 0;
            first += file.starts_with("altitudini.bak") && bytes == "first" ? 1 : 0;
        }
        EXPECT_GE(own, 1) << "the engineer's table is lost";
        EXPECT_EQ(first, 1) << "the engineer's backup is lost";
        const bool was_replaced = left["altitudini.txt"] != own_table;
        const std::string& table = left["altitudini.txt"];
        EXPECT_TRUE(!was_replaced || table == built_in_altitude_file() ||
                    inspect_altitudes(table).faults.empty())
            << "half a table";
        for (const char* const file : {"coltre.txt", "tetto.html"}) {
            const bool other_site = !report.failed && report.altitude != "999";
            EXPECT_TRUE(left[file] == (report.failed ? before : done)[file] ||
                        (plan.memory && left[file] == done[file]) ||  // too little was left to tell
                        (other_site && left[file].size() + 10 > done[file].size()))
                << file << " is not what was reported: " << left[file].size() << " bytes";
        }
        const bool own_answered = report.altitude.empty() || report.altitude == "999";
        EXPECT_TRUE(own_answered || report.warned) << "the altitude of another table, and no word of it";
        if (!plan.all && std::ranges::count(passing_errors, plan.error) > 0) {
            EXPECT_TRUE(name == "scrivi" || name == "ripara" || report.altitude == "999")
                << "not tried again";
        }
        if (name == "scrivi" || name == "ripara") {
            EXPECT_TRUE(was_replaced || report.failed) << "a success that is none";
        } else if (was_replaced) {
            const bool unreadable = plan.all && std::ranges::count(lasting_errors, plan.error) > 0;
            EXPECT_TRUE(name == "finestra" && unreadable && report.warned) << "replaced without need or word";
        }
        const bool not_on_disk = plan.failed == std::string("fsync") && plan.error != EINTR;
        EXPECT_TRUE(report.failed || !not_on_disk) << "not on the disk, and no word";
    }
};

const std::map<std::string, Deed> deeds{
    {"scrivi", write_table}, {"ripara", repair_table},    {"finestra", choose_in_the_window},
    {"lotto", batch_line},   {"relazione", write_report}, {"illustrata", write_illustrated_report}};

bool is_batch(const std::string& name) {
    return name == "lotto" || name == "relazione" || name == "illustrata";
}

TEST_F(FailingCalls, OfTheSystemLoseNothingAndAreReported) {
    for (const auto& [name, deed] : deeds) {
        learn(deed);
        for (const int error : all_errors())
            for (const bool all : {false, true}) {
                if (all && error == EINTR) continue;  // the call is made until it goes on
                for (int at = 0; !HasFailure(); ++at) {
                    put_files();
                    plan = {.on = true, .at = at, .all = all, .error = error};
                    const Report report = deed(directory);
                    plan.on = false;
                    if (plan.failed == nullptr) break;
                    SCOPED_TRACE(name + ": " + plan.failed + " fails with " + std::to_string(error) +
                                 " as call " + std::to_string(at) + (all ? " and all that follow" : ""));
                    check(name, report);
                }
            }
    }
}

TEST_F(FailingCalls, ForMemoryLoseNothingAndEndTheRequestAlone) {
    // What is made once and kept.
    static_cast<void>(inspect_altitudes(own_table));
    for (const auto& [name, deed] : deeds) {
        learn(deed);
        for (int at = 0; !HasFailure(); ++at) {
            put_files();
            plan = {.on = true, .memory = true, .at = at};
            Report report;
            try {
                report = deed(directory);
            } catch (const std::bad_alloc&) {
                plan.on = false;
                // The first of a batch is for its line buffer.
                EXPECT_TRUE(!is_batch(name) || at == 0) << "request for memory " << at << " ended the batch";
                report.failed = true;
            }
            plan.on = false;
            if (plan.failed == nullptr) break;
            SCOPED_TRACE(name + ": request for memory " + std::to_string(at));
            check(name, report);
        }
    }
}

}  // namespace
}  // namespace coltre
