#include "report/formatta_cond.h"

#include <algorithm>
#include <cmath>

#include "report/directives.h"
#include "report/unit_table.h"
#include "text/VarieBanali_cond.h"
#include "text/characters.h"
#include "text/number_text.h"

namespace coltre {

namespace {

void add_error(Messages& messages, std::string_view text) {
    messages.push_back({Icon::error, std::string(program_title), std::string(text)});
}

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

/// A number on its way to its field, step by step as in docs/directives.md.
class Field {
  public:
    Field(double value, std::string_view directives, double factor, Messages& messages)
        : m_value(value), m_directives(directives), m_shift(shift_of_factor(factor)), m_messages(messages) {}

    /// Takes the steps; one that returns false was the last.
    /// @return as formatta()
    std::optional<std::string> formatted() {
        const bool complete =
            convert() && round_digits() && shift_decimals() && round_decimals() && fit_width();
        if (m_overflow) return std::nullopt;
        if (!complete) return std::string();
        blank_point();
        if (!m_width) m_text = std::string(trim_blanks(m_text));
        return m_text + m_directives.separator(m_shifted_decimals);
    }

  private:
    bool refuse(std::string_view message) {
        add_error(m_messages, message);
        return false;
    }

    bool convert() {
        if (!m_directives.has(Directives::cu)) return true;
        m_overflow = converti_unita(m_value, m_directives.written(), m_shift, m_messages) != Fault::none;
        return !m_overflow;
    }

    bool round_digits() {
        const auto digits = m_directives.number(Directives::cs);
        if (!digits) return true;
        if (*digits < 1) return refuse("comando (cs_nn) errato.");
        m_value = round_significant(m_value, *digits);
        m_overflow = !std::isfinite(m_value);
        return !m_overflow;
    }

    bool shift_decimals() {
        const auto base_decimals = m_directives.number(Directives::dv);
        if (!base_decimals) return true;
        if (*base_decimals < 0) return refuse("comando (dv_nn) errato (2).");
        m_shifted_decimals = std::max(0, *base_decimals + m_shift);
        return m_shifted_decimals < 100 || refuse("comando (dv_nn) errato (1).");
    }

    bool round_decimals() {
        m_decimals = m_directives.dv_is_first() ? std::optional(m_shifted_decimals)
                                                : m_directives.number(Directives::cd);
        if (m_decimals && *m_decimals < 0) return refuse("comando (cd_nn) errato.");
        if (m_decimals) m_value = round_half_even(m_value, *m_decimals);
        m_text = plain_number_text(m_value);
        m_point = decimal_point_position(m_text);
        if (m_decimals && m_point > 0) fill_decimals();
        return true;
    }

    void fill_decimals() {
        m_fill = m_directives.fill();
        pad_right(m_text, m_point + *m_decimals, m_fill);
    }

    bool fit_width() {
        m_width = m_directives.number(m_directives.has(Directives::fd) ? Directives::fd : Directives::fs);
        if (!m_width) return true;
        if (*m_width < 2) return refuse("comando (fd_nn) o (fs_nn) errato.");
        fit(*m_width);
        if (m_directives.has(Directives::fs)) {
            m_text = std::string(trim_blanks(m_text));
            pad_right(m_text, *m_width, " ");
        }
        return true;
    }

    /// Brings the number to the width of the field; what does not fit in any form gives way to asterisks.
    void fit(int width) {
        const int whole_places = m_point - 1;
        // A fill of "e" makes the text pass for the exponent form: deliberate.
        if (has_exponent(m_text) || whole_places > width) {
            fit_exponent(width);
        } else if (static_cast<int>(character_count(m_text)) <= width) {
            pad_left(m_text, width);
        } else if (whole_places == width) {
            m_text = whole_picture(m_value);
        } else {
            m_text = fixed_picture(m_value, width - m_point);
            pad_right(m_text, width, m_fill);
        }
    }

    void fit_exponent(int width) {
        for (int digits = width - 3; digits >= 1; --digits) {
            m_text = exponent_picture(m_value, digits);
            if (static_cast<int>(m_text.size()) <= width) return pad_left(m_text, width);
        }
        m_text.assign(static_cast<std::size_t>(width), '*');
    }

    /// A point at the end gives way to a blank; a right-aligned field keeps its width.
    void blank_point() {
        if (!m_directives.has(Directives::np) || !trim_blanks(m_text).ends_with('.')) return;
        const auto before = static_cast<std::size_t>(last_occurrence(m_text, ".") - 1);
        m_text[bytes_of_characters(m_text, before)] = ' ';
        if (m_directives.has(Directives::fd) && !m_decimals) {
            m_text.pop_back();
            m_text.insert(0, 1, ' ');
        }
    }

    double m_value;
    Directives m_directives;
    std::int16_t m_shift;
    int m_shifted_decimals = 0;     // mm of the "(cd_mm)" that "(dv_nn)" becomes
    std::optional<int> m_decimals;  // nn of the "(cd_nn)" that counts
    std::string m_text;
    int m_point = -1;
    // Without a "(cd_nn)" no fill character is chosen, and the character of code 0 stands for it: deliberate.
    std::string_view m_fill{"\0", 1};
    std::optional<int> m_width;
    bool m_overflow = false;
    Messages& m_messages;
};

}  // namespace

std::optional<std::string> formatta(double value, std::string_view directives, double factor,
                                    Messages& messages) {
    const Checked scaled = Checked(value) * factor;
    if (scaled.fault() != Fault::none) return std::nullopt;
    if (directives.empty()) return plain_number_text(scaled.value());
    return Field(scaled.value(), directives, factor, messages).formatted();
}

Fault converti_unita(double& value, std::string_view directives, std::int16_t& decimal_shift,
                     Messages& messages) {
    decimal_shift = 0;
    if (const UnitCommand* const command = find_unit_command(directives)) {
        const Checked converted = Checked(value) * command->multiplier;
        if (converted.fault() != Fault::none) return converted.fault();
        value = converted.value();
        decimal_shift = command->decimal_shift;
    } else if (!Directives(directives).has_same_units()) {
        add_error(messages, "Stringa di conversione unità di misura non riconosciuta.");
    }
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

}  // namespace coltre
