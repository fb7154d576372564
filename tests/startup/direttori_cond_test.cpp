#include "startup/direttori_cond.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "tests/support/suite_tree.h"
#include "text/characters.h"

namespace coltre {
namespace {

const std::string no_fault;
const std::string missing = "ERRORE: Uno dei seguenti direttori non è presente o non è accessibile:\r";

class CheckDirectories : public testing::Test {
  protected:
    /// Title and text of the message that ended the program.
    std::string fault(const std::string& command_line, const std::string& process_command_line = "",
                      const std::string& own_directory = "") {
        Messages messages;
        const bool goes_on =
            check_directories(command_line, process_command_line, own_directory, directories, messages);
        EXPECT_EQ(messages.size(), goes_on ? 0U : 1U);
        if (messages.empty()) return no_fault;
        EXPECT_EQ(messages[0].icon, Icon::error);
        return messages[0].title + ": " + messages[0].text;
    }
    std::string fault() { return fault(suite.command_line()); }

    SuiteTree suite;
    const std::string root = lower_case(suite.root());
    const std::string nine_paths = root + "\\impostazioni\r" + root + "\\progra\r" + root + "\\driver\r" +
                                   root + "\\custom\r" + root + "\\Help\r" + root + "\\Manuali\r" + root +
                                   "\\videocorso\r" + root + "\\temp\r" + root + "\\telai";
    Directories directories;
};

TEST_F(CheckDirectories, SetsEveryValueFromTheRootInLowerCase) {
    EXPECT_EQ(fault(), no_fault);
    EXPECT_EQ(directories.SuiteRoot, root);
    EXPECT_EQ(directories.HelpDirectory, root + "\\Help");
    EXPECT_EQ(directories.JobsDirectory, suite.jobs() + "\\");
    EXPECT_EQ(directories.JobName, "job001");
    EXPECT_EQ(directories.WorkDirectory, suite.jobs() + "\\job001");
    EXPECT_EQ(missing_directory_list(directories), nine_paths);
    for (std::size_t i = 1; i < sibling_count; ++i)
        EXPECT_TRUE(directories.SiblingDirectories[i].starts_with(root + "\\custom\\"));
}

TEST_F(CheckDirectories, TakesTheRootFromACommandLineOrTheProgramsOwnDirectory) {
    EXPECT_EQ(fault("|diroot=c:|"), missing + std::string(8, '\r'));  // too short
    EXPECT_EQ(fault("", suite.command_line()), no_fault);
    EXPECT_EQ(fault("|diroot=" + suite.root() + "\\|", "|diroot=c:\\elsewhere|"), no_fault);
    EXPECT_EQ(directories.SuiteRoot, root);
    EXPECT_EQ(fault("|diroot=" + path_text(suite.disk_root()) + "/|"), no_fault);
    EXPECT_EQ(directories.SettingsDirectory, lower_case(path_text(suite.disk_root())) + "\\impostazioni");
    EXPECT_EQ(fault("|diroot=|autonomo=1|", "", "  " + suite.root() + "\\PROGRA "), no_fault);
    EXPECT_EQ(directories.SuiteRoot, suite.root());
    for (const std::string own : {"c:\\suite\\progra\\", "c:\\laprogra", ""})
        EXPECT_EQ(fault("", "", own), "Coltre: Il direttorio della applicazione deve terminare con \\progra");
}

TEST_F(CheckDirectories, EndsWhereAnyCheckedDirectoryIsMissing) {
    for (const char* name :
         {"Progra", "driver", "Custom", "help", "MANUALI", "VideoCorso", "temp", "Telai"}) {
        suite.remove(name);
        std::ofstream(suite.disk_root() / name) << "a file";  // is no directory
        EXPECT_EQ(fault(), missing + nine_paths) << name;
        suite.remove(name);
        std::filesystem::create_directory(suite.disk_root() / name);
    }
    EXPECT_EQ(fault(), no_fault);
}

TEST_F(CheckDirectories, AcceptsSettingsOrEnds) {
    const std::string no_jobs = "ERRORE: " + root + "\\impostazioni\\dirlav errato o mancante.";
    const std::string no_job = "ERRORE: " + root + "\\impostazioni\\lavoro errato o mancante.";
    const std::string not_jobs = "ERRORE: Il direttorio dei lavori deve terminare con < ...\\lavori >.";
    struct Case {
        const char *jobs, *job;
        std::string fault;
    };
    for (const Case& c : {
             Case{"  D:\\DATI\\LAVORI\\ \r\n", "  job 01  \r\n", no_fault},
             Case{":\\lavori\nd:\\lavori", "job001", no_jobs},
             Case{"\r\nd:\\dati\\lavori", "job001", no_jobs}, Case{"D:\\dati\\lavoro\\", "job001", not_jobs},
             Case{"/srv/dati/lavori/", "job001", no_fault}, Case{"D:\\dati\\lavori\\\\", "job001", not_jobs},
             Case{"D:\\lavori", "job01\r\n", no_job}, Case{"D:\\lavori", "job0001", no_job},
             Case{"D:\\lavori", "citt\xE0\x80", no_fault},  // Windows-1252: six characters
         }) {
        suite.write_setting("DirLav", c.jobs);
        suite.write_setting("LAVORO", c.job);
        EXPECT_EQ(fault(), c.fault) << c.jobs << c.job;
    }
    EXPECT_EQ(directories.WorkDirectory, "D:\\lavori\\città€");
}

}  // namespace
}  // namespace coltre
