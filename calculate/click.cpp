#include "calculate/click.h"

#include <algorithm>

#include "engine/ground_load.h"
#include "report/unit_systems.h"
#include "text/number_text.h"

namespace coltre {

namespace {

/// Why the roof load under an overhang load is 0: the pitch that made it so, or the ground load.
std::string zero_load_reason(const ResultCell* qe, const Entries& entries, const ProgramCells& cells) {
    if (cells.qsk == 0) return "Il carico neve al suolo qsk è 0.";
    if (entries.kind == Kind::cylindrical) return "Il carico sulla copertura è 0.";
    if (cells.mu1 != 0) return "Il carico sulla falda è troppo piccolo.";
    const bool second_side = qe == &results::qe_2c || qe == &results::qe_2d;
    std::string_view name = "alfa";
    double alfa = entries.alfa;
    if (entries.kind == Kind::two_pitches) {
        name = second_side ? "alfa2" : "alfa1";
        alfa = second_side ? entries.alfa2 : entries.alfa1;
    }
    if (alfa < 0)
        return std::string(name) +
               " è negativo: il coefficiente di forma mu1 conserva il valore precedente, 0.";
    return "Il carico sulla falda è 0: il coefficiente di forma mu1 è 0 per " + std::string(name) + " = " +
           plain_number_text(alfa) + "°.";
}

/// What an engineer can do about the stop; empty if nothing more is to be said.
std::string reason(const CalculationEnd& end, const Entries& entries, const ProgramCells& cells) {
    if (entries.kind == Kind::level_change && entries.h == 0) return "Il dislivello h è 0.";
    if (entries.kind == Kind::level_change || entries.kind == Kind::wall)
        return cells.qsk == 0 ? "Il carico neve al suolo qsk è 0." : "";
    const bool overhang =
        std::ranges::find(results::overhang_loads, end.cell) != results::overhang_loads.end();
    if (overhang && end.fault == Fault::division_by_zero) return zero_load_reason(end.cell, entries, cells);
    return {};
}

void calculate_entries(const Fields& fields, ProgramCells& cells, Outcome& outcome) {
    // A snow guard has no coefficients.
    const Stage first = fields.kind == Kind::snow_guard ? Stage::loads : Stage::coefficients;
    EntryReader reader(trace_of(outcome), first);
    outcome.entries = reader.entries(fields.kind, fields.entries, fields.decimal_separator);
    if (reader.stop()) return outcome.stop(*reader.stop());
    outcome.calculation = calculate(cells, outcome.entries, trace_of(outcome));

    const CalculationEnd& end = outcome.calculation.end;
    outcome.complete = !end.stopped();
    if (end.fault == Fault::incongruent_dimensions) {
        outcome.fault = end.fault;
        outcome.add_message(Icon::warning, "Dimensioni copertura non congruenti");
    } else if (end.stopped()) {
        Stop stop{end.fault, "Non si può calcolare " + std::string(end.quantity) + "."};
        const std::string why = reason(end, outcome.entries, cells);
        if (!why.empty()) stop.explanation += "\r" + why;
        outcome.stop(stop);
    }
}

/// @param confirmation  of a report that was written whole
void close(ReportFile& report, const std::string& confirmation, Outcome& outcome) {
    report.close();
    outcome.report_failure = report.failure();
    if (outcome.report_failure) return outcome.add_message(Icon::error, *outcome.report_failure);
    outcome.report = report.name();
    if (outcome.fault == Fault::none) outcome.add_message(Icon::none, confirmation);
}

}  // namespace

Datum zone_datum(const ProgramCells& cells) {
    return {"zona", static_cast<double>(cells.zone), "", ""};
}

Outcome begin_click(const Fields& fields, const ProgramCells& cells) {
    Outcome outcome;
    outcome.entries.kind = fields.kind;
    if (!fields.traced) return outcome;
    const double Tr = cells.confirmed_return_period.value_or(cells.return_period);
    outcome.trace = Trace{{zone_datum(cells), {"Tr", Tr, "anni", shortest_number_text(Tr)}}, {}};
    return outcome;
}

std::optional<Stop> set_base_load(ProgramCells& cells, double altitude, Outcome& outcome) {
    const Fault fault = set_base_load(cells, altitude, trace_of(outcome));
    if (fault == Fault::none) return std::nullopt;
    return Stop{fault, "Il carico neve al suolo qsk non si può calcolare: l'altitudine è troppo grande."};
}

std::optional<Stop> apply_load_factors(ProgramCells& cells, double CE, double Ct, Outcome& outcome) {
    const Fault fault = apply_load_factors(cells, CE, Ct, trace_of(outcome));
    if (fault == Fault::none) {
        outcome.qsk = cells.qsk;
        return std::nullopt;
    }
    return Stop{fault, "Il carico neve al suolo qsk è troppo grande."};
}

void calculate_and_report(const Fields& fields, const ReportWriter& writer, Program& program,
                          Outcome& outcome) {
    ProgramCells& cells = program.cells;
    cells.unit_system = unit_system_of(fields.udmcombo).value_or(cells.unit_system);
    if (!fields.Check1Box) return calculate_entries(fields, cells, outcome);

    const ReportData data{program.directories.JobName, *outcome.altitude, fields.entries};
    ReportFile report(program.directories.WorkDirectory + "\\" + std::string(writer.file_name),
                      outcome.messages);
    writer.write_heading(report, data, cells);
    if (!report.failure() && report.fault() == Fault::none) {
        calculate_entries(fields, cells, outcome);
        writer.write_section(report, data, cells, outcome.entries, outcome.calculation);
    }
    // A number too large for its line ends the calculation as every overflow does.
    if (report.fault() != Fault::none && outcome.fault == Fault::none) {
        outcome.complete = false;
        outcome.stop({report.fault(), "Un valore della relazione è troppo grande."});
    }
    const std::string name = writer.confirms_with_directory ? report.name() : std::string(writer.file_name);
    close(report, "Creazione della relazione " + name + " effettuata", outcome);
}

}  // namespace coltre
