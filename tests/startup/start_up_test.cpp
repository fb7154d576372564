#include "startup/start_up.h"

#include <gmock/gmock.h>

#include "tests/support/suite_tree.h"
#include "text/characters.h"

namespace coltre {
namespace {

class StartOfProgram : public testing::Test {
  protected:
    StartUp start(const std::string& command_line, const std::string& own_directory) {
        return start_up(command_line, own_directory, program, messages);
    }

    SuiteTree suite;
    Messages messages;
    Program program;
};

TEST_F(StartOfProgram, StandAloneLivesInTheProgramsOwnDirectory) {
    program.cells.return_period = program.cells.return_period_factor = program.cells.zone = 3;
    EXPECT_TRUE(start("", "  d:\\programmi\\neve ").goes_on);
    EXPECT_TRUE(program.StandaloneFlag);
    EXPECT_EQ(program.cells.return_period, 50);
    EXPECT_EQ(program.cells.return_period_factor, 1);
    EXPECT_EQ(program.cells.zone, 0);

    const Directories& set = program.directories;
    for (const std::string& own : {set.SuiteRoot, set.WorkDirectory, set.ProgramDirectory,
                                   set.DriverDirectory, set.CustomDirectory, set.HelpDirectory})
        EXPECT_EQ(own, "d:\\programmi\\neve");
    EXPECT_EQ(set.SettingsDirectory + set.TempDirectory + set.JobsDirectory + set.JobName, "");
}

TEST_F(StartOfProgram, OnlyTheRootDecidesTheMode) {
    for (const std::string standalone : {"|autonomo=1|", "relazione.txt"}) {
        EXPECT_TRUE(start(standalone, "d:\\x").goes_on);
        EXPECT_TRUE(program.StandaloneFlag) << standalone;
        EXPECT_EQ(program.CommandLine, standalone);
    }
    EXPECT_TRUE(start("|autonomo=1" + suite.command_line(), "d:\\x").goes_on);
    EXPECT_FALSE(program.StandaloneFlag);
    EXPECT_EQ(program.unit_setting, "3");
    EXPECT_EQ(program.directories.ProgramDirectory, lower_case(suite.root()) + "\\progra");
    // Without bars the entry is there, but gives no root.
    EXPECT_TRUE(start("diroot=c:\\elsewhere", suite.root() + "\\Progra").goes_on);
    EXPECT_EQ(program.directories.SuiteRoot, suite.root());
}

}  // namespace
}  // namespace coltre
