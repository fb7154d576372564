#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>
#include <fstream>

#include "platform/files.h"
#include "tests/cli/run_command.h"
#include "tests/support/temporary_directory.h"
#include "text/VarieBanali_cond.h"

// Whole calculations against the files in tests/data/golden: requests.jsonl, the results that they must give
// in expected.jsonl, and the reports that they must leave. All of them were computed apart from this program.
//
// A case is one line in each of the two files, with the same "id", in the same order, and reports/<id>.txt if
// it writes a report. "@DIR@" stands for a directory of its own. "*" stands for the text of a message whose
// wording is the program's own.
namespace coltre::cli {
namespace {

namespace fs = std::filesystem;

const fs::path golden = TEST_DATA "/golden";

std::vector<std::string> lines_of(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::string with_directory(std::string text, const std::string& directory) {
    replace_all(text, "@DIR@", directory, false);
    return text;
}

void expect_numbers(const Json& actual, const Json& expected) {
    ASSERT_EQ(actual.size(), expected.size()) << actual << " instead of " << expected;
    for (auto a = actual.begin(), e = expected.begin(); e != expected.end(); ++a, ++e) {
        EXPECT_EQ(a.key(), e.key());
        EXPECT_NEAR(a->get<double>(), e->get<double>(), 1e-12 * std::abs(e->get<double>())) << e.key();
    }
}

void expect_messages(const Json& actual, const Json& expected, const std::string& directory) {
    ASSERT_EQ(actual.size(), expected.size()) << actual;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(actual[i]["icona"], expected[i]["icona"]);
        EXPECT_EQ(actual[i]["titolo"], expected[i]["titolo"]);
        const auto text = actual[i]["testo"].get<std::string>();
        EXPECT_NE(text, "");
        if (expected[i]["testo"] != "*") {
            EXPECT_EQ(text, with_directory(expected[i]["testo"], directory));
        }
    }
}

void expect_report(const fs::path& directory, const fs::path& expected, const Json& result) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(directory))
        files.push_back(entry.path());
    if (!fs::exists(expected)) {
        EXPECT_THAT(files, testing::IsEmpty());
        EXPECT_FALSE(result.contains("relazione"));
        return;
    }
    ASSERT_THAT(files, testing::ElementsAre(to_path(result.value("relazione", ""))));
    const std::string_view family = result["calcolo"].get_ref<const std::string&>();
    const bool special = family == "discontinuita" || family == "parete" || family == "ostacolo";
    EXPECT_EQ(files.front().filename(), special ? "coltrecasipart.txt" : "coltre.txt");

    EXPECT_EQ(read_file(path_text(files.front())), read_file(path_text(expected)));
}

TEST(Golden, EveryCaseGivesItsResultAndItsReport) {
    const TemporaryDirectory directory;
    std::vector<std::string> requests = lines_of(golden / "requests.jsonl");
    for (std::string& request : requests) {
        const fs::path own = directory.path() / Json::parse(request)["id"].get<std::string>();
        fs::create_directory(own);
        request = with_directory(request, path_text(own.generic_u8string()));
    }
    const auto results = run_command({"lotto"}, requests).results();
    const auto expected = lines_of(golden / "expected.jsonl");
    ASSERT_EQ(results.size(), expected.size());
    for (std::size_t i = 0; i < results.size(); ++i) {
        const Json& result = results[i];
        const Json wanted = Json::parse(expected[i]);
        const auto id = wanted["id"].get<std::string>();
        SCOPED_TRACE(id);
        ASSERT_EQ(result["id"], id);
        EXPECT_EQ(result["errore"], wanted["errore"]);
        ASSERT_EQ(result.contains("qsk"), wanted.contains("qsk"));
        if (wanted.contains("qsk")) expect_numbers({{"qsk", result["qsk"]}}, {{"qsk", wanted["qsk"]}});
        expect_numbers(result["mu"], wanted["mu"]);
        expect_numbers(result["risultati"], wanted["risultati"]);
        const fs::path own = directory.path() / id;
        expect_messages(result["messaggi"], wanted["messaggi"], suite_notation(own));
        expect_report(own, golden / "reports" / (id + ".txt"), result);
    }
}

TEST(Golden, OrderOfTheRequestsChangesNoResult) {
    const TemporaryDirectory directory;
    std::vector<std::string> requests = lines_of(golden / "requests.jsonl");
    for (std::string& request : requests)
        request = with_directory(request, directory.name());
    auto results = run_command({"lotto"}, requests).results();
    std::ranges::reverse(requests);
    std::ranges::reverse(results);
    EXPECT_EQ(run_command({"lotto"}, requests).results(), results);
}

}  // namespace
}  // namespace coltre::cli
