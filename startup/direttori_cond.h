#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/doors.h"

// The suite's directories and the current job. All values are texts in the suite's notation without a
// backslash at the end unless stated.
namespace coltre {

/// Directories of the sibling modules: the first directly under SuiteRoot, the others under CustomDirectory.
inline constexpr std::size_t sibling_count = 6;

/// The program-wide directory values.
struct Directories {
    std::string SuiteRoot;
    std::string SettingsDirectory;
    std::string ProgramDirectory;  ///< holds altitudini.txt
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

}  // namespace coltre
