#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/batch.h"
#include "fuzz/require.h"
#include "requests/json_request.h"
#include "site/built_in_altitudes.h"
#include "tests/support/temporary_directory.h"

// Input: the lines of a batch. Their files are left out, so that an execution writes none; reports are the
// business of the target report. Names are looked for in a table that stays as it is.

namespace {

using namespace coltre;
using namespace coltre::fuzz;
using Json = nlohmann::ordered_json;

/// The program's own directory, with the table.
struct ProgramDirectory : TemporaryDirectory {
    ProgramDirectory() { put("altitudini.txt", built_in_altitude_file()); }
};

/// The text as another reader understands it.
struct Reading {
    enum class Verdict { readable, unreadable, undecided };
    Verdict verdict;
    Json value;
};

Reading read(const std::string& text) {
    try {
        // A null character ends the text for this reader.
        if (text.find('\0') != std::string::npos) return {Reading::Verdict::undecided, {}};
        return {Reading::Verdict::readable, Json::parse(text)};
    } catch (const Json::out_of_range&) {
        return {Reading::Verdict::undecided, {}};  // a number beyond the range of doubles
    } catch (const Json::parse_error&) {
        return {Reading::Verdict::unreadable, {}};
    }
}

constexpr std::array file_keys{keys::relazione, keys::altitudini, keys::illustrata};

/// The lines, those that would be performed without the files that they name.
std::vector<std::string> lines_without_files(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line); lines.push_back(line)) {
        const JsonRequest read = read_json_request(line);
        if (read.error) continue;
        const auto is_named = [&](const Key& key) { return read.request.value(key) != nullptr; };
        if (std::ranges::none_of(file_keys, is_named)) continue;
        Json object = Json::parse(line, nullptr, false);
        line.clear();
        if (!object.is_object()) continue;
        for (const Key& key : file_keys)
            object.erase(std::string(key.name));
        line = object.dump();
    }
    return lines;
}

std::vector<std::string> answers(const std::vector<std::string>& lines, const std::string& directory) {
    std::string batch;
    for (const std::string& line : lines)
        batch += line + '\n';
    std::istringstream in(batch);
    std::stringstream out;
    const cli::BatchEnd end =
        cli::run_batch(in, out, {.own_directory = directory, .decimal_separator = ','}).end;
    require(end == cli::BatchEnd::all_well || end == cli::BatchEnd::some_failed, "the streams are sound");
    std::vector<std::string> answers;
    for (std::string answer; std::getline(out, answer);)
        answers.push_back(answer);
    return answers;
}

void check_answer(const std::string& line, const std::string& text) {
    const Reading request = read(line);
    const auto [verdict, answer] = read(text);
    if (verdict == Reading::Verdict::undecided) return require(request.verdict == verdict, "an id is echoed");
    require(answer.is_object(), "an answer is a JSON object");
    require(answer.contains("errore"), "an answer says whether something went wrong");
    const Json& error = answer["errore"];
    require(error.is_null() || (error.is_string() && error != ""), "a fault is reported");
    if (error.is_null()) require(answer["qsk"].is_number(), "an answer without a fault has its result");

    if (request.verdict == Reading::Verdict::undecided) return;
    const std::string why = error.is_null() ? "" : error.get<std::string>();
    const bool unreadable = why == "riga vuota" || why.starts_with("JSON illeggibile");
    require(unreadable == (request.verdict == Reading::Verdict::unreadable), "what is JSON is read");
    if (!request.value.is_object()) return;
    require(request.value.contains("id") == answer.contains("id"), "an answer has the id of its request");
    if (answer.contains("id")) require(request.value["id"] == answer["id"], "the id is echoed");
    if (error.is_null()) require(request.value["calcolo"] == answer["calcolo"], "the calculation is echoed");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ProgramDirectory program;

    auto lines = lines_without_files(std::string(reinterpret_cast<const char*>(data), size));
    if (lines.empty()) return 0;
    lines.push_back(lines.front());
    const auto results = answers(lines, program.text());
    require(results.size() == lines.size(), "every line has one answer");
    require(results.front() == results.back(), "what stands before a request changes nothing");
    for (std::size_t i = 0; i + 1 < lines.size(); ++i)
        check_answer(lines[i], results[i]);
    return 0;
}
