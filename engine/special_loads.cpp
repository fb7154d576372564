#include "engine/special_loads.h"

#include "engine/Calcolo_Mu.h"

namespace coltre {

namespace {

using namespace results;

constexpr double mu1_flat = 0.8;  // coefficient at the end of the drift, and the least at the step

}  // namespace

template <typename Number>
void level_change(Run<Number>& run, const Entries& entries) {
    run.source("Circ. 4 luglio 1996, C.6.4");
    const Number G = run.stored(&ProgramCells::qsk, "qsk");
    const Number b1 = run.entry("b1", entries.b1);
    const Number b2 = run.entry("b2", entries.b2);
    const Number h = run.entry("h", entries.h);
    const Number alfa = run.entry("alfa", entries.alfa);

    const Number by_width_and_height = min((b1 + b2) / (2 * h), 2 * h / G);
    const Number mu_w = run.let("mu_w", coefficient, clamp(by_width_and_height, Number(mu1_flat), Number(4)));
    if (run.stops(mu_w, level_mu2.name, &level_mu2)) return;
    // Deliberate: above 15 degrees mu1(alfa) is evaluated for its cell alone. The part of the snow that
    // slides off the upper roof is half of a value that is always 0, so mu2 is mu_w for every slope.
    if (entries.alfa > 15) {
        run.store(&ProgramCells::mu1, "mu1",
                  mu1(alfa, Number(0), [&run](const auto& condition) { return run.holds(condition); }));
    }
    const Number mu_s = run.let("mu_s", coefficient, Number(0));

    const Number mu2 = run.set(level_mu2, mu_s + mu_w);
    const Number qs2 = run.set(level_qs2, mu2 * G);
    const Number whole_qs1 = run.set(level_qs1, mu1_flat * G, "qs1_intero");
    const Number whole_ls = run.set(level_ls, drift_length(h), "ls_intero");
    if (run.holds(drift_is_cut(whole_ls, b2))) {
        run.set(level_qs1, whole_qs1 + (qs2 - whole_qs1) / whole_ls * (whole_ls - b2));
        run.holds(drift_is_cut(whole_ls, b2));
        run.set(level_ls, b2);
    } else {
        run.holds(whole_ls < b2);
        run.set(level_qs1, whole_qs1);
        run.holds(whole_ls < b2);
        run.set(level_ls, whole_ls);
    }
}

template <typename Number>
void wall(Run<Number>& run, const Entries& entries) {
    run.source("Circ. 4 luglio 1996");
    const Number G = run.stored(&ProgramCells::qsk, "qsk");
    const Number h = run.entry("h", entries.h);
    run.set(wall_qs1, mu1_flat * G);
    const Number mu2 = run.set(wall_mu2, clamp(2 * h / G, Number(mu1_flat), Number(2)));
    run.set(wall_qs2, mu2 * G);
    run.set(wall_ls, drift_length(h));
}

template <typename Number>
void snow_guard(Run<Number>& run, const Entries& entries) {
    run.source("Circ. 4 luglio 1996, C.6.6");
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
