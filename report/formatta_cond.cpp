#include "report/formatta_cond.h"

#include <algorithm>
#include <array>
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
constexpr std::string_view overflow = "Errore numerico: un valore della relazione è troppo grande.";

void tell(Messages& messages, std::string_view text) {
    messages.push_back({Icon::error, std::string(program_title), std::string(text)});
}

/// Where each keyword stands in a directive string, found in one go. A keyword counts where it stands first.
class Keywords {
  public:
    enum Keyword { cu, cs, dv, cd, zr, fd, fs, np, sc, count };

    explicit Keywords(std::string_view directives) : m_directives(directives) {
        m_start.fill(npos);
        for (std::size_t open = directives.find('('); open != npos; open = directives.find('(', open + 1)) {
            const std::string_view rest = directives.substr(open);
            if (rest.size() < 4 || rest[3] != '_') continue;
            const std::array<char, 2> name{lower_ascii(rest[1]), lower_ascii(rest[2])};
            const auto found = std::ranges::find(names, name);
            if (found == names.end()) continue;
            std::size_t& start = m_start[static_cast<std::size_t>(found - names.begin())];
            if (start == npos) start = open;
        }
    }

    [[nodiscard]] bool has(Keyword keyword) const { return m_start[keyword] != npos; }
    [[nodiscard]] std::size_t start(Keyword keyword) const { return m_start[keyword]; }

    /// What stands behind the underscore, up to the end of the string.
    [[nodiscard]] std::string_view behind(Keyword keyword) const {
        return m_directives.substr(m_start[keyword] + 4);
    }

    /// The argument "nn": the two characters behind the underscore, read leniently and rounded to a whole
    /// number, a half to the even neighbour. Nothing if the directive is absent.
    [[nodiscard]] std::optional<int> argument(Keyword keyword) const {
        if (!has(keyword)) return std::nullopt;
        const std::string_view rest = behind(keyword);
        return static_cast<int>(
            std::nearbyint(read_leniently(rest.substr(0, bytes_of_characters(rest, 2))).value));
    }

  private:
    static constexpr std::array<std::array<char, 2>, count> names{{{'c', 'u'},
                                                                   {'c', 's'},
                                                                   {'d', 'v'},
                                                                   {'c', 'd'},
                                                                   {'z', 'r'},
                                                                   {'f', 'd'},
                                                                   {'f', 's'},
                                                                   {'n', 'p'},
                                                                   {'s', 'c'}}};

    std::string_view m_directives;
    std::array<std::size_t, count> m_start;
};

/// Decimal shift of a scale factor, from its magnitude.
std::int16_t shift_of_factor(double factor) {
    constexpr double smallest = 0.000001;
    if (std::fabs(factor) <= smallest) return 0;
    return static_cast<std::int16_t>(-std::nearbyint(std::log(std::fabs(factor)) / std::log(10.0) - 0.19897));
}

bool has_exponent(std::string_view text) {
    return std::ranges::any_of(text, [](char c) { return c == 'e' || c == 'E'; });
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
std::string rewritten_as_decimals(std::string_view directives, std::size_t start, int decimals) {
    const std::size_t length = bytes_of_characters(directives.substr(start), 7);
    std::string rewritten(directives.substr(0, start));
    rewritten += decimals < 10 ? "(cd_0" : "(cd_";
    rewritten += std::to_string(decimals);
    rewritten += ')';
    rewritten += directives.substr(start + length);
    return rewritten;
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
void drop_trailing_point(std::string& text, const Keywords& keywords) {
    if (!trim_blanks(text).ends_with('.')) return;
    text[bytes_of_characters(text, static_cast<std::size_t>(last_occurrence(text, ".") - 1))] = ' ';
    if (keywords.has(Keywords::fd) && !keywords.has(Keywords::cd)) {
        text.pop_back();
        text.insert(0, 1, ' ');
    }
}

/// A fault that was told already: formatta() yields the empty text.
using Told = std::nullopt_t;

/// The steps of formatta() behind the scaling.
std::optional<std::string> format_field(double value, std::string_view directives, double factor,
                                        Messages& messages) {
    const auto told = [&messages](std::string_view text) -> Told {
        tell(messages, text);
        return std::nullopt;
    };

    Keywords keywords(directives);
    std::int16_t shift = shift_of_factor(factor);
    if (keywords.has(Keywords::cu) && converti_unita(value, directives, shift, messages) != Fault::none) {
        return told(overflow);
    }

    if (const auto digits = keywords.argument(Keywords::cs)) {
        if (*digits < 1) return told("comando (cs_nn) errato.");
        value = round_significant(value, *digits);
        if (!std::isfinite(value)) return told(overflow);
    }
    std::string rewritten;
    if (const auto base_decimals = keywords.argument(Keywords::dv)) {
        if (*base_decimals < 0) return told("comando (dv_nn) errato (2).");
        const int shifted = std::max(0, *base_decimals + shift);
        if (shifted >= 100) return told("comando (dv_nn) errato (1).");
        rewritten = rewritten_as_decimals(directives, keywords.start(Keywords::dv), shifted);
        directives = rewritten;
        keywords = Keywords(directives);
    }
    const auto decimals = keywords.argument(Keywords::cd);
    if (decimals && *decimals < 0) return told("comando (cd_nn) errato.");

    std::string text;
    if (decimals) {
        RoundedNumber rounded = round_to_text(value, *decimals);
        value = rounded.value;
        text = std::move(rounded.text);
    } else {
        text = plain_number_text(value);
    }
    const int point = decimal_point_position(text);
    // Without a "(cd_nn)" no fill character is chosen, and the character of code 0 stands for it: deliberate.
    std::string_view fill("\0", 1);
    if (point > 0 && decimals) {
        const bool given = keywords.has(Keywords::zr) && !keywords.behind(Keywords::zr).empty();
        fill = given ? first_character(keywords.behind(Keywords::zr)) : " ";
        pad_right(text, point + *decimals, fill);
    }

    const auto width = keywords.argument(keywords.has(Keywords::fd) ? Keywords::fd : Keywords::fs);
    if (width) {
        if (*width < 2) return told("comando (fd_nn) o (fs_nn) errato.");
        if (!fit_field(text, value, *width, point, fill)) {
            text.assign(static_cast<std::size_t>(*width), '*');
            append_separator(text, directives);
            return text;
        }
        if (keywords.has(Keywords::fs)) {
            text = std::string(trim_blanks(text));
            pad_right(text, *width, " ");
        }
    }
    if (keywords.has(Keywords::np) && find_directive(directives, "(np_1)") != npos)
        drop_trailing_point(text, keywords);
    if (!width) text = std::string(trim_blanks(text));
    append_separator(text, directives);
    return text;
}

}  // namespace

std::string formatta(double value, std::string_view directives, double factor, Messages& messages) {
    const Checked scaled = Checked(value) * factor;
    if (scaled.fault() != Fault::none) {
        tell(messages, overflow);
        return {};
    }
    if (directives.empty()) return plain_number_text(scaled.value());
    return format_field(scaled.value(), directives, factor, messages).value_or(std::string());
}

Fault converti_unita(double& value, std::string_view directives, std::int16_t& decimal_shift,
                     Messages& messages) {
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
    if (!same_unit) tell(messages, "Stringa di conversione unità di misura non riconosciuta.");
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
