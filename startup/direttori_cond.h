#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/messages.h"

// The suite's directories and the current job. All values are texts in the suite's notation without a
// backslash at the end unless stated.
namespace coltre {

/// Directories of the sibling modules: the first directly under SuiteRoot, the others under CustomDirectory.
inline constexpr std::size_t sibling_count = 6;

/// The program-wide directory values. In the suite all of them are set. Stand-alone, SuiteRoot,
/// WorkDirectory, ProgramDirectory, DriverDirectory, CustomDirectory and HelpDirectory are the program's own
/// directory, the others are empty.
struct Directories {
    std::string SuiteRoot;          ///< in lower case when it comes from the command line
    std::string SettingsDirectory;  ///< holds dirlav and lavoro, which name the current job
    std::string ProgramDirectory;   ///< holds altitudini.txt
    std::string DriverDirectory;
    std::string CustomDirectory;
    std::string HelpDirectory;
    std::string ManualsDirectory;
    std::string VideoCourseDirectory;
    std::string TempDirectory;
    std::array<std::string, sibling_count> SiblingDirectories;
    std::string JobsDirectory;  ///< ends with "lavori" and a backslash
    std::string JobName;        ///< six characters in the suite; printed in the reports after "lavoro : "
    std::string WorkDirectory;  ///< directory of the current job; receives the reports
};

/// Fills the eight standard directories and those of the sibling modules from SuiteRoot.
void build_directory_list(Directories& directories);

/// True when one of the nine checked paths, the standard directories and the first sibling's, is no directory
/// that exists.
bool directories_missing(const Directories& directories);

/// The nine checked paths with a carriage return between each two, whether they exist or not.
std::string missing_directory_list(const Directories& directories);

/// Sets every directory value from the suite's root and its settings files and verifies that the standard
/// directories exist. Root and jobs directory may end with a separator, "\" or "/". A fault is reported and
/// the program must end; the values set before it stay.
/// @param command_line          as parse_suite_root() reads it; empty: the process's own is used
/// @param process_command_line  the command line that the process was started with
/// @param own_directory         the directory that holds the program; without a root on the command line it
///                              must be the suite's "\progra"
/// @return false if the program must end
bool check_directories(std::string_view command_line, std::string_view process_command_line,
                       std::string_view own_directory, Directories& directories, Messages& messages);

}  // namespace coltre
