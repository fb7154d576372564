#include "cli/batch.h"

#include <gmock/gmock.h>

#include <sstream>

#include "tests/cli/run_command.h"
#include "tests/support/temporary_directory.h"
#include "text/json_text.h"

namespace coltre::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using namespace std::string_literals;

/// A request for the roof of this site, with further members.
std::string request(const std::string& site, const std::string& more = R"("alfa":15)") {
    return R"({"calcolo":"una-falda",)" + site + "," + more + "}";
}

const std::string by_number = R"("zona":0,"altitudine":100)";

std::string error_of(const Json& result) {
    return result["errore"].is_null() ? "" : result["errore"].get<std::string>();
}

TEST(Batch, GoesOnAfterALineThatIsNoRequest) {
    const std::vector<std::string> lines{"",
                                         R"({"calcolo":"una-falda","id":[1,)",
                                         request(by_number, R"("alfa":1e400,"ce":)" + std::string(400, '9')),
                                         "[" + request(by_number) + "]",
                                         "15",
                                         std::string(2'000'000, ' '),
                                         "\xEF\xBB\xBF" + request(by_number) + "\r"};
    const CommandRun run = run_command({"lotto"}, lines);
    EXPECT_EQ(run.status, failed);
    std::vector<std::string> errors;
    for (const Json& result : run.results())
        errors.push_back(error_of(result));
    const std::string no_object = "la richiesta deve essere un oggetto JSON";
    EXPECT_THAT(errors, ElementsAre("riga vuota", HasSubstr("JSON illeggibile"), "errore numerico", no_object,
                                    no_object, HasSubstr("più lunga"), ""));
}

TEST(Batch, ReadsLinesWholeUpToTheLongest) {
    for (const std::size_t length : {4095U, 4096U, 4097U, 8192U, 1'048'576U, 1'048'577U}) {
        std::string line = request(by_number);
        line.insert(0, length - line.size(), ' ');
        const std::size_t failures = length > 1'048'576 ? 2 : 0;
        for (const std::string end : {"\n", ""}) {
            std::istringstream in(line + "\n" + line + end);
            std::ostringstream out;
            const BatchOutcome outcome = run_batch(in, out, {});
            EXPECT_EQ(outcome.requests, 2) << length;
            EXPECT_EQ(outcome.failed, failures) << length;
        }
    }
}

TEST(Batch, TellsTheStepThatStoppedItAndWhatTheIllustratedReportLacks) {
    const CommandRun run =
        run_command({"lotto"}, {request(by_number, R"("alfa":15,"passaggi":true,"periodo-ritorno":1e17)"),
                                request(R"("zona":0,"altitudine":-1e400)", R"("alfa":15,"passaggi":true)"),
                                request(by_number, R"("alfa":15,"illustrata":"a.pdf")"),
                                request(by_number, R"("alfa":15,"illustrata":"/.html")"),
                                request(by_number, R"("alfa":15,"data":"1/3/2024")")});
    const std::vector<Json> results = run.results();
    for (const auto& [i, symbol] : {std::pair(0, "cT"), std::pair(1, "as")}) {
        const Json& last = results.at(static_cast<std::size_t>(i)).at("passaggi").back();
        EXPECT_EQ(last["simbolo"], symbol);
        EXPECT_TRUE(last["valore"].is_null());
        EXPECT_EQ(last["errore"], "errore numerico");
    }
    EXPECT_EQ(error_of(results.at(2)), "il file di «illustrata» deve finire in .html: «a.pdf»");
    EXPECT_EQ(error_of(results.at(3)), "il file di «illustrata» non ha nome davanti a .html: «/.html»");
    EXPECT_EQ(error_of(results.at(4)), "«data» serve solo con «illustrata»");
}

TEST(Batch, WritesTheHeadingOfTheIllustratedReportAndTheDateThatTheEnvironmentGives) {
    const TemporaryDirectory directory;
    const std::string line =
        request(by_number, R"("alfa":15,"progettista":"ing. Neve","sovrascrivi":true,"illustrata":")" +
                               directory.name() + "/a.html\"");
    const auto run_with = [&](char* setting) {
        putenv(setting);
        return run_command({"lotto"}, {line}).results().at(0);
    };
    static char wrong[] = "SOURCE_DATE_EPOCH=ieri", day[] = "SOURCE_DATE_EPOCH=1700000000",
                none[] = "SOURCE_DATE_EPOCH=";
    EXPECT_THAT(error_of(run_with(wrong)), testing::EndsWith("un numero di secondi: «ieri»."));
    EXPECT_EQ(directory.content("a.html"), std::nullopt);
    EXPECT_TRUE(run_with(day)["errore"].is_null());
    putenv(none);
    EXPECT_THAT(*directory.content("a.html"), testing::HasSubstr("ing. Neve"));
    EXPECT_THAT(*directory.content("a.html"), testing::HasSubstr("14/11/2023"));
}

TEST(Batch, NamesTheFirstCharacterThatCannotStandWhereItIs) {
    const std::vector<std::pair<std::string, int>> cases{
        {R"({"id": 18)", 10},  // cut
        {R"({"a":"b)", 8},         {R"({"a" "b"})", 6},
        {R"({"a":1,})", 8},        {R"([1,])", 4},
        {R"({} {})", 4},           {"{}\0"s, 3},
        {R"({"a":tru})", 9},       {R"({"a":01})", 7},
        {R"({"a":1e400-7})", 11},  {R"({"a":-1e400.5})", 12},  // numbers beyond the range
        {R"({"a":1.})", 8},        {R"({"è":+1})", 6},         // characters, no bytes
        {"{\"a\":\"b\xC3(\"}", 8},                             // no UTF-8
        {R"({"a":"b\q"})", 8},     {R"({"a":"b\ud800"})", 8},
        {R"({"a":"\udc00"})", 14},  // known behind the text alone
        {R"({"\udc00":1})", 10},
    };
    for (const auto& [line, position] : cases)
        EXPECT_EQ(error_of(run_command({"lotto"}, {line}).results().at(0)),
                  "JSON illeggibile al carattere " + std::to_string(position))
            << line;
}

TEST(Batch, IdComesBackWhateverItIs) {
    const std::string deep = std::string(50'000, '[') + std::string(50'000, ']');
    std::string many = "[-1e400";
    for (int i = 0; i < 100; ++i)
        many += R"(, 1e999, "\" 1e400", 12E+500, 0.5)";
    many += ']';
    for (const std::string& id :
         {"1"s, "-0.50"s, "18446744073709551616"s, "null"s, "false"s, R"("è \"\u00e8\"\n")"s,
          R"([1, {"a":[]} ,"b"])"s, R"({"id":{"d":-2.5e3}})"s, deep, many}) {
        for (const std::string& line :
             {request(by_number, R"("alfa":15,"id":)" + id), R"({"id" : )" + id + R"( ,"alfa":{"id":2}})"})
            EXPECT_THAT(run_command({"lotto"}, {line}).out, StartsWith(R"({"id": )" + id + ", "))
                << line.substr(0, 80);
    }
}

TEST(Batch, IdThatIsNotWholeStaysAway) {
    const std::vector<std::pair<std::string, Json>> cases{
        {R"({"id": 18)", nullptr},  // may have been 188
        {R"({"id": 18, "calc)", 18},
        {R"({"id": [1, [2])", nullptr},
        {R"([{"id": 1}])", nullptr},
    };
    for (const auto& [line, id] : cases)
        EXPECT_EQ(run_command({"lotto"}, {line}).results().at(0).value("id", Json()), id) << line;
}

TEST(Batch, TextsAreEscapedAndBrokenUtf8IsReplaced) {
    std::string ascii;
    for (char c = 0; c < 0x7F; ++c)
        ascii += c;
    for (const std::string& text :
         {ascii + "\x7F", "è€😀"s, "a\xC3"s, "\xC3("s, "\xE2\x82\xE2\x82\xAC\xE2"s, "\xED\xA0\x80"s,
          "\xF0\x9F\x98z\xF0\x9F"s, "\xF4\x90\x80\x80"s, "\xC0\x80\xFF"s, "\xE0\x80\x80"s}) {
        std::string json;
        append_json_string(json, text);
        EXPECT_EQ(json, Json(text).dump(-1, ' ', false, Json::error_handler_t::replace));
    }
}

TEST(Batch, NamesAreMatchedAndAnsweredInTheTablesSpelling) {
    const TemporaryDirectory directory;
    const auto place = [&](const std::string& province, const std::string& municipality) {
        return request(R"("provincia":")" + province + R"(","comune":")" + municipality +
                       R"(","altitudini":")" + directory.name() + R"(")");
    };
    const CommandRun run = run_command(
        {"lotto"}, {place("FORLI'", "forlì"), place("torino", "AGLIÈ"), place("Vicenza", "Vicenza"),
                    place("Torin", "Torino"), place("Torino", "Moncaliere"), place("Palermo", "palermo"),
                    place("MB", "Monza"), place("Monza", "x"), place("Bologna", "valsamogia"),
                    place("Milano", "Fonte Nuova"), place("Milano", "Samone"), place("Milano", "zzzzz")});
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
                    "Palermo; Palermo; 3", "MB; Monza; provincia sconosciuta: «MB»; forse Milano",
                    "Monza; x; provincia sconosciuta: «Monza»; forse Milano",
                    "Bologna; valsamogia; comune sconosciuto: «valsamogia»; forse Bazzano, "
                    "CastelloDiSerravalle, Crespellano, Monteveglio, Savigno, oggi Valsamoggia (dal 2014)",
                    "Milano; Fonte Nuova; comune sconosciuto: «Fonte Nuova»; forse GuidoniaMontecelio, "
                    "Mentana, in parte oggi Fonte Nuova, in provincia Roma",
                    "Milano; Samone; comune sconosciuto: «Samone»; forse Samone, in provincia Torino; "
                    "Samone, in provincia Trento",
                    "Milano; zzzzz; comune sconosciuto: «zzzzz»"));
}

}  // namespace
}  // namespace coltre::cli
