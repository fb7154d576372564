#include "calculate/Calcola2.h"

#include "report/special_cases_report.h"

namespace coltre {

namespace {

std::optional<Stop> set_design_ground_load(const Fields& fields, ProgramCells& cells, Outcome& outcome) {
    EntryReader reader(trace_of(outcome));
    const double altitude = reader.lenient("altitudine", "as", "m", fields.asinput);
    if (!reader.stop()) outcome.altitude = altitude;
    const double CE = reader.lenient("coefficiente di esposizione", "CE", "", fields.ComboEsp);
    const double Ct = reader.lenient("coefficiente termico", "Ct", "", fields.TextCTermico);
    if (reader.stop()) return reader.stop();
    if (auto stop = set_base_load(cells, altitude, outcome)) return stop;
    return apply_load_factors(cells, CE, Ct, outcome);
}

}  // namespace

Outcome Calcola2(const Fields& fields, Program& program) {
    constexpr ReportWriter report{"coltrecasipart.txt", false, write_special_cases_heading,
                                  write_special_case};
    Outcome outcome = begin_click(fields, program.cells);
    if (const auto stop = set_design_ground_load(fields, program.cells, outcome)) {
        outcome.stop(*stop);
    } else {
        calculate_and_report(fields, report, program, outcome);
    }
    return outcome;
}

}  // namespace coltre
