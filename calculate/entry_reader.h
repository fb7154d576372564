#pragma once

#include <optional>
#include <string_view>

#include "calculate/stop.h"

namespace coltre {

/// Reads numeric fields until the first that cannot be used; from then on it reads nothing more.
class EntryReader {
  public:
    /// @param name  what the explanation of a fault calls the field
    double lenient(std::string_view name, std::string_view text);
    /// @param decimal_separator  of the user's locale; "." always is one
    double strict(std::string_view name, std::string_view text, char decimal_separator);

    /// The two coefficients of the main window, of the fields of these names.
    struct Coefficients {
        double CE;
        double Ct;
    };
    Coefficients coefficients(std::string_view ComboEsp, std::string_view TextCTermico);

    /// Set by the first field that was no number or beyond the range of numbers.
    [[nodiscard]] const std::optional<Stop>& stop() const { return m_stop; }

  private:
    std::optional<Stop> m_stop;
};

}  // namespace coltre
