#include "text/characters.h"

#include <algorithm>

namespace coltre {

namespace {

bool is_continuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Bytes that the lead byte announces; 1 for a byte that leads nothing.
std::size_t announced_length(unsigned char lead) {
    if (lead < 0xC2 || lead > 0xF4) return 1;
    if (lead < 0xE0) return 2;
    return lead < 0xF0 ? 3 : 4;
}

/// Whether the two bytes can start a character: no longer form than needed, no surrogate, none beyond
/// U+10FFFF.
bool is_shortest_form(unsigned char lead, unsigned char second) {
    switch (lead) {
        case 0xE0:
            return second >= 0xA0;
        case 0xED:
            return second < 0xA0;
        case 0xF0:
            return second >= 0x90;
        case 0xF4:
            return second < 0x90;
        default:
            return true;
    }
}

}  // namespace

std::string_view trim_blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::size_t character_count(std::string_view text) {
    std::size_t characters = 0;
    for (; !text.empty(); ++characters)
        text.remove_prefix(first_character(text).size());
    return characters;
}

std::size_t bytes_of_characters(std::string_view text, std::size_t characters) {
    std::string_view rest = text;
    for (; !rest.empty() && characters > 0; --characters)
        rest.remove_prefix(first_character(rest).size());
    return text.size() - rest.size();
}

std::string_view first_character(std::string_view text) {
    if (text.empty()) return text;
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = announced_length(lead);
    if (length == 1) return text.substr(0, 1);
    const std::string_view character = text.substr(0, length);
    const bool whole =
        character.size() == length && std::ranges::all_of(character.substr(1), is_continuation);
    if (!whole || !is_shortest_form(lead, static_cast<unsigned char>(text[1]))) return text.substr(0, 1);
    return character;
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
