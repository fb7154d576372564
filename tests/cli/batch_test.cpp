#include <gmock/gmock.h>

#include <streambuf>

#include "tests/cli/run_command.h"
#include "tests/support/temporary_directory.h"

namespace coltre::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

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
    EXPECT_THAT(errors, ElementsAre("riga vuota", HasSubstr("JSON illeggibile"), "errore numerico", no_object,
                                    no_object, HasSubstr("più lunga"), ""));
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
    std::vector<std::string> answers;
    for (const Json& result : run.results()) {
        const Json& last = result[result["errore"].is_null() ? "zona" : "errore"];
        answers.push_back(result.value("provincia", "") + "; " + result.value("comune", "") + "; " +
                          (last.is_string() ? last.get<std::string>() : last.dump()));
    }
    EXPECT_THAT(
        answers,
        ElementsAre("Forlì; Forlì; 1", "Torino; Aglie'; 0",
                    "Vicenza; Vicenza; Errore in lettura del file altitudine.txt .",
                    StartsWith("Torin; Torino; provincia sconosciuta: «Torin»; forse Torino"),
                    StartsWith("Torino; Moncaliere; comune sconosciuto: «Moncaliere»; forse Moncalieri"),
                    "Palermo; Palermo; 3"));
}

/// Hands lines on one by one, each made when it is asked for; an empty one ends them.
struct StepwiseInput : std::streambuf {
    explicit StepwiseInput(std::function<std::string()> make) : make_line(std::move(make)) {}
    int_type underflow() override {
        line = make_line();
        setg(line.data(), line.data(), line.data() + line.size());
        return line.empty() ? traits_type::eof() : traits_type::to_int_type(line.front());
    }
    std::function<std::string()> make_line;
    std::string line;
};

TEST_F(BatchByName, FileThatChangesMeanwhileCountsFromTheNextRun) {
    StepwiseInput lines([this, line = 0]() mutable {
        if (++line == 3) directory.put("altitudini.txt", "Torino\r\nTorino   777\r\n\r\n");
        if (line == 4) directory.put("altitudini.txt", "Torino\r\nTorino   778\r\n\r\n");
        return line > 4 ? "" : place("Torino", "Torino") + "\n";
    });
    std::istream in(&lines);
    std::vector<double> altitudes;
    for (const Json& result : run_command({"lotto"}, in).results())
        altitudes.push_back(result["altitudine"]);
    EXPECT_THAT(altitudes, ElementsAre(239, 239, 239, 239));
    EXPECT_EQ(run_command({"lotto"}, {place("Torino", "Torino")}).results().at(0)["altitudine"], 778);
}

}  // namespace
}  // namespace coltre::cli
