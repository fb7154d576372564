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
             {{"tetto"}, bad_usage, "argomento sconosciuto: «tetto»"},
             {{"altitudini"}, bad_usage, "manca il comando"},
             {{"lotto", "/nessuna/richiesta"}, bad_usage, "impossibile leggere il file"},
             {{"parete", "--json=x"}, bad_usage, "--json non accetta un valore"},
             {{"parete", "--h"}, bad_usage, "manca il valore di --h"},
             {{"parete"}, bad_usage, "manca «h»", true},
             {{"parete", "--h", "1", "--h", "2"}, bad_usage, "--h è ripetuta", true},
             {{"parete", "--h", "1", "--alfa", "2"}, bad_usage, "«--alfa»", true},
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

TEST(Command, JsonIsTheResultOfABatch) {
    const CommandRun run = run_command(
        {"due-falde", "--zona", "1", "--altitudine", "602", "--alfa1", "20", "--alfa2", "70", "--json"});
    EXPECT_EQ(run.status, failed);
    EXPECT_EQ(run.err, "");
    const auto batch = run_command(
        {"lotto"}, {R"({"calcolo":"due-falde","zona":1,"altitudine":602,"alfa1":20,"alfa2":70})"});
    EXPECT_EQ(run.out, batch.out);
}

TEST(Command, MunicipalitiesAreListedByNamesOf1996AndOfToday) {
    EXPECT_EQ(
        run_command({"comuni", "cagn", "--provincia=trento"}).out,
        "Comune                       Provincia       Zona                     Altitudine\n"
        "Cagno                        Trento          0 (Zona I Alpina)             663 m  oggi Novella "
        "(dal 2020); omonimo in provincia di Como\n");
    EXPECT_EQ(run_command({"comuni", "monza", "--json", "--provincia", "MB"}).out,
              R"({"comune": "Monza", "provincia": "Milano", "zona": 1, "altitudine": 162, )"
              "\"provincia_oggi\": \"MB\"}\n");
    EXPECT_EQ(run_command({"comuni", "--json"}).results().size(), 8102U);
    for (const auto& [arguments, err] : std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{"comuni", "valsamogia"}, "Errore: nessun comune trovato: «valsamogia»; forse Valsamoggia, "},
             {{"comuni", "--provincia", "Milan"},
              "Errore: provincia sconosciuta: «Milan»; forse Milano, "}}) {
        const CommandRun run = run_command(arguments);
        EXPECT_EQ(run.status, failed);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(err));
    }
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
