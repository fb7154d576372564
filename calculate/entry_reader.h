#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "calculate/calculations.h"
#include "platform/messages.h"

namespace coltre {

/// Why a calculation stopped, for the user.
struct Stop {
    Fault fault = Fault::none;
    std::string explanation;  ///< one Italian sentence or more, lines separated by "\r"
};

/// The fault as a short Italian text: "divisione per zero", "errore numerico", "conversione non valida",
/// "dimensioni non congruenti"; empty for Fault::none.
std::string_view fault_text(Fault fault);

/// Says that the calculation stopped and why.
Message message_of(const Stop& stop);

/// Reads numeric fields until the first that cannot be used; from then on it reads nothing more.
class EntryReader {
  public:
    /// @param trace  takes each number that was read, and as a step without a value one that is beyond the
    ///               range of numbers; null if nobody asks for them
    /// @param stage  of that step: what the numbers are read for
    explicit EntryReader(Trace* trace = nullptr, Stage stage = Stage::ground_load)
        : m_trace(trace), m_stage(stage) {}

    /// @param name    what the explanation of a fault calls the field
    /// @param symbol  what formulas call the number
    double lenient(std::string_view name, std::string_view symbol, std::string_view unit,
                   std::string_view text);
    /// The numbers of a calculation from its texts, in the order of its row.
    /// @param decimal_separator  of the user's locale, for strict reading; "." always is one
    Entries entries(Kind kind, std::span<const std::string> texts, char decimal_separator);

    /// Set by the first field that was no number or beyond the range of numbers.
    [[nodiscard]] const std::optional<Stop>& stop() const { return m_stop; }

  private:
    double strict(std::string_view name, std::string_view unit, std::string_view text,
                  char decimal_separator);
    void keep(std::string_view symbol, double value, std::string_view unit, std::string_view text);
    /// @param text  as typed, with a decimal point
    void stop_beyond_range(std::string_view name, std::string_view symbol, std::string_view unit,
                           std::string_view text);

    Trace* m_trace;
    Stage m_stage;
    std::optional<Stop> m_stop;
};

}  // namespace coltre
