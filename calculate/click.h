#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calculate/entry_reader.h"
#include "engine/calculation.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "report/report_file.h"
#include "startup/program.h"

// What the two calculate buttons have in common: what they take and what they leave.
namespace coltre {

/// The texts and states of the controls at the moment of a click, or of a request of the command.
struct Fields {
    std::string asinput{};       ///< altitude, m
    std::string ComboEsp{};      ///< exposure coefficient CE
    std::string TextCTermico{};  ///< thermal coefficient Ct
    Kind kind = Kind::one_pitch;
    std::vector<std::string> entries{};  ///< in the order of describe(kind).entries
    std::string udmcombo{};              ///< unit system of the report
    bool Check1Box = false;              ///< write the report
    char decimal_separator = '.';        ///< of the user's locale, for the entries that are read strictly
    bool traced = false;                 ///< keep the steps

    bool operator==(const Fields&) const = default;
};

/// What a click leaves besides the program cells.
struct Outcome {
    Messages messages;          ///< to be shown, in order
    Fault fault = Fault::none;  ///< why the calculation stopped; Fault::none if it ran to its end
    Failure report_failure;     ///< why the report could not be written; it is among the messages
    /// The report that stands on disk, whole or up to where the calculation stopped; empty if none was
    /// written.
    std::string report;
    std::optional<double> altitude;  ///< as read from its field, m
    std::optional<double> qsk;       ///< ground load of this calculation, kN/m2
    Entries entries;                 ///< as read
    Calculation calculation;         ///< its results, as far as it came
    bool complete = false;           ///< all results are in their cells: the labels are to be refreshed
    std::optional<Trace> trace;      ///< if it was asked for

    void add_message(Icon icon, std::string text) {
        messages.push_back({icon, std::string(program_title), std::move(text)});
    }
    void stop(const Stop& stop) {
        fault = stop.fault;
        messages.push_back(message_of(stop));
    }
};

/// What the two reports differ in.
struct ReportWriter {
    std::string_view file_name;
    bool confirms_with_directory;  ///< the confirmation names the directory as well
    void (*write_heading)(ReportFile&, const ReportData&, const ProgramCells&);
    void (*write_section)(ReportFile&, const ReportData&, const ProgramCells&, const Entries&,
                          const Calculation&);
};

/// The zone as formulas call it.
Datum zone_datum(const ProgramCells& cells);

/// What a click starts with: its trace, if it is asked for, holds the zone and the return period.
Outcome begin_click(const Fields& fields, const ProgramCells& cells);

/// Where the steps of a click go; null if nobody asks for them.
inline Trace* trace_of(Outcome& outcome) {
    return outcome.trace ? &*outcome.trace : nullptr;
}

/// Sets the qsk cell to the base load of the site.
/// @param altitude  m
std::optional<Stop> set_base_load(ProgramCells& cells, double altitude, Outcome& outcome);

/// Multiplies the qsk cell by the return period factor and the two coefficients: the ground load of the
/// click.
std::optional<Stop> apply_load_factors(ProgramCells& cells, double CE, double Ct, Outcome& outcome);

/// What follows the ground load in both clicks: unit system, heading of the report if one is wanted, the
/// calculation of the entries, its section, and the report put in place. A stop is reported with its reason;
/// what it left of the report is put in place without a word. A whole report is confirmed, one that cannot be
/// written is reported; one that cannot be created stops the click before anything is calculated.
void calculate_and_report(const Fields& fields, const ReportWriter& writer, Program& program,
                          Outcome& outcome);

}  // namespace coltre
