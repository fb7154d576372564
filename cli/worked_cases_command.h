#pragma once

#include <ostream>
#include <string>

namespace coltre::cli {

/// Runs the worked cases: lists those that are not reproduced, then how many are.
/// @param html  file for the document of the cases; empty: none. It is replaced.
/// @return the exit status: 1 if a case is not reproduced or the file cannot be written
int worked_cases_command(const std::string& html, std::ostream& out, std::ostream& err);

}  // namespace coltre::cli
