#include "text/characters.h"

#include <algorithm>

namespace coltre {

namespace {

bool is_continuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::string_view trim_blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::size_t character_count(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char byte) { return !is_continuation(byte); }));
}

std::size_t bytes_of_characters(std::string_view text, std::size_t characters) {
    std::size_t position = 0;
    while (position < text.size() && characters > 0) {
        ++position;
        while (position < text.size() && is_continuation(text[position]))
            ++position;
        --characters;
    }
    return position;
}

std::string_view first_character(std::string_view text) {
    return text.substr(0, bytes_of_characters(text, 1));
}

std::string lower_case(std::string_view text) {
    std::string lower(text);
    for (std::size_t i = 0; i < lower.size(); ++i) {
        const auto byte = static_cast<unsigned char>(lower[i]);
        const bool ascii_capital = byte >= 'A' && byte <= 'Z';
        // À to Þ are C3 80 to C3 9E; C3 97 is the multiplication sign.
        const bool accented_capital =
            i > 0 && lower[i - 1] == '\xC3' && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
        if (ascii_capital || accented_capital) lower[i] = static_cast<char>(byte + 0x20);
    }
    return lower;
}

}  // namespace coltre
