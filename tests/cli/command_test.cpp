#include <gmock/gmock.h>

#include "tests/cli/run_command.h"

namespace coltre::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Command, ExitStatusTellsWhoIsWrong) {
    struct Case {
        std::vector<std::string> arguments;
        int status;
        const char* err;
        bool at_a_site = false;
    };
    for (Case c : std::vector<Case>{
             {{}, bad_usage, "manca il nome del calcolo"},
             {{"unafalda"}, bad_usage, "argomento sconosciuto: «unafalda»; forse una-falda\n"},
             {{"altitudini", "verfica"},
              bad_usage,
              "forse verifica\nPer l'aiuto: coltre-calcolo altitudini --help\n"},
             {{"altitudini"}, bad_usage, "manca il comando"},
             {{"lotto", "/nessuna/richiesta"}, bad_usage, "file «/nessuna/richiesta»\n"},
             {{"lotto", "--", "--x"}, bad_usage, "file «--x»\n"},
             {{"parete", "--json=x"}, bad_usage, "--json non accetta un valore"},
             {{"parete", "--h"}, bad_usage, "manca il valore di --h"},
             {{"parete"}, bad_usage, "manca «h»\nPer l'aiuto: coltre-calcolo parete --help\n", true},
             {{"parete", "--h", "1", "--h", "2"}, bad_usage, "--h è ripetuta", true},
             {{"parete", "--h", "1", "--alfa", "2"}, bad_usage, "«--alfa» non è del calcolo «parete»", true},
             {{"parete", "--altitudne=1"}, bad_usage, "«--altitudne=1»; forse --altitudine\n", true},
             {{"parete", "--h="}, failed, "Il campo «h» è vuoto.", true},
             {{"parete", "--h", "x"}, failed, "Calcolo interrotto: conversione", true},
             {{"parete", "--h", "1e309"}, failed, "Il numero scritto per «h» è troppo grande.", true},
             {{"una-falda", "--alfa", "-5"}, failed, "alfa è negativo", true},
             {{"una-falda", "--alfa", "15", "--periodo-ritorno", "1e309"},
              failed,
              "«periodo di ritorno»",
              true},
             {{"una-falda", "--alfa", " 15 "}, all_well, "", true},
         }) {
        if (c.at_a_site) c.arguments.insert(c.arguments.end(), {"--zona", "0", "--altitudine", "1"});
        const CommandRun run = run_command(c.arguments);
        EXPECT_EQ(run.status, c.status) << c.err;
        EXPECT_THAT(run.err, HasSubstr(c.err));
        EXPECT_EQ(run.err.empty(), c.status == all_well) << run.err;
        EXPECT_EQ(run.out.empty(), c.status == bad_usage) << run.out;
    }
}

TEST(Command, MunicipalitiesAreListedByNamesOf1996AndOfToday) {
    EXPECT_THAT(run_command({"comuni", "cagn", "--provincia=trento"}).out,
                HasSubstr(" 663 m  oggi Novella (dal 2020); omonimo in provincia di Como\n"));
    EXPECT_EQ(run_command({"comuni", "--json"}).results().size(), 8102U);
    for (const auto& [arguments, error] : std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{"--provincia", "Monza"}, "provincia sconosciuta: «Monza»; forse Milano"},
             {{"valsamogia"},
              "nessun comune trovato: «valsamogia»; forse Bazzano, CastelloDiSerravalle, "
              "Crespellano, Monteveglio, Savigno, oggi Valsamoggia (dal 2014), in provincia "
              "Bologna"},
             {{"torino", "--provincia", "Milano"},
              "nessun comune trovato: «torino»; forse Torino, in provincia Torino"},
             {{"zzzzz"}, "nessun comune trovato: «zzzzz»"}}) {
        std::vector<std::string> command{"comuni"};
        command.insert(command.end(), arguments.begin(), arguments.end());
        const CommandRun run = run_command(command);
        EXPECT_EQ(run.status, failed);
        EXPECT_EQ(run.err, "Errore: " + error + "\n");
    }
}

TEST(Command, CompletesWords) {
    using testing::ElementsAre;
    const auto completed = [](std::vector<std::string> words) {
        words.insert(words.begin(), "completa");
        std::istringstream lines(run_command(words).out);
        std::vector<std::string> names;
        for (std::string line; std::getline(lines, line);)
            names.push_back(line);
        return names;
    };
    EXPECT_THAT(completed({""}),
                testing::AllOf(testing::Contains("lotto"), Not(testing::Contains("completa"))));
    EXPECT_THAT(completed({"altitudini", "v"}), ElementsAre("verifica"));
    EXPECT_THAT(completed({"una-falda", "--altitudine", "1", "--al"}), ElementsAre("--alfa", "--altitudini"));
    EXPECT_THAT(completed({"parete", "--provincia", "\"reggio e"}), ElementsAre("ReggioEmilia"));
    EXPECT_THAT(completed({"parete", "--provincia", "=", "torino", "--comune", "cir"}),
                ElementsAre("Cirie'"));
    EXPECT_THAT(completed({"parete", "--zona", "="}), ElementsAre("0", "1", "2", "3"));
}

TEST(Command, HelpIsItalianAndHasAnExample) {
    for (const char* command : {"", "una-falda", "due-falde", "piu-falde", "cilindrica", "discontinuita",
                                "parete", "ostacolo", "lotto", "comuni", "altitudini"}) {
        std::vector<std::string> arguments{"--help"};
        if (*command != '\0') arguments.insert(arguments.begin(), command);
        const CommandRun run = run_command(arguments);
        EXPECT_EQ(run.status, all_well);
        EXPECT_THAT(run.out, HasSubstr("\nEsempio:\n  "));
        EXPECT_THAT(run.out, HasSubstr("coltre-calcolo " + std::string(command)));
        for (const char* english :
             {"Usage", "OPTIONS", "Options", "TEXT", "FLOAT", "REQUIRED", "help message", "Subcommands"})
            EXPECT_THAT(run.out, Not(HasSubstr(english))) << command;
    }
}

}  // namespace
}  // namespace coltre::cli
