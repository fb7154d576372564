#include "calculate/Calcola2.h"

#include <gmock/gmock.h>

#include "tests/support/fake_doors.h"

namespace coltre {
namespace {

TEST(SpecialCaseCalculation, StrictFieldsTakeTheUsersSeparator) {
    Program program;
    FakeDoors fake;
    CalculationObserver nobody;
    SpecialCasesFields fields;
    fields.ComboEsp = fields.TextCTermico = "1.0";
    fields.asinput = "1924";
    program.cells.zone = 2;  // 0.85 (1 + 16), as 1924 is 4 x 481
    fields.b1input = "40";
    fields.b2input = " 5,5 ";
    fields.h2input = "2.50";
    fields.deltainput = "1e1";
    EXPECT_EQ(Calcola2(fields, program, fake, nobody).fault, Fault::invalid_conversion);
    ASSERT_EQ(fake.shown.size(), 1U) << "nothing about the altitude";
    EXPECT_EQ(fake.shown[0].text,
              "Calcolo interrotto: conversione non valida.\r"
              "Il testo scritto per «b2» non è un numero: « 5,5 ».");
    EXPECT_NEAR(program.cells.qsk, 14.45, 1e-12) << "the ground load is written back";

    fields.decimal_separator = ',';
    const ClickOutcome outcome = Calcola2(fields, program, fake, nobody);
    EXPECT_TRUE(outcome.results_complete);
    EXPECT_EQ(outcome.asinput, std::nullopt);
    EXPECT_EQ(program.cells.level_ls, 5) << "2h, shorter than b2";
    EXPECT_EQ(fake.shown.size(), 1U);

    fields.h2input = "0";
    EXPECT_EQ(Calcola2(fields, program, fake, nobody).fault, Fault::division_by_zero);
    EXPECT_EQ(fake.shown[1].text,
              "Calcolo interrotto: divisione per zero.\rNon si può calcolare mu2.\r"
              "Il dislivello h è 0.");
    fields.h2input = "1e309";
    EXPECT_EQ(Calcola2(fields, program, fake, nobody).fault, Fault::numeric_error);
    EXPECT_EQ(fake.shown[2].text,
              "Calcolo interrotto: errore numerico.\r"
              "Il numero scritto per «h» è troppo grande.");
}

}  // namespace
}  // namespace coltre
