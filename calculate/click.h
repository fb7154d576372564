#pragma once

#include <optional>
#include <string>

#include "calculate/stop.h"
#include "engine/calculation.h"
#include "platform/messages.h"
#include "report/report_file.h"

// What the roads of the two calculate buttons have in common.
namespace coltre {

/// What a click on a calculate button leaves besides the program cells.
struct ClickOutcome {
    Messages messages;          ///< what the user is to be told, in order
    Fault fault = Fault::none;  ///< why the calculation stopped; Fault::none if it ran to its end
    /// What was told about a report that could not be written; empty if nothing was.
    std::string file_failure;
    /// The report that stands on disk, whole or up to where the calculation stopped; empty if none was
    /// written.
    std::string report;
    bool results_complete = false;        ///< all results are in their cells: the labels are to be refreshed
    Calculation calculation;              ///< its results, as far as it came
    std::optional<double> altitude;       ///< as read from its field, m
    std::optional<double> qsk;            ///< ground load of this calculation, kN/m2
    std::optional<std::string> asinput;   ///< new text of the altitude field
    std::optional<std::string> L1output;  ///< new text of the label, set as soon as L1 is known
    std::optional<std::string> L2output;

    void tell(Icon icon, std::string text) {
        messages.push_back({icon, std::string(program_title), std::move(text)});
    }
    void stop(const Stop& stop) {
        fault = stop.fault;
        messages.push_back(message_of(stop));
    }
};

/// Sets the qsk cell to the base load of the site.
/// @param altitude  m
std::optional<Stop> set_base_load(ProgramCells& cells, double altitude);

/// Multiplies the qsk cell by the return period factor and the two coefficients.
std::optional<Stop> apply_coefficients(ProgramCells& cells, double CE, double Ct);

/// Puts the report in place. What a stopped calculation left of it is put in place without a word; of a whole
/// one the user is told that it was written, of any that it was not.
/// @param confirmation  of a report that was written whole
void close_report(ReportFile& report, const std::string& confirmation, ClickOutcome& outcome);

}  // namespace coltre
