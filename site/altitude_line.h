#pragma once

#include <optional>
#include <string>
#include <string_view>

// One municipality line of the altitude file: what may be wrong with it, and how it would be right.
namespace coltre {

/// Why a reader takes something else from the line than was meant, in Italian; empty for a sound line.
/// @param field  the line as a field, not empty
std::string_view line_fault(std::string_view field);

/// The line with what it holds brought into shape: the last word is the altitude, the words before it, run
/// together, are the name.
/// @return nothing where there is no name or no altitude of at most four characters
std::optional<std::string> reshaped_line(std::string_view field);

/// The first word of the line: the name, if there is one.
std::string_view first_word(std::string_view field);

}  // namespace coltre
