#include "calculate/Calcola.h"

#include "engine/both_observers.h"
#include "engine/ground_load.h"
#include "engine/roof_loads.h"
#include "report/snow_load_report.h"
#include "report/unit_systems.h"
#include "text/number_text.h"

namespace coltre {

namespace {

Message altitude_message() {
    return {Icon::information, std::string(program_title),
            "<Per altitudini superiori a 1500 m sul livello del mare si dovrà fare riferimento\r"
            "alle condizioni locali di clima e di esposizione utilizzando comunque valori di\r"
            "carico neve non inferiori a quelli previsti per 1500 m.>\r"
            "(Circ. 4 luglio 1996)"};
}

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
/// @param altitude  out: as read, m
std::optional<Stop> set_ground_load(const MainWindowFields& fields, ProgramCells& cells, double& altitude,
                                    ClickOutcome& outcome, MessageBoxes& message_boxes) {
    EntryReader reader;
    altitude = reader.lenient("altitudine", fields.asinput);
    if (reader.stop()) return reader.stop();
    if (altitude > highest_regulated_altitude) {
        message_boxes.show(altitude_message());
        // Deliberate: this calculation goes on with the altitude as typed; only a later one reads 1500.
        outcome.asinput = display_number_text(highest_regulated_altitude);
    }
    if (auto stop = set_base_load(cells, altitude)) return stop;
    const auto [CE, Ct] = reader.coefficients(fields.ComboEsp, fields.TextCTermico);
    if (reader.stop()) return reader.stop();
    return apply_coefficients(cells, CE, Ct);
}

/// Load cases of the selected roof, and the two labels that show their widths at once.
std::optional<Stop> calculate_family(const MainWindowFields& fields, ProgramCells& cells,
                                     ClickOutcome& outcome, MessageBoxes& message_boxes,
                                     CalculationObserver& observer) {
    /// Writes the labels of L1 and L2 as soon as these are known, even if the calculation stops afterwards.
    struct WidthLabels : CalculationObserver {
        explicit WidthLabels(ClickOutcome& labels) : outcome(labels) {}
        void on_cell(const ResultCell& cell, double value) override {
            const std::string text = display_number_text(round_half_even(value, 2));
            // Deliberate: the unit stands at L2 alone.
            if (cell.name == results::L1.name) outcome.L1output = text;
            if (cell.name == results::L2.name) outcome.L2output = text + " [m]";
        }
        ClickOutcome& outcome;
    };

    EntryReader reader;
    const Roof roof = read_roof(fields, reader);
    if (reader.stop()) return reader.stop();
    WidthLabels labels(outcome);
    BothObservers both(labels, observer);
    CalculationObserver& observers = roof.family == RoofFamily::cylindrical ? both : observer;

    const CalculationEnd end = calculate_roof(cells, roof, &observers);
    if (end.fault == Fault::incongruent_dimensions) {
        outcome.fault = end.fault;
        message_boxes.show(
            {Icon::warning, std::string(program_title), "Dimensioni copertura non congruenti"});
        return std::nullopt;
    }
    if (end.stopped()) return explain(end, roof, cells);
    outcome.results_complete = true;
    return std::nullopt;
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

ClickOutcome Calcola(const MainWindowFields& fields, Program& program, MessageBoxes& message_boxes,
                     CalculationObserver& observer) {
    ClickOutcome outcome;
    ProgramCells& cells = program.cells;
    double altitude = 0;
    if (tell_if_stopped(set_ground_load(fields, cells, altitude, outcome, message_boxes), outcome,
                        message_boxes))
        return outcome;
    outcome.altitude = altitude;
    outcome.qsk = cells.qsk;
    cells.unit_system = unit_system_of(fields.udmcombo).value_or(cells.unit_system);
    std::optional<SnowLoadReport> report;
    if (fields.Check1Box) {
        report.emplace(SnowLoadReportData{.WorkDirectory = program.directories.WorkDirectory,
                                          .JobName = program.directories.JobName,
                                          .Lcopcil = fields.Lcopcil,
                                          .hcopcil = fields.hcopcil,
                                          .altitude = altitude},
                       cells, message_boxes);
    }
    calculate_with_report(report ? &*report : nullptr, observer, outcome, message_boxes,
                          [&](CalculationObserver& observers) {
                              return calculate_family(fields, cells, outcome, message_boxes, observers);
                          });
    return outcome;
}

}  // namespace coltre
