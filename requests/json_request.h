#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/failure.h"
#include "requests/request.h"

namespace coltre {

/// What may stand between the parts of a JSON text.
inline constexpr std::string_view json_blanks = " \t\r\n";

/// What kind of thing is wrong with a line.
enum class JsonFault { none, cut, unreadable, unknown_kind, wrong_entry };

/// A line of a batch, read.
struct JsonRequest {
    Request request;
    std::string_view id;  ///< the value of "id" as it stands in the line; empty if there is no whole one
    JsonFault fault = JsonFault::none;
    Failure error;                          ///< what is wrong with the line
    std::vector<std::string> unknown_keys;  ///< where they are no error
};

/// What becomes of keys that no calculation has.
enum class UnknownKeys { refused, listed };

/// Reads a request from one line of JSON: an object whose keys are the names of the options, "calcolo" and
/// "id". A number is kept as it stands in the line, however large. Where the line is no JSON, the error names
/// the first character that cannot stand where it is, counted from 1: the one after the last if the line is
/// cut.
/// @param line  in memory for as long as the id is used
JsonRequest read_json_request(std::string_view line, UnknownKeys unknown = UnknownKeys::refused);

}  // namespace coltre
