#include "engine/special_loads.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/Calcolo_Mu.h"

namespace coltre {

namespace {

using namespace results;

constexpr double mu1_flat = 0.8;  // coefficient at the end of the drift, and the least at the step

void level_change(Run& run, const SpecialCaseEntries& entries) {
    ProgramCells& cells = run.cells();
    const double G = cells.qsk;
    const Checked twice_h = Checked(2) * entries.h;

    const Checked mu_w = clamp(min((Checked(entries.b1) + entries.b2) / twice_h, twice_h / G), mu1_flat, 4.0);
    if (mu_w.fault() != Fault::none) return run.stop(mu_w.fault(), level_mu2.name);
    // Deliberate: above 15 degrees mu1(alfa) is evaluated for its cell alone. The part of the snow that
    // slides off the upper roof is half of a value that is always 0, so mu2 is mu_w for every slope.
    if (entries.alfa > 15) cells.mu1 = mu1(entries.alfa, cells.mu1);
    const double mu_s = 0;

    if (!run.set(level_mu2, mu_s + mu_w)) return;
    if (!run.set(level_qs2, Checked(cells.level_mu2) * G)) return;
    if (!run.set(level_qs1, Checked(mu1_flat) * G)) return;
    if (!run.set(level_ls, drift_length(entries.h))) return;
    if (drift_is_cut(cells.level_ls, entries.b2)) {
        const Checked qs1 = cells.level_qs1;
        const Checked ls = cells.level_ls;
        if (!run.set(level_qs1, qs1 + (cells.level_qs2 - qs1) / ls * (ls - entries.b2))) return;
        if (!run.set(level_ls, entries.b2)) return;
    }
}

void wall(Run& run, const SpecialCaseEntries& entries) {
    ProgramCells& cells = run.cells();
    const double G = cells.qsk;
    if (!run.set(wall_qs1, Checked(mu1_flat) * G)) return;
    if (!run.set(wall_mu2, clamp(Checked(2) * entries.h / G, mu1_flat, 2.0))) return;
    if (!run.set(wall_qs2, Checked(cells.mu2) * G)) return;
    if (!run.set(wall_ls, drift_length(entries.h))) return;
}

void snow_guard(Run& run, const SpecialCaseEntries& entries) {
    const double pi = 4 * std::atan(1.0);
    const Checked angle = Checked(entries.alfa) * pi / 180;
    if (!run.set(Fs, Checked(entries.qs) * entries.b * sin(angle))) return;
}

}  // namespace

Checked drift_length(double h) {
    return clamp(Checked(2) * h, 5, 15);
}

bool drift_is_cut(double ls, double b2) {
    return ls >= b2;
}

Calculation calculate_special_case(ProgramCells& cells, const SpecialCaseEntries& entries) {
    Run run(cells);
    switch (entries.special_case) {
        case SpecialCase::level_change:
            level_change(run, entries);
            break;
        case SpecialCase::wall:
            wall(run, entries);
            break;
        case SpecialCase::snow_guard:
            snow_guard(run, entries);
            break;
    }
    return std::move(run.calculation());
}

}  // namespace coltre
