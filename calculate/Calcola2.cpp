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

std::optional<Stop> set_design_ground_load(const SpecialCasesFields& fields, ProgramCells& cells,
                                           ClickOutcome& outcome) {
    EntryReader reader;
    const double altitude = reader.lenient("altitudine", fields.asinput);
    const auto [CE, Ct] = reader.coefficients(fields.ComboEsp, fields.TextCTermico);
    if (reader.stop()) return reader.stop();
    if (auto stop = set_base_load(cells, altitude)) return stop;
    if (auto stop = apply_coefficients(cells, CE, Ct)) return stop;
    outcome.altitude = altitude;
    outcome.qsk = cells.qsk;
    return std::nullopt;
}

/// The special case of the selected page, with its section of the report.
void calculate_page(const SpecialCasesFields& fields, const SpecialCasesReportData& data, ProgramCells& cells,
                    std::optional<ReportFile>& report, ClickOutcome& outcome) {
    EntryReader reader;
    const SpecialCaseEntries entries = read_entries(fields, reader);
    if (reader.stop()) return outcome.stop(*reader.stop());
    outcome.calculation = calculate_special_case(cells, entries);
    const CalculationEnd& end = outcome.calculation.end;
    outcome.results_complete = !end.stopped();
    if (end.stopped()) return outcome.stop(explain(end, entries, cells));
    if (report) write_special_case(*report, data, cells, entries);
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

ClickOutcome Calcola2(const SpecialCasesFields& fields, Program& program) {
    ClickOutcome outcome;
    ProgramCells& cells = program.cells;
    if (const auto stop = set_design_ground_load(fields, cells, outcome)) {
        outcome.stop(*stop);
        return outcome;
    }
    cells.unit_system = unit_system_of(fields.udmcombo).value_or(cells.unit_system);

    const SpecialCasesReportData data{program.directories.JobName, fields.angoloinput, *outcome.altitude};
    std::optional<ReportFile> report;
    if (fields.Check1Box) {
        report.emplace(program.directories.WorkDirectory + "\\coltrecasipart.txt", outcome.messages);
        write_heading(*report, data, cells);
    }
    if (!report || report->failure().empty()) calculate_page(fields, data, cells, report, outcome);
    if (report) close_report(*report, "Creazione della relazione coltrecasipart.txt effettuata", outcome);
    return outcome;
}

}  // namespace coltre
