#include <algorithm>
#include <array>
#include <cmath>
#include <span>

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

/// What the site and the return period add to a step.
std::string more_on(const Step& step, const Subject& subject) {
    if (step.symbol == "q0" && !step.words.empty()) return " della " + std::string(zone_name(subject.zone));
    if (step.symbol != "cT" || subject.confirmed_return_period) return {};
    const Checked factor = return_period_factor(Checked(subject.return_period));
    if (factor.fault() != Fault::none) return {};
    return "con la formula: cT(" + number_text(subject.return_period) +
           ") = " + fixed_text(factor.value(), 4);
}

void write_chapter(Composer& write, const Subject& subject, Stage stage, std::string_view heading,
                   const std::vector<std::string>& remarks) {
    bool begun = false;
    std::string_view source;  // named once as long as it stays the same
    for (Step step : subject.trace().steps) {
        if (step.stage != stage) continue;
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

/// The load on a side of two pitches, whole or halved.
struct SideLoad {
    double mu, qs;
    std::optional<double> qe;  ///< nothing on a pitch so steep that no snow stays on it
};

/// The three arrangements of two pitches, of four loads: side 1, side 1 halved, side 2, side 2 halved.
struct Arrangement {
    std::string_view number, name;
    const SideLoad &side1, &side2;

    [[nodiscard]] double difference() const { return std::abs(side1.qs - side2.qs); }
};

/// The numbers of the arrangements in which a load is the greatest: "I e III"; "nessuna" where there is none.
template <typename Load>
std::string worst_arrangements(std::span<const Arrangement> all, Load load) {
    const double greatest = load(*std::ranges::max_element(all, {}, load));
    if (greatest <= 0) return "nessuna";
    std::vector<std::string_view> worst;
    for (const Arrangement& it : all)
        if (load(it) == greatest) worst.push_back(it.number);
    std::string text(worst.front());
    for (std::size_t i = 1; i < worst.size(); ++i)
        text.append(i + 1 < worst.size() ? ", " : " e ").append(worst[i]);
    return text;
}

void write_arrangements(Composer& write, const Subject& subject) {
    constexpr std::array roof_loads{&qs_2a, &qs_2b, &qs_2c, &qs_2d};
    constexpr std::array eaves_loads{&qe_2a, &qe_2b, &qe_2c, &qe_2d};
    std::array<SideLoad, 4> loads{};
    for (std::size_t i = 0; i < loads.size(); ++i) {
        const auto qs = subject.computed(*roof_loads[i]);
        if (!qs) return;
        loads[i] = {subject.outcome.calculation.coefficients[i].mu, *qs, subject.computed(*eaves_loads[i])};
    }
    const std::array<Arrangement, 3> all{{{"I", "entrambe le falde cariche", loads[0], loads[2]},
                                          {"II", "falda 1 dimezzata", loads[1], loads[2]},
                                          {"III", "falda 2 dimezzata", loads[0], loads[3]}}};
    const std::array most{std::max(loads[0].qs, loads[1].qs), std::max(loads[2].qs, loads[3].qs)};

    using enum ColumnAlign;
    Table rows{{left, right, right, right, right},
               {plain("Disposizione di carico"), plain("falda"), plain("µ"), plain("qs = µ · qsk [kN/m²]"),
                plain("qe [kN/m]")},
               {}};
    for (const Arrangement& it : all) {
        const auto add = [&](std::string text, std::string_view side, const SideLoad& load, double greatest) {
            const bool worst = load.qs == greatest && load.qs > 0;
            const Style style = worst ? Style::strong : Style::plain;
            rows.rows.push_back({plain(std::move(text)),
                                 plain(std::string(side)),
                                 plain(fixed_text(load.mu, coefficient.decimals)),
                                 {{fixed_text(load.qs, area_load.decimals), style}},
                                 plain(load.qe ? fixed_text(*load.qe, line_load.decimals) : "—")});
        };
        add(std::string(it.number) + " — " + std::string(it.name), "1", it.side1, most[0]);
        add({}, "2", it.side2, most[1]);
    }
    write.table(std::move(rows));

    const double difference = std::ranges::max_element(all, {}, &Arrangement::difference)->difference();
    write.paragraph("In grassetto il massimo su ciascuna falda. Più gravosa per il massimo sulla falda 1: " +
                    worst_arrangements(all, [](const Arrangement& it) { return it.side1.qs; }) +
                    "; per il massimo sulla falda 2: " +
                    worst_arrangements(all, [](const Arrangement& it) { return it.side2.qs; }) +
                    "; massima differenza tra le falde: " +
                    worst_arrangements(all, [](const Arrangement& it) { return it.difference(); }) + " (" +
                    with_unit(fixed_text(difference, area_load.decimals), area_load.unit) + ").");
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
            labels[std::string(name)] = value_text(*value, result.quantity) + std::string(unit);
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
    write_chapter(write, subject, Stage::loads,
                  subject.fields.kind == Kind::snow_guard ? "Forza sull'ostacolo" : "Carico sulla copertura",
                  remarks.on_loads);
    write_load_figure(write, subject);
    const std::string_view quotation = describe(subject.fields.kind).quotation;
    if (!quotation.empty()) write.note(std::string(quotation));
    write_chapter(write, subject, Stage::overhang_and_drift,
                  subject.is_roof() ? "Neve sporgente" : "Lunghezza di accumulo", remarks.on_length);
}

}  // namespace

void write_loads_alone(Composer& write, const Subject& subject) {
    write_altitude_remark(write, subject);
    Remarks remarks = remarks_on(subject);
    remarks.on_loads.insert(remarks.on_loads.begin(), remarks.on_coefficients.begin(),
                            remarks.on_coefficients.end());
    write_loads(write, subject, remarks);
}

void write_steps(Composer& write, const Subject& subject, bool diagrams) {
    const Kind kind = subject.fields.kind;
    const Remarks remarks = remarks_on(subject);
    // A ground load that plays no part is told of where it has stopped the calculation.
    if (subject.calculation().needs_ground_load || !subject.outcome.qsk) {
        write_chapter(write, subject, Stage::ground_load, "Carico neve al suolo", {});
        write_altitude_remark(write, subject);
        if (diagrams) write_ground_load_diagram(write, subject);
    }
    write_chapter(write, subject, Stage::coefficients,
                  kind == Kind::cylindrical ? "Geometria e coefficienti di forma" : "Coefficienti di forma",
                  remarks.on_coefficients);
    if (diagrams) write_coefficient_diagram(write, subject);
    write_loads(write, subject, remarks);
}

}  // namespace coltre
