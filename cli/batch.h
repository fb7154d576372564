#pragma once

#include <istream>
#include <ostream>

#include "requests/perform.h"

namespace coltre::cli {

/// How a batch went.
enum class BatchEnd { all_well, some_failed, input_failed, output_failed };

/// Performs the requests of a stream, one JSON object a line, and writes one result a line in the same order.
/// Results are handed on as soon as no further request is waiting. A line that is no request gives a result
/// that says so.
BatchEnd run_batch(std::istream& in, std::ostream& out, const Environment& environment);

}  // namespace coltre::cli
