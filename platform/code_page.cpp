#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/characters.h"

namespace coltre {

namespace {

/// Characters of the bytes 80 to 9F; all other bytes stand for the character of their own number.
constexpr std::array<char32_t, 32> characters_80_to_9f{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t replacement_character = 0xFFFD;

bool is_ascii(std::string_view text) {
    return std::ranges::none_of(text, [](char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; });
}

void append_utf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | (character >> 6U));
        text += static_cast<char>(0x80U | (character & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (character >> 12U));
        text += static_cast<char>(0x80U | ((character >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (character & 0x3FU));
    }
}

/// Takes one character from the front of the text; a byte that is no UTF-8 is taken alone.
char32_t take_character(std::string_view& utf8) {
    const std::string_view bytes = first_character(utf8);
    utf8.remove_prefix(bytes.size());
    const auto lead = static_cast<unsigned char>(bytes[0]);
    if (bytes.size() == 1) return lead < 0x80 ? lead : replacement_character;
    // The lead byte of n bytes starts with n ones and a zero.
    char32_t character = lead & (0x7FU >> bytes.size());
    for (const char byte : bytes.substr(1))
        character = (character << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    return character;
}

char to_byte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    const auto found = std::ranges::find(characters_80_to_9f, character);
    if (found == characters_80_to_9f.end()) return '?';
    return static_cast<char>(0x80 + (found - characters_80_to_9f.begin()));
}

}  // namespace

std::string to_code_page(std::string_view utf8) {
    if (is_ascii(utf8)) return std::string(utf8);
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty())
        bytes += to_byte(take_character(utf8));
    return bytes;
}

std::string from_code_page(std::string_view bytes) {
    if (is_ascii(bytes)) return std::string(bytes);
    std::string utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        append_utf8(utf8, byte >= 0x80 && byte < 0xA0 ? characters_80_to_9f[byte - 0x80U] : char32_t{byte});
    }
    return utf8;
}

}  // namespace coltre
