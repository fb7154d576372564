#include <gmock/gmock.h>

#include <fstream>
#include <functional>
#include <streambuf>

#include "tests/cli/run_command.h"
#include "tests/support/temporary_directory.h"

namespace coltre::cli {
namespace {

using testing::HasSubstr;

/// A request for the roof of this site, with further members.
std::string request(const std::string& site, const std::string& more = R"("alfa":15)") {
    return R"({"calcolo":"una-falda",)" + site + "," + more + "}";
}

const std::string by_number = R"("zona":0,"altitudine":100)";

TEST(Batch, GoesOnAfterALineThatIsNoRequest) {
    const std::vector<std::string> lines{"",
                                         R"({"calcolo":"una-falda","id":[1,)",
                                         request(by_number, R"("alfa":1e400)"),
                                         "[" + request(by_number) + "]",
                                         "15",
                                         std::string(2'000'000, ' '),
                                         request(by_number)};
    const CommandRun run = run_command({"lotto"}, lines);
    EXPECT_EQ(run.status, failed);
    std::vector<std::string> errors;
    for (const Json& result : run.results())
        errors.push_back(result["errore"].is_null() ? "" : result["errore"].get<std::string>());
    const std::string no_object = "la richiesta deve essere un oggetto JSON";
    EXPECT_THAT(errors, testing::ElementsAre("riga vuota", HasSubstr("JSON illeggibile"), "errore numerico",
                                             no_object, no_object, HasSubstr("più lunga"), ""));
}

TEST(Batch, IdComesBackWhateverItIs) {
    for (const std::string id :
         {"1", "null", "false", R"("è \"x\"\n")", R"([1,{"a":[]},"b"])", R"({"c":{"d":-2.5e3}})"}) {
        for (const std::string& line :
             {request(by_number, R"("alfa":15,"id":)" + id), R"({"id":)" + id + R"(,"alfa":{}})"})
            EXPECT_EQ(run_command({"lotto"}, {line}).results().at(0)["id"], Json::parse(id)) << line;
    }
}

class BatchByName : public testing::Test {
  protected:
    [[nodiscard]] std::string place(const std::string& province, const std::string& municipality) const {
        return request(R"("provincia":")" + province + R"(","comune":")" + municipality +
                       R"(","altitudini":")" + directory.path().string() + R"(")");
    }
    TemporaryDirectory directory;
};

TEST_F(BatchByName, NamesAreMatchedAndAnsweredInTheTablesSpelling) {
    const CommandRun run = run_command(
        {"lotto"}, {place("FORLI'", "forlì"), place("torino", "AGLIÈ"), place("Vicenza", "Vicenza"),
                    place("Torin", "Torino"), place("Torino", "Moncaliere"), place("Palermo", "palermo")});
    EXPECT_EQ(run.status, failed);
    const auto results = run.results();
    EXPECT_EQ(results[0]["provincia"], "Forlì");
    EXPECT_EQ(results[0]["comune"], "Forlì");
    EXPECT_EQ(results[0]["altitudine"], 34);
    EXPECT_EQ(results[1]["comune"], "Aglie'");
    EXPECT_EQ(results[1]["zona"], 0);
    EXPECT_EQ(results[2]["errore"], "Errore in lettura del file altitudine.txt .")
        << "a line of its block has no blank";
    EXPECT_EQ(results[2]["messaggi"].size(), 1U);
    EXPECT_THAT(results[3].value("errore", ""),
                testing::StartsWith("provincia sconosciuta: «Torin»; forse Torino"));
    EXPECT_THAT(results[4].value("errore", ""),
                testing::StartsWith("comune sconosciuto: «Moncaliere»; forse Moncalieri"));
    EXPECT_EQ(results[5]["comune"], "Palermo");
    EXPECT_EQ(results[5]["zona"], 3);
    EXPECT_EQ(results[5]["errore"], nullptr);
}

/// Hands lines on one by one; a step comes before each.
class StepwiseInput : public std::streambuf {
  public:
    StepwiseInput(std::vector<std::string> lines, std::function<void(std::size_t)> before_line)
        : m_lines(std::move(lines)), m_before_line(std::move(before_line)) {}

  protected:
    int_type underflow() override {
        if (m_next == m_lines.size()) return traits_type::eof();
        m_before_line(m_next);
        std::string& line = m_lines[m_next++].append("\n");
        setg(line.data(), line.data(), line.data() + line.size());
        return traits_type::to_int_type(line.front());
    }

  private:
    std::vector<std::string> m_lines;
    std::function<void(std::size_t)> m_before_line;
    std::size_t m_next = 0;
};

TEST_F(BatchByName, FileThatChangesMeanwhileCountsAtOnce) {
    const std::string torino = place("Torino", "Torino");
    StepwiseInput lines({torino, torino, torino, torino}, [&](std::size_t line) {
        if (line == 2) std::ofstream(directory.path() / "altitudini.txt") << "Torino\r\nTorino   777\r\n\r\n";
        if (line == 3) std::ofstream(directory.path() / "altitudini.txt") << "Torino\r\nTorino   778\r\n\r\n";
    });
    std::istream in(&lines);
    std::vector<double> altitudes;
    for (const Json& result : run_command({"lotto"}, in).results())
        altitudes.push_back(result["altitudine"]);
    EXPECT_THAT(altitudes, testing::ElementsAre(239, 239, 777, 778));
}

TEST(Batch, ClosedOutputIsAFailure) {
    std::istringstream in(request(by_number) + "\n");
    std::ostream closed(nullptr);
    std::ostringstream err;
    EXPECT_EQ(run(std::vector<std::string>{"lotto"}, {}, in, closed, err), failed);
    EXPECT_THAT(err.str(), HasSubstr("impossibile scrivere i risultati"));
}

}  // namespace
}  // namespace coltre::cli
