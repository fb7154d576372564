#include "calculate/Calcola.h"

#include <gmock/gmock.h>

#include "calculate/Calcola2.h"
#include "platform/files.h"
#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

class MainCalculation : public testing::Test {
  protected:
    MainCalculation() {
        fields.asinput = "200";
        fields.ComboEsp = fields.TextCTermico = "1.0";
        fields.entries = {"15"};
    }
    Outcome click() { return Calcola(fields, program); }

    Fields fields;
    Program program;
};

TEST_F(MainCalculation, UnknownUnitTextKeepsTheUnitCode) {
    for (const auto& [text, code] :
         {std::pair{"kN , m", 1}, {"Kgf , m", 2}, {"kgf , cm", 3}, {"kgf , m", 3}, {"", 3}}) {
        fields.udmcombo = text;
        click();
        EXPECT_EQ(program.cells.unit_system, code) << text;
    }
}

TEST_F(MainCalculation, OverflowOfACoefficientLeavesTheBaseLoad) {
    fields.ComboEsp = "1.7e308";
    fields.TextCTermico = "10";
    fields.udmcombo = "Kgf , m";
    const Outcome outcome = click();
    EXPECT_EQ(outcome.fault, Fault::numeric_error);
    EXPECT_EQ(outcome.qsk, std::nullopt);
    EXPECT_EQ(program.cells.qsk, 1.5);
    EXPECT_EQ(program.cells.unit_system, 0) << "set after the ground load";
    EXPECT_EQ(outcome.messages.size(), 1U);

    program.cells.zone = 4;  // none: the load of the click before stays, and takes the coefficients
    fields.ComboEsp = "2";
    EXPECT_EQ(click().qsk, 1.5 * 2 * 10);
}

// Everything that was read is answered, whatever stops afterwards; the reason tells what an engineer can
// mend.
TEST_F(MainCalculation, StopsSayWhy) {
    struct Case {
        Fields fields;
        const char* text;
    };
    for (const Case& c : {
             Case{{"500", "1e200", "1e200", Kind::one_pitch, {"15"}},
                  "errore numerico.\rIl carico neve al suolo qsk è troppo grande."},
             Case{{"500", "1e400", "1", Kind::wall, {"2"}},
                  "errore numerico.\rIl numero scritto per «coefficiente di esposizione» è troppo grande."},
             Case{{"500", "0", "1", Kind::wall, {"2"}},
                  "divisione per zero.\rNon si può calcolare mu2.\rIl carico neve al suolo qsk è 0."},
             Case{{"500", "1", "1", Kind::level_change, {"3", "5", "0", "10"}},
                  "divisione per zero.\rNon si può calcolare mu2.\rIl dislivello h è 0."},
             Case{{"500", "1", "1", Kind::snow_guard, {"1e200", "1e200", "10"}},
                  "errore numerico.\rNon si può calcolare Fs."},
             Case{{"500", "1", "1", Kind::two_pitches, {"20", "70"}},
                  "divisione per zero.\rNon si può calcolare qe_2c.\rIl carico sulla falda è 0: il "
                  "coefficiente di forma mu1 è 0 per alfa2 = 70°."},
         }) {
        Program fresh;
        const bool special = describe(c.fields.kind).window == Window::special_cases;
        const Outcome outcome = special ? Calcola2(c.fields, fresh) : Calcola(c.fields, fresh);
        EXPECT_EQ(outcome.altitude, 500);
        ASSERT_EQ(outcome.messages.size(), 1U) << c.text;
        EXPECT_EQ(outcome.messages.front().text, std::string("Calcolo interrotto: ") + c.text);
    }
}

// 1e307 kN/m2 are more kgf/m2 than a number holds: the heading ends before its ground load.
TEST_F(MainCalculation, NumberTooLargeForTheReportStopsAtItsLine) {
    const TemporaryDirectory directory;
    program.directories.WorkDirectory = directory.text();
    fields.TextCTermico = "1e307";
    fields.udmcombo = "Kgf , m";
    fields.Check1Box = true;
    fields.kind = Kind::wall;
    fields.entries = {"10", "2"};
    EXPECT_TRUE(Calcola2(fields, program).complete) << "its numbers stay in kN";
    fields.kind = Kind::cylindrical;
    const Outcome outcome = click();
    EXPECT_EQ(outcome.fault, Fault::numeric_error);
    EXPECT_TRUE(outcome.calculation.results.empty());
    EXPECT_THAT(read_file(outcome.report).value_or(""),
                testing::EndsWith("Periodo di Ritorno [anni]:   50\r\n\r\n"));
}

}  // namespace
}  // namespace coltre
