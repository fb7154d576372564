#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "calculate/click.h"
#include "document/sensitivity.h"

namespace coltre {

/// A calculation and where it was made: what the document tells of.
struct Subject {
    Fields fields;    ///< as they were when it was calculated
    Outcome outcome;  ///< with its trace
    SnowZone zone = 0;
    bool zone_of_province = false;  ///< false: chosen by the designer
    std::string province;           ///< empty where the site was not chosen by name
    std::string municipality;
    std::string listed_altitude;     ///< m, of the municipality in altitudini.txt; empty without one
    std::string job_name;            ///< of the fixed reports; empty without one
    std::string return_period_text;  ///< as typed in a request; empty where the cells alone know it
    double return_period = 50;       ///< Tr, years, as last typed
    std::optional<double> confirmed_return_period;
    std::optional<double> last_roof_load;  ///< kN/m2, greatest of the last roof that was calculated before
    std::string program;                   ///< its version and build
    std::string request;  ///< the request of the command that gives the same, one line of JSON

    [[nodiscard]] const Description& calculation() const { return describe(fields.kind); }
    [[nodiscard]] bool is_roof() const { return calculation().window == Window::main; }
    [[nodiscard]] const Trace& trace() const { return *outcome.trace; }
    /// Null where the calculation did not come so far.
    [[nodiscard]] const Datum* datum(std::string_view symbol) const;
    [[nodiscard]] const Step* step(std::string_view symbol) const;
    /// The value of a result; nothing where the calculation did not come so far.
    [[nodiscard]] std::optional<double> computed(const ResultCell& result) const;
    /// The results in cells of their own; those that were not computed are 0.
    [[nodiscard]] ProgramCells cells() const;
    /// Of a calculation whose ground load was computed.
    [[nodiscard]] LoadInputs load_inputs() const;
    /// The municipality with its province; empty where the site was not chosen by name.
    [[nodiscard]] std::string site() const;
    /// The pitch so steep that no snow stays on it, at whose overhang load the calculation ended: no error.
    /// Null for any other end.
    [[nodiscard]] const Datum* steep_pitch() const;
};

}  // namespace coltre
