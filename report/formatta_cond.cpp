#include "report/formatta_cond.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "report/directives.h"
#include "report/unit_table.h"
#include "text/VarieBanali_cond.h"
#include "text/characters.h"
#include "text/number_reading.h"
#include "text/number_text.h"

namespace coltre {

namespace {

constexpr auto npos = std::string_view::npos;

void tell(MessageBoxes& message_boxes, std::string_view text) {
    message_boxes.show({Icon::error, std::string(program_title), std::string(text)});
}

bool has(std::string_view directives, std::string_view keyword) {
    return find_directive(directives, keyword) != npos;
}

/// The argument "nn" of a directive: the two characters after the underscore, read leniently and rounded to a
/// whole number, a half to the even neighbour. Nothing if the directive is absent.
std::optional<int> argument(std::string_view directives, std::string_view keyword) {
    const std::size_t start = find_directive(directives, keyword);
    if (start == npos) return std::nullopt;
    const std::string_view rest = directives.substr(start + keyword.size());
    return static_cast<int>(
        std::nearbyint(read_leniently(rest.substr(0, bytes_of_characters(rest, 2))).value));
}

/// Decimal shift of a scale factor, from its magnitude.
std::int16_t shift_of_factor(double factor) {
    constexpr double smallest = 0.000001;
    if (std::fabs(factor) <= smallest) return 0;
    return static_cast<std::int16_t>(-std::nearbyint(std::log(std::fabs(factor)) / std::log(10.0) - 0.19897));
}

bool has_exponent(std::string_view text) {
    return text.find_first_of("eE") != npos;
}

void pad_left(std::string& text, int width) {
    const int missing = width - static_cast<int>(character_count(text));
    if (missing > 0) text.insert(0, static_cast<std::size_t>(missing), ' ');
}

void pad_right(std::string& text, int width, std::string_view fill) {
    for (int missing = width - static_cast<int>(character_count(text)); missing > 0; --missing)
        text += fill;
}

/// Replaces "(dv_nn)", seven characters whatever stands there, by the "(cd_mm)" that it amounts to.
void rewrite_as_decimals(std::string& directives, int decimals) {
    const std::size_t start = find_directive(directives, "(dv_");
    const std::size_t length = bytes_of_characters(std::string_view(directives).substr(start), 7);
    directives.replace(start, length, (decimals < 10 ? "(cd_0" : "(cd_") + std::to_string(decimals) + ")");
}

/// The rounding directives "(cs_nn)", "(dv_nn)" and "(cd_nn)".
/// @param directives  a "(dv_nn)" becomes a "(cd_nn)"
/// @param decimals    out: the decimals of the "(cd_nn)"; untouched without one
/// @return what is wrong with a directive; empty if nothing is
std::string_view round_value(double& value, std::string& directives, std::int16_t shift, int& decimals) {
    if (const auto digits = argument(directives, "(cs_")) {
        if (*digits < 1) return "comando (cs_nn) errato.";
        value = round_significant(value, *digits);
    }
    if (const auto base_decimals = argument(directives, "(dv_")) {
        if (*base_decimals < 0) return "comando (dv_nn) errato (2).";
        const int shifted = std::max(0, *base_decimals + shift);
        if (shifted >= 100) return "comando (dv_nn) errato (1).";
        rewrite_as_decimals(directives, shifted);
    }
    if (const auto wanted = argument(directives, "(cd_")) {
        if (*wanted < 0) return "comando (cd_nn) errato.";
        value = round_half_even(value, *wanted);
        decimals = *wanted;
    }
    return {};
}

/// Brings a number text to the width of its field.
/// @param text   the number text, its point in place if it is not in exponent form
/// @param point  position of the point
/// @param fill   what takes the place of missing decimals
/// @return false if the number does not fit
bool fit_field(std::string& text, double value, int width, int point, std::string_view fill) {
    if (!has_exponent(text)) {
        const int whole_places = point - 1;
        const int length = static_cast<int>(character_count(text));
        if (length <= width) {
            pad_left(text, width);
        } else if (whole_places == width) {
            text = whole_picture(value);
        } else if (whole_places < width) {
            text = fixed_picture(value, width - point);
            pad_right(text, width, fill);
        } else {
            if (width < 4) return false;
            text = exponent_picture(value, width - 3);
        }
    }
    if (!has_exponent(text)) return true;
    for (int digits = width - 3; digits >= 1; --digits) {
        text = exponent_picture(value, digits);
        if (static_cast<int>(text.size()) <= width) {
            pad_left(text, width);
            return true;
        }
    }
    return static_cast<int>(character_count(text)) == width;
}

/// "(np_1)": a point at the end gives way to a blank; a right-aligned field keeps its width.
void drop_trailing_point(std::string& text, std::string_view directives) {
    if (!trim_blanks(text).ends_with('.')) return;
    text[text.rfind('.')] = ' ';
    if (has(directives, "(fd_") && !has(directives, "(cd_")) {
        text.pop_back();
        text.insert(0, 1, ' ');
    }
}

}  // namespace

std::string formatta(double value, std::string_view directive_string, double factor,
                     MessageBoxes& message_boxes) {
    constexpr std::string_view overflow = "Errore numerico: un valore della relazione è troppo grande.";
    const Checked scaled = Checked(value) * factor;
    if (scaled.fault() != Fault::none) {
        tell(message_boxes, overflow);
        return {};
    }
    value = scaled.value();
    if (directive_string.empty()) return plain_number_text(value);

    std::int16_t shift = shift_of_factor(factor);
    if (has(directive_string, "(cu_") &&
        converti_unita(value, directive_string, shift, message_boxes) != Fault::none) {
        tell(message_boxes, overflow);
        return {};
    }

    std::string directives(directive_string);
    int decimals = 0;
    if (const std::string_view mistake = round_value(value, directives, shift, decimals); !mistake.empty()) {
        tell(message_boxes, mistake);
        return {};
    }
    if (!std::isfinite(value)) {
        tell(message_boxes, overflow);
        return {};
    }

    std::string text = plain_number_text(value);
    const int point = decimal_point_position(text);
    // Without a "(cd_nn)" no fill character is chosen, and the character of code 0 stands for it: deliberate.
    std::string_view fill("\0", 1);
    if (point > 0 && has(directives, "(cd_")) {
        fill = " ";
        if (const std::size_t zr = find_directive(directives, "(zr_");
            zr != npos && zr + 4 < directives.size()) {
            fill = first_character(std::string_view(directives).substr(zr + 4));
        }
        pad_right(text, point + decimals, fill);
    }

    const bool left_aligned = has(directives, "(fs_");
    const auto width = has(directives, "(fd_") ? argument(directives, "(fd_") : argument(directives, "(fs_");
    if (width) {
        if (*width < 2) {
            tell(message_boxes, "comando (fd_nn) o (fs_nn) errato.");
            return {};
        }
        if (!fit_field(text, value, *width, point, fill)) {
            text.assign(static_cast<std::size_t>(*width), '*');
            append_separator(text, directives);
            return text;
        }
        if (left_aligned) {
            text = std::string(trim_blanks(text));
            pad_right(text, *width, " ");
        }
    }
    if (has(directives, "(np_1)")) drop_trailing_point(text, directives);
    if (!width) text = std::string(trim_blanks(text));
    append_separator(text, directives);
    return text;
}

Fault converti_unita(double& value, std::string_view directives, std::int16_t& decimal_shift,
                     MessageBoxes& message_boxes) {
    decimal_shift = 0;
    if (const UnitCommand* const command = find_unit_command(directives)) {
        const Checked converted = Checked(value) * command->multiplier;
        if (converted.fault() != Fault::none) return converted.fault();
        value = converted.value();
        decimal_shift = command->decimal_shift;
        return Fault::none;
    }

    // "(cu_a_a)" needs no row: the value is in the wanted unit already.
    const std::size_t units = find_directive(directives, "(cu_") + 4;
    const std::size_t between = directives.find('_', units);
    const std::size_t end = directives.find(')', units);
    const bool same_unit = between != npos && end != npos && end > between &&
                           lower_case(directives.substr(units, between - units)) ==
                               lower_case(directives.substr(between + 1, end - between - 1));
    if (!same_unit) tell(message_boxes, "Stringa di conversione unità di misura non riconosciuta.");
    return Fault::none;
}

int decimal_point_position(std::string& text) {
    if (has_exponent(text)) return -1;
    std::size_t point = text.find('.');
    if (point == std::string::npos) {
        point = text.size();
        text += '.';
    }
    return static_cast<int>(point) + 1;
}

void append_separator(std::string& text, std::string_view directives) {
    const std::size_t start = find_directive(directives, "(sc_");
    if (start == npos) return;
    const std::size_t separator = start + 4;
    const std::size_t end = directives.find(')', separator);
    if (end != npos) text += directives.substr(separator, end - separator);
}

}  // namespace coltre
