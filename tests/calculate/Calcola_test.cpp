#include "calculate/Calcola.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

class MainCalculation : public testing::Test {
  protected:
    MainCalculation() {
        fields.asinput = "200";
        fields.ComboEsp = fields.TextCTermico = "1.0";
        fields.inputalfa = "15";
    }
    ClickOutcome click() { return Calcola(fields, program); }

    MainWindowFields fields;
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
    const ClickOutcome outcome = click();
    EXPECT_EQ(outcome.fault, Fault::numeric_error);
    EXPECT_EQ(outcome.qsk, std::nullopt);
    EXPECT_EQ(program.cells.qsk, 1.5);
    EXPECT_EQ(program.cells.unit_system, 0) << "set after the ground load";
    EXPECT_EQ(outcome.messages.size(), 1U);

    program.cells.zone = 4;  // none: the load of the click before stays, and takes the coefficients
    fields.ComboEsp = "2";
    EXPECT_EQ(click().qsk, 1.5 * 2 * 10);
}

}  // namespace
}  // namespace coltre
