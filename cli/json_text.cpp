#include "cli/json_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace coltre::cli {

void append_json_string(std::string& json, std::string_view text) {
    const bool plain = std::ranges::all_of(text, [](char c) {
        return c >= ' ' && c != '"' && c != '\\' && static_cast<unsigned char>(c) < 0x7F;
    });
    if (plain) {
        json += '"';
        json += text;
        json += '"';
        return;
    }
    json += nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace coltre::cli
