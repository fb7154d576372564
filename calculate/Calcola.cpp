#include "calculate/Calcola.h"

#include "engine/ground_load.h"
#include "report/snow_load_report.h"
#include "text/number_reading.h"
#include "text/number_text.h"

namespace coltre {

namespace {

std::optional<Stop> set_ground_load(const Fields& fields, ProgramCells& cells, Outcome& outcome) {
    EntryReader reader(trace_of(outcome));
    const double altitude = reader.lenient("altitudine", "as", "m", fields.asinput);
    if (reader.stop()) return reader.stop();
    outcome.altitude = altitude;
    if (auto stop = set_base_load(cells, altitude, outcome)) return stop;
    const double CE = reader.lenient("coefficiente di esposizione", "CE", "", fields.ComboEsp);
    const double Ct = reader.lenient("coefficiente termico", "Ct", "", fields.TextCTermico);
    if (reader.stop()) return reader.stop();
    return apply_load_factors(cells, CE, Ct, outcome);
}

}  // namespace

std::optional<AltitudeNotice> altitude_notice(const Fields& fields) {
    if (read_leniently(fields.asinput).value <= highest_regulated_altitude) return std::nullopt;
    return AltitudeNotice{
        {Icon::information, std::string(program_title),
         "<Per altitudini superiori a 1500 m sul livello del mare si dovrà fare riferimento\r"
         "alle condizioni locali di clima e di esposizione utilizzando comunque valori di\r"
         "carico neve non inferiori a quelli previsti per 1500 m.>\r"
         "(Circ. 4 luglio 1996)"},
        display_number_text(highest_regulated_altitude)};
}

Outcome Calcola(const Fields& fields, Program& program) {
    constexpr ReportWriter report{"coltre.txt", true, write_snow_load_heading, write_roof};
    Outcome outcome = begin_click(fields, program.cells);
    if (const auto stop = set_ground_load(fields, program.cells, outcome)) {
        outcome.stop(*stop);
    } else {
        calculate_and_report(fields, report, program, outcome);
    }
    return outcome;
}

WidthLabels width_labels(const Calculation& calculation) {
    WidthLabels labels;
    for (const auto& [cell, value] : calculation.results) {
        const std::string text = display_number_text(round_half_even(value, cell->quantity.decimals));
        // Deliberate: the unit stands at L2 alone.
        if (cell == &results::L1) labels.L1output = text;
        if (cell == &results::L2) labels.L2output = text + " [m]";
    }
    return labels;
}

}  // namespace coltre
