#pragma once

#include <string>
#include <string_view>

namespace coltre::cli {

/// Appends the text as a JSON string; bytes that are no UTF-8 become U+FFFD.
void append_json_string(std::string& json, std::string_view text);

}  // namespace coltre::cli
