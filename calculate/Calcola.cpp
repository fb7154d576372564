#include "calculate/Calcola.h"

#include "engine/ground_load.h"
#include "engine/roof_loads.h"
#include "report/snow_load_report.h"
#include "report/unit_systems.h"
#include "text/number_text.h"

namespace coltre {

namespace {

constexpr const char* altitude_note =
    "<Per altitudini superiori a 1500 m sul livello del mare si dovrà fare riferimento\r"
    "alle condizioni locali di clima e di esposizione utilizzando comunque valori di\r"
    "carico neve non inferiori a quelli previsti per 1500 m.>\r"
    "(Circ. 4 luglio 1996)";

/// Why the roof load under an overhang load is 0: the pitch that made it so, or the ground load.
std::string zero_load_reason(std::string_view quantity, const Roof& roof, const ProgramCells& cells) {
    if (cells.qsk == 0) return "Il carico neve al suolo qsk è 0.";
    if (roof.family == RoofFamily::cylindrical) return "Il carico sulla copertura è 0.";
    if (cells.mu1 != 0) return "Il carico sulla falda è troppo piccolo.";
    const bool second_side = quantity == results::qe_2c.name || quantity == results::qe_2d.name;
    std::string_view name = "alfa";
    if (roof.family == RoofFamily::two_pitches) name = second_side ? "alfa2" : "alfa1";
    const double alfa = second_side ? roof.alfa2 : roof.alfa1;
    if (alfa < 0) return std::string(name) + " è negativo: il coefficiente di forma mu1 resta com'era, 0.";
    return "Il carico sulla falda è 0: il coefficiente di forma mu1 è 0 per " + std::string(name) + " = " +
           plain_number_text(alfa) + "°.";
}

Stop explain(const CalculationEnd& end, const Roof& roof, const ProgramCells& cells) {
    Stop stop = stop_of(end);
    if (end.fault == Fault::division_by_zero && end.quantity.starts_with("qe_")) {
        stop.explanation += "\r" + zero_load_reason(end.quantity, roof, cells);
    }
    return stop;
}

/// Ground load with the altitude message on the way.
std::optional<Stop> set_ground_load(const MainWindowFields& fields, ProgramCells& cells,
                                    ClickOutcome& outcome) {
    EntryReader reader;
    const double altitude = reader.lenient("altitudine", fields.asinput);
    if (reader.stop()) return reader.stop();
    if (altitude > highest_regulated_altitude) {
        outcome.tell(Icon::information, altitude_note);
        // Deliberate: this calculation goes on with the altitude as typed; only a later one reads 1500.
        outcome.asinput = display_number_text(highest_regulated_altitude);
    }
    if (auto stop = set_base_load(cells, altitude)) return stop;
    const auto [CE, Ct] = reader.coefficients(fields.ComboEsp, fields.TextCTermico);
    if (reader.stop()) return reader.stop();
    if (auto stop = apply_coefficients(cells, CE, Ct)) return stop;
    outcome.altitude = altitude;
    outcome.qsk = cells.qsk;
    return std::nullopt;
}

/// The texts of the two labels that show the widths as soon as these are known.
void set_width_labels(ClickOutcome& outcome) {
    for (const auto& [cell, value] : outcome.calculation.results) {
        const std::string text = display_number_text(round_half_even(value, 2));
        // Deliberate: the unit stands at L2 alone.
        if (cell == &results::L1) outcome.L1output = text;
        if (cell == &results::L2) outcome.L2output = text + " [m]";
    }
}

/// Load cases of the selected roof, with their section of the report.
void calculate_family(const MainWindowFields& fields, const SnowLoadReportData& data, ProgramCells& cells,
                      std::optional<ReportFile>& report, ClickOutcome& outcome) {
    EntryReader reader;
    const Roof roof = read_roof(fields, reader);
    if (reader.stop()) return outcome.stop(*reader.stop());
    outcome.calculation = calculate_roof(cells, roof);
    if (roof.family == RoofFamily::cylindrical) set_width_labels(outcome);
    if (report) write_roof(*report, data, cells, roof, outcome.calculation);

    const CalculationEnd& end = outcome.calculation.end;
    outcome.results_complete = !end.stopped();
    if (end.fault == Fault::incongruent_dimensions) {
        outcome.fault = end.fault;
        outcome.tell(Icon::warning, "Dimensioni copertura non congruenti");
    } else if (end.stopped()) {
        outcome.stop(explain(end, roof, cells));
    }
}

}  // namespace

Roof read_roof(const MainWindowFields& fields, EntryReader& reader) {
    Roof roof;
    roof.family = fields.SSTab1;
    switch (roof.family) {
        case RoofFamily::one_pitch:
            roof.alfa1 = reader.lenient("alfa", fields.inputalfa);
            break;
        case RoofFamily::two_pitches:
            roof.alfa1 = reader.lenient("alfa1", fields.inputalfa1);
            roof.alfa2 = reader.lenient("alfa2", fields.inputalfa2);
            break;
        case RoofFamily::several_pitches:
            roof.alfa1 = reader.lenient("alfa1", fields.inputalfa3);
            roof.alfa2 = reader.lenient("alfa2", fields.inputalfa4);
            break;
        case RoofFamily::cylindrical:
            roof.L = reader.lenient("L", fields.Lcopcil);
            roof.H = reader.lenient("H", fields.hcopcil);
            break;
    }
    return roof;
}

ClickOutcome Calcola(const MainWindowFields& fields, Program& program) {
    ClickOutcome outcome;
    ProgramCells& cells = program.cells;
    if (const auto stop = set_ground_load(fields, cells, outcome)) {
        outcome.stop(*stop);
        return outcome;
    }
    cells.unit_system = unit_system_of(fields.udmcombo).value_or(cells.unit_system);

    const SnowLoadReportData data{program.directories.JobName, fields.Lcopcil, fields.hcopcil,
                                  *outcome.altitude};
    std::optional<ReportFile> report;
    if (fields.Check1Box) {
        report.emplace(program.directories.WorkDirectory + "\\coltre.txt", outcome.messages);
        write_heading(*report, data, cells);
    }
    if (!report || report->failure().empty()) calculate_family(fields, data, cells, report, outcome);
    if (report) close_report(*report, "Creazione della relazione " + report->name() + " effettuata", outcome);
    return outcome;
}

}  // namespace coltre
