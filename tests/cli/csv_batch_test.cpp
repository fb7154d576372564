#include <gmock/gmock.h>

#include "platform/code_page.h"
#include "tests/cli/run_command.h"
#include "text/csv.h"

namespace coltre::cli {
namespace {

using testing::HasSubstr;

CommandRun run_table(const std::string& table) {
    std::istringstream in(table);
    return run_command({"lotto", "--csv"}, in);
}

/// The lines of a table by the names of its columns, empty cells apart.
std::vector<std::map<std::string, std::string>> rows(const std::string& table) {
    std::istringstream in(table);
    CsvReader reader(in);
    std::vector<std::map<std::string, std::string>> rows;
    std::vector<std::string> names;
    while (reader.next()) {
        if (names.empty()) {
            for (const std::string_view field : reader.fields())
                names.emplace_back(field);
            continue;
        }
        EXPECT_EQ(reader.fields().size(), names.size());
        auto& row = rows.emplace_back();
        for (std::size_t i = 0; i < reader.fields().size(); ++i)
            if (!reader.fields()[i].empty()) row[names.at(i)] = csv_value(reader.fields()[i]);
    }
    return rows;
}

TEST(CsvBatch, AnswersInTheDialectOfTheRequests) {
    const std::string head = "calcolo;lavoro;zona;altitudine;alfa;ce;ct";
    const std::string wide = "una-falda;\"è; x\";0;239,5; 22,5;1,1;";
    const std::string row_error = "una-falda;;4;1;1;;";
    const std::string out = run_table(head + "\r\n" + row_error + "\r\n" + wide).out;
    EXPECT_THAT(out, testing::StartsWith(head + ";qsk;mu1;"));
    EXPECT_THAT(out, HasSubstr(";errore\r\n" + row_error + ";"));
    EXPECT_THAT(out, HasSubstr("la zona deve essere 0, 1, 2 o 3: «4»\r\n" + wide + ";1,6944"));
    EXPECT_EQ(run_table("\xEF\xBB\xBF" + head + "\r\n" + row_error + "\r\n" + wide).out,
              "\xEF\xBB\xBF" + out);
    EXPECT_EQ(run_table(to_code_page(head + "\r\n" + row_error + "\r\n" + wide)).out, to_code_page(out));

    EXPECT_THAT(
        rows(run_table("calcolo\talfa\tzona\taltitudine\tce\nuna-falda\t22,5\t0\t239.5\t1.6\n").out),
        testing::ElementsAre(testing::Contains(testing::Pair(
            "avvisi", "alfa «22,5»: letto come 22; ce «1.6»: fuori dell'intervallo usuale, da 0.5 a 1.5"))));
}

TEST(CsvBatch, BrokenLineIsAnErrorLine) {
    const CommandRun run = run_table(
        "calcolo;zona;altitudine;alfa;sovrascrivi\n;;;;\nuna-falda;0\nuna-falda;\"0;;;\nuna-falda;0;1;1;"
        "forse\n"
        "tetto;0;1;1;VERO\nuna-falda;è;1;1;\nuna-falda;\xE8;1;1;\nuna-falda;0;1;1;VERO\n");
    EXPECT_EQ(run.status, failed);
    std::vector<std::string> errors;
    for (auto row : rows(run.out))
        errors.push_back(row["errore"]);
    EXPECT_THAT(errors,
                testing::ElementsAre("riga vuota", "riga 3: ha 2 colonne, l'intestazione 5",
                                     "riga 4: le virgolette aperte non sono chiuse",
                                     "«sovrascrivi» deve essere vero o falso: «forse»",
                                     "calcolo sconosciuto: «tetto»", "la zona deve essere 0, 1, 2 o 3: «è»",
                                     "riga 8: non è in UTF-8 come le righe precedenti",
                                     "«sovrascrivi» serve solo con «illustrata»"));
}

TEST(CsvBatch, WrongHeaderIsToldAndNothingIsDone) {
    for (const auto& [header, error] : std::vector<std::pair<std::string, std::string>>{
             {"", "manca l'intestazione"},
             {"calcolo;una-falda;15", "manca l'intestazione"},
             {"1;Torino;15", "manca l'intestazione: la prima riga nomina le chiavi"},
             {"calcolo;1", "la colonna 2 dell'intestazione non è una chiave: «1»\n"},
             {"zona;alfa", "manca la colonna «calcolo»"},
             {"calcolo;Altitudne",
              "la colonna 2 dell'intestazione non è una chiave: «altitudne»; forse altitudine"},
             {"calcolo;;alfa", "la colonna 2 dell'intestazione non ha nome"},
             {"calcolo;alfa;ALFA", "ripete la colonna «alfa»"},
             {"calcolo;passaggi", "una tabella non riporta i passaggi"},
             {"calcolo;\"alfa", "l'intestazione è errata: le virgolette aperte"},
             {std::string("\xFF\xFE") + "c", "UTF-16"}}) {
        const CommandRun run = run_table(header);
        EXPECT_EQ(run.status, bad_usage);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, testing::AllOf(HasSubstr(error), HasSubstr("coltre-calcolo lotto --help\n")));
    }
}

}  // namespace
}  // namespace coltre::cli
