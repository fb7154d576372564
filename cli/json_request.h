#pragma once

#include <string>
#include <string_view>

#include "cli/request.h"

namespace coltre::cli {

/// A line of a batch, read.
struct JsonRequest {
    Request request;
    std::string id;       ///< the value of "id" as JSON, to be echoed; empty if there was none
    std::string mistake;  ///< what is wrong with the line, in Italian; empty if nothing is
};

/// Reads a request from one line of JSON: an object whose keys are the names of the options, "calcolo" and
/// "id". A number is kept as it stands in the line.
JsonRequest read_json_request(std::string_view line);

}  // namespace coltre::cli
