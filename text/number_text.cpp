#include "text/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>
#include <system_error>

namespace coltre {

namespace {

constexpr int significant_digits = 15;

/// "%.15g" of the value, exponent letter and form included, without a sign.
struct GeneralText {
    std::array<char, 32> buffer;
    std::size_t length;
    bool negative;

    explicit GeneralText(double value) : buffer{}, length(0), negative(value < 0) {
        const auto [end, error] =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                          std::chars_format::general, significant_digits);
        length = static_cast<std::size_t>(end - buffer.data());
        for (std::size_t i = 0; i < length; ++i) {
            if (buffer[i] == 'e') buffer[i] = 'E';
        }
    }
    [[nodiscard]] std::string_view text() const { return {buffer.data(), length}; }
};

/// A decimal number 0.d1d2d3... x 10^exponent, d1 not 0; no digits at all for 0.
struct Decimal {
    std::array<char, significant_digits> digits;
    int count;
    int exponent;
    bool negative;

    explicit Decimal(double value) : digits{}, count(0), exponent(0), negative(value < 0) {
        if (value == 0) return;
        std::array<char, 32> buffer;  // d.ddddddddddddddde+xxx
        const auto [end, error] =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                          std::chars_format::scientific, significant_digits - 1);
        digits[0] = buffer[0];
        for (std::size_t i = 1; i < digits.size(); ++i)
            digits[i] = buffer[i + 1];
        const char* const power = buffer.data() + significant_digits + 2;  // after "d.dddddddddddddde"
        std::from_chars(*power == '+' ? power + 1 : power, end, exponent);
        ++exponent;
        count = significant_digits;
        drop_zeros();
    }

    /// Rounds half away from zero to the first `places` digits; places of 0 or less may leave none.
    void round_to(int places) {
        if (places >= count) return;
        const bool up = places >= 0 && digits[static_cast<std::size_t>(places)] >= '5';
        count = places < 0 ? 0 : places;
        if (!up) {
            drop_zeros();
            return;
        }
        while (count > 0 && digits[static_cast<std::size_t>(count) - 1] == '9')
            --count;
        if (count > 0) {
            ++digits[static_cast<std::size_t>(count) - 1];
        } else {
            digits[0] = '1';
            count = 1;
            ++exponent;
        }
    }

    [[nodiscard]] std::string_view text() const { return {digits.data(), static_cast<std::size_t>(count)}; }

  private:
    void drop_zeros() {
        while (count > 0 && digits[static_cast<std::size_t>(count) - 1] == '0')
            --count;
    }
};

/// The digits before the point, all of them, without a zero where there are none.
std::string whole_digits(const Decimal& decimal) {
    if (decimal.exponent <= 0) return {};
    const auto places = static_cast<std::size_t>(decimal.exponent);
    std::string whole(decimal.text().substr(0, places));
    whole.resize(places, '0');
    return whole;
}

}  // namespace

std::string plain_number_text(double value) {
    const GeneralText general(value);
    std::string_view text = general.text();
    if (text.starts_with("0.")) text.remove_prefix(1);
    std::string plain;
    plain.reserve(text.size() + 1);
    if (general.negative) plain += '-';
    plain += text;
    return plain;
}

std::string display_number_text(double value) {
    const GeneralText general(value);
    std::string display(1, general.negative ? '-' : ' ');
    display += general.text();
    return display;
}

std::string shortest_number_text(double value) {
    if (value == 0) return "0";
    std::array<char, 32> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), end};
}

std::string fixed_number_text(double value, int decimals) {
    std::array<char, 512> buffer;  // up to 309 digits before the point
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), round_half_even(value, decimals),
                      std::chars_format::fixed, decimals);
    return {buffer.data(), end};
}

double round_half_even(double value, int decimals) {
    if (std::fabs(value) >= 4503599627370496.0) return value;  // from 2^52 on a double has no decimals
    std::array<char, 128> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, decimals);
    double rounded = 0;
    std::from_chars(buffer.data(), end, rounded);
    return rounded == 0 ? 0.0 : rounded;  // never negative zero
}

double round_significant(double value, int n) {
    Decimal decimal(value);
    if (decimal.count == 0) return 0;
    if (n < decimal.count) decimal.round_to(n);
    std::string text = decimal.negative ? "-." : ".";
    text += decimal.text();
    text += 'e';
    text += std::to_string(decimal.exponent);
    double rounded = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), rounded);
    if (error == std::errc::result_out_of_range && decimal.exponent > 0) {
        return decimal.negative ? -std::numeric_limits<double>::infinity()
                                : std::numeric_limits<double>::infinity();
    }
    return rounded;
}

std::string fixed_picture(double value, int decimals) {
    Decimal decimal(value);
    decimal.round_to(decimal.exponent + decimals);
    std::string picture = decimal.negative && decimal.count > 0 ? "-" : "";
    picture += whole_digits(decimal);
    picture += '.';
    if (decimal.count > 0 && decimal.exponent < 0)
        picture.append(static_cast<std::size_t>(-decimal.exponent), '0');
    if (decimal.count > decimal.exponent) {
        picture +=
            decimal.text().substr(decimal.exponent > 0 ? static_cast<std::size_t>(decimal.exponent) : 0);
    }
    return picture;
}

std::string whole_picture(double value) {
    Decimal decimal(value);
    decimal.round_to(decimal.exponent);
    return (decimal.negative && decimal.count > 0 ? "-" : "") + whole_digits(decimal);
}

std::string exponent_picture(double value, int n) {
    Decimal decimal(value);
    decimal.round_to(n);
    std::string picture = decimal.negative ? "-." : ".";
    picture += decimal.text();
    picture += 'E';
    picture += std::to_string(decimal.exponent);
    return picture;
}

}  // namespace coltre
