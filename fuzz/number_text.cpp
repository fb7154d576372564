#include "text/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "fuzz/shown_number.h"
#include "text/number_reading.h"

// Input: value, then how many decimals or digits.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

double c_library_reads(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

std::string c_library_writes(const char* format, int places, double value) {
    std::array<char, 512> buffer;
    const int length = std::snprintf(buffer.data(), buffer.size(), format, places, value);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

/// @param value  as 15 significant digits hold it; infinite where they round the largest numbers up
void check_reads_back(std::string_view text, double value) {
    const LenientNumber number = read_leniently(text);
    require(number.wholly_understood, "a number text is understood");
    require(number.beyond_range ? std::isinf(value) : number.value == value, "a number text reads back");
}

void check_rounding(double value, int decimals) {
    const double rounded = round_half_even(value, decimals);
    require(rounded == c_library_reads(c_library_writes("%.*f", decimals, value)), "round_half_even");
    const std::string fixed = fixed_number_text(value, decimals);
    require(c_library_reads(fixed) == rounded, "fixed_number_text reads back");
    const std::size_t point = std::min(fixed.find('.'), fixed.size());
    require(fixed.size() - point == static_cast<std::size_t>(decimals == 0 ? 0 : decimals + 1),
            "fixed_number_text has its decimals");
}

void check_pictures(double value, int decimals) {
    require(shows(fixed_picture(value, decimals), value, 0), "fixed_picture shows the value");
    require(shows(whole_picture(value), value, 0), "whole_picture shows the value");
    const int digits = decimals + 1;
    const std::string picture = exponent_picture(value, digits);
    require(shows(picture, value, 0), "exponent_picture shows the value");
    require(picture.find('E') - picture.find('.') <= static_cast<std::size_t>(digits) + 1,
            "exponent_picture has its digits");
}

void check_significant(double value, int digits) {
    const double rounded = round_significant(value, digits);
    if (std::isinf(rounded)) {
        require(std::fabs(value) >= 1e308, "only the largest numbers are rounded out of the range");
        return;
    }
    require(round_significant(rounded, digits) == rounded, "rounding again changes nothing");
    if (value == 0) return;
    const double last_place = std::pow(10.0, std::floor(std::log10(std::fabs(value))) - digits + 1);
    require(std::fabs(rounded - value) <=
                0.5000001 * last_place + 1e-14 * std::fabs(value) + std::numeric_limits<double>::min(),
            "round_significant keeps its digits");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const auto value = input.finite();
    const auto places = input.finite();
    if (!value || !places) return 0;
    const int decimals = static_cast<int>(std::fmod(std::fabs(*places), 100));

    const double value15 = c_library_reads(c_library_writes("%.*g", 15, *value));
    const std::string plain = plain_number_text(*value);
    check_reads_back(plain, value15);
    require(plain.find(' ') == plain.npos && !plain.starts_with("0.") && !plain.starts_with("-0") &&
                !plain.ends_with('.'),
            "the shape of a plain number text");
    const std::string display = display_number_text(*value);
    check_reads_back(display, value15);
    require(display.starts_with(*value < 0 ? '-' : ' ') && display[1] != '.', "the shape of a display text");
    require(c_library_reads(shortest_number_text(*value)) == *value, "shortest_number_text reads back");

    check_rounding(*value, decimals);
    check_pictures(*value, decimals);
    check_significant(*value, decimals + 1);
    return 0;
}
