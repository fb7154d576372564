#pragma once

#include <string>
#include <string_view>

// The municipality table that is compiled in.
namespace coltre {

/// The table as the program keeps it: UTF-8, each line with LF at its end.
std::string_view built_in_table();

/// The table as altitudini.txt holds it: Windows-1252, each line, the last one too, with CR LF at its end.
const std::string& built_in_altitude_file();

}  // namespace coltre
