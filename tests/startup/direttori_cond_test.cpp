#include "startup/direttori_cond.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "tests/startup/suite_tree.h"
#include "tests/support/fake_doors.h"
#include "text/characters.h"

namespace coltre {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CheckDirectories : public testing::Test {
  protected:
    bool check(const std::string& command_line, const std::string& process_command_line = "",
               const std::string& own_directory = "") {
        Doors doors = fake.doors();
        return check_directories(command_line, process_command_line, own_directory, directories, doors);
    }
    bool check() { return check(suite.command_line()); }

    void expect_end(const std::string& title, const std::string& text) {
        EXPECT_THAT(fake.shown, ElementsAre(Message{Icon::error, title, text}));
        EXPECT_EQ(fake.ended, 1);
    }
    void expect_no_end() {
        EXPECT_THAT(fake.shown, IsEmpty());
        EXPECT_EQ(fake.ended, 0);
    }
    /// The nine checked paths of the tree under a root.
    static std::string nine_paths(const std::string& root) {
        return root + "\\impostazioni\r" + root + "\\progra\r" + root + "\\driver\r" + root + "\\custom\r" +
               root + "\\Help\r" + root + "\\Manuali\r" + root + "\\videocorso\r" + root + "\\temp\r" + root +
               "\\telai";
    }
    [[nodiscard]] std::string lower_root() const { return lower_case(suite.root()); }

    SuiteTree suite;
    FakeDoors fake;
    Directories directories;
};

TEST_F(CheckDirectories, SetsEveryValueFromTheRootInLowerCase) {
    ASSERT_TRUE(check());
    expect_no_end();
    const std::string root = lower_root();
    EXPECT_EQ(directories.SuiteRoot, root);
    EXPECT_EQ(directories.SettingsDirectory, root + "\\impostazioni");
    EXPECT_EQ(directories.ProgramDirectory, root + "\\progra");
    EXPECT_EQ(directories.DriverDirectory, root + "\\driver");
    EXPECT_EQ(directories.CustomDirectory, root + "\\custom");
    EXPECT_EQ(directories.HelpDirectory, root + "\\Help");
    EXPECT_EQ(directories.ManualsDirectory, root + "\\Manuali");
    EXPECT_EQ(directories.VideoCourseDirectory, root + "\\videocorso");
    EXPECT_EQ(directories.TempDirectory, root + "\\temp");
    EXPECT_EQ(directories.JobsDirectory, suite.jobs() + "\\");
    EXPECT_EQ(directories.JobName, "job001");
    EXPECT_EQ(directories.WorkDirectory, suite.jobs() + "\\job001");
    EXPECT_EQ(missing_directory_list(directories), nine_paths(root));
}

TEST_F(CheckDirectories, PutsOneSiblingUnderTheRootAndFiveUnderCustom) {
    ASSERT_TRUE(check());
    EXPECT_TRUE(directories.SiblingDirectories[0].starts_with(lower_root() + "\\"));
    EXPECT_FALSE(directories.SiblingDirectories[0].starts_with(directories.CustomDirectory));
    for (std::size_t i = 1; i < sibling_count; ++i) {
        EXPECT_TRUE(directories.SiblingDirectories[i].starts_with(directories.CustomDirectory + "\\"));
        EXPECT_NE(directories.SiblingDirectories[i], directories.SiblingDirectories[i - 1]);
    }
}

TEST_F(CheckDirectories, TakesTheRootFromTheFirstCommandLineThatIsNotEmpty) {
    EXPECT_TRUE(check("", suite.command_line()));
    EXPECT_TRUE(check("|diroot=" + suite.root() + "\\|", "|diroot=c:\\elsewhere|"));
    EXPECT_EQ(directories.SuiteRoot, lower_root());
    expect_no_end();
}

TEST_F(CheckDirectories, TakesTheRootFromTheProgramsOwnDirectory) {
    EXPECT_TRUE(check("|diroot=|autonomo=1|", "", "  " + suite.root() + "\\PROGRA "));
    expect_no_end();
    EXPECT_EQ(directories.SuiteRoot, suite.root());
}

TEST_F(CheckDirectories, RefusesAnotherOwnDirectory) {
    for (const std::string own :
         {"c:\\suite\\progra1", "c:\\suite\\progra\\", "c:\\laprogra", "progra", ""}) {
        fake = FakeDoors();
        EXPECT_FALSE(check("", "", own));
        expect_end("Coltre", "Il direttorio della applicazione deve terminare con \\progra");
    }
}

TEST_F(CheckDirectories, EndsWhereTheRootIsTooShort) {
    for (const std::string command_line : {"|diroot=c:|", "|diroot=c   |"}) {
        fake = FakeDoors();
        EXPECT_FALSE(check(command_line));
        expect_end("ERRORE",
                   "Uno dei seguenti direttori non è presente o non è accessibile:\r" + std::string(8, '\r'));
    }
}

TEST_F(CheckDirectories, EndsWhereAnyCheckedDirectoryIsMissing) {
    for (const char* name :
         {"Progra", "driver", "Custom", "help", "MANUALI", "VideoCorso", "temp", "Telai"}) {
        fake = FakeDoors();
        suite.remove(name);
        EXPECT_FALSE(check()) << name;
        expect_end("ERRORE", "Uno dei seguenti direttori non è presente o non è accessibile:\r" +
                                 nine_paths(lower_root()));
        std::filesystem::create_directory(suite.disk_root() / name);
    }
    EXPECT_TRUE(check());
}

TEST_F(CheckDirectories, TakesNoFileForADirectory) {
    suite.remove("VideoCorso");
    std::ofstream(suite.disk_root() / "VideoCorso") << "a file";
    EXPECT_FALSE(check());
    EXPECT_EQ(fake.ended, 1);
}

struct SettingCase {
    const char* name;
    const char* file;
    /// What stands in the file, made from the jobs directory.
    std::function<std::string(const std::string&)> bytes;
    const char* message;  ///< after the settings directory where it starts with a backslash; empty: accepted
};

class Settings : public CheckDirectories, public testing::WithParamInterface<SettingCase> {};

TEST_P(Settings, AreAcceptedOrEndTheProgram) {
    const SettingCase& c = GetParam();
    suite.write_setting(c.file, c.bytes(suite.jobs()));
    const std::string message = c.message;
    EXPECT_EQ(check(), message.empty());
    if (message.empty()) {
        expect_no_end();
    } else {
        expect_end("ERRORE", message.front() == '\\' ? lower_root() + "\\impostazioni" + message : message);
    }
}

const char* const no_dirlav = "\\dirlav errato o mancante.";
const char* const no_lavoro = "\\lavoro errato o mancante.";
const char* const not_lavori = "Il direttorio dei lavori deve terminare con < ...\\lavori >.";

auto text(std::string bytes) {
    return [bytes](const std::string&) { return bytes; };
}

INSTANTIATE_TEST_SUITE_P(
    Files, Settings,
    testing::Values(SettingCase{"JobsWithBackslash", "DirLav",
                                [](const std::string& jobs) { return jobs + "\\\r\n"; }, ""},
                    SettingCase{"JobsWithBlanks", "DirLav",
                                [](const std::string& jobs) { return "  " + jobs + " "; }, ""},
                    SettingCase{"JobsInCapitals", "DirLav", text("D:\\DATI\\LAVORI"), ""},
                    SettingCase{"JobsOfNineCharacters", "DirLav", text("D:\\lavori"), ""},
                    SettingCase{"JobsOfEightCharacters", "DirLav", text(" :\\lavori"), no_dirlav},
                    SettingCase{"JobsOfEightCharactersAndALine", "DirLav", text(":\\lavori\nd:\\lavori"),
                                no_dirlav},
                    SettingCase{"JobsEmpty", "DirLav", text(""), no_dirlav},
                    SettingCase{"JobsInTheSecondLine", "DirLav", text("\r\nd:\\dati\\lavori\r\n"), no_dirlav},
                    SettingCase{"JobsSingular", "DirLav", text("D:\\dati\\lavoro\\"), not_lavori},
                    SettingCase{"JobsWithTwoBackslashes", "DirLav", text("D:\\dati\\lavori\\\\"), not_lavori},
                    SettingCase{"JobOfFive", "LAVORO", text("job01\r\n"), no_lavoro},
                    SettingCase{"JobOfSeven", "LAVORO", text("job0001"), no_lavoro},
                    SettingCase{"JobOfSixWithBlanks", "LAVORO", text("  job 01  \r\n"), ""},
                    SettingCase{"JobOfSixWithTab", "LAVORO", text("job01\t"), ""},
                    // Windows-1252: six characters that are eight bytes inside the program.
                    SettingCase{"JobOfSixWithAccents", "LAVORO", text("citt\xE0\x80"), ""},
                    SettingCase{"JobOfSevenWithAccents", "LAVORO", text("citt\xE0\xE8\xE9"), no_lavoro},
                    SettingCase{"JobEmpty", "LAVORO", text(""), no_lavoro}),
    [](const auto& test) { return test.param.name; });

TEST_F(CheckDirectories, EndsWhereASettingsFileIsMissing) {
    suite.remove("IMPOSTAZIONI/LAVORO");
    EXPECT_FALSE(check());
    expect_end("ERRORE", lower_root() + "\\impostazioni\\lavoro errato o mancante.");

    fake = FakeDoors();
    suite.remove("IMPOSTAZIONI");  // without it no file is found: dirlav is the first that is told
    EXPECT_FALSE(check());
    expect_end("ERRORE", lower_root() + "\\impostazioni\\dirlav errato o mancante.");
}

TEST_F(CheckDirectories, TurnsSettingsIntoTheProgramsOwnText) {
    suite.write_setting("DirLav", "d:\\Citt\xE0\\lavori");
    suite.write_setting("LAVORO", "perch\xE9");
    ASSERT_TRUE(check());
    EXPECT_EQ(directories.WorkDirectory, "d:\\Città\\lavori\\perché");
}

TEST_F(CheckDirectories, LeavesTheWorkDirectoryUnchecked) {
    suite.remove("dati");
    EXPECT_TRUE(check());
}

}  // namespace
}  // namespace coltre
