#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Texts inside the program are UTF-8; columns and positions count characters, never bytes.
namespace coltre {

/// The text without the blanks at both ends. Blanks are spaces (U+0020) alone: a tab is no blank.
std::string_view trim_blanks(std::string_view text);

/// Number of characters (code points) of a UTF-8 text; a byte that is no UTF-8 counts as one character.
std::size_t character_count(std::string_view text);

/// Bytes that the first `characters` characters of the text take; the whole text if it has fewer.
std::size_t bytes_of_characters(std::string_view text, std::size_t characters);

/// The character at the front of the text, a byte alone where it is no UTF-8; empty for an empty text.
std::string_view first_character(std::string_view text);

/// The text in lower case: ASCII letters and the accented letters of Latin-1 (À to Þ).
std::string lower_case(std::string_view text);

}  // namespace coltre
