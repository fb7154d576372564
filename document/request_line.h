#pragma once

#include <string>

#include "document/illustrated_report.h"

namespace coltre {

/// The request of the command that gives the same results: one JSON object on one line, without a line end.
/// Numbers that are read leniently stand as they were typed. The altitude is named also where the site is, so
/// that a table that is corrected later changes nothing.
std::string request_line(const Subject& subject);

}  // namespace coltre
