#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace coltre::fuzz {

/// Whether a number text shows the value, rounded to the last place that stands in the text.
/// @param tolerance  by how much the value may have been rounded before
inline bool shows(std::string_view text, double value, double tolerance) {
    const std::string number(text);
    const double shown = std::strtod(number.c_str(), nullptr);
    // The largest numbers, rounded to fewer digits, may lie beyond the range of a double.
    if (std::isinf(shown)) return std::fabs(value) >= 1e308 && std::signbit(shown) == std::signbit(value);

    const std::size_t point = number.find('.');
    const std::size_t first = point == std::string::npos ? number.size() : point + 1;
    const std::size_t decimals = number.find_first_not_of("0123456789", first);
    const std::size_t mark = number.find('E');
    const double exponent = mark == std::string::npos ? 0 : std::strtod(number.c_str() + mark + 1, nullptr);
    const double last_place =
        std::pow(10.0, exponent - static_cast<double>(std::min(decimals, number.size()) - first));
    return std::fabs(shown - value) <=
           0.5 * last_place + tolerance + 1e-14 * std::fabs(value) + std::numeric_limits<double>::min();
}

}  // namespace coltre::fuzz
