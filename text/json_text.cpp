#include "text/json_text.h"

#include <algorithm>

#include "text/characters.h"

namespace coltre {

namespace {

bool is_plain(char c) {
    return c >= ' ' && c != '"' && c != '\\' && static_cast<unsigned char>(c) < 0x80;
}

/// Bytes at the front of the text that are no UTF-8 and become one U+FFFD: a character that is cut, or one
/// byte.
std::size_t broken_length(std::string_view text) {
    for (std::size_t length = std::min<std::size_t>(text.size(), 3); length > 1; --length) {
        const std::string completed = std::string(text.substr(0, length)) + "\x80\x80";
        if (first_character(completed).size() > length) return length;
    }
    return 1;
}

/// Appends the character at the front of the text, which is not plain.
/// @return its length in bytes
std::size_t append_special(std::string& json, std::string_view text) {
    const std::string_view character = first_character(text);
    if (character.size() > 1) {
        json += character;
        return character.size();
    }
    const auto byte = static_cast<unsigned char>(text.front());
    if (byte >= 0x80) {
        json += "\uFFFD";
        return broken_length(text);
    }
    const std::size_t short_form = std::string_view("\"\\\b\f\n\r\t").find(text.front());
    if (short_form != std::string_view::npos) {
        json += '\\';
        json += "\"\\bfnrt"[short_form];
    } else {
        json += "\\u00";
        json += "01"[byte >> 4U];
        json += "0123456789abcdef"[byte & 0xFU];
    }
    return 1;
}

}  // namespace

void append_json_string(std::string& json, std::string_view text) {
    json += '"';
    while (!text.empty()) {
        const auto* const special = std::ranges::find_if_not(text, is_plain);
        const auto plain = static_cast<std::size_t>(special - text.begin());
        json += text.substr(0, plain);
        text.remove_prefix(plain);
        if (!text.empty()) text.remove_prefix(append_special(json, text));
    }
    json += '"';
}

}  // namespace coltre
