#include "engine/special_loads.h"

#include "engine/Calcolo_Mu.h"

namespace coltre {

namespace {

using namespace results;

constexpr double mu1_flat = 0.8;  // coefficient at the end of the drift, and the least at the step

template <typename Number>
Number least_mu2() {
    return in_words(Number(mu1_flat), "limite inferiore 0,8");
}

template <typename Number>
Number traced_drift_length(Run<Number>& run, const Number& h) {
    run.stage(Stage::overhang_and_drift);
    return drift_length(h, [&run](const Number& twice) { return run.let("ls_formula", length, twice); });
}

}  // namespace

template <typename Number>
void level_change(Run<Number>& run, const Entries& entries) {
    run.source("Circ. 4 luglio 1996, C.6.4");
    run.stage(Stage::coefficients);
    const Number G = run.stored(&ProgramCells::qsk, "qsk");
    const Number b1 = run.entry("b1", entries.b1);
    const Number b2 = run.entry("b2", entries.b2);
    const Number h = run.entry("h", entries.h);
    const Number alfa = run.entry("alfa", entries.alfa);

    const Number by_width = run.let("mu_w_larghezza", coefficient, (b1 + b2) / (2 * h));
    const Number by_height = run.let("mu_w_quota", coefficient, 2 * h / G);
    const Number drift = min(in_words(by_width, "la larghezza delle coperture"),
                             in_words(by_height, "l'accumulo colma il dislivello"));
    const Number mu_w = run.let(
        "mu_w", coefficient, clamp(drift, least_mu2<Number>(), in_words(Number(4), "limite superiore 4,0")));
    if (run.stops(mu_w, level_mu2.name, coefficient, &level_mu2)) return;
    // Deliberate: above 15 degrees mu1(alfa) is evaluated for its cell alone. The part of the snow that
    // slides off the upper roof is half of a value that is always 0, so mu2 is mu_w for every slope.
    if (entries.alfa > 15) {
        run.store(&ProgramCells::mu1, "mu1", mu1(alfa, Number(0), [&run](const auto& condition, auto words) {
            return run.holds(condition, words);
        }));
    }
    run.words("neve scivolata dalla copertura superiore, non considerata");
    const Number mu_s = run.let("mu_s", coefficient, Number(0));

    const Number mu2 = run.set(level_mu2, mu_s + mu_w);
    run.stage(Stage::loads);
    const Number qs2 = run.set(level_qs2, mu2 * G);
    const Number whole_qs1 = run.set(level_qs1, mu1_flat * G, "qs1_intero");
    const Number whole_ls = run.set(level_ls, traced_drift_length(run, h), "ls_intero");
    constexpr std::string_view cut = "taglio: l'accumulo raggiunge il bordo della copertura inferiore";
    constexpr std::string_view whole = "accumulo intero: termina sulla copertura inferiore";
    if (run.holds(drift_is_cut(whole_ls, b2), cut)) {
        run.set(level_qs1, whole_qs1 + (qs2 - whole_qs1) / whole_ls * (whole_ls - b2));
        run.holds(drift_is_cut(whole_ls, b2), cut);
        run.set(level_ls, b2);
    } else {
        run.holds(whole_ls < b2, whole);
        run.set(level_qs1, whole_qs1);
        run.holds(whole_ls < b2, whole);
        run.set(level_ls, whole_ls);
    }
}

template <typename Number>
void wall(Run<Number>& run, const Entries& entries) {
    run.source(circular);
    const Number G = run.stored(&ProgramCells::qsk, "qsk");
    const Number h = run.entry("h", entries.h);
    run.stage(Stage::loads);
    run.set(wall_qs1, mu1_flat * G);
    run.stage(Stage::coefficients);
    const Number free_mu2 = run.let("mu2_formula", coefficient, 2 * h / G);
    const Number mu2 =
        run.set(wall_mu2, clamp(free_mu2, least_mu2<Number>(), in_words(Number(2), "limite superiore 2,0")));
    run.stage(Stage::loads);
    run.set(wall_qs2, mu2 * G);
    run.set(wall_ls, traced_drift_length(run, h));
}

template <typename Number>
void snow_guard(Run<Number>& run, const Entries& entries) {
    run.source("Circ. 4 luglio 1996, C.6.6");
    run.stage(Stage::loads);
    const Number qs = run.entry("qs", entries.qs);
    const Number b = run.entry("b", entries.b);
    const Number alfa = run.entry("alfa", entries.alfa);
    run.set(Fs, qs * b * sin(alfa * Number::pi() / 180));
}

template void level_change(Run<Checked>&, const Entries&);
template void level_change(Run<Traced>&, const Entries&);
template void wall(Run<Checked>&, const Entries&);
template void wall(Run<Traced>&, const Entries&);
template void snow_guard(Run<Checked>&, const Entries&);
template void snow_guard(Run<Traced>&, const Entries&);

}  // namespace coltre
