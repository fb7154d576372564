#include "calculate/Calcola.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>
#include <tuple>
#include <utility>

#include "tests/support/fake_doors.h"
#include "tests/support/temporary_directory.h"

namespace coltre {
namespace {

using testing::HasSubstr;

class MainCalculation : public testing::Test {
  protected:
    MainCalculation() {
        fields.asinput = "200";
        fields.ComboEsp = fields.TextCTermico = "1.0";
        fields.inputalfa = "15";
    }
    ClickOutcome click() { return Calcola(fields, program, fake, nobody); }

    MainWindowFields fields;
    Program program;
    FakeDoors fake;
    CalculationObserver nobody;
    TemporaryDirectory directory;
};

TEST_F(MainCalculation, TellsOfAnAltitudeAbove1500AndGoesOnWithIt) {
    program.cells.zone = 2;
    fields.asinput = "1500";
    EXPECT_EQ(click().asinput, std::nullopt);
    EXPECT_THAT(fake.shown, testing::IsEmpty());
    fields.asinput = "1924";  // 4 x 481: 0.85 (1 + 16)
    const ClickOutcome outcome = click();
    EXPECT_EQ(outcome.asinput, " 1500");
    EXPECT_EQ(outcome.altitude, 1924);
    EXPECT_NEAR(*outcome.qsk, 14.45, 1e-12);
    EXPECT_THAT(fake.shown, testing::SizeIs(1));
}

TEST_F(MainCalculation, ShowsTheWidthsOfACylinderAsSoonAsTheyAreKnown) {
    EXPECT_EQ(click().L1output, std::nullopt);
    fields.SSTab1 = RoofFamily::cylindrical;
    fields.Lcopcil = "10";
    for (const auto& [H, L1, L2] :
         {std::tuple{"2", " 12.56", " 3.14 [m]"}, {"-0.2", "-108.43", "-27.11 [m]"}}) {
        fields.hcopcil = H;
        const ClickOutcome outcome = click();
        EXPECT_EQ(outcome.L1output, L1);
        EXPECT_EQ(outcome.L2output, L2);
        EXPECT_EQ(outcome.results_complete, outcome.fault == Fault::none);
    }
    fields.hcopcil = "5.01";
    EXPECT_EQ(click().L1output, std::nullopt) << "no roof";
}

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
    EXPECT_EQ(fake.shown.size(), 1U);

    program.cells.zone = 4;  // none: the load of the click before stays, and takes the coefficients
    fields.ComboEsp = "2";
    EXPECT_EQ(click().qsk, 1.5 * 2 * 10);
}

TEST_F(MainCalculation, ReportThatCannotBeWrittenIsToldAndTheOldOneStays) {
    std::filesystem::create_directories(directory.path() / "occupata" / "coltre.txt");
    std::filesystem::create_directory(directory.path() / "piena");
    std::ofstream(directory.path() / "piena" / "coltre.txt") << "vecchia";
    fields.Check1Box = true;
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlim_t unlimited = limit.rlim_cur;
    for (const char* name : {"piena", "occupata", "mancante"}) {
        program.directories.WorkDirectory = directory.text() + "\\" + name;
        limit.rlim_cur = name == std::string("piena") ? 100 : unlimited;  // stands in for a full disk
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const ClickOutcome outcome = click();
        EXPECT_EQ(outcome.report, "");
        ASSERT_EQ(fake.shown.size(), 1U) << "no confirmation";
        EXPECT_EQ(fake.shown[0].icon, Icon::error);
        EXPECT_EQ(fake.shown[0].text, outcome.file_failure);
        EXPECT_THAT(outcome.file_failure, HasSubstr(program.directories.WorkDirectory + "\\coltre.txt: "));
        fake.shown.clear();
    }
    EXPECT_EQ(read_file(directory.text() + "\\piena\\coltre.txt"), "vecchia");
}

}  // namespace
}  // namespace coltre
