#pragma once

#include <string>

#include "requests/answer.h"

namespace coltre::cli {

/// The answer as one JSON object on one line, without a line end.
std::string to_json(const Answer& answer);

/// The answer as a short Italian table with units, line by line, without messages and error.
std::string to_table(const Answer& answer);

}  // namespace coltre::cli
