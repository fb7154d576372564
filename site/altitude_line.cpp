#include "site/altitude_line.h"

#include <algorithm>
#include <cstddef>

#include "site/altitude_fields.h"
#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::size_t altitude_column = 31;     ///< characters before the altitude in the built-in table
constexpr std::size_t altitude_characters = 4;  ///< all that a reader takes

bool is_number(std::string_view text) {
    const LenientNumber number = read_leniently(text);
    return number.wholly_understood && !number.beyond_range;
}

}  // namespace

std::string_view line_fault(std::string_view field) {
    if (field.find('\t') != std::string_view::npos) return "una tabulazione al posto degli spazi";
    const std::size_t blank = field.find(' ');
    if (blank == std::string_view::npos) return "manca lo spazio tra il nome e l'altitudine";
    const std::string_view meant = trim_blanks(field.substr(blank));
    const std::string_view read = altitude_of(field);
    if (meant == read) return is_number(read) ? "" : "l'altitudine non è un numero";
    if (meant.find(' ') != std::string_view::npos) return "la riga non contiene soltanto nome e altitudine";
    return "l'altitudine non coincide con gli ultimi quattro caratteri della riga";
}

std::optional<std::string> reshaped_line(std::string_view field) {
    const std::size_t end = field.find_last_not_of(blanks) + 1;
    const std::size_t altitude_start = field.substr(0, end).find_last_of(blanks) + 1;
    const std::string_view altitude = field.substr(altitude_start, end - altitude_start);
    std::string line(field.substr(0, altitude_start));
    std::erase_if(line, [](char c) { return blanks.find(c) != std::string_view::npos; });
    if (line.empty() || altitude.size() > altitude_characters || !is_number(altitude)) return std::nullopt;
    // A long name too keeps as many blanks as the reader's four characters may take.
    line.resize(std::max(altitude_column, line.size() + altitude_characters), ' ');
    return line.append(altitude);
}

std::string_view first_word(std::string_view field) {
    field.remove_prefix(std::min(field.find_first_not_of(blanks), field.size()));
    return field.substr(0, field.find_first_of(blanks));
}

}  // namespace coltre
