#include "startup/start_up.h"

#include <utility>

#include "platform/environment.h"
#include "startup/VarieGestCond.h"
#include "startup/own_files.h"
#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

/// Everything lives in the program's own directory, but for what its user may not write there; what only the
/// suite has stays empty.
Directories standalone_directories(std::string_view own_directory) {
    OwnFiles files = own_files(own_directory, users_directory());
    Directories directories;
    directories.SuiteRoot = trim_blanks(own_directory);
    directories.WorkDirectory = std::move(files.reports);
    directories.ProgramDirectory = std::move(files.altitudes);
    directories.DriverDirectory = directories.SuiteRoot;
    directories.CustomDirectory = directories.SuiteRoot;
    directories.HelpDirectory = directories.SuiteRoot;
    return directories;
}

}  // namespace

StartUp start_up(std::string_view command_line, std::string_view own_directory, Program& program,
                 Messages& messages) {
    program.CommandLine = command_line;
    program.own_directory = trim_blanks(own_directory);

    // "diroot" alone decides. Deliberate: "autonomo" with the value 1 was meant to force the stand-alone
    // mode, but its value counts as it stood before the command line was searched, so that it never does.
    // find_entry() supplies bars that the text lacks, parse_suite_root() does not: "diroot=c:/suite" alone
    // means the suite but names no root, and the program must then lie in the suite's own directory.
    program.StandaloneFlag = !find_entry(command_line, "diroot", "=", "").has_value();

    StartUp start;
    if (program.StandaloneFlag) {
        program.directories = standalone_directories(own_directory);
        program.unit_setting.clear();
    } else {
        if (!check_directories(command_line, command_line, own_directory, program.directories, messages))
            return start;
        start.caption = set_caption(program.directories.WorkDirectory, "");
        program.unit_setting = "3";
        start.unit_item = static_cast<int>(read_leniently(program.unit_setting).value) - 1;
    }

    program.cells.return_period = 50;
    program.cells.zone = 0;
    program.cells.return_period_factor = 1;
    start.goes_on = true;
    return start;
}

}  // namespace coltre
