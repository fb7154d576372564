#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/batch.h"
#include "cli/json_request.h"
#include "fuzz/require.h"
#include "platform/files.h"
#include "site/built_in_altitudes.h"
#include "tests/support/temporary_directory.h"

// Input: the lines of a batch. It runs in an empty directory that holds nothing but the directory
// "relazioni".

namespace {

namespace fs = std::filesystem;
using namespace coltre;
using namespace coltre::fuzz;

/// The directory that the batch runs in, for as long as one execution takes: where the fuzzer itself looks
/// for files is left alone.
class Workplace {
  public:
    explicit Workplace(const TemporaryDirectory& parent)
        : m_back(fs::current_path()), m_path(parent.path() / "ufficio") {
        fs::create_directories(m_path / "relazioni");
        fs::current_path(m_path);
    }
    ~Workplace() {
        fs::current_path(m_back);
        fs::remove_all(m_path);
    }
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    void check_files() const {
        for (const auto& entry : fs::recursive_directory_iterator(m_path)) {
            const std::string name = entry.path().filename().string();
            require(name == "relazioni" || name == "altitudini.txt" || name == "coltre.txt" ||
                        name == "coltrecasipart.txt",
                    "a batch leaves its own files alone");
        }
    }

  private:
    fs::path m_back;
    fs::path m_path;
};

std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// Whether all directories of the request lie in the workplace.
bool stays_inside(const cli::Request& request) {
    for (const cli::Key key : {cli::Key::relazione, cli::Key::altitudini}) {
        const std::string directory = request.value_or(key, "");
        if (directory.starts_with('/') || directory.starts_with('\\')) return false;
        if (directory.find("..") != std::string::npos) return false;
    }
    return true;
}

std::string answers(const std::string& lines, const TemporaryDirectory& program) {
    const Workplace workplace(program);
    std::istringstream in(lines);
    std::ostringstream out;
    const cli::BatchEnd end =
        cli::run_batch(in, out, {.own_directory = program.text(), .decimal_separator = ','});
    require(end == cli::BatchEnd::all_well || end == cli::BatchEnd::some_failed, "the streams are sound");
    workplace.check_files();
    return out.str();
}

void check_answer(const std::string& line, const std::string& text) {
    const auto answer = nlohmann::json::parse(text, nullptr, false);
    require(answer.is_object(), "an answer is a JSON object");
    require(answer.contains("errore"), "an answer says whether something went wrong");
    const auto& error = answer["errore"];
    require(error.is_null() || (error.is_string() && error != ""), "a fault is told");
    if (error.is_null()) require(answer["qsk"].is_number(), "an answer without a fault has its result");

    const auto request = nlohmann::json::parse(line, nullptr, false);
    if (!request.is_object()) return;
    require(request.contains("id") == answer.contains("id"), "an answer has the id of its request");
    if (request.contains("id")) require(request["id"] == answer["id"], "the id is echoed");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryDirectory program;
    static const std::string built_in = built_in_altitude_file();
    if (!program.content("altitudini.txt")) program.put("altitudini.txt", built_in);

    const std::string batch(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string> lines = lines_of(batch);
    for (const std::string& line : lines) {
        if (!stays_inside(cli::read_json_request(line).request)) return 0;
    }
    const std::vector<std::string> results = lines_of(answers(batch, program));
    require(results.size() == lines.size(), "every line has one answer");
    for (std::size_t i = 0; i < lines.size(); ++i)
        check_answer(lines[i], results[i]);
    if (lines.size() > 1)
        require(answers(lines.back() + "\n", program) == results.back() + "\n",
                "a request fares the same alone");

    require(program.files() == std::vector<std::string>{"altitudini.txt"}, "nothing beside the table");
    return 0;
}
