#include <algorithm>
#include <array>
#include <cmath>

#include "calculate/Calcola.h"
#include "document/formula_text.h"
#include "document/remarks.h"
#include "document/sections.h"
#include "drawings/diagrams.h"
#include "drawings/sketches.h"
#include "engine/ground_load.h"
#include "site/regions.h"

namespace coltre {

namespace {

using namespace results;

/// The chapters that the steps of a calculation fall into.
enum class Chapter { ground, coefficients, loads, further };

Chapter chapter_of(const Step& step, Kind kind) {
    const std::string_view symbol = step.symbol;
    for (const std::string_view ground : {"q0", "cT", "qsk", "as", "CE", "Ct", "Tr"})
        if (symbol == ground) return Chapter::ground;
    for (const std::string_view start : {"mu", "alfa", "R", "L", "H"})
        if (symbol.starts_with(start)) return Chapter::coefficients;
    for (const std::string_view start : {"d_", "k_", "qe_", "ls"})
        if (symbol.starts_with(start)) return Chapter::further;
    // The cut of a drift needs its length.
    const bool cut = kind == Kind::level_change && symbol.starts_with("qs1") && symbol != "qs1_intero";
    return cut ? Chapter::further : Chapter::loads;
}

/// What the site and the return period add to a step.
std::string more_on(const Step& step, const Subject& subject) {
    if (step.symbol == "q0" && !step.words.empty()) return " della " + std::string(zone_name(subject.zone));
    if (step.symbol != "cT" || subject.confirmed_return_period) return {};
    const Checked factor = return_period_factor(Checked(subject.return_period));
    if (factor.fault() != Fault::none) return {};
    return "con la formula: cT(" + number_text(subject.return_period) +
           ") = " + fixed_text(factor.value(), 4);
}

void write_chapter(Composer& write, const Subject& subject, Chapter chapter, std::string_view heading,
                   const std::vector<std::string>& remarks) {
    bool begun = false;
    std::string_view source;  // named once as long as it stays the same
    for (Step step : subject.trace().steps) {
        if (chapter_of(step, subject.fields.kind) != chapter) continue;
        if (!begun) write.section(heading);
        begun = true;
        if (step.source == source) {
            step.source = {};
        } else {
            source = step.source;
        }
        write.formula(step_line(step, more_on(step, subject)));
    }
    if (begun)
        for (const std::string& remark : remarks)
            write.paragraph(remark);
}

/// What the circular says of sites above 1500 m, and the ground load there.
void write_altitude_remark(Composer& write, const Subject& subject) {
    if (!subject.outcome.qsk || !subject.calculation().needs_ground_load) return;
    const LoadInputs inputs = subject.load_inputs();
    if (inputs.altitude <= highest_regulated_altitude) return;
    ProgramCells cells;
    cells.zone = inputs.zone;
    cells.return_period_factor = inputs.factor;
    set_base_load(cells, highest_regulated_altitude);
    apply_load_factors(cells, inputs.CE, inputs.Ct);
    std::string notice = altitude_notice(subject.fields)->message.text;
    std::ranges::replace(notice, '\r', ' ');
    write.note(std::move(notice));
    write.paragraph(
        "Calcolo eseguito con l'altitudine scritta, " + number_text(inputs.altitude) +
        " m; a 1500 m sarebbe qsk = " + with_unit(value_text(cells.qsk, area_load), area_load.unit) + ".");
}

void write_ground_load_diagram(Composer& write, const Subject& subject) {
    if (!subject.outcome.qsk || !subject.calculation().needs_ground_load) return;
    const LoadInputs inputs = subject.load_inputs();
    write.figure(
        ground_load_over_altitude(inputs.zone, inputs.factor, inputs.CE, inputs.Ct, inputs.altitude), {},
        "qsk in funzione dell'altitudine, " + std::string(zone_name(inputs.zone)) + "; il sito è segnato");
}

void write_coefficient_diagram(Composer& write, const Subject& subject) {
    const bool of_pitches = subject.is_roof() && subject.fields.kind != Kind::cylindrical;
    if (!of_pitches || subject.outcome.calculation.coefficients.empty()) return;
    write.figure(shape_coefficients_over_slope(subject.outcome.entries), {},
                 "coefficienti di forma in funzione dell'inclinazione");
}

void write_arrangements(Composer& write, const Subject& subject) {
    const auto a = subject.computed(qs_2a), b = subject.computed(qs_2b), c = subject.computed(qs_2c),
               d = subject.computed(qs_2d);
    if (!a || !b || !c || !d) return;
    struct Arrangement {
        std::string_view number, name;
        double side1, side2;
    };
    const std::array<Arrangement, 3> all{{{"I", "entrambe le falde cariche", *a, *c},
                                          {"II", "falda 1 dimezzata", *b, *c},
                                          {"III", "falda 2 dimezzata", *a, *d}}};
    const double most1 = std::max(*a, *b);
    const double most2 = std::max(*c, *d);
    const Arrangement* most_uneven = &all[0];
    Table rows{{ColumnAlign::left, ColumnAlign::right, ColumnAlign::right, ColumnAlign::right},
               {plain("Disposizione di carico"), plain("qs falda 1 [kN/m²]"), plain("qs falda 2 [kN/m²]"),
                plain("differenza [kN/m²]")},
               {}};
    const auto number = [](double value, bool worst) {
        return Pieces{{fixed_text(value, area_load.decimals), worst ? Style::strong : Style::plain}};
    };
    const auto difference = [](const Arrangement& it) { return std::abs(it.side1 - it.side2); };
    for (const Arrangement& it : all) {
        if (difference(it) > difference(*most_uneven)) most_uneven = &it;
        rows.rows.push_back({plain(std::string(it.number) + " — " + std::string(it.name)),
                             number(it.side1, it.side1 == most1), number(it.side2, it.side2 == most2),
                             number(difference(it), false)});
    }
    write.table(std::move(rows));
    write.paragraph(
        "In grassetto il massimo su ciascuna falda. La massima differenza tra le falde si ha con la "
        "disposizione " +
        std::string(most_uneven->number) + ": " +
        with_unit(fixed_text(difference(*most_uneven), area_load.decimals), area_load.unit) + ".");
}

/// Windows have the decimal point in their sketches, as in their fields.
void take_decimal_commas(Drawing& drawing) {
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    for (Text& text : drawing.texts)
        for (std::size_t i = 1; i + 1 < text.text.size(); ++i)
            if (text.text[i] == '.' && is_digit(text.text[i - 1]) && is_digit(text.text[i + 1]))
                text.text[i] = ',';
}

void write_sketch(Composer& write, const Subject& subject) {
    if (subject.outcome.calculation.results.empty()) return;
    std::map<std::string, std::string> labels;
    const auto label = [&](std::string_view name, const ResultCell& result, std::string_view unit = {}) {
        if (const auto value = subject.computed(result))
            labels[std::string(name)] = fixed_text(*value, result.quantity.decimals) + std::string(unit);
    };
    for (const ResultPlace& place : subject.calculation().places)
        label(place.label, *place.result);
    if (subject.fields.kind == Kind::cylindrical) {
        label("L1output", L1);
        label("L2output", L2, " m");
    }
    // Ordinates of loads that were not computed would be 0: those of the coefficients stand for them.
    const bool all_loads = worst_load(subject.fields.kind, subject.outcome.calculation).has_value();
    const ProgramCells cells = subject.cells();
    Drawing drawing = sketch(subject.outcome.entries, all_loads ? &cells : nullptr);
    take_decimal_commas(drawing);
    const std::string caption =
        std::string(subject.calculation().meaning) +
        (drawing.neutral ? ", schema senza scala" : ", schema in scala") +
        "; qs riferito alla proiezione orizzontale" +
        (all_loads || drawing.neutral
             ? ""
             : "; carichi non tutti calcolati, ordinate proporzionali ai coefficienti");
    write.figure(std::move(drawing), std::move(labels), caption);
}

void write_load_figure(Composer& write, const Subject& subject) {
    write_arrangements(write, subject);
    write_sketch(write, subject);
}

/// The load arrangements with their figure, and what follows from the loads.
void write_loads(Composer& write, const Subject& subject, const Remarks& remarks) {
    write_chapter(write, subject, Chapter::loads,
                  subject.fields.kind == Kind::snow_guard ? "Forza sull'ostacolo" : "Carico sulla copertura",
                  remarks.on_loads);
    write_load_figure(write, subject);
    const std::string_view quotation = describe(subject.fields.kind).quotation;
    if (!quotation.empty()) write.note(std::string(quotation));
    write_chapter(write, subject, Chapter::further,
                  subject.is_roof() ? "Neve sporgente" : "Lunghezza di accumulo", remarks.on_length);
}

}  // namespace

void write_loads_alone(Composer& write, const Subject& subject) {
    const Remarks remarks = remarks_on(subject);
    write_altitude_remark(write, subject);
    for (const std::string& remark : remarks.on_coefficients)
        write.paragraph(remark);
    write_loads(write, subject, remarks);
}

void write_steps(Composer& write, const Subject& subject, bool diagrams) {
    const Kind kind = subject.fields.kind;
    const Remarks remarks = remarks_on(subject);
    // A ground load that plays no part is told of where it has stopped the calculation.
    if (subject.calculation().needs_ground_load || !subject.outcome.qsk) {
        write_chapter(write, subject, Chapter::ground, "Carico neve al suolo", {});
        write_altitude_remark(write, subject);
        if (diagrams) write_ground_load_diagram(write, subject);
    }
    write_chapter(write, subject, Chapter::coefficients,
                  kind == Kind::cylindrical ? "Geometria e coefficienti di forma" : "Coefficienti di forma",
                  remarks.on_coefficients);
    if (diagrams) write_coefficient_diagram(write, subject);
    write_loads(write, subject, remarks);
}

}  // namespace coltre
