#pragma once

#include <string>
#include <string_view>

namespace coltre {

/// Where the program keeps its files when no suite runs, in the suite's notation.
struct OwnFiles {
    std::string altitudes;  ///< directory of altitudini.txt
    std::string reports;
};

/// Both stand beside the program where the user may write there. Where he may not, because it is installed
/// for all users, reports go into his own directory, and altitudini.txt is his there if there is one; else
/// the common one beside the program; else his own is yet to be written. Writes nothing.
/// @param own_directory    of the program
/// @param users_directory  empty where there is none: then all stays beside the program
OwnFiles own_files(std::string_view own_directory, std::string_view users_directory);

}  // namespace coltre
