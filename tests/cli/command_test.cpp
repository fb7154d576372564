#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/files.h"
#include "tests/cli/run_command.h"
#include "tests/support/temporary_directory.h"

namespace coltre::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

// By hand: mu1 = 0.8, qs = 1.2, qe = 1.2^3 / 3.
TEST(Command, CalculationGivesATable) {
    const CommandRun run = run_command(
        {"una-falda", "--zona", "0", "--altitudine", "200", "--alfa", "15", "--periodo-ritorno", "-1"});
    EXPECT_EQ(run.status, all_well);
    EXPECT_EQ(run.out,
              "Calcolo                 copertura ad una falda\n"
              "Zona                    0 (Zona I Alpina)\n"
              "Altitudine                     200 m\n"
              "qsk                         1.5000 kN/m²\n"
              "mu1                         0.8000\n"
              "qs_1                        1.2000 kN/m²\n"
              "qe_1                         0.576 kN/m\n");
    EXPECT_EQ(run.err, "Coltre: Il Periodo di Ritorno deve essere un numero maggiore di 0.\n");
}

TEST(Command, ExitStatusTellsWhoIsWrong) {
    struct Case {
        std::vector<std::string> arguments;
        int status;
        const char* err;
    };
    for (const Case& c : std::vector<Case>{
             {{}, bad_usage, "manca il calcolo"},
             {{"tetto"}, bad_usage, "argomento sconosciuto: «tetto»"},
             {{"parete", "--zona", "0", "--altitudine", "1"}, bad_usage, "manca «h»"},
             {{"parete", "--h"}, bad_usage, "manca il valore di --h"},
             {{"parete", "--zona", "0", "--altitudine", "1", "--h", "1", "--h", "2"},
              bad_usage,
              "--h è data più volte"},
             {{"parete", "--zona", "0", "--altitudine", "1", "--h", "1", "--alfa", "2"},
              bad_usage,
              "«--alfa»"},
             {{"parete", "--json=x"}, bad_usage, "--json non prende un valore"},
             {{"altitudini"}, bad_usage, "manca il comando"},
             {{"lotto", "/nessuna/richiesta"}, bad_usage, "impossibile leggere il file"},
             {{"parete", "--zona", "0", "--altitudine", "1", "--h", "x"},
              failed,
              "Calcolo interrotto: conversione"},
             {{"una-falda", "--zona", "0", "--altitudine", "1", "--alfa", "-5"}, failed, "alfa è negativo"},
             {{"parete", "--zona", "0", "--altitudine", "1", "--h", "1"}, all_well, ""},
         }) {
        const CommandRun run = run_command(c.arguments);
        EXPECT_EQ(run.status, c.status) << c.err;
        EXPECT_THAT(run.err, HasSubstr(c.err));
        EXPECT_EQ(run.out.empty(), c.status == bad_usage) << run.out;
    }
}

TEST(Command, SaysWhatItReadsFromAnEntryThatItDoesNotWhollyUnderstand) {
    const CommandRun run =
        run_command({"una-falda", "--zona", "0", "--altitudine", "1e2m", "--alfa", "trenta", "--ct", " 1 "});
    EXPECT_EQ(run.status, all_well);
    EXPECT_EQ(run.err,
              "Attenzione: altitudine «1e2m»: letto come 100\nAttenzione: alfa «trenta»: letto come 0\n");
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

TEST(Command, HelpIsItalianAndHasAnExample) {
    for (const char* command : {"", "una-falda", "due-falde", "piu-falde", "cilindrica", "discontinuita",
                                "parete", "ostacolo", "lotto", "altitudini"}) {
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

TEST(Command, LooksAfterTheAltitudeFile) {
    const TemporaryDirectory directory;
    const std::string path = directory.path().string();
    EXPECT_EQ(run_command({"altitudini", "scrivi", path}).status, all_well);
    const CommandRun check = run_command({"altitudini", "verifica", path});
    EXPECT_EQ(check.status, failed);
    EXPECT_THAT(check.out, HasSubstr(": Vicenza: manca lo spazio tra il nome e l'altitudine\n"));
    const auto before = read_file(directory.text() + "\\altitudini.txt");
    EXPECT_EQ(run_command({"altitudini", "ripara", path}).status, all_well);
    EXPECT_EQ(read_file(directory.text() + "\\altitudini.bak"), before);
    EXPECT_EQ(run_command({"altitudini", "verifica", path}).status, all_well);
    EXPECT_EQ(run_command({"altitudini", "verifica", path + "/altrove"}).status, failed);
}

}  // namespace
}  // namespace coltre::cli
