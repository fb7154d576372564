#include "engine/special_loads.h"

#include <algorithm>
#include <cmath>

#include "engine/Calcolo_Mu.h"

namespace coltre {

namespace {

using namespace results;

constexpr double mu1_flat = 0.8;  // coefficient at the end of the drift, and the least at the step

void level_change(Calculation& run, const SpecialCaseEntries& entries) {
    ProgramCells& cells = run.cells();
    const double G = cells.qsk;
    const Checked twice_h = Checked(2) * entries.h;

    const Checked by_width = (Checked(entries.b1) + entries.b2) / twice_h;
    const Checked by_height = by_width.fault() == Fault::none ? twice_h / G : by_width;
    if (by_height.fault() != Fault::none) {
        run.stop(by_height.fault(), level_mu2.name);
        return;
    }
    const double mu_w = std::clamp(std::min(by_width.value(), by_height.value()), mu1_flat, 4.0);
    // Deliberate: above 15 degrees mu1(alfa) is evaluated for its cell alone. The part of the snow that
    // slides off the upper roof is half of a value that is always 0, so mu2 is mu_w for every slope.
    if (entries.alfa > 15) mu1(cells, entries.alfa);
    const double mu_s = 0;

    if (!run.set(level_mu2, Checked(mu_s) + mu_w)) return;
    if (!run.set(level_qs2, Checked(cells.level_mu2) * G)) return;
    if (!run.set(level_qs1, Checked(mu1_flat) * G)) return;
    if (!run.set(level_ls, drift_length(entries.h))) return;
    if (drift_is_cut(cells.level_ls, entries.b2)) {
        const Checked qs1 = cells.level_qs1;
        const Checked ls = cells.level_ls;
        if (!run.set(level_qs1, qs1 + (cells.level_qs2 - qs1) / ls * (ls - entries.b2))) return;
        if (!run.set(level_ls, entries.b2)) return;
    }
    if (run.observer() != nullptr) run.observer()->on_special_case(entries);
}

void wall(Calculation& run, const SpecialCaseEntries& entries) {
    ProgramCells& cells = run.cells();
    const double G = cells.qsk;
    if (!run.set(wall_qs1, Checked(mu1_flat) * G)) return;
    const Checked mu2 = Checked(2) * entries.h / G;
    if (!run.set(wall_mu2, mu2.fault() == Fault::none ? std::clamp(mu2.value(), mu1_flat, 2.0) : mu2)) return;
    if (!run.set(wall_qs2, Checked(cells.mu2) * G)) return;
    if (!run.set(wall_ls, drift_length(entries.h))) return;
    if (run.observer() != nullptr) run.observer()->on_special_case(entries);
}

void snow_guard(Calculation& run, const SpecialCaseEntries& entries) {
    const double pi = 4 * std::atan(1.0);
    const Checked angle = Checked(entries.alfa) * pi / 180;
    if (!run.set(Fs, Checked(entries.qs) * entries.b * sin(angle))) return;
    if (run.observer() != nullptr) run.observer()->on_special_case(entries);
}

}  // namespace

Checked drift_length(double h) {
    const Checked twice_h = Checked(2) * h;
    return twice_h.fault() == Fault::none ? std::clamp(twice_h.value(), 5.0, 15.0) : twice_h;
}

bool drift_is_cut(double ls, double b2) {
    return ls >= b2;
}

CalculationEnd calculate_special_case(ProgramCells& cells, const SpecialCaseEntries& entries,
                                      CalculationObserver* observer) {
    Calculation run(cells, observer);
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
    return run.end();
}

}  // namespace coltre
