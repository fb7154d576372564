#pragma once

#include <functional>
#include <optional>
#include <string>

#include "calculate/stop.h"
#include "engine/calculation.h"
#include "platform/message_boxes.h"
#include "report/report_file.h"

// What the roads of the two calculate buttons have in common.
namespace coltre {

/// What a click on a calculate button leaves besides the program cells.
struct ClickOutcome {
    Fault fault = Fault::none;  ///< why the calculation stopped; Fault::none if it ran to its end
    /// What was told about a report that could not be written; empty if nothing was.
    std::string file_failure;
    /// The report that stands on disk, whole or up to where the calculation stopped; empty if none was
    /// written.
    std::string report;
    bool results_complete = false;        ///< all results are in their cells: the labels are to be refreshed
    std::optional<double> altitude;       ///< as read from its field, m
    std::optional<double> qsk;            ///< ground load of this calculation, kN/m2
    std::optional<std::string> asinput;   ///< new text of the altitude field
    std::optional<std::string> L1output;  ///< new text of the label, set as soon as L1 is known
    std::optional<std::string> L2output;
};

/// Keeps and tells a stop, if there is one.
/// @return true if the calculation stopped
bool tell_if_stopped(const std::optional<Stop>& stop, ClickOutcome& outcome, MessageBoxes& message_boxes);

/// Sets the qsk cell to the base load of the site.
/// @param altitude  m
std::optional<Stop> set_base_load(ProgramCells& cells, double altitude);

/// Multiplies the qsk cell by the return period factor and the two coefficients.
std::optional<Stop> apply_coefficients(ProgramCells& cells, double CE, double Ct);

/// Last part of both roads: the calculation of the selected tab or page and, at its side, its report. A
/// report that cannot be created stops the calculation before it begins; at the end it is put in place and
/// the user is told that it was written, or why it was not. What a stopped calculation left of it is put in
/// place without a word.
/// @param report     opened, its heading written; nullptr if none is wanted
/// @param observer   hears of each result after the report
/// @param calculate  computes and tells the observer that it is given
void calculate_with_report(Report* report, CalculationObserver& observer, ClickOutcome& outcome,
                           MessageBoxes& message_boxes,
                           const std::function<std::optional<Stop>(CalculationObserver&)>& calculate);

}  // namespace coltre
