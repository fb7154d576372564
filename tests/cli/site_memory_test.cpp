#include "requests/site_memory.h"

#include <gmock/gmock.h>

#include <array>

#include "site/built_in_altitudes.h"
#include "tests/cli/run_command.h"
#include "tests/support/temporary_directory.h"

namespace coltre::cli {
namespace {

class SitesByName : public testing::Test, public TemporaryDirectory {
  protected:
    [[nodiscard]] std::string request(const std::string& province, const std::string& municipality) const {
        return R"({"calcolo":"una-falda","alfa":15,"provincia":")" + province + R"(","comune":")" +
               municipality + R"(","altitudini":")" + name() + R"("})";
    }
};

/// What an answer gave: the altitude or the error, then the messages.
std::string summary(const Json& answer) {
    std::string text =
        answer["errore"].is_null() ? answer["altitudine"].dump() : answer["errore"].get<std::string>();
    for (const Json& message : answer["messaggi"])
        text += "; " + message["icona"].get<std::string>() + ": " + message["testo"].get<std::string>();
    return text;
}

const std::string read_error =
    "Errore in lettura del file altitudine.txt .; errore: Errore in lettura del file altitudine.txt .";

TEST_F(SitesByName, BuiltInTableAnswersForAProvinceThatTheFileDoesNotGiveAndSaysSo) {
    const std::string own = "Cuneo\r\nCuneo   999\r\n\r\nTorino\r\nTorino   240\r\nOulx\r\n";
    put("altitudini.txt", own);
    const std::string built_in =
        "informazione: La provincia Torino non si legge dal file altitudini.txt:\rvale la tabella del "
        "programma. Il file resta com'è.";
    const std::vector<std::string> requests{request("Torino", "Torino"), request("Cuneo", "Cuneo"),
                                            request("Torino", "Cuneo"), request("Vicenza", "Asiago"),
                                            request("Cuneo", "Busca")};
    const std::vector<std::string> expected{
        "239; " + built_in, "999",
        "comune sconosciuto: «Cuneo»; forse Cuneo, in provincia Cuneo; " + built_in, read_error,
        "comune sconosciuto: «Busca»"};
    std::vector<std::string> answers;
    for (const Json& answer : run_command({"lotto"}, requests).results())
        answers.push_back(summary(answer));
    EXPECT_EQ(answers, expected);
    EXPECT_EQ(content("altitudini.txt"), own);
    EXPECT_THAT(files(), testing::ElementsAre("altitudini.txt"));
}

TEST_F(SitesByName, MissingTableIsWritten) {
    EXPECT_EQ(summary(run_command({"lotto"}, {request("Cuneo", "Cuneo")}).results().at(0)), "534");
    EXPECT_EQ(content("altitudini.txt"), built_in_altitude_file());
    EXPECT_EQ(summary(run_command({"lotto"}, {request("Oristano", "Oristano")}).results().at(0)), read_error);
}

TEST_F(SitesByName, AreRememberedByDirectoryAndNames) {
    SiteMemory memory;
    const Site aglie{"Torino", "Aglie'", "315", 0, false};
    memory.keep("a", "torino", "Agliè", aglie);
    ASSERT_TRUE(memory.recall("a", "torino", "Agliè"));
    EXPECT_EQ(*memory.recall("a", "torino", "Agliè"), aglie);
    for (const auto& [directory, province, municipality] : {std::array{"b", "torino", "Agliè"},
                                                            {"a", "Torino", "Agliè"},
                                                            {"a", "torino", "Aglie"},
                                                            {"", "a", "torino"}})
        EXPECT_FALSE(memory.recall(directory, province, municipality));
    for (int i = 0; i < 10000; ++i)
        memory.keep("a", "torino", std::to_string(i), aglie);
    EXPECT_FALSE(memory.recall("a", "torino", "Agliè")) << "memory has an end";

    put("altitudini.txt", "first");
    EXPECT_EQ(memory.table(text()).bytes, "first");
    put("altitudini.txt", "second");
    EXPECT_EQ(memory.table(text()).bytes, "first");
}

}  // namespace
}  // namespace coltre::cli
