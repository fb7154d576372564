#include "text/number_reading.h"

#include <charconv>
#include <cstddef>
#include <string>
#include <system_error>

#include "text/characters.h"

namespace coltre {

namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t skip_digits(std::string_view text, std::size_t position) {
    while (position < text.size() && is_digit(text[position]))
        ++position;
    return position;
}

/// Bytes of the decimal number at the front of the text, 0 if there is none.
std::size_t number_length(std::string_view text) {
    std::size_t position = 0;
    if (!text.empty() && (text[0] == '+' || text[0] == '-')) position = 1;
    const std::size_t whole_end = skip_digits(text, position);
    std::size_t digits = whole_end - position;
    position = whole_end;
    if (position < text.size() && text[position] == '.') {
        const std::size_t fraction_end = skip_digits(text, position + 1);
        digits += fraction_end - position - 1;
        if (digits > 0) position = fraction_end;
    }
    if (digits == 0) return 0;

    if (position < text.size() && (text[position] == 'e' || text[position] == 'E')) {
        std::size_t exponent = position + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        const std::size_t exponent_end = skip_digits(text, exponent);
        if (exponent_end > exponent) position = exponent_end;
    }
    return position;
}

/// Whether a number that from_chars found out of range is too large rather than too small: the power of
/// ten of its first digit that is not 0 decides.
bool is_too_large(std::string_view number) {
    const std::size_t exponent_mark = number.find_first_of("eE");
    const std::string_view mantissa = number.substr(0, exponent_mark);
    const std::size_t first_digit = mantissa.find_first_of("123456789");
    if (first_digit == std::string_view::npos) return false;

    const std::size_t point = mantissa.find('.');
    const auto whole_end = static_cast<long long>(point == std::string_view::npos ? mantissa.size() : point);
    const long long power = whole_end - static_cast<long long>(first_digit);
    if (exponent_mark == std::string_view::npos) return power > 0;

    std::string_view exponent = number.substr(exponent_mark + 1);
    const bool negative = exponent[0] == '-';
    if (exponent[0] == '+') exponent.remove_prefix(1);
    long long value = 0;
    if (std::from_chars(exponent.data(), exponent.data() + exponent.size(), value).ec != std::errc{})
        return !negative;
    return value > -power;
}

/// A number_length() text as a double; true in `beyond_range` for one that is too large.
double to_double(std::string_view number, bool& beyond_range) {
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc::result_out_of_range) return value;
    beyond_range = is_too_large(number);
    return 0;
}

}  // namespace

LenientNumber read_leniently(std::string_view text) {
    text = trim_blanks(text);
    const std::size_t length = number_length(text);
    LenientNumber number;
    number.wholly_understood = length > 0 && length == text.size();
    if (length == 0) return number;
    number.digits = text.substr(text[0] == '+' ? 1 : 0, length - (text[0] == '+' ? 1 : 0));
    number.value = to_double(number.digits, number.beyond_range);
    return number;
}

StrictNumber read_strictly(std::string_view text, char decimal_separator) {
    std::string number(trim_blanks(text));
    for (char& c : number) {
        if (c == decimal_separator) c = '.';
    }
    const LenientNumber read = read_leniently(number);
    if (!read.wholly_understood) return {};
    if (read.beyond_range) return {StrictNumber::Verdict::beyond_range, 0};
    return {StrictNumber::Verdict::number, read.value};
}

}  // namespace coltre
