#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/calculation.h"
#include "platform/message_boxes.h"
#include "report/report_file.h"

// What the roads of the two calculate buttons have in common.
namespace coltre {

/// Why a calculation stopped, for the user.
struct Stop {
    Fault fault = Fault::none;
    std::string explanation;  ///< one Italian sentence or more, lines separated by "\r"
};

/// What a click on a calculate button leaves besides the program cells.
struct ClickOutcome {
    Fault fault = Fault::none;  ///< why the calculation stopped; Fault::none if it ran to its end
    /// What was told about a report that could not be written; empty if nothing was.
    std::string file_failure;
    bool report_written = false;  ///< the report stands on disk, whole or up to where the calculation stopped
    bool results_complete = false;        ///< all results are in their cells: the labels are to be refreshed
    std::optional<double> altitude;       ///< as read from its field, m
    std::optional<double> qsk;            ///< ground load of this calculation, kN/m2
    std::optional<std::string> asinput;   ///< new text of the altitude field
    std::optional<std::string> L1output;  ///< new text of the label, set as soon as L1 is known
    std::optional<std::string> L2output;
};

/// The fault as a short Italian text: "divisione per zero", "errore numerico", "conversione non valida",
/// "dimensioni non congruenti"; empty for Fault::none.
std::string_view fault_text(Fault fault);

/// Tells the user once, in a message box, that the calculation stopped and why.
void tell_stop(const Stop& stop, MessageBoxes& message_boxes);

/// Keeps and tells a stop, if there is one.
/// @return true if the calculation stopped
bool stopped(const std::optional<Stop>& stop, ClickOutcome& outcome, MessageBoxes& message_boxes);

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

/// Passes everything on to two observers, the first one first.
class BothObservers : public CalculationObserver {
  public:
    BothObservers(CalculationObserver& first, CalculationObserver& second)
        : m_first(first), m_second(second) {}
    void on_cell(const ResultCell& cell, double value) override;
    void on_coefficient(std::string_view label, double mu) override;
    void on_roof(const Roof& roof) override;
    void on_load_case(const LoadCase& load_case) override;
    void on_special_case(const SpecialCaseEntries& entries) override;

  private:
    CalculationObserver& m_first;
    CalculationObserver& m_second;
};

}  // namespace coltre
