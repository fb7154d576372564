#include "engine/roof_loads.h"

#include "engine/Calcolo_Mu.h"

namespace coltre {

namespace {

using namespace results;

/// A coefficient's cell set for a pitch; of a negative one it is what was there before.
/// @param previous  symbol of that   @param mu  the coefficient's function
template <typename Number, typename Function>
Number set_coefficient(Run<Number>& run, double ProgramCells::*cell, Symbol symbol, Symbol previous,
                       const Number& alfa, Function mu) {
    run.stage(Stage::coefficients);
    const bool kept = alfa.value() < 0;
    if (kept) run.source("regola del programma: un'inclinazione negativa lascia il coefficiente com'era");
    const Number before = kept ? run.stored(cell, previous) : Number(0);
    Number value = run.store(cell, symbol, mu(alfa, before, [&run](const auto& condition, auto words) {
                                 return run.holds(condition, words);
                             }));
    run.source(circular);
    return value;
}

template <typename Number>
Number set_mu1(Run<Number>& run, Symbol symbol, const Number& alfa) {
    return set_coefficient(
        run, &ProgramCells::mu1, symbol, "mu1_precedente", alfa,
        [](const Number& pitch, const Number& before, auto holds) { return mu1(pitch, before, holds); });
}

/// The roof load of a coefficient, and the coefficient under the label of its load case.
template <typename Number>
Number set_roof_load(Run<Number>& run, std::string_view label, const ResultCell& result, const Number& mu) {
    run.stage(Stage::loads);
    Number qs = run.set(result, mu * run.stored(&ProgramCells::qsk, "qsk"));
    run.coefficient(label, mu);
    return qs;
}

template <typename Number>
Number set_overhang_load(Run<Number>& run, const ResultCell& result, const Number& qs,
                         const ResultCell& qs_result) {
    return run.set(result, qe(run, qs, qs_result.name));
}

/// The rows and symbols of one side of two pitches.
struct Side {
    std::string_view label, halved_label;
    std::string_view mu, halved_mu;
    const ResultCell &qs, &halved_qs;
    const ResultCell &qe, &halved_qe;
};
constexpr Side side1{"mu1(alfa1)", "0.5mu1(alfa1)", "mu1_alfa1", "mu1_alfa1_dimezzato",
                     qs_2a,        qs_2b,           qe_2a,       qe_2b};
constexpr Side side2{"mu1(alfa2)", "0.5mu1(alfa2)", "mu1_alfa2", "mu1_alfa2_dimezzato",
                     qs_2c,        qs_2d,           qe_2c,       qe_2d};

template <typename Number>
void set_side(Run<Number>& run, const Side& side, const Number& alfa) {
    const Number mu = set_mu1(run, side.mu, alfa);
    const Number qs = set_roof_load(run, side.label, side.qs, mu);
    run.stage(Stage::coefficients);
    const Number halved_mu = run.let(side.halved_mu, coefficient, 0.5 * mu);
    const Number halved_qs = set_roof_load(run, side.halved_label, side.halved_qs, halved_mu);
    const Number qe = set_overhang_load(run, side.qe, qs, side.qs);
    const Number halved_qe = set_overhang_load(run, side.halved_qe, halved_qs, side.halved_qs);
    run.load_case(side.label, mu, qs, qe);
    run.load_case(side.halved_label, halved_mu, halved_qs, halved_qe);
}

}  // namespace

template <typename Number>
Number qe(Run<Number>& run, const Number& qs, std::string_view qs_name) {
    run.stage(Stage::overhang_and_drift);
    const Number d = run.let({"d", qs_name}, exact_length, qs / 3);
    const bool negative = qs.value() < 0;
    const Number k = run.let({"k", qs_name}, coefficient,
                             min(in_words(3 / d, negative ? "qs negativo" : "qs ≥ 3 kN/m²"),
                                 in_words(3 * d, negative ? "qs negativo" : "qs < 3 kN/m²")));
    return squared(qs) * k / 3;
}

template <typename Number>
void one_pitch(Run<Number>& run, const Entries& entries) {
    run.source(circular);
    const Number mu = set_mu1(run, "mu1", run.entry("alfa", entries.alfa));
    const Number qs = set_roof_load(run, "mu1", qs_1, mu);
    const Number qe = set_overhang_load(run, qe_1, qs, qs_1);
    run.load_case("mu1", mu, qs, qe);
}

template <typename Number>
void two_pitches(Run<Number>& run, const Entries& entries) {
    run.source(circular);
    set_side(run, side1, run.entry("alfa1", entries.alfa1));
    set_side(run, side2, run.entry("alfa2", entries.alfa2));
}

template <typename Number>
void several_pitches(Run<Number>& run, const Entries& entries) {
    run.source(circular);
    const Number alfa1 = run.entry("alfa1", entries.alfa1);
    const Number alfa2 = run.entry("alfa2", entries.alfa2);

    const Number mu_side1 = set_mu1(run, "mu1_alfa1", alfa1);
    run.load_case("mu1(alfa1)", mu_side1, set_roof_load(run, "mu1(alfa1)", qs_3a, mu_side1));
    const Number mu_side2 = set_mu1(run, "mu1_alfa2", alfa2);
    run.load_case("mu1(alfa2)", mu_side2, set_roof_load(run, "mu1(alfa2)", qs_3b, mu_side2));

    constexpr std::string_view valley = "mu2((alfa1+alfa2)/2)";
    run.stage(Stage::coefficients);
    const Number mean = run.let("alfa_m", slope, (alfa1 + alfa2) / 2);
    if (run.stops(mean, "mu2", coefficient)) return;
    const Number mu_valley = set_coefficient(
        run, &ProgramCells::mu2, "mu2", "mu2_precedente", mean,
        [](const Number& pitch, const Number& before, auto holds) { return mu2(pitch, before, holds); });
    run.load_case(valley, mu_valley, set_roof_load(run, valley, qs_3c, mu_valley));
}

template <typename Number>
void cylindrical(Run<Number>& run, const Entries& entries) {
    run.source(circular);
    run.stage(Stage::coefficients);
    const Number L = run.entry("L", entries.L);
    const Number H = run.entry("H", entries.H);

    // Radius of the arc through the two springings and the crown; the same as (L^2 / 4 + H^2) / (2 H).
    const Number radius = L / 2 * tan(2 * arctan((L - 2 * H) / (L + 2 * H))) + H;
    if (run.holds(L / 2 < H, "l'altezza supera metà della larghezza")) {
        run.let("R", exact_length, refused(radius, Fault::incongruent_dimensions));
        run.stops(Fault::incongruent_dimensions, {});
        return;
    }
    run.holds(L / 2 >= H);
    const Number R = run.let("R", exact_length, radius);
    // The chord between the points of the arc that slope by 60 degrees. For a shallow arc it comes out wider
    // than the roof, and is kept so.
    const Number width = run.set(L1, 2 * R * cos(Number(30) / 180 * Number::pi()));
    run.set(L2, width / 4);

    constexpr double highest_mu3 = 2;
    const Number mu1 = run.store(&ProgramCells::mu1, "mu1", Number(0.8));
    const Number free_mu3 = run.let("mu3_formula", coefficient, 10 * H / L + 0.2);
    const Number mu3 = run.store(&ProgramCells::mu3, "mu3",
                                 min(free_mu3, in_words(Number(highest_mu3), "limite superiore 2,0")));
    const Number mu2 = run.store(&ProgramCells::mu2, "mu2", 0.5 * mu3);

    const Number qs_uniform = set_roof_load(run, "mu1", qs_4a, mu1);
    const Number qs_halved = set_roof_load(run, "0.5mu3", qs_4b, mu2);
    const Number qs_full = set_roof_load(run, "mu3", qs_4c, mu3);
    const Number qe_uniform = set_overhang_load(run, qe_4a, qs_uniform, qs_4a);
    const Number qe_halved = set_overhang_load(run, qe_4b, qs_halved, qs_4b);
    const Number qe_full = set_overhang_load(run, qe_4c, qs_full, qs_4c);
    run.load_case("mu1", mu1, qs_uniform, qe_uniform);
    run.load_case("0.5mu3", mu2, qs_halved, qe_halved);
    run.load_case("mu3", mu3, qs_full, qe_full);
}

template void one_pitch(Run<Checked>&, const Entries&);
template void one_pitch(Run<Traced>&, const Entries&);
template void two_pitches(Run<Checked>&, const Entries&);
template void two_pitches(Run<Traced>&, const Entries&);
template void several_pitches(Run<Checked>&, const Entries&);
template void several_pitches(Run<Traced>&, const Entries&);
template void cylindrical(Run<Checked>&, const Entries&);
template void cylindrical(Run<Traced>&, const Entries&);

}  // namespace coltre
