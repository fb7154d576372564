#include "calculate/Calcola2.h"

#include "engine/special_loads.h"
#include "report/special_cases_report.h"
#include "report/unit_systems.h"

namespace coltre {

namespace {

Stop explain(const CalculationEnd& end, const SpecialCaseEntries& entries, const ProgramCells& cells) {
    Stop stop = stop_of(end);
    if (entries.special_case == SpecialCase::level_change && entries.h == 0) {
        stop.explanation += "\rIl dislivello h è 0.";
    } else if (entries.special_case != SpecialCase::snow_guard && cells.qsk == 0) {
        stop.explanation += "\rIl carico neve al suolo qsk è 0.";
    }
    return stop;
}

std::optional<Stop> calculate_page(const SpecialCasesFields& fields, ProgramCells& cells,
                                   ClickOutcome& outcome, CalculationObserver& observer) {
    EntryReader reader;
    const SpecialCaseEntries entries = read_entries(fields, reader);
    if (reader.stop()) return reader.stop();
    const CalculationEnd end = calculate_special_case(cells, entries, &observer);
    if (end.stopped()) return explain(end, entries, cells);
    outcome.results_complete = true;
    return std::nullopt;
}

std::optional<Stop> set_design_ground_load(const SpecialCasesFields& fields, ProgramCells& cells,
                                           double& altitude) {
    EntryReader reader;
    altitude = reader.lenient("altitudine", fields.asinput);
    const auto [CE, Ct] = reader.coefficients(fields.ComboEsp, fields.TextCTermico);
    if (reader.stop()) return reader.stop();
    if (auto stop = set_base_load(cells, altitude)) return stop;
    return apply_coefficients(cells, CE, Ct);
}

}  // namespace

SpecialCaseEntries read_entries(const SpecialCasesFields& fields, EntryReader& reader) {
    SpecialCaseEntries entries;
    entries.special_case = fields.cartelle;
    switch (entries.special_case) {
        case SpecialCase::level_change:
            entries.b1 = reader.strict("b1", fields.b1input, fields.decimal_separator);
            entries.b2 = reader.strict("b2", fields.b2input, fields.decimal_separator);
            entries.h = reader.strict("h", fields.h2input, fields.decimal_separator);
            entries.alfa = reader.strict("alfa", fields.deltainput, fields.decimal_separator);
            break;
        case SpecialCase::wall:
            entries.h = reader.strict("h", fields.h3input, fields.decimal_separator);
            break;
        case SpecialCase::snow_guard:
            entries.qs = reader.lenient("qs", fields.qsinput);
            entries.b = reader.lenient("b", fields.biinput);
            entries.alfa = reader.lenient("alfa", fields.angoloinput);
            break;
    }
    return entries;
}

ClickOutcome Calcola2(const SpecialCasesFields& fields, Program& program, MessageBoxes& message_boxes,
                      CalculationObserver& observer) {
    ClickOutcome outcome;
    ProgramCells& cells = program.cells;
    double altitude = 0;
    if (tell_if_stopped(set_design_ground_load(fields, cells, altitude), outcome, message_boxes))
        return outcome;
    outcome.altitude = altitude;
    outcome.qsk = cells.qsk;
    cells.unit_system = unit_system_of(fields.udmcombo).value_or(cells.unit_system);
    std::optional<SpecialCasesReport> report;
    if (fields.Check1Box) {
        report.emplace(SpecialCasesReportData{.WorkDirectory = program.directories.WorkDirectory,
                                              .JobName = program.directories.JobName,
                                              .angoloinput = fields.angoloinput,
                                              .altitude = altitude},
                       cells, message_boxes);
    }
    calculate_with_report(
        report ? &*report : nullptr, observer, outcome, message_boxes,
        [&](CalculationObserver& observers) { return calculate_page(fields, cells, outcome, observers); });
    return outcome;
}

}  // namespace coltre
