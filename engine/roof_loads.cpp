#include "engine/roof_loads.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/Calcolo_Mu.h"

namespace coltre {

namespace {

using namespace results;

/// A load case that has an overhang load: its label and cells.
struct LoadCaseCells {
    std::string_view label;
    const ResultCell& qs;
    const ResultCell& qe;
};

// Two pitches: each side full, then halved.
constexpr LoadCaseCells side1_full{"mu1(alfa1)", qs_2a, qe_2a}, side1_halved{"0.5mu1(alfa1)", qs_2b, qe_2b};
constexpr LoadCaseCells side2_full{"mu1(alfa2)", qs_2c, qe_2c}, side2_halved{"0.5mu1(alfa2)", qs_2d, qe_2d};

/// The roof load of a coefficient, and the coefficient under the label of its load case.
bool set_roof_load(Run& run, std::string_view label, const ResultCell& qs, Checked mu) {
    if (!run.set(qs, mu * run.cells().qsk)) return false;
    run.calculation().coefficients.push_back({label, mu.value()});
    return true;
}

bool set_overhang_load(Run& run, const LoadCaseCells& load_case) {
    return run.set(load_case.qe, qe(run.cells().*load_case.qs.cell));
}

/// The load case is complete.
void add(Run& run, const LoadCaseCells& load_case, double mu) {
    const ProgramCells& cells = run.cells();
    run.calculation().load_cases.push_back(
        {load_case.label, mu, cells.*load_case.qs.cell, cells.*load_case.qe.cell});
}

void one_pitch(Run& run, const Roof& roof) {
    constexpr LoadCaseCells full{"mu1", qs_1, qe_1};
    ProgramCells& cells = run.cells();
    cells.mu1 = mu1(roof.alfa1, cells.mu1);
    if (!set_roof_load(run, full.label, full.qs, cells.mu1)) return;
    if (!set_overhang_load(run, full)) return;
    add(run, full, cells.mu1);
}

/// The loads of one side of two pitches, full and halved.
bool side_of_two_pitches(Run& run, double alfa, const LoadCaseCells& full, const LoadCaseCells& halved) {
    ProgramCells& cells = run.cells();
    cells.mu1 = mu1(alfa, cells.mu1);
    return set_roof_load(run, full.label, full.qs, cells.mu1) &&
           set_roof_load(run, halved.label, halved.qs, Checked(0.5) * cells.mu1) &&
           set_overhang_load(run, full) && set_overhang_load(run, halved);
}

void two_pitches(Run& run, const Roof& roof) {
    const ProgramCells& cells = run.cells();
    if (!side_of_two_pitches(run, roof.alfa1, side1_full, side1_halved)) return;
    add(run, side1_full, cells.mu1);
    add(run, side1_halved, 0.5 * cells.mu1);

    if (!side_of_two_pitches(run, roof.alfa2, side2_full, side2_halved)) return;
    add(run, side2_full, cells.mu1);
    add(run, side2_halved, 0.5 * cells.mu1);
}

void several_pitches(Run& run, const Roof& roof) {
    constexpr std::string_view side1 = "mu1(alfa1)";
    constexpr std::string_view side2 = "mu1(alfa2)";
    constexpr std::string_view valley = "mu2((alfa1+alfa2)/2)";
    ProgramCells& cells = run.cells();

    cells.mu1 = mu1(roof.alfa1, cells.mu1);
    if (!set_roof_load(run, side1, qs_3a, cells.mu1)) return;
    run.calculation().load_cases.push_back({side1, cells.mu1, cells.qs_3a, std::nullopt});

    cells.mu1 = mu1(roof.alfa2, cells.mu1);
    if (!set_roof_load(run, side2, qs_3b, cells.mu1)) return;
    run.calculation().load_cases.push_back({side2, cells.mu1, cells.qs_3b, std::nullopt});

    const Checked mean = (Checked(roof.alfa1) + roof.alfa2) / 2;
    if (mean.fault() != Fault::none) {
        run.stop(mean.fault(), "mu2");
        return;
    }
    cells.mu2 = mu2(mean.value(), cells.mu2);
    if (!set_roof_load(run, valley, qs_3c, cells.mu2)) return;
    run.calculation().load_cases.push_back({valley, cells.mu2, cells.qs_3c, std::nullopt});
}

void cylindrical(Run& run, const Roof& roof) {
    constexpr LoadCaseCells uniform{"mu1", qs_4a, qe_4a};
    constexpr LoadCaseCells halved{"0.5mu3", qs_4b, qe_4b};
    constexpr LoadCaseCells full{"mu3", qs_4c, qe_4c};
    constexpr double highest_mu3 = 2.0;
    ProgramCells& cells = run.cells();
    const Checked L = roof.L;
    const Checked H = roof.H;

    // Radius of the arc through the two springings and the crown; the same as (L^2 / 4 + H^2) / (2 H).
    const Checked R = L / 2 * tan(2 * arctan((L - 2 * H) / (L + 2 * H))) + H;
    // The chord between the points of the arc that slope by 60 degrees. For a shallow arc it comes out wider
    // than the roof, and is kept so.
    const double cos30 = std::cos(30.0 / 180 * 4 * std::atan(1.0));
    if (!run.set(L1, 2 * R * cos30)) return;
    if (!run.set(L2, Checked(cells.L1) / 4)) return;

    cells.mu1 = 0.8;
    const Checked mu3 = 10 * H / L + 0.2;
    if (mu3.fault() != Fault::none) {
        run.stop(mu3.fault(), "mu3");
        return;
    }
    cells.mu3 = std::min(mu3.value(), highest_mu3);
    cells.mu2 = 0.5 * cells.mu3;

    if (!set_roof_load(run, uniform.label, qs_4a, cells.mu1)) return;
    if (!set_roof_load(run, halved.label, qs_4b, cells.mu2)) return;
    if (!set_roof_load(run, full.label, qs_4c, cells.mu3)) return;
    for (const LoadCaseCells& load_case : {uniform, halved, full}) {
        if (!set_overhang_load(run, load_case)) return;
    }
    add(run, uniform, cells.mu1);
    add(run, halved, cells.mu2);
    add(run, full, cells.mu3);
}

}  // namespace

Checked qe(Checked qs) {
    const Checked d = qs / 3;
    const Checked k = min(3 / d, 3 * d);
    return squared(qs) * k / 3;
}

Calculation calculate_roof(ProgramCells& cells, const Roof& roof) {
    Run run(cells);
    switch (roof.family) {
        case RoofFamily::one_pitch:
            one_pitch(run, roof);
            break;
        case RoofFamily::two_pitches:
            two_pitches(run, roof);
            break;
        case RoofFamily::several_pitches:
            several_pitches(run, roof);
            break;
        case RoofFamily::cylindrical:
            if (roof.L / 2 < roof.H) {
                run.stop(Fault::incongruent_dimensions, {});
            } else {
                cylindrical(run, roof);
            }
            break;
    }
    return std::move(run.calculation());
}

}  // namespace coltre
