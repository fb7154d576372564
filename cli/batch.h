#pragma once

#include <cstddef>
#include <istream>
#include <ostream>
#include <string>

#include "platform/failure.h"
#include "requests/perform.h"

namespace coltre::cli {

/// How a batch went.
enum class BatchEnd { all_well, some_failed, wrong_header, input_failed, output_failed };

/// What became of a batch.
struct BatchOutcome {
    BatchEnd end = BatchEnd::all_well;
    std::size_t requests = 0;
    std::size_t failed = 0;  ///< of them
    Failure header_error;    ///< of a table whose header cannot be used, where nothing is done
};

/// "120 richieste, 3 errori"
std::string summary(const BatchOutcome& outcome);

/// Performs the requests of a stream, one JSON object a line, and writes one result a line in the same order.
/// Results are handed on as soon as no further request is waiting. A line that is no request gives a result
/// that says so.
BatchOutcome run_batch(std::istream& in, std::ostream& out, const Environment& environment);

/// The same with the lines of a table (requests/csv_request.h). What is written is a table with the same
/// separator, line ends and encoding: the columns of the request as they were, then those of the answer. A
/// line that does not have the columns of the header gives a line whose error says so.
BatchOutcome run_csv_batch(std::istream& in, std::ostream& out, const Environment& environment);

}  // namespace coltre::cli
