#pragma once

#include <istream>
#include <ostream>
#include <span>
#include <string>

#include "requests/perform.h"

namespace coltre::cli {

/// Exit statuses of the command.
enum ExitStatus { all_well = 0, failed = 1, bad_usage = 2 };

/// Runs the command with its arguments, the program's name not among them.
/// @param err_is_terminal  whether somebody reads err while the command runs
/// @return the exit status
int run(std::span<const std::string> arguments, const Environment& environment, std::istream& in,
        std::ostream& out, std::ostream& err, bool err_is_terminal = false);

}  // namespace coltre::cli
