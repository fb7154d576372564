#include "text/csv.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

#include "cli/batch.h"
#include "fuzz/require.h"
#include "site/built_in_altitudes.h"
#include "tests/support/temporary_directory.h"
#include "text/characters.h"

// Input: a table of requests. One that names a column for files is left out, so that an execution writes
// none.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

/// Hands a text on byte by byte, as a slow pipe does.
struct ByteByByte : std::streambuf {
    explicit ByteByByte(std::string_view text) : rest(text) {}
    int_type underflow() override {
        if (rest.empty()) return traits_type::eof();
        byte = rest.front();
        rest.remove_prefix(1);
        setg(&byte, &byte, &byte + 1);
        return traits_type::to_int_type(byte);
    }
    std::string_view rest;
    char byte = 0;
};

struct Record {
    std::vector<std::string> fields;
    CsvFault fault;
};

std::vector<Record> records(std::istream& in) {
    CsvReader reader(in);
    std::vector<Record> records;
    while (reader.next())
        records.push_back({{reader.fields().begin(), reader.fields().end()}, reader.fault()});
    return records;
}

bool names_files(std::string_view text) {
    const std::string lower = lower_case(text);
    return lower.find("relazione") != lower.npos || lower.find("illustrata") != lower.npos ||
           lower.find("altitudini") != lower.npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const struct Directory : TemporaryDirectory {
        Directory() { put("altitudini.txt", built_in_altitude_file()); }
    } program;
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (names_files(text)) return 0;

    // How the bytes arrive must change nothing: the answers are compared with what is read at once.
    std::istringstream at_once(text);
    ByteByByte bytes(text);
    std::istream slow(&bytes);
    std::stringstream out;
    const cli::BatchOutcome outcome =
        cli::run_csv_batch(size % 2 == 0 ? slow : at_once, out, {.own_directory = program.text()});
    if (outcome.end == cli::BatchEnd::wrong_header) {
        require(out.str().empty() && outcome.header_error.has_value(), "a wrong header is told");
        return 0;
    }
    std::istringstream in(text);
    const std::vector<Record> read = records(in);
    for (const Record& record : read)
        for (const std::string& field : record.fields)
            require(csv_value(csv_field(csv_value(field), ';')) == csv_value(field), "a value survives");
    const std::vector<Record> answers = records(out);
    require(answers.size() == read.size() && outcome.requests + 1 == read.size(), "a line has one answer");
    const std::size_t columns = read.front().fields.size();
    std::size_t failed = 0;
    for (std::size_t i = 0; i < answers.size(); ++i) {
        const Record& answer = answers[i];
        require(answer.fault == CsvFault::none, "an answer is whole");
        require(answer.fields.size() == answers.front().fields.size(), "an answer has all columns");
        for (std::size_t k = 0; k < std::min(columns, read[i].fields.size()); ++k)
            require(answer.fields[k] == read[i].fields[k], "the request stays as it was");
        if (i == 0) continue;
        failed += answer.fields.back().empty() ? 0 : 1;
        require(!answer.fields.back().empty() || !answer.fields[columns].empty(), "a result or an error");
    }
    require(failed == outcome.failed, "a fault is reported");
    return 0;
}
