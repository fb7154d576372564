#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "platform/code_page.h"
#include "platform/messages.h"
#include "startup/direttori_cond.h"
#include "tests/support/suite_tree.h"
#include "text/characters.h"

// Input: the bytes of the settings file dirlav, the line "== lavoro", then those of lavoro.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

/// First line of a settings file. Bytes are characters here.
std::string setting(std::string_view file) {
    return std::string(trim_blanks(file.substr(0, file.find_first_of("\r\n"))));
}

/// The jobs directory without the separator that may end it.
std::string_view without_end(std::string_view jobs) {
    if (jobs.ends_with('\\') || jobs.ends_with('/')) jobs.remove_suffix(1);
    return jobs;
}

bool ends_with_lavori(std::string_view jobs) {
    constexpr std::string_view name = "lavori\\";
    if (jobs.size() < name.size()) return false;
    return std::ranges::equal(jobs.substr(jobs.size() - name.size()), name, {},
                              [](unsigned char c) { return std::tolower(c); });
}

/// What is reported of the settings files; empty if nothing is wrong.
std::string_view expected_message(std::string_view jobs, std::string_view job) {
    if (jobs.size() < 9) return "dirlav errato o mancante.";
    if (!ends_with_lavori(std::string(without_end(jobs)) + "\\"))
        return "Il direttorio dei lavori deve terminare con < ...\\lavori >.";
    if (job.size() != 6) return "lavoro errato o mancante.";
    return {};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const SuiteTree suite;
    Input input(data, size);
    const std::string_view jobs_file = input.up_to("== lavoro\n").value_or("");
    const std::string_view job_file = input.rest();
    suite.write_setting("DirLav", jobs_file);
    suite.write_setting("LAVORO", job_file);

    Messages messages;
    Directories directories;
    const bool goes_on = check_directories(suite.command_line(), "", "", directories, messages);

    const std::string jobs = setting(jobs_file);
    const std::string job = setting(job_file);
    const std::string_view message = expected_message(jobs, job);
    require(goes_on == message.empty(), "the settings files are judged");
    require(messages.size() == (goes_on ? 0U : 1U), "a fault is reported once");
    if (goes_on) {
        const std::string directory = std::string(without_end(jobs)) + "\\" + job;
        require(directories.WorkDirectory == from_code_page(directory), "the directory of the job");
    } else {
        require(messages.front().text.ends_with(message), "the fault is reported by its text");
    }
    return 0;
}
