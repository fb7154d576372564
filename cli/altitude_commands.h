#pragma once

#include <ostream>
#include <string_view>

// The commands that look after altitudini.txt. Each returns the exit status: 0, or 1 where it failed.
namespace coltre::cli {

/// Writes altitudini.txt from the built-in table into the directory.
int write_command(std::string_view directory, std::ostream& out, std::ostream& err);

/// Lists every line of altitudini.txt that a reader would stumble on; 1 if there are any.
int check_command(std::string_view directory, std::ostream& out, std::ostream& err);

/// Keeps altitudini.txt as altitudini.bak and writes a copy without those faults.
int repair_command(std::string_view directory, std::ostream& out, std::ostream& err);

}  // namespace coltre::cli
